// Peers that the compiler makes: loops that replace the elements beyond a level. A complex element
// is beyond it by its magnitude.
#ifndef VEKS_BENCH_PEERS_PLAIN_THRESHOLDS_H
#define VEKS_BENCH_PEERS_PLAIN_THRESHOLDS_H

namespace veks::bench::plain {

struct Below {};
struct Above {};

// By the level, with the sign or the phase of the element where `magnitudes` are compared.
template <class Side, class T, class R = T, bool magnitudes = false>
struct Threshold {
  static void separate(const T* src, T* dst, int len, R level);
  static void inPlace(T* srcDst, int len, R level);
};

// By a value.
template <class Side, class T, class R = T>
struct ThresholdValue {
  static void separate(const T* src, T* dst, int len, R level, T value);
  static void inPlace(T* srcDst, int len, R level, T value);
};

// By values on both sides.
template <class T>
struct ThresholdBoth {
  static void separate(const T* src, T* dst, int len, T levelLT, T valueLT, T levelGT, T valueGT);
  static void inPlace(T* srcDst, int len, T levelLT, T valueLT, T levelGT, T valueGT);
};

// The inverse of the element, its magnitude limited from below.
template <class T, class R = T>
struct ThresholdInverse {
  static void separate(const T* src, T* dst, int len, R level);
  static void inPlace(T* srcDst, int len, R level);
};

}  // namespace veks::bench::plain

#endif
