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

// Samples of full scale, integers of 32 bits or -1 .. 1.
inline void convert(const Vek32s* from, Vek32f* to, int len) {
  check(veksConvert_32s32f_Sfs(from, to, len, 31));
}
inline void convert(const Vek32s* from, Vek64f* to, int len) {
  check(veksConvert_32s64f_Sfs(from, to, len, 31));
}
inline void convert(const Vek32f* from, Vek64f* to, int len) {
  check(veksConvert_32f64f(from, to, len));
}
inline void convert(const Vek64f* from, Vek32f* to, int len) {
  check(veksConvert_64f32f(from, to, len));
}

// Samples of -1 .. 1 into integers of so many bits, rounded to nearest.
inline void convertToBits(const Vek32f* from, Vek32s* to, int len, int bits) {
  check(veksConvert_32f32s_Sfs(from, to, len, 1, 1 - bits));
}
inline void convertToBits(const Vek64f* from, Vek32s* to, int len, int bits) {
  check(veksConvert_64f32s_Sfs(from, to, len, 1, 1 - bits));
}

inline void multiply(Vek32f* samples, int len, Vek32f factor) {
  check(veksMulC_32f_I(factor, samples, len));
}
inline void multiply(Vek64f* samples, int len, Vek64f factor) {
  check(veksMulC_64f_I(factor, samples, len));
}

inline void add(const Vek32f* samples, Vek32f* sum, int len) {
  check(veksAdd_32f_I(samples, sum, len));
}
inline void add(const Vek64f* samples, Vek64f* sum, int len) {
  check(veksAdd_64f_I(samples, sum, len));
}

inline void clip(Vek32f* samples, int len, Vek32f low, Vek32f high) {
  check(veksThreshold_LTValGTVal_32f_I(samples, len, low, low, high, high));
}
inline void clip(Vek64f* samples, int len, Vek64f low, Vek64f high) {
  check(veksThreshold_LTValGTVal_64f_I(samples, len, low, low, high, high));
}

inline void shiftLeft(Vek32s* samples, int len, int bits) {
  check(veksLShiftC_32s_I(bits, samples, len));
}

// Blocks of waves that start at the phase, which is moved to the next block.
inline void makeTone(Vek64f* samples, int len, Vek64f magnitude, Vek64f frequency, Vek64f& phase) {
  check(veksTone_Direct_64f(samples, len, magnitude, frequency, &phase, vekAlgHintAccurate));
}
inline void makeTriangle(Vek64f* samples, int len, Vek64f magnitude, Vek64f frequency,
                         Vek64f& phase) {
  check(veksTriangle_Direct_64f(samples, len, magnitude, frequency, 0, &phase));
}

// values[k] * conj(values[k]) of a spectrum in the format Pack: its squares, and zeros as imaginary
// parts.
inline void multiplyByConjugate(Vek64f* values, int len) {
  check(veksMulPackConj_64f_I(values, values, len));
}

// Transforms of 2^order real samples into spectra in the format Pack, in place.
class RealTransform {
 public:
  explicit RealTransform(int order) {
    constexpr int kNoFactor = 8;
    check(veksFFTInitAlloc_R_64f(&context_, order, kNoFactor, vekAlgHintNone));
  }
  RealTransform(const RealTransform&) = delete;
  RealTransform& operator=(const RealTransform&) = delete;
  ~RealTransform() {
    veksFFTFree_R_64f(context_);
  }

  // Of the work buffer, in bytes.
  size_t bufferSize() const {
    int size = 0;
    check(veksFFTGetBufSize_R_64f(context_, &size));
    return static_cast<size_t>(size);
  }
  void run(Vek64f* values, Vek8u* buffer) const {
    check(veksFFTFwd_RToPack_64f(values, values, context_, buffer));
  }

 private:
  VeksFFTContext_R_64f* context_ = nullptr;
};

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
