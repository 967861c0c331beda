#include "peers/plain_loops.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <type_traits>
#include <utility>

#include "veks/types.h"

namespace veks::bench::plain {
namespace {

template <class T>
constexpr bool kIsComplex = std::is_class_v<T>;

template <class T>
T apply(Add, T a, T b) {
  if constexpr (kIsComplex<T>) {
    return {a.re + b.re, a.im + b.im};
  } else {
    return a + b;
  }
}

template <class T>
T apply(SubC, T a, T b) {
  if constexpr (kIsComplex<T>) {
    return {a.re - b.re, a.im - b.im};
  } else {
    return a - b;
  }
}

template <class T>
T apply(Sub, T a, T b) {
  return apply(SubC(), b, a);
}

template <class T>
T apply(Mul, T a, T b) {
  if constexpr (kIsComplex<T>) {
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
  } else {
    return a * b;
  }
}

Vek32fc apply(Mul, Vek32f a, Vek32fc b) {
  return {a * b.re, a * b.im};
}

template <class T>
T apply(Div, T a, T b) {
  if constexpr (kIsComplex<T>) {
    const auto norm = a.re * a.re + a.im * a.im;
    return {(b.re * a.re + b.im * a.im) / norm, (b.im * a.re - b.re * a.im) / norm};
  } else {
    return b / a;
  }
}

template <class T>
T apply(DivC, T a, T b) {
  if constexpr (kIsComplex<T>) {
    return apply(Div(), b, a);
  } else {
    return a * (1 / b);
  }
}

template <class T>
T apply(Abs, T a) {
  return std::fabs(a);
}

template <class T>
T apply(Sqr, T a) {
  return apply(Mul(), a, a);
}

template <class T>
T apply(Sqrt, T a) {
  if constexpr (kIsComplex<T>) {
    const auto root = std::sqrt(std::complex<decltype(a.re)>(a.re, a.im));
    return {root.real(), root.imag()};
  } else {
    return std::sqrt(a);
  }
}

template <class T>
T apply(And, T a, T b) {
  return static_cast<T>(a & b);
}

template <class T>
T apply(Or, T a, T b) {
  return static_cast<T>(a | b);
}

template <class T>
T apply(Xor, T a, T b) {
  return static_cast<T>(a ^ b);
}

template <class T>
T apply(Not, T a) {
  return static_cast<T>(~a);
}

template <class T>
T apply(ShiftLeft, T a, int bits) {
  return static_cast<T>(static_cast<Vek32u>(a) << bits);
}

template <class T>
T apply(ShiftRight, T a, int bits) {
  return static_cast<T>(a >> bits);
}

Vek16u apply(SwapBytes, Vek16u a) {
  return __builtin_bswap16(a);
}

Vek32u apply(SwapBytes, Vek32u a) {
  return __builtin_bswap32(a);
}

}  // namespace

int doNothing(const void* /*src1*/, const void* /*src2*/, void* /*dst*/, int /*len*/) {
  return 0;
}

template <class Op, class T>
void Unary<Op, T>::separate(const T* __restrict src, T* __restrict dst, int len) {
  for (int i = 0; i < len; ++i) dst[i] = apply(Op(), src[i]);
}

template <class Op, class T>
void Unary<Op, T>::inPlace(T* srcDst, int len) {
  for (int i = 0; i < len; ++i) srcDst[i] = apply(Op(), srcDst[i]);
}

template <class Op, class S, class T>
void Binary<Op, S, T>::separate(const S* __restrict src1, const T* __restrict src2,
                                T* __restrict dst, int len) {
  for (int i = 0; i < len; ++i) dst[i] = apply(Op(), src1[i], src2[i]);
}

template <class Op, class S, class T>
void Binary<Op, S, T>::inPlace(const S* __restrict src, T* __restrict srcDst, int len) {
  for (int i = 0; i < len; ++i) srcDst[i] = apply(Op(), src[i], srcDst[i]);
}

template <class Op, class S, class T>
void Widening<Op, S, T>::separate(const S* __restrict src1, const S* __restrict src2,
                                  T* __restrict dst, int len) {
  for (int i = 0; i < len; ++i) {
    dst[i] = apply(Op(), static_cast<T>(src1[i]), static_cast<T>(src2[i]));
  }
}

template <class Op, class T, class C>
void WithConstant<Op, T, C>::separate(const T* __restrict src, C val, T* __restrict dst, int len) {
  for (int i = 0; i < len; ++i) dst[i] = apply(Op(), src[i], val);
}

template <class Op, class T, class C>
void WithConstant<Op, T, C>::inPlace(C val, T* srcDst, int len) {
  for (int i = 0; i < len; ++i) srcDst[i] = apply(Op(), srcDst[i], val);
}

template <class T>
void Accumulate<T>::addProduct(const T* __restrict src1, const T* __restrict src2,
                               T* __restrict srcDst, int len) {
  for (int i = 0; i < len; ++i) {
    srcDst[i] = apply(Add(), srcDst[i], apply(Mul(), src1[i], src2[i]));
  }
}

template <class T, class R>
T normalized(T x, T vSub, R vDiv) {
  if constexpr (kIsComplex<T>) {
    return {(x.re - vSub.re) / vDiv, (x.im - vSub.im) / vDiv};
  } else {
    return (x - vSub) / vDiv;
  }
}

template <class T, class R>
void Normalize<T, R>::separate(const T* __restrict src, T* __restrict dst, int len, T vSub,
                               R vDiv) {
  for (int i = 0; i < len; ++i) dst[i] = normalized(src[i], vSub, vDiv);
}

template <class T, class R>
void Normalize<T, R>::inPlace(T* srcDst, int len, T vSub, R vDiv) {
  for (int i = 0; i < len; ++i) srcDst[i] = normalized(srcDst[i], vSub, vDiv);
}

template <class T>
void Reverse<T>::separate(const T* __restrict src, T* __restrict dst, int len) {
  for (int i = 0; i < len; ++i) dst[i] = src[len - 1 - i];
}

template <class T>
void Reverse<T>::inPlace(T* srcDst, int len) {
  for (int i = 0; i < len / 2; ++i) std::swap(srcDst[i], srcDst[len - 1 - i]);
}

template <class T>
void Reverse<T>::stdReverseCopy(const T* __restrict src, T* __restrict dst, int len) {
  std::reverse_copy(src, src + len, dst);
}

template <class T>
void Reverse<T>::stdReverse(T* srcDst, int len) {
  std::reverse(srcDst, srcDst + len);
}

void SwapBytes24::separate(const unsigned char* __restrict src, unsigned char* __restrict dst,
                           int len) {
  for (int i = 0; i < len; ++i, src += 3, dst += 3) {
    dst[0] = src[2];
    dst[1] = src[1];
    dst[2] = src[0];
  }
}

void SwapBytes24::inPlace(unsigned char* srcDst, int len) {
  for (int i = 0; i < len; ++i, srcDst += 3) std::swap(srcDst[0], srcDst[2]);
}

template <class T>
void Standard<T>::copy(const T* __restrict src, T* __restrict dst, int len) {
  std::copy(src, src + len, dst);
}

template <class T>
void Standard<T>::fill(T val, T* dst, int len) {
  std::fill(dst, dst + len, val);
}

template <class T>
void Standard<T>::fillZero(T* dst, int len) {
  std::fill(dst, dst + len, T());
}

template struct Unary<Not, Vek8u>;
template struct Unary<Not, Vek16u>;
template struct Unary<Not, Vek32u>;
template struct Unary<SwapBytes, Vek16u>;
template struct Unary<SwapBytes, Vek32u>;

template struct Unary<Abs, Vek32f>;
template struct Unary<Abs, Vek64f>;
template struct Unary<Sqr, Vek32f>;
template struct Unary<Sqr, Vek64f>;
template struct Unary<Sqr, Vek32fc>;
template struct Unary<Sqr, Vek64fc>;
template struct Unary<Sqrt, Vek32f>;
template struct Unary<Sqrt, Vek64f>;
template struct Unary<Sqrt, Vek32fc>;
template struct Unary<Sqrt, Vek64fc>;

template struct Binary<Add, Vek32f>;
template struct Binary<Add, Vek64f>;
template struct Binary<Add, Vek32fc>;
template struct Binary<Add, Vek64fc>;
template struct Binary<Sub, Vek32f>;
template struct Binary<Sub, Vek64f>;
template struct Binary<Sub, Vek32fc>;
template struct Binary<Sub, Vek64fc>;
template struct Binary<Mul, Vek32f>;
template struct Binary<Mul, Vek64f>;
template struct Binary<Mul, Vek32fc>;
template struct Binary<Mul, Vek64fc>;
template struct Binary<Div, Vek32f>;
template struct Binary<Div, Vek64f>;
template struct Binary<Div, Vek32fc>;
template struct Binary<Div, Vek64fc>;
template struct Binary<Mul, Vek32f, Vek32fc>;
template struct Widening<Add, Vek16s, Vek32f>;
template struct Widening<Sub, Vek16s, Vek32f>;
template struct Widening<Mul, Vek16s, Vek32f>;
template struct Accumulate<Vek32f>;
template struct Accumulate<Vek64f>;
template struct Accumulate<Vek32fc>;
template struct Accumulate<Vek64fc>;
template struct Normalize<Vek32f>;
template struct Normalize<Vek64f>;
template struct Normalize<Vek32fc, Vek32f>;
template struct Normalize<Vek64fc, Vek64f>;

template struct Binary<And, Vek8u>;
template struct Binary<And, Vek16u>;
template struct Binary<And, Vek32u>;
template struct Binary<Or, Vek8u>;
template struct Binary<Or, Vek16u>;
template struct Binary<Or, Vek32u>;
template struct Binary<Xor, Vek8u>;
template struct Binary<Xor, Vek16u>;
template struct Binary<Xor, Vek32u>;

template struct WithConstant<Add, Vek32f>;
template struct WithConstant<Add, Vek64f>;
template struct WithConstant<Add, Vek32fc>;
template struct WithConstant<Add, Vek64fc>;
template struct WithConstant<SubC, Vek32f>;
template struct WithConstant<SubC, Vek64f>;
template struct WithConstant<SubC, Vek32fc>;
template struct WithConstant<SubC, Vek64fc>;
template struct WithConstant<Sub, Vek32f>;
template struct WithConstant<Sub, Vek64f>;
template struct WithConstant<Sub, Vek32fc>;
template struct WithConstant<Sub, Vek64fc>;
template struct WithConstant<Mul, Vek32f>;
template struct WithConstant<Mul, Vek64f>;
template struct WithConstant<Mul, Vek32fc>;
template struct WithConstant<Mul, Vek64fc>;
template struct WithConstant<DivC, Vek32f>;
template struct WithConstant<DivC, Vek64f>;
template struct WithConstant<DivC, Vek32fc>;
template struct WithConstant<DivC, Vek64fc>;
template struct WithConstant<Div, Vek32f>;
template struct WithConstant<And, Vek8u>;
template struct WithConstant<And, Vek16u>;
template struct WithConstant<And, Vek32u>;
template struct WithConstant<Or, Vek8u>;
template struct WithConstant<Or, Vek16u>;
template struct WithConstant<Or, Vek32u>;
template struct WithConstant<Xor, Vek8u>;
template struct WithConstant<Xor, Vek16u>;
template struct WithConstant<Xor, Vek32u>;
template struct WithConstant<ShiftLeft, Vek8u, int>;
template struct WithConstant<ShiftLeft, Vek16u, int>;
template struct WithConstant<ShiftLeft, Vek16s, int>;
template struct WithConstant<ShiftLeft, Vek32s, int>;
template struct WithConstant<ShiftRight, Vek8u, int>;
template struct WithConstant<ShiftRight, Vek16u, int>;
template struct WithConstant<ShiftRight, Vek16s, int>;
template struct WithConstant<ShiftRight, Vek32s, int>;

template struct Reverse<Vek8u>;
template struct Reverse<Vek16u>;
template struct Reverse<Vek32f>;
template struct Reverse<Vek64f>;
template struct Reverse<Vek64fc>;

template struct Standard<Vek8u>;
template struct Standard<Vek16s>;
template struct Standard<Vek32f>;
template struct Standard<Vek64f>;
template struct Standard<Vek32fc>;
template struct Standard<Vek64fc>;

}  // namespace veks::bench::plain
