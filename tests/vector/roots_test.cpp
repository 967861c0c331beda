// Square roots against IEEE roots and squares of integers.
#include <cmath>

#include "vector/check_scaled.h"
#include "veks/vector/arithmetic.h"

namespace veks::test {
namespace {

template <class T>
void checkRoots(VekStatus (*out)(const T*, T*, int), VekStatus (*in)(T*, int)) {
  std::vector<T> all = randomElements<T>(5000);
  onEveryTarget([&] {
    for (bool negative : {false, true}) {
      for (int len : testLengths()) {
        std::vector<T> src(all.begin(), all.begin() + len);
        for (T& x : src) x = x < 0 ? -x : x;
        src[0] = -T{0};
        if (negative) src[static_cast<size_t>(len - 1)] = -1;
        std::vector<T> expected(src.size());
        for (size_t i = 0; i < src.size(); ++i) {
          expected[i] = src[i] < 0 ? -std::numeric_limits<T>::quiet_NaN() : std::sqrt(src[i]);
        }
        std::vector<T> dst(src.size());
        const VekStatus status = negative ? vekWrnSqrtNegArg : vekStsOk;
        ASSERT_EQ(out(src.data(), dst.data(), len), status);
        ASSERT_TRUE(sameBits(expected, dst));
        ASSERT_EQ(in(src.data(), len), status);
        ASSERT_TRUE(sameBits(expected, src)) << "in place";
      }
    }
  });
}

TEST(Roots, FloatingPoint) {
  checkRoots(veksSqrt_32f, veksSqrt_32f_I);
  checkRoots(veksSqrt_64f, veksSqrt_64f_I);
}

// The function's results for all of src, at every position of the vectors of a loop.
template <class T>
void checkCorrectlyRounded(VekStatus (*out)(const T*, T*, int), const std::vector<T>& src) {
  std::vector<T> expected(src.size());
  for (size_t i = 0; i < src.size(); ++i) expected[i] = std::sqrt(src[i]);
  std::vector<T> dst(src.size());
  onEveryTarget([&] {
    for (size_t skipped : {size_t{0}, size_t{16}}) {
      const int len = static_cast<int>(src.size() - skipped);
      std::fill(dst.begin(), dst.end(), T{-1});
      ASSERT_EQ(out(src.data() + skipped, dst.data() + skipped, len), vekStsOk);
      std::copy_n(expected.begin(), skipped, dst.begin());
      ASSERT_TRUE(sameBits(expected, dst));
    }
  });
}

TEST(Roots, EverySignificandOfFloats) {
  constexpr size_t kPart = size_t{1} << 20;
  std::vector<float> src(kPart);
  for (float first : {1.0F, 2.0F}) {
    for (size_t part = 0; part < 8; ++part) {
      for (size_t i = 0; i < kPart; ++i) {
        src[i] = first * (1 + static_cast<float>(part * kPart + i) * 0x1p-23F);
      }
      checkCorrectlyRounded(veksSqrt_32f, src);
    }
  }
}

TEST(Roots, EveryExponent) {
  std::mt19937_64 random(9);
  std::vector<float> floats;
  for (uint32_t exponent = 0; exponent < 255; ++exponent) {
    for (int i = 0; i < 200; ++i) {
      const uint32_t bits = exponent << 23 | static_cast<uint32_t>(random() % (1 << 23));
      floats.push_back(0);
      std::memcpy(&floats.back(), &bits, sizeof(bits));
    }
  }
  checkCorrectlyRounded(veksSqrt_32f, floats);
  std::vector<double> doubles;
  for (uint64_t exponent = 0; exponent < 2047; ++exponent) {
    for (int i = 0; i < 200; ++i) {
      const uint64_t bits = exponent << 52 | random() >> 12;
      doubles.push_back(0);
      std::memcpy(&doubles.back(), &bits, sizeof(bits));
    }
  }
  checkCorrectlyRounded(veksSqrt_64f, doubles);
}

// With odd m and a small k, of either sign, v = (m^2 + k) / 4^54 has a root next to m / 2^54, which
// lies in the middle between two doubles. Where v is a double, m is a root of -k modulo 2^54, for v
// >= 2 modulo 2^55: the lowest bits of it decide about those that follow.
std::vector<double> radicandsNextToMiddles() {
  std::vector<double> all;
  for (int bits : {54, 55}) {
    const uint64_t modulus = uint64_t{1} << bits;
    for (uint64_t k = 7; k < 512; k += 8) {
      for (uint64_t square : {0 - k, k - 6}) {
        uint64_t root = 1;
        for (int bit = 3; bit < bits; ++bit) {
          if (((root * root - square) >> bit & 1) != 0) root += uint64_t{1} << (bit - 1);
        }
        for (uint64_t m : {root, 0 - root, root + modulus / 2, modulus / 2 - root}) {
          m %= modulus;
          const Exact v = exact(m) * exact(m) - exact(static_cast<int64_t>(square));
          const uint64_t significand = v.high << (64 - bits) | v.low >> bits;
          if (significand >> 52 != 1 || (m >> 53) != 1) continue;
          all.push_back(std::ldexp(static_cast<double>(significand), bits - 106));
        }
      }
    }
  }
  return all;
}

TEST(Roots, NextToMiddles) {
  const std::vector<double> radicands = radicandsNextToMiddles();
  ASSERT_GT(radicands.size(), 150U);
  for (double v : radicands) ASSERT_TRUE(v >= 1 && v < 4);
  std::vector<double> src;
  for (int exponent = -800; exponent <= 1000; exponent += 120) {
    for (double v : radicands) src.push_back(std::ldexp(v, exponent));
  }
  for (int skipped = 0; skipped < 32; skipped += 8) {
    src.insert(src.begin(), 8, 1.5);
    checkCorrectlyRounded(veksSqrt_64f, src);
  }
}

// Whether a * 4^shift, 0 <= shift < 64, is below, at or above b^2.
int compareSquares(uint64_t a, int shift, uint64_t b) {
  const Exact power = {false, 0, uint64_t{1} << shift};
  // a 2^shift 2^shift: the first product must stay below 2^64, so a is split.
  const Exact low = {false, 0, (a & 0xFFFFFFFF)};
  const Exact high = {false, 0, a >> 32};
  const auto times = [&](Exact x) {
    const Exact once = x * power;
    return Exact{false, 0, once.low} * power +
           Exact{false, (Exact{false, 0, once.high} * power).low, 0};
  };
  const Exact upper = times(high);
  const Exact shifted = {false, upper.high << 32 | upper.low >> 32, upper.low << 32};
  const Exact difference = times(low) + shifted - exact(b) * exact(b);
  if (difference.high == 0 && difference.low == 0) return 0;
  return difference.negative ? -1 : 1;
}

// Whether result is sqrt(x) * 2^-s, rounded and saturated: 4 x 4^-s lies between the squares of
// 2 result - 1 and 2 result + 1.
template <class T>
bool isScaledRoot(int64_t x, int s, T result) {
  constexpr uint64_t kMax = std::numeric_limits<T>::max();
  if (x <= 0) return result == 0;
  if (s > 33) return result == 0;
  const uint64_t m = static_cast<uint64_t>(result);
  // With s > 0 all is multiplied by 4^s instead.
  const int up = s > 0 ? s : 0;
  const long double root = std::ldexp(std::sqrt(static_cast<long double>(x)), s < -200 ? 200 : -s);
  if (root >= static_cast<long double>(kMax) + 1) return m == kMax;
  const int shift = 1 + (s > 0 ? 0 : -s);
  if (m < kMax) {
    const int above = compareSquares(static_cast<uint64_t>(x), shift, (2 * m + 1) << up);
    if (above > 0 || (above == 0 && m % 2 == 1)) return false;
  }
  if (m == 0) return true;
  const int below = compareSquares(static_cast<uint64_t>(x), shift, (2 * m - 1) << up);
  return below > 0 || (below == 0 && m % 2 == 0);
}

// The function's own results, where they are right; otherwise something else.
template <class S, class T>
void checkIntegerRoots(VekStatus (*out)(const S*, T*, int, int), VekStatus (*in)(T*, int, int)) {
  const std::vector<S> src = operands<S>(false);
  const int len = static_cast<int>(src.size());
  for (int s : scaleFactors()) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    std::vector<T> first(src.size());
    for (int target = 0; target < targetCount(); ++target) {
      useTarget(target);
      std::vector<T> dst(src.size());
      const VekStatus status = std::is_signed_v<S> ? vekWrnSqrtNegArg : vekStsOk;
      ASSERT_EQ(out(src.data(), dst.data(), len, s), status);
      if (target == 0) {
        first = dst;
        for (size_t i = 0; i < src.size(); ++i) {
          ASSERT_TRUE(isScaledRoot<T>(static_cast<int64_t>(src[i]), s, dst[i]))
              << "root of " << int64_t{src[i]} << ": " << int64_t{dst[i]};
        }
      }
      ASSERT_TRUE(sameBits(first, dst)) << targetName(target);
      if constexpr (std::is_same_v<S, T>) {
        if (in != nullptr) {
          std::vector<T> srcDst = src;
          ASSERT_EQ(in(srcDst.data(), len, s), status);
          ASSERT_TRUE(sameBits(first, srcDst)) << "in place";
        }
      }
    }
  }
}

TEST(Roots, OfIntegers) {
  checkIntegerRoots(veksSqrt_8u_Sfs, veksSqrt_8u_ISfs);
  checkIntegerRoots(veksSqrt_16u_Sfs, veksSqrt_16u_ISfs);
  checkIntegerRoots(veksSqrt_16s_Sfs, veksSqrt_16s_ISfs);
  checkIntegerRoots(veksSqrt_64s_Sfs, veksSqrt_64s_ISfs);
  checkIntegerRoots<Vek32s, Vek16s>(veksSqrt_32s16s_Sfs, nullptr);
  checkIntegerRoots<Vek64s, Vek16s>(veksSqrt_64s16s_Sfs, nullptr);
  const Vek16s positive = 9;
  Vek16s root = 0;
  EXPECT_EQ(veksSqrt_16s_Sfs(&positive, &root, 1, 0), vekStsOk);
  EXPECT_EQ(root, 3);
}

// Integers whose roots are whole, or lie next to the middle of two numbers.
TEST(Roots, NextToSquares) {
  std::mt19937_64 random(11);
  std::vector<Vek64s> src;
  for (int bits = 1; bits <= 31; ++bits) {
    for (int i = 0; i < 300; ++i) {
      const Vek64s root = static_cast<Vek64s>(random() >> (64 - bits) | uint64_t{1} << (bits - 1));
      for (Vek64s x : {root * root, root * root - 1, root * root + root, root * root + root + 1}) {
        src.push_back(x);
      }
    }
  }
  constexpr Vek64s kLargestRoot = 3037000499;
  src.push_back(kLargestRoot * kLargestRoot);
  src.push_back(kLargestRoot * kLargestRoot + kLargestRoot);
  src.push_back(std::numeric_limits<Vek64s>::max());
  std::vector<Vek64s> dst(src.size());
  std::vector<Vek16s> narrow(src.size());
  onEveryTarget([&] {
    for (int s = -20; s <= 34; ++s) {
      SCOPED_TRACE("scale factor " + std::to_string(s));
      const int len = static_cast<int>(src.size());
      ASSERT_EQ(veksSqrt_64s_Sfs(src.data(), dst.data(), len, s), vekStsOk);
      ASSERT_EQ(veksSqrt_64s16s_Sfs(src.data(), narrow.data(), len, s), vekStsOk);
      for (size_t i = 0; i < src.size(); ++i) {
        ASSERT_TRUE(isScaledRoot<Vek64s>(src[i], s, dst[i])) << "root of " << src[i];
        ASSERT_EQ(narrow[i], std::min(dst[i], Vek64s{32767})) << "root of " << src[i];
      }
    }
  });
}

template <class T>
struct LongRoot {
  long double re;
  long double im;
};

// The larger part from a sum, the other from y = 2 re im, as a textbook has it.
LongRoot<long double> longRoot(long double x, long double y) {
  if (x == 0 && y == 0) return {0, y};
  const long double larger = std::sqrt((std::hypot(x, y) + std::abs(x)) / 2);
  const long double smaller = std::abs(y) / (2 * larger);
  return {x < 0 ? smaller : larger, std::copysign(x < 0 ? larger : smaller, y)};
}

template <class C>
void checkComplexRoots(VekStatus (*out)(const C*, C*, int), VekStatus (*in)(C*, int), int exponents,
                       long double ulps) {
  using T = decltype(C::re);
  std::mt19937_64 random(3);
  std::uniform_real_distribution<T> mantissa(T{-1}, T{1});
  std::vector<C> src = {{0, 0}, {0, -T{0}}, {-4, 0}, {-4, -T{0}}, {3, 4}};
  while (src.size() < 3001) {
    const auto exponent = [&] {
      return static_cast<int>(random() % static_cast<uint64_t>(exponents)) - exponents / 2;
    };
    const int e = exponent();
    src.push_back({std::ldexp(mantissa(random), e),
                   std::ldexp(mantissa(random), random() % 2 == 0 ? e : exponent())});
  }
  const auto ulp = [](T x) {
    const T magnitude = std::abs(x);
    const T next = std::nextafter(magnitude, std::numeric_limits<T>::infinity());
    return static_cast<long double>(next - magnitude);
  };
  onEveryTarget([&] {
    std::vector<C> dst(src.size());
    ASSERT_EQ(out(src.data(), dst.data(), static_cast<int>(src.size())), vekStsOk);
    for (size_t i = 0; i < src.size(); ++i) {
      const LongRoot<long double> root = longRoot(src[i].re, src[i].im);
      ASSERT_LE(std::abs(dst[i].re - root.re), ulps * ulp(dst[i].re)) << i;
      ASSERT_LE(std::abs(dst[i].im - root.im), ulps * ulp(dst[i].im)) << i;
      ASSERT_EQ(std::signbit(dst[i].im), std::signbit(src[i].im)) << i;
    }
    std::vector<C> srcDst = src;
    ASSERT_EQ(in(srcDst.data(), static_cast<int>(src.size())), vekStsOk);
    ASSERT_TRUE(sameBits(dst, srcDst)) << "in place";
  });
}

TEST(Roots, Complex) {
  checkComplexRoots(veksSqrt_32fc, veksSqrt_32fc_I, 250, 1);
  checkComplexRoots(veksSqrt_64fc, veksSqrt_64fc_I, 2040, 2);
}

TEST(Roots, OfComplexIntegers) {
  std::vector<Vek16sc> src = complexOperands<Vek16sc>(false);
  // Squares of Gaussian integers and their quarters have roots with ties.
  for (int re = -30; re <= 30; ++re) {
    for (int im = -30; im <= 30; ++im) {
      src.push_back({static_cast<Vek16s>(re * re - im * im), static_cast<Vek16s>(2 * re * im)});
    }
  }
  const auto round = [](long double x, int s) {
    const long double value = std::nearbyint(std::ldexp(x, s < -99 ? 99 : (s > 99 ? -99 : -s)));
    return static_cast<Vek16s>(value > 32767 ? 32767 : (value < -32768 ? -32768 : value));
  };
  const auto wanted = [&](size_t i, int s) {
    const LongRoot<long double> root = longRoot(src[i].re, src[i].im);
    return Vek16sc{round(root.re, s), round(root.im, s)};
  };
  checkEveryScale(
      std::vector<Vek16sc>(src.size()),
      [&](size_t i, int len, Vek16sc* dst, int s) {
        return veksSqrt_16sc_Sfs(&src[i], dst, len, s);
      },
      wanted);
  checkEveryScale(
      src, [](size_t, int len, Vek16sc* dst, int s) { return veksSqrt_16sc_ISfs(dst, len, s); },
      wanted);
}

}  // namespace
}  // namespace veks::test
