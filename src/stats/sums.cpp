#include "veks/stats/sums.h"

#include "core/frame.h"
#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/sums-inl.h"
#include <hwy/foreach_target.h>

#include "stats/sums-inl.h"

using namespace veks;

VekStatus veksSum_32f(const Vek32f* pSrc, int len, Vek32f* pSum, VekHintAlgorithm hint) {
  if (hint == vekAlgHintFast) {
    return reduceOne(VEKS_KERNEL(FastSum<Total>), pSrc, len, pSum);
  }
  return reduceOne(VEKS_KERNEL(AccurateSum<Total>), pSrc, len, pSum);
}

VekStatus veksSum_32fc(const Vek32fc* pSrc, int len, Vek32fc* pSum) {
  return reduceOne(VEKS_KERNEL(ComplexSum<Total, Vek32fc>), pSrc, len, pSum);
}

VekStatus veksSum_64f(const Vek64f* pSrc, int len, Vek64f* pSum) {
  return reduceOne(VEKS_KERNEL(Sum64<Total>), pSrc, len, pSum);
}

VekStatus veksSum_64fc(const Vek64fc* pSrc, int len, Vek64fc* pSum) {
  return reduceOne(VEKS_KERNEL(ComplexSum<Total, Vek64fc>), pSrc, len, pSum);
}

VekStatus veksSum_16s_Sfs(const Vek16s* pSrc, int len, Vek16s* pSum, int scaleFactor) {
  return reduceOne(VEKS_KERNEL(IntegerSum<Total, Vek16s, Vek16s>), pSrc, len, pSum, scaleFactor);
}

VekStatus veksSum_32s_Sfs(const Vek32s* pSrc, int len, Vek32s* pSum, int scaleFactor) {
  return reduceOne(VEKS_KERNEL(IntegerSum<Total, Vek32s, Vek32s>), pSrc, len, pSum, scaleFactor);
}

VekStatus veksSum_16sc_Sfs(const Vek16sc* pSrc, int len, Vek16sc* pSum, int scaleFactor) {
  return reduceOne(VEKS_KERNEL(IntegerSum<Total, Vek16sc, Vek16sc>), pSrc, len, pSum, scaleFactor);
}

VekStatus veksSum_16s32s_Sfs(const Vek16s* pSrc, int len, Vek32s* pSum, int scaleFactor) {
  return reduceOne(VEKS_KERNEL(IntegerSum<Total, Vek16s, Vek32s>), pSrc, len, pSum, scaleFactor);
}

VekStatus veksSum_16sc32sc_Sfs(const Vek16sc* pSrc, int len, Vek32sc* pSum, int scaleFactor) {
  return reduceOne(VEKS_KERNEL(IntegerSum<Total, Vek16sc, Vek32sc>), pSrc, len, pSum, scaleFactor);
}

VekStatus veksMean_32f(const Vek32f* pSrc, int len, Vek32f* pMean, VekHintAlgorithm hint) {
  if (hint == vekAlgHintFast) {
    return reduceOne(VEKS_KERNEL(FastSum<Average>), pSrc, len, pMean);
  }
  return reduceOne(VEKS_KERNEL(AccurateSum<Average>), pSrc, len, pMean);
}

VekStatus veksMean_32fc(const Vek32fc* pSrc, int len, Vek32fc* pMean) {
  return reduceOne(VEKS_KERNEL(ComplexSum<Average, Vek32fc>), pSrc, len, pMean);
}

VekStatus veksMean_64f(const Vek64f* pSrc, int len, Vek64f* pMean) {
  return reduceOne(VEKS_KERNEL(Sum64<Average>), pSrc, len, pMean);
}

VekStatus veksMean_64fc(const Vek64fc* pSrc, int len, Vek64fc* pMean) {
  return reduceOne(VEKS_KERNEL(ComplexSum<Average, Vek64fc>), pSrc, len, pMean);
}

VekStatus veksMean_16s_Sfs(const Vek16s* pSrc, int len, Vek16s* pMean, int scaleFactor) {
  return reduceOne(VEKS_KERNEL(IntegerSum<Average, Vek16s, Vek16s>), pSrc, len, pMean, scaleFactor);
}

VekStatus veksMean_32s_Sfs(const Vek32s* pSrc, int len, Vek32s* pMean, int scaleFactor) {
  return reduceOne(VEKS_KERNEL(IntegerSum<Average, Vek32s, Vek32s>), pSrc, len, pMean, scaleFactor);
}

VekStatus veksMean_16sc_Sfs(const Vek16sc* pSrc, int len, Vek16sc* pMean, int scaleFactor) {
  return reduceOne(VEKS_KERNEL(IntegerSum<Average, Vek16sc, Vek16sc>), pSrc, len, pMean,
                   scaleFactor);
}
