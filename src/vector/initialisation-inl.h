#if defined(VEKS_VECTOR_INITIALISATION_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_INITIALISATION_INL_H
#undef VEKS_VECTOR_INITIALISATION_INL_H
#else
#define VEKS_VECTOR_INITIALISATION_INL_H
#endif

#include "core/loops-inl.h"
#include "vector/fill-inl.h"
#include "vector/operations.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

inline VekStatus Zero(uint8_t* dst, size_t bytes) {
  return Fill<uint8_t>(0, dst, bytes);
}

struct Bytes {
  const uint8_t* src;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return hn::LoadU(d, src + i);
  }
};

// More than two vectors from the end downwards, for a destination above its source.
HWY_INLINE void moveDown(const Bytes& body, uint8_t* dst, size_t n) {
  const hn::ScalableTag<uint8_t> d;
  constexpr size_t kLanes = MaxLanes(d);
  const auto first = body(d, 0);
  const auto last = body(d, n - kLanes);
  size_t end = n - reinterpret_cast<uintptr_t>(dst + n) % kLanes;
  for (; end >= 4 * kLanes; end -= 4 * kLanes) {
    const auto v0 = body(d, end - kLanes);
    const auto v1 = body(d, end - 2 * kLanes);
    const auto v2 = body(d, end - 3 * kLanes);
    const auto v3 = body(d, end - 4 * kLanes);
    hn::StoreU(v0, d, dst + end - kLanes);
    hn::StoreU(v1, d, dst + end - 2 * kLanes);
    hn::StoreU(v2, d, dst + end - 3 * kLanes);
    hn::StoreU(v3, d, dst + end - 4 * kLanes);
  }
  for (; end > kLanes; end -= kLanes) hn::StoreU(body(d, end - kLanes), d, dst + end - kLanes);
  hn::StoreU(last, d, dst + n - kLanes);
  hn::StoreU(first, d, dst);
}

inline VekStatus Move(const uint8_t* src, uint8_t* dst, size_t n) {
  const Bytes body{src};
  const size_t above = static_cast<size_t>(dst - src);  // huge for a destination below the source
  if (above >= n) {
    const bool overlap = static_cast<size_t>(src - dst) < n;
    produce(body, dst, n, overlap);
    return vekStsOk;
  }
  if (above == 0) return vekStsOk;
  const hn::ScalableTag<uint8_t> d;
  if (n <= 2 * MaxLanes(d)) {
    produceShort(d, body, dst, n);
  } else {
    moveDown(body, dst, n);
  }
  return vekStsOk;
}

// The lanes of v in groups of kGroup, in reverse order.
template <size_t kGroup, class D, class V>
HWY_INLINE V reversed(D d, V v) {
  constexpr size_t kLanes = MaxLanes(D());
  if constexpr (kLanes <= kGroup) {
    return v;
  } else if constexpr (kGroup == 2) {
    return hn::ConcatLowerUpper(d, v, v);
  } else if constexpr (sizeof(hn::TFromD<D>) == 1 && kLanes > 2) {
    const hn::Repartition<uint16_t, D> d16;
    const auto pairs = hn::BitCast(d16, v);
    const auto swapped = hn::Or(hn::ShiftLeft<8>(pairs), hn::ShiftRight<8>(pairs));
    return hn::BitCast(d, hn::Reverse(d16, swapped));
  } else if constexpr (sizeof(hn::TFromD<D>) == 1) {
    const hn::Repartition<uint16_t, D> d16;
    const auto pair = hn::BitCast(d16, v);
    return hn::BitCast(d, hn::Or(hn::ShiftLeft<8>(pair), hn::ShiftRight<8>(pair)));
  } else {
    return hn::Reverse(d, v);
  }
}

// The elements i .. n - 1 - i that are left in the middle, less than two vectors of tag d.
template <size_t kGroup, class D, class T>
HWY_INLINE void flipMiddle(D d, const T* src, T* dst, size_t i, size_t n) {
  constexpr size_t kLanes = MaxLanes(D());
  if (n - 2 * i >= kLanes) {
    const auto low = hn::LoadU(d, src + i);
    const auto high = hn::LoadU(d, src + n - i - kLanes);
    hn::StoreU(reversed<kGroup>(d, high), d, dst + i);
    hn::StoreU(reversed<kGroup>(d, low), d, dst + n - i - kLanes);
  } else if constexpr (kLanes > 1) {
    flipMiddle<kGroup>(hn::Half<D>(), src, dst, i, n);
  }
}

// dst[i] = src[n - 1 - i] for elements of 1, 2, 4, 8 or 16 bytes. Works from both ends to the
// middle: each step reads the two vectors that it writes, so src may be dst.
template <class T>
VekStatus Flip(const T* pSrc, T* pDst, size_t len) {
  constexpr size_t kGroup = sizeof(T) == 16 ? 2 : 1;
  using Lane = hwy::UnsignedFromSize<sizeof(T) / kGroup>;
  const hn::ScalableTag<Lane> d;
  constexpr size_t kLanes = MaxLanes(d);
  const Lane* const src = reinterpret_cast<const Lane*>(pSrc);
  Lane* const dst = reinterpret_cast<Lane*>(pDst);
  const size_t n = kGroup * len;
  size_t i = 0;
  for (; n - 2 * i >= 2 * kLanes; i += kLanes) {
    const auto low = hn::LoadU(d, src + i);
    const auto high = hn::LoadU(d, src + n - i - kLanes);
    hn::StoreU(reversed<kGroup>(d, high), d, dst + i);
    hn::StoreU(reversed<kGroup>(d, low), d, dst + n - i - kLanes);
  }
  if (n > 2 * i) flipMiddle<kGroup>(d, src, dst, i, n);
  return vekStsOk;
}

template <>
struct Operation<SwapBytes> {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    if constexpr (sizeof(hn::TFromD<D>) == 2) {
      return hn::Or(hn::ShiftLeft<8>(v), hn::ShiftRight<8>(v));
    } else {
      const auto outer = hn::Or(hn::ShiftLeft<24>(v), hn::ShiftRight<24>(v));
      const auto low = hn::And(hn::ShiftRight<8>(v), hn::Set(d, 0xFF00u));
      const auto high = hn::ShiftLeft<8>(hn::And(v, hn::Set(d, 0xFF00u)));
      return hn::Or(outer, hn::Or(low, high));
    }
  }
};

// n packed samples of three bytes. A block of 16 bytes holds five samples and a byte of the sixth,
// which keeps its value; each block is loaded before the one below it is stored, so src may be dst.
inline VekStatus SwapBytes24(const uint8_t* src, uint8_t* dst, size_t n) {
  const hn::FixedTag<uint8_t, 16> d;
  alignas(16) static constexpr uint8_t kOrder[16] = {2, 1,  0,  5, 4,  3,  8,  7,
                                                     6, 11, 10, 9, 14, 13, 12, 15};
  const auto order = hn::Load(d, kOrder);
  size_t left = n;
  if (left >= 6) {
    auto block = hn::LoadU(d, src);
    for (; left >= 11; left -= 5, src += 15, dst += 15) {
      const auto next = hn::LoadU(d, src + 15);
      hn::StoreU(hn::TableLookupBytes(block, order), d, dst);
      block = next;
    }
    hn::StoreU(hn::TableLookupBytes(block, order), d, dst);
    left -= 5;
    src += 15;
    dst += 15;
  }
  for (; left > 0; --left, src += 3, dst += 3) {
    const uint8_t first = src[0];
    dst[1] = src[1];
    dst[0] = src[2];
    dst[2] = first;
  }
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
