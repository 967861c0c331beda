#ifndef VEKS_CORE_POWER_OF_TWO_H
#define VEKS_CORE_POWER_OF_TWO_H

#include <cstdint>
#include <cstring>

namespace veks {

// 2^exponent, a normal number: -1022 <= exponent <= 1023.
inline double powerOfTwo(int exponent) {
  const uint64_t bits = static_cast<uint64_t>(1023 + exponent) << 52;
  double power;
  std::memcpy(&power, &bits, sizeof(power));
  return power;
}

// The exponent of |x|, a normal number; -1023 for zero and denormal numbers, 1024 for infinity.
inline int exponentOf(double x) {
  uint64_t bits;
  std::memcpy(&bits, &x, sizeof(bits));
  return static_cast<int>((bits >> 52) & 0x7FF) - 1023;
}

}  // namespace veks

#endif
