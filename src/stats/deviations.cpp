#include "veks/stats/sums.h"

#include "core/frame.h"
#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/deviations-inl.h"
#include <hwy/foreach_target.h>

#include "stats/deviations-inl.h"

using namespace veks;

namespace {

// One element has no deviation: its length is as wrong as 0.
int atLeastTwo(int len) {
  return len < 2 ? 0 : len;
}

}  // namespace

VekStatus veksStdDev_32f(const Vek32f* pSrc, int len, Vek32f* pStdDev, VekHintAlgorithm hint) {
  if (hint == vekAlgHintFast) {
    return reduceOne(VEKS_KERNEL(FastStdDev32<Vek32f>), pSrc, atLeastTwo(len), pStdDev);
  }
  return reduceOne(VEKS_KERNEL(StdDev32<Vek32f>), pSrc, atLeastTwo(len), pStdDev);
}

VekStatus veksStdDev_64f(const Vek64f* pSrc, int len, Vek64f* pStdDev) {
  return reduceOne(VEKS_KERNEL(StdDev64<Vek64f>), pSrc, atLeastTwo(len), pStdDev);
}

VekStatus veksStdDev_16s_Sfs(const Vek16s* pSrc, int len, Vek16s* pStdDev, int scaleFactor) {
  return reduceOne(VEKS_KERNEL(IntegerStdDev<Vek16s>), pSrc, atLeastTwo(len), pStdDev, scaleFactor);
}

VekStatus veksStdDev_16s32s_Sfs(const Vek16s* pSrc, int len, Vek32s* pStdDev, int scaleFactor) {
  return reduceOne(VEKS_KERNEL(IntegerStdDev<Vek32s>), pSrc, atLeastTwo(len), pStdDev, scaleFactor);
}
