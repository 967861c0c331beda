// Plain loops whose parameters follow the length. Out of place no vector overlaps another.
#ifndef VEKS_BENCH_PEERS_TRAILING_LOOPS_H
#define VEKS_BENCH_PEERS_TRAILING_LOOPS_H

namespace veks::bench::plain {

struct LimitBelow {};
struct LimitAbove {};
struct ReplaceBelow {};
struct ReplaceAbove {};
struct ReplaceOutside {};
struct RaiseMagnitude {};
struct LowerMagnitude {};
struct Invert {};
struct Normalise {};

template <class Op, class T, class... C>
struct Trailing {
  static void separate(const T* src, T* dst, int len, C... constants);
  static void inPlace(T* srcDst, int len, C... constants);
};

}  // namespace veks::bench::plain

#endif
