// Peers that the compiler makes: loops that filter.
#ifndef VEKS_BENCH_PEERS_PLAIN_FILTERS_H
#define VEKS_BENCH_PEERS_PLAIN_FILTERS_H

#include "veks/types.h"

namespace veks::bench::plain {

// dst[n] = sum of taps[k] src[n - k], tapsLen - 1 samples before the source included: no state, and
// none of its costs. `reversed` are the taps, the last one first.
template <class T>
struct Filters {
  // One tap after the other for the whole block; one result after the other; the taps for 64
  // results at a time.
  static void byTap(const T* src, T* dst, int len, const T* reversed, int tapsLen);
  static void byResult(const T* src, T* dst, int len, const T* reversed, int tapsLen);
  static void byStrip(const T* src, T* dst, int len, const T* reversed, int tapsLen);

  // One sample: delay line of 2 tapsLen elements and its index.
  static void one(T src, T* dst, const T* reversed, int tapsLen, T* delayLine, int* index);
};

// The same with results of 16 bits: taps of 32f, rounded to nearest; integer taps, sums that wrap
// around at 32 bits, multiplied by 2^-shift, halves to even.
void filter16sWithFloats(const Vek16s* src, Vek16s* dst, int len, const Vek32f* reversed,
                         int tapsLen);
void filter16sWithIntegers(const Vek16s* src, Vek16s* dst, int len, const Vek32s* reversed,
                           int tapsLen, int shift);
void filter16sWithShorts(const Vek16s* src, Vek16s* dst, int len, const Vek16s* reversed,
                         int tapsLen, int shift);

// srcDst[i] *= src[i]
void multiplySpectra(const Vek32fc* src, Vek32fc* srcDst, int len);

}  // namespace veks::bench::plain

#endif
