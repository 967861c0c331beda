/**
 * @file
 * Finite impulse response filters without a state: the caller keeps taps, delay line and its index.
 *
 * The delay line has `2 tapsLen` samples: the sample at `i` is found again at `i + tapsLen`. From
 * the index on, which lies in 0 .. `tapsLen-1`, it holds the last `tapsLen` samples, the oldest one
 * first. To start, fill it with zeros and set the index to 0.
 *
 * A sample is written to `pDlyLine[i]` and `pDlyLine[i + tapsLen]` with `i` the index, which then
 * goes to the next place or from the last to the first.
 *
 * A suffix names the type of the taps if it is another one than that of the data.
 */
#ifndef VEKS_FILTER_FIR_DIRECT_H
#define VEKS_FILTER_FIR_DIRECT_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name FIR_Direct
 * Filters a block: `pDst[n] = sum of pTaps[k] pSrc[n-k] over k`, samples before the first one from
 * the delay line. `_I` and `_ISfs`: in place.
 *
 * Floating-point taps: the products are summed in double precision and rounded once to the type of
 * the data, with `scaleFactor` after a multiplication by `2^-scaleFactor`, to nearest with ties to
 * even and saturated. Integer taps: sums wrap around at 32 bits and are then multiplied by
 * `2^(tapsFactor - scaleFactor)`, the exponent kept to -31 .. 31, or `2^-(15 + scaleFactor)` for
 * taps of 16 bits (Q15); they are rounded and saturated alike.
 *
 * @param pSrc source, `numIters` samples
 * @param pDst destination, which may not overlap the source
 * @param pSrcDst source and destination
 * @param numIters number of samples
 * @param src the sample
 * @param pDstVal where to store the result
 * @param pSrcDstVal the sample, and where to store the result
 * @param pTaps the taps, the first one for the newest sample
 * @param tapsLen number of taps
 * @param tapsFactor what to multiply integer taps with, as a power of two
 * @param pDlyLine delay line, `2 tapsLen` samples
 * @param pDlyLineIndex its index
 * @param scaleFactor the result is multiplied by `2^-scaleFactor`
 * @return #vekStsOk; #vekErrNullPtr if a vector is null; #vekErrSize if numIters < 1;
 *         #vekErrNullPtr if pTaps is null; #vekErrFIRLen if tapsLen < 1; #vekErrNullPtr if pDlyLine
 * or pDlyLineIndex is null; with taps of 16 bits #vekErrDlyLineIndex if the index is outside 0 ..
 * `tapsLen-1`
 * @{
 */
VEKS_API VekStatus veksFIR_Direct_32f(const Vek32f* pSrc, Vek32f* pDst, int numIters,
                                      const Vek32f* pTaps, int tapsLen, Vek32f* pDlyLine,
                                      int* pDlyLineIndex);
VEKS_API VekStatus veksFIR_Direct_32f_I(Vek32f* pSrcDst, int numIters, const Vek32f* pTaps,
                                        int tapsLen, Vek32f* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIR_Direct_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int numIters,
                                       const Vek32fc* pTaps, int tapsLen, Vek32fc* pDlyLine,
                                       int* pDlyLineIndex);
VEKS_API VekStatus veksFIR_Direct_32fc_I(Vek32fc* pSrcDst, int numIters, const Vek32fc* pTaps,
                                         int tapsLen, Vek32fc* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIR_Direct_64f(const Vek64f* pSrc, Vek64f* pDst, int numIters,
                                      const Vek64f* pTaps, int tapsLen, Vek64f* pDlyLine,
                                      int* pDlyLineIndex);
VEKS_API VekStatus veksFIR_Direct_64f_I(Vek64f* pSrcDst, int numIters, const Vek64f* pTaps,
                                        int tapsLen, Vek64f* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIR_Direct_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int numIters,
                                       const Vek64fc* pTaps, int tapsLen, Vek64fc* pDlyLine,
                                       int* pDlyLineIndex);
VEKS_API VekStatus veksFIR_Direct_64fc_I(Vek64fc* pSrcDst, int numIters, const Vek64fc* pTaps,
                                         int tapsLen, Vek64fc* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIR64f_Direct_32f(const Vek32f* pSrc, Vek32f* pDst, int numIters,
                                         const Vek64f* pTaps, int tapsLen, Vek32f* pDlyLine,
                                         int* pDlyLineIndex);
VEKS_API VekStatus veksFIR64f_Direct_32f_I(Vek32f* pSrcDst, int numIters, const Vek64f* pTaps,
                                           int tapsLen, Vek32f* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIR64fc_Direct_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int numIters,
                                           const Vek64fc* pTaps, int tapsLen, Vek32fc* pDlyLine,
                                           int* pDlyLineIndex);
VEKS_API VekStatus veksFIR64fc_Direct_32fc_I(Vek32fc* pSrcDst, int numIters, const Vek64fc* pTaps,
                                             int tapsLen, Vek32fc* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIR32f_Direct_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int numIters,
                                             const Vek32f* pTaps, int tapsLen, Vek16s* pDlyLine,
                                             int* pDlyLineIndex, int scaleFactor);
VEKS_API VekStatus veksFIR32f_Direct_16s_ISfs(Vek16s* pSrcDst, int numIters, const Vek32f* pTaps,
                                              int tapsLen, Vek16s* pDlyLine, int* pDlyLineIndex,
                                              int scaleFactor);
VEKS_API VekStatus veksFIR32fc_Direct_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int numIters,
                                               const Vek32fc* pTaps, int tapsLen, Vek16sc* pDlyLine,
                                               int* pDlyLineIndex, int scaleFactor);
VEKS_API VekStatus veksFIR32fc_Direct_16sc_ISfs(Vek16sc* pSrcDst, int numIters,
                                                const Vek32fc* pTaps, int tapsLen,
                                                Vek16sc* pDlyLine, int* pDlyLineIndex,
                                                int scaleFactor);
VEKS_API VekStatus veksFIR64f_Direct_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int numIters,
                                             const Vek64f* pTaps, int tapsLen, Vek16s* pDlyLine,
                                             int* pDlyLineIndex, int scaleFactor);
VEKS_API VekStatus veksFIR64f_Direct_16s_ISfs(Vek16s* pSrcDst, int numIters, const Vek64f* pTaps,
                                              int tapsLen, Vek16s* pDlyLine, int* pDlyLineIndex,
                                              int scaleFactor);
VEKS_API VekStatus veksFIR64fc_Direct_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int numIters,
                                               const Vek64fc* pTaps, int tapsLen, Vek16sc* pDlyLine,
                                               int* pDlyLineIndex, int scaleFactor);
VEKS_API VekStatus veksFIR64fc_Direct_16sc_ISfs(Vek16sc* pSrcDst, int numIters,
                                                const Vek64fc* pTaps, int tapsLen,
                                                Vek16sc* pDlyLine, int* pDlyLineIndex,
                                                int scaleFactor);
VEKS_API VekStatus veksFIR64f_Direct_32s_Sfs(const Vek32s* pSrc, Vek32s* pDst, int numIters,
                                             const Vek64f* pTaps, int tapsLen, Vek32s* pDlyLine,
                                             int* pDlyLineIndex, int scaleFactor);
VEKS_API VekStatus veksFIR64f_Direct_32s_ISfs(Vek32s* pSrcDst, int numIters, const Vek64f* pTaps,
                                              int tapsLen, Vek32s* pDlyLine, int* pDlyLineIndex,
                                              int scaleFactor);
VEKS_API VekStatus veksFIR64fc_Direct_32sc_Sfs(const Vek32sc* pSrc, Vek32sc* pDst, int numIters,
                                               const Vek64fc* pTaps, int tapsLen, Vek32sc* pDlyLine,
                                               int* pDlyLineIndex, int scaleFactor);
VEKS_API VekStatus veksFIR64fc_Direct_32sc_ISfs(Vek32sc* pSrcDst, int numIters,
                                                const Vek64fc* pTaps, int tapsLen,
                                                Vek32sc* pDlyLine, int* pDlyLineIndex,
                                                int scaleFactor);
VEKS_API VekStatus veksFIR32s_Direct_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int numIters,
                                             const Vek32s* pTaps, int tapsLen, int tapsFactor,
                                             Vek16s* pDlyLine, int* pDlyLineIndex, int scaleFactor);
VEKS_API VekStatus veksFIR32s_Direct_16s_ISfs(Vek16s* pSrcDst, int numIters, const Vek32s* pTaps,
                                              int tapsLen, int tapsFactor, Vek16s* pDlyLine,
                                              int* pDlyLineIndex, int scaleFactor);
VEKS_API VekStatus veksFIR32sc_Direct_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int numIters,
                                               const Vek32sc* pTaps, int tapsLen, int tapsFactor,
                                               Vek16sc* pDlyLine, int* pDlyLineIndex,
                                               int scaleFactor);
VEKS_API VekStatus veksFIR32sc_Direct_16sc_ISfs(Vek16sc* pSrcDst, int numIters,
                                                const Vek32sc* pTaps, int tapsLen, int tapsFactor,
                                                Vek16sc* pDlyLine, int* pDlyLineIndex,
                                                int scaleFactor);
VEKS_API VekStatus veksFIR_Direct_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int numIters,
                                          const Vek16s* pTaps, int tapsLen, Vek16s* pDlyLine,
                                          int* pDlyLineIndex, int scaleFactor);
VEKS_API VekStatus veksFIR_Direct_16s_ISfs(Vek16s* pSrcDst, int numIters, const Vek16s* pTaps,
                                           int tapsLen, Vek16s* pDlyLine, int* pDlyLineIndex,
                                           int scaleFactor);
/** @} */

/**
 * @name FIROne_Direct
 * Filters one sample. `_I` and `_ISfs`: in place.
 *
 * Floating-point taps: the products are summed in double precision and rounded once to the type of
 * the data, with `scaleFactor` after a multiplication by `2^-scaleFactor`, to nearest with ties to
 * even and saturated. Integer taps: sums wrap around at 32 bits and are then multiplied by
 * `2^(tapsFactor - scaleFactor)`, the exponent kept to -31 .. 31, or `2^-(15 + scaleFactor)` for
 * taps of 16 bits (Q15); they are rounded and saturated alike.
 *
 * @param pSrc source, `numIters` samples
 * @param pDst destination, which may not overlap the source
 * @param pSrcDst source and destination
 * @param numIters number of samples
 * @param src the sample
 * @param pDstVal where to store the result
 * @param pSrcDstVal the sample, and where to store the result
 * @param pTaps the taps, the first one for the newest sample
 * @param tapsLen number of taps
 * @param tapsFactor what to multiply integer taps with, as a power of two
 * @param pDlyLine delay line, `2 tapsLen` samples
 * @param pDlyLineIndex its index
 * @param scaleFactor the result is multiplied by `2^-scaleFactor`
 * @return #vekStsOk; #vekErrNullPtr if the sample or the result is null; #vekErrNullPtr if pTaps is
 *         null; #vekErrFIRLen if tapsLen < 1; #vekErrNullPtr if pDlyLine or pDlyLineIndex is null,
 *         with taps of 16 bits before #vekErrFIRLen; with these, #vekErrDlyLineIndex if the index
 * is outside 0 .. `tapsLen-1`
 * @{
 */
VEKS_API VekStatus veksFIROne_Direct_32f(Vek32f src, Vek32f* pDstVal, const Vek32f* pTaps,
                                         int tapsLen, Vek32f* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIROne_Direct_32f_I(Vek32f* pSrcDstVal, const Vek32f* pTaps, int tapsLen,
                                           Vek32f* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIROne_Direct_32fc(Vek32fc src, Vek32fc* pDstVal, const Vek32fc* pTaps,
                                          int tapsLen, Vek32fc* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIROne_Direct_32fc_I(Vek32fc* pSrcDstVal, const Vek32fc* pTaps, int tapsLen,
                                            Vek32fc* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIROne_Direct_64f(Vek64f src, Vek64f* pDstVal, const Vek64f* pTaps,
                                         int tapsLen, Vek64f* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIROne_Direct_64f_I(Vek64f* pSrcDstVal, const Vek64f* pTaps, int tapsLen,
                                           Vek64f* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIROne_Direct_64fc(Vek64fc src, Vek64fc* pDstVal, const Vek64fc* pTaps,
                                          int tapsLen, Vek64fc* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIROne_Direct_64fc_I(Vek64fc* pSrcDstVal, const Vek64fc* pTaps, int tapsLen,
                                            Vek64fc* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIROne64f_Direct_32f(Vek32f src, Vek32f* pDstVal, const Vek64f* pTaps,
                                            int tapsLen, Vek32f* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIROne64f_Direct_32f_I(Vek32f* pSrcDstVal, const Vek64f* pTaps, int tapsLen,
                                              Vek32f* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIROne64fc_Direct_32fc(Vek32fc src, Vek32fc* pDstVal, const Vek64fc* pTaps,
                                              int tapsLen, Vek32fc* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIROne64fc_Direct_32fc_I(Vek32fc* pSrcDstVal, const Vek64fc* pTaps,
                                                int tapsLen, Vek32fc* pDlyLine, int* pDlyLineIndex);
VEKS_API VekStatus veksFIROne32f_Direct_16s_Sfs(Vek16s src, Vek16s* pDstVal, const Vek32f* pTaps,
                                                int tapsLen, Vek16s* pDlyLine, int* pDlyLineIndex,
                                                int scaleFactor);
VEKS_API VekStatus veksFIROne32f_Direct_16s_ISfs(Vek16s* pSrcDstVal, const Vek32f* pTaps,
                                                 int tapsLen, Vek16s* pDlyLine, int* pDlyLineIndex,
                                                 int scaleFactor);
VEKS_API VekStatus veksFIROne32fc_Direct_16sc_Sfs(Vek16sc src, Vek16sc* pDstVal,
                                                  const Vek32fc* pTaps, int tapsLen,
                                                  Vek16sc* pDlyLine, int* pDlyLineIndex,
                                                  int scaleFactor);
VEKS_API VekStatus veksFIROne32fc_Direct_16sc_ISfs(Vek16sc* pSrcDstVal, const Vek32fc* pTaps,
                                                   int tapsLen, Vek16sc* pDlyLine,
                                                   int* pDlyLineIndex, int scaleFactor);
VEKS_API VekStatus veksFIROne64f_Direct_16s_Sfs(Vek16s src, Vek16s* pDstVal, const Vek64f* pTaps,
                                                int tapsLen, Vek16s* pDlyLine, int* pDlyLineIndex,
                                                int scaleFactor);
VEKS_API VekStatus veksFIROne64f_Direct_16s_ISfs(Vek16s* pSrcDstVal, const Vek64f* pTaps,
                                                 int tapsLen, Vek16s* pDlyLine, int* pDlyLineIndex,
                                                 int scaleFactor);
VEKS_API VekStatus veksFIROne64fc_Direct_16sc_Sfs(Vek16sc src, Vek16sc* pDstVal,
                                                  const Vek64fc* pTaps, int tapsLen,
                                                  Vek16sc* pDlyLine, int* pDlyLineIndex,
                                                  int scaleFactor);
VEKS_API VekStatus veksFIROne64fc_Direct_16sc_ISfs(Vek16sc* pSrcDstVal, const Vek64fc* pTaps,
                                                   int tapsLen, Vek16sc* pDlyLine,
                                                   int* pDlyLineIndex, int scaleFactor);
VEKS_API VekStatus veksFIROne64f_Direct_32s_Sfs(Vek32s src, Vek32s* pDstVal, const Vek64f* pTaps,
                                                int tapsLen, Vek32s* pDlyLine, int* pDlyLineIndex,
                                                int scaleFactor);
VEKS_API VekStatus veksFIROne64f_Direct_32s_ISfs(Vek32s* pSrcDstVal, const Vek64f* pTaps,
                                                 int tapsLen, Vek32s* pDlyLine, int* pDlyLineIndex,
                                                 int scaleFactor);
VEKS_API VekStatus veksFIROne64fc_Direct_32sc_Sfs(Vek32sc src, Vek32sc* pDstVal,
                                                  const Vek64fc* pTaps, int tapsLen,
                                                  Vek32sc* pDlyLine, int* pDlyLineIndex,
                                                  int scaleFactor);
VEKS_API VekStatus veksFIROne64fc_Direct_32sc_ISfs(Vek32sc* pSrcDstVal, const Vek64fc* pTaps,
                                                   int tapsLen, Vek32sc* pDlyLine,
                                                   int* pDlyLineIndex, int scaleFactor);
VEKS_API VekStatus veksFIROne32s_Direct_16s_Sfs(Vek16s src, Vek16s* pDstVal, const Vek32s* pTaps,
                                                int tapsLen, int tapsFactor, Vek16s* pDlyLine,
                                                int* pDlyLineIndex, int scaleFactor);
VEKS_API VekStatus veksFIROne32s_Direct_16s_ISfs(Vek16s* pSrcDstVal, const Vek32s* pTaps,
                                                 int tapsLen, int tapsFactor, Vek16s* pDlyLine,
                                                 int* pDlyLineIndex, int scaleFactor);
VEKS_API VekStatus veksFIROne32sc_Direct_16sc_Sfs(Vek16sc src, Vek16sc* pDstVal,
                                                  const Vek32sc* pTaps, int tapsLen, int tapsFactor,
                                                  Vek16sc* pDlyLine, int* pDlyLineIndex,
                                                  int scaleFactor);
VEKS_API VekStatus veksFIROne32sc_Direct_16sc_ISfs(Vek16sc* pSrcDstVal, const Vek32sc* pTaps,
                                                   int tapsLen, int tapsFactor, Vek16sc* pDlyLine,
                                                   int* pDlyLineIndex, int scaleFactor);
VEKS_API VekStatus veksFIROne_Direct_16s_Sfs(Vek16s src, Vek16s* pDstVal, const Vek16s* pTaps,
                                             int tapsLen, Vek16s* pDlyLine, int* pDlyLineIndex,
                                             int scaleFactor);
VEKS_API VekStatus veksFIROne_Direct_16s_ISfs(Vek16s* pSrcDstVal, const Vek16s* pTaps, int tapsLen,
                                              Vek16s* pDlyLine, int* pDlyLineIndex,
                                              int scaleFactor);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
