#include "filter/fir/filter.h"
#include "veks/filter/fir.h"

using namespace veks;

VekStatus veksFIR_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int numIters,
                       VeksFIRState_32fc* pState) {
  return firFilter(pSrc, pDst, numIters, pState);
}

VekStatus veksFIR_32fc_I(Vek32fc* pSrcDst, int numIters, VeksFIRState_32fc* pState) {
  return firFilterInPlace(pSrcDst, numIters, pState);
}

VekStatus veksFIROne_32fc(Vek32fc src, Vek32fc* pDstVal, VeksFIRState_32fc* pState) {
  return firOne(src, pDstVal, pState);
}

VekStatus veksFIR_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int numIters,
                       VeksFIRState_64fc* pState) {
  return firFilter(pSrc, pDst, numIters, pState);
}

VekStatus veksFIR_64fc_I(Vek64fc* pSrcDst, int numIters, VeksFIRState_64fc* pState) {
  return firFilterInPlace(pSrcDst, numIters, pState);
}

VekStatus veksFIROne_64fc(Vek64fc src, Vek64fc* pDstVal, VeksFIRState_64fc* pState) {
  return firOne(src, pDstVal, pState);
}

VekStatus veksFIR64fc_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int numIters,
                           VeksFIRState_64fc_32fc* pState) {
  return firFilter(pSrc, pDst, numIters, pState);
}

VekStatus veksFIR64fc_32fc_I(Vek32fc* pSrcDst, int numIters, VeksFIRState_64fc_32fc* pState) {
  return firFilterInPlace(pSrcDst, numIters, pState);
}

VekStatus veksFIROne64fc_32fc(Vek32fc src, Vek32fc* pDstVal, VeksFIRState_64fc_32fc* pState) {
  return firOne(src, pDstVal, pState);
}

VekStatus veksFIR32fc_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int numIters,
                               VeksFIRState_32fc_16sc* pState, int scaleFactor) {
  return firFilter(pSrc, pDst, numIters, pState, scaleFactor);
}

VekStatus veksFIR32fc_16sc_ISfs(Vek16sc* pSrcDst, int numIters, VeksFIRState_32fc_16sc* pState,
                                int scaleFactor) {
  return firFilterInPlace(pSrcDst, numIters, pState, scaleFactor);
}

VekStatus veksFIROne32fc_16sc_Sfs(Vek16sc src, Vek16sc* pDstVal, VeksFIRState_32fc_16sc* pState,
                                  int scaleFactor) {
  return firOne(src, pDstVal, pState, scaleFactor);
}

VekStatus veksFIR64fc_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int numIters,
                               VeksFIRState_64fc_16sc* pState, int scaleFactor) {
  return firFilter(pSrc, pDst, numIters, pState, scaleFactor);
}

VekStatus veksFIR64fc_16sc_ISfs(Vek16sc* pSrcDst, int numIters, VeksFIRState_64fc_16sc* pState,
                                int scaleFactor) {
  return firFilterInPlace(pSrcDst, numIters, pState, scaleFactor);
}

VekStatus veksFIROne64fc_16sc_Sfs(Vek16sc src, Vek16sc* pDstVal, VeksFIRState_64fc_16sc* pState,
                                  int scaleFactor) {
  return firOne(src, pDstVal, pState, scaleFactor);
}

VekStatus veksFIR64fc_32sc_Sfs(const Vek32sc* pSrc, Vek32sc* pDst, int numIters,
                               VeksFIRState_64fc_32sc* pState, int scaleFactor) {
  return firFilter(pSrc, pDst, numIters, pState, scaleFactor);
}

VekStatus veksFIR64fc_32sc_ISfs(Vek32sc* pSrcDst, int numIters, VeksFIRState_64fc_32sc* pState,
                                int scaleFactor) {
  return firFilterInPlace(pSrcDst, numIters, pState, scaleFactor);
}

VekStatus veksFIROne64fc_32sc_Sfs(Vek32sc src, Vek32sc* pDstVal, VeksFIRState_64fc_32sc* pState,
                                  int scaleFactor) {
  return firOne(src, pDstVal, pState, scaleFactor);
}
