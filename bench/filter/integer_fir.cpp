// Filters of 16-bit samples, directly: taps of Vek32f, integer taps with a factor, and Q15 taps
// without a state. The filter of Vek32f with as many taps is the yardstick.
#include <omp.h>

#include <string>

#include "agreement.h"
#include "filter/fir_data.h"
#include "filter/own_filters.h"
#include "peers/plain_filters.h"

namespace veks::bench {
namespace {

constexpr int kBlock = 4096;
constexpr double kLoudest = 8000;

// Runs the comparison; `reset` empties the delay line.
template <class Tap>
void run(benchmark::State& state, const FirData<Vek16s, Tap>& data, Contestant own, Contestant loop,
         const std::function<void()>& reset) {
  const FirData<Vek32f> floats(data.tapsLen(), kBlock);
  const OwnFilter<Vek32f> filter(floats.taps, StateMemory::kCaller);
  const Vek32f* const src = floats.src.data();
  Case c = data.comparison();
  c.contestants = {
      std::move(own), std::move(loop),
      contestant("own32f", veksFIR_32f, src, floats.dst.data(), kBlock, filter.state())};
  c.contestants.back().isYardstick = true;
  c.prepare = [&] {
    reset();
    std::fill_n(data.dst.data(), data.len, Vek16s{0});
  };
  compare(state, c);
}

void runFloatTaps(benchmark::State& state, int tapsLen) {
  const FirData<Vek16s, Vek32f> data(tapsLen, kBlock, 1, kLoudest);
  VeksFIRState_32f_16s* own = nullptr;
  std::vector<Vek8u> buffer;
  int size = 0;
  check(veksFIRGetStateSize32f_16s(tapsLen, &size));
  buffer.resize(static_cast<size_t>(size));
  check(veksFIRInit32f_16s(&own, data.taps.data(), tapsLen, nullptr, buffer.data()));
  const Vek16s* const src = data.src.data();
  const Vek32f* const reversed = data.reversed.data();
  Contestant loop = contestant("loop~", plain::filter16sWithFloats, src, data.dst.data(), kBlock,
                               reversed, tapsLen);
  loop.agrees = withinAbsolute<Vek16s>(1);
  run(state, data, contestant("veks", veksFIR32f_16s_Sfs, src, data.dst.data(), kBlock, own, 0),
      std::move(loop), [=] { check(veksFIRSetDlyLine32f_16s(own, nullptr)); });
}

void runIntegerTaps(benchmark::State& state, int tapsLen) {
  constexpr int kFactor = -12;
  const FirData<Vek16s, Vek32s> data(tapsLen, kBlock, 4096, kLoudest);
  VeksFIRState_32s_16s* own = nullptr;
  std::vector<Vek8u> buffer;
  int size = 0;
  check(veksFIRGetStateSize32s_16s(tapsLen, &size));
  buffer.resize(static_cast<size_t>(size));
  check(veksFIRInit32s_16s(&own, data.taps.data(), tapsLen, kFactor, nullptr, buffer.data()));
  const Vek16s* const src = data.src.data();
  const Vek32s* const reversed = data.reversed.data();
  run(state, data, contestant("veks", veksFIR32s_16s_Sfs, src, data.dst.data(), kBlock, own, 0),
      contestant("loop", plain::filter16sWithIntegers, src, data.dst.data(), kBlock, reversed,
                 tapsLen, -kFactor),
      [=] { check(veksFIRSetDlyLine32s_16s(own, nullptr)); });
}

void runShortTaps(benchmark::State& state, int tapsLen) {
  constexpr int kQ = 15;
  const FirData<Vek16s, Vek16s> data(tapsLen, kBlock, 4096, kLoudest);
  std::vector<Vek16s> line(2 * data.taps.size());
  int index = 0;
  const Vek16s* const src = data.src.data();
  const Vek16s* const taps = data.taps.data();
  const Vek16s* const reversed = data.reversed.data();
  run(state, data,
      contestant("veks", veksFIR_Direct_16s_Sfs, src, data.dst.data(), kBlock, taps, tapsLen,
                 line.data(), &index, 0),
      contestant("loop", plain::filter16sWithShorts, src, data.dst.data(), kBlock, reversed,
                 tapsLen, kQ),
      [&] {
        std::fill(line.begin(), line.end(), Vek16s{0});
        index = 0;
      });
}

void add(const char* function, void (*run)(benchmark::State&, int)) {
  for (const int tapsLen : {8, 32, 128, 512}) {
    addBenchmark(std::string(function) + '/' + std::to_string(tapsLen) + "taps/4096", 31,
                 [=](benchmark::State& state) {
                   omp_set_num_threads(1);
                   run(state, tapsLen);
                 });
  }
}

void addCases() {
  add("veksFIR32f_16s_Sfs", runFloatTaps);
  add("veksFIR32s_16s_Sfs", runIntegerTaps);
  add("veksFIR_Direct_16s_Sfs", runShortTaps);
}

const Suite suite(addCases);

}  // namespace
}  // namespace veks::bench
