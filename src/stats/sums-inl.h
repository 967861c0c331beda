// Kernels of sums and means.
#if defined(VEKS_STATS_SUMS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_SUMS_INL_H
#undef VEKS_STATS_SUMS_INL_H
#else
#define VEKS_STATS_SUMS_INL_H
#endif

#include <hwy/highway.h>

#include "stats/exact_sum-inl.h"
#include "stats/integers-inl.h"
#include "stats/lanes-inl.h"
#include "stats/operations.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// The lanes of float of each block are added in single precision, the sums of the blocks in double
// precision. 16 or more lanes take turns: the error of a block stays small.
constexpr size_t kFastBlock = 32768;
constexpr size_t kComplexBlock = 4096;

template <size_t kBlock>
HWY_INLINE auto sumInBlocks(const float* src, size_t n) {
  const LaneSums<float> sums;
  hn::Vec<hn::ScalableTag<double>> total = hn::Zero(hn::ScalableTag<double>());
  for (size_t i = 0; i < n; i += kBlock) {
    const Piece piece = {n - i < kBlock ? n - i : kBlock, n - i};
    const auto block = reduceShortOrLong<8>(sums, piece, src + i);
    total = hn::Add(total, foldToDoubles(sums.d, block));
  }
  return total;
}

HWY_INLINE FoldedLanes<double> partSums(const float* src, size_t n) {
  return foldLanes(hn::ScalableTag<double>(), sumInBlocks<kComplexBlock>(src, n));
}
HWY_INLINE FoldedLanes<double> partSums(const double* src, size_t n) {
  const LaneSums<double> sums;
  return foldLanes(sums.d, reducePairwise<8, kComplexBlock>(sums, n, src));
}

template <class Result>
VekStatus AccurateSum(const Vek32f* src, size_t n, Vek32f* result) {
  *result = static_cast<Vek32f>(Result::of(exactSum(src, n, Result::kDigits), n));
  return vekStsOk;
}

template <class Result>
VekStatus FastSum(const Vek32f* src, size_t n, Vek32f* result) {
  const FoldedLanes<double> sum =
      foldLanes(hn::ScalableTag<double>(), sumInBlocks<kFastBlock>(src, n));
  *result = static_cast<Vek32f>(Result::of(sum.even + sum.odd, n));
  return vekStsOk;
}

template <class Result>
VekStatus Sum64(const Vek64f* src, size_t n, Vek64f* result) {
  const FoldedLanes<double> sum = partSums(src, n);
  *result = Result::of(sum.even + sum.odd, n);
  return vekStsOk;
}

template <class Result, class C>
VekStatus ComplexSum(const C* src, size_t n, C* result) {
  using T = decltype(result->re);
  const FoldedLanes<double> sum = partSums(reinterpret_cast<const T*>(src), 2 * n);
  result->re = static_cast<T>(Result::of(sum.even, n));
  result->im = static_cast<T>(Result::of(sum.odd, n));
  return vekStsOk;
}

template <class S>
struct IntegerSums;

template <>
struct IntegerSums<Vek16s> {
  using Lane = int16_t;
  static constexpr size_t kLanes = 1;
  static constexpr size_t kBlock = 2 * kMostValues;
  hn::ScalableTag<int16_t> d = {};
  hn::ScalableTag<int32_t> di = {};
  using Sum = hn::Vec<hn::ScalableTag<int32_t>>;
  HWY_INLINE Sum zero() const {
    return hn::Zero(di);
  }
  template <class V>
  HWY_INLINE void add(Sum& sum, V v) const {
    sum = hn::Add(sum, pairProducts(v, hn::Set(d, 1)));
  }
  HWY_INLINE void merge(Sum& sum, Sum other) const {
    sum = hn::Add(sum, other);
  }
  HWY_INLINE int64_t total(Sum sum) const {
    return hn::GetLane(hn::SumOfLanes(di, sum));
  }
};

template <>
struct IntegerSums<Vek16sc> {
  using Lane = int16_t;
  static constexpr size_t kLanes = 2;
  static constexpr size_t kBlock = 2 * kMostValues;
  hn::ScalableTag<int16_t> d = {};
  hn::ScalableTag<int32_t> di = {};
  struct Sum {
    hn::Vec<hn::ScalableTag<int32_t>> re;
    hn::Vec<hn::ScalableTag<int32_t>> im;
  };
  HWY_INLINE Sum zero() const {
    return {hn::Zero(di), hn::Zero(di)};
  }
  template <class V>
  HWY_INLINE void add(Sum& sum, V v) const {
    sum.re = hn::Add(sum.re, pairProducts(v, hn::BitCast(d, hn::Set(di, 1))));
    sum.im = hn::Add(sum.im, hn::ShiftRight<16>(hn::BitCast(di, v)));
  }
  HWY_INLINE void merge(Sum& sum, const Sum& other) const {
    sum.re = hn::Add(sum.re, other.re);
    sum.im = hn::Add(sum.im, other.im);
  }
  HWY_INLINE Complex<int64_t> total(const Sum& sum) const {
    return {hn::GetLane(hn::SumOfLanes(di, sum.re)), hn::GetLane(hn::SumOfLanes(di, sum.im))};
  }
};

template <>
struct IntegerSums<Vek32s> : SplitSums<int32_t> {
  using Lane = int32_t;
  static constexpr size_t kLanes = 1;
  static constexpr size_t kBlock = kMostValues;
};

template <class Result, class S, class R>
VekStatus IntegerSum(const S* src, size_t n, R* result, int scaleFactor) {
  using Sums = IntegerSums<S>;
  const auto* const lanes = reinterpret_cast<const typename Sums::Lane*>(src);
  const auto total = totalOf<8, Sums::kBlock>(Sums(), Sums::kLanes * n, lanes);
  if constexpr (std::is_class_v<R>) {
    using T = decltype(result->re);
    result->re = Result::template of<T>(total.re, n, scaleFactor);
    result->im = Result::template of<T>(total.im, n, scaleFactor);
  } else {
    *result = Result::template of<R>(total, n, scaleFactor);
  }
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
