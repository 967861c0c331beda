// Comparisons of functions on vectors: every size and placement, the arguments taken from the
// signature.
#ifndef VEKS_BENCH_VECTORS_H
#define VEKS_BENCH_VECTORS_H

#include <cstddef>
#include <functional>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "compare.h"
#include "veks.h"

// The name of a function and the function.
#define VEKS_BENCH_NAMED(function) #function, function

namespace veks::bench {

// kAligned: all vectors start at multiples of 64 bytes; kOffset: one element after them; kUp,
// kDown: the source is at a multiple of 64 (kDown: one element after it), the destination overlaps
// it one element above or below.
enum class Placement { kAligned, kOffset, kUp, kDown };

// Two sources and a destination of `len` elements, in memory that all cases share. Making it fills
// the sources.
class Vectors {
 public:
  Vectors(size_t bytes, size_t elementBytes, Placement placement);

  template <class T>
  const T* src1() const {
    return reinterpret_cast<const T*>(src1_);
  }
  template <class T>
  const T* src2() const {
    return reinterpret_cast<const T*>(src2_);
  }
  template <class T>
  T* dst() const {
    return reinterpret_cast<T*>(dst_);
  }
  int len() const {
    return len_;
  }
  size_t bytes() const {
    return bytes_;
  }

  // All that a call may change: the destination and, where it overlaps, the source.
  unsigned char* output() const {
    return output_;
  }
  size_t outputBytes() const {
    return outputBytes_;
  }
  void fillOutput() const;

 private:
  int len_;
  size_t bytes_;
  unsigned char* src1_;
  unsigned char* src2_;
  unsigned char* dst_;
  unsigned char* output_;
  size_t outputBytes_;
};

constexpr int kShift = 3;
constexpr unsigned char kConstantByte = 0x5A;  // the first one of every constant

// The constant of a function: a shift count or a value whose bytes all differ.
template <class C>
C constant() {
  if constexpr (std::is_same_v<C, int>) {
    return kShift;
  } else {
    C value;
    unsigned char* const bytes = reinterpret_cast<unsigned char*>(&value);
    for (size_t i = 0; i < sizeof(C); ++i) bytes[i] = static_cast<unsigned char>(kConstantByte + i);
    return value;
  }
}

// Gives a contestant for the vectors of a case.
using Peer = std::function<Contestant(const Vectors&)>;

template <class R, class T>
Peer peer(const char* name, R (*function)(const T*, const T*, T*, int)) {
  return [=](const Vectors& v) {
    return contestant(name, function, v.src1<T>(), v.src2<T>(), v.dst<T>(), v.len());
  };
}

template <class R, class T, class C>
Peer peer(const char* name, R (*function)(const T*, C, T*, int)) {
  return [=](const Vectors& v) {
    return contestant(name, function, v.src1<T>(), constant<C>(), v.dst<T>(), v.len());
  };
}

template <class R, class T>
Peer peer(const char* name, R (*function)(const T*, T*, int)) {
  return [=](const Vectors& v) {
    return contestant(name, function, v.src1<T>(), v.dst<T>(), v.len());
  };
}

template <class R, class C, class T>
Peer peer(const char* name, R (*function)(C, T*, int)) {
  return [=](const Vectors& v) {
    return contestant(name, function, constant<C>(), v.dst<T>(), v.len());
  };
}

template <class R, class T>
Peer peer(const char* name, R (*function)(T*, int)) {
  return [=](const Vectors& v) { return contestant(name, function, v.dst<T>(), v.len()); };
}

// How often one call goes over a vector, reading or writing.
enum Traffic : size_t { kWrite = 1, kReadWrite = 2, kTwoReadsWrite = 3, kThreeReadsWrite = 4 };

// Registers NAME/SIZE/PLACEMENT for all sizes. The library is the first contestant.
void addVectorCases(const char* name, Traffic traffic, const std::vector<Peer>& contestants,
                    size_t elementBytes, const std::vector<Placement>& placements);

// Bytes of an element of the destination, the last parameter but one.
template <class... P>
constexpr size_t kElementBytes =
    sizeof(std::remove_pointer_t<std::tuple_element_t<sizeof...(P) - 2, std::tuple<P...>>>);

template <class... P>
void compareVectors(const char* name, VekStatus (*function)(P...), Traffic traffic,
                    std::vector<Peer> peers, size_t elementBytes = kElementBytes<P...>) {
  peers.insert(peers.begin(), peer("veks", function));
  addVectorCases(name, traffic, peers, elementBytes, {Placement::kAligned, Placement::kOffset});
}

template <class... P>
void compareOverlapping(const char* name, VekStatus (*function)(P...), Traffic traffic,
                        std::vector<Peer> peers) {
  peers.insert(peers.begin(), peer("veks", function));
  addVectorCases(name, traffic, peers, kElementBytes<P...>, {Placement::kUp, Placement::kDown});
}

}  // namespace veks::bench

#endif
