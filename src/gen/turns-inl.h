// Vectors of arguments in turns, and their cosines and sines.
#if defined(VEKS_GEN_TURNS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_GEN_TURNS_INL_H
#undef VEKS_GEN_TURNS_INL_H
#else
#define VEKS_GEN_TURNS_INL_H
#endif

#include <hwy/highway.h>

#include "core/round-inl.h"
#include "gen/turns.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// coarse + fine turns: coarse is a multiple of 2^-40, |coarse| <= 1/2, |fine| <= 2^-41.
template <class V>
struct Turns {
  V coarse;
  V fine;
};

template <class D, class V>
HWY_INLINE V withoutWhole(D d, V turns) {
  return hn::Sub(turns, nearest(d, turns));
}

// The arguments of the samples k, integers of at most 2^31. All sums of coarse turns are exact.
template <class D, class V>
HWY_INLINE Turns<V> turnsAt(D d, const Argument& argument, V k) {
  const Frequency& f = argument.frequency;
  const V coarse = withoutWhole(d, hn::Mul(hn::Set(d, f.coarse), k));
  const V middle = withoutWhole(d, hn::Mul(hn::Set(d, f.middle), k));
  const V fine = hn::MulAdd(hn::Set(d, f.fine), k, hn::Set(d, argument.fine));
  const V unit = hn::Set(d, kMultiplesOf40);
  const V carry = hn::Sub(hn::Add(fine, unit), unit);
  const V start = hn::Add(hn::Set(d, argument.coarse), carry);
  return {withoutWhole(d, hn::Add(hn::Add(coarse, middle), start)), hn::Sub(fine, carry)};
}

// The sum of terms[i] * x^i.
template <class D, class V, size_t n>
HWY_INLINE V polynomial(D d, V x, const double (&terms)[n]) {
  V sum = hn::Set(d, terms[n - 1]);
#pragma GCC unroll 16
  for (size_t i = n - 1; i > 0; --i) sum = hn::MulAdd(sum, x, hn::Set(d, terms[i - 1]));
  return sum;
}

template <class V>
struct CosSin {
  V cos;
  V sin;
};

// Within 0.6 units in the last place of 1. Quarter turns are exact.
template <class D, class V>
HWY_INLINE CosSin<V> cosSinOf(D d, const Turns<V>& turns) {
  // Taylor's series, for at most an eighth of a turn.
  constexpr double kSin[] = {
      -1.0 / 6,        1.0 / 120,        -1.0 / 5040,         1.0 / 362880,
      -1.0 / 39916800, 1.0 / 6227020800, -1.0 / 1307674368e3, 1.0 / 355687428096e3};
  constexpr double kCos[] = {1.0 / 24,           -1.0 / 720,      1.0 / 40320,
                             -1.0 / 3628800,     1.0 / 479001600, -1.0 / 87178291200,
                             1.0 / 20922789888e3};
  const V one = hn::Set(d, 1.0);
  const V quarters = nearest(d, hn::Mul(turns.coarse, hn::Set(d, 4.0)));
  const V coarse = hn::NegMulAdd(quarters, hn::Set(d, 0.25), turns.coarse);

  // The angle in radians is angle + rest. `high` and the head of 2 pi have 26 bits each, so that
  // their product is exact.
  constexpr double kHead = 6.2831852436065673828125;
  constexpr double kTail = 6.35730190941127867666e-8;
  const V unit = hn::Set(d, 12582912.0);
  const V high = hn::Sub(hn::Add(coarse, unit), unit);
  const V low = hn::Add(hn::Sub(coarse, high), turns.fine);
  const V head = hn::Mul(high, hn::Set(d, kHead));
  const V tail = hn::MulAdd(high, hn::Set(d, kTail), hn::Mul(low, hn::Set(d, kTwoPi)));
  const V angle = hn::Add(head, tail);
  const V rest = hn::Sub(tail, hn::Sub(angle, head));

  const V square = hn::Mul(angle, angle);
  const V half = hn::Mul(square, hn::Set(d, 0.5));
  const V sinTail = hn::MulAdd(hn::Mul(angle, square), polynomial(d, square, kSin),
                               hn::NegMulAdd(half, rest, rest));
  const V sin = hn::Add(angle, sinTail);
  const V most = hn::Sub(one, half);
  const V cosTail =
      hn::NegMulAdd(angle, rest, hn::Mul(hn::Mul(square, square), polynomial(d, square, kCos)));
  const V cos = hn::Add(most, hn::Add(hn::Sub(hn::Sub(one, most), half), cosTail));

  const auto odd = hn::Eq(hn::Abs(quarters), one);
  const V oneAndHalf = hn::Set(d, 1.5);
  const V minusHalf = hn::Set(d, -0.5);
  const V x = hn::IfThenElse(odd, sin, cos);
  const V y = hn::IfThenElse(odd, cos, sin);
  const auto isLeft =
      hn::Or(hn::Gt(quarters, hn::Neg(minusHalf)), hn::Lt(quarters, hn::Neg(oneAndHalf)));
  const auto isLower = hn::Or(hn::Gt(quarters, oneAndHalf), hn::Lt(quarters, minusHalf));
  return {hn::IfThenElse(isLeft, hn::Neg(x), x), hn::IfThenElse(isLower, hn::Neg(y), y)};
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
