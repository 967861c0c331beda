#include "veks/vector/conversion.h"

#include "core/frame.h"
#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/conversion/narrowing-inl.h"
#include <hwy/foreach_target.h>

#include "vector/conversion/narrowing-inl.h"

using namespace veks;

VekStatus veksConvert_32s16s(const Vek32s* pSrc, Vek16s* pDst, int len) {
  return mapOne(VEKS_KERNEL(Narrow<Vek32s, Vek16s>), pSrc, pDst, len);
}

VekStatus veksConvert_16s8s(const Vek16s* pSrc, Vek8s* pDst, int len) {
  return mapOne(VEKS_KERNEL(Narrow<Vek16s, Vek8s>), pSrc, pDst, len);
}

VekStatus veksConvert_16s8u(const Vek16s* pSrc, Vek8u* pDst, int len) {
  return mapOne(VEKS_KERNEL(Narrow<Vek16s, Vek8u>), pSrc, pDst, len);
}

VekStatus veksConvert_32s16s_Sfs(const Vek32s* pSrc, Vek16s* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(NarrowScaled<Vek32s, Vek16s>), pSrc, pDst, len, scaleFactor);
}

VekStatus veksConvert_16s8s_Sfs(const Vek16s* pSrc, Vek8s* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(NarrowScaled<Vek16s, Vek8s>), pSrc, pDst, len, scaleFactor);
}

VekStatus veksConvert_64s32s_Sfs(const Vek64s* pSrc, Vek32s* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(NarrowScaled<Vek64s, Vek32s>), pSrc, pDst, len, scaleFactor);
}
