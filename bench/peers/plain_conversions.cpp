#include "peers/plain_conversions.h"

#include <cstddef>

#include "peers/scaling-inl.h"

namespace veks::bench::plain {
namespace {

template <class T, class S>
T converted(S x) {
  if constexpr (std::is_class_v<T>) {
    return {static_cast<Part<T>>(x.re), static_cast<Part<T>>(x.im)};
  } else if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(x);
  } else {
    return clampTo<T>(static_cast<std::common_type_t<S, int>>(x));
  }
}

constexpr int kMin24 = -(1 << 23);
constexpr int kMax24 = (1 << 23) - 1;

template <class T>
T unpacked(const unsigned char* p) {
  const uint32_t bits = p[0] | static_cast<uint32_t>(p[1]) << 8 | static_cast<uint32_t>(p[2]) << 16;
  if constexpr (std::is_signed_v<T>) {
    return static_cast<T>(bits << 8) >> 8;
  } else {
    return bits;
  }
}

void pack(int64_t r, bool isSigned, unsigned char* p) {
  const int64_t low = isSigned ? kMin24 : 0;
  const int64_t high = isSigned ? kMax24 : (1 << 24) - 1;
  const int64_t clamped = r < low ? low : r > high ? high : r;
  for (int k = 0; k < 3; ++k) p[k] = static_cast<unsigned char>(clamped >> (8 * k));
}

}  // namespace

template <class S, class T>
void Convert<S, T>::separate(const S* __restrict src, T* __restrict dst, int len) {
  for (int i = 0; i < len; ++i) dst[i] = converted<T>(src[i]);
}

template <class S, class T>
void ConvertScaled<S, T>::separate(const S* __restrict src, T* __restrict dst, int len,
                                   int scaleFactor) {
  if constexpr (std::is_floating_point_v<T>) {
    const T factor = std::ldexp(T{1}, -scaleFactor);
    for (int i = 0; i < len; ++i) dst[i] = static_cast<T>(src[i]) * factor;
  } else {
    using Wide = std::conditional_t<(sizeof(S) < 4), int32_t, int64_t>;
    storeScaled(dst, len, scaleFactor, [=](int i) { return static_cast<Wide>(src[i]); });
  }
}

template <class S, class T>
void ConvertRounded<S, T>::separate(const S* __restrict src, T* __restrict dst, int len,
                                    int rndMode, int scaleFactor) {
  using Float = Part<S>;
  const Float factor = std::ldexp(Float{1}, -scaleFactor);
  const auto put = [=](int i, auto round) {
    if constexpr (std::is_class_v<T>) {
      dst[i] = {clampTo<Part<T>>(round(src[i].re * factor)),
                clampTo<Part<T>>(round(src[i].im * factor))};
    } else {
      dst[i] = clampTo<T>(round(src[i] * factor));
    }
  };
  if (rndMode == 0) {
    VEKS_BENCH_INDEPENDENT
    for (int i = 0; i < len; ++i) put(i, [](Float x) { return std::trunc(x); });
  } else {
    VEKS_BENCH_INDEPENDENT
    for (int i = 0; i < len; ++i) put(i, [](Float x) { return std::rint(x); });
  }
}

template <class T>
void Convert24<T>::unpack(const unsigned char* __restrict src, T* __restrict dst, int len) {
  for (int i = 0; i < len; ++i, src += 3) dst[i] = unpacked<T>(src);
}

template <class T>
void Convert24<T>::unpackFloat(const unsigned char* __restrict src, float* __restrict dst,
                               int len) {
  for (int i = 0; i < len; ++i, src += 3) dst[i] = static_cast<float>(unpacked<T>(src));
}

template <class T>
void Convert24<T>::packScaled(const T* __restrict src, unsigned char* __restrict dst, int len,
                              int scaleFactor) {
  forEachScaled<T, int64_t>(len, scaleFactor, [=](int i, auto scale) {
    pack(scale(static_cast<int64_t>(src[i])), std::is_signed_v<T>, dst + ptrdiff_t{3} * i);
  });
}

template <class T>
void Convert24<T>::packFloat(const float* __restrict src, unsigned char* __restrict dst, int len,
                             int rndMode, int scaleFactor) {
  const float factor = std::ldexp(1.0F, -scaleFactor);
  for (int i = 0; i < len; ++i, dst += 3) {
    const float x = src[i] * factor;
    const float rounded = rndMode == 0 ? std::trunc(x) : std::rint(x);
    pack(clampTo<int32_t>(rounded), std::is_signed_v<T>, dst);
  }
}

template struct Convert<Vek8s, Vek16s>;
template struct Convert<Vek8u, Vek16s>;
template struct Convert<Vek16s, Vek32s>;
template struct Convert<Vek16s, Vek32f>;
template struct Convert<Vek16u, Vek32f>;
template struct Convert<Vek8s, Vek32f>;
template struct Convert<Vek8u, Vek32f>;
template struct Convert<Vek32s, Vek32f>;
template struct Convert<Vek32s, Vek64f>;
template struct Convert<Vek16s, Vek64f>;
template struct Convert<Vek32f, Vek64f>;
template struct Convert<Vek64f, Vek32f>;
template struct Convert<Vek32s, Vek16s>;
template struct Convert<Vek16s, Vek8s>;
template struct Convert<Vek16s, Vek8u>;
template struct Convert<Vek64s, Vek64f>;
template struct Convert<Vek16sc, Vek32fc>;
template struct Convert<Vek32fc, Vek64fc>;
template struct Convert<Vek64fc, Vek32fc>;
template struct Convert<Vek32sc, Vek64fc>;

template struct ConvertScaled<Vek16s, Vek32f>;
template struct ConvertScaled<Vek16s, Vek64f>;
template struct ConvertScaled<Vek32s, Vek32f>;
template struct ConvertScaled<Vek32s, Vek64f>;
template struct ConvertScaled<Vek32s, Vek16s>;
template struct ConvertScaled<Vek16s, Vek8s>;
template struct ConvertScaled<Vek64s, Vek32s>;

template struct ConvertRounded<Vek32f, Vek8s>;
template struct ConvertRounded<Vek32f, Vek8u>;
template struct ConvertRounded<Vek32f, Vek16s>;
template struct ConvertRounded<Vek32f, Vek16u>;
template struct ConvertRounded<Vek32f, Vek32s>;
template struct ConvertRounded<Vek64f, Vek8s>;
template struct ConvertRounded<Vek64f, Vek8u>;
template struct ConvertRounded<Vek64f, Vek16s>;
template struct ConvertRounded<Vek64f, Vek16u>;
template struct ConvertRounded<Vek64f, Vek32s>;
template struct ConvertRounded<Vek64f, Vek64s>;
template struct ConvertRounded<Vek32fc, Vek16sc>;

template struct Convert24<Vek32s>;
template struct Convert24<Vek32u>;

}  // namespace veks::bench::plain
