// The two orders of sorting, for vectors and for single elements.
#if defined(VEKS_STATS_ORDER_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_ORDER_INL_H
#undef VEKS_STATS_ORDER_INL_H
#else
#define VEKS_STATS_ORDER_INL_H
#endif

#include <hwy/highway.h>

#include <limits>
#include <type_traits>

#include "core/loops-inl.h"
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

// Never of NaN.
template <class Order, class T, class V>
HWY_INLINE auto areInOrder(V a, V b) {
  if constexpr (!std::is_floating_point_v<T>) {
    return hn::Not(Order::before(b, a));
  } else if constexpr (Order::kSign > 0) {
    return hn::Le(a, b);
  } else {
    return hn::Le(b, a);
  }
}

// The number of elements at the start that equal the first one, or some less: up to a boundary.
template <class T>
HWY_INLINE size_t countEqual(const T* p, size_t n) {
  const hn::ScalableTag<T> d;
  constexpr size_t kLanes = MaxLanes(d);
  const auto wanted = hn::Set(d, p[0]);
  const auto isEqual = [d, p, wanted](size_t at) { return hn::Eq(hn::LoadU(d, p + at), wanted); };
  if (n < kLanes || !hn::AllTrue(d, isEqual(0))) return 0;
  size_t i = lanesToBoundary<1>(p, kLanes);
  for (; i + 4 * kLanes <= n; i += 4 * kLanes) {
    const auto first = hn::And(isEqual(i), isEqual(i + kLanes));
    const auto second = hn::And(isEqual(i + 2 * kLanes), isEqual(i + 3 * kLanes));
    if (!hn::AllTrue(d, hn::And(first, second))) break;
  }
  return i;
}

// Whether no element is before its predecessor. Gives up soon after the first one that is, and at
// a NaN.
template <class Order, class T>
HWY_NOINLINE bool isSorted(const T* p, size_t n) {
  const hn::ScalableTag<T> d;
  constexpr size_t kLanes = MaxLanes(d);
  const auto follow = [d, p](size_t at) {
    return areInOrder<Order, T>(hn::LoadU(d, p + at - 1), hn::LoadU(d, p + at));
  };
  const size_t equal = countEqual(p, n);
  size_t i = HWY_MAX(equal, size_t{1});
  for (; i + 4 * kLanes <= n; i += 4 * kLanes) {
    const auto first = hn::And(follow(i), follow(i + kLanes));
    const auto second = hn::And(follow(i + 2 * kLanes), follow(i + 3 * kLanes));
    if (!hn::AllTrue(d, hn::And(first, second))) return false;
  }
  for (; i < n; ++i) {
    if (!(p[i] == p[i - 1] || Order::isBefore(p[i - 1], p[i]))) return false;
  }
  return true;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
