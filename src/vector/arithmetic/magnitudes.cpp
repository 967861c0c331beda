#include "veks/vector/arithmetic.h"

#include "core/frame.h"
#include "core/targets.h"
#include "vector/operations.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/arithmetic/magnitudes-inl.h"
#include <hwy/foreach_target.h>

#include "vector/arithmetic/magnitudes-inl.h"

using namespace veks;

VekStatus veksAbs_16s(const Vek16s* pSrc, Vek16s* pDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Abs, Vek16s>), pSrc, pDst, len);
}

VekStatus veksAbs_16s_I(Vek16s* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Abs, Vek16s>), pSrcDst, pSrcDst, len);
}

VekStatus veksAbs_32s(const Vek32s* pSrc, Vek32s* pDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Abs, Vek32s>), pSrc, pDst, len);
}

VekStatus veksAbs_32s_I(Vek32s* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Abs, Vek32s>), pSrcDst, pSrcDst, len);
}

VekStatus veksAbs_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Abs, Vek32f>), pSrc, pDst, len);
}

VekStatus veksAbs_32f_I(Vek32f* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Abs, Vek32f>), pSrcDst, pSrcDst, len);
}

VekStatus veksAbs_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Abs, Vek64f>), pSrc, pDst, len);
}

VekStatus veksAbs_64f_I(Vek64f* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Abs, Vek64f>), pSrcDst, pSrcDst, len);
}
