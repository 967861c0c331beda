#include "vector/against_scaled_loops.h"

namespace veks::bench {
namespace {

template <class T, class R>
void normalize(const char* name, VekStatus (*function)(const T*, T*, int, T, R)) {
  compareVectors(name, function, {},
                 loop({}, plain::Normalize<T, R>::separate, constant<T>(), constant<R>()),
                 constant<T>(), constant<R>());
}

template <class T>
void normalizeScaled(const char* name, VekStatus (*function)(const T*, T*, int, T, int, int)) {
  constexpr int kDivisor = 7;
  compareVectors(name, function, {},
                 loop({}, plain::ScaledNormalize<T>::separate, constant<T>(), kDivisor, kScale),
                 constant<T>(), kDivisor, kScale);
}

void addCases() {
  normalize(VEKS_BENCH_NAMED(veksNormalize_32f));
  normalize(VEKS_BENCH_NAMED(veksNormalize_64f));
  normalize(VEKS_BENCH_NAMED(veksNormalize_32fc));
  normalize(VEKS_BENCH_NAMED(veksNormalize_64fc));
  normalizeScaled(VEKS_BENCH_NAMED(veksNormalize_16s_Sfs));
  normalizeScaled(VEKS_BENCH_NAMED(veksNormalize_16sc_Sfs));
}

const VectorSuite suite(Sizes::kElements, addCases);

}  // namespace
}  // namespace veks::bench
