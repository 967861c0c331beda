// Peers that the compiler makes: loops over packed spectra of real signals. The lengths are even.
#ifndef VEKS_BENCH_PEERS_PLAIN_PACKED_H
#define VEKS_BENCH_PEERS_PLAIN_PACKED_H

#include "veks/types.h"

namespace veks::bench::plain {

// Where the complex values begin, and the second real value is, of n.
struct Pack {
  static constexpr int kFirst = 1;
  static constexpr int middle(int n) {
    return n - 1;
  }
};
struct Perm {
  static constexpr int kFirst = 2;
  static constexpr int middle(int /*n*/) {
    return 1;
  }
};

template <class Format, class C>
struct PackedProducts {
  using T = decltype(C::re);
  static void separate(const T* src1, const T* src2, T* dst, int len);
  static void conjugated(const T* src, T* srcDst, int len);
};

template <class Format>
struct ScaledPackedProducts {
  static void separate(const Vek16s* src1, const Vek16s* src2, Vek16s* dst, int len,
                       int scaleFactor);
};

// The full spectrum.
template <class Format, class C>
struct Expansion {
  using T = decltype(C::re);
  static void separate(const T* src, C* dst, int len);
  static void inPlace(C* srcDst, int len);
};

}  // namespace veks::bench::plain

#endif
