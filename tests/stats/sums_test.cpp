// Sums and means against exact totals.
#include "veks/stats/sums.h"

#include "stats/exact_float_sum.h"
#include "stats/exact_totals.h"

namespace veks::test {
namespace {

template <class S>
std::vector<ExactParts> terms(const std::vector<S>& src) {
  std::vector<ExactParts> all;
  all.reserve(src.size());
  for (const S& x : src) all.push_back(exactParts(x));
  return all;
}

template <class S, class R, class... P>
void checkSum(VekStatus (*sum)(const S*, int, R*, P...)) {
  for (Elements kind : contents<S>()) {
    SCOPED_TRACE("content " + std::to_string(static_cast<int>(kind)));
    const std::vector<S> src = elementsOf<S>(kind, 70001, 1);
    checkTotals<R>(terms(src), sizeof...(P) == 1, [&](int len, R* result, [[maybe_unused]] int s) {
      return sum(src.data(), len, result, static_cast<P>(s)...);
    });
  }
}

TEST(Sums, ExactTotals) {
  checkSum(veksSum_16s_Sfs);
  checkSum(veksSum_32s_Sfs);
  checkSum(veksSum_16sc_Sfs);
  checkSum(veksSum_16s32s_Sfs);
  checkSum(veksSum_16sc32sc_Sfs);
  checkSum(veksSum_32fc);
  checkSum(veksSum_64f);
  checkSum(veksSum_64fc);
  for (VekHintAlgorithm hint : {vekAlgHintNone, vekAlgHintFast, vekAlgHintAccurate}) {
    const std::vector<Vek32f> src = elementsOf<Vek32f>(Elements::kSmall, 70001, 1);
    checkTotals<Vek32f>(terms(src), false, [&](int len, Vek32f* result, int) {
      return veksSum_32f(src.data(), len, result, hint);
    });
  }
}

TEST(Sums, SaturateAfterScaling) {
  const std::vector<Vek16s> src = {32767, 32767};
  Vek16s sum = 0;
  EXPECT_EQ(veksSum_16s_Sfs(src.data(), 2, &sum, 0), vekStsOk);
  EXPECT_EQ(sum, 32767);
  EXPECT_EQ(veksSum_16s_Sfs(src.data(), 2, &sum, 1), vekStsOk);
  EXPECT_EQ(sum, 32767);
}

// Whether mean is total / n * 2^-s, rounded and saturated: twice all of it lies between 2 mean - 1
// and 2 mean + 1.
template <class T>
bool isScaledMean(Exact total, size_t n, int s, T mean) {
  using Limits = std::numeric_limits<T>;
  if (s > 40) return mean == 0;
  if (total.low == 0) return mean == 0;
  if (s < -40) return mean == (total.negative ? Limits::min() : Limits::max());
  const Exact twice = total * exact(uint64_t{2} << (s < 0 ? -s : 0));
  const Exact unit = exact(uint64_t{n} << (s > 0 ? s : 0));
  const auto compare = [&](int64_t halves) {
    const Exact difference = twice - exact(halves) * unit;
    if (difference.high == 0 && difference.low == 0) return 0;
    return difference.negative ? -1 : 1;
  };
  const int above = compare(2 * int64_t{mean} + 1);
  const int below = compare(2 * int64_t{mean} - 1);
  const bool even = mean % 2 == 0;
  const bool notAbove = mean == Limits::max() || above < 0 || (above == 0 && even);
  return notAbove && (mean == Limits::min() || below > 0 || (below == 0 && even));
}

template <class S>
void checkMean(VekStatus (*mean)(const S*, int, S*, int)) {
  for (Elements kind : contents<S>()) {
    const std::vector<S> src = elementsOf<S>(kind, 5000, 1);
    onEveryTarget([&] {
      ExactParts total = exactParts(0);
      for (size_t len = 1; len <= src.size(); ++len) {
        total = total + exactParts(src[len - 1]);
        if (len > 150 && len < src.size()) continue;
        for (int s : scaleFactors()) {
          S result = {};
          ASSERT_EQ(mean(src.data(), static_cast<int>(len), &result, s), vekStsOk);
          if constexpr (std::is_class_v<S>) {
            ASSERT_TRUE(isScaledMean(total.re, len, s, result.re)) << len << " " << s;
            ASSERT_TRUE(isScaledMean(total.im, len, s, result.im)) << len << " " << s;
          } else {
            ASSERT_TRUE(isScaledMean(total.re, len, s, result)) << len << " " << s;
          }
        }
      }
    });
  }
}

TEST(Means, OfIntegers) {
  checkMean(veksMean_16s_Sfs);
  checkMean(veksMean_32s_Sfs);
  checkMean(veksMean_16sc_Sfs);
}

TEST(Means, OfFloats) {
  const std::vector<Vek64fc> src = elementsOf<Vek64fc>(Elements::kSmall, 700, 3);
  std::vector<Vek32fc> src32;
  std::vector<Vek64f> re;
  std::vector<Vek32f> re32;
  for (const Vek64fc& x : src) {
    src32.push_back({static_cast<Vek32f>(x.re), static_cast<Vek32f>(x.im)});
    re.push_back(x.re);
    re32.push_back(static_cast<Vek32f>(x.re));
  }
  onEveryTarget([&] {
    Vek64fc sum = {0, 0};
    for (int len = 1; len <= 700; ++len) {
      sum.re += src[static_cast<size_t>(len - 1)].re;
      sum.im += src[static_cast<size_t>(len - 1)].im;
      Vek64fc mean64 = {};
      Vek32fc mean32 = {};
      ASSERT_EQ(veksMean_64fc(src.data(), len, &mean64), vekStsOk);
      ASSERT_EQ(veksMean_32fc(src32.data(), len, &mean32), vekStsOk);
      ASSERT_EQ(mean64.re, sum.re / len);
      ASSERT_EQ(mean64.im, sum.im / len);
      ASSERT_EQ(mean32.re, static_cast<Vek32f>(sum.re / len));
      ASSERT_EQ(mean32.im, static_cast<Vek32f>(sum.im / len));
      ASSERT_EQ(veksMean_64f(re.data(), len, &mean64.im), vekStsOk);
      ASSERT_EQ(mean64.im, mean64.re);
      for (VekHintAlgorithm hint : {vekAlgHintNone, vekAlgHintFast, vekAlgHintAccurate}) {
        ASSERT_EQ(veksMean_32f(re32.data(), len, &mean32.im, hint), vekStsOk);
        ASSERT_EQ(mean32.im, mean32.re);
      }
    }
  });
}

// The sum of two floats that a float cannot hold.
TEST(Means, DivideTheSumOfDoublePrecision) {
  const std::vector<Vek32f> src = {0x1p24F, 3, 0, 0};
  onEveryTarget([&] {
    for (VekHintAlgorithm hint : {vekAlgHintNone, vekAlgHintFast}) {
      Vek32f mean = 0;
      ASSERT_EQ(veksMean_32f(src.data(), 4, &mean, hint), vekStsOk);
      ASSERT_EQ(mean, 0x1p22F + 0.75F);
    }
    const std::vector<Vek32f> large(3, 3e38F);
    Vek32f mean = 0;
    ASSERT_EQ(veksMean_32f(large.data(), 3, &mean, vekAlgHintAccurate), vekStsOk);
    ASSERT_EQ(mean, 3e38F);
  });
}

void checkAccurate(const std::vector<Vek32f>& src, const char* what) {
  ExactFloatSum exactSum;
  for (Vek32f x : src) exactSum.add(double{x});
  onEveryTarget([&] {
    Vek32f sum = 0;
    ASSERT_EQ(veksSum_32f(src.data(), static_cast<int>(src.size()), &sum, vekAlgHintNone),
              vekStsOk);
    ASSERT_TRUE(exactSum.roundsTo(sum)) << what << ": " << sum << ", length " << src.size();
  });
}

// Exponents from `least` to `most`, signs at random.
std::vector<Vek32f> floats(size_t n, int least, int most, uint64_t seed) {
  std::mt19937_64 random(seed);
  std::vector<Vek32f> src(n);
  for (Vek32f& x : src) {
    const auto mantissa = static_cast<float>(random() >> 40);
    const int exponent =
        least + static_cast<int>(random() % static_cast<uint64_t>(most - least + 1));
    x = std::ldexp(random() % 2 == 0 ? mantissa : -mantissa, exponent);
  }
  return src;
}

TEST(AccurateSum, RoundsTheExactSumOnce) {
  checkAccurate({0x1p60F, 1, -0x1p60F}, "cancelling");
  checkAccurate({0x1p60F, 1, -0x1p60F, 0x1p-140F}, "cancelling, with a denormal number");
  checkAccurate({0x1p24F, 1}, "a tie");
  checkAccurate({0x1p24F, 3}, "a tie");
  checkAccurate({0x1p24F, 1, 0x1p-149F}, "above a tie");
  checkAccurate({0x1p24F, 1, -0x1p-149F}, "below a tie");
  checkAccurate({-0x1p24F, -1, -0x1p-149F}, "beyond a negative tie");
  checkAccurate({0x1.FFFFFEp127F, 0x1p103F}, "overflow at a tie");
  checkAccurate({0x1.FFFFFEp127F, 0x1p103F, -0x1p-149F}, "just no overflow");
  checkAccurate({0x1.FFFFFEp127F, 0x1.FFFFFEp127F, -0x1.FFFFFEp127F}, "back from overflow");
  checkAccurate({0x1p-149F, 0x1p-149F, -0x1p-126F}, "denormal numbers");
  // One of these ranges of exponents for each way to add a block.
  for (const auto& [least, most] : std::vector<std::pair<int, int>>{
           {-24, -20}, {-60, -20}, {-100, 60}, {-149, 104}, {-149, -140}, {90, 104}}) {
    for (const size_t n :
         std::initializer_list<size_t>{1, 2, 3, 17, 200, 1000, 4095, 4096, 4097, 8192, 40000}) {
      checkAccurate(floats(n, least, most, n), "random");
    }
  }
}

TEST(AccurateSum, Cancelling) {
  for (int spread : {0, 20, 200}) {
    std::vector<Vek32f> src = floats(30000, -spread / 2 - 30, spread / 2 - 30, 5);
    for (size_t i = 0; i < 30000; ++i) src.push_back(-src[(i * 7919) % 30000]);
    checkAccurate(src, "all of it");
    src.push_back(0x1p-100F);
    checkAccurate(src, "all but one");
  }
}

TEST(AccurateSum, TenMillionElements) {
  checkAccurate(floats(10000000, -24, -24, 6), "uniform");
  checkAccurate(floats(10000000, -149, 104, 6), "all exponents");
  checkAccurate(std::vector<Vek32f>(10000000, 0.1F), "constant");
}

TEST(Sums, SpecialValues) {
  const Vek32f infinity = std::numeric_limits<Vek32f>::infinity();
  const Vek32f nan = std::numeric_limits<Vek32f>::quiet_NaN();
  onEveryTarget([&] {
    for (VekHintAlgorithm hint : {vekAlgHintNone, vekAlgHintFast}) {
      for (const size_t n : std::initializer_list<size_t>{3, 100, 5000, 40000}) {
        const auto sumWith = [&](Vek32f first, Vek32f last) {
          std::vector<Vek32f> src(n, 1.0F);
          src.front() = first;
          src.back() = last;
          Vek32f sum = 0;
          EXPECT_EQ(veksSum_32f(src.data(), static_cast<int>(n), &sum, hint), vekStsOk);
          return sum;
        };
        EXPECT_EQ(sumWith(infinity, 1), infinity);
        EXPECT_EQ(sumWith(1, -infinity), -infinity);
        EXPECT_TRUE(std::isnan(sumWith(infinity, -infinity)));
        EXPECT_TRUE(std::isnan(sumWith(nan, infinity)));
      }
      const std::vector<Vek32f> zeros(7, -0.0F);
      Vek32f sum = -1;
      EXPECT_EQ(veksSum_32f(zeros.data(), 7, &sum, hint), vekStsOk);
      EXPECT_FALSE(std::signbit(sum));
      const std::vector<Vek32f> ones(100000, 1.0F);
      EXPECT_EQ(veksSum_32f(ones.data(), 100000, &sum, hint), vekStsOk);
      EXPECT_EQ(sum, 100000.0F);
    }
  });
}

// The bounds that are documented, for terms of equal signs, where the sum is that of magnitudes.
TEST(Sums, ErrorsOfFloatingPoint) {
  std::mt19937_64 random(8);
  std::uniform_real_distribution<Vek64f> distribution(0.5, 1);
  std::vector<Vek64f> src(300000);
  for (Vek64f& x : src) x = distribution(random);
  const std::vector<Vek32f> src32(src.begin(), src.end());
  onEveryTarget([&] {
    for (int len : {1, 1000, 32768, 300000}) {
      long double expected = 0;
      long double expected32 = 0;
      for (size_t i = 0; i < static_cast<size_t>(len); ++i) {
        expected += src[i];
        expected32 += src32[i];
      }
      Vek64f sum = 0;
      Vek32f sum32 = 0;
      Vek32fc parts = {};
      ASSERT_EQ(veksSum_64f(src.data(), len, &sum), vekStsOk);
      ASSERT_LE(std::abs(sum - expected), 280 * 0x1p-53L * expected);
      ASSERT_EQ(veksSum_32f(src32.data(), len, &sum32, vekAlgHintFast), vekStsOk);
      ASSERT_LE(std::abs(sum32 - expected32), 1024 * 0x1p-24L * expected32);
      if (len == 1) continue;
      ASSERT_EQ(veksSum_32fc(reinterpret_cast<const Vek32fc*>(src32.data()), len / 2, &parts),
                vekStsOk);
      ASSERT_LE(std::abs(parts.re + parts.im - expected32), 130 * 0x1p-24L * expected32);
    }
  });
}

}  // namespace
}  // namespace veks::test
