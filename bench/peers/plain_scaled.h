// Peers that the compiler makes: loops over integers whose exact results are scaled by
// 2^-scaleFactor, rounded to nearest even and saturated, as a user would write them: in the
// narrowest usual type that holds the results, the scale factor tested once before the loop. The
// magnitude of the scale factor is below the width of the destination.
#ifndef VEKS_BENCH_PEERS_PLAIN_SCALED_H
#define VEKS_BENCH_PEERS_PLAIN_SCALED_H

#include "peers/plain_loops.h"

namespace veks::bench::plain {

struct AddProduct {};

template <class Op, class S1, class S2 = S1, class T = S2>
struct ScaledTwo {
  static void separate(const S1* src1, const S2* src2, T* dst, int len, int scaleFactor);
  static void inPlace(const S1* src, T* srcDst, int len, int scaleFactor);
};

// srcDst + src1 * src2
template <class S, class T = S>
struct ScaledAccumulate {
  static void addProduct(const S* src1, const S* src2, T* srcDst, int len, int scaleFactor);
};

template <class Op, class S, class T = S>
struct ScaledOne {
  static void separate(const S* src, T* dst, int len, int scaleFactor);
  static void inPlace(T* srcDst, int len, int scaleFactor);
};

template <class Op, class S, class T = S>
struct ScaledConstant {
  static void separate(const S* src, S val, T* dst, int len, int scaleFactor);
  static void inPlace(S val, T* srcDst, int len, int scaleFactor);
};

// (src - vSub) / vDiv
template <class T>
struct ScaledNormalize {
  static void separate(const T* src, T* dst, int len, T vSub, int vDiv, int scaleFactor);
  static void inPlace(T* srcDst, int len, T vSub, int vDiv, int scaleFactor);
};

}  // namespace veks::bench::plain

#endif
