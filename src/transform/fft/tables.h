// Tables of transforms, laid out in the order of their use.
#ifndef VEKS_TRANSFORM_FFT_TABLES_H
#define VEKS_TRANSFORM_FFT_TABLES_H

#include "transform/fft/plan.h"

namespace veks {

// Hands out pieces of a block of memory, or only counts their bytes if it has none.
class Arena {
 public:
  explicit Arena(void* block) : block_(static_cast<char*>(block)) {}

  template <class T>
  T* take(size_t count) {
    void* const piece = block_ == nullptr ? nullptr : block_ + used_;
    used_ += (count * sizeof(T) + kAlignment - 1) / kAlignment * kAlignment;
    return static_cast<T*>(piece);
  }
  bool isCounting() const {
    return block_ == nullptr;
  }
  size_t used() const {
    return used_;
  }

  static constexpr size_t kAlignment = 64;

 private:
  char* block_;
  size_t used_ = 0;
};

// How many factors a transform of `radix` points has whose value j is to be multiplied by w^j.
size_t factorCount(size_t radix, bool isFused);

// Factor i of them for w = exp(-2 pi i k / n): powers of w from 1 on or, for butterflies of two,
// m = 2, 4, ... radix, first w^(radix/m), times exp(-2 pi i j / m) for each j < m/4.
template <class T>
void storeTwiddleFactor(size_t i, size_t radix, bool isFused, size_t k, size_t n, T* re, T* im);

template <class T>
void makePasses(size_t length, bool isFused, ColumnPasses<T>* passes, Arena* arena);

// The tables of a plan of this shape: their sizes, and their contents unless the arena counts.
template <class T>
void makeTables(const FftShape& shape, FftPlan<T>* plan, Arena* arena);

}  // namespace veks

#endif
