// Thresholds of real vectors; threshold_complex-inl.h has those of complex ones.
#if defined(VEKS_VECTOR_THRESHOLD_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_THRESHOLD_INL_H
#undef VEKS_VECTOR_THRESHOLD_INL_H
#else
#define VEKS_VECTOR_THRESHOLD_INL_H
#endif

#include <cmath>

#include "core/loops-inl.h"
#include "core/reciprocal-inl.h"
#include "vector/limit-inl.h"
#include "vector/threshold_complex-inl.h"
#include "veks/types.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <VekCmpOp op, class T>
struct Limited {
  const T* src;
  T level;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto x = hn::LoadU(d, src + i);
    if constexpr (op == vekCmpLess) {
      return atLeast(x, hn::Set(d, level));
    } else {
      return atMost(x, hn::Set(d, level));
    }
  }
};

template <VekCmpOp op, class T>
struct Replaced {
  const T* src;
  T level;
  T value;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto x = hn::LoadU(d, src + i);
    return hn::IfThenElse(isBeyond<op>(x, hn::Set(d, level)), hn::Set(d, value), x);
  }
};

// The levels are in order: no element is beyond both.
template <class T>
struct ReplacedOutside {
  const T* src;
  T levelLT;
  T valueLT;
  T levelGT;
  T valueGT;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto x = hn::LoadU(d, src + i);
    const auto low = hn::Lt(x, hn::Set(d, levelLT));
    const auto high = hn::Gt(x, hn::Set(d, levelGT));
    return hn::IfThenElse(high, hn::Set(d, valueGT), hn::IfThenElse(low, hn::Set(d, valueLT), x));
  }
};

// The magnitude of x, at least level >= 0, with the sign of x. Integers: unsigned, which holds that
// of the lowest value. Floats: a positive `zero` gives -0.0 the sign of +0.0, a negative one leaves
// it alone.
template <class D, class V, class T>
HWY_INLINE V magnitudeAtLeast(D d, V x, T level, [[maybe_unused]] T zero) {
  if constexpr (hwy::IsFloat<T>()) {
    const auto sign = hn::And(hn::Add(x, hn::Set(d, zero)), hn::SignBit(d));
    return hn::Or(atLeast(hn::Abs(x), hn::Set(d, level)), sign);
  } else {
    const hn::RebindToUnsigned<D> du;
    const auto sign = hn::BroadcastSignBit(x);
    const auto magnitude = hn::Max(hn::BitCast(du, hn::Abs(x)), hn::BitCast(du, hn::Set(d, level)));
    return hn::Sub(hn::Xor(hn::BitCast(d, magnitude), sign), sign);
  }
}

template <class T>
struct MagnitudeAtLeast {
  const T* src;
  T level;
  T zero;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return magnitudeAtLeast(d, hn::LoadU(d, src + i), level, zero);
  }
};

template <class T>
struct MagnitudeAtMost {
  const T* src;
  T level;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto x = atLeast(hn::LoadU(d, src + i), hn::Set(d, static_cast<T>(-level)));
    return atMost(x, hn::Set(d, level));
  }
};

#if HWY_TARGET <= HWY_AVX3
// x as the inverse of a number with its sign and a magnitude of at least the level, but false where
// an element needs more than refinedInverse(), or is NaN or -0.0.
HWY_INLINE bool invertOrdinary(Floats& x, float level) {
  constexpr int kLargerWithoutSign = 0xB;
  constexpr int kNaNOrNegativeZero = 0x85;
  constexpr int kNotNormal = 0xBF;
  const auto bound = _mm512_set1_ps(level);
  const Floats inverse = refinedInverse(Floats{_mm512_range_ps(x.raw, bound, kLargerWithoutSign)});
  const __mmask16 special = _mm512_fpclass_ps_mask(x.raw, kNaNOrNegativeZero);
  const __mmask16 unfit = _mm512_fpclass_ps_mask(inverse.raw, kNotNormal);
  if (HWY_UNLIKELY(!_kortestz_mask16_u8(special, unfit))) return false;
  x = hn::Or(inverse, hn::And(x, hn::SignBit(hn::Full512<float>())));
  return true;
}
#endif

// Sets *divided to nonzero where it divides by zero.
template <class T>
struct Inverted {
  const T* src;
  T level;
  unsigned* divided;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto x = hn::LoadU(d, src + i);
#if HWY_TARGET <= HWY_AVX3
    if constexpr (std::is_same_v<D, hn::Full512<float>>) {
      Floats inverse = x;
      if (HWY_LIKELY(invertOrdinary(inverse, level))) return inverse;
    }
#endif
    const auto divisor = magnitudeAtLeast(d, x, level, T{0});
    *divided |= hn::AllFalse(d, hn::Eq(divisor, hn::Zero(d))) ? 0 : 1;
    return hn::IfThenElse(hn::Eq(x, x), hn::Div(hn::Set(d, T{1}), divisor), x);
  }
};

template <>
constexpr bool kDivides<Inverted<double>> = true;

// dst[i] = level if src[i] OP level, else src[i]
template <VekCmpOp op, class T>
VekStatus Limit(const T* src, T* dst, size_t n, T level) {
  produce(Limited<op, T>{src, level}, dst, n, src == dst);
  return vekStsOk;
}

// dst[i] = value if src[i] OP level, else src[i]
template <VekCmpOp op, class T>
VekStatus Replace(const T* src, T* dst, size_t n, T level, T value) {
  produce(Replaced<op, T>{src, level, value}, dst, n, src == dst);
  return vekStsOk;
}

template <class T>
VekStatus ReplaceOutside(const T* src, T* dst, size_t n, T levelLT, T valueLT, T levelGT,
                         T valueGT) {
  produce(ReplacedOutside<T>{src, levelLT, valueLT, levelGT, valueGT}, dst, n, src == dst);
  return vekStsOk;
}

// A level of zero, or of NaN, replaces nothing: -0.0 stays.
template <class T>
VekStatus RaiseMagnitude(const T* src, T* dst, size_t n, T level) {
  const T zero = static_cast<T>(level > 0 ? 0.0 : -0.0);
  produce(MagnitudeAtLeast<T>{src, level, zero}, dst, n, src == dst);
  return vekStsOk;
}

template <class T>
VekStatus LowerMagnitude(const T* src, T* dst, size_t n, T level) {
  if constexpr (hwy::IsFloat<T>()) level = std::fabs(level);
  produce(MagnitudeAtMost<T>{src, level}, dst, n, src == dst);
  return vekStsOk;
}

// dst[i] = 1 / src[i], with a magnitude of src[i] of at least level
template <class T>
VekStatus Invert(const T* src, T* dst, size_t n, T level) {
  unsigned divided = 0;
  produce(Inverted<T>{src, level > 0 ? level : T{0}, &divided}, dst, n, src == dst);
  return divided != 0 ? vekWrnInvThreshZero : vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
