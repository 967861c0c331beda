#include "veks/vector/initialisation.h"

#include <cstring>

#include "core/frame.h"
#include "core/short_vectors.h"
#include "core/targets.h"
#include "vector/operations.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/initialisation-inl.h"
#include <hwy/foreach_target.h>

#include "vector/initialisation-inl.h"

using namespace veks;

namespace {

template <class T>
inline VekStatus set(T val, T* dst, int len) {
  if (!dst) return vekErrNullPtr;
  if (!isShort<T>(len)) return generate(VEKS_KERNEL(Fill<T>), val, dst, len);
  const Block block = blockOf(val);
  return produceBlocks([=](size_t) { return block; }, dst, bytesBeyond<T>(len));
}

// Clearing and moving work on bytes, the same for every element type.
template <class T>
inline VekStatus zero(T* dst, int len) {
  if (!dst) return vekErrNullPtr;
  if (isShort<T>(len)) {
    return produceBlocks([](size_t) { return Block{}; }, dst, bytesBeyond<T>(len));
  }
  if (len <= 0) return vekErrSize;
  const size_t bytes = static_cast<size_t>(len) * sizeof(T);
  return VEKS_KERNEL(Zero)(reinterpret_cast<uint8_t*>(dst), bytes);
}

constexpr size_t kLongMove = 1 << 16;

// The C library knows of processors' own ways to copy. Only stores past the caches are faster, and
// those are not for what overlaps. Not inline: what its call needs would be moved about for all.
[[gnu::noinline]] VekStatus moveLong(const uint8_t* src, uint8_t* dst, size_t bytes) {
  const uintptr_t above = reinterpret_cast<uintptr_t>(dst) - reinterpret_cast<uintptr_t>(src);
  if (bytes >= streamingBytes && above >= bytes && 0 - above >= bytes) {
    return VEKS_KERNEL(Move)(src, dst, bytes);
  }
  std::memmove(dst, src, bytes);
  return vekStsOk;
}

template <class T>
inline VekStatus move(const T* src, T* dst, int len) {
  if (!src || !dst) return vekErrNullPtr;
  const uint8_t* const from = bytesOf(src);
  if (isShort<T>(len)) {
    const auto body = [=](size_t offset) { return loadBlock(from + offset); };
    size_t beyond = bytesBeyond<T>(len);
    // Else the compiler computes it in two ways, and the code leaves its cache line.
    asm("" : "+r"(beyond));
    return produceBlocks(body, dst, beyond);
  }
  if (len <= 0) return vekErrSize;
  uint8_t* const to = reinterpret_cast<uint8_t*>(dst);
  const size_t bytes = static_cast<size_t>(len) * sizeof(T);
  if (__builtin_expect(bytes >= kLongMove, 0)) return moveLong(from, to, bytes);
  return VEKS_KERNEL(Move)(from, to, bytes);
}

// A block of elements of kSize bytes in reverse order.
template <size_t kSize>
inline Block reversed(Block block) {
  using Pairs = uint64_t __attribute__((vector_size(16)));
  using Quads = uint32_t __attribute__((vector_size(16)));
  if constexpr (kSize == 16) {
    return block;
  } else if constexpr (kSize == 8) {
    const Pairs v = Pairs(block);
    return Block(__builtin_shufflevector(v, v, 1, 0));
  } else {
    const Quads v = Quads(block);
    return Block(__builtin_shufflevector(v, v, 3, 2, 1, 0));
  }
}

// Elements of less than four bytes take fewer instructions in a kernel.
template <class T>
inline bool isShortFlip(int len) {
  return sizeof(T) >= 4 && isShort<T>(len);
}

template <class T>
inline VekStatus flipShort(const T* src, T* dst, int len) {
  const size_t beyond = bytesBeyond<T>(len);
  const uint8_t* const last = bytesOf(src) + beyond + sizeof(Block);
  const auto body = [=](size_t offset) { return reversed<sizeof(T)>(loadBlock(last - offset)); };
  return produceBlocks(body, dst, beyond);
}

template <class T>
inline VekStatus flip(const T* src, T* dst, int len) {
  if (!src || !dst) return vekErrNullPtr;
  if (isShortFlip<T>(len)) return flipShort(src, dst, len);
  return mapOne(VEKS_KERNEL(Flip<T>), src, dst, len);
}

template <class T>
inline VekStatus flip(T* srcDst, int len) {
  if (!srcDst) return vekErrNullPtr;
  if (isShortFlip<T>(len)) return flipShort(srcDst, srcDst, len);
  return mapInPlace(VEKS_KERNEL(FlipInPlace<T>), srcDst, len);
}

}  // namespace

VekStatus veksSet_8u(Vek8u val, Vek8u* pDst, int len) {
  return set(val, pDst, len);
}

VekStatus veksSet_16s(Vek16s val, Vek16s* pDst, int len) {
  return set(val, pDst, len);
}

VekStatus veksSet_32s(Vek32s val, Vek32s* pDst, int len) {
  return set(val, pDst, len);
}

VekStatus veksSet_64s(Vek64s val, Vek64s* pDst, int len) {
  return set(val, pDst, len);
}

VekStatus veksSet_32f(Vek32f val, Vek32f* pDst, int len) {
  return set(val, pDst, len);
}

VekStatus veksSet_64f(Vek64f val, Vek64f* pDst, int len) {
  return set(val, pDst, len);
}

VekStatus veksSet_16sc(Vek16sc val, Vek16sc* pDst, int len) {
  return set(val, pDst, len);
}

VekStatus veksSet_32sc(Vek32sc val, Vek32sc* pDst, int len) {
  return set(val, pDst, len);
}

VekStatus veksSet_64sc(Vek64sc val, Vek64sc* pDst, int len) {
  return set(val, pDst, len);
}

VekStatus veksSet_32fc(Vek32fc val, Vek32fc* pDst, int len) {
  return set(val, pDst, len);
}

VekStatus veksSet_64fc(Vek64fc val, Vek64fc* pDst, int len) {
  return set(val, pDst, len);
}

VekStatus veksZero_8u(Vek8u* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_16s(Vek16s* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_32s(Vek32s* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_64s(Vek64s* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_32f(Vek32f* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_64f(Vek64f* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_16sc(Vek16sc* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_32sc(Vek32sc* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_64sc(Vek64sc* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_32fc(Vek32fc* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_64fc(Vek64fc* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksCopy_8u(const Vek8u* pSrc, Vek8u* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_16s(const Vek16s* pSrc, Vek16s* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_32s(const Vek32s* pSrc, Vek32s* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_64s(const Vek64s* pSrc, Vek64s* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_32sc(const Vek32sc* pSrc, Vek32sc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_64sc(const Vek64sc* pSrc, Vek64sc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_8u(const Vek8u* pSrc, Vek8u* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_16s(const Vek16s* pSrc, Vek16s* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_32s(const Vek32s* pSrc, Vek32s* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_64s(const Vek64s* pSrc, Vek64s* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_32sc(const Vek32sc* pSrc, Vek32sc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_64sc(const Vek64sc* pSrc, Vek64sc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksFlip_8u(const Vek8u* pSrc, Vek8u* pDst, int len) {
  return flip(pSrc, pDst, len);
}

VekStatus veksFlip_8u_I(Vek8u* pSrcDst, int len) {
  return flip(pSrcDst, len);
}

VekStatus veksFlip_16u(const Vek16u* pSrc, Vek16u* pDst, int len) {
  return flip(pSrc, pDst, len);
}

VekStatus veksFlip_16u_I(Vek16u* pSrcDst, int len) {
  return flip(pSrcDst, len);
}

VekStatus veksFlip_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return flip(pSrc, pDst, len);
}

VekStatus veksFlip_32f_I(Vek32f* pSrcDst, int len) {
  return flip(pSrcDst, len);
}

VekStatus veksFlip_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return flip(pSrc, pDst, len);
}

VekStatus veksFlip_64f_I(Vek64f* pSrcDst, int len) {
  return flip(pSrcDst, len);
}

VekStatus veksFlip_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len) {
  return flip(pSrc, pDst, len);
}

VekStatus veksFlip_16sc_I(Vek16sc* pSrcDst, int len) {
  return flip(pSrcDst, len);
}

VekStatus veksFlip_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len) {
  return flip(pSrc, pDst, len);
}

VekStatus veksFlip_32fc_I(Vek32fc* pSrcDst, int len) {
  return flip(pSrcDst, len);
}

VekStatus veksFlip_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len) {
  return flip(pSrc, pDst, len);
}

VekStatus veksFlip_64fc_I(Vek64fc* pSrcDst, int len) {
  return flip(pSrcDst, len);
}

VekStatus veksSwapBytes_16u(const Vek16u* pSrc, Vek16u* pDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<SwapBytes, Vek16u>), pSrc, pDst, len);
}

VekStatus veksSwapBytes_16u_I(Vek16u* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<SwapBytes, Vek16u>), pSrcDst, pSrcDst, len);
}

VekStatus veksSwapBytes_24u(const Vek8u* pSrc, Vek8u* pDst, int len) {
  return mapOne(VEKS_KERNEL(SwapBytes24), pSrc, pDst, len);
}

VekStatus veksSwapBytes_24u_I(Vek8u* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(SwapBytes24), pSrcDst, pSrcDst, len);
}

VekStatus veksSwapBytes_32u(const Vek32u* pSrc, Vek32u* pDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<SwapBytes, Vek32u>), pSrc, pDst, len);
}

VekStatus veksSwapBytes_32u_I(Vek32u* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<SwapBytes, Vek32u>), pSrcDst, pSrcDst, len);
}
