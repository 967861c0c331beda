// The library's statistics under one name for the floating-point sample types.
#ifndef VEKS_WAV_VEK_STATS_H
#define VEKS_WAV_VEK_STATS_H

#include "vek.h"

namespace veks_wav {

// A sample and the first place that it stands at.
template <class T>
struct Found {
  T sample;
  int place;
};

inline Found<Vek32f> largest(const Vek32f* samples, int len) {
  Found<Vek32f> found = {};
  check(veksMaxIndx_32f(samples, len, &found.sample, &found.place));
  return found;
}
inline Found<Vek64f> largest(const Vek64f* samples, int len) {
  Found<Vek64f> found = {};
  check(veksMaxIndx_64f(samples, len, &found.sample, &found.place));
  return found;
}

inline Found<Vek32f> smallest(const Vek32f* samples, int len) {
  Found<Vek32f> found = {};
  check(veksMinIndx_32f(samples, len, &found.sample, &found.place));
  return found;
}
inline Found<Vek64f> smallest(const Vek64f* samples, int len) {
  Found<Vek64f> found = {};
  check(veksMinIndx_64f(samples, len, &found.sample, &found.place));
  return found;
}

inline double mean(const Vek32f* samples, int len) {
  Vek32f result = 0;
  check(veksMean_32f(samples, len, &result, vekAlgHintAccurate));
  return static_cast<double>(result);
}
inline double mean(const Vek64f* samples, int len) {
  Vek64f result = 0;
  check(veksMean_64f(samples, len, &result));
  return result;
}

// The root of the sum of squares.
inline double norm(const Vek32f* samples, int len) {
  Vek32f result = 0;
  check(veksNorm_L2_32f(samples, len, &result));
  return static_cast<double>(result);
}
inline double norm(const Vek64f* samples, int len) {
  Vek64f result = 0;
  check(veksNorm_L2_64f(samples, len, &result));
  return result;
}

// NaN stands last.
inline void sort(Vek32f* samples, int len) {
  check(veksSortAscend_32f_I(samples, len));
}
inline void sort(Vek64f* samples, int len) {
  check(veksSortAscend_64f_I(samples, len));
}

}  // namespace veks_wav

#endif
