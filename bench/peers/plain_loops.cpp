#include "peers/plain_loops.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "veks/types.h"

namespace veks::bench::plain {
namespace {

template <class T>
T apply(Add, T a, T b) {
  return a + b;
}

Vek32fc apply(Add, Vek32fc a, Vek32fc b) {
  return {a.re + b.re, a.im + b.im};
}

template <class T>
T apply(Sub, T a, T b) {
  return b - a;
}

template <class T>
T apply(Mul, T a, T b) {
  return a * b;
}

template <class T>
T apply(Abs, T a) {
  return std::fabs(a);
}

template <class T>
T apply(Sqr, T a) {
  return a * a;
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

template <class Op, class T>
void Binary<Op, T>::separate(const T* __restrict src1, const T* __restrict src2, T* __restrict dst,
                             int len) {
  for (int i = 0; i < len; ++i) dst[i] = apply(Op(), src1[i], src2[i]);
}

template <class Op, class T>
void Binary<Op, T>::inPlace(const T* __restrict src, T* __restrict srcDst, int len) {
  for (int i = 0; i < len; ++i) srcDst[i] = apply(Op(), src[i], srcDst[i]);
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
  for (int i = 0; i < len; ++i) srcDst[i] += src1[i] * src2[i];
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

template struct Binary<Add, Vek32f>;
template struct Binary<Add, Vek64f>;
template struct Binary<Add, Vek32fc>;
template struct Binary<Sub, Vek32f>;
template struct Binary<Sub, Vek64f>;
template struct Binary<Mul, Vek32f>;
template struct Binary<Mul, Vek64f>;
template struct Accumulate<Vek32f>;
template struct Accumulate<Vek64f>;
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
template struct WithConstant<Mul, Vek32f>;
template struct WithConstant<Mul, Vek64f>;
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
