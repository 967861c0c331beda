#include "vector/against_loops.h"

namespace veks::bench {
namespace {

constexpr int kShift = 3;

template <class Op, class T>
void shift(const char* name, VekStatus (*function)(const T*, int, T*, int)) {
  withConstant<Op>(name, function, {}, kShift);
}

template <class Op, class T>
void shift(const char* name, VekStatus (*function)(int, T*, int)) {
  withConstant<Op>(name, function, {}, kShift);
}

void addCases() {
  using namespace plain;
  binary<And>(VEKS_BENCH_NAMED(veksAnd_8u));
  binary<And>(VEKS_BENCH_NAMED(veksAnd_8u_I));
  binary<And>(VEKS_BENCH_NAMED(veksAnd_16u));
  binary<And>(VEKS_BENCH_NAMED(veksAnd_16u_I));
  binary<And>(VEKS_BENCH_NAMED(veksAnd_32u));
  binary<And>(VEKS_BENCH_NAMED(veksAnd_32u_I));
  binary<Or>(VEKS_BENCH_NAMED(veksOr_8u));
  binary<Or>(VEKS_BENCH_NAMED(veksOr_8u_I));
  binary<Or>(VEKS_BENCH_NAMED(veksOr_16u));
  binary<Or>(VEKS_BENCH_NAMED(veksOr_16u_I));
  binary<Or>(VEKS_BENCH_NAMED(veksOr_32u));
  binary<Or>(VEKS_BENCH_NAMED(veksOr_32u_I));
  binary<Xor>(VEKS_BENCH_NAMED(veksXor_8u));
  binary<Xor>(VEKS_BENCH_NAMED(veksXor_8u_I));
  binary<Xor>(VEKS_BENCH_NAMED(veksXor_16u));
  binary<Xor>(VEKS_BENCH_NAMED(veksXor_16u_I));
  binary<Xor>(VEKS_BENCH_NAMED(veksXor_32u));
  binary<Xor>(VEKS_BENCH_NAMED(veksXor_32u_I));

  withConstant<And>(VEKS_BENCH_NAMED(veksAndC_8u));
  withConstant<And>(VEKS_BENCH_NAMED(veksAndC_8u_I));
  withConstant<And>(VEKS_BENCH_NAMED(veksAndC_16u));
  withConstant<And>(VEKS_BENCH_NAMED(veksAndC_16u_I));
  withConstant<And>(VEKS_BENCH_NAMED(veksAndC_32u));
  withConstant<And>(VEKS_BENCH_NAMED(veksAndC_32u_I));
  withConstant<Or>(VEKS_BENCH_NAMED(veksOrC_8u));
  withConstant<Or>(VEKS_BENCH_NAMED(veksOrC_8u_I));
  withConstant<Or>(VEKS_BENCH_NAMED(veksOrC_16u));
  withConstant<Or>(VEKS_BENCH_NAMED(veksOrC_16u_I));
  withConstant<Or>(VEKS_BENCH_NAMED(veksOrC_32u));
  withConstant<Or>(VEKS_BENCH_NAMED(veksOrC_32u_I));
  withConstant<Xor>(VEKS_BENCH_NAMED(veksXorC_8u));
  withConstant<Xor>(VEKS_BENCH_NAMED(veksXorC_8u_I));
  withConstant<Xor>(VEKS_BENCH_NAMED(veksXorC_16u));
  withConstant<Xor>(VEKS_BENCH_NAMED(veksXorC_16u_I));
  withConstant<Xor>(VEKS_BENCH_NAMED(veksXorC_32u));
  withConstant<Xor>(VEKS_BENCH_NAMED(veksXorC_32u_I));

  unary<Not>(VEKS_BENCH_NAMED(veksNot_8u));
  unary<Not>(VEKS_BENCH_NAMED(veksNot_8u_I));
  unary<Not>(VEKS_BENCH_NAMED(veksNot_16u));
  unary<Not>(VEKS_BENCH_NAMED(veksNot_16u_I));
  unary<Not>(VEKS_BENCH_NAMED(veksNot_32u));
  unary<Not>(VEKS_BENCH_NAMED(veksNot_32u_I));

  shift<ShiftLeft>(VEKS_BENCH_NAMED(veksLShiftC_8u));
  shift<ShiftLeft>(VEKS_BENCH_NAMED(veksLShiftC_8u_I));
  shift<ShiftLeft>(VEKS_BENCH_NAMED(veksLShiftC_16u));
  shift<ShiftLeft>(VEKS_BENCH_NAMED(veksLShiftC_16u_I));
  shift<ShiftLeft>(VEKS_BENCH_NAMED(veksLShiftC_16s));
  shift<ShiftLeft>(VEKS_BENCH_NAMED(veksLShiftC_16s_I));
  shift<ShiftLeft>(VEKS_BENCH_NAMED(veksLShiftC_32s));
  shift<ShiftLeft>(VEKS_BENCH_NAMED(veksLShiftC_32s_I));
  shift<ShiftRight>(VEKS_BENCH_NAMED(veksRShiftC_8u));
  shift<ShiftRight>(VEKS_BENCH_NAMED(veksRShiftC_8u_I));
  shift<ShiftRight>(VEKS_BENCH_NAMED(veksRShiftC_16u));
  shift<ShiftRight>(VEKS_BENCH_NAMED(veksRShiftC_16u_I));
  shift<ShiftRight>(VEKS_BENCH_NAMED(veksRShiftC_16s));
  shift<ShiftRight>(VEKS_BENCH_NAMED(veksRShiftC_16s_I));
  shift<ShiftRight>(VEKS_BENCH_NAMED(veksRShiftC_32s));
  shift<ShiftRight>(VEKS_BENCH_NAMED(veksRShiftC_32s_I));
}

const VectorSuite suite(Sizes::kBytes, addCases);

}  // namespace
}  // namespace veks::bench
