// Comparisons of a library call with peers that do the same work. A suite of them is a .cpp file
// that ends in a Suite object.
//
// The contestants run on the same data in the same process. A round times one batch of each; a
// batch repeats the call until it takes about 50 us, or makes one call if that takes longer, and
// follows an untimed call of the same contestant. The order rotates from round to round.
//
// Time per call is the median over the rounds. The ratio to a peer (above 1: the library is faster)
// is the median of the ratios within each round, since what disturbs the machine for longer than a
// round then cancels out. The ratio of a comparison is the lowest of its peers. A yardstick is
// timed like a peer, but does other work: its ratio is reported apart.
#ifndef VEKS_BENCH_COMPARE_H
#define VEKS_BENCH_COMPARE_H

#include <benchmark/benchmark.h>

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace veks::bench {

// Whether so many bytes of output are as good as those of the library.
using Agreement =
    std::function<bool(const unsigned char* expected, const unsigned char* got, size_t bytes)>;

struct Contestant {
  std::string name;
  std::function<void(size_t count)> run;  // makes the call `count` times
  Agreement agrees = nullptr;             // null: every byte must be the same
  bool isYardstick = false;               // its output is of no interest
  // Brings its results to the output of the case if they are elsewhere; not timed.
  std::function<void()> deliver = nullptr;
};

// All functions are called through a pointer that the compiler knows nothing about: it can neither
// drop a call nor put code of its own in place of one of the C library.
template <class R, class... P, class... A>
Contestant contestant(std::string name, R (*function)(P...), A... args) {
  return {std::move(name), [=](size_t count) {
            auto call = function;
            benchmark::DoNotOptimize(call);
            for (; count > 0; --count) call(args...);
          }};
}

struct Case {
  std::vector<Contestant> contestants;    // the library, then its peers
  std::function<void()> prepare;          // gives the output its content before a call
  const unsigned char* output = nullptr;  // compared after a call of each contestant
  size_t outputBytes = 0;
  size_t trafficBytes = 0;  // read and written by one call
  double operations = 0;    // floating-point ones of a call, if they are of interest
  std::function<void()> beforeTiming = nullptr;  // gives the inputs other content
  double samples = 0;                            // of a signal that a call filters
};

// Nanoseconds per call of each contestant: samples[contestant][round].
using Samples = std::vector<std::vector<double>>;

// Uses up the iterations of the benchmark, one per round, with the time of the first contestant.
Samples runRounds(benchmark::State& state, const std::vector<Contestant>& contestants);

double quantile(std::vector<double> samples, double q);
double median(const std::vector<double>& samples);

// Checks the results, runs the rounds and reports the counters: NAME_ns of each contestant,
// bytes_per_second of the library, gflops if a call has operations, ns_per_sample if it has
// samples, ratio and its spread (interquartile range / median), and NAME_ratio of a yardstick. The
// label is the peer that the ratio refers to.
void compare(benchmark::State& state, const Case& c);

// Registers a benchmark of `rounds` rounds, unless setRounds() was called.
void addBenchmark(const std::string& name, int rounds,
                  const std::function<void(benchmark::State&)>& run);
void setRounds(int rounds);

// A static object of this type makes main() call addCases, after the command line was read.
struct Suite {
  explicit Suite(std::function<void()> addCases);
};
void addAllSuites();

}  // namespace veks::bench

#endif
