// Sorting: which method serves which type.
#if defined(VEKS_STATS_SORTING_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_SORTING_INL_H
#undef VEKS_STATS_SORTING_INL_H
#else
#define VEKS_STATS_SORTING_INL_H
#endif

#include <cmath>
#include <type_traits>

#include "stats/counting-inl.h"
#include "stats/quicksort-inl.h"
#include "veks/status.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <class T>
HWY_INLINE bool anyNan(const T* p, size_t n) {
  const hn::ScalableTag<T> d;
  constexpr size_t kLanes = MaxLanes(d);
  if (n < kLanes) {
    bool any = false;
    for (size_t i = 0; i < n; ++i) any |= p[i] != p[i];
    return any;
  }
  const auto nanAt = [d, p](size_t at) { return hn::IsNaN(hn::LoadU(d, p + at)); };
  auto any = hn::Or(nanAt(0), nanAt(n - kLanes));
  size_t i = lanesToBoundary<1>(p, kLanes);
  for (; i + 4 * kLanes <= n; i += 4 * kLanes) {
    const auto first = hn::Or(nanAt(i), nanAt(i + kLanes));
    const auto second = hn::Or(nanAt(i + 2 * kLanes), nanAt(i + 3 * kLanes));
    any = hn::Or(any, hn::Or(first, second));
  }
  for (; i + kLanes <= n; i += kLanes) any = hn::Or(any, nanAt(i));
  return !hn::AllFalse(d, any);
}

// Brings all NaN to the end and returns the number of other elements. The places of the NaN do not
// depend on the target.
template <class T>
HWY_NOINLINE size_t putNansLast(T* p, size_t n) {
  if (!anyNan(p, n)) return n;
  size_t count = n;
  for (size_t i = 0; i < count; ++i) {
    if (p[i] == p[i]) continue;
    do {
      --count;
    } while (count > i && p[count] != p[count]);
    const T nan = p[i];
    p[i] = p[count];
    p[count] = nan;
  }
  return count;
}

// The number of the first of n sorted elements that pass the test. Without a branch that depends on
// elements.
template <class T, class Test>
HWY_INLINE size_t countPassing(const T* p, size_t n, const Test& test) {
  if (n == 0) return 0;
  const T* first = p;
  for (; n > 1; n -= n / 2) first += test(first[n / 2 - 1]) ? n / 2 : 0;
  return static_cast<size_t>(first - p) + (test(*first) ? 1 : 0);
}

// Zeros of both signs are equal to all that comes before: here they get an order.
template <class Order, class T>
HWY_NOINLINE void orderZeros(T* p, size_t n) {
  const size_t first = countPassing(p, n, [](T x) { return Order::isBefore(x, T{0}); });
  if (first == n || Order::isBefore(T{0}, p[first])) return;
  const size_t last = countPassing(p, n, [](T x) { return !Order::isBefore(T{0}, x); });
  size_t negative = 0;
  for (size_t i = first; i < last; ++i) negative += std::signbit(p[i]) ? 1 : 0;
  const size_t middle = Order::kSign > 0 ? first + negative : last - negative;
  for (size_t i = first; i < middle; ++i) p[i] = Order::kSign > 0 ? T(-0.0) : T{0};
  for (size_t i = middle; i < last; ++i) p[i] = Order::kSign > 0 ? T{0} : T(-0.0);
}

template <class Order>
VekStatus sort(uint8_t* p, size_t n) {
  if (n <= blockLength<int16_t>()) {
    sortFew<Order>(p, n);
  } else {
    countingSort<Order>(p, n);
  }
  return vekStsOk;
}

template <class Order>
VekStatus sort(int16_t* p, size_t n) {
  if (n <= blockLength<int16_t>()) {
    sortShort<Order>(p, n);
  } else if (!isSorted<Order>(p, n)) {
    divideAndCount<Order>(p, n);
  }
  return vekStsOk;
}

template <class Order, class T>
VekStatus sort(T* p, size_t n) {
  if (n <= blockLength<T>() || !isSorted<Order>(p, n)) {
    if constexpr (std::is_floating_point_v<T>) n = putNansLast(p, n);
    quicksort<Order>(p, n, divisionsFor<T>(n));
  }
  if constexpr (std::is_floating_point_v<T>) orderZeros<Order>(p, n);
  return vekStsOk;
}

template <class T>
VekStatus SortAscend(T* srcDst, size_t n) {
  return sort<Ascending>(srcDst, n);
}

template <class T>
VekStatus SortDescend(T* srcDst, size_t n) {
  return sort<Descending>(srcDst, n);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
