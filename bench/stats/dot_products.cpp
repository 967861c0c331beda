#include "peers/plain_sums.h"
#include "stats/sum_agreement.h"

namespace veks::bench {
namespace {

template <class A, class T1, class T2, class R>
void dot(const char* name, VekStatus (*function)(const T1*, const T2*, int, R*)) {
  const auto loop = reduction("loop", plain::dot<T1, T2, R, A>);
  compareReduction(name, function, {reordered<R>(loop)}, positive<T1>());
}

template <class T, class R>
void integerDot(const char* name, VekStatus (*function)(const T*, const T*, int, R*)) {
  compareReduction(name, function, {reduction("loop", plain::dot<T, T, R, Vek64s>)});
}

void addCases() {
  dot<float>(VEKS_BENCH_NAMED(veksDotProd_32f));
  dot<double>(VEKS_BENCH_NAMED(veksDotProd_64f));
  dot<double>(VEKS_BENCH_NAMED(veksDotProd_32f64f));
  dot<float>(VEKS_BENCH_NAMED(veksDotProd_32fc));
  dot<double>(VEKS_BENCH_NAMED(veksDotProd_64fc));
  dot<float>(VEKS_BENCH_NAMED(veksDotProd_32f32fc));
  integerDot(VEKS_BENCH_NAMED(veksDotProd_16s64s));
  integerDot(VEKS_BENCH_NAMED(veksDotProd_16sc64sc));
}

const VectorSuite suite(Sizes::kReductions, addCases);

}  // namespace
}  // namespace veks::bench
