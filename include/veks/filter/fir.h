/**
 * @file
 * Finite impulse response filters with a state: blocks of samples and single samples.
 *
 * A stream may be cut into calls in any way. The delay line is then the same, and so are the
 * results of filters with integer taps; those of the others are equal within rounding.
 *
 * Forms with `scaleFactor` multiply the result by `2^-scaleFactor`, round it to nearest with ties
 * to even and saturate it. Sums of integer taps wrap around at 32 bits and are then multiplied by
 * `2^(tapsFactor - scaleFactor)`, the exponent kept to -31 .. 31.
 */
#ifndef VEKS_FILTER_FIR_H
#define VEKS_FILTER_FIR_H

#include "veks/filter/fir_states.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name FIR
 * Filters a block: `pDst[n] = sum of taps[k] pSrc[n-k] over k`, samples before the first one from
 * the delay line. `_I` and `_ISfs`: in place.
 *
 * Blocks of more than 1600 results are shared among the threads of the OpenMP team, see
 * docs/fir.md. Accuracy: an error of at most `tapsLen u sum of |taps[k] x[n-k]|` with the unit
 * roundoff `u` of the type of the taps, and of the order of `u log2(N)` times the root mean square
 * of a block of N results where transforms are used.
 *
 * @param pSrc source, `numIters` samples
 * @param pDst destination, which may not overlap the source
 * @param pSrcDst source and destination
 * @param numIters number of samples
 * @param pState the state
 * @param scaleFactor the result is multiplied by `2^-scaleFactor`
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if numIters < 1;
 *         #vekErrContextMatch if pState is no state of this type; #vekErrMemAllocTooSmall if a
 *         transform lacks memory
 * @{
 */
VEKS_API VekStatus veksFIR_32f(const Vek32f* pSrc, Vek32f* pDst, int numIters,
                               VeksFIRState_32f* pState);
VEKS_API VekStatus veksFIR_32f_I(Vek32f* pSrcDst, int numIters, VeksFIRState_32f* pState);
VEKS_API VekStatus veksFIR_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int numIters,
                                VeksFIRState_32fc* pState);
VEKS_API VekStatus veksFIR_32fc_I(Vek32fc* pSrcDst, int numIters, VeksFIRState_32fc* pState);
VEKS_API VekStatus veksFIR_64f(const Vek64f* pSrc, Vek64f* pDst, int numIters,
                               VeksFIRState_64f* pState);
VEKS_API VekStatus veksFIR_64f_I(Vek64f* pSrcDst, int numIters, VeksFIRState_64f* pState);
VEKS_API VekStatus veksFIR_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int numIters,
                                VeksFIRState_64fc* pState);
VEKS_API VekStatus veksFIR_64fc_I(Vek64fc* pSrcDst, int numIters, VeksFIRState_64fc* pState);
VEKS_API VekStatus veksFIR64f_32f(const Vek32f* pSrc, Vek32f* pDst, int numIters,
                                  VeksFIRState_64f_32f* pState);
VEKS_API VekStatus veksFIR64f_32f_I(Vek32f* pSrcDst, int numIters, VeksFIRState_64f_32f* pState);
VEKS_API VekStatus veksFIR64fc_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int numIters,
                                    VeksFIRState_64fc_32fc* pState);
VEKS_API VekStatus veksFIR64fc_32fc_I(Vek32fc* pSrcDst, int numIters,
                                      VeksFIRState_64fc_32fc* pState);
VEKS_API VekStatus veksFIR32f_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int numIters,
                                      VeksFIRState_32f_16s* pState, int scaleFactor);
VEKS_API VekStatus veksFIR32f_16s_ISfs(Vek16s* pSrcDst, int numIters, VeksFIRState_32f_16s* pState,
                                       int scaleFactor);
VEKS_API VekStatus veksFIR32fc_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int numIters,
                                        VeksFIRState_32fc_16sc* pState, int scaleFactor);
VEKS_API VekStatus veksFIR32fc_16sc_ISfs(Vek16sc* pSrcDst, int numIters,
                                         VeksFIRState_32fc_16sc* pState, int scaleFactor);
VEKS_API VekStatus veksFIR64f_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int numIters,
                                      VeksFIRState_64f_16s* pState, int scaleFactor);
VEKS_API VekStatus veksFIR64f_16s_ISfs(Vek16s* pSrcDst, int numIters, VeksFIRState_64f_16s* pState,
                                       int scaleFactor);
VEKS_API VekStatus veksFIR64fc_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int numIters,
                                        VeksFIRState_64fc_16sc* pState, int scaleFactor);
VEKS_API VekStatus veksFIR64fc_16sc_ISfs(Vek16sc* pSrcDst, int numIters,
                                         VeksFIRState_64fc_16sc* pState, int scaleFactor);
VEKS_API VekStatus veksFIR64f_32s_Sfs(const Vek32s* pSrc, Vek32s* pDst, int numIters,
                                      VeksFIRState_64f_32s* pState, int scaleFactor);
VEKS_API VekStatus veksFIR64f_32s_ISfs(Vek32s* pSrcDst, int numIters, VeksFIRState_64f_32s* pState,
                                       int scaleFactor);
VEKS_API VekStatus veksFIR64fc_32sc_Sfs(const Vek32sc* pSrc, Vek32sc* pDst, int numIters,
                                        VeksFIRState_64fc_32sc* pState, int scaleFactor);
VEKS_API VekStatus veksFIR64fc_32sc_ISfs(Vek32sc* pSrcDst, int numIters,
                                         VeksFIRState_64fc_32sc* pState, int scaleFactor);
VEKS_API VekStatus veksFIR32s_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int numIters,
                                      VeksFIRState_32s_16s* pState, int scaleFactor);
VEKS_API VekStatus veksFIR32s_16s_ISfs(Vek16s* pSrcDst, int numIters, VeksFIRState_32s_16s* pState,
                                       int scaleFactor);
VEKS_API VekStatus veksFIR32sc_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int numIters,
                                        VeksFIRState_32sc_16sc* pState, int scaleFactor);
VEKS_API VekStatus veksFIR32sc_16sc_ISfs(Vek16sc* pSrcDst, int numIters,
                                         VeksFIRState_32sc_16sc* pState, int scaleFactor);
/** @} */

/**
 * @name FIROne
 * Filters one sample. Fewer than 12 products are summed one by one, that of the newest sample
 * first.
 *
 * @param src the sample
 * @param pDstVal where to store the result
 * @param pState the state
 * @param scaleFactor the result is multiplied by `2^-scaleFactor`
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrContextMatch if pState is no state of
 *         this type
 * @{
 */
VEKS_API VekStatus veksFIROne_32f(Vek32f src, Vek32f* pDstVal, VeksFIRState_32f* pState);
VEKS_API VekStatus veksFIROne_32fc(Vek32fc src, Vek32fc* pDstVal, VeksFIRState_32fc* pState);
VEKS_API VekStatus veksFIROne_64f(Vek64f src, Vek64f* pDstVal, VeksFIRState_64f* pState);
VEKS_API VekStatus veksFIROne_64fc(Vek64fc src, Vek64fc* pDstVal, VeksFIRState_64fc* pState);
VEKS_API VekStatus veksFIROne64f_32f(Vek32f src, Vek32f* pDstVal, VeksFIRState_64f_32f* pState);
VEKS_API VekStatus veksFIROne64fc_32fc(Vek32fc src, Vek32fc* pDstVal,
                                       VeksFIRState_64fc_32fc* pState);
VEKS_API VekStatus veksFIROne32f_16s_Sfs(Vek16s src, Vek16s* pDstVal, VeksFIRState_32f_16s* pState,
                                         int scaleFactor);
VEKS_API VekStatus veksFIROne32fc_16sc_Sfs(Vek16sc src, Vek16sc* pDstVal,
                                           VeksFIRState_32fc_16sc* pState, int scaleFactor);
VEKS_API VekStatus veksFIROne64f_16s_Sfs(Vek16s src, Vek16s* pDstVal, VeksFIRState_64f_16s* pState,
                                         int scaleFactor);
VEKS_API VekStatus veksFIROne64fc_16sc_Sfs(Vek16sc src, Vek16sc* pDstVal,
                                           VeksFIRState_64fc_16sc* pState, int scaleFactor);
VEKS_API VekStatus veksFIROne64f_32s_Sfs(Vek32s src, Vek32s* pDstVal, VeksFIRState_64f_32s* pState,
                                         int scaleFactor);
VEKS_API VekStatus veksFIROne64fc_32sc_Sfs(Vek32sc src, Vek32sc* pDstVal,
                                           VeksFIRState_64fc_32sc* pState, int scaleFactor);
VEKS_API VekStatus veksFIROne32s_16s_Sfs(Vek16s src, Vek16s* pDstVal, VeksFIRState_32s_16s* pState,
                                         int scaleFactor);
VEKS_API VekStatus veksFIROne32sc_16sc_Sfs(Vek16sc src, Vek16sc* pDstVal,
                                           VeksFIRState_32sc_16sc* pState, int scaleFactor);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
