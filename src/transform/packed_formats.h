// The formats of packed spectra, the same for all SIMD targets: where the run of complex values
// begins for n real values, and, for even n, the real value of the middle. The other real value is
// the first one in all of them.
#ifndef VEKS_TRANSFORM_PACKED_FORMATS_H
#define VEKS_TRANSFORM_PACKED_FORMATS_H

#include <cstddef>

namespace veks {

struct Pack {
  static constexpr size_t firstPair(size_t /*n*/) {
    return 1;
  }
  static constexpr size_t middle(size_t n) {
    return n - 1;
  }
};

struct Perm {
  static constexpr size_t firstPair(size_t n) {
    return n % 2 == 0 ? 2 : 1;
  }
  static constexpr size_t middle(size_t /*n*/) {
    return 1;
  }
};

// The complex values of the run.
constexpr size_t pairsOf(size_t n) {
  return (n - 1) / 2;
}

}  // namespace veks

#endif
