// Peers that the compiler makes of loops and may reorder the sums of. Results of complex elements
// are those of the magnitudes.
#ifndef VEKS_BENCH_PEERS_PLAIN_REDUCTIONS_H
#define VEKS_BENCH_PEERS_PLAIN_REDUCTIONS_H

namespace veks::bench::plain {

struct Less {};
struct Greater {};

template <class Side, class T>
struct Extreme {
  static void value(const T* src, int len, T* result);
  static void valueAndIndex(const T* src, int len, T* result, int* index);
  static void ofEvery(const T* src, T* srcDst, int len);
};

template <class T>
void minMax(const T* src, int len, T* min, T* max);

// Only for integers the sum is formed in a wider type.
struct NormInf {};
struct NormL1 {};
struct NormL2 {};

template <class Kind, class T, class R>
struct Norm {
  static void own(const T* src, int len, R* result);
  static void ofDifference(const T* src1, const T* src2, int len, R* result);
};

}  // namespace veks::bench::plain

#endif
