// Complex floats, 16 at a time, in numbers that are sums of two floats, high + low. Results are
// those of double precision, rounded to float: where the two could differ, nothing is given.
#if defined(VEKS_VECTOR_SPLIT_PAIRS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_SPLIT_PAIRS_INL_H
#undef VEKS_VECTOR_SPLIT_PAIRS_INL_H
#else
#define VEKS_VECTOR_SPLIT_PAIRS_INL_H
#endif

#include "core/square_root-inl.h"
#include "veks/types.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

#if HWY_TARGET <= HWY_AVX3

struct SplitFloats {
  Floats high;
  Floats low;
};

struct PairParts {
  Floats re;
  Floats im;
};

HWY_INLINE Floats floats(float x) {
  return hn::Set(hn::Full512<float>(), x);
}

HWY_INLINE PairParts partsOf(Floats first, Floats second) {
  alignas(64) static constexpr int32_t kEven[] = {0,  2,  4,  6,  8,  10, 12, 14,
                                                  16, 18, 20, 22, 24, 26, 28, 30};
  alignas(64) static constexpr int32_t kOdd[] = {1,  3,  5,  7,  9,  11, 13, 15,
                                                 17, 19, 21, 23, 25, 27, 29, 31};
  return {
      Floats{_mm512_permutex2var_ps(first.raw, _mm512_load_si512(kEven), second.raw)},
      Floats{_mm512_permutex2var_ps(first.raw, _mm512_load_si512(kOdd), second.raw)},
  };
}

HWY_INLINE void joinParts(const PairParts& x, Floats& first, Floats& second) {
  alignas(64) static constexpr int32_t kFirst[] = {0, 16, 1, 17, 2, 18, 3, 19,
                                                   4, 20, 5, 21, 6, 22, 7, 23};
  alignas(64) static constexpr int32_t kSecond[] = {8,  24, 9,  25, 10, 26, 11, 27,
                                                    12, 28, 13, 29, 14, 30, 15, 31};
  first = Floats{_mm512_permutex2var_ps(x.re.raw, _mm512_load_si512(kFirst), x.im.raw)};
  second = Floats{_mm512_permutex2var_ps(x.re.raw, _mm512_load_si512(kSecond), x.im.raw)};
}

// re^2 + im^2, rounded twice. A part that is NaN counts as the other one.
struct RoundedSquares {
  Floats larger;
  Floats smaller;
  Floats largerSquare;
  Floats sum;

  static constexpr float kLeastPart = 0x1p-39F;

  explicit HWY_INLINE RoundedSquares(const PairParts& x) {
    constexpr int kGreater = 0xB;  // without the sign
    constexpr int kSmaller = 0xA;
    larger = Floats{_mm512_range_ps(x.re.raw, x.im.raw, kGreater)};
    smaller = Floats{_mm512_range_ps(x.re.raw, x.im.raw, kSmaller)};
    largerSquare = hn::Mul(larger, larger);
    sum = hn::MulAdd(smaller, smaller, largerSquare);
  }

  // The sum but for 2^-46 of it.
  HWY_INLINE SplitFloats split() const {
    const Floats rest = hn::MulAdd(smaller, smaller, hn::Sub(largerSquare, sum));
    return {sum, hn::Add(rest, hn::MulSub(larger, larger, largerSquare))};
  }

  // Sums up to 2^40 and parts of at least kLeastPart: then no rest of a square or of a result is
  // denormal. Zeros and smaller parts next to larger ones take more to find.
  template <bool kMayVanish>
  HWY_INLINE __mmask16 fit() const {
    const __mmask16 isSmall = _mm512_cmp_ps_mask(sum.raw, _mm512_set1_ps(0x1p40F), _CMP_LE_OQ);
    if constexpr (kMayVanish) {
      const auto least = _mm512_set1_ps(0x1p-76F);
      const auto isFit = _mm512_mask_cmp_ps_mask(isSmall, sum.raw, least, _CMP_GE_OQ);
      const auto lessOne = _mm512_sub_epi32(_mm512_castps_si512(smaller.raw), _mm512_set1_epi32(1));
      const auto smallest = _mm512_set1_epi32(((127 - 50) << 23) - 1);
      return _mm512_mask_cmpge_epu32_mask(isFit, lessOne, smallest);
    }
    return _mm512_mask_cmp_ps_mask(isSmall, smaller.raw, floats(kLeastPart).raw, _CMP_GE_OQ);
  }
};

// A level between 2^-30 and 2^20, or 0 for what only asks which are below, and its square.
struct SplitLevel {
  float level;
  float high;
  float low;
  bool isOrdinary;     // but for 0
  float inverse;       // at most that of the level,
  float inverseError;  // which is 1 + inverseError times as large, but for kShortage

  static constexpr float kShortage = 0x1p-41F;

  explicit SplitLevel(float value)
      : level(value),
        high(value * value),
        low(static_cast<float>(double{value} * double{value} - double{high})),
        isOrdinary(value >= 0x1p-30F && value <= 0x1p20F),
        inverse(isOrdinary ? roundedDown(1 / double{value}) : 0),
        inverseError(isOrdinary ? excess(double{value} * double{inverse}) - kShortage : 0) {}

  // Whether rounded sums tell that none is OP the square.
  template <VekCmpOp op>
  HWY_INLINE bool isFarFrom(Floats sum) const {
    constexpr int kPredicate = op == vekCmpLess ? _CMP_GT_OQ : _CMP_LT_OQ;
    const Floats limit = floats(high * (op == vekCmpLess ? 1 + 0x1p-20F : 1 - 0x1p-20F));
    return _mm512_cmp_ps_mask(sum.raw, limit.raw, kPredicate) == 0xFFFF;
  }

  // The lanes that are OP the square; for `greater`, with all infinite sums. Where 2^-43 of it
  // decides, that does not matter: nor do results differ by more.
  template <VekCmpOp op>
  HWY_INLINE __mmask16 compare(const SplitFloats& squares) const {
    constexpr int kPredicate = op == vekCmpLess ? _CMP_LT_OQ : _CMP_NLT_UQ;
    const Floats difference = hn::Sub(squares.high, floats(high));
    return _mm512_cmp_ps_mask(difference.raw, hn::Sub(floats(low), squares.low).raw, kPredicate);
  }

 private:
  static float roundedDown(double x) {
    const auto nearest = static_cast<float>(x);
    return double{nearest} > x ? nearest * (1 - 0x1p-23F) : nearest;
  }

  static float excess(double product) {
    return static_cast<float>(1 / product - 1);
  }
};

// The inverse of the root of a sum of squares s, and its square, both rounded: root^2 s is
// 1 - error, square s is 1 - squareError. The estimate is corrected to a value that is too small by
// 2^-21, far beyond all roundings: the errors are between 2/3 and 4/3 of 2^-20.
struct InverseRoot {
  Floats root;
  Floats square;
  Floats squareError;
  Floats rest;  // root^2 - square

  explicit HWY_INLINE InverseRoot(const SplitFloats& s) {
    const Floats estimate = approximateInverseRoot(s.high);
    const Floats difference =
        hn::NegMulAdd(hn::Mul(s.high, estimate), estimate, floats(1 - 0x1p-20F));
    root = hn::MulAdd(hn::Mul(estimate, floats(0.5F)), difference, estimate);
    square = hn::Mul(root, root);
    rest = hn::MulSub(root, root, square);
    const Floats one = floats(1.0F);
    squareError = hn::NegMulAdd(square, s.low, hn::NegMulAdd(square, s.high, one));
  }
};

// A factor of all results, high + low, is too small, by 2^-42 to 2^-39.5 of it: an inverse
// 1 / (1 - e) is 1 + e and an inverse root 1 + e / 2 less kShortage there, and all roundings are
// less than what that leaves out. Results of double precision are off by less than 2^-50. The low
// part is positive and at least 2^-22 of the high one, so that a product with 1 + 2^-17 of it is
// too large: where both give the same float, this is the result.
HWY_INLINE Floats moreOf(Floats low) {
  return hn::Mul(low, floats(1 + 0x1p-17F));
}

// Pairs beyond the level get its magnitude. False where an element needs double precision.
template <VekCmpOp op, bool kMayVanish>
HWY_INLINE bool rescaleSplit(const SplitLevel& level, Floats& first, Floats& second) {
  const PairParts x = partsOf(first, second);
  const RoundedSquares rounded(x);
  if (level.isFarFrom<op>(rounded.sum)) return true;
  const SplitFloats squares = rounded.split();
  const __mmask16 beyond = level.compare<op>(squares);
  const InverseRoot inverse(squares);
  const Floats error = hn::NegMulAdd(inverse.rest, squares.high, inverse.squareError);
  const Floats correction = hn::MulSub(error, floats(0.5F), floats(SplitLevel::kShortage));
  const Floats magnitude = floats(level.level);
  const Floats high = hn::Mul(inverse.root, magnitude);
  const Floats low = hn::MulAdd(high, correction, hn::MulSub(inverse.root, magnitude, high));
  __mmask16 fit = beyond & rounded.fit<kMayVanish>();
  const auto scaled = [&](Floats part) HWY_ATTR {
    const Floats rest = hn::Mul(part, low);
    const Floats result{_mm512_mask_fmadd_ps(part.raw, beyond, high.raw, rest.raw)};
    const Floats other = hn::MulAdd(part, high, moreOf(rest));
    fit = _mm512_mask_cmp_ps_mask(fit, result.raw, other.raw, _CMP_EQ_OQ);
    return result;
  };
  const Floats re = scaled(x.re);
  const Floats im = scaled(x.im);
  if (HWY_UNLIKELY(fit != beyond)) return false;
  joinParts({re, im}, first, second);
  return true;
}

// Inverses, the magnitude being at least the level.
template <bool kMayVanish>
HWY_INLINE bool invertSplit(const SplitLevel& level, Floats& first, Floats& second) {
  const PairParts x = partsOf(first, second);
  const RoundedSquares rounded(x);
  const SplitFloats squares = rounded.split();
  const __mmask16 below = level.compare<vekCmpLess>(squares);
  __mmask16 fit = rounded.fit<kMayVanish>();
  const InverseRoot inverse(squares);
  const __m512 error =
      _mm512_mask3_fnmadd_ps(inverse.rest.raw, squares.high.raw, inverse.squareError.raw, below);
  const __m512 correction =
      _mm512_mask_fmadd_ps(error, below, _mm512_set1_ps(0.5F), _mm512_set1_ps(level.inverseError));
  const __m512 other = _mm512_set1_ps(level.inverse);
  const Floats high{_mm512_mask_mul_ps(inverse.square.raw, below, inverse.root.raw, other)};
  const __m512 rest = _mm512_maskz_fmsub_ps(below, inverse.root.raw, other, high.raw);
  const Floats low{_mm512_fmadd_ps(high.raw, correction, rest)};
  const Floats restOfRe = hn::Mul(x.re, low);
  const Floats restOfIm = hn::Mul(x.im, low);
  const Floats re = hn::MulAdd(x.re, high, restOfRe);
  const Floats im = hn::NegMulSub(x.im, high, restOfIm);
  fit = _mm512_mask_cmp_ps_mask(fit, re.raw, hn::MulAdd(x.re, high, moreOf(restOfRe)).raw,
                                _CMP_EQ_OQ);
  fit = _mm512_mask_cmp_ps_mask(fit, im.raw, hn::NegMulSub(x.im, high, moreOf(restOfIm)).raw,
                                _CMP_EQ_OQ);
  if (HWY_UNLIKELY(fit != 0xFFFF)) return false;
  joinParts({re, im}, first, second);
  return true;
}
#endif

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
