// Minima and maxima, by the rule of a loop that replaces the result where an element is beyond it:
// of equal elements, zeros of either sign too, the first one counts, and so does a NaN in the first
// position, but no other.
#if defined(VEKS_STATS_EXTREMES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_EXTREMES_INL_H
#undef VEKS_STATS_EXTREMES_INL_H
#else
#define VEKS_STATS_EXTREMES_INL_H
#endif

#include <algorithm>

#include "stats/find-inl.h"
#include "stats/fold-inl.h"
#include "stats/is_nan.h"
#include "vector/limit-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// The operation OP of vekCmpLess is the minimum, that of vekCmpGreater the maximum. NaN in v never
// gets into the extreme.
template <VekCmpOp op>
struct MoreExtreme {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V extreme, V v) const {
    if constexpr (op == vekCmpLess) {
      return atMost(extreme, v);
    } else {
      return atLeast(extreme, v);
    }
  }
};

template <VekCmpOp op, class T>
struct ExtremeFold {
  T first;
  template <class D>
  HWY_INLINE hn::Vec<D> zero(D d) const {
    return hn::Set(d, first);
  }
  template <class D, class V>
  HWY_INLINE void add(D d, V& sum, V v) const {
    sum = MoreExtreme<op>()(d, sum, v);
  }
  template <class D, class V>
  HWY_INLINE void merge(D d, V& sum, V other) const {
    add(d, sum, other);
  }
  template <class D, class V>
  HWY_INLINE T result(D d, V sum) const {
    return acrossLanes(d, sum, MoreExtreme<op>());
  }
};

template <class V>
struct Extremes {
  V min;
  V max;
};

template <class T>
struct ExtremesFold {
  ExtremeFold<vekCmpLess, T> min;
  ExtremeFold<vekCmpGreater, T> max;
  template <class D>
  HWY_INLINE auto zero(D d) const {
    return Extremes<hn::Vec<D>>{min.zero(d), max.zero(d)};
  }
  template <class D, class V>
  HWY_INLINE void add(D d, Extremes<V>& sum, V v) const {
    min.add(d, sum.min, v);
    max.add(d, sum.max, v);
  }
  template <class D, class V>
  HWY_INLINE void merge(D d, Extremes<V>& sum, const Extremes<V>& other) const {
    min.add(d, sum.min, other.min);
    max.add(d, sum.max, other.max);
  }
  template <class D, class V>
  HWY_INLINE Extremes<T> result(D d, const Extremes<V>& sum) const {
    return {min.result(d, sum.min), max.result(d, sum.max)};
  }
};

// A zero gets the sign of the first one.
template <class T>
HWY_INLINE T firstOfEqual(const T* src, size_t n, T extreme) {
  if constexpr (std::is_floating_point_v<T>) {
    if (HWY_UNLIKELY(extreme == 0)) return src[findFirst(src, n, extreme)];
  }
  return extreme;
}

template <VekCmpOp op, class T>
VekStatus Extreme(const T* src, size_t n, T* result) {
  const T first = src[0];
  if (HWY_UNLIKELY(isNan(first))) {
    *result = first;
  } else {
    *result = firstOfEqual(src, n, foldAll<8>(ExtremeFold<op, T>{first}, n, src));
  }
  return vekStsOk;
}

template <class T>
VekStatus BothExtremes(const T* src, size_t n, T* min, T* max) {
  const T first = src[0];
  Extremes<T> extremes = {first, first};
  if (!isNan(first)) {
    extremes = foldAll<4>(ExtremesFold<T>{{first}, {first}}, n, src);
  }
  extremes = {firstOfEqual(src, n, extremes.min), firstOfEqual(src, n, extremes.max)};
  *min = extremes.min;
  *max = extremes.max;
  return vekStsOk;
}

// The extreme and the position of the first element that equals it.
template <VekCmpOp op, class T>
HWY_INLINE size_t indexOfExtreme(const T* src, size_t n) {
  const hn::ScalableTag<T> d;
  const T first = src[0];
  if (HWY_UNLIKELY(isNan(first))) return 0;
  if (n < MaxLanes(d)) {
    const T extreme = foldShort(hn::Half<decltype(d)>(), ExtremeFold<op, T>{first}, n, src);
    return findFirst(src, n, extreme);
  }
  // Only blocks that go beyond all before them are candidates for the search.
  constexpr size_t kBlock = 8192 / sizeof(T);
  T extreme = first;
  size_t from = 0;
  for (size_t i = 0; i < n; i += kBlock) {
    // The last block may begin earlier: it cannot go beyond what it has in common with others.
    const size_t count = std::max(std::min(kBlock, n - i), MaxLanes(d));
    const size_t start = std::min(i, n - count);
    const ExtremeFold<op, T> fold = {extreme};
    const auto sum = foldVectors<8>(d, fold, count, src + start);
    if (hn::AllFalse(d, isBeyond<op>(sum, hn::Set(d, extreme)))) continue;
    extreme = fold.result(d, sum);
    from = start;
  }
  return from + findFirst(src + from, n - from, extreme);
}

// Without `index` the value alone.
template <VekCmpOp op, class T>
VekStatus ExtremeAndIndex(const T* src, size_t n, T* result, int* index) {
  if (index == nullptr) return Extreme<op>(src, n, result);
  const size_t i = indexOfExtreme<op>(src, n);
  *result = src[i];
  *index = static_cast<int>(i);
  return vekStsOk;
}

// The more extreme element of the source and the destination, which is kept beside a NaN and where
// both are equal.
template <VekCmpOp op, class T>
VekStatus ExtremeOfEvery(const T* src, const T* /*srcDst*/, T* dst, size_t n) {
  const auto extreme = [](auto d, auto v, auto kept)
                           HWY_ATTR { return MoreExtreme<op>()(d, kept, v); };
  produce(TwoSources<decltype(extreme), T>{src, dst, extreme}, dst, n, true);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
