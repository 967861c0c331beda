// States with integer taps and their factor, and the way to them from taps of floating point.
#ifndef VEKS_FILTER_FIR_INTEGER_TAPS_H
#define VEKS_FILTER_FIR_INTEGER_TAPS_H

#include "core/power_of_two.h"
#include "filter/fir/make.h"

namespace veks {

template <class Handle, class Tap, class Data>
inline VekStatus firInitScaled(Handle** handle, const Tap* taps, int tapsLen, int tapsFactor,
                               const Data* line, Vek8u* buffer) {
  const VekStatus status = firInit(handle, taps, tapsLen, line, buffer);
  if (status == vekStsOk) stateOf(*handle)->tapsFactor = tapsFactor;
  return status;
}

template <class Handle, class Tap, class Data>
inline VekStatus firInitAllocScaled(Handle** handle, const Tap* taps, int tapsLen, int tapsFactor,
                                    const Data* line) {
  const VekStatus status = firInitAlloc(handle, taps, tapsLen, line);
  if (status == vekStsOk) stateOf(*handle)->tapsFactor = tapsFactor;
  return status;
}

template <class Handle, class Tap>
inline VekStatus firGetScaledTaps(const Handle* handle, Tap* taps, int* tapsFactor) {
  if (handle == nullptr || taps == nullptr || tapsFactor == nullptr) return vekErrNullPtr;
  const VekStatus status = firGetTaps(handle, taps);
  if (status == vekStsOk) *tapsFactor = stateOf(handle)->tapsFactor;
  return status;
}

template <class Handle, class Tap>
inline VekStatus firSetScaledTaps(const Tap* taps, Handle* handle, int tapsFactor) {
  const VekStatus status = firSetTaps(taps, handle);
  if (status == vekStsOk) stateOf(handle)->tapsFactor = tapsFactor;
  return status;
}

// The exponent of the power of two that brings the largest magnitude, if it is a number, to
// 16383.5 .. 32767; 0 for nothing but zeros.
inline int exponentFor(double largest) {
  constexpr double kMost = 32767;
  if (!(largest > 0)) return 0;
  int exponent = 0;
  double scaled = largest;
  if (scaled > kMost) {
    constexpr int kLeast = -1024;
    while (scaled > kMost && exponent > kLeast) {
      scaled /= 2;
      --exponent;
    }
  } else {
    while (2 * scaled < kMost) {
      scaled *= 2;
      ++exponent;
    }
  }
  return exponent;
}

// x 2^exponent for |exponent| up to 1022 and more.
inline double timesPower(double x, int exponent) {
  constexpr int kMost = 1000;
  const int inRange = std::clamp(exponent, -kMost, kMost);
  return x * powerOfTwo(inRange);
}

// To nearest, halves away from zero; no number is 0.
inline int32_t roundedTap(double tap) {
  const double shifted = tap + (tap < 0 ? -0.5 : 0.5);
  constexpr double kMost = 2147483647;
  return shifted == shifted ? static_cast<int32_t>(std::clamp(shifted, -kMost, kMost)) : 0;
}

// State::setTaps for taps of floating point.
template <class State, class FloatTap>
inline VekStatus setConvertedTaps(State* state, const FloatTap* taps) {
  const auto* lanes = reinterpret_cast<const Vek32f*>(taps);
  auto* const integers = reinterpret_cast<Vek32s*>(state->callersTaps);
  const size_t n = state->taps() * LanesOf<FloatTap>::kLanes;
  double largest = 0;
  for (size_t i = 0; i < n; ++i) largest = std::max(largest, std::abs(double{lanes[i]}));
  const int exponent = exponentFor(largest);
  for (size_t i = 0; i < n; ++i) integers[i] = roundedTap(timesPower(lanes[i], exponent));
  state->tapsFactor = -exponent;
  return state->setTaps(state->callersTaps);
}

template <class Handle, class FloatTap, class Data>
inline VekStatus firInitConverted(Handle** handle, const FloatTap* taps, int tapsLen,
                                  const Data* line, Vek8u* buffer) {
  if (handle == nullptr || taps == nullptr || buffer == nullptr) return vekErrNullPtr;
  if (tapsLen < 1) return vekErrFIRLen;
  return initState(handle, tapsLen, line, buffer,
                   [=](auto* state) { return setConvertedTaps(state, taps); });
}

template <class Handle, class FloatTap, class Data>
inline VekStatus firInitAllocConverted(Handle** handle, const FloatTap* taps, int tapsLen,
                                       const Data* line) {
  if (handle == nullptr || taps == nullptr) return vekErrNullPtr;
  if (tapsLen < 1) return vekErrFIRLen;
  return allocateState(handle, tapsLen, line,
                       [=](auto* state) { return setConvertedTaps(state, taps); });
}

template <class Handle, class FloatTap>
inline VekStatus firSetConvertedTaps(const FloatTap* taps, Handle* handle) {
  if (taps == nullptr || handle == nullptr) return vekErrNullPtr;
  const VekStatus status = checkState(handle);
  return status != vekStsOk ? status : setConvertedTaps(stateOf(handle), taps);
}

template <class Handle, class FloatTap>
inline VekStatus firGetConvertedTaps(const Handle* handle, FloatTap* taps) {
  if (handle == nullptr || taps == nullptr) return vekErrNullPtr;
  const VekStatus status = checkState(handle);
  if (status != vekStsOk) return status;
  auto* const lanes = reinterpret_cast<Vek32f*>(taps);
  const auto* integers = reinterpret_cast<const Vek32s*>(stateOf(handle)->callersTaps);
  for (size_t i = 0; i < stateOf(handle)->taps() * LanesOf<FloatTap>::kLanes; ++i) {
    lanes[i] = static_cast<Vek32f>(timesPower(integers[i], stateOf(handle)->tapsFactor));
  }
  return vekStsOk;
}

}  // namespace veks

#endif
