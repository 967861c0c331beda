// Filters whose caller keeps taps, delay line and index.
#ifndef VEKS_FILTER_FIR_STATELESS_H
#define VEKS_FILTER_FIR_STATELESS_H

#include "filter/fir/filter.h"

namespace veks {

// The caller's delay line: the last tapsLen samples are at `samples + *index`, the oldest one
// first, and all of them are there a second time.
template <class Data>
struct DelayLine {
  Data* samples;
  int* index;
  size_t taps;

  const Data* history() const {
    return samples + *index;
  }

  void append(const Data* src, size_t n) {
    size_t at = static_cast<size_t>(*index);
    if (n > taps) {
      at = (at + n - taps) % taps;
      src += n - taps;
      n = taps;
    }
    const size_t first = std::min(n, taps - at);
    for (Data* const copy : {samples, samples + taps}) {
      std::copy(src, src + first, copy + at);
      std::copy(src + first, src + n, copy);
    }
    *index = static_cast<int>((at + n) % taps);
  }

  // n samples from `position` on, counted from the oldest one of the history, behind which the
  // source follows.
  template <class T>
  void loadWith(const Data* src, size_t position, T* dst, size_t n) const {
    const size_t old = position < taps ? std::min(n, taps - position) : 0;
    if (old != 0) load(history() + position, dst, old);
    if (n != old) load(src + (position + old - taps), dst + old, n - old);
  }
};

template <class T>
struct DoubleOf {
  using Type = Vek64f;
};
template <>
struct DoubleOf<Vek32fc> {
  using Type = Vek64fc;
};
template <>
struct DoubleOf<Vek64fc> {
  using Type = Vek64fc;
};

// Taps of floating point; sums are in double precision.
template <class Tap>
class FloatTaps {
 public:
  using Sum = typename DoubleOf<Tap>::Type;
  static constexpr size_t kMost = kTile<Sum>;

  FloatTaps(const Tap* taps, size_t tapsLen) : taps_(taps), tapsLen_(tapsLen) {}

  // Up to kMost results.
  template <class Data>
  void filter(const DelayLine<Data>& line, const Data* src, Data* dst, size_t n,
              int scaleFactor) const {
    Sum results[kMost];
    Sum reversed[kMost];
    const auto loadWindow = [&](size_t k, Sum* window, size_t samples) {
      line.loadWith(src, k + 1, window, samples);
    };
    const auto tapsAt = [&](size_t k, size_t count) {
      load(taps_ + (tapsLen_ - k - count), reversed, count);
      std::reverse(reversed, reversed + count);
      return reversed;
    };
    sumTile(tapsLen_, results, n, loadWindow, tapsAt);
    store(results, dst, n, scaleFactor);
  }

 private:
  const Tap* taps_;
  size_t tapsLen_;
};

// Integer taps; sums are modulo 2^32.
template <class Tap>
class IntegerTaps {
 public:
  using Sum = std::conditional_t<LanesOf<Tap>::kLanes == 2, Vek32sc, Vek32s>;
  static constexpr size_t kMost = kTile<Sum>;

  IntegerTaps(const Tap* taps, size_t tapsLen) : taps_(taps), tapsLen_(tapsLen) {}

  // Up to kMost results.
  template <class Data>
  void filter(const DelayLine<Data>& line, const Data* src, Data* dst, size_t n,
              int scaleFactor) const {
    Sum sums[kMost];
    Sum more[kMost];
    for (size_t k = 0; k < tapsLen_; k += kMost) {
      sumTaps(line, src, k, k == 0 ? sums : more, n);
      if (k != 0) addSums(more, 0, sums, n);
    }
    store(sums, dst, n, scaleFactor);
  }

 private:
  // With up to kMost taps from k on.
  template <class Data>
  void sumTaps(const DelayLine<Data>& line, const Data* src, size_t k, Sum* sums, size_t n) const {
    const size_t count = std::min(kMost, tapsLen_ - k);
    Data window[2 * kMost];
    line.loadWith(src, tapsLen_ - k - count, window, n + count);
    Sum taps[kMost];
    std::transform(taps_ + k, taps_ + k + count, taps, [](const Tap& tap) { return wide(tap); });
    // Room for two or four words of each tap.
    constexpr size_t kWords = (2 * LanesOf<Sum>::kLanes) * (kMost + 1) + 16;
    int32_t words[kWords];
    Layout layout(words, alignof(int32_t));
    TapPairs<Sum> pairs = TapPairs<Sum>::piecesOf(&layout, count);
    pairs.set(taps, count);
    Sum extra[kMost];
    pairs.sum(window, sums, extra, n);
  }

  static Vek32s wide(Vek16s tap) {
    return tap;
  }
  static Vek32s wide(Vek32s tap) {
    return tap;
  }
  static Vek32sc wide(Vek32sc tap) {
    return tap;
  }
  const Tap* taps_;
  size_t tapsLen_;
};

template <class Tap>
struct TapsOf {
  using Type = FloatTaps<Tap>;
};
template <>
struct TapsOf<Vek16s> {
  using Type = IntegerTaps<Vek16s>;
};
template <>
struct TapsOf<Vek32s> {
  using Type = IntegerTaps<Vek32s>;
};
template <>
struct TapsOf<Vek32sc> {
  using Type = IntegerTaps<Vek32sc>;
};

template <class Tap, class Data>
inline VekStatus checkDirect(const Tap* taps, int tapsLen, const Data* line, const int* index) {
  if (taps == nullptr) return vekErrNullPtr;
  if (tapsLen < 1) return vekErrFIRLen;
  if (line == nullptr || index == nullptr) return vekErrNullPtr;
  constexpr bool isIndexChecked = std::is_same_v<Tap, Vek16s>;
  if (isIndexChecked && (*index < 0 || *index >= tapsLen)) return vekErrDlyLineIndex;
  return vekStsOk;
}

// Results replace the samples only when these are in the delay line.
template <class Tap, class Data>
inline void filterTiles(const Data* src, Data* dst, size_t n, const Tap* callersTaps, int tapsLen,
                        Data* samples, int* index, int scaleFactor) {
  using Taps = typename TapsOf<Tap>::Type;
  const Taps taps(callersTaps, static_cast<size_t>(tapsLen));
  DelayLine<Data> line = {samples, index, static_cast<size_t>(tapsLen)};
  Data results[Taps::kMost];
  for (size_t i = 0; i < n; i += Taps::kMost) {
    const size_t count = std::min(Taps::kMost, n - i);
    taps.filter(line, src + i, results, count, scaleFactor);
    line.append(src + i, count);
    std::copy(results, results + count, dst + i);
  }
}

template <class Tap, class Data>
inline VekStatus firDirect(const Data* src, Data* dst, int numIters, const Tap* taps, int tapsLen,
                           Data* line, int* index, int scaleFactor = 0) {
  if (src == nullptr || dst == nullptr) return vekErrNullPtr;
  if (numIters < 1) return vekErrSize;
  const VekStatus status = checkDirect(taps, tapsLen, line, index);
  if (status != vekStsOk) return status;
  filterTiles(src, dst, static_cast<size_t>(numIters), taps, tapsLen, line, index, scaleFactor);
  return vekStsOk;
}

template <class Tap, class Data>
inline VekStatus firOneDirect(const Data* src, Data* dst, const Tap* taps, int tapsLen, Data* line,
                              int* index, int scaleFactor = 0) {
  if (src == nullptr || dst == nullptr) return vekErrNullPtr;
  constexpr bool isQ15 = std::is_same_v<Tap, Vek16s>;
  if (isQ15 && (line == nullptr || index == nullptr)) return vekErrNullPtr;
  const VekStatus status = checkDirect(taps, tapsLen, line, index);
  if (status != vekStsOk) return status;
  filterTiles(src, dst, 1, taps, tapsLen, line, index, scaleFactor);
  return vekStsOk;
}

}  // namespace veks

#endif
