#include "filter/fir/stateless.h"
#include "veks/filter/fir_direct.h"

using namespace veks;

VekStatus veksFIR_Direct_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int numIters,
                              const Vek32fc* pTaps, int tapsLen, Vek32fc* pDlyLine,
                              int* pDlyLineIndex) {
  return firDirect(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIR_Direct_32fc_I(Vek32fc* pSrcDst, int numIters, const Vek32fc* pTaps, int tapsLen,
                                Vek32fc* pDlyLine, int* pDlyLineIndex) {
  return firDirect(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIROne_Direct_32fc(Vek32fc src, Vek32fc* pDstVal, const Vek32fc* pTaps, int tapsLen,
                                 Vek32fc* pDlyLine, int* pDlyLineIndex) {
  return firOneDirect(&src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIROne_Direct_32fc_I(Vek32fc* pSrcDstVal, const Vek32fc* pTaps, int tapsLen,
                                   Vek32fc* pDlyLine, int* pDlyLineIndex) {
  return firOneDirect(pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIR_Direct_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int numIters,
                              const Vek64fc* pTaps, int tapsLen, Vek64fc* pDlyLine,
                              int* pDlyLineIndex) {
  return firDirect(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIR_Direct_64fc_I(Vek64fc* pSrcDst, int numIters, const Vek64fc* pTaps, int tapsLen,
                                Vek64fc* pDlyLine, int* pDlyLineIndex) {
  return firDirect(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIROne_Direct_64fc(Vek64fc src, Vek64fc* pDstVal, const Vek64fc* pTaps, int tapsLen,
                                 Vek64fc* pDlyLine, int* pDlyLineIndex) {
  return firOneDirect(&src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIROne_Direct_64fc_I(Vek64fc* pSrcDstVal, const Vek64fc* pTaps, int tapsLen,
                                   Vek64fc* pDlyLine, int* pDlyLineIndex) {
  return firOneDirect(pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIR64fc_Direct_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int numIters,
                                  const Vek64fc* pTaps, int tapsLen, Vek32fc* pDlyLine,
                                  int* pDlyLineIndex) {
  return firDirect(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIR64fc_Direct_32fc_I(Vek32fc* pSrcDst, int numIters, const Vek64fc* pTaps,
                                    int tapsLen, Vek32fc* pDlyLine, int* pDlyLineIndex) {
  return firDirect(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIROne64fc_Direct_32fc(Vek32fc src, Vek32fc* pDstVal, const Vek64fc* pTaps,
                                     int tapsLen, Vek32fc* pDlyLine, int* pDlyLineIndex) {
  return firOneDirect(&src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIROne64fc_Direct_32fc_I(Vek32fc* pSrcDstVal, const Vek64fc* pTaps, int tapsLen,
                                       Vek32fc* pDlyLine, int* pDlyLineIndex) {
  return firOneDirect(pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIR32fc_Direct_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int numIters,
                                      const Vek32fc* pTaps, int tapsLen, Vek16sc* pDlyLine,
                                      int* pDlyLineIndex, int scaleFactor) {
  return firDirect(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIR32fc_Direct_16sc_ISfs(Vek16sc* pSrcDst, int numIters, const Vek32fc* pTaps,
                                       int tapsLen, Vek16sc* pDlyLine, int* pDlyLineIndex,
                                       int scaleFactor) {
  return firDirect(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                   scaleFactor);
}

VekStatus veksFIROne32fc_Direct_16sc_Sfs(Vek16sc src, Vek16sc* pDstVal, const Vek32fc* pTaps,
                                         int tapsLen, Vek16sc* pDlyLine, int* pDlyLineIndex,
                                         int scaleFactor) {
  return firOneDirect(&src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIROne32fc_Direct_16sc_ISfs(Vek16sc* pSrcDstVal, const Vek32fc* pTaps, int tapsLen,
                                          Vek16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor) {
  return firOneDirect(pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIR64fc_Direct_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int numIters,
                                      const Vek64fc* pTaps, int tapsLen, Vek16sc* pDlyLine,
                                      int* pDlyLineIndex, int scaleFactor) {
  return firDirect(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIR64fc_Direct_16sc_ISfs(Vek16sc* pSrcDst, int numIters, const Vek64fc* pTaps,
                                       int tapsLen, Vek16sc* pDlyLine, int* pDlyLineIndex,
                                       int scaleFactor) {
  return firDirect(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                   scaleFactor);
}

VekStatus veksFIROne64fc_Direct_16sc_Sfs(Vek16sc src, Vek16sc* pDstVal, const Vek64fc* pTaps,
                                         int tapsLen, Vek16sc* pDlyLine, int* pDlyLineIndex,
                                         int scaleFactor) {
  return firOneDirect(&src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIROne64fc_Direct_16sc_ISfs(Vek16sc* pSrcDstVal, const Vek64fc* pTaps, int tapsLen,
                                          Vek16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor) {
  return firOneDirect(pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIR64fc_Direct_32sc_Sfs(const Vek32sc* pSrc, Vek32sc* pDst, int numIters,
                                      const Vek64fc* pTaps, int tapsLen, Vek32sc* pDlyLine,
                                      int* pDlyLineIndex, int scaleFactor) {
  return firDirect(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIR64fc_Direct_32sc_ISfs(Vek32sc* pSrcDst, int numIters, const Vek64fc* pTaps,
                                       int tapsLen, Vek32sc* pDlyLine, int* pDlyLineIndex,
                                       int scaleFactor) {
  return firDirect(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                   scaleFactor);
}

VekStatus veksFIROne64fc_Direct_32sc_Sfs(Vek32sc src, Vek32sc* pDstVal, const Vek64fc* pTaps,
                                         int tapsLen, Vek32sc* pDlyLine, int* pDlyLineIndex,
                                         int scaleFactor) {
  return firOneDirect(&src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIROne64fc_Direct_32sc_ISfs(Vek32sc* pSrcDstVal, const Vek64fc* pTaps, int tapsLen,
                                          Vek32sc* pDlyLine, int* pDlyLineIndex, int scaleFactor) {
  return firOneDirect(pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}
