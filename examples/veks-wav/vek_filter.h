// The library's filters under one name for the floating-point sample types.
#ifndef VEKS_WAV_VEK_FILTER_H
#define VEKS_WAV_VEK_FILTER_H

#include <memory>
#include <type_traits>
#include <vector>

#include "vek.h"

namespace veks_wav {

inline VeksFIRState_32f* makeFilter(const Vek32f* taps, int len) {
  VeksFIRState_32f* state = nullptr;
  check(veksFIRInitAlloc_32f(&state, taps, len, nullptr));
  return state;
}
inline VeksFIRState_64f* makeFilter(const Vek64f* taps, int len) {
  VeksFIRState_64f* state = nullptr;
  check(veksFIRInitAlloc_64f(&state, taps, len, nullptr));
  return state;
}

inline void runFilter(const Vek32f* from, Vek32f* to, int len, VeksFIRState_32f* state) {
  check(veksFIR_32f(from, to, len, state));
}
inline void runFilter(const Vek64f* from, Vek64f* to, int len, VeksFIRState_64f* state) {
  check(veksFIR_64f(from, to, len, state));
}

struct FreeFilter {
  void operator()(VeksFIRState_32f* state) const {
    veksFIRFree_32f(state);
  }
  void operator()(VeksFIRState_64f* state) const {
    veksFIRFree_64f(state);
  }
};

// A finite impulse response filter for a stream of Vek32f or Vek64f, with silence before it.
template <class T>
class Filter {
 public:
  explicit Filter(const std::vector<T>& taps)
      : state_(makeFilter(taps.data(), static_cast<int>(taps.size()))) {}

  void run(const T* from, T* to, int len) {
    runFilter(from, to, len, state_.get());
  }

 private:
  using State = std::remove_pointer_t<decltype(makeFilter(static_cast<const T*>(nullptr), 0))>;
  std::unique_ptr<State, FreeFilter> state_;
};

}  // namespace veks_wav

#endif
