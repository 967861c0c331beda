// The skeleton of reductions that may take in an element more than once, as extremes do. It owns
// unrolling, alignment and tails.
//
// A fold is a functor that says what becomes of vectors of any tag d of up to full width:
//
//   Sum zero(d)                  an accumulator, which has taken in nothing or the first element
//   void add(d, Sum&, V ...)     takes in one vector of each source
//   void merge(d, Sum&, Sum)     adds one accumulator to another
//   Result result(d, Sum)        puts the lanes together
#if defined(VEKS_STATS_FOLD_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_FOLD_INL_H
#undef VEKS_STATS_FOLD_INL_H
#else
#define VEKS_STATS_FOLD_INL_H
#endif

#include <hwy/highway.h>

#include "core/loops-inl.h"
#include "core/reduce-inl.h"
#include "core/targets.h"

// Accumulators belong into registers. EMU128 has none: copies of its loops over lanes would only
// take time to compile.
#undef VEKS_UNROLL_WAYS
#if HWY_TARGET == HWY_EMU128
#define VEKS_UNROLL_WAYS _Pragma("GCC unroll 1")
#else
#define VEKS_UNROLL_WAYS _Pragma("GCC unroll 32")
#endif

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// One lane from all: combine(d, a, b) of halves, down to a single lane.
template <class D, class V, class Combine>
HWY_INLINE hn::TFromD<D> acrossLanes(D /*d*/, V v, const Combine& combine) {
  if constexpr (MaxLanes(D()) == 1) {
    return hn::GetLane(v);
  } else {
    const hn::Half<D> half;
    return acrossLanes(half, combine(half, hn::LowerHalf(half, v), hn::UpperHalf(half, v)),
                       combine);
  }
}

// The accumulator of a piece of at least one vector of tag d, kWays vectors side by side. The first
// and the last vector overlap those that are aligned in the first source.
template <size_t kWays, class D, class Fold, class T, class... Others>
HWY_INLINE auto foldVectors(D d, const Fold& fold, Piece piece, const T* src,
                            const Others*... others) {
  constexpr size_t kLanes = MaxLanes(D());
  const size_t n = piece.count;
  const size_t far = farFromEnd<T>(piece);
  const auto add = [&](auto& sum, size_t i) HWY_ATTR {
    fold.add(d, sum, hn::LoadU(d, src + i), hn::LoadU(d, others + i)...);
  };
  decltype(fold.zero(d)) sums[kWays];
  VEKS_UNROLL_WAYS
  for (size_t k = 0; k < kWays; ++k) sums[k] = fold.zero(d);
  add(sums[0], 0);
  add(sums[kWays - 1], n - kLanes);
  size_t i = lanesToBoundary<1>(src, kLanes);
  for (; i + kWays * kLanes <= n; i += kWays * kLanes) {
    if (HWY_UNLIKELY(i < far)) {
      prefetchPage(src + i);
      (prefetchPage(others + i), ...);
    }
    VEKS_UNROLL_WAYS
    for (size_t k = 0; k < kWays; ++k) add(sums[k], i + k * kLanes);
  }
  VEKS_UNROLL_WAYS
  for (size_t k = 0; k + 1 < kWays; ++k) {
    if (i + kLanes > n) break;
    add(sums[k], i);
    i += kLanes;
  }
  for (size_t width = kWays / 2; width > 0; width /= 2) {
    VEKS_UNROLL_WAYS
    for (size_t k = 0; k < width; ++k) fold.merge(d, sums[k], sums[k + width]);
  }
  return sums[0];
}

// The result of n elements, n less than a vector of twice the tag d.
template <class D, class Fold, class... T>
HWY_INLINE auto foldShort(D d, const Fold& fold, size_t n, const T*... src) {
  constexpr size_t kLanes = MaxLanes(D());
  if constexpr (kLanes > 1) {
    if (n < kLanes) return foldShort(hn::Half<D>(), fold, n, src...);
  }
  auto sum = fold.zero(d);
  fold.add(d, sum, hn::LoadU(d, src)...);
  fold.add(d, sum, hn::LoadU(d, src + n - kLanes)...);
  return fold.result(d, sum);
}

// The result of all elements.
template <size_t kWays, class Fold, class T, class... Others>
HWY_INLINE auto foldAll(const Fold& fold, size_t n, const T* src, const Others*... others) {
  const hn::ScalableTag<T> d;
  if (n < MaxLanes(d)) {
    return foldShort(hn::Half<decltype(d)>(), fold, n, src, others...);
  }
  if constexpr (HWY_TARGET != HWY_EMU128) {
    if (n < 2 * MaxLanes(d)) return foldShort(d, fold, n, src, others...);
    // Little is left to be merged.
    if (n < kWays * MaxLanes(d)) {
      return fold.result(d, foldVectors<2>(d, fold, n, src, others...));
    }
  }
  return fold.result(d, foldVectors<kWays>(d, fold, n, src, others...));
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
