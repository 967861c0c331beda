// Sums of products of few real taps, with the results in four phases.
//
// Where a vector is as long as a cache line, nearly every load of a window crosses lines, and such
// loads are slower than multiply-adds: each should serve several taps. With many taps, those a
// vector apart share them. Few taps share them if the lanes of a vector are four samples apart: it
// then meets four taps, one for each phase of the results.
#if defined(VEKS_FILTER_FIR_PHASES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_FILTER_FIR_PHASES_INL_H
#undef VEKS_FILTER_FIR_PHASES_INL_H
#else
#define VEKS_FILTER_FIR_PHASES_INL_H
#endif

#include <hwy/highway.h>

#include "core/targets.h"

#if HWY_TARGET == HWY_AVX3

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

constexpr size_t kPhases = 4;

// Vectors of each phase in a block of results, and blocks in a tile.
constexpr size_t kPhaseVectors = 4;
constexpr size_t kTileBlocks = 8;

// a[0] b[0] a[1] b[1] ..., the lower or the upper half of it.
template <class V>
HWY_INLINE V Zip(hn::Full512<float>, V a, V b, bool upper) {
  const __m512i low = _mm512_setr_epi32(0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23);
  const __m512i index = upper ? _mm512_add_epi32(low, _mm512_set1_epi32(8)) : low;
  return V{_mm512_permutex2var_ps(a.raw, index, b.raw)};
}
template <class V>
HWY_INLINE V Zip(hn::Full512<double>, V a, V b, bool upper) {
  const __m512i low = _mm512_setr_epi64(0, 8, 1, 9, 2, 10, 3, 11);
  const __m512i index = upper ? _mm512_add_epi64(low, _mm512_set1_epi64(4)) : low;
  return V{_mm512_permutex2var_pd(a.raw, index, b.raw)};
}

// Four vectors of samples in turn: lane l of phase p is sample 4 l + p.
template <class D, class T>
HWY_INLINE void SplitPhases(D d, const T* HWY_RESTRICT src, T* HWY_RESTRICT phases, size_t stride) {
  constexpr size_t kLanes = hn::MaxLanes(D());
  const auto v0 = hn::LoadU(d, src);
  const auto v1 = hn::LoadU(d, src + kLanes);
  const auto v2 = hn::LoadU(d, src + 2 * kLanes);
  const auto v3 = hn::LoadU(d, src + 3 * kLanes);
  const auto even01 = hn::ConcatEven(d, v1, v0);
  const auto even23 = hn::ConcatEven(d, v3, v2);
  const auto odd01 = hn::ConcatOdd(d, v1, v0);
  const auto odd23 = hn::ConcatOdd(d, v3, v2);
  hn::Store(hn::ConcatEven(d, even23, even01), d, phases);
  hn::Store(hn::ConcatEven(d, odd23, odd01), d, phases + stride);
  hn::Store(hn::ConcatOdd(d, even23, even01), d, phases + 2 * stride);
  hn::Store(hn::ConcatOdd(d, odd23, odd01), d, phases + 3 * stride);
}

template <class D, class V, class T>
HWY_INLINE void StorePhases(D d, V p0, V p1, V p2, V p3, T* HWY_RESTRICT dst) {
  constexpr size_t kLanes = hn::MaxLanes(D());
  const V low02 = Zip(d, p0, p2, false);
  const V low13 = Zip(d, p1, p3, false);
  const V high02 = Zip(d, p0, p2, true);
  const V high13 = Zip(d, p1, p3, true);
  hn::StoreU(Zip(d, low02, low13, false), d, dst);
  hn::StoreU(Zip(d, low02, low13, true), d, dst + kLanes);
  hn::StoreU(Zip(d, high02, high13, false), d, dst + 2 * kLanes);
  hn::StoreU(Zip(d, high02, high13, true), d, dst + 3 * kLanes);
}

// Adds the products of sample c of every four to the phases from kFirst to kLast: its product with
// tap c - p goes to phase p.
template <size_t kFirst, size_t kLast, class D, class V, class T>
HWY_INLINE void AddToPhases(D d, const T* HWY_RESTRICT samples, const V (&taps)[kPhases],
                            V (&sums)[kPhases][kPhaseVectors]) {
  for (size_t v = 0; v < kPhaseVectors; ++v) {
    const V sample = hn::LoadU(d, samples + v * hn::MaxLanes(D()));
    for (size_t p = kFirst; p <= kLast; ++p) {
      sums[p][v] = hn::MulAdd(sample, taps[p], sums[p][v]);
    }
  }
}

// A block of results of at least four taps.
template <class D, class T>
HWY_INLINE void FilterPhases(D d, const T* HWY_RESTRICT taps, size_t tapsLen,
                             const T* HWY_RESTRICT phases, size_t stride, T* HWY_RESTRICT dst) {
  using V = hn::Vec<D>;
  V sums[kPhases][kPhaseVectors];
  for (auto& phase : sums) {
    for (V& sum : phase) sum = hn::Zero(d);
  }
  const auto samples = [=](size_t c) { return phases + c % kPhases * stride + c / kPhases; };
  // Before the fourth sample and after the last tap not all phases have a tap.
  V tap[kPhases];
  const auto next = [&](V newest) HWY_ATTR {
    tap[3] = tap[2];
    tap[2] = tap[1];
    tap[1] = tap[0];
    tap[0] = newest;
  };
  tap[0] = tap[1] = tap[2] = hn::Set(d, taps[0]);
  AddToPhases<0, 0>(d, samples(0), tap, sums);
  next(hn::Set(d, taps[1]));
  AddToPhases<0, 1>(d, samples(1), tap, sums);
  next(hn::Set(d, taps[2]));
  AddToPhases<0, 2>(d, samples(2), tap, sums);
  size_t c = 3;
  for (; c < tapsLen; ++c) {
    next(hn::Set(d, taps[c]));
    AddToPhases<0, 3>(d, samples(c), tap, sums);
  }
  next(tap[0]);
  AddToPhases<1, 3>(d, samples(c), tap, sums);
  next(tap[0]);
  AddToPhases<2, 3>(d, samples(c + 1), tap, sums);
  next(tap[0]);
  AddToPhases<3, 3>(d, samples(c + 2), tap, sums);
  for (size_t v = 0; v < kPhaseVectors; ++v) {
    StorePhases(d, sums[0][v], sums[1][v], sums[2][v], sums[3][v],
                dst + v * kPhases * hn::MaxLanes(D()));
  }
}

// Whether so many taps are faster in phases.
template <class D>
HWY_INLINE bool AreForPhases(D /*d*/, size_t tapsLen) {
  return tapsLen >= 7 && tapsLen < 4 * hn::MaxLanes(D());
}

// As many of n results as there are whole blocks for; returns their number.
template <class D, class T>
HWY_INLINE size_t FilterInPhases(D d, const T* HWY_RESTRICT taps, size_t tapsLen,
                                 const T* HWY_RESTRICT window, T* HWY_RESTRICT dst, size_t n) {
  constexpr size_t kGroup = kPhases * hn::MaxLanes(D());
  constexpr size_t kBlock = kPhaseVectors * kGroup;
  constexpr size_t kStride = (kTileBlocks * kBlock + 2 * kGroup) / kPhases;
  HWY_ALIGN T phases[kPhases * kStride];
  size_t i = 0;
  while (i + kBlock <= n) {
    const size_t blocks = HWY_MIN(kTileBlocks, (n - i) / kBlock);
    const size_t samples = blocks * kBlock + tapsLen - 1;
    size_t s = 0;
    for (; s + kGroup <= samples; s += kGroup) {
      SplitPhases(d, window + i + s, phases + s / kPhases, kStride);
    }
    if (s < samples) {
      T rest[kGroup];
      for (size_t r = 0; r < kGroup; ++r) rest[r] = s + r < samples ? window[i + s + r] : T{0};
      SplitPhases(d, rest, phases + s / kPhases, kStride);
    }
    for (size_t b = 0; b < blocks; ++b, i += kBlock) {
      FilterPhases(d, taps, tapsLen, phases + b * kBlock / kPhases, kStride, dst + i);
    }
  }
  return i;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif

#endif
