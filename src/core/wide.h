// Integers of 128 bits for the exact totals of reductions, on every machine.
#ifndef VEKS_CORE_WIDE_H
#define VEKS_CORE_WIDE_H

#include <cstdint>
#include <limits>

#include "core/scale.h"

namespace veks {

// high * 2^64 + low, in two's complement.
struct Wide {
  int64_t high;
  uint64_t low;
};

inline Wide wide(int64_t value) {
  return {value < 0 ? -1 : 0, static_cast<uint64_t>(value)};
}

inline Wide operator+(Wide a, Wide b) {
  const uint64_t low = a.low + b.low;
  const uint64_t carry = low < a.low ? 1 : 0;
  const uint64_t high = static_cast<uint64_t>(a.high) + static_cast<uint64_t>(b.high) + carry;
  return {static_cast<int64_t>(high), low};
}

inline Wide operator-(Wide a, Wide b) {
  const uint64_t borrow = a.low < b.low ? 1 : 0;
  const uint64_t high = static_cast<uint64_t>(a.high) - static_cast<uint64_t>(b.high) - borrow;
  return {static_cast<int64_t>(high), a.low - b.low};
}

inline bool operator<(Wide a, Wide b) {
  return a.high < b.high || (a.high == b.high && a.low < b.low);
}

inline bool operator==(Wide a, Wide b) {
  return a.high == b.high && a.low == b.low;
}

// a * 2^bits, 0 <= bits < 64
inline Wide shiftLeft(Wide a, int bits) {
  if (bits == 0) return a;
  const uint64_t high = static_cast<uint64_t>(a.high) << bits | a.low >> (64 - bits);
  return {static_cast<int64_t>(high), a.low << bits};
}

// a * b < 2^127
inline Wide multiply(uint64_t a, uint64_t b) {
  constexpr uint64_t kLow = 0xFFFFFFFF;
  const uint64_t low = (a & kLow) * (b & kLow);
  const uint64_t middle = (a >> 32) * (b & kLow) + (low >> 32);
  const uint64_t otherMiddle = (a & kLow) * (b >> 32) + (middle & kLow);
  const uint64_t high = (a >> 32) * (b >> 32) + (middle >> 32) + (otherMiddle >> 32);
  return {static_cast<int64_t>(high), otherMiddle << 32 | (low & kLow)};
}

inline int64_t saturated(Wide a) {
  if (a.high == (static_cast<int64_t>(a.low) < 0 ? -1 : 0)) return static_cast<int64_t>(a.low);
  return a.high < 0 ? std::numeric_limits<int64_t>::min() : std::numeric_limits<int64_t>::max();
}

// The scale-factor rule for exact totals.
template <class Dst>
Dst scaledTotal(int64_t r, int scaleFactor) {
  return scaleTo<Dst>(r, chooseScale<Dst>(scaleFactor, 63));
}

// |r| < 2^95, Dst of 32 bits at most. All but two of the bits to shift out go first, as far as that
// is needed; the lowest bit of what is left tells whether any of them was set.
template <class Dst>
Dst scaledTotal(Wide r, int scaleFactor) {
  if (scaleFactor <= 2) return scaledTotal<Dst>(saturated(r), scaleFactor);
  const int bits = scaleFactor - 2 < 32 ? scaleFactor - 2 : 32;
  const uint64_t below = r.low & ((uint64_t{1} << bits) - 1);
  Wide quotient = {r.high >> bits, static_cast<uint64_t>(r.high) << (64 - bits) | r.low >> bits};
  quotient.low |= below != 0 ? 1 : 0;
  return scaledTotal<Dst>(saturated(quotient), scaleFactor - bits);
}

}  // namespace veks

#endif
