#include "core/processor.h"

#include <cpuid.h>
#include <x86intrin.h>

#include <cstring>

#include "veks/core/services.h"

namespace veks {
namespace {

constexpr bool hasBit(uint32_t bits, int position) {
  return ((bits >> position) & 1) != 0;
}

// Zeros if the processor does not have the leaf.
CpuidRegisters cpuid(uint32_t leaf, uint32_t subleaf = 0) {
  CpuidRegisters r{};
  __get_cpuid_count(leaf, subleaf, &r.eax, &r.ebx, &r.ecx, &r.edx);
  return r;
}

bool savesRegisters(uint32_t wanted) {
  constexpr int kOsxsave = 27;
  if (!hasBit(cpuid(1).ecx, kOsxsave)) return false;
  uint32_t low = 0;
  uint32_t high = 0;
  __asm__("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
  return (low & wanted) == wanted;
}

}  // namespace

VekCpuType processorClass(const CpuidRegisters& leaf0, const CpuidRegisters& leaf1) {
  char vendor[12];
  std::memcpy(vendor, &leaf0.ebx, 4);
  std::memcpy(vendor + 4, &leaf0.edx, 4);
  std::memcpy(vendor + 8, &leaf0.ecx, 4);
  if (std::memcmp(vendor, "GenuineOrvix", sizeof(vendor)) != 0) return vekCpuUnknown;

  const uint32_t family = (leaf1.eax >> 8) & 15;
  const bool mmx = hasBit(leaf1.edx, 23);
  const bool sse = hasBit(leaf1.edx, 25);
  const bool sse2 = hasBit(leaf1.edx, 26);
  const bool sse3 = hasBit(leaf1.ecx, 0);
  const bool severalLogical = hasBit(leaf1.edx, 28) && ((leaf1.ebx >> 16) & 255) > 1;
  switch (family) {
    case 5:
      return mmx ? vekCpuFam5Mmx : vekCpuFam5;
    case 6:
      if (sse2) return vekCpuFam6Sse2;
      if (sse) return vekCpuFam6Sse;
      return mmx ? vekCpuFam6Mmx : vekCpuFam6;
    case 7:
      return vekCpuEpic64;
    case 15:
      if (!sse2) return vekCpuEpic64Gen2;
      if (sse3) return vekCpuFam15Sse3;
      return severalLogical ? vekCpuFam15Sse2Ht : vekCpuFam15Sse2;
    default:
      return vekCpuUnknown;
  }
}

bool hasSse4() {
  const CpuidRegisters leaf1 = cpuid(1);
  return hasBit(leaf1.ecx, 9) && hasBit(leaf1.ecx, 19) && hasBit(leaf1.ecx, 20);
}

bool hasAvx2() {
  constexpr uint32_t kXmmAndYmm = 0x6;
  const CpuidRegisters leaf1 = cpuid(1);
  const CpuidRegisters leaf7 = cpuid(7);
  const bool fma = hasBit(leaf1.ecx, 12);
  const bool avx = hasBit(leaf1.ecx, 28);
  const bool f16c = hasBit(leaf1.ecx, 29);
  const bool bmi = hasBit(leaf7.ebx, 3) && hasBit(leaf7.ebx, 8);
  const bool avx2 = hasBit(leaf7.ebx, 5);
  return hasSse4() && fma && avx && f16c && bmi && avx2 && savesRegisters(kXmmAndYmm);
}

bool hasAvx512() {
  constexpr uint32_t kWithZmm = 0xE6;
  const uint32_t features = cpuid(7).ebx;  // F, DQ, BW and VL
  return hasAvx2() && hasBit(features, 16) && hasBit(features, 17) && hasBit(features, 30) &&
         hasBit(features, 31) && savesRegisters(kWithZmm);
}

// Two leaves of the same layout, each of another vendor's processors. Sizes from other sources add
// up the caches of all cores.
size_t largestCacheBytes() {
  constexpr uint32_t kCacheLeaves[] = {4, 0x8000001D};
  constexpr uint32_t kInstructionCache = 2;
  size_t largest = 0;
  for (uint32_t leaf : kCacheLeaves) {
    for (uint32_t index = 0; index < 16; ++index) {
      const CpuidRegisters cache = cpuid(leaf, index);
      const uint32_t type = cache.eax & 31;
      if (type == 0) break;
      if (type == kInstructionCache) continue;
      const size_t ways = (cache.ebx >> 22) + 1;
      const size_t partitions = ((cache.ebx >> 12) & 1023) + 1;
      const size_t lineBytes = (cache.ebx & 4095) + 1;
      const size_t sets = size_t{cache.ecx} + 1;
      const size_t bytes = ways * partitions * lineBytes * sets;
      if (bytes > largest) largest = bytes;
    }
  }
  return largest;
}

}  // namespace veks

VekCpuType vekGetCpuType() {
  using namespace veks;
  return processorClass(cpuid(0), cpuid(1));
}

unsigned long long vekGetCpuClocks() {
  return __rdtsc();
}
