#include "veks/gen/windows.h"

#include "core/frame.h"
#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "gen/windows/windows-inl.h"
#include <hwy/foreach_target.h>

#include "gen/windows/windows-inl.h"

using namespace veks;

VekStatus veksWinKaiser_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek32f alpha) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek16s>), pSrc, pDst, len,
                    checkKaiser(alpha, len, kKaiserLimit), alpha);
}

VekStatus veksWinKaiser_16s_I(Vek16s* pSrcDst, int len, Vek32f alpha) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek16s>), pSrcDst, pSrcDst, len,
                    checkKaiser(alpha, len, kKaiserLimit), alpha);
}

VekStatus veksWinKaiser_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len, Vek32f alpha) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek16sc>), pSrc, pDst, len,
                    checkKaiser(alpha, len, kKaiserLimit), alpha);
}

VekStatus veksWinKaiser_16sc_I(Vek16sc* pSrcDst, int len, Vek32f alpha) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek16sc>), pSrcDst, pSrcDst, len,
                    checkKaiser(alpha, len, kKaiserLimit), alpha);
}

VekStatus veksWinKaiser_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f alpha) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek32f>), pSrc, pDst, len,
                    checkKaiser(alpha, len, kKaiserLimitOfFloats), alpha);
}

VekStatus veksWinKaiser_32f_I(Vek32f* pSrcDst, int len, Vek32f alpha) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek32f>), pSrcDst, pSrcDst, len,
                    checkKaiser(alpha, len, kKaiserLimitOfFloats), alpha);
}

VekStatus veksWinKaiser_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len, Vek32f alpha) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek32fc>), pSrc, pDst, len,
                    checkKaiser(alpha, len, kKaiserLimitOfFloats), alpha);
}

VekStatus veksWinKaiser_32fc_I(Vek32fc* pSrcDst, int len, Vek32f alpha) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek32fc>), pSrcDst, pSrcDst, len,
                    checkKaiser(alpha, len, kKaiserLimitOfFloats), alpha);
}

VekStatus veksWinKaiser_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek32f alpha) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek64f>), pSrc, pDst, len,
                    checkKaiser(alpha, len, kKaiserLimit), alpha);
}

VekStatus veksWinKaiser_64f_I(Vek64f* pSrcDst, int len, Vek32f alpha) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek64f>), pSrcDst, pSrcDst, len,
                    checkKaiser(alpha, len, kKaiserLimit), alpha);
}

VekStatus veksWinKaiser_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len, Vek32f alpha) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek64fc>), pSrc, pDst, len,
                    checkKaiser(alpha, len, kKaiserLimit), alpha);
}

VekStatus veksWinKaiser_64fc_I(Vek64fc* pSrcDst, int len, Vek32f alpha) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek64fc>), pSrcDst, pSrcDst, len,
                    checkKaiser(alpha, len, kKaiserLimit), alpha);
}

VekStatus veksWinKaiserQ15_16s(const Vek16s* pSrc, Vek16s* pDst, int len, int alphaQ15) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek16s>), pSrc, pDst, len,
                    checkKaiser(alphaOfQ15(alphaQ15), len, kKaiserLimit), alphaOfQ15(alphaQ15));
}

VekStatus veksWinKaiserQ15_16s_I(Vek16s* pSrcDst, int len, int alphaQ15) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek16s>), pSrcDst, pSrcDst, len,
                    checkKaiser(alphaOfQ15(alphaQ15), len, kKaiserLimit), alphaOfQ15(alphaQ15));
}

VekStatus veksWinKaiserQ15_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len, int alphaQ15) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek16sc>), pSrc, pDst, len,
                    checkKaiser(alphaOfQ15(alphaQ15), len, kKaiserLimit), alphaOfQ15(alphaQ15));
}

VekStatus veksWinKaiserQ15_16sc_I(Vek16sc* pSrcDst, int len, int alphaQ15) {
  return mapChecked(VEKS_KERNEL(WindowOf<Kaiser, Vek16sc>), pSrcDst, pSrcDst, len,
                    checkKaiser(alphaOfQ15(alphaQ15), len, kKaiserLimit), alphaOfQ15(alphaQ15));
}
