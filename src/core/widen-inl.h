// Wider lanes: full vectors of T become pairs of vectors of a type that holds every product, and
// such pairs become vectors of T again. How the lanes are spread over a pair is the type's own
// affair: the cheapest way that narrow() undoes.
#if defined(VEKS_CORE_WIDEN_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_CORE_WIDEN_INL_H
#undef VEKS_CORE_WIDEN_INL_H
#else
#define VEKS_CORE_WIDEN_INL_H
#endif

#include <hwy/highway.h>

#include "core/scale-inl.h"
#include "core/targets.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <class V>
struct Pair {
  V first;
  V second;
};

// Vectors shorter than full ones, with lanes of any value above, and back.
template <class D, class V>
HWY_INLINE auto extend(D /*d*/, V v) {
  if constexpr (MaxLanes(D()) == MaxLanes(hn::ScalableTag<hn::TFromD<D>>())) {
    return v;
  } else {
    const hn::Twice<D> d2;
    return extend(d2, hn::ZeroExtendVector(d2, v));
  }
}
template <class D, class V>
HWY_INLINE hn::Vec<D> truncate(D d, V v) {
  if constexpr (std::is_same_v<hn::Vec<D>, V>) {
    return v;
  } else {
    const hn::Twice<D> d2;
    return hn::LowerHalf(d, truncate(d2, v));
  }
}

// f(full vectors of v ...) for vectors of any length.
template <class D, class F, class... V>
HWY_INLINE hn::Vec<D> onFullVectors(D d, const F& f, V... v) {
  return truncate(d, f(extend(d, v)...));
}

// The results f(d, i) of elements from i on, put together from parts whose lanes, widened to the
// size of Wide, fill at most one vector.
template <class Wide, class D, class F>
HWY_INLINE hn::Vec<D> inParts(D d, size_t i, const F& f) {
  if constexpr (MaxLanes(D()) <= MaxLanes(hn::ScalableTag<Wide>())) {
    return f(d, i);
  } else {
    const hn::Half<D> dh;
    const auto low = inParts<Wide>(dh, i, f);
    return hn::Combine(d, inParts<Wide>(dh, i + MaxLanes(dh), f), low);
  }
}

// Saturating conversion to lanes half as wide: in each block of 16 bytes first the lanes of lo,
// then those of hi. Unsigned lanes must have the highest bit clear.
template <class Dst, class V>
HWY_INLINE auto narrowBlocks(V lo, V hi) {
  const hn::ScalableTag<Dst> d;
#if HWY_TARGET == HWY_EMU128
  hn::Vec<decltype(d)> narrow;
  constexpr size_t kHalf = MaxLanes(d) / 2;
  for (size_t i = 0; i < kHalf; ++i) {
    narrow.raw[i] = veks::saturateTo<Dst>(lo.raw[i]);
    narrow.raw[kHalf + i] = veks::saturateTo<Dst>(hi.raw[i]);
  }
  return narrow;
#else
#if HWY_TARGET == HWY_SSE4
#define VEKS_PACK(name) _mm_##name
#elif HWY_TARGET == HWY_AVX2
#define VEKS_PACK(name) _mm256_##name
#else
#define VEKS_PACK(name) _mm512_##name
#endif
  using Narrow = hn::Vec<decltype(d)>;
  using Wide = hn::TFromV<V>;
  constexpr bool kSigned = std::is_signed_v<Dst>;
  if constexpr (sizeof(Wide) == 4 && kSigned) {
    return Narrow{VEKS_PACK(packs_epi32)(lo.raw, hi.raw)};
  } else if constexpr (sizeof(Wide) == 4) {
    return Narrow{VEKS_PACK(packus_epi32)(lo.raw, hi.raw)};
  } else if constexpr (kSigned) {
    return Narrow{VEKS_PACK(packs_epi16)(lo.raw, hi.raw)};
  } else {
    return Narrow{VEKS_PACK(packus_epi16)(lo.raw, hi.raw)};
  }
#undef VEKS_PACK
#endif
}

// Lanes twice as wide from their low and high parts, in the order that narrowBlocks() undoes.
template <class Wide, class D, class V>
HWY_INLINE auto zip(D d, V low, V high) {
  const hn::Repartition<Wide, D> dw;
  const auto first = hn::BitCast(dw, hn::InterleaveLower(d, low, high));
  return Pair<decltype(first)>{first, hn::BitCast(dw, hn::InterleaveUpper(d, low, high))};
}

template <class T>
struct Widening;

template <>
struct Widening<int16_t> {
  using Wide = int32_t;
  template <class D, class V>
  static HWY_INLINE auto multiply(D d, V a, V b) {
    return zip<Wide>(d, hn::Mul(a, b), hn::MulHigh(a, b));
  }
  template <class D, class V>
  static HWY_INLINE auto promote(D d, V v) {
    return zip<Wide>(d, v, hn::BroadcastSignBit(v));
  }
  template <class V>
  static HWY_INLINE auto narrow(Pair<V> wide) {
    return narrowBlocks<int16_t>(wide.first, wide.second);
  }
};

template <>
struct Widening<uint16_t> {
  using Wide = uint32_t;
  template <class D, class V>
  static HWY_INLINE auto multiply(D d, V a, V b) {
    return zip<Wide>(d, hn::Mul(a, b), hn::MulHigh(a, b));
  }
  template <class V>
  static HWY_INLINE auto narrow(Pair<V> wide) {
    const hn::ScalableTag<Wide> dw;
    return narrowBlocks<uint16_t>(saturateTo<uint16_t>(dw, wide.first),
                                  saturateTo<uint16_t>(dw, wide.second));
  }
};

template <>
struct Widening<uint8_t> {
  using Wide = uint16_t;
  template <class D, class V>
  static HWY_INLINE auto multiply(D d, V a, V b) {
    const auto wideA = zip<Wide>(d, a, hn::Zero(d));
    const auto wideB = zip<Wide>(d, b, hn::Zero(d));
    const auto first = hn::Mul(wideA.first, wideB.first);
    return Pair<decltype(first)>{first, hn::Mul(wideA.second, wideB.second)};
  }
  template <class V>
  static HWY_INLINE auto narrow(Pair<V> wide) {
    const hn::ScalableTag<Wide> dw;
    return narrowBlocks<uint8_t>(saturateTo<uint8_t>(dw, wide.first),
                                 saturateTo<uint8_t>(dw, wide.second));
  }
};

// The even and the odd lanes.
template <>
struct Widening<int32_t> {
  using Wide = int64_t;
  // The odd lanes in the places of the even ones.
  template <class D, class V>
  static HWY_INLINE V odd(D d, V v) {
    const hn::Repartition<uint64_t, D> du;
    return hn::BitCast(d, hn::ShiftRight<32>(hn::BitCast(du, v)));
  }
  template <class D, class V>
  static HWY_INLINE auto multiply(D d, V a, V b) {
    const auto first = hn::MulEven(a, b);
    return Pair<decltype(first)>{first, hn::MulEven(odd(d, a), odd(d, b))};
  }
  template <class D, class V>
  static HWY_INLINE auto promote(D d, V v) {
    return multiply(d, v, hn::Set(d, 1));
  }
  template <class V>
  static HWY_INLINE auto narrow(Pair<V> wide) {
    const hn::ScalableTag<int64_t> dw;
    const hn::ScalableTag<int32_t> d;
    const auto even = saturateTo<int32_t>(dw, wide.first);
    const auto odd = hn::ShiftLeft<32>(saturateTo<int32_t>(dw, wide.second));
    return hn::OddEven(hn::BitCast(d, odd), hn::BitCast(d, even));
  }
};

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
