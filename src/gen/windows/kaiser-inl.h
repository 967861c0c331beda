// The weights of Kaiser windows, from exp(x - x0), which does not overflow.
#if defined(VEKS_GEN_WINDOWS_KAISER_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_GEN_WINDOWS_KAISER_INL_H
#undef VEKS_GEN_WINDOWS_KAISER_INL_H
#else
#define VEKS_GEN_WINDOWS_KAISER_INL_H
#endif

#include "core/convert-inl.h"
#include "gen/windows/weights-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// exp(x) = 2^exponent * (1 + fraction), the lanes of exponent being those of an integer beside 1.5
// * 2^52.
template <class V>
struct Exponential {
  V exponent;
  Compensated<V> fraction;
};

// |x.hi| < 2^20. The polynomial of 10 terms has an error of 2^-58, that of 6, for floats, of 2^-34.
// The first part of log(2) has 32 digits: its product with the exponent is exact.
template <class W, class D, class V>
HWY_INLINE Exponential<V> exponential(D d, Compensated<V> x) {
  static constexpr double kForFloats[] = {0x1.0000004346f95p-1,  0x1.5555559858cdfp-3,
                                          0x1.55547f93db29ap-5,  0x1.11107c7277e85p-7,
                                          0x1.6d97349352325p-10, 0x1.a1b8b01029f6cp-13};
  static constexpr double kForDoubles[] = {
      0x1.000000000000cp-1,  0x1.5555555555561p-3,  0x1.555555554ff93p-5,  0x1.111111110d5d0p-7,
      0x1.6c16c185ca94cp-10, 0x1.a01a01bb06a20p-13, 0x1.a0199631547c3p-16, 0x1.71dddf79996fcp-19,
      0x1.28b0a68ca7251p-22, 0x1.af860b5815573p-26};
  const V unit = hn::Set(d, 0x1.8p52);
  const V exponent = hn::MulAdd(x.hi, hn::Set(d, 0x1.71547652b82fep0), unit);
  const V k = hn::Sub(exponent, unit);
  const V rest = hn::NegMulAdd(k, hn::Set(d, 0x1.62e42feep-1), x.hi);
  const V correction = hn::Mul(k, hn::Set(d, 0x1.a39ef35793c76p-33));
  const V hi = hn::Sub(rest, correction);
  const V square = hn::Mul(hi, hi);
  if constexpr (sizeof(W) == sizeof(float)) {
    return {exponent, {hi, hn::Mul(square, polynomial(d, kForFloats, hi))}};
  } else {
    const V lo = hn::Add(hn::Sub(hn::Sub(rest, hi), correction), x.lo);
    const V tail = hn::Mul(square, polynomial(d, kForDoubles, hi));
    return {exponent, {hi, hn::Add(tail, hn::MulAdd(lo, hn::Add(hi, tail), lo))}};
  }
}

// v * 2^exponent, a normal number.
template <class D, class V>
HWY_INLINE V timesPower(D d, V v, V exponent) {
  const hn::RebindToSigned<D> di;
  const auto bits = hn::ShiftLeft<52>(hn::BitCast(di, exponent));
  return hn::BitCast(d, hn::Add(hn::BitCast(di, v), bits));
}

template <class W>
struct Weights<Kaiser, W> {
  KaiserParameters p;
  Weights(size_t n, double alpha) : p(kaiserParameters(n, alpha)) {}

  template <class D, class V>
  HWY_INLINE V operator()(D d, V m) const {
    const V rest = hn::Sub(hn::Set(d, p.last), m);
    const V pairs = hn::Mul(m, rest);
    const V error = residual(d, pairs, m, rest);
    const Compensated<V> u = scaled(d, pairs, error);
    const auto isSmall = hn::Lt(u.hi, hn::Set(d, 1.0));
    if (hn::AllTrue(d, isSmall)) return small(d, u);
    const V atLarge = large(d, pairs, error);
    if (hn::AllFalse(d, isSmall)) return atLarge;
    return hn::IfThenElse(isSmall, small(d, u), atLarge);
  }

 private:
  static constexpr bool kIsDouble = sizeof(W) == sizeof(double);

  // (pairs - error) * perProduct
  template <class D, class V>
  HWY_INLINE Compensated<V> scaled(D d, V pairs, V error) const {
    const Compensated<V> u = product(d, pairs, p.perProduct);
    return {u.hi, hn::NegMulAdd(error, hn::Set(d, p.perProduct.hi), u.lo)};
  }

  template <class D, class V>
  HWY_INLINE V small(D d, Compensated<V> u) const {
    const V rest = polynomial<2>(d, p.small, u.hi);
    if constexpr (!kIsDouble) {
      const V slope = hn::MulAdd(rest, u.hi, hn::Set(d, p.small[1]));
      return hn::MulAdd(slope, u.hi, hn::Set(d, p.small[0]));
    }
    const Compensated<V> slope =
        productSum(d, Compensated<V>{rest, hn::Zero(d)}, u, p.smallStart[1]);
    return rounded(productSum(d, slope, u, p.smallStart[0]));
  }

  // a * b + c
  template <class D, class V>
  HWY_INLINE Compensated<V> productSum(D d, Compensated<V> a, Compensated<V> b,
                                       TwoDoubles c) const {
    const Compensated<V> ab = product(d, a, b);
    return sum(hn::Set(d, c.hi), Compensated<V>{ab.hi, hn::Add(ab.lo, hn::Set(d, c.lo))});
  }

  template <class D, class V>
  HWY_INLINE V large(D d, V pairs, V error) const {
    if constexpr (kIsDouble) {
      return largeForDoubles(d, pairs, error);
    } else {
      return largeForFloats(d, pairs);
    }
  }

  // 1 / sqrt(v) by a Newton step from an approximation of single precision.
  template <class D, class V>
  static HWY_INLINE V inverseRoot(D d, V v, V approximation) {
    const V half = hn::Set(d, 0.5);
    const V square = hn::Mul(approximation, approximation);
    const V rest = hn::NegMulAdd(hn::Mul(half, v), square, half);
    return hn::MulAdd(approximation, rest, approximation);
  }

  // Divisions and roots are those of single precision, which take a third of the time.
  template <class D, class V>
  HWY_INLINE V largeForFloats(D d, V pairs) const {
    const hn::Rebind<float, D> df;
    const auto one = hn::Set(df, 1.0f);
    const auto rough = hn::Div(one, hn::Sqrt(demoteFloats(df, pairs)));
    const V byRoot = inverseRoot(d, pairs, hn::PromoteTo(d, rough));
    const V x = hn::Mul(hn::Set(d, p.alpha), hn::Mul(pairs, byRoot));
    const V inverse = hn::Mul(hn::Set(d, p.inverseAlpha), byRoot);
    const auto roughRoot = hn::Sqrt(demoteFloats(df, inverse));
    const V byRootOfX = inverseRoot(d, x, hn::PromoteTo(d, roughRoot));
    const V s = hn::Mul(inverse, hn::Set(d, 3.75));
    const V factor = hn::Mul(polynomial(d, p.large, s), byRootOfX);
    const Compensated<V> difference = {hn::Sub(x, hn::Set(d, p.greatest.hi)), hn::Zero(d)};
    const Exponential<V> e = exponential<W>(d, difference);
    return timesPower(d, hn::MulAdd(factor, rounded(e.fraction), factor), e.exponent);
  }

  template <class D, class V>
  HWY_INLINE V largeForDoubles(D d, V pairs, V error) const {
    const V alpha = hn::Set(d, p.alpha);
    const V one = hn::Set(d, 1.0);
    const V half = hn::Set(d, 0.5);
    const V root = hn::Sqrt(pairs);
    const V x = hn::Mul(alpha, root);
    const V inverse = hn::Div(one, x);
    const V byRootOfX = hn::Sqrt(inverse);
    const V s = hn::Mul(inverse, hn::Set(d, 3.75));
    const V tail = hn::Mul(s, polynomial<1>(d, p.large, s));
    const V difference = hn::Sub(x, hn::Set(d, p.greatest.hi));
    // What is lost in the root, in x and in the difference.
    const V rootError = hn::Mul(hn::Sub(residual(d, pairs, root, root), error),
                                hn::Mul(half, hn::Mul(alpha, inverse)));
    const V xError = hn::MulSub(alpha, rootError, residual(d, x, alpha, root));
    const V low = hn::Sub(xError, hn::Set(d, p.greatest.lo));
    const V lost = hn::Sub(x, hn::Add(difference, hn::Set(d, p.greatest.hi)));
    const Exponential<V> e = exponential<W>(d, Compensated<V>{difference, hn::Add(low, lost)});
    // What is lost in 1 / sqrt(x), relative to it.
    const V ofX = hn::Mul(x, byRootOfX);
    const V ofXError = residual(d, ofX, x, byRootOfX);
    const V off = hn::MulAdd(ofXError, byRootOfX, residual(d, one, ofX, byRootOfX));
    const V relative = hn::Mul(half, hn::NegMulAdd(xError, inverse, off));
    const Compensated<V> series =
        quickSum(hn::Set(d, p.largeStart.hi), Compensated<V>{tail, hn::Set(d, p.largeStart.lo)});
    const V factor = hn::Mul(series.hi, byRootOfX);
    const V factorLoss = residual(d, factor, series.hi, byRootOfX);
    const V factorError =
        hn::MulAdd(series.lo, byRootOfX, hn::MulSub(factor, relative, factorLoss));
    const V lo =
        hn::MulAdd(factor, e.fraction.lo, hn::MulAdd(factorError, e.fraction.hi, factorError));
    const V weight = hn::Add(factor, hn::MulAdd(factor, e.fraction.hi, lo));
    return timesPower(d, weight, e.exponent);
  }
};

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
