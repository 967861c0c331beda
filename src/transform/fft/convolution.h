// Cyclic convolutions of frames of complex samples with the spectrum of a filter: the steps of a
// forward transform, a product of spectra and an inverse transform made one.
#ifndef VEKS_TRANSFORM_FFT_CONVOLUTION_H
#define VEKS_TRANSFORM_FFT_CONVOLUTION_H

#include <cstddef>

#include "veks/status.h"

namespace veks {

// Where the N samples of a convolution are and its results go: dst takes those from sample
// firstRow * columns on, and may be src.
template <class T>
struct ConvolutionEnds {
  const T* src;
  const T* next;  // the caches are told that these samples will follow
  T* dst;
  size_t firstRow;
  bool pastCaches;  // results are better not kept in the caches, and need finishResults()
};

template <class T>
struct FftConvolution {
  void (*kernel)(const FftConvolution& convolution, const T* spectrum,
                 const ConvolutionEnds<T>& ends, T* work);
  size_t columns;
  size_t workElements;  // aligned to 64 bytes
};

// Other threads may be told of the results that this one has written past the caches. Not part of
// the kernel: short frames would wait for the memory each time.
void finishResults();

// A convolution of 2^order points in a block of its own, for veksFree(); none, with status
// vekStsOk, where there is no kernel.
template <class T>
VekStatus makeConvolution(int order, FftConvolution<T>** result);

// Brings the spectrum of a filter (real and imaginary parts in turn, in natural order) into the
// order of the kernel, divided by N.
template <class T>
void arrangeSpectrum(const FftConvolution<T>& convolution, const T* natural, T* spectrum);

}  // namespace veks

#endif
