#include "veks/vector/normalisation.h"

#include "core/frame.h"
#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/normalisation-inl.h"
#include <hwy/foreach_target.h>

#include "vector/normalisation-inl.h"

using namespace veks;

namespace {

template <class T>
VekStatus checkDivisor(T vDiv) {
  return vDiv == 0 ? vekErrDivByZero : vekStsOk;
}

}  // namespace

VekStatus veksNormalize_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f vSub, Vek32f vDiv) {
  return mapChecked(VEKS_KERNEL(Normalise<Vek32f>), pSrc, pDst, len, checkDivisor(vDiv), vSub,
                    vDiv);
}

VekStatus veksNormalize_32f_I(Vek32f* pSrcDst, int len, Vek32f vSub, Vek32f vDiv) {
  return mapChecked(VEKS_KERNEL(Normalise<Vek32f>), pSrcDst, pSrcDst, len, checkDivisor(vDiv), vSub,
                    vDiv);
}

VekStatus veksNormalize_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f vSub, Vek64f vDiv) {
  return mapChecked(VEKS_KERNEL(Normalise<Vek64f>), pSrc, pDst, len, checkDivisor(vDiv), vSub,
                    vDiv);
}

VekStatus veksNormalize_64f_I(Vek64f* pSrcDst, int len, Vek64f vSub, Vek64f vDiv) {
  return mapChecked(VEKS_KERNEL(Normalise<Vek64f>), pSrcDst, pSrcDst, len, checkDivisor(vDiv), vSub,
                    vDiv);
}

VekStatus veksNormalize_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len, Vek32fc vSub,
                             Vek32f vDiv) {
  return mapChecked(VEKS_KERNEL(NormaliseComplex<Vek32fc, Vek32f>), pSrc, pDst, len,
                    checkDivisor(vDiv), vSub, vDiv);
}

VekStatus veksNormalize_32fc_I(Vek32fc* pSrcDst, int len, Vek32fc vSub, Vek32f vDiv) {
  return mapChecked(VEKS_KERNEL(NormaliseComplex<Vek32fc, Vek32f>), pSrcDst, pSrcDst, len,
                    checkDivisor(vDiv), vSub, vDiv);
}

VekStatus veksNormalize_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len, Vek64fc vSub,
                             Vek64f vDiv) {
  return mapChecked(VEKS_KERNEL(NormaliseComplex<Vek64fc, Vek64f>), pSrc, pDst, len,
                    checkDivisor(vDiv), vSub, vDiv);
}

VekStatus veksNormalize_64fc_I(Vek64fc* pSrcDst, int len, Vek64fc vSub, Vek64f vDiv) {
  return mapChecked(VEKS_KERNEL(NormaliseComplex<Vek64fc, Vek64f>), pSrcDst, pSrcDst, len,
                    checkDivisor(vDiv), vSub, vDiv);
}

VekStatus veksNormalize_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s vSub, int vDiv,
                                int scaleFactor) {
  return mapChecked(VEKS_KERNEL(NormaliseScaled<Vek16s>), pSrc, pDst, len, checkDivisor(vDiv), vSub,
                    vDiv, scaleFactor);
}

VekStatus veksNormalize_16s_ISfs(Vek16s* pSrcDst, int len, Vek16s vSub, int vDiv, int scaleFactor) {
  return mapChecked(VEKS_KERNEL(NormaliseScaled<Vek16s>), pSrcDst, pSrcDst, len, checkDivisor(vDiv),
                    vSub, vDiv, scaleFactor);
}

VekStatus veksNormalize_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int len, Vek16sc vSub,
                                 int vDiv, int scaleFactor) {
  return mapChecked(VEKS_KERNEL(NormaliseScaled<Vek16sc>), pSrc, pDst, len, checkDivisor(vDiv),
                    vSub, vDiv, scaleFactor);
}

VekStatus veksNormalize_16sc_ISfs(Vek16sc* pSrcDst, int len, Vek16sc vSub, int vDiv,
                                  int scaleFactor) {
  return mapChecked(VEKS_KERNEL(NormaliseScaled<Vek16sc>), pSrcDst, pSrcDst, len,
                    checkDivisor(vDiv), vSub, vDiv, scaleFactor);
}
