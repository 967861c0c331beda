// The choice of the SIMD target.
#include <thread>

#include "support.h"
#include "veks.h"

namespace veks::test {
namespace {

// Static objects of an application may call the library before main.
const std::string kNameBeforeMain = vekGetTargetName();

TEST(Targets, BestOneIsActiveFromTheStart) {
  EXPECT_EQ(kNameBeforeMain, targetName(targetCount() - 1));
  EXPECT_EQ(kNameBeforeMain, vekGetTargetName());
  std::string expected = "EMU128";
#ifndef VEKS_DISABLE_SSE4
  if (__builtin_cpu_supports("sse4.2")) expected = "SSE4";
#endif
#if defined(__x86_64__) && !defined(VEKS_DISABLE_AVX2)
  const bool avx2 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") &&
                    __builtin_cpu_supports("bmi") && __builtin_cpu_supports("bmi2");
  if (avx2) expected = "AVX2";
  if (kNameBeforeMain == "AVX3" && __builtin_cpu_supports("avx512vl")) expected = "AVX3";
#endif
  EXPECT_EQ(kNameBeforeMain, expected);
}

TEST(Targets, AreWalkedFromTheBaseline) {
  std::vector<std::string> names;
  onEveryTarget([&] {
    const std::string name = vekGetTargetName();
    if (names.empty() || names.back() != name) names.push_back(name);
  });
  ASSERT_EQ(names.size(), static_cast<size_t>(targetCount()));
  EXPECT_EQ(names.front(), "EMU128");
  EXPECT_EQ(names.back(), kNameBeforeMain);
}

// For the thread sanitizer: concurrent calls share nothing that is written.
TEST(Targets, SixteenThreadsCallAtOnce) {
  const std::vector<Vek32u> src = randomBits<Vek32u>(1000);
  std::vector<std::vector<Vek32u>> results(16, std::vector<Vek32u>(src.size()));
  std::vector<std::thread> threads;
  threads.reserve(results.size());
  for (std::vector<Vek32u>& dst : results) {
    threads.emplace_back([&src, &dst] {
      veksXorC_32u(src.data(), 0x55AA00FFU, dst.data(), static_cast<int>(src.size()));
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const std::vector<Vek32u>& dst : results) {
    for (size_t i = 0; i < src.size(); ++i) ASSERT_EQ(dst[i], src[i] ^ 0x55AA00FFU);
  }
}

}  // namespace
}  // namespace veks::test
