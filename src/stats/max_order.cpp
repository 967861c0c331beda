#include "core/frame.h"
#include "core/targets.h"
#include "veks/stats/extremes.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/max_order-inl.h"
#include <hwy/foreach_target.h>

#include "stats/max_order-inl.h"

using namespace veks;

VekStatus veksMaxOrder_16s(const Vek16s* pSrc, int len, int* pOrder) {
  return reduceLengthFirst(VEKS_KERNEL(MaxOrderOfIntegers<Vek16s>), pSrc, len, pOrder);
}

VekStatus veksMaxOrder_32s(const Vek32s* pSrc, int len, int* pOrder) {
  return reduceLengthFirst(VEKS_KERNEL(MaxOrderOfIntegers<Vek32s>), pSrc, len, pOrder);
}

VekStatus veksMaxOrder_32f(const Vek32f* pSrc, int len, int* pOrder) {
  return reduceLengthFirst(VEKS_KERNEL(MaxOrderOfFloats<Vek32f>), pSrc, len, pOrder);
}

VekStatus veksMaxOrder_64f(const Vek64f* pSrc, int len, int* pOrder) {
  return reduceLengthFirst(VEKS_KERNEL(MaxOrderOfFloats<Vek64f>), pSrc, len, pOrder);
}
