// Standard deviations of integers, exact before they are rounded.
#ifndef VEKS_STATS_EXACT_DEVIATION_H
#define VEKS_STATS_EXACT_DEVIATION_H

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "core/power_of_two.h"
#include "core/wide.h"

namespace veks {

// sqrt(numerator / denominator) * 2^-scaleFactor, numerator > 0.
struct ScaledRoot {
  Wide numerator;
  uint64_t denominator;
  int scaleFactor;

  // -1, 0 or 1 for a root that is below, at or above m / 2, in the squares of both; roots and m / 2
  // below 2^32.
  int compareTwice(uint64_t m) const {
    const uint64_t enlarged = m << (scaleFactor > 0 ? scaleFactor : 0);
    Wide square = multiply(enlarged * enlarged, denominator);
    Wide four = numerator;
    for (int i = scaleFactor < 0 ? scaleFactor - 1 : -1; i < 0; ++i) four = shiftLeft(four, 2);
    return four == square ? 0 : (four < square ? -1 : 1);
  }

  double estimate() const {
    const double high = static_cast<double>(numerator.high) * 0x1p64;
    const double low = static_cast<double>(numerator.low);
    return std::sqrt((high + low) / static_cast<double>(denominator)) * powerOfTwo(-scaleFactor);
  }
};

// The sample standard deviation of n values of 16 bits, times 2^-scaleFactor, to nearest with ties
// to even, saturated, from their sum and that of their squares, 2 <= n < 2^31.
template <class Dst>
Dst scaledDeviation(int64_t sum, int64_t squares, size_t n, int scaleFactor) {
  const uint64_t count = n;
  const uint64_t magnitude = static_cast<uint64_t>(sum < 0 ? -sum : sum);
  const Wide numerator =
      multiply(count, static_cast<uint64_t>(squares)) - multiply(magnitude, magnitude);
  constexpr uint64_t kMax = std::numeric_limits<Dst>::max();
  // The deviations but 0 are from 2^-16 to 2^16.
  if (numerator == Wide{0, 0} || scaleFactor > 17) return 0;
  if (scaleFactor < -48) return static_cast<Dst>(kMax);
  const ScaledRoot root = {numerator, count * (count - 1), scaleFactor};
  const double estimate = root.estimate();
  if (estimate >= static_cast<double>(kMax) + 1) return static_cast<Dst>(kMax);
  uint64_t result = static_cast<uint64_t>(static_cast<int64_t>(estimate));
  // The estimate is off by far less than 1.
  if (result > 0 && root.compareTwice(2 * result) < 0) --result;
  const int above = root.compareTwice(2 * result + 1);
  if (above > 0 || (above == 0 && result % 2 == 1)) ++result;
  return static_cast<Dst>(result < kMax ? result : kMax);
}

}  // namespace veks

#endif
