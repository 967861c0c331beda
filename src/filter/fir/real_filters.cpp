#include "filter/fir/filter.h"
#include "veks/filter/fir.h"

using namespace veks;

VekStatus veksFIR_32f(const Vek32f* pSrc, Vek32f* pDst, int numIters, VeksFIRState_32f* pState) {
  return firFilter(pSrc, pDst, numIters, pState);
}

VekStatus veksFIR_32f_I(Vek32f* pSrcDst, int numIters, VeksFIRState_32f* pState) {
  return firFilterInPlace(pSrcDst, numIters, pState);
}

VekStatus veksFIROne_32f(Vek32f src, Vek32f* pDstVal, VeksFIRState_32f* pState) {
  return firOne(src, pDstVal, pState);
}

VekStatus veksFIR_64f(const Vek64f* pSrc, Vek64f* pDst, int numIters, VeksFIRState_64f* pState) {
  return firFilter(pSrc, pDst, numIters, pState);
}

VekStatus veksFIR_64f_I(Vek64f* pSrcDst, int numIters, VeksFIRState_64f* pState) {
  return firFilterInPlace(pSrcDst, numIters, pState);
}

VekStatus veksFIROne_64f(Vek64f src, Vek64f* pDstVal, VeksFIRState_64f* pState) {
  return firOne(src, pDstVal, pState);
}

VekStatus veksFIR64f_32f(const Vek32f* pSrc, Vek32f* pDst, int numIters,
                         VeksFIRState_64f_32f* pState) {
  return firFilter(pSrc, pDst, numIters, pState);
}

VekStatus veksFIR64f_32f_I(Vek32f* pSrcDst, int numIters, VeksFIRState_64f_32f* pState) {
  return firFilterInPlace(pSrcDst, numIters, pState);
}

VekStatus veksFIROne64f_32f(Vek32f src, Vek32f* pDstVal, VeksFIRState_64f_32f* pState) {
  return firOne(src, pDstVal, pState);
}

VekStatus veksFIR32f_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int numIters,
                             VeksFIRState_32f_16s* pState, int scaleFactor) {
  return firFilter(pSrc, pDst, numIters, pState, scaleFactor);
}

VekStatus veksFIR32f_16s_ISfs(Vek16s* pSrcDst, int numIters, VeksFIRState_32f_16s* pState,
                              int scaleFactor) {
  return firFilterInPlace(pSrcDst, numIters, pState, scaleFactor);
}

VekStatus veksFIROne32f_16s_Sfs(Vek16s src, Vek16s* pDstVal, VeksFIRState_32f_16s* pState,
                                int scaleFactor) {
  return firOne(src, pDstVal, pState, scaleFactor);
}

VekStatus veksFIR64f_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int numIters,
                             VeksFIRState_64f_16s* pState, int scaleFactor) {
  return firFilter(pSrc, pDst, numIters, pState, scaleFactor);
}

VekStatus veksFIR64f_16s_ISfs(Vek16s* pSrcDst, int numIters, VeksFIRState_64f_16s* pState,
                              int scaleFactor) {
  return firFilterInPlace(pSrcDst, numIters, pState, scaleFactor);
}

VekStatus veksFIROne64f_16s_Sfs(Vek16s src, Vek16s* pDstVal, VeksFIRState_64f_16s* pState,
                                int scaleFactor) {
  return firOne(src, pDstVal, pState, scaleFactor);
}

VekStatus veksFIR64f_32s_Sfs(const Vek32s* pSrc, Vek32s* pDst, int numIters,
                             VeksFIRState_64f_32s* pState, int scaleFactor) {
  return firFilter(pSrc, pDst, numIters, pState, scaleFactor);
}

VekStatus veksFIR64f_32s_ISfs(Vek32s* pSrcDst, int numIters, VeksFIRState_64f_32s* pState,
                              int scaleFactor) {
  return firFilterInPlace(pSrcDst, numIters, pState, scaleFactor);
}

VekStatus veksFIROne64f_32s_Sfs(Vek32s src, Vek32s* pDstVal, VeksFIRState_64f_32s* pState,
                                int scaleFactor) {
  return firOne(src, pDstVal, pState, scaleFactor);
}
