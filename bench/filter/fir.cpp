// Finite impulse response filters of floating-point samples: blocks with the products summed
// directly, long signals with transforms, samples one by one, and two threads against one.
#include <omp.h>

#include <limits>
#include <string>

#include "agreement.h"
#include "cores.h"
#include "filter/fir_data.h"
#include "filter/fir_peer.h"
#include "filter/multiply_add_peak.h"
#include "filter/own_filters.h"
#include "peers/plain_filters.h"

namespace veks::bench {
namespace {

constexpr int kBlock = 4096;
constexpr int kSignal = 1000000;
constexpr int kSamples = 1024;

template <class T>
using Real = typename FilterFunctions<T>::Real;

// Sums in another order, fused or not, and transforms.
template <class T>
Agreement agreementFor(int tapsLen) {
  return withinRelativeNorm<T>(std::numeric_limits<Real<T>>::epsilon() *
                               (8 + 2 * std::sqrt(static_cast<double>(tapsLen))));
}

// As many multiply-adds of real numbers as the sums of products take.
template <class T>
Contestant peakFor(const FirData<T>& data) {
  constexpr size_t kRealOnes = std::is_class_v<T> ? 4 : 1;
  Contestant peak =
      contestant("peak", multiplyAdds<Real<T>>, kRealOnes * data.taps.size() * data.len);
  peak.isYardstick = true;
  return peak;
}

// Adds peers to a comparison that has the library alone.
template <class T>
void addPeers(Case& c, std::vector<FirPeer> peers, const FirData<T>& data,
              const OwnFilter<T>& own) {
  for (FirPeer& peer : peers) {
    peer.contestant.agrees = agreementFor<T>(data.tapsLen());
    c.contestants.push_back(peer.contestant);
  }
  c.prepare = [peers = std::move(peers), &data, &own] {
    own.reset();
    for (const FirPeer& peer : peers) peer.reset();
    std::fill_n(data.dst.data(), data.len, T{});
  };
}

template <class T>
std::vector<FirPeer> plainPeers(const FirData<T>& data) {
  const auto peer = [&](const char* name, auto function) {
    const T* const src = data.src.data();
    const T* const reversed = data.reversed.data();
    return FirPeer{
        contestant(name, function, src, data.dst.data(), data.samples(), reversed, data.tapsLen())};
  };
  return {peer("by-tap~", plain::Filters<T>::byTap),
          peer("by-result~", plain::Filters<T>::byResult),
          peer("by-strip~", plain::Filters<T>::byStrip)};
}

template <class T>
Contestant blocksOf(const std::string& name, const FirData<T>& data, const OwnFilter<T>& own) {
  const T* const src = data.src.data();
  return contestant(name, FilterFunctions<T>::kFilter, src, data.dst.data(), data.samples(),
                    own.state());
}

template <class T>
void runBlocks(benchmark::State& state, int tapsLen) {
  omp_set_num_threads(1);
  const FirData<T> data(tapsLen, kBlock);
  const OwnFilter<T> own(data.taps, StateMemory::kCaller);
  Case c = data.comparison();
  c.contestants = {blocksOf("veks", data, own)};
  std::vector<FirPeer> peers = plainPeers(data);
  for (FirPeer& peer : peersOf(data.of(FirWork::kBlock))) peers.push_back(std::move(peer));
  addPeers(c, std::move(peers), data, own);
  c.contestants.push_back(peakFor(data));
  compare(state, c);
}

template <class T>
void runSignal(benchmark::State& state, int tapsLen) {
  omp_set_num_threads(1);
  const FirData<T> data(tapsLen, kSignal);
  const OwnFilter<T> own(data.taps, StateMemory::kLibrary);
  Case c = data.comparison();
  c.contestants = {blocksOf("veks", data, own)};
  addPeers(c, peersOf(data.of(FirWork::kSignal)), data, own);
  compare(state, c);
}

// The plain filter of single samples with its state.
template <class T>
FirPeer plainSamples(const FirData<T>& data) {
  struct State {
    std::vector<T> line;
    int index = 0;
  };
  const auto plain = std::make_shared<State>();
  const auto reset = [plain, &data] { *plain = {std::vector<T>(2 * data.taps.size()), 0}; };
  reset();
  const auto run = [plain, &data](size_t count) {
    auto call = plain::Filters<T>::one;
    benchmark::DoNotOptimize(call);
    for (; count > 0; --count) {
      for (size_t i = 0; i < data.len; ++i) {
        call(data.src.data()[i], data.dst.data() + i, data.reversed.data(), data.tapsLen(),
             plain->line.data(), &plain->index);
      }
    }
  };
  return {{"loop~", run}, reset};
}

template <class T>
void runSamples(benchmark::State& state, int tapsLen) {
  const FirData<T> data(tapsLen, kSamples);
  const OwnFilter<T> own(data.taps, StateMemory::kCaller);
  const auto run = [&](size_t count) {
    auto call = FilterFunctions<T>::kOne;
    benchmark::DoNotOptimize(call);
    for (; count > 0; --count) {
      for (size_t i = 0; i < data.len; ++i)
        call(data.src.data()[i], data.dst.data() + i, own.state());
    }
  };
  Case c = data.comparison();
  c.contestants = {{"veks", run}};
  std::vector<FirPeer> peers = peersOf(data.of(FirWork::kSamples));
  peers.push_back(plainSamples(data));
  addPeers(c, std::move(peers), data, own);
  compare(state, c);
}

Contestant onThreads(int threads, Contestant contestant) {
  contestant.run = [threads, run = std::move(contestant.run)](size_t count) {
    omp_set_num_threads(threads);
    run(count);
  };
  return contestant;
}

// The parts of a block round differently where they meet.
template <class T>
void runThreads(benchmark::State& state, int tapsLen, StateMemory memory) {
  const AllCores cores;
  if (cores.count() < 2) return state.SkipWithError("there is one core only");
  omp_set_num_threads(2);
  const FirData<T> data(tapsLen, kSignal);
  const OwnFilter<T> own(data.taps, memory);
  Case c = data.comparison();
  addPeers(c, {}, data, own);
  c.contestants = {onThreads(2, blocksOf("veks", data, own)),
                   onThreads(1, blocksOf("1thread~", data, own))};
  c.contestants.back().agrees = agreementFor<T>(tapsLen);
  compare(state, c);
}

std::string caseName(const char* function, int tapsLen, const char* work) {
  return std::string(function) + '/' + std::to_string(tapsLen) + "taps/" + work;
}

template <class T>
void addBlocks(const char* function) {
  for (const int tapsLen : {8, 16, 32, 64, 128, 512}) {
    addBenchmark(caseName(function, tapsLen, "4096"), 31,
                 [=](benchmark::State& state) { runBlocks<T>(state, tapsLen); });
  }
}

template <class T>
void addSignals(const char* function) {
  if (optionalFirPeers<T>().empty()) return;
  for (const int tapsLen : {512, 4096}) {
    addBenchmark(caseName(function, tapsLen, "fft"), 15,
                 [=](benchmark::State& state) { runSignal<T>(state, tapsLen); });
  }
}

template <class T>
void addSamples(const char* function) {
  for (const int tapsLen : {8, 32, 128, 512}) {
    addBenchmark(caseName(function, tapsLen, "one"), 31,
                 [=](benchmark::State& state) { runSamples<T>(state, tapsLen); });
  }
}

void addThreads(const char* function, int tapsLen, StateMemory memory) {
  const char* const work = memory == StateMemory::kLibrary ? "threads:fft" : "threads:direct";
  addBenchmark(caseName(function, tapsLen, work), 15,
               [=](benchmark::State& state) { runThreads<Vek32f>(state, tapsLen, memory); });
}

void addCases() {
  addBlocks<Vek32f>("veksFIR_32f");
  addBlocks<Vek32fc>("veksFIR_32fc");
  addBlocks<Vek64f>("veksFIR_64f");
  addBlocks<Vek64fc>("veksFIR_64fc");
  addSignals<Vek32f>("veksFIR_32f");
  addSignals<Vek32fc>("veksFIR_32fc");
  addThreads("veksFIR_32f", 64, StateMemory::kCaller);
  addThreads("veksFIR_32f", 256, StateMemory::kCaller);
  addThreads("veksFIR_32f", 512, StateMemory::kLibrary);
  addSamples<Vek32f>("veksFIROne_32f");
  addSamples<Vek32fc>("veksFIROne_32fc");
}

const Suite suite(addCases);

}  // namespace
}  // namespace veks::bench
