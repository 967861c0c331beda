// What a transform is made of: how its length is factored, its tables and its kernels.
#ifndef VEKS_TRANSFORM_FFT_PLAN_H
#define VEKS_TRANSFORM_FFT_PLAN_H

#include <cstddef>
#include <cstdint>

namespace veks {

enum class Layout { kInterleaved, kSplit };

// Which of the values that two vectors of pairs hold comes into a lane when their real and
// imaginary parts are separated block of 16 bytes by block. Parts that are separate already stay in
// order.
template <class T>
constexpr size_t laneOrder(Layout layout, size_t lanes, size_t lane) {
  if (layout == Layout::kSplit || lanes == 1) return lane;
  const size_t block = lanes < 16 / sizeof(T) ? lanes : 16 / sizeof(T);
  const size_t half = block / 2;
  const size_t position = half * (lane / block) + lane % half;
  return lane % block < half ? position : lanes / 2 + position;
}

template <class T>
struct FftPlan;

template <class T>
struct FftDirection;

// Transforms N points from (re, im) to (dstRe, dstIm); interleaved values are at re and dstRe.
template <class T>
using FftKernel = void (*)(const FftDirection<T>& direction, const T* re, const T* im, T* dstRe,
                           T* dstIm, T* work);

template <class T>
struct FftDirection {
  FftKernel<T> kernel;
  const FftPlan<T>* plan;
  T factor;
  // The twiddle factors of rows and columns, times the factor in transforms of pairs, but those of
  // 32, which take it on their way.
  const T* twiddles;
};

// Transforms of one length in the columns of a matrix, in place on rows, by passes of small
// radices. Their results are found in another order.
template <class T>
struct ColumnPasses {
  static constexpr int kMaxPasses = 4;
  size_t length;
  int count;
  uint8_t radices[kMaxPasses];
  // The factors of passes but the first: for each group of rows, real and imaginary parts in turn.
  const T* twiddles[kMaxPasses];
  // The row in which the passes leave frequency k. It is its own inverse's table as well: group s
  // of the last pass begins with the frequency firstOfGroup[s].
  const uint32_t* rowOf;
  const uint32_t* firstOfGroup;
};

// N = rows * columns. The transforms of the columns come first, `lanes` of them at a time, then
// those of the rows, whose values are multiplied by twiddle factors.
template <class T>
struct FftPlan {
  int order;
  size_t rows;
  size_t columns;
  ColumnPasses<T> columnPasses;
  ColumnPasses<T> rowPasses;  // long transforms only
  // Long transforms: exp(-2 pi i j / N) for j < 2^fineBits, and for multiples of 2^fineBits.
  const T* fine;
  const T* coarse;
  int fineBits;
  size_t workElements;  // without what alignment takes
  FftDirection<T> forward;
  FftDirection<T> inverse;
};

enum class FftSize { kPairsOf32, kTwoColumns, kSmallPairs, kSmall, kMediumOnStack, kMedium, kLong };

// How a kernel wants a transform to be factored.
struct FftShape {
  FftSize size;
  Layout layout;
  size_t lanes;
  size_t rows;
  size_t columns;
  bool fusesTwiddles;
  Layout columnLayout;
};

}  // namespace veks

#endif
