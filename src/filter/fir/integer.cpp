#include "filter/fir/filter.h"
#include "filter/fir/integer_taps.h"
#include "veks/filter/fir.h"

using namespace veks;

VekStatus veksFIRGetStateSize32s_16s(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_32s_16s>(tapsLen, pStateSize);
}

VekStatus veksFIRInit32s_16s(VeksFIRState_32s_16s** ppState, const Vek32s* pTaps, int tapsLen,
                             int tapsFactor, const Vek16s* pDlyLine, Vek8u* pBuffer) {
  return firInitScaled(ppState, pTaps, tapsLen, tapsFactor, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc32s_16s(VeksFIRState_32s_16s** ppState, const Vek32s* pTaps, int tapsLen,
                                  int tapsFactor, const Vek16s* pDlyLine) {
  return firInitAllocScaled(ppState, pTaps, tapsLen, tapsFactor, pDlyLine);
}

VekStatus veksFIRFree32s_16s(VeksFIRState_32s_16s* pState) {
  return firFree(pState);
}

VekStatus veksFIRGetTaps32s_16s(const VeksFIRState_32s_16s* pState, Vek32s* pTaps,
                                int* pTapsFactor) {
  return firGetScaledTaps(pState, pTaps, pTapsFactor);
}

VekStatus veksFIRSetTaps32s_16s(const Vek32s* pTaps, VeksFIRState_32s_16s* pState, int tapsFactor) {
  return firSetScaledTaps(pTaps, pState, tapsFactor);
}

VekStatus veksFIRGetDlyLine32s_16s(const VeksFIRState_32s_16s* pState, Vek16s* pDlyLine) {
  return firGetLine(pState, pDlyLine);
}

VekStatus veksFIRSetDlyLine32s_16s(VeksFIRState_32s_16s* pState, const Vek16s* pDlyLine) {
  return firSetLine(pState, pDlyLine);
}

VekStatus veksFIR32s_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int numIters,
                             VeksFIRState_32s_16s* pState, int scaleFactor) {
  return firFilter(pSrc, pDst, numIters, pState, scaleFactor);
}

VekStatus veksFIR32s_16s_ISfs(Vek16s* pSrcDst, int numIters, VeksFIRState_32s_16s* pState,
                              int scaleFactor) {
  return firFilterInPlace(pSrcDst, numIters, pState, scaleFactor);
}

VekStatus veksFIROne32s_16s_Sfs(Vek16s src, Vek16s* pDstVal, VeksFIRState_32s_16s* pState,
                                int scaleFactor) {
  return firOne(src, pDstVal, pState, scaleFactor);
}

VekStatus veksFIRGetStateSize32sc_16sc(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_32sc_16sc>(tapsLen, pStateSize);
}

VekStatus veksFIRInit32sc_16sc(VeksFIRState_32sc_16sc** ppState, const Vek32sc* pTaps, int tapsLen,
                               int tapsFactor, const Vek16sc* pDlyLine, Vek8u* pBuffer) {
  return firInitScaled(ppState, pTaps, tapsLen, tapsFactor, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc32sc_16sc(VeksFIRState_32sc_16sc** ppState, const Vek32sc* pTaps,
                                    int tapsLen, int tapsFactor, const Vek16sc* pDlyLine) {
  return firInitAllocScaled(ppState, pTaps, tapsLen, tapsFactor, pDlyLine);
}

VekStatus veksFIRFree32sc_16sc(VeksFIRState_32sc_16sc* pState) {
  return firFree(pState);
}

VekStatus veksFIRGetTaps32sc_16sc(const VeksFIRState_32sc_16sc* pState, Vek32sc* pTaps,
                                  int* pTapsFactor) {
  return firGetScaledTaps(pState, pTaps, pTapsFactor);
}

VekStatus veksFIRSetTaps32sc_16sc(const Vek32sc* pTaps, VeksFIRState_32sc_16sc* pState,
                                  int tapsFactor) {
  return firSetScaledTaps(pTaps, pState, tapsFactor);
}

VekStatus veksFIRGetDlyLine32sc_16sc(const VeksFIRState_32sc_16sc* pState, Vek16sc* pDlyLine) {
  return firGetLine(pState, pDlyLine);
}

VekStatus veksFIRSetDlyLine32sc_16sc(VeksFIRState_32sc_16sc* pState, const Vek16sc* pDlyLine) {
  return firSetLine(pState, pDlyLine);
}

VekStatus veksFIR32sc_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int numIters,
                               VeksFIRState_32sc_16sc* pState, int scaleFactor) {
  return firFilter(pSrc, pDst, numIters, pState, scaleFactor);
}

VekStatus veksFIR32sc_16sc_ISfs(Vek16sc* pSrcDst, int numIters, VeksFIRState_32sc_16sc* pState,
                                int scaleFactor) {
  return firFilterInPlace(pSrcDst, numIters, pState, scaleFactor);
}

VekStatus veksFIROne32sc_16sc_Sfs(Vek16sc src, Vek16sc* pDstVal, VeksFIRState_32sc_16sc* pState,
                                  int scaleFactor) {
  return firOne(src, pDstVal, pState, scaleFactor);
}

VekStatus veksFIRGetStateSize32s_16s32f(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_32s_16s>(tapsLen, pStateSize);
}

VekStatus veksFIRInit32s_16s32f(VeksFIRState_32s_16s** ppState, const Vek32f* pTaps, int tapsLen,
                                const Vek16s* pDlyLine, Vek8u* pBuffer) {
  return firInitConverted(ppState, pTaps, tapsLen, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc32s_16s32f(VeksFIRState_32s_16s** ppState, const Vek32f* pTaps,
                                     int tapsLen, const Vek16s* pDlyLine) {
  return firInitAllocConverted(ppState, pTaps, tapsLen, pDlyLine);
}

VekStatus veksFIRSetTaps32s_16s32f(const Vek32f* pTaps, VeksFIRState_32s_16s* pState) {
  return firSetConvertedTaps(pTaps, pState);
}

VekStatus veksFIRGetTaps32s_16s32f(const VeksFIRState_32s_16s* pState, Vek32f* pTaps) {
  return firGetConvertedTaps(pState, pTaps);
}

VekStatus veksFIRGetStateSize32sc_16sc32fc(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_32sc_16sc>(tapsLen, pStateSize);
}

VekStatus veksFIRInit32sc_16sc32fc(VeksFIRState_32sc_16sc** ppState, const Vek32fc* pTaps,
                                   int tapsLen, const Vek16sc* pDlyLine, Vek8u* pBuffer) {
  return firInitConverted(ppState, pTaps, tapsLen, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc32sc_16sc32fc(VeksFIRState_32sc_16sc** ppState, const Vek32fc* pTaps,
                                        int tapsLen, const Vek16sc* pDlyLine) {
  return firInitAllocConverted(ppState, pTaps, tapsLen, pDlyLine);
}

VekStatus veksFIRSetTaps32sc_16sc32fc(const Vek32fc* pTaps, VeksFIRState_32sc_16sc* pState) {
  return firSetConvertedTaps(pTaps, pState);
}

VekStatus veksFIRGetTaps32sc_16sc32fc(const VeksFIRState_32sc_16sc* pState, Vek32fc* pTaps) {
  return firGetConvertedTaps(pState, pTaps);
}
