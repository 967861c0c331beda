// Sums of products of 16 bits, modulo 2^32.
#if defined(VEKS_FILTER_FIR_INTEGER_PRODUCTS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_FILTER_FIR_INTEGER_PRODUCTS_INL_H
#undef VEKS_FILTER_FIR_INTEGER_PRODUCTS_INL_H
#else
#define VEKS_FILTER_FIR_INTEGER_PRODUCTS_INL_H
#endif

#include <hwy/highway.h>

#include "veks/status.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// kVectors times as many results as a vector of 16 bits has lanes, the even and the odd ones apart.
template <size_t kApart, size_t kVectors, class D>
HWY_INLINE void SumPairs(D d, const int32_t* HWY_RESTRICT evenTaps,
                         const int32_t* HWY_RESTRICT oddTaps, size_t pairs,
                         const int16_t* HWY_RESTRICT window, int32_t* HWY_RESTRICT sums) {
  const hn::RepartitionToWide<D> dw;
  using V = hn::Vec<D>;
  using VW = hn::Vec<decltype(dw)>;
  constexpr size_t kLanes = hn::MaxLanes(D());
  VW even[kVectors], odd[kVectors];
  // The products of the upper halves where an instruction does not add them at once.
  VW evenRest[kVectors], oddRest[kVectors];
  for (size_t v = 0; v < kVectors; ++v) {
    even[v] = odd[v] = evenRest[v] = oddRest[v] = hn::Zero(dw);
  }
  for (size_t k = 0; k < pairs; ++k) {
    const V evenTap = hn::BitCast(d, hn::Set(dw, evenTaps[k]));
    const V oddTap = hn::BitCast(d, hn::Set(dw, oddTaps[k]));
    HWY_UNROLL(8)
    for (size_t v = 0; v < kVectors; ++v) {
      const int16_t* const at = window + 2 * k + v * kLanes;
      const V x = hn::LoadU(d, at);
      const V next = kApart == 0 ? x : hn::LoadU(d, at + kApart);
      even[v] = hn::ReorderWidenMulAccumulate(dw, x, evenTap, even[v], evenRest[v]);
      odd[v] = hn::ReorderWidenMulAccumulate(dw, next, oddTap, odd[v], oddRest[v]);
    }
  }
  for (size_t v = 0; v < kVectors; ++v) {
    const VW e = hn::RearrangeToOddPlusEven(even[v], evenRest[v]);
    const VW o = hn::RearrangeToOddPlusEven(odd[v], oddRest[v]);
    hn::StoreInterleaved2(e, o, dw, sums + v * kLanes);
  }
}

template <size_t kApart, size_t kVectors, class D>
HWY_INLINE size_t SumWhole(D d, const int32_t* HWY_RESTRICT evenTaps,
                           const int32_t* HWY_RESTRICT oddTaps, size_t pairs,
                           const int16_t* HWY_RESTRICT window, int32_t* HWY_RESTRICT sums, size_t i,
                           size_t n) {
  constexpr size_t kStep = kVectors * hn::MaxLanes(D());
  for (; i + kStep <= n; i += kStep) {
    SumPairs<kApart, kVectors>(d, evenTaps, oddTaps, pairs, window + i, sums + i);
  }
  return i;
}

// The last results: with a full vector some of them again, or fewer than it has.
template <size_t kApart, class D>
HWY_INLINE void SumLast(D d, const int32_t* HWY_RESTRICT evenTaps,
                        const int32_t* HWY_RESTRICT oddTaps, size_t pairs,
                        const int16_t* HWY_RESTRICT window, int32_t* HWY_RESTRICT sums, size_t i,
                        size_t n) {
  constexpr size_t kLanes = hn::MaxLanes(D());
  if (n >= kLanes) {
    i = SumWhole<kApart, 1>(d, evenTaps, oddTaps, pairs, window, sums, i, n);
    if (i == n) return;
    const size_t last = n - kLanes;
    SumPairs<kApart, 1>(d, evenTaps, oddTaps, pairs, window + last, sums + last);
  } else if constexpr (kLanes > 2) {
    SumLast<kApart>(hn::CappedTag<int16_t, kLanes / 2>(), evenTaps, oddTaps, pairs, window, sums, i,
                    n);
  }
}

// n >= 2 results, modulo 2^32: of a pair of taps and a pair of neighbours in the window, the sum of
// both products, added up over all pairs of taps. Results with an even index start at the window's
// element of that index, those with an odd index kApart after their neighbour before them.
template <size_t kApart>
VekStatus FirIntegerProducts(const int32_t* HWY_RESTRICT evenTaps,
                             const int32_t* HWY_RESTRICT oddTaps, size_t pairs,
                             const int16_t* HWY_RESTRICT window, int32_t* HWY_RESTRICT sums,
                             size_t n) {
  const hn::ScalableTag<int16_t> d;
  constexpr size_t kMost = HWY_TARGET <= HWY_AVX3 ? 8 : 4;
  size_t i = SumWhole<kApart, kMost>(d, evenTaps, oddTaps, pairs, window, sums, 0, n);
  i = SumWhole<kApart, kMost / 4>(d, evenTaps, oddTaps, pairs, window, sums, i, n);
  SumLast<kApart>(d, evenTaps, oddTaps, pairs, window, sums, i, n);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
