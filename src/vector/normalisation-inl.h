#if defined(VEKS_VECTOR_NORMALISATION_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_NORMALISATION_INL_H
#undef VEKS_VECTOR_NORMALISATION_INL_H
#else
#define VEKS_VECTOR_NORMALISATION_INL_H
#endif

#include <algorithm>
#include <type_traits>

#include "core/loops-inl.h"
#include "core/power_of_two.h"
#include "core/quotient-inl.h"
#include "core/scale-inl.h"
#include "veks/types.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// (src[i] - sub) / div
template <class T>
struct NormalisedReals {
  const T* src;
  T sub;
  Divisor<T> divisor;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return divisor.divide(d, hn::Sub(hn::LoadU(d, src + i), hn::Set(d, sub)));
  }
};

// The same with values for the real and the imaginary parts.
template <class T>
struct NormalisedPairs {
  const T* src;
  T subRe;
  T subIm;
  Divisor<T> divisor;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto sub = hn::InterleaveLower(d, hn::Set(d, subRe), hn::Set(d, subIm));
    return divisor.divide(d, hn::Sub(hn::LoadU(d, src + i), sub));
  }
};

template <class T>
VekStatus Normalise(const T* src, T* dst, size_t n, T sub, T div) {
  produce(NormalisedReals<T>{src, sub, Divisor<T>(div)}, dst, n, src == dst);
  return vekStsOk;
}

template <class C, class T>
VekStatus NormaliseComplex(const C* src, C* dst, size_t n, C sub, T div) {
  const NormalisedPairs<T> body{reinterpret_cast<const T*>(src), sub.re, sub.im, Divisor<T>(div)};
  produce<2>(body, reinterpret_cast<T*>(dst), 2 * n, src == dst);
  return vekStsOk;
}

// x / divisor to the nearest integer, ties to even, for quotients below 2^22. The sum with 1.5 *
// 2^23 rounds to it and has it in the lowest bits.
template <class D32, class V>
HWY_INLINE V roundedQuotient(D32 d32, V x, float divisor) {
  const hn::RebindToFloat<D32> real;
  const auto shift = hn::Set(real, 0x1.8p23f);
  const auto quotient = hn::Div(hn::ConvertTo(real, x), hn::Set(real, divisor));
  return hn::Sub(hn::BitCast(d32, hn::Add(quotient, shift)), hn::BitCast(d32, shift));
}

// The same for any quotient; those beyond 2^20 become that.
template <class D32, class V>
HWY_INLINE V roundedQuotient(D32 d32, V x, double divisor) {
  if constexpr (MaxLanes(D32()) > MaxLanes(hn::ScalableTag<double>())) {
    const hn::Half<D32> half;
    const auto lower = roundedQuotient(half, hn::LowerHalf(half, x), divisor);
    const auto upper = roundedQuotient(half, hn::UpperHalf(half, x), divisor);
    return hn::Combine(d32, upper, lower);
  } else {
    const hn::Rebind<double, D32> wide;
    const auto shift = hn::Set(wide, 0x1.8p52);
    const auto max = hn::Set(wide, 0x1p20);
    const auto quotient = hn::Div(hn::PromoteTo(wide, x), hn::Set(wide, divisor));
    const auto limited = hn::Min(hn::Max(quotient, hn::Neg(max)), max);
    return hn::DemoteTo(d32, hn::Sub(hn::Add(limited, shift), shift));
  }
}

// (src[i] - sub) / divisor, rounded and saturated, with subs of their own for even and odd lanes. A
// single lane is even.
template <class Real>
struct NormalisedIntegers {
  const int16_t* src;
  int16_t subEven;
  int16_t subOdd;
  Real divisor;

  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto x = hn::LoadU(d, src + i);
    if constexpr (MaxLanes(D()) == 1) {
      const hn::Rebind<int32_t, D> d32;
      return hn::DemoteTo(d, normalised(d32, hn::PromoteTo(d32, x), subEven));
    } else {
      const hn::RepartitionToWide<D> d32;
      const auto pairs = hn::BitCast(d32, x);
      const auto low = hn::ShiftRight<16>(hn::ShiftLeft<16>(pairs));
      const auto even = normalised(d32, low, subEven);
      const auto odd = normalised(d32, hn::ShiftRight<16>(pairs), subOdd);
      const auto lowBits = hn::And(even, hn::Set(d32, 0xFFFF));
      return hn::BitCast(d, hn::Or(lowBits, hn::ShiftLeft<16>(odd)));
    }
  }

  template <class D32, class V>
  HWY_INLINE V normalised(D32 d32, V x, int16_t sub) const {
    const V difference = hn::Sub(x, hn::Set(d32, int32_t{sub}));
    return saturateTo<int16_t>(d32, roundedQuotient(d32, difference, divisor));
  }
};

inline Vek16sc bothParts(Vek16s x) {
  return {x, x};
}

inline Vek16sc bothParts(Vek16sc x) {
  return x;
}

// (src[i] - sub) / div by the scale-factor rule, T being Vek16s or Vek16sc.
//
// The quotient x / (div * 2^s) is computed in floating point. Only one that comes to lie on another
// side of a tie, or on it, could round wrongly. Let |x| < 2^16 be a difference and D = div * 2^s.
// The distance of x / D from a tie t, if not 0, is |2x - 2tD| / |2D|, where 2t is an odd integer.
// - s >= -6: the numerator is at least 2^-6, so the distance is at least 2^-23 of x / D, more than
//   the rounding error of a float. D is exact if |x / D| > 1/4, being a multiple of 2^-6 below
//   2^18.
// - s < -6: the numerator is at least 2^s, so the distance is at least 1 / |2 div| >= 2^-32, and
//   the rounding error of a double below 2^16 is less than 2^-36.
// Beyond the limits of s every result is 0, or saturated unless x is 0.
template <class T>
VekStatus NormaliseScaled(const T* src, T* dst, size_t n, T sub, int div, int scaleFactor) {
  constexpr size_t kGroup = std::is_same_v<T, Vek16sc> ? 2 : 1;
  const int16_t* const from = reinterpret_cast<const int16_t*>(src);
  int16_t* const to = reinterpret_cast<int16_t*>(dst);
  const Vek16sc subs = bothParts(sub);
  const int s = std::clamp(scaleFactor, -64, 32);
  const double divisor = div * powerOfTwo(s);
  if (s >= -6) {
    const float narrow = static_cast<float>(divisor);
    const NormalisedIntegers<float> body{from, subs.re, subs.im, narrow};
    produce<kGroup>(body, to, kGroup * n, src == dst);
  } else {
    const NormalisedIntegers<double> body{from, subs.re, subs.im, divisor};
    produce<kGroup>(body, to, kGroup * n, src == dst);
  }
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
