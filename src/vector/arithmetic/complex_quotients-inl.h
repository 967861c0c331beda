// Quotients of complex values.
#if defined(VEKS_VECTOR_ARITHMETIC_COMPLEX_QUOTIENTS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_ARITHMETIC_COMPLEX_QUOTIENTS_INL_H
#undef VEKS_VECTOR_ARITHMETIC_COMPLEX_QUOTIENTS_INL_H
#else
#define VEKS_VECTOR_ARITHMETIC_COMPLEX_QUOTIENTS_INL_H
#endif

#include "vector/arithmetic/complex-inl.h"
#include "vector/arithmetic/parted_quotients-inl.h"
#include "vector/arithmetic/quotients-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// 1 / v where both lanes of a pair are the same: one division for each pair where vectors are
// longer.
template <class D, class V>
HWY_INLINE V reciprocalOfPairs(D d, V v) {
  using T = hn::TFromD<D>;
  if constexpr (sizeof(T) * MaxLanes(D()) <= 16) {
    return hn::Div(hn::Set(d, T{1}), v);
  } else {
    const hn::Half<D> dh;
    const auto single = hn::LowerHalf(dh, hn::ConcatEven(d, v, v));
    const auto inverse = hn::Div(hn::Set(dh, T{1}), single);
    alignas(64) static constexpr hwy::MakeSigned<T> kTwice[] = {0, 0, 1, 1, 2, 2, 3, 3,
                                                                4, 4, 5, 5, 6, 6, 7, 7};
    const auto indices = hn::SetTableIndices(d, kTwice);
    return hn::TableLookupLanes(hn::ZeroExtendVector(d, inverse), indices);
  }
}

// Whether quotients are rounded once, or come from a reciprocal, with three roundings.
enum class Quotients { kRounded, kFast };

// (re - i im) b
template <class D, class V>
HWY_INLINE V productWithConjugate(D d, V re, V im, V b) {
  const V straight = hn::Mul(b, re);
  const V crossed = hn::Mul(swapParts(d, b), im);
#if HWY_TARGET == HWY_AVX3
  // A sum in even lanes and a difference in odd ones; the factor 1 leaves one rounding.
  if constexpr (std::is_same_v<V, hn::Vec512<float>>) {
    return V{_mm512_fmsubadd_ps(straight.raw, _mm512_set1_ps(1), crossed.raw)};
  } else if constexpr (std::is_same_v<V, hn::Vec512<double>>) {
    return V{_mm512_fmsubadd_pd(straight.raw, _mm512_set1_pd(1), crossed.raw)};
  }
#endif
  return subtractAdd(d, straight, hn::Neg(crossed));
}

// |a|^2 in both places
template <class D, class V>
HWY_INLINE V squaredMagnitude(D d, V a) {
  const V squares = hn::Mul(a, a);
  return hn::Add(squares, swapParts(d, squares));
}

// b / a by conj(a) b / |a|^2. Where a is 0, b is divided by +0 part by part.
template <Quotients quotients, class D, class V>
HWY_INLINE V plainComplexQuotient(D d, V a, V b, bool& zeroSeen) {
  const V norm = squaredMagnitude(d, a);
  const auto zero = hn::Eq(norm, hn::Zero(d));
  zeroSeen |= !hn::AllFalse(d, zero);
  const V product = productWithConjugate(d, hn::DupEven(a), hn::DupOdd(a), b);
  const V dividend = hn::IfThenElse(zero, b, product);
  if constexpr (quotients == Quotients::kRounded) {
    return hn::Div(dividend, norm);
  } else {
    return hn::Mul(dividend, reciprocalOfPairs(d, norm));
  }
}

// What the scaling of quotients needs to know of a type.
template <class T>
struct Range;

template <>
struct Range<float> {
  static constexpr int32_t kExponentOne = 1 << 23;
  static constexpr int32_t kExponentBits = 0xFF * kExponentOne;
  static constexpr float kHuge = 0x1p123F;
  static constexpr float kSmall = 0x1p-60F;
  static constexpr float kRaise = 0x1p64F;
  static constexpr float kLeastOrdinary = 0x1p-31F;
  static constexpr float kMostOrdinary = 0x1p16F;
};

template <>
struct Range<double> {
  static constexpr int64_t kExponentOne = int64_t{1} << 52;
  static constexpr int64_t kExponentBits = 0x7FF * kExponentOne;
  static constexpr double kHuge = 0x1p1019;
  static constexpr double kSmall = 0x1p-800;
  static constexpr double kRaise = 0x1p200;
  static constexpr double kLeastOrdinary = 0x1p-255;
  static constexpr double kMostOrdinary = 0x1p150;
};

// 2^-e, where 2^e is the power of two just below the larger part, or the nearest normal number.
template <class D, class V>
HWY_INLINE V inverseMagnitude(D d, V v) {
  using R = Range<hn::TFromD<D>>;
  const hn::RebindToSigned<D> di;
  const V magnitude = hn::Abs(v);
  const V larger = hn::Max(magnitude, swapParts(d, magnitude));
  const auto exponent = hn::And(hn::BitCast(di, larger), hn::Set(di, R::kExponentBits));
  // Infinity gives a negative number here.
  const auto inverse = hn::Sub(hn::Set(di, R::kExponentBits - R::kExponentOne), exponent);
  return hn::Max(hn::BitCast(d, inverse), hn::BitCast(d, hn::Set(di, R::kExponentOne)));
}

// The same without overflow or underflow on the way: the divisor is brought near 1, the dividend
// away from the ends of the range, and the quotient is scaled back in two halves, each a normal
// number.
template <class D, class V>
HWY_INLINE V wideComplexQuotient(D d, V a, V b, bool& zeroSeen) {
  using T = hn::TFromD<D>;
  using R = Range<T>;
  const hn::RebindToSigned<D> di;
  const V scaleA = inverseMagnitude(d, a);
  const V magnitudeB = hn::Abs(b);
  const V largerB = hn::Max(magnitudeB, swapParts(d, magnitudeB));
  const V one = hn::Set(d, T{1});
  const V lowered =
      hn::IfThenElse(hn::Gt(largerB, hn::Set(d, R::kHuge)), hn::Set(d, T{1} / 256), one);
  const V scaleB =
      hn::IfThenElse(hn::Lt(largerB, hn::Set(d, R::kSmall)), hn::Set(d, R::kRaise), lowered);
  const V quotient =
      plainComplexQuotient<Quotients::kFast>(d, hn::Mul(a, scaleA), hn::Mul(b, scaleB), zeroSeen);
  const auto back = hn::Sub(hn::BitCast(di, scaleA), hn::BitCast(di, scaleB));
  const auto half = hn::And(hn::ShiftRight<1>(back), hn::Set(di, -R::kExponentOne));
  const auto exponentOfOne = hn::BitCast(di, one);
  const V scaled = hn::Mul(quotient, hn::BitCast(d, hn::Add(exponentOfOne, half)));
  return hn::Mul(scaled, hn::BitCast(d, hn::Add(exponentOfOne, hn::Sub(back, half))));
}

// Whether all parts of both are so far from zero and from the ends of the range that the quotient,
// where it does not cancel out altogether, is a normal number: a part of the product is at least
// 2^-23 (2^-52 of double) times the square of the least ordinary number, what it is divided by at
// most twice the square of the greatest one.
template <class D, class V>
HWY_INLINE bool areOrdinary(D d, V a, V b) {
  using R = Range<hn::TFromD<D>>;
  const V least = hn::Set(d, R::kLeastOrdinary);
  const V most = hn::Set(d, R::kMostOrdinary);
#if HWY_TARGET <= HWY_AVX3
  // Twice the bits are without the sign.
  const hn::RebindToUnsigned<D> du;
  const auto twice = [&](V v) HWY_ATTR { return hn::Add(hn::BitCast(du, v), hn::BitCast(du, v)); };
  const auto range = hn::Sub(twice(most), twice(least));
  const auto isOrdinary = [&](V v)
                              HWY_ATTR { return hn::Lt(hn::Sub(twice(v), twice(least)), range); };
  return hn::AllTrue(du, hn::And(isOrdinary(a), isOrdinary(b)));
#else
  const auto isOrdinary = [&](V v) HWY_ATTR {
    const V magnitude = hn::Abs(v);
    return hn::And(hn::Ge(magnitude, least), hn::Lt(magnitude, most));
  };
  return hn::AllTrue(d, hn::And(isOrdinary(a), isOrdinary(b)));
#endif
}

// Powers of two change no bit of an ordinary quotient and need not be applied.
template <class T>
struct ComplexQuotients {
  const T* divisors;
  const T* dividends;
  bool* zeroSeen;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto a = hn::LoadU(d, divisors + i);
    const auto b = hn::LoadU(d, dividends + i);
    if (HWY_LIKELY(areOrdinary(d, a, b))) {
      const auto re = loadReal(d, divisors + i);
      const auto im = loadImaginary(d, divisors + i);
      const auto norm = hn::Add(hn::Mul(re, re), hn::Mul(im, im));
      return hn::Mul(productWithConjugate(d, re, im, b), reciprocalOfPairs(d, norm));
    }
    return wideComplexQuotient(d, a, b, *zeroSeen);
  }
};

// dst[i] = src2[i] / src1[i], n complex values
template <class C>
VekStatus DivComplexTwo(const C* src1, const C* src2, C* dst, size_t n) {
  using T = decltype(dst->re);
  bool zeroSeen = false;
  const ComplexQuotients<T> body{reinterpret_cast<const T*>(src1), reinterpret_cast<const T*>(src2),
                                 &zeroSeen};
  const bool inPlace = src1 == dst || src2 == dst;
#if HWY_TARGET <= HWY_AVX3
  // Past the caches, memory takes longer than either.
  if constexpr (std::is_same_v<T, float>) {
    if (n >= 32 && 2 * n * sizeof(T) < streamingBytes) {
      produceQuotients(body, reinterpret_cast<T*>(dst), 2 * n, inPlace);
      return divisionStatus(zeroSeen);
    }
  }
#endif
  produceCompact<2>(body, reinterpret_cast<T*>(dst), 2 * n, inPlace);
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
  produceCompact<2, true>(body, reinterpret_cast<int16_t*>(dst), 2 * n, inPlace);
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
