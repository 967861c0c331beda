#include "filter/fir/stateless.h"
#include "veks/filter/fir_direct.h"

using namespace veks;

VekStatus veksFIR32s_Direct_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int numIters,
                                    const Vek32s* pTaps, int tapsLen, int tapsFactor,
                                    Vek16s* pDlyLine, int* pDlyLineIndex, int scaleFactor) {
  return firDirect(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                   scaleByTaps(tapsFactor, scaleFactor));
}

VekStatus veksFIR32s_Direct_16s_ISfs(Vek16s* pSrcDst, int numIters, const Vek32s* pTaps,
                                     int tapsLen, int tapsFactor, Vek16s* pDlyLine,
                                     int* pDlyLineIndex, int scaleFactor) {
  return firDirect(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                   scaleByTaps(tapsFactor, scaleFactor));
}

VekStatus veksFIROne32s_Direct_16s_Sfs(Vek16s src, Vek16s* pDstVal, const Vek32s* pTaps,
                                       int tapsLen, int tapsFactor, Vek16s* pDlyLine,
                                       int* pDlyLineIndex, int scaleFactor) {
  return firOneDirect(&src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                      scaleByTaps(tapsFactor, scaleFactor));
}

VekStatus veksFIROne32s_Direct_16s_ISfs(Vek16s* pSrcDstVal, const Vek32s* pTaps, int tapsLen,
                                        int tapsFactor, Vek16s* pDlyLine, int* pDlyLineIndex,
                                        int scaleFactor) {
  return firOneDirect(pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                      scaleByTaps(tapsFactor, scaleFactor));
}

VekStatus veksFIR32sc_Direct_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int numIters,
                                      const Vek32sc* pTaps, int tapsLen, int tapsFactor,
                                      Vek16sc* pDlyLine, int* pDlyLineIndex, int scaleFactor) {
  return firDirect(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                   scaleByTaps(tapsFactor, scaleFactor));
}

VekStatus veksFIR32sc_Direct_16sc_ISfs(Vek16sc* pSrcDst, int numIters, const Vek32sc* pTaps,
                                       int tapsLen, int tapsFactor, Vek16sc* pDlyLine,
                                       int* pDlyLineIndex, int scaleFactor) {
  return firDirect(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                   scaleByTaps(tapsFactor, scaleFactor));
}

VekStatus veksFIROne32sc_Direct_16sc_Sfs(Vek16sc src, Vek16sc* pDstVal, const Vek32sc* pTaps,
                                         int tapsLen, int tapsFactor, Vek16sc* pDlyLine,
                                         int* pDlyLineIndex, int scaleFactor) {
  return firOneDirect(&src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                      scaleByTaps(tapsFactor, scaleFactor));
}

VekStatus veksFIROne32sc_Direct_16sc_ISfs(Vek16sc* pSrcDstVal, const Vek32sc* pTaps, int tapsLen,
                                          int tapsFactor, Vek16sc* pDlyLine, int* pDlyLineIndex,
                                          int scaleFactor) {
  return firOneDirect(pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                      scaleByTaps(tapsFactor, scaleFactor));
}

VekStatus veksFIR_Direct_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int numIters,
                                 const Vek16s* pTaps, int tapsLen, Vek16s* pDlyLine,
                                 int* pDlyLineIndex, int scaleFactor) {
  return firDirect(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                   scaleQ15(scaleFactor));
}

VekStatus veksFIR_Direct_16s_ISfs(Vek16s* pSrcDst, int numIters, const Vek16s* pTaps, int tapsLen,
                                  Vek16s* pDlyLine, int* pDlyLineIndex, int scaleFactor) {
  return firDirect(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                   scaleQ15(scaleFactor));
}

VekStatus veksFIROne_Direct_16s_Sfs(Vek16s src, Vek16s* pDstVal, const Vek16s* pTaps, int tapsLen,
                                    Vek16s* pDlyLine, int* pDlyLineIndex, int scaleFactor) {
  return firOneDirect(&src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                      scaleQ15(scaleFactor));
}

VekStatus veksFIROne_Direct_16s_ISfs(Vek16s* pSrcDstVal, const Vek16s* pTaps, int tapsLen,
                                     Vek16s* pDlyLine, int* pDlyLineIndex, int scaleFactor) {
  return firOneDirect(pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                      scaleQ15(scaleFactor));
}
