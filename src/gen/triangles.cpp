#include "veks/gen/triangles.h"

#include "core/targets.h"
#include "gen/checks.h"
#include "gen/fixed_point.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "gen/triangles-inl.h"
#include <hwy/foreach_target.h>

#include "gen/triangles-inl.h"

using namespace veks;

VekStatus veksTriangle_Direct_32f(Vek32f* pDst, int len, Vek32f magn, Vek32f rFreq, Vek32f asym,
                                  Vek32f* pPhase) {
  return generateTriangle(VEKS_KERNEL(GenerateTriangle<Vek32f>), pDst, len, magn, rFreq, asym,
                          pPhase);
}

VekStatus veksTriangle_Direct_64f(Vek64f* pDst, int len, Vek64f magn, Vek64f rFreq, Vek64f asym,
                                  Vek64f* pPhase) {
  return generateTriangle(VEKS_KERNEL(GenerateTriangle<Vek64f>), pDst, len, magn, rFreq, asym,
                          pPhase);
}

VekStatus veksTriangle_Direct_32fc(Vek32fc* pDst, int len, Vek32f magn, Vek32f rFreq, Vek32f asym,
                                   Vek32f* pPhase) {
  return generateTriangle(VEKS_KERNEL(GenerateTriangle<Vek32fc>), pDst, len, magn, rFreq, asym,
                          pPhase);
}

VekStatus veksTriangle_Direct_64fc(Vek64fc* pDst, int len, Vek64f magn, Vek64f rFreq, Vek64f asym,
                                   Vek64f* pPhase) {
  return generateTriangle(VEKS_KERNEL(GenerateTriangle<Vek64fc>), pDst, len, magn, rFreq, asym,
                          pPhase);
}

VekStatus veksTriangle_Direct_16s(Vek16s* pDst, int len, Vek16s magn, Vek32f rFreq, Vek32f asym,
                                  Vek32f* pPhase) {
  return generateTriangle(VEKS_KERNEL(GenerateTriangle<Vek16s>), pDst, len, magn, rFreq, asym,
                          pPhase);
}

VekStatus veksTriangle_Direct_16sc(Vek16sc* pDst, int len, Vek16s magn, Vek32f rFreq, Vek32f asym,
                                   Vek32f* pPhase) {
  return generateTriangle(VEKS_KERNEL(GenerateTriangle<Vek16sc>), pDst, len, magn, rFreq, asym,
                          pPhase);
}

VekStatus veksTriangleQ15_Direct_16s(Vek16s* pDst, int len, Vek16s magn, int freqQ15, int asymQ15,
                                     int* pPhaseQ15) {
  if (!pPhaseQ15) return vekErrNullPtr;
  VekStatus status = checkTriangleQ15(magn, freqQ15);
  if (status == vekStsOk) status = checkAsymmetryQ15(asymQ15);
  if (status == vekStsOk) status = checkTrianglePhaseQ15(*pPhaseQ15);
  if (status == vekStsOk) status = checkVectors(len, pDst);
  if (status != vekStsOk) return status;
  const int phaseQ15 = *pPhaseQ15;
  *pPhaseQ15 = phaseAfterQ15(freqQ15, len, phaseQ15);
  return VEKS_KERNEL(GenerateTriangle<Vek16s, Rounding::kHalfAwayFromZero>)(
      pDst, static_cast<size_t>(len), magn, freqQ15 * kQ15, phaseQ15 * kQ15, asymQ15 * kQ15,
      size_t{0});
}

namespace {

VekStatus checkStateArguments(const void* destination, int magn, int freqQ15, int phaseQ15,
                              int asymQ15) {
  if (!destination) return vekErrNullPtr;
  VekStatus status = checkTriangleQ15(magn, freqQ15);
  if (status == vekStsOk) status = checkTrianglePhaseQ15(phaseQ15);
  return status == vekStsOk ? checkAsymmetryQ15(asymQ15) : status;
}

TriangleStateQ15 triangleState(int magn, int freqQ15, int phaseQ15, int asymQ15) {
  TriangleStateQ15 state = stateOf<TriangleStateQ15>(magn, freqQ15, phaseQ15);
  state.asym = asymQ15 * kQ15;
  return state;
}

}  // namespace

VekStatus veksTriangleInitAllocQ15_16s(VeksTriangleState_16s** ppState, Vek16s magn, int freqQ15,
                                       int phaseQ15, int asymQ15) {
  const VekStatus status = checkStateArguments(ppState, magn, freqQ15, phaseQ15, asymQ15);
  if (status != vekStsOk) return status;
  return allocateState(ppState, triangleState(magn, freqQ15, phaseQ15, asymQ15));
}

VekStatus veksTriangleInitQ15_16s(VeksTriangleState_16s* pState, Vek16s magn, int freqQ15,
                                  int phaseQ15, int asymQ15) {
  const VekStatus status = checkStateArguments(pState, magn, freqQ15, phaseQ15, asymQ15);
  if (status != vekStsOk) return status;
  return storeState(pState, triangleState(magn, freqQ15, phaseQ15, asymQ15));
}

VekStatus veksTriangleGetStateSizeQ15_16s(int* pSize) {
  return stateSize<TriangleStateQ15>(pSize);
}

VekStatus veksTriangleFree(VeksTriangleState_16s* pState) {
  return freeState<TriangleStateQ15>(pState);
}

VekStatus veksTriangleQ15_16s(Vek16s* pDst, int len, VeksTriangleState_16s* pState) {
  const auto generate = [=](const TriangleStateQ15& state, size_t first) {
    return VEKS_KERNEL(GenerateTriangle<Vek16s, Rounding::kHalfAwayFromZero>)(
        pDst, static_cast<size_t>(len), state.magnitude, state.rFreq, state.phase, state.asym,
        first);
  };
  return advanceState<TriangleStateQ15>(pDst, len, pState, generate);
}
