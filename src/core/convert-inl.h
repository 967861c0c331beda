// Conversion between types of different widths, with the lanes in order.
#if defined(VEKS_CORE_CONVERT_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_CORE_CONVERT_INL_H
#undef VEKS_CORE_CONVERT_INL_H
#else
#define VEKS_CORE_CONVERT_INL_H
#endif

#include <hwy/highway.h>

#include "core/widen-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// Loads integers as lanes of float or double.
template <class D, class S>
HWY_INLINE hn::Vec<D> loadAsFloats(D d, const S* src) {
  const hn::Rebind<int32_t, D> di;
  const auto integers = [&]() HWY_ATTR {
    if constexpr (sizeof(S) == 4) {
      return hn::LoadU(di, src);
    } else {
      return hn::PromoteTo(di, hn::LoadU(hn::Rebind<S, D>(), src));
    }
  };
  if constexpr (sizeof(hn::TFromD<D>) == 4) {
    return hn::ConvertTo(d, integers());
  } else {
    return hn::PromoteTo(d, integers());
  }
}

// Lanes of double as lanes of float. EMU128's own conversion does not overflow to infinity.
template <class D, class V>
HWY_INLINE hn::Vec<D> demoteFloats(D d, V v) {
#if HWY_TARGET == HWY_EMU128
  hn::Vec<D> narrow;
  for (size_t i = 0; i < MaxLanes(d); ++i) narrow.raw[i] = static_cast<float>(v.raw[i]);
  return narrow;
#else
  return hn::DemoteTo(d, v);
#endif
}

// Where the lanes of 32 bits of a vector come from.
template <size_t kLanes>
struct LaneOrder {
  int32_t source[kLanes];
};

// The order of kParts vectors, of which each block of 16 bytes has a piece.
template <size_t kParts, size_t kLanes>
constexpr LaneOrder<kLanes> partsInOrder() {
  constexpr size_t kBlocks = kLanes / 4;
  constexpr size_t kPiece = 4 / kParts;
  LaneOrder<kLanes> order{};
  for (size_t i = 0; i < kLanes; ++i) {
    const size_t part = i / kPiece / kBlocks;
    const size_t block = i / kPiece % kBlocks;
    order.source[i] = static_cast<int32_t>((block * kParts + part) * kPiece + i % kPiece);
  }
  return order;
}

template <class V, size_t kLanes>
HWY_INLINE V reorderLanes(V v, const LaneOrder<kLanes>& order) {
  const hn::ScalableTag<int32_t> di;
  const auto indices = hn::SetTableIndices(di, order.source);
  const auto lanes = hn::TableLookupLanes(hn::BitCast(di, v), indices);
  return hn::BitCast(hn::ScalableTag<hn::TFromV<V>>(), lanes);
}

// The lanes of kParts vectors in order, after narrowBlocks() of them.
template <size_t kParts, class V>
HWY_INLINE V inOrder(V v) {
  constexpr size_t kLanes = MaxLanes(hn::ScalableTag<int32_t>());
  if constexpr (kLanes == 4) {
    return v;
  } else {
    static constexpr LaneOrder<kLanes> kOrder = partsInOrder<kParts, kLanes>();
    return reorderLanes(v, kOrder);
  }
}

// The results f(dw, i) of elements from i on, lanes of the signed type Wide, saturated to the lanes
// of d.
template <class Wide, class D, class F>
HWY_INLINE hn::Vec<D> narrowed(D d, size_t i, const F& f) {
  using T = hn::TFromD<D>;
  const hn::ScalableTag<Wide> dw;
  constexpr size_t kLanes = MaxLanes(D());
  constexpr size_t kWide = MaxLanes(dw);
  if constexpr (sizeof(T) == sizeof(Wide)) {
    return f(d, i);
  } else if constexpr (kLanes <= kWide) {
    return hn::DemoteTo(d, f(hn::Rebind<Wide, D>(), i));
  } else if constexpr (kLanes < MaxLanes(hn::ScalableTag<T>())) {
    const hn::Half<D> dh;
    const auto low = narrowed<Wide>(dh, i, f);
    return hn::Combine(d, narrowed<Wide>(dh, i + kLanes / 2, f), low);
  } else if constexpr (2 * sizeof(T) == sizeof(Wide)) {
    const auto low = f(dw, i);
    return inOrder<2>(narrowBlocks<T>(low, f(dw, i + kWide)));
  } else {
    const auto first = f(dw, i);
    const auto low = narrowBlocks<int16_t>(first, f(dw, i + kWide));
    const auto third = f(dw, i + 2 * kWide);
    const auto high = narrowBlocks<int16_t>(third, f(dw, i + 3 * kWide));
    return inOrder<4>(narrowBlocks<T>(low, high));
  }
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
