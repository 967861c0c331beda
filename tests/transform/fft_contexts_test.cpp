// Contexts of the fast Fourier transforms: what InitAlloc, Free and GetBufSize return, and the
// memory behind them.
#include <limits>

#include "heap.h"
#include "transform/fft_transforms.h"

namespace veks::test {
namespace {

constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kIntMax = std::numeric_limits<int>::max();

TEST(FftContexts, ArgumentsAreCheckedInOrder) {
  for (const Family& family : families()) {
    SCOPED_TRACE(family.name);
    EXPECT_EQ(family.make(nullptr, 31, 3, vekAlgHintNone), vekErrNullPtr);
    int here = 0;
    void* context = &here;
    const size_t live = heap.live;
    for (int order : {-1, 31, 32, kIntMin, kIntMax}) {
      EXPECT_EQ(family.make(&context, order, 3, vekAlgHintNone), vekErrFFTOrder) << order;
    }
    for (int order : {0, 3, 4, 10, 17}) {
      for (int flag : {0, 3, -1, 5, 6, 7, 9, 16, kIntMin, kIntMax}) {
        EXPECT_EQ(family.make(&context, order, flag, vekAlgHintNone), vekErrFFTFlag) << flag;
      }
    }
    EXPECT_EQ(heap.live, live);
    EXPECT_EQ(context, &here) << "left alone on errors";
    int size = -7;
    EXPECT_EQ(family.release(nullptr), vekErrNullPtr);
    EXPECT_EQ(family.bufferSize(nullptr, &size), vekErrNullPtr);
    EXPECT_EQ(family.bufferSize(nullptr, nullptr), vekErrNullPtr);
    EXPECT_EQ(size, -7);
  }
}

TEST(FftContexts, BelongToOneFamily) {
  for (const Family& family : families()) {
    const Context context(family, 4, 8);
    EXPECT_EQ(family.bufferSize(context.get(), nullptr), vekErrNullPtr);
    for (const Family& other : families()) {
      if (&other == &family) continue;
      SCOPED_TRACE(std::string(family.name) + " for " + other.name);
      int size = -7;
      EXPECT_EQ(other.release(context.get()), vekErrContextMatch);
      EXPECT_EQ(other.bufferSize(context.get(), &size), vekErrContextMatch);
      EXPECT_EQ(size, -7);
    }
    context.bufferBytes();  // it is still whole
  }
}

TEST(FftContexts, AreReleasedAsAWhole) {
  for (const Family& family : families()) {
    for (int order = 0; order <= 20; ++order) {
      for (int flag : {1, 2, 4, 8}) {
        for (VekHintAlgorithm hint :
             {vekAlgHintNone, vekAlgHintAccurate, static_cast<VekHintAlgorithm>(77)}) {
          if (order > 12 && (flag != 4 || hint != vekAlgHintNone)) continue;
          const size_t live = heap.live;
          void* context = nullptr;
          int size = -7;
          ASSERT_EQ(family.make(&context, order, flag, hint), vekStsOk);
          ASSERT_GT(heap.live, live);
          ASSERT_EQ(family.bufferSize(context, &size), vekStsOk);
          ASSERT_GE(size, 0);
          ASSERT_EQ(family.release(context), vekStsOk);
          ASSERT_EQ(heap.live, live) << family.name << ", order " << order;
        }
      }
    }
  }
}

// Until a context is made, let each allocation fail in turn.
TEST(FftContexts, LeaveNothingBehindWhenMemoryIsShort) {
  for (const Family& family : families()) {
    for (int order : {0, 2, 4, 9, 16, 17, 20}) {
      SCOPED_TRACE(std::string(family.name) + ", order " + std::to_string(order));
      int here = 0;
      void* context = &here;
      const size_t live = heap.live;
      VekStatus status = vekErrMemAllocTooSmall;
      for (size_t calls = 0; status == vekErrMemAllocTooSmall && calls < 100; ++calls) {
        ASSERT_EQ(context, &here);
        ASSERT_EQ(heap.live, live);
        heap.callsUntilFailure = calls;
        status = family.make(&context, order, 1, vekAlgHintNone);
        heap.callsUntilFailure = Heap::kNever;
        ASSERT_TRUE(calls > 0 || status == vekErrMemAllocTooSmall);
      }
      ASSERT_EQ(status, vekStsOk);
      EXPECT_EQ(family.release(context), vekStsOk);
      EXPECT_EQ(heap.live, live);
    }
  }
}

// A flag is looked at when the context has its memory.
TEST(FftContexts, MemoryComesBeforeTheFlag) {
  for (const Family& family : families()) {
    int here = 0;
    void* context = &here;
    heap.callsUntilFailure = 0;
    const VekStatus status = family.make(&context, 5, 3, vekAlgHintNone);
    heap.callsUntilFailure = Heap::kNever;
    EXPECT_EQ(status, vekErrMemAllocTooSmall) << family.name;
  }
}

}  // namespace
}  // namespace veks::test
