#include "transform/fft/real.h"

#include <cstring>

#include "core/targets.h"
#include "transform/fft/complex.h"
#include "transform/fft/real_short.h"
#include "transform/fft/roots_of_unity.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "transform/fft/real-inl.h"
#include <hwy/foreach_target.h>

#include "transform/fft/real-inl.h"

using namespace veks;

namespace {

// -i / 2 * exp(-2 pi i k / n) for k = 1 .. n/4 - 1, by vectors, then half vectors and so on.
template <class T>
void fillFactors(size_t n, size_t lanes, T* w) {
  size_t k = 1;
  for (; lanes > 0; lanes /= 2) {
    for (; k + lanes <= n / 4; k += lanes, w += 2 * lanes) {
      for (size_t l = 0; l < lanes; ++l) {
        const size_t j = lanes == 1 ? k : k + laneOrder<T>(Layout::kInterleaved, lanes, l);
        storeUnitRoot(j + n / 4, n, 0.5, w + l, w + lanes + l);
      }
    }
  }
}

// The same for k = 0 .. n/2 - 1: a vector of two real parts, each twice, and one of the imaginary
// parts with both signs.
template <class T>
void fillBlockFactors(size_t n, T* w) {
  for (size_t k = 0; k < n / 2; ++k) {
    T* const re = w + k / 2 * 8 + k % 2 * 2;
    storeUnitRoot(k + n / 4, n, T{0.5}, re, re + 5);
    re[1] = re[0];
    re[4] = -re[5];
  }
}

template <class T>
RealFftPlan<T>* makeRealPlan(int order) {
  RealFftPlan<T> plan = {};
  VEKS_KERNEL(BindRealFft<T>)(order, &plan);
  const size_t n = size_t{1} << order;
  const size_t values = plan.isInBlocks ? 2 * n : n / 2;
  void* const block = allocate(sizeof(plan) + Arena::kAlignment + values * sizeof(T));
  if (block == nullptr) return nullptr;
  RealFftPlan<T>* const result = static_cast<RealFftPlan<T>*>(block);
  T* const w = static_cast<T*>(alignUp(result + 1, Arena::kAlignment));
  if (plan.isInBlocks) {
    fillBlockFactors(n, w);
  } else {
    fillFactors(n, plan.lanes, w);
  }
  plan.w = w;
  *result = plan;
  return result;
}

template <class Context>
VekStatus initialise(Context** result, int order, int flag, VekHintAlgorithm hint) {
  using T = typename Context::Value;
  Context* context = nullptr;
  const VekStatus status = allocateContext(&context, result, order, flag);
  if (status != vekStsOk) return status;
  context->id = Context::kId;
  setFactors(context, order, flag, hint);
  const auto bind = [](int halfOrder, FftPlan<T>* plan, FftShape* shape) {
    return bindInterleavedFft(halfOrder, plan, shape);
  };
  FftPlan<T>* const half = makePlan<T>(order > 0 ? order - 1 : 0, forwardFactor(*context),
                                       2 * inverseFactor(*context), bind);
  context->tables[0] = half;
  context->tables[1] = half == nullptr ? nullptr : makeRealPlan<T>(order);
  if (context->tables[1] == nullptr) {
    freeContext(context);
    return vekErrMemAllocTooSmall;
  }
  const uint64_t work = uint64_t{half->workElements} * sizeof(T);
  context->workSize = work == 0 ? 0 : workSizeFor(WorkMemory::roomFor(work));
  *result = context;
  return vekStsOk;
}

template <class Context>
const RealFftPlan<typename Context::Value>& realPlanOf(const Context& context) {
  return *static_cast<const RealFftPlan<typename Context::Value>*>(context.tables[1]);
}

// The spectrum in Perm format, N > 16. Out of line, so that short transforms do not save registers.
template <class Context, class T>
[[gnu::noinline]] VekStatus longToPerm(const Context& context, const T* src, T* dst,
                                       Vek8u* buffer) {
  const FftPlan<T>& half = planOf(context);
  const VekStatus status = runPlan(half.forward, src, src, dst, dst, buffer, context.workSize);
  if (status != vekStsOk) return status;
  const RealFftPlan<T>& plan = realPlanOf(context);
  plan.untangle(plan.w, dst, size_t{1} << half.order);
  return vekStsOk;
}

// The spectrum in Perm format, N > 1.
template <class Context, class T>
VekStatus toPerm(const Context& context, const T* src, T* dst, Vek8u* buffer) {
  if (context.order > kShortRealOrder) return longToPerm(context, src, dst, buffer);
  shortToPerm(context.order, forwardFactor(context), src, dst);
  return vekStsOk;
}

// The signal of a spectrum: R[0], R[N/2], and pairs[2 k] and on for R[k] and I[k], 0 < k < N/2. N
// > 16, then > 1.
template <class Context, class T>
[[gnu::noinline]] VekStatus longFromPairs(const Context& context, T first, T middle, const T* pairs,
                                          T* dst, Vek8u* buffer) {
  const FftPlan<T>& half = planOf(context);
  const RealFftPlan<T>& plan = realPlanOf(context);
  // Work memory must be there before anything is written.
  const size_t needed = half.workElements * sizeof(T);
  const WorkMemory work(buffer, static_cast<size_t>(context.workSize), needed, dst);
  if (work.failed()) return vekErrMemAllocTooSmall;
  plan.tangle(plan.w, first, middle, pairs, dst, size_t{1} << half.order);
  half.inverse.kernel(half.inverse, dst, dst, dst, dst, static_cast<T*>(work.get()));
  return vekStsOk;
}

template <class Context, class T>
VekStatus fromPairs(const Context& context, T first, T middle, const T* pairs, T* dst,
                    Vek8u* buffer) {
  if (context.order > kShortRealOrder) {
    return longFromPairs(context, first, middle, pairs, dst, buffer);
  }
  shortFromPairs(context.order, inverseFactor(context), first, middle, pairs, dst);
  return vekStsOk;
}

template <class Context, class T>
VekStatus checkCall(const Context* context, const T* src, const T* dst) {
  const VekStatus status = checkContext(context);
  if (status != vekStsOk) return status;
  return src == nullptr || dst == nullptr ? vekErrNullPtr : vekStsOk;
}

template <class Context, class T>
VekStatus forwardToPerm(const T* src, T* dst, const Context* context, Vek8u* buffer) {
  const VekStatus status = checkCall(context, src, dst);
  if (status != vekStsOk) return status;
  if (context->order > 0) return toPerm(*context, src, dst, buffer);
  dst[0] = src[0];
  return vekStsOk;
}

template <class Context, class T>
VekStatus inverseOfPerm(const T* src, T* dst, const Context* context, Vek8u* buffer) {
  const VekStatus status = checkCall(context, src, dst);
  if (status != vekStsOk) return status;
  if (context->order > 0) return fromPairs(*context, src[0], src[1], src, dst, buffer);
  dst[0] = src[0];
  return vekStsOk;
}

template <class Context, class T>
VekStatus forwardToPack(const T* src, T* dst, const Context* context, Vek8u* buffer) {
  const VekStatus status = forwardToPerm(src, dst, context, buffer);
  if (status != vekStsOk || context->order < 2) return status;
  const size_t n = size_t{1} << context->order;
  const T middle = dst[1];
  std::memmove(dst + 1, dst + 2, (n - 2) * sizeof(T));
  dst[n - 1] = middle;
  return vekStsOk;
}

template <class Context, class T>
VekStatus inverseOfPack(const T* src, T* dst, const Context* context, Vek8u* buffer) {
  const VekStatus status = checkCall(context, src, dst);
  if (status != vekStsOk) return status;
  if (context->order < 2) return inverseOfPerm(src, dst, context, buffer);
  const size_t n = size_t{1} << context->order;
  const T first = src[0];
  const T middle = src[n - 1];
  if (src != dst) return fromPairs(*context, first, middle, src - 1, dst, buffer);
  std::memmove(dst + 2, dst + 1, (n - 2) * sizeof(T));
  return fromPairs(*context, first, middle, dst, dst, buffer);
}

template <class Context, class T>
VekStatus forwardToCcs(const T* src, T* dst, const Context* context, Vek8u* buffer) {
  const VekStatus status = forwardToPerm(src, dst, context, buffer);
  if (status != vekStsOk) return status;
  const size_t n = size_t{1} << context->order;
  if (n > 1) {
    dst[n] = dst[1];
    dst[n + 1] = 0;
  }
  dst[1] = 0;
  return vekStsOk;
}

template <class Context, class T>
VekStatus inverseOfCcs(const T* src, T* dst, const Context* context, Vek8u* buffer) {
  const VekStatus status = checkCall(context, src, dst);
  if (status != vekStsOk) return status;
  if (context->order == 0) return inverseOfPerm(src, dst, context, buffer);
  const size_t n = size_t{1} << context->order;
  return fromPairs(*context, src[0], src[n], src, dst, buffer);
}

}  // namespace

VekStatus veksFFTInitAlloc_R_32f(VeksFFTContext_R_32f** ppCtx, int order, int flag,
                                 VekHintAlgorithm hint) {
  return initialise(ppCtx, order, flag, hint);
}

VekStatus veksFFTFree_R_32f(VeksFFTContext_R_32f* pCtx) {
  return freeContext(pCtx);
}

VekStatus veksFFTGetBufSize_R_32f(const VeksFFTContext_R_32f* pCtx, int* pSize) {
  return workSizeOf(pCtx, pSize);
}

VekStatus veksFFTFwd_RToPack_32f(const Vek32f* pSrc, Vek32f* pDst, const VeksFFTContext_R_32f* pCtx,
                                 Vek8u* pBuffer) {
  return forwardToPack(pSrc, pDst, pCtx, pBuffer);
}

VekStatus veksFFTInv_PackToR_32f(const Vek32f* pSrc, Vek32f* pDst, const VeksFFTContext_R_32f* pCtx,
                                 Vek8u* pBuffer) {
  return inverseOfPack(pSrc, pDst, pCtx, pBuffer);
}

VekStatus veksFFTFwd_RToPerm_32f(const Vek32f* pSrc, Vek32f* pDst, const VeksFFTContext_R_32f* pCtx,
                                 Vek8u* pBuffer) {
  return forwardToPerm(pSrc, pDst, pCtx, pBuffer);
}

VekStatus veksFFTInv_PermToR_32f(const Vek32f* pSrc, Vek32f* pDst, const VeksFFTContext_R_32f* pCtx,
                                 Vek8u* pBuffer) {
  return inverseOfPerm(pSrc, pDst, pCtx, pBuffer);
}

VekStatus veksFFTFwd_RToCCS_32f(const Vek32f* pSrc, Vek32f* pDst, const VeksFFTContext_R_32f* pCtx,
                                Vek8u* pBuffer) {
  return forwardToCcs(pSrc, pDst, pCtx, pBuffer);
}

VekStatus veksFFTInv_CCSToR_32f(const Vek32f* pSrc, Vek32f* pDst, const VeksFFTContext_R_32f* pCtx,
                                Vek8u* pBuffer) {
  return inverseOfCcs(pSrc, pDst, pCtx, pBuffer);
}

VekStatus veksFFTInitAlloc_R_64f(VeksFFTContext_R_64f** ppCtx, int order, int flag,
                                 VekHintAlgorithm hint) {
  return initialise(ppCtx, order, flag, hint);
}

VekStatus veksFFTFree_R_64f(VeksFFTContext_R_64f* pCtx) {
  return freeContext(pCtx);
}

VekStatus veksFFTGetBufSize_R_64f(const VeksFFTContext_R_64f* pCtx, int* pSize) {
  return workSizeOf(pCtx, pSize);
}

VekStatus veksFFTFwd_RToPack_64f(const Vek64f* pSrc, Vek64f* pDst, const VeksFFTContext_R_64f* pCtx,
                                 Vek8u* pBuffer) {
  return forwardToPack(pSrc, pDst, pCtx, pBuffer);
}

VekStatus veksFFTInv_PackToR_64f(const Vek64f* pSrc, Vek64f* pDst, const VeksFFTContext_R_64f* pCtx,
                                 Vek8u* pBuffer) {
  return inverseOfPack(pSrc, pDst, pCtx, pBuffer);
}

VekStatus veksFFTFwd_RToPerm_64f(const Vek64f* pSrc, Vek64f* pDst, const VeksFFTContext_R_64f* pCtx,
                                 Vek8u* pBuffer) {
  return forwardToPerm(pSrc, pDst, pCtx, pBuffer);
}

VekStatus veksFFTInv_PermToR_64f(const Vek64f* pSrc, Vek64f* pDst, const VeksFFTContext_R_64f* pCtx,
                                 Vek8u* pBuffer) {
  return inverseOfPerm(pSrc, pDst, pCtx, pBuffer);
}

VekStatus veksFFTFwd_RToCCS_64f(const Vek64f* pSrc, Vek64f* pDst, const VeksFFTContext_R_64f* pCtx,
                                Vek8u* pBuffer) {
  return forwardToCcs(pSrc, pDst, pCtx, pBuffer);
}

VekStatus veksFFTInv_CCSToR_64f(const Vek64f* pSrc, Vek64f* pDst, const VeksFFTContext_R_64f* pCtx,
                                Vek8u* pBuffer) {
  return inverseOfCcs(pSrc, pDst, pCtx, pBuffer);
}
