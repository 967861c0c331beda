// Quotients by one divisor by multiplications, rounded as by the instruction for them, which takes
// two to four times as long with vectors of 64 bytes.
#if defined(VEKS_CORE_QUOTIENT_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_CORE_QUOTIENT_INL_H
#undef VEKS_CORE_QUOTIENT_INL_H
#else
#define VEKS_CORE_QUOTIENT_INL_H
#endif

#include <hwy/highway.h>

#include <limits>

#include "core/targets.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET <= HWY_AVX3
// Whether all lanes are zeros or at least `least` and at most `range` more, by twice their bits:
// those are without the sign.
HWY_INLINE bool areZerosOrWithin(hn::Vec512<float> v, uint32_t least, uint32_t range) {
  const auto bits = _mm512_castps_si512(v.raw);
  const auto twice = _mm512_add_epi32(bits, bits);
  const auto above = _mm512_sub_epi32(twice, _mm512_set1_epi32(static_cast<int32_t>(least)));
  const auto outside =
      _mm512_cmpgt_epu32_mask(above, _mm512_set1_epi32(static_cast<int32_t>(range)));
  return _mm512_mask_test_epi32_mask(outside, twice, twice) == 0;
}
HWY_INLINE bool areZerosOrWithin(hn::Vec512<double> v, uint64_t least, uint64_t range) {
  const auto bits = _mm512_castpd_si512(v.raw);
  const auto twice = _mm512_add_epi64(bits, bits);
  const auto above = _mm512_sub_epi64(twice, _mm512_set1_epi64(static_cast<int64_t>(least)));
  const auto outside =
      _mm512_cmpgt_epu64_mask(above, _mm512_set1_epi64(static_cast<int64_t>(range)));
  return _mm512_mask_test_epi64_mask(outside, twice, twice) == 0;
}
#endif

// A dividend a and the divisor b, both of p bits and in [1, 2), the inverse y rounded, q = a y
// rounded, r = a - b q. Numbers next to a / b are u apart. The sum q + r y is off by r (y - 1 / b),
// at most |a / b - q| b 2^-(p + 1), before it rounds, and can only round to the wrong side of the
// middle m between two numbers if a / b is as close to m: by k u 2^-p / b, because a - b m is a
// multiple k of u 2^-p. a y is less than u away from a / b, even u / 2 if a > b, so that q is next
// to m where k < 5. Then |a / b - q| is u / 2 but for a few 2^-p of it, r is exact, and the sum is
// off by less than that distance, since b^2 < 4. Otherwise |a / b - q| is up to 3/2 u, and r may be
// rounded by u 2^(1 - p): together at most (3 b / 4 + 2 / b) u 2^-p, less than 5 u 2^-p / b.
template <class T>
class Divisor {
 public:
  // Between the least and the most, quotients and residuals are normal numbers, as is the inverse.
  explicit Divisor(T value)
      : value_(value),
        inverse_(1 / value),
        isOrdinary_(value >= 4 * kMin && value <= kMax / 4),
        least_(twiceBits(larger(kMin / (kUnit * kUnit) * 4, value * kMin * 4))),
        range_(twiceBits(value < 1 ? value * (kMax / 4) : kMax / 4) - least_) {}

  template <class D, class V>
  HWY_INLINE V divide(D d, V v) const {
    const V value = hn::Set(d, value_);
#if HWY_TARGET <= HWY_AVX3
    if constexpr (MaxLanes(D()) * sizeof(T) == 64) {
      if (HWY_LIKELY(isOrdinary_ && areZerosOrWithin(v, least_, range_))) {
        const V inverse = hn::Set(d, inverse_);
        const V quotient = hn::Mul(v, inverse);
        // In this order, zeros keep their sign.
        const V excess = hn::MulSub(quotient, value, v);
        return hn::NegMulAdd(excess, inverse, quotient);
      }
    }
#endif
    return hn::Div(v, value);
  }

 private:
  using Bits = hwy::UnsignedFromSize<sizeof(T)>;
  static constexpr T kMin = std::numeric_limits<T>::min();
  static constexpr T kMax = std::numeric_limits<T>::max();
  static constexpr T kUnit = std::numeric_limits<T>::epsilon();

  static T larger(T a, T b) {
    return a > b ? a : b;
  }

  static Bits twiceBits(T x) {
    Bits bits;
    __builtin_memcpy(&bits, &x, sizeof(bits));
    return 2 * bits;
  }

  T value_;
  T inverse_;
  bool isOrdinary_;
  Bits least_;
  Bits range_;
};

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
