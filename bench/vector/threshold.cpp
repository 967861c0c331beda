#include "vector/against_thresholds.h"

namespace veks::bench {
namespace {

void addCases() {
  using namespace plain;
  threshold<Below>(VEKS_BENCH_NAMED(veksThreshold_LT_16s));
  threshold<Below>(VEKS_BENCH_NAMED(veksThreshold_LT_32f));
  threshold<Below>(VEKS_BENCH_NAMED(veksThreshold_LT_64f));
  threshold<Below>(VEKS_BENCH_NAMED(veksThreshold_LT_16sc), {{}, withinAbsolute<Vek16s>(1)});
  threshold<Below>(VEKS_BENCH_NAMED(veksThreshold_LT_32fc), {{}, withinRelative<Vek32fc>(1e-6)});
  threshold<Below>(VEKS_BENCH_NAMED(veksThreshold_LT_64fc), {{}, withinRelative<Vek64fc>(1e-14)});
  threshold<Below>(VEKS_BENCH_NAMED(veksThreshold_LT_32s));
  threshold<Above>(VEKS_BENCH_NAMED(veksThreshold_GT_16s));
  threshold<Above>(VEKS_BENCH_NAMED(veksThreshold_GT_32f));
  threshold<Above>(VEKS_BENCH_NAMED(veksThreshold_GT_64f));
  threshold<Above>(VEKS_BENCH_NAMED(veksThreshold_GT_16sc), {{}, withinAbsolute<Vek16s>(1)});
  threshold<Above>(VEKS_BENCH_NAMED(veksThreshold_GT_32fc), {{}, withinRelative<Vek32fc>(1e-6)});
  threshold<Above>(VEKS_BENCH_NAMED(veksThreshold_GT_64fc), {{}, withinRelative<Vek64fc>(1e-14)});
  threshold<Above>(VEKS_BENCH_NAMED(veksThreshold_GT_32s));
  thresholdValue<Below>(VEKS_BENCH_NAMED(veksThreshold_LTVal_16s));
  thresholdValue<Below>(VEKS_BENCH_NAMED(veksThreshold_LTVal_32f));
  thresholdValue<Below>(VEKS_BENCH_NAMED(veksThreshold_LTVal_64f));
  thresholdValue<Below>(VEKS_BENCH_NAMED(veksThreshold_LTVal_16sc));
  thresholdValue<Below>(VEKS_BENCH_NAMED(veksThreshold_LTVal_32fc));
  thresholdValue<Below>(VEKS_BENCH_NAMED(veksThreshold_LTVal_64fc));
  thresholdValue<Below>(VEKS_BENCH_NAMED(veksThreshold_LTVal_32s));
  thresholdValue<Above>(VEKS_BENCH_NAMED(veksThreshold_GTVal_16s));
  thresholdValue<Above>(VEKS_BENCH_NAMED(veksThreshold_GTVal_32f));
  thresholdValue<Above>(VEKS_BENCH_NAMED(veksThreshold_GTVal_64f));
  thresholdValue<Above>(VEKS_BENCH_NAMED(veksThreshold_GTVal_16sc));
  thresholdValue<Above>(VEKS_BENCH_NAMED(veksThreshold_GTVal_32fc));
  thresholdValue<Above>(VEKS_BENCH_NAMED(veksThreshold_GTVal_64fc));
  thresholdValue<Above>(VEKS_BENCH_NAMED(veksThreshold_GTVal_32s));
  thresholdBoth(VEKS_BENCH_NAMED(veksThreshold_LTValGTVal_16s));
  thresholdBoth(VEKS_BENCH_NAMED(veksThreshold_LTValGTVal_32s));
  thresholdBoth(VEKS_BENCH_NAMED(veksThreshold_LTValGTVal_32f));
  thresholdBoth(VEKS_BENCH_NAMED(veksThreshold_LTValGTVal_64f));
  thresholdAbs<Below>(VEKS_BENCH_NAMED(veksThreshold_LTAbs_16s));
  thresholdAbs<Below>(VEKS_BENCH_NAMED(veksThreshold_LTAbs_32s));
  thresholdAbs<Below>(VEKS_BENCH_NAMED(veksThreshold_LTAbs_32f));
  thresholdAbs<Below>(VEKS_BENCH_NAMED(veksThreshold_LTAbs_64f));
  thresholdAbs<Above>(VEKS_BENCH_NAMED(veksThreshold_GTAbs_16s));
  thresholdAbs<Above>(VEKS_BENCH_NAMED(veksThreshold_GTAbs_32s));
  thresholdAbs<Above>(VEKS_BENCH_NAMED(veksThreshold_GTAbs_32f));
  thresholdAbs<Above>(VEKS_BENCH_NAMED(veksThreshold_GTAbs_64f));
  thresholdInverse(VEKS_BENCH_NAMED(veksThreshold_LTInv_32f), {{}, withinRelative<Vek32f>(2e-7)});
  thresholdInverse(VEKS_BENCH_NAMED(veksThreshold_LTInv_64f), {{}, withinRelative<Vek64f>(3e-16)});
  thresholdInverse(VEKS_BENCH_NAMED(veksThreshold_LTInv_32fc), {{}, withinRelative<Vek32fc>(1e-6)});
  thresholdInverse(VEKS_BENCH_NAMED(veksThreshold_LTInv_64fc),
                   {{ordinaryDoubles(), {}, {}}, withinRelative<Vek64fc>(1e-14)});
}

const VectorSuite suite(Sizes::kElements, addCases);

}  // namespace
}  // namespace veks::bench
