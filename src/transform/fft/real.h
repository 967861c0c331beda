// Contexts of the real transforms.
#ifndef VEKS_TRANSFORM_FFT_REAL_H
#define VEKS_TRANSFORM_FFT_REAL_H

#include "transform/fft/context.h"

// tables[0] owns the plan of the complex transform of half the length, tables[1] what follows.
struct VeksFFTContext_R_32f : veks::FloatFftContext<float, 6> {};
struct VeksFFTContext_R_64f : veks::FloatFftContext<double, 9> {};

namespace veks {

// The step between the half-length complex transform and the real one; from and to may be the same.
template <class T>
using CombineKernel = void (*)(const T* w, const T* from, T* to, size_t m);

template <class T>
struct RealFftPlan {
  size_t lanes;
  CombineKernel<T> untangle;
  CombineKernel<T> tangle;
  const T* w;
};

}  // namespace veks

#endif
