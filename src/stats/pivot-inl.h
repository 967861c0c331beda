// Pivots: quantiles of samples.
#if defined(VEKS_STATS_PIVOT_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_PIVOT_INL_H
#undef VEKS_STATS_PIVOT_INL_H
#else
#define VEKS_STATS_PIVOT_INL_H
#endif

#include "stats/networks-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// Takes kSize elements of p[0 .. n - 1], one from each of as many equal parts, at places that vary
// from part to part and with the seed: a period in the data could meet that of equal distances.
template <size_t kSize, class T>
HWY_INLINE void takeSample(const T* p, size_t n, unsigned seed, T* sample) {
  const size_t part = n / kSize;
  uint32_t place = seed * 0x3C6EF372u;
  for (size_t i = 0; i < kSize; ++i, place += 0x9E3779B9u) {
    sample[i] = p[i * part + static_cast<size_t>(uint64_t{place} * part >> 32)];
  }
}

// The element at that place of the sorted sample: the last one that has no more than `place`
// elements before it. Counting takes more steps than sorting, but none that wait for each other.
template <class Order, class T>
HWY_INLINE T quantileOfFew(const T* p, size_t n, unsigned seed, size_t sixteenths) {
  constexpr size_t kSize = 16;
  const hn::ScalableTag<T> d;
  constexpr size_t kLanes = MaxLanes(d);
  constexpr size_t kVectors = kSize / kLanes;
  using V = hn::Vec<decltype(d)>;
  HWY_ALIGN T sample[kSize];
  takeSample<kSize>(p, n, seed, sample);
  V v[kVectors];
  V before[kVectors];
  for (size_t k = 0; k < kVectors; ++k) {
    v[k] = hn::Load(d, sample + k * kLanes);
    before[k] = hn::Zero(d);
  }
  const V one = hn::Set(d, T{1});
#pragma GCC unroll 16
  for (const T x : sample) {
#pragma GCC unroll 8
    for (size_t k = 0; k < kVectors; ++k) {
      const auto isBefore = Order::before(hn::Set(d, x), v[k]);
      before[k] = hn::Add(before[k], hn::IfThenElseZero(isBefore, one));
    }
  }
  const V limit = hn::Set(d, static_cast<T>(sixteenths + 1));
  V found = hn::Set(d, Order::template begin<T>());
  for (size_t k = 0; k < kVectors; ++k) {
    found = Order::last(found, hn::IfThenElse(hn::Lt(before[k], limit), v[k], found));
  }
  return hn::GetLane(Order::lastOfLanes(d, found));
}

template <class Order, class T>
struct SortedSample {
  static constexpr size_t kLanes = MaxLanes(hn::ScalableTag<T>());
  static constexpr int kRegBits = HWY_MIN(logarithm(64 / kLanes), kBlockBits);
  static constexpr size_t kSize = kLanes << kRegBits;
  HWY_ALIGN T elements[kSize];

  HWY_INLINE SortedSample(const T* p, size_t n, unsigned seed) {
    takeSample<kSize>(p, n, seed, elements);
    sortVectors<Order, kRegBits>(elements);
  }
};

// `isFrequent` tells that a sample of many elements has it more than once.
template <class T>
struct Pivot {
  T value;
  bool isFrequent;
};

template <class Order, class T>
HWY_NOINLINE Pivot<T> medianOfMany(const T* p, size_t n, unsigned seed) {
  const SortedSample<Order, T> sample(p, n, seed);
  const T* const median = sample.elements + sample.kSize / 2;
  return {*median, *median == median[-1] || *median == median[1]};
}

// A pivot that divides a segment of n elements so that about that many sixteenths come before it,
// or one half, if there are many. Another seed gives another sample.
template <class Order, class T>
HWY_NOINLINE Pivot<T> choosePivot(const T* p, size_t n, unsigned seed, size_t sixteenths) {
  constexpr size_t kMany = size_t{1} << 15;
  if (n >= kMany) return medianOfMany<Order>(p, n, seed);
  return {quantileOfFew<Order>(p, n, seed, sixteenths), false};
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
