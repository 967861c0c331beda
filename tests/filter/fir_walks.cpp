#include "filter/fir_walks.h"

namespace veks::test::fir {

size_t stateBytes(const Row& row, size_t tapsLen) {
  int size = -1;
  EXPECT_EQ(row.stateSize(static_cast<int>(tapsLen), &size), vekStsOk);
  EXPECT_GE(size, 0);
  return static_cast<size_t>(size);
}

void State::init(const Stream& stream, Vek8u* buffer) {
  EXPECT_EQ(row_.init(&state_, stream.taps().data(), static_cast<int>(stream.tapsLen()),
                      stream.signal().tapsFactor, stream.lineAt(0).data(), buffer),
            vekStsOk);
}

State::State(const Stream& stream, Vek8u* buffer) : row_(stream.row()) {
  init(stream, buffer);
}

State::State(const Stream& stream, Memory memory) : row_(stream.row()) {
  if (memory == Memory::kBuffer) {
    buffer_.resize(stateBytes(row_, stream.tapsLen()));
    init(stream, buffer_.data());
  } else {
    mayTransform_ = hasTransform(row_, stream.tapsLen());
    EXPECT_EQ(row_.initAlloc(&state_, stream.taps().data(), static_cast<int>(stream.tapsLen()),
                             stream.signal().tapsFactor, stream.lineAt(0).data()),
              vekStsOk);
  }
}

State::~State() {
  EXPECT_EQ(row_.release(state_), vekStsOk);
}

unsigned char* Walk::place(Guarded& where, size_t bytes) {
  const size_t distance = turn_ * laneBytes(stream_.row().data) % 64;
  turn_ += 3;
  return where.place(bytes, turn_ % 2 == 0, distance);
}

void Walk::finish(size_t n, VekStatus status, const unsigned char* results) {
  ASSERT_EQ(status, vekStsOk);
  ASSERT_TRUE(vectors_.dst.isIntactAround()) << stream_.row().name << ", " << n << " samples";
  ASSERT_TRUE(stream_.accepts(position_, n, results, stream_.errorOfState(state_->mayTransform())));
  position_ += n;
}

void Walk::block(size_t n) {
  const size_t bytes = n * stream_.sampleBytes();
  const unsigned char* const src = place(vectors_.src, bytes);
  unsigned char* const dst = place(vectors_.dst, bytes);
  vectors_.src.fill(stream_.samples(position_));
  finish(n,
         stream_.row().filter(src, dst, static_cast<int>(n), state_->get(),
                              stream_.signal().scaleFactor),
         dst);
}

void Walk::inPlace(size_t n) {
  unsigned char* const dst = place(vectors_.dst, n * stream_.sampleBytes());
  vectors_.dst.fill(stream_.samples(position_));
  finish(n,
         stream_.row().filterInPlace(dst, static_cast<int>(n), state_->get(),
                                     stream_.signal().scaleFactor),
         dst);
}

void Walk::one() {
  unsigned char* const dst = place(vectors_.dst, stream_.sampleBytes());
  finish(1,
         stream_.row().one(stream_.samples(position_), dst, state_->get(),
                           stream_.signal().scaleFactor),
         dst);
}

void Walk::next(size_t n, size_t kind) {
  if (n == 1 && kind % 2 == 0) return one();
  kind % 3 == 0 ? inPlace(n) : block(n);
}

void Walk::moveTo(const State& state) {
  Bytes line(stream_.tapsLen() * stream_.sampleBytes());
  ASSERT_EQ(stream_.row().getLine(state_->get(), line.data()), vekStsOk);
  ASSERT_EQ(stream_.row().setLine(state.get(), line.data()), vekStsOk);
  state_ = &state;
}

void Walk::expectLine() const {
  Bytes line(stream_.tapsLen() * stream_.sampleBytes());
  ASSERT_EQ(stream_.row().getLine(state_->get(), line.data()), vekStsOk);
  ASSERT_EQ(line, stream_.lineAt(position_))
      << stream_.row().name << ", " << stream_.tapsLen() << " taps, after " << position_;
}

DirectWalk::DirectWalk(const Stream& stream, size_t index, DirectVectors& vectors)
    : stream_(stream), vectors_(vectors), line_(2 * stream.lineAt(0).size()), index_(index) {
  const size_t taps = stream.tapsLen();
  const size_t bytes = stream.sampleBytes();
  const Bytes newestFirst = stream.lineAt(0);
  for (size_t i = 0; i < 2 * taps; ++i) {
    const size_t age = (index + 2 * taps - 1 - i) % taps;
    std::memcpy(&line_[i * bytes], &newestFirst[age * bytes], bytes);
  }
}

unsigned char* DirectWalk::place(Guarded& where, size_t bytes, size_t alignment) {
  turn_ += 3;
  return where.place(bytes, turn_ % 2 == 0, turn_ * alignment % 64);
}

// A sample is written twice, then the index moves on.
void DirectWalk::follow(size_t n) {
  const size_t bytes = stream_.sampleBytes();
  for (size_t i = 0; i < n; ++i) {
    for (size_t half : {size_t{0}, stream_.tapsLen()}) {
      std::memcpy(&line_[(index_ + half) * bytes], stream_.samples(position_), bytes);
    }
    index_ = index_ + 1 == stream_.tapsLen() ? 0 : index_ + 1;
    ++position_;
  }
}

void DirectWalk::next(size_t n, Kind kind) {
  const Row& row = stream_.row();
  const Signal& signal = stream_.signal();
  const size_t lane = laneBytes(row.data);
  const size_t bytes = n * stream_.sampleBytes();
  const unsigned char* const src = place(vectors_.src, bytes, lane);
  unsigned char* const dst = place(vectors_.dst, bytes, lane);
  const unsigned char* const taps = place(vectors_.taps, stream_.taps().size(), laneBytes(row.tap));
  unsigned char* const line = place(vectors_.line, line_.size(), lane);
  int* const index = reinterpret_cast<int*>(place(vectors_.index, sizeof(int), sizeof(int)));
  vectors_.src.fill(stream_.samples(position_));
  vectors_.taps.fill(stream_.taps().data());
  vectors_.line.fill(line_.data());
  *index = static_cast<int>(index_);
  if (kind == kInPlace || kind == kOneInPlace) vectors_.dst.fill(stream_.samples(position_));
  const int count = static_cast<int>(n);
  const int tapsLen = static_cast<int>(signal.tapsLen);
  VekStatus status = vekErrUnknown;
  if (kind == kBlock) {
    status = row.direct(src, dst, count, taps, tapsLen, signal.tapsFactor, line, index,
                        signal.scaleFactor);
  } else if (kind == kInPlace) {
    status = row.directInPlace(dst, count, taps, tapsLen, signal.tapsFactor, line, index,
                               signal.scaleFactor);
  } else if (kind == kOne) {
    status =
        row.oneDirect(src, dst, taps, tapsLen, signal.tapsFactor, line, index, signal.scaleFactor);
  } else {
    status = row.oneDirectInPlace(dst, taps, tapsLen, signal.tapsFactor, line, index,
                                  signal.scaleFactor);
  }
  ASSERT_EQ(status, vekStsOk);
  ASSERT_TRUE(stream_.accepts(position_, n, dst, stream_.errorOfDirect()));
  follow(n);
  ASSERT_EQ(std::memcmp(line, line_.data(), line_.size()), 0)
      << row.name << ", " << tapsLen << " taps, " << n << " samples";
  ASSERT_EQ(static_cast<size_t>(*index), index_) << row.name;
  for (const Guarded* guarded : {&vectors_.dst, &vectors_.line, &vectors_.index}) {
    ASSERT_TRUE(guarded->isIntactAround()) << row.name << ", " << tapsLen << " taps";
  }
}

}  // namespace veks::test::fir
