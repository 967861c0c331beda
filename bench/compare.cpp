#include "compare.h"

#include <algorithm>
#include <chrono>
#include <cstring>

namespace veks::bench {
namespace {

constexpr double kBatchNs = 50e3;

int roundsForAll = 0;

std::vector<std::function<void()>>& suites() {
  static std::vector<std::function<void()>> list;
  return list;
}

double timeOf(const Contestant& contestant, size_t count) {
  using Clock = std::chrono::steady_clock;
  const Clock::time_point start = Clock::now();
  contestant.run(count);
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

// The number of calls in a batch. The fastest of three runs counts, so that an interruption does
// not make batches short; a single long call is not repeated.
size_t calibrate(const Contestant& contestant) {
  for (size_t count = 1;; count *= 2) {
    double ns = timeOf(contestant, count);
    for (int i = 0; i < 2 && ns < 100 * kBatchNs; ++i) ns = std::min(ns, timeOf(contestant, count));
    if (ns >= kBatchNs / 2) {
      const double calls = static_cast<double>(count) * kBatchNs / ns;
      return std::max(size_t{1}, static_cast<size_t>(calls));
    }
  }
}

bool agree(const Contestant& contestant, const std::vector<unsigned char>& expected,
           const unsigned char* got) {
  if (contestant.agrees) return contestant.agrees(expected.data(), got, expected.size());
  return std::memcmp(expected.data(), got, expected.size()) == 0;
}

// The first contestant whose output is not that of the library; null if all agree.
const Contestant* findDifferent(const Case& c) {
  std::vector<unsigned char> expected;
  for (const Contestant& contestant : c.contestants) {
    if (contestant.isYardstick) continue;
    c.prepare();
    contestant.run(1);
    if (contestant.deliver) contestant.deliver();
    if (expected.empty()) {
      expected.assign(c.output, c.output + c.outputBytes);
    } else if (!agree(contestant, expected, c.output)) {
      return &contestant;
    }
  }
  return nullptr;
}

std::vector<double> ratios(const std::vector<double>& peer, const std::vector<double>& ours) {
  std::vector<double> result(peer.size());
  std::transform(peer.begin(), peer.end(), ours.begin(), result.begin(), std::divides<>());
  return result;
}

}  // namespace

Samples runRounds(benchmark::State& state, const std::vector<Contestant>& contestants) {
  const size_t n = contestants.size();
  std::vector<size_t> batches(n);
  std::transform(contestants.begin(), contestants.end(), batches.begin(), calibrate);
  Samples samples(n);
  for (size_t round = 0; state.KeepRunning(); ++round) {
    for (size_t k = 0; k < n; ++k) {
      const size_t who = (round + k) % n;
      contestants[who].run(1);
      const double ns = timeOf(contestants[who], batches[who]);
      samples[who].push_back(ns / static_cast<double>(batches[who]));
    }
    state.SetIterationTime(samples[0].back() * 1e-9);
  }
  return samples;
}

double quantile(std::vector<double> samples, double q) {
  std::sort(samples.begin(), samples.end());
  const double position = q * static_cast<double>(samples.size() - 1);
  const size_t low = static_cast<size_t>(position);
  const size_t high = std::min(low + 1, samples.size() - 1);
  return samples[low] + (position - static_cast<double>(low)) * (samples[high] - samples[low]);
}

double median(const std::vector<double>& samples) {
  return quantile(samples, 0.5);
}

void compare(benchmark::State& state, const Case& c) {
  if (const Contestant* other = findDifferent(c)) {
    state.SkipWithError(("the result differs from that of " + other->name).c_str());
    return;
  }
  if (c.beforeTiming) c.beforeTiming();
  const Samples samples = runRounds(state, c.contestants);
  std::vector<double> lowest;
  for (size_t i = 0; i < samples.size(); ++i) {
    const std::string& name = c.contestants[i].name;
    state.counters[name + "_ns"] = median(samples[i]);
    if (i == 0) continue;
    std::vector<double> rounds = ratios(samples[i], samples[0]);
    if (c.contestants[i].isYardstick) {
      state.counters[name + "_ratio"] = median(rounds);
      continue;
    }
    if (lowest.empty() || median(rounds) < median(lowest)) {
      lowest = std::move(rounds);
      state.SetLabel(name);
    }
  }
  const double ratio = median(lowest);
  state.counters["bytes_per_second"] =
      static_cast<double>(c.trafficBytes) / (median(samples[0]) * 1e-9);
  if (c.operations > 0) state.counters["gflops"] = c.operations / median(samples[0]);
  if (c.samples > 0) state.counters["ns_per_sample"] = median(samples[0]) / c.samples;
  state.counters["ratio"] = ratio;
  state.counters["spread"] = (quantile(lowest, 0.75) - quantile(lowest, 0.25)) / ratio;
}

void addBenchmark(const std::string& name, int rounds,
                  const std::function<void(benchmark::State&)>& run) {
  benchmark::RegisterBenchmark(name.c_str(), run)
      ->Iterations(roundsForAll > 0 ? roundsForAll : rounds)
      ->UseManualTime();
}

void setRounds(int rounds) {
  roundsForAll = rounds;
}

Suite::Suite(std::function<void()> addCases) {
  suites().push_back(std::move(addCases));
}

void addAllSuites() {
  for (const auto& addCases : suites()) addCases();
}

}  // namespace veks::bench
