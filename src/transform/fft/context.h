// Contexts of the transforms and what all of their families do alike: making, checking, releasing
// them and finding work memory.
#ifndef VEKS_TRANSFORM_FFT_CONTEXT_H
#define VEKS_TRANSFORM_FFT_CONTEXT_H

#include <climits>
#include <cmath>
#include <cstring>

#include "core/memory.h"
#include "transform/fft/plan.h"
#include "transform/fft/tables.h"
#include "veks/core/services.h"
#include "veks/transform/fft.h"

namespace veks {

constexpr int kMaxFftOrder = 30;

// On 32 bits 76 bytes with single, 80 with double precision.
template <class T, uint32_t kContextId>
struct FloatFftContext {
  using Value = T;
  static constexpr uint32_t kId = kContextId;
  uint32_t id;
  int32_t order;
  int32_t forwardScaled;
  int32_t inverseScaled;
  T factor;
  int32_t hint;
  int32_t workSize;
  void* tables[12];  // the first one owns the plan, the others are null
};

enum FftFlag : int { kForwardByN = 1, kInverseByN = 2, kBothByRootOfN = 4, kUnscaled = 8 };

inline bool isFftFlag(int flag) {
  return flag == kForwardByN || flag == kInverseByN || flag == kBothByRootOfN || flag == kUnscaled;
}

// What every call with a context checks first.
template <class Context>
inline VekStatus checkContext(const Context* context) {
  if (context == nullptr) return vekErrNullPtr;
  return context->id == Context::kId ? vekStsOk : vekErrContextMatch;
}

// A zeroed context, or the status that says why there is none.
template <class Context>
inline VekStatus allocateContext(Context** result, const void* destination, int order, int flag) {
  if (destination == nullptr) return vekErrNullPtr;
  if (order < 0 || order > kMaxFftOrder) return vekErrFFTOrder;
  Context* const context = static_cast<Context*>(allocate(sizeof(Context)));
  if (context == nullptr) return vekErrMemAllocTooSmall;
  if (!isFftFlag(flag)) {
    veksFree(context);
    return vekErrFFTFlag;
  }
  std::memset(context, 0, sizeof(Context));
  *result = context;
  return vekStsOk;
}

template <class Context>
inline VekStatus workSizeOf(const Context* context, int* size) {
  if (context == nullptr || size == nullptr) return vekErrNullPtr;
  if (context->id != Context::kId) return vekErrContextMatch;
  *size = context->workSize;
  return vekStsOk;
}

// The bytes as a buffer size; what no int can tell is allocated by each call instead.
inline int32_t workSizeFor(uint64_t bytes) {
  return bytes > INT_MAX ? 0 : static_cast<int32_t>(bytes);
}

inline void* alignUp(void* pointer, uintptr_t alignment) {
  const uintptr_t address = reinterpret_cast<uintptr_t>(pointer);
  return static_cast<char*>(pointer) + ((0 - address) & (alignment - 1));
}

// Work memory of a call: the caller's buffer or an allocated one.
class WorkMemory {
 public:
  // What aligned work memory that is well placed takes.
  static constexpr uint64_t roomFor(uint64_t needed) {
    return needed + kAlignment + (needed < kLeastPlaced ? 0 : kPage);
  }

  // `size` is what the caller's buffer has.
  WorkMemory(void* buffer, size_t size, size_t needed, const void* source) {
    if (needed == 0) return;
    if (buffer == nullptr || size == 0) {
      size = static_cast<size_t>(roomFor(needed));
      buffer = owned_ = allocate(size);
      failed_ = owned_ == nullptr;
      if (failed_) return;
    }
    memory_ = alignUp(buffer, kAlignment);
    const auto left = [&] {
      return size - static_cast<size_t>(static_cast<char*>(memory_) - static_cast<char*>(buffer));
    };
    // The documented sizes leave room for 16.
    if (left() < needed) memory_ = alignUp(buffer, 16);
    const uintptr_t distance =
        reinterpret_cast<uintptr_t>(source) - reinterpret_cast<uintptr_t>(memory_);
    const size_t ahead = (distance + kPlace) % kPage / kAlignment * kAlignment;
    if (left() >= needed + ahead) memory_ = static_cast<char*>(memory_) + ahead;
  }
  ~WorkMemory() {
    if (owned_ != nullptr) veksFree(owned_);
  }
  WorkMemory(const WorkMemory&) = delete;
  WorkMemory& operator=(const WorkMemory&) = delete;

  bool failed() const {
    return failed_;
  }
  void* get() const {
    return memory_;
  }

 private:
  static constexpr size_t kAlignment = 64;
  static constexpr size_t kPage = 4096;
  // Rows of the source and of the work memory that share sets of the first cache displace each
  // other, and both have their rows at multiples of pages: so much further in its page than the
  // source, the work memory is out of the way.
  static constexpr size_t kPlace = 3072;
  static constexpr size_t kLeastPlaced = 4 * kPage;
  void* memory_ = nullptr;
  void* owned_ = nullptr;
  bool failed_ = false;
};

// A plan in a block of its own, or null. bind(plan, shape) chooses the kernels.
template <class T, class Bind>
inline FftPlan<T>* makePlan(int order, T forwardFactor, T inverseFactor, const Bind& bind) {
  FftPlan<T> plan = {};
  FftShape shape = {};
  plan.order = order;
  plan.forward.factor = forwardFactor;
  plan.inverse.factor = inverseFactor;
  bind(order, &plan, &shape);
  Arena counter(nullptr);
  makeTables(shape, &plan, &counter);
  void* const block = allocate(sizeof(plan) + Arena::kAlignment + counter.used());
  if (block == nullptr) return nullptr;
  FftPlan<T>* const result = static_cast<FftPlan<T>*>(block);
  *result = plan;
  Arena arena(alignUp(result + 1, Arena::kAlignment));
  makeTables(shape, result, &arena);
  return result;
}

// Order, normalisation and hint of a context.
template <class Context>
inline void setFactors(Context* context, int order, int flag, VekHintAlgorithm hint) {
  const double n = static_cast<double>(uint64_t{1} << order);
  context->order = order;
  context->hint = hint;
  context->forwardScaled = flag == kForwardByN || flag == kBothByRootOfN;
  context->inverseScaled = flag == kInverseByN || flag == kBothByRootOfN;
  const double factor = flag == kBothByRootOfN ? 1 / std::sqrt(n) : 1 / n;
  context->factor = static_cast<typename Context::Value>(factor);
}

template <class Context>
inline auto forwardFactor(const Context& context) {
  return context.forwardScaled != 0 ? context.factor : 1;
}

template <class Context>
inline auto inverseFactor(const Context& context) {
  return context.inverseScaled != 0 ? context.factor : 1;
}

// The documented sizes up to order 16, more for long transforms.
template <class T>
inline int32_t complexWorkSize(const FftPlan<T>& plan) {
  if (plan.order < 4) return 0;
  const uint64_t documented = (uint64_t{2 * sizeof(T)} << plan.order) + 16;
  if (plan.order <= 16) return static_cast<int32_t>(documented);
  return workSizeFor(WorkMemory::roomFor(uint64_t{plan.workElements} * sizeof(T)));
}

// Out of line, so that short transforms do not save the registers that this one needs.
template <class T>
[[gnu::noinline]] VekStatus runWithWork(const FftDirection<T>& direction, const T* re, const T* im,
                                        T* dstRe, T* dstIm, Vek8u* buffer, int workSize) {
  const size_t needed = direction.plan->workElements * sizeof(T);
  const WorkMemory work(buffer, static_cast<size_t>(workSize), needed, re);
  if (work.failed()) return vekErrMemAllocTooSmall;
  direction.kernel(direction, re, im, dstRe, dstIm, static_cast<T*>(work.get()));
  return vekStsOk;
}

template <class T>
inline VekStatus runPlan(const FftDirection<T>& direction, const T* re, const T* im, T* dstRe,
                         T* dstIm, Vek8u* buffer, int workSize) {
  if (direction.plan->workElements != 0) {
    return runWithWork(direction, re, im, dstRe, dstIm, buffer, workSize);
  }
  direction.kernel(direction, re, im, dstRe, dstIm, nullptr);
  return vekStsOk;
}

template <class Context>
inline VekStatus freeContext(Context* context) {
  const VekStatus status = checkContext(context);
  if (status != vekStsOk) return status;
  context->id = 0;
  for (void* table : context->tables) {
    if (table != nullptr) veksFree(table);
  }
  veksFree(context);
  return vekStsOk;
}

}  // namespace veks

#endif
