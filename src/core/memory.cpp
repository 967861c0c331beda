#include "core/memory.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "veks/core/services.h"

namespace veks {

// The address that the heap returned is kept in the word below the block. With four-byte words the
// heap is asked for 36 more bytes, in arithmetic modulo 2^32, as documented.
void* allocate(size_t bytes) {
  constexpr size_t kAlignment = 32;
  constexpr size_t kWord = sizeof(void*);
  void* const raw = std::malloc(bytes + kAlignment + kWord);
  if (raw == nullptr) return nullptr;
  const uintptr_t address = reinterpret_cast<uintptr_t>(raw);
  const uintptr_t aligned = (address + kAlignment - 1 + kWord) & ~uintptr_t{kAlignment - 1};
  char* const block = static_cast<char*>(raw) + (aligned - address);
  std::memcpy(block - kWord, &raw, kWord);
  return block;
}

namespace {

template <class T>
T* allocateVector(int len) {
  if (len <= 0) return nullptr;
  return static_cast<T*>(allocate(static_cast<size_t>(len) * sizeof(T)));
}

}  // namespace
}  // namespace veks

using veks::allocateVector;

Vek8u* veksMalloc_8u(int len) {
  return allocateVector<Vek8u>(len);
}

Vek8s* veksMalloc_8s(int len) {
  return allocateVector<Vek8s>(len);
}

Vek16s* veksMalloc_16s(int len) {
  return allocateVector<Vek16s>(len);
}

Vek16u* veksMalloc_16u(int len) {
  return allocateVector<Vek16u>(len);
}

Vek8sc* veksMalloc_8sc(int len) {
  return allocateVector<Vek8sc>(len);
}

Vek32f* veksMalloc_32f(int len) {
  return allocateVector<Vek32f>(len);
}

Vek32s* veksMalloc_32s(int len) {
  return allocateVector<Vek32s>(len);
}

Vek32u* veksMalloc_32u(int len) {
  return allocateVector<Vek32u>(len);
}

Vek16sc* veksMalloc_16sc(int len) {
  return allocateVector<Vek16sc>(len);
}

Vek64f* veksMalloc_64f(int len) {
  return allocateVector<Vek64f>(len);
}

Vek64s* veksMalloc_64s(int len) {
  return allocateVector<Vek64s>(len);
}

Vek32fc* veksMalloc_32fc(int len) {
  return allocateVector<Vek32fc>(len);
}

Vek32sc* veksMalloc_32sc(int len) {
  return allocateVector<Vek32sc>(len);
}

Vek64fc* veksMalloc_64fc(int len) {
  return allocateVector<Vek64fc>(len);
}

Vek64sc* veksMalloc_64sc(int len) {
  return allocateVector<Vek64sc>(len);
}

void veksFree(void* ptr) {
  if (ptr == nullptr) return;
  void* raw = nullptr;
  std::memcpy(&raw, static_cast<char*>(ptr) - sizeof(raw), sizeof(raw));
  std::free(raw);
}
