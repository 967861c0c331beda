// Peers that the compiler makes: loops that convert samples from one type to another.
#ifndef VEKS_BENCH_PEERS_PLAIN_CONVERSIONS_H
#define VEKS_BENCH_PEERS_PLAIN_CONVERSIONS_H

namespace veks::bench::plain {

// Without scaling; integers saturate. Complex types part by part.
template <class S, class T>
struct Convert {
  static void separate(const S* src, T* dst, int len);
};

// Times 2^-scaleFactor, into a floating-point type or, rounded to nearest even, an integer.
template <class S, class T>
struct ConvertScaled {
  static void separate(const S* src, T* dst, int len, int scaleFactor);
};

// Floating point times 2^-scaleFactor, truncated (rndMode 0) or rounded to nearest even.
template <class S, class T>
struct ConvertRounded {
  static void separate(const S* src, T* dst, int len, int rndMode, int scaleFactor);
};

// Samples of three bytes each, least significant first. T says whether they are signed.
template <class T>
struct Convert24 {
  static void unpack(const unsigned char* src, T* dst, int len);
  static void unpackFloat(const unsigned char* src, float* dst, int len);
  static void packScaled(const T* src, unsigned char* dst, int len, int scaleFactor);
  static void packFloat(const float* src, unsigned char* dst, int len, int rndMode,
                        int scaleFactor);
};

}  // namespace veks::bench::plain

#endif
