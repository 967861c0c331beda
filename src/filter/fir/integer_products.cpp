#include "core/targets.h"
#include "filter/fir/products.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/fir/integer_products-inl.h"
#include <hwy/foreach_target.h>

#include "filter/fir/integer_products-inl.h"

namespace veks {

void sumPairs(const int32_t* taps, size_t pairs, const Vek16s* window, Vek32s* sums, size_t n) {
  if (n > 1) {
    VEKS_KERNEL(FirIntegerProducts<1>)(taps, taps, pairs, window, sums, n);
    return;
  }
  uint32_t sum = 0;
  for (size_t k = 0; k < pairs; ++k) {
    const uint32_t pair = static_cast<uint32_t>(taps[k]);
    const int32_t first = static_cast<int16_t>(pair & 0xFFFF);
    const int32_t second = static_cast<int16_t>(pair >> 16);
    sum += static_cast<uint32_t>(window[2 * k] * first);
    sum += static_cast<uint32_t>(window[2 * k + 1] * second);
  }
  sums[0] = static_cast<int32_t>(sum);
}

void sumPairs(const int32_t* realTaps, const int32_t* imaginaryTaps, size_t pairs,
              const Vek16sc* window, Vek32sc* sums, size_t n) {
  VEKS_KERNEL(FirIntegerProducts<0>)
  (realTaps, imaginaryTaps, pairs, &window->re, &sums->re, 2 * n);
}

}  // namespace veks
