// Exact sums of values of single precision.
#ifndef VEKS_STATS_EXACT_TOTAL_H
#define VEKS_STATS_EXACT_TOTAL_H

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/power_of_two.h"

namespace veks {

// high + low as a double from which every rounding to 50 digits or fewer gives the same as from the
// exact sum: where the sum lies between two doubles, the odd one. With 53 digits, the nearest
// double.
inline double roundedSum(double high, double low, int digits) {
  const double sum = high + low;
  const double added = sum - high;
  const double rest = (high - (sum - added)) + (low - added);
  uint64_t bits;
  std::memcpy(&bits, &sum, sizeof(bits));
  if (digits == 53 || rest == 0 || bits % 2 == 1) return sum;
  bits = (rest > 0) == (sum > 0) ? bits + 1 : bits - 1;
  double odd;
  std::memcpy(&odd, &bits, sizeof(odd));
  return odd;
}

// A fixed-point number of 448 bits.
class ExactTotal {
 public:
  // x: a multiple of 2^-149 below 2^160, up to 2^29 times.
  void add(double x) {
    uint64_t bits;
    std::memcpy(&bits, &x, sizeof(bits));
    const uint64_t fraction = bits & ((uint64_t{1} << 52) - 1);
    const size_t exponent = static_cast<size_t>(bits >> 52 & 0x7FF);
    if (exponent == 0) return;
    const size_t position = exponent - (1023 + 52 - kBitsBelowOne);
    const int shift = static_cast<int>(position % 32);
    const uint64_t low = (fraction & kWordMask) << shift;
    const uint64_t high = (fraction >> 32 | uint64_t{1} << 20) << shift;
    const int64_t sign = x < 0 ? -1 : 1;
    int64_t* const word = words_ + position / 32;
    word[0] += sign * static_cast<int64_t>(low & kWordMask);
    word[1] += sign * static_cast<int64_t>((low >> 32) + (high & kWordMask));
    word[2] += sign * static_cast<int64_t>(high >> 32);
  }

  // To so many binary digits, at most 53, ties to even.
  double rounded(int digits) const {
    uint64_t magnitude[kWords];
    const bool negative = carry(1, magnitude) < 0;
    if (negative) carry(-1, magnitude);
    size_t top = kWords - 1;
    while (top > 1 && magnitude[top] == 0) --top;
    if (magnitude[top] == 0) return 0;
    // The 64 bits from the highest one on.
    const int shift = __builtin_clzll(magnitude[top]) - 32;
    const uint64_t next = magnitude[top - 2] << shift;
    const uint64_t window = (magnitude[top] << 32 | magnitude[top - 1]) << shift | next >> 32;
    bool rest = (next & kWordMask) != 0;
    for (size_t i = 0; i < top - 2; ++i) rest = rest || magnitude[i] != 0;
    const int dropped = 64 - digits;
    const uint64_t half = uint64_t{1} << (dropped - 1);
    const uint64_t below = window & (2 * half - 1);
    uint64_t result = window >> dropped;
    if (below > half || (below == half && (rest || result % 2 == 1))) ++result;
    const int exponent = 32 * (static_cast<int>(top) - 1) - shift + dropped - kBitsBelowOne;
    const double value = static_cast<double>(static_cast<int64_t>(result)) * powerOfTwo(exponent);
    return negative ? -value : value;
  }

 private:
  // The lowest bit of the least value stands 52 bits below its highest one.
  static constexpr int kBitsBelowOne = 224;
  static constexpr size_t kWords = 14;
  static constexpr uint64_t kWordMask = 0xFFFFFFFF;

  // The words of sign * the total, each below 2^32; returns what goes beyond the highest.
  int64_t carry(int64_t sign, uint64_t* words) const {
    int64_t beyond = 0;
    for (size_t i = 0; i < kWords; ++i) {
      beyond += sign * words_[i];
      words[i] = static_cast<uint64_t>(beyond) & kWordMask;
      beyond >>= 32;
    }
    return beyond;
  }

  // Of 32 bits each, the lowest first, with carries to be made and signs of their own.
  int64_t words_[kWords] = {};
};

}  // namespace veks

#endif
