// Reductions of Eigen, in the call shape of the library. They are compiled like the plain loops.
#ifndef VEKS_BENCH_PEERS_EIGEN_REDUCTIONS_H
#define VEKS_BENCH_PEERS_EIGEN_REDUCTIONS_H

#include "peers/plain_reductions.h"

namespace veks::bench::eigen {

template <class Side, class T>
struct Extreme {
  static void value(const T* src, int len, T* result);
  static void valueAndIndex(const T* src, int len, T* result, int* index);
};

template <class T>
void minMax(const T* src, int len, T* min, T* max);

template <class Kind, class T>
struct Norm {
  static void own(const T* src, int len, T* result);
  static void ofDifference(const T* src1, const T* src2, int len, T* result);
};

}  // namespace veks::bench::eigen

#endif
