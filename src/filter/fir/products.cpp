#include "filter/fir/products.h"

#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/fir/products-inl.h"
#include <hwy/foreach_target.h>

#include "filter/fir/products-inl.h"

namespace veks {
namespace {

// So few results are dot products: lanes of results would be empty.
constexpr size_t kFewResults = 3;

template <class T, size_t kParts>
inline void sum(const T* taps, size_t tapsLen, const T* window, T* dst, size_t n) {
  if (n > kFewResults) {
    VEKS_KERNEL(FirProducts<T, kParts>)(taps, tapsLen, window, dst, n);
    return;
  }
  for (size_t i = 0; i < n * kParts; i += kParts) {
    VEKS_KERNEL(FirProduct<T, kParts>)(taps, tapsLen, window + i, dst + i);
  }
}

}  // namespace

void sumProducts(const Vek32f* taps, size_t tapsLen, const Vek32f* window, Vek32f* dst, size_t n) {
  sum<Vek32f, 1>(taps, tapsLen, window, dst, n);
}

void sumProducts(const Vek32fc* taps, size_t tapsLen, const Vek32fc* window, Vek32fc* dst,
                 size_t n) {
  sum<Vek32f, 2>(&taps->re, tapsLen, &window->re, &dst->re, n);
}

void sumProducts(const Vek64f* taps, size_t tapsLen, const Vek64f* window, Vek64f* dst, size_t n) {
  sum<Vek64f, 1>(taps, tapsLen, window, dst, n);
}

void sumProducts(const Vek64fc* taps, size_t tapsLen, const Vek64fc* window, Vek64fc* dst,
                 size_t n) {
  sum<Vek64f, 2>(&taps->re, tapsLen, &window->re, &dst->re, n);
}

}  // namespace veks
