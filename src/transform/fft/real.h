// Contexts of the real transforms.
#ifndef VEKS_TRANSFORM_FFT_REAL_H
#define VEKS_TRANSFORM_FFT_REAL_H

#include "transform/fft/context.h"

// tables[0] owns the plan of the complex transform of half the length, tables[1] what follows.
struct VeksFFTContext_R_32f : veks::FloatFftContext<float, 6> {};
struct VeksFFTContext_R_64f : veks::FloatFftContext<double, 9> {};

namespace veks {

// The steps between the half-length complex transform and the real one; from and to may be the
// same.
template <class T>
using UntangleKernel = void (*)(const T* w, T* values, size_t m);
// Frequency 0 comes from those two of the real signal, first and middle.
template <class T>
using TangleKernel = void (*)(const T* w, T first, T middle, const T* from, T* to, size_t m);

template <class T>
struct RealFftPlan {
  size_t lanes;
  bool isInBlocks;  // each two values with factors of their own
  UntangleKernel<T> untangle;
  TangleKernel<T> tangle;
  const T* w;
};

}  // namespace veks

#endif
