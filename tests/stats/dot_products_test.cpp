// Dot products against exact totals.
#include "veks/stats/dot_products.h"

#include "stats/exact_totals.h"

namespace veks::test {
namespace {

template <class S1, class S2, class R, class... P>
void checkDot(VekStatus (*dot)(const S1*, const S2*, int, R*, P...)) {
  for (Elements kind : contents<S1>()) {
    SCOPED_TRACE("content " + std::to_string(static_cast<int>(kind)));
    const std::vector<S1> src1 = elementsOf<S1>(kind, 70001, 1);
    const std::vector<S2> src2 = elementsOf<S2>(kind, 70001, 2);
    std::vector<ExactParts> terms;
    for (size_t i = 0; i < src1.size(); ++i) {
      terms.push_back(exactParts(src1[i]) * exactParts(src2[i]));
    }
    checkTotals<R>(terms, sizeof...(P) == 1, [&](int len, R* result, [[maybe_unused]] int s) {
      return dot(src1.data(), src2.data(), len, result, (static_cast<P>(s))...);
    });
  }
}

TEST(DotProducts, OfFloats) {
  checkDot(veksDotProd_32f);
  checkDot(veksDotProd_32fc);
  checkDot(veksDotProd_32f32fc);
  checkDot(veksDotProd_64f);
  checkDot(veksDotProd_64fc);
  checkDot(veksDotProd_64f64fc);
  checkDot(veksDotProd_32f64f);
  checkDot(veksDotProd_32fc64fc);
  checkDot(veksDotProd_32f32fc64fc);
}

TEST(DotProducts, OfShortIntegers) {
  checkDot(veksDotProd_16s64s);
  checkDot(veksDotProd_16sc64sc);
  checkDot(veksDotProd_16s16sc64sc);
  checkDot(veksDotProd_16s32f);
  checkDot(veksDotProd_16sc32fc);
  checkDot(veksDotProd_16s16sc32fc);
  checkDot(veksDotProd_16s_Sfs);
  checkDot(veksDotProd_16sc_Sfs);
  checkDot(veksDotProd_16s16sc_Sfs);
  checkDot(veksDotProd_16s32s_Sfs);
  checkDot(veksDotProd_16sc32sc_Sfs);
  checkDot(veksDotProd_16s16sc32sc_Sfs);
}

TEST(DotProducts, OfLongIntegers) {
  checkDot(veksDotProd_16s32s32s_Sfs);
  checkDot(veksDotProd_32s_Sfs);
  checkDot(veksDotProd_32sc_Sfs);
  checkDot(veksDotProd_32s32sc_Sfs);
}

// Where every product is the largest, lengths at which 64 bits are not enough for the total.
TEST(DotProducts, LongVectorsOfLimits) {
  constexpr int kLen = 1000003;
  constexpr auto kMin32 = std::numeric_limits<Vek32s>::min();
  const std::vector<Vek16s> shorts(kLen, -32768);
  const std::vector<Vek16sc> complexShorts(kLen, {-32768, 32767});
  const std::vector<Vek32s> longs(kLen, kMin32);
  const std::vector<Vek32sc> complexLongs(kLen, {kMin32, kMin32});
  const Exact n = exact(kLen);
  const Exact square = exact(int64_t{1} << 62);
  // Less than half of what 2^62 kLen / 2^s comes to would have been lost, had it wrapped around.
  constexpr int kScale = 55;
  onEveryTarget([&] {
    Vek64s total = 0;
    ASSERT_EQ(veksDotProd_16s64s(shorts.data(), shorts.data(), kLen, &total), vekStsOk);
    ASSERT_EQ(total, int64_t{kLen} << 30);
    Vek64sc parts = {};
    ASSERT_EQ(veksDotProd_16sc64sc(complexShorts.data(), complexShorts.data(), kLen, &parts),
              vekStsOk);
    ASSERT_EQ(parts.re, int64_t{kLen} * ((1 << 30) - 32767 * 32767));
    ASSERT_EQ(parts.im, int64_t{kLen} * -2147418112);
    Vek32s result = 0;
    ASSERT_EQ(veksDotProd_32s_Sfs(longs.data(), longs.data(), kLen, &result, kScale), vekStsOk);
    ASSERT_EQ(result, scaled<Vek32s>(n * square, kScale));
    Vek32sc complexResult = {};
    ASSERT_EQ(veksDotProd_32sc_Sfs(complexLongs.data(), complexLongs.data(), kLen, &complexResult,
                                   kScale),
              vekStsOk);
    ASSERT_EQ(complexResult.re, 0);
    ASSERT_EQ(complexResult.im, scaled<Vek32s>(n * square + n * square, kScale));
    ASSERT_EQ(veksDotProd_16s32s32s_Sfs(shorts.data(), longs.data(), kLen, &result, 36), vekStsOk);
    ASSERT_EQ(result, scaled<Vek32s>(n * exact(int64_t{1} << 46), 36));
  });
}

// (1 + 2^-12)^2 rounds to 1 + 2^-11 in single precision: only so does the sum vanish.
TEST(DotProducts, SingleRoundsEachProduct) {
  onEveryTarget([&] {
    for (size_t n = 2; n < 300; ++n) {
      std::vector<Vek32f> src1(n);
      std::vector<Vek32f> src2(n);
      src1.front() = src2.front() = 1 + 0x1p-12F;
      src1.back() = 1 + 0x1p-11F;
      src2.back() = -1;
      Vek32f sum = 1;
      ASSERT_EQ(veksDotProd_32f(src1.data(), src2.data(), static_cast<int>(n), &sum), vekStsOk);
      ASSERT_EQ(sum, 0);
      Vek64f wide = 0;
      ASSERT_EQ(veksDotProd_32f64f(src1.data(), src2.data(), static_cast<int>(n), &wide), vekStsOk);
      ASSERT_EQ(wide, 0x1p-24);
    }
  });
}

template <class T>
std::vector<T> magnitudes(size_t n, uint64_t seed) {
  std::mt19937_64 random(seed);
  std::uniform_real_distribution<T> distribution(T{0.5}, T{1});
  std::vector<T> elements(n);
  for (T& x : elements) x = distribution(random);
  return elements;
}

// The documented bound, for positive terms. Complex vectors have the same parts.
template <class S, class R, class C, class CR>
void checkErrors(VekStatus (*real)(const S*, const S*, int, R*),
                 VekStatus (*complex)(const C*, const C*, int, CR*),
                 VekStatus (*mixed)(const S*, const C*, int, CR*)) {
  constexpr int kLen = 100001;
  const std::vector<S> src1 = magnitudes<S>(kLen, 1);
  const std::vector<S> src2 = magnitudes<S>(kLen, 2);
  std::vector<C> complex1;
  std::vector<C> complex2;
  long double expected = 0;
  for (size_t i = 0; i < kLen; ++i) {
    expected += static_cast<long double>(src1[i]) * src2[i];
    complex1.push_back({src1[i], -src1[i]});
    complex2.push_back({src2[i], src2[i]});
  }
  const long double bound =
      280 * expected * static_cast<long double>(std::numeric_limits<R>::epsilon()) / 2;
  onEveryTarget([&] {
    R sum = 0;
    ASSERT_EQ(real(src1.data(), src2.data(), kLen, &sum), vekStsOk);
    ASSERT_LE(std::abs(sum - expected), bound);
    CR parts = {};
    ASSERT_EQ(complex(complex1.data(), complex2.data(), kLen, &parts), vekStsOk);
    ASSERT_LE(std::abs(parts.re - 2 * expected), 2 * bound);
    ASSERT_LE(std::abs(parts.im), 2 * bound);
    ASSERT_EQ(mixed(src1.data(), complex2.data(), kLen, &parts), vekStsOk);
    ASSERT_LE(std::abs(parts.re - expected), bound);
    ASSERT_LE(std::abs(parts.im - expected), bound);
  });
}

TEST(DotProducts, Errors) {
  checkErrors(veksDotProd_32f, veksDotProd_32fc, veksDotProd_32f32fc);
  checkErrors(veksDotProd_64f, veksDotProd_64fc, veksDotProd_64f64fc);
  checkErrors(veksDotProd_32f64f, veksDotProd_32fc64fc, veksDotProd_32f32fc64fc);
}

}  // namespace
}  // namespace veks::test
