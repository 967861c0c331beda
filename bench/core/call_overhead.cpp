// What a call of the library costs beyond an empty function of another shared library.
#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "compare.h"
#include "peers/plain_loops.h"
#include "veks.h"

namespace veks::bench {
namespace {

const Vek8u src[1] = {1};
Vek8u dst[1];

// Registers call_overhead/NAME, where a successful call gives dst[0] = 1. The counter overhead_ns
// is the median of the differences within each round.
template <class... P, class... A>
void add(const std::string& name, VekStatus expected, VekStatus (*function)(P...), A... args) {
  const auto run = [=](benchmark::State& state) {
    dst[0] = 0;
    const bool writes = expected == vekStsOk;
    if (function(args...) != expected || dst[0] != (writes ? 1 : 0)) {
      state.SkipWithError("unexpected status or result");
      return;
    }
    const Samples samples =
        runRounds(state, {contestant("veks", function, args...),
                          contestant("empty", plain::doNothing, src, src, dst, 1)});
    std::vector<double> overhead(samples[0].size());
    std::transform(samples[0].begin(), samples[0].end(), samples[1].begin(), overhead.begin(),
                   std::minus<>());
    state.counters["veks_ns"] = median(samples[0]);
    state.counters["empty_ns"] = median(samples[1]);
    state.counters["overhead_ns"] = median(overhead);
  };
  addBenchmark("call_overhead/" + name, 31, run);
}

void addCases() {
  const Vek8u* const null = nullptr;
  add("veksAnd_8u/null", vekErrNullPtr, veksAnd_8u, null, src, dst, 1);
  add("veksAnd_8u/len1", vekStsOk, veksAnd_8u, src, src, dst, 1);
  add("veksSet_8u/len1", vekStsOk, veksSet_8u, Vek8u{1}, dst, 1);
  add("veksCopy_8u/len1", vekStsOk, veksCopy_8u, src, dst, 1);
}

const Suite suite(addCases);

}  // namespace
}  // namespace veks::bench
