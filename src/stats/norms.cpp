#include "veks/stats/norms.h"

#include "core/frame.h"
#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/norms-inl.h"
#include <hwy/foreach_target.h>

#include "stats/norms-inl.h"

using namespace veks;

VekStatus veksNorm_Inf_32f(const Vek32f* pSrc, int len, Vek32f* pNorm) {
  return reduceOne(VEKS_KERNEL(Norm<Inf, Vek32f>), pSrc, len, pNorm);
}

VekStatus veksNorm_Inf_64f(const Vek64f* pSrc, int len, Vek64f* pNorm) {
  return reduceOne(VEKS_KERNEL(Norm<Inf, Vek64f>), pSrc, len, pNorm);
}

VekStatus veksNorm_Inf_32fc32f(const Vek32fc* pSrc, int len, Vek32f* pNorm) {
  return reduceOne(VEKS_KERNEL(Norm<Inf, Vek32fc>), pSrc, len, pNorm);
}

VekStatus veksNorm_Inf_64fc64f(const Vek64fc* pSrc, int len, Vek64f* pNorm) {
  return reduceOne(VEKS_KERNEL(Norm<Inf, Vek64fc>), pSrc, len, pNorm);
}

VekStatus veksNorm_Inf_16s32f(const Vek16s* pSrc, int len, Vek32f* pNorm) {
  return reduceOne(VEKS_KERNEL(Norm<Inf, Vek16s>), pSrc, len, pNorm);
}

VekStatus veksNorm_Inf_16s32s_Sfs(const Vek16s* pSrc, int len, Vek32s* pNorm, int scaleFactor) {
  return reduceOne(VEKS_KERNEL(ScaledNorm<Inf, Vek16s>), pSrc, len, pNorm, scaleFactor);
}

VekStatus veksNormDiff_Inf_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, int len, Vek32f* pNorm) {
  return reduceTwo(VEKS_KERNEL(NormOfDifference<Inf, Vek32f>), pSrc1, pSrc2, len, pNorm);
}

VekStatus veksNormDiff_Inf_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, int len, Vek64f* pNorm) {
  return reduceTwo(VEKS_KERNEL(NormOfDifference<Inf, Vek64f>), pSrc1, pSrc2, len, pNorm);
}

VekStatus veksNormDiff_Inf_32fc32f(const Vek32fc* pSrc1, const Vek32fc* pSrc2, int len,
                                   Vek32f* pNorm) {
  return reduceTwo(VEKS_KERNEL(NormOfDifference<Inf, Vek32fc>), pSrc1, pSrc2, len, pNorm);
}

VekStatus veksNormDiff_Inf_64fc64f(const Vek64fc* pSrc1, const Vek64fc* pSrc2, int len,
                                   Vek64f* pNorm) {
  return reduceTwo(VEKS_KERNEL(NormOfDifference<Inf, Vek64fc>), pSrc1, pSrc2, len, pNorm);
}

VekStatus veksNormDiff_Inf_16s32f(const Vek16s* pSrc1, const Vek16s* pSrc2, int len,
                                  Vek32f* pNorm) {
  return reduceTwo(VEKS_KERNEL(NormOfDifference<Inf, Vek16s>), pSrc1, pSrc2, len, pNorm);
}

VekStatus veksNormDiff_Inf_16s32s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, int len,
                                      Vek32s* pNorm, int scaleFactor) {
  return reduceTwo(VEKS_KERNEL(ScaledNormOfDifference<Inf, Vek16s>), pSrc1, pSrc2, len, pNorm,
                   scaleFactor);
}

VekStatus veksNorm_L1_32f(const Vek32f* pSrc, int len, Vek32f* pNorm) {
  return reduceOne(VEKS_KERNEL(Norm<L1, Vek32f>), pSrc, len, pNorm);
}

VekStatus veksNorm_L1_64f(const Vek64f* pSrc, int len, Vek64f* pNorm) {
  return reduceOne(VEKS_KERNEL(Norm<L1, Vek64f>), pSrc, len, pNorm);
}

VekStatus veksNorm_L1_32fc32f(const Vek32fc* pSrc, int len, Vek32f* pNorm) {
  return reduceOne(VEKS_KERNEL(Norm<L1, Vek32fc>), pSrc, len, pNorm);
}

VekStatus veksNorm_L1_64fc64f(const Vek64fc* pSrc, int len, Vek64f* pNorm) {
  return reduceOne(VEKS_KERNEL(Norm<L1, Vek64fc>), pSrc, len, pNorm);
}

VekStatus veksNorm_L1_16s32f(const Vek16s* pSrc, int len, Vek32f* pNorm) {
  return reduceOne(VEKS_KERNEL(Norm<L1, Vek16s>), pSrc, len, pNorm);
}

VekStatus veksNorm_L1_16s32s_Sfs(const Vek16s* pSrc, int len, Vek32s* pNorm, int scaleFactor) {
  return reduceOne(VEKS_KERNEL(ScaledNorm<L1, Vek16s>), pSrc, len, pNorm, scaleFactor);
}

VekStatus veksNormDiff_L1_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, int len, Vek32f* pNorm) {
  return reduceTwo(VEKS_KERNEL(NormOfDifference<L1, Vek32f>), pSrc1, pSrc2, len, pNorm);
}

VekStatus veksNormDiff_L1_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, int len, Vek64f* pNorm) {
  return reduceTwo(VEKS_KERNEL(NormOfDifference<L1, Vek64f>), pSrc1, pSrc2, len, pNorm);
}

VekStatus veksNormDiff_L1_32fc32f(const Vek32fc* pSrc1, const Vek32fc* pSrc2, int len,
                                  Vek32f* pNorm) {
  return reduceTwo(VEKS_KERNEL(NormOfDifference<L1, Vek32fc>), pSrc1, pSrc2, len, pNorm);
}

VekStatus veksNormDiff_L1_64fc64f(const Vek64fc* pSrc1, const Vek64fc* pSrc2, int len,
                                  Vek64f* pNorm) {
  return reduceTwo(VEKS_KERNEL(NormOfDifference<L1, Vek64fc>), pSrc1, pSrc2, len, pNorm);
}

VekStatus veksNormDiff_L1_16s32f(const Vek16s* pSrc1, const Vek16s* pSrc2, int len, Vek32f* pNorm) {
  return reduceTwo(VEKS_KERNEL(NormOfDifference<L1, Vek16s>), pSrc1, pSrc2, len, pNorm);
}

VekStatus veksNormDiff_L1_16s32s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, int len,
                                     Vek32s* pNorm, int scaleFactor) {
  return reduceTwo(VEKS_KERNEL(ScaledNormOfDifference<L1, Vek16s>), pSrc1, pSrc2, len, pNorm,
                   scaleFactor);
}

VekStatus veksNorm_L2_32f(const Vek32f* pSrc, int len, Vek32f* pNorm) {
  return reduceOne(VEKS_KERNEL(Norm<L2, Vek32f>), pSrc, len, pNorm);
}

VekStatus veksNorm_L2_64f(const Vek64f* pSrc, int len, Vek64f* pNorm) {
  return reduceOne(VEKS_KERNEL(Norm<L2, Vek64f>), pSrc, len, pNorm);
}

VekStatus veksNorm_L2_32fc32f(const Vek32fc* pSrc, int len, Vek32f* pNorm) {
  return reduceOne(VEKS_KERNEL(Norm<L2, Vek32fc>), pSrc, len, pNorm);
}

VekStatus veksNorm_L2_64fc64f(const Vek64fc* pSrc, int len, Vek64f* pNorm) {
  return reduceOne(VEKS_KERNEL(Norm<L2, Vek64fc>), pSrc, len, pNorm);
}

VekStatus veksNorm_L2_16s32f(const Vek16s* pSrc, int len, Vek32f* pNorm) {
  return reduceOne(VEKS_KERNEL(Norm<L2, Vek16s>), pSrc, len, pNorm);
}

VekStatus veksNorm_L2_16s32s_Sfs(const Vek16s* pSrc, int len, Vek32s* pNorm, int scaleFactor) {
  return reduceOne(VEKS_KERNEL(ScaledNorm<L2, Vek16s>), pSrc, len, pNorm, scaleFactor);
}

VekStatus veksNormDiff_L2_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, int len, Vek32f* pNorm) {
  return reduceTwo(VEKS_KERNEL(NormOfDifference<L2, Vek32f>), pSrc1, pSrc2, len, pNorm);
}

VekStatus veksNormDiff_L2_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, int len, Vek64f* pNorm) {
  return reduceTwo(VEKS_KERNEL(NormOfDifference<L2, Vek64f>), pSrc1, pSrc2, len, pNorm);
}

VekStatus veksNormDiff_L2_32fc32f(const Vek32fc* pSrc1, const Vek32fc* pSrc2, int len,
                                  Vek32f* pNorm) {
  return reduceTwo(VEKS_KERNEL(NormOfDifference<L2, Vek32fc>), pSrc1, pSrc2, len, pNorm);
}

VekStatus veksNormDiff_L2_64fc64f(const Vek64fc* pSrc1, const Vek64fc* pSrc2, int len,
                                  Vek64f* pNorm) {
  return reduceTwo(VEKS_KERNEL(NormOfDifference<L2, Vek64fc>), pSrc1, pSrc2, len, pNorm);
}

VekStatus veksNormDiff_L2_16s32f(const Vek16s* pSrc1, const Vek16s* pSrc2, int len, Vek32f* pNorm) {
  return reduceTwo(VEKS_KERNEL(NormOfDifference<L2, Vek16s>), pSrc1, pSrc2, len, pNorm);
}

VekStatus veksNormDiff_L2_16s32s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, int len,
                                     Vek32s* pNorm, int scaleFactor) {
  return reduceTwo(VEKS_KERNEL(ScaledNormOfDifference<L2, Vek16s>), pSrc1, pSrc2, len, pNorm,
                   scaleFactor);
}
