#include "veks/gen/windows.h"

#include "core/frame.h"
#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "gen/windows/windows-inl.h"
#include <hwy/foreach_target.h>

#include "gen/windows/windows-inl.h"

using namespace veks;

VekStatus veksWinBlackman_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek32f alpha) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek16s>), kLeast, pSrc, pDst, len, alpha);
}

VekStatus veksWinBlackman_16s_I(Vek16s* pSrcDst, int len, Vek32f alpha) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek16s>), kLeast, pSrcDst, pSrcDst, len, alpha);
}

VekStatus veksWinBlackman_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len, Vek32f alpha) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek16sc>), kLeast, pSrc, pDst, len, alpha);
}

VekStatus veksWinBlackman_16sc_I(Vek16sc* pSrcDst, int len, Vek32f alpha) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek16sc>), kLeast, pSrcDst, pSrcDst, len, alpha);
}

VekStatus veksWinBlackman_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f alpha) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek32f>), kLeast, pSrc, pDst, len, alpha);
}

VekStatus veksWinBlackman_32f_I(Vek32f* pSrcDst, int len, Vek32f alpha) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek32f>), kLeast, pSrcDst, pSrcDst, len, alpha);
}

VekStatus veksWinBlackman_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len, Vek32f alpha) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek32fc>), kLeast, pSrc, pDst, len, alpha);
}

VekStatus veksWinBlackman_32fc_I(Vek32fc* pSrcDst, int len, Vek32f alpha) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek32fc>), kLeast, pSrcDst, pSrcDst, len, alpha);
}

VekStatus veksWinBlackman_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek32f alpha) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek64f>), kLeast, pSrc, pDst, len, alpha);
}

VekStatus veksWinBlackman_64f_I(Vek64f* pSrcDst, int len, Vek32f alpha) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek64f>), kLeast, pSrcDst, pSrcDst, len, alpha);
}

VekStatus veksWinBlackman_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len, Vek32f alpha) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek64fc>), kLeast, pSrc, pDst, len, alpha);
}

VekStatus veksWinBlackman_64fc_I(Vek64fc* pSrcDst, int len, Vek32f alpha) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek64fc>), kLeast, pSrcDst, pSrcDst, len, alpha);
}

VekStatus veksWinBlackmanStd_16s(const Vek16s* pSrc, Vek16s* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek16s>), kLeast, pSrc, pDst, len,
                    kStandardAlpha);
}

VekStatus veksWinBlackmanStd_16s_I(Vek16s* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek16s>), kLeast, pSrcDst, pSrcDst, len,
                    kStandardAlpha);
}

VekStatus veksWinBlackmanStd_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek16sc>), kLeast, pSrc, pDst, len,
                    kStandardAlpha);
}

VekStatus veksWinBlackmanStd_16sc_I(Vek16sc* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek16sc>), kLeast, pSrcDst, pSrcDst, len,
                    kStandardAlpha);
}

VekStatus veksWinBlackmanStd_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek32f>), kLeast, pSrc, pDst, len,
                    kStandardAlpha);
}

VekStatus veksWinBlackmanStd_32f_I(Vek32f* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek32f>), kLeast, pSrcDst, pSrcDst, len,
                    kStandardAlpha);
}

VekStatus veksWinBlackmanStd_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek32fc>), kLeast, pSrc, pDst, len,
                    kStandardAlpha);
}

VekStatus veksWinBlackmanStd_32fc_I(Vek32fc* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek32fc>), kLeast, pSrcDst, pSrcDst, len,
                    kStandardAlpha);
}

VekStatus veksWinBlackmanStd_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek64f>), kLeast, pSrc, pDst, len,
                    kStandardAlpha);
}

VekStatus veksWinBlackmanStd_64f_I(Vek64f* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek64f>), kLeast, pSrcDst, pSrcDst, len,
                    kStandardAlpha);
}

VekStatus veksWinBlackmanStd_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek64fc>), kLeast, pSrc, pDst, len,
                    kStandardAlpha);
}

VekStatus veksWinBlackmanStd_64fc_I(Vek64fc* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek64fc>), kLeast, pSrcDst, pSrcDst, len,
                    kStandardAlpha);
}

VekStatus veksWinBlackmanOpt_16s(const Vek16s* pSrc, Vek16s* pDst, int len) {
  return mapAtLeastLengthFirst(VEKS_KERNEL(OptimalBlackman<Vek16s>), kLeastOptimal, pSrc, pDst,
                               len);
}

VekStatus veksWinBlackmanOpt_16s_I(Vek16s* pSrcDst, int len) {
  return mapAtLeastLengthFirst(VEKS_KERNEL(OptimalBlackman<Vek16s>), kLeastOptimal, pSrcDst,
                               pSrcDst, len);
}

VekStatus veksWinBlackmanOpt_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len) {
  return mapAtLeastLengthFirst(VEKS_KERNEL(OptimalBlackman<Vek16sc>), kLeastOptimal, pSrc, pDst,
                               len);
}

VekStatus veksWinBlackmanOpt_16sc_I(Vek16sc* pSrcDst, int len) {
  return mapAtLeastLengthFirst(VEKS_KERNEL(OptimalBlackman<Vek16sc>), kLeastOptimal, pSrcDst,
                               pSrcDst, len);
}

VekStatus veksWinBlackmanOpt_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return mapAtLeastLengthFirst(VEKS_KERNEL(OptimalBlackman<Vek32f>), kLeastOptimal, pSrc, pDst,
                               len);
}

VekStatus veksWinBlackmanOpt_32f_I(Vek32f* pSrcDst, int len) {
  return mapAtLeastLengthFirst(VEKS_KERNEL(OptimalBlackman<Vek32f>), kLeastOptimal, pSrcDst,
                               pSrcDst, len);
}

VekStatus veksWinBlackmanOpt_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len) {
  return mapAtLeastLengthFirst(VEKS_KERNEL(OptimalBlackman<Vek32fc>), kLeastOptimal, pSrc, pDst,
                               len);
}

VekStatus veksWinBlackmanOpt_32fc_I(Vek32fc* pSrcDst, int len) {
  return mapAtLeastLengthFirst(VEKS_KERNEL(OptimalBlackman<Vek32fc>), kLeastOptimal, pSrcDst,
                               pSrcDst, len);
}

VekStatus veksWinBlackmanOpt_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return mapAtLeastLengthFirst(VEKS_KERNEL(OptimalBlackman<Vek64f>), kLeastOptimal, pSrc, pDst,
                               len);
}

VekStatus veksWinBlackmanOpt_64f_I(Vek64f* pSrcDst, int len) {
  return mapAtLeastLengthFirst(VEKS_KERNEL(OptimalBlackman<Vek64f>), kLeastOptimal, pSrcDst,
                               pSrcDst, len);
}

VekStatus veksWinBlackmanOpt_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len) {
  return mapAtLeastLengthFirst(VEKS_KERNEL(OptimalBlackman<Vek64fc>), kLeastOptimal, pSrc, pDst,
                               len);
}

VekStatus veksWinBlackmanOpt_64fc_I(Vek64fc* pSrcDst, int len) {
  return mapAtLeastLengthFirst(VEKS_KERNEL(OptimalBlackman<Vek64fc>), kLeastOptimal, pSrcDst,
                               pSrcDst, len);
}

VekStatus veksWinBlackmanQ15_16s(const Vek16s* pSrc, Vek16s* pDst, int len, int alphaQ15) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek16s>), kLeast, pSrc, pDst, len,
                    alphaOfQ15(alphaQ15));
}

VekStatus veksWinBlackmanQ15_16s_I(Vek16s* pSrcDst, int len, int alphaQ15) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek16s>), kLeast, pSrcDst, pSrcDst, len,
                    alphaOfQ15(alphaQ15));
}

VekStatus veksWinBlackmanQ15_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len, int alphaQ15) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek16sc>), kLeast, pSrc, pDst, len,
                    alphaOfQ15(alphaQ15));
}

VekStatus veksWinBlackmanQ15_16sc_I(Vek16sc* pSrcDst, int len, int alphaQ15) {
  return mapAtLeast(VEKS_KERNEL(WindowOf<Blackman, Vek16sc>), kLeast, pSrcDst, pSrcDst, len,
                    alphaOfQ15(alphaQ15));
}

VekStatus veksWinBlackmanQ15_16s_ISfs(Vek16s* pSrcDst, int len, int alphaQ15, int scaleFactor) {
  return mapAtLeast(VEKS_KERNEL(WindowScaled<Blackman, Vek16s>), kLeast, pSrcDst, pSrcDst, len,
                    alphaOfQ15(alphaQ15), scaleFactor);
}
