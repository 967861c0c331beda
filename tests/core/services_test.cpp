// Status texts, version record, processor class, denormal modes.
#include "veks/core/services.h"

#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <cstring>
#include <limits>
#include <string>

#include "core/processor.h"

namespace {

std::string textOf(int code) {
  return vekGetStatusString(static_cast<VekStatus>(code));
}

TEST(StatusString, KnowsEachCode) {
  const struct {
    int code;
    const char* text;
  } cases[] = {
      {vekStsOk, "No error, it's OK"},
      {vekErrNullPtr, "Null pointer error"},
      {vekErrSize, "Wrong value of data size"},
      {vekErrShift, "Shift value is less than zero"},
      {vekErrModeNotSupported, "The requested mode is currently not supported"},
      {vekErrCpuNotSupported, "The target cpu is not supported"},
      {vekWrnNoopInDynamic, "The function does nothing in the dynamic version of the library"},
      {-178, "ECC: Bad ephemeral key"},
      {28, "4th vertex of destination quad is not equal to customer's one"},
      {-73, "Illegal code during DC stream processing"},
      {-99, "Illegal code during DC stream processing"},
      {-1, "Unknown Status Code"},
      {-3, "Unknown Status Code"},
      {-68, "Unknown Status Code"},
      {-84, "Unknown Status Code"},
      {-89, "Unknown Status Code"},
      {-165, "Unknown Status Code"},
      {29, "Unknown Status Code"},
      {-179, "Unknown Status Code"},
      {std::numeric_limits<int>::min(), "Unknown Status Code"},
      {std::numeric_limits<int>::max(), "Unknown Status Code"},
  };
  for (const auto& c : cases) EXPECT_EQ(textOf(c.code), c.text) << c.code;
}

// All texts at once: their number and their FNV-1a hash, taken from the interface description.
TEST(StatusString, HasTheWholeTable) {
  int known = 0;
  uint64_t hash = 1469598103934665603U;
  for (int code = -70000; code <= 70000; ++code) {
    const std::string text = textOf(code);
    if (text == "Unknown Status Code") continue;
    ++known;
    for (char c : std::to_string(code) + ": " + text + "\n") {
      hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
    }
  }
  EXPECT_EQ(known, 199);
  EXPECT_EQ(hash, 0xF97ED055C9015B0FU);
}

TEST(LibVersion, IsOneConstantRecord) {
  const VekLibraryVersion* const version = veksGetLibVersion();
  ASSERT_NE(version, nullptr);
  EXPECT_EQ(version, veksGetLibVersion());
  EXPECT_EQ(version->versionMajor, 4);
  EXPECT_EQ(version->versionMinor, 0);
  EXPECT_EQ(version->buildMajor, 19);
  EXPECT_EQ(version->buildNumber, 77);
  EXPECT_EQ(std::memcmp(version->cpuCode, "t7\0\0", 4), 0);
  EXPECT_STREQ(version->libraryName, "libveks.a");
  EXPECT_STREQ(version->versionText, "v4.0");
  EXPECT_EQ(std::strlen(version->buildDate), 11U);
  EXPECT_EQ(offsetof(VekLibraryVersion, cpuCode), 16U);
  EXPECT_EQ(offsetof(VekLibraryVersion, libraryName), 24U - (sizeof(void*) == 4 ? 4U : 0U));
}

veks::CpuidRegisters vendor(const char* name) {
  veks::CpuidRegisters leaf{};
  std::memcpy(&leaf.ebx, name, 4);
  std::memcpy(&leaf.edx, name + 4, 4);
  std::memcpy(&leaf.ecx, name + 8, 4);
  return leaf;
}

TEST(CpuType, FollowsFamilyAndFeatures) {
  constexpr uint32_t kMmx = 1U << 23;
  constexpr uint32_t kSse = kMmx | 1U << 25;
  constexpr uint32_t kSse2 = kSse | 1U << 26;
  constexpr uint32_t kHt = 1U << 28;
  constexpr uint32_t kTwoLogical = 2U << 16;
  constexpr uint32_t kExtendedFamily = 10U << 20;
  const struct {
    uint32_t family, ebx, ecx, edx;
    VekCpuType type;
  } cases[] = {
      {4, 0, 0, kMmx, vekCpuUnknown},
      {5, 0, 0, 0, vekCpuFam5},
      {5, 0, 0, kMmx, vekCpuFam5Mmx},
      {6, 0, 0, 0, vekCpuFam6},
      {6, 0, 0, kMmx, vekCpuFam6Mmx},
      {6, 0, 0, kSse, vekCpuFam6Sse},
      {6, 0, 1, kSse2, vekCpuFam6Sse2},
      {7, 0, 1, kSse2, vekCpuEpic64},
      {8, 0, 1, kSse2, vekCpuUnknown},
      {15, 0, 0, kSse, vekCpuEpic64Gen2},
      {15, 0, 0, kSse2, vekCpuFam15Sse2},
      {15, kTwoLogical, 0, kSse2, vekCpuFam15Sse2},
      {15, kTwoLogical / 2, 0, kSse2 | kHt, vekCpuFam15Sse2},
      {15, kTwoLogical, 0, kSse2 | kHt, vekCpuFam15Sse2Ht},
      {15, 0, 1, kSse2, vekCpuFam15Sse3},
      {15, kTwoLogical, 1, kSse2 | kHt, vekCpuFam15Sse3},
  };
  for (const auto& c : cases) {
    const veks::CpuidRegisters leaf1 = {kExtendedFamily | c.family << 8 | 0x73, c.ebx, c.ecx,
                                        c.edx};
    EXPECT_EQ(veks::processorClass(vendor("GenuineOrvix"), leaf1), c.type)
        << "family " << c.family << " edx " << c.edx;
    EXPECT_EQ(veks::processorClass(vendor("GenuineOrviy"), leaf1), vekCpuUnknown);
  }
  EXPECT_EQ(vekGetCpuType(), vekGetCpuType());
}

TEST(CpuClocks, Advance) {
  const unsigned long long before = vekGetCpuClocks();
  unsigned long long after = before;
  for (int i = 0; i < 1000000 && after == before; ++i) after = vekGetCpuClocks();
  EXPECT_GT(after, before);
}

TEST(DenormalModes, AreRefusedAndLeftAlone) {
  const unsigned int mode = _mm_getcsr();
  unsigned int mask = 0xDEADBEEF;
  for (int value : {0, 1, -1}) {
    EXPECT_EQ(vekSetFlushToZero(value, &mask), vekErrCpuNotSupported);
    EXPECT_EQ(vekSetFlushToZero(value, nullptr), vekErrCpuNotSupported);
    EXPECT_EQ(vekSetDenormAreZeros(value), vekErrCpuNotSupported);
  }
  EXPECT_EQ(mask, 0xDEADBEEF);
  EXPECT_EQ(_mm_getcsr(), mode);
}

}  // namespace
