// Sums of products of a filter's taps with windows of its input, in floating point.
#if defined(VEKS_FILTER_FIR_PRODUCTS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_FILTER_FIR_PRODUCTS_INL_H
#undef VEKS_FILTER_FIR_PRODUCTS_INL_H
#else
#define VEKS_FILTER_FIR_PRODUCTS_INL_H
#endif

#include <hwy/highway.h>

#include "core/reduce-inl.h"
#include "filter/fir/phases-inl.h"
#include "veks/status.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {
namespace hn = hwy::HWY_NAMESPACE;

// One tap in all lanes, for real filters one vector, for complex ones two. Products with the latter
// are added up apart: those with the real part of the tap and those with its imaginary part.
template <class V, size_t kParts>
struct Tap {
  V part[kParts];
};

// kVectors vectors of results. The accumulators of one result are kSets, added up at the end, where
// there are so few vectors that sums would wait for each other.
template <class D, size_t kParts, size_t kVectors>
struct FirResults {
  using V = hn::Vec<D>;
  using T = hn::TFromD<D>;
  static constexpr size_t kPoints = hn::MaxLanes(D()) / kParts;
  static constexpr size_t kSets = kVectors * kParts >= 8 ? 1 : kVectors * kParts >= 4 ? 2 : 4;

  V sums[kSets][kVectors][kParts];

  HWY_INLINE void Clear(D d) {
    for (size_t s = 0; s < kSets; ++s) {
      for (size_t v = 0; v < kVectors; ++v) {
        for (size_t p = 0; p < kParts; ++p) sums[s][v][p] = hn::Zero(d);
      }
    }
  }

  // Adds the products of kTaps taps, each a vector of points after the one before. A loaded vector
  // meets all of them.
  template <size_t kTaps>
  HWY_INLINE void Add(D d, const T* HWY_RESTRICT taps, const T* HWY_RESTRICT window) {
    constexpr size_t kLanes = kPoints * kParts;
    Tap<V, kParts> tap[kTaps];
    for (size_t m = 0; m < kTaps; ++m) {
      for (size_t p = 0; p < kParts; ++p) tap[m].part[p] = hn::Set(d, taps[m * kLanes + p]);
    }
    HWY_UNROLL(32)
    for (size_t q = 0; q < kVectors + kTaps - 1; ++q) {
      V x = hn::LoadU(d, window + q * kLanes);
      Pin(x);
      HWY_UNROLL(8)
      for (size_t m = 0; m < kTaps; ++m) {
        if (q < m || q - m >= kVectors) continue;
        for (size_t p = 0; p < kParts; ++p) {
          V& sum = sums[m % kSets][q - m][p];
          sum = hn::MulAdd(x, tap[m].part[p], sum);
        }
      }
    }
  }

  HWY_INLINE V Result(size_t v) const {
    V total[kParts];
    for (size_t p = 0; p < kParts; ++p) {
      total[p] = sums[0][v][p];
      for (size_t s = 1; s < kSets; ++s) total[p] = hn::Add(total[p], sums[s][v][p]);
    }
    if constexpr (kParts == 1) {
      return total[0];
    } else {
      const V crossed = hn::Reverse2(D(), total[1]);
      return hn::OddEven(hn::Add(total[0], crossed), hn::Sub(total[0], crossed));
    }
  }
};

// Vectors of results, and taps to a loaded vector, for which there are registers.
template <size_t kParts>
struct Most {
  static constexpr size_t kScale = HWY_TARGET == HWY_EMU128 ? 1 : HWY_TARGET <= HWY_AVX3 ? 4 : 2;
  static constexpr size_t kVectors = 4 * kScale / kParts;
  static constexpr size_t kTaps = 2 * kScale / kParts;
};

// Adds the products of `count` times kTaps taps.
template <size_t kTaps, size_t kParts, class Results, class D, class T>
HWY_INLINE void AddTaps(D d, Results& results, const T* HWY_RESTRICT taps,
                        const T* HWY_RESTRICT window, size_t count) {
  for (size_t k = 0; k < count * kParts; k += kParts) {
    results.template Add<kTaps>(d, taps + k, window + k);
  }
}

// Adds the products of the taps from k on, kTaps vectors of them at a time and then those that are
// left.
template <size_t kTaps, size_t kParts, class Results, class D, class T>
HWY_INLINE void AddProducts(D d, Results& results, const T* HWY_RESTRICT taps, size_t tapsLen,
                            const T* HWY_RESTRICT window, size_t k) {
  constexpr size_t kPoints = Results::kPoints;
  if constexpr (kTaps > 2) {
    for (; k + kTaps * kPoints <= tapsLen; k += kTaps * kPoints) {
      AddTaps<kTaps, kParts>(d, results, taps + k * kParts, window + k * kParts, kPoints);
    }
    AddProducts<kTaps / 2, kParts>(d, results, taps, tapsLen, window, k);
  } else {
    // Pairs of taps as long as there are two.
    while (k < tapsLen) {
      const size_t left = tapsLen - k;
      const size_t pairs = left > kPoints ? HWY_MIN(left - kPoints, kPoints) : 0;
      AddTaps<2, kParts>(d, results, taps + k * kParts, window + k * kParts, pairs);
      if (pairs == kPoints) {
        k += 2 * kPoints;
        continue;
      }
      k += pairs;
      AddTaps<1, kParts>(d, results, taps + k * kParts, window + k * kParts,
                         HWY_MIN(left, kPoints) - pairs);
      break;
    }
  }
}

// dst[i] = sum of taps[k] window[i + k] over k, for kVectors vectors of results.
template <size_t kParts, size_t kVectors, size_t kTaps, class D, class T>
HWY_INLINE void FilterVectors(D d, const T* HWY_RESTRICT taps, size_t tapsLen,
                              const T* HWY_RESTRICT window, T* HWY_RESTRICT dst) {
  using Results = FirResults<D, kParts, kVectors>;
  constexpr size_t kPoints = Results::kPoints;
  Results results;
  results.Clear(d);
  AddProducts<kTaps, kParts>(d, results, taps, tapsLen, window, 0);
  for (size_t v = 0; v < kVectors; ++v) {
    hn::StoreU(results.Result(v), d, dst + v * kPoints * kParts);
  }
}

template <size_t kParts, size_t kVectors, size_t kTaps, class D, class T>
HWY_INLINE size_t FilterWhole(D d, const T* HWY_RESTRICT taps, size_t tapsLen,
                              const T* HWY_RESTRICT window, T* HWY_RESTRICT dst, size_t i,
                              size_t n) {
  constexpr size_t kPoints = kVectors * hn::MaxLanes(D()) / kParts;
  for (; i + kPoints <= n; i += kPoints) {
    FilterVectors<kParts, kVectors, kTaps>(d, taps, tapsLen, window + i * kParts, dst + i * kParts);
  }
  return i;
}

// Fewer results than a vector has, or with a full vector the last ones.
template <size_t kParts, size_t kTaps, class D, class T>
HWY_INLINE void FilterLast(D d, const T* HWY_RESTRICT taps, size_t tapsLen,
                           const T* HWY_RESTRICT window, T* HWY_RESTRICT dst, size_t i, size_t n) {
  constexpr size_t kLanes = hn::MaxLanes(D());
  constexpr size_t kPoints = kLanes / kParts;
  if (n >= kPoints) {
    if (i + kPoints <= n) i = FilterWhole<kParts, 1, kTaps>(d, taps, tapsLen, window, dst, i, n);
    if (i == n) return;
    const size_t last = (n - kPoints) * kParts;
    FilterVectors<kParts, 1, kTaps>(d, taps, tapsLen, window + last, dst + last);
  } else if constexpr (kPoints > 1) {
    FilterLast<kParts, 2>(hn::CappedTag<T, kLanes / 2>(), taps, tapsLen, window, dst, i, n);
  }
}

// dst[i] = sum of taps[k] window[i + k] over k for n results: the taps are those of the filter in
// reverse, the window has n + tapsLen - 1 points. kParts is 2 for complex values.
template <class T, size_t kParts>
VekStatus FirProducts(const T* HWY_RESTRICT taps, size_t tapsLen, const T* HWY_RESTRICT window,
                      T* HWY_RESTRICT dst, size_t n) {
  const hn::ScalableTag<T> d;
  constexpr size_t kVectors = Most<kParts>::kVectors;
  constexpr size_t kTaps = Most<kParts>::kTaps;
  constexpr size_t kFewer = kTaps < 4 ? kTaps : 4;
  size_t i = 0;
#if HWY_TARGET == HWY_AVX3
  if constexpr (kParts == 1) {
    i = FilterFewTaps(d, taps, tapsLen, window, dst, n);
  }
#endif
  i = FilterWhole<kParts, kVectors, kTaps>(d, taps, tapsLen, window, dst, i, n);
  i = FilterWhole<kParts, (kVectors + 3) / 4, kFewer>(d, taps, tapsLen, window, dst, i, n);
  FilterLast<kParts, kFewer>(d, taps, tapsLen, window, dst, i, n);
  return vekStsOk;
}

// The same for one result, with as many sums as the latency of a multiply-add asks for.
template <class T, size_t kParts>
VekStatus FirProduct(const T* HWY_RESTRICT taps, size_t tapsLen, const T* HWY_RESTRICT window,
                     T* HWY_RESTRICT dst) {
  const hn::ScalableTag<T> d;
  constexpr size_t kLanes = hn::MaxLanes(d);
  constexpr size_t kSums = 4;
  using V = hn::Vec<decltype(d)>;
  const size_t n = tapsLen * kParts;
  // Of complex values, the products of like parts and of unlike parts. The loops are unrolled so
  // that the sums stay in registers.
  V like[kSums];
  V unlike[kSums];
  HWY_UNROLL(4)
  for (size_t s = 0; s < kSums; ++s) like[s] = unlike[s] = hn::Zero(d);
  const auto add = [&](size_t s, V tap, V x) HWY_ATTR __attribute__((always_inline)) {
    like[s] = hn::MulAdd(tap, x, like[s]);
    if constexpr (kParts == 2) unlike[s] = hn::MulAdd(tap, hn::Reverse2(d, x), unlike[s]);
  };
  size_t i = 0;
  for (; i + kSums * kLanes <= n; i += kSums * kLanes) {
    HWY_UNROLL(4)
    for (size_t s = 0; s < kSums; ++s) {
      add(s, hn::LoadU(d, taps + i + s * kLanes), hn::LoadU(d, window + i + s * kLanes));
    }
  }
  HWY_UNROLL(4)
  for (size_t s = 0; s < kSums - 1; ++s) {
    if (i + kLanes > n) continue;
    add(s, hn::LoadU(d, taps + i), hn::LoadU(d, window + i));
    i += kLanes;
  }
  if (i < n) {
    add(kSums - 1, loadPartial(d, taps + i, n - i), loadPartial(d, window + i, n - i));
  }
  HWY_UNROLL(4)
  for (size_t s = 1; s < kSums; ++s) {
    like[0] = hn::Add(like[0], like[s]);
    if constexpr (kParts == 2) unlike[0] = hn::Add(unlike[0], unlike[s]);
  }
  if constexpr (kParts == 2) {
    const V real = hn::OddEven(hn::Neg(like[0]), like[0]);
    dst[0] = hn::GetLane(hn::SumOfLanes(d, real));
    dst[1] = hn::GetLane(hn::SumOfLanes(d, unlike[0]));
  } else {
    dst[0] = hn::GetLane(hn::SumOfLanes(d, like[0]));
  }
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
