// Quotients against IEEE division, single-precision loops and exact fractions.
#include <cmath>

#include "vector/check_maps.h"
#include "vector/check_scaled.h"
#include "veks/vector/arithmetic.h"

namespace veks::test {
namespace {

// The explicit rule for zero divisors.
template <class T>
T quotient(T divisor, T dividend) {
  using Limits = std::numeric_limits<T>;
  if (divisor != 0) return dividend / divisor;
  if (dividend > 0) return Limits::infinity();
  if (dividend < 0) return -Limits::infinity();
  return -Limits::quiet_NaN();
}

template <class T>
struct Division {
  VekStatus (*out)(const T*, const T*, T*, int);
  VekStatus (*in)(const T*, T*, int);
};

template <class T>
void checkDivision(const Division<T>& f) {
  std::vector<T> a = randomElements<T>(5000, 1);
  std::vector<T> b = randomElements<T>(5000, 2);
  for (size_t i = 0; i < a.size(); ++i) {
    // Infinities divided by each other give the same NaN, but its sign is not ours to say.
    if (std::isinf(a[i]) && std::isinf(b[i])) b[i] = 1;
    if (i % 3 == 0) a[i] = static_cast<T>(static_cast<int>(i % 90)) - 45;
  }
  onEveryTarget([&] {
    for (bool zeros : {false, true}) {
      for (int len : testLengths()) {
        std::vector<T> divisors(a.begin(), a.begin() + len);
        if (!zeros) {
          for (T& x : divisors) x = x == 0 ? T{1} : x;
        } else {
          const T zero = len % 2 == 0 ? T{0} : -T{0};
          divisors[static_cast<size_t>(len) / 2] = zero;
        }
        std::vector<T> expected(divisors.size());
        std::vector<T> srcDst(b.begin(), b.begin() + len);
        if (zeros && len % 4 == 0) srcDst[static_cast<size_t>(len) / 2] = 0;
        for (size_t i = 0; i < expected.size(); ++i) expected[i] = quotient(divisors[i], srcDst[i]);
        std::vector<T> dst(expected.size());
        const VekStatus status = zeros ? vekWrnDivByZero : vekStsOk;
        ASSERT_EQ(f.out(divisors.data(), srcDst.data(), dst.data(), len), status);
        ASSERT_TRUE(sameBits(expected, dst));
        ASSERT_EQ(f.in(divisors.data(), srcDst.data(), len), status);
        ASSERT_TRUE(sameBits(expected, srcDst)) << "in place";
      }
    }
  });
}

TEST(Quotients, FloatingPoint) {
  checkDivision<Vek32f>({veksDiv_32f, veksDiv_32f_I});
  checkDivision<Vek64f>({veksDiv_64f, veksDiv_64f_I});
}

TEST(Quotients, OfAConstant) {
  const Vek32f val = -7;
  std::vector<Vek32f> src = randomElements<Vek32f>(3000);
  src[2999] = 0;
  std::vector<Vek32f> expected(src.size());
  for (size_t i = 0; i < src.size(); ++i) expected[i] = quotient(src[i], val);
  std::vector<Vek16u> shorts = operands<Vek16u>(false);
  std::vector<Vek16u> expectedShorts = {65535};
  for (int x = 1; x < 65536; ++x) {
    expectedShorts.push_back(static_cast<Vek16u>(std::nearbyint(50000.0 / x)));
  }
  onEveryTarget([&] {
    std::vector<Vek32f> dst(src.size());
    EXPECT_EQ(veksDivCRev_32f(src.data(), val, dst.data(), 3000), vekWrnDivByZero);
    EXPECT_TRUE(sameBits(expected, dst));
    EXPECT_EQ(veksDivCRev_32f(src.data(), val, dst.data(), 1), vekStsOk);
    dst = src;
    EXPECT_EQ(veksDivCRev_32f_I(val, dst.data(), 3000), vekWrnDivByZero);
    EXPECT_TRUE(sameBits(expected, dst));
    std::vector<Vek16u> dst16(shorts.size());
    EXPECT_EQ(veksDivCRev_16u(shorts.data(), 50000, dst16.data(), 65536), vekWrnDivByZero);
    EXPECT_TRUE(sameBits(expectedShorts, dst16));
    EXPECT_EQ(veksDivCRev_16u(shorts.data() + 1, 50000, dst16.data(), 1), vekStsOk);
    dst16 = shorts;
    EXPECT_EQ(veksDivCRev_16u_I(50000, dst16.data(), 65536), vekWrnDivByZero);
    EXPECT_TRUE(sameBits(expectedShorts, dst16));
  });
}

TEST(Quotients, ByAConstantAreProductsWithTheReciprocal) {
  for (Vek32f val : {3.0F, -0.7F, 1e-3F}) {
    const std::vector<Vek32f> src = randomElements<Vek32f>(100);
    std::vector<Vek32f> dst(src.size());
    ASSERT_EQ(veksDivC_32f(src.data(), val, dst.data(), 100), vekStsOk);
    for (size_t i = 0; i < src.size(); ++i) EXPECT_EQ(dst[i], src[i] * (1 / val));
  }
  for (Vek64f val : {3.0, -0.7, 1e-3}) {
    std::vector<Vek64f> dst = randomElements<Vek64f>(100);
    const std::vector<Vek64f> src = dst;
    ASSERT_EQ(veksDivC_64f_I(val, dst.data(), 100), vekStsOk);
    for (size_t i = 0; i < src.size(); ++i) EXPECT_EQ(dst[i], src[i] * (1 / val));
  }
  const Vek64fc one = {1, 0};
  const Vek64fc huge = {3e300, -4e300};
  Vek64fc result;
  ASSERT_EQ(veksDivC_64fc(&one, huge, &result, 1), vekStsOk);
  EXPECT_DOUBLE_EQ(result.re, 0.12e-300);
  EXPECT_DOUBLE_EQ(result.im, 0.16e-300);
  const Vek32fc floats = {1, 2};
  Vek32fc half;
  ASSERT_EQ(veksDivC_32fc(&floats, {0, 2}, &half, 1), vekStsOk);
  EXPECT_EQ(half.re, 1);
  EXPECT_EQ(half.im, -0.5F);
}

// The quotient in single precision, scaled exactly, ties to even.
template <class T>
T singleQuotient(T divisor, T dividend, int s) {
  using Limits = std::numeric_limits<T>;
  if (dividend == 0) return 0;
  if (divisor == 0) return dividend > 0 ? Limits::max() : Limits::min();
  const float single = static_cast<float>(dividend) / static_cast<float>(divisor);
  const double factor = std::ldexp(1.0, s < -200 ? 200 : (s > 200 ? -200 : -s));
  const double rounded = std::nearbyint(static_cast<double>(single) * factor);
  const double max = Limits::max();
  const double min = Limits::min();
  return static_cast<T>(rounded > max ? max : (rounded < min ? min : rounded));
}

TEST(Quotients, OfShortIntegers) {
  checkScaledTwo(veksDiv_8u_Sfs, singleQuotient<Vek8u>, vekWrnDivByZero);
  checkScaledInPlace(veksDiv_8u_ISfs, singleQuotient<Vek8u>, vekWrnDivByZero);
  checkScaledTwo(veksDiv_16u_Sfs, singleQuotient<Vek16u>, vekWrnDivByZero);
  checkScaledInPlace(veksDiv_16u_ISfs, singleQuotient<Vek16u>, vekWrnDivByZero);
  checkScaledTwo(veksDiv_16s_Sfs, singleQuotient<Vek16s>, vekWrnDivByZero);
  checkScaledInPlace(veksDiv_16s_ISfs, singleQuotient<Vek16s>, vekWrnDivByZero);
  const auto byConstant = [](auto x, auto val, int s) { return singleQuotient(val, x, s); };
  checkScaledConstant(veksDivC_8u_Sfs, veksDivC_8u_ISfs,
                      [&](Vek8u x, Vek8u val, int s) { return byConstant(x, val, s); });
  checkScaledConstant(veksDivC_16u_Sfs, veksDivC_16u_ISfs, byConstant);
  checkScaledConstant(veksDivC_16s_Sfs, veksDivC_16s_ISfs, byConstant);
}

// All dividends with divisors whose quotients have ties.
TEST(Quotients, OfAllShortDividends) {
  std::vector<Vek16s> dividends = operands<Vek16s>(false);
  for (Vek16s divisor : {Vek16s{1}, Vek16s{2}, Vek16s{-2}, Vek16s{3}, Vek16s{6}, Vek16s{256},
                         Vek16s{-32768}, Vek16s{32767}}) {
    const std::vector<Vek16s> divisors(dividends.size(), divisor);
    std::vector<Vek16s> dst(dividends.size());
    for (int s = -16; s <= 16; ++s) {
      ASSERT_EQ(veksDiv_16s_Sfs(divisors.data(), dividends.data(), dst.data(), 65536, s), vekStsOk);
      for (size_t i = 0; i < dst.size(); ++i) {
        ASSERT_EQ(dst[i], singleQuotient(divisor, dividends[i], s))
            << dividends[i] << " / " << divisor << " scaled by " << s;
      }
    }
  }
}

// numerator / denominator * 2^-s to nearest with ties to even, one bit at a time.
template <class T>
T exactQuotient(int64_t numerator, int64_t denominator, int s) {
  using Limits = std::numeric_limits<T>;
  if (numerator == 0) return 0;
  const bool negative = (numerator < 0) != (denominator < 0);
  const uint64_t limit = negative ? exact(Limits::min()).low : exact(Limits::max()).low;
  if (denominator == 0) return numerator > 0 ? Limits::max() : Limits::min();
  uint64_t by = exact(denominator).low;
  if (s >= 33) return 0;  // below 2^32 * 2^-33, which is a tie only if it is 2^31 / 1
  if (s > 0) by <<= s;
  uint64_t result = exact(numerator).low / by;
  uint64_t rest = exact(numerator).low % by;
  for (; s < 0 && result <= limit && (result != 0 || rest != 0); ++s) {
    result = 2 * result + (2 * rest >= by ? 1 : 0);
    rest = 2 * rest >= by ? 2 * rest - by : 2 * rest;
  }
  if (rest > by - rest || (rest == by - rest && result % 2 == 1)) ++result;
  if (result > limit) result = limit;
  return static_cast<T>(negative ? ~result + 1 : result);
}

TEST(Quotients, OfLongIntegers) {
  const auto longQuotient = [](auto a, auto b, int s) { return exactQuotient<Vek32s>(b, a, s); };
  checkScaledTwo(veksDiv_32s_Sfs, longQuotient, vekWrnDivByZero);
  checkScaledInPlace(veksDiv_32s_ISfs, longQuotient, vekWrnDivByZero);
  checkScaledTwo(
      veksDiv_32s16s_Sfs, [](Vek16s a, Vek32s b, int s) { return exactQuotient<Vek16s>(b, a, s); },
      vekWrnDivByZero);
}

Vek16sc complexQuotient(Vek16sc a, Vek16sc b, int s) {
  const int64_t norm = int64_t{a.re} * a.re + int64_t{a.im} * a.im;
  const int64_t re = int64_t{b.re} * a.re + int64_t{b.im} * a.im;
  const int64_t im = int64_t{b.im} * a.re - int64_t{b.re} * a.im;
  return {exactQuotient<Vek16s>(norm == 0 ? b.re : re, norm, s),
          exactQuotient<Vek16s>(norm == 0 ? b.im : im, norm, s)};
}

TEST(Quotients, OfComplexIntegers) {
  std::vector<Vek16sc> a = complexOperands<Vek16sc>(false);
  const std::vector<Vek16sc> b = complexOperands<Vek16sc>(true);
  for (size_t i = 0; i < a.size(); i += 2) a[i] = {static_cast<Vek16s>(i % 13), 0};
  a[5] = {0, 0};
  const auto wanted = [&](size_t i, int s) { return complexQuotient(a[i], b[i], s); };
  checkEveryScale(
      std::vector<Vek16sc>(b.size()),
      [&](size_t i, int len, Vek16sc* dst, int s) {
        return veksDiv_16sc_Sfs(&a[i], &b[i], dst, len, s);
      },
      wanted, vekWrnDivByZero);
  checkEveryScale(
      b,
      [&](size_t i, int len, Vek16sc* dst, int s) { return veksDiv_16sc_ISfs(&a[i], dst, len, s); },
      wanted, vekWrnDivByZero);
  const Vek16sc val = {3, -4};
  const auto multiples = [&](size_t i, int s) { return complexQuotient(val, b[i], s); };
  checkEveryScale(
      std::vector<Vek16sc>(b.size()),
      [&](size_t i, int len, Vek16sc* dst, int s) {
        return veksDivC_16sc_Sfs(&b[i], val, dst, len, s);
      },
      multiples);
  checkEveryScale(
      b, [&](size_t, int len, Vek16sc* dst, int s) { return veksDivC_16sc_ISfs(val, dst, len, s); },
      multiples);
}

// Complex quotients in long double, whose exponents no double product leaves.
template <class C>
void checkComplexDivision(VekStatus (*out)(const C*, const C*, C*, int),
                          VekStatus (*in)(const C*, C*, int), int exponents, long double error) {
  using T = decltype(C::re);
  std::mt19937_64 random(11);
  std::uniform_real_distribution<T> mantissa(T{-1}, T{1});
  const size_t n = 4097;
  std::vector<C> a(n);
  std::vector<C> b(n);
  for (std::vector<C>* all : {&a, &b}) {
    for (C& c : *all) {
      const int e = static_cast<int>(random() % static_cast<uint64_t>(exponents)) - exponents / 2;
      c = {std::ldexp(mantissa(random), e),
           std::ldexp(mantissa(random), e - static_cast<int>(random() % 9))};
    }
  }
  onEveryTarget([&] {
    std::vector<C> dst(n);
    ASSERT_EQ(out(a.data(), b.data(), dst.data(), static_cast<int>(n)), vekStsOk);
    for (size_t i = 0; i < n; ++i) {
      const long double norm =
          static_cast<long double>(a[i].re) * a[i].re + static_cast<long double>(a[i].im) * a[i].im;
      const long double re = (static_cast<long double>(b[i].re) * a[i].re +
                              static_cast<long double>(b[i].im) * a[i].im) /
                             norm;
      const long double im = (static_cast<long double>(b[i].im) * a[i].re -
                              static_cast<long double>(b[i].re) * a[i].im) /
                             norm;
      const long double magnitude = std::hypot(re, im);
      if (magnitude > static_cast<long double>(std::numeric_limits<T>::max())) continue;
      const long double least = std::numeric_limits<T>::denorm_min();
      ASSERT_LE(std::abs(dst[i].re - re), magnitude * error + least) << i;
      ASSERT_LE(std::abs(dst[i].im - im), magnitude * error + least) << i;
    }
    std::vector<C> srcDst = b;
    ASSERT_EQ(in(a.data(), srcDst.data(), static_cast<int>(n)), vekStsOk);
    ASSERT_TRUE(sameBits(dst, srcDst));
    C zeroAndOthers[3] = {{1, 1}, {0, -T{0}}, {2, 0}};
    const C dividends[3] = {{1, 1}, {-3, 0}, {1, 1}};
    ASSERT_EQ(out(zeroAndOthers, dividends, zeroAndOthers, 3), vekWrnDivByZero);
    EXPECT_EQ(zeroAndOthers[1].re, -std::numeric_limits<T>::infinity());
    EXPECT_NE(zeroAndOthers[1].im, zeroAndOthers[1].im);
    EXPECT_EQ(zeroAndOthers[2].re, T{0.5});
  });
}

// Neighbours near the ends of the range change nothing.
template <class C>
void checkIndependence(VekStatus (*divide)(const C*, const C*, C*, int), decltype(C::re) tiny) {
  using T = decltype(C::re);
  std::mt19937_64 random(12);
  std::uniform_real_distribution<T> significands(-2, 2);
  std::uniform_int_distribution<int> exponents(-15, 15);
  const auto part = [&] { return std::ldexp(significands(random), exponents(random)); };
  std::vector<C> a(64);
  std::vector<C> b(64);
  for (size_t i = 0; i < a.size(); ++i) {
    a[i] = {part(), part()};
    b[i] = {part(), part()};
  }
  // Quotients whose real parts are differences of nearly equal products.
  b[1] = {std::nextafter(a[1].im, T{9}), -a[1].re};
  onEveryTarget([&] {
    std::vector<C> alone(64);
    ASSERT_EQ(divide(a.data(), b.data(), alone.data(), 64), vekStsOk);
    for (int first = 0; first < 3; ++first) {
      std::vector<C> divisors = a;
      for (size_t i = static_cast<size_t>(first); i < a.size(); i += 3) {
        divisors[i].im = i % 2 == 0 ? tiny : 1 / (4 * tiny);
      }
      std::vector<C> beside(64);
      ASSERT_EQ(divide(divisors.data(), b.data(), beside.data(), 64), vekStsOk);
      for (size_t i = static_cast<size_t>(first); i < a.size(); i += 3) beside[i] = alone[i];
      EXPECT_TRUE(sameBits(alone, beside));
    }
  });
}

TEST(Quotients, ComplexElementsAreIndependent) {
  checkIndependence(veksDiv_32fc, 1e-37F);
  checkIndependence(veksDiv_64fc, 1e-307);
}

TEST(Quotients, ComplexFloatingPoint) {
  checkComplexDivision(veksDiv_32fc, veksDiv_32fc_I, 248, 0x1p-21L);
  checkComplexDivision(veksDiv_64fc, veksDiv_64fc_I, 2040, 0x1p-50L);
}

TEST(Quotients, CheckZerosInTheirOwnOrder) {
  Vek32f f[2] = {5, 6};
  Vek16s s[2] = {5, 6};
  Vek16u u[2] = {5, 6};
  Vek32f* const noFloats = nullptr;
  Vek16s* const noShorts = nullptr;
  Vek16u* const noUnsigned = nullptr;
  // The constant before pointers and length.
  EXPECT_EQ(veksDivC_32f(noFloats, 0, noFloats, 0), vekErrDivByZero);
  EXPECT_EQ(veksDivC_32f(f, -0.0F, f, 2), vekErrDivByZero);
  EXPECT_EQ(veksDivC_64f_I(0, nullptr, 0), vekErrDivByZero);
  EXPECT_EQ(veksDivC_32fc_I({0, -0.0F}, nullptr, 0), vekErrDivByZero);
  EXPECT_EQ(veksDivC_64fc_I({0, 0}, nullptr, 0), vekErrDivByZero);
  EXPECT_EQ(veksDivC_32f(noFloats, 1, noFloats, 0), vekErrNullPtr);
  EXPECT_EQ(veksDivC_32f(f, 1, f, 0), vekErrSize);
  EXPECT_EQ(f[0], 5);
  // Pointers and length before the constant.
  EXPECT_EQ(veksDivC_16s_Sfs(noShorts, 0, s, 2, 0), vekErrNullPtr);
  EXPECT_EQ(veksDivC_16s_ISfs(0, s, 0, 0), vekErrSize);
  EXPECT_EQ(veksDivC_16s_ISfs(0, s, 2, 0), vekErrDivByZero);
  EXPECT_EQ(veksDivC_16sc_ISfs({0, 0}, reinterpret_cast<Vek16sc*>(s), 1, 0), vekErrDivByZero);
  EXPECT_EQ(s[0], 5);
  // A zero dividend fills, whatever the source is.
  EXPECT_EQ(veksDivCRev_32f(noFloats, 0, noFloats, 2), vekErrNullPtr);
  EXPECT_EQ(veksDivCRev_32f(noFloats, 0, f, 0), vekErrSize);
  EXPECT_EQ(f[1], 6);
  EXPECT_EQ(veksDivCRev_32f(noFloats, 0, f, 2), vekStsOk);
  EXPECT_EQ(f[1], 0);
  EXPECT_EQ(veksDivCRev_16u(noUnsigned, 0, noUnsigned, 0), vekStsOk);
  EXPECT_EQ(veksDivCRev_16u(noUnsigned, 0, u, -1), vekStsOk);
  EXPECT_EQ(u[0], 5);
  EXPECT_EQ(veksDivCRev_16u_I(0, u, 2), vekStsOk);
  EXPECT_EQ(u[1], 0);
  EXPECT_EQ(veksDivCRev_16u(noUnsigned, 1, u, 2), vekErrNullPtr);
  EXPECT_EQ(veksDivCRev_16u(u, 1, u, 0), vekErrSize);
}

}  // namespace
}  // namespace veks::test
