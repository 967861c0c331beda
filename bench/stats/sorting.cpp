// Sorting. Every call sorts fresh elements: it first copies one of many sources, which the
// processor cannot learn by heart. The copy is part of the time of all contestants alike, and is
// measured alone as the yardstick.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "compare.h"
#include "peers/plain_sorts.h"
#include "stats/optional_sorts.h"
#include "veks.h"

#define VEKS_BENCH_NAMED(function) #function, function

namespace veks::bench {
namespace {

struct Pattern {
  const char* name;
  uint64_t (*element)(uint64_t i, uint64_t n, uint64_t random);
};

constexpr Pattern kRandom = {"random", [](uint64_t, uint64_t, uint64_t r) { return r; }};
constexpr Pattern kOthers[] = {
    {"sorted", [](uint64_t i, uint64_t, uint64_t) { return i; }},
    {"reversed", [](uint64_t i, uint64_t n, uint64_t) { return n - i; }},
    {"constant", [](uint64_t, uint64_t, uint64_t) { return uint64_t{42}; }},
    {"10values", [](uint64_t, uint64_t, uint64_t r) { return r % 10; }},
    {"pipe", [](uint64_t i, uint64_t n, uint64_t) { return std::min(i, n - i); }},
};

// Sources in turn, and the vector that is sorted.
template <class T>
struct Data {
  std::vector<T> sources;
  std::vector<T> sorted;
  size_t next = 0;

  Data(size_t len, const Pattern& pattern) : sorted(len) {
    constexpr size_t kElements = 1 << 17;
    sources.resize(std::max(kElements / len, size_t{1}) * len);
    std::mt19937_64 random(1);
    for (size_t i = 0; i < sources.size(); ++i) {
      // Of the highest bits, an integer of the type or a number with a fraction.
      const auto x = static_cast<int64_t>(pattern.element(i % len, len, random()));
      sources[i] = std::is_floating_point_v<T> ? static_cast<T>(static_cast<double>(x) * 0x1p-20)
                                               : static_cast<T>(x);
    }
  }

  T* fresh() {
    std::memcpy(sorted.data(), sources.data() + next, sorted.size() * sizeof(T));
    next = (next + sorted.size()) % sources.size();
    return sorted.data();
  }
};

template <class T, class R>
Contestant sorter(const std::string& name, const std::shared_ptr<Data<T>>& data,
                  R (*function)(T*, int)) {
  const int len = static_cast<int>(data->sorted.size());
  return {name, [=](size_t count) {
            auto call = function;
            benchmark::DoNotOptimize(call);
            for (; count > 0; --count) call(data->fresh(), len);
          }};
}

template <class T>
void copyOnly(T* /*srcDst*/, int /*len*/) {}

template <class T>
using Function = void (*)(T*, int);
template <class T>
using Peers = std::vector<std::pair<const char*, Function<T>>>;

template <class T>
void add(const char* name, VekStatus (*function)(T*, int), const Peers<T>& peers, size_t len,
         const Pattern& pattern) {
  const auto run = [=](benchmark::State& state) {
    const auto data = std::make_shared<Data<T>>(len, pattern);
    std::vector<Contestant> all = {sorter("veks", data, function)};
    for (const auto& [peer, sort] : peers) {
      if (sort != nullptr) all.push_back(sorter(peer, data, sort));
    }
    all.push_back(sorter("stream", data, copyOnly<T>));
    all.back().isYardstick = true;
    const size_t bytes = len * sizeof(T);
    const auto* const output = reinterpret_cast<const unsigned char*>(data->sorted.data());
    compare(state, {all, [&data] { data->next = 0; }, output, bytes, 2 * bytes});
  };
  addBenchmark(std::string(name) + '/' + std::to_string(len) + '/' + pattern.name,
               len > 1000000 ? 5 : 31, run);
}

template <class T>
void ascend(const char* name, VekStatus (*function)(T*, int)) {
  Peers<T> peers = {{"std", plain::Sort<T>::ascend}, {"vqsort", OptionalSorts<T>::ascend}};
  if constexpr (sizeof(T) < 4) peers.emplace_back("counting", plain::CountingSort<T>::ascend);
  constexpr size_t kLengths[] = {8, 100, 1000, 100000, 10000000};
  for (const size_t len : kLengths) {
    add(name, function, peers, len, kRandom);
  }
  for (const Pattern& pattern : kOthers) add(name, function, peers, 100000, pattern);
}

template <class T>
void descend(const char* name, VekStatus (*function)(T*, int)) {
  const Peers<T> peers = {{"std", plain::Sort<T>::descend}, {"vqsort", OptionalSorts<T>::descend}};
  for (const size_t len : {size_t{1000}, size_t{100000}}) add(name, function, peers, len, kRandom);
}

void addCases() {
  ascend(VEKS_BENCH_NAMED(veksSortAscend_8u_I));
  ascend(VEKS_BENCH_NAMED(veksSortAscend_16s_I));
  ascend(VEKS_BENCH_NAMED(veksSortAscend_32s_I));
  ascend(VEKS_BENCH_NAMED(veksSortAscend_32f_I));
  ascend(VEKS_BENCH_NAMED(veksSortAscend_64f_I));
  descend(VEKS_BENCH_NAMED(veksSortDescend_8u_I));
  descend(VEKS_BENCH_NAMED(veksSortDescend_16s_I));
  descend(VEKS_BENCH_NAMED(veksSortDescend_32s_I));
  descend(VEKS_BENCH_NAMED(veksSortDescend_32f_I));
  descend(VEKS_BENCH_NAMED(veksSortDescend_64f_I));
}

const Suite suite(addCases);

}  // namespace
}  // namespace veks::bench
