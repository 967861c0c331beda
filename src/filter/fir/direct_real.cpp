#include "filter/fir/stateless.h"
#include "veks/filter/fir_direct.h"

using namespace veks;

VekStatus veksFIR_Direct_32f(const Vek32f* pSrc, Vek32f* pDst, int numIters, const Vek32f* pTaps,
                             int tapsLen, Vek32f* pDlyLine, int* pDlyLineIndex) {
  return firDirect(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIR_Direct_32f_I(Vek32f* pSrcDst, int numIters, const Vek32f* pTaps, int tapsLen,
                               Vek32f* pDlyLine, int* pDlyLineIndex) {
  return firDirect(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIROne_Direct_32f(Vek32f src, Vek32f* pDstVal, const Vek32f* pTaps, int tapsLen,
                                Vek32f* pDlyLine, int* pDlyLineIndex) {
  return firOneDirect(&src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIROne_Direct_32f_I(Vek32f* pSrcDstVal, const Vek32f* pTaps, int tapsLen,
                                  Vek32f* pDlyLine, int* pDlyLineIndex) {
  return firOneDirect(pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIR_Direct_64f(const Vek64f* pSrc, Vek64f* pDst, int numIters, const Vek64f* pTaps,
                             int tapsLen, Vek64f* pDlyLine, int* pDlyLineIndex) {
  return firDirect(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIR_Direct_64f_I(Vek64f* pSrcDst, int numIters, const Vek64f* pTaps, int tapsLen,
                               Vek64f* pDlyLine, int* pDlyLineIndex) {
  return firDirect(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIROne_Direct_64f(Vek64f src, Vek64f* pDstVal, const Vek64f* pTaps, int tapsLen,
                                Vek64f* pDlyLine, int* pDlyLineIndex) {
  return firOneDirect(&src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIROne_Direct_64f_I(Vek64f* pSrcDstVal, const Vek64f* pTaps, int tapsLen,
                                  Vek64f* pDlyLine, int* pDlyLineIndex) {
  return firOneDirect(pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIR64f_Direct_32f(const Vek32f* pSrc, Vek32f* pDst, int numIters, const Vek64f* pTaps,
                                int tapsLen, Vek32f* pDlyLine, int* pDlyLineIndex) {
  return firDirect(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIR64f_Direct_32f_I(Vek32f* pSrcDst, int numIters, const Vek64f* pTaps, int tapsLen,
                                  Vek32f* pDlyLine, int* pDlyLineIndex) {
  return firDirect(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIROne64f_Direct_32f(Vek32f src, Vek32f* pDstVal, const Vek64f* pTaps, int tapsLen,
                                   Vek32f* pDlyLine, int* pDlyLineIndex) {
  return firOneDirect(&src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIROne64f_Direct_32f_I(Vek32f* pSrcDstVal, const Vek64f* pTaps, int tapsLen,
                                     Vek32f* pDlyLine, int* pDlyLineIndex) {
  return firOneDirect(pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex);
}

VekStatus veksFIR32f_Direct_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int numIters,
                                    const Vek32f* pTaps, int tapsLen, Vek16s* pDlyLine,
                                    int* pDlyLineIndex, int scaleFactor) {
  return firDirect(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIR32f_Direct_16s_ISfs(Vek16s* pSrcDst, int numIters, const Vek32f* pTaps,
                                     int tapsLen, Vek16s* pDlyLine, int* pDlyLineIndex,
                                     int scaleFactor) {
  return firDirect(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                   scaleFactor);
}

VekStatus veksFIROne32f_Direct_16s_Sfs(Vek16s src, Vek16s* pDstVal, const Vek32f* pTaps,
                                       int tapsLen, Vek16s* pDlyLine, int* pDlyLineIndex,
                                       int scaleFactor) {
  return firOneDirect(&src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIROne32f_Direct_16s_ISfs(Vek16s* pSrcDstVal, const Vek32f* pTaps, int tapsLen,
                                        Vek16s* pDlyLine, int* pDlyLineIndex, int scaleFactor) {
  return firOneDirect(pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIR64f_Direct_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int numIters,
                                    const Vek64f* pTaps, int tapsLen, Vek16s* pDlyLine,
                                    int* pDlyLineIndex, int scaleFactor) {
  return firDirect(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIR64f_Direct_16s_ISfs(Vek16s* pSrcDst, int numIters, const Vek64f* pTaps,
                                     int tapsLen, Vek16s* pDlyLine, int* pDlyLineIndex,
                                     int scaleFactor) {
  return firDirect(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                   scaleFactor);
}

VekStatus veksFIROne64f_Direct_16s_Sfs(Vek16s src, Vek16s* pDstVal, const Vek64f* pTaps,
                                       int tapsLen, Vek16s* pDlyLine, int* pDlyLineIndex,
                                       int scaleFactor) {
  return firOneDirect(&src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIROne64f_Direct_16s_ISfs(Vek16s* pSrcDstVal, const Vek64f* pTaps, int tapsLen,
                                        Vek16s* pDlyLine, int* pDlyLineIndex, int scaleFactor) {
  return firOneDirect(pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIR64f_Direct_32s_Sfs(const Vek32s* pSrc, Vek32s* pDst, int numIters,
                                    const Vek64f* pTaps, int tapsLen, Vek32s* pDlyLine,
                                    int* pDlyLineIndex, int scaleFactor) {
  return firDirect(pSrc, pDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIR64f_Direct_32s_ISfs(Vek32s* pSrcDst, int numIters, const Vek64f* pTaps,
                                     int tapsLen, Vek32s* pDlyLine, int* pDlyLineIndex,
                                     int scaleFactor) {
  return firDirect(pSrcDst, pSrcDst, numIters, pTaps, tapsLen, pDlyLine, pDlyLineIndex,
                   scaleFactor);
}

VekStatus veksFIROne64f_Direct_32s_Sfs(Vek32s src, Vek32s* pDstVal, const Vek64f* pTaps,
                                       int tapsLen, Vek32s* pDlyLine, int* pDlyLineIndex,
                                       int scaleFactor) {
  return firOneDirect(&src, pDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}

VekStatus veksFIROne64f_Direct_32s_ISfs(Vek32s* pSrcDstVal, const Vek64f* pTaps, int tapsLen,
                                        Vek32s* pDlyLine, int* pDlyLineIndex, int scaleFactor) {
  return firOneDirect(pSrcDstVal, pSrcDstVal, pTaps, tapsLen, pDlyLine, pDlyLineIndex, scaleFactor);
}
