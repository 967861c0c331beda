#include "vector/against_trailing_loops.h"

namespace veks::bench {
namespace {

template <class T>
void scaled(const char* name, VekStatus (*function)(const T*, T*, int, T, int, int), T sub,
            int scaleFactor) {
  const double scale = scaleFactor == 0 ? 1 : 256;
  compareTrailing<T>(
      name, trailing("veks", function, sub, 7, scaleFactor),
      trailing("loop", plain::Trailing<plain::Normalise, T, T, int, double>::separate, sub, 7,
               scale));
}

// Repeated in place, quotients would leave the range of normal numbers.
void addCases() {
  using plain::Normalise;
  againstLoop<Normalise>(VEKS_BENCH_NAMED(veksNormalize_32f), 0.1f, 7);
  againstLoop<Normalise>(VEKS_BENCH_NAMED(veksNormalize_64f), 0.1, 7);
  againstLoop<Normalise>(VEKS_BENCH_NAMED(veksNormalize_32fc), Vek32fc{0.1f, 0.2f}, 7);
  againstLoop<Normalise>(VEKS_BENCH_NAMED(veksNormalize_64fc), Vek64fc{0.1, 0.2}, 7);
  scaled<Vek16s>(VEKS_BENCH_NAMED(veksNormalize_16s_Sfs), 1000, 0);
  scaled<Vek16s>("veksNormalize_16s_Sfs, factor -8", veksNormalize_16s_Sfs, 1000, -8);
  scaled<Vek16sc>(VEKS_BENCH_NAMED(veksNormalize_16sc_Sfs), {1000, -1000}, 0);
}

const Suite suite(addCases);

}  // namespace
}  // namespace veks::bench
