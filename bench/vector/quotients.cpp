#include "vector/against_scaled_loops.h"

namespace veks::bench {
namespace {

// Divisors and radicands without the values that set a warning.
void addCases() {
  using namespace plain;
  binary<Div>(VEKS_BENCH_NAMED(veksDiv_32f));
  binary<Div>(VEKS_BENCH_NAMED(veksDiv_64f));
  binary<Div>(VEKS_BENCH_NAMED(veksDiv_32fc), {{}, withinRelative<Vek32fc>(1e-6)});
  binary<Div>(VEKS_BENCH_NAMED(veksDiv_64fc),
              {{ordinaryDoubles(), ordinaryDoubles(), {}}, withinRelative<Vek64fc>(1e-14)});
  scaledTwo<Div>(VEKS_BENCH_NAMED(veksDiv_8u_Sfs), 0, {{notZero<Vek8u>(), {}, {}}, nullptr});
  scaledTwo<Div>(VEKS_BENCH_NAMED(veksDiv_16u_Sfs), 0, {{notZero<Vek16u>(), {}, {}}, nullptr});
  scaledTwo<Div>(VEKS_BENCH_NAMED(veksDiv_16s_Sfs), 0, {{notZero<Vek16s>(), {}, {}}, nullptr});
  scaledTwo<Div>(VEKS_BENCH_NAMED(veksDiv_32s_Sfs), 0, {{notZero<Vek32s>(), {}, {}}, nullptr});
  scaledTwo<Div>(VEKS_BENCH_NAMED(veksDiv_16sc_Sfs), 0,
                 {{notZero<Vek16s>(), {}, {}}, withinAbsolute<Vek16s>(1)});
  scaledTwo<Div>(VEKS_BENCH_NAMED(veksDiv_32s16s_Sfs), 0, {{notZero<Vek32s>(), {}, {}}, nullptr});
  withConstant<DivC>(VEKS_BENCH_NAMED(veksDivC_32f));
  withConstant<DivC>(VEKS_BENCH_NAMED(veksDivC_64f));
  withConstant<DivC>(VEKS_BENCH_NAMED(veksDivC_32fc), closeTo<Vek32fc>(), Vek32fc{1.5F, -0.75F});
  withConstant<DivC>(VEKS_BENCH_NAMED(veksDivC_64fc), closeTo<Vek64fc>(), Vek64fc{1.5F, -0.75F});
  scaledConstant<DivC>(VEKS_BENCH_NAMED(veksDivC_8u_Sfs), -3);
  scaledConstant<DivC>(VEKS_BENCH_NAMED(veksDivC_16u_Sfs), -3);
  scaledConstant<DivC>(VEKS_BENCH_NAMED(veksDivC_16s_Sfs), -3);
  scaledConstant<DivC>(VEKS_BENCH_NAMED(veksDivC_16sc_Sfs), -3, {{}, withinAbsolute<Vek16s>(1)});
  withConstant<Div>(VEKS_BENCH_NAMED(veksDivCRev_32f));
  unary<Sqrt>(VEKS_BENCH_NAMED(veksSqrt_32f),
              {{notNegative<Vek32f>(), {}, notNegative<Vek32f>()}, nullptr});
  unary<Sqrt>(VEKS_BENCH_NAMED(veksSqrt_32f_I),
              {{notNegative<Vek32f>(), {}, notNegative<Vek32f>()}, nullptr});
  unary<Sqrt>(VEKS_BENCH_NAMED(veksSqrt_64f),
              {{notNegative<Vek64f>(), {}, notNegative<Vek64f>()}, nullptr});
  unary<Sqrt>(VEKS_BENCH_NAMED(veksSqrt_64f_I),
              {{notNegative<Vek64f>(), {}, notNegative<Vek64f>()}, nullptr});
  unary<Sqrt>(VEKS_BENCH_NAMED(veksSqrt_32fc),
              {{notNegative<Vek32f>(), {}, notNegative<Vek32f>()}, withinRelative<Vek32fc>(1e-6)});
  unary<Sqrt>(VEKS_BENCH_NAMED(veksSqrt_32fc_I),
              {{notNegative<Vek32f>(), {}, notNegative<Vek32f>()}, withinRelative<Vek32fc>(1e-6)});
  unary<Sqrt>(VEKS_BENCH_NAMED(veksSqrt_64fc),
              {{notNegative<Vek64f>(), {}, notNegative<Vek64f>()}, withinRelative<Vek64fc>(1e-14)});
  unary<Sqrt>(VEKS_BENCH_NAMED(veksSqrt_64fc_I),
              {{notNegative<Vek64f>(), {}, notNegative<Vek64f>()}, withinRelative<Vek64fc>(1e-14)});
  scaledOne<Sqrt>(VEKS_BENCH_NAMED(veksSqrt_8u_Sfs), 0,
                  {{notNegative<Vek8u>(), {}, notNegative<Vek8u>()}, nullptr});
  scaledOne<Sqrt>(VEKS_BENCH_NAMED(veksSqrt_16u_Sfs), 0,
                  {{notNegative<Vek16u>(), {}, notNegative<Vek16u>()}, nullptr});
  scaledOne<Sqrt>(VEKS_BENCH_NAMED(veksSqrt_16s_Sfs), 0,
                  {{notNegative<Vek16s>(), {}, notNegative<Vek16s>()}, nullptr});
  scaledOne<Sqrt>(VEKS_BENCH_NAMED(veksSqrt_16sc_Sfs), 0,
                  {{notNegative<Vek16s>(), {}, notNegative<Vek16s>()}, withinAbsolute<Vek16s>(1)});
  scaledOne<Sqrt>(VEKS_BENCH_NAMED(veksSqrt_64s_Sfs), 0,
                  {{notNegative<Vek64s>(), {}, notNegative<Vek64s>()}, withinAbsolute<Vek64s>(1)});
  scaledOne<Sqrt>(VEKS_BENCH_NAMED(veksSqrt_32s16s_Sfs), 0,
                  {{notNegative<Vek32s>(), {}, notNegative<Vek32s>()}, nullptr});
  scaledOne<Sqrt>(VEKS_BENCH_NAMED(veksSqrt_64s16s_Sfs), 0,
                  {{notNegative<Vek64s>(), {}, notNegative<Vek64s>()}, withinAbsolute<Vek16s>(1)});
}

const VectorSuite suite(Sizes::kElements, addCases);

}  // namespace
}  // namespace veks::bench
