#include "veks/vector/arithmetic.h"

#include "core/frame.h"
#include "core/targets.h"
#include "vector/arithmetic/reciprocal.h"
#include "vector/operations.h"
#include "veks/vector/initialisation.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/arithmetic/complex_quotients-inl.h"
#include <hwy/foreach_target.h>

#include "vector/arithmetic/complex_quotients-inl.h"

using namespace veks;

namespace {

// A vector that is missing is left alone without an error.
VekStatus fillZeroUnchecked(Vek16u* dst, int len) {
  veksZero_16s(reinterpret_cast<Vek16s*>(dst), len);
  return vekStsOk;
}

}  // namespace

VekStatus veksDiv_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pDst, int len) {
  return mapTwo(VEKS_KERNEL(DivTwo<Vek32f>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksDiv_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(DivTwo<Vek32f>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksDiv_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pDst, int len) {
  return mapTwo(VEKS_KERNEL(DivTwo<Vek64f>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksDiv_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(DivTwo<Vek64f>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksDiv_32fc(const Vek32fc* pSrc1, const Vek32fc* pSrc2, Vek32fc* pDst, int len) {
  return mapTwo(VEKS_KERNEL(DivComplexTwo<Vek32fc>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksDiv_32fc_I(const Vek32fc* pSrc, Vek32fc* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(DivComplexTwo<Vek32fc>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksDiv_64fc(const Vek64fc* pSrc1, const Vek64fc* pSrc2, Vek64fc* pDst, int len) {
  return mapTwo(VEKS_KERNEL(DivComplexTwo<Vek64fc>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksDiv_64fc_I(const Vek64fc* pSrc, Vek64fc* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(DivComplexTwo<Vek64fc>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksDiv_8u_Sfs(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek8u* pDst, int len,
                         int scaleFactor) {
  return mapTwo(VEKS_KERNEL(DivTwoScaled<float, Vek8u, Vek8u, Vek8u>), pSrc1, pSrc2, pDst, len,
                scaleFactor);
}

VekStatus veksDiv_8u_ISfs(const Vek8u* pSrc, Vek8u* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(DivTwoScaled<float, Vek8u, Vek8u, Vek8u>), pSrc, pSrcDst, pSrcDst, len,
                scaleFactor);
}

VekStatus veksDiv_16u_Sfs(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len,
                          int scaleFactor) {
  return mapTwo(VEKS_KERNEL(DivTwoScaled<float, Vek16u, Vek16u, Vek16u>), pSrc1, pSrc2, pDst, len,
                scaleFactor);
}

VekStatus veksDiv_16u_ISfs(const Vek16u* pSrc, Vek16u* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(DivTwoScaled<float, Vek16u, Vek16u, Vek16u>), pSrc, pSrcDst, pSrcDst,
                len, scaleFactor);
}

VekStatus veksDiv_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len,
                          int scaleFactor) {
  return mapTwo(VEKS_KERNEL(DivTwoScaled<float, Vek16s, Vek16s, Vek16s>), pSrc1, pSrc2, pDst, len,
                scaleFactor);
}

VekStatus veksDiv_16s_ISfs(const Vek16s* pSrc, Vek16s* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(DivTwoScaled<float, Vek16s, Vek16s, Vek16s>), pSrc, pSrcDst, pSrcDst,
                len, scaleFactor);
}

VekStatus veksDiv_32s_Sfs(const Vek32s* pSrc1, const Vek32s* pSrc2, Vek32s* pDst, int len,
                          int scaleFactor) {
  return mapTwo(VEKS_KERNEL(DivLongScaled), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksDiv_32s_ISfs(const Vek32s* pSrc, Vek32s* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(DivLongScaled), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksDiv_16sc_Sfs(const Vek16sc* pSrc1, const Vek16sc* pSrc2, Vek16sc* pDst, int len,
                           int scaleFactor) {
  return mapTwo(VEKS_KERNEL(DivComplexScaled), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksDiv_16sc_ISfs(const Vek16sc* pSrc, Vek16sc* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(DivComplexScaled), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksDiv_32s16s_Sfs(const Vek16s* pSrc1, const Vek32s* pSrc2, Vek16s* pDst, int len,
                             int scaleFactor) {
  return mapTwo(VEKS_KERNEL(DivTwoScaled<double, Vek16s, Vek32s, Vek16s>), pSrc1, pSrc2, pDst, len,
                scaleFactor);
}

VekStatus veksDivC_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len) {
  return mapReciprocal(VEKS_KERNEL(MapConstant<Mul, Vek32f>), pSrc, val, pDst, len);
}

VekStatus veksDivC_32f_I(Vek32f val, Vek32f* pSrcDst, int len) {
  return mapReciprocal(VEKS_KERNEL(MapConstant<Mul, Vek32f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksDivC_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len) {
  return mapReciprocal(VEKS_KERNEL(MapConstant<Mul, Vek64f>), pSrc, val, pDst, len);
}

VekStatus veksDivC_64f_I(Vek64f val, Vek64f* pSrcDst, int len) {
  return mapReciprocal(VEKS_KERNEL(MapConstant<Mul, Vek64f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksDivC_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len) {
  return mapReciprocal(VEKS_KERNEL(MulComplexConstant<Vek32fc>), pSrc, val, pDst, len);
}

VekStatus veksDivC_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len) {
  return mapReciprocal(VEKS_KERNEL(MulComplexConstant<Vek32fc>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksDivC_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len) {
  return mapReciprocal(VEKS_KERNEL(MulComplexConstant<Vek64fc>), pSrc, val, pDst, len);
}

VekStatus veksDivC_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len) {
  return mapReciprocal(VEKS_KERNEL(MulComplexConstant<Vek64fc>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksDivC_8u_Sfs(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len, int scaleFactor) {
  return mapDivisor(VEKS_KERNEL(DivByConstantScaled<float, Vek8u>), pSrc, val, pDst, len,
                    scaleFactor);
}

VekStatus veksDivC_8u_ISfs(Vek8u val, Vek8u* pSrcDst, int len, int scaleFactor) {
  return mapDivisor(VEKS_KERNEL(DivByConstantScaled<float, Vek8u>), pSrcDst, val, pSrcDst, len,
                    scaleFactor);
}

VekStatus veksDivC_16u_Sfs(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len, int scaleFactor) {
  return mapDivisor(VEKS_KERNEL(DivByConstantScaled<float, Vek16u>), pSrc, val, pDst, len,
                    scaleFactor);
}

VekStatus veksDivC_16u_ISfs(Vek16u val, Vek16u* pSrcDst, int len, int scaleFactor) {
  return mapDivisor(VEKS_KERNEL(DivByConstantScaled<float, Vek16u>), pSrcDst, val, pSrcDst, len,
                    scaleFactor);
}

VekStatus veksDivC_16s_Sfs(const Vek16s* pSrc, Vek16s val, Vek16s* pDst, int len, int scaleFactor) {
  return mapDivisor(VEKS_KERNEL(DivByConstantScaled<float, Vek16s>), pSrc, val, pDst, len,
                    scaleFactor);
}

VekStatus veksDivC_16s_ISfs(Vek16s val, Vek16s* pSrcDst, int len, int scaleFactor) {
  return mapDivisor(VEKS_KERNEL(DivByConstantScaled<float, Vek16s>), pSrcDst, val, pSrcDst, len,
                    scaleFactor);
}

VekStatus veksDivC_16sc_Sfs(const Vek16sc* pSrc, Vek16sc val, Vek16sc* pDst, int len,
                            int scaleFactor) {
  return mapDivisor(VEKS_KERNEL(DivComplexByConstantScaled), pSrc, val, pDst, len, scaleFactor);
}

VekStatus veksDivC_16sc_ISfs(Vek16sc val, Vek16sc* pSrcDst, int len, int scaleFactor) {
  return mapDivisor(VEKS_KERNEL(DivComplexByConstantScaled), pSrcDst, val, pSrcDst, len,
                    scaleFactor);
}

VekStatus veksDivCRev_16u(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len) {
  if (val == 0) return fillZeroUnchecked(pDst, len);
  return mapConstant(VEKS_KERNEL(DivConstantByScaled), pSrc, val, pDst, len);
}

VekStatus veksDivCRev_16u_I(Vek16u val, Vek16u* pSrcDst, int len) {
  if (val == 0) return fillZeroUnchecked(pSrcDst, len);
  return mapConstant(VEKS_KERNEL(DivConstantByScaled), pSrcDst, val, pSrcDst, len);
}

VekStatus veksDivCRev_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len) {
  if (val == 0) return veksZero_32f(pDst, len);
  return mapConstant(VEKS_KERNEL(DivConstantBy<Vek32f>), pSrc, val, pDst, len);
}

VekStatus veksDivCRev_32f_I(Vek32f val, Vek32f* pSrcDst, int len) {
  if (val == 0) return veksZero_32f(pSrcDst, len);
  return mapConstant(VEKS_KERNEL(DivConstantBy<Vek32f>), pSrcDst, val, pSrcDst, len);
}
