// The shapes of windows and what their weights are computed from, once for each call.
#ifndef VEKS_GEN_WINDOWS_SHAPES_H
#define VEKS_GEN_WINDOWS_SHAPES_H

#include <cstddef>

#include "core/targets.h"
#include "veks/status.h"
#include "veks/types.h"

namespace veks {

struct Bartlett {};
struct Hann {};
struct Hamming {};
struct Blackman {};
struct Kaiser {};

// hi + lo, to more digits than a double has.
struct TwoDoubles {
  double hi;
  double lo;
};

// The least lengths.
constexpr int kLeast = 3;
constexpr int kLeastOptimal = 4;

constexpr Vek32f kStandardAlpha = -0.16f;

constexpr Vek32f alphaOfQ15(int alphaQ15) {
  return static_cast<Vek32f>(alphaQ15 * 0x1p-15);
}

// The alpha of BlackmanOpt for windows of n >= 4 elements.
VEKS_HIDDEN Vek32f optimalAlpha(size_t n);

// The largest |alpha| * (n - 1) / 2 of a Kaiser window.
constexpr double kKaiserLimitOfFloats = 38;
constexpr double kKaiserLimit = 308;

inline VekStatus checkKaiser(double alpha, int n, double limit) {
  const double magnitude = alpha < 0 ? -alpha : alpha;
  return magnitude * (n - 1.0) / 2 > limit ? vekErrKaiserHuge : vekStsOk;
}

// factor / (n - 1), factor * pi / (n - 1)
VEKS_HIDDEN TwoDoubles stepOf(size_t n, int factor);
VEKS_HIDDEN TwoDoubles angleStepOf(size_t n, double factor);

// I0(|alpha| * sqrt(p)) / I0(x0), where p = m * (n - 1 - m) and x0 = |alpha| * (n - 1) / 2. With
// u = p * perProduct the weight is small[0] + small[1] * u + ... for u < 1; otherwise it is
// exp(x - x0) / sqrt(x) * (large[0] + large[1] * s + ...) where s = 3.75 / x. The coefficients
// include the constant factor.
struct KaiserParameters {
  double alpha;  // its magnitude
  double inverseAlpha;
  double last;          // n - 1
  TwoDoubles greatest;  // x0
  TwoDoubles perProduct;
  double small[7];
  double large[9];
  TwoDoubles smallStart[2];  // the first coefficients to more digits
  TwoDoubles largeStart;
};
VEKS_HIDDEN KaiserParameters kaiserParameters(size_t n, double alpha);

}  // namespace veks

#endif
