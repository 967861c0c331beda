// What the sums of statistics are made of: accumulators of lanes, and the folding of lanes and
// blocks.
#if defined(VEKS_STATS_LANES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_LANES_INL_H
#undef VEKS_STATS_LANES_INL_H
#else
#define VEKS_STATS_LANES_INL_H
#endif

#include <hwy/highway.h>

#include "core/reduce-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// The sums of the even and of the odd lanes: of real and imaginary parts.
template <class T>
struct FoldedLanes {
  T even;
  T odd;
};

template <class D, class V, class T = hn::TFromD<D>>
HWY_INLINE FoldedLanes<T> foldLanes(D /*d*/, V v) {
  if constexpr (MaxLanes(D()) == 2) {
    return {hn::GetLane(v), hn::ExtractLane(v, 1)};
  } else {
    const hn::Half<D> dh;
    return foldLanes(dh, hn::Add(hn::LowerHalf(dh, v), hn::UpperHalf(dh, v)));
  }
}

// Lanes of float or double as lanes of double, added where there are more than those of a vector.
template <class D, class V>
HWY_INLINE auto foldToDoubles(D /*d*/, V v) {
  if constexpr (sizeof(hn::TFromD<D>) == 8) {
    return v;
  } else {
    const hn::Half<D> dh;
    const hn::Rebind<double, decltype(dh)> dd;
    return hn::Add(hn::PromoteTo(dd, hn::LowerHalf(dh, v)),
                   hn::PromoteTo(dd, hn::UpperHalf(dh, v)));
  }
}

// Lanes as they are, or those of float as double.
template <class D, class V>
HWY_INLINE hn::Vec<D> promoted(D d, V v) {
  if constexpr (std::is_same_v<hn::Vec<D>, V>) {
    return v;
  } else {
    return hn::PromoteTo(d, v);
  }
}

// A vector that is used more than once: g++ would rather load it again each time, and loads are
// what dot products wait for.
template <class V>
HWY_INLINE V inRegister(V v) {
#if HWY_TARGET != HWY_EMU128 && HWY_COMPILER_GCC_ACTUAL
  asm("" : "+v"(v.raw));
#endif
  return v;
}

// A sum for each lane.
template <class T>
struct LaneSums {
  hn::ScalableTag<T> d = {};
  using Vec = hn::Vec<hn::ScalableTag<T>>;
  HWY_INLINE Vec zero() const {
    return hn::Zero(d);
  }
  template <class V>
  HWY_INLINE void add(Vec& sum, V v) const {
    sum = hn::Add(sum, promoted(d, v));
  }
  HWY_INLINE void merge(Vec& sum, Vec other) const {
    sum = hn::Add(sum, other);
  }
};

// f(i, count) for consecutive blocks of at most kBlock elements.
template <size_t kBlock, class F>
HWY_INLINE void forEachBlock(size_t n, const F& f) {
  for (size_t i = 0; i < n; i += kBlock) f(i, n - i < kBlock ? n - i : kBlock);
}

// Not inlined: short vectors shall not pay for its stack frame.
template <size_t kWays, size_t kBlock, class Reduction, class... T>
HWY_NOINLINE auto reduceBlocks(const Reduction& reduction, size_t n, const T*... src) {
  using Sum = decltype(reduction.zero());
  Sum pending[8 * sizeof(size_t)];
  size_t block = 0;
  for (size_t i = 0; i < n; i += kBlock, ++block) {
    const Piece piece = {n - i < kBlock ? n - i : kBlock, n - i};
    Sum sum = reduce<kWays>(reduction, piece, (src + i)...);
    size_t level = 0;
    for (; (block >> level) % 2 == 1; ++level) reduction.merge(sum, pending[level]);
    pending[level] = sum;
  }
  Sum total = reduction.zero();
  for (size_t level = 0; block >> level != 0; ++level) {
    if ((block >> level) % 2 == 1) reduction.merge(total, pending[level]);
  }
  return total;
}

// reduce() in blocks that are merged pairwise, like the additions of a binary counter: errors of
// rounding grow with the logarithm of their number. A single block may have fewer ways: less to
// merge, but no more loads on their way than the nearest cache needs.
template <size_t kWays, size_t kBlock, size_t kSingleWays = kWays, class Reduction, class... T>
HWY_INLINE auto reducePairwise(const Reduction& reduction, size_t n, const T*... src) {
  if (HWY_LIKELY(n <= kBlock)) return reduceShortOrLong<kSingleWays>(reduction, n, src...);
  return reduceBlocks<kWays, kBlock>(reduction, n, src...);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
