#include "veks/vector/arithmetic.h"

#include "core/frame.h"
#include "core/targets.h"
#include "vector/operations.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/arithmetic/roots-inl.h"
#include <hwy/foreach_target.h>

#include "vector/arithmetic/roots-inl.h"

using namespace veks;

VekStatus veksSqrt_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return mapOne(VEKS_KERNEL(SqrtOne<Vek32f>), pSrc, pDst, len);
}

VekStatus veksSqrt_32f_I(Vek32f* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(SqrtOne<Vek32f>), pSrcDst, pSrcDst, len);
}

VekStatus veksSqrt_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return mapOne(VEKS_KERNEL(SqrtOne<Vek64f>), pSrc, pDst, len);
}

VekStatus veksSqrt_64f_I(Vek64f* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(SqrtOne<Vek64f>), pSrcDst, pSrcDst, len);
}

VekStatus veksSqrt_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len) {
  return mapOne(VEKS_KERNEL(SqrtComplexFloat), pSrc, pDst, len);
}

VekStatus veksSqrt_32fc_I(Vek32fc* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(SqrtComplexFloat), pSrcDst, pSrcDst, len);
}

VekStatus veksSqrt_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len) {
  return mapOne(VEKS_KERNEL(SqrtComplexDouble), pSrc, pDst, len);
}

VekStatus veksSqrt_64fc_I(Vek64fc* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(SqrtComplexDouble), pSrcDst, pSrcDst, len);
}

VekStatus veksSqrt_8u_Sfs(const Vek8u* pSrc, Vek8u* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(SqrtScaled<Vek8u, Vek8u>), pSrc, pDst, len, scaleFactor);
}

VekStatus veksSqrt_8u_ISfs(Vek8u* pSrcDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(SqrtScaled<Vek8u, Vek8u>), pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksSqrt_16u_Sfs(const Vek16u* pSrc, Vek16u* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(SqrtScaled<Vek16u, Vek16u>), pSrc, pDst, len, scaleFactor);
}

VekStatus veksSqrt_16u_ISfs(Vek16u* pSrcDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(SqrtScaled<Vek16u, Vek16u>), pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksSqrt_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(SqrtScaled<Vek16s, Vek16s>), pSrc, pDst, len, scaleFactor);
}

VekStatus veksSqrt_16s_ISfs(Vek16s* pSrcDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(SqrtScaled<Vek16s, Vek16s>), pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksSqrt_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(SqrtComplexScaled), pSrc, pDst, len, scaleFactor);
}

VekStatus veksSqrt_16sc_ISfs(Vek16sc* pSrcDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(SqrtComplexScaled), pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksSqrt_64s_Sfs(const Vek64s* pSrc, Vek64s* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(SqrtLongScaled<Vek64s>), pSrc, pDst, len, scaleFactor);
}

VekStatus veksSqrt_64s_ISfs(Vek64s* pSrcDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(SqrtLongScaled<Vek64s>), pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksSqrt_32s16s_Sfs(const Vek32s* pSrc, Vek16s* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(SqrtScaled<Vek32s, Vek16s>), pSrc, pDst, len, scaleFactor);
}

VekStatus veksSqrt_64s16s_Sfs(const Vek64s* pSrc, Vek16s* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(SqrtLongScaled<Vek16s>), pSrc, pDst, len, scaleFactor);
}
