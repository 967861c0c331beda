#include "peers/plain_thresholds.h"

#include <cmath>
#include <cstdlib>
#include <type_traits>

#include "veks/types.h"

namespace veks::bench::plain {
namespace {

template <class T>
constexpr bool kIsComplex = std::is_class_v<T>;

template <class R>
bool isBeyond(Below, R x, R level) {
  return x < level;
}

template <class R>
bool isBeyond(Above, R x, R level) {
  return x > level;
}

// Wide enough for the magnitude of every integer.
template <class T>
auto magnitude(T x) {
  if constexpr (kIsComplex<T>) {
    using Float = std::conditional_t<sizeof(T) == sizeof(Vek64fc), double, float>;
    const auto re = static_cast<Float>(x.re);
    const auto im = static_cast<Float>(x.im);
    return std::sqrt(re * re + im * im);
  } else if constexpr (std::is_floating_point_v<T>) {
    return std::fabs(x);
  } else {
    using Wide = std::conditional_t<(sizeof(T) < 4), Vek32s, Vek64s>;
    return std::abs(static_cast<Wide>(x));
  }
}

template <class Side, bool magnitudes, class T, class R>
T limited(T x, R level) {
  if constexpr (kIsComplex<T>) {
    const auto m = magnitude(x);
    if (!isBeyond(Side(), m, static_cast<decltype(m)>(level))) return x;
    if (m == 0) return {level, 0};
    const auto factor = static_cast<decltype(m)>(level) / m;
    if constexpr (std::is_integral_v<R>) {
      return {static_cast<R>(std::rint(static_cast<float>(x.re) * factor)),
              static_cast<R>(std::rint(static_cast<float>(x.im) * factor))};
    } else {
      return {x.re * factor, x.im * factor};
    }
  } else if constexpr (!magnitudes) {
    return isBeyond(Side(), x, level) ? level : x;
  } else if constexpr (std::is_floating_point_v<T>) {
    return isBeyond(Side(), magnitude(x), level) ? std::copysign(level, x) : x;
  } else {
    const auto m = magnitude(x);
    const T replaced = static_cast<T>(x < 0 ? -level : level);
    return isBeyond(Side(), m, static_cast<decltype(magnitude(x))>(level)) ? replaced : x;
  }
}

template <class Side, class T, class R>
T replaced(T x, R level, T value) {
  if constexpr (kIsComplex<T>) {
    const auto m = magnitude(x);
    return isBeyond(Side(), m, static_cast<decltype(magnitude(x))>(level)) ? value : x;
  } else {
    return isBeyond(Side(), x, level) ? value : x;
  }
}

template <class T, class R>
T inverse(T x, R level) {
  const R m = magnitude(x);
  const R limit = m < level ? level : m;
  if constexpr (kIsComplex<T>) {
    if (m == 0) return {1 / level, 0};
    const R factor = 1 / (m * limit);
    return {x.re * factor, -x.im * factor};
  } else {
    return std::copysign(1 / limit, x);
  }
}

}  // namespace

template <class Side, class T, class R, bool magnitudes>
void Threshold<Side, T, R, magnitudes>::separate(const T* __restrict src, T* __restrict dst,
                                                 int len, R level) {
  for (int i = 0; i < len; ++i) dst[i] = limited<Side, magnitudes>(src[i], level);
}

template <class Side, class T, class R, bool magnitudes>
void Threshold<Side, T, R, magnitudes>::inPlace(T* srcDst, int len, R level) {
  for (int i = 0; i < len; ++i) srcDst[i] = limited<Side, magnitudes>(srcDst[i], level);
}

template <class Side, class T, class R>
void ThresholdValue<Side, T, R>::separate(const T* __restrict src, T* __restrict dst, int len,
                                          R level, T value) {
  for (int i = 0; i < len; ++i) dst[i] = replaced<Side>(src[i], level, value);
}

template <class Side, class T, class R>
void ThresholdValue<Side, T, R>::inPlace(T* srcDst, int len, R level, T value) {
  for (int i = 0; i < len; ++i) srcDst[i] = replaced<Side>(srcDst[i], level, value);
}

template <class T>
void ThresholdBoth<T>::separate(const T* __restrict src, T* __restrict dst, int len, T levelLT,
                                T valueLT, T levelGT, T valueGT) {
  for (int i = 0; i < len; ++i) {
    dst[i] = src[i] < levelLT ? valueLT : src[i] > levelGT ? valueGT : src[i];
  }
}

template <class T>
void ThresholdBoth<T>::inPlace(T* srcDst, int len, T levelLT, T valueLT, T levelGT, T valueGT) {
  for (int i = 0; i < len; ++i) {
    srcDst[i] = srcDst[i] < levelLT ? valueLT : srcDst[i] > levelGT ? valueGT : srcDst[i];
  }
}

template <class T, class R>
void ThresholdInverse<T, R>::separate(const T* __restrict src, T* __restrict dst, int len,
                                      R level) {
  for (int i = 0; i < len; ++i) dst[i] = inverse(src[i], level);
}

template <class T, class R>
void ThresholdInverse<T, R>::inPlace(T* srcDst, int len, R level) {
  for (int i = 0; i < len; ++i) srcDst[i] = inverse(srcDst[i], level);
}

template struct Threshold<Below, Vek16s>;
template struct Threshold<Below, Vek16s, Vek16s, true>;
template struct ThresholdValue<Below, Vek16s>;
template struct Threshold<Below, Vek32s>;
template struct Threshold<Below, Vek32s, Vek32s, true>;
template struct ThresholdValue<Below, Vek32s>;
template struct Threshold<Below, Vek32f>;
template struct Threshold<Below, Vek32f, Vek32f, true>;
template struct ThresholdValue<Below, Vek32f>;
template struct Threshold<Below, Vek64f>;
template struct Threshold<Below, Vek64f, Vek64f, true>;
template struct ThresholdValue<Below, Vek64f>;
template struct Threshold<Below, Vek16sc, Vek16s>;
template struct ThresholdValue<Below, Vek16sc, Vek16s>;
template struct Threshold<Below, Vek32fc, Vek32f>;
template struct ThresholdValue<Below, Vek32fc, Vek32f>;
template struct Threshold<Below, Vek64fc, Vek64f>;
template struct ThresholdValue<Below, Vek64fc, Vek64f>;

template struct Threshold<Above, Vek16s>;
template struct Threshold<Above, Vek16s, Vek16s, true>;
template struct ThresholdValue<Above, Vek16s>;
template struct Threshold<Above, Vek32s>;
template struct Threshold<Above, Vek32s, Vek32s, true>;
template struct ThresholdValue<Above, Vek32s>;
template struct Threshold<Above, Vek32f>;
template struct Threshold<Above, Vek32f, Vek32f, true>;
template struct ThresholdValue<Above, Vek32f>;
template struct Threshold<Above, Vek64f>;
template struct Threshold<Above, Vek64f, Vek64f, true>;
template struct ThresholdValue<Above, Vek64f>;
template struct Threshold<Above, Vek16sc, Vek16s>;
template struct ThresholdValue<Above, Vek16sc, Vek16s>;
template struct Threshold<Above, Vek32fc, Vek32f>;
template struct ThresholdValue<Above, Vek32fc, Vek32f>;
template struct Threshold<Above, Vek64fc, Vek64f>;
template struct ThresholdValue<Above, Vek64fc, Vek64f>;

template struct ThresholdBoth<Vek16s>;
template struct ThresholdBoth<Vek32s>;
template struct ThresholdBoth<Vek32f>;
template struct ThresholdBoth<Vek64f>;
template struct ThresholdInverse<Vek32f>;
template struct ThresholdInverse<Vek64f>;
template struct ThresholdInverse<Vek32fc, Vek32f>;
template struct ThresholdInverse<Vek64fc, Vek64f>;

}  // namespace veks::bench::plain
