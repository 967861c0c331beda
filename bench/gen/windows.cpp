// Windows of a frame against loops that call the functions of the C library for each element. There
// are no comparisons in place: vectors that are windowed again and again end as denormals.
#include <type_traits>

#include "comparisons.h"
#include "peers/plain_windows.h"

namespace veks::bench {
namespace {

template <class T>
constexpr bool kIsDouble = std::is_same_v<T, Vek64f> || std::is_same_v<T, Vek64fc>;
template <class T>
using RealOf = std::conditional_t<kIsDouble<T>, double, float>;

// Elements are below 2. The cosine of an angle that is rounded to single precision errs by 1e-6.
template <class T>
Agreement agreementOf() {
  if constexpr (std::is_same_v<T, Vek16s> || std::is_same_v<T, Vek16sc>) {
    return withinAbsolute<Vek16s>(1);
  } else {
    return withinAbsolute<RealOf<T>>(kIsDouble<T> ? 1e-13 : 3e-5);
  }
}

template <class T>
std::vector<Peer> loop(void (*function)(const T*, T*, int, float), float alpha) {
  return {approximate(agreementOf<T>(), peer("loop", function, alpha))};
}

template <class Shape, class T>
void shape(const char* name, VekStatus (*function)(const T*, T*, int), float alpha) {
  compareVectors(name, function, {}, loop<T>(plain::Window<Shape, T, RealOf<T>>::apply, alpha));
}

template <class Shape, class T>
void shapeOf(const char* name, VekStatus (*function)(const T*, T*, int, Vek32f), float alpha) {
  compareVectors(name, function, {}, loop<T>(plain::Window<Shape, T, RealOf<T>>::apply, alpha),
                 alpha);
}

// For frames of 4096 elements; that of Kaiser is 2 beta / 4095 with a beta of 8.6.
constexpr float kOptimal = -0.25000015f;
constexpr float kKaiser = 0.0042f;

void addCases() {
  using namespace plain;
  shape<BartlettWeight>(VEKS_BENCH_NAMED(veksWinBartlett_16s), 0);
  shape<BartlettWeight>(VEKS_BENCH_NAMED(veksWinBartlett_16sc), 0);
  shape<BartlettWeight>(VEKS_BENCH_NAMED(veksWinBartlett_32f), 0);
  shape<BartlettWeight>(VEKS_BENCH_NAMED(veksWinBartlett_32fc), 0);
  shape<BartlettWeight>(VEKS_BENCH_NAMED(veksWinBartlett_64f), 0);
  shape<BartlettWeight>(VEKS_BENCH_NAMED(veksWinBartlett_64fc), 0);
  shape<HannWeight>(VEKS_BENCH_NAMED(veksWinHann_16s), 0);
  shape<HannWeight>(VEKS_BENCH_NAMED(veksWinHann_16sc), 0);
  shape<HannWeight>(VEKS_BENCH_NAMED(veksWinHann_32f), 0);
  shape<HannWeight>(VEKS_BENCH_NAMED(veksWinHann_32fc), 0);
  shape<HannWeight>(VEKS_BENCH_NAMED(veksWinHann_64f), 0);
  shape<HannWeight>(VEKS_BENCH_NAMED(veksWinHann_64fc), 0);
  shape<HammingWeight>(VEKS_BENCH_NAMED(veksWinHamming_16s), 0);
  shape<HammingWeight>(VEKS_BENCH_NAMED(veksWinHamming_16sc), 0);
  shape<HammingWeight>(VEKS_BENCH_NAMED(veksWinHamming_32f), 0);
  shape<HammingWeight>(VEKS_BENCH_NAMED(veksWinHamming_32fc), 0);
  shape<HammingWeight>(VEKS_BENCH_NAMED(veksWinHamming_64f), 0);
  shape<HammingWeight>(VEKS_BENCH_NAMED(veksWinHamming_64fc), 0);
  shape<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackmanStd_16s), -0.16f);
  shape<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackmanStd_16sc), -0.16f);
  shape<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackmanStd_32f), -0.16f);
  shape<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackmanStd_32fc), -0.16f);
  shape<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackmanStd_64f), -0.16f);
  shape<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackmanStd_64fc), -0.16f);
  shape<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackmanOpt_16s), kOptimal);
  shape<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackmanOpt_16sc), kOptimal);
  shape<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackmanOpt_32f), kOptimal);
  shape<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackmanOpt_32fc), kOptimal);
  shape<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackmanOpt_64f), kOptimal);
  shape<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackmanOpt_64fc), kOptimal);
  shapeOf<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackman_16s), -0.2f);
  shapeOf<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackman_16sc), -0.2f);
  shapeOf<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackman_32f), -0.2f);
  shapeOf<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackman_32fc), -0.2f);
  shapeOf<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackman_64f), -0.2f);
  shapeOf<BlackmanWeight>(VEKS_BENCH_NAMED(veksWinBlackman_64fc), -0.2f);
  shapeOf<KaiserWeight>(VEKS_BENCH_NAMED(veksWinKaiser_16s), kKaiser);
  shapeOf<KaiserWeight>(VEKS_BENCH_NAMED(veksWinKaiser_16sc), kKaiser);
  shapeOf<KaiserWeight>(VEKS_BENCH_NAMED(veksWinKaiser_32f), kKaiser);
  shapeOf<KaiserWeight>(VEKS_BENCH_NAMED(veksWinKaiser_32fc), kKaiser);
  shapeOf<KaiserWeight>(VEKS_BENCH_NAMED(veksWinKaiser_64f), kKaiser);
  shapeOf<KaiserWeight>(VEKS_BENCH_NAMED(veksWinKaiser_64fc), kKaiser);
}

const VectorSuite suite(Sizes::kFrame, addCases);

}  // namespace
}  // namespace veks::bench
