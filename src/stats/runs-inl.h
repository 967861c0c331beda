// Runs of equal elements.
#if defined(VEKS_STATS_RUNS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_RUNS_INL_H
#undef VEKS_STATS_RUNS_INL_H
#else
#define VEKS_STATS_RUNS_INL_H
#endif

#include <hwy/highway.h>

#include "core/targets.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// Writes runs of equal elements one after the other. Most runs are short: a vector is stored
// whatever the length of the run, where the destination has room for it.
template <class T>
struct RunWriter {
  T* dst;
  T* end;

  HWY_INLINE void write(T value, size_t count) {
    const hn::ScalableTag<T> d;
    constexpr size_t kLanes = MaxLanes(d);
    const auto v = hn::Set(d, value);
    T* const next = dst + count;
    if (HWY_LIKELY(static_cast<size_t>(end - dst) >= count + kLanes)) {
      hn::StoreU(v, d, dst);
      for (T* p = dst + kLanes; p < next; p += kLanes) hn::StoreU(v, d, p);
    } else {
      for (T* p = dst; p < next; ++p) *p = value;
    }
    dst = next;
  }
};

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
