#ifndef VEKS_STATS_NEAREST_ROOT_H
#define VEKS_STATS_NEAREST_ROOT_H

#include <cmath>
#include <cstdint>
#include <cstring>

#include "vector/arithmetic/exact_root.h"

namespace veks {

// sqrt(x) rounded to float once, x < 2^63.
inline float nearestRoot(uint64_t x) {
  const double root = std::sqrt(static_cast<double>(x));
  uint64_t bits;
  std::memcpy(&bits, &root, sizeof(bits));
  // Both roundings together are less than two units off: enough, but next to the middle between two
  // floats.
  constexpr uint64_t kDropped = (uint64_t{1} << 29) - 1;
  constexpr uint64_t kMiddle = uint64_t{1} << 28;
  if ((bits & kDropped) - (kMiddle - 2) > 4) return static_cast<float>(root);
  // 26 bits or more, the last one set where the root goes on behind it.
  constexpr int kBits = 26;
  const Root exact = rootOf(x, kBits);
  const uint64_t sticky = exact.root | (exact.rest != 0 ? 1 : 0);
  return static_cast<float>(static_cast<int64_t>(sticky)) / static_cast<float>(1 << kBits);
}

}  // namespace veks

#endif
