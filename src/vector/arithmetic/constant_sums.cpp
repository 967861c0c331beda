#include "veks/vector/arithmetic.h"

#include "core/frame.h"
#include "core/targets.h"
#include "vector/operations.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/arithmetic/sums-inl.h"
#include <hwy/foreach_target.h>

#include "vector/arithmetic/sums-inl.h"

using namespace veks;

VekStatus veksAddC_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Add, Vek32f>), pSrc, val, pDst, len);
}

VekStatus veksAddC_32f_I(Vek32f val, Vek32f* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Add, Vek32f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksAddC_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Add, Vek64f>), pSrc, val, pDst, len);
}

VekStatus veksAddC_64f_I(Vek64f val, Vek64f* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Add, Vek64f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksAddC_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Add, Vek32fc>), pSrc, val, pDst, len);
}

VekStatus veksAddC_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Add, Vek32fc>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksAddC_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Add, Vek64fc>), pSrc, val, pDst, len);
}

VekStatus veksAddC_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Add, Vek64fc>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksAddC_8u_Sfs(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Add, Vek8u>), pSrc, val, pDst, len, scaleFactor);
}

VekStatus veksAddC_8u_ISfs(Vek8u val, Vek8u* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Add, Vek8u>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksAddC_16u_Sfs(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Add, Vek16u>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksAddC_16u_ISfs(Vek16u val, Vek16u* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Add, Vek16u>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksAddC_16s_Sfs(const Vek16s* pSrc, Vek16s val, Vek16s* pDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Add, Vek16s>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksAddC_16s_ISfs(Vek16s val, Vek16s* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Add, Vek16s>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksAddC_32s_Sfs(const Vek32s* pSrc, Vek32s val, Vek32s* pDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Add, Vek32s>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksAddC_32s_ISfs(Vek32s val, Vek32s* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Add, Vek32s>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksAddC_16sc_Sfs(const Vek16sc* pSrc, Vek16sc val, Vek16sc* pDst, int len,
                            int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<Add, Vek16sc>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksAddC_16sc_ISfs(Vek16sc val, Vek16sc* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<Add, Vek16sc>), pSrcDst, val, pSrcDst,
                     len, scaleFactor);
}

VekStatus veksAddC_32sc_Sfs(const Vek32sc* pSrc, Vek32sc val, Vek32sc* pDst, int len,
                            int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<Add, Vek32sc>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksAddC_32sc_ISfs(Vek32sc val, Vek32sc* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<Add, Vek32sc>), pSrcDst, val, pSrcDst,
                     len, scaleFactor);
}

VekStatus veksSubC_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<SubFrom, Vek32f>), pSrc, val, pDst, len);
}

VekStatus veksSubC_32f_I(Vek32f val, Vek32f* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<SubFrom, Vek32f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubC_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<SubFrom, Vek64f>), pSrc, val, pDst, len);
}

VekStatus veksSubC_64f_I(Vek64f val, Vek64f* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<SubFrom, Vek64f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubC_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<SubFrom, Vek32fc>), pSrc, val, pDst, len);
}

VekStatus veksSubC_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<SubFrom, Vek32fc>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubC_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<SubFrom, Vek64fc>), pSrc, val, pDst, len);
}

VekStatus veksSubC_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<SubFrom, Vek64fc>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubC_8u_Sfs(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<SubFrom, Vek8u>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksSubC_8u_ISfs(Vek8u val, Vek8u* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<SubFrom, Vek8u>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksSubC_16u_Sfs(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<SubFrom, Vek16u>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksSubC_16u_ISfs(Vek16u val, Vek16u* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<SubFrom, Vek16u>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksSubC_16s_Sfs(const Vek16s* pSrc, Vek16s val, Vek16s* pDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<SubFrom, Vek16s>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksSubC_16s_ISfs(Vek16s val, Vek16s* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<SubFrom, Vek16s>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksSubC_32s_Sfs(const Vek32s* pSrc, Vek32s val, Vek32s* pDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<SubFrom, Vek32s>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksSubC_32s_ISfs(Vek32s val, Vek32s* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<SubFrom, Vek32s>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksSubC_16sc_Sfs(const Vek16sc* pSrc, Vek16sc val, Vek16sc* pDst, int len,
                            int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<SubFrom, Vek16sc>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksSubC_16sc_ISfs(Vek16sc val, Vek16sc* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<SubFrom, Vek16sc>), pSrcDst, val, pSrcDst,
                     len, scaleFactor);
}

VekStatus veksSubC_32sc_Sfs(const Vek32sc* pSrc, Vek32sc val, Vek32sc* pDst, int len,
                            int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<SubFrom, Vek32sc>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksSubC_32sc_ISfs(Vek32sc val, Vek32sc* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<SubFrom, Vek32sc>), pSrcDst, val, pSrcDst,
                     len, scaleFactor);
}

VekStatus veksSubCRev_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Sub, Vek32f>), pSrc, val, pDst, len);
}

VekStatus veksSubCRev_32f_I(Vek32f val, Vek32f* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Sub, Vek32f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubCRev_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Sub, Vek64f>), pSrc, val, pDst, len);
}

VekStatus veksSubCRev_64f_I(Vek64f val, Vek64f* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Sub, Vek64f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubCRev_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Sub, Vek32fc>), pSrc, val, pDst, len);
}

VekStatus veksSubCRev_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Sub, Vek32fc>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubCRev_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Sub, Vek64fc>), pSrc, val, pDst, len);
}

VekStatus veksSubCRev_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Sub, Vek64fc>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubCRev_8u_Sfs(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Sub, Vek8u>), pSrc, val, pDst, len, scaleFactor);
}

VekStatus veksSubCRev_8u_ISfs(Vek8u val, Vek8u* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Sub, Vek8u>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksSubCRev_16u_Sfs(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len,
                              int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Sub, Vek16u>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksSubCRev_16u_ISfs(Vek16u val, Vek16u* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Sub, Vek16u>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksSubCRev_16s_Sfs(const Vek16s* pSrc, Vek16s val, Vek16s* pDst, int len,
                              int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Sub, Vek16s>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksSubCRev_16s_ISfs(Vek16s val, Vek16s* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Sub, Vek16s>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksSubCRev_32s_Sfs(const Vek32s* pSrc, Vek32s val, Vek32s* pDst, int len,
                              int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Sub, Vek32s>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksSubCRev_32s_ISfs(Vek32s val, Vek32s* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Sub, Vek32s>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksSubCRev_16sc_Sfs(const Vek16sc* pSrc, Vek16sc val, Vek16sc* pDst, int len,
                               int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<Sub, Vek16sc>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksSubCRev_16sc_ISfs(Vek16sc val, Vek16sc* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<Sub, Vek16sc>), pSrcDst, val, pSrcDst,
                     len, scaleFactor);
}

VekStatus veksSubCRev_32sc_Sfs(const Vek32sc* pSrc, Vek32sc val, Vek32sc* pDst, int len,
                               int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<Sub, Vek32sc>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksSubCRev_32sc_ISfs(Vek32sc val, Vek32sc* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<Sub, Vek32sc>), pSrcDst, val, pSrcDst,
                     len, scaleFactor);
}

VekStatus veksAddC_16s_I(Vek16s val, Vek16s* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Add, Vek16s>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubC_16s_I(Vek16s val, Vek16s* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<SubFrom, Vek16s>), pSrcDst, val, pSrcDst, len);
}
