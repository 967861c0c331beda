// Square roots of integers, exact before they are rounded.
#ifndef VEKS_VECTOR_ARITHMETIC_EXACT_ROOT_H
#define VEKS_VECTOR_ARITHMETIC_EXACT_ROOT_H

#include <cmath>
#include <cstdint>
#include <limits>

#include "veks/types.h"

namespace veks {

// floor(sqrt(x) * 2^bits), and what is left of x * 4^bits below its square, at most twice as much.
struct Root {
  uint64_t root;
  uint64_t rest;
};

// root < 2^63
inline Root rootOf(uint64_t x, int bits) {
  uint64_t root = static_cast<uint64_t>(std::sqrt(static_cast<double>(x)));
  while (root > 0xFFFFFFFF || root * root > x) --root;
  while (x - root * root > 2 * root) ++root;
  uint64_t rest = x - root * root;
  for (; bits > 0; --bits) {
    const bool one = rest > root;
    rest = one ? 4 * (rest - root) - 1 : 4 * rest;
    root = 2 * root + (one ? 1 : 0);
  }
  return {root, rest};
}

// sqrt(x) * 2^-scaleFactor to nearest with ties to even, saturated; 0 for negative x.
template <class Dst>
Dst scaledRoot(int64_t x, int scaleFactor) {
  constexpr uint64_t kMax = std::numeric_limits<Dst>::max();
  if (x <= 0) return 0;
  if (scaleFactor > 32) return 0;
  if (scaleFactor < -63) return static_cast<Dst>(kMax);
  Root r = rootOf(static_cast<uint64_t>(x), 0);
  if (scaleFactor > 0) {
    const uint64_t half = uint64_t{1} << (scaleFactor - 1);
    const uint64_t quotient = r.root >> scaleFactor;
    const uint64_t below = r.root & (2 * half - 1);
    const bool up = below > half || (below == half && (r.rest != 0 || quotient % 2 == 1));
    r = {quotient + (up ? 1 : 0), 0};
  } else {
    for (int bits = -scaleFactor; bits > 0 && r.root <= kMax; --bits) {
      const bool one = r.rest > r.root;
      r.rest = one ? 4 * (r.rest - r.root) - 1 : 4 * r.rest;
      r.root = 2 * r.root + (one ? 1 : 0);
    }
    // The square of root + 1/2 is no integer: there are no ties.
    if (r.rest > r.root) ++r.root;
  }
  return static_cast<Dst>(r.root < kMax ? r.root : kMax);
}

// A part of a complex root, sqrt((sqrt(square) + x) / 2) * 2^bits, to nearest with ties to even and
// at most `limit`, 2^15 at most. Other parts than 0 are above 2^-9.
inline int32_t enlargedRootPart(uint64_t square, int32_t x, int bits, int32_t limit) {
  if (bits > 23) {
    const Root magnitude = rootOf(square, 0);
    return magnitude.rest == 0 && static_cast<int64_t>(magnitude.root) == -int64_t{x} ? 0 : limit;
  }
  // With one binary digit more than the result has; floor(sqrt(a)) is floor(sqrt(floor(a))).
  const Root magnitude = rootOf(square, 2 * bits + 1);
  const int64_t shiftedX = int64_t{x} * (int64_t{1} << (2 * bits + 1));
  const Root part = rootOf(magnitude.root + static_cast<uint64_t>(shiftedX), 0);
  const bool exact = magnitude.rest == 0 && part.rest == 0;
  uint64_t result = part.root / 2;
  if (part.root % 2 == 1 && !(exact && result % 2 == 0)) ++result;
  return result < static_cast<uint64_t>(limit) ? static_cast<int32_t>(result) : limit;
}

// sqrt(z) * 2^-scaleFactor, scaleFactor < 0, the root with a real part that is not negative.
inline Vek16sc enlargedComplexRoot(Vek16sc z, int scaleFactor) {
  const int bits = scaleFactor < -24 ? 24 : -scaleFactor;
  const int64_t x = z.re;
  const int64_t y = z.im;
  const uint64_t square = static_cast<uint64_t>(x * x + y * y);
  const int32_t re = enlargedRootPart(square, z.re, bits, 32767);
  const int32_t im = enlargedRootPart(square, -z.re, bits, z.im < 0 ? 32768 : 32767);
  return {static_cast<Vek16s>(re), static_cast<Vek16s>(z.im < 0 ? -im : im)};
}

}  // namespace veks

#endif
