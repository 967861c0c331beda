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
  if (((vectors == nullptr) || ...)) return vekErrNullPtr;
  return len <= 0 ? vekErrSize : vekStsOk;
}

// kernel(dst, len)
template <class T>
inline VekStatus generate(VekStatus (*kernel)(T*, size_t), T* dst, int len) {
  const VekStatus status = checkVectors(len, dst);
  return status != vekStsOk ? status : kernel(dst, static_cast<size_t>(len));
}

// kernel(constant, dst, len)
template <class T>
inline VekStatus generate(VekStatus (*kernel)(T, T*, size_t), T val, T* dst, int len) {
  const VekStatus status = checkVectors(len, dst);
  return status != vekStsOk ? status : kernel(val, dst, static_cast<size_t>(len));
}

// kernel(src, dst, len)
template <class S, class T>
inline VekStatus mapOne(VekStatus (*kernel)(const S*, T*, size_t), const S* src, T* dst, int len) {
  const VekStatus status = checkVectors(len, src, dst);
  return status != vekStsOk ? status : kernel(src, dst, static_cast<size_t>(len));
}

// kernel(src1, src2, dst, len)
template <class S1, class S2, class T>
inline VekStatus mapTwo(VekStatus (*kernel)(const S1*, const S2*, T*, size_t), const S1* src1,
                        const S2* src2, T* dst, int len) {
  const VekStatus status = checkVectors(len, src1, src2, dst);
  return status != vekStsOk ? status : kernel(src1, src2, dst, static_cast<size_t>(len));
}

// kernel(src, constant, dst, len)
template <class S, class C, class T>
inline VekStatus mapConstant(VekStatus (*kernel)(const S*, C, T*, size_t), const S* src, C val,
                             T* dst, int len) {
  const VekStatus status = checkVectors(len, src, dst);
  return status != vekStsOk ? status : kernel(src, val, dst, static_cast<size_t>(len));
}

// kernel(src, bits, dst, len) with bits >= 0
template <class T>
inline VekStatus mapShift(VekStatus (*kernel)(const T*, int, T*, size_t), const T* src, int bits,
                          T* dst, int len) {
  const VekStatus status = checkVectors(len, src, dst);
  if (status != vekStsOk) return status;
  return bits < 0 ? vekErrShift : kernel(src, bits, dst, static_cast<size_t>(len));
}

}  // namespace veks

#endif
