#include "core/targets.h"
#include "transform/fft/complex.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "transform/fft/kernels-inl.h"
#include <hwy/foreach_target.h>

#include "transform/fft/kernels-inl.h"

using namespace veks;

VekStatus veks::bindInterleavedFft(int order, FftPlan<Vek64f>* plan, FftShape* shape) {
  return VEKS_KERNEL(BindInterleavedFft<Vek64f>)(order, plan, shape);
}

VekStatus veksFFTInitAlloc_C_64fc(VeksFFTContext_C_64fc** ppCtx, int order, int flag,
                                  VekHintAlgorithm hint) {
  const auto bind = [](int n, FftPlan<Vek64f>* plan, FftShape* shape) {
    return bindInterleavedFft(n, plan, shape);
  };
  return makeComplexFft(ppCtx, order, flag, hint, bind);
}

VekStatus veksFFTFree_C_64fc(VeksFFTContext_C_64fc* pCtx) {
  return freeContext(pCtx);
}

VekStatus veksFFTGetBufSize_C_64fc(const VeksFFTContext_C_64fc* pCtx, int* pSize) {
  return workSizeOf(pCtx, pSize);
}

VekStatus veksFFTFwd_CToC_64fc(const Vek64fc* pSrc, Vek64fc* pDst,
                               const VeksFFTContext_C_64fc* pCtx, Vek8u* pBuffer) {
  return transformPairs(pCtx, &FftPlan<Vek64f>::forward, pSrc, pDst, pBuffer);
}

VekStatus veksFFTInv_CToC_64fc(const Vek64fc* pSrc, Vek64fc* pDst,
                               const VeksFFTContext_C_64fc* pCtx, Vek8u* pBuffer) {
  return transformPairs(pCtx, &FftPlan<Vek64f>::inverse, pSrc, pDst, pBuffer);
}
