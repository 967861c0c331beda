// The calling frame of the generators: the phase is read through a pointer, checked with the
// parameters before the destination, and handed on before the samples are generated.
#ifndef VEKS_GEN_CHECKS_H
#define VEKS_GEN_CHECKS_H

#include "core/frame.h"
#include "gen/turns.h"

namespace veks {

// The statuses of a family of generators.
struct GeneratorErrors {
  VekStatus magnitude;
  VekStatus frequency;
  VekStatus phase;
};
constexpr GeneratorErrors kToneErrors = {vekErrToneMagn, vekErrToneFreq, vekErrTonePhase};
constexpr GeneratorErrors kTriangleErrors = {vekErrTrnglMagn, vekErrTrnglFreq, vekErrTrnglPhase};

// Arguments that are not a number are out of range.
inline VekStatus checkMagnitude(double magn, double rFreq, const GeneratorErrors& errors) {
  if (!(magn > 0)) return errors.magnitude;
  return rFreq >= 0 && rFreq < 0.5 ? vekStsOk : errors.frequency;
}

inline VekStatus checkPhase(double phase, const GeneratorErrors& errors) {
  return phase >= 0 && phase < kTwoPi ? vekStsOk : errors.phase;
}

// The limits are those of the asymmetry's own type.
template <class T>
inline VekStatus checkAsymmetry(T asym) {
  constexpr T kLimit = static_cast<T>(kPi);
  return asym >= -kLimit && asym < kLimit ? vekStsOk : vekErrTrnglAsym;
}

// kernel(dst, n, magn, rFreq, phase, 0)
template <class Kernel, class Element, class T>
inline VekStatus generateTone(Kernel kernel, Element* dst, int len, double magn, T rFreq,
                              T* phase) {
  if (!phase) return vekErrNullPtr;
  VekStatus status = checkMagnitude(magn, rFreq, kToneErrors);
  if (status == vekStsOk) status = checkPhase(*phase, kToneErrors);
  if (status == vekStsOk) status = checkVectors(len, dst);
  if (status != vekStsOk) return status;
  const double start = *phase;
  *phase = phaseAfter<T>(rFreq, len, start);
  return kernel(dst, static_cast<size_t>(len), magn, double{rFreq}, start, size_t{0});
}

// kernel(dst, n, magn, rFreq, phase, asym, 0)
template <class Kernel, class Element, class T>
inline VekStatus generateTriangle(Kernel kernel, Element* dst, int len, double magn, T rFreq,
                                  T asym, T* phase) {
  if (!phase) return vekErrNullPtr;
  VekStatus status = checkMagnitude(magn, rFreq, kTriangleErrors);
  if (status == vekStsOk) status = checkAsymmetry(asym);
  if (status == vekStsOk) status = checkPhase(*phase, kTriangleErrors);
  if (status == vekStsOk) status = checkVectors(len, dst);
  if (status != vekStsOk) return status;
  const double start = *phase;
  *phase = phaseAfter<T>(rFreq, len, start);
  return kernel(dst, static_cast<size_t>(len), magn, double{rFreq}, start, double{asym}, size_t{0});
}

}  // namespace veks

#endif
