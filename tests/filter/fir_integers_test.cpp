// Arithmetic of filters of integer samples: sums that wrap, scale factors, ties and saturation.
#include <limits>
#include <random>

#include "exact.h"
#include "filter/fir_walks.h"

namespace veks::test::fir {
namespace {

constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kIntMax = std::numeric_limits<int>::max();

// Blocks, in place, and single samples, with a state and without.
void checkAllForms(const Stream& stream, DirectVectors& vectors) {
  const size_t half = stream.size() / 2;
  for (size_t kind : Sizes{1, 3}) {
    if (stream.row().filter != nullptr) {
      const State state(stream, kind == 1 ? State::Memory::kOwn : State::Memory::kBuffer);
      Walk walk(stream, state, vectors);
      walk.next(half, kind);
      walk.one();
      walk.next(walk.left(), kind);
      walk.expectLine();
    }
    DirectWalk walk(stream, 0, vectors);
    walk.next(half, kind == 1 ? DirectWalk::kBlock : DirectWalk::kInPlace);
    walk.next(1, kind == 1 ? DirectWalk::kOne : DirectWalk::kOneInPlace);
    walk.next(walk.left(), kind == 1 ? DirectWalk::kInPlace : DirectWalk::kBlock);
  }
}

// Limits and numbers of all magnitudes.
Integers extremes(size_t n, int bits, uint64_t seed) {
  std::mt19937_64 random(seed);
  const int64_t limit = int64_t{1} << (bits - 1);
  Integers all = randomIntegers(n, bits, seed + 1);
  for (int64_t& number : all) {
    const int64_t special[] = {-limit, limit - 1, 1, -1, 0, limit / 2, 3};
    const uint64_t choice = random() % 12;
    number = choice < 7 ? special[choice] : number >> random() % static_cast<uint64_t>(bits - 1);
  }
  return all;
}

// Integers that stand for tapsFactor; those beyond 31 are limited, after the scale factor.
TEST(FirIntegers, SumsWrapThenResultsAreScaledRoundedAndSaturated) {
  constexpr int kTapsFactors[] = {0, -15, 3, -31, 31, 40, -40, kIntMax, kIntMin};
  DirectVectors vectors;
  for (const Row& row : directRows()) {
    if (!row.hasIntegerTaps()) continue;
    size_t turn = 0;
    for (int scaleFactor : scaleFactors()) {
      for (size_t taps : Sizes{1, 3, 21}) {
        Signal signal;
        signal.tapsLen = taps;
        signal.scaleFactor = scaleFactor;
        signal.tapsFactor = kTapsFactors[turn++ % std::size(kTapsFactors)];
        signal.taps = extremes(row.lanes * taps, row.tap == Type::k16s ? 16 : 32, turn);
        signal.past = extremes(row.lanes * taps, 16, turn + 1);
        signal.samples = extremes(row.lanes * 100, 16, turn + 2);
        const Stream stream(row, signal);
        onEveryTarget([&] { checkAllForms(stream, vectors); });
        if (testing::Test::HasFailure()) return;
      }
    }
  }
}

// The differences that decide the shift: halves go to even, a shift of 31 leaves -1, 0 and 1.
TEST(FirIntegers, ShiftsAsDocumented) {
  struct Example {
    int64_t sample;
    int64_t tap;
    int tapsFactor;
    int scaleFactor;
    int wanted;
  };
  const Example examples[] = {
      {1, 1, -1, 0, 0},
      {3, 1, -1, 0, 2},
      {5, 1, 0, 1, 2},
      {-1, 1, 0, 1, 0},
      {-3, 1, 0, 1, -2},
      {1, 0x40000000, -31, 0, 0},
      {1, 0x40000001, -31, 0, 1},
      {1, -0x40000000 - 1, 0, kIntMax, -1},
      {2, 0x40000000, -40, 0, -1},
      {4, 0x40000000, 0, 0, 0},
      {-32768, -32768, -15, 0, 32767},
      {32767, 32767, -31, 0, 0},
      {1, 1, 15, 0, 32767},
      {-1, 1, 15, 0, -32768},
      {-1, 1, 14, 0, -16384},
      {1, 0x10001, 40, 0, 32767},
      {1, -5, kIntMax, kIntMin, -32768},
      {0, 5, kIntMax, kIntMin, 0},
  };
  const Row& row = rows()[12];
  ASSERT_STREQ(row.name, "32s_16s");
  for (const Example& example : examples) {
    const auto sample = static_cast<Vek16s>(example.sample);
    const auto tap = static_cast<Vek32s>(example.tap);
    Vek16s result = -7;
    Vek16s line[2] = {};
    int index = 0;
    EXPECT_EQ(row.oneDirect(&sample, &result, &tap, 1, example.tapsFactor, line, &index,
                            example.scaleFactor),
              vekStsOk);
    EXPECT_EQ(result, example.wanted) << sample << " * " << tap << " * 2^(" << example.tapsFactor
                                      << " - " << example.scaleFactor << ")";
  }
}

// Taps of halves on integers: no sum is rounded, so each result is known to the last bit.
TEST(FirIntegers, ResultsOfFloatingPointTapsAreRoundedToEvenAndSaturated) {
  DirectVectors vectors;
  for (const Row& row : rows()) {
    if (row.hasIntegerTaps() || !row.hasIntegerData()) continue;
    uint64_t turn = 0;
    for (int scaleFactor : scaleFactors()) {
      for (size_t taps : Sizes{1, 2, 13}) {
        Signal signal;
        signal.tapsLen = taps;
        signal.scaleFactor = scaleFactor;
        signal.tapExponent = -1;
        signal.isExact = true;
        signal.taps = extremes(row.lanes * taps, 4, ++turn);
        const int bits = turn % 2 == 0 ? 5 : (row.data == Type::k16s ? 16 : 32);
        signal.past = extremes(row.lanes * taps, bits, turn + 1);
        signal.samples = extremes(row.lanes * 60, bits, turn + 2);
        const Stream stream(row, signal);
        onEveryTarget([&] { checkAllForms(stream, vectors); });
        if (testing::Test::HasFailure()) return;
      }
    }
  }
}

}  // namespace
}  // namespace veks::test::fir
