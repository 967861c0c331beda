// Samples between the types that callers have and those that filters sum in.
#ifndef VEKS_FILTER_FIR_SAMPLES_H
#define VEKS_FILTER_FIR_SAMPLES_H

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "veks/vector/conversion.h"

namespace veks {

template <class T>
struct LanesOf {
  using Lane = T;
  static constexpr size_t kLanes = 1;
};
template <class T>
struct ComplexLanes {
  using Lane = T;
  static constexpr size_t kLanes = 2;
};
template <>
struct LanesOf<Vek16sc> : ComplexLanes<Vek16s> {};
template <>
struct LanesOf<Vek32sc> : ComplexLanes<Vek32s> {};
template <>
struct LanesOf<Vek32fc> : ComplexLanes<Vek32f> {};
template <>
struct LanesOf<Vek64fc> : ComplexLanes<Vek64f> {};

constexpr int kToNearest = 1;

inline void widen(const Vek16s* src, Vek32f* dst, int n) {
  veksConvert_16s32f(src, dst, n);
}
inline void widen(const Vek16s* src, Vek64f* dst, int n) {
  veksConvert_16s64f(src, dst, n);
}
inline void widen(const Vek32s* src, Vek64f* dst, int n) {
  veksConvert_32s64f(src, dst, n);
}
inline void widen(const Vek32f* src, Vek64f* dst, int n) {
  veksConvert_32f64f(src, dst, n);
}

inline void narrow(const Vek32f* src, Vek16s* dst, int n, int scaleFactor) {
  veksConvert_32f16s_Sfs(src, dst, n, kToNearest, scaleFactor);
}
inline void narrow(const Vek64f* src, Vek16s* dst, int n, int scaleFactor) {
  veksConvert_64f16s_Sfs(src, dst, n, kToNearest, scaleFactor);
}
inline void narrow(const Vek64f* src, Vek32s* dst, int n, int scaleFactor) {
  veksConvert_64f32s_Sfs(src, dst, n, kToNearest, scaleFactor);
}
inline void narrow(const Vek64f* src, Vek32f* dst, int n, int) {
  veksConvert_64f32f(src, dst, n);
}
inline void narrow(const Vek32s* src, Vek16s* dst, int n, int scaleFactor) {
  veksConvert_32s16s_Sfs(src, dst, n, scaleFactor);
}

// convert(src, dst, n) on the lanes of n samples, in numbers that an int can tell.
template <class S, class T, class Convert>
inline void convertLanes(const S* src, T* dst, size_t n, const Convert& convert) {
  constexpr size_t kMost = size_t{1} << 30;
  const auto* from = reinterpret_cast<const typename LanesOf<S>::Lane*>(src);
  auto* to = reinterpret_cast<typename LanesOf<T>::Lane*>(dst);
  const size_t lanes = n * LanesOf<S>::kLanes;
  for (size_t i = 0; i < lanes; i += kMost) {
    convert(from + i, to + i, static_cast<int>(std::min(kMost, lanes - i)));
  }
}

// Samples as the filter keeps them.
template <class S, class T>
inline void load(const S* src, T* dst, size_t n) {
  if (n == 0) return;
  convertLanes(src, dst, n, [](auto* from, auto* to, int lanes) { widen(from, to, lanes); });
}
template <class T>
inline void load(const T* src, T* dst, size_t n) {
  if (n != 0) std::memcpy(dst, src, n * sizeof(T));
}

// Results as the caller wants them, times 2^-scaleFactor where they are integers.
template <class S, class T>
inline void store(const S* src, T* dst, size_t n, int scaleFactor) {
  if (n == 0) return;
  convertLanes(src, dst, n,
               [=](auto* from, auto* to, int lanes) { narrow(from, to, lanes, scaleFactor); });
}
template <class T>
inline void store(const T* src, T* dst, size_t n, int) {
  if (n != 0) std::memcpy(dst, src, n * sizeof(T));
}

}  // namespace veks

#endif
