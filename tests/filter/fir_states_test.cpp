// States of filters: what they are made of and give back, and which calls accept them.
#include <limits>

#include "filter/fir_walks.h"
#include "heap.h"

namespace veks::test::fir {
namespace {

constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr size_t kTaps = 5;

TEST(FirStates, AreMadeOfValidArguments) {
  for (const Row& row : rows()) {
    SCOPED_TRACE(row.name);
    const Stream stream(row, kTaps, 8);
    const Bytes line = stream.lineAt(0);
    const void* const taps = stream.taps().data();
    int here = 0;
    void* state = &here;
    Vek8u buffer[64] = {};
    const size_t live = heap.live;
    for (int n : {5, 0, kIntMin}) {
      EXPECT_EQ(row.initAlloc(nullptr, taps, n, 0, line.data()), vekErrNullPtr);
      EXPECT_EQ(row.initAlloc(&state, nullptr, n, 0, line.data()), vekErrNullPtr);
      EXPECT_EQ(row.init(nullptr, taps, n, 0, line.data(), buffer), vekErrNullPtr);
      EXPECT_EQ(row.init(&state, nullptr, n, 0, line.data(), buffer), vekErrNullPtr);
      EXPECT_EQ(row.init(&state, taps, n, 0, line.data(), nullptr), vekErrNullPtr);
    }
    for (int n : {0, -1, kIntMin}) {
      EXPECT_EQ(row.initAlloc(&state, taps, n, 0, line.data()), vekErrFIRLen);
      EXPECT_EQ(row.init(&state, taps, n, 0, line.data(), buffer), vekErrFIRLen);
    }
    EXPECT_EQ(state, &here) << "left alone on errors";
    EXPECT_EQ(heap.live, live);
  }
}

// The statuses of all calls on a state, with the arguments that are not null.
void expectOfAllCalls(const Row& row, void* state, VekStatus wanted) {
  alignas(16) unsigned char samples[256];
  std::memset(samples, 0xA5, sizeof(samples));
  int factor = -7;
  EXPECT_EQ(row.filter(&samples[128], samples, 1, state, 0), wanted);
  EXPECT_EQ(row.filterInPlace(samples, 1, state, 0), wanted);
  EXPECT_EQ(row.one(&samples[128], samples, state, 0), wanted);
  EXPECT_EQ(row.getTaps(state, samples, &factor), wanted);
  EXPECT_EQ(row.setTaps(samples, state, 0), wanted);
  EXPECT_EQ(row.getLine(state, samples), wanted);
  EXPECT_EQ(row.setLine(state, samples), wanted);
  EXPECT_EQ(row.setLine(state, nullptr), wanted);
  EXPECT_EQ(row.release(state), wanted);
  for (unsigned char byte : samples) ASSERT_EQ(byte, 0xA5);
  EXPECT_EQ(factor, -7);
}

TEST(FirStates, BelongToOneRow) {
  Vectors vectors;
  alignas(16) unsigned char none[256] = {};
  for (const Row& row : rows()) {
    const Stream stream(row, kTaps, 30);
    const State states[] = {{stream, State::Memory::kOwn}, {stream, State::Memory::kBuffer}};
    for (const State& state : states) {
      for (const Row& other : rows()) {
        if (other.name == row.name) continue;
        SCOPED_TRACE(std::string(row.name) + " for " + other.name);
        expectOfAllCalls(other, state.get(), vekErrContextMatch);
      }
      Walk walk(stream, state, vectors);
      walk.block(walk.left());  // it is still whole
    }
    expectOfAllCalls(row, none, vekErrContextMatch);
    expectOfAllCalls(row, nullptr, vekErrNullPtr);
  }
}

TEST(FirStates, AreCheckedInOrder) {
  Vectors vectors;
  alignas(16) unsigned char none[256] = {};
  for (const Row& row : rows()) {
    SCOPED_TRACE(row.name);
    const Stream stream(row, kTaps, 30);
    const State state(stream, State::Memory::kOwn);
    const unsigned char* const src = stream.samples(0);
    Bytes samples(256, 0xA5);
    int factor = -7;
    for (void* at : {state.get(), static_cast<void*>(none), static_cast<void*>(nullptr)}) {
      for (int n : {1, 0, -1, kIntMin}) {
        EXPECT_EQ(row.filter(nullptr, samples.data(), n, at, 0), vekErrNullPtr);
        EXPECT_EQ(row.filter(src, nullptr, n, at, 0), vekErrNullPtr);
        EXPECT_EQ(row.filterInPlace(nullptr, n, at, 0), vekErrNullPtr);
        if (n == 1) continue;
        const VekStatus wanted = at == nullptr ? vekErrNullPtr : vekErrSize;
        EXPECT_EQ(row.filter(src, samples.data(), n, at, 0), wanted);
        EXPECT_EQ(row.filterInPlace(samples.data(), n, at, 0), wanted);
      }
      EXPECT_EQ(row.one(src, nullptr, at, 0), vekErrNullPtr);
      EXPECT_EQ(row.getTaps(at, nullptr, &factor), vekErrNullPtr);
      EXPECT_EQ(row.setTaps(nullptr, at, 0), vekErrNullPtr);
      EXPECT_EQ(row.getLine(at, nullptr), vekErrNullPtr);
      if (row.hasIntegerTaps()) {
        EXPECT_EQ(row.getTaps(at, samples.data(), nullptr), vekErrNullPtr);
      }
    }
    EXPECT_EQ(samples, Bytes(256, 0xA5));
    EXPECT_EQ(factor, -7);
    Walk walk(stream, state, vectors);
    walk.block(walk.left());
  }
}

TEST(FirStates, GiveBackTapsAndLines) {
  for (const Row& row : rows()) {
    for (size_t taps : Sizes{1, 2, 5, 16, 63, 64, 1000}) {
      SCOPED_TRACE(std::string(row.name) + ", " + std::to_string(taps) + " taps");
      const Stream stream(row, taps, taps);
      for (State::Memory memory : {State::Memory::kOwn, State::Memory::kBuffer}) {
        const State state(stream, memory);
        Bytes back(stream.taps().size());
        int factor = -14;
        EXPECT_EQ(row.getTaps(state.get(), back.data(), &factor), vekStsOk);
        EXPECT_EQ(back, stream.taps());
        EXPECT_EQ(factor, -14);
        Bytes line = stream.lineAt(0);
        EXPECT_EQ(row.getLine(state.get(), line.data()), vekStsOk);
        EXPECT_EQ(line, stream.lineAt(0));
        EXPECT_EQ(row.setLine(state.get(), stream.lineAt(taps).data()), vekStsOk);
        EXPECT_EQ(row.getLine(state.get(), line.data()), vekStsOk);
        EXPECT_EQ(line, stream.lineAt(taps));
        EXPECT_EQ(row.setLine(state.get(), nullptr), vekStsOk);
        EXPECT_EQ(row.getLine(state.get(), line.data()), vekStsOk);
        EXPECT_EQ(line, Bytes(line.size()));
      }
      void* state = nullptr;
      ASSERT_EQ(row.initAlloc(&state, stream.taps().data(), static_cast<int>(taps), 0, nullptr),
                vekStsOk);
      Bytes line(stream.lineAt(0).size(), 0xA5);
      EXPECT_EQ(row.getLine(state, line.data()), vekStsOk);
      EXPECT_EQ(line, Bytes(line.size()));
      EXPECT_EQ(row.release(state), vekStsOk);
    }
  }
}

// With other taps from some sample on, the line stays.
TEST(FirStates, TakeOtherTaps) {
  Vectors vectors;
  for (const Row& row : rows()) {
    for (size_t taps : Sizes{1, 6, 64, 200}) {
      const Stream stream(row, taps, 3 * transformLength(taps) + 40);
      Signal otherSignal = stream.signal();
      otherSignal.tapsFactor = -13;
      for (int64_t& tap : otherSignal.taps) tap = ~tap / 2;
      const Stream other(row, otherSignal);
      for (State::Memory memory : {State::Memory::kOwn, State::Memory::kBuffer}) {
        const State state(stream, memory);
        Walk walk(stream, state, vectors);
        walk.one();
        walk.block(12);
        walk.one();
        ASSERT_EQ(row.setTaps(other.taps().data(), state.get(), -13), vekStsOk);
        walk.expectLine();
        Walk otherWalk(other, state, vectors, walk.position());
        otherWalk.one();
        otherWalk.block(otherWalk.left());
        otherWalk.expectLine();
        Bytes back(other.taps().size());
        int factor = -13;
        EXPECT_EQ(row.getTaps(state.get(), back.data(), &factor), vekStsOk);
        EXPECT_EQ(back, other.taps());
        EXPECT_EQ(factor, -13);
      }
    }
  }
}

TEST(FirStates, InBuffersOutliveFree) {
  Vectors vectors;
  for (const Row& row : rows()) {
    const Stream stream(row, kTaps, 30);
    const State state(stream, State::Memory::kBuffer);
    const Bytes before(state.buffer().begin(), state.buffer().end());
    EXPECT_EQ(row.release(state.get()), vekStsOk);
    EXPECT_EQ(state.buffer(), before);
    Walk walk(stream, state, vectors);
    walk.block(walk.left());
  }
}

}  // namespace
}  // namespace veks::test::fir
