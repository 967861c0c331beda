#include "core/targets.h"
#include "transform/fft/complex.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "transform/fft/kernels-inl.h"
#include <hwy/foreach_target.h>

#include "transform/fft/kernels-inl.h"

using namespace veks;

VekStatus veksFFTInitAlloc_C_32f(VeksFFTContext_C_32f** ppCtx, int order, int flag,
                                 VekHintAlgorithm hint) {
  return makeComplexFft(ppCtx, order, flag, hint, VEKS_KERNEL(BindSplitFft<Vek32f>));
}

VekStatus veksFFTFree_C_32f(VeksFFTContext_C_32f* pCtx) {
  return freeContext(pCtx);
}

VekStatus veksFFTGetBufSize_C_32f(const VeksFFTContext_C_32f* pCtx, int* pSize) {
  return workSizeOf(pCtx, pSize);
}

VekStatus veksFFTFwd_CToC_32f(const Vek32f* pSrcRe, const Vek32f* pSrcIm, Vek32f* pDstRe,
                              Vek32f* pDstIm, const VeksFFTContext_C_32f* pCtx, Vek8u* pBuffer) {
  return transformComplex(pCtx, &FftPlan<Vek32f>::forward, pSrcRe, pSrcIm, pDstRe, pDstIm, pBuffer);
}

VekStatus veksFFTInv_CToC_32f(const Vek32f* pSrcRe, const Vek32f* pSrcIm, Vek32f* pDstRe,
                              Vek32f* pDstIm, const VeksFFTContext_C_32f* pCtx, Vek8u* pBuffer) {
  return transformComplex(pCtx, &FftPlan<Vek32f>::inverse, pSrcIm, pSrcRe, pDstIm, pDstRe, pBuffer);
}

VekStatus veksFFTInitAlloc_C_64f(VeksFFTContext_C_64f** ppCtx, int order, int flag,
                                 VekHintAlgorithm hint) {
  return makeComplexFft(ppCtx, order, flag, hint, VEKS_KERNEL(BindSplitFft<Vek64f>));
}

VekStatus veksFFTFree_C_64f(VeksFFTContext_C_64f* pCtx) {
  return freeContext(pCtx);
}

VekStatus veksFFTGetBufSize_C_64f(const VeksFFTContext_C_64f* pCtx, int* pSize) {
  return workSizeOf(pCtx, pSize);
}

VekStatus veksFFTFwd_CToC_64f(const Vek64f* pSrcRe, const Vek64f* pSrcIm, Vek64f* pDstRe,
                              Vek64f* pDstIm, const VeksFFTContext_C_64f* pCtx, Vek8u* pBuffer) {
  return transformComplex(pCtx, &FftPlan<Vek64f>::forward, pSrcRe, pSrcIm, pDstRe, pDstIm, pBuffer);
}

VekStatus veksFFTInv_CToC_64f(const Vek64f* pSrcRe, const Vek64f* pSrcIm, Vek64f* pDstRe,
                              Vek64f* pDstIm, const VeksFFTContext_C_64f* pCtx, Vek8u* pBuffer) {
  return transformComplex(pCtx, &FftPlan<Vek64f>::inverse, pSrcIm, pSrcRe, pDstIm, pDstRe, pBuffer);
}
