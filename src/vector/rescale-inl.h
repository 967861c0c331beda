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
#include "vector/split_pairs-inl.h"
#include "veks/types.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// n^2 > q^2 * squares in 64 bits, as lanes of ones and zeros. n < 2^31, q < 2^16, squares <= 2^31.
template <class D32, class V>
HWY_INLINE V isSquareAbove(D32 d32, V n, V q, V squares) {
  const hn::RebindToUnsigned<D32> narrow;
  const hn::RepartitionToWide<D32> wide;
  const hn::RebindToUnsigned<decltype(wide)> unsignedWide;
  const auto odd = [=](V v) HWY_ATTR {
    return hn::BitCast(narrow, hn::ShiftRight<32>(hn::BitCast(unsignedWide, v)));
  };
  const auto compare = [=](auto evenN, auto evenQ, auto evenSquares) HWY_ATTR {
    const auto left = hn::MulEven(evenN, evenN);
    const auto right = hn::MulEven(hn::BitCast(narrow, hn::MulEven(evenQ, evenQ)), evenSquares);
    const auto mask = hn::Gt(hn::BitCast(wide, left), hn::BitCast(wide, right));
    return hn::BitCast(d32, hn::VecFromMask(wide, mask));
  };
  const V even =
      compare(hn::BitCast(narrow, n), hn::BitCast(narrow, q), hn::BitCast(narrow, squares));
  return hn::OddEven(compare(odd(n), odd(q), odd(squares)), even);
}

// level / sqrt(v) but for 2^-22 of itself. With AVX-512, divider and root are slower than this.
template <class D, class V>
HWY_INLINE V levelByRoot(D d, V level, V v) {
  if constexpr (HWY_TARGET <= HWY_AVX3) {
    const V estimate = hn::ApproximateReciprocalSqrt(v);
    const V half = hn::Mul(estimate, hn::Set(d, 0.5F));
    const V error = hn::NegMulAdd(hn::Mul(v, estimate), estimate, hn::Set(d, 1.0F));
    return hn::Mul(level, hn::MulAdd(half, error, estimate));
  } else {
    return hn::Div(level, hn::Sqrt(v));
  }
}

// part * level / sqrt(squares) to the nearest integer, the quotient with |part|^2 <= squares given
// but for less than a half. Its integer part k is either right or too small by one; the comparison
// of (2 part level)^2 with (2k + 1)^2 squares tells. There are no ties: where sqrt(squares) is
// rational, part / sqrt(squares) has an odd denominator.
template <class D32, class V, class VF>
HWY_INLINE V rescaledPart(D32 d32, V part, V level, V squares, VF scale) {
  const hn::RebindToFloat<D32> real;
  const V sign = hn::BroadcastSignBit(part);
  const V magnitude = hn::Abs(part);
  const V k = hn::ConvertTo(d32, hn::Mul(hn::ConvertTo(real, magnitude), scale));
  const V q = hn::Add(hn::Add(k, k), hn::Set(d32, 1));
  const V n = hn::Mul(hn::Add(magnitude, magnitude), level);
  const V rounded = hn::Sub(k, isSquareAbove(d32, n, q, squares));
  return hn::Sub(hn::Xor(rounded, sign), sign);
}

// Pairs beyond the level, with the magnitude `level` instead and the same phase. Where there are
// none in a vector, which is common, nothing is computed.
template <VekCmpOp op, class T>
struct RescaledPairs;

template <VekCmpOp op>
struct RescaledPairs<op, int16_t> {
  int16_t level;
  MagnitudeLevel<int16_t> bound;

  explicit RescaledPairs(int16_t magnitude) : level(magnitude), bound(magnitude) {}

  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    const hn::RepartitionToWide<D> d32;
    const hn::RebindToFloat<decltype(d32)> real;
    const auto pairs = hn::BitCast(d32, x);
    const auto squares = squares16(d32, x);
    const auto beyond = bound.template compareSquares<op>(d32, squares);
    if (hn::AllFalse(d32, beyond)) return x;
    const auto wide = hn::Max(hn::Abs(hn::ConvertTo(real, squares)), hn::Set(real, 1.0f));
    const auto scale = levelByRoot(real, hn::Set(real, level), wide);
    const auto levels = hn::Set(d32, int32_t{level});
    const auto re = hn::ShiftRight<16>(hn::ShiftLeft<16>(pairs));
    const auto im = hn::ShiftRight<16>(pairs);
    const auto newRe = rescaledPart(d32, re, levels, squares, scale);
    const auto newIm = rescaledPart(d32, im, levels, squares, scale);
    auto result = hn::Or(hn::And(newRe, hn::Set(d32, 0xFFFF)), hn::ShiftLeft<16>(newIm));
    if constexpr (op == vekCmpLess) {
      result = hn::IfThenElse(hn::Eq(squares, hn::Zero(d32)), levels, result);
    }
    return hn::BitCast(d, hn::IfThenElse(beyond, result, pairs));
  }
};

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

  HWY_INLINE bool mapSplit(Floats& first, Floats& second) const {
    return rescaleSplit<op>(splitLevel, first, second);
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
