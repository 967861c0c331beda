#include "peers/trailing_loops.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "veks/types.h"

namespace veks::bench::plain {
namespace {

template <class T>
T apply(LimitBelow, T x, T level) {
  return x < level ? level : x;
}

template <class T>
T apply(LimitAbove, T x, T level) {
  return x > level ? level : x;
}

template <class T>
T apply(ReplaceBelow, T x, T level, T value) {
  return x < level ? value : x;
}

template <class T>
T apply(ReplaceAbove, T x, T level, T value) {
  return x > level ? value : x;
}

template <class T>
T apply(ReplaceOutside, T x, T levelLT, T valueLT, T levelGT, T valueGT) {
  return x < levelLT ? valueLT : (x > levelGT ? valueGT : x);
}

template <class T>
T apply(RaiseMagnitude, T x, T level) {
  return std::abs(x) < level ? static_cast<T>(x < 0 ? -level : level) : x;
}

template <class T>
T apply(LowerMagnitude, T x, T level) {
  return std::abs(x) > level ? static_cast<T>(x < 0 ? -level : level) : x;
}

template <class T>
T apply(Invert, T x, T level) {
  return 1 / (std::fabs(x) < level ? std::copysign(level, x) : x);
}

template <class T>
T apply(Normalise, T x, T sub, T div) {
  return (x - sub) / div;
}

// A scale factor becomes the scale before the loop.
Vek16s apply(Normalise, Vek16s x, Vek16s sub, int div, double scale) {
  const double result = std::nearbyint((x - sub) / static_cast<double>(div) * scale);
  return static_cast<Vek16s>(std::clamp(result, -32768.0, 32767.0));
}

Vek16sc apply(Normalise, Vek16sc x, Vek16sc sub, int div, double scale) {
  return {apply(Normalise(), x.re, sub.re, div, scale),
          apply(Normalise(), x.im, sub.im, div, scale)};
}

Vek32fc apply(Normalise, Vek32fc x, Vek32fc sub, Vek32f div) {
  return {(x.re - sub.re) / div, (x.im - sub.im) / div};
}

Vek64fc apply(Normalise, Vek64fc x, Vek64fc sub, Vek64f div) {
  return {(x.re - sub.re) / div, (x.im - sub.im) / div};
}

// The types in which plain code computes with complex values.
double square(Vek32fc x) {
  return static_cast<double>(x.re) * x.re + static_cast<double>(x.im) * x.im;
}

double square(Vek64fc x) {
  return x.re * x.re + x.im * x.im;
}

double square(Vek16sc x) {
  return static_cast<double>(x.re) * x.re + static_cast<double>(x.im) * x.im;
}

double square(double level) {
  return level * level;
}

Vek16sc rescale(Vek16sc x, Vek16s level) {
  const double scale = level / std::sqrt(square(x));
  return {static_cast<Vek16s>(std::nearbyint(x.re * scale)),
          static_cast<Vek16s>(std::nearbyint(x.im * scale))};
}

Vek32fc rescale(Vek32fc x, Vek32f level) {
  const double scale = level / std::sqrt(square(x));
  return {static_cast<Vek32f>(x.re * scale), static_cast<Vek32f>(x.im * scale)};
}

Vek64fc rescale(Vek64fc x, Vek64f level) {
  const double magnitude = std::sqrt(square(x));
  return {x.re / magnitude * level, x.im / magnitude * level};
}

// What plain code does for a zero: it has no phase.
template <class C, class T>
C limitBelow(C x, T level) {
  if (!(square(x) < square(level))) return x;
  return square(x) == 0 ? C{level, 0} : rescale(x, level);
}

template <class C, class T>
C limitAbove(C x, T level) {
  return square(x) > square(level) ? rescale(x, level) : x;
}

template <class C, class T>
C replaceBelow(C x, T level, C value) {
  return square(x) < square(level) ? value : x;
}

template <class C, class T>
C replaceAbove(C x, T level, C value) {
  return square(x) > square(level) ? value : x;
}

#define VEKS_BENCH_COMPLEX(C, T)                 \
  C apply(LimitBelow, C x, T level) {            \
    return limitBelow(x, level);                 \
  }                                              \
  C apply(LimitAbove, C x, T level) {            \
    return limitAbove(x, level);                 \
  }                                              \
  C apply(ReplaceBelow, C x, T level, C value) { \
    return replaceBelow(x, level, value);        \
  }                                              \
  C apply(ReplaceAbove, C x, T level, C value) { \
    return replaceAbove(x, level, value);        \
  }
VEKS_BENCH_COMPLEX(Vek16sc, Vek16s)
VEKS_BENCH_COMPLEX(Vek32fc, Vek32f)
VEKS_BENCH_COMPLEX(Vek64fc, Vek64f)

Vek32fc apply(Invert, Vek32fc x, Vek32f level) {
  const double magnitudes = square(x);
  const bool isBelow = magnitudes < square(level);
  const double scale = 1 / (isBelow ? std::sqrt(magnitudes) * level : magnitudes);
  return {static_cast<Vek32f>(x.re * scale), -static_cast<Vek32f>(x.im * scale)};
}

Vek64fc apply(Invert, Vek64fc x, Vek64f level) {
  const double magnitudes = square(x);
  if (magnitudes >= square(level)) return {x.re / magnitudes, -x.im / magnitudes};
  const double magnitude = std::sqrt(magnitudes);
  const double inverse = 1 / level;
  return {x.re / magnitude * inverse, -x.im / magnitude * inverse};
}

}  // namespace

template <class Op, class T, class... C>
void Trailing<Op, T, C...>::separate(const T* __restrict src, T* __restrict dst, int len,
                                     C... constants) {
  for (int i = 0; i < len; ++i) dst[i] = apply(Op(), src[i], constants...);
}

template <class Op, class T, class... C>
void Trailing<Op, T, C...>::inPlace(T* srcDst, int len, C... constants) {
  for (int i = 0; i < len; ++i) srcDst[i] = apply(Op(), srcDst[i], constants...);
}

#define VEKS_BENCH_REAL_LOOPS(T)                           \
  template struct Trailing<LimitBelow, T, T>;              \
  template struct Trailing<LimitAbove, T, T>;              \
  template struct Trailing<ReplaceBelow, T, T, T>;         \
  template struct Trailing<ReplaceAbove, T, T, T>;         \
  template struct Trailing<ReplaceOutside, T, T, T, T, T>; \
  template struct Trailing<RaiseMagnitude, T, T>;          \
  template struct Trailing<LowerMagnitude, T, T>;
VEKS_BENCH_REAL_LOOPS(Vek16s)
VEKS_BENCH_REAL_LOOPS(Vek32s)
VEKS_BENCH_REAL_LOOPS(Vek32f)
VEKS_BENCH_REAL_LOOPS(Vek64f)

#define VEKS_BENCH_COMPLEX_LOOPS(C, T)             \
  template struct Trailing<LimitBelow, C, T>;      \
  template struct Trailing<LimitAbove, C, T>;      \
  template struct Trailing<ReplaceBelow, C, T, C>; \
  template struct Trailing<ReplaceAbove, C, T, C>;
VEKS_BENCH_COMPLEX_LOOPS(Vek16sc, Vek16s)
VEKS_BENCH_COMPLEX_LOOPS(Vek32fc, Vek32f)
VEKS_BENCH_COMPLEX_LOOPS(Vek64fc, Vek64f)

template struct Trailing<Invert, Vek32f, Vek32f>;
template struct Trailing<Invert, Vek64f, Vek64f>;
template struct Trailing<Invert, Vek32fc, Vek32f>;
template struct Trailing<Invert, Vek64fc, Vek64f>;

template struct Trailing<Normalise, Vek32f, Vek32f, Vek32f>;
template struct Trailing<Normalise, Vek64f, Vek64f, Vek64f>;
template struct Trailing<Normalise, Vek32fc, Vek32fc, Vek32f>;
template struct Trailing<Normalise, Vek64fc, Vek64fc, Vek64f>;
template struct Trailing<Normalise, Vek16s, Vek16s, int, double>;
template struct Trailing<Normalise, Vek16sc, Vek16sc, int, double>;

}  // namespace veks::bench::plain
