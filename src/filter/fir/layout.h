// The pieces of a block of memory, one after the other, or only the size that they need.
#ifndef VEKS_FILTER_FIR_LAYOUT_H
#define VEKS_FILTER_FIR_LAYOUT_H

#include <cstddef>
#include <cstdint>

namespace veks {

class Layout {
 public:
  // `alignment` is that of each piece, a power of two. Without a block the pieces are null.
  Layout(void* block, size_t alignment) : alignment_(alignment) {
    if (block == nullptr) return;
    const uintptr_t address = reinterpret_cast<uintptr_t>(block);
    block_ = static_cast<char*>(block) + (alignUp(address, alignment) - address);
  }

  template <class T>
  T* take(uint64_t count) {
    const uint64_t offset = used_;
    used_ = alignUp(used_ + count * sizeof(T), alignment_);
    return block_ == nullptr ? nullptr : reinterpret_cast<T*>(block_ + static_cast<size_t>(offset));
  }

  // The bytes of a block at any address that has room for all pieces.
  uint64_t bytes() const {
    return used_ + alignment_ - 1;
  }

 private:
  template <class N>
  static N alignUp(N n, size_t alignment) {
    return (n + alignment - 1) & ~static_cast<N>(alignment - 1);
  }

  char* block_ = nullptr;
  size_t alignment_;
  uint64_t used_ = 0;
};

}  // namespace veks

#endif
