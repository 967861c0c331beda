// Filters on teams of threads, and on several threads at once.
#include <algorithm>
#include <thread>

#include "filter/fir_walks.h"
#include "openmp.h"

namespace veks::test::fir {
namespace {

constexpr State::Memory kMemories[] = {State::Memory::kOwn, State::Memory::kBuffer};
// Long calls are those of more than 1600 results.
constexpr size_t kLengths[] = {1600, 1601, 1607, 7, 3203, 5000};
constexpr size_t kAllLengths = 14018;

// With so many taps, enough work for a team of eight.
constexpr size_t kManyTaps = 500;
constexpr size_t kLongest = 34000;

TEST(FirThreads, OfAnyNumberGiveTheResults) {
  Vectors vectors;
  for (const Row& row : rows()) {
    for (size_t taps : Sizes{1, 3, 64, kManyTaps}) {
      const Stream stream(row, taps, kAllLengths + kLongest);
      for (State::Memory memory : kMemories) {
        for (int threads : {1, 2, 3, 8}) {
          const Threads team(threads);
          const State state(stream, memory);
          Walk walk(stream, state, vectors);
          for (size_t n : kLengths) {
            n == 3203 ? walk.inPlace(n) : walk.block(n);
          }
          if (taps == kManyTaps && threads == 8) walk.block(kLongest);
          walk.expectLine();
        }
      }
    }
  }
}

// As many as when the state's size was told, made, and used.
TEST(FirThreads, MayChangeWhileAStateLives) {
  Guarded buffer(false, size_t{1} << 19);
  Vectors vectors;
  const int teams[][3] = {{1, 8, 3}, {8, 1, 2}, {1, 1, 8}, {3, 8, 1}, {2, 3, 61}};
  for (const Row& row : rows()) {
    for (size_t taps : Sizes{1, 40, 130}) {
      const Stream stream(row, taps, 9000);
      for (const auto& team : teams) {
        size_t bytes = 0;
        {
          const Threads sized(team[0]);
          bytes = stateBytes(row, taps);
        }
        Vek8u* const at = buffer.place(bytes, team[1] != 8, taps % 16);
        for (bool inBuffer : {true, false}) {
          const Threads made(team[1]);
          const State state = inBuffer ? State(stream, at) : State(stream, State::Memory::kOwn);
          const Threads used(team[2]);
          Walk walk(stream, state, vectors);
          walk.block(4500);
          walk.inPlace(walk.left());
          walk.expectLine();
        }
        ASSERT_TRUE(buffer.isIntactAround()) << row.name;
      }
    }
  }
}

// Each thread of the program has filters of its own.
TEST(FirThreads, OfTheProgramFilterAtOnce) {
  std::vector<std::thread> threads;
  for (size_t t = 0; t < 4; ++t) {
    threads.emplace_back([t] {
      const Threads team(static_cast<int>(t % 3 + 1));
      Vectors vectors;
      for (const Row& row : rows()) {
        const Stream stream(row, 20 + 25 * t, 6000);
        const State state(stream, kMemories[t % 2]);
        Walk walk(stream, state, vectors);
        for (size_t n : Sizes{2000, 5, 1, 3000}) walk.block(n);
        walk.inPlace(walk.left());
        walk.expectLine();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

#ifdef _OPENMP
// Calls within a team of the program, which fork no further or do.
TEST(FirThreads, OfATeamOfTheProgramFilterAtOnce) {
  for (int levels : {1, 2}) {
    const int before = omp_get_max_active_levels();
    omp_set_max_active_levels(levels);
#pragma omp parallel num_threads(3)
    {
      const Threads team(2);
      Vectors vectors;
      const auto member = static_cast<size_t>(omp_get_thread_num());
      for (const Row& row : rows()) {
        const Stream stream(row, 30 + 40 * member, 5000);
        const State state(stream, kMemories[member % 2]);
        Walk walk(stream, state, vectors);
        walk.block(3000);
        walk.block(walk.left());
        walk.expectLine();
      }
    }
    omp_set_max_active_levels(before);
  }
}
#endif

}  // namespace
}  // namespace veks::test::fir
