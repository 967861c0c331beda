// The vector form of the scale-factor rule, and sums that keep their carry for it.
#if defined(VEKS_CORE_SCALE_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_CORE_SCALE_INL_H
#undef VEKS_CORE_SCALE_INL_H
#else
#define VEKS_CORE_SCALE_INL_H
#endif

#include <hwy/highway.h>

#include "core/scale.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// Clamps lanes to the range of Dst.
template <class Dst, class D, class V>
HWY_INLINE V saturateTo(D d, V r) {
  using Wide = hn::TFromD<D>;
  if constexpr (sizeof(Dst) == sizeof(Wide)) {
    return r;
  } else {
    const V belowMax = hn::Min(r, hn::Set(d, Wide{std::numeric_limits<Dst>::max()}));
    if constexpr (!std::is_signed_v<Wide>) {
      return belowMax;
    } else {
      return hn::Max(belowMax, hn::Set(d, Wide{std::numeric_limits<Dst>::min()}));
    }
  }
}

// All lanes shifted alike. With vectors of 64 bytes, counts in every lane take an instruction less
// than one count for all of them.
template <class D, class V>
HWY_INLINE V shiftRight(D d, V v, int bits) {
#if HWY_TARGET <= HWY_AVX3
  using T = hn::TFromD<D>;
  if constexpr (sizeof(T) > 1 && sizeof(T) * MaxLanes(D()) == 64) {
    return hn::Shr(v, hn::Set(d, static_cast<T>(bits)));
  }
#endif
  (void)d;
  return hn::ShiftRightSame(v, bits);
}
template <class D, class V>
HWY_INLINE V shiftLeft(D d, V v, int bits) {
#if HWY_TARGET <= HWY_AVX3
  using T = hn::TFromD<D>;
  if constexpr (sizeof(T) > 1 && sizeof(T) * MaxLanes(D()) == 64) {
    return hn::Shl(v, hn::Set(d, static_cast<T>(bits)));
  }
#endif
  (void)d;
  return hn::ShiftLeftSame(v, bits);
}

// The lowest bit of a & b.
template <class D, class V>
HWY_INLINE V lowestOfBoth(D d, V a, V b) {
  const V one = hn::Set(d, hn::TFromD<D>{1});
#if HWY_TARGET <= HWY_AVX3
  if constexpr (sizeof(hn::TFromD<D>) * MaxLanes(D()) == 64) {
    return V{_mm512_ternarylogic_epi32(a.raw, b.raw, one.raw, 0x80)};
  }
#endif
  return hn::And(hn::And(a, b), one);
}

// h + l / 2 to nearest, ties to even, where l is the lowest bit of `half`; the others are ignored.
// Half a unit above the greatest value, which only differences reach, saturates.
template <bool kIsDifference = false, class D, class V>
HWY_INLINE V roundHalves(D d, V h, V half) {
  using T = hn::TFromD<D>;
  const V up = lowestOfBoth(d, h, half);
  if constexpr (!kIsDifference) {
    return hn::Add(h, up);
  } else if constexpr (sizeof(T) <= 2) {
    return hn::SaturatedAdd(h, up);
  } else {
    const V rounded = hn::Add(h, up);
    return hn::Add(rounded, hn::VecFromMask(d, hn::Gt(h, rounded)));
  }
}

// v + 1 where the mask is set.
template <class D, class M, class V>
HWY_INLINE V incrementWhere(D d, M mask, V v) {
#if HWY_TARGET <= HWY_AVX3
  return hn::IfThenElse(mask, hn::Add(v, hn::Set(d, hn::TFromD<D>{1})), v);
#else
  return hn::Sub(v, hn::VecFromMask(d, mask));
#endif
}

// (h + l / 2) / 2^bits likewise, 0 < bits <= the width of the lanes, or less than it if signed.
// With headroom, h + 2^(bits - 1) does not overflow.
template <bool kHeadroom = false, class D, class V>
HWY_INLINE V roundShift(D d, V h, V half, int bits) {
  using T = hn::TFromD<D>;
  using Unsigned = std::make_unsigned_t<T>;
  const auto middle = static_cast<Unsigned>(Unsigned{1} << (bits - 1));
  const V one = hn::Set(d, T{1});
  // Unsigned lanes of 32 bits may be shifted by all of them, which not every target can.
  const V quotient = std::is_same_v<T, uint32_t> ? hn::ShiftRight<1>(shiftRight(d, h, bits - 1))
                                                 : shiftRight(d, h, bits);
  const V quotientOrHalf = hn::Or(quotient, half);
  if constexpr (std::is_same_v<T, int16_t>) {
    // (h * 2^(15 - bits) + 2^14) >> 15 rounds ties up; one less, they go down.
    const V below = hn::SaturatedSub(h, hn::AndNot(quotientOrHalf, one));
    return hn::MulFixedPoint15(below, hn::Set(d, static_cast<T>(1 << (15 - bits))));
  } else if constexpr (kHeadroom) {
    const V addend = hn::Add(hn::Set(d, static_cast<T>(middle - 1)), hn::And(quotientOrHalf, one));
    return shiftRight(d, hn::Add(h, addend), bits);
  } else {
    const auto mask = static_cast<Unsigned>(middle - 1 + middle);
    const V remainder = hn::And(h, hn::Set(d, static_cast<T>(mask)));
    const V odd = hn::And(quotientOrHalf, one);
    if constexpr (std::is_signed_v<T> || HWY_TARGET <= HWY_AVX3) {
      const V threshold = hn::Sub(hn::Set(d, static_cast<T>(middle)), odd);
      return incrementWhere(d, hn::Gt(remainder, threshold), quotient);
    } else {
      // Here unsigned lanes have a maximum, but no comparison.
      const V least = hn::Sub(hn::Set(d, static_cast<T>(middle + 1)), odd);
      return incrementWhere(d, hn::Eq(hn::Max(remainder, least), remainder), quotient);
    }
  }
}

// r * 2^bits clamped to the range of Dst, 0 < bits <= kMagnitude<Dst>.
template <class Dst, class D, class V>
HWY_INLINE V shiftLeftSaturated(D d, V r, int bits) {
  using Wide = hn::TFromD<D>;
  const V max = hn::Set(d, static_cast<Wide>(std::numeric_limits<Dst>::max()));
  const V lastBelowMax = hn::Set(d, static_cast<Wide>(maxBeforeShift<Dst>(bits)));
  if constexpr (std::is_signed_v<Wide>) {
    const V min = hn::Set(d, static_cast<Wide>(std::numeric_limits<Dst>::min()));
    const V lastAboveMin = hn::Set(d, static_cast<Wide>(minBeforeShift<Dst>(bits)));
    const V shifted = shiftLeft(d, r, bits);
    const V belowMax = hn::IfThenElse(hn::Gt(r, lastBelowMax), max, shifted);
    return hn::IfThenElse(hn::Gt(lastAboveMin, r), min, belowMax);
  } else {
    const V clamped = hn::Min(r, lastBelowMax);
    return hn::IfThenElse(hn::Eq(clamped, r), shiftLeft(d, clamped, bits), max);
  }
}

// scaleTo() for lanes of Wide, the path a constant: results in the range of Dst, but for the paths
// of s >= 0, whose results a saturating narrowing or saturateTo() must follow. With headroom, |r|
// is at most a quarter of what the lanes hold.
template <ScalePath path, class Dst, bool kHeadroom = false, class D, class V>
HWY_INLINE V scaleTo(D d, V r, int bits) {
  if constexpr (path == ScalePath::kSaturate) {
    return r;
  } else if constexpr (path == ScalePath::kHalve) {
    return roundHalves(d, hn::ShiftRight<1>(r), r);
  } else if constexpr (path == ScalePath::kRound) {
    return roundShift<kHeadroom>(d, r, hn::Zero(d), bits);
  } else if constexpr (path == ScalePath::kShiftLeft) {
    return shiftLeftSaturated<Dst>(d, r, bits);
  } else {
    return hn::Zero(d);
  }
}

// Calls loop(tag) with the path as the constant tag.value.
template <class Loop>
HWY_INLINE auto withScalePath(ScalePath path, const Loop& loop) {
  switch (path) {
    case ScalePath::kSaturate:
      return loop(ScalePathTag<ScalePath::kSaturate>());
    case ScalePath::kHalve:
      return loop(ScalePathTag<ScalePath::kHalve>());
    case ScalePath::kRound:
      return loop(ScalePathTag<ScalePath::kRound>());
    case ScalePath::kShiftLeft:
      return loop(ScalePathTag<ScalePath::kShiftLeft>());
    case ScalePath::kZero:
      break;
  }
  return loop(ScalePathTag<ScalePath::kZero>());
}

// a + b and b - a clamped to the range of the lanes, for every integer type.
template <class D, class V>
HWY_INLINE V saturatedSum(D d, V a, V b) {
  using T = hn::TFromD<D>;
  if constexpr (sizeof(T) <= 2) {
    return hn::SaturatedAdd(a, b);
  } else if constexpr (!std::is_signed_v<T>) {
    return hn::Add(a, hn::Min(b, hn::Not(a)));
  } else {
    const V sum = hn::Add(a, b);
    const V overflow = hn::And(hn::Xor(a, sum), hn::Xor(b, sum));
    const V limit = hn::Xor(hn::BroadcastSignBit(a), hn::Set(d, std::numeric_limits<T>::max()));
    return hn::IfThenElse(hn::MaskFromVec(hn::BroadcastSignBit(overflow)), limit, sum);
  }
}
template <class D, class V>
HWY_INLINE V saturatedDifference(D d, V a, V b) {
  using T = hn::TFromD<D>;
  if constexpr (sizeof(T) <= 2) {
    return hn::SaturatedSub(b, a);
  } else {
    static_assert(std::is_signed_v<T>, "no function needs it");
    const V difference = hn::Sub(b, a);
    const V overflow = hn::And(hn::Xor(a, b), hn::Xor(b, difference));
    const V limit = hn::Xor(hn::BroadcastSignBit(b), hn::Set(d, std::numeric_limits<T>::max()));
    return hn::IfThenElse(hn::MaskFromVec(hn::BroadcastSignBit(overflow)), limit, difference);
  }
}

// floor((a + b) / 2); the bit that is lost is the lowest of a ^ b.
template <class D, class V>
HWY_INLINE V halfSum(D d, V a, V b) {
  using T = hn::TFromD<D>;
  const V differing = hn::Xor(a, b);
  if constexpr (!std::is_signed_v<T> && sizeof(T) <= 2) {
    return hn::Sub(hn::AverageRound(a, b), hn::And(differing, hn::Set(d, T{1})));
  } else {
    return hn::Add(hn::And(a, b), hn::ShiftRight<1>(differing));
  }
}

// floor((b - a) / 2) of signed lanes; the bit that is lost is again the lowest of a ^ b.
template <class V>
HWY_INLINE V halfDifference(V a, V b) {
  return hn::Sub(hn::ShiftRight<1>(hn::Xor(a, b)), hn::AndNot(b, a));
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
