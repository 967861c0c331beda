#include "vector/against_scaled_loops.h"

namespace veks::bench {
namespace {

void addCases() {
  using namespace plain;
  convert(VEKS_BENCH_NAMED(veksConvert_8s16s));
  convert(VEKS_BENCH_NAMED(veksConvert_8u16s));
  convert(VEKS_BENCH_NAMED(veksConvert_16s32s));
  convert(VEKS_BENCH_NAMED(veksConvert_16s32f));
  convert(VEKS_BENCH_NAMED(veksConvert_16u32f));
  convert(VEKS_BENCH_NAMED(veksConvert_8s32f));
  convert(VEKS_BENCH_NAMED(veksConvert_8u32f));
  convert(VEKS_BENCH_NAMED(veksConvert_32s32f));
  convert(VEKS_BENCH_NAMED(veksConvert_32s64f));
  convert(VEKS_BENCH_NAMED(veksConvert_16s64f));
  convert(VEKS_BENCH_NAMED(veksConvert_32f64f));
  convert(VEKS_BENCH_NAMED(veksConvert_64f32f));
  convert(VEKS_BENCH_NAMED(veksConvert_32s16s));
  convert(VEKS_BENCH_NAMED(veksConvert_16s8s));
  convert(VEKS_BENCH_NAMED(veksConvert_16s8u));
  convert(VEKS_BENCH_NAMED(veksConvert_64s64f));
  convert(VEKS_BENCH_NAMED(veksConvert_16sc32fc));
  convert(VEKS_BENCH_NAMED(veksConvert_32fc64fc));
  convert(VEKS_BENCH_NAMED(veksConvert_64fc32fc));
  convert(VEKS_BENCH_NAMED(veksConvert_32sc64fc));
  convertScaled(VEKS_BENCH_NAMED(veksConvert_16s32f_Sfs));
  convertScaled(VEKS_BENCH_NAMED(veksConvert_16s64f_Sfs));
  convertScaled(VEKS_BENCH_NAMED(veksConvert_32s32f_Sfs));
  convertScaled(VEKS_BENCH_NAMED(veksConvert_32s64f_Sfs));
  convertScaled(VEKS_BENCH_NAMED(veksConvert_32s16s_Sfs));
  convertScaled(VEKS_BENCH_NAMED(veksConvert_16s8s_Sfs));
  convertScaled(VEKS_BENCH_NAMED(veksConvert_64s32s_Sfs));
  convertRounded(VEKS_BENCH_NAMED(veksConvert_32f8s_Sfs));
  convertRounded(VEKS_BENCH_NAMED(veksConvert_32f8u_Sfs));
  convertRounded(VEKS_BENCH_NAMED(veksConvert_32f16s_Sfs));
  convertRounded(VEKS_BENCH_NAMED(veksConvert_32f16u_Sfs));
  convertRounded(VEKS_BENCH_NAMED(veksConvert_32f32s_Sfs));
  convertRounded(VEKS_BENCH_NAMED(veksConvert_64f8s_Sfs));
  convertRounded(VEKS_BENCH_NAMED(veksConvert_64f8u_Sfs));
  convertRounded(VEKS_BENCH_NAMED(veksConvert_64f16s_Sfs));
  convertRounded(VEKS_BENCH_NAMED(veksConvert_64f16u_Sfs));
  convertRounded(VEKS_BENCH_NAMED(veksConvert_64f32s_Sfs));
  convertRounded(VEKS_BENCH_NAMED(veksConvert_64f64s_Sfs));
  convertRounded(VEKS_BENCH_NAMED(veksConvert_32fc16sc_Sfs));
}

const VectorSuite suite(Sizes::kElements, addCases);

}  // namespace
}  // namespace veks::bench
