// Peers that the compiler makes: the sort of the standard library and a counting sort.
#ifndef VEKS_BENCH_PEERS_PLAIN_SORTS_H
#define VEKS_BENCH_PEERS_PLAIN_SORTS_H

namespace veks::bench::plain {

template <class T>
struct Sort {
  static void ascend(T* srcDst, int len);
  static void descend(T* srcDst, int len);
};

// For integers of 8 and 16 bits, with a counter for each value.
template <class T>
struct CountingSort {
  static void ascend(T* srcDst, int len);
};

}  // namespace veks::bench::plain

#endif
