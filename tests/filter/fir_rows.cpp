#include "filter/fir_rows.h"

#include <cstring>
#include <type_traits>

namespace veks::test::fir {
namespace {

// Any pointer, and any sample at an address.
struct Pointer {
  const void* address;
  template <class T>
  operator T*() const {
    return static_cast<T*>(const_cast<void*>(address));
  }
};
struct Sample {
  const void* address;
  template <class T, class = std::enable_if_t<!std::is_pointer_v<T>>>
  operator T() const {
    T sample;
    std::memcpy(&sample, address, sizeof(T));
    return sample;
  }
};
using P = Pointer;

template <class S, class... Rest>
S* stateOf(VekStatus (*)(S**, Rest...));

// With a buffer at the end or without.
template <auto f, class... Buffer>
VekStatus make(void** state, const void* taps, int tapsLen, int tapsFactor, const void* line,
               Buffer... buffer) {
  using S = decltype(stateOf(f));
  S made = state == nullptr ? nullptr : static_cast<S>(*state);
  S* const where = state == nullptr ? nullptr : &made;
  VekStatus status;
  if constexpr (std::is_invocable_v<decltype(f), S*, P, int, P, Buffer...>) {
    status = f(where, P{taps}, tapsLen, P{line}, buffer...);
  } else {
    status = f(where, P{taps}, tapsLen, tapsFactor, P{line}, buffer...);
  }
  if (state != nullptr) *state = made;
  return status;
}

template <auto f>
VekStatus getTaps(const void* state, void* taps, int* tapsFactor) {
  if constexpr (std::is_invocable_v<decltype(f), P, P>) {
    return f(P{state}, P{taps});
  } else {
    return f(P{state}, P{taps}, tapsFactor);
  }
}
template <auto f>
VekStatus setTaps(const void* taps, void* state, int tapsFactor) {
  if constexpr (std::is_invocable_v<decltype(f), P, P>) {
    return f(P{taps}, P{state});
  } else {
    return f(P{taps}, P{state}, tapsFactor);
  }
}
template <auto f, class... Address>
VekStatus onPointers(Address... pointers) {
  return f(P{pointers}...);
}

// Calls f with the arguments in front of those that it may not take.
template <auto f, class... Args>
VekStatus scaled(int scaleFactor, Args... args) {
  if constexpr (std::is_invocable_v<decltype(f), Args...>) {
    return f(args...);
  } else {
    return f(args..., scaleFactor);
  }
}

template <auto f>
VekStatus filter(const void* src, void* dst, int n, void* state, int scaleFactor) {
  return scaled<f>(scaleFactor, P{src}, P{dst}, n, P{state});
}
template <auto f>
VekStatus filterInPlace(void* srcDst, int n, void* state, int scaleFactor) {
  return scaled<f>(scaleFactor, P{srcDst}, n, P{state});
}
template <auto f>
VekStatus one(const void* sample, void* dst, void* state, int scaleFactor) {
  return scaled<f>(scaleFactor, Sample{sample}, P{dst}, P{state});
}

template <auto f>
VekStatus direct(const void* src, void* dst, int n, const void* taps, int tapsLen, int tapsFactor,
                 void* line, int* index, int scaleFactor) {
  if constexpr (std::is_invocable_v<decltype(f), P, P, int, P, int, int, P, int*, int>) {
    return f(P{src}, P{dst}, n, P{taps}, tapsLen, tapsFactor, P{line}, index, scaleFactor);
  } else {
    return scaled<f>(scaleFactor, P{src}, P{dst}, n, P{taps}, tapsLen, P{line}, index);
  }
}
template <auto f>
VekStatus directInPlace(void* srcDst, int n, const void* taps, int tapsLen, int tapsFactor,
                        void* line, int* index, int scaleFactor) {
  if constexpr (std::is_invocable_v<decltype(f), P, int, P, int, int, P, int*, int>) {
    return f(P{srcDst}, n, P{taps}, tapsLen, tapsFactor, P{line}, index, scaleFactor);
  } else {
    return scaled<f>(scaleFactor, P{srcDst}, n, P{taps}, tapsLen, P{line}, index);
  }
}
template <auto f>
VekStatus oneDirect(const void* sample, void* dst, const void* taps, int tapsLen, int tapsFactor,
                    void* line, int* index, int scaleFactor) {
  if constexpr (std::is_invocable_v<decltype(f), Sample, P, P, int, int, P, int*, int>) {
    return f(Sample{sample}, P{dst}, P{taps}, tapsLen, tapsFactor, P{line}, index, scaleFactor);
  } else {
    return scaled<f>(scaleFactor, Sample{sample}, P{dst}, P{taps}, tapsLen, P{line}, index);
  }
}
template <auto f>
VekStatus oneDirectInPlace(void* sampleDst, const void* taps, int tapsLen, int tapsFactor,
                           void* line, int* index, int scaleFactor) {
  if constexpr (std::is_invocable_v<decltype(f), P, P, int, int, P, int*, int>) {
    return f(P{sampleDst}, P{taps}, tapsLen, tapsFactor, P{line}, index, scaleFactor);
  } else {
    return scaled<f>(scaleFactor, P{sampleDst}, P{taps}, tapsLen, P{line}, index);
  }
}

template <auto stateSize, auto init, auto initAlloc, auto release, auto get, auto set, auto getDly,
          auto setDly, auto block, auto blockI, auto single, auto directBlock, auto directBlockI,
          auto directSingle, auto directSingleI>
Row row(const char* name, Type tap, Type data, size_t lanes, size_t transformsFrom) {
  // clang-format off
  return {name, tap, data, lanes, transformsFrom, stateSize,
          make<init, Vek8u*>, make<initAlloc>, onPointers<release, void*>,
          getTaps<get>, setTaps<set>,
          onPointers<getDly, const void*, void*>, onPointers<setDly, void*, const void*>,
          filter<block>, filterInPlace<blockI>, one<single>,
          direct<directBlock>, directInPlace<directBlockI>,
          oneDirect<directSingle>, oneDirectInPlace<directSingleI>};
  // clang-format on
}

}  // namespace

const std::vector<Row>& rows() {
  using T = Type;
  static const std::vector<Row> all = {
      row<veksFIRGetStateSize_32f, veksFIRInit_32f, veksFIRInitAlloc_32f, veksFIRFree_32f,
          veksFIRGetTaps_32f, veksFIRSetTaps_32f, veksFIRGetDlyLine_32f, veksFIRSetDlyLine_32f,
          veksFIR_32f, veksFIR_32f_I, veksFIROne_32f, veksFIR_Direct_32f, veksFIR_Direct_32f_I,
          veksFIROne_Direct_32f, veksFIROne_Direct_32f_I>("_32f", T::k32f, T::k32f, 1, 64),
      row<veksFIRGetStateSize_32fc, veksFIRInit_32fc, veksFIRInitAlloc_32fc, veksFIRFree_32fc,
          veksFIRGetTaps_32fc, veksFIRSetTaps_32fc, veksFIRGetDlyLine_32fc, veksFIRSetDlyLine_32fc,
          veksFIR_32fc, veksFIR_32fc_I, veksFIROne_32fc, veksFIR_Direct_32fc, veksFIR_Direct_32fc_I,
          veksFIROne_Direct_32fc, veksFIROne_Direct_32fc_I>("_32fc", T::k32f, T::k32f, 2, 16),
      row<veksFIRGetStateSize_64f, veksFIRInit_64f, veksFIRInitAlloc_64f, veksFIRFree_64f,
          veksFIRGetTaps_64f, veksFIRSetTaps_64f, veksFIRGetDlyLine_64f, veksFIRSetDlyLine_64f,
          veksFIR_64f, veksFIR_64f_I, veksFIROne_64f, veksFIR_Direct_64f, veksFIR_Direct_64f_I,
          veksFIROne_Direct_64f, veksFIROne_Direct_64f_I>("_64f", T::k64f, T::k64f, 1, 32),
      row<veksFIRGetStateSize_64fc, veksFIRInit_64fc, veksFIRInitAlloc_64fc, veksFIRFree_64fc,
          veksFIRGetTaps_64fc, veksFIRSetTaps_64fc, veksFIRGetDlyLine_64fc, veksFIRSetDlyLine_64fc,
          veksFIR_64fc, veksFIR_64fc_I, veksFIROne_64fc, veksFIR_Direct_64fc, veksFIR_Direct_64fc_I,
          veksFIROne_Direct_64fc, veksFIROne_Direct_64fc_I>("_64fc", T::k64f, T::k64f, 2, 16),
      row<veksFIRGetStateSize64f_32f, veksFIRInit64f_32f, veksFIRInitAlloc64f_32f,
          veksFIRFree64f_32f, veksFIRGetTaps64f_32f, veksFIRSetTaps64f_32f,
          veksFIRGetDlyLine64f_32f, veksFIRSetDlyLine64f_32f, veksFIR64f_32f, veksFIR64f_32f_I,
          veksFIROne64f_32f, veksFIR64f_Direct_32f, veksFIR64f_Direct_32f_I,
          veksFIROne64f_Direct_32f, veksFIROne64f_Direct_32f_I>("64f_32f", T::k64f, T::k32f, 1, 32),
      row<veksFIRGetStateSize64fc_32fc, veksFIRInit64fc_32fc, veksFIRInitAlloc64fc_32fc,
          veksFIRFree64fc_32fc, veksFIRGetTaps64fc_32fc, veksFIRSetTaps64fc_32fc,
          veksFIRGetDlyLine64fc_32fc, veksFIRSetDlyLine64fc_32fc, veksFIR64fc_32fc,
          veksFIR64fc_32fc_I, veksFIROne64fc_32fc, veksFIR64fc_Direct_32fc,
          veksFIR64fc_Direct_32fc_I, veksFIROne64fc_Direct_32fc, veksFIROne64fc_Direct_32fc_I>(
          "64fc_32fc", T::k64f, T::k32f, 2, 16),
      row<veksFIRGetStateSize32f_16s, veksFIRInit32f_16s, veksFIRInitAlloc32f_16s,
          veksFIRFree32f_16s, veksFIRGetTaps32f_16s, veksFIRSetTaps32f_16s,
          veksFIRGetDlyLine32f_16s, veksFIRSetDlyLine32f_16s, veksFIR32f_16s_Sfs,
          veksFIR32f_16s_ISfs, veksFIROne32f_16s_Sfs, veksFIR32f_Direct_16s_Sfs,
          veksFIR32f_Direct_16s_ISfs, veksFIROne32f_Direct_16s_Sfs, veksFIROne32f_Direct_16s_ISfs>(
          "32f_16s", T::k32f, T::k16s, 1, 64),
      row<veksFIRGetStateSize32fc_16sc, veksFIRInit32fc_16sc, veksFIRInitAlloc32fc_16sc,
          veksFIRFree32fc_16sc, veksFIRGetTaps32fc_16sc, veksFIRSetTaps32fc_16sc,
          veksFIRGetDlyLine32fc_16sc, veksFIRSetDlyLine32fc_16sc, veksFIR32fc_16sc_Sfs,
          veksFIR32fc_16sc_ISfs, veksFIROne32fc_16sc_Sfs, veksFIR32fc_Direct_16sc_Sfs,
          veksFIR32fc_Direct_16sc_ISfs, veksFIROne32fc_Direct_16sc_Sfs,
          veksFIROne32fc_Direct_16sc_ISfs>("32fc_16sc", T::k32f, T::k16s, 2, 16),
      row<veksFIRGetStateSize64f_16s, veksFIRInit64f_16s, veksFIRInitAlloc64f_16s,
          veksFIRFree64f_16s, veksFIRGetTaps64f_16s, veksFIRSetTaps64f_16s,
          veksFIRGetDlyLine64f_16s, veksFIRSetDlyLine64f_16s, veksFIR64f_16s_Sfs,
          veksFIR64f_16s_ISfs, veksFIROne64f_16s_Sfs, veksFIR64f_Direct_16s_Sfs,
          veksFIR64f_Direct_16s_ISfs, veksFIROne64f_Direct_16s_Sfs, veksFIROne64f_Direct_16s_ISfs>(
          "64f_16s", T::k64f, T::k16s, 1, 32),
      row<veksFIRGetStateSize64fc_16sc, veksFIRInit64fc_16sc, veksFIRInitAlloc64fc_16sc,
          veksFIRFree64fc_16sc, veksFIRGetTaps64fc_16sc, veksFIRSetTaps64fc_16sc,
          veksFIRGetDlyLine64fc_16sc, veksFIRSetDlyLine64fc_16sc, veksFIR64fc_16sc_Sfs,
          veksFIR64fc_16sc_ISfs, veksFIROne64fc_16sc_Sfs, veksFIR64fc_Direct_16sc_Sfs,
          veksFIR64fc_Direct_16sc_ISfs, veksFIROne64fc_Direct_16sc_Sfs,
          veksFIROne64fc_Direct_16sc_ISfs>("64fc_16sc", T::k64f, T::k16s, 2, 16),
      row<veksFIRGetStateSize64f_32s, veksFIRInit64f_32s, veksFIRInitAlloc64f_32s,
          veksFIRFree64f_32s, veksFIRGetTaps64f_32s, veksFIRSetTaps64f_32s,
          veksFIRGetDlyLine64f_32s, veksFIRSetDlyLine64f_32s, veksFIR64f_32s_Sfs,
          veksFIR64f_32s_ISfs, veksFIROne64f_32s_Sfs, veksFIR64f_Direct_32s_Sfs,
          veksFIR64f_Direct_32s_ISfs, veksFIROne64f_Direct_32s_Sfs, veksFIROne64f_Direct_32s_ISfs>(
          "64f_32s", T::k64f, T::k32s, 1, 32),
      row<veksFIRGetStateSize64fc_32sc, veksFIRInit64fc_32sc, veksFIRInitAlloc64fc_32sc,
          veksFIRFree64fc_32sc, veksFIRGetTaps64fc_32sc, veksFIRSetTaps64fc_32sc,
          veksFIRGetDlyLine64fc_32sc, veksFIRSetDlyLine64fc_32sc, veksFIR64fc_32sc_Sfs,
          veksFIR64fc_32sc_ISfs, veksFIROne64fc_32sc_Sfs, veksFIR64fc_Direct_32sc_Sfs,
          veksFIR64fc_Direct_32sc_ISfs, veksFIROne64fc_Direct_32sc_Sfs,
          veksFIROne64fc_Direct_32sc_ISfs>("64fc_32sc", T::k64f, T::k32s, 2, 16),
      row<veksFIRGetStateSize32s_16s, veksFIRInit32s_16s, veksFIRInitAlloc32s_16s,
          veksFIRFree32s_16s, veksFIRGetTaps32s_16s, veksFIRSetTaps32s_16s,
          veksFIRGetDlyLine32s_16s, veksFIRSetDlyLine32s_16s, veksFIR32s_16s_Sfs,
          veksFIR32s_16s_ISfs, veksFIROne32s_16s_Sfs, veksFIR32s_Direct_16s_Sfs,
          veksFIR32s_Direct_16s_ISfs, veksFIROne32s_Direct_16s_Sfs, veksFIROne32s_Direct_16s_ISfs>(
          "32s_16s", T::k32s, T::k16s, 1, 0),
      row<veksFIRGetStateSize32sc_16sc, veksFIRInit32sc_16sc, veksFIRInitAlloc32sc_16sc,
          veksFIRFree32sc_16sc, veksFIRGetTaps32sc_16sc, veksFIRSetTaps32sc_16sc,
          veksFIRGetDlyLine32sc_16sc, veksFIRSetDlyLine32sc_16sc, veksFIR32sc_16sc_Sfs,
          veksFIR32sc_16sc_ISfs, veksFIROne32sc_16sc_Sfs, veksFIR32sc_Direct_16sc_Sfs,
          veksFIR32sc_Direct_16sc_ISfs, veksFIROne32sc_Direct_16sc_Sfs,
          veksFIROne32sc_Direct_16sc_ISfs>("32sc_16sc", T::k32s, T::k16s, 2, 0),
  };
  return all;
}

const Row& rowOfQ15() {
  static const Row row = [] {
    Row q15 = {};
    q15.name = "_16s";
    q15.tap = q15.data = Type::k16s;
    q15.lanes = 1;
    q15.direct = direct<veksFIR_Direct_16s_Sfs>;
    q15.directInPlace = directInPlace<veksFIR_Direct_16s_ISfs>;
    q15.oneDirect = oneDirect<veksFIROne_Direct_16s_Sfs>;
    q15.oneDirectInPlace = oneDirectInPlace<veksFIROne_Direct_16s_ISfs>;
    return q15;
  }();
  return row;
}

std::vector<Row> directRows() {
  std::vector<Row> all = rows();
  all.push_back(rowOfQ15());
  return all;
}

}  // namespace veks::test::fir
