// How the plain loops store results in integers.
#ifndef VEKS_BENCH_PEERS_SCALING_INL_H
#define VEKS_BENCH_PEERS_SCALING_INL_H

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "veks/types.h"

// Before a loop whose steps do not depend on each other.
#ifdef __clang__
#define VEKS_BENCH_INDEPENDENT _Pragma("clang loop vectorize(assume_safety)")
#else
#define VEKS_BENCH_INDEPENDENT _Pragma("GCC ivdep")
#endif

namespace veks::bench::plain {
namespace {

// The type of the parts of a complex type, of other types themselves.
template <class T, class = void>
struct PartOf {
  using Type = T;
};
template <class T>
struct PartOf<T, std::enable_if_t<std::is_class_v<T>>> {
  using Type = decltype(T::re);
};
template <class T>
using Part = typename PartOf<T>::Type;

template <class Wide>
struct Parts {
  Wide re;
  Wide im;
};

template <class T, class Wide>
T clampTo(Wide r) {
  constexpr T kMin = std::numeric_limits<T>::min();
  constexpr T kMax = std::numeric_limits<T>::max();
  if constexpr (std::is_floating_point_v<Wide> &&
                std::numeric_limits<T>::digits > std::numeric_limits<Wide>::digits) {
    // The largest integer is no floating-point value; the next one is.
    constexpr Wide kEnd = -static_cast<Wide>(kMin);
    return r >= kEnd ? kMax : r < -kEnd ? kMin : static_cast<T>(r);
  } else {
    constexpr Wide kHigh = static_cast<Wide>(kMax);
    r = r > kHigh ? kHigh : r;
    if constexpr (!std::is_same_v<Wide, uint32_t>) {
      constexpr Wide kLow = static_cast<Wide>(kMin);
      r = r < kLow ? kLow : r;
    }
    return static_cast<T>(r);
  }
}

// Calls body(i, scale) for all elements, where scale(r) makes a T of an exact result r.
template <class T, class Wide, class Body>
void forEachScaled(int len, int scaleFactor, Body body) {
  if constexpr (std::is_floating_point_v<Wide>) {
    const Wide factor = std::ldexp(Wide{1}, -scaleFactor);
    const auto scale = [factor](Wide r) { return clampTo<T>(std::rint(r * factor)); };
    VEKS_BENCH_INDEPENDENT
    for (int i = 0; i < len; ++i) body(i, scale);
  } else if (scaleFactor == 0) {
    const auto scale = [](Wide r) { return clampTo<T>(r); };
    VEKS_BENCH_INDEPENDENT
    for (int i = 0; i < len; ++i) body(i, scale);
  } else if (scaleFactor > 0) {
    const Wide addend = (Wide{1} << (scaleFactor - 1)) - 1;
    const auto scale = [=](Wide r) {
      return clampTo<T>((r + addend + ((r >> scaleFactor) & 1)) >> scaleFactor);
    };
    VEKS_BENCH_INDEPENDENT
    for (int i = 0; i < len; ++i) body(i, scale);
  } else {
    // What saturates before the shift saturates after it.
    using Shifted = std::conditional_t<(sizeof(T) < sizeof(Wide)), Wide, int64_t>;
    const Shifted factor = Shifted{1} << -scaleFactor;
    const auto scale = [factor](Wide r) {
      return clampTo<T>(static_cast<Shifted>(clampTo<T>(r)) * factor);
    };
    VEKS_BENCH_INDEPENDENT
    for (int i = 0; i < len; ++i) body(i, scale);
  }
}

template <class T, class Result, class Scale>
void put(T& element, const Result& r, Scale scale) {
  if constexpr (std::is_class_v<T>) {
    element = {scale(r.re), scale(r.im)};
  } else {
    element = scale(r);
  }
}

template <class Result>
struct WideOf {
  using Type = Result;
};
template <class Wide>
struct WideOf<Parts<Wide>> {
  using Type = Wide;
};

// dst[i] = exact(i), scaled.
template <class T, class Exact>
void storeScaled(T* dst, int len, int scaleFactor, Exact exact) {
  using Wide = typename WideOf<decltype(exact(0))>::Type;
  forEachScaled<Part<T>, Wide>(len, scaleFactor,
                               [=](int i, auto scale) { put(dst[i], exact(i), scale); });
}

}  // namespace
}  // namespace veks::bench::plain

#endif
