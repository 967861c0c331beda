#include "veks/vector/arithmetic.h"

#include "core/frame.h"
#include "core/rounding_mode.h"
#include "core/targets.h"
#include "vector/operations.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/arithmetic/join-inl.h"
#include <hwy/foreach_target.h>

#include "vector/arithmetic/join-inl.h"

using namespace veks;

namespace {

// kernel(channels, number of channels, n, dst)
template <class Kernel>
VekStatus joinChannels(Kernel kernel, const Vek32f* const* src, int nEntries, int len,
                       Vek16s* dst) {
  if (dst == nullptr) return vekErrNullPtr;
  if (nEntries < 1 || len < 1) return vekErrSize;
  if (src == nullptr) return vekErrNullPtr;
  for (int k = 0; k < nEntries; ++k) {
    if (src[k] == nullptr) return vekErrNullPtr;
  }
  const RoundToNearest rounding;
  return kernel(src, static_cast<size_t>(nEntries), static_cast<size_t>(len), dst);
}

}  // namespace

VekStatus veksJoin_32f16s_D2L(const Vek32f** pSrc, int nEntries, int len, Vek16s* pDst) {
  return joinChannels(VEKS_KERNEL(Join), pSrc, nEntries, len, pDst);
}
