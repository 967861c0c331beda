// Long segments of few different values: these are counted, and written as often.
#if defined(VEKS_STATS_FEW_VALUES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_FEW_VALUES_INL_H
#undef VEKS_STATS_FEW_VALUES_INL_H
#else
#define VEKS_STATS_FEW_VALUES_INL_H
#endif

#include "stats/pivot-inl.h"
#include "stats/runs-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

constexpr size_t kFewValues = 16;

#if HWY_TARGET != HWY_EMU128

// Values and how often they were found, all bits being the same: zeros have the sign of the
// positive one, so that a negative one is found nowhere.
template <class T>
class ValueCounts {
 public:
  // The different ones of sorted elements. Returns whether there is room for all.
  HWY_INLINE bool take(const T* sorted, size_t n) {
    used = 0;
    for (size_t i = 0; i < n; ++i) {
      if (i > 0 && sorted[i] == sorted[i - 1]) continue;
      if (used == kFewValues) return false;
      const T value = static_cast<T>(sorted[i] + T{0});
      hwy::CopySameSize(&value, values + used);
      counts[used++] = 0;
    }
    return true;
  }

  // Returns whether all n elements are among the values. It gives up soon after one that is not.
  HWY_INLINE bool count(const T* p, size_t n) {
    constexpr size_t kStep = 64 * kGroup;
    const Bits* const bits = reinterpret_cast<const Bits*>(p);
    size_t i = 0;
    while (i < n) {
      const size_t stop = HWY_MIN(i + kStep, n);
      for (; i + kGroup <= stop; i += kGroup) countVectors<4>(bits + i);
      for (; i + kLanes <= stop; i += kLanes) countVectors<1>(bits + i);
      for (; i < stop; ++i) {
        for (size_t k = 0; k < used; ++k) counts[k] += bits[i] == values[k] ? 1 : 0;
      }
      size_t found = 0;
      for (size_t k = 0; k < used; ++k) found += counts[k];
      if (found != i) return false;
    }
    return true;
  }

  HWY_INLINE void write(T* p, size_t n) const {
    RunWriter<T> writer{p, p + n};
    for (size_t k = 0; k < used; ++k) {
      T value;
      hwy::CopySameSize(values + k, &value);
      writer.write(value, counts[k]);
    }
  }

 private:
  using Bits = hwy::MakeUnsigned<T>;
  static constexpr size_t kLanes = MaxLanes(hn::ScalableTag<Bits>());
  static constexpr size_t kGroup = 4 * kLanes;
  Bits values[kFewValues];
  size_t counts[kFewValues];
  size_t used;

  template <size_t kVectors>
  HWY_INLINE void countVectors(const Bits* p) {
    const hn::ScalableTag<Bits> d;
    hn::Vec<decltype(d)> v[kVectors];
    for (size_t k = 0; k < kVectors; ++k) v[k] = hn::LoadU(d, p + k * kLanes);
    for (size_t i = 0; i < used; ++i) {
      const auto value = hn::Set(d, values[i]);
      size_t found = 0;
      for (size_t k = 0; k < kVectors; ++k) found += hn::CountTrue(d, hn::Eq(v[k], value));
      counts[i] += found;
    }
  }
};

#endif

// Sorts n elements, none of them NaN, if a sample says that there are so few values, and is right.
template <class Order, class T>
HWY_NOINLINE bool sortFewValues(T* p, size_t n, unsigned seed) {
#if HWY_TARGET == HWY_EMU128
  (void)p;
  (void)n;
  (void)seed;
  return false;
#else
  const SortedSample<Order, T> sample(p, n, seed);
  ValueCounts<T> counts;
  if (!counts.take(sample.elements, sample.kSize) || !counts.count(p, n)) return false;
  counts.write(p, n);
  return true;
#endif
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
