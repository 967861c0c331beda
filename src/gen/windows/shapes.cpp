#include "gen/windows/shapes.h"

#include <cmath>

namespace veks {
namespace {

constexpr long double kPi = 3.14159265358979323846264338327950288L;

// M. Abramowitz, I. A. Stegun, "Handbook of Mathematical Functions", 9.8.1 and 9.8.2
constexpr long double kSmall[] = {1.0L,       3.5156229L, 3.0899424L, 1.2067492L,
                                  0.2659732L, 0.0360768L, 0.0045813L};
constexpr long double kLarge[] = {0.39894228L,  0.01328592L,  0.00225319L,
                                  -0.00157565L, 0.00916281L,  -0.02057706L,
                                  0.02635537L,  -0.01647633L, 0.00392377L};
constexpr long double kLimit = 3.75L;

// The 64 digits of a long double.
TwoDoubles split(long double x) {
  const double hi = static_cast<double>(x);
  return {hi, static_cast<double>(x - hi)};
}

template <size_t n>
long double polynomial(const long double (&coefficients)[n], long double x) {
  long double sum = 0;
  for (size_t i = n; i > 0; --i) sum = sum * x + coefficients[i - 1];
  return sum;
}

}  // namespace

Vek32f optimalAlpha(size_t n) {
  const double ratio = 0.5 / std::cos(static_cast<double>(kPi) / static_cast<double>(n - 1));
  return static_cast<Vek32f>(-(ratio * ratio));
}

TwoDoubles stepOf(size_t n, int factor) {
  return split(static_cast<long double>(factor) / static_cast<long double>(n - 1));
}

TwoDoubles angleStepOf(size_t n, double factor) {
  return split(factor * kPi / static_cast<long double>(n - 1));
}

KaiserParameters kaiserParameters(size_t n, double alpha) {
  const long double magnitude = std::fabs(static_cast<long double>(alpha));
  const long double last = static_cast<long double>(n - 1);
  const long double x0 = magnitude * last / 2;
  // Of the two forms of I0, without exp(x0) / sqrt(x0).
  const long double largeScale = std::sqrt(x0) / polynomial(kLarge, kLimit / x0);
  const long double u0 = x0 * x0 / (kLimit * kLimit);
  const long double smallScale =
      x0 < kLimit ? 1 / polynomial(kSmall, u0) : largeScale * std::exp(-x0);
  KaiserParameters p = {};
  p.alpha = static_cast<double>(magnitude);
  p.inverseAlpha = static_cast<double>(1 / magnitude);
  p.last = static_cast<double>(n - 1);
  p.greatest = split(x0);
  p.perProduct = split(magnitude * magnitude / (kLimit * kLimit));
  p.smallStart[0] = split(smallScale * kSmall[0]);
  p.smallStart[1] = split(smallScale * kSmall[1]);
  p.largeStart = split(largeScale * kLarge[0]);
  for (size_t i = 0; i < 7; ++i) p.small[i] = static_cast<double>(smallScale * kSmall[i]);
  for (size_t i = 0; i < 9; ++i) p.large[i] = static_cast<double>(largeScale * kLarge[i]);
  return p;
}

}  // namespace veks
