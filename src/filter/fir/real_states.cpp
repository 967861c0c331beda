#include "filter/fir/make.h"
#include "veks/filter/fir_states.h"

using namespace veks;

VekStatus veksFIRGetStateSize_32f(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_32f>(tapsLen, pStateSize);
}

VekStatus veksFIRInit_32f(VeksFIRState_32f** ppState, const Vek32f* pTaps, int tapsLen,
                          const Vek32f* pDlyLine, Vek8u* pBuffer) {
  return firInit(ppState, pTaps, tapsLen, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc_32f(VeksFIRState_32f** ppState, const Vek32f* pTaps, int tapsLen,
                               const Vek32f* pDlyLine) {
  return firInitAlloc(ppState, pTaps, tapsLen, pDlyLine);
}

VekStatus veksFIRFree_32f(VeksFIRState_32f* pState) {
  return firFree(pState);
}

VekStatus veksFIRGetTaps_32f(const VeksFIRState_32f* pState, Vek32f* pTaps) {
  return firGetTaps(pState, pTaps);
}

VekStatus veksFIRSetTaps_32f(const Vek32f* pTaps, VeksFIRState_32f* pState) {
  return firSetTaps(pTaps, pState);
}

VekStatus veksFIRGetDlyLine_32f(const VeksFIRState_32f* pState, Vek32f* pDlyLine) {
  return firGetLine(pState, pDlyLine);
}

VekStatus veksFIRSetDlyLine_32f(VeksFIRState_32f* pState, const Vek32f* pDlyLine) {
  return firSetLine(pState, pDlyLine);
}

VekStatus veksFIRGetStateSize_64f(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_64f>(tapsLen, pStateSize);
}

VekStatus veksFIRInit_64f(VeksFIRState_64f** ppState, const Vek64f* pTaps, int tapsLen,
                          const Vek64f* pDlyLine, Vek8u* pBuffer) {
  return firInit(ppState, pTaps, tapsLen, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc_64f(VeksFIRState_64f** ppState, const Vek64f* pTaps, int tapsLen,
                               const Vek64f* pDlyLine) {
  return firInitAlloc(ppState, pTaps, tapsLen, pDlyLine);
}

VekStatus veksFIRFree_64f(VeksFIRState_64f* pState) {
  return firFree(pState);
}

VekStatus veksFIRGetTaps_64f(const VeksFIRState_64f* pState, Vek64f* pTaps) {
  return firGetTaps(pState, pTaps);
}

VekStatus veksFIRSetTaps_64f(const Vek64f* pTaps, VeksFIRState_64f* pState) {
  return firSetTaps(pTaps, pState);
}

VekStatus veksFIRGetDlyLine_64f(const VeksFIRState_64f* pState, Vek64f* pDlyLine) {
  return firGetLine(pState, pDlyLine);
}

VekStatus veksFIRSetDlyLine_64f(VeksFIRState_64f* pState, const Vek64f* pDlyLine) {
  return firSetLine(pState, pDlyLine);
}

VekStatus veksFIRGetStateSize64f_32f(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_64f_32f>(tapsLen, pStateSize);
}

VekStatus veksFIRInit64f_32f(VeksFIRState_64f_32f** ppState, const Vek64f* pTaps, int tapsLen,
                             const Vek32f* pDlyLine, Vek8u* pBuffer) {
  return firInit(ppState, pTaps, tapsLen, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc64f_32f(VeksFIRState_64f_32f** ppState, const Vek64f* pTaps, int tapsLen,
                                  const Vek32f* pDlyLine) {
  return firInitAlloc(ppState, pTaps, tapsLen, pDlyLine);
}

VekStatus veksFIRFree64f_32f(VeksFIRState_64f_32f* pState) {
  return firFree(pState);
}

VekStatus veksFIRGetTaps64f_32f(const VeksFIRState_64f_32f* pState, Vek64f* pTaps) {
  return firGetTaps(pState, pTaps);
}

VekStatus veksFIRSetTaps64f_32f(const Vek64f* pTaps, VeksFIRState_64f_32f* pState) {
  return firSetTaps(pTaps, pState);
}

VekStatus veksFIRGetDlyLine64f_32f(const VeksFIRState_64f_32f* pState, Vek32f* pDlyLine) {
  return firGetLine(pState, pDlyLine);
}

VekStatus veksFIRSetDlyLine64f_32f(VeksFIRState_64f_32f* pState, const Vek32f* pDlyLine) {
  return firSetLine(pState, pDlyLine);
}

VekStatus veksFIRGetStateSize32f_16s(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_32f_16s>(tapsLen, pStateSize);
}

VekStatus veksFIRInit32f_16s(VeksFIRState_32f_16s** ppState, const Vek32f* pTaps, int tapsLen,
                             const Vek16s* pDlyLine, Vek8u* pBuffer) {
  return firInit(ppState, pTaps, tapsLen, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc32f_16s(VeksFIRState_32f_16s** ppState, const Vek32f* pTaps, int tapsLen,
                                  const Vek16s* pDlyLine) {
  return firInitAlloc(ppState, pTaps, tapsLen, pDlyLine);
}

VekStatus veksFIRFree32f_16s(VeksFIRState_32f_16s* pState) {
  return firFree(pState);
}

VekStatus veksFIRGetTaps32f_16s(const VeksFIRState_32f_16s* pState, Vek32f* pTaps) {
  return firGetTaps(pState, pTaps);
}

VekStatus veksFIRSetTaps32f_16s(const Vek32f* pTaps, VeksFIRState_32f_16s* pState) {
  return firSetTaps(pTaps, pState);
}

VekStatus veksFIRGetDlyLine32f_16s(const VeksFIRState_32f_16s* pState, Vek16s* pDlyLine) {
  return firGetLine(pState, pDlyLine);
}

VekStatus veksFIRSetDlyLine32f_16s(VeksFIRState_32f_16s* pState, const Vek16s* pDlyLine) {
  return firSetLine(pState, pDlyLine);
}

VekStatus veksFIRGetStateSize64f_16s(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_64f_16s>(tapsLen, pStateSize);
}

VekStatus veksFIRInit64f_16s(VeksFIRState_64f_16s** ppState, const Vek64f* pTaps, int tapsLen,
                             const Vek16s* pDlyLine, Vek8u* pBuffer) {
  return firInit(ppState, pTaps, tapsLen, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc64f_16s(VeksFIRState_64f_16s** ppState, const Vek64f* pTaps, int tapsLen,
                                  const Vek16s* pDlyLine) {
  return firInitAlloc(ppState, pTaps, tapsLen, pDlyLine);
}

VekStatus veksFIRFree64f_16s(VeksFIRState_64f_16s* pState) {
  return firFree(pState);
}

VekStatus veksFIRGetTaps64f_16s(const VeksFIRState_64f_16s* pState, Vek64f* pTaps) {
  return firGetTaps(pState, pTaps);
}

VekStatus veksFIRSetTaps64f_16s(const Vek64f* pTaps, VeksFIRState_64f_16s* pState) {
  return firSetTaps(pTaps, pState);
}

VekStatus veksFIRGetDlyLine64f_16s(const VeksFIRState_64f_16s* pState, Vek16s* pDlyLine) {
  return firGetLine(pState, pDlyLine);
}

VekStatus veksFIRSetDlyLine64f_16s(VeksFIRState_64f_16s* pState, const Vek16s* pDlyLine) {
  return firSetLine(pState, pDlyLine);
}

VekStatus veksFIRGetStateSize64f_32s(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_64f_32s>(tapsLen, pStateSize);
}

VekStatus veksFIRInit64f_32s(VeksFIRState_64f_32s** ppState, const Vek64f* pTaps, int tapsLen,
                             const Vek32s* pDlyLine, Vek8u* pBuffer) {
  return firInit(ppState, pTaps, tapsLen, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc64f_32s(VeksFIRState_64f_32s** ppState, const Vek64f* pTaps, int tapsLen,
                                  const Vek32s* pDlyLine) {
  return firInitAlloc(ppState, pTaps, tapsLen, pDlyLine);
}

VekStatus veksFIRFree64f_32s(VeksFIRState_64f_32s* pState) {
  return firFree(pState);
}

VekStatus veksFIRGetTaps64f_32s(const VeksFIRState_64f_32s* pState, Vek64f* pTaps) {
  return firGetTaps(pState, pTaps);
}

VekStatus veksFIRSetTaps64f_32s(const Vek64f* pTaps, VeksFIRState_64f_32s* pState) {
  return firSetTaps(pTaps, pState);
}

VekStatus veksFIRGetDlyLine64f_32s(const VeksFIRState_64f_32s* pState, Vek32s* pDlyLine) {
  return firGetLine(pState, pDlyLine);
}

VekStatus veksFIRSetDlyLine64f_32s(VeksFIRState_64f_32s* pState, const Vek32s* pDlyLine) {
  return firSetLine(pState, pDlyLine);
}
