// States of filters, and walks of filters through streams, with a state and without.
#ifndef VEKS_TESTS_FILTER_FIR_WALKS_H
#define VEKS_TESTS_FILTER_FIR_WALKS_H

#include "filter/fir_streams.h"
#include "guarded.h"

namespace veks::test::fir {

// A state with the taps of a stream at its start.
class State {
 public:
  enum class Memory { kOwn, kBuffer };
  State(const Stream& stream, Memory memory);
  // In a buffer of the caller.
  State(const Stream& stream, Vek8u* buffer);
  ~State();
  State(const State&) = delete;
  State& operator=(const State&) = delete;

  void* get() const {
    return state_;
  }
  bool mayTransform() const {
    return mayTransform_;
  }
  const Bytes& buffer() const {
    return buffer_;
  }

 private:
  void init(const Stream& stream, Vek8u* buffer);

  Row row_;
  bool mayTransform_ = false;
  Bytes buffer_;
  void* state_ = nullptr;
};

// The size that the library tells.
size_t stateBytes(const Row& row, size_t tapsLen);

// Where calls find and leave samples.
struct Vectors {
  Guarded src{true, size_t{1} << 20};
  Guarded dst{false, size_t{1} << 20};
};

// Filters a stream from its start on, one call after the other, each with vectors in other places
// between guard pages, and checks what comes out.
class Walk {
 public:
  Walk(const Stream& stream, const State& state, Vectors& vectors, size_t position = 0)
      : stream_(stream), state_(&state), vectors_(vectors), position_(position) {}

  void block(size_t n);
  void inPlace(size_t n);
  void one();
  // One of them.
  void next(size_t n, size_t kind);
  void expectLine() const;
  // Goes on with another state, which takes over the delay line.
  void moveTo(const State& state);
  size_t position() const {
    return position_;
  }
  size_t left() const {
    return stream_.size() - position_;
  }

 private:
  unsigned char* place(Guarded& where, size_t bytes);
  void finish(size_t n, VekStatus status, const unsigned char* results);

  const Stream& stream_;
  const State* state_;
  Vectors& vectors_;
  size_t position_;
  size_t turn_ = 0;
};

// What calls without a state find and leave.
struct DirectVectors : Vectors {
  Guarded taps{true};
  Guarded line{false};
  Guarded index{false};
};

// The same without a state: the delay line and its index follow the rule of one sample.
class DirectWalk {
 public:
  DirectWalk(const Stream& stream, size_t index, DirectVectors& vectors);

  enum Kind { kBlock, kInPlace, kOne, kOneInPlace };
  void next(size_t n, Kind kind);
  size_t left() const {
    return stream_.size() - position_;
  }

 private:
  unsigned char* place(Guarded& where, size_t bytes, size_t alignment);
  void follow(size_t n);

  const Stream& stream_;
  DirectVectors& vectors_;
  Bytes line_;
  size_t index_;
  size_t position_ = 0;
  size_t turn_ = 0;
};

}  // namespace veks::test::fir

#endif
