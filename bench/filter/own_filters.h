// The filters of the library under one name for all types of samples.
#ifndef VEKS_BENCH_FILTER_OWN_FILTERS_H
#define VEKS_BENCH_FILTER_OWN_FILTERS_H

#include <stdexcept>
#include <vector>

#include "veks.h"

namespace veks::bench {

template <class T>
struct FilterFunctions;
template <>
struct FilterFunctions<Vek32f> {
  using State = VeksFIRState_32f;
  using Real = float;
  static constexpr auto kSize = veksFIRGetStateSize_32f;
  static constexpr auto kInit = veksFIRInit_32f;
  static constexpr auto kMake = veksFIRInitAlloc_32f;
  static constexpr auto kFree = veksFIRFree_32f;
  static constexpr auto kSetLine = veksFIRSetDlyLine_32f;
  static constexpr auto kFilter = veksFIR_32f;
  static constexpr auto kOne = veksFIROne_32f;
};
template <>
struct FilterFunctions<Vek32fc> {
  using State = VeksFIRState_32fc;
  using Real = float;
  static constexpr auto kSize = veksFIRGetStateSize_32fc;
  static constexpr auto kInit = veksFIRInit_32fc;
  static constexpr auto kMake = veksFIRInitAlloc_32fc;
  static constexpr auto kFree = veksFIRFree_32fc;
  static constexpr auto kSetLine = veksFIRSetDlyLine_32fc;
  static constexpr auto kFilter = veksFIR_32fc;
  static constexpr auto kOne = veksFIROne_32fc;
};
template <>
struct FilterFunctions<Vek64f> {
  using State = VeksFIRState_64f;
  using Real = double;
  static constexpr auto kSize = veksFIRGetStateSize_64f;
  static constexpr auto kInit = veksFIRInit_64f;
  static constexpr auto kMake = veksFIRInitAlloc_64f;
  static constexpr auto kFree = veksFIRFree_64f;
  static constexpr auto kSetLine = veksFIRSetDlyLine_64f;
  static constexpr auto kFilter = veksFIR_64f;
  static constexpr auto kOne = veksFIROne_64f;
};
template <>
struct FilterFunctions<Vek64fc> {
  using State = VeksFIRState_64fc;
  using Real = double;
  static constexpr auto kSize = veksFIRGetStateSize_64fc;
  static constexpr auto kInit = veksFIRInit_64fc;
  static constexpr auto kMake = veksFIRInitAlloc_64fc;
  static constexpr auto kFree = veksFIRFree_64fc;
  static constexpr auto kSetLine = veksFIRSetDlyLine_64fc;
  static constexpr auto kFilter = veksFIR_64fc;
  static constexpr auto kOne = veksFIROne_64fc;
};

inline void check(VekStatus status) {
  if (status != vekStsOk) throw std::runtime_error(vekGetStatusString(status));
}

// In memory of the library it may use transforms, in a caller's buffer it may not.
enum class StateMemory { kLibrary, kCaller };

template <class T>
class OwnFilter {
 public:
  using Functions = FilterFunctions<T>;
  using State = typename Functions::State;

  OwnFilter(const std::vector<T>& taps, StateMemory memory) {
    const int len = static_cast<int>(taps.size());
    if (memory == StateMemory::kLibrary) {
      check(Functions::kMake(&state_, taps.data(), len, nullptr));
      return;
    }
    int size = 0;
    check(Functions::kSize(len, &size));
    buffer_.resize(static_cast<size_t>(size));
    check(Functions::kInit(&state_, taps.data(), len, nullptr, buffer_.data()));
  }
  OwnFilter(const OwnFilter&) = delete;
  OwnFilter& operator=(const OwnFilter&) = delete;
  ~OwnFilter() {
    Functions::kFree(state_);
  }

  State* state() const {
    return state_;
  }
  void reset() const {
    check(Functions::kSetLine(state_, nullptr));
  }

 private:
  State* state_ = nullptr;
  std::vector<Vek8u> buffer_;
};

}  // namespace veks::bench

#endif
