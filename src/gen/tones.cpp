#include "veks/gen/tones.h"

#include "core/targets.h"
#include "gen/checks.h"
#include "gen/fixed_point.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "gen/tones-inl.h"
#include <hwy/foreach_target.h>

#include "gen/tones-inl.h"

using namespace veks;

VekStatus veksTone_Direct_32f(Vek32f* pDst, int len, Vek32f magn, Vek32f rFreq, Vek32f* pPhase,
                              int /*hint*/) {
  return generateTone(VEKS_KERNEL(GenerateTone<Vek32f>), pDst, len, magn, rFreq, pPhase);
}

VekStatus veksTone_Direct_64f(Vek64f* pDst, int len, Vek64f magn, Vek64f rFreq, Vek64f* pPhase,
                              int /*hint*/) {
  return generateTone(VEKS_KERNEL(GenerateTone<Vek64f>), pDst, len, magn, rFreq, pPhase);
}

VekStatus veksTone_Direct_32fc(Vek32fc* pDst, int len, Vek32f magn, Vek32f rFreq, Vek32f* pPhase,
                               int /*hint*/) {
  return generateTone(VEKS_KERNEL(GenerateTone<Vek32fc>), pDst, len, magn, rFreq, pPhase);
}

VekStatus veksTone_Direct_64fc(Vek64fc* pDst, int len, Vek64f magn, Vek64f rFreq, Vek64f* pPhase,
                               int /*hint*/) {
  return generateTone(VEKS_KERNEL(GenerateTone<Vek64fc>), pDst, len, magn, rFreq, pPhase);
}

VekStatus veksTone_Direct_16s(Vek16s* pDst, int len, Vek16s magn, Vek32f rFreq, Vek32f* pPhase,
                              int /*hint*/) {
  return generateTone(VEKS_KERNEL(GenerateTone<Vek16s>), pDst, len, magn, rFreq, pPhase);
}

VekStatus veksTone_Direct_16sc(Vek16sc* pDst, int len, Vek16s magn, Vek32f rFreq, Vek32f* pPhase,
                               int /*hint*/) {
  return generateTone(VEKS_KERNEL(GenerateTone<Vek16sc>), pDst, len, magn, rFreq, pPhase);
}

VekStatus veksToneQ15_Direct_16s(Vek16s* pDst, int len, Vek16s magn, int freqQ15, int* pPhaseQ15) {
  if (!pPhaseQ15) return vekErrNullPtr;
  VekStatus status = checkToneQ15(magn, freqQ15, *pPhaseQ15);
  if (status == vekStsOk) status = checkVectors(len, pDst);
  if (status != vekStsOk) return status;
  const int phaseQ15 = *pPhaseQ15;
  *pPhaseQ15 = phaseAfterQ15(freqQ15, len, phaseQ15);
  return VEKS_KERNEL(GenerateTone<Vek16s, Rounding::kHalfAwayFromZero>)(
      pDst, static_cast<size_t>(len), magn, freqQ15 * kQ15, phaseQ15 * kQ15, size_t{0});
}

VekStatus veksToneInitAllocQ15_16s(VeksToneState_16s** ppState, Vek16s magn, int freqQ15,
                                   int phaseQ15) {
  if (!ppState) return vekErrNullPtr;
  const VekStatus status = checkToneQ15(magn, freqQ15, phaseQ15);
  if (status != vekStsOk) return status;
  return allocateState(ppState, stateOf<ToneStateQ15>(magn, freqQ15, phaseQ15));
}

VekStatus veksToneInitQ15_16s(VeksToneState_16s* pState, Vek16s magn, int freqQ15, int phaseQ15) {
  if (!pState) return vekErrNullPtr;
  const VekStatus status = checkToneQ15(magn, freqQ15, phaseQ15);
  if (status != vekStsOk) return status;
  return storeState(pState, stateOf<ToneStateQ15>(magn, freqQ15, phaseQ15));
}

VekStatus veksToneGetStateSizeQ15_16s(int* pSize) {
  return stateSize<ToneStateQ15>(pSize);
}

VekStatus veksToneFree(VeksToneState_16s* pState) {
  return freeState<ToneStateQ15>(pState);
}

VekStatus veksToneQ15_16s(Vek16s* pDst, int len, VeksToneState_16s* pState) {
  const auto generate = [=](const ToneStateQ15& state, size_t first) {
    return VEKS_KERNEL(GenerateTone<Vek16s, Rounding::kHalfAwayFromZero>)(
        pDst, static_cast<size_t>(len), state.magnitude, state.rFreq, state.phase, first);
  };
  return advanceState<ToneStateQ15>(pDst, len, pState, generate);
}
