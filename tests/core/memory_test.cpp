// The aligned allocator, with the heap under observation.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <limits>

#include "heap.h"
#include "veks/core/services.h"

namespace veks::test {
namespace {

constexpr size_t kOverhead = 32 + sizeof(void*);

template <class T>
void checkMalloc(T* (*mallocVector)(int)) {
  SCOPED_TRACE(sizeof(T));
  for (int len : {0, -1, -5, std::numeric_limits<int>::min()}) {
    EXPECT_EQ(mallocVector(len), nullptr) << len;
  }
  for (int len = 1; len < 200; ++len) {
    T* const block = mallocVector(len);
    const Heap seen = heap;
    ASSERT_NE(block, nullptr);
    const auto address = reinterpret_cast<uintptr_t>(block);
    const auto raw = reinterpret_cast<uintptr_t>(seen.returned);
    const size_t bytes = static_cast<size_t>(len) * sizeof(T);
    ASSERT_EQ(seen.requested, bytes + kOverhead);
    ASSERT_EQ(address % 32, 0U);
    ASSERT_GE(address, raw + sizeof(void*));
    ASSERT_LE(address + bytes, raw + seen.requested);
    std::memset(block, 0xA5, bytes);
    veksFree(block);
    ASSERT_EQ(heap.released, seen.returned) << "the address that the heap gave";
  }

  heap.callsUntilFailure = 0;
  T* const none = mallocVector(7);
  T* const huge = mallocVector(std::numeric_limits<int>::max());
  const size_t requested = heap.requested;
  heap.callsUntilFailure = Heap::kNever;
  EXPECT_EQ(none, nullptr);
  EXPECT_EQ(huge, nullptr);
  // Modulo 2^32 on 32-bit builds, exact on the others.
  EXPECT_EQ(requested, static_cast<size_t>(uint64_t{0x7FFFFFFF} * sizeof(T) + kOverhead));
}

TEST(Malloc, GivesAlignedBlocksOfTheHeap) {
  checkMalloc(veksMalloc_8u);
  checkMalloc(veksMalloc_8s);
  checkMalloc(veksMalloc_16s);
  checkMalloc(veksMalloc_16u);
  checkMalloc(veksMalloc_8sc);
  checkMalloc(veksMalloc_32f);
  checkMalloc(veksMalloc_32s);
  checkMalloc(veksMalloc_32u);
  checkMalloc(veksMalloc_16sc);
  checkMalloc(veksMalloc_64f);
  checkMalloc(veksMalloc_64s);
  checkMalloc(veksMalloc_32fc);
  checkMalloc(veksMalloc_32sc);
  checkMalloc(veksMalloc_64fc);
  checkMalloc(veksMalloc_64sc);
}

TEST(Free, IgnoresNull) {
  int onStack = 0;
  heap.released = &onStack;
  veksFree(nullptr);
  EXPECT_EQ(heap.released, &onStack) << "free was called";
}

}  // namespace
}  // namespace veks::test
