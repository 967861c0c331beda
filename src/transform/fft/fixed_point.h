// Contexts of the 16-bit transforms.
#ifndef VEKS_TRANSFORM_FFT_FIXED_POINT_H
#define VEKS_TRANSFORM_FFT_FIXED_POINT_H

#include "transform/fft/complex.h"
#include "transform/fft/real.h"

namespace veks {

// 48 bytes on 32 bits. The transforms are computed in single precision by an inner context; the
// shifts tell the normalisation, powers of two and, for 1/sqrt(N) and odd orders, sqrt(2).
template <uint32_t kContextId, class InnerContext>
struct ShortFftContext {
  using Inner = InnerContext;
  static constexpr uint32_t kId = kContextId;
  uint32_t id;
  int32_t order;
  int32_t forwardShift;
  int32_t inverseShift;
  int32_t isOddRoot;
  int32_t workSize;
  void* tables[5];  // null
  Inner* inner;
};

}  // namespace veks

struct VeksFFTContext_C_16sc : veks::ShortFftContext<1, VeksFFTContext_C_32fc> {};
struct VeksFFTContext_C_16s : veks::ShortFftContext<2, VeksFFTContext_C_32f> {};
struct VeksFFTContext_R_16s : veks::ShortFftContext<3, VeksFFTContext_R_32f> {};

static_assert(sizeof(void*) != 4 || sizeof(VeksFFTContext_C_16sc) == 48);

#endif
