#include "transform/fft/roots_of_unity.h"

#include <cmath>
#include <cstdint>

namespace veks {

// Sine and cosine of at most an eighth of the circle; symmetries give the rest.
UnitRoot unitRoot(size_t j, size_t n) {
  uint64_t k = 4 * uint64_t{j};  // the angle is 2 pi k / (4 n)
  const bool isLower = k > 2 * uint64_t{n};
  if (isLower) k = 4 * uint64_t{n} - k;
  const bool isLeft = k > n;
  if (isLeft) k = 2 * uint64_t{n} - k;
  const bool isSteep = 2 * k > n;
  if (isSteep) k = n - k;
  const double angle = 1.57079632679489661923 / static_cast<double>(n) * static_cast<double>(k);
  const double shallow = std::sin(angle);
  const double large = std::cos(angle);
  const double x = isSteep ? shallow : large;
  const double y = isSteep ? large : shallow;
  return {isLeft ? -x : x, isLower ? y : -y};
}

}  // namespace veks
