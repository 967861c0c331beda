#include "core/targets.h"

#include "core/processor.h"
#include "veks/core/services.h"

namespace veks {
namespace {

struct Target {
  const char* name;
  bool (*isAvailable)();
};

bool always() {
  return true;
}

constexpr Target kTargets[] = {
#if HWY_TARGETS & HWY_EMU128
    {"EMU128", always},
#endif
#if HWY_TARGETS & HWY_SSE4
    {"SSE4", hasSse4},
#endif
#if HWY_TARGETS & HWY_AVX2
    {"AVX2", hasAvx2},
#endif
#if HWY_TARGETS & HWY_AVX3
    {"AVX3", hasAvx512},
#endif
};
constexpr int kTargetsOfBuild = sizeof(kTargets) / sizeof(kTargets[0]);

// Runs before the initialisers of ordinary static objects, whose code may already call veks.
__attribute__((constructor(101))) void chooseTarget() {
  activeTarget = targetCount() - 1;
  // Larger caches are shared by the many cores of a server, and no core fills them fast.
  const size_t cache = largestCacheBytes();
  if (cache > 0 && cache < streamingBytes) streamingBytes = cache;
}

}  // namespace

Findings findings = {0, size_t{32} << 20};

// The first target is the baseline of the build: the processor has it, or no code would run.
int targetCount() {
  int count = 1;
  while (count < kTargetsOfBuild && kTargets[count].isAvailable()) ++count;
  return count;
}

const char* targetName(int target) {
  return kTargets[target].name;
}

}  // namespace veks

const char* vekGetTargetName() {
  return veks::targetName(veks::activeTarget);
}
