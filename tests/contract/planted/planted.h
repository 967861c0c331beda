// Functions with one fault each, and some without, to see what the contract sweep reports.
#ifndef CONTRACT_PLANTED_PLANTED_H
#define CONTRACT_PLANTED_PLANTED_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

// Without faults.
VEKS_API VekStatus veksPlantedSub_16s(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst,
                                      int len);
VEKS_API VekStatus veksPlantedSub_16s_I(const Vek16s* pSrc, Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksPlantedSet_64fc(Vek64fc val, Vek64fc* pDst, int len);
VEKS_API VekStatus veksPlantedSum_8u(const Vek8u* pSrc, int len, Vek32s* pSum);
VEKS_API VekStatus veksPlantedPair_8u(const Vek8u* pSrc, int len, Vek8u* pDst);
VEKS_API VekStatus veksPlantedOptionalIndx_16s(const Vek16s* pSrc, int len, Vek16s* pMax,
                                               int* pIndx);
VEKS_API VekStatus veksPlantedNegate_32s_I(Vek32s* pSrcDst, int len);
VEKS_API VekStatus veksPlantedLengthFirst_8u(const Vek8u* pSrc, Vek8u* pDst, int len);
VEKS_API VekStatus veksPlantedTwoOrMore_8u(const Vek8u* pSrc, int len, Vek32s* pSum);
VEKS_API VekStatus veksPlantedShiftBefore_16u(const Vek16u* pSrc, int val, Vek16u* pDst, int len);
VEKS_API VekStatus veksPlantedHalf_16s(const Vek16s* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksPlantedExpandUp_8sc(const Vek8s* pSrc, Vek8sc* pDst, int len);
VEKS_API VekStatus veksPlantedExpandDown_8sc(const Vek8s* pSrc, Vek8sc* pDst, int len);
VEKS_API VekStatus veksPlantedExpandDown_8sc_I(Vek8sc* pSrcDst, int len);
VEKS_API VekStatus veksPlantedLastBits_32f(const Vek32f* pSrc, Vek32f* pDst, int len);

// With accesses outside of the vectors or to a source.
VEKS_API VekStatus veksPlantedReadPast_8u(const Vek8u* pSrc, Vek8u* pDst, int len);
VEKS_API VekStatus veksPlantedHalfRoundedUp_16s(const Vek16s* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksPlantedReadBefore_16s(const Vek16s* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksPlantedWritePast_32s(Vek32s val, Vek32s* pDst, int len);
VEKS_API VekStatus veksPlantedWriteBefore_8u_I(Vek8u* pSrcDst, int len);
VEKS_API VekStatus veksPlantedWriteFar_16u(const Vek16u* pSrc, Vek16u* pDst, int len);
VEKS_API VekStatus veksPlantedWriteSource_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len);
VEKS_API VekStatus veksPlantedTwoSums_8u(const Vek8u* pSrc, int len, Vek32s* pSum);

// With faults in the checks of arguments.
VEKS_API VekStatus veksPlantedWriteFirst_16s(const Vek16s* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksPlantedNullIgnored_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksPlantedSizeStatus_32f(const Vek32f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksPlantedSizeFirst_8u(const Vek8u* pSrc, Vek8u* pDst, int len);
VEKS_API VekStatus veksPlantedPointerFirst_8u(const Vek8u* pSrc, Vek8u* pDst, int len);
VEKS_API VekStatus veksPlantedOneOrMore_8u(const Vek8u* pSrc, int len, Vek32s* pSum);
VEKS_API VekStatus veksPlantedAnyShift_16u(const Vek16u* pSrc, int val, Vek16u* pDst, int len);
VEKS_API VekStatus veksPlantedShiftFirst_16u(const Vek16u* pSrc, int val, Vek16u* pDst, int len);
VEKS_API VekStatus veksPlantedShiftAfter_16u(const Vek16u* pSrc, int val, Vek16u* pDst, int len);
VEKS_API VekStatus veksPlantedRequiredIndx_16s(const Vek16s* pSrc, int len, Vek16s* pMax,
                                               int* pIndx);
VEKS_API VekStatus veksPlantedEarlySum_8u(const Vek8u* pSrc, int len, Vek32s* pSum);
VEKS_API VekStatus veksPlantedFails_8u(const Vek8u* pSrc, Vek8u* pDst, int len);

// With results that depend on what they must not.
VEKS_API VekStatus veksPlantedAlignment_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksPlantedNeighbour_16s(const Vek16s* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksPlantedIncomplete_8u(const Vek8u* pSrc, Vek8u* pDst, int len);
VEKS_API VekStatus veksPlantedNoSum_8u(const Vek8u* pSrc, int len, Vek32s* pSum);
VEKS_API VekStatus veksPlantedAlignedOnly_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksPlantedTarget_32f(const Vek32f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksPlantedInPlace_16s(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst,
                                          int len);
VEKS_API VekStatus veksPlantedInPlace_16s_I(const Vek16s* pSrc, Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksPlantedExpandUp_8sc_I(Vek8sc* pSrcDst, int len);
VEKS_API VekStatus veksPlantedOverwrite_32s(const Vek32s* pSrc1, const Vek32s* pSrc2, Vek32s* pDst,
                                            int len);

#ifdef __cplusplus
}
#endif

#endif
