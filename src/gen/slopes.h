#ifndef VEKS_GEN_SLOPES_H
#define VEKS_GEN_SLOPES_H

#include "gen/turns.h"

namespace veks {

// x / y with twice the precision.
inline Exact exactQuotient(Exact x, Exact y) {
  const double quotient = x.value / y.value;
  const Exact product = exactProduct(quotient, y.value);
  const double left = (x.value - product.value) - product.rest;
  return {quotient, (left + (x.rest - quotient * y.rest)) / y.value};
}

// A change by 2 within `width` turns.
struct Slope {
  Exact width;
  Exact perTurn;
};

// Within pi + asym radians, asym >= -pi. The pi of the asymmetry may be the double below the exact
// one, so there is always some width.
inline Slope slopeOf(double asym) {
  const Exact sum = exactSum(kPi, asym);
  const Exact width = exactSum(sum.value, sum.rest + kTwoPiRest / 2);
  return {exactQuotient(width, {kTwoPi, kTwoPiRest}),
          exactQuotient({2 * kTwoPi, 2 * kTwoPiRest}, width)};
}

}  // namespace veks

#endif
