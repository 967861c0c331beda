// What convolutions are made of.
#ifndef VEKS_TRANSFORM_FFT_CONVOLUTION_PLAN_H
#define VEKS_TRANSFORM_FFT_CONVOLUTION_PLAN_H

#include "transform/fft/convolution.h"
#include "transform/fft/plan.h"

namespace veks {

// N = rows * columns as in FftPlan. Work memory is the matrix in the order of the forward passes,
// which those of the inverse transform undo. They have twiddle factors of their own for each row
// and column, so that its rows need none.
template <class T>
struct ConvolutionPlan : FftConvolution<T> {
  size_t rows;
  size_t lanes;
  bool fusesTwiddles;
  ColumnPasses<T> passes;
  const T* rowTwiddles;
  const T* inverseTwiddles[ColumnPasses<T>::kMaxPasses];

  // The factors of pass i of the inverse transform for the columns from `column` on, if it works
  // on parts of so many rows.
  const T* inverseFactors(int i, size_t column, size_t part) const {
    const size_t radix = passes.radices[i];
    const size_t factors = fusesTwiddles ? radix / 2 : radix - 1;
    return inverseTwiddles[i] + 2 * factors * part * column;
  }
  // The passes after the first keep to units of consecutive rows: blocks of as many rows as lanes.
  size_t units() const {
    const size_t radix = passes.radices[0];
    return rows / radix >= lanes ? radix : 1;
  }
  size_t unitRows() const {
    return rows / units();
  }
  // A row after each unit, because units a power of two apart would share lines of the first cache.
  size_t unitStep() const {
    return unitRows() + 1;
  }
  // From the rows of one part of the first pass to those of the next.
  size_t partStep() const {
    return units() == 1 ? rows / passes.radices[0] : unitStep();
  }
  size_t neededElements() const {
    return 2 * this->columns * units() * unitStep();
  }
};

}  // namespace veks

#endif
