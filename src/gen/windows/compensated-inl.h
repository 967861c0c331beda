// Values of twice the precision of a double, where one rounding more would be too much.
#if defined(VEKS_GEN_WINDOWS_COMPENSATED_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_GEN_WINDOWS_COMPENSATED_INL_H
#undef VEKS_GEN_WINDOWS_COMPENSATED_INL_H
#else
#define VEKS_GEN_WINDOWS_COMPENSATED_INL_H
#endif

#include <hwy/highway.h>

#include "core/targets.h"
#include "gen/windows/shapes.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// hi + lo, |lo| far below |hi|.
template <class V>
struct Compensated {
  V hi;
  V lo;
};

// c - a * b, rounded once. Without fused operations c must be close to the product, which is then
// put together from those of half the digits (T. J. Dekker, "A floating-point technique for
// extending the available precision", Numer. Math. 18 (1971)).
template <class D, class V>
HWY_INLINE V residual(D d, V c, V a, V b) {
#if HWY_TARGET <= HWY_AVX2
  (void)d;
  return hn::NegMulAdd(a, b, c);
#else
  const V splitter = hn::Set(d, 134217729.0);
  const V wideA = hn::Mul(a, splitter);
  const V wideB = hn::Mul(b, splitter);
  const V highA = hn::Sub(wideA, hn::Sub(wideA, a));
  const V highB = hn::Sub(wideB, hn::Sub(wideB, b));
  const V lowA = hn::Sub(a, highA);
  const V lowB = hn::Sub(b, highB);
  const V middle = hn::Sub(hn::Sub(hn::Sub(c, hn::Mul(highA, highB)), hn::Mul(lowA, highB)),
                           hn::Mul(highA, lowB));
  return hn::Sub(middle, hn::Mul(lowA, lowB));
#endif
}

// a * b
template <class D, class V>
HWY_INLINE Compensated<V> product(D d, V a, TwoDoubles b) {
  const V hi = hn::Mul(a, hn::Set(d, b.hi));
  return {hi, hn::MulSub(a, hn::Set(d, b.lo), residual(d, hi, a, hn::Set(d, b.hi)))};
}

// a + b.hi + b.lo, |a| >= |b.hi|
template <class V>
HWY_INLINE Compensated<V> quickSum(V a, Compensated<V> b) {
  const V hi = hn::Add(a, b.hi);
  return {hi, hn::Add(hn::Sub(b.hi, hn::Sub(hi, a)), b.lo)};
}

// The same for any a (D. E. Knuth, "The Art of Computer Programming", vol. 2, 4.2.2).
template <class V>
HWY_INLINE Compensated<V> sum(V a, Compensated<V> b) {
  const V hi = hn::Add(a, b.hi);
  const V partOfB = hn::Sub(hi, a);
  const V error = hn::Add(hn::Sub(a, hn::Sub(hi, partOfB)), hn::Sub(b.hi, partOfB));
  return {hi, hn::Add(error, b.lo)};
}

// a * b
template <class D, class V>
HWY_INLINE Compensated<V> product(D d, Compensated<V> a, Compensated<V> b) {
  const V hi = hn::Mul(a.hi, b.hi);
  return {hi, hn::MulAdd(a.hi, b.lo, hn::MulSub(a.lo, b.hi, residual(d, hi, a.hi, b.hi)))};
}

template <class V>
HWY_INLINE V rounded(Compensated<V> a) {
  return hn::Add(a.hi, a.lo);
}

// coefficients[first] + coefficients[first + 1] * x + ... by Horner's rule
template <size_t first = 0, size_t n, class D, class V>
HWY_INLINE V polynomial(D d, const double (&coefficients)[n], V x) {
  V sum = hn::Set(d, coefficients[n - 1]);
#pragma GCC unroll 16
  for (size_t i = n - 1; i > first; --i) {
    sum = hn::MulAdd(sum, x, hn::Set(d, coefficients[i - 1]));
  }
  return sum;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
