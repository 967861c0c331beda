// SIMD targets and the choice among them.
//
// A kernel is a template in namespace veks::HWY_NAMESPACE of a *-inl.h file, which is compiled once
// for each target of the build. VEKS_KERNEL(Name<Args>) stands for all its instances; a call goes
// to that of the active target.
#ifndef VEKS_CORE_TARGETS_H
#define VEKS_CORE_TARGETS_H

// Before any Highway header. EMU128 works with the g++ releases that Highway 1.0.3 distrusts: they
// carry the fix for the vectoriser fault behind that list. No kernel needs AES or CLMUL.
#define HWY_BROKEN_EMU128 0
#define HWY_DISABLE_PCLMUL_AES 1
// Its checks of debug builds end in a function of the library of Highway, which is not linked.
#define HWY_IS_DEBUG_BUILD 0
#ifdef VEKS_DISABLE_AVX512
#define VEKS_WITHOUT_AVX512 HWY_AVX3
#else
#define VEKS_WITHOUT_AVX512 0
#endif
#ifdef VEKS_DISABLE_AVX2
#define VEKS_WITHOUT_AVX2 HWY_AVX2
#else
#define VEKS_WITHOUT_AVX2 0
#endif
#ifdef VEKS_DISABLE_SSE4
#define VEKS_WITHOUT_SSE4 HWY_SSE4
#else
#define VEKS_WITHOUT_SSE4 0
#endif
#define HWY_DISABLED_TARGETS \
  (HWY_SSSE3 | HWY_AVX3_DL | VEKS_WITHOUT_AVX512 | VEKS_WITHOUT_AVX2 | VEKS_WITHOUT_SSE4)
#include <hwy/detect_targets.h>

#include <cstddef>
#include <cstdint>

#include "veks/status.h"

#if HWY_TARGETS & HWY_EMU128
#define VEKS_ON_EMU128(...) &::veks::N_EMU128::__VA_ARGS__,
#else
#define VEKS_ON_EMU128(...)
#endif
#if HWY_TARGETS & HWY_SSE4
#define VEKS_ON_SSE4(...) &::veks::N_SSE4::__VA_ARGS__,
#else
#define VEKS_ON_SSE4(...)
#endif
#if HWY_TARGETS & HWY_AVX2
#define VEKS_ON_AVX2(...) &::veks::N_AVX2::__VA_ARGS__,
#else
#define VEKS_ON_AVX2(...)
#endif
#if HWY_TARGETS & HWY_AVX3
#define VEKS_ON_AVX3(...) &::veks::N_AVX3::__VA_ARGS__,
#else
#define VEKS_ON_AVX3(...)
#endif

// VEKS_KERNEL(MapTwo<And, Vek8u>)(src1, src2, dst, n) calls the kernel of the active target.
// nullptr only takes the place after the last comma.
#define VEKS_KERNEL(...)                                                                         \
  ::veks::Kernel<VEKS_ON_EMU128(__VA_ARGS__) VEKS_ON_SSE4(__VA_ARGS__) VEKS_ON_AVX2(__VA_ARGS__) \
                     VEKS_ON_AVX3(__VA_ARGS__) nullptr>()

namespace veks {

#define VEKS_HIDDEN __attribute__((visibility("hidden")))

// Set when the library is loaded and constant from then on. All in one cache line: each one that a
// call reads besides its vectors drives out others where these just fill a cache.
struct alignas(16) Findings {
  int activeTarget;
  size_t streamingBytes;
};
extern VEKS_HIDDEN Findings findings;

// Position of the active target among the targets of the build, worst first. Calls before the
// library has set it run on the worst target.
inline constexpr int& activeTarget = findings.activeTarget;

// Destinations of at least this many bytes are written past the caches.
inline constexpr size_t& streamingBytes = findings.streamingBytes;

// What the static library offers to tests: all targets that both the build and the processor have,
// worst first, and the choice among them.
int targetCount();
const char* targetName(int target);
void useTarget(int target);

// A kernel's instances for the targets of the build. The two best targets are compared with, not
// looked up: the call is then a direct jump.
template <auto first, auto... rest>
struct Kernel {
  using Pointer = decltype(first);
  static constexpr int kTargets = sizeof...(rest);
  static constexpr Pointer kInstances[kTargets + 1] = {first, rest...};

  template <class... Args>
  VekStatus operator()(Args... args) const {
    constexpr Pointer kBest = kInstances[kTargets - 1];
    constexpr Pointer kSecond = kInstances[kTargets > 1 ? kTargets - 2 : 0];
    if (__builtin_expect(activeTarget == kTargets - 1, 1)) return kBest(args...);
    if (__builtin_expect(activeTarget == kTargets - 2, 1)) return kSecond(args...);
    return kInstances[activeTarget](args...);
  }
};

}  // namespace veks

#endif
