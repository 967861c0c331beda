// Quotients of complex values.
#if defined(VEKS_VECTOR_ARITHMETIC_COMPLEX_QUOTIENTS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_ARITHMETIC_COMPLEX_QUOTIENTS_INL_H
#undef VEKS_VECTOR_ARITHMETIC_COMPLEX_QUOTIENTS_INL_H
#else
#define VEKS_VECTOR_ARITHMETIC_COMPLEX_QUOTIENTS_INL_H
#endif

#include "vector/arithmetic/complex-inl.h"
#include "vector/arithmetic/quotients-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// 1 / v where both lanes of a pair are the same: one division for each pair where vectors are
// longer.
template <class D, class V>
HWY_INLINE V reciprocalOfPairs(D d, V v) {
  if constexpr (MaxLanes(D()) < 4) {
    return hn::Div(hn::Set(d, 1.0), v);
  } else {
    const hn::Half<D> dh;
    const auto single = hn::LowerHalf(dh, hn::ConcatEven(d, v, v));
    const auto inverse = hn::Div(hn::Set(dh, 1.0), single);
    alignas(64) static constexpr int64_t kTwice[] = {0, 0, 1, 1, 2, 2, 3, 3};
    const auto indices = hn::SetTableIndices(d, kTwice);
    return hn::TableLookupLanes(hn::ZeroExtendVector(d, inverse), indices);
  }
}

// Whether quotients are rounded once, or come from a reciprocal, with three roundings.
enum class Quotients { kRounded, kFast };

// b / a by conj(a) b / |a|^2. Where a is 0, b is divided by +0 part by part.
template <Quotients quotients, class D, class V>
HWY_INLINE V plainComplexQuotient(D d, V a, V b, bool& zeroSeen) {
  const V squares = hn::Mul(a, a);
  const V norm = hn::Add(squares, swapParts(d, squares));
  const V crossed = hn::Mul(swapParts(d, b), hn::DupOdd(a));
  const V product = subtractAdd(d, hn::Mul(b, hn::DupEven(a)), hn::Neg(crossed));
  const auto zero = hn::Eq(norm, hn::Zero(d));
  zeroSeen |= !hn::AllFalse(d, zero);
  const V dividend = hn::IfThenElse(zero, b, product);
  if constexpr (quotients == Quotients::kRounded) {
    return hn::Div(dividend, norm);
  } else {
    return hn::Mul(dividend, reciprocalOfPairs(d, norm));
  }
}

// Exponents as the bits of powers of two.
constexpr int64_t kExponentOne = int64_t{1} << 52;
constexpr int64_t kExponentBits = 0x7FF * kExponentOne;

// 2^-e, where 2^e is the power of two just below the larger part, or the nearest normal number.
template <class D, class V>
HWY_INLINE V inverseMagnitude(D d, V v) {
  const hn::Repartition<int64_t, D> di;
  const V magnitude = hn::Abs(v);
  const V larger = hn::Max(magnitude, swapParts(d, magnitude));
  const auto exponent = hn::And(hn::BitCast(di, larger), hn::Set(di, kExponentBits));
  // Infinity gives a negative number here.
  const auto inverse = hn::Sub(hn::Set(di, 2046 * kExponentOne), exponent);
  return hn::Max(hn::BitCast(d, inverse), hn::BitCast(d, hn::Set(di, kExponentOne)));
}

// The same without overflow or underflow on the way: the divisor is brought near 1, the dividend
// away from the ends of the range, and the quotient is scaled back in two halves, each a normal
// number.
template <class D, class V>
HWY_INLINE V wideComplexQuotient(D d, V a, V b, bool& zeroSeen) {
  const hn::Repartition<int64_t, D> di;
  const V scaleA = inverseMagnitude(d, a);
  const V magnitudeB = hn::Abs(b);
  const V largerB = hn::Max(magnitudeB, swapParts(d, magnitudeB));
  const V one = hn::Set(d, 1.0);
  const V lowered = hn::IfThenElse(hn::Gt(largerB, hn::Set(d, 0x1p1019)), hn::Set(d, 0x1p-8), one);
  const V scaleB =
      hn::IfThenElse(hn::Lt(largerB, hn::Set(d, 0x1p-800)), hn::Set(d, 0x1p200), lowered);
  const V quotient =
      plainComplexQuotient<Quotients::kFast>(d, hn::Mul(a, scaleA), hn::Mul(b, scaleB), zeroSeen);
  const auto back = hn::Sub(hn::BitCast(di, scaleA), hn::BitCast(di, scaleB));
  const auto half = hn::And(hn::ShiftRight<1>(back), hn::Set(di, -kExponentOne));
  const auto exponentOfOne = hn::BitCast(di, one);
  const V scaled = hn::Mul(quotient, hn::BitCast(d, hn::Add(exponentOfOne, half)));
  return hn::Mul(scaled, hn::BitCast(d, hn::Add(exponentOfOne, hn::Sub(back, half))));
}

// Whether all parts are far from the ends of the range. Powers of two then change no bit of a
// quotient, and need not be applied.
template <class D, class V>
HWY_INLINE bool areOrdinary(D d, V v) {
  const V magnitude = hn::Abs(v);
  return hn::AllTrue(
      d, hn::And(hn::Ge(magnitude, hn::Set(d, 0x1p-200)), hn::Le(magnitude, hn::Set(d, 0x1p200))));
}

struct DivideComplex {
  bool* zeroSeen;
  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    if (HWY_LIKELY(areOrdinary(d, a) && areOrdinary(d, b))) {
      return plainComplexQuotient<Quotients::kFast>(d, a, b, *zeroSeen);
    }
    return wideComplexQuotient(d, a, b, *zeroSeen);
  }
};

// Products of float values are exact in double, and no result leaves its range.
struct ComplexQuotientsInDouble {
  const float* divisors;
  const float* dividends;
  bool* zeroSeen;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return inParts<double>(d, i, [this](auto dPart, size_t k) HWY_ATTR {
      const hn::Rebind<double, decltype(dPart)> dd;
      const auto a = hn::PromoteTo(dd, hn::LoadU(dPart, divisors + k));
      const auto b = hn::PromoteTo(dd, hn::LoadU(dPart, dividends + k));
      return demoteFloats(dPart, plainComplexQuotient<Quotients::kFast>(dd, a, b, *zeroSeen));
    });
  }
};

inline VekStatus DivComplexFloat(const Vek32fc* src1, const Vek32fc* src2, Vek32fc* dst, size_t n) {
  bool zeroSeen = false;
  const ComplexQuotientsInDouble body{reinterpret_cast<const float*>(src1),
                                      reinterpret_cast<const float*>(src2), &zeroSeen};
  produceCompact<2>(body, reinterpret_cast<float*>(dst), 2 * n, src1 == dst || src2 == dst);
  return divisionStatus(zeroSeen);
}

inline VekStatus DivComplexDouble(const Vek64fc* src1, const Vek64fc* src2, Vek64fc* dst,
                                  size_t n) {
  bool zeroSeen = false;
  const TwoSources<DivideComplex, double> body{
      reinterpret_cast<const double*>(src1), reinterpret_cast<const double*>(src2), {&zeroSeen}};
  produceCompact<2>(body, reinterpret_cast<double*>(dst), 2 * n, src1 == dst || src2 == dst);
  return divisionStatus(zeroSeen);
}

// Quotients n / d of products of 16-bit integers, scaled: what is no tie is 2^-33 of itself away
// from one if s >= 0 and else 2^-32, next to results below 2^15; double resolves both.
struct ComplexIntegerQuotients {
  const int16_t* divisors;  // null: the constant
  Vek16sc divisor;
  const int16_t* dividends;
  double factor;
  bool* zeroSeen;

  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return inParts<double>(d, i, [this](auto dPart, size_t k) HWY_ATTR {
      const hn::Rebind<double, decltype(dPart)> dd;
      const auto b = loadAsFloats(dd, dividends + k);
      auto a = hn::OddEven(hn::Set(dd, static_cast<double>(divisor.im)),
                           hn::Set(dd, static_cast<double>(divisor.re)));
      if (divisors != nullptr) a = loadAsFloats(dd, divisors + k);
      const auto quotient = plainComplexQuotient<Quotients::kRounded>(dd, a, b, *zeroSeen);
      // 0 / 0 is the only NaN.
      const auto defined = hn::IfThenElseZero(hn::Eq(quotient, quotient), quotient);
      const auto scaled = hn::Mul(defined, hn::Set(dd, factor));
      const auto clamped = hn::Min(hn::Max(scaled, hn::Set(dd, -32768.0)), hn::Set(dd, 32767.0));
      return hn::DemoteTo(dPart, nearestInt32(dd, clamped));
    });
  }
};

inline VekStatus divideComplexIntegers(const ComplexIntegerQuotients& body, Vek16sc* dst, size_t n,
                                       bool inPlace) {
  produceCompact<2>(body, reinterpret_cast<int16_t*>(dst), 2 * n, inPlace);
  return divisionStatus(*body.zeroSeen);
}

inline VekStatus DivComplexScaled(const Vek16sc* src1, const Vek16sc* src2, Vek16sc* dst, size_t n,
                                  int scaleFactor) {
  bool zeroSeen = false;
  return divideComplexIntegers(
      {reinterpret_cast<const int16_t*>(src1), Vek16sc(), reinterpret_cast<const int16_t*>(src2),
       scaleMultiplier<double>(scaleFactor), &zeroSeen},
      dst, n, src1 == dst || src2 == dst);
}

inline VekStatus DivComplexByConstantScaled(const Vek16sc* src, Vek16sc val, Vek16sc* dst, size_t n,
                                            int scaleFactor) {
  bool zeroSeen = false;
  return divideComplexIntegers({nullptr, val, reinterpret_cast<const int16_t*>(src),
                                scaleMultiplier<double>(scaleFactor), &zeroSeen},
                               dst, n, src == dst);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
