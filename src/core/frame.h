// The calling frame: arguments are checked in a fixed order, then one kernel runs.
//
// Order of the checks: pointers against null in the order of the arguments, the length, the
// parameters of the family. A frame is named after the shape of its kernel. Kernels take lengths as
// size_t and return vekStsOk or the warning of their family, so that an entry point ends in a jump.
#ifndef VEKS_CORE_FRAME_H
#define VEKS_CORE_FRAME_H

#include <cstddef>

#include "veks/status.h"

namespace veks {

template <class... T>
inline VekStatus checkVectors(int len, const T*... vectors) {
  if ((!vectors || ...)) return vekErrNullPtr;
  return len <= 0 ? vekErrSize : vekStsOk;
}

// kernel(val, dst, n)
template <class Kernel, class T>
inline VekStatus generate(Kernel kernel, T val, T* dst, int len) {
  const VekStatus status = checkVectors(len, dst);
  return status != vekStsOk ? status : kernel(val, dst, static_cast<size_t>(len));
}

// kernel(src, dst, n, parameters ...)
template <class Kernel, class S, class T, class... P>
inline VekStatus mapOne(Kernel kernel, const S* src, T* dst, int len, P... parameters) {
  const VekStatus status = checkVectors(len, src, dst);
  return status != vekStsOk ? status : kernel(src, dst, static_cast<size_t>(len), parameters...);
}

// The same for vectors of at least so many elements.
template <class Kernel, class S, class T, class... P>
inline VekStatus mapAtLeast(Kernel kernel, int least, const S* src, T* dst, int len,
                            P... parameters) {
  const VekStatus status = checkVectors(len, src, dst);
  if (status != vekStsOk) return status;
  return len < least ? vekErrSize : kernel(src, dst, static_cast<size_t>(len), parameters...);
}

// The same, but the length is checked first.
template <class Kernel, class S, class T>
inline VekStatus mapAtLeastLengthFirst(Kernel kernel, int least, const S* src, T* dst, int len) {
  return len < least ? vekErrSize : mapOne(kernel, src, dst, len);
}

// kernel(srcDst, n)
template <class Kernel, class T>
inline VekStatus mapInPlace(Kernel kernel, T* srcDst, int len) {
  const VekStatus status = checkVectors(len, srcDst);
  return status != vekStsOk ? status : kernel(srcDst, static_cast<size_t>(len));
}

// kernel(src1, src2, dst, n, parameters ...)
template <class Kernel, class S1, class S2, class T, class... P>
inline VekStatus mapTwo(Kernel kernel, const S1* src1, const S2* src2, T* dst, int len,
                        P... parameters) {
  const VekStatus status = checkVectors(len, src1, src2, dst);
  if (status != vekStsOk) return status;
  return kernel(src1, src2, dst, static_cast<size_t>(len), parameters...);
}

// kernel(src1, src2, dst, 2 n) on the real values that n complex ones consist of. The length is
// checked first.
template <class Kernel, class C>
inline VekStatus mapTwoParts(Kernel kernel, const C* src1, const C* src2, C* dst, int len) {
  using T = decltype(dst->re);
  if (len <= 0) return vekErrSize;
  if (!src1 || !src2 || !dst) return vekErrNullPtr;
  return kernel(reinterpret_cast<const T*>(src1), reinterpret_cast<const T*>(src2),
                reinterpret_cast<T*>(dst), 2 * static_cast<size_t>(len));
}

// kernel(src, val, dst, n, parameters ...)
template <class Kernel, class S, class C, class T, class... P>
inline VekStatus mapConstant(Kernel kernel, const S* src, C val, T* dst, int len, P... parameters) {
  const VekStatus status = checkVectors(len, src, dst);
  if (status != vekStsOk) return status;
  return kernel(src, val, dst, static_cast<size_t>(len), parameters...);
}

// kernel(src, bits, dst, n) with bits >= 0
template <class Kernel, class T>
inline VekStatus mapShift(Kernel kernel, const T* src, int bits, T* dst, int len) {
  const VekStatus status = checkVectors(len, src, dst);
  if (status != vekStsOk) return status;
  return bits < 0 ? vekErrShift : kernel(src, bits, dst, static_cast<size_t>(len));
}

// kernel(src, dst, n, parameters ...), unless the check of the parameters has given an error
template <class Kernel, class S, class T, class... P>
inline VekStatus mapChecked(Kernel kernel, const S* src, T* dst, int len, VekStatus check,
                            P... parameters) {
  const VekStatus status = checkVectors(len, src, dst);
  if (status != vekStsOk) return status;
  return check != vekStsOk ? check : kernel(src, dst, static_cast<size_t>(len), parameters...);
}

// kernel(src, n, result, parameters ...)
template <class Kernel, class S, class R, class... P>
inline VekStatus reduceOne(Kernel kernel, const S* src, int len, R* result, P... parameters) {
  const VekStatus status = checkVectors(len, src, result);
  return status != vekStsOk ? status : kernel(src, static_cast<size_t>(len), result, parameters...);
}

// kernel(src1, src2, n, result, parameters ...)
template <class Kernel, class S1, class S2, class R, class... P>
inline VekStatus reduceTwo(Kernel kernel, const S1* src1, const S2* src2, int len, R* result,
                           P... parameters) {
  const VekStatus status = checkVectors(len, src1, src2, result);
  if (status != vekStsOk) return status;
  return kernel(src1, src2, static_cast<size_t>(len), result, parameters...);
}

// kernel(src, n, result1, result2)
template <class Kernel, class S, class R1, class R2>
inline VekStatus reduceToTwo(Kernel kernel, const S* src, int len, R1* result1, R2* result2) {
  const VekStatus status = checkVectors(len, src, result1, result2);
  return status != vekStsOk ? status : kernel(src, static_cast<size_t>(len), result1, result2);
}

// kernel(src, n, result). The length is checked first.
template <class Kernel, class S, class R>
inline VekStatus reduceLengthFirst(Kernel kernel, const S* src, int len, R* result) {
  return len <= 0 ? vekErrSize : reduceOne(kernel, src, len, result);
}

}  // namespace veks

#endif
