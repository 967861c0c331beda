// The vectors that comparisons run on.
#ifndef VEKS_BENCH_VECTORS_H
#define VEKS_BENCH_VECTORS_H

#include <cstddef>
#include <cstdint>

namespace veks::bench {

// kAligned: all vectors start at multiples of 64 bytes; kOffset: one element after them; kUp,
// kDown: the source is at a multiple of 64 (kDown: one element after it), the destination overlaps
// it one element above or below.
enum class Placement { kAligned, kOffset, kUp, kDown };

// Bytes of an element of each vector; 0 for a source that a function does not have.
struct Elements {
  size_t src1 = 0;
  size_t src2 = 0;
  size_t dst = 0;
};

// The content of a vector is random, but for the exponents of float and double values among it,
// which are normal numbers of a magnitude below 2. A pattern of 64 bits narrows that: a bit not in
// `keep` is 0, one in `set` is 1.
struct Pattern {
  uint64_t keep = ~uint64_t{0};
  uint64_t set = 0;
};

// One bit, counted from the lowest one, in every element of up to eight bytes.
constexpr uint64_t bitOfEach(size_t elementBytes, size_t bit) {
  uint64_t bits = 0;
  for (size_t at = bit; at < 64; at += 8 * elementBytes) bits |= uint64_t{1} << at;
  return bits;
}

template <class T>
constexpr Pattern notNegative() {
  return {~bitOfEach(sizeof(T), 8 * sizeof(T) - 1), 0};
}

template <class T>
constexpr Pattern notZero() {
  return {~uint64_t{0}, bitOfEach(sizeof(T), 0)};
}

// Magnitudes of double from 2^-15 on, not from 2^-255 on: what signals have.
constexpr Pattern ordinaryDoubles() {
  return {~uint64_t{0}, uint64_t{0xF} << 56};
}

// The contents of the sources; of the destination too, which is an input in place.
struct Content {
  Pattern src1;
  Pattern src2;
  Pattern dst;
};

// Two sources and a destination of `len` elements, in memory that all cases share. Making it fills
// the sources.
class Vectors {
 public:
  Vectors(int len, const Elements& elements, Placement placement, const Content& content);

  const unsigned char* src1() const {
    return src1_;
  }
  const unsigned char* src2() const {
    return src2_;
  }
  unsigned char* dst() const {
    return dst_;
  }
  int len() const {
    return len_;
  }
  const Elements& elements() const {
    return elements_;
  }
  // Of the destination.
  size_t bytes() const {
    return static_cast<size_t>(len_) * elements_.dst;
  }

  // All that a call may change: the destination and, where it overlaps, the source.
  unsigned char* output() const {
    return output_;
  }
  size_t outputBytes() const {
    return outputBytes_;
  }
  void fillOutput() const;

 private:
  int len_;
  Elements elements_;
  Pattern outputPattern_;
  unsigned char* src1_;
  unsigned char* src2_;
  unsigned char* dst_;
  unsigned char* output_;
  size_t outputBytes_;
};

}  // namespace veks::bench

#endif
