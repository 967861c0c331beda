// The library's functions under one name for all sample types. A status that is an error becomes
// an exception.
#ifndef VEKS_WAV_VEK_H
#define VEKS_WAV_VEK_H

#include <veks.h>

#include "error.h"

namespace veks_wav {

inline void check(VekStatus status) {
  if (status < vekStsOk) throw Error("veks", vekGetStatusString(status));
}

inline void zero(Vek32s* samples, int len) {
  check(veksZero_32s(samples, len));
}
inline void zero(Vek32f* samples, int len) {
  check(veksZero_32f(samples, len));
}
inline void zero(Vek64f* samples, int len) {
  check(veksZero_64f(samples, len));
}

// Flip keeps bit patterns, so that the floating-point forms serve any elements of their size.
inline void flip32(void* elements, int len) {
  check(veksFlip_32f_I(static_cast<Vek32f*>(elements), len));
}
inline void flip64(void* elements, int len) {
  check(veksFlip_64f_I(static_cast<Vek64f*>(elements), len));
}
inline void flip128(void* elements, int len) {
  check(veksFlip_64fc_I(static_cast<Vek64fc*>(elements), len));
}

}  // namespace veks_wav

#endif
