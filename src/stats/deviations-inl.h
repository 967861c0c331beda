// Kernels of standard deviations.
#if defined(VEKS_STATS_DEVIATIONS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_DEVIATIONS_INL_H
#undef VEKS_STATS_DEVIATIONS_INL_H
#else
#define VEKS_STATS_DEVIATIONS_INL_H
#endif

#include <hwy/highway.h>

#include <cmath>
#include <limits>

#include "stats/exact_deviation.h"
#include "stats/integers-inl.h"
#include "stats/lanes-inl.h"
#include "veks/types.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

constexpr size_t kDeviationBlock = 4096;

// Sums of x - shift and of its square in lanes of T. The shift is a value of the vector or near it:
// the variance is the same, and little is lost to cancellation. If all elements are the same, both
// sums are exactly 0.
template <class T>
struct Deviations {
  hn::ScalableTag<T> d = {};
  T shift;
  using Vec = hn::Vec<hn::ScalableTag<T>>;
  struct Sum {
    Vec values;
    Vec squares;
  };
  explicit Deviations(T s) : shift(s) {}
  HWY_INLINE Sum zero() const {
    return {hn::Zero(d), hn::Zero(d)};
  }
  template <class V>
  HWY_INLINE void add(Sum& sum, V v) const {
    const Vec x = hn::Sub(promoted(d, v), hn::Set(d, shift));
    sum.values = hn::Add(sum.values, x);
    sum.squares = hn::Add(sum.squares, hn::Mul(x, x));
  }
  HWY_INLINE void merge(Sum& sum, const Sum& other) const {
    sum.values = hn::Add(sum.values, other.values);
    sum.squares = hn::Add(sum.squares, other.squares);
  }
};

// The last elements that fill no vector, with the shift, which adds nothing, in the other lanes.
template <class T, class S>
HWY_INLINE void addLast(const Deviations<T>& deviations, typename Deviations<T>::Sum& sum,
                        const S* src, size_t count) {
  const hn::Rebind<S, hn::ScalableTag<T>> ds;
  const auto shift = hn::Set(ds, static_cast<S>(deviations.shift));
  deviations.add(sum, hn::IfThenElse(hn::FirstN(ds, count), loadPartial(ds, src, count), shift));
}

struct Moments {
  double values;
  double squares;
};

template <class T>
HWY_INLINE Moments foldMoments(const Deviations<T>& deviations,
                               const typename Deviations<T>::Sum& sum) {
  const auto fold = [&](auto v) HWY_ATTR {
    const FoldedLanes<double> parts =
        foldLanes(hn::ScalableTag<double>(), foldToDoubles(deviations.d, v));
    return parts.even + parts.odd;
  };
  return {fold(sum.values), fold(sum.squares)};
}

template <class S>
HWY_INLINE Moments momentsInDouble(const S* src, size_t n, double shift) {
  const Deviations<double> deviations(shift);
  constexpr size_t kLanes = MaxLanes(decltype(deviations.d)());
  const size_t whole = n / kLanes * kLanes;
  auto sum = reducePairwise<4, kDeviationBlock>(deviations, whole, src);
  if (whole < n) addLast(deviations, sum, src + whole, n - whole);
  return foldMoments(deviations, sum);
}

// Blocks in single precision, their sums in double precision.
HWY_INLINE Moments momentsInSingle(const float* src, size_t n, float shift) {
  const Deviations<float> deviations(shift);
  constexpr size_t kLanes = MaxLanes(decltype(deviations.d)());
  Moments total = {0, 0};
  for (size_t i = 0; i < n; i += kDeviationBlock) {
    const size_t count = n - i < kDeviationBlock ? n - i : kDeviationBlock;
    const size_t whole = count / kLanes * kLanes;
    auto sum = reduce<4>(deviations, {whole, n - i}, src + i);
    if (whole < count) addLast(deviations, sum, src + i + whole, count - whole);
    const Moments block = foldMoments(deviations, sum);
    total = {total.values + block.values, total.squares + block.squares};
  }
  return total;
}

// NaN is one and the same on every target.
HWY_INLINE double rootOfVariance(double variance) {
  if (variance != variance) return -std::numeric_limits<double>::quiet_NaN();
  return variance > 0 ? std::sqrt(variance) : 0;
}

HWY_INLINE double deviationOf(const Moments& moments, size_t n) {
  const double count = static_cast<double>(n);
  const double difference = count * moments.squares - moments.values * moments.values;
  return rootOfVariance(difference / (count * (count - 1)));
}

template <class T>
VekStatus StdDev32(const T* src, size_t n, T* result) {
  *result = static_cast<T>(deviationOf(momentsInDouble(src, n, double{src[0]}), n));
  return vekStsOk;
}

// Shifted by about the mean of the first elements.
template <class T>
VekStatus FastStdDev32(const T* src, size_t n, T* result) {
  const size_t few = n < 256 ? n : 256;
  const double offset = momentsInSingle(src, few, src[0]).values / static_cast<double>(few);
  const Moments moments = momentsInSingle(src, n, src[0] + static_cast<T>(offset));
  // Squares that are denormal, overflow or are no numbers are left to double precision.
  if (!(moments.squares > 0x1p-100 && moments.squares < 0x1p127)) return StdDev32(src, n, result);
  *result = static_cast<T>(deviationOf(moments, n));
  return vekStsOk;
}

// Two passes: the second one shifts by the mean.
template <class T>
VekStatus StdDev64(const T* src, size_t n, T* result) {
  const double count = static_cast<double>(n);
  const double mean = src[0] + momentsInDouble(src, n, src[0]).values / count;
  const Moments moments = momentsInDouble(src, n, mean);
  const double squares = moments.squares - moments.values / count * moments.values;
  *result = rootOfVariance(squares / (count - 1));
  return vekStsOk;
}

struct IntegerMoments {
  hn::ScalableTag<int16_t> d = {};
  hn::ScalableTag<int32_t> di = {};
  SplitSums<int32_t, true> squares = {};
  struct Sum {
    hn::Vec<hn::ScalableTag<int32_t>> values;
    SplitSums<int32_t, true>::Sum squares;
  };
  HWY_INLINE Sum zero() const {
    return {hn::Zero(di), squares.zero()};
  }
  template <class V>
  HWY_INLINE void add(Sum& sum, V v) const {
    sum.values = hn::Add(sum.values, pairProducts(v, hn::Set(d, 1)));
    squares.add(sum.squares, pairProducts(v, v));
  }
  HWY_INLINE void merge(Sum& sum, const Sum& other) const {
    sum.values = hn::Add(sum.values, other.values);
    squares.merge(sum.squares, other.squares);
  }
  // The sums of the values and of their squares.
  HWY_INLINE Complex<int64_t> total(const Sum& sum) const {
    return {hn::GetLane(hn::SumOfLanes(di, sum.values)), squares.total(sum.squares)};
  }
};

template <class R>
VekStatus IntegerStdDev(const Vek16s* src, size_t n, R* result, int scaleFactor) {
  const Complex<int64_t> sums = totalOf<4, 2 * kMostValues>(IntegerMoments(), n, src);
  *result = scaledDeviation<R>(sums.re, sums.im, n, scaleFactor);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
