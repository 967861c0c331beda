// Filters with states: values against exact sums, on every target and at every length, and streams
// that are cut into calls in many ways.
#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

#include "filter/fir_walks.h"

namespace veks::test::fir {
namespace {

constexpr State::Memory kMemories[] = {State::Memory::kOwn, State::Memory::kBuffer};

// Lengths of calls: short ones, those around the lengths at which the ways of filtering change,
// whole frames of transforms, and, if `all` are wanted, around the chunks of in-place calls.
std::vector<size_t> lengthsOfCalls(size_t tapsLen, bool all) {
  const size_t block = (tapsLen + 3) / 4 * 4 + 1;
  const size_t points = transformLength(tapsLen);
  std::vector<size_t> lengths = {1, 1, tapsLen, tapsLen + 1, block, block + 1, 1600, 1601, 3};
  const size_t step = points - tapsLen + 1;
  lengths.insert(lengths.end(), {points, points + 1, 2 * step, 2 * step + 1, 3 * step});
  if (all) {
    lengths.insert(lengths.end(), {block - 1, 1599, 2047, 2048, 2049, 4095, 4096, 4097, 5000});
    lengths.resize(lengths.size() + 70);
    std::iota(lengths.end() - 70, lengths.end(), 1);
  }
  std::shuffle(lengths.begin(), lengths.end(), std::mt19937(static_cast<unsigned>(tapsLen)));
  return lengths;
}

TEST(FirValues, OfAllLengthsOnAllTargets) {
  Vectors vectors;
  for (const Row& row : rows()) {
    for (size_t taps :
         Sizes{1, 2, 3, 7, 8, 11, 12, 15, 16, 17, 31, 32, 33, 63, 64, 65, 100, 127, 128}) {
      const bool all = taps == 3 || taps == 16 || taps == 33 || taps == 64;
      const std::vector<size_t> lengths = lengthsOfCalls(taps, all);
      const Stream stream(row, taps, std::accumulate(lengths.begin(), lengths.end(), size_t{0}));
      onEveryTarget([&] {
        // Nothing so short is written past the caches.
        if (streamingBytes == 0) return;
        for (State::Memory memory : kMemories) {
          const State state(stream, memory);
          Walk walk(stream, state, vectors);
          for (size_t i = 0; i < lengths.size(); ++i) walk.next(lengths[i], i);
          walk.expectLine();
          if (testing::Test::HasFailure()) return;
        }
      });
    }
  }
}

// A single call, so long that all ways of filtering are long.
TEST(FirValues, OfLongCallsAndManyTaps) {
  Vectors vectors;
  for (const Row& row : rows()) {
    for (size_t taps : Sizes{1, 20, 64, 512, 1000}) {
      const Stream stream(row, taps, taps < 100 ? 20000 : 6000);
      for (State::Memory memory : kMemories) {
        for (bool inPlace : {false, true}) {
          const State state(stream, memory);
          Walk walk(stream, state, vectors);
          inPlace ? walk.inPlace(walk.left()) : walk.block(walk.left());
          walk.expectLine();
        }
      }
    }
  }
}

// Frames of transforms, through the caches and past them.
TEST(FirValues, OfTransformsOnAllTargets) {
  Vectors vectors;
  for (const Row& row : rows()) {
    if (row.transformsFrom == 0) continue;
    for (size_t taps : {row.transformsFrom, size_t{512}}) {
      const Stream stream(row, taps, 7000);
      onEveryTarget([&] {
        const State state(stream, State::Memory::kOwn);
        Walk walk(stream, state, vectors);
        walk.block(walk.left());
        walk.expectLine();
      });
    }
  }
}

TEST(FirValues, OfSingleSamples) {
  Vectors vectors;
  for (const Row& row : rows()) {
    for (size_t taps : Sizes{1, 2, 5, 11, 12, 13, 16, 31, 33, 64, 100}) {
      const Stream stream(row, taps, 2 * taps + 10);
      onEveryTarget([&] {
        for (State::Memory memory : kMemories) {
          const State state(stream, memory);
          Walk walk(stream, state, vectors);
          while (walk.left() > 0) {
            walk.one();
            walk.expectLine();
            if (testing::Test::HasFailure()) return;
          }
        }
      });
    }
  }
}

TEST(FirValues, OfEveryCutInTwo) {
  Vectors vectors;
  for (const Row& row : rows()) {
    for (size_t taps : Sizes{1, 2, 3, 7, 12, 17, 33}) {
      const Stream stream(row, taps, 2 * taps + 30);
      for (size_t cut = 1; cut < stream.size(); ++cut) {
        for (size_t kind : Sizes{1, 3}) {
          const State state(stream, kMemories[cut % 2]);
          Walk walk(stream, state, vectors);
          walk.next(cut, kind);
          walk.expectLine();
          walk.next(walk.left(), kind);
          walk.expectLine();
        }
        if (testing::Test::HasFailure()) return;
      }
    }
  }
}

// Between two states that hand over the delay line.
TEST(FirValues, OfRandomCuts) {
  Vectors vectors;
  std::mt19937 random(1);
  for (const Row& row : rows()) {
    for (size_t taps : Sizes{1, 5, 20, 40, 129}) {
      const Stream stream(row, taps, 14000);
      const State states[] = {{stream, State::Memory::kBuffer}, {stream, State::Memory::kOwn}};
      Walk walk(stream, states[0], vectors);
      while (walk.left() > 0) {
        if (random() % 10 == 0) walk.moveTo(states[random() % 2]);
        constexpr size_t kMost[] = {1, 6, 50, 400, 3000};
        const size_t n = 1 + random() % kMost[random() % 5];
        walk.next(std::min(n, walk.left()), random());
        walk.expectLine();
        if (testing::Test::HasFailure()) return;
      }
    }
  }
}

// Sums of products leave an impulse as the taps and exact zeros, transforms do not.
TEST(FirValues, TellWhereTransformsBegin) {
  for (const Row& row : rows()) {
    if (row.tap != row.data) continue;
    for (size_t taps : {row.transformsFrom - 1, row.transformsFrom, size_t{300}}) {
      const size_t points = transformLength(taps);
      for (size_t n : {points, points + 1}) {
        Signal signal = randomSignal(row, taps, n);
        std::fill(signal.past.begin(), signal.past.end(), 0);
        std::fill(signal.samples.begin(), signal.samples.end(), 0);
        signal.samples[0] = 1;
        signal.sampleExponent = 0;
        const Stream stream(row, signal);
        Bytes wanted = stream.taps();
        wanted.resize(n * stream.sampleBytes());
        for (State::Memory memory : kMemories) {
          const State state(stream, memory);
          Bytes results(wanted.size());
          ASSERT_EQ(
              row.filter(stream.samples(0), results.data(), static_cast<int>(n), state.get(), 0),
              vekStsOk);
          const bool transforms = state.mayTransform() && n > points;
          EXPECT_EQ(results != wanted, transforms) << row.name << ", " << taps << " taps, " << n;
        }
      }
    }
  }
}

// The noise of transforms stays near the level of the block: behind a loud start there is none.
TEST(FirValues, OfQuietSamplesBehindLoudOnes) {
  for (const Row& row : rows()) {
    if (row.hasIntegerData()) continue;
    constexpr size_t kTaps = 100;
    constexpr size_t kSamples = 8000;
    Signal signal = randomSignal(row, kTaps, kSamples);
    for (size_t i = 2000; i < signal.samples.size(); ++i) signal.samples[i] /= 1 << 12;
    const Stream stream(row, signal);
    const State state(stream, State::Memory::kOwn);
    Bytes results(kSamples * stream.sampleBytes());
    ASSERT_EQ(
        row.filter(stream.samples(0), results.data(), static_cast<int>(kSamples), state.get(), 0),
        vekStsOk);
    const size_t quiet = 2000 + 2 * transformLength(kTaps);
    const long double error = std::ldexp(stream.errorOfState(true), -12);
    EXPECT_TRUE(
        stream.accepts(quiet, kSamples - quiet, &results[quiet * stream.sampleBytes()], error));
  }
}

}  // namespace
}  // namespace veks::test::fir
