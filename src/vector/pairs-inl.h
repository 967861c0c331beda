// Complex values are pairs of lanes. Vectors have four lanes or more, two of double.
#if defined(VEKS_VECTOR_PAIRS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_PAIRS_INL_H
#undef VEKS_VECTOR_PAIRS_INL_H
#else
#define VEKS_VECTOR_PAIRS_INL_H
#endif

#include <hwy/highway.h>

#include <limits>

#include "vector/limit-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// The same complex value in all pairs.
template <class D, class T>
HWY_INLINE auto setPairs(D d, T re, T im) {
  return hn::InterleaveLower(d, hn::Set(d, re), hn::Set(d, im));
}

template <class D, class V>
HWY_INLINE V conjugate(D d, V x) {
  using T = hn::TFromD<D>;
  return hn::Xor(x, setPairs(d, T{0}, static_cast<T>(-0.0)));
}

// Vek16sc: re^2 + im^2 in lanes of 32 bits, exact, up to 2^31 as an unsigned number.
template <class D32, class V>
HWY_INLINE auto squares16(D32 d32, V x) {
  if constexpr (HWY_TARGET == HWY_EMU128) {
    const auto im = hn::ShiftRight<16>(hn::BitCast(d32, x));
    const auto re = hn::ShiftRight<16>(hn::ShiftLeft<16>(hn::BitCast(d32, x)));
    return hn::Add(hn::Mul(re, re), hn::Mul(im, im));
  } else {
    auto unused = hn::Zero(d32);
    return hn::ReorderWidenMulAccumulate(d32, x, x, hn::Zero(d32), unused);
  }
}

// Vek32fc: the lower and the upper half of a vector, as doubles; in vectors of 64 bytes, where it
// takes fewer shuffles, the real and the imaginary parts. Their squares are exact.
template <class V>
struct Halves {
  V lower;
  V upper;
};

#if HWY_TARGET <= HWY_AVX3
using WidePairs = hn::ScalableTag<double>;
using ManyPairs = hn::ScalableTag<float>;

HWY_INLINE Halves<hn::Vec<WidePairs>> widened(ManyPairs d, hn::Vec<ManyPairs> x) {
  const WidePairs wide;
  return {hn::PromoteTo(wide, hn::LowerHalf(hn::ConcatEven(d, x, x))),
          hn::PromoteTo(wide, hn::LowerHalf(hn::ConcatOdd(d, x, x)))};
}

HWY_INLINE hn::Vec<WidePairs> squares(WidePairs /*wide*/, const Halves<hn::Vec<WidePairs>>& x) {
  return hn::Add(hn::Mul(x.lower, x.lower), hn::Mul(x.upper, x.upper));
}

HWY_INLINE hn::Vec<WidePairs> pairOrder(WidePairs wide, hn::Mask<WidePairs> mask) {
  return hn::VecFromMask(wide, mask);
}
#endif

template <class D, class V>
HWY_INLINE auto widened(D /*d*/, V x) {
  const hn::RepartitionToWide<D> wide;
  return Halves<hn::VFromD<decltype(wide)>>{hn::PromoteTo(wide, hn::LowerHalf(x)),
                                            hn::PromoteTo(wide, hn::UpperHalf(hn::Half<D>(), x))};
}

// re^2 + im^2 of the pairs of both halves in turn; pairOrder() puts what is computed from it in the
// order of the pairs, lowerPairs() and upperPairs() give the lanes of either half.
template <class D64, class V>
HWY_INLINE V squares(D64 wide, const Halves<V>& x) {
  const V lower = hn::Mul(x.lower, x.lower);
  const V upper = hn::Mul(x.upper, x.upper);
  return hn::Add(hn::InterleaveLower(wide, lower, upper), hn::InterleaveUpper(wide, lower, upper));
}

template <class D64, class M>
HWY_INLINE auto pairOrder(D64 wide, M mask) {
  const auto lanes = hn::VecFromMask(wide, mask);
  return hn::ConcatEven(wide, hn::Reverse2(wide, lanes), lanes);
}

template <class D64, class V>
HWY_INLINE V lowerPairs(D64 wide, V v) {
  return hn::InterleaveLower(wide, v, v);
}

template <class D64, class V>
HWY_INLINE V upperPairs(D64 wide, V v) {
  return hn::InterleaveUpper(wide, v, v);
}

// Vek64fc: re^2 + im^2 in both lanes of each pair.
template <class D, class V>
HWY_INLINE V squares(D d, V x) {
  const V square = hn::Mul(x, x);
  return hn::Add(square, hn::Reverse2(d, square));
}

template <class D, class V>
HWY_INLINE auto maskOfPairs(D d, V lanes) {
  return hn::MaskFromVec(hn::BitCast(d, lanes));
}

// Vek32fc: the pairs of yes where the mask, in the order of squares(), is set, else those of no.
template <class D, class M, class V>
HWY_INLINE V selectPairs(D d, M mask, V yes, V no) {
  const hn::RepartitionToWide<D> wide;
#if HWY_TARGET <= HWY_AVX3
  if constexpr (std::is_same_v<D, ManyPairs>) {
    return hn::BitCast(d, hn::IfThenElse(mask, hn::BitCast(wide, yes), hn::BitCast(wide, no)));
  }
#endif
  return hn::IfThenElse(maskOfPairs(d, pairOrder(wide, mask)), yes, no);
}

// Infinite parts become finite ones of a magnitude that makes all finite floats vanish beside them.
template <class D64, class V>
HWY_INLINE Halves<V> finite(D64 wide, const Halves<V>& x) {
  const V max = hn::Set(wide, 0x1p500);
  const V min = hn::Set(wide, -0x1p500);
  return {atMost(atLeast(x.lower, min), max), atMost(atLeast(x.upper, min), max)};
}

// EMU128 narrows to finite values only.
template <class D, class V>
HWY_INLINE auto narrowedHalf(D half, V x) {
  if constexpr (HWY_TARGET == HWY_EMU128) {
    constexpr size_t kLanes = MaxLanes(D());
    double from[kLanes];
    float to[kLanes];
    hn::StoreU(x, hn::Rebind<double, D>(), from);
    for (size_t i = 0; i < kLanes; ++i) to[i] = static_cast<float>(from[i]);
    return hn::LoadU(half, to);
  } else {
    return hn::DemoteTo(half, x);
  }
}

// x * scale, rounded to float once, with the scales in the order of squares().
#if HWY_TARGET <= HWY_AVX3
HWY_INLINE hn::Vec<ManyPairs> scaledPairs(ManyPairs /*d*/, const Halves<hn::Vec<WidePairs>>& x,
                                          hn::Vec<WidePairs> scale) {
  alignas(64) static constexpr int32_t kInTurn[] = {0, 16, 1, 17, 2, 18, 3, 19,
                                                    4, 20, 5, 21, 6, 22, 7, 23};
  const __m512 re = _mm512_castps256_ps512(_mm512_cvtpd_ps(hn::Mul(x.lower, scale).raw));
  const __m512 im = _mm512_castps256_ps512(_mm512_cvtpd_ps(hn::Mul(x.upper, scale).raw));
  return hn::Vec<ManyPairs>{_mm512_permutex2var_ps(re, _mm512_load_si512(kInTurn), im)};
}
#endif
template <class D, class V>
HWY_INLINE auto scaledPairs(D d, const Halves<V>& x, V scale) {
  const hn::RepartitionToWide<D> wide;
  const hn::Half<D> half;
  const auto lower = narrowedHalf(half, hn::Mul(x.lower, lowerPairs(wide, scale)));
  const auto upper = narrowedHalf(half, hn::Mul(x.upper, upperPairs(wide, scale)));
  return hn::Combine(d, upper, lower);
}

// Vek64fc: x * scale with the larger part in [2, 4), so that squares neither overflow nor vanish;
// denormal numbers become at least 2^-51. An infinite part becomes NaN, beside a scale of 0.
template <class V>
struct Normalised {
  V x;
  V scale;
};

template <class D, class V>
HWY_INLINE Normalised<V> normalised(D d, V x) {
  const hn::RebindToUnsigned<D> bits;
  const auto exponents = hn::Set(bits, uint64_t{0x7FF} << 52);
  const V magnitude = hn::Abs(x);
  const V larger = hn::Max(hn::Max(magnitude, hn::Reverse2(d, magnitude)),
                           hn::Set(d, std::numeric_limits<double>::min()));
  const V scale = hn::BitCast(d, hn::Sub(exponents, hn::And(hn::BitCast(bits, larger), exponents)));
  return {hn::Mul(x, scale), scale};
}

// The same with 1 for infinite parts; finite ones beside them are 0.
template <class D, class V>
HWY_INLINE Normalised<V> normalisedFinite(D d, V x) {
  const Normalised<V> unit = normalised(d, x);
  const auto infinity = hn::Set(d, std::numeric_limits<double>::infinity());
  const auto isInfinite = hn::Eq(hn::Abs(x), infinity);
  return {hn::IfThenElse(isInfinite, hn::CopySign(hn::Set(d, 1.0), x), unit.x), unit.scale};
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
