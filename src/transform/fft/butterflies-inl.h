// Transforms of 2 to 16 points in registers, one in each lane.
#if defined(VEKS_TRANSFORM_FFT_BUTTERFLIES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_TRANSFORM_FFT_BUTTERFLIES_INL_H
#undef VEKS_TRANSFORM_FFT_BUTTERFLIES_INL_H
#else
#define VEKS_TRANSFORM_FFT_BUTTERFLIES_INL_H
#endif

#include <hwy/highway.h>

#include <type_traits>
#include <utility>

#include "core/parts-inl.h"
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

template <class V>
HWY_INLINE Parts<V> operator+(const Parts<V>& a, const Parts<V>& b) {
  return {hn::Add(a.re, b.re), hn::Add(a.im, b.im)};
}

template <class V>
HWY_INLINE Parts<V> operator-(const Parts<V>& a, const Parts<V>& b) {
  return {hn::Sub(a.re, b.re), hn::Sub(a.im, b.im)};
}

// x * w
template <class V>
HWY_INLINE Parts<V> times(const Parts<V>& x, V wRe, V wIm) {
  return {hn::NegMulAdd(x.im, wIm, hn::Mul(x.re, wRe)), hn::MulAdd(x.im, wRe, hn::Mul(x.re, wIm))};
}

template <class D, class V>
HWY_INLINE Parts<V> timesUnit(D d, const Parts<V>& x, double re, double im) {
  using T = hn::TFromD<D>;
  return times(x, hn::Set(d, static_cast<T>(re)), hn::Set(d, static_cast<T>(im)));
}

// e + c x and e - c x
template <class V>
HWY_INLINE Parts<V> plusScaled(const Parts<V>& e, V c, const Parts<V>& x) {
  return {hn::MulAdd(c, x.re, e.re), hn::MulAdd(c, x.im, e.im)};
}
template <class V>
HWY_INLINE Parts<V> minusScaled(const Parts<V>& e, V c, const Parts<V>& x) {
  return {hn::NegMulAdd(c, x.re, e.re), hn::NegMulAdd(c, x.im, e.im)};
}

// a - i b and a + i b
template <class D, class V>
HWY_INLINE void addTurned(D /*d*/, const Parts<V>& a, const Parts<V>& b, Parts<V>& minus,
                          Parts<V>& plus) {
  const Parts<V> x = a;
  const Parts<V> y = b;
  minus = {hn::Add(x.re, y.im), hn::Sub(x.im, y.re)};
  plus = {hn::Sub(x.re, y.im), hn::Add(x.im, y.re)};
}

// Replaces a and b by a + w b and a - w b. The difference is 2 a less the sum, which takes one
// fused operation where a product of its own would take two.
template <class D, class V>
HWY_INLINE void twiddledPair(D d, Parts<V>& a, Parts<V>& b, const Parts<V>& w) {
  const V two = hn::Set(d, hn::TFromD<D>{2});
  const V re = hn::MulAdd(b.re, w.re, hn::NegMulAdd(b.im, w.im, a.re));
  const V im = hn::MulAdd(b.im, w.re, hn::MulAdd(b.re, w.im, a.im));
  b = {hn::MulSub(two, a.re, re), hn::MulSub(two, a.im, im)};
  a = {re, im};
}

// Replaces a and b by a - i w b and a + i w b.
template <class D, class V>
HWY_INLINE void twiddledTurnedPair(D d, Parts<V>& a, Parts<V>& b, const Parts<V>& w) {
  const V two = hn::Set(d, hn::TFromD<D>{2});
  const V re = hn::MulAdd(b.im, w.re, hn::MulAdd(b.re, w.im, a.re));
  const V im = hn::MulAdd(b.im, w.im, hn::NegMulAdd(b.re, w.re, a.im));
  b = {hn::MulSub(two, a.re, re), hn::MulSub(two, a.im, im)};
  a = {re, im};
}

// Real and imaginary parts in turn, half as many values as a vector has lanes. The inverse
// transform turns the other way round.
template <class V, bool kInverse>
struct Pairs {
  V v;
};

template <class V, bool kInverse>
HWY_INLINE Pairs<V, kInverse> operator+(const Pairs<V, kInverse>& a, const Pairs<V, kInverse>& b) {
  return {hn::Add(a.v, b.v)};
}

template <class V, bool kInverse>
HWY_INLINE Pairs<V, kInverse> operator-(const Pairs<V, kInverse>& a, const Pairs<V, kInverse>& b) {
  return {hn::Sub(a.v, b.v)};
}

template <class D, class V>
HWY_INLINE V exchanged(D /*d*/, V v) {
  if constexpr (sizeof(hn::TFromD<D>) == 8) {
    return hn::Shuffle01(v);
  } else {
    return hn::Shuffle2301(v);
  }
}

// x * w, given the real part of w in all lanes and the imaginary one with alternating signs, the
// first one negative.
template <class D, class V, bool kInverse>
HWY_INLINE Pairs<V, kInverse> times(D d, const Pairs<V, kInverse>& x, V wRe, V wIm) {
  return {hn::MulAdd(exchanged(d, x.v), wIm, hn::Mul(x.v, wRe))};
}

template <class D, class V, bool kInverse>
HWY_INLINE Pairs<V, kInverse> timesUnit(D d, const Pairs<V, kInverse>& x, double re, double im) {
  using T = hn::TFromD<D>;
  const V wIm = hn::Set(d, static_cast<T>(kInverse ? -im : im));
  return times(d, x, hn::Set(d, static_cast<T>(re)), hn::OddEven(wIm, hn::Neg(wIm)));
}

template <class V, bool kInverse>
HWY_INLINE Pairs<V, kInverse> plusScaled(const Pairs<V, kInverse>& e, V c,
                                         const Pairs<V, kInverse>& x) {
  return {hn::MulAdd(c, x.v, e.v)};
}
template <class V, bool kInverse>
HWY_INLINE Pairs<V, kInverse> minusScaled(const Pairs<V, kInverse>& e, V c,
                                          const Pairs<V, kInverse>& x) {
  return {hn::NegMulAdd(c, x.v, e.v)};
}

template <class D, class V, bool kInverse>
HWY_INLINE void addTurned(D d, const Pairs<V, kInverse>& a, const Pairs<V, kInverse>& b,
                          Pairs<V, kInverse>& minus, Pairs<V, kInverse>& plus) {
  const V one = hn::Set(d, hn::TFromD<D>{1});
  const V signs = kInverse ? hn::OddEven(one, hn::Neg(one)) : hn::OddEven(hn::Neg(one), one);
  const V x = a.v;
  const V turned = exchanged(d, b.v);
  minus = {hn::MulAdd(turned, signs, x)};
  plus = {hn::NegMulAdd(turned, signs, x)};
}

// Replaces four values by their transform.
template <class D, class X>
HWY_INLINE void transform4(D d, X& x0, X& x1, X& x2, X& x3) {
  const X a = x0 + x2;
  const X b = x0 - x2;
  const X c = x1 + x3;
  const X e = x1 - x3;
  x0 = a + c;
  x2 = a - c;
  addTurned(d, b, e, x1, x3);
}

// Transform<R>::run(d, x) replaces x[0 .. R - 1] by their transform; frequency r is then found at
// x[at(r)].
template <size_t R>
struct Transform;

template <>
struct Transform<2> {
  static constexpr size_t at(size_t r) {
    return r;
  }
  template <class D, class X>
  static HWY_INLINE void run(D /*d*/, X* x) {
    const X a = x[0];
    x[0] = a + x[1];
    x[1] = a - x[1];
  }
};

template <>
struct Transform<4> {
  static constexpr size_t at(size_t r) {
    return r;
  }
  template <class D, class X>
  static HWY_INLINE void run(D d, X* x) {
    transform4(d, x[0], x[1], x[2], x[3]);
  }
#if HWY_TARGET <= HWY_SSE4
  // One value to a vector: more operations than with products by both signs, but sooner done.
  using Two = hn::CappedTag<double, 2>;
  template <bool kInverse>
  static HWY_INLINE void run(Two d, Pairs<hn::Vec<Two>, kInverse>* x) {
    using X = Pairs<hn::Vec<Two>, kInverse>;
    const X a = x[0] + x[2];
    const X b = x[0] - x[2];
    const X c = x[1] + x[3];
    const X e = x[1] - x[3];
    const X minusE = x[3] - x[1];
    x[0] = a + c;
    x[2] = a - c;
    x[kInverse ? 1 : 3].v.raw = _mm_addsub_pd(b.v.raw, exchanged(d, e.v).raw);
    x[kInverse ? 3 : 1].v.raw = _mm_addsub_pd(b.v.raw, exchanged(d, minusE.v).raw);
  }
#endif
};

template <>
struct Transform<8> {
  static constexpr size_t at(size_t r) {
    return r;
  }
  template <class D, class X>
  static HWY_INLINE void run(D d, X* x) {
    const X evenSum = x[0] + x[4];
    const X evenDifference = x[0] - x[4];
    const X oddSum = x[2] + x[6];
    const X oddDifference = x[2] - x[6];
    const X b0 = x[1] + x[5];
    const X b1 = x[1] - x[5];
    const X b2 = x[3] + x[7];
    const X b3 = x[3] - x[7];
    const X e0 = evenSum + oddSum;
    const X e2 = evenSum - oddSum;
    const X o0 = b0 + b2;
    const X o2 = b0 - b2;
    x[0] = e0 + o0;
    x[4] = e0 - o0;
    addTurned(d, e2, o2, x[2], x[6]);
    // Factors of an eighth of a turn, times sqrt(2), are sums of quarter turns.
    const auto c = hn::Set(d, static_cast<hn::TFromD<D>>(0.70710678118654752440));
    const X difference = b1 - b3;
    const X sum = b1 + b3;
    addTurned(d, plusScaled(evenDifference, c, difference), plusScaled(oddDifference, c, sum), x[1],
              x[7]);
    addTurned(d, minusScaled(evenDifference, c, difference), minusScaled(oddDifference, c, sum),
              x[5], x[3]);
  }
};

template <>
struct Transform<16> {
  static constexpr size_t at(size_t r) {
    return 4 * (r % 4) + r / 4;
  }
  template <class D, class X>
  static HWY_INLINE void run(D d, X* x) {
    each<4>([&](auto k) HWY_ATTR
            __attribute__((always_inline)) { transform4(d, x[k], x[k + 4], x[k + 8], x[k + 12]); });
    // x[n + 4 k] times exp(-2 pi i n k / 16)
    constexpr double c1 = 0.92387953251128675613;  // cos(pi/8)
    constexpr double s1 = 0.38268343236508977173;
    constexpr double c2 = 0.70710678118654752440;
    x[5] = timesUnit(d, x[5], c1, -s1);
    x[6] = timesUnit(d, x[6], c2, -c2);
    x[7] = timesUnit(d, x[7], s1, -c1);
    x[9] = timesUnit(d, x[9], c2, -c2);
    x[11] = timesUnit(d, x[11], -c2, -c2);
    x[13] = timesUnit(d, x[13], s1, -c1);
    x[14] = timesUnit(d, x[14], -c2, -c2);
    x[15] = timesUnit(d, x[15], -c1, s1);
    transform4(d, x[0], x[1], x[2], x[3]);
    transform4(d, x[4], x[5], x[6], x[7]);
    // The factor of x[10] is -i.
    X a;
    X b;
    addTurned(d, x[8], x[10], a, b);
    const X e = x[9] + x[11];
    const X f = x[9] - x[11];
    x[8] = a + e;
    x[10] = a - e;
    addTurned(d, b, f, x[9], x[11]);
    transform4(d, x[12], x[13], x[14], x[15]);
  }
};

// Transforms whose values are multiplied by powers of a twiddle factor first: x[j] by w^j.
// Frequency r is then found at x[at(r)]. factor(i) gives factor i < kFactors of those that
// twiddleFactor() tells, in all lanes or one for each.
//
// prepare(j) is called before x[j], x[j + R/4] ... are first used, j < R/4 or 0, and finish(r) once
// x[at(r)] is final: shuffles there take turns with the arithmetic.
//
// With fused multiply-adds the products are part of butterflies of two.
template <size_t R>
struct FusedTwiddled {
  static constexpr size_t kFactors = R / 2;
  static constexpr size_t at(size_t r) {
    return 2 * FusedTwiddled<R / 2>::at(r % (R / 2)) + r / (R / 2);
  }
  template <class D, class V, class Factor, class Prepare, class Finish>
  static HWY_INLINE void run(D d, Parts<V>* x, const Factor& factor, const Prepare& prepare,
                             const Finish& finish) {
    part<0, 1>(d, x, factor, prepare, finish);
  }

  // Of x[first], x[first + step] and on.
  template <size_t first, size_t step, class D, class V, class Factor, class Prepare, class Finish>
  static HWY_INLINE void part(D d, Parts<V>* x, const Factor& factor, const Prepare& prepare,
                              const Finish& finish) {
    using Half = FusedTwiddled<R / 2>;
    const auto later = [](size_t /*r*/) HWY_ATTR __attribute__((always_inline)){};
    if constexpr (R == 4) prepare(std::integral_constant<size_t, first>());
    Half::template part<first, 2 * step>(d, x, factor, prepare, later);
    Half::template part<first + step, 2 * step>(d, x, factor, prepare, later);
    each<R / 4>([&](auto k) HWY_ATTR __attribute__((always_inline)) {
      constexpr size_t quarter = R / 4;
      const Parts<V> w = factor(quarter + k);
      Parts<V>* const y = x + first;
      twiddledPair(d, y[step * at(k)], y[step * at(k + 2 * quarter)], w);
      finish(std::integral_constant<size_t, k>());
      finish(std::integral_constant<size_t, k + 2 * quarter>());
      twiddledTurnedPair(d, y[step * at(k + quarter)], y[step * at(k + 3 * quarter)], w);
      finish(std::integral_constant<size_t, k + quarter>());
      finish(std::integral_constant<size_t, k + 3 * quarter>());
    });
  }
};

template <>
struct FusedTwiddled<2> {
  static constexpr size_t kFactors = 1;
  static constexpr size_t at(size_t r) {
    return r;
  }
  template <class D, class V, class Factor, class Prepare, class Finish>
  static HWY_INLINE void run(D d, Parts<V>* x, const Factor& factor, const Prepare& prepare,
                             const Finish& finish) {
    prepare(std::integral_constant<size_t, 0>());
    part<0, 1>(d, x, factor, prepare, finish);
  }
  template <size_t first, size_t step, class D, class V, class Factor, class Prepare, class Finish>
  static HWY_INLINE void part(D d, Parts<V>* x, const Factor& factor, const Prepare& /*prepare*/,
                              const Finish& finish) {
    twiddledPair(d, x[first], x[first + step], factor(0));
    finish(std::integral_constant<size_t, 0>());
    finish(std::integral_constant<size_t, 1>());
  }
};

// Without, products come first.
template <size_t R>
struct PlainTwiddled {
  static constexpr size_t kFactors = R - 1;
  static constexpr size_t at(size_t r) {
    return Transform<R>::at(r);
  }
  template <class D, class V, class Factor, class Prepare, class Finish>
  static HWY_INLINE void run(D d, Parts<V>* x, const Factor& factor, const Prepare& prepare,
                             const Finish& finish) {
    each<HWY_MAX(R / 4, 1)>(prepare);
    each<R - 1>([&](auto j) HWY_ATTR __attribute__((always_inline)) {
      const Parts<V> w = factor(j);
      x[j + 1] = times(x[j + 1], w.re, w.im);
    });
    Transform<R>::run(d, x);
    each<R>(finish);
  }
};

constexpr bool kFusesTwiddles = HWY_NATIVE_FMA != 0;

template <size_t R>
using Twiddled = std::conditional_t<kFusesTwiddles, FusedTwiddled<R>, PlainTwiddled<R>>;

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
