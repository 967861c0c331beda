// Sums of products of few real taps, with the results in phases.
//
// Where a vector is as long as a cache line, nearly every load of a window crosses lines. Loads
// slow down multiply-adds, the more so if they cross lines, thus each should serve several taps.
// With many taps, those a vector apart share them. Few taps share them if neighbouring samples are
// in different vectors, the phases: a vector then meets one tap for each phase of the results.
//
// There are as many segments of results as phases. A row is a vector of samples of each segment,
// and rows are transposed in blocks of kCount lanes: lane r of block b of phase p is the sample
// kCount * b + p of segment r. The next samples of a phase are kCount lanes further on in memory,
// so that a part of the loads is aligned: every fourth, or with blocks of half a vector every
// second.
#if defined(VEKS_FILTER_FIR_PHASES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_FILTER_FIR_PHASES_INL_H
#undef VEKS_FILTER_FIR_PHASES_INL_H
#else
#define VEKS_FILTER_FIR_PHASES_INL_H
#endif

#include <hwy/highway.h>

#include "core/reduce-inl.h"
#include "core/targets.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// Keeps a loaded vector in its register. The compiler would rather load it again for each of its
// multiply-adds, but loads that cross a cache line are what limits them.
template <class V>
HWY_INLINE void Pin(V& v) {
#if HWY_ARCH_X86 && HWY_TARGET != HWY_EMU128
  asm("" : "+v"(v.raw));
#else
  (void)v;
#endif
}

#if HWY_TARGET == HWY_AVX3

// Vectors of sums, which stay in registers, and results of a segment in a tile.
constexpr size_t kPhaseSums = 16;
constexpr size_t kTileSegment = 256;

template <class D, size_t kPhases>
struct Phases {
  using V = hn::Vec<D>;
  static constexpr size_t kCount = kPhases;
  static constexpr size_t kLanes = hn::MaxLanes(D());
  static constexpr size_t kVectors = kPhaseSums / kCount;  // of each phase in a block
  static constexpr size_t kStep = kVectors * kLanes;       // results of a segment in a block
  static constexpr size_t kBlock = kCount * kStep;
  static constexpr size_t kEnough = kBlock - kBlock / 8;        // results that are worth a block
  static constexpr size_t kStride = kTileSegment + 5 * kLanes;  // with samples of older taps

  V sums[kCount][kVectors];
  V tap[kCount];  // the newest one first

  // Adds the products of every kCount-th sample, its product with tap[p] to phase p for phases
  // from kFirst to kLast.
  template <size_t kFirst, size_t kLast, class T>
  HWY_INLINE void Add(D d, V newest, const T* HWY_RESTRICT phases, size_t sample) {
    HWY_UNROLL(8)
    for (size_t p = kCount - 1; p > 0; --p) tap[p] = tap[p - 1];
    tap[0] = newest;
    const T* HWY_RESTRICT from = phases + sample % kCount * kStride + sample / kCount * kCount;
    HWY_UNROLL(8)
    for (size_t v = 0; v < kVectors; ++v) {
      V x = hn::LoadU(d, from + v * kLanes);
      Pin(x);
      HWY_UNROLL(8)
      for (size_t p = kFirst; p <= kLast; ++p) sums[p][v] = hn::MulAdd(x, tap[p], sums[p][v]);
    }
  }

  // The first samples have no taps in the later phases, the last ones none in the earlier phases.
  template <size_t kSample, class T>
  HWY_INLINE void AddFirst(D d, const T* HWY_RESTRICT taps, const T* HWY_RESTRICT phases) {
    Add<0, kSample>(d, hn::Set(d, taps[kSample]), phases, kSample);
    if constexpr (kSample + 2 < kCount) AddFirst<kSample + 1>(d, taps, phases);
  }
  template <size_t kPhase, class T>
  HWY_INLINE void AddLast(D d, const T* HWY_RESTRICT phases, size_t sample) {
    Add<kPhase, kCount - 1>(d, tap[0], phases, sample);
    if constexpr (kPhase + 1 < kCount) AddLast<kPhase + 1>(d, phases, sample + 1);
  }
};

// Exchanges the second and fourth quarter of a with the first and third one of b.
template <class D, class V>
HWY_INLINE void ExchangeQuarters(D d, V& a, V& b) {
  const hn::Full512<int64_t> words;
  const __m512i x = hn::BitCast(words, a).raw;
  const __m512i y = hn::BitCast(words, b).raw;
  const __m512i even = _mm512_setr_epi64(0, 1, 8, 9, 4, 5, 12, 13);
  const __m512i odd = _mm512_setr_epi64(2, 3, 10, 11, 6, 7, 14, 15);
  a = hn::BitCast(d, hn::Vec<decltype(words)>{_mm512_permutex2var_epi64(x, even, y)});
  b = hn::BitCast(d, hn::Vec<decltype(words)>{_mm512_permutex2var_epi64(x, odd, y)});
}

// Transposes rows within blocks of kCount lanes.
template <size_t kCount, class D, class V>
HWY_INLINE void TransposeRows(D d, V (&rows)[kCount]) {
  constexpr size_t kQuarter = hn::MaxLanes(D()) / 4;
  HWY_UNROLL(2)
  for (size_t step = kQuarter / 2; step > 0; step /= 2) {
    HWY_UNROLL(8)
    for (size_t r = 0; r < kCount; ++r) {
      if ((r & step) != 0) continue;
      const V lower = hn::InterleaveLower(d, rows[r], rows[r + step]);
      rows[r + step] = hn::InterleaveUpper(d, rows[r], rows[r + step]);
      rows[r] = lower;
    }
  }
  if constexpr (kCount > kQuarter) {
    HWY_UNROLL(4)
    for (size_t r = 0; r < kQuarter; ++r) ExchangeQuarters(d, rows[r], rows[r + kQuarter]);
  }
}

// A vector of samples of each segment from `start` on; those after `samples` are not read. Masked
// loads take longer, even those of whole vectors.
template <size_t kCount, class D, class T>
HWY_INLINE void SplitPhases(D d, const T* HWY_RESTRICT src, const size_t (&starts)[kCount],
                            size_t start, size_t samples, T* HWY_RESTRICT phases) {
  constexpr size_t kLanes = hn::MaxLanes(D());
  hn::Vec<D> rows[kCount];
  if (HWY_LIKELY(start + kLanes <= samples)) {
    HWY_UNROLL(8)
    for (size_t r = 0; r < kCount; ++r) rows[r] = hn::LoadU(d, src + starts[r] + start);
  } else {
    HWY_UNROLL(8)
    for (size_t r = 0; r < kCount; ++r) {
      rows[r] = loadPartial(d, src + starts[r] + start, samples - start);
    }
  }
  TransposeRows(d, rows);
  HWY_UNROLL(8)
  for (size_t r = 0; r < kCount; ++r) {
    hn::Store(rows[r], d, phases + r * Phases<D, kCount>::kStride + start);
  }
}

// A block of results of at least kCount - 1 taps.
template <size_t kCount, class D, class T>
HWY_INLINE void FilterPhases(D d, const T* HWY_RESTRICT taps, size_t tapsLen,
                             const T* HWY_RESTRICT phases, const size_t (&starts)[kCount],
                             T* HWY_RESTRICT dst) {
  using P = Phases<D, kCount>;
  P p;
  for (auto& sums : p.sums) {
    for (auto& sum : sums) sum = hn::Zero(d);
  }
  for (auto& tap : p.tap) tap = hn::Zero(d);
  p.template AddFirst<0>(d, taps, phases);
  size_t k = kCount - 1;
  const auto addNext = [&]() HWY_ATTR __attribute__((always_inline)) {
    p.template Add<0, kCount - 1>(d, hn::Set(d, taps[k]), phases, k);
    ++k;
  };
  // After kCount taps the vectors of taps are in the same registers again.
  while ((tapsLen - k) % kCount != 0) addNext();
  while (k < tapsLen) {
    HWY_UNROLL(8)
    for (size_t t = 0; t < kCount; ++t) addNext();
  }
  p.template AddLast<1>(d, phases, k);
  HWY_UNROLL(4)
  for (size_t v = 0; v < P::kVectors; ++v) {
    hn::Vec<D> rows[kCount];
    HWY_UNROLL(8)
    for (size_t r = 0; r < kCount; ++r) rows[r] = p.sums[r][v];
    TransposeRows(d, rows);
    HWY_UNROLL(8)
    for (size_t r = 0; r < kCount; ++r) hn::StoreU(rows[r], d, dst + starts[r] + v * P::kLanes);
  }
}

// The results of whole blocks, and of a last block that is nearly whole: its segments overlap.
// Returns their number.
template <size_t kCount, class D, class T>
HWY_NOINLINE size_t FilterInPhases(D d, const T* HWY_RESTRICT taps, size_t tapsLen,
                                   const T* HWY_RESTRICT window, T* HWY_RESTRICT dst, size_t n) {
  using P = Phases<D, kCount>;
  HWY_ALIGN T phases[kCount * P::kStride];
  size_t i = 0;
  while (n - i >= P::kEnough) {
    const size_t left = HWY_MIN(n - i, kCount * kTileSegment);
    const size_t rest = left % P::kBlock;
    const size_t results = rest < P::kEnough ? left - rest : left;
    const size_t segment = (results + P::kBlock - 1) / P::kBlock * P::kStep;
    size_t starts[kCount];
    for (size_t r = 0; r < kCount; ++r) starts[r] = r * (results - segment) / (kCount - 1);
    const size_t samples = segment + tapsLen - 1;
    size_t split = 0;
    for (size_t s = 0; s < segment; s += P::kStep) {
      // A block ahead: loads of two vectors at once have to wait until both are in the cache.
      const size_t end = HWY_MIN(samples, s + 2 * P::kStep + tapsLen - 1);
      for (; split < end; split += P::kLanes) {
        SplitPhases(d, window + i, starts, split, samples, phases);
      }
      FilterPhases(d, taps, tapsLen, phases + s, starts, dst + i + s);
    }
    i += results;
  }
  return i;
}

// As many of n results as are faster in phases, of 7 taps to less than four vectors of them.
// Returns their number.
template <class D, class T>
HWY_INLINE size_t FilterFewTaps(D d, const T* HWY_RESTRICT taps, size_t tapsLen,
                                const T* HWY_RESTRICT window, T* HWY_RESTRICT dst, size_t n) {
  constexpr size_t kLanes = hn::MaxLanes(D());
  constexpr size_t kMany = 28;  // from which on a third level of transposition pays
  if (tapsLen < 7 || tapsLen >= 4 * kLanes || n < Phases<D, 4>::kEnough) return 0;
  if constexpr (kLanes == 16) {
    if (tapsLen >= kMany) return FilterInPhases<8>(d, taps, tapsLen, window, dst, n);
  }
  return FilterInPhases<4>(d, taps, tapsLen, window, dst, n);
}

#endif

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
