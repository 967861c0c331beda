// Packed samples of three bytes.
#if defined(VEKS_VECTOR_CONVERSION_PACKED_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_CONVERSION_PACKED_INL_H
#undef VEKS_VECTOR_CONVERSION_PACKED_INL_H
#else
#define VEKS_VECTOR_CONVERSION_PACKED_INL_H
#endif

#include "core/convert-inl.h"
#include "core/loops-inl.h"
#include "core/scale-inl.h"
#include "vector/conversion/rounded-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// Samples as the upper three bytes of lanes of 32 bits; the lowest byte has any value.
template <class D>
HWY_INLINE hn::Vec<D> loadUpper(D d, const uint8_t* src) {
  constexpr size_t kLanes = MaxLanes(D());
  const hn::Repartition<uint8_t, D> d8;
  if constexpr (HWY_TARGET == HWY_EMU128 || kLanes < 4) {
    alignas(16) hn::TFromD<D> lanes[kLanes];
    for (size_t i = 0; i < kLanes; ++i) {
      const uint32_t low = src[3 * i];
      const uint32_t middle = src[3 * i + 1];
      const uint32_t high = src[3 * i + 2];
      lanes[i] = static_cast<hn::TFromD<D>>(low << 8 | middle << 16 | high << 24);
    }
    return hn::Load(d, lanes);
  } else if constexpr (kLanes == 4) {
    alignas(16) static constexpr uint8_t kOrder[16] = {0, 0, 1, 2, 0, 3, 4,  5,
                                                       0, 6, 7, 8, 0, 9, 10, 11};
    const hn::Half<decltype(d8)> d8Half;
    const hn::Half<decltype(d8Half)> d8Quarter;
    const auto end = hn::ZeroExtendVector(d8Half, hn::LoadU(d8Quarter, src + 8));
    const auto bytes = hn::Combine(d8, end, hn::LoadU(d8Half, src));
    return hn::BitCast(d, hn::TableLookupBytes(bytes, hn::Load(d8, kOrder)));
  } else if constexpr (kLanes == 8) {
    // The upper block begins 4 bytes before its samples, so that it ends with them.
    alignas(32) static constexpr uint8_t kOrder[32] = {
        0, 0, 1, 2, 0, 3, 4, 5, 0, 6,  7,  8,  0, 9,  10, 11,  //
        0, 4, 5, 6, 0, 7, 8, 9, 0, 10, 11, 12, 0, 13, 14, 15};
    const hn::Half<decltype(d8)> d8Half;
    const auto bytes = hn::Combine(d8, hn::LoadU(d8Half, src + 8), hn::LoadU(d8Half, src));
    return hn::BitCast(d, hn::TableLookupBytes(bytes, hn::Load(d8, kOrder)));
  } else {
    const hn::Half<D> dh;
    return hn::Combine(d, loadUpper(dh, src + 3 * kLanes / 2), loadUpper(dh, src));
  }
}

// Samples of Integer, int32_t or uint32_t.
template <class Integer>
struct Unpacked {
  const uint8_t* src;
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, size_t i) const {
    const hn::Rebind<Integer, D> di;
    const auto integers = hn::ShiftRight<8>(loadUpper(di, src + 3 * i));
    if constexpr (std::is_same_v<hn::TFromD<D>, float>) {
      return hn::ConvertTo(d, hn::BitCast(hn::Rebind<int32_t, D>(), integers));
    } else {
      return integers;
    }
  }
};

template <class Integer, class T>
VekStatus Unpack(const uint8_t* src, T* dst, size_t n) {
  produce(Unpacked<Integer>{src}, dst, n, false);
  return vekStsOk;
}

// The blocks of 12 bytes of each 16, one after the other.
template <size_t kLanes>
constexpr LaneOrder<kLanes> joinedBlocks() {
  LaneOrder<kLanes> order{};
  for (size_t i = 0; i < kLanes / 4 * 3; ++i) {
    order.source[i] = static_cast<int32_t>(i / 3 * 4 + i % 3);
  }
  return order;
}

// The lower three bytes of all lanes, followed by bytes of any value.
template <class D, class V>
HWY_INLINE auto joinLower(D /*d*/, V v) {
  constexpr size_t kLanes = MaxLanes(D());
  const hn::Repartition<uint8_t, D> d8;
  alignas(16) static constexpr uint8_t kOrder[16] = {0,  1,  2,  4,  5, 6, 8, 9,
                                                     10, 12, 13, 14, 0, 0, 0, 0};
  const auto order = hn::LoadDup128(d8, kOrder);
  const auto bytes = hn::TableLookupBytes(hn::BitCast(d8, v), order);
  if constexpr (kLanes > 4) {
    static constexpr LaneOrder<kLanes> kBlocks = joinedBlocks<kLanes>();
    return reorderLanes(bytes, kBlocks);
  } else {
    return bytes;
  }
}

// A full vector of samples, without bytes after them.
template <class D, class V>
HWY_INLINE void storePacked(D d, V v, uint8_t* dst) {
  const hn::ScalableTag<uint8_t> d8;
  HWY_ALIGN uint8_t bytes[MaxLanes(d8)];
  hn::Store(joinLower(d, v), d8, bytes);
  hwy::CopyBytes<3 * MaxLanes(D())>(bytes, dst);
}

template <class D, class Body>
HWY_INLINE void packShort(D d, const Body& body, uint8_t* dst, size_t n) {
  constexpr size_t kLanes = MaxLanes(D());
  if (n >= kLanes) {
    for (const size_t i : {size_t{0}, n - kLanes}) {
      alignas(64) hn::TFromD<D> samples[kLanes];
      hn::Store(body(d, i), d, samples);
      for (size_t k = 0; k < kLanes; ++k) {
        hwy::CopyBytes<3>(&samples[k], dst + 3 * (i + k));
      }
    }
  } else if constexpr (kLanes > 1) {
    packShort(hn::Half<D>(), body, dst, n);
  }
}

// Packs the samples body(d, i), lanes of 32 bits, to dst, which no source is. Most vectors are
// stored with bytes after their samples, over which the next one is stored.
template <class Integer, class Body>
HWY_INLINE void pack(const Body& body, uint8_t* dst, size_t n) {
  const hn::ScalableTag<Integer> d;
  const hn::ScalableTag<uint8_t> d8;
  constexpr size_t kLanes = MaxLanes(d);
  if (n < kLanes) return packShort(hn::Half<decltype(d)>(), body, dst, n);
  size_t i = 0;
  for (; 3 * (n - i) >= MaxLanes(d8); i += kLanes) {
    hn::StoreU(joinLower(d, body(d, i)), d8, dst + 3 * i);
  }
  if (n - i > kLanes) storePacked(d, body(d, i), dst + 3 * i);
  storePacked(d, body(d, n - kLanes), dst + 3 * (n - kLanes));
}

// Clamps lanes to the range of packed samples, signed or not as Integer is.
template <class Integer, class D, class V>
HWY_INLINE V saturatePacked(D d, V v) {
  using Lane = hn::TFromD<D>;
  constexpr Lane kMax = std::is_signed_v<Integer> ? (1 << 23) - 1 : (1 << 24) - 1;
  const V belowMax = hn::Min(v, hn::Set(d, kMax));
  if constexpr (!std::is_signed_v<Lane>) {
    return belowMax;
  } else {
    return hn::Max(belowMax, hn::Set(d, std::is_signed_v<Integer> ? -kMax - 1 : 0));
  }
}

template <ScalePath path, class Integer>
struct ScaledToPacked {
  const Integer* src;
  int bits;
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, size_t i) const {
    return saturatePacked<Integer>(d, scaleTo<path, Integer>(d, hn::LoadU(d, src + i), bits));
  }
};

template <class Integer>
VekStatus PackScaled(const Integer* src, uint8_t* dst, size_t n, int scaleFactor) {
  // Shifted by 24 bits to the left, everything but 0 saturates.
  const int bounded = scaleFactor < -24 ? -24 : scaleFactor;
  const Scale scale = chooseScale<Integer>(bounded, kMagnitude<Integer>);
  withScalePath(scale.path, [=](auto path) HWY_ATTR {
    pack<Integer>(ScaledToPacked<decltype(path)::value, Integer>{src, scale.bits}, dst, n);
  });
  return vekStsOk;
}

template <Rounding rounding, class Integer, class Source>
struct RoundedToPacked {
  Source source;
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, size_t i) const {
    const hn::Rebind<float, D> df;
    return saturatePacked<Integer>(d, toInt32<rounding, int32_t>(df, source(df, i)));
  }
};

template <class Integer>
VekStatus PackRounded(const float* src, uint8_t* dst, size_t n, int rndMode, int scaleFactor) {
  withRounding(src, rndMode, scaleFactor, [=](auto rounding, auto source) HWY_ATTR {
    constexpr Rounding kRounding = decltype(rounding)::value;
    pack<int32_t>(RoundedToPacked<kRounding, Integer, decltype(source)>{source}, dst, n);
  });
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
