#include "peers/plain_scaled.h"

#include <algorithm>
#include <complex>

#include "peers/scaling-inl.h"

namespace veks::bench::plain {
namespace {

template <class T>
constexpr bool kIsComplex = std::is_class_v<T>;

template <class Op>
constexpr bool kIsProduct =
    !std::is_same_v<Op, Add> && !std::is_same_v<Op, Sub> && !std::is_same_v<Op, SubC>;

// A type for the exact results of an operation.
template <class Op, class... S>
constexpr auto wide() {
  constexpr size_t kBytes = std::max({sizeof(Part<S>)...});
  if constexpr ((std::is_same_v<S, Vek32f> || ...)) {
    return Vek32f{};
  } else if constexpr (kBytes == 8) {
    return __int128{};
  } else if constexpr (kBytes == 4 || (kIsProduct<Op> && (kIsComplex<S> || ...))) {
    return int64_t{};
  } else if constexpr (kIsProduct<Op> && (std::is_same_v<S, Vek16u> && ...)) {
    return uint32_t{};
  } else {
    return int32_t{};
  }
}
template <class Op, class... S>
using Wide = decltype(wide<Op, S...>());

// Single precision holds 16-bit operands.
template <class... S>
using Quotient =
    std::conditional_t<(std::max({sizeof(Part<S>)...}) <= 2) && !(kIsComplex<S> || ...), float,
                       double>;

template <class W, class A, class B>
Parts<W> product(A a, B b) {
  if constexpr (kIsComplex<A>) {
    return {static_cast<W>(a.re) * b.re - static_cast<W>(a.im) * b.im,
            static_cast<W>(a.re) * b.im + static_cast<W>(a.im) * b.re};
  } else {
    return {static_cast<W>(a) * b.re, static_cast<W>(a) * b.im};
  }
}

template <class A, class B>
auto exact(Add, A a, B b) {
  using W = Wide<Add, A, B>;
  if constexpr (kIsComplex<A>) {
    return Parts<W>{static_cast<W>(a.re) + b.re, static_cast<W>(a.im) + b.im};
  } else {
    return static_cast<W>(static_cast<W>(a) + static_cast<W>(b));
  }
}

template <class A, class B>
auto exact(SubC, A a, B b) {
  using W = Wide<SubC, A, B>;
  if constexpr (kIsComplex<A>) {
    return Parts<W>{static_cast<W>(a.re) - b.re, static_cast<W>(a.im) - b.im};
  } else {
    return static_cast<W>(static_cast<W>(a) - static_cast<W>(b));
  }
}

template <class A, class B>
auto exact(Sub, A a, B b) {
  return exact(SubC(), b, a);
}

template <class A, class B>
auto exact(Mul, A a, B b) {
  using W = Wide<Mul, A, B>;
  if constexpr (kIsComplex<B>) {
    return product<W>(a, b);
  } else {
    return static_cast<W>(static_cast<W>(a) * static_cast<W>(b));
  }
}

template <class A>
auto exact(Sqr, A a) {
  return exact(Mul(), a, a);
}

template <class A>
auto exact(Abs, A a) {
  const auto x = static_cast<Wide<Abs, A>>(a);
  return x < 0 ? -x : x;
}

template <class A, class B>
auto exact(Div, A a, B b) {
  using Q = Quotient<A, B>;
  if constexpr (kIsComplex<A>) {
    const Parts<Q> x = {static_cast<Q>(a.re), static_cast<Q>(a.im)};
    const Q norm = x.re * x.re + x.im * x.im;
    return Parts<Q>{(b.re * x.re + b.im * x.im) / norm, (b.im * x.re - b.re * x.im) / norm};
  } else {
    return static_cast<Q>(b) / static_cast<Q>(a);
  }
}

template <class A, class B>
auto exact(DivC, A a, B b) {
  return exact(Div(), b, a);
}

template <class A>
auto exact(Sqrt, A a) {
  using Q = Quotient<A>;
  if constexpr (kIsComplex<A>) {
    const std::complex<Q> root = std::sqrt(std::complex<Q>(a.re, a.im));
    return Parts<Q>{root.real(), root.imag()};
  } else {
    return std::sqrt(static_cast<Q>(a));
  }
}

}  // namespace

template <class Op, class S1, class S2, class T>
void ScaledTwo<Op, S1, S2, T>::separate(const S1* __restrict src1, const S2* __restrict src2,
                                        T* __restrict dst, int len, int scaleFactor) {
  storeScaled(dst, len, scaleFactor, [=](int i) { return exact(Op(), src1[i], src2[i]); });
}

template <class Op, class S1, class S2, class T>
void ScaledTwo<Op, S1, S2, T>::inPlace(const S1* __restrict src, T* __restrict srcDst, int len,
                                       int scaleFactor) {
  storeScaled(srcDst, len, scaleFactor, [=](int i) { return exact(Op(), src[i], srcDst[i]); });
}

template <class S, class T>
void ScaledAccumulate<S, T>::addProduct(const S* __restrict src1, const S* __restrict src2,
                                        T* __restrict srcDst, int len, int scaleFactor) {
  using W = Wide<AddProduct, S, T>;
  storeScaled(srcDst, len, scaleFactor, [=](int i) {
    return static_cast<W>(srcDst[i] + static_cast<W>(src1[i]) * static_cast<W>(src2[i]));
  });
}

template <class Op, class S, class T>
void ScaledOne<Op, S, T>::separate(const S* __restrict src, T* __restrict dst, int len,
                                   int scaleFactor) {
  storeScaled(dst, len, scaleFactor, [=](int i) { return exact(Op(), src[i]); });
}

template <class Op, class S, class T>
void ScaledOne<Op, S, T>::inPlace(T* srcDst, int len, int scaleFactor) {
  storeScaled(srcDst, len, scaleFactor, [=](int i) { return exact(Op(), srcDst[i]); });
}

template <class Op, class S, class T>
void ScaledConstant<Op, S, T>::separate(const S* __restrict src, S val, T* __restrict dst, int len,
                                        int scaleFactor) {
  storeScaled(dst, len, scaleFactor, [=](int i) { return exact(Op(), src[i], val); });
}

template <class Op, class S, class T>
void ScaledConstant<Op, S, T>::inPlace(S val, T* srcDst, int len, int scaleFactor) {
  storeScaled(srcDst, len, scaleFactor,
              [=](int i) { return exact(Op(), static_cast<S>(srcDst[i]), val); });
}

namespace {

template <class T>
auto normalized(T x, T vSub, double vDiv) {
  if constexpr (kIsComplex<T>) {
    return Parts<double>{(x.re - vSub.re) / vDiv, (x.im - vSub.im) / vDiv};
  } else {
    return (x - vSub) / vDiv;
  }
}

}  // namespace

template <class T>
void ScaledNormalize<T>::separate(const T* __restrict src, T* __restrict dst, int len, T vSub,
                                  int vDiv, int scaleFactor) {
  storeScaled(dst, len, scaleFactor, [=](int i) { return normalized(src[i], vSub, vDiv); });
}

template <class T>
void ScaledNormalize<T>::inPlace(T* srcDst, int len, T vSub, int vDiv, int scaleFactor) {
  storeScaled(srcDst, len, scaleFactor, [=](int i) { return normalized(srcDst[i], vSub, vDiv); });
}

template struct ScaledTwo<Add, Vek8u>;
template struct ScaledTwo<Add, Vek16u>;
template struct ScaledTwo<Add, Vek16s>;
template struct ScaledTwo<Add, Vek32s>;
template struct ScaledTwo<Add, Vek16sc>;
template struct ScaledTwo<Add, Vek32sc>;

template struct ScaledTwo<Sub, Vek8u>;
template struct ScaledTwo<Sub, Vek16u>;
template struct ScaledTwo<Sub, Vek16s>;
template struct ScaledTwo<Sub, Vek32s>;
template struct ScaledTwo<Sub, Vek16sc>;
template struct ScaledTwo<Sub, Vek32sc>;

template struct ScaledTwo<Mul, Vek8u>;
template struct ScaledTwo<Mul, Vek16u>;
template struct ScaledTwo<Mul, Vek16s>;
template struct ScaledTwo<Mul, Vek32s>;
template struct ScaledTwo<Mul, Vek16sc>;
template struct ScaledTwo<Mul, Vek32sc>;

template struct ScaledTwo<Div, Vek8u>;
template struct ScaledTwo<Div, Vek16u>;
template struct ScaledTwo<Div, Vek16s>;
template struct ScaledTwo<Div, Vek32s>;
template struct ScaledTwo<Div, Vek16sc>;
template struct ScaledTwo<Div, Vek16s, Vek32s, Vek16s>;

template struct ScaledTwo<Add, Vek32u>;
template struct ScaledTwo<Add, Vek64s>;
template struct ScaledTwo<Add, Vek8u, Vek8u, Vek16u>;
template struct ScaledTwo<Mul, Vek8u, Vek8u, Vek16u>;
template struct ScaledTwo<Add, Vek16s, Vek32s>;
template struct ScaledTwo<Mul, Vek16s, Vek16s, Vek32s>;
template struct ScaledTwo<Mul, Vek16u, Vek16s>;
template struct ScaledTwo<Mul, Vek32s, Vek32sc>;

template struct ScaledAccumulate<Vek16s>;
template struct ScaledAccumulate<Vek32s>;
template struct ScaledAccumulate<Vek16s, Vek32s>;

template struct ScaledConstant<Add, Vek8u>;
template struct ScaledConstant<Add, Vek16u>;
template struct ScaledConstant<Add, Vek16s>;
template struct ScaledConstant<Add, Vek32s>;
template struct ScaledConstant<Add, Vek16sc>;
template struct ScaledConstant<Add, Vek32sc>;

template struct ScaledConstant<SubC, Vek8u>;
template struct ScaledConstant<SubC, Vek16u>;
template struct ScaledConstant<SubC, Vek16s>;
template struct ScaledConstant<SubC, Vek32s>;
template struct ScaledConstant<SubC, Vek16sc>;
template struct ScaledConstant<SubC, Vek32sc>;

template struct ScaledConstant<Sub, Vek8u>;
template struct ScaledConstant<Sub, Vek16u>;
template struct ScaledConstant<Sub, Vek16s>;
template struct ScaledConstant<Sub, Vek32s>;
template struct ScaledConstant<Sub, Vek16sc>;
template struct ScaledConstant<Sub, Vek32sc>;

template struct ScaledConstant<Mul, Vek8u>;
template struct ScaledConstant<Mul, Vek16u>;
template struct ScaledConstant<Mul, Vek16s>;
template struct ScaledConstant<Mul, Vek32s>;
template struct ScaledConstant<Mul, Vek16sc>;
template struct ScaledConstant<Mul, Vek32sc>;

template struct ScaledConstant<DivC, Vek8u>;
template struct ScaledConstant<DivC, Vek16u>;
template struct ScaledConstant<DivC, Vek16s>;
template struct ScaledConstant<DivC, Vek16sc>;
template struct ScaledConstant<Div, Vek16u>;
template struct ScaledConstant<Mul, Vek32f, Vek16s>;

template struct ScaledOne<Abs, Vek16s>;
template struct ScaledOne<Abs, Vek32s>;
template struct ScaledOne<Sqr, Vek8u>;
template struct ScaledOne<Sqr, Vek16u>;
template struct ScaledOne<Sqr, Vek16s>;
template struct ScaledOne<Sqr, Vek16sc>;
template struct ScaledOne<Sqrt, Vek8u>;
template struct ScaledOne<Sqrt, Vek16u>;
template struct ScaledOne<Sqrt, Vek16s>;
template struct ScaledOne<Sqrt, Vek16sc>;
template struct ScaledOne<Sqrt, Vek64s>;
template struct ScaledOne<Sqrt, Vek32s, Vek16s>;
template struct ScaledOne<Sqrt, Vek64s, Vek16s>;

template struct ScaledNormalize<Vek16s>;
template struct ScaledNormalize<Vek16sc>;

}  // namespace veks::bench::plain
