// The search for a value.
#if defined(VEKS_STATS_FIND_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_FIND_INL_H
#undef VEKS_STATS_FIND_INL_H
#else
#define VEKS_STATS_FIND_INL_H
#endif

#include <hwy/highway.h>

#include "core/targets.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// Adds the position of the first lane that equals `value` to i, if there is one.
template <class D, class T>
HWY_INLINE bool findInVector(D d, const T* src, T value, size_t& i) {
  const auto lane = hn::FindFirstTrue(d, hn::Eq(hn::LoadU(d, src + i), hn::Set(d, value)));
  if (lane < 0) return false;
  i += static_cast<size_t>(lane);
  return true;
}

// The same for fewer than n elements than a vector of twice the tag d has.
template <class D, class T>
HWY_INLINE size_t findShort(D d, const T* src, size_t n, T value) {
  constexpr size_t kLanes = MaxLanes(D());
  if constexpr (kLanes > 1) {
    if (n < kLanes) return findShort(hn::Half<D>(), src, n, value);
  }
  size_t i = 0;
  if (findInVector(d, src, value, i)) return i;
  i = n - kLanes;
  return findInVector(d, src, value, i) ? i : n;
}

// The position of the first of n elements that equals `value`; n if there is none. Zeros are equal.
template <class T>
HWY_INLINE size_t findFirst(const T* src, size_t n, T value) {
  const hn::ScalableTag<T> d;
  constexpr size_t kLanes = MaxLanes(d);
  if (n < kLanes) return findShort(hn::Half<decltype(d)>(), src, n, value);
  const auto wanted = hn::Set(d, value);
  size_t i = 0;
  for (; i + 4 * kLanes <= n; i += 4 * kLanes) {
    const auto equal0 = hn::Eq(hn::LoadU(d, src + i), wanted);
    const auto equal1 = hn::Eq(hn::LoadU(d, src + i + kLanes), wanted);
    const auto equal2 = hn::Eq(hn::LoadU(d, src + i + 2 * kLanes), wanted);
    const auto equal3 = hn::Eq(hn::LoadU(d, src + i + 3 * kLanes), wanted);
    if (!hn::AllFalse(d, hn::Or(hn::Or(equal0, equal1), hn::Or(equal2, equal3)))) break;
  }
  for (; i + kLanes <= n; i += kLanes) {
    if (findInVector(d, src, value, i)) return i;
  }
  i = n - kLanes;
  return findInVector(d, src, value, i) ? i : n;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
