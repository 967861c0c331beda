#include "veks/gen/tones.h"

#include "comparisons.h"
#include "peers/plain_tones.h"
#include "veks/gen/triangles.h"

namespace veks::bench {
namespace {

// In single precision, the arguments of the loops lose digits as they grow: at this frequency they
// stay within a turn.
constexpr double kFrequency = 1e-7;
constexpr double kPhase = 1;
constexpr double kAsymmetry = 0.5;
constexpr double kMagnitude = 1000;

// The library's functions with a start phase in place of a pointer to one.
template <auto function, class E, class M, class F>
VekStatus toneFrom(E* dst, int len, M magn, F rFreq, F phase) {
  return function(dst, len, magn, rFreq, &phase, 1);
}
template <auto function, class E, class M, class F>
VekStatus triangleFrom(E* dst, int len, M magn, F rFreq, F asym, F phase) {
  return function(dst, len, magn, rFreq, asym, &phase);
}

// Integers next to a boundary differ by 1.
template <class E>
Agreement agreement(double relative) {
  return elementwise<E>([=](E a, E b) {
    if constexpr (std::is_same_v<E, Vek16sc>) {
      return std::abs(a.re - b.re) <= 1 && std::abs(a.im - b.im) <= 1;
    } else {
      return distance(a, b) <= (std::is_integral_v<E> ? 1 : relative * kMagnitude);
    }
  });
}

template <auto function, class E, class M, class F>
void tone(const char* name, double tolerance) {
  const M magn = static_cast<M>(kMagnitude);
  const F rFreq = static_cast<F>(kFrequency);
  const F phase = static_cast<F>(kPhase);
  compareVectors(name, toneFrom<function, E, M, F>, {},
                 {approximate(agreement<E>(tolerance),
                              peer("loop", plain::tone<E, M, F>, magn, rFreq, phase))},
                 magn, rFreq, phase);
}

template <auto function, class E, class M, class F>
void triangle(const char* name, double tolerance) {
  const M magn = static_cast<M>(kMagnitude);
  const F rFreq = static_cast<F>(kFrequency);
  const F asym = static_cast<F>(kAsymmetry);
  const F phase = static_cast<F>(kPhase);
  compareVectors(name, triangleFrom<function, E, M, F>, {},
                 {approximate(agreement<E>(tolerance),
                              peer("loop", plain::triangle<E, M, F>, magn, rFreq, asym, phase))},
                 magn, rFreq, asym, phase);
}

void addCases() {
  constexpr double kSingle = 1e-5;
  constexpr double kDouble = 1e-13;
  tone<veksTone_Direct_32f, Vek32f, Vek32f, Vek32f>("veksTone_Direct_32f", kSingle);
  tone<veksTone_Direct_64f, Vek64f, Vek64f, Vek64f>("veksTone_Direct_64f", kDouble);
  tone<veksTone_Direct_16s, Vek16s, Vek16s, Vek32f>("veksTone_Direct_16s", 0);
  tone<veksTone_Direct_32fc, Vek32fc, Vek32f, Vek32f>("veksTone_Direct_32fc", kSingle);
  tone<veksTone_Direct_64fc, Vek64fc, Vek64f, Vek64f>("veksTone_Direct_64fc", kDouble);
  tone<veksTone_Direct_16sc, Vek16sc, Vek16s, Vek32f>("veksTone_Direct_16sc", 0);
  triangle<veksTriangle_Direct_32f, Vek32f, Vek32f, Vek32f>("veksTriangle_Direct_32f", kSingle);
  triangle<veksTriangle_Direct_64f, Vek64f, Vek64f, Vek64f>("veksTriangle_Direct_64f", kDouble);
  triangle<veksTriangle_Direct_16s, Vek16s, Vek16s, Vek32f>("veksTriangle_Direct_16s", 0);
}

const VectorSuite suite(Sizes::kElements, addCases);

}  // namespace
}  // namespace veks::bench
