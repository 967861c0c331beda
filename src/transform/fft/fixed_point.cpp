#include "transform/fft/fixed_point.h"

#include <algorithm>

#include "veks/vector/conversion.h"

using namespace veks;

namespace {

VekStatus makeInner(VeksFFTContext_C_32fc** inner, int order, int flag, VekHintAlgorithm hint) {
  return veksFFTInitAlloc_C_32fc(inner, order, flag, hint);
}
VekStatus makeInner(VeksFFTContext_C_32f** inner, int order, int flag, VekHintAlgorithm hint) {
  return veksFFTInitAlloc_C_32f(inner, order, flag, hint);
}
VekStatus makeInner(VeksFFTContext_R_32f** inner, int order, int flag, VekHintAlgorithm hint) {
  return veksFFTInitAlloc_R_32f(inner, order, flag, hint);
}

// Values in single precision: two for each point, and two more for a spectrum in CCS format.
uint64_t valueBytes(int order) {
  return (uint64_t{2} * sizeof(Vek32f) << order) + Arena::kAlignment;
}

// The memory of one call: values in single precision, then what the inner transform is told to
// have.
template <class Context>
uint64_t bytesFor(const Context& context) {
  const uint64_t inner = uint64_t{planOf(*context.inner).workElements} * sizeof(Vek32f);
  return valueBytes(context.order) + WorkMemory::roomFor(inner);
}

template <class Context>
VekStatus initialise(Context** result, int order, int flag, VekHintAlgorithm hint) {
  Context* context = nullptr;
  VekStatus status = allocateContext(&context, result, order, flag);
  if (status != vekStsOk) return status;
  status = makeInner(&context->inner, order, flag, hint);
  if (status != vekStsOk) {
    veksFree(context);
    return status;
  }
  const int half = order / 2;
  context->order = order;
  context->forwardShift = flag == kForwardByN ? order : flag == kBothByRootOfN ? half : 0;
  context->inverseShift = flag == kInverseByN ? order : flag == kBothByRootOfN ? half : 0;
  context->isOddRoot = flag == kBothByRootOfN ? order % 2 : 0;
  context->workSize = order == 0 ? 0 : workSizeFor(bytesFor(*context) + Arena::kAlignment);
  context->id = Context::kId;
  *result = context;
  return vekStsOk;
}

VekStatus release(VeksFFTContext_C_32fc* inner) {
  return veksFFTFree_C_32fc(inner);
}
VekStatus release(VeksFFTContext_C_32f* inner) {
  return veksFFTFree_C_32f(inner);
}
VekStatus release(VeksFFTContext_R_32f* inner) {
  return veksFFTFree_R_32f(inner);
}

template <class Context>
VekStatus freeShortContext(Context* context) {
  const VekStatus status = checkContext(context);
  if (status != vekStsOk) return status;
  release(context->inner);
  context->id = 0;
  veksFree(context);
  return vekStsOk;
}

// Vectors longer than an int can tell go piece by piece.
constexpr size_t kPiece = size_t{1} << 20;

void widen(const Vek16s* src, Vek32f* dst, size_t n) {
  for (size_t i = 0; i < n; i += kPiece) {
    veksConvert_16s32f(src + i, dst + i, static_cast<int>(std::min(kPiece, n - i)));
  }
}

void narrow(const Vek32f* src, Vek16s* dst, size_t n, int scaleFactor) {
  constexpr int kNearest = 1;
  for (size_t i = 0; i < n; i += kPiece) {
    veksConvert_32f16s_Sfs(src + i, dst + i, static_cast<int>(std::min(kPiece, n - i)), kNearest,
                           scaleFactor);
  }
}

template <class Context>
class ShortWork {
 public:
  ShortWork(const Context& context, Vek8u* buffer)
      : work_(buffer, static_cast<size_t>(context.workSize), static_cast<size_t>(bytesFor(context)),
              nullptr),
        innerOffset_(static_cast<size_t>(valueBytes(context.order))) {}
  bool failed() const {
    return work_.failed();
  }
  Vek32f* values() const {
    return static_cast<Vek32f*>(work_.get());
  }
  Vek8u* inner() const {
    return static_cast<Vek8u*>(work_.get()) + innerOffset_;
  }

 private:
  WorkMemory work_;
  size_t innerOffset_;
};

// transform(values, buffer) on the source's values in single precision, the result to where
// store(values) takes it. The values of one point need no memory.
template <class Context, class Load, class Transform, class Store>
VekStatus throughFloats(const Context& context, Vek8u* buffer, const Load& load,
                        const Transform& transform, const Store& store) {
  if (context.order == 0) {
    Vek32f point[2];
    load(point);
    const VekStatus status = transform(point, nullptr);
    store(point);
    return status;
  }
  const ShortWork<Context> work(context, buffer);
  if (work.failed()) return vekErrMemAllocTooSmall;
  load(work.values());
  const VekStatus status = transform(work.values(), work.inner());
  store(work.values());
  return status;
}

using PairTransform = VekStatus (*)(const Vek32fc*, Vek32fc*, const VeksFFTContext_C_32fc*, Vek8u*);
using SplitTransform = VekStatus (*)(const Vek32f*, const Vek32f*, Vek32f*, Vek32f*,
                                     const VeksFFTContext_C_32f*, Vek8u*);
using RealTransform = VekStatus (*)(const Vek32f*, Vek32f*, const VeksFFTContext_R_32f*, Vek8u*);

VekStatus transformPairs(PairTransform transform, const Vek16sc* src, Vek16sc* dst,
                         const VeksFFTContext_C_16sc* context, int scaleFactor, Vek8u* buffer) {
  const VekStatus status = checkContext(context);
  if (status != vekStsOk) return status;
  if (src == nullptr || dst == nullptr) return vekErrNullPtr;
  const size_t n = size_t{2} << context->order;
  return throughFloats(
      *context, buffer,
      [&](Vek32f* values) { widen(reinterpret_cast<const Vek16s*>(src), values, n); },
      [&](Vek32f* values, Vek8u* work) {
        Vek32fc* const pairs = reinterpret_cast<Vek32fc*>(values);
        return transform(pairs, pairs, context->inner, work);
      },
      [&](const Vek32f* values) {
        narrow(values, reinterpret_cast<Vek16s*>(dst), n, scaleFactor);
      });
}

VekStatus transformParts(SplitTransform transform, const Vek16s* srcRe, const Vek16s* srcIm,
                         Vek16s* dstRe, Vek16s* dstIm, const VeksFFTContext_C_16s* context,
                         int scaleFactor, Vek8u* buffer) {
  const VekStatus status = checkContext(context);
  if (status != vekStsOk) return status;
  if (srcRe == nullptr || srcIm == nullptr || dstRe == nullptr || dstIm == nullptr) {
    return vekErrNullPtr;
  }
  const size_t n = size_t{1} << context->order;
  return throughFloats(
      *context, buffer,
      [&](Vek32f* values) {
        widen(srcRe, values, n);
        widen(srcIm, values + n, n);
      },
      [&](Vek32f* values, Vek8u* work) {
        return transform(values, values + n, values, values + n, context->inner, work);
      },
      [&](const Vek32f* values) {
        narrow(values, dstRe, n, scaleFactor);
        narrow(values + n, dstIm, n, scaleFactor);
      });
}

// The source and the destination have `extra` more values on the side of the spectrum.
VekStatus transformReal(RealTransform transform, const Vek16s* src, size_t extraSrc, Vek16s* dst,
                        size_t extraDst, const VeksFFTContext_R_16s* context, int scaleFactor,
                        Vek8u* buffer) {
  const VekStatus status = checkContext(context);
  if (status != vekStsOk) return status;
  if (src == nullptr || dst == nullptr) return vekErrNullPtr;
  const size_t n = size_t{1} << context->order;
  const size_t most = n == 1 ? 1 : 2;
  return throughFloats(
      *context, buffer, [&](Vek32f* values) { widen(src, values, n + std::min(extraSrc, most)); },
      [&](Vek32f* values, Vek8u* work) { return transform(values, values, context->inner, work); },
      [&](const Vek32f* values) {
        narrow(values, dst, n + std::min(extraDst, most), scaleFactor);
      });
}

}  // namespace

VekStatus veksFFTInitAlloc_C_16sc(VeksFFTContext_C_16sc** ppCtx, int order, int flag,
                                  VekHintAlgorithm hint) {
  return initialise(ppCtx, order, flag, hint);
}

VekStatus veksFFTFree_C_16sc(VeksFFTContext_C_16sc* pCtx) {
  return freeShortContext(pCtx);
}

VekStatus veksFFTGetBufSize_C_16sc(const VeksFFTContext_C_16sc* pCtx, int* pSize) {
  return workSizeOf(pCtx, pSize);
}

VekStatus veksFFTInitAlloc_C_16s(VeksFFTContext_C_16s** ppCtx, int order, int flag,
                                 VekHintAlgorithm hint) {
  return initialise(ppCtx, order, flag, hint);
}

VekStatus veksFFTFree_C_16s(VeksFFTContext_C_16s* pCtx) {
  return freeShortContext(pCtx);
}

VekStatus veksFFTGetBufSize_C_16s(const VeksFFTContext_C_16s* pCtx, int* pSize) {
  return workSizeOf(pCtx, pSize);
}

VekStatus veksFFTInitAlloc_R_16s(VeksFFTContext_R_16s** ppCtx, int order, int flag,
                                 VekHintAlgorithm hint) {
  return initialise(ppCtx, order, flag, hint);
}

VekStatus veksFFTFree_R_16s(VeksFFTContext_R_16s* pCtx) {
  return freeShortContext(pCtx);
}

VekStatus veksFFTGetBufSize_R_16s(const VeksFFTContext_R_16s* pCtx, int* pSize) {
  return workSizeOf(pCtx, pSize);
}

VekStatus veksFFTFwd_CToC_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst,
                                   const VeksFFTContext_C_16sc* pCtx, int scaleFactor,
                                   Vek8u* pBuffer) {
  return transformPairs(veksFFTFwd_CToC_32fc, pSrc, pDst, pCtx, scaleFactor, pBuffer);
}

VekStatus veksFFTInv_CToC_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst,
                                   const VeksFFTContext_C_16sc* pCtx, int scaleFactor,
                                   Vek8u* pBuffer) {
  return transformPairs(veksFFTInv_CToC_32fc, pSrc, pDst, pCtx, scaleFactor, pBuffer);
}

VekStatus veksFFTFwd_CToC_16s_Sfs(const Vek16s* pSrcRe, const Vek16s* pSrcIm, Vek16s* pDstRe,
                                  Vek16s* pDstIm, const VeksFFTContext_C_16s* pCtx, int scaleFactor,
                                  Vek8u* pBuffer) {
  return transformParts(veksFFTFwd_CToC_32f, pSrcRe, pSrcIm, pDstRe, pDstIm, pCtx, scaleFactor,
                        pBuffer);
}

VekStatus veksFFTInv_CToC_16s_Sfs(const Vek16s* pSrcRe, const Vek16s* pSrcIm, Vek16s* pDstRe,
                                  Vek16s* pDstIm, const VeksFFTContext_C_16s* pCtx, int scaleFactor,
                                  Vek8u* pBuffer) {
  return transformParts(veksFFTInv_CToC_32f, pSrcRe, pSrcIm, pDstRe, pDstIm, pCtx, scaleFactor,
                        pBuffer);
}

VekStatus veksFFTFwd_RToPack_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst,
                                     const VeksFFTContext_R_16s* pCtx, int scaleFactor,
                                     Vek8u* pBuffer) {
  return transformReal(veksFFTFwd_RToPack_32f, pSrc, 0, pDst, 0, pCtx, scaleFactor, pBuffer);
}

VekStatus veksFFTInv_PackToR_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst,
                                     const VeksFFTContext_R_16s* pCtx, int scaleFactor,
                                     Vek8u* pBuffer) {
  return transformReal(veksFFTInv_PackToR_32f, pSrc, 0, pDst, 0, pCtx, scaleFactor, pBuffer);
}

VekStatus veksFFTFwd_RToPerm_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst,
                                     const VeksFFTContext_R_16s* pCtx, int scaleFactor,
                                     Vek8u* pBuffer) {
  return transformReal(veksFFTFwd_RToPerm_32f, pSrc, 0, pDst, 0, pCtx, scaleFactor, pBuffer);
}

VekStatus veksFFTInv_PermToR_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst,
                                     const VeksFFTContext_R_16s* pCtx, int scaleFactor,
                                     Vek8u* pBuffer) {
  return transformReal(veksFFTInv_PermToR_32f, pSrc, 0, pDst, 0, pCtx, scaleFactor, pBuffer);
}

VekStatus veksFFTFwd_RToCCS_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst,
                                    const VeksFFTContext_R_16s* pCtx, int scaleFactor,
                                    Vek8u* pBuffer) {
  return transformReal(veksFFTFwd_RToCCS_32f, pSrc, 0, pDst, 2, pCtx, scaleFactor, pBuffer);
}

VekStatus veksFFTInv_CCSToR_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst,
                                    const VeksFFTContext_R_16s* pCtx, int scaleFactor,
                                    Vek8u* pBuffer) {
  return transformReal(veksFFTInv_CCSToR_32f, pSrc, 2, pDst, 0, pCtx, scaleFactor, pBuffer);
}
