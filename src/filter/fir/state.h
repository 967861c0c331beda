// States of filters in memory.
#ifndef VEKS_FILTER_FIR_STATE_H
#define VEKS_FILTER_FIR_STATE_H

#include "filter/fir/layout.h"
#include "filter/fir/samples.h"
#include "filter/fir/tap_pairs.h"
#include "filter/fir/transform.h"

namespace veks {

// Filters in place work on so many samples at a time.
constexpr size_t kWorkSamples = 4096;

// The last tapsLen samples, the oldest one first, are at `line + index`. A sample that comes alone
// is written at `line + index` and again `tapsLen` further on, so that they always stay together.
template <class Kept>
struct FirState {
  uint32_t id;
  int32_t tapsLen;
  int32_t index;
  void* block;  // null for a state in the caller's buffer
  Kept* line;
  Kept* work;

  size_t taps() const {
    return static_cast<size_t>(tapsLen);
  }
  Kept* history() const {
    return line + index;
  }
  // So many samples fit behind the history, wherever it is.
  size_t blockLen() const {
    return (taps() + 3) / 4 * 4 + 1;
  }
  static uint64_t lineSize(size_t tapsLen) {
    return 3 * uint64_t{tapsLen} + 4;
  }
};

template <class T>
struct FirFloatState : FirState<T> {
  using Transform = FirTransform<T>;

  T* reversedTaps;
  Transform transform;

  // Puts the pieces into the layout, which may only count them.
  static FirFloatState piecesOf(Layout* layout, size_t tapsLen) {
    FirFloatState state = {};
    state.line = layout->take<T>(FirState<T>::lineSize(tapsLen));
    state.reversedTaps = layout->take<T>(tapsLen);
    state.work = layout->take<T>(kWorkSamples);
    return state;
  }

  VekStatus setTaps(const T* taps) {
    std::reverse_copy(taps, taps + this->tapsLen, reversedTaps);
    return transform.setTaps(taps, this->taps());
  }
  void getTaps(T* taps) const {
    std::reverse_copy(reversedTaps, reversedTaps + this->tapsLen, taps);
  }
};

struct NoTransform {
  VekStatus make(int) {
    return vekStsOk;
  }
  void takePieces(Layout*) {}
  void release() {}
};

template <class Tap, class Sample>
struct FirIntegerState : FirState<Sample> {
  using Transform = NoTransform;

  int32_t tapsFactor;
  TapPairs<Tap> pairs;
  Tap* callersTaps;
  Transform transform;

  static FirIntegerState piecesOf(Layout* layout, size_t tapsLen) {
    FirIntegerState state = {};
    state.line = layout->take<Sample>(FirState<Sample>::lineSize(tapsLen));
    state.callersTaps = layout->take<Tap>(tapsLen);
    state.pairs = TapPairs<Tap>::piecesOf(layout, tapsLen);
    state.work = layout->take<Sample>(kWorkSamples);
    return state;
  }

  VekStatus setTaps(const Tap* taps) {
    std::copy(taps, taps + this->tapsLen, callersTaps);
    pairs.set(taps, this->taps());
    return vekStsOk;
  }
  void getTaps(Tap* taps) const {
    std::copy(callersTaps, callersTaps + this->tapsLen, taps);
  }
};

}  // namespace veks

#endif
