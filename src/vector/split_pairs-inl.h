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

  // Sums between 2^-62 and 2^62 with parts that are 0 or at least 2^-60: then no quotient is
  // denormal.
  HWY_INLINE __mmask16 fit() const {
    const auto least = _mm512_set1_epi32((127 - 62) << 23);
    const auto above = _mm512_sub_epi32(_mm512_castps_si512(sum.raw), least);
    const auto isFit = _mm512_cmplt_epu32_mask(above, _mm512_set1_epi32(124 << 23));
    const auto lessOne = _mm512_add_epi32(_mm512_castps_si512(smaller.raw), _mm512_set1_epi32(-1));
    const auto smallest = _mm512_set1_epi32(((127 - 60) << 23) - 1);
    return _mm512_mask_cmpge_epu32_mask(isFit, lessOne, smallest);
  }
};

// A level that is 0 or between 2^-30 and 2^30, and its square.
struct SplitLevel {
  float level;
  float inverse;
  float high;
  float low;
  bool isOrdinary;

  explicit SplitLevel(float value)
      : level(value),
        inverse(1 / value),
        high(value * value),
        low(static_cast<float>(double{value} * double{value} - double{high})),
        isOrdinary(value == 0 || (value >= 0x1p-30F && value <= 0x1p30F)) {}

  // Whether rounded sums tell that none is OP the square.
  template <VekCmpOp op>
  HWY_INLINE bool isFarFrom(Floats sum) const {
    constexpr int kPredicate = op == vekCmpLess ? _CMP_GT_OQ : _CMP_LT_OQ;
    const Floats limit = floats(high * (op == vekCmpLess ? 1 + 0x1p-20F : 1 - 0x1p-20F));
    return _mm512_cmp_ps_mask(sum.raw, limit.raw, kPredicate) == 0xFFFF;
  }

  // The lanes that are OP the square, and those that are too close to tell.
  template <VekCmpOp op>
  HWY_INLINE __mmask16 compare(const SplitFloats& squares, __mmask16& doubtful) const {
    constexpr int kPredicate = op == vekCmpLess ? _CMP_LT_OQ : _CMP_GT_OQ;
    const Floats difference =
        hn::Add(hn::Sub(squares.high, floats(high)), hn::Sub(squares.low, floats(low)));
    const Floats least = floats(high * 0x1p-38F);
    doubtful = _mm512_cmp_ps_mask(hn::Abs(difference).raw, least.raw, _CMP_NGT_UQ);
    return _mm512_cmp_ps_mask(difference.raw, _mm512_setzero_ps(), kPredicate);
  }
};

// The root of a sum of squares but for 2^-43 of it, and its inverse but for 2^-23.
struct SplitRoot {
  SplitFloats root;
  Floats inverse;
};

HWY_INLINE SplitRoot splitRoot(const SplitFloats& squares) {
  const Floats estimate = approximateInverseRoot(squares.high);
  const Floats error = hn::NegMulAdd(hn::Mul(squares.high, estimate), estimate, floats(1.0F));
  const Floats inverse = hn::MulAdd(hn::Mul(estimate, floats(0.5F)), error, estimate);
  const Floats root = hn::Mul(squares.high, inverse);
  const Floats rest = hn::Add(hn::NegMulAdd(root, root, squares.high), squares.low);
  return {{root, hn::Mul(rest, hn::Mul(inverse, floats(0.5F)))}, inverse};
}

// Quotients are sums of an estimate and a correction, which is off by at most 2^-42 of the
// quotient. The middle between two floats is 2^-25 of it away from an estimate: if a correction as
// close to that counts, a change of it by 2^-16, 2^-41 of the quotient, shows which side
// is in doubt. Double precision is off by less than 2^-50.
struct CorrectionFactors {
  Floats less;
  Floats more;

  explicit HWY_INLINE CorrectionFactors(Floats inverse)
      : less(hn::Mul(inverse, floats(1 - 0x1p-16F))),
        more(hn::Mul(inverse, floats(1 + 0x1p-16F))) {}

  // The estimate less the excess of the estimate times the divisor; adds to the doubtful lanes. In
  // this order, zeros keep their sign.
  HWY_INLINE Floats apply(Floats estimate, Floats excess, __mmask16& doubtful) const {
    const Floats quotient = hn::NegMulAdd(excess, less, estimate);
    doubtful |=
        _mm512_cmp_ps_mask(quotient.raw, hn::NegMulAdd(excess, more, estimate).raw, _CMP_NEQ_UQ);
    return quotient;
  }
};

// part / divisor
HWY_INLINE Floats splitQuotient(Floats part, const SplitFloats& divisor, Floats inverse,
                                const CorrectionFactors& factors, __mmask16& doubtful) {
  const Floats estimate = hn::Mul(part, inverse);
  const Floats excess = hn::MulAdd(estimate, divisor.low, hn::MulSub(estimate, divisor.high, part));
  return factors.apply(estimate, excess, doubtful);
}

// part level / root
HWY_INLINE Floats splitRescaled(Floats part, Floats level, const SplitRoot& x, Floats scale,
                                const CorrectionFactors& factors, __mmask16& doubtful) {
  const Floats product = hn::Mul(part, level);
  const Floats rest = hn::MulSub(part, level, product);
  const Floats estimate = hn::Mul(part, scale);
  const Floats excess =
      hn::MulAdd(estimate, x.root.low, hn::MulSub(estimate, x.root.high, product));
  return factors.apply(estimate, hn::Sub(excess, rest), doubtful);
}

// Pairs beyond the level get its magnitude. False where an element needs double precision.
template <VekCmpOp op>
HWY_INLINE bool rescaleSplit(const SplitLevel& level, Floats& first, Floats& second) {
  const PairParts x = partsOf(first, second);
  const RoundedSquares rounded(x);
  if (level.isFarFrom<op>(rounded.sum)) return true;
  const SplitFloats squares = rounded.split();
  __mmask16 doubtful;
  const __mmask16 beyond = level.compare<op>(squares, doubtful);
  if (HWY_UNLIKELY(doubtful != 0)) return false;
  const SplitRoot root = splitRoot(squares);
  const Floats magnitude = floats(level.level);
  const Floats scale = hn::Mul(root.inverse, magnitude);
  const CorrectionFactors factors(root.inverse);
  const Floats re = splitRescaled(x.re, magnitude, root, scale, factors, doubtful);
  const Floats im = splitRescaled(x.im, magnitude, root, scale, factors, doubtful);
  if (HWY_UNLIKELY((beyond & ~(rounded.fit() & ~doubtful)) != 0)) return false;
  joinParts({Floats{_mm512_mask_mov_ps(x.re.raw, beyond, re.raw)},
             Floats{_mm512_mask_mov_ps(x.im.raw, beyond, im.raw)}},
            first, second);
  return true;
}

// Inverses, the magnitude being at least the level.
HWY_INLINE bool invertSplit(const SplitLevel& level, Floats& first, Floats& second) {
  const PairParts x = partsOf(first, second);
  const RoundedSquares rounded(x);
  SplitFloats divisor = rounded.split();
  __mmask16 doubtful;
  const __mmask16 below = level.compare<vekCmpLess>(divisor, doubtful);
  if (HWY_UNLIKELY((rounded.fit() & ~doubtful) != 0xFFFF)) return false;
  Floats inverse;
  if (below == 0) {
    const Floats estimate{_mm512_rcp14_ps(divisor.high.raw)};
    const Floats error = hn::NegMulAdd(divisor.high, estimate, floats(1.0F));
    inverse = hn::MulAdd(estimate, error, estimate);
  } else {
    const SplitRoot x2 = splitRoot(divisor);
    const Floats magnitude = floats(level.level);
    const Floats product = hn::Mul(x2.root.high, magnitude);
    const Floats rest =
        hn::MulAdd(x2.root.low, magnitude, hn::MulSub(x2.root.high, magnitude, product));
    divisor.high = Floats{_mm512_mask_mov_ps(divisor.high.raw, below, product.raw)};
    divisor.low = Floats{_mm512_mask_mov_ps(divisor.low.raw, below, rest.raw)};
    const Floats other{_mm512_mask_mov_ps(x2.inverse.raw, below, floats(level.inverse).raw)};
    inverse = hn::Mul(x2.inverse, other);
  }
  const CorrectionFactors factors(inverse);
  const Floats re = splitQuotient(x.re, divisor, inverse, factors, doubtful);
  const Floats im = splitQuotient(x.im, divisor, inverse, factors, doubtful);
  if (HWY_UNLIKELY(doubtful != 0)) return false;
  joinParts({re, hn::Neg(im)}, first, second);
  return true;
}
#endif

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
