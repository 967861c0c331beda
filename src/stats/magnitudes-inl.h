// The greatest magnitude of real elements and of differences.
#if defined(VEKS_STATS_MAGNITUDES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_MAGNITUDES_INL_H
#undef VEKS_STATS_MAGNITUDES_INL_H
#else
#define VEKS_STATS_MAGNITUDES_INL_H
#endif

#include "stats/fold-inl.h"
#include "vector/limit-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// Magnitudes of integers and of their differences, which unsigned lanes hold.
template <class D, class V>
HWY_INLINE auto unsignedMagnitude(D /*d*/, V v) {
  return hn::BitCast(hn::RebindToUnsigned<D>(), hn::Abs(v));
}
template <class D, class V>
HWY_INLINE auto unsignedMagnitude(D /*d*/, V a, V b) {
  return hn::BitCast(hn::RebindToUnsigned<D>(), hn::Sub(hn::Max(a, b), hn::Min(a, b)));
}

// Of integers.
struct GreatestMagnitude {
  template <class D>
  HWY_INLINE auto zero(D /*d*/) const {
    return hn::Zero(hn::RebindToUnsigned<D>());
  }
  template <class D, class S, class... V>
  HWY_INLINE void add(D d, S& sum, V... v) const {
    sum = hn::Max(sum, unsignedMagnitude(d, v...));
  }
  template <class D, class S>
  HWY_INLINE void merge(D /*d*/, S& sum, S other) const {
    sum = hn::Max(sum, other);
  }
  template <class D, class S>
  HWY_INLINE uint32_t result(D /*d*/, S sum) const {
    return acrossLanes(hn::RebindToUnsigned<D>(), sum,
                       [](auto, auto a, auto b) HWY_ATTR { return hn::Max(a, b); });
  }
};

// Of floats, at least `first`. No NaN but that gets into the result.
template <class T>
struct GreatestFloat {
  T first;
  template <class D>
  HWY_INLINE auto zero(D d) const {
    return hn::Set(d, first);
  }
  template <class D, class V>
  HWY_INLINE void add(D /*d*/, V& sum, V v) const {
    sum = atLeast(sum, hn::Abs(v));
  }
  template <class D, class V>
  HWY_INLINE void add(D d, V& sum, V a, V b) const {
    add(d, sum, hn::Sub(a, b));
  }
  template <class D, class V>
  HWY_INLINE void merge(D /*d*/, V& sum, V other) const {
    sum = atLeast(sum, other);
  }
  template <class D, class V>
  HWY_INLINE T result(D d, V sum) const {
    return acrossLanes(d, sum, [](auto, auto a, auto b) HWY_ATTR { return atLeast(a, b); });
  }
};

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
