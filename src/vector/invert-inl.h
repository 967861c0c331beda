// Inverses of complex values.
#if defined(VEKS_VECTOR_INVERT_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_INVERT_INL_H
#undef VEKS_VECTOR_INVERT_INL_H
#else
#define VEKS_VECTOR_INVERT_INL_H
#endif

#include <limits>

#include "core/square_root-inl.h"
#include "vector/magnitude-inl.h"
#include "vector/pairs-inl.h"
#include "vector/split_pairs-inl.h"
#include "veks/types.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// Pairs below the level are taken as ones with its magnitude. Sets *divided to nonzero where it
// meets a zero. Vectors without zeros, infinities and NaN, or without elements below the level, go
// shorter ways to the same values.
template <class T>
struct InvertedPairs;

template <>
struct InvertedPairs<float> {
  float level;
  MagnitudeLevel<float> bound;
  unsigned* divided;

  InvertedPairs(float magnitude, unsigned* flag)
      : level(magnitude), bound(magnitude), divided(flag) {}

  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    const hn::RepartitionToWide<D> wide;
    auto halves = widened(d, x);
    auto magnitudes = squares(wide, halves);
    const auto infinity = hn::Set(wide, std::numeric_limits<double>::infinity());
    const auto isPositive = hn::Gt(magnitudes, hn::Zero(wide));
    const bool isCommon = hn::AllTrue(wide, hn::And(isPositive, hn::Lt(magnitudes, infinity)));
    if (HWY_UNLIKELY(!isCommon)) {
      halves = finite(wide, halves);
      magnitudes = squares(wide, halves);
    }
    auto divisor = magnitudes;
    const auto below = hn::Lt(magnitudes, hn::Set(wide, bound.square));
    if (!hn::AllFalse(wide, below)) {
      const auto limited = hn::Mul(anyRoot(wide, magnitudes), hn::Set(wide, double{level}));
      divisor = hn::IfThenElse(below, limited, magnitudes);
    }
    const V inverse = conjugate(d, scaledPairs(d, halves, hn::Div(hn::Set(wide, 1.0), divisor)));
    if (HWY_LIKELY(isCommon)) return inverse;
    const auto isZero = hn::Eq(magnitudes, hn::Zero(wide));
    *divided |= hn::AllFalse(wide, isZero) ? 0 : 1;
    const V numbers = selectPairs(d, isZero, setPairs(d, 1 / level, 0.0f), inverse);
    return selectPairs(d, hn::Eq(magnitudes, magnitudes), numbers, x);
  }

#if HWY_TARGET <= HWY_AVX3
  SplitLevel splitLevel{level};

  bool isSplit() const {
    return splitLevel.isOrdinary || level == 0;
  }

  template <bool kMayVanish>
  HWY_INLINE bool mapSplit(Floats& first, Floats& second) const {
    return invertSplit<kMayVanish>(splitLevel, first, second);
  }
#endif
};

template <>
struct InvertedPairs<double> {
  double level;
  MagnitudeLevel<double> bound;
  double scaledInverse;
  unsigned* divided;

  InvertedPairs(double magnitude, unsigned* flag)
      : level(magnitude),
        bound(magnitude),
        scaledInverse(1 / (level * bound.scale)),
        divided(flag) {}

  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    Normalised<V> unit = normalised(d, x);
    V magnitudes = squares(d, unit.x);
    const bool isCommon = hn::AllTrue(d, hn::Gt(magnitudes, hn::Zero(d)));
    if (HWY_UNLIKELY(!isCommon)) {
      unit = normalisedFinite(d, x);
      magnitudes = squares(d, unit.x);
    }
    V divisor = magnitudes;
    V factor = hn::Set(d, 1.0);
    V scale = unit.scale;
    const auto below = bound.template compare<vekCmpLess>(d, x);
    if (!hn::AllFalse(d, below)) {
      divisor = hn::IfThenElse(below, squareRoot(d, magnitudes), magnitudes);
      factor = hn::IfThenElse(below, hn::Set(d, scaledInverse), factor);
      scale = hn::IfThenElse(below, hn::Set(d, bound.scale), scale);
    }
    const V quotient = hn::Div(conjugate(d, unit.x), divisor);
    const V inverse = hn::Mul(hn::Mul(quotient, factor), scale);
    if (HWY_LIKELY(isCommon)) return inverse;
    const auto isZero = hn::Eq(magnitudes, hn::Zero(d));
    *divided |= hn::AllFalse(d, isZero) ? 0 : 1;
    const V numbers = hn::IfThenElse(isZero, setPairs(d, 1 / level, 0.0), inverse);
    return hn::IfThenElse(hn::Eq(magnitudes, magnitudes), numbers, x);
  }
};

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
