// Vectors between guard pages.
#ifndef VEKS_TESTS_GUARDED_H
#define VEKS_TESTS_GUARDED_H

#include <algorithm>
#include <cstddef>
#include <vector>

#include "contract/buffers.h"

namespace veks::test {

// A vector between guard pages, at the start or the end of what is between them, some bytes away.
class Guarded {
 public:
  explicit Guarded(bool readOnly, size_t mostBytes = size_t{1} << 18)
      : pages_(mostBytes, readOnly), background_(mostBytes, 0xA5) {}

  unsigned char* place(size_t bytes, bool atEnd, size_t distance) {
    bytes_ = bytes;
    start_ = atEnd ? pages_.end() - distance - bytes : pages_.begin() + distance;
    pages_.write(from(), background_.data(), static_cast<size_t>(to() - from()));
    return start_;
  }
  void fill(const void* content) const {
    pages_.write(start_, static_cast<const unsigned char*>(content), bytes_);
  }
  bool isIntactAround() const {
    const auto isBackground = [](unsigned char byte) { return byte == 0xA5; };
    return std::all_of(from(), start_, isBackground) &&
           std::all_of(start_ + bytes_, to(), isBackground);
  }
  size_t mostBytes() const {
    return background_.size();
  }

 private:
  static constexpr std::ptrdiff_t kAround = 512;
  unsigned char* from() const {
    return start_ - std::min(kAround, start_ - pages_.begin());
  }
  unsigned char* to() const {
    return start_ + bytes_ +
           std::min(kAround, pages_.end() - start_ - static_cast<std::ptrdiff_t>(bytes_));
  }

  contract::GuardedBuffer pages_;
  std::vector<unsigned char> background_;
  unsigned char* start_ = nullptr;
  size_t bytes_ = 0;
};

}  // namespace veks::test

#endif
