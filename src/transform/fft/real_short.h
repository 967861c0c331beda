// Transforms of 2 to 16 real values: straight-line code, which takes less time than the call of a
// kernel.
#ifndef VEKS_TRANSFORM_FFT_REAL_SHORT_H
#define VEKS_TRANSFORM_FFT_REAL_SHORT_H

#include <cstddef>

namespace veks {

constexpr int kShortRealOrder = 4;

// cos(pi k / 8)
template <class T>
constexpr T kCosines[] = {1, static_cast<T>(0.92387953251128675613),
                          static_cast<T>(0.70710678118654752440),
                          static_cast<T>(0.38268343236508977173)};

// Frequencies of eight real values. For the way back, all but 0 and 4 are doubled.
template <class T>
struct SpectrumOf8 {
  T re0;
  T re4;
  T re1;
  T im1;
  T re2;
  T im2;
  T re3;
  T im3;
};

// Of src[0], src[step] ...
template <size_t step, class T>
inline SpectrumOf8<T> spectrumOf8(const T* src) {
  const T sum04 = src[0] + src[4 * step];
  const T sum15 = src[step] + src[5 * step];
  const T sum26 = src[2 * step] + src[6 * step];
  const T sum37 = src[3 * step] + src[7 * step];
  const T difference04 = src[0] - src[4 * step];
  const T difference15 = src[step] - src[5 * step];
  const T difference26 = src[2 * step] - src[6 * step];
  const T difference37 = src[3 * step] - src[7 * step];
  const T re = kCosines<T>[2] * (difference15 - difference37);
  const T im = kCosines<T>[2] * (difference15 + difference37);
  const T even = sum04 + sum26;
  const T odd = sum15 + sum37;
  return {even + odd,    even - odd,    difference04 + re, -difference26 - im,
          sum04 - sum26, sum37 - sum15, difference04 - re, difference26 - im};
}

// To dst[0], dst[step] ...
template <size_t step, class T>
inline void storeSignalOf8(const SpectrumOf8<T>& x, T* dst) {
  const T sum = x.re0 + x.re4;
  const T difference = x.re0 - x.re4;
  const T re = x.re1 + x.re3;
  const T im = x.im3 - x.im1;
  const T g = x.re1 - x.re3;
  const T h = x.im1 + x.im3;
  const T turned1 = kCosines<T>[2] * (g - h);
  const T turned3 = kCosines<T>[2] * (g + h);
  const T even0 = sum + x.re2;
  const T even2 = sum - x.re2;
  const T odd1 = difference - x.im2;
  const T odd3 = difference + x.im2;
  dst[0] = even0 + re;
  dst[step] = odd1 + turned1;
  dst[2 * step] = even2 + im;
  dst[3 * step] = odd3 - turned3;
  dst[4 * step] = even0 - re;
  dst[5 * step] = odd1 - turned1;
  dst[6 * step] = even2 - im;
  dst[7 * step] = odd3 + turned3;
}

template <class T>
inline void storeSpectrumOf16(T factor, const SpectrumOf8<T>& even, const SpectrumOf8<T>& odd,
                              T* dst) {
  const auto store = [=](size_t k, T eRe, T eIm, T oRe, T oIm) {
    const T c = kCosines<T>[k];
    const T s = kCosines<T>[4 - k];
    const T re = c * oRe + s * oIm;
    const T im = c * oIm - s * oRe;
    dst[2 * k] = factor * (eRe + re);
    dst[2 * k + 1] = factor * (eIm + im);
    dst[16 - 2 * k] = factor * (eRe - re);
    dst[17 - 2 * k] = factor * (im - eIm);
  };
  dst[0] = factor * (even.re0 + odd.re0);
  dst[1] = factor * (even.re0 - odd.re0);
  store(1, even.re1, even.im1, odd.re1, odd.im1);
  store(2, even.re2, even.im2, odd.re2, odd.im2);
  store(3, even.re3, even.im3, odd.re3, odd.im3);
  dst[8] = factor * even.re4;
  dst[9] = -factor * odd.re4;
}

// The spectrum of 2^order values in Perm format, times the factor; 1 <= order <= 4. dst may be src.
template <class T>
inline void shortToPerm(int order, T factor, const T* src, T* dst) {
  if (order == 4) {
    return storeSpectrumOf16(factor, spectrumOf8<2>(src), spectrumOf8<2>(src + 1), dst);
  }
  if (order == 3) {
    const SpectrumOf8<T> x = spectrumOf8<1>(src);
    dst[0] = factor * x.re0;
    dst[1] = factor * x.re4;
    dst[2] = factor * x.re1;
    dst[3] = factor * x.im1;
    dst[4] = factor * x.re2;
    dst[5] = factor * x.im2;
    dst[6] = factor * x.re3;
    dst[7] = factor * x.im3;
    return;
  }
  const T x0 = src[0];
  const T x1 = src[1];
  if (order == 2) {
    const T x2 = src[2];
    const T x3 = src[3];
    const T even = x0 + x2;
    const T odd = x1 + x3;
    dst[0] = factor * (even + odd);
    dst[1] = factor * (even - odd);
    dst[2] = factor * (x0 - x2);
    dst[3] = factor * (x3 - x1);
    return;
  }
  dst[0] = factor * (x0 + x1);
  dst[1] = factor * (x0 - x1);
}

// The signal of a spectrum, times the factor: `first` and `middle` are its real values, pairs[2 k]
// and on the others, 0 < k < N/2. dst may be pairs.
template <class T>
inline void shortFromPairs(int order, T factor, T first, T middle, const T* pairs, T* dst) {
  const T sum = factor * (first + middle);
  const T difference = factor * (first - middle);
  const T twice = 2 * factor;
  if (order == 4) {
    SpectrumOf8<T> even = {sum, twice * pairs[8], 0, 0, 0, 0, 0, 0};
    SpectrumOf8<T> odd = {difference, -twice * pairs[9], 0, 0, 0, 0, 0, 0};
    const auto split = [=](size_t k, T* eRe, T* eIm, T* oRe, T* oIm) {
      const T re = twice * (pairs[2 * k] - pairs[16 - 2 * k]);
      const T im = twice * (pairs[2 * k + 1] + pairs[17 - 2 * k]);
      const T c = kCosines<T>[k];
      const T s = kCosines<T>[4 - k];
      *eRe = twice * (pairs[2 * k] + pairs[16 - 2 * k]);
      *eIm = twice * (pairs[2 * k + 1] - pairs[17 - 2 * k]);
      *oRe = c * re - s * im;
      *oIm = c * im + s * re;
    };
    split(1, &even.re1, &even.im1, &odd.re1, &odd.im1);
    split(2, &even.re2, &even.im2, &odd.re2, &odd.im2);
    split(3, &even.re3, &even.im3, &odd.re3, &odd.im3);
    storeSignalOf8<2>(even, dst);
    storeSignalOf8<2>(odd, dst + 1);
    return;
  }
  if (order == 3) {
    return storeSignalOf8<1>(
        SpectrumOf8<T>{factor * first, factor * middle, twice * pairs[2], twice * pairs[3],
                       twice * pairs[4], twice * pairs[5], twice * pairs[6], twice * pairs[7]},
        dst);
  }
  if (order == 2) {
    const T re = twice * pairs[2];
    const T im = twice * pairs[3];
    dst[0] = sum + re;
    dst[1] = difference - im;
    dst[2] = sum - re;
    dst[3] = difference + im;
    return;
  }
  dst[0] = sum;
  dst[1] = difference;
}

}  // namespace veks

#endif
