#include "veks/stats/extremes.h"

#include "core/frame.h"
#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/extremes-inl.h"
#include <hwy/foreach_target.h>

#include "stats/extremes-inl.h"

using namespace veks;

VekStatus veksMin_16s(const Vek16s* pSrc, int len, Vek16s* pMin) {
  return reduceOne(VEKS_KERNEL(Extreme<vekCmpLess, Vek16s>), pSrc, len, pMin);
}

VekStatus veksMin_32s(const Vek32s* pSrc, int len, Vek32s* pMin) {
  return reduceOne(VEKS_KERNEL(Extreme<vekCmpLess, Vek32s>), pSrc, len, pMin);
}

VekStatus veksMin_32f(const Vek32f* pSrc, int len, Vek32f* pMin) {
  return reduceOne(VEKS_KERNEL(Extreme<vekCmpLess, Vek32f>), pSrc, len, pMin);
}

VekStatus veksMin_64f(const Vek64f* pSrc, int len, Vek64f* pMin) {
  return reduceOne(VEKS_KERNEL(Extreme<vekCmpLess, Vek64f>), pSrc, len, pMin);
}

VekStatus veksMax_16s(const Vek16s* pSrc, int len, Vek16s* pMax) {
  return reduceOne(VEKS_KERNEL(Extreme<vekCmpGreater, Vek16s>), pSrc, len, pMax);
}

VekStatus veksMax_32s(const Vek32s* pSrc, int len, Vek32s* pMax) {
  return reduceOne(VEKS_KERNEL(Extreme<vekCmpGreater, Vek32s>), pSrc, len, pMax);
}

VekStatus veksMax_32f(const Vek32f* pSrc, int len, Vek32f* pMax) {
  return reduceOne(VEKS_KERNEL(Extreme<vekCmpGreater, Vek32f>), pSrc, len, pMax);
}

VekStatus veksMax_64f(const Vek64f* pSrc, int len, Vek64f* pMax) {
  return reduceOne(VEKS_KERNEL(Extreme<vekCmpGreater, Vek64f>), pSrc, len, pMax);
}

VekStatus veksMinMax_8u(const Vek8u* pSrc, int len, Vek8u* pMin, Vek8u* pMax) {
  return reduceToTwo(VEKS_KERNEL(BothExtremes<Vek8u>), pSrc, len, pMin, pMax);
}

VekStatus veksMinMax_16u(const Vek16u* pSrc, int len, Vek16u* pMin, Vek16u* pMax) {
  return reduceToTwo(VEKS_KERNEL(BothExtremes<Vek16u>), pSrc, len, pMin, pMax);
}

VekStatus veksMinMax_16s(const Vek16s* pSrc, int len, Vek16s* pMin, Vek16s* pMax) {
  return reduceToTwo(VEKS_KERNEL(BothExtremes<Vek16s>), pSrc, len, pMin, pMax);
}

VekStatus veksMinMax_32u(const Vek32u* pSrc, int len, Vek32u* pMin, Vek32u* pMax) {
  return reduceToTwo(VEKS_KERNEL(BothExtremes<Vek32u>), pSrc, len, pMin, pMax);
}

VekStatus veksMinMax_32s(const Vek32s* pSrc, int len, Vek32s* pMin, Vek32s* pMax) {
  return reduceToTwo(VEKS_KERNEL(BothExtremes<Vek32s>), pSrc, len, pMin, pMax);
}

VekStatus veksMinMax_32f(const Vek32f* pSrc, int len, Vek32f* pMin, Vek32f* pMax) {
  return reduceToTwo(VEKS_KERNEL(BothExtremes<Vek32f>), pSrc, len, pMin, pMax);
}

VekStatus veksMinMax_64f(const Vek64f* pSrc, int len, Vek64f* pMin, Vek64f* pMax) {
  return reduceToTwo(VEKS_KERNEL(BothExtremes<Vek64f>), pSrc, len, pMin, pMax);
}

VekStatus veksMinIndx_16s(const Vek16s* pSrc, int len, Vek16s* pMin, int* pIndx) {
  return reduceOne(VEKS_KERNEL(ExtremeAndIndex<vekCmpLess, Vek16s>), pSrc, len, pMin, pIndx);
}

VekStatus veksMinIndx_32s(const Vek32s* pSrc, int len, Vek32s* pMin, int* pIndx) {
  return reduceOne(VEKS_KERNEL(ExtremeAndIndex<vekCmpLess, Vek32s>), pSrc, len, pMin, pIndx);
}

VekStatus veksMinIndx_32f(const Vek32f* pSrc, int len, Vek32f* pMin, int* pIndx) {
  return reduceOne(VEKS_KERNEL(ExtremeAndIndex<vekCmpLess, Vek32f>), pSrc, len, pMin, pIndx);
}

VekStatus veksMinIndx_64f(const Vek64f* pSrc, int len, Vek64f* pMin, int* pIndx) {
  return reduceOne(VEKS_KERNEL(ExtremeAndIndex<vekCmpLess, Vek64f>), pSrc, len, pMin, pIndx);
}

VekStatus veksMaxIndx_16s(const Vek16s* pSrc, int len, Vek16s* pMax, int* pIndx) {
  return reduceOne(VEKS_KERNEL(ExtremeAndIndex<vekCmpGreater, Vek16s>), pSrc, len, pMax, pIndx);
}

VekStatus veksMaxIndx_32s(const Vek32s* pSrc, int len, Vek32s* pMax, int* pIndx) {
  return reduceOne(VEKS_KERNEL(ExtremeAndIndex<vekCmpGreater, Vek32s>), pSrc, len, pMax, pIndx);
}

VekStatus veksMaxIndx_32f(const Vek32f* pSrc, int len, Vek32f* pMax, int* pIndx) {
  return reduceOne(VEKS_KERNEL(ExtremeAndIndex<vekCmpGreater, Vek32f>), pSrc, len, pMax, pIndx);
}

VekStatus veksMaxIndx_64f(const Vek64f* pSrc, int len, Vek64f* pMax, int* pIndx) {
  return reduceOne(VEKS_KERNEL(ExtremeAndIndex<vekCmpGreater, Vek64f>), pSrc, len, pMax, pIndx);
}

VekStatus veksMinEvery_16s_I(const Vek16s* pSrc, Vek16s* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(ExtremeOfEvery<vekCmpLess, Vek16s>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMinEvery_32s_I(const Vek32s* pSrc, Vek32s* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(ExtremeOfEvery<vekCmpLess, Vek32s>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMinEvery_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(ExtremeOfEvery<vekCmpLess, Vek32f>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMinEvery_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(ExtremeOfEvery<vekCmpLess, Vek64f>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMaxEvery_16s_I(const Vek16s* pSrc, Vek16s* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(ExtremeOfEvery<vekCmpGreater, Vek16s>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMaxEvery_32s_I(const Vek32s* pSrc, Vek32s* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(ExtremeOfEvery<vekCmpGreater, Vek32s>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMaxEvery_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(ExtremeOfEvery<vekCmpGreater, Vek32f>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMaxEvery_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(ExtremeOfEvery<vekCmpGreater, Vek64f>), pSrc, pSrcDst, pSrcDst, len);
}
