#include "core/targets.h"
#include "transform/fft/complex.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "transform/fft/kernels-inl.h"
#include <hwy/foreach_target.h>

#include "transform/fft/kernels-inl.h"

using namespace veks;

VekStatus veks::bindInterleavedFft(int order, FftPlan<Vek32f>* plan, FftShape* shape) {
  return VEKS_KERNEL(BindInterleavedFft<Vek32f>)(order, plan, shape);
}

VekStatus veksFFTInitAlloc_C_32fc(VeksFFTContext_C_32fc** ppCtx, int order, int flag,
                                  VekHintAlgorithm hint) {
  const auto bind = [](int n, FftPlan<Vek32f>* plan, FftShape* shape) {
    return bindInterleavedFft(n, plan, shape);
  };
  return makeComplexFft(ppCtx, order, flag, hint, bind);
}

VekStatus veksFFTFree_C_32fc(VeksFFTContext_C_32fc* pCtx) {
  return freeContext(pCtx);
}

VekStatus veksFFTGetBufSize_C_32fc(const VeksFFTContext_C_32fc* pCtx, int* pSize) {
  return workSizeOf(pCtx, pSize);
}

VekStatus veksFFTFwd_CToC_32fc(const Vek32fc* pSrc, Vek32fc* pDst,
                               const VeksFFTContext_C_32fc* pCtx, Vek8u* pBuffer) {
  return transformPairs(pCtx, &FftPlan<Vek32f>::forward, pSrc, pDst, pBuffer);
}

VekStatus veksFFTInv_CToC_32fc(const Vek32fc* pSrc, Vek32fc* pDst,
                               const VeksFFTContext_C_32fc* pCtx, Vek8u* pBuffer) {
  return transformPairs(pCtx, &FftPlan<Vek32f>::inverse, pSrc, pDst, pBuffer);
}
