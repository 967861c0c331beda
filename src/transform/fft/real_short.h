// Transforms of 2, 4 and 8 real values: straight-line code, which takes less time than the call of
// a kernel.
#ifndef VEKS_TRANSFORM_FFT_REAL_SHORT_H
#define VEKS_TRANSFORM_FFT_REAL_SHORT_H

namespace veks {

constexpr int kShortRealOrder = 3;

template <class T>
constexpr T kRootOfHalf = static_cast<T>(0.70710678118654752440);

// The spectrum of 2^order values in Perm format, times the factor; 1 <= order <= 3. dst may be src.
template <class T>
void shortToPerm(int order, T factor, const T* src, T* dst) {
  const T x0 = src[0];
  const T x1 = src[1];
  if (order == 1) {
    dst[0] = factor * (x0 + x1);
    dst[1] = factor * (x0 - x1);
    return;
  }
  const T x2 = src[2];
  const T x3 = src[3];
  if (order == 2) {
    const T even = x0 + x2;
    const T odd = x1 + x3;
    dst[0] = factor * (even + odd);
    dst[1] = factor * (even - odd);
    dst[2] = factor * (x0 - x2);
    dst[3] = factor * (x3 - x1);
    return;
  }
  const T x4 = src[4];
  const T x5 = src[5];
  const T x6 = src[6];
  const T x7 = src[7];
  const T sum04 = x0 + x4;
  const T sum26 = x2 + x6;
  const T sum15 = x1 + x5;
  const T sum37 = x3 + x7;
  const T difference04 = x0 - x4;
  const T difference26 = x2 - x6;
  const T difference15 = x1 - x5;
  const T difference37 = x3 - x7;
  const T re = kRootOfHalf<T> * (difference15 - difference37);
  const T im = kRootOfHalf<T> * (difference15 + difference37);
  const T even = sum04 + sum26;
  const T odd = sum15 + sum37;
  dst[0] = factor * (even + odd);
  dst[1] = factor * (even - odd);
  dst[2] = factor * (difference04 + re);
  dst[3] = factor * -(difference26 + im);
  dst[4] = factor * (sum04 - sum26);
  dst[5] = factor * (sum37 - sum15);
  dst[6] = factor * (difference04 - re);
  dst[7] = factor * (difference26 - im);
}

// The signal of a spectrum, times the factor: `first` and `middle` are its real values, pairs[2 k]
// and on the others, 0 < k < N/2. dst may be pairs.
template <class T>
void shortFromPairs(int order, T factor, T first, T middle, const T* pairs, T* dst) {
  const T sum = factor * (first + middle);
  const T difference = factor * (first - middle);
  if (order == 1) {
    dst[0] = sum;
    dst[1] = difference;
    return;
  }
  const T twice = 2 * factor;
  const T re1 = twice * pairs[2];
  const T im1 = twice * pairs[3];
  if (order == 2) {
    dst[0] = sum + re1;
    dst[1] = difference - im1;
    dst[2] = sum - re1;
    dst[3] = difference + im1;
    return;
  }
  const T re2 = twice * pairs[4];
  const T im2 = twice * pairs[5];
  const T re3 = twice * pairs[6];
  const T im3 = twice * pairs[7];
  const T sumOfRe = re1 + re3;
  const T differenceOfIm = im3 - im1;
  const T g = re1 - re3;
  const T h = im1 + im3;
  const T turned1 = kRootOfHalf<T> * (g - h);
  const T turned3 = kRootOfHalf<T> * (g + h);
  const T even0 = sum + re2;
  const T even2 = sum - re2;
  const T odd1 = difference - im2;
  const T odd3 = difference + im2;
  dst[0] = even0 + sumOfRe;
  dst[1] = odd1 + turned1;
  dst[2] = even2 + differenceOfIm;
  dst[3] = odd3 - turned3;
  dst[4] = even0 - sumOfRe;
  dst[5] = odd1 - turned1;
  dst[6] = even2 - differenceOfIm;
  dst[7] = odd3 + turned3;
}

}  // namespace veks

#endif
