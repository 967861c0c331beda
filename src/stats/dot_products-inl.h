// Kernels of dot products of floating-point vectors.
#if defined(VEKS_STATS_DOT_PRODUCTS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_DOT_PRODUCTS_INL_H
#undef VEKS_STATS_DOT_PRODUCTS_INL_H
#else
#define VEKS_STATS_DOT_PRODUCTS_INL_H
#endif

#include <hwy/highway.h>

#include "stats/lanes-inl.h"
#include "veks/types.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

constexpr size_t kDotBlock = 4096;
constexpr size_t kComplexDotBlock = 2048;  // lanes or elements of the real factor

// Two loads feed one addition, so four sums hide its latency where vectors fill a line.
constexpr size_t kShortDotWays = HWY_TARGET == HWY_AVX3 ? 4 : 8;

// Sums of T of a[i] * b[i]. In single precision each product is rounded; those of floats are exact
// in double precision.
template <class T>
struct RealProducts : LaneSums<T> {
  using typename LaneSums<T>::Vec;
  template <class V>
  HWY_INLINE void add(Vec& sum, V a, V b) const {
    if constexpr (sizeof(T) == 4) {
      sum = hn::Add(sum, hn::Mul(a, b));
    } else {
      sum = hn::MulAdd(promoted(this->d, a), promoted(this->d, b), sum);
    }
  }
};

// Real and imaginary parts in turn: the even lanes of `straight` have the products of real parts,
// the odd ones those of imaginary parts, `crossed` has the mixed ones.
template <class T>
struct ComplexProducts {
  hn::ScalableTag<T> d = {};
  struct Sum {
    hn::Vec<hn::ScalableTag<T>> straight;
    hn::Vec<hn::ScalableTag<T>> crossed;
  };
  HWY_INLINE Sum zero() const {
    return {hn::Zero(d), hn::Zero(d)};
  }
  template <class V>
  HWY_INLINE void add(Sum& sum, V a, V b) const {
    const auto x = inRegister(promoted(d, a));
    const auto y = inRegister(promoted(d, b));
    sum.straight = hn::MulAdd(x, y, sum.straight);
    sum.crossed = hn::MulAdd(x, hn::Reverse2(d, y), sum.crossed);
  }
  HWY_INLINE void merge(Sum& sum, const Sum& other) const {
    sum.straight = hn::Add(sum.straight, other.straight);
    sum.crossed = hn::Add(sum.crossed, other.crossed);
  }
  HWY_INLINE FoldedLanes<T> total(const Sum& sum) const {
    const FoldedLanes<T> straight = foldLanes(d, sum.straight);
    const FoldedLanes<T> crossed = foldLanes(d, sum.crossed);
    return {straight.even - straight.odd, crossed.even + crossed.odd};
  }
};

// A complex element, loaded with as many others as a vector has lanes: two vectors.
template <class S>
struct ComplexElement {
  S re;
  S im;
};
template <class V>
struct VectorPair {
  V first;
  V second;
};
template <class D, class S>
HWY_INLINE auto loadElements(D /*d*/, const ComplexElement<S>* src) {
  const hn::Rebind<S, D> ds;
  const S* const parts = reinterpret_cast<const S*>(src);
  const auto first = hn::LoadU(ds, parts);
  return VectorPair<decltype(first)>{first, hn::LoadU(ds, parts + MaxLanes(ds))};
}
template <class D, class S>
HWY_INLINE auto loadElements(D d, const ComplexElement<S>* src, size_t count) {
  const hn::Rebind<S, D> ds;
  const S* const parts = reinterpret_cast<const S*>(src);
  constexpr size_t kHalf = MaxLanes(D()) / 2;
  const size_t inFirst = count < kHalf ? count : kHalf;
  const auto first = loadPartial(ds, parts, 2 * inFirst);
  (void)d;
  return VectorPair<decltype(first)>{first,
                                     loadPartial(ds, parts + 2 * inFirst, 2 * (count - inFirst))};
}

// Each lane of the lower or of the upper half twice.
template <bool kUpper, class D, class V>
HWY_INLINE V twice(D d, V v) {
  if constexpr (sizeof(V) == 16) {
    return kUpper ? hn::InterleaveUpper(d, v, v) : hn::InterleaveLower(d, v, v);
  } else {
    using Index = hwy::MakeSigned<hn::TFromD<D>>;
    HWY_ALIGN Index indices[MaxLanes(D())];
    for (size_t i = 0; i < MaxLanes(d); ++i) {
      indices[i] = static_cast<Index>(i / 2 + (kUpper ? MaxLanes(d) / 2 : 0));
    }
    return hn::TableLookupLanes(v, hn::SetTableIndices(d, indices));
  }
}

// A real and a complex vector.
template <class T>
struct MixedProducts {
  hn::ScalableTag<T> d = {};
  using Vec = hn::Vec<hn::ScalableTag<T>>;
  struct Sum {
    Vec low;
    Vec high;
  };
  HWY_INLINE Sum zero() const {
    return {hn::Zero(d), hn::Zero(d)};
  }
  template <class A, class B>
  HWY_INLINE void add(Sum& sum, A a, const VectorPair<B>& b) const {
    const auto x = inRegister(promoted(d, a));
    sum.low = hn::MulAdd(twice<false>(d, x), promoted(d, b.first), sum.low);
    sum.high = hn::MulAdd(twice<true>(d, x), promoted(d, b.second), sum.high);
  }
  HWY_INLINE void merge(Sum& sum, const Sum& other) const {
    sum.low = hn::Add(sum.low, other.low);
    sum.high = hn::Add(sum.high, other.high);
  }
  HWY_INLINE FoldedLanes<T> total(const Sum& sum) const {
    return foldLanes(d, hn::Add(sum.low, sum.high));
  }
};

template <class S, class R>
VekStatus RealDot(const S* src1, const S* src2, size_t n, R* result) {
  const RealProducts<R> products;
  const auto sum = reducePairwise<8, kDotBlock, kShortDotWays>(products, n, src1, src2);
  const FoldedLanes<R> parts = foldLanes(products.d, sum);
  *result = parts.even + parts.odd;
  return vekStsOk;
}

template <class S, class C>
VekStatus ComplexDot(const S* src1, const S* src2, size_t n, C* result) {
  using Part = decltype(src1->re);
  const ComplexProducts<decltype(result->re)> products;
  const auto parts = products.total(reducePairwise<4, kComplexDotBlock>(
      products, 2 * n, reinterpret_cast<const Part*>(src1), reinterpret_cast<const Part*>(src2)));
  *result = {parts.even, parts.odd};
  return vekStsOk;
}

template <class S, class C, class R>
VekStatus MixedDot(const S* src1, const C* src2, size_t n, R* result) {
  const MixedProducts<decltype(result->re)> products;
  const auto* const elements = reinterpret_cast<const ComplexElement<S>*>(src2);
  const auto parts =
      products.total(reducePairwise<4, kComplexDotBlock>(products, n, src1, elements));
  *result = {parts.even, parts.odd};
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
