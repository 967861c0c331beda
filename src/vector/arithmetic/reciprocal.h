// Division by a constant: what is checked, and the reciprocal.
#ifndef VEKS_VECTOR_ARITHMETIC_RECIPROCAL_H
#define VEKS_VECTOR_ARITHMETIC_RECIPROCAL_H

#include "core/frame.h"
#include "veks/types.h"

namespace veks {

template <class T>
inline bool isZero(T val) {
  return val == 0;
}
inline bool isZero(Vek16sc val) {
  return val.re == 0 && val.im == 0;
}
inline bool isZero(Vek32fc val) {
  return val.re == 0 && val.im == 0;
}
inline bool isZero(Vek64fc val) {
  return val.re == 0 && val.im == 0;
}

// The squares of the parts leave the range of the next wider type for no values, and both parts are
// rounded once more at most.
template <class Wide, class C>
inline C complexReciprocal(C val) {
  const Wide re = val.re;
  const Wide im = val.im;
  const Wide norm = re * re + im * im;
  return {static_cast<decltype(val.re)>(re / norm), static_cast<decltype(val.re)>(-im / norm)};
}

inline Vek32f reciprocal(Vek32f val) {
  return 1 / val;
}
inline Vek64f reciprocal(Vek64f val) {
  return 1 / val;
}
inline Vek32fc reciprocal(Vek32fc val) {
  return complexReciprocal<double>(val);
}
inline Vek64fc reciprocal(Vek64fc val) {
  return complexReciprocal<long double>(val);
}

// Multiplication by 1 / val. The constant is checked before everything else.
template <class Kernel, class T>
inline VekStatus mapReciprocal(Kernel kernel, const T* src, T val, T* dst, int len) {
  return isZero(val) ? vekErrDivByZero : mapConstant(kernel, src, reciprocal(val), dst, len);
}

// Division by val, which is checked last.
template <class Kernel, class T>
inline VekStatus mapDivisor(Kernel kernel, const T* src, T val, T* dst, int len, int scaleFactor) {
  const VekStatus status = checkVectors(len, src, dst);
  if (status != vekStsOk) return status;
  if (isZero(val)) return vekErrDivByZero;
  return kernel(src, val, dst, static_cast<size_t>(len), scaleFactor);
}

}  // namespace veks

#endif
