// Floating-point values rounded to 16 bits: products and interleaved channels.
#include <xmmintrin.h>

#include <cmath>

#include "vector/check_scaled.h"
#include "veks/vector/arithmetic.h"

namespace veks::test {
namespace {

Vek16s toShort(float x, int s) {
  if (x != x) return -32768;
  const double value =
      std::nearbyint(std::ldexp(static_cast<double>(x), s < -400 ? 400 : (s > 400 ? -400 : -s)));
  return static_cast<Vek16s>(value > 32767 ? 32767 : (value < -32768 ? -32768 : value));
}

// Ties and their neighbours, limits, denormals, infinities, NaN and random bits.
std::vector<Vek32f> samples(size_t n) {
  std::vector<Vek32f> all = randomBits<Vek32f>(n);
  for (size_t i = 0; i < n; i += 2) {
    const float tie = static_cast<float>(static_cast<int>(i % 70000)) - 35000 + 0.5F;
    all[i] = i % 6 == 0 ? tie : std::nextafter(tie, i % 6 == 2 ? 1e9F : -1e9F);
  }
  for (size_t i = 0; i + 6 < n; i += 1001) {
    const float some[] = {0.5F, 1.5F, 0.49999997F, 32767.5F, -32768.5F, NAN};
    std::copy(some, some + 6, all.begin() + static_cast<ptrdiff_t>(i));
  }
  return all;
}

TEST(RoundedProducts, AreScaledWithoutOverflow) {
  const std::vector<Vek32f> src = samples(20000);
  for (Vek32f val : {1.0F, -3.0F, 1e-30F, 1e30F}) {
    const auto call = [&](size_t i, int len, Vek16s* dst, int s) {
      return veksMulC_32f16s_Sfs(&src[i], val, dst, len, s);
    };
    const auto wanted = [&](size_t i, int s) {
      const volatile float product = src[i] * val;
      return toShort(product, s);
    };
    checkEveryScale(std::vector<Vek16s>(src.size()), call, wanted);
    for (int s : {-200, -150, 150, 200}) {
      std::vector<Vek16s> dst(src.size());
      ASSERT_EQ(call(0, static_cast<int>(src.size()), dst.data(), s), vekStsOk);
      for (size_t i = 0; i < src.size(); ++i) ASSERT_EQ(dst[i], wanted(i, s)) << src[i];
    }
    std::vector<Vek16s> dst(src.size());
    ASSERT_EQ(veksMulC_Low_32f16s(src.data(), val, dst.data(), 20000), vekStsOk);
    for (size_t i = 0; i < src.size(); ++i) ASSERT_EQ(dst[i], wanted(i, 0)) << src[i];
  }
}

TEST(Join, InterleavesEveryNumberOfChannels) {
  constexpr size_t kLongest = 600;
  const std::vector<Vek32f> all = samples(9 * kLongest);
  onEveryTarget([&] {
    for (size_t channels = 1; channels <= 9; ++channels) {
      for (size_t len : {size_t{1}, size_t{2}, size_t{7}, size_t{67}, size_t{255}, size_t{256},
                         size_t{257}, kLongest}) {
        std::vector<const Vek32f*> src(channels);
        for (size_t k = 0; k < channels; ++k) src[k] = &all[kLongest * k];
        const size_t n = len * channels;
        std::vector<Vek16s> expected(n + 1, 77);
        for (size_t i = 0; i < n; ++i) {
          const size_t channel = i % src.size();
          expected[i] = toShort(src[channel][i / src.size()], 0);
        }
        std::vector<Vek16s> dst(n + 1, 77);
        ASSERT_EQ(veksJoin_32f16s_D2L(src.data(), static_cast<int>(channels), static_cast<int>(len),
                                      dst.data()),
                  vekStsOk);
        ASSERT_TRUE(sameBits(expected, dst)) << channels << " channels of " << len;
      }
    }
  });
}

TEST(Join, KeepsTheCallersRoundingMode) {
  const Vek32f left[] = {1.5F, 40000};
  const Vek32f right[] = {2.5F, -40000};
  const Vek32f* src[] = {left, right};
  const unsigned callers = _mm_getcsr();
  for (unsigned mode : {_MM_ROUND_NEAREST, _MM_ROUND_DOWN, _MM_ROUND_UP, _MM_ROUND_TOWARD_ZERO}) {
    Vek16s dst[4];
    _mm_setcsr((callers & ~unsigned{_MM_ROUND_MASK}) | mode);
    const VekStatus status = veksJoin_32f16s_D2L(src, 2, 2, dst);
    const unsigned after = _mm_getcsr() & _MM_ROUND_MASK;
    _mm_setcsr(callers);
    EXPECT_EQ(status, vekStsOk);
    EXPECT_EQ(after, mode);
    EXPECT_EQ(dst[0], 2);
    EXPECT_EQ(dst[1], 2);
    EXPECT_EQ(dst[2], 32767);
    EXPECT_EQ(dst[3], -32768);
  }
}

TEST(Join, ChecksInItsOwnOrder) {
  const Vek32f one = 1;
  const Vek32f* src[] = {&one, nullptr};
  Vek16s dst[2] = {9, 9};
  EXPECT_EQ(veksJoin_32f16s_D2L(src, 0, 0, nullptr), vekErrNullPtr);
  EXPECT_EQ(veksJoin_32f16s_D2L(nullptr, 0, 1, dst), vekErrSize);
  EXPECT_EQ(veksJoin_32f16s_D2L(nullptr, 1, 0, dst), vekErrSize);
  EXPECT_EQ(veksJoin_32f16s_D2L(nullptr, 1, 1, dst), vekErrNullPtr);
  EXPECT_EQ(veksJoin_32f16s_D2L(src, 2, 1, dst), vekErrNullPtr);
  EXPECT_EQ(dst[0], 9);
}

}  // namespace
}  // namespace veks::test
