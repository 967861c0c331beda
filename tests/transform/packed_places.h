// The formats of packed spectra, as their documentation draws them.
#ifndef VEKS_TESTS_TRANSFORM_PACKED_PLACES_H
#define VEKS_TESTS_TRANSFORM_PACKED_PLACES_H

#include <cstddef>
#include <vector>

namespace veks::test {

enum class Format { kPack, kPerm, kCCS };

// Values that the spectrum of n real values has.
inline size_t packedSize(Format format, size_t n) {
  if (format != Format::kCCS) return n;
  return n % 2 == 0 ? n + 2 : n + 1;
}

// Where the real and the imaginary part of point k <= n / 2 are; kZero for parts that are 0 and not
// there.
constexpr size_t kZero = ~size_t{0};
struct Places {
  size_t re;
  size_t im;
};
inline Places placesOf(Format format, size_t n, size_t k) {
  if (format == Format::kCCS) return {2 * k, 2 * k + 1};
  if (k == 0) return {0, kZero};
  const bool isPerm = format == Format::kPerm && n % 2 == 0;
  if (2 * k == n) return {isPerm ? 1 : n - 1, kZero};
  return isPerm ? Places{2 * k, 2 * k + 1} : Places{2 * k - 1, 2 * k};
}

// Point k of a packed spectrum.
template <class C>
C packedPoint(const std::vector<decltype(C::re)>& packed, Format format, size_t n, size_t k) {
  const Places places = placesOf(format, n, k);
  C point = {packed[places.re], {}};
  if (places.im != kZero) point.im = packed[places.im];
  return point;
}

}  // namespace veks::test

#endif
