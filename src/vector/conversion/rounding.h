// One value at a time: rounding to an integer, for the target without vector instructions.
#ifndef VEKS_VECTOR_CONVERSION_ROUNDING_H
#define VEKS_VECTOR_CONVERSION_ROUNDING_H

#include <limits>

namespace veks {

enum class Rounding { kTruncate, kNearest };

// v as an integer, with ties to even.
template <Rounding rounding, class F>
F rounded(F v) {
  // From here on there are no fractions; a smaller magnitude loses its own in the sum.
  constexpr F kUnit = F{1} / std::numeric_limits<F>::epsilon();
  const F magnitude = v < 0 ? -v : v;
  if (!(magnitude < kUnit)) return v;
  F whole = (magnitude + kUnit) - kUnit;
  if (rounding == Rounding::kTruncate && whole > magnitude) whole -= 1;
  return v < 0 ? -whole : whole;
}

// Saturates; NaN is the least value.
template <Rounding rounding, class T, class F>
T toInteger(F v) {
  constexpr F kEnd = F{2} * static_cast<F>(std::numeric_limits<T>::max() / 2 + 1);
  const F whole = rounded<rounding>(v);
  if (whole >= kEnd) return std::numeric_limits<T>::max();
  if (!(whole >= -kEnd)) return std::numeric_limits<T>::min();
  return static_cast<T>(whole);
}

}  // namespace veks

#endif
