// Integer taps as pairs of 16 bits, and the sums of their products.
#ifndef VEKS_FILTER_FIR_TAP_PAIRS_H
#define VEKS_FILTER_FIR_TAP_PAIRS_H

#include <algorithm>

#include "filter/fir/layout.h"
#include "filter/fir/products.h"

namespace veks {

constexpr int kHalf = 16;

inline int32_t wordOf(uint32_t first, uint32_t second) {
  return static_cast<int32_t>((first & 0xFFFF) | second << 16);
}

// A tap is `low + 2^16 high` modulo 2^32 with a signed low half.
inline uint32_t lowHalf(uint32_t tap) {
  return tap & 0xFFFF;
}
inline uint32_t highHalf(uint32_t tap) {
  return (tap + 0x8000) >> 16;
}

// Lists of words of two halves each: kLists for the low halves of taps, as many for the high ones.
template <int kLists>
struct HalvesOfTaps {
  int32_t* low[kLists];
  int32_t* high[kLists];
  size_t words;
  bool hasHigh;

  static HalvesOfTaps piecesOf(Layout* layout, size_t words) {
    HalvesOfTaps halves = {};
    halves.words = words;
    for (int32_t*& list : halves.low) list = layout->take<int32_t>(words);
    for (int32_t*& list : halves.high) list = layout->take<int32_t>(words);
    return halves;
  }

  void set(int list, size_t word, uint32_t first, uint32_t second) {
    low[list][word] = wordOf(lowHalf(first), lowHalf(second));
    high[list][word] = wordOf(highHalf(first), highHalf(second));
    hasHigh = hasHigh || high[list][word] != 0;
  }
};

// sums += 2^shift more, modulo 2^32
inline void addSums(const Vek32s* more, int shift, Vek32s* sums, size_t n) {
  for (size_t i = 0; i < n; ++i) {
    sums[i] = static_cast<int32_t>(static_cast<uint32_t>(sums[i]) +
                                   (static_cast<uint32_t>(more[i]) << shift));
  }
}
inline void addSums(const Vek32sc* more, int shift, Vek32sc* sums, size_t n) {
  addSums(&more->re, shift, &sums->re, 2 * n);
}

// sums(history, sums, n): sums[i] = sum of taps[k] x[i - k], where `history` points to the sample
// tapsLen before that of the first result.
template <class Tap>
struct TapPairs;

// Pairs of neighbours; with an odd number of taps there is one more, of zero, for the oldest
// sample.
template <>
struct TapPairs<Vek32s> {
  HalvesOfTaps<1> halves;
  size_t skipped;  // samples of the history before the oldest one that a tap meets

  static TapPairs piecesOf(Layout* layout, size_t tapsLen) {
    TapPairs pairs = {};
    pairs.halves = HalvesOfTaps<1>::piecesOf(layout, (tapsLen + 1) / 2);
    pairs.skipped = 1 - tapsLen % 2;
    return pairs;
  }

  void set(const Vek32s* taps, size_t tapsLen) {
    const auto older = [=](size_t k) { return k < tapsLen ? static_cast<uint32_t>(taps[k]) : 0; };
    halves.hasHigh = false;
    for (size_t word = 0; word < halves.words; ++word) {
      const size_t k = 2 * (halves.words - word) - 1;
      halves.set(0, word, older(k), older(k - 1));
    }
  }

  void sum(const Vek16s* history, Vek32s* sums, Vek32s* extra, size_t n) const {
    const Vek16s* const window = history + skipped;
    sumPairs(halves.low[0], halves.words, window, sums, n);
    if (!halves.hasHigh) return;
    sumPairs(halves.high[0], halves.words, window, extra, n);
    addSums(extra, kHalf, sums, n);
  }
};

// Pairs of parts: (re, -im) makes the real part of a product, (im, re) the imaginary one.
template <>
struct TapPairs<Vek32sc> {
  HalvesOfTaps<2> halves;

  static TapPairs piecesOf(Layout* layout, size_t tapsLen) {
    return {HalvesOfTaps<2>::piecesOf(layout, tapsLen)};
  }

  void set(const Vek32sc* taps, size_t tapsLen) {
    halves.hasHigh = false;
    for (size_t word = 0; word < tapsLen; ++word) {
      const uint32_t re = static_cast<uint32_t>(taps[tapsLen - 1 - word].re);
      const uint32_t im = static_cast<uint32_t>(taps[tapsLen - 1 - word].im);
      halves.set(0, word, re, 0 - im);
      halves.set(1, word, im, re);
    }
  }

  void sum(const Vek16sc* history, Vek32sc* sums, Vek32sc* extra, size_t n) const {
    const Vek16sc* const window = history + 1;
    sumPairs(halves.low[0], halves.low[1], halves.words, window, sums, n);
    if (!halves.hasHigh) return;
    sumPairs(halves.high[0], halves.high[1], halves.words, window, extra, n);
    addSums(extra, kHalf, sums, n);
  }
};

}  // namespace veks

#endif
