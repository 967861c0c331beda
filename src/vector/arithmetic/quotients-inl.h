// Quotients. Those of integers come from floating-point quotients, of float for types of 8 and 16
// bits and of double for the others.
#if defined(VEKS_VECTOR_ARITHMETIC_QUOTIENTS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_ARITHMETIC_QUOTIENTS_INL_H
#undef VEKS_VECTOR_ARITHMETIC_QUOTIENTS_INL_H
#else
#define VEKS_VECTOR_ARITHMETIC_QUOTIENTS_INL_H
#endif

#include "core/convert-inl.h"
#include "core/loops-inl.h"
#include "core/round-inl.h"
#include "core/widen-inl.h"
#include "vector/arithmetic/exact_quotient.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// b / a; a zero of either sign as divisor is +0.
struct Divide {
  bool* zeroSeen;
  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    const auto zero = hn::Eq(a, hn::Zero(d));
    *zeroSeen |= !hn::AllFalse(d, zero);
    return hn::Div(b, hn::IfThenZeroElse(zero, a));
  }
};

HWY_INLINE VekStatus divisionStatus(bool zeroSeen) {
  return zeroSeen ? vekWrnDivByZero : vekStsOk;
}

// dst[i] = src2[i] / src1[i]
template <class T>
VekStatus DivTwo(const T* src1, const T* src2, T* dst, size_t n) {
  bool zeroSeen = false;
  const TwoSources<Divide, T> body{src1, src2, {&zeroSeen}};
  produceCompact(body, dst, n, src1 == dst || src2 == dst);
  return divisionStatus(zeroSeen);
}

// dst[i] = val / src[i]
template <class T>
VekStatus DivConstantBy(const T* src, T val, T* dst, size_t n) {
  bool zeroSeen = false;
  const SourceAndConstant<Divide, T> body{src, val, {&zeroSeen}};
  produceCompact(body, dst, n, src == dst);
  return divisionStatus(zeroSeen);
}

// b / a * factor as integers in the range of T. A zero divisor gives infinities, but 0 for 0.
template <class T>
struct DivideToInteger {
  template <class D, class V>
  static HWY_INLINE auto scaledQuotient(D d, V a, V b, V factor) {
    using F = hn::TFromD<D>;
    const V quotient = hn::Mul(hn::Div(b, hn::IfThenZeroElse(hn::Eq(a, hn::Zero(d)), a)), factor);
    const V defined = hn::IfThenZeroElse(hn::Eq(b, hn::Zero(d)), quotient);
    const V max = hn::Set(d, static_cast<F>(std::numeric_limits<T>::max()));
    const V min = hn::Set(d, static_cast<F>(std::numeric_limits<T>::min()));
    return nearestInt32(d, hn::Min(hn::Max(defined, min), max));
  }
};

// Integers of 32 bits in the range of T as T.
template <class D, class V>
HWY_INLINE hn::Vec<D> demoteIntegers(D d, V v) {
  if constexpr (sizeof(hn::TFromD<D>) == 4) {
    return v;
  } else {
    return hn::DemoteTo(d, v);
  }
}

// Quotients of two vectors, or of a vector and a constant divisor, in the precision F.
template <class F, class S1, class S2>
struct IntegerQuotients {
  const S1* divisors;  // null: the constant
  F divisor;
  const S2* dividends;
  F factor;
  bool* zeroSeen;

  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return inParts<F>(d, i, [this](auto dPart, size_t k) HWY_ATTR {
      const hn::Rebind<F, decltype(dPart)> df;
      const auto b = loadAsFloats(df, dividends + k);
      auto a = hn::Set(df, divisor);
      if (divisors != nullptr) {
        a = loadAsFloats(df, divisors + k);
        *zeroSeen |= !hn::AllFalse(df, hn::Eq(a, hn::Zero(df)));
      }
      using T = hn::TFromD<decltype(dPart)>;
      const auto quotient = DivideToInteger<T>::scaledQuotient(df, a, b, hn::Set(df, factor));
      return demoteIntegers(dPart, quotient);
    });
  }
};

template <class F, class S1, class S2, class T>
VekStatus DivTwoScaled(const S1* src1, const S2* src2, T* dst, size_t n, int scaleFactor) {
  bool zeroSeen = false;
  const IntegerQuotients<F, S1, S2> body{src1, 0, src2, scaleMultiplier<F>(scaleFactor), &zeroSeen};
  const void* const out = dst;
  produceCompact<1, true>(body, dst, n, out == src1 || out == src2);
  return divisionStatus(zeroSeen);
}

// Quotients of 32-bit integers in double: with s >= 0 a quotient n / (d 2^s) that is no tie is at
// least 1 / (2 d 2^s) away from one, 2^-33 of itself, which double resolves. Not so with s < 0.
inline VekStatus DivLongScaled(const int32_t* src1, const int32_t* src2, int32_t* dst, size_t n,
                               int scaleFactor) {
  if (scaleFactor >= 0) return DivTwoScaled<double>(src1, src2, dst, n, scaleFactor);
  bool zeroSeen = false;
  for (size_t i = 0; i < n; ++i) {
    zeroSeen |= src1[i] == 0;
    dst[i] = enlargedQuotient(src2[i], src1[i], scaleFactor);
  }
  return divisionStatus(zeroSeen);
}

// val / src[i] to nearest, ties to even
struct QuotientsOfConstant {
  const uint16_t* src;
  float val;
  bool* zeroSeen;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return inParts<float>(d, i, [this](auto dPart, size_t k) HWY_ATTR {
      const hn::Rebind<float, decltype(dPart)> df;
      const auto a = loadAsFloats(df, src + k);
      *zeroSeen |= !hn::AllFalse(df, hn::Eq(a, hn::Zero(df)));
      const auto quotient =
          DivideToInteger<uint16_t>::scaledQuotient(df, a, hn::Set(df, val), hn::Set(df, 1.0F));
      return hn::DemoteTo(dPart, quotient);
    });
  }
};

inline VekStatus DivConstantByScaled(const uint16_t* src, uint16_t val, uint16_t* dst, size_t n) {
  bool zeroSeen = false;
  produceCompact<1, true>(QuotientsOfConstant{src, static_cast<float>(val), &zeroSeen}, dst, n,
                          src == dst);
  return divisionStatus(zeroSeen);
}

template <class F, class T>
VekStatus DivByConstantScaled(const T* src, T val, T* dst, size_t n, int scaleFactor) {
  const IntegerQuotients<F, T, T> body{nullptr, static_cast<F>(val), src,
                                       scaleMultiplier<F>(scaleFactor), nullptr};
  produceCompact<1, true>(body, dst, n, src == dst);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
