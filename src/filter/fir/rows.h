// The pairs of types of taps and data, each by the name that callers have for its states.
#ifndef VEKS_FILTER_FIR_ROWS_H
#define VEKS_FILTER_FIR_ROWS_H

#include "filter/fir/state.h"
#include "veks/filter/fir_states.h"

namespace veks {

// Taps of floating point: samples are kept in their type.
template <class TapType, class DataType, uint32_t kIdentifier>
struct FloatRow {
  using Tap = TapType;
  using Data = DataType;
  using Kept = Tap;
  using State = FirFloatState<Tap>;
  static constexpr uint32_t kId = kIdentifier;
};

template <class TapType, class DataType, uint32_t kIdentifier>
struct IntegerRow {
  using Tap = TapType;
  using Data = DataType;
  using Kept = Data;
  using State = FirIntegerState<Tap, Data>;
  static constexpr uint32_t kId = kIdentifier;
};

template <class Handle>
struct FirRow;

// The identifiers are "FI" and two digits.
template <>
struct FirRow<VeksFIRState_32f> : FloatRow<Vek32f, Vek32f, 0x46493031> {};
template <>
struct FirRow<VeksFIRState_32f_16s> : FloatRow<Vek32f, Vek16s, 0x46493035> {};
template <>
struct FirRow<VeksFIRState_32s_16s> : IntegerRow<Vek32s, Vek16s, 0x46493039> {};
template <>
struct FirRow<VeksFIRState_32fc> : FloatRow<Vek32fc, Vek32fc, 0x46493133> {};
template <>
struct FirRow<VeksFIRState_64f> : FloatRow<Vek64f, Vek64f, 0x46493137> {};
template <>
struct FirRow<VeksFIRState_64fc> : FloatRow<Vek64fc, Vek64fc, 0x46493231> {};
template <>
struct FirRow<VeksFIRState_64f_32f> : FloatRow<Vek64f, Vek32f, 0x46493235> {};
template <>
struct FirRow<VeksFIRState_64fc_32fc> : FloatRow<Vek64fc, Vek32fc, 0x46493239> {};
template <>
struct FirRow<VeksFIRState_32fc_16sc> : FloatRow<Vek32fc, Vek16sc, 0x46493333> {};
template <>
struct FirRow<VeksFIRState_64f_16s> : FloatRow<Vek64f, Vek16s, 0x46493337> {};
template <>
struct FirRow<VeksFIRState_64fc_16sc> : FloatRow<Vek64fc, Vek16sc, 0x46493431> {};
template <>
struct FirRow<VeksFIRState_64f_32s> : FloatRow<Vek64f, Vek32s, 0x46493435> {};
template <>
struct FirRow<VeksFIRState_64fc_32sc> : FloatRow<Vek64fc, Vek32sc, 0x46493439> {};
template <>
struct FirRow<VeksFIRState_32sc_16sc> : IntegerRow<Vek32sc, Vek16sc, 0x46493533> {};

}  // namespace veks

#endif
