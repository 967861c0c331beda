// The weights of windows without exponentials. Weights<Shape, W> computes them as doubles that are
// good enough for results of type W, for any vector of positions m = 0, 1, ... (n - 1) / 2.
#if defined(VEKS_GEN_WINDOWS_WEIGHTS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_GEN_WINDOWS_WEIGHTS_INL_H
#undef VEKS_GEN_WINDOWS_WEIGHTS_INL_H
#else
#define VEKS_GEN_WINDOWS_WEIGHTS_INL_H
#endif

#include "gen/windows/compensated-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <class Shape, class W>
struct Weights;

// 2 m / (n - 1)
template <class W>
struct Weights<Bartlett, W> {
  TwoDoubles step;
  explicit Weights(size_t n) : step(stepOf(n, 2)) {}

  template <class D, class V>
  HWY_INLINE V operator()(D d, V m) const {
    if constexpr (sizeof(W) == sizeof(float)) return hn::Mul(m, hn::Set(d, step.hi));
    return rounded(product(d, m, step));
  }
};

// sin^2(pi m / (n - 1)), from which the other shapes follow. A cosine would cancel at the ends.
template <class W>
struct SquaredSine;

// A polynomial in (m / (n - 1))^2 with a relative error of 2^-32.
template <>
struct SquaredSine<float> {
  double step;
  explicit SquaredSine(size_t n) : step(stepOf(n, 1).hi) {}

  template <class D, class V>
  HWY_INLINE V operator()(D d, V m) const {
    static constexpr double kCoefficients[] = {
        0x1.3bd3cc9b1ffecp+3, -0x1.03c1f03e8836fp+5, 0x1.55d3b86b73d05p+5, -0x1.e1f24c6393670p+4,
        0x1.a6966ba5de379p+3, -0x1.f48a3eb3f4aecp+1, 0x1.7a243cd6774a3p-1};
    const V x = hn::Mul(m, hn::Set(d, step));
    const V square = hn::Mul(x, x);
    return hn::Mul(square, polynomial(d, kCoefficients, square));
  }
};

// The sine of at most an eighth of the circle is the angle and a polynomial that is small beside
// it; the squared cosine is the rest to 1.
template <>
struct SquaredSine<double> {
  double last;
  TwoDoubles angleStep;
  explicit SquaredSine(size_t n)
      : last(static_cast<double>(n - 1)), angleStep(angleStepOf(n, 0.5)) {}

  // Squares of sine and cosine.
  template <class V>
  struct Squares {
    Compensated<V> sine;
    Compensated<V> cosine;
  };

  template <class D, class V>
  HWY_INLINE Squares<V> both(D d, V m) const {
    const V twice = hn::Add(m, m);
    const V toMiddle = hn::Sub(hn::Set(d, last), twice);
    const auto isSteep = hn::Gt(twice, toMiddle);
    const Compensated<V> lesser = squaredSine(d, hn::Min(twice, toMiddle));
    const Compensated<V> other =
        quickSum(hn::Set(d, 1.0), {hn::Neg(lesser.hi), hn::Neg(lesser.lo)});
    return {{hn::IfThenElse(isSteep, other.hi, lesser.hi),
             hn::IfThenElse(isSteep, other.lo, lesser.lo)},
            {hn::IfThenElse(isSteep, lesser.hi, other.hi),
             hn::IfThenElse(isSteep, lesser.lo, other.lo)}};
  }

  template <class D, class V>
  HWY_INLINE V operator()(D d, V m) const {
    return rounded(both(d, m).sine);
  }

 private:
  // sin^2(k pi / (2 n - 2)), 2 k <= n - 1
  template <class D, class V>
  HWY_INLINE Compensated<V> squaredSine(D d, V k) const {
    static constexpr double kCoefficients[] = {-0x1.5555555555549p-3,  0x1.111111110f87ep-7,
                                               -0x1.a01a019c12062p-13, 0x1.71de35781831cp-19,
                                               -0x1.ae5e6689839e5p-26, 0x1.5d93189682bd8p-33};
    const Compensated<V> angle = product(d, k, angleStep);
    const V square = hn::Mul(angle.hi, angle.hi);
    const V cubic = hn::Mul(hn::Mul(angle.hi, square), polynomial(d, kCoefficients, square));
    const V cosine = hn::NegMulAdd(hn::Set(d, 0.5), square, hn::Set(d, 1.0));
    const Compensated<V> sine = quickSum(angle.hi, {cubic, hn::Mul(angle.lo, cosine)});
    const V hi = hn::Mul(sine.hi, sine.hi);
    return {hi, hn::MulSub(hn::Add(sine.hi, sine.hi), sine.lo, residual(d, hi, sine.hi, sine.hi))};
  }
};

template <class W>
struct Weights<Hann, W> : SquaredSine<W> {
  using SquaredSine<W>::SquaredSine;
};

template <class W>
struct Weights<Hamming, W> {
  SquaredSine<W> hann;
  explicit Weights(size_t n) : hann(n) {}

  template <class D, class V>
  HWY_INLINE V operator()(D d, V m) const {
    return hn::MulAdd(hann(d, m), hn::Set(d, 0.92), hn::Set(d, 0.08));
  }
};

// With s = sin^2 and c = cos^2 the weight is s * (1 + 4 alpha c). Below -1/4 of alpha the window is
// negative towards its ends, and the sum cancels where it changes its sign.
template <>
struct Weights<Blackman, double> {
  SquaredSine<double> squares;
  double slope;
  Weights(size_t n, double alpha) : squares(n), slope(4 * alpha) {}

  template <class D, class V>
  HWY_INLINE V operator()(D d, V m) const {
    const auto both = squares.both(d, m);
    const V factor = hn::Set(d, slope);
    const V hi = hn::Mul(both.cosine.hi, factor);
    const V lo = hn::MulSub(both.cosine.lo, factor, residual(d, hi, both.cosine.hi, factor));
    return rounded(product(d, both.sine, sum(hn::Set(d, 1.0), Compensated<V>{hi, lo})));
  }
};

// The same as s * (1 + 4 alpha - 4 alpha s), which has no negative term for alphas of -1/4 .. 0. Up
// to 1, an error of s of 2^-32 is one of the weight of 2^-29 at most.
template <>
struct Weights<Blackman, float> {
  SquaredSine<float> hann;
  double slope;
  Weights(size_t n, double alpha) : hann(n), slope(4 * alpha) {}
  static bool isValidFor(double alpha) {
    return alpha >= -0.25 && alpha <= 1;
  }

  template <class D, class V>
  HWY_INLINE V operator()(D d, V m) const {
    const V sine = hann(d, m);
    return hn::Mul(sine, hn::NegMulAdd(hn::Set(d, slope), sine, hn::Set(d, 1 + slope)));
  }
};

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
