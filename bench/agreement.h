// How far the results of peers that round differently may be from those of the library.
#ifndef VEKS_BENCH_AGREEMENT_H
#define VEKS_BENCH_AGREEMENT_H

#include <cmath>
#include <cstddef>
#include <cstring>
#include <type_traits>

#include "compare.h"
#include "veks/types.h"

namespace veks::bench {

inline double magnitude(double x) {
  return std::fabs(x);
}
inline double magnitude(Vek32fc x) {
  return std::hypot(static_cast<double>(x.re), static_cast<double>(x.im));
}
inline double magnitude(Vek64fc x) {
  return std::hypot(x.re, x.im);
}

template <class T>
double distance(T a, T b) {
  return std::fabs(static_cast<double>(a) - static_cast<double>(b));
}
inline double distance(Vek32fc a, Vek32fc b) {
  return std::hypot(static_cast<double>(a.re) - b.re, static_cast<double>(a.im) - b.im);
}
inline double distance(Vek64fc a, Vek64fc b) {
  return std::hypot(a.re - b.re, a.im - b.im);
}

// Calls agrees(expected, got) for each pair of elements of type T that are not the same bytes.
template <class T, class Predicate>
Agreement elementwise(Predicate agrees) {
  return [agrees](const unsigned char* expected, const unsigned char* got, size_t bytes) {
    for (size_t i = 0; i < bytes; i += sizeof(T)) {
      if (std::memcmp(expected + i, got + i, sizeof(T)) == 0) continue;
      T a;
      T b;
      std::memcpy(&a, expected + i, sizeof(T));
      std::memcpy(&b, got + i, sizeof(T));
      if (!agrees(a, b)) return false;
    }
    return true;
  };
}

// Relative to the magnitude of the element, the modulus of a complex one.
template <class T>
Agreement withinRelative(double tolerance) {
  return elementwise<T>(
      [tolerance](T a, T b) { return distance(a, b) <= tolerance * magnitude(a); });
}

// For integers in units of the last place; for sums of floating-point values whose terms are known
// to be of a magnitude around 1.
template <class T>
Agreement withinAbsolute(double tolerance) {
  return elementwise<T>([tolerance](T a, T b) { return distance(a, b) <= tolerance; });
}

// Relative to the norm of all elements.
template <class T>
Agreement withinRelativeNorm(double tolerance) {
  return [tolerance](const unsigned char* expected, const unsigned char* got, size_t bytes) {
    double squares = 0;
    double errors = 0;
    for (size_t i = 0; i < bytes; i += sizeof(T)) {
      T a;
      T b;
      std::memcpy(&a, expected + i, sizeof(T));
      std::memcpy(&b, got + i, sizeof(T));
      squares += magnitude(a) * magnitude(a);
      errors += distance(a, b) * distance(a, b);
    }
    return std::sqrt(errors) <= tolerance * std::sqrt(squares);
  };
}

// Some units in the last place of the element.
template <class T>
Agreement nearAgreement() {
  constexpr bool kSingle = sizeof(T) == 4 || std::is_same_v<T, Vek32fc>;
  return withinRelative<T>(kSingle ? 1e-6 : 1e-14);
}

// For sums of products of values below 2, which may cancel.
template <class T>
Agreement productSumAgreement() {
  constexpr bool kSingle = sizeof(T) == 4 || std::is_same_v<T, Vek32fc>;
  return withinAbsolute<T>(kSingle ? 1e-6 : 1e-14);
}

}  // namespace veks::bench

#endif
