// Generators with arguments in Q15: integers scaled by 2^15, and the states that they advance.
#ifndef VEKS_GEN_FIXED_POINT_H
#define VEKS_GEN_FIXED_POINT_H

#include <cmath>
#include <cstdint>
#include <cstring>

#include "core/memory.h"
#include "gen/checks.h"
#include "veks/core/services.h"

namespace veks {

constexpr double kQ15 = 1.0 / 32768;
constexpr int kFrequenciesQ15 = 16384;
constexpr int kPhasesQ15 = 205887;
constexpr int kLeastAsymmetryQ15 = -102943;
constexpr int kMostAsymmetryQ15 = 102943;

// Frequencies are multiples of 2^-15 turns per sample, so signals repeat after that many samples:
// only the lower bits of a sample's number count, and the numbers may wrap around.
constexpr uint32_t kPeriodQ15 = 32768;

inline VekStatus checkToneQ15(int magn, int freqQ15, int phaseQ15) {
  if (magn < 1) return vekErrToneMagn;
  if (freqQ15 < 0 || freqQ15 >= kFrequenciesQ15) return vekErrToneFreq;
  return phaseQ15 < 0 || phaseQ15 >= kPhasesQ15 ? vekErrTonePhase : vekStsOk;
}

inline VekStatus checkTriangleQ15(int magn, int freqQ15) {
  if (magn < 1) return vekErrTrnglMagn;
  return freqQ15 < 0 || freqQ15 >= kFrequenciesQ15 ? vekErrTrnglFreq : vekStsOk;
}

inline VekStatus checkTrianglePhaseQ15(int phaseQ15) {
  return phaseQ15 < 0 || phaseQ15 >= kPhasesQ15 ? vekErrTrnglPhase : vekStsOk;
}

inline VekStatus checkAsymmetryQ15(int asymQ15) {
  const bool isIn = asymQ15 >= kLeastAsymmetryQ15 && asymQ15 <= kMostAsymmetryQ15;
  return isIn ? vekStsOk : vekErrTrnglAsym;
}

// The phase after `count` samples, rounded to the nearest valid one on the circle.
inline int phaseAfterQ15(int freqQ15, int count, int phaseQ15) {
  const double phase = phaseAfter<double>(freqQ15 * kQ15, count, phaseQ15 * kQ15) / kQ15;
  const int below = static_cast<int>(phase);
  const int rounded = phase - below < 0.5 ? below : below + 1;
  if (rounded < kPhasesQ15) return rounded;
  return kTwoPi / kQ15 - phase < phase - (kPhasesQ15 - 1) ? 0 : kPhasesQ15 - 1;
}

// The states begin and end alike, in the layout of 64-bit builds everywhere. They may lie at any
// address, so they are copied.
struct ToneStateQ15 {
  static constexpr uint32_t kId = 0x4C4D535A;
  uint32_t id;
  uint32_t unused;
  double magnitude;
  double rFreq;
  double phase;
  uint32_t counter;  // samples so far, modulo 2^32
  uint32_t isOwned;
  uint32_t isStarted;
  uint32_t unusedToo;
};
static_assert(sizeof(ToneStateQ15) == 48);

struct TriangleStateQ15 {
  static constexpr uint32_t kId = 0x4C4D535B;
  uint32_t id;
  uint32_t unused;
  double magnitude;
  double rFreq;
  double phase;
  double asym;
  double work[10];
  uint32_t counter;
  uint32_t isOwned;
  uint32_t isStarted;
  uint32_t unusedToo;
};
static_assert(sizeof(TriangleStateQ15) == 136);

template <class State>
inline State stateOf(int magn, int freqQ15, int phaseQ15) {
  State state = {};
  state.id = State::kId;
  state.magnitude = magn;
  state.rFreq = freqQ15 * kQ15;
  state.phase = phaseQ15 * kQ15;
  return state;
}

template <class State, class Opaque>
inline VekStatus allocateState(Opaque** result, State state) {
  void* const block = allocate(sizeof(State));
  if (block == nullptr) return vekErrMemAllocTooSmall;
  state.isOwned = 1;
  std::memcpy(block, &state, sizeof(State));
  *result = static_cast<Opaque*>(block);
  return vekStsOk;
}

template <class State, class Opaque>
inline VekStatus storeState(Opaque* result, const State& state) {
  std::memcpy(static_cast<void*>(result), &state, sizeof(State));
  return vekStsOk;
}

template <class State>
inline VekStatus stateSize(int* size) {
  if (!size) return vekErrNullPtr;
  *size = sizeof(State);
  return vekStsOk;
}

template <class State, class Opaque>
inline VekStatus freeState(Opaque* opaque) {
  if (!opaque) return vekErrNullPtr;
  State state;
  std::memcpy(&state, static_cast<const void*>(opaque), sizeof(State));
  if (state.id != State::kId) return vekErrContextMatch;
  if (state.isOwned != 1) return vekStsOk;
  state.id = 0;
  std::memcpy(static_cast<void*>(opaque), &state, sizeof(State));
  veksFree(opaque);
  return vekStsOk;
}

// generate(state, first) makes the next len samples, of which the first one's number is given.
template <class State, class Opaque, class Generate>
inline VekStatus advanceState(const void* dst, int len, Opaque* opaque, const Generate& generate) {
  if (!dst || !opaque) return vekErrNullPtr;
  if (len < 1) return vekErrSize;
  State state;
  std::memcpy(&state, static_cast<const void*>(opaque), sizeof(State));
  if (state.id != State::kId) return vekErrContextMatch;
  const uint32_t first = state.isStarted != 0 ? state.counter : 0;
  state.counter = first + static_cast<uint32_t>(len);
  state.isStarted = 1;
  std::memcpy(static_cast<void*>(opaque), &state, sizeof(State));
  return generate(state, size_t{first % kPeriodQ15});
}

}  // namespace veks

#endif
