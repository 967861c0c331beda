// Calls of the Fourier transforms: statuses, vectors and work buffers anywhere in memory, threads.
#include <algorithm>
#include <cstring>
#include <thread>

#include "guarded.h"
#include "heap.h"
#include "transform/fft_transforms.h"

namespace veks::test {
namespace {

// The vectors of a transform of a few points.
struct Vectors {
  unsigned char src[2][256];
  unsigned char dst[2][256];
  Arrays arrays;

  Vectors() : arrays{{src[0], src[1]}, {dst[0], dst[1]}} {
    std::memset(src, 1, sizeof(src));
    std::memset(dst, 0xA5, sizeof(dst));
  }
  bool isUntouched() const {
    const auto* const bytes = &dst[0][0];
    return std::all_of(bytes, bytes + sizeof(dst), [](unsigned char byte) { return byte == 0xA5; });
  }
};

TEST(FftCalls, CheckContextsThenVectors) {
  for (const Transform& transform : transforms()) {
    SCOPED_TRACE(transform.name);
    const Context context(transform.contexts(), 4, 8);
    Vectors vectors;
    const Arrays none = {};
    EXPECT_EQ(transform.call(vectors.arrays, nullptr, 0, nullptr), vekErrNullPtr);
    EXPECT_EQ(transform.call(none, nullptr, 0, nullptr), vekErrNullPtr);
    EXPECT_EQ(transform.call(none, context.get(), 0, nullptr), vekErrNullPtr);
    for (size_t i = 0; i < arraysOf(transform.in); ++i) {
      Arrays arrays = vectors.arrays;
      arrays.src[i] = nullptr;
      EXPECT_EQ(transform.call(arrays, context.get(), 0, nullptr), vekErrNullPtr) << i;
      arrays = vectors.arrays;
      arrays.dst[i] = nullptr;
      EXPECT_EQ(transform.call(arrays, context.get(), 0, nullptr), vekErrNullPtr) << i;
    }
    for (const Family& family : families()) {
      if (&family == &transform.contexts()) continue;
      const Context other(family, 4, 8);
      EXPECT_EQ(transform.call(vectors.arrays, other.get(), 0, nullptr), vekErrContextMatch);
      EXPECT_EQ(transform.call(none, other.get(), 0, nullptr), vekErrContextMatch) << "first";
    }
    EXPECT_TRUE(vectors.isUntouched());
  }
}

TEST(FftCalls, WithoutABufferAllocateOneForTheCall) {
  for (const Transform& transform : transforms()) {
    for (int order : {0, 3, 5, 10, 17}) {
      SCOPED_TRACE(std::string(transform.name) + ", order " + std::to_string(order));
      const size_t n = size_t{1} << order;
      const Context context(transform.contexts(), order, 8);
      const bool needsBuffer = context.bufferBytes() > 0;
      std::vector<double> memory[4];
      for (std::vector<double>& vector : memory) vector.resize(2 * n + 2);
      const Arrays arrays = {{memory[0].data(), memory[1].data()},
                             {memory[2].data(), memory[3].data()}};
      const size_t live = heap.live;
      EXPECT_EQ(transform.call(arrays, context.get(), 0, nullptr), vekStsOk);
      EXPECT_EQ(heap.live, live);
      heap.callsUntilFailure = 0;
      const VekStatus without = transform.call(arrays, context.get(), 0, nullptr);
      std::vector<Vek8u> buffer(context.bufferBytes() + 1);
      const VekStatus with = transform.call(arrays, context.get(), 0, buffer.data());
      heap.callsUntilFailure = Heap::kNever;
      // Short vectors may have theirs on the stack.
      const bool mustAllocate = needsBuffer && order == 17;
      EXPECT_TRUE(without == (needsBuffer ? vekErrMemAllocTooSmall : vekStsOk) ||
                  (without == vekStsOk && !mustAllocate))
          << without;
      EXPECT_EQ(with, vekStsOk) << "allocates nothing";
      EXPECT_EQ(heap.live, live);
    }
  }
}

struct GuardedVectors {
  Guarded src[2] = {Guarded(true), Guarded(true)};
  Guarded dst[2] = {Guarded(false), Guarded(false)};
  Guarded buffer{false};
};

// Reads and writes nothing outside the vectors and the buffer, of exactly the size that the context
// tells, and gives the same bits wherever they lie.
template <class T>
void checkPlacements(const Transform& transform, int order, GuardedVectors& guarded) {
  SCOPED_TRACE(std::string(transform.name) + ", order " + std::to_string(order));
  const size_t n = size_t{1} << order;
  const Context context(transform.contexts(), order, 8);
  const size_t bufferBytes = context.bufferBytes();
  ASSERT_LE(bufferBytes + 64, guarded.buffer.mostBytes());
  const Lanes<T> in = encoded<T>(transform.in, randomInput(transform, n));
  const Lanes<T> expected = resultOf(transform, context, in, n, 5);
  for (size_t distance = 0; distance < 64; distance = distance < 17 ? distance + 1 : distance + 9) {
    for (bool atEnd : {true, false}) {
      Arrays arrays = {};
      for (size_t i = 0; i < arraysOf(transform.in); ++i) {
        const size_t away = (distance + i) * sizeof(T) % 64;
        arrays.src[i] = guarded.src[i].place(lanesOf(transform.in, n) * sizeof(T), atEnd, away);
        arrays.dst[i] = guarded.dst[i].place(lanesOf(transform.out, n) * sizeof(T), atEnd,
                                             64 - sizeof(T) - away);
        guarded.src[i].fill(in.arrays[i].data());
      }
      Vek8u* const buffer = guarded.buffer.place(bufferBytes, atEnd, distance);
      ASSERT_EQ(transform.call(arrays, context.get(), 5, buffer), vekStsOk);
      for (size_t i = 0; i < arraysOf(transform.out); ++i) {
        const size_t bytes = expected.arrays[i].size() * sizeof(T);
        ASSERT_EQ(std::memcmp(arrays.dst[i], expected.arrays[i].data(), bytes), 0)
            << "distance " << distance;
        ASSERT_TRUE(guarded.dst[i].isIntactAround()) << "distance " << distance;
      }
      ASSERT_TRUE(guarded.buffer.isIntactAround()) << "distance " << distance;
    }
  }
}

TEST(FftCalls, StayWithinTheirVectorsAndBuffer) {
  GuardedVectors guarded;
  onEveryTarget([&] {
    for (const Transform& transform : transforms()) {
      for (int order : {0, 1, 2, 3, 4, 5, 6, 7, 9, 12}) {
        withLanes(transform.type,
                  [&](auto lane) { checkPlacements<decltype(lane)>(transform, order, guarded); });
      }
    }
  });
}

TEST(FftCalls, OfSeveralThreadsMayShareAContext) {
  constexpr int kOrder = 11;
  constexpr size_t kPoints = size_t{1} << kOrder;
  const auto& transform = transforms()[10];
  ASSERT_EQ(transform.type, Type::k32f);
  const Context context(transform.contexts(), kOrder, 4);
  const Lanes<Vek32f> in = encoded<Vek32f>(transform.in, randomInput(transform, kPoints));
  const Lanes<Vek32f> expected = resultOf(transform, context, in, kPoints);
  bool isSame[4] = {};
  std::vector<std::thread> threads;
  for (size_t t = 0; t < std::size(isSame); ++t) {
    threads.emplace_back([&, t] {
      std::vector<Vek8u> buffer(context.bufferBytes() + 1);
      isSame[t] = true;
      for (int i = 0; i < 50; ++i) {
        const Lanes<Vek32f> out =
            resultOf(transform, context, in, kPoints, 0, t % 2 == 0 ? nullptr : buffer.data());
        isSame[t] = isSame[t] && out == expected;
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (bool same : isSame) EXPECT_TRUE(same);
}

}  // namespace
}  // namespace veks::test
