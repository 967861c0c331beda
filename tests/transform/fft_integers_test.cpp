// 16-bit Fourier transforms against the exact result, scaled, rounded and saturated.
#include <limits>

#include "transform/fft_transforms.h"

namespace veks::test {
namespace {

long double saturated(long double x) {
  return std::clamp(std::nearbyint(x), -32768.0L, 32767.0L);
}

// Within `slack` of the exact result. The conjugate of a least value is none.
void checkResult(const Points& exact, const Points& got, size_t stored, long double slack) {
  const auto isNear = [=](long double wanted, long double value) {
    return std::fabs(saturated(wanted) - value) <= slack;
  };
  for (size_t i = 0; i < stored; ++i) {
    ASSERT_TRUE(isNear(exact[i].re, got[i].re) && isNear(exact[i].im, got[i].im))
        << "point " << i << ": (" << static_cast<double>(exact[i].re) << ", "
        << static_cast<double>(exact[i].im) << ") became (" << static_cast<double>(got[i].re)
        << ", " << static_cast<double>(got[i].im) << ")";
  }
}

long double largest(const Points& points) {
  long double part = 0;
  for (const Point& p : points) part = std::max({part, std::fabs(p.re), std::fabs(p.im)});
  return part;
}

// Sums of up to four values are exact. Results of which some do not fit are as good as single
// precision.
long double slackOf(const Points& exact, int order, int flag) {
  if (order <= 2 && (flag != 4 || order % 2 == 0)) return 0;
  const long double part = largest(exact);
  return part < 32767 ? 1 : std::ceil(part * 0x1p-20L) + 1;
}

void checkInput(const Transform& transform, const Points& in, int order, int flag,
                const std::vector<int>& scaleFactors) {
  const size_t n = in.size();
  const Context context(transform.contexts(), order, flag);
  const Points spectrum = transformed(in, transform.isInverse);
  const Lanes<Vek16s> lanes = encoded<Vek16s>(transform.in, in);
  std::vector<Vek8u> buffer(context.bufferBytes());
  for (int s : scaleFactors) {
    SCOPED_TRACE(std::string(transform.name) + ", order " + std::to_string(order) + ", flag " +
                 std::to_string(flag) + ", scale factor " + std::to_string(s));
    // Beyond the limits all results are alike.
    const long double factor = std::ldexp(factorOf(transform, flag, n), -std::clamp(s, -200, 200));
    Points exact = spectrum;
    for (Point& p : exact) p = factor * p;
    const Lanes<Vek16s> out = resultOf(transform, context, lanes, n, s);
    checkResult(exact, decoded(transform.out, out, n), storedPoints(transform.out, n),
                slackOf(exact, order, flag));
    Vek8u* const start = buffer.empty() ? nullptr : buffer.data();
    ASSERT_TRUE(out == resultOf(transform, context, lanes, n, s, start, true)) << "in place";
  }
}

template <class Check>
void forIntegerTransforms(int order, const Check& check) {
  for (const Transform& transform : transforms()) {
    if (order > 10 && !isRepresentative(transform)) continue;
    if (transform.type == Type::k16s) check(transform);
  }
}

std::vector<int> usefulFactors(int order) {
  std::vector<int> all;
  for (int s = -2; s <= order + 2; ++s) all.push_back(s);
  return all;
}

TEST(FftIntegers, AreTheScaledExactResult) {
  onEveryTarget([] {
    for (int order = 0; order <= 9; ++order) {
      forIntegerTransforms(order, [&](const Transform& transform) {
        const Points in = randomInput(transform, size_t{1} << order);
        for (int flag : {1, 2, 4, 8}) checkInput(transform, in, order, flag, usefulFactors(order));
      });
    }
  });
}

TEST(FftIntegers, OfLongSignals) {
  for (int order = 10; order <= 15; ++order) {
    forIntegerTransforms(order, [&](const Transform& transform) {
      const Points in = randomInput(transform, size_t{1} << order);
      checkInput(transform, in, order, 8, usefulFactors(order));
      for (int flag : {1, 2, 4}) checkInput(transform, in, order, flag, {-1, order / 2});
    });
  }
}

// The least value everywhere: the largest sum there is.
TEST(FftIntegers, OfTheLargestSignals) {
  for (int order : {1, 4, 11, 15}) {
    forIntegerTransforms(order, [&](const Transform& transform) {
      const Points in(size_t{1} << order, {-32768, transform.isReal() ? 0.0L : -32768.0L});
      for (int flag : {1, 4, 8}) checkInput(transform, in, order, flag, {0, order / 2, order});
    });
  }
}

TEST(FftIntegers, TakeEveryScaleFactor) {
  constexpr int kIntMin = std::numeric_limits<int>::min();
  constexpr int kIntMax = std::numeric_limits<int>::max();
  onEveryTarget([] {
    for (int order : {0, 1, 3, 6}) {
      forIntegerTransforms(order, [&](const Transform& transform) {
        for (long double value : {7, -7}) {
          Points impulse(size_t{1} << order, {0, 0});
          impulse[0] = {value, transform.isReal() ? 0 : -value};
          checkInput(transform, impulse, order, 8,
                     {kIntMin, -1000, -150, -128, -127, -33, -32, -31, -16, 16, 31, 32, 33, 127,
                      128, 150, 1000, kIntMax});
        }
      });
    }
  });
}

}  // namespace
}  // namespace veks::test
