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
  fill<uint8_t>(0, dst, bytes);
  return vekStsOk;
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
    hn::StoreU(body(d, end - kLanes), d, dst + end - kLanes);
    hn::StoreU(body(d, end - 2 * kLanes), d, dst + end - 2 * kLanes);
    hn::StoreU(body(d, end - 3 * kLanes), d, dst + end - 3 * kLanes);
    hn::StoreU(body(d, end - 4 * kLanes), d, dst + end - 4 * kLanes);
  }
  for (; end > kLanes; end -= kLanes) hn::StoreU(body(d, end - kLanes), d, dst + end - kLanes);
  hn::StoreU(last, d, dst + n - kLanes);
  hn::StoreU(first, d, dst);
}

inline VekStatus Move(const uint8_t* src, uint8_t* dst, size_t n) {
  const Bytes body{src};
  // Modulo the address space: each is huge where the other is the distance.
  const uintptr_t above = reinterpret_cast<uintptr_t>(dst) - reinterpret_cast<uintptr_t>(src);
  const uintptr_t below = 0 - above;
  const hn::ScalableTag<uint8_t> d;
  if (HWY_LIKELY(n <= 2 * MaxLanes(d)) || HWY_LIKELY(above >= n)) {
    produce(body, dst, n, below < n);
  } else if (above > 0) {
    moveDown(body, dst, n);
  }
  return vekStsOk;
}

// An order of the bytes of each block of a vector: byte i of a block is its byte source[i % 16].
// For all blocks of the longest vector, so that it is an operand in memory.
struct ByteOrder {
  alignas(64) uint8_t source[64];
};

// Elements of kSize bytes in reverse order, in a block of kBlock bytes.
template <size_t kSize, size_t kBlock>
constexpr ByteOrder reversedElements() {
  ByteOrder order{};
  for (size_t i = 0; i < 64; ++i) {
    const size_t byte = i % 16;
    order.source[i] = static_cast<uint8_t>(kBlock - kSize - byte / kSize * kSize + byte % kSize);
  }
  return order;
}

// The bytes of each element of kSize bytes in reverse order.
template <size_t kSize>
constexpr ByteOrder reversedBytes() {
  ByteOrder order{};
  for (size_t i = 0; i < 64; ++i) order.source[i] = static_cast<uint8_t>(i % 16 ^ (kSize - 1));
  return order;
}

template <class D>
HWY_INLINE hn::VFromD<D> reordered(D d, hn::VFromD<D> v, const ByteOrder& order) {
  const hn::Repartition<uint8_t, D> d8;
  return hn::BitCast(d, hn::TableLookupBytes(hn::BitCast(d8, v), hn::Load(d8, order.source)));
}

// The lanes of v in groups of kGroup, in reverse order.
template <size_t kGroup, class D>
HWY_INLINE hn::VFromD<D> reversed(D d, hn::VFromD<D> v) {
  constexpr size_t kElement = kGroup * sizeof(hn::TFromD<D>);
  constexpr size_t kVector = MaxLanes(D()) * sizeof(hn::TFromD<D>);
  constexpr size_t kBlock = kVector < 16 ? kVector : 16;
  if constexpr (kElement < kBlock) {
    static constexpr ByteOrder kOrder = reversedElements<kElement, kBlock>();
    v = reordered(d, v, kOrder);
  }
  if constexpr (kVector == 32) return hn::ConcatLowerUpper(d, v, v);
  if constexpr (kVector > 32) return hn::ReverseBlocks(d, v);
  return v;
}

// The last elements of a vector first: body of the forward loop for separate vectors.
template <size_t kGroup, class T>
struct FromTheEnd {
  const T* end;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return reversed<kGroup>(d, hn::LoadU(d, end - i - MaxLanes(D())));
  }
};

// Swaps elements i .. n - 1 - i from both ends, at most two vectors of tag d. One vector is swapped
// as halves: all of it would be stored twice.
template <size_t kGroup, class D, class T>
HWY_INLINE void flipMiddle(D d, T* srcDst, size_t i, size_t n) {
  constexpr size_t kLanes = MaxLanes(D());
  if (HWY_LIKELY(n - 2 * i > kLanes || (kLanes == kGroup && n - 2 * i == kLanes))) {
    T* const low = srcDst + i;
    T* const high = srcDst + n - i - kLanes;
    if constexpr (kLanes == 2 * kGroup) {
      // Two elements of a vector are swapped on the way, as halves.
      const hn::Half<D> half;
      const auto low0 = hn::LoadU(half, low);
      const auto low1 = hn::LoadU(half, low + kGroup);
      const auto high0 = hn::LoadU(half, high);
      const auto high1 = hn::LoadU(half, high + kGroup);
      hn::StoreU(high1, half, low);
      hn::StoreU(high0, half, low + kGroup);
      hn::StoreU(low1, half, high);
      hn::StoreU(low0, half, high + kGroup);
    } else {
      const auto lows = hn::LoadU(d, low);
      const auto highs = hn::LoadU(d, high);
      hn::StoreU(reversed<kGroup>(d, highs), d, low);
      hn::StoreU(reversed<kGroup>(d, lows), d, high);
    }
  } else if constexpr (kLanes > kGroup) {
    flipMiddle<kGroup>(hn::Half<D>(), srcDst, i, n);
  }
}

// Flip works on elements of 1, 2, 4, 8 or 16 bytes, as groups of one or two lanes.
template <class T>
struct FlipTypes {
  static constexpr size_t kGroup = sizeof(T) == 16 ? 2 : 1;
  using Lane = hwy::UnsignedFromSize<sizeof(T) / kGroup>;
};

// Short vectors of one or two bytes an element, blocks of 16 bytes from either end. These take no
// instruction across blocks, which counts where a following call waits for them.
template <class T>
HWY_INLINE bool isFlippedInBlocks(size_t len) {
  return sizeof(T) <= 2 && HWY_LIKELY(len - 32 / sizeof(T) <= 32 / sizeof(T));
}

template <class T>
HWY_INLINE VekStatus flipBlocks(const T* src, T* dst, size_t n) {
  const hn::Full128<T> d;
  constexpr size_t kBlock = 16 / sizeof(T);
  const auto first = hn::LoadU(d, src);
  const auto second = hn::LoadU(d, src + kBlock);
  const auto third = hn::LoadU(d, src + n - 2 * kBlock);
  const auto last = hn::LoadU(d, src + n - kBlock);
  hn::StoreU(reversed<1>(d, last), d, dst);
  hn::StoreU(reversed<1>(d, third), d, dst + kBlock);
  hn::StoreU(reversed<1>(d, second), d, dst + n - 2 * kBlock);
  hn::StoreU(reversed<1>(d, first), d, dst + n - kBlock);
  return vekStsOk;
}

// srcDst[i] = srcDst[len - 1 - i]
template <class T>
VekStatus FlipInPlace(T* srcDst, size_t len) {
  using Lane = typename FlipTypes<T>::Lane;
  constexpr size_t kGroup = FlipTypes<T>::kGroup;
  const hn::ScalableTag<Lane> d;
  constexpr size_t kLanes = MaxLanes(d);
  Lane* const lanes = reinterpret_cast<Lane*>(srcDst);
  const size_t n = kGroup * len;
  if constexpr (sizeof(T) <= 2) {
    if (isFlippedInBlocks<T>(len)) return flipBlocks(srcDst, srcDst, len);
  }
  size_t i = 0;
  for (; HWY_UNLIKELY(n - 2 * i > 2 * kLanes); i += kLanes) {
    const auto low = hn::LoadU(d, lanes + i);
    const auto high = hn::LoadU(d, lanes + n - i - kLanes);
    hn::StoreU(reversed<kGroup>(d, high), d, lanes + i);
    hn::StoreU(reversed<kGroup>(d, low), d, lanes + n - i - kLanes);
  }
  flipMiddle<kGroup>(d, lanes, i, n);
  return vekStsOk;
}

// dst[i] = src[len - 1 - i]
template <class T>
VekStatus Flip(const T* src, T* dst, size_t len) {
  using Lane = typename FlipTypes<T>::Lane;
  constexpr size_t kGroup = FlipTypes<T>::kGroup;
  if constexpr (sizeof(T) <= 2) {
    if (isFlippedInBlocks<T>(len)) return flipBlocks(src, dst, len);
  }
  if (HWY_UNLIKELY(src == dst)) return FlipInPlace<T>(dst, len);
  const Lane* const end = reinterpret_cast<const Lane*>(src + len);
  produce<kGroup>(FromTheEnd<kGroup, Lane>{end}, reinterpret_cast<Lane*>(dst), kGroup * len, false);
  return vekStsOk;
}

template <>
struct Operation<SwapBytes> {
  template <class D>
  HWY_INLINE hn::VFromD<D> operator()(D d, hn::VFromD<D> v) const {
    static constexpr ByteOrder kOrder = reversedBytes<sizeof(hn::TFromD<D>)>();
    return reordered(d, v, kOrder);
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
