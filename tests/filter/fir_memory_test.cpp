// The memory of filters: the sizes of states, what happens when memory is short, and that all of it
// is given back.
#include <limits>

#include "filter/fir_walks.h"
#include "heap.h"
#include "openmp.h"

namespace veks::test::fir {
namespace {

constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kIntMax = std::numeric_limits<int>::max();

size_t roundUp(size_t bytes) {
  return (bytes + 15) / 16 * 16;
}

#if __has_include(<omp.h>)
TEST(FirMemory, OfSinglePrecisionHasTheDocumentedSize) {
  for (int threads : {1, 2, 3, 8, 61}) {
    const Threads team(threads);
    for (size_t n : Sizes{1, 2, 3, 4, 5, 17, 64, 1000, 100003}) {
      const size_t perThread = 16 * static_cast<size_t>(threads);
      EXPECT_EQ(stateBytes(rows()[0], n),
                roundUp(12 * n + 16) + 5 * roundUp(4 * n) + 112 + perThread + 16384);
      EXPECT_EQ(stateBytes(rows()[1], n),
                roundUp(24 * n + 32) + 13 * roundUp(8 * n) + 208 + perThread + 32768);
    }
  }
}
#endif

TEST(FirMemory, HasASizeThatFitsAnInt) {
  VekStatus (*sizes[])(int, int*) = {veksFIRGetStateSize32s_16s32f,
                                     veksFIRGetStateSize32sc_16sc32fc};
  std::vector<VekStatus (*)(int, int*)> all(std::begin(sizes), std::end(sizes));
  for (const Row& row : rows()) all.push_back(row.stateSize);
  for (auto* const sizeOf : all) {
    int size = -7;
    EXPECT_EQ(sizeOf(0, nullptr), vekErrNullPtr);
    for (int taps : {0, -1, kIntMin}) EXPECT_EQ(sizeOf(taps, &size), vekErrFIRLen);
    for (int taps : {kIntMax, kIntMax - 8, 1 << 29}) EXPECT_EQ(sizeOf(taps, &size), vekErrSize);
    EXPECT_EQ(size, -7);
  }
}

// Exactly as many bytes as told, at every address.
TEST(FirMemory, OfAStateIsItsBuffer) {
  Guarded buffer(false, size_t{1} << 19);
  Vectors vectors;
  for (const Row& row : rows()) {
    for (size_t taps : Sizes{1, 2, 3, 4, 7, 16, 65, 1000}) {
      const Stream stream(row, taps, taps == 65 ? 4500 : 2 * taps + 40);
      const size_t bytes = stateBytes(row, taps);
      ASSERT_LE(bytes + 16, buffer.mostBytes());
      for (size_t distance = 0; distance < 16; ++distance) {
        for (bool atEnd : {true, false}) {
          Vek8u* const at = buffer.place(bytes, atEnd, distance);
          const State state(stream, at);
          const auto start = reinterpret_cast<uintptr_t>(at);
          ASSERT_EQ(reinterpret_cast<uintptr_t>(state.get()), roundUp(start));
          Walk walk(stream, state, vectors);
          walk.one();
          walk.block(taps);
          walk.inPlace(taps + 7);
          walk.block(walk.left());
          walk.expectLine();
          ASSERT_EQ(row.setTaps(stream.taps().data(), state.get(), 1), vekStsOk);
          ASSERT_TRUE(buffer.isIntactAround()) << row.name << ", " << taps << " taps";
          if (testing::Test::HasFailure()) return;
        }
      }
    }
  }
}

// Calls action() with the next allocation failing, then the one after it, and so on, until all
// succeed.
template <class Action>
void untilMemorySuffices(const Action& action) {
  VekStatus status = vekErrMemAllocTooSmall;
  for (size_t calls = 0; status != vekStsOk && calls < 100; ++calls) {
    heap.callsUntilFailure = calls;
    status = action();
    heap.callsUntilFailure = Heap::kNever;
    ASSERT_TRUE(status == vekStsOk || status == vekErrMemAllocTooSmall) << status;
  }
  ASSERT_EQ(status, vekStsOk);
}

TEST(FirMemory, ShortOfItNothingIsLeftBehind) {
  for (const Row& row : rows()) {
    for (int taps : {1, 70, 1000}) {
      SCOPED_TRACE(std::string(row.name) + ", " + std::to_string(taps) + " taps");
      const Stream stream(row, static_cast<size_t>(taps), 1);
      const Bytes line = stream.lineAt(0);
      int here = 0;
      void* state = &here;
      size_t failures = 0;
      const size_t live = heap.live;
      untilMemorySuffices([&] {
        const VekStatus status = row.initAlloc(&state, stream.taps().data(), taps, 0, line.data());
        if (status != vekStsOk) {
          ++failures;
          EXPECT_EQ(heap.live, live);
          EXPECT_EQ(state, &here) << "left alone on errors";
        }
        return status;
      });
      EXPECT_GT(failures, size_t{0});
      EXPECT_GT(heap.live, live);
      EXPECT_EQ(row.release(state), vekStsOk);
      EXPECT_EQ(heap.live, live);
    }
  }
}

TEST(FirMemory, OfCallsIsGivenBack) {
  Vectors vectors;
  for (const Row& row : rows()) {
    for (size_t taps : Sizes{3, 70, 500}) {
      SCOPED_TRACE(std::string(row.name) + ", " + std::to_string(taps) + " taps");
      const Stream stream(row, taps, 3000);
      const State state(stream, State::Memory::kOwn);
      Bytes line = stream.lineAt(0);
      Bytes results(stream.size() * stream.sampleBytes());
      const size_t live = heap.live;
      untilMemorySuffices([&] {
        EXPECT_EQ(row.setLine(state.get(), line.data()), vekStsOk);
        const VekStatus status =
            row.filter(stream.samples(0), results.data(), static_cast<int>(stream.size()),
                       state.get(), stream.signal().scaleFactor);
        EXPECT_EQ(heap.live, live);
        return status;
      });
      EXPECT_TRUE(stream.accepts(0, stream.size(), results.data(),
                                 stream.errorOfState(state.mayTransform())));
      untilMemorySuffices([&] {
        const VekStatus status =
            row.setTaps(stream.taps().data(), state.get(), stream.signal().tapsFactor);
        EXPECT_LE(heap.live, live);
        return status;
      });
      // With transforms or without.
      EXPECT_EQ(row.setLine(state.get(), line.data()), vekStsOk);
      Walk walk(stream, state, vectors);
      walk.block(walk.left());
      walk.expectLine();
    }
  }
}

}  // namespace
}  // namespace veks::test::fir
