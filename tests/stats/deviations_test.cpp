// Standard deviations against those of long double.
#include <cmath>
#include <numeric>

#include "exact.h"
#include "support.h"
#include "veks/stats/sums.h"

namespace veks::test {
namespace {

template <class T>
long double expectedDeviation(const std::vector<T>& src, size_t n) {
  long double sum = 0;
  for (size_t i = 0; i < n; ++i) sum += src[i];
  const long double mean = sum / static_cast<long double>(n);
  long double squares = 0;
  for (size_t i = 0; i < n; ++i) squares += (src[i] - mean) * (src[i] - mean);
  return std::sqrt(squares / static_cast<long double>(n - 1));
}

// call(src, len, result) within a relative tolerance.
template <class T, class Call>
void checkDeviation(const std::vector<T>& src, long double tolerance, const Call& call) {
  std::vector<long double> expected;
  std::vector<size_t> lengths(199);
  std::iota(lengths.begin(), lengths.end(), size_t{2});
  lengths.insert(lengths.end(), {4095, 4096, 4097, 4111, 40000});
  expected.reserve(lengths.size());
  for (size_t n : lengths) expected.push_back(expectedDeviation(src, n));
  onEveryTarget([&] {
    for (size_t i = 0; i < lengths.size(); ++i) {
      T result = -1;
      ASSERT_EQ(call(src.data(), static_cast<int>(lengths[i]), &result), vekStsOk);
      ASSERT_NEAR(static_cast<double>(result / expected[i]), 1, static_cast<double>(tolerance))
          << "length " << lengths[i];
    }
  });
}

// Gaussian values around a mean, the first one far off.
template <class T>
std::vector<T> values(T mean, T first) {
  std::mt19937_64 random(4);
  std::normal_distribution<T> distribution(0, 1);
  std::vector<T> src(40000);
  for (T& x : src) x = mean + distribution(random);
  src[0] += first;
  return src;
}

TEST(StdDev, OfFloats) {
  const auto hinted = [](VekHintAlgorithm hint) {
    return [=](const Vek32f* src, int len, Vek32f* result) {
      return veksStdDev_32f(src, len, result, hint);
    };
  };
  for (Vek32f mean : {0.0F, 3.0F, 1e4F}) {
    for (Vek32f first : {0.0F, 1000.0F}) {
      const std::vector<Vek32f> src = values<Vek32f>(mean, first);
      checkDeviation(src, 0x1p-23L, hinted(vekAlgHintNone));
      checkDeviation(src, 0x1p-23L, hinted(vekAlgHintAccurate));
      checkDeviation(src, 0x1p-16L, hinted(vekAlgHintFast));
      checkDeviation(values<Vek64f>(mean * 1e4, first), 0x1p-46L, veksStdDev_64f);
    }
  }
  // Squares beyond the range of single precision.
  for (int exponent : {100, -100}) {
    std::vector<Vek32f> extreme = values<Vek32f>(0, 0);
    for (Vek32f& x : extreme) x = std::ldexp(x, exponent);
    checkDeviation(extreme, 0x1p-22L, hinted(vekAlgHintFast));
  }
}

TEST(StdDev, SpecialCases) {
  const std::vector<Vek32f> few = {1, 2, 3, 4};
  const Vek32f infinity = std::numeric_limits<Vek32f>::infinity();
  onEveryTarget([&] {
    for (VekHintAlgorithm hint : {vekAlgHintNone, vekAlgHintFast}) {
      Vek32f result = -1;
      EXPECT_EQ(veksStdDev_32f(few.data(), 4, &result, hint), vekStsOk);
      EXPECT_FLOAT_EQ(result, 1.2909944F);
      EXPECT_EQ(veksStdDev_32f(few.data(), 1, &result, hint), vekErrSize);
      for (Vek32f value : {0.1F, 1e30F, -1e-40F, 0.0F}) {
        for (const size_t n : std::initializer_list<size_t>{2, 3, 100, 1000, 50000}) {
          const std::vector<Vek32f> constant(n, value);
          ASSERT_EQ(veksStdDev_32f(constant.data(), static_cast<int>(n), &result, hint), vekStsOk);
          ASSERT_EQ(result, 0);
          ASSERT_FALSE(std::signbit(result));
          const std::vector<Vek64f> constant64(n, 1 / 3.0 + double{value});
          Vek64f result64 = -1;
          ASSERT_EQ(veksStdDev_64f(constant64.data(), static_cast<int>(n), &result64), vekStsOk);
          ASSERT_EQ(result64, 0);
        }
      }
      for (Vek32f special : {infinity, -infinity, infinity - infinity}) {
        const std::vector<Vek32f> src = {1, special, 3};
        ASSERT_EQ(veksStdDev_32f(src.data(), 3, &result, hint), vekStsOk);
        ASSERT_TRUE(std::isnan(result));
      }
    }
    Vek64f result64 = 0;
    Vek16s result16 = 0;
    Vek32s result32 = 0;
    const Vek64f one = 1;
    const Vek16s one16 = 1;
    EXPECT_EQ(veksStdDev_64f(&one, 1, &result64), vekErrSize);
    EXPECT_EQ(veksStdDev_16s_Sfs(&one16, 1, &result16, 0), vekErrSize);
    EXPECT_EQ(veksStdDev_16s32s_Sfs(&one16, 1, &result32, 0), vekErrSize);
  });
}

// Whether result is root * 2^-s, rounded and saturated; ties are tested apart.
template <class R>
bool isScaled(long double root, int s, R result) {
  const long double value = std::ldexp(root, s < -200 ? 200 : (s > 200 ? -200 : -s));
  const long double max = std::numeric_limits<R>::max();
  if (value >= max) return result == std::numeric_limits<R>::max();
  return std::abs(result - value) <= 0.5L + 1e-15L * value;
}

template <class R>
void checkIntegers(VekStatus (*deviation)(const Vek16s*, int, R*, int)) {
  std::mt19937_64 random(6);
  std::vector<std::vector<Vek16s>> sources = {{-32768, 32767}, {0, 1}, {7, 7, 7}, {5, 6, 5}};
  for (const size_t n : std::initializer_list<size_t>{3, 64, 1000, 70001, 200000}) {
    sources.emplace_back(n);
    for (Vek16s& x : sources.back()) x = static_cast<Vek16s>(random());
    sources.emplace_back(n, -32768);
    sources.back().back() = -32767;
    sources.emplace_back(n, -32768);
    for (size_t i = 0; i < n / 2; ++i) sources.back()[i] = 32767;
  }
  for (const std::vector<Vek16s>& src : sources) {
    const long double root = expectedDeviation(src, src.size());
    onEveryTarget([&] {
      for (int s : scaleFactors()) {
        R result = -1;
        ASSERT_EQ(deviation(src.data(), static_cast<int>(src.size()), &result, s), vekStsOk);
        ASSERT_TRUE(isScaled(root, s, result))
            << result << " for " << static_cast<double>(root) << ", scale factor " << s;
      }
    });
  }
  // Deviations 1, 3, 5 .. are halves after scaling: ties.
  for (int d = 1; d < 1000; d += 2) {
    const std::vector<Vek16s> src = {static_cast<Vek16s>(-d), 0, static_cast<Vek16s>(d)};
    R result = -1;
    ASSERT_EQ(deviation(src.data(), 3, &result, 1), vekStsOk);
    ASSERT_EQ(result, (d + 1) / 4 * 2);
  }
}

TEST(StdDev, OfIntegers) {
  checkIntegers(veksStdDev_16s_Sfs);
  checkIntegers(veksStdDev_16s32s_Sfs);
}

}  // namespace
}  // namespace veks::test
