// The scale-factor rule: the exact integer result r of an element operation becomes r * 2^-s,
// rounded to the nearest integer with ties to even, then saturated to the destination type. Every
// 32-bit s is valid. This file holds the choice of the path and the scalar form, scale-inl.h the
// vector form.
#ifndef VEKS_CORE_SCALE_H
#define VEKS_CORE_SCALE_H

#include <limits>
#include <type_traits>

namespace veks {

// The five forms of the rule, told apart once per call.
enum class ScalePath {
  kSaturate,   // s = 0
  kRound,      // shift right with rounding
  kZero,       // every result rounds to 0
  kShiftLeft,  // shift left with saturation
  kSign        // every non-zero result saturates
};

struct Scale {
  ScalePath path;
  int bits;  // shift count of kRound and kShiftLeft, within the width of the types
};

template <ScalePath path>
struct ScalePathTag {
  static constexpr ScalePath value = path;
};

template <class T>
inline constexpr int kWidth = 8 * static_cast<int>(sizeof(T));

// The path for results of type Wide, signed, and destinations of type Dst. The magnitude of r is at
// most 2^(kWidth<Wide> - 1), so a shift by kWidth<Wide> leaves at most one half, which ties to 0.
template <class Dst, class Wide>
constexpr Scale chooseScale(int scaleFactor) {
  static_assert(std::is_signed_v<Wide>, "operations on unsigned samples have signed intermediates");
  static_assert(kWidth<Wide> > kWidth<Dst> || std::is_same_v<Wide, Dst>, "Wide holds all of Dst");
  if (scaleFactor == 0) return {ScalePath::kSaturate, 0};
  if (scaleFactor >= kWidth<Wide>) return {ScalePath::kZero, 0};
  if (scaleFactor > 0) return {ScalePath::kRound, scaleFactor};
  if (scaleFactor <= -kWidth<Dst>) return {ScalePath::kSign, 0};
  return {ScalePath::kShiftLeft, -scaleFactor};
}

template <class Dst, class Wide>
constexpr Dst saturateTo(Wide r) {
  constexpr Wide kMax = std::numeric_limits<Dst>::max();
  constexpr Wide kMin = std::numeric_limits<Dst>::min();
  return static_cast<Dst>(r > kMax ? kMax : (r < kMin ? kMin : r));
}

// r / 2^bits to nearest, ties to even, 0 < bits < kWidth<Wide>. Adding the rounding constant to r
// could overflow; comparing the remainder cannot.
template <class Wide>
constexpr Wide roundShift(Wide r, int bits) {
  const Wide half = static_cast<Wide>(Wide{1} << (bits - 1));
  const Wide quotient = static_cast<Wide>(r >> bits);
  const Wide remainder = static_cast<Wide>(r & (half - 1 + half));
  return static_cast<Wide>(quotient + (remainder > half - (quotient & 1) ? 1 : 0));
}

template <class Dst, class Wide>
constexpr Dst shiftLeftSaturated(Wide r, int bits) {
  constexpr Dst kMax = std::numeric_limits<Dst>::max();
  constexpr Dst kMin = std::numeric_limits<Dst>::min();
  if (r > Wide{kMax} >> bits) return kMax;
  if (r < Wide{kMin} >> bits) return kMin;
  return static_cast<Dst>(static_cast<std::make_unsigned_t<Wide>>(r) << bits);
}

// The whole rule for one element.
template <class Dst, class Wide>
constexpr Dst scaleTo(Wide r, Scale scale) {
  switch (scale.path) {
    case ScalePath::kSaturate:
      return saturateTo<Dst>(r);
    case ScalePath::kRound:
      return saturateTo<Dst>(roundShift(r, scale.bits));
    case ScalePath::kShiftLeft:
      return shiftLeftSaturated<Dst>(r, scale.bits);
    case ScalePath::kSign:
      if (r == 0) return 0;
      return r > 0 ? std::numeric_limits<Dst>::max() : std::numeric_limits<Dst>::min();
    case ScalePath::kZero:
      break;
  }
  return 0;
}

}  // namespace veks

#endif
