// Memory in which every access outside a range is noticed.
#ifndef CONTRACT_BUFFERS_H
#define CONTRACT_BUFFERS_H

#include <cstddef>
#include <map>
#include <memory>
#include <tuple>
#include <vector>

#include "contract/descriptor.h"

namespace veks::contract {

// Pages between inaccessible pages on both sides. A read-only buffer is written through a second
// mapping of the same memory.
class GuardedBuffer {
 public:
  GuardedBuffer(size_t bytes, bool readOnly);
  ~GuardedBuffer();
  GuardedBuffer(const GuardedBuffer&) = delete;
  GuardedBuffer& operator=(const GuardedBuffer&) = delete;

  unsigned char* begin() const {
    return begin_;
  }
  unsigned char* end() const {
    return begin_ + bytes_;
  }
  size_t bytes() const {
    return bytes_;
  }
  void write(const unsigned char* at, const unsigned char* content, size_t bytes) const {
    std::memcpy(writable_ + (at - begin_), content, bytes);
  }
  // Whether an address lies in the pages, or in the guards around them.
  bool contains(const void* address) const;
  bool guards(const void* address) const;

 private:
  size_t bytes_;
  unsigned char* begin_;
  unsigned char* writable_;
};

// The buffers of all pointer arguments, and what they are filled with. Calls share them.
class Workspace {
 public:
  // The buffer of the argument at a position, with room for `bytes` bytes at every alignment.
  // Filled with background() when no call uses it.
  GuardedBuffer& buffer(size_t argument, bool readOnly, size_t bytes);

  // At least `bytes` bytes of random lanes, always the same for the same vector of the same lanes;
  // they stay where they are. Floating-point lanes have any bits but those of a NaN, whose payload
  // an operation may take from either of its operands.
  const unsigned char* input(Lane lane, size_t vector, size_t bytes);

  const unsigned char* background(size_t bytes);

 private:
  std::map<std::tuple<size_t, bool, size_t>, std::unique_ptr<GuardedBuffer>> buffers_;
  std::map<std::tuple<Lane, size_t, size_t>, std::vector<unsigned char>> inputs_;
};

// The pointers of a call are moved in steps of their natural alignment within this many bytes.
constexpr size_t kAlignments = 64;

}  // namespace veks::contract

#endif
