// Peers that the compiler makes: loops that compute each weight of a window by its formula.
#ifndef VEKS_BENCH_PEERS_PLAIN_WINDOWS_H
#define VEKS_BENCH_PEERS_PLAIN_WINDOWS_H

namespace veks::bench::plain {

struct BartlettWeight {};
struct HannWeight {};
struct HammingWeight {};
struct BlackmanWeight {};
struct KaiserWeight {};

// Elements of type T, weights of type R. The shapes without a parameter leave alpha alone.
template <class Shape, class T, class R>
struct Window {
  static void apply(const T* src, T* dst, int len, float alpha);
};

}  // namespace veks::bench::plain

#endif
