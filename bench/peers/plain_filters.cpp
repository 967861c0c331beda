#include "peers/plain_filters.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace veks::bench::plain {
namespace {

constexpr int kStrip = 64;

// sum += a * b
template <class T>
void multiplyAdd(T a, T b, T* sum) {
  if constexpr (std::is_class_v<T>) {
    sum->re += a.re * b.re - a.im * b.im;
    sum->im += a.re * b.im + a.im * b.re;
  } else {
    *sum += a * b;
  }
}

// A loop over parts: the compiler makes no sums of structures in vectors.
template <class T>
T dot(const T* a, const T* b, int len) {
  if constexpr (std::is_class_v<T>) {
    auto re = a->re * 0;
    auto im = re;
    for (int i = 0; i < len; ++i) {
      re += a[i].re * b[i].re - a[i].im * b[i].im;
      im += a[i].re * b[i].im + a[i].im * b[i].re;
    }
    return {re, im};
  } else {
    T sum = 0;
    for (int i = 0; i < len; ++i) sum += a[i] * b[i];
    return sum;
  }
}

// The sum of products at the end of the samples and taps, which are reversed.
template <class Sum, class T, class Tap>
Sum integerDot(const T* src, const Tap* reversed, int tapsLen) {
  Sum sum = 0;
  for (int k = 0; k < tapsLen; ++k) sum += static_cast<Sum>(src[k]) * static_cast<Sum>(reversed[k]);
  return sum;
}

Vek16s scaled(uint32_t sum, int shift) {
  const auto value = static_cast<int64_t>(static_cast<int32_t>(sum));
  const int64_t rounded =
      (value + (int64_t{1} << (shift - 1)) - 1 + ((value >> shift) & 1)) >> shift;
  return static_cast<Vek16s>(std::clamp<int64_t>(rounded, std::numeric_limits<Vek16s>::min(),
                                                 std::numeric_limits<Vek16s>::max()));
}

}  // namespace

template <class T>
void Filters<T>::byTap(const T* __restrict src, T* __restrict dst, int len, const T* reversed,
                       int tapsLen) {
  std::fill_n(dst, len, T{});
  for (int k = 0; k < tapsLen; ++k) {
    const T tap = reversed[tapsLen - 1 - k];
    const T* const delayed = src - k;
    for (int n = 0; n < len; ++n) multiplyAdd(tap, delayed[n], &dst[n]);
  }
}

template <class T>
void Filters<T>::byResult(const T* src, T* dst, int len, const T* reversed, int tapsLen) {
  for (int n = 0; n < len; ++n) dst[n] = dot(src + n - tapsLen + 1, reversed, tapsLen);
}

template <class T>
void Filters<T>::byStrip(const T* src, T* dst, int len, const T* reversed, int tapsLen) {
  int n = 0;
  for (; n + kStrip <= len; n += kStrip) {
    T sums[kStrip] = {};
    const T* const oldest = src + n - tapsLen + 1;
    for (int k = 0; k < tapsLen; ++k) {
      for (int i = 0; i < kStrip; ++i) multiplyAdd(reversed[k], oldest[k + i], &sums[i]);
    }
    std::copy_n(sums, kStrip, dst + n);
  }
  byResult(src + n, dst + n, len - n, reversed, tapsLen);
}

template <class T>
void Filters<T>::one(T src, T* dst, const T* reversed, int tapsLen, T* delayLine, int* index) {
  delayLine[*index] = delayLine[*index + tapsLen] = src;
  *index = *index + 1 == tapsLen ? 0 : *index + 1;
  *dst = dot(delayLine + *index, reversed, tapsLen);
}

template struct Filters<Vek32f>;
template struct Filters<Vek32fc>;
template struct Filters<Vek64f>;
template struct Filters<Vek64fc>;

void filter16sWithFloats(const Vek16s* src, Vek16s* dst, int len, const Vek32f* reversed,
                         int tapsLen) {
  for (int n = 0; n < len; ++n) {
    const float sum = integerDot<float>(src + n - tapsLen + 1, reversed, tapsLen);
    dst[n] = static_cast<Vek16s>(std::lrint(std::clamp(sum, -32768.0F, 32767.0F)));
  }
}

void filter16sWithIntegers(const Vek16s* src, Vek16s* dst, int len, const Vek32s* reversed,
                           int tapsLen, int shift) {
  for (int n = 0; n < len; ++n)
    dst[n] = scaled(integerDot<uint32_t>(src + n - tapsLen + 1, reversed, tapsLen), shift);
}

void filter16sWithShorts(const Vek16s* src, Vek16s* dst, int len, const Vek16s* reversed,
                         int tapsLen, int shift) {
  for (int n = 0; n < len; ++n) {
    // As int, so that the compiler finds the instruction that sums products of 16 bits in pairs.
    const int sum = integerDot<int>(src + n - tapsLen + 1, reversed, tapsLen);
    dst[n] = scaled(static_cast<uint32_t>(sum), shift);
  }
}

void multiplySpectra(const Vek32fc* __restrict src, Vek32fc* __restrict srcDst, int len) {
  for (int i = 0; i < len; ++i) {
    const Vek32fc x = srcDst[i];
    srcDst[i] = {x.re * src[i].re - x.im * src[i].im, x.re * src[i].im + x.im * src[i].re};
  }
}

}  // namespace veks::bench::plain
