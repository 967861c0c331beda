// What the kernels of sums and means make of a sum.
#ifndef VEKS_STATS_OPERATIONS_H
#define VEKS_STATS_OPERATIONS_H

#include <cstddef>
#include <cstdint>

#include "core/wide.h"

namespace veks {

// sum / n * 2^-scaleFactor to nearest with ties to even, saturated, n < 2^31.
template <class Dst>
Dst scaledMean(int64_t sum, size_t n, int scaleFactor) {
  // The mean of 32-bit elements is at most 2^31.
  if (scaleFactor > 32) return 0;
  const bool negative = sum < 0;
  const uint64_t magnitude = negative ? 0 - static_cast<uint64_t>(sum) : static_cast<uint64_t>(sum);
  const uint64_t divisor = uint64_t{n} << (scaleFactor > 0 ? scaleFactor : 0);
  uint64_t quotient = magnitude / divisor;
  uint64_t rest = magnitude % divisor;
  constexpr uint64_t kBeyond = uint64_t{1} << 32;
  for (int bits = scaleFactor; bits < 0 && quotient < kBeyond && (quotient | rest) != 0; ++bits) {
    rest *= 2;
    const bool one = rest >= divisor;
    rest -= one ? divisor : 0;
    quotient = 2 * quotient + (one ? 1 : 0);
  }
  if (rest > divisor - rest || (rest == divisor - rest && quotient % 2 == 1)) ++quotient;
  const int64_t result = static_cast<int64_t>(quotient);
  return saturateTo<Dst>(negative ? -result : result);
}

// of(sum, n) gives the result from a sum of double precision, of<R>(sum, n, scaleFactor) from an
// exact one. Before the first, the sum is rounded to so many digits.
struct Total {
  static constexpr int kDigits = 24;
  static double of(double sum, size_t /*n*/) {
    return sum;
  }
  template <class R>
  static R of(int64_t sum, size_t /*n*/, int scaleFactor) {
    return scaledTotal<R>(sum, scaleFactor);
  }
};

struct Average {
  static constexpr int kDigits = 53;
  static double of(double sum, size_t n) {
    return sum / static_cast<double>(n);
  }
  template <class R>
  static R of(int64_t sum, size_t n, int scaleFactor) {
    return scaledMean<R>(sum, n, scaleFactor);
  }
};

}  // namespace veks

#endif
