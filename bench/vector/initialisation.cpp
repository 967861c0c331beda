#include <cstring>

#include "comparisons.h"
#include "peers/plain_loops.h"

namespace veks::bench {
namespace {

Peer memcpyPeer() {
  return [](const Vectors& v) {
    return contestant("memcpy", std::memcpy, v.dst(), v.src1(), v.bytes());
  };
}

Peer memmovePeer() {
  return [](const Vectors& v) {
    return contestant("memmove", std::memmove, v.dst(), v.src1(), v.bytes());
  };
}

Peer memsetPeer(int value) {
  return [value](const Vectors& v) {
    return contestant("memset", std::memset, v.dst(), value, v.bytes());
  };
}

template <class T>
void copy(const char* name, VekStatus (*function)(const T*, T*, int)) {
  compareVectors(name, function, {},
                 {memcpyPeer(), memmovePeer(), peer("std::copy", plain::Standard<T>::copy)});
}

template <class T>
void move(const char* name, VekStatus (*function)(const T*, T*, int)) {
  compareVectors(name, function, {}, {memmovePeer(), peer("std::copy", plain::Standard<T>::copy)});
  compareOverlapping(name, function, {memmovePeer()});
}

template <class T>
void set(const char* name, VekStatus (*function)(T, T*, int)) {
  std::vector<Peer> peers = {peer("std::fill", plain::Standard<T>::fill, constant<T>())};
  if (sizeof(T) == 1) peers.push_back(memsetPeer(kConstantByte));
  compareVectors(name, function, {}, peers, constant<T>());
}

template <class T>
void zero(const char* name, VekStatus (*function)(T*, int)) {
  compareVectors(name, function, {},
                 {memsetPeer(0), peer("std::fill", plain::Standard<T>::fillZero)});
}

template <class T>
void flip(const char* name, VekStatus (*function)(const T*, T*, int)) {
  compareVectors(name, function, {},
                 {peer("loop", plain::Reverse<T>::separate),
                  peer("std::reverse_copy", plain::Reverse<T>::stdReverseCopy)});
}

template <class T>
void flip(const char* name, VekStatus (*function)(T*, int)) {
  compareVectors(name, function, kInPlace,
                 {peer("loop", plain::Reverse<T>::inPlace),
                  peer("std::reverse", plain::Reverse<T>::stdReverse)});
}

template <class T>
void swapBytes(const char* name, VekStatus (*function)(const T*, T*, int)) {
  compareVectors(name, function, {}, {peer("loop", plain::Unary<plain::SwapBytes, T>::separate)});
}

template <class T>
void swapBytes(const char* name, VekStatus (*function)(T*, int)) {
  compareVectors(name, function, kInPlace,
                 {peer("loop", plain::Unary<plain::SwapBytes, T>::inPlace)});
}

void addCases() {
  copy(VEKS_BENCH_NAMED(veksCopy_8u));
  copy(VEKS_BENCH_NAMED(veksCopy_32f));
  copy(VEKS_BENCH_NAMED(veksCopy_64fc));
  move(VEKS_BENCH_NAMED(veksMove_8u));
  move(VEKS_BENCH_NAMED(veksMove_32f));
  move(VEKS_BENCH_NAMED(veksMove_64fc));

  set(VEKS_BENCH_NAMED(veksSet_8u));
  set(VEKS_BENCH_NAMED(veksSet_16s));
  set(VEKS_BENCH_NAMED(veksSet_32f));
  set(VEKS_BENCH_NAMED(veksSet_64f));
  set(VEKS_BENCH_NAMED(veksSet_32fc));
  set(VEKS_BENCH_NAMED(veksSet_64fc));
  zero(VEKS_BENCH_NAMED(veksZero_8u));
  zero(VEKS_BENCH_NAMED(veksZero_32f));

  flip(VEKS_BENCH_NAMED(veksFlip_8u));
  flip(VEKS_BENCH_NAMED(veksFlip_16u));
  flip(VEKS_BENCH_NAMED(veksFlip_32f));
  flip(VEKS_BENCH_NAMED(veksFlip_64f));
  flip(VEKS_BENCH_NAMED(veksFlip_64fc));
  flip(VEKS_BENCH_NAMED(veksFlip_8u_I));
  flip(VEKS_BENCH_NAMED(veksFlip_16u_I));
  flip(VEKS_BENCH_NAMED(veksFlip_32f_I));
  flip(VEKS_BENCH_NAMED(veksFlip_64f_I));
  flip(VEKS_BENCH_NAMED(veksFlip_64fc_I));

  swapBytes(VEKS_BENCH_NAMED(veksSwapBytes_16u));
  swapBytes(VEKS_BENCH_NAMED(veksSwapBytes_16u_I));
  compareVectors(VEKS_BENCH_NAMED(veksSwapBytes_24u), {Destination::kWritten, {}, {3, 0, 3}},
                 {peer("loop", plain::SwapBytes24::separate)});
  compareVectors(VEKS_BENCH_NAMED(veksSwapBytes_24u_I), {Destination::kUpdated, {}, {0, 0, 3}},
                 {peer("loop", plain::SwapBytes24::inPlace)});
  swapBytes(VEKS_BENCH_NAMED(veksSwapBytes_32u));
  swapBytes(VEKS_BENCH_NAMED(veksSwapBytes_32u_I));
}

const VectorSuite suite(Sizes::kBytes, addCases);

}  // namespace
}  // namespace veks::bench
