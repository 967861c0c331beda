#include "peers/plain_reductions.h"
#include "stats/reductions.h"

namespace veks::bench {
namespace {

template <class Kind, class T, class R>
void norm(const char* name, VekStatus (*function)(const T*, int, R*)) {
  compareReduction(
      name, function,
      {approximate(sumAgreement<R>(), reduction("loop", plain::Norm<Kind, T, R>::own))});
}

template <class Kind, class T, class R>
void norm(const char* name, VekStatus (*function)(const T*, const T*, int, R*)) {
  compareReduction(
      name, function,
      {approximate(sumAgreement<R>(), reduction("loop", plain::Norm<Kind, T, R>::ofDifference))});
}

void addCases() {
  using namespace plain;
  norm<NormInf>(VEKS_BENCH_NAMED(veksNorm_Inf_16s32f));
  norm<NormInf>(VEKS_BENCH_NAMED(veksNorm_Inf_32f));
  norm<NormInf>(VEKS_BENCH_NAMED(veksNorm_Inf_64f));
  norm<NormInf>(VEKS_BENCH_NAMED(veksNorm_Inf_32fc32f));
  norm<NormInf>(VEKS_BENCH_NAMED(veksNorm_Inf_64fc64f));
  norm<NormL1>(VEKS_BENCH_NAMED(veksNorm_L1_16s32f));
  norm<NormL1>(VEKS_BENCH_NAMED(veksNorm_L1_32f));
  norm<NormL1>(VEKS_BENCH_NAMED(veksNorm_L1_64f));
  norm<NormL1>(VEKS_BENCH_NAMED(veksNorm_L1_32fc32f));
  norm<NormL1>(VEKS_BENCH_NAMED(veksNorm_L1_64fc64f));
  norm<NormL2>(VEKS_BENCH_NAMED(veksNorm_L2_16s32f));
  norm<NormL2>(VEKS_BENCH_NAMED(veksNorm_L2_32f));
  norm<NormL2>(VEKS_BENCH_NAMED(veksNorm_L2_64f));
  norm<NormL2>(VEKS_BENCH_NAMED(veksNorm_L2_32fc32f));
  norm<NormL2>(VEKS_BENCH_NAMED(veksNorm_L2_64fc64f));
  norm<NormInf>(VEKS_BENCH_NAMED(veksNormDiff_Inf_16s32f));
  norm<NormInf>(VEKS_BENCH_NAMED(veksNormDiff_Inf_32f));
  norm<NormInf>(VEKS_BENCH_NAMED(veksNormDiff_Inf_64f));
  norm<NormL1>(VEKS_BENCH_NAMED(veksNormDiff_L1_16s32f));
  norm<NormL1>(VEKS_BENCH_NAMED(veksNormDiff_L1_32f));
  norm<NormL1>(VEKS_BENCH_NAMED(veksNormDiff_L1_64f));
  norm<NormL2>(VEKS_BENCH_NAMED(veksNormDiff_L2_16s32f));
  norm<NormL2>(VEKS_BENCH_NAMED(veksNormDiff_L2_32f));
  norm<NormL2>(VEKS_BENCH_NAMED(veksNormDiff_L2_64f));
}

const VectorSuite suite(Sizes::kReductions, addCases);

}  // namespace
}  // namespace veks::bench
