// The two orders of sorting, for vectors and for single elements.
#if defined(VEKS_STATS_ORDER_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_ORDER_INL_H
#undef VEKS_STATS_ORDER_INL_H
#else
#define VEKS_STATS_ORDER_INL_H
#endif

#include <hwy/highway.h>

#include <limits>

#include "core/targets.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

template <class T>
constexpr T highest() {
  using Limits = std::numeric_limits<T>;
  return Limits::has_infinity ? Limits::infinity() : Limits::max();
}

template <class T>
constexpr T lowest() {
  using Limits = std::numeric_limits<T>;
  return Limits::has_infinity ? -Limits::infinity() : Limits::lowest();
}

// begin() comes before all elements, end() after them.
//
// first(a, b) and last(b, a), with the operands in these orders, are a and b again, bit for bit:
// of two zeros, each gives its second operand.
struct Ascending {
  static constexpr int kSign = 1;
  template <class V>
  static HWY_INLINE V first(V a, V b) {
    return hn::Min(a, b);
  }
  template <class V>
  static HWY_INLINE V last(V a, V b) {
    return hn::Max(a, b);
  }
  template <class V>
  static HWY_INLINE auto before(V a, V b) {
    return hn::Lt(a, b);
  }
  template <class T>
  static bool isBefore(T a, T b) {
    return a < b;
  }
  template <class D, class V>
  static HWY_INLINE V lastOfLanes(D d, V v) {
    return hn::MaxOfLanes(d, v);
  }
  template <class T>
  static constexpr T begin() {
    return lowest<T>();
  }
  template <class T>
  static constexpr T end() {
    return highest<T>();
  }
};

struct Descending {
  static constexpr int kSign = -1;
  template <class V>
  static HWY_INLINE V first(V a, V b) {
    return hn::Max(a, b);
  }
  template <class V>
  static HWY_INLINE V last(V a, V b) {
    return hn::Min(a, b);
  }
  template <class V>
  static HWY_INLINE auto before(V a, V b) {
    return hn::Lt(b, a);
  }
  template <class T>
  static bool isBefore(T a, T b) {
    return a > b;
  }
  template <class D, class V>
  static HWY_INLINE V lastOfLanes(D d, V v) {
    return hn::MinOfLanes(d, v);
  }
  template <class T>
  static constexpr T begin() {
    return highest<T>();
  }
  template <class T>
  static constexpr T end() {
    return lowest<T>();
  }
};

// Gives up soon after the first element that is before its predecessor.
template <class Order, class T>
HWY_NOINLINE bool isSorted(const T* p, size_t n) {
  const hn::ScalableTag<T> d;
  constexpr size_t kLanes = MaxLanes(d);
  const auto anyBefore = [d, p](size_t at) {
    return Order::before(hn::LoadU(d, p + at), hn::LoadU(d, p + at - 1));
  };
  size_t i = 1;
  for (; i + 4 * kLanes <= n; i += 4 * kLanes) {
    const auto first = hn::Or(anyBefore(i), anyBefore(i + kLanes));
    const auto second = hn::Or(anyBefore(i + 2 * kLanes), anyBefore(i + 3 * kLanes));
    if (!hn::AllFalse(d, hn::Or(first, second))) return false;
  }
  for (; i < n; ++i) {
    if (Order::isBefore(p[i], p[i - 1])) return false;
  }
  return true;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
