#include "filter/fir/make.h"
#include "veks/filter/fir_states.h"

using namespace veks;

VekStatus veksFIRGetStateSize_32fc(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_32fc>(tapsLen, pStateSize);
}

VekStatus veksFIRInit_32fc(VeksFIRState_32fc** ppState, const Vek32fc* pTaps, int tapsLen,
                           const Vek32fc* pDlyLine, Vek8u* pBuffer) {
  return firInit(ppState, pTaps, tapsLen, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc_32fc(VeksFIRState_32fc** ppState, const Vek32fc* pTaps, int tapsLen,
                                const Vek32fc* pDlyLine) {
  return firInitAlloc(ppState, pTaps, tapsLen, pDlyLine);
}

VekStatus veksFIRFree_32fc(VeksFIRState_32fc* pState) {
  return firFree(pState);
}

VekStatus veksFIRGetTaps_32fc(const VeksFIRState_32fc* pState, Vek32fc* pTaps) {
  return firGetTaps(pState, pTaps);
}

VekStatus veksFIRSetTaps_32fc(const Vek32fc* pTaps, VeksFIRState_32fc* pState) {
  return firSetTaps(pTaps, pState);
}

VekStatus veksFIRGetDlyLine_32fc(const VeksFIRState_32fc* pState, Vek32fc* pDlyLine) {
  return firGetLine(pState, pDlyLine);
}

VekStatus veksFIRSetDlyLine_32fc(VeksFIRState_32fc* pState, const Vek32fc* pDlyLine) {
  return firSetLine(pState, pDlyLine);
}

VekStatus veksFIRGetStateSize_64fc(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_64fc>(tapsLen, pStateSize);
}

VekStatus veksFIRInit_64fc(VeksFIRState_64fc** ppState, const Vek64fc* pTaps, int tapsLen,
                           const Vek64fc* pDlyLine, Vek8u* pBuffer) {
  return firInit(ppState, pTaps, tapsLen, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc_64fc(VeksFIRState_64fc** ppState, const Vek64fc* pTaps, int tapsLen,
                                const Vek64fc* pDlyLine) {
  return firInitAlloc(ppState, pTaps, tapsLen, pDlyLine);
}

VekStatus veksFIRFree_64fc(VeksFIRState_64fc* pState) {
  return firFree(pState);
}

VekStatus veksFIRGetTaps_64fc(const VeksFIRState_64fc* pState, Vek64fc* pTaps) {
  return firGetTaps(pState, pTaps);
}

VekStatus veksFIRSetTaps_64fc(const Vek64fc* pTaps, VeksFIRState_64fc* pState) {
  return firSetTaps(pTaps, pState);
}

VekStatus veksFIRGetDlyLine_64fc(const VeksFIRState_64fc* pState, Vek64fc* pDlyLine) {
  return firGetLine(pState, pDlyLine);
}

VekStatus veksFIRSetDlyLine_64fc(VeksFIRState_64fc* pState, const Vek64fc* pDlyLine) {
  return firSetLine(pState, pDlyLine);
}

VekStatus veksFIRGetStateSize64fc_32fc(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_64fc_32fc>(tapsLen, pStateSize);
}

VekStatus veksFIRInit64fc_32fc(VeksFIRState_64fc_32fc** ppState, const Vek64fc* pTaps, int tapsLen,
                               const Vek32fc* pDlyLine, Vek8u* pBuffer) {
  return firInit(ppState, pTaps, tapsLen, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc64fc_32fc(VeksFIRState_64fc_32fc** ppState, const Vek64fc* pTaps,
                                    int tapsLen, const Vek32fc* pDlyLine) {
  return firInitAlloc(ppState, pTaps, tapsLen, pDlyLine);
}

VekStatus veksFIRFree64fc_32fc(VeksFIRState_64fc_32fc* pState) {
  return firFree(pState);
}

VekStatus veksFIRGetTaps64fc_32fc(const VeksFIRState_64fc_32fc* pState, Vek64fc* pTaps) {
  return firGetTaps(pState, pTaps);
}

VekStatus veksFIRSetTaps64fc_32fc(const Vek64fc* pTaps, VeksFIRState_64fc_32fc* pState) {
  return firSetTaps(pTaps, pState);
}

VekStatus veksFIRGetDlyLine64fc_32fc(const VeksFIRState_64fc_32fc* pState, Vek32fc* pDlyLine) {
  return firGetLine(pState, pDlyLine);
}

VekStatus veksFIRSetDlyLine64fc_32fc(VeksFIRState_64fc_32fc* pState, const Vek32fc* pDlyLine) {
  return firSetLine(pState, pDlyLine);
}

VekStatus veksFIRGetStateSize32fc_16sc(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_32fc_16sc>(tapsLen, pStateSize);
}

VekStatus veksFIRInit32fc_16sc(VeksFIRState_32fc_16sc** ppState, const Vek32fc* pTaps, int tapsLen,
                               const Vek16sc* pDlyLine, Vek8u* pBuffer) {
  return firInit(ppState, pTaps, tapsLen, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc32fc_16sc(VeksFIRState_32fc_16sc** ppState, const Vek32fc* pTaps,
                                    int tapsLen, const Vek16sc* pDlyLine) {
  return firInitAlloc(ppState, pTaps, tapsLen, pDlyLine);
}

VekStatus veksFIRFree32fc_16sc(VeksFIRState_32fc_16sc* pState) {
  return firFree(pState);
}

VekStatus veksFIRGetTaps32fc_16sc(const VeksFIRState_32fc_16sc* pState, Vek32fc* pTaps) {
  return firGetTaps(pState, pTaps);
}

VekStatus veksFIRSetTaps32fc_16sc(const Vek32fc* pTaps, VeksFIRState_32fc_16sc* pState) {
  return firSetTaps(pTaps, pState);
}

VekStatus veksFIRGetDlyLine32fc_16sc(const VeksFIRState_32fc_16sc* pState, Vek16sc* pDlyLine) {
  return firGetLine(pState, pDlyLine);
}

VekStatus veksFIRSetDlyLine32fc_16sc(VeksFIRState_32fc_16sc* pState, const Vek16sc* pDlyLine) {
  return firSetLine(pState, pDlyLine);
}

VekStatus veksFIRGetStateSize64fc_16sc(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_64fc_16sc>(tapsLen, pStateSize);
}

VekStatus veksFIRInit64fc_16sc(VeksFIRState_64fc_16sc** ppState, const Vek64fc* pTaps, int tapsLen,
                               const Vek16sc* pDlyLine, Vek8u* pBuffer) {
  return firInit(ppState, pTaps, tapsLen, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc64fc_16sc(VeksFIRState_64fc_16sc** ppState, const Vek64fc* pTaps,
                                    int tapsLen, const Vek16sc* pDlyLine) {
  return firInitAlloc(ppState, pTaps, tapsLen, pDlyLine);
}

VekStatus veksFIRFree64fc_16sc(VeksFIRState_64fc_16sc* pState) {
  return firFree(pState);
}

VekStatus veksFIRGetTaps64fc_16sc(const VeksFIRState_64fc_16sc* pState, Vek64fc* pTaps) {
  return firGetTaps(pState, pTaps);
}

VekStatus veksFIRSetTaps64fc_16sc(const Vek64fc* pTaps, VeksFIRState_64fc_16sc* pState) {
  return firSetTaps(pTaps, pState);
}

VekStatus veksFIRGetDlyLine64fc_16sc(const VeksFIRState_64fc_16sc* pState, Vek16sc* pDlyLine) {
  return firGetLine(pState, pDlyLine);
}

VekStatus veksFIRSetDlyLine64fc_16sc(VeksFIRState_64fc_16sc* pState, const Vek16sc* pDlyLine) {
  return firSetLine(pState, pDlyLine);
}

VekStatus veksFIRGetStateSize64fc_32sc(int tapsLen, int* pStateSize) {
  return firStateSize<VeksFIRState_64fc_32sc>(tapsLen, pStateSize);
}

VekStatus veksFIRInit64fc_32sc(VeksFIRState_64fc_32sc** ppState, const Vek64fc* pTaps, int tapsLen,
                               const Vek32sc* pDlyLine, Vek8u* pBuffer) {
  return firInit(ppState, pTaps, tapsLen, pDlyLine, pBuffer);
}

VekStatus veksFIRInitAlloc64fc_32sc(VeksFIRState_64fc_32sc** ppState, const Vek64fc* pTaps,
                                    int tapsLen, const Vek32sc* pDlyLine) {
  return firInitAlloc(ppState, pTaps, tapsLen, pDlyLine);
}

VekStatus veksFIRFree64fc_32sc(VeksFIRState_64fc_32sc* pState) {
  return firFree(pState);
}

VekStatus veksFIRGetTaps64fc_32sc(const VeksFIRState_64fc_32sc* pState, Vek64fc* pTaps) {
  return firGetTaps(pState, pTaps);
}

VekStatus veksFIRSetTaps64fc_32sc(const Vek64fc* pTaps, VeksFIRState_64fc_32sc* pState) {
  return firSetTaps(pTaps, pState);
}

VekStatus veksFIRGetDlyLine64fc_32sc(const VeksFIRState_64fc_32sc* pState, Vek32sc* pDlyLine) {
  return firGetLine(pState, pDlyLine);
}

VekStatus veksFIRSetDlyLine64fc_32sc(VeksFIRState_64fc_32sc* pState, const Vek32sc* pDlyLine) {
  return firSetLine(pState, pDlyLine);
}
