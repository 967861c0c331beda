// Vectors of two to four blocks of 16 bytes, in the entry point itself: the jump to a kernel would
// be a fifth of their time, and what lies in several short blocks is back sooner for a following
// call and crosses fewer cache lines than in one long one.
#ifndef VEKS_CORE_SHORT_VECTORS_H
#define VEKS_CORE_SHORT_VECTORS_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/frame.h"

namespace veks {

using Block = uint8_t __attribute__((vector_size(16)));

inline Block loadBlock(const void* src) {
  Block block;
  std::memcpy(&block, src, sizeof(block));
  return block;
}

inline void storeBlock(Block block, void* dst) {
  std::memcpy(dst, &block, sizeof(block));
}

// Asked before a length is checked, it spares short vectors that.
template <class T>
inline bool isShort(int len) {
  constexpr unsigned kLeast = 2 * sizeof(Block) / sizeof(T);
  return __builtin_expect(static_cast<unsigned>(len) - kLeast <= kLeast, 1);
}

// The bytes of a short vector beyond two blocks.
template <class T>
inline size_t bytesBeyond(int len) {
  constexpr unsigned kLeast = 2 * sizeof(Block) / sizeof(T);
  return size_t{static_cast<unsigned>(len) - kLeast} * sizeof(T);
}

// body(offset) gives a block of the results. All are computed before the first is stored; those of
// either end overlap in the middle.
template <class Body, class T>
inline VekStatus produceBlocks(const Body& body, T* dst, size_t beyond) {
  constexpr size_t kBlock = sizeof(Block);
  uint8_t* const out = reinterpret_cast<uint8_t*>(dst);
  const Block first = body(0);
  const Block second = body(kBlock);
  const Block third = body(beyond);
  const Block last = body(beyond + kBlock);
  storeBlock(first, out);
  storeBlock(second, out + kBlock);
  storeBlock(third, out + beyond);
  storeBlock(last, out + beyond + kBlock);
  return vekStsOk;
}

template <class T>
inline const uint8_t* bytesOf(const T* vector) {
  return reinterpret_cast<const uint8_t*>(vector);
}

template <class Lane>
inline Block splat(Lane bits) {
  typedef Lane Lanes __attribute__((vector_size(16)));
  return Block(Lanes{} + bits);
}

// A block of one value.
template <class T>
inline Block blockOf(T val) {
  using Bits = std::conditional_t<
      sizeof(T) == 1, uint8_t,
      std::conditional_t<sizeof(T) == 2, uint16_t,
                         std::conditional_t<sizeof(T) == 4, uint32_t, uint64_t>>>;
  constexpr size_t kParts = sizeof(T) > 8 ? 2 : 1;
  Bits bits[kParts];
  std::memcpy(bits, &val, sizeof(val));
  if constexpr (kParts == 1) {
    return splat(bits[0]);
  } else {
    using Lanes = uint64_t __attribute__((vector_size(16)));
    return Block(Lanes{bits[0], bits[1]});
  }
}

// Frames whose kernels leave short vectors to Op, a functor on blocks.
template <class Op, class Kernel, class T>
inline VekStatus mapOneByBlocks(Kernel kernel, const T* src, T* dst, int len) {
  if (!src || !dst) return vekErrNullPtr;
  if (!isShort<T>(len)) return mapOne(kernel, src, dst, len);
  const auto body = [=](size_t offset) { return Op()(loadBlock(bytesOf(src) + offset)); };
  return produceBlocks(body, dst, bytesBeyond<T>(len));
}

template <class Op, class Kernel, class T>
inline VekStatus mapConstantByBlocks(Kernel kernel, const T* src, T val, T* dst, int len) {
  if (!src || !dst) return vekErrNullPtr;
  if (!isShort<T>(len)) return mapConstant(kernel, src, val, dst, len);
  const Block block = blockOf(val);
  const auto body = [=](size_t offset) { return Op()(loadBlock(bytesOf(src) + offset), block); };
  return produceBlocks(body, dst, bytesBeyond<T>(len));
}

template <class Op, class Kernel, class T>
inline VekStatus mapTwoByBlocks(Kernel kernel, const T* src1, const T* src2, T* dst, int len) {
  if (!src1 || !src2 || !dst) return vekErrNullPtr;
  if (!isShort<T>(len)) return mapTwo(kernel, src1, src2, dst, len);
  const auto body = [=](size_t offset) {
    return Op()(loadBlock(bytesOf(src1) + offset), loadBlock(bytesOf(src2) + offset));
  };
  return produceBlocks(body, dst, bytesBeyond<T>(len));
}

}  // namespace veks

#endif
