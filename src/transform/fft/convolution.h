// Cyclic convolutions of frames of complex samples with the spectrum of a filter: the steps of a
// forward transform, a product of spectra and an inverse transform made one.
#ifndef VEKS_TRANSFORM_FFT_CONVOLUTION_H
#define VEKS_TRANSFORM_FFT_CONVOLUTION_H

#include <cstddef>

#include "veks/status.h"

namespace veks {

template <class T>
struct FftConvolution {
  // Convolves N samples at src. Results go to dst from that of sample firstRow * columns on; dst
  // may be src. The caches are told that the samples at `next` will follow.
  void (*kernel)(const FftConvolution& convolution, const T* spectrum, const T* src, const T* next,
                 T* dst, size_t firstRow, T* work);
  size_t columns;
  size_t workElements;  // aligned to 64 bytes
};

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
