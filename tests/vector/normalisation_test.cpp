// Normalisation against element loops and exact rational arithmetic.
#include "veks/vector/normalisation.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <random>

#include "support.h"
#include "vector/check_trailing.h"

namespace veks::test {
namespace {

template <class T>
void checkReals(Forms<T, T, T> forms) {
  const std::vector<T> constants = {T{0}, T{1.25}, T{-3e9}, std::numeric_limits<T>::denorm_min()};
  for (T sub : constants) {
    for (T div : {T{3}, T{-0.1f}, std::numeric_limits<T>::max()}) {
      const auto normalise = [=](T& x) {
        const volatile T difference = x - sub;
        x = difference / div;
      };
      checkChange(forms, randomElements<T>(4097), normalise, sub, div);
    }
  }
}

template <class C, class T = decltype(C::re)>
void checkPairs(Forms<C, C, T> forms) {
  const C sub = {T{1.25}, T{-0.1f}};
  const T div = T{-7};
  const auto normalise = [=](C& x) {
    const volatile T re = x.re - sub.re;
    const volatile T im = x.im - sub.im;
    x = {re / div, im / div};
  };
  const std::vector<T> parts = randomElements<T>(2 * 4097);
  std::vector<C> pool(4097);
  for (size_t i = 0; i < pool.size(); ++i) pool[i] = {parts[2 * i], parts[2 * i + 1]};
  checkChange(forms, pool, normalise, sub, div);
}

TEST(Normalise, DividesFloats) {
  checkReals<Vek32f>({veksNormalize_32f, veksNormalize_32f_I});
  checkReals<Vek64f>({veksNormalize_64f, veksNormalize_64f_I});
  checkPairs<Vek32fc>({veksNormalize_32fc, veksNormalize_32fc_I});
  checkPairs<Vek64fc>({veksNormalize_64fc, veksNormalize_64fc_I});
}

// Dividends whose quotients lie next to the middle of two numbers, zeros, and all exponents.
template <class T>
std::vector<T> dividendsNextToMiddles(T div) {
  std::mt19937_64 random(5);
  std::vector<T> all = {T{0}, -T{0}};
  const T unit = std::numeric_limits<T>::epsilon();
  for (int i = 0; i < 900; ++i) {
    const auto steps = static_cast<T>(random() % 8388608);
    const T quotient = 1 + steps * unit * (i % 2 == 0 ? 1 : static_cast<T>(0.5 / unit / 8388608));
    const T dividend = quotient * div;
    all.push_back(dividend + quotient * div * unit / 2);
    all.push_back(-(quotient + quotient * unit) * div);
  }
  for (int e = std::numeric_limits<T>::min_exponent - 30; e < std::numeric_limits<T>::max_exponent;
       ++e) {
    all.push_back(std::ldexp(1 + static_cast<T>(random() % 4096) / 5000, e));
  }
  return all;
}

template <class T>
void checkRounding(Forms<T, T, T> forms) {
  const T unit = std::numeric_limits<T>::epsilon();
  for (T div : {T{1} + unit, T{2} - unit, T{2} - 2 * unit, T(0.1), T{1e9}, T(0x1p-60), T(0x1.8p60),
                T{-3}}) {
    const auto divide = [=](T& x) {
      const volatile T divisor = div;
      x = x / divisor;
    };
    checkChange(forms, dividendsNextToMiddles(div), divide, T{0}, div);
  }
}

TEST(Normalise, RoundsQuotientsCorrectly) {
  checkRounding<Vek32f>({veksNormalize_32f, veksNormalize_32f_I});
  checkRounding<Vek64f>({veksNormalize_64f, veksNormalize_64f_I});
}

// x / div * 2^-scaleFactor to nearest, ties to even, saturated. The limits of the exponent do not
// change results, and leave dividend and divisor below 2^63.
Vek16s normalised(int x, int64_t div, int scaleFactor) {
  const bool isNegative = (x < 0) != (div < 0);
  const int s = std::clamp(scaleFactor, -46, 31);
  const uint64_t dividend = static_cast<uint64_t>(std::abs(x)) << std::max(-s, 0);
  const uint64_t divisor = static_cast<uint64_t>(div < 0 ? -div : div) << std::max(s, 0);
  uint64_t quotient = dividend / divisor;
  const uint64_t remainder = dividend % divisor;
  if (2 * remainder > divisor || (2 * remainder == divisor && quotient % 2 == 1)) ++quotient;
  if (isNegative)
    return static_cast<Vek16s>(-static_cast<int>(std::min<uint64_t>(quotient, 32768)));
  return static_cast<Vek16s>(std::min<uint64_t>(quotient, 32767));
}

constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kIntMax = std::numeric_limits<int>::max();
const std::vector<int> kScaleFactors = {kIntMin, -70, -47, -46, -31, -20, -16,    -9,
                                        -8,      -7,  -6,  -5,  -4,  -1,  0,      1,
                                        2,       5,   15,  16,  17,  18,  kIntMax};
const std::vector<int> kDivisors = {
    1,      -1,    2,     3,     -6,    7,      10,      -96,      255,      1024,    32767,
    -32768, 65535, 65536, 65537, 99999, 131070, 8388607, -4194305, 16777217, kIntMin, kIntMax};

TEST(Normalise, DividesAllIntegersExactly) {
  std::vector<Vek16s> all(65536);
  for (size_t i = 0; i < all.size(); ++i) all[i] = static_cast<Vek16s>(i - 32768);
  for (int div : kDivisors) {
    for (int scaleFactor : kScaleFactors) {
      SCOPED_TRACE("divisor " + std::to_string(div) + ", factor " + std::to_string(scaleFactor));
      const Vek16s sub = static_cast<Vek16s>(div % 2 == 0 ? 32767 : -div % 1000);
      std::vector<Vek16s> expected(all.size());
      for (size_t i = 0; i < all.size(); ++i)
        expected[i] = normalised(all[i] - sub, div, scaleFactor);
      const auto check = [&](const std::vector<Vek16s>& /*src*/, const std::vector<Vek16s>& dst,
                             VekStatus status) {
        ASSERT_EQ(status, vekStsOk);
        ASSERT_TRUE(sameBits(expected, dst));
      };
      checkResults(Forms{veksNormalize_16s_Sfs, veksNormalize_16s_ISfs}, all, {65536}, check, sub,
                   div, scaleFactor);
      if (HasFatalFailure()) return;
    }
  }
}

struct Quotient {
  Vek16s x;
  int div;
  int scaleFactor;
};

// Quotients that come as close to a tie t / 2 as possible: |2 x 2^-s - t div| = 1.
std::vector<Quotient> closeToTies() {
  std::vector<Quotient> quotients;
  std::mt19937_64 random(1);
  for (int s = -16; s <= 0; ++s) {
    for (int n = 0; n < 20; ++n) {
      const int64_t x = 1 + static_cast<int64_t>(random() % 32767);
      const int64_t product = (x << (1 - s)) + (n % 2 == 0 ? 1 : -1);
      for (int64_t t = 1; t < 65536; t += 2) {
        if (product % t != 0 || product / t > kIntMax) continue;
        quotients.push_back({static_cast<Vek16s>(x), static_cast<int>(product / t), s});
        quotients.push_back({static_cast<Vek16s>(-x), static_cast<int>(product / t), s});
      }
    }
  }
  return quotients;
}

TEST(Normalise, RoundsNextToTies) {
  const std::vector<Quotient> quotients = closeToTies();
  ASSERT_GT(quotients.size(), 1000u);
  onEveryTarget([&] {
    for (const Quotient& q : quotients) {
      const std::vector<Vek16s> src(16, q.x);
      std::vector<Vek16s> dst(16);
      ASSERT_EQ(veksNormalize_16s_Sfs(src.data(), dst.data(), 16, 0, q.div, q.scaleFactor),
                vekStsOk);
      ASSERT_EQ(dst, std::vector<Vek16s>(16, normalised(q.x, q.div, q.scaleFactor)))
          << q.x << " / " << q.div << ", factor " << q.scaleFactor;
    }
  });
}

TEST(Normalise, ScalesEveryLength) {
  const std::vector<Vek16s> reals = randomBits<Vek16s>(4097);
  const std::vector<Vek16sc> pairs = randomBits<Vek16sc>(4097);
  for (int scaleFactor : {-20, -3, 0, 4}) {
    const Vek16sc sub = {-12345, 777};
    const int div = -9;
    const auto real = [=](Vek16s& x) { x = normalised(x - sub.re, div, scaleFactor); };
    const auto pair = [=](Vek16sc& x) {
      x = {normalised(x.re - sub.re, div, scaleFactor),
           normalised(x.im - sub.im, div, scaleFactor)};
    };
    checkChange(Forms{veksNormalize_16s_Sfs, veksNormalize_16s_ISfs}, reals, real, sub.re, div,
                scaleFactor);
    checkChange(Forms{veksNormalize_16sc_Sfs, veksNormalize_16sc_ISfs}, pairs, pair, sub, div,
                scaleFactor);
  }
}

TEST(Normalise, NegativeZeroIsNoDivisor) {
  const Vek32f x = 1;
  Vek32f y = 2;
  EXPECT_EQ(veksNormalize_32f(&x, &y, 1, 0, -0.0f), vekErrDivByZero);
  EXPECT_EQ(y, 2);
}

}  // namespace
}  // namespace veks::test
