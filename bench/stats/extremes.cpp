#include "peers/plain_reductions.h"
#include "stats/reductions.h"
#include "vector/against_loops.h"

namespace veks::bench {
namespace {

template <class Side, class T>
void extreme(const char* name, VekStatus (*function)(const T*, int, T*)) {
  compareReduction(name, function, {reduction("loop", plain::Extreme<Side, T>::value)});
}

template <class Side, class T>
void extreme(const char* name, VekStatus (*function)(const T*, int, T*, int*)) {
  compareReduction(name, function, {reduction("loop", plain::Extreme<Side, T>::valueAndIndex)});
}

template <class Side, class T>
void extreme(const char* name, VekStatus (*function)(const T*, T*, int)) {
  compareVectors(name, function, kInPlace, loop({}, plain::Extreme<Side, T>::ofEvery));
}

template <class T>
void minMax(const char* name, VekStatus (*function)(const T*, int, T*, T*)) {
  compareReduction(name, function, {reduction("loop", plain::minMax<T>)});
}

void addCases() {
  using namespace plain;
  extreme<Less>(VEKS_BENCH_NAMED(veksMin_16s));
  extreme<Less>(VEKS_BENCH_NAMED(veksMin_32s));
  extreme<Less>(VEKS_BENCH_NAMED(veksMin_32f));
  extreme<Less>(VEKS_BENCH_NAMED(veksMin_64f));
  extreme<Greater>(VEKS_BENCH_NAMED(veksMax_16s));
  extreme<Greater>(VEKS_BENCH_NAMED(veksMax_32s));
  extreme<Greater>(VEKS_BENCH_NAMED(veksMax_32f));
  extreme<Greater>(VEKS_BENCH_NAMED(veksMax_64f));
  minMax(VEKS_BENCH_NAMED(veksMinMax_8u));
  minMax(VEKS_BENCH_NAMED(veksMinMax_16s));
  minMax(VEKS_BENCH_NAMED(veksMinMax_32s));
  minMax(VEKS_BENCH_NAMED(veksMinMax_32f));
  minMax(VEKS_BENCH_NAMED(veksMinMax_64f));
  extreme<Less>(VEKS_BENCH_NAMED(veksMinIndx_16s));
  extreme<Less>(VEKS_BENCH_NAMED(veksMinIndx_32s));
  extreme<Less>(VEKS_BENCH_NAMED(veksMinIndx_32f));
  extreme<Less>(VEKS_BENCH_NAMED(veksMinIndx_64f));
  extreme<Greater>(VEKS_BENCH_NAMED(veksMaxIndx_16s));
  extreme<Greater>(VEKS_BENCH_NAMED(veksMaxIndx_32s));
  extreme<Greater>(VEKS_BENCH_NAMED(veksMaxIndx_32f));
  extreme<Greater>(VEKS_BENCH_NAMED(veksMaxIndx_64f));
  extreme<Less>(VEKS_BENCH_NAMED(veksMinEvery_16s_I));
  extreme<Less>(VEKS_BENCH_NAMED(veksMinEvery_32f_I));
  extreme<Greater>(VEKS_BENCH_NAMED(veksMaxEvery_16s_I));
  extreme<Greater>(VEKS_BENCH_NAMED(veksMaxEvery_32s_I));
  extreme<Greater>(VEKS_BENCH_NAMED(veksMaxEvery_32f_I));
  extreme<Greater>(VEKS_BENCH_NAMED(veksMaxEvery_64f_I));
}

const VectorSuite suite(Sizes::kReductions, addCases);

}  // namespace
}  // namespace veks::bench
