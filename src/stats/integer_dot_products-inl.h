// Kernels of exact dot products of integers.
#if defined(VEKS_STATS_INTEGER_DOT_PRODUCTS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_INTEGER_DOT_PRODUCTS_INL_H
#undef VEKS_STATS_INTEGER_DOT_PRODUCTS_INL_H
#else
#define VEKS_STATS_INTEGER_DOT_PRODUCTS_INL_H
#endif

#include <hwy/highway.h>

#include "core/widen-inl.h"
#include "stats/integers-inl.h"
#include "veks/types.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// The reduction for vectors of S1 and S2. Lane1 and Lane2 are what their elements are loaded as,
// kLanes how many make an element, kBlock how many a total can take in.
template <class S1, class S2>
struct IntegerProducts;

template <>
struct IntegerProducts<Vek16s, Vek16s> {
  using Lane1 = int16_t;
  using Lane2 = int16_t;
  static constexpr size_t kLanes = 1;
  static constexpr size_t kBlock = 2 * kMostValues;
  hn::ScalableTag<int16_t> d = {};
  SplitSums<int32_t, true> sums = {};
  using Sum = SplitSums<int32_t, true>::Sum;
  HWY_INLINE Sum zero() const {
    return sums.zero();
  }
  template <class V>
  HWY_INLINE void add(Sum& sum, V a, V b) const {
    sums.add(sum, pairProducts(a, b));
  }
  HWY_INLINE void merge(Sum& sum, const Sum& other) const {
    sums.merge(sum, other);
  }
  HWY_INLINE int64_t total(const Sum& sum) const {
    return sums.total(sum);
  }
};

// A real and an imaginary sum of one kind each.
template <class Re, class Im = Re>
struct ComplexSums {
  Re reSums = {};
  Im imSums = {};
  struct Sum {
    typename Re::Sum re;
    typename Im::Sum im;
  };
  HWY_INLINE Sum zero() const {
    return {reSums.zero(), imSums.zero()};
  }
  HWY_INLINE void merge(Sum& sum, const Sum& other) const {
    reSums.merge(sum.re, other.re);
    imSums.merge(sum.im, other.im);
  }
  HWY_INLINE auto total(const Sum& sum) const {
    const auto re = reSums.total(sum.re);
    return Complex<std::remove_const_t<decltype(re)>>{re, imSums.total(sum.im)};
  }
};

template <>
struct IntegerProducts<Vek16sc, Vek16sc>
    : ComplexSums<SplitSums<int32_t>, SplitSums<int32_t, true>> {
  using Lane1 = int16_t;
  using Lane2 = int16_t;
  static constexpr size_t kLanes = 2;
  static constexpr size_t kBlock = 2 * kMostValues;
  hn::ScalableTag<int16_t> d = {};
  // The difference of a product of real and one of imaginary parts has 32 bits.
  template <class V>
  HWY_INLINE void add(Sum& sum, V a, V b) const {
    const V realParts = hn::BitCast(d, hn::Set(hn::ScalableTag<int32_t>(), 0xFFFF));
    const auto re = pairProducts(hn::And(a, realParts), b);
    const auto im = pairProducts(hn::AndNot(realParts, a), b);
    reSums.add(sum.re, hn::Sub(re, im));
    imSums.add(sum.im, pairProducts(a, hn::Reverse2(d, b)));
  }
};

template <>
struct IntegerProducts<Vek16s, Vek16sc> : ComplexSums<SplitSums<int32_t>> {
  using Lane1 = uint16_t;
  using Lane2 = int32_t;
  static constexpr size_t kLanes = 1;
  static constexpr size_t kBlock = kMostValues;
  hn::ScalableTag<int32_t> d = {};
  template <class A, class B>
  HWY_INLINE void add(Sum& sum, A a, B b) const {
    const hn::ScalableTag<int16_t> dp;
    const auto parts = hn::BitCast(dp, b);
    const auto x = hn::PromoteTo(d, a);
    reSums.add(sum.re, pairProducts(hn::BitCast(dp, x), parts));
    imSums.add(sum.im, pairProducts(hn::BitCast(dp, hn::ShiftLeft<16>(x)), parts));
  }
};

// Products of at most 2^46.
template <>
struct IntegerProducts<Vek16s, Vek32s> {
  using Lane1 = int16_t;
  using Lane2 = int32_t;
  static constexpr size_t kLanes = 1;
  static constexpr size_t kBlock = size_t{1} << 16;
  hn::ScalableTag<int32_t> d = {};
  hn::ScalableTag<int64_t> dw = {};
  using Sum = hn::Vec<hn::ScalableTag<int64_t>>;
  HWY_INLINE Sum zero() const {
    return hn::Zero(dw);
  }
  template <class A, class B>
  HWY_INLINE void add(Sum& sum, A a, B b) const {
    const auto products = Widening<int32_t>::multiply(d, hn::PromoteTo(d, a), b);
    sum = hn::Add(sum, hn::Add(products.first, products.second));
  }
  HWY_INLINE void merge(Sum& sum, Sum other) const {
    sum = hn::Add(sum, other);
  }
  HWY_INLINE Wide total(Sum sum) const {
    return wide(hn::GetLane(hn::SumOfLanes(dw, sum)));
  }
};

template <>
struct IntegerProducts<Vek32s, Vek32s> {
  using Lane1 = int32_t;
  using Lane2 = int32_t;
  static constexpr size_t kLanes = 1;
  static constexpr size_t kBlock = kMostValues;
  hn::ScalableTag<int32_t> d = {};
  SplitSums<int64_t> sums = {};
  using Sum = SplitSums<int64_t>::Sum;
  HWY_INLINE Sum zero() const {
    return sums.zero();
  }
  template <class V>
  HWY_INLINE void add(Sum& sum, V a, V b) const {
    const auto products = Widening<int32_t>::multiply(d, a, b);
    sums.add(sum, products.first);
    sums.add(sum, products.second);
  }
  HWY_INLINE void merge(Sum& sum, const Sum& other) const {
    sums.merge(sum, other);
  }
  HWY_INLINE Wide total(const Sum& sum) const {
    return sums.total(sum);
  }
};

// Differences of products may have 65 bits: the products are summed apart.
template <>
struct IntegerProducts<Vek32sc, Vek32sc> {
  using Lane1 = int32_t;
  using Lane2 = int32_t;
  static constexpr size_t kLanes = 2;
  static constexpr size_t kBlock = kMostValues;
  hn::ScalableTag<int32_t> d = {};
  SplitSums<int64_t> sums = {};
  struct Sum {
    SplitSums<int64_t>::Sum reals;
    SplitSums<int64_t>::Sum imaginaries;
    SplitSums<int64_t>::Sum crossed;
  };
  HWY_INLINE Sum zero() const {
    return {sums.zero(), sums.zero(), sums.zero()};
  }
  template <class V>
  HWY_INLINE void add(Sum& sum, V a, V b) const {
    const V aIm = Widening<int32_t>::odd(d, a);
    const V bIm = Widening<int32_t>::odd(d, b);
    sums.add(sum.reals, hn::MulEven(a, b));
    sums.add(sum.imaginaries, hn::MulEven(aIm, bIm));
    sums.add(sum.crossed, hn::MulEven(a, bIm));
    sums.add(sum.crossed, hn::MulEven(aIm, b));
  }
  HWY_INLINE void merge(Sum& sum, const Sum& other) const {
    sums.merge(sum.reals, other.reals);
    sums.merge(sum.imaginaries, other.imaginaries);
    sums.merge(sum.crossed, other.crossed);
  }
  HWY_INLINE Complex<Wide> total(const Sum& sum) const {
    return {sums.total(sum.reals) - sums.total(sum.imaginaries), sums.total(sum.crossed)};
  }
};

template <>
struct IntegerProducts<Vek32s, Vek32sc> : ComplexSums<SplitSums<int64_t>> {
  using Lane1 = int32_t;
  using Lane2 = int64_t;
  static constexpr size_t kLanes = 1;
  static constexpr size_t kBlock = kMostValues;
  hn::ScalableTag<int64_t> d = {};
  template <class A, class B>
  HWY_INLINE void add(Sum& sum, A a, B b) const {
    const hn::ScalableTag<int32_t> dp;
    const auto parts = hn::BitCast(dp, b);
    const auto x = hn::BitCast(dp, hn::PromoteTo(d, a));
    reSums.add(sum.re, hn::MulEven(x, parts));
    imSums.add(sum.im, hn::MulEven(x, Widening<int32_t>::odd(dp, parts)));
  }
};

template <class S1, class S2>
HWY_INLINE auto integerDot(const S1* src1, const S2* src2, size_t n) {
  using Products = IntegerProducts<S1, S2>;
  constexpr size_t kWays = HWY_TARGET == HWY_AVX3 ? 4 : 2;
  return totalOf<kWays, Products::kBlock>(Products(), Products::kLanes * n,
                                          reinterpret_cast<const typename Products::Lane1*>(src1),
                                          reinterpret_cast<const typename Products::Lane2*>(src2));
}

// The exact result, rounded once where it is a float.
template <class S1, class S2, class R>
VekStatus IntegerDot(const S1* src1, const S2* src2, size_t n, R* result) {
  const auto total = integerDot(src1, src2, n);
  if constexpr (std::is_class_v<R>) {
    using T = decltype(result->re);
    *result = {static_cast<T>(total.re), static_cast<T>(total.im)};
  } else {
    *result = static_cast<R>(total);
  }
  return vekStsOk;
}

template <class S1, class S2, class R>
VekStatus IntegerDotScaled(const S1* src1, const S2* src2, size_t n, R* result, int scaleFactor) {
  const auto total = integerDot(src1, src2, n);
  if constexpr (std::is_class_v<R>) {
    using T = decltype(result->re);
    *result = {scaledTotal<T>(total.re, scaleFactor), scaledTotal<T>(total.im, scaleFactor)};
  } else {
    *result = scaledTotal<R>(total, scaleFactor);
  }
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
