#include "peers/plain_reductions.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <type_traits>

#include "veks/types.h"

namespace veks::bench::plain {
namespace {

template <class T>
bool isBeyond(Less /*side*/, T a, T b) {
  return a < b;
}
template <class T>
bool isBeyond(Greater /*side*/, T a, T b) {
  return a > b;
}

template <class T>
T difference(const T* src, int i) {
  return src[i];
}
int difference(const Vek16s* src, int i) {
  return src[i];
}
template <class T>
T difference(const T* src1, const T* src2, int i) {
  if constexpr (std::is_class_v<T>) {
    return {src1[i].re - src2[i].re, src1[i].im - src2[i].im};
  } else {
    return src1[i] - src2[i];
  }
}
int difference(const Vek16s* src1, const Vek16s* src2, int i) {
  return src1[i] - src2[i];
}

// Squares of differences of 16-bit integers fit an unsigned int.
template <class T>
auto square(T x) {
  if constexpr (std::is_class_v<T>) {
    return x.re * x.re + x.im * x.im;
  } else if constexpr (std::is_integral_v<T>) {
    return static_cast<unsigned>(x) * static_cast<unsigned>(x);
  } else {
    return x * x;
  }
}

template <class T>
auto magnitude(T x) {
  if constexpr (std::is_class_v<T>) {
    return std::sqrt(square(x));
  } else {
    return std::abs(x);
  }
}

template <class Sum, class Term>
Sum sumOf(int len, const Term& term) {
  Sum sum = 0;
  for (int i = 0; i < len; ++i) sum += term(i);
  return sum;
}

template <class T>
using SumOf = std::conditional_t<std::is_integral_v<T>, int64_t, T>;

// Roots are taken of the largest square, not of every one.
template <class R, class... T>
void norm(NormInf /*kind*/, int len, R* result, const T*... src) {
  if constexpr ((std::is_class_v<T> && ...)) {
    R largest = 0;
    for (int i = 0; i < len; ++i) largest = std::max(largest, square(difference(src..., i)));
    *result = std::sqrt(largest);
  } else {
    auto largest = magnitude(difference(src..., 0));
    for (int i = 1; i < len; ++i) largest = std::max(largest, magnitude(difference(src..., i)));
    *result = static_cast<R>(largest);
  }
}

template <class R, class... T>
void norm(NormL1 /*kind*/, int len, R* result, const T*... src) {
  using Term = decltype(magnitude(difference(src..., 0)));
  *result = static_cast<R>(
      sumOf<SumOf<Term>>(len, [=](int i) { return magnitude(difference(src..., i)); }));
}

template <class R, class... T>
void norm(NormL2 /*kind*/, int len, R* result, const T*... src) {
  using Term = decltype(square(difference(src..., 0)));
  const auto sum = sumOf<SumOf<Term>>(len, [=](int i) { return square(difference(src..., i)); });
  *result = static_cast<R>(std::sqrt(sum));
}

}  // namespace

template <class Side, class T>
void Extreme<Side, T>::value(const T* src, int len, T* result) {
  T extreme = src[0];
  for (int i = 1; i < len; ++i) extreme = isBeyond(Side(), src[i], extreme) ? src[i] : extreme;
  *result = extreme;
}

template <class Side, class T>
void Extreme<Side, T>::valueAndIndex(const T* src, int len, T* result, int* index) {
  T extreme = src[0];
  int at = 0;
  for (int i = 1; i < len; ++i) {
    if (isBeyond(Side(), src[i], extreme)) {
      extreme = src[i];
      at = i;
    }
  }
  *result = extreme;
  *index = at;
}

template <class Side, class T>
void Extreme<Side, T>::ofEvery(const T* __restrict src, T* __restrict srcDst, int len) {
  for (int i = 0; i < len; ++i) {
    srcDst[i] = isBeyond(Side(), src[i], srcDst[i]) ? src[i] : srcDst[i];
  }
}

template <class T>
void minMax(const T* src, int len, T* min, T* max) {
  T least = src[0];
  T greatest = src[0];
  for (int i = 1; i < len; ++i) {
    least = std::min(least, src[i]);
    greatest = std::max(greatest, src[i]);
  }
  *min = least;
  *max = greatest;
}

template <class Kind, class T, class R>
void Norm<Kind, T, R>::own(const T* src, int len, R* result) {
  norm(Kind(), len, result, src);
}

template <class Kind, class T, class R>
void Norm<Kind, T, R>::ofDifference(const T* src1, const T* src2, int len, R* result) {
  norm(Kind(), len, result, src1, src2);
}

template struct Extreme<Less, Vek16s>;
template struct Extreme<Less, Vek32s>;
template struct Extreme<Less, Vek32f>;
template struct Extreme<Less, Vek64f>;
template struct Extreme<Greater, Vek16s>;
template struct Extreme<Greater, Vek32s>;
template struct Extreme<Greater, Vek32f>;
template struct Extreme<Greater, Vek64f>;

template void minMax(const Vek8u* src, int len, Vek8u* min, Vek8u* max);
template void minMax(const Vek16s* src, int len, Vek16s* min, Vek16s* max);
template void minMax(const Vek32s* src, int len, Vek32s* min, Vek32s* max);
template void minMax(const Vek32f* src, int len, Vek32f* min, Vek32f* max);
template void minMax(const Vek64f* src, int len, Vek64f* min, Vek64f* max);

template struct Norm<NormInf, Vek16s, Vek32f>;
template struct Norm<NormL1, Vek16s, Vek32f>;
template struct Norm<NormL2, Vek16s, Vek32f>;
template struct Norm<NormInf, Vek32f, Vek32f>;
template struct Norm<NormL1, Vek32f, Vek32f>;
template struct Norm<NormL2, Vek32f, Vek32f>;
template struct Norm<NormInf, Vek64f, Vek64f>;
template struct Norm<NormL1, Vek64f, Vek64f>;
template struct Norm<NormL2, Vek64f, Vek64f>;
template struct Norm<NormInf, Vek32fc, Vek32f>;
template struct Norm<NormL1, Vek32fc, Vek32f>;
template struct Norm<NormL2, Vek32fc, Vek32f>;
template struct Norm<NormInf, Vek64fc, Vek64f>;
template struct Norm<NormL1, Vek64fc, Vek64f>;
template struct Norm<NormL2, Vek64fc, Vek64f>;

}  // namespace veks::bench::plain
