#include "veks/stats/norms.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "exact.h"
#include "stats/nearest_root.h"
#include "support.h"

namespace veks::test {
namespace {

constexpr long double kNan = std::numeric_limits<long double>::quiet_NaN();

enum class Norm { kInf, kL1, kL2 };

// Lengths around those of blocks too.
const std::vector<int>& lengths() {
  static const std::vector<int> all = [] {
    std::vector<int> list;
    for (int n = 1; n <= 200; n += n < 140 ? 1 : 7) list.push_back(n);
    for (int n : {1023, 1024, 1025, 4095, 4096, 4097, 10000}) list.push_back(n);
    return list;
  }();
  return all;
}

// Integers: the sums are exact.
uint64_t exactNorm(Norm norm, const std::vector<int>& differences) {
  uint64_t result = 0;
  for (const int x : differences) {
    const uint64_t magnitude = static_cast<uint64_t>(std::abs(x));
    if (norm == Norm::kInf) result = std::max(result, magnitude);
    if (norm == Norm::kL1) result += magnitude;
    if (norm == Norm::kL2) result += magnitude * magnitude;
  }
  return result;
}

// 64 bits of mantissa are enough: no root that is not exact comes that close to a tie.
Vek32f expectedFloat(Norm norm, uint64_t exact) {
  const long double value = static_cast<long double>(exact);
  return static_cast<Vek32f>(norm == Norm::kL2 ? std::sqrt(value) : value);
}

Vek32s expectedScaled(Norm norm, uint64_t exact, int scaleFactor) {
  if (norm != Norm::kL2) return scaled<Vek32s>(Exact{false, 0, exact}, scaleFactor);
  const long double root = std::sqrt(static_cast<long double>(exact));
  const long double value = std::nearbyint(std::ldexp(root, -std::clamp(scaleFactor, -99, 99)));
  return static_cast<Vek32s>(std::min(value, 2147483647.0L));
}

struct IntegerNorm {
  Norm norm;
  VekStatus (*toFloat)(const Vek16s*, int, Vek32f*);
  VekStatus (*differenceToFloat)(const Vek16s*, const Vek16s*, int, Vek32f*);
  VekStatus (*toScaled)(const Vek16s*, int, Vek32s*, int);
  VekStatus (*differenceToScaled)(const Vek16s*, const Vek16s*, int, Vek32s*, int);

  void check(const std::vector<Vek16s>& src1, const std::vector<Vek16s>& src2) const {
    const int len = static_cast<int>(src1.size());
    std::vector<int> differences(src1.size());
    for (size_t i = 0; i < src1.size(); ++i) differences[i] = src1[i] - src2[i];
    const uint64_t own = exactNorm(norm, {src1.begin(), src1.end()});
    const uint64_t difference = exactNorm(norm, differences);
    Vek32f value = -1;
    ASSERT_EQ(toFloat(src1.data(), len, &value), vekStsOk);
    ASSERT_EQ(value, expectedFloat(norm, own)) << "len " << len;
    ASSERT_EQ(differenceToFloat(src1.data(), src2.data(), len, &value), vekStsOk);
    ASSERT_EQ(value, expectedFloat(norm, difference)) << "len " << len;
    for (const int s : {len % 2 - 1, len % 37 - 5, 0, 40 - len}) {
      Vek32s integer = -1;
      ASSERT_EQ(toScaled(src1.data(), len, &integer, s), vekStsOk);
      ASSERT_EQ(integer, expectedScaled(norm, own, s)) << "len " << len << ", scale " << s;
      ASSERT_EQ(differenceToScaled(src1.data(), src2.data(), len, &integer, s), vekStsOk);
      ASSERT_EQ(integer, expectedScaled(norm, difference, s)) << "len " << len << ", scale " << s;
    }
  }
};

const IntegerNorm kIntegerNorms[] = {
    {Norm::kInf, veksNorm_Inf_16s32f, veksNormDiff_Inf_16s32f, veksNorm_Inf_16s32s_Sfs,
     veksNormDiff_Inf_16s32s_Sfs},
    {Norm::kL1, veksNorm_L1_16s32f, veksNormDiff_L1_16s32f, veksNorm_L1_16s32s_Sfs,
     veksNormDiff_L1_16s32s_Sfs},
    {Norm::kL2, veksNorm_L2_16s32f, veksNormDiff_L2_16s32f, veksNorm_L2_16s32s_Sfs,
     veksNormDiff_L2_16s32s_Sfs},
};

TEST(Norms, OfIntegers) {
  onEveryTarget([&] {
    for (const int len : lengths()) {
      const size_t n = static_cast<size_t>(len);
      for (const IntegerNorm& norm : kIntegerNorms) {
        norm.check(randomElements<Vek16s>(n, 1), randomElements<Vek16s>(n, 2));
        norm.check(std::vector<Vek16s>(n, -32768), std::vector<Vek16s>(n, 32767));
        norm.check(std::vector<Vek16s>(n, 0), std::vector<Vek16s>(n, -1));
      }
    }
    // More than the 32-bit lanes of the sums hold.
    for (const IntegerNorm& norm : kIntegerNorms) {
      norm.check(std::vector<Vek16s>(300003, -32768), std::vector<Vek16s>(300003, 32767));
    }
  });
}

TEST(Norms, EveryScaleFactor) {
  const std::vector<Vek16s> src = {-32768, 3, 1, 0, 20000, 1, 1};
  const std::vector<Vek16s> ones(4, 1);
  for (const IntegerNorm& norm : kIntegerNorms) {
    for (const std::vector<Vek16s>& vector : {src, ones, {0, 0}}) {
      const uint64_t exact = exactNorm(norm.norm, {vector.begin(), vector.end()});
      for (const int s : scaleFactors()) {
        Vek32s value = -1;
        ASSERT_EQ(norm.toScaled(vector.data(), static_cast<int>(vector.size()), &value, s),
                  vekStsOk);
        ASSERT_EQ(value, expectedScaled(norm.norm, exact, s)) << "scale " << s;
      }
    }
  }
}

// The squares of the middles between floats and their neighbours.
TEST(Norms, NearestRootNextToTies) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 20000; ++i) {
    const uint64_t middle = (random() % (1 << 23) + (1 << 23)) * 2 + 1;
    const int shift = static_cast<int>(random() % 7);
    const uint64_t square = middle * middle << 2 * shift;
    for (const uint64_t x : {square - 1, square, square + 1, random() >> (1 + random() % 62)}) {
      const Vek32f expected = expectedFloat(Norm::kL2, x);
      ASSERT_EQ(nearestRoot(x), expected) << x;
    }
  }
  EXPECT_EQ(nearestRoot(0), 0.0F);
}

// Floats: elements as pairs, the imaginary part of real ones being 0.
using Pair = std::pair<long double, long double>;
template <class T>
Pair parts(T x) {
  if constexpr (std::is_floating_point_v<T>) {
    return {x, 0};
  } else {
    return {x.re, x.im};
  }
}
template <class T>
T difference(T a, T b) {
  if constexpr (std::is_floating_point_v<T>) {
    return a - b;
  } else {
    return {a.re - b.re, a.im - b.im};
  }
}

template <class T>
long double expectedNorm(Norm norm, const std::vector<T>& src) {
  long double sum = 0;
  for (size_t i = 0; i < src.size(); ++i) {
    const auto [re, im] = parts(src[i]);
    const bool isNan = std::isnan(re) || std::isnan(im);
    const long double magnitude = isNan ? kNan : std::hypot(re, im);
    if (norm == Norm::kL1) sum += magnitude;
    if (norm == Norm::kL2) sum += magnitude * magnitude;
    if (norm == Norm::kInf && (i == 0 || magnitude > sum)) sum = magnitude;
  }
  return norm == Norm::kL2 ? std::sqrt(sum) : sum;
}

// The bounds of the documentation, in units of half a last place.
template <class R>
long double tolerance(Norm norm, size_t n) {
  const long double sum = sizeof(R) == 4 ? 42 : 74 + static_cast<long double>(n) / 4096;
  const long double units = norm == Norm::kInf ? 2 : norm == Norm::kL1 ? sum : sum / 2 + 2;
  return units * std::numeric_limits<R>::epsilon() / 2;
}

template <class R>
void expectNear(long double expected, R got, long double relative) {
  if (std::isnan(expected)) {
    ASSERT_TRUE(std::isnan(got)) << got;
  } else if (std::isinf(static_cast<R>(expected))) {
    ASSERT_EQ(got, std::numeric_limits<R>::infinity());
  } else {
    const long double least = std::numeric_limits<R>::denorm_min();
    ASSERT_LE(std::abs(got - expected), relative * expected + least / 2)
        << "expected " << expected << ", got " << got;
  }
}

template <class T, class R>
struct FloatNorm {
  Norm norm;
  VekStatus (*own)(const T*, int, R*);
  VekStatus (*ofDifference)(const T*, const T*, int, R*);

  R ownValue(const std::vector<T>& src) const {
    R value = -1;
    EXPECT_EQ(own(src.data(), static_cast<int>(src.size()), &value), vekStsOk);
    return value;
  }
  R differenceValue(const std::vector<T>& src1, const std::vector<T>& src2) const {
    R value = -1;
    EXPECT_EQ(ofDifference(src1.data(), src2.data(), static_cast<int>(src1.size()), &value),
              vekStsOk);
    return value;
  }

  // The norm of the vector, and of its differences from others.
  void check(const std::vector<T>& src) const {
    const size_t n = src.size();
    ASSERT_NO_FATAL_FAILURE(
        expectNear(expectedNorm(norm, src), ownValue(src), tolerance<R>(norm, n)))
        << "len " << n;
    std::vector<T> other = src;
    std::reverse(other.begin(), other.end());
    std::vector<T> differences(n);
    std::transform(src.begin(), src.end(), other.begin(), differences.begin(), difference<T>);
    ASSERT_NO_FATAL_FAILURE(expectNear(expectedNorm(norm, differences), differenceValue(src, other),
                                       tolerance<R>(norm, n)))
        << "difference, len " << n;
    ASSERT_TRUE(sameBits<R>({differenceValue(src, std::vector<T>(n))}, {ownValue(src)}));
  }
};

template <class T, class R>
using FloatNorms = FloatNorm<T, R>[3];
const FloatNorms<Vek32f, Vek32f> k32f = {{Norm::kInf, veksNorm_Inf_32f, veksNormDiff_Inf_32f},
                                         {Norm::kL1, veksNorm_L1_32f, veksNormDiff_L1_32f},
                                         {Norm::kL2, veksNorm_L2_32f, veksNormDiff_L2_32f}};
const FloatNorms<Vek64f, Vek64f> k64f = {{Norm::kInf, veksNorm_Inf_64f, veksNormDiff_Inf_64f},
                                         {Norm::kL1, veksNorm_L1_64f, veksNormDiff_L1_64f},
                                         {Norm::kL2, veksNorm_L2_64f, veksNormDiff_L2_64f}};
const FloatNorms<Vek32fc, Vek32f> k32fc = {
    {Norm::kInf, veksNorm_Inf_32fc32f, veksNormDiff_Inf_32fc32f},
    {Norm::kL1, veksNorm_L1_32fc32f, veksNormDiff_L1_32fc32f},
    {Norm::kL2, veksNorm_L2_32fc32f, veksNormDiff_L2_32fc32f}};
const FloatNorms<Vek64fc, Vek64f> k64fc = {
    {Norm::kInf, veksNorm_Inf_64fc64f, veksNormDiff_Inf_64fc64f},
    {Norm::kL1, veksNorm_L1_64fc64f, veksNormDiff_L1_64fc64f},
    {Norm::kL2, veksNorm_L2_64fc64f, veksNormDiff_L2_64fc64f}};

template <class T, class R>
T element(R re, R im) {
  if constexpr (std::is_floating_point_v<T>) {
    return re;
  } else {
    return {re, im};
  }
}

// Values around 2^exponent of both signs.
template <class T, class R>
std::vector<T> values(size_t n, int exponent) {
  std::mt19937_64 random(n);
  std::uniform_real_distribution<R> mantissa(R(-1), R(1));
  std::vector<T> all(n);
  for (T& x : all) {
    const R re = std::ldexp(mantissa(random), exponent);
    x = element<T>(re, std::ldexp(mantissa(random), exponent));
  }
  return all;
}

// All targets and all addresses give the same bits.
template <class T, class R>
void checkSameEverywhere(const FloatNorm<T, R>& norm, const std::vector<T>& src, size_t offsets) {
  const std::vector<T> other(src.rbegin(), src.rend());
  const std::vector<R> expected = {norm.ownValue(src), norm.differenceValue(src, other)};
  onEveryTarget([&] {
    for (size_t offset = 0; offset < offsets; ++offset) {
      std::vector<T> moved(offset);
      moved.insert(moved.end(), other.begin(), other.end());
      const int len = static_cast<int>(src.size());
      R value = -1;
      ASSERT_EQ(norm.ofDifference(src.data(), &moved[offset], len, &value), vekStsOk);
      ASSERT_TRUE(sameBits<R>(expected, {norm.ownValue(src), value})) << "len " << len;
    }
  });
}

template <class T, class R>
void checkNorms(const FloatNorms<T, R>& norms, const std::vector<int>& exponents) {
  for (const FloatNorm<T, R>& norm : norms) {
    SCOPED_TRACE(static_cast<int>(norm.norm));
    for (const int len : lengths()) {
      for (const int exponent : exponents) {
        // Its own rule, as documented.
        if (std::is_same_v<T, Vek32f> && norm.norm == Norm::kL2 && std::abs(exponent) > 40) break;
        SCOPED_TRACE(exponent);
        const std::vector<T> src = values<T, R>(static_cast<size_t>(len), exponent);
        ASSERT_NO_FATAL_FAILURE(norm.check(src));
        ASSERT_NO_FATAL_FAILURE(checkSameEverywhere(norm, src, 1));
      }
    }
    for (const int len : {1, 5, 77, 300, 4099, 50003}) {
      const std::vector<T> src = values<T, R>(static_cast<size_t>(len), exponents[0]);
      ASSERT_NO_FATAL_FAILURE(checkSameEverywhere(norm, src, 5));
    }
    // Terms that all round the same way.
    ASSERT_NO_FATAL_FAILURE(norm.check(std::vector<T>(500003, element<T>(R(0.1), R(0.2)))));
  }
}

TEST(Norms, OfFloats) {
  const std::vector<int> exponents = {0, 100, -100, -140};
  checkNorms(k32f, exponents);
  checkNorms(k32fc, exponents);
}

TEST(Norms, OfDoubles) {
  const std::vector<int> exponents = {0, 1000, -1000, -1070};
  checkNorms(k64f, exponents);
  checkNorms(k64fc, exponents);
}

// One magnitude and zeros: the root is that of the C library.
TEST(Norms, RootsAreRoundedOnce) {
  std::mt19937_64 random(1);
  std::vector<Vek32fc> elements(20000);
  for (Vek32fc& z : elements) {
    const int exponent = static_cast<int>(random() % 80) - 64;
    z.re = std::ldexp(static_cast<float>(random() % (1 << 24)), exponent);
    z.im = std::ldexp(static_cast<float>(random() % (1 << 24)), exponent);
  }
  onEveryTarget([&] {
    std::vector<Vek32fc> src(64);
    for (size_t i = 0; i < elements.size(); ++i) {
      const Vek32fc z = elements[i];
      src[i % src.size()] = z;
      Vek32f value = -1;
      ASSERT_EQ(veksNorm_L1_32fc32f(src.data(), static_cast<int>(src.size()), &value), vekStsOk);
      ASSERT_EQ(value, std::sqrt(z.re * z.re + z.im * z.im)) << i;
      src[i % src.size()] = {};
    }
  });
}

// Squares of some are denormal, of others large.
TEST(Norms, SmallAmongLarge) {
  std::vector<Vek32fc> src = values<Vek32fc, Vek32f>(10000, 20);
  for (size_t i = 0; i < src.size(); ++i) {
    const int exponent = -static_cast<int>(i * i % 97);
    src[i] = {std::ldexp(src[i].re, exponent), std::ldexp(src[i].im, exponent)};
  }
  for (const auto& norm : k32fc) {
    ASSERT_NO_FATAL_FAILURE(norm.check(src));
    ASSERT_NO_FATAL_FAILURE(checkSameEverywhere(norm, src, 3));
  }
}

// A NaN, an infinity or both in one of the parts at every position.
template <class T, class R>
void checkSpecialValues(const FloatNorms<T, R>& norms) {
  const R nan = std::numeric_limits<R>::quiet_NaN();
  const R infinity = std::numeric_limits<R>::infinity();
  const std::vector<T> special = {element<T>(nan, R(1)), element<T>(R(-1), nan),
                                  element<T>(-infinity, R(1)), element<T>(R(1), infinity),
                                  element<T>(infinity, nan)};
  onEveryTarget([&] {
    for (const FloatNorm<T, R>& norm : norms) {
      for (const T& x : special) {
        for (size_t at = 0; at <= 70; ++at) {
          std::vector<T> src(71, element<T>(R(3), R(4)));
          src[at] = x;
          ASSERT_NO_FATAL_FAILURE(
              expectNear(expectedNorm(norm.norm, src), norm.ownValue(src), R(1e-5)))
              << "at " << at;
        }
      }
      const std::vector<T> zeros(33, element<T>(-R(0), R(0)));
      ASSERT_TRUE(sameBits<R>({0}, {norm.ownValue(zeros)}));
    }
  });
}

TEST(Norms, SpecialValues) {
  checkSpecialValues(k32f);
  checkSpecialValues(k64f);
  checkSpecialValues(k32fc);
  checkSpecialValues(k64fc);
}

// Its sum of squares is a Vek32f.
TEST(Norms, RangeOfL2Of32f) {
  const FloatNorm<Vek32f, Vek32f>& norm = k32f[2];
  EXPECT_EQ(norm.ownValue({0x1p64F}), std::numeric_limits<Vek32f>::infinity());
  EXPECT_EQ(norm.ownValue({0x1.FFFFFEp62F, -0x1.FFFFFEp62F}), std::sqrt(2.0F) * 0x1.FFFFFEp62F);
  EXPECT_EQ(norm.ownValue({0x1p-62F}), 0x1p-62F);
  EXPECT_EQ(norm.ownValue({3.0F, -4.0F}), 5.0F);
}

}  // namespace
}  // namespace veks::test
