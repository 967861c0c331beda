#ifndef VEKS_GEN_PERIODIC_H
#define VEKS_GEN_PERIODIC_H

#include <cstddef>
#include <type_traits>

#include "veks/types.h"

namespace veks {

constexpr size_t kRowLength = 64;

// How samples become integers.
enum class Rounding { kTowardZero, kHalfAwayFromZero };

template <class Element>
constexpr bool kIsComplex = std::is_class_v<Element>;

}  // namespace veks

#endif
