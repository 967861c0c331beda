#include "veks/vector/conversion.h"

#include "core/frame.h"
#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/conversion/rounded-inl.h"
#include <hwy/foreach_target.h>

#include "vector/conversion/rounded-inl.h"

using namespace veks;

VekStatus veksConvert_32f8s_Sfs(const Vek32f* pSrc, Vek8s* pDst, int len, int rndMode,
                                int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertRounded<Vek32f, Vek8s>), pSrc, pDst, len, rndMode, scaleFactor);
}

VekStatus veksConvert_32f8u_Sfs(const Vek32f* pSrc, Vek8u* pDst, int len, int rndMode,
                                int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertRounded<Vek32f, Vek8u>), pSrc, pDst, len, rndMode, scaleFactor);
}

VekStatus veksConvert_32f16s_Sfs(const Vek32f* pSrc, Vek16s* pDst, int len, int rndMode,
                                 int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertRounded<Vek32f, Vek16s>), pSrc, pDst, len, rndMode, scaleFactor);
}

VekStatus veksConvert_32f16u_Sfs(const Vek32f* pSrc, Vek16u* pDst, int len, int rndMode,
                                 int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertRounded<Vek32f, Vek16u>), pSrc, pDst, len, rndMode, scaleFactor);
}

VekStatus veksConvert_32f32s_Sfs(const Vek32f* pSrc, Vek32s* pDst, int len, int rndMode,
                                 int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertRounded<Vek32f, Vek32s>), pSrc, pDst, len, rndMode, scaleFactor);
}

VekStatus veksConvert_64f8s_Sfs(const Vek64f* pSrc, Vek8s* pDst, int len, int rndMode,
                                int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertRounded<Vek64f, Vek8s>), pSrc, pDst, len, rndMode, scaleFactor);
}

VekStatus veksConvert_64f8u_Sfs(const Vek64f* pSrc, Vek8u* pDst, int len, int rndMode,
                                int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertRounded<Vek64f, Vek8u>), pSrc, pDst, len, rndMode, scaleFactor);
}

VekStatus veksConvert_64f16s_Sfs(const Vek64f* pSrc, Vek16s* pDst, int len, int rndMode,
                                 int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertRounded<Vek64f, Vek16s>), pSrc, pDst, len, rndMode, scaleFactor);
}

VekStatus veksConvert_64f16u_Sfs(const Vek64f* pSrc, Vek16u* pDst, int len, int rndMode,
                                 int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertRounded<Vek64f, Vek16u>), pSrc, pDst, len, rndMode, scaleFactor);
}

VekStatus veksConvert_64f32s_Sfs(const Vek64f* pSrc, Vek32s* pDst, int len, int rndMode,
                                 int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertRounded<Vek64f, Vek32s>), pSrc, pDst, len, rndMode, scaleFactor);
}

VekStatus veksConvert_64f64s_Sfs(const Vek64f* pSrc, Vek64s* pDst, int len, int rndMode,
                                 int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertRounded<Vek64f, Vek64s>), pSrc, pDst, len, rndMode, scaleFactor);
}

VekStatus veksConvert_32fc16sc_Sfs(const Vek32fc* pSrc, Vek16sc* pDst, int len, int rndMode,
                                   int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertPartsRounded<Vek32fc, Vek16sc>), pSrc, pDst, len, rndMode,
                scaleFactor);
}
