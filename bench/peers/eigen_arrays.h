// Peers written with the array expressions of Eigen, in the call shape of the library. They are
// compiled like the plain loops.
#ifndef VEKS_BENCH_PEERS_EIGEN_ARRAYS_H
#define VEKS_BENCH_PEERS_EIGEN_ARRAYS_H

#include "peers/plain_loops.h"
#include "peers/plain_thresholds.h"

namespace veks::bench::eigen {

template <class Op, class T>
struct Unary {
  static void separate(const T* src, T* dst, int len);
  static void inPlace(T* srcDst, int len);
};

template <class Op, class T>
struct Binary {
  static void separate(const T* src1, const T* src2, T* dst, int len);
  static void inPlace(const T* src, T* srcDst, int len);
};

template <class Op, class T>
struct WithConstant {
  static void separate(const T* src, T val, T* dst, int len);
  static void inPlace(T val, T* srcDst, int len);
};

template <class T>
struct Accumulate {
  static void addProduct(const T* src1, const T* src2, T* srcDst, int len);
};

template <class T, class R = T>
struct Normalize {
  static void separate(const T* src, T* dst, int len, T vSub, R vDiv);
  static void inPlace(T* srcDst, int len, T vSub, R vDiv);
};

template <class S, class T>
struct Convert {
  static void separate(const S* src, T* dst, int len);
};

template <class Side, class T>
struct Threshold {
  static void separate(const T* src, T* dst, int len, T level);
  static void inPlace(T* srcDst, int len, T level);
};

template <class Side, class T>
struct ThresholdValue {
  static void separate(const T* src, T* dst, int len, T level, T value);
  static void inPlace(T* srcDst, int len, T level, T value);
};

}  // namespace veks::bench::eigen

#endif
