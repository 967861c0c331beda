// Magnitudes of complex integers are set to a level.
#if defined(VEKS_VECTOR_RESCALE_INTEGERS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_RESCALE_INTEGERS_INL_H
#undef VEKS_VECTOR_RESCALE_INTEGERS_INL_H
#else
#define VEKS_VECTOR_RESCALE_INTEGERS_INL_H
#endif

#include "core/square_root-inl.h"
#include "vector/magnitude-inl.h"
#include "vector/pairs-inl.h"
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

// Pairs times level / sqrt(squares); zeros stay zeros.
template <class D32, class V>
HWY_INLINE V exactlyRescaled(D32 d32, V pairs, int16_t level, V squares) {
  const hn::RebindToFloat<D32> real;
  const auto wide = hn::Max(hn::Abs(hn::ConvertTo(real, squares)), hn::Set(real, 1.0f));
  const auto scale = levelByRoot(real, hn::Set(real, level), wide);
  const V levels = hn::Set(d32, int32_t{level});
  const V re = hn::ShiftRight<16>(hn::ShiftLeft<16>(pairs));
  const V im = hn::ShiftRight<16>(pairs);
  const V newRe = rescaledPart(d32, re, levels, squares, scale);
  const V newIm = rescaledPart(d32, im, levels, squares, scale);
  return hn::Or(hn::And(newRe, hn::Set(d32, 0xFFFF)), hn::ShiftLeft<16>(newIm));
}

#if HWY_TARGET <= HWY_AVX3
using Integers = hn::Vec512<int32_t>;

// level / sqrt(squares) of vectors of 64 bytes, as the sum of two floats, but for 2^-35 of it: an
// estimate y of the inverse root that is off by 2^-14 is too large by e / 2 + 3/8 e^2 of itself,
// where e = 1 - y^2 squares.
struct SplitFactor {
  Floats high;
  Floats low;

  HWY_INLINE SplitFactor(Floats level, Integers squares) {
    const hn::Full512<float> d;
    const Floats rounded{_mm512_cvtepu32_ps(squares.raw)};
    const auto rest = _mm512_sub_epi32(squares.raw, _mm512_cvttps_epu32(rounded.raw));
    const Floats y = approximateInverseRoot(rounded);
    const Floats root = hn::Mul(rounded, y);
    const Floats rootRest =
        hn::MulAdd(Floats{_mm512_cvtepi32_ps(rest)}, y, hn::MulSub(rounded, y, root));
    const Floats error = hn::NegMulAdd(rootRest, y, hn::NegMulAdd(root, y, hn::Set(d, 1.0F)));
    const Floats excess = hn::Mul(error, hn::MulAdd(error, hn::Set(d, 0.375F), hn::Set(d, 0.5F)));
    high = hn::Mul(level, y);
    low = hn::MulAdd(high, excess, hn::MulSub(level, y, high));
  }

  // part (high + low) to the nearest integer, in the low 16 bits of the lanes, for a result of at
  // most 2^15. A sum with `shift` has no bits behind the point, and another one with the rest is
  // the nearest integer: the rest, at most 4, is known but for 2^-19, and if 2^-17 of it makes a
  // difference, the lane is in doubt.
  HWY_INLINE __m512i rounded(Floats part, __mmask16& doubtful) const {
    const hn::Full512<float> d;
    const Floats shift = hn::Set(d, 0x1.8p23F);
    const Floats shifted = hn::MulAdd(part, high, shift);
    const Floats nearest = hn::Sub(shifted, shift);
    const Floats rest = hn::MulAdd(part, low, hn::MulSub(part, high, nearest));
    const Floats less = hn::MulAdd(rest, hn::Set(d, 1 - 0x1p-17F), shifted);
    const Floats more = hn::MulAdd(rest, hn::Set(d, 1 + 0x1p-17F), shifted);
    doubtful = _mm512_cmp_ps_mask(less.raw, more.raw, _CMP_NEQ_UQ);
    return _mm512_castps_si512(less.raw);
  }
};

// The same, which is rare: loops have no copy of it.
template <class V>
HWY_NOINLINE V rescaledDoubtful(V pairs, int16_t level, V squares) {
  return exactlyRescaled(hn::Full512<int32_t>(), pairs, level, squares);
}

// The same for squares > 0. False where one of those of the mask is too close to the middle between
// two integers.
HWY_INLINE bool rescalePairs(Integers& pairs, int16_t level, Integers squares, __mmask16 beyond) {
  // Parts are 2^16 times as large.
  const SplitFactor factor(hn::Set(hn::Full512<float>(), level * 0x1p-16F), squares);
  const auto re = _mm512_cvtepi32_ps(_mm512_slli_epi32(pairs.raw, 16));
  const auto im = _mm512_cvtepi32_ps(_mm512_and_epi32(pairs.raw, _mm512_set1_epi32(-0x10000)));
  __mmask16 doubtfulRe;
  __mmask16 doubtfulIm;
  const auto newRe = factor.rounded(Floats{re}, doubtfulRe);
  const auto newIm = _mm512_slli_epi32(factor.rounded(Floats{im}, doubtfulIm), 16);
  if (HWY_UNLIKELY(((doubtfulRe | doubtfulIm) & beyond) != 0)) return false;
  pairs = Integers{_mm512_mask_blend_epi16(0x55555555, newIm, newRe)};
  return true;
}
#endif

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
    const auto pairs = hn::BitCast(d32, x);
    const auto squares = squares16(d32, x);
    const auto beyond = bound.template compareSquares<op>(d32, squares);
    if (hn::AllFalse(d32, beyond)) return x;
    auto result = pairs;
    rescale(d32, result, squares, beyond);
    if constexpr (op == vekCmpLess) {
      const auto isZero = hn::Eq(squares, hn::Zero(d32));
      result = hn::IfThenElse(isZero, hn::Set(d32, int32_t{level}), result);
    }
    return hn::BitCast(d, hn::IfThenElse(beyond, result, pairs));
  }

 private:
  template <class D32, class V, class M>
  HWY_INLINE void rescale(D32 d32, V& pairs, V squares, [[maybe_unused]] M beyond) const {
#if HWY_TARGET <= HWY_AVX3
    if constexpr (std::is_same_v<V, Integers>) {
      const Integers nonzero{_mm512_max_epu32(squares.raw, _mm512_set1_epi32(1))};
      const Integers positive = op == vekCmpLess ? nonzero : squares;
      if (HWY_UNLIKELY(!rescalePairs(pairs, level, positive, beyond.raw))) {
        pairs = rescaledDoubtful(pairs, level, squares);
      }
      return;
    }
#endif
    pairs = exactlyRescaled(d32, pairs, level, squares);
  }
};

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
