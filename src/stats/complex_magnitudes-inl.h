// Sums of the magnitudes of complex floats, faster than the processor takes roots. It computes
// every second root elsewhere, from its approximate inverse; the results are the same to the bit.
#if defined(VEKS_STATS_COMPLEX_MAGNITUDES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_COMPLEX_MAGNITUDES_INL_H
#undef VEKS_STATS_COMPLEX_MAGNITUDES_INL_H
#else
#define VEKS_STATS_COMPLEX_MAGNITUDES_INL_H
#endif

#include "core/reduce-inl.h"
#include "core/square_root-inl.h"
#include "stats/terms-inl.h"
#include "veks/types.h"

#if HWY_TARGET == HWY_AVX3

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// The root of x, correctly rounded if x is 0 or at least 2^-102 and not infinite. `inverse` exceeds
// kMostInverse after a smaller x, infinity gives NaN.
constexpr float kMostInverse = 0x1p50F;

template <class D, class V = hn::Vec<D>>
HWY_INLINE V rootNotingInverse(D d, V x, V& inverse) {
  const V y = hn::IfThenElseZero(hn::Gt(x, hn::Zero(d)), approximateInverseRoot(x));
  inverse = hn::Max(inverse, y);
  const auto approximate = approximateRoot(d, x, y);
  return correctedRoot(x, approximate.root, approximate.halfInverse);
}

// Elements of which two vectors of each part are loaded, as many as 16-bit lanes.
struct PairedComplex {
  float re;
  float im;
};
template <class V>
struct PartsPair {
  Parts<V> first;
  Parts<V> second;
};
HWY_INLINE auto loadElements(hn::ScalableTag<int16_t> /*d*/, const PairedComplex* src) {
  const hn::ScalableTag<float> d;
  PartsPair<hn::Vec<decltype(d)>> pair;
  hn::LoadInterleaved2(d, &src->re, pair.first.re, pair.first.im);
  hn::LoadInterleaved2(d, &src[MaxLanes(d)].re, pair.second.re, pair.second.im);
  return pair;
}

struct PairedMagnitudes {
  hn::ScalableTag<int16_t> d = {};
  hn::ScalableTag<float> part = {};
  using V = hn::Vec<hn::ScalableTag<float>>;
  struct Sum {
    V first;
    V second;
    V inverse;
  };
  HWY_INLINE Sum zero() const {
    return {hn::Zero(part), hn::Zero(part), hn::Zero(part)};
  }
  template <class... Pair>
  HWY_INLINE void add(Sum& sum, const Pair&... z) const {
    const V first = SquareTerm()(part, difference(z.first...));
    const V second = SquareTerm()(part, difference(z.second...));
    sum.first = hn::Add(sum.first, hn::Sqrt(first));
    sum.second = hn::Add(sum.second, rootNotingInverse(part, second, sum.inverse));
  }
  HWY_INLINE void merge(Sum& sum, const Sum& other) const {
    sum.first = hn::Add(sum.first, other.first);
    sum.second = hn::Add(sum.second, other.second);
    sum.inverse = hn::Max(sum.inverse, other.inverse);
  }
};

// What reduce<kWays>() gives for the magnitudes of a piece, all lanes in the same order.
template <size_t kWays, class D, class Reduction, class... T>
HWY_INLINE hn::Vec<D> reduceMagnitudes(D d, const Reduction& reduction, Piece piece,
                                       const T*... src) {
  const auto sum =
      reduce<kWays / 2>(PairedMagnitudes(), piece, reinterpret_cast<const PairedComplex*>(src)...);
  const auto total = hn::Add(sum.first, sum.second);
  const auto tooSmall = hn::Gt(sum.inverse, hn::Set(d, kMostInverse));
  if (HWY_LIKELY(hn::AllFalse(d, hn::Or(tooSmall, hn::IsNaN(total))))) return total;
  return reduce<kWays>(reduction, piece, src...);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif

#endif
