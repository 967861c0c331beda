#include "veks/vector/conversion.h"

#include "core/frame.h"
#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/conversion/packed-inl.h"
#include <hwy/foreach_target.h>

#include "vector/conversion/packed-inl.h"

using namespace veks;

VekStatus veksConvert_24u32u(const Vek8u* pSrc, Vek32u* pDst, int len) {
  return mapOne(VEKS_KERNEL(Unpack<Vek32u, Vek32u>), pSrc, pDst, len);
}

VekStatus veksConvert_32u24u_Sfs(const Vek32u* pSrc, Vek8u* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(PackScaled<Vek32u>), pSrc, pDst, len, scaleFactor);
}

VekStatus veksConvert_24u32f(const Vek8u* pSrc, Vek32f* pDst, int len) {
  return mapOne(VEKS_KERNEL(Unpack<Vek32u, Vek32f>), pSrc, pDst, len);
}

VekStatus veksConvert_32f24u_Sfs(const Vek32f* pSrc, Vek8u* pDst, int len, int rndMode,
                                 int scaleFactor) {
  return mapOne(VEKS_KERNEL(PackRounded<Vek32u>), pSrc, pDst, len, rndMode, scaleFactor);
}

VekStatus veksConvert_24s32s(const Vek8u* pSrc, Vek32s* pDst, int len) {
  return mapOne(VEKS_KERNEL(Unpack<Vek32s, Vek32s>), pSrc, pDst, len);
}

VekStatus veksConvert_32s24s_Sfs(const Vek32s* pSrc, Vek8u* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(PackScaled<Vek32s>), pSrc, pDst, len, scaleFactor);
}

VekStatus veksConvert_24s32f(const Vek8u* pSrc, Vek32f* pDst, int len) {
  return mapOne(VEKS_KERNEL(Unpack<Vek32s, Vek32f>), pSrc, pDst, len);
}

VekStatus veksConvert_32f24s_Sfs(const Vek32f* pSrc, Vek8u* pDst, int len, int rndMode,
                                 int scaleFactor) {
  return mapOne(VEKS_KERNEL(PackRounded<Vek32s>), pSrc, pDst, len, rndMode, scaleFactor);
}
