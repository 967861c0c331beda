#include "veks/vector/conversion.h"

#include "core/frame.h"
#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/conversion/direct-inl.h"
#include <hwy/foreach_target.h>

#include "vector/conversion/direct-inl.h"

using namespace veks;

VekStatus veksConvert_8s16s(const Vek8s* pSrc, Vek16s* pDst, int len) {
  return mapOne(VEKS_KERNEL(Convert<Vek8s, Vek16s>), pSrc, pDst, len);
}

VekStatus veksConvert_8u16s(const Vek8u* pSrc, Vek16s* pDst, int len) {
  return mapOne(VEKS_KERNEL(Convert<Vek8u, Vek16s>), pSrc, pDst, len);
}

VekStatus veksConvert_16s32s(const Vek16s* pSrc, Vek32s* pDst, int len) {
  return mapOne(VEKS_KERNEL(Convert<Vek16s, Vek32s>), pSrc, pDst, len);
}

VekStatus veksConvert_16s32f(const Vek16s* pSrc, Vek32f* pDst, int len) {
  return mapOne(VEKS_KERNEL(Convert<Vek16s, Vek32f>), pSrc, pDst, len);
}

VekStatus veksConvert_16u32f(const Vek16u* pSrc, Vek32f* pDst, int len) {
  return mapOne(VEKS_KERNEL(Convert<Vek16u, Vek32f>), pSrc, pDst, len);
}

VekStatus veksConvert_8s32f(const Vek8s* pSrc, Vek32f* pDst, int len) {
  return mapOne(VEKS_KERNEL(Convert<Vek8s, Vek32f>), pSrc, pDst, len);
}

VekStatus veksConvert_8u32f(const Vek8u* pSrc, Vek32f* pDst, int len) {
  return mapOne(VEKS_KERNEL(Convert<Vek8u, Vek32f>), pSrc, pDst, len);
}

VekStatus veksConvert_32s64f(const Vek32s* pSrc, Vek64f* pDst, int len) {
  return mapOne(VEKS_KERNEL(Convert<Vek32s, Vek64f>), pSrc, pDst, len);
}

VekStatus veksConvert_16s64f(const Vek16s* pSrc, Vek64f* pDst, int len) {
  return mapOne(VEKS_KERNEL(Convert<Vek16s, Vek64f>), pSrc, pDst, len);
}

VekStatus veksConvert_32f64f(const Vek32f* pSrc, Vek64f* pDst, int len) {
  return mapOne(VEKS_KERNEL(Convert<Vek32f, Vek64f>), pSrc, pDst, len);
}

VekStatus veksConvert_16sc32fc(const Vek16sc* pSrc, Vek32fc* pDst, int len) {
  return mapOne(VEKS_KERNEL(ConvertParts<Vek16sc, Vek32fc>), pSrc, pDst, len);
}

VekStatus veksConvert_32fc64fc(const Vek32fc* pSrc, Vek64fc* pDst, int len) {
  return mapOne(VEKS_KERNEL(ConvertParts<Vek32fc, Vek64fc>), pSrc, pDst, len);
}

VekStatus veksConvert_32sc64fc(const Vek32sc* pSrc, Vek64fc* pDst, int len) {
  return mapOne(VEKS_KERNEL(ConvertParts<Vek32sc, Vek64fc>), pSrc, pDst, len);
}

VekStatus veksConvert_32s32f(const Vek32s* pSrc, Vek32f* pDst, int len) {
  return mapOne(VEKS_KERNEL(Convert<Vek32s, Vek32f>), pSrc, pDst, len);
}

VekStatus veksConvert_64s64f(const Vek64s* pSrc, Vek64f* pDst, int len) {
  return mapOne(VEKS_KERNEL(Convert<Vek64s, Vek64f>), pSrc, pDst, len);
}

VekStatus veksConvert_64f32f(const Vek64f* pSrc, Vek32f* pDst, int len) {
  return mapOne(VEKS_KERNEL(Convert<Vek64f, Vek32f>), pSrc, pDst, len);
}

VekStatus veksConvert_64fc32fc(const Vek64fc* pSrc, Vek32fc* pDst, int len) {
  return mapOne(VEKS_KERNEL(ConvertParts<Vek64fc, Vek32fc>), pSrc, pDst, len);
}

VekStatus veksConvert_16s32f_Sfs(const Vek16s* pSrc, Vek32f* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertScaled<Vek16s, Vek32f>), pSrc, pDst, len, scaleFactor);
}

VekStatus veksConvert_16s64f_Sfs(const Vek16s* pSrc, Vek64f* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertScaled<Vek16s, Vek64f>), pSrc, pDst, len, scaleFactor);
}

VekStatus veksConvert_32s32f_Sfs(const Vek32s* pSrc, Vek32f* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertScaled<Vek32s, Vek32f>), pSrc, pDst, len, scaleFactor);
}

VekStatus veksConvert_32s64f_Sfs(const Vek32s* pSrc, Vek64f* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(ConvertScaled<Vek32s, Vek64f>), pSrc, pDst, len, scaleFactor);
}
