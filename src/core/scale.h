// The scale-factor rule: the exact integer result r of an element operation becomes r * 2^-s,
// rounded to the nearest integer with ties to even, then saturated to the destination type. Every
// 32-bit s is valid. This file holds the choice of the path and the scalar form, scale-inl.h the
// vector form.
#ifndef VEKS_CORE_SCALE_H
#define VEKS_CORE_SCALE_H

#include <limits>
#include <type_traits>

namespace veks {

// The forms of the rule, told apart once per call.
enum class ScalePath {
  kSaturate,   // s = 0
  kHalve,      // s = 1, where ties need no comparison
  kRound,      // s > 1
  kZero,       // every result rounds to 0
  kShiftLeft,  // s < 0
};

// s > 0 or the shift to the left.
struct Scale {
  ScalePath path;
  int bits;
};

template <ScalePath path>
struct ScalePathTag {
  static constexpr ScalePath value = path;
};

template <class T>
inline constexpr int kWidth = 8 * static_cast<int>(sizeof(T));

// The magnitude bits of all values of a type: its results are at most 2^kMagnitude, those of an
// unsigned type less.
template <class T>
inline constexpr int kMagnitude = std::numeric_limits<T>::digits;

// The path for results of so many magnitude bits. With one more to shift than these, at most one
// half is left, which ties to 0.
template <class Dst>
constexpr Scale chooseScale(int scaleFactor, int magnitudeBits) {
  // Shifted so far, everything but 0 saturates.
  constexpr int kFarLeft = kMagnitude<Dst>;
  if (scaleFactor == 0) return {ScalePath::kSaturate, 0};
  if (scaleFactor > magnitudeBits) return {ScalePath::kZero, 0};
  if (scaleFactor == 1) return {ScalePath::kHalve, 1};
  if (scaleFactor > 1) return {ScalePath::kRound, scaleFactor};
  return {ScalePath::kShiftLeft, scaleFactor < -kFarLeft ? kFarLeft : -scaleFactor};
}

template <class Dst, class Wide>
constexpr Dst saturateTo(Wide r) {
  constexpr Wide kMax = std::numeric_limits<Dst>::max();
  constexpr Wide kMin = std::is_signed_v<Wide> ? std::numeric_limits<Dst>::min() : 0;
  return static_cast<Dst>(r > kMax ? kMax : (r < kMin ? kMin : r));
}

// r / 2^bits to nearest, ties to even, 0 < bits <= kMagnitude<Wide>. Adding the rounding constant
// to r could overflow; comparing the remainder cannot. A shift by the width is made in two steps.
template <class Wide>
constexpr Wide roundShift(Wide r, int bits) {
  const Wide half = static_cast<Wide>(Wide{1} << (bits - 1));
  const Wide quotient = static_cast<Wide>((r >> (bits - 1)) >> 1);
  const Wide remainder = static_cast<Wide>(r & (half - 1 + half));
  return static_cast<Wide>(quotient + (remainder > half - (quotient & 1) ? 1 : 0));
}

// The greatest and the least value that stay within Dst when shifted left.
template <class Dst>
constexpr Dst maxBeforeShift(int bits) {
  return static_cast<Dst>(bits == kWidth<Dst> ? 0 : std::numeric_limits<Dst>::max() >> bits);
}
template <class Dst>
constexpr Dst minBeforeShift(int bits) {
  return static_cast<Dst>(bits == kWidth<Dst> ? 0 : std::numeric_limits<Dst>::min() >> bits);
}

// 0 < bits <= kMagnitude<Dst>
template <class Dst, class Wide>
constexpr Dst shiftLeftSaturated(Wide r, int bits) {
  if (r > Wide{maxBeforeShift<Dst>(bits)}) return std::numeric_limits<Dst>::max();
  if (std::is_signed_v<Wide> && r < static_cast<Wide>(minBeforeShift<Dst>(bits))) {
    return std::numeric_limits<Dst>::min();
  }
  if (r == 0) return 0;
  return static_cast<Dst>(static_cast<std::make_unsigned_t<Wide>>(r) << bits);
}

// The whole rule for one element.
template <class Dst, class Wide>
constexpr Dst scaleTo(Wide r, Scale scale) {
  switch (scale.path) {
    case ScalePath::kSaturate:
      return saturateTo<Dst>(r);
    case ScalePath::kHalve:
    case ScalePath::kRound:
      return saturateTo<Dst>(roundShift(r, scale.bits));
    case ScalePath::kShiftLeft:
      return shiftLeftSaturated<Dst>(r, scale.bits);
    case ScalePath::kZero:
      break;
  }
  return 0;
}

}  // namespace veks

#endif
