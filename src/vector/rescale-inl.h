// Magnitudes are set to a level.
#if defined(VEKS_VECTOR_RESCALE_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_RESCALE_INL_H
#undef VEKS_VECTOR_RESCALE_INL_H
#else
#define VEKS_VECTOR_RESCALE_INL_H
#endif

#include <cmath>
#include <limits>

#include "core/square_root-inl.h"
#include "vector/magnitude-inl.h"
#include "vector/pairs-inl.h"
#include "vector/rescale_integers-inl.h"
#include "vector/split_pairs-inl.h"
#include "veks/types.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <VekCmpOp op>
struct RescaledPairs<op, float> {
  float level;
  double finiteLevel;  // too large for a float where the level is infinite
  MagnitudeLevel<float> bound;

  explicit RescaledPairs(float magnitude)
      : level(std::fabs(magnitude)),
        finiteLevel(level > std::numeric_limits<float>::max() ? 0x1p600 : double{level}),
        bound(level) {}

  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    const hn::RepartitionToWide<D> wide;
    auto halves = widened(d, x);
    auto magnitudes = squares(wide, halves);
    const auto beyond = isBeyond<op>(magnitudes, hn::Set(wide, bound.square));
    if (hn::AllFalse(wide, beyond)) return x;
    // What zeros, infinities and NaN give, if they are not beyond, is dropped.
    auto roots = anyRoot(wide, magnitudes);
    if constexpr (op == vekCmpGreater) {
      const auto infinity = hn::Set(wide, std::numeric_limits<double>::infinity());
      if (HWY_UNLIKELY(!hn::AllTrue(wide, hn::Lt(magnitudes, infinity)))) {
        halves = finite(wide, halves);
        roots = hn::Sqrt(squares(wide, halves));
      }
    }
    V result = scaledPairs(d, halves, hn::Div(hn::Set(wide, finiteLevel), roots));
    if constexpr (op == vekCmpLess) {
      const auto isZero = hn::Eq(magnitudes, hn::Zero(wide));
      if (HWY_UNLIKELY(!hn::AllFalse(wide, isZero))) {
        result = selectPairs(d, isZero, setPairs(d, level, 0.0f), result);
      }
    }
    return selectPairs(d, beyond, result, x);
  }

#if HWY_TARGET <= HWY_AVX3
  SplitLevel splitLevel{level};

  bool isSplit() const {
    return splitLevel.isOrdinary;
  }

  template <bool kMayVanish>
  HWY_INLINE bool mapSplit(Floats& first, Floats& second) const {
    return rescaleSplit<op, kMayVanish>(splitLevel, first, second);
  }
#endif
};

template <VekCmpOp op>
struct RescaledPairs<op, double> {
  double level;
  MagnitudeLevel<double> bound;

  explicit RescaledPairs(double magnitude) : level(std::fabs(magnitude)), bound(level) {}

  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    const auto beyond = bound.template compare<op>(d, x);
    if (hn::AllFalse(d, beyond)) return x;
    const V unit = normalisedFinite(d, x).x;
    const V magnitudes = squares(d, unit);
    const V direction = hn::Div(unit, squareRoot(d, magnitudes));
    const V scaled = hn::Mul(direction, hn::Set(d, level));
    // The level may be infinite.
    V result = hn::IfThenElse(hn::Eq(direction, hn::Zero(d)), direction, scaled);
    if constexpr (op == vekCmpLess) {
      const auto isZero = hn::Eq(magnitudes, hn::Zero(d));
      result = hn::IfThenElse(isZero, setPairs(d, level, 0.0), result);
    }
    return hn::IfThenElse(beyond, result, x);
  }
};

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
