// Transforms of 2 to 16 points in registers, one in each lane.
#if defined(VEKS_TRANSFORM_FFT_BUTTERFLIES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_TRANSFORM_FFT_BUTTERFLIES_INL_H
#undef VEKS_TRANSFORM_FFT_BUTTERFLIES_INL_H
#else
#define VEKS_TRANSFORM_FFT_BUTTERFLIES_INL_H
#endif

#include <hwy/highway.h>

#include <utility>

#include "core/targets.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// Calls f with the constants 0 .. n - 1: arrays that only constants index stay in registers.
template <class F, size_t... k>
HWY_INLINE void eachOf(std::index_sequence<k...> /*indices*/, const F& f) {
  (f(std::integral_constant<size_t, k>()), ...);
}

template <size_t n, class F>
HWY_INLINE void each(const F& f) {
  eachOf(std::make_index_sequence<n>(), f);
}

// The real and the imaginary parts of as many values as a vector has lanes.
template <class V>
struct Parts {
  V re;
  V im;
};

template <class V>
HWY_INLINE Parts<V> operator+(const Parts<V>& a, const Parts<V>& b) {
  return {hn::Add(a.re, b.re), hn::Add(a.im, b.im)};
}

template <class V>
HWY_INLINE Parts<V> operator-(const Parts<V>& a, const Parts<V>& b) {
  return {hn::Sub(a.re, b.re), hn::Sub(a.im, b.im)};
}

// a - i b and a + i b
template <class V>
HWY_INLINE Parts<V> minusI(const Parts<V>& a, const Parts<V>& b) {
  return {hn::Add(a.re, b.im), hn::Sub(a.im, b.re)};
}

template <class V>
HWY_INLINE Parts<V> plusI(const Parts<V>& a, const Parts<V>& b) {
  return {hn::Sub(a.re, b.im), hn::Add(a.im, b.re)};
}

// x * w
template <class V>
HWY_INLINE Parts<V> times(const Parts<V>& x, V wRe, V wIm) {
  return {hn::NegMulAdd(x.im, wIm, hn::Mul(x.re, wRe)), hn::MulAdd(x.im, wRe, hn::Mul(x.re, wIm))};
}

// Replaces four values by their transform.
template <class V>
HWY_INLINE void transform4(Parts<V>& x0, Parts<V>& x1, Parts<V>& x2, Parts<V>& x3) {
  const Parts<V> a = x0 + x2;
  const Parts<V> b = x0 - x2;
  const Parts<V> c = x1 + x3;
  const Parts<V> d = x1 - x3;
  x0 = a + c;
  x1 = minusI(b, d);
  x2 = a - c;
  x3 = plusI(b, d);
}

// Transform<R>::run(d, x) replaces x[0 .. R - 1] by their transform; frequency r is then found at
// x[at(r)].
template <size_t R>
struct Transform;

template <>
struct Transform<1> {
  static constexpr size_t at(size_t r) {
    return r;
  }
  template <class D, class V>
  static HWY_INLINE void run(D /*d*/, Parts<V>* /*x*/) {}
};

template <>
struct Transform<2> {
  static constexpr size_t at(size_t r) {
    return r;
  }
  template <class D, class V>
  static HWY_INLINE void run(D /*d*/, Parts<V>* x) {
    const Parts<V> a = x[0];
    x[0] = a + x[1];
    x[1] = a - x[1];
  }
};

template <>
struct Transform<4> {
  static constexpr size_t at(size_t r) {
    return r;
  }
  template <class D, class V>
  static HWY_INLINE void run(D /*d*/, Parts<V>* x) {
    transform4(x[0], x[1], x[2], x[3]);
  }
};

template <>
struct Transform<8> {
  static constexpr size_t at(size_t r) {
    return r;
  }
  template <class D, class V>
  static HWY_INLINE void run(D d, Parts<V>* x) {
    transform4(x[0], x[2], x[4], x[6]);
    transform4(x[1], x[3], x[5], x[7]);
    const V c = hn::Set(d, static_cast<hn::TFromD<D>>(0.70710678118654752440));
    const Parts<V> e0 = x[0];
    const Parts<V> e1 = x[2];
    const Parts<V> e2 = x[4];
    const Parts<V> e3 = x[6];
    const Parts<V> o0 = x[1];
    const Parts<V> o1 = minusI(x[3], x[3]);  // sqrt(2) times the twiddled value
    const Parts<V> o2 = x[5];
    const Parts<V> o3 = plusI(x[7], x[7]);  // likewise, times -1
    x[0] = e0 + o0;
    x[4] = e0 - o0;
    x[1] = {hn::MulAdd(c, o1.re, e1.re), hn::MulAdd(c, o1.im, e1.im)};
    x[5] = {hn::NegMulAdd(c, o1.re, e1.re), hn::NegMulAdd(c, o1.im, e1.im)};
    x[2] = minusI(e2, o2);
    x[6] = plusI(e2, o2);
    x[3] = {hn::NegMulAdd(c, o3.re, e3.re), hn::NegMulAdd(c, o3.im, e3.im)};
    x[7] = {hn::MulAdd(c, o3.re, e3.re), hn::MulAdd(c, o3.im, e3.im)};
  }
};

template <>
struct Transform<16> {
  static constexpr size_t at(size_t r) {
    return 4 * (r % 4) + r / 4;
  }
  template <class D, class V>
  static HWY_INLINE void run(D d, Parts<V>* x) {
    using T = hn::TFromD<D>;
    each<4>([&](auto k) HWY_ATTR
            __attribute__((always_inline)) { transform4(x[k], x[k + 4], x[k + 8], x[k + 12]); });
    const V c1 = hn::Set(d, static_cast<T>(0.92387953251128675613));  // cos(pi/8)
    const V s1 = hn::Set(d, static_cast<T>(0.38268343236508977173));
    const V c2 = hn::Set(d, static_cast<T>(0.70710678118654752440));
    // x[n + 4 k] times exp(-2 pi i n k / 16)
    x[5] = {hn::MulAdd(x[5].im, s1, hn::Mul(x[5].re, c1)),
            hn::NegMulAdd(x[5].re, s1, hn::Mul(x[5].im, c1))};
    x[6] = {hn::Mul(c2, hn::Add(x[6].re, x[6].im)), hn::Mul(c2, hn::Sub(x[6].im, x[6].re))};
    x[7] = {hn::MulAdd(x[7].im, c1, hn::Mul(x[7].re, s1)),
            hn::NegMulAdd(x[7].re, c1, hn::Mul(x[7].im, s1))};
    x[9] = {hn::Mul(c2, hn::Add(x[9].re, x[9].im)), hn::Mul(c2, hn::Sub(x[9].im, x[9].re))};
    const Parts<V> y10 = x[10];  // its factor is -i
    const V minusC2 = hn::Set(d, static_cast<T>(-0.70710678118654752440));
    x[11] = {hn::Mul(c2, hn::Sub(x[11].im, x[11].re)),
             hn::Mul(minusC2, hn::Add(x[11].re, x[11].im))};
    x[13] = {hn::MulAdd(x[13].im, c1, hn::Mul(x[13].re, s1)),
             hn::NegMulAdd(x[13].re, c1, hn::Mul(x[13].im, s1))};
    x[14] = {hn::Mul(c2, hn::Sub(x[14].im, x[14].re)),
             hn::Mul(minusC2, hn::Add(x[14].re, x[14].im))};
    // exp(-2 pi i 9 / 16) = (-cos(pi/8), sin(pi/8))
    const V minusC1 = hn::Set(d, static_cast<T>(-0.92387953251128675613));
    x[15] = {hn::NegMulAdd(x[15].im, s1, hn::Mul(x[15].re, minusC1)),
             hn::MulAdd(x[15].re, s1, hn::Mul(x[15].im, minusC1))};
    transform4(x[0], x[1], x[2], x[3]);
    transform4(x[4], x[5], x[6], x[7]);
    const Parts<V> a = minusI(x[8], y10);
    const Parts<V> b = plusI(x[8], y10);
    const Parts<V> e = x[9] + x[11];
    const Parts<V> f = x[9] - x[11];
    x[8] = a + e;
    x[9] = minusI(b, f);
    x[10] = a - e;
    x[11] = plusI(b, f);
    transform4(x[12], x[13], x[14], x[15]);
  }
};

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
