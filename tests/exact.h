// Integers of 128 bits and a sign, and the scale-factor rule on them one bit at a time: slow, plain
// and the same on every machine.
#ifndef VEKS_TESTS_EXACT_H
#define VEKS_TESTS_EXACT_H

#include <cstdint>
#include <limits>
#include <type_traits>
#include <vector>

namespace veks::test {

struct Exact {
  bool negative;
  uint64_t high;
  uint64_t low;
};

template <class T>
Exact exact(T value) {
  if constexpr (std::is_same_v<T, Exact>) {
    return value;
  } else {
    const bool negative = value < T{0};
    const uint64_t bits = static_cast<uint64_t>(value);
    return {negative, 0, negative ? ~bits + 1 : bits};
  }
}

inline Exact operator-(Exact a) {
  return {!a.negative, a.high, a.low};
}

inline Exact operator+(Exact a, Exact b) {
  if (a.negative == b.negative) {
    const uint64_t low = a.low + b.low;
    return {a.negative, a.high + b.high + (low < a.low ? 1 : 0), low};
  }
  const bool aIsSmaller = a.high < b.high || (a.high == b.high && a.low < b.low);
  if (aIsSmaller) return b + a;
  return {a.negative, a.high - b.high - (a.low < b.low ? 1 : 0), a.low - b.low};
}

inline Exact operator-(Exact a, Exact b) {
  return a + -b;
}

// The magnitudes of a and b below 2^64.
inline Exact operator*(Exact a, Exact b) {
  Exact product = {a.negative != b.negative, 0, 0};
  const uint64_t mask = 0xFFFFFFFF;
  const uint64_t cross = (a.low & mask) * (b.low >> 32);
  const Exact lowest = {product.negative, 0, (a.low & mask) * (b.low & mask)};
  const Exact cross1 = {product.negative, cross >> 32, cross << 32};
  const uint64_t otherCross = (a.low >> 32) * (b.low & mask);
  const Exact cross2 = {product.negative, otherCross >> 32, otherCross << 32};
  product.high = (a.low >> 32) * (b.low >> 32);
  return product + lowest + cross1 + cross2;
}

// r * 2^-s to nearest, ties to even, saturated to Dst.
template <class Dst>
Dst scaled(Exact r, int s) {
  using Limits = std::numeric_limits<Dst>;
  const uint64_t limit =
      r.negative ? exact(Limits::min()).low : static_cast<uint64_t>(Limits::max());
  bool half = false;
  bool rest = false;
  for (; s > 0 && (r.high != 0 || r.low != 0 || half); --s) {
    rest = rest || half;
    half = r.low % 2 == 1;
    r.low = r.low >> 1 | r.high << 63;
    r.high >>= 1;
  }
  if (half && (rest || r.low % 2 == 1) && ++r.low == 0) ++r.high;
  for (; s < 0 && r.high == 0 && r.low != 0 && r.low <= limit; ++s) {
    r.high = r.low >> 63;
    r.low <<= 1;
  }
  const uint64_t magnitude = r.high != 0 || r.low > limit ? limit : r.low;
  return static_cast<Dst>(r.negative ? ~magnitude + 1 : magnitude);
}

// -40 .. 40 and the extremes.
inline const std::vector<int>& scaleFactors() {
  static const std::vector<int> all = [] {
    std::vector<int> factors = {std::numeric_limits<int>::min(),
                                std::numeric_limits<int>::max(),
                                -100,
                                -64,
                                -63,
                                62,
                                63,
                                64,
                                65,
                                66,
                                100};
    for (int s = -40; s <= 40; ++s) factors.push_back(s);
    return factors;
  }();
  return all;
}

}  // namespace veks::test

#endif
