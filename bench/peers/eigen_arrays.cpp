#include "peers/eigen_arrays.h"

#include <Eigen/Core>
#include <complex>

#include "veks/types.h"

namespace veks::bench::eigen {
namespace {

using plain::Above;
using plain::Abs;
using plain::Add;
using plain::Below;
using plain::Div;
using plain::Mul;
using plain::Sqr;
using plain::Sqrt;
using plain::Sub;
using plain::SubC;

template <class T>
struct ElementOf {
  using Type = T;
};
template <>
struct ElementOf<Vek32fc> {
  using Type = std::complex<float>;
};
template <>
struct ElementOf<Vek64fc> {
  using Type = std::complex<double>;
};
template <class T>
using Element = typename ElementOf<T>::Type;
template <class T>
using Array = Eigen::Array<Element<T>, Eigen::Dynamic, 1>;

template <class T>
Eigen::Map<const Array<T>> source(const T* p, int len) {
  return {reinterpret_cast<const Element<T>*>(p), len};
}

template <class T>
Eigen::Map<Array<T>> target(T* p, int len) {
  return {reinterpret_cast<Element<T>*>(p), len};
}

template <class T>
Element<T> element(T value) {
  if constexpr (std::is_class_v<T>) {
    return {value.re, value.im};
  } else {
    return value;
  }
}

template <class A>
auto expression(Abs, const A& a) {
  return a.abs();
}
template <class A>
auto expression(Sqr, const A& a) {
  return a.square();
}
template <class A>
auto expression(Sqrt, const A& a) {
  return a.sqrt();
}
template <class A, class B>
auto expression(Add, const A& a, const B& b) {
  return a + b;
}
template <class A, class B>
auto expression(Sub, const A& a, const B& b) {
  return b - a;
}
template <class A, class B>
auto expression(SubC, const A& a, const B& b) {
  return a - b;
}
template <class A, class B>
auto expression(Mul, const A& a, const B& b) {
  return a * b;
}
template <class A, class B>
auto expression(Div, const A& a, const B& b) {
  return b / a;
}

// The maximum is the limit from below.
template <class A, class Level>
auto limit(Below, const A& a, Level level) {
  return a.max(level);
}
template <class A, class Level>
auto limit(Above, const A& a, Level level) {
  return a.min(level);
}

template <class A, class T>
auto replace(Below, const A& a, T level, T value) {
  return (a < level).select(value, a);
}
template <class A, class T>
auto replace(Above, const A& a, T level, T value) {
  return (a > level).select(value, a);
}

}  // namespace

template <class Op, class T>
void Unary<Op, T>::separate(const T* src, T* dst, int len) {
  target(dst, len) = expression(Op(), source(src, len));
}

template <class Op, class T>
void Unary<Op, T>::inPlace(T* srcDst, int len) {
  separate(srcDst, srcDst, len);
}

template <class Op, class T>
void Binary<Op, T>::separate(const T* src1, const T* src2, T* dst, int len) {
  target(dst, len) = expression(Op(), source(src1, len), source(src2, len));
}

template <class Op, class T>
void Binary<Op, T>::inPlace(const T* src, T* srcDst, int len) {
  separate(src, srcDst, srcDst, len);
}

template <class Op, class T>
void WithConstant<Op, T>::separate(const T* src, T val, T* dst, int len) {
  target(dst, len) = expression(Op(), source(src, len), element(val));
}

template <class Op, class T>
void WithConstant<Op, T>::inPlace(T val, T* srcDst, int len) {
  separate(srcDst, val, srcDst, len);
}

template <class T>
void Accumulate<T>::addProduct(const T* src1, const T* src2, T* srcDst, int len) {
  target(srcDst, len) += source(src1, len) * source(src2, len);
}

template <class T, class R>
void Normalize<T, R>::separate(const T* src, T* dst, int len, T vSub, R vDiv) {
  target(dst, len) = (source(src, len) - element(vSub)) / vDiv;
}

template <class T, class R>
void Normalize<T, R>::inPlace(T* srcDst, int len, T vSub, R vDiv) {
  separate(srcDst, srcDst, len, vSub, vDiv);
}

template <class S, class T>
void Convert<S, T>::separate(const S* src, T* dst, int len) {
  target(dst, len) = source(src, len).template cast<Element<T>>();
}

template <class Side, class T>
void Threshold<Side, T>::separate(const T* src, T* dst, int len, T level) {
  target(dst, len) = limit(Side(), source(src, len), level);
}

template <class Side, class T>
void Threshold<Side, T>::inPlace(T* srcDst, int len, T level) {
  separate(srcDst, srcDst, len, level);
}

template <class Side, class T>
void ThresholdValue<Side, T>::separate(const T* src, T* dst, int len, T level, T value) {
  target(dst, len) = replace(Side(), source(src, len), level, value);
}

template <class Side, class T>
void ThresholdValue<Side, T>::inPlace(T* srcDst, int len, T level, T value) {
  separate(srcDst, srcDst, len, level, value);
}

template struct Unary<Abs, Vek32f>;
template struct Unary<Sqr, Vek32f>;
template struct Unary<Sqrt, Vek32f>;
template struct Unary<Abs, Vek64f>;
template struct Unary<Sqr, Vek64f>;
template struct Unary<Sqrt, Vek64f>;
template struct Unary<Sqr, Vek32fc>;
template struct Unary<Sqr, Vek64fc>;

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
template struct WithConstant<Div, Vek32f>;

template struct Accumulate<Vek32f>;
template struct Accumulate<Vek64f>;
template struct Accumulate<Vek32fc>;
template struct Accumulate<Vek64fc>;
template struct Normalize<Vek32f>;
template struct Normalize<Vek64f>;
template struct Normalize<Vek32fc, Vek32f>;
template struct Normalize<Vek64fc, Vek64f>;

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
template struct Convert<Vek64s, Vek64f>;
template struct Convert<Vek32fc, Vek64fc>;
template struct Convert<Vek64fc, Vek32fc>;

template struct Threshold<Below, Vek16s>;
template struct ThresholdValue<Below, Vek16s>;
template struct Threshold<Below, Vek32s>;
template struct ThresholdValue<Below, Vek32s>;
template struct Threshold<Below, Vek32f>;
template struct ThresholdValue<Below, Vek32f>;
template struct Threshold<Below, Vek64f>;
template struct ThresholdValue<Below, Vek64f>;
template struct Threshold<Above, Vek16s>;
template struct ThresholdValue<Above, Vek16s>;
template struct Threshold<Above, Vek32s>;
template struct ThresholdValue<Above, Vek32s>;
template struct Threshold<Above, Vek32f>;
template struct ThresholdValue<Above, Vek32f>;
template struct Threshold<Above, Vek64f>;
template struct ThresholdValue<Above, Vek64f>;

}  // namespace veks::bench::eigen
