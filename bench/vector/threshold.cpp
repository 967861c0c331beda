#include "vector/against_trailing_loops.h"

namespace veks::bench {
namespace {

// Levels that many elements are beyond, but not all.
constexpr Vek16s k16s = 9000;
constexpr Vek16s k16sc = 20000;
constexpr Vek32s k32s = 600000000;
constexpr Vek32f k32f = 1e-4f;
constexpr Vek64f k64f = 1e-60;

void addRealCases() {
  using namespace plain;
  againstLoop<LimitBelow>(VEKS_BENCH_NAMED(veksThreshold_LT_16s), k16s);
  againstLoop<LimitBelow>(VEKS_BENCH_NAMED(veksThreshold_LT_32s), k32s);
  againstLoop<LimitBelow>(VEKS_BENCH_NAMED(veksThreshold_LT_32f), k32f);
  againstLoop<LimitBelow>(VEKS_BENCH_NAMED(veksThreshold_LT_32f_I), k32f);
  againstLoop<LimitBelow>(VEKS_BENCH_NAMED(veksThreshold_LT_64f), k64f);
  againstLoop<LimitAbove>(VEKS_BENCH_NAMED(veksThreshold_GT_16s), k16s);
  againstLoop<LimitAbove>(VEKS_BENCH_NAMED(veksThreshold_GT_32s), k32s);
  againstLoop<LimitAbove>(VEKS_BENCH_NAMED(veksThreshold_GT_32f), k32f);
  againstLoop<LimitAbove>(VEKS_BENCH_NAMED(veksThreshold_GT_64f), k64f);

  againstLoop<ReplaceBelow>(VEKS_BENCH_NAMED(veksThreshold_LTVal_16s), k16s, 7);
  againstLoop<ReplaceBelow>(VEKS_BENCH_NAMED(veksThreshold_LTVal_32s), k32s, 7);
  againstLoop<ReplaceBelow>(VEKS_BENCH_NAMED(veksThreshold_LTVal_32f), k32f, 7);
  againstLoop<ReplaceBelow>(VEKS_BENCH_NAMED(veksThreshold_LTVal_32f_I), k32f, 7);
  againstLoop<ReplaceBelow>(VEKS_BENCH_NAMED(veksThreshold_LTVal_64f), k64f, 7);
  againstLoop<ReplaceAbove>(VEKS_BENCH_NAMED(veksThreshold_GTVal_16s), k16s, 7);
  againstLoop<ReplaceAbove>(VEKS_BENCH_NAMED(veksThreshold_GTVal_64f), k64f, 7);

  againstLoop<ReplaceOutside>(VEKS_BENCH_NAMED(veksThreshold_LTValGTVal_16s), -k16s, 5, k16s, 7);
  againstLoop<ReplaceOutside>(VEKS_BENCH_NAMED(veksThreshold_LTValGTVal_32s), -k32s, 5, k32s, 7);
  againstLoop<ReplaceOutside>(VEKS_BENCH_NAMED(veksThreshold_LTValGTVal_32f), -k32f, 5, k32f, 7);
  againstLoop<ReplaceOutside>(VEKS_BENCH_NAMED(veksThreshold_LTValGTVal_64f), -k64f, 5, k64f, 7);

  againstLoop<RaiseMagnitude>(VEKS_BENCH_NAMED(veksThreshold_LTAbs_16s), k16s);
  againstLoop<RaiseMagnitude>(VEKS_BENCH_NAMED(veksThreshold_LTAbs_32s), k32s);
  againstLoop<RaiseMagnitude>(VEKS_BENCH_NAMED(veksThreshold_LTAbs_32f), k32f);
  againstLoop<RaiseMagnitude>(VEKS_BENCH_NAMED(veksThreshold_LTAbs_64f), k64f);
  againstLoop<LowerMagnitude>(VEKS_BENCH_NAMED(veksThreshold_GTAbs_16s), k16s);
  againstLoop<LowerMagnitude>(VEKS_BENCH_NAMED(veksThreshold_GTAbs_32s), k32s);
  againstLoop<LowerMagnitude>(VEKS_BENCH_NAMED(veksThreshold_GTAbs_32f), k32f);
  againstLoop<LowerMagnitude>(VEKS_BENCH_NAMED(veksThreshold_GTAbs_64f), k64f);

  againstLoop<Invert>(VEKS_BENCH_NAMED(veksThreshold_LTInv_32f), k32f);
  againstLoop<Invert>(VEKS_BENCH_NAMED(veksThreshold_LTInv_64f), k64f);
}

void addComplexCases() {
  using namespace plain;
  againstLoop<LimitBelow>(VEKS_BENCH_NAMED(veksThreshold_LT_16sc), k16sc);
  againstLoop<LimitBelow>(VEKS_BENCH_NAMED(veksThreshold_LT_32fc), k32f);
  againstLoop<LimitBelow>(VEKS_BENCH_NAMED(veksThreshold_LT_64fc), k64f);
  againstLoop<LimitAbove>(VEKS_BENCH_NAMED(veksThreshold_GT_16sc), k16sc);
  againstLoop<LimitAbove>(VEKS_BENCH_NAMED(veksThreshold_GT_32fc), k32f);
  againstLoop<LimitAbove>(VEKS_BENCH_NAMED(veksThreshold_GT_64fc), k64f);

  againstLoop<ReplaceBelow>(VEKS_BENCH_NAMED(veksThreshold_LTVal_16sc), k16sc, Vek16sc{5, 7});
  againstLoop<ReplaceBelow>(VEKS_BENCH_NAMED(veksThreshold_LTVal_32fc), k32f, Vek32fc{5, 7});
  againstLoop<ReplaceBelow>(VEKS_BENCH_NAMED(veksThreshold_LTVal_64fc), k64f, Vek64fc{5, 7});
  againstLoop<ReplaceAbove>(VEKS_BENCH_NAMED(veksThreshold_GTVal_16sc), k16sc, Vek16sc{5, 7});

  againstLoop<Invert>(VEKS_BENCH_NAMED(veksThreshold_LTInv_32fc), k32f);
  againstLoop<Invert>(VEKS_BENCH_NAMED(veksThreshold_LTInv_64fc), k64f);
}

const Suite realSuite(addRealCases);
const Suite complexSuite(addComplexCases);

}  // namespace
}  // namespace veks::bench
