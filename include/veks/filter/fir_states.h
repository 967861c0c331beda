/**
 * @file
 * States of finite impulse response filters: making and releasing them, their taps and delay lines.
 *
 * The filter is `y[n] = sum of taps[k] x[n-k] over k = 0 .. tapsLen-1`. A state holds the taps and
 * the delay line, the last `tapsLen` samples of the input: in the caller's arrays the newest one,
 * `x[-1]`, comes first. The oldest one has no influence on the next result, but is kept.
 *
 * A suffix names the type of the taps, then that of the data if it is another one. Taps and delay
 * lines of filters with taps of floating point are kept in the type of the taps, and so are sums
 * of products. Filters with integer taps have a factor: a tap is worth the integer times
 * `2^tapsFactor`.
 *
 * See A. V. Oppenheim, R. W. Schafer: Discrete-Time Signal Processing, chapter 6, for structures
 * of such filters, and docs/fir.md for latency, threads and the choice among the paths.
 */
#ifndef VEKS_FILTER_FIR_STATES_H
#define VEKS_FILTER_FIR_STATES_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name States
 * What a filter keeps from call to call. A state serves one stream, in one call at a time.
 * @{
 */
typedef struct VeksFIRState_32f VeksFIRState_32f;
typedef struct VeksFIRState_32fc VeksFIRState_32fc;
typedef struct VeksFIRState_64f VeksFIRState_64f;
typedef struct VeksFIRState_64fc VeksFIRState_64fc;
typedef struct VeksFIRState_64f_32f VeksFIRState_64f_32f;
typedef struct VeksFIRState_64fc_32fc VeksFIRState_64fc_32fc;
typedef struct VeksFIRState_32f_16s VeksFIRState_32f_16s;
typedef struct VeksFIRState_32fc_16sc VeksFIRState_32fc_16sc;
typedef struct VeksFIRState_64f_16s VeksFIRState_64f_16s;
typedef struct VeksFIRState_64fc_16sc VeksFIRState_64fc_16sc;
typedef struct VeksFIRState_64f_32s VeksFIRState_64f_32s;
typedef struct VeksFIRState_64fc_32sc VeksFIRState_64fc_32sc;
typedef struct VeksFIRState_32s_16s VeksFIRState_32s_16s;
typedef struct VeksFIRState_32sc_16sc VeksFIRState_32sc_16sc;
/** @} */

/**
 * @name FIRGetStateSize
 * The bytes that a state made by FIRInit takes in the caller's buffer at any address. `_32f` and
 * `_32fc` give, with `a(x)` for `x` rounded up to a multiple of 16 and `T` for the largest number
 * of threads of the OpenMP runtime,
 *
 *     a(12 tapsLen + 16) + 5 a(4 tapsLen) + 112 + 16 T + 16384
 *     a(24 tapsLen + 32) + 13 a(8 tapsLen) + 208 + 16 T + 32768
 *
 * The sizes of the other types depend on `tapsLen` only.
 *
 * @param tapsLen number of taps
 * @param pStateSize where to store the size
 * @return #vekStsOk; #vekErrNullPtr if pStateSize is null; #vekErrFIRLen if tapsLen < 1;
 *         #vekErrSize if an `int` cannot tell the size
 * @{
 */
VEKS_API VekStatus veksFIRGetStateSize_32f(int tapsLen, int* pStateSize);
VEKS_API VekStatus veksFIRGetStateSize_32fc(int tapsLen, int* pStateSize);
VEKS_API VekStatus veksFIRGetStateSize_64f(int tapsLen, int* pStateSize);
VEKS_API VekStatus veksFIRGetStateSize_64fc(int tapsLen, int* pStateSize);
VEKS_API VekStatus veksFIRGetStateSize64f_32f(int tapsLen, int* pStateSize);
VEKS_API VekStatus veksFIRGetStateSize64fc_32fc(int tapsLen, int* pStateSize);
VEKS_API VekStatus veksFIRGetStateSize32f_16s(int tapsLen, int* pStateSize);
VEKS_API VekStatus veksFIRGetStateSize32fc_16sc(int tapsLen, int* pStateSize);
VEKS_API VekStatus veksFIRGetStateSize64f_16s(int tapsLen, int* pStateSize);
VEKS_API VekStatus veksFIRGetStateSize64fc_16sc(int tapsLen, int* pStateSize);
VEKS_API VekStatus veksFIRGetStateSize64f_32s(int tapsLen, int* pStateSize);
VEKS_API VekStatus veksFIRGetStateSize64fc_32sc(int tapsLen, int* pStateSize);
VEKS_API VekStatus veksFIRGetStateSize32s_16s(int tapsLen, int* pStateSize);
VEKS_API VekStatus veksFIRGetStateSize32sc_16sc(int tapsLen, int* pStateSize);
VEKS_API VekStatus veksFIRGetStateSize32s_16s32f(int tapsLen, int* pStateSize);
VEKS_API VekStatus veksFIRGetStateSize32sc_16sc32fc(int tapsLen, int* pStateSize);
/** @} */

/**
 * @name FIRInit
 * Makes a state in the caller's buffer. Such a filter always sums the products directly. The forms
 * with `32f` or `32fc` behind the type of the data convert the taps to integers and choose the
 * factor, see FIRSetTaps.
 *
 * @param ppState where to store the state, which is the buffer from the next multiple of 16 on
 * @param pTaps the taps, the first one for the newest sample
 * @param tapsLen number of taps
 * @param tapsFactor what to multiply integer taps with, as a power of two
 * @param pDlyLine the delay line, `tapsLen` samples, the newest one first; null for zeros
 * @param pBuffer memory of the size that FIRGetStateSize tells, at any address
 * @return #vekStsOk; #vekErrNullPtr if ppState, pTaps or pBuffer is null; #vekErrFIRLen if
 *         tapsLen < 1
 * @{
 */
VEKS_API VekStatus veksFIRInit_32f(VeksFIRState_32f** ppState, const Vek32f* pTaps, int tapsLen,
                                   const Vek32f* pDlyLine, Vek8u* pBuffer);
VEKS_API VekStatus veksFIRInit_32fc(VeksFIRState_32fc** ppState, const Vek32fc* pTaps, int tapsLen,
                                    const Vek32fc* pDlyLine, Vek8u* pBuffer);
VEKS_API VekStatus veksFIRInit_64f(VeksFIRState_64f** ppState, const Vek64f* pTaps, int tapsLen,
                                   const Vek64f* pDlyLine, Vek8u* pBuffer);
VEKS_API VekStatus veksFIRInit_64fc(VeksFIRState_64fc** ppState, const Vek64fc* pTaps, int tapsLen,
                                    const Vek64fc* pDlyLine, Vek8u* pBuffer);
VEKS_API VekStatus veksFIRInit64f_32f(VeksFIRState_64f_32f** ppState, const Vek64f* pTaps,
                                      int tapsLen, const Vek32f* pDlyLine, Vek8u* pBuffer);
VEKS_API VekStatus veksFIRInit64fc_32fc(VeksFIRState_64fc_32fc** ppState, const Vek64fc* pTaps,
                                        int tapsLen, const Vek32fc* pDlyLine, Vek8u* pBuffer);
VEKS_API VekStatus veksFIRInit32f_16s(VeksFIRState_32f_16s** ppState, const Vek32f* pTaps,
                                      int tapsLen, const Vek16s* pDlyLine, Vek8u* pBuffer);
VEKS_API VekStatus veksFIRInit32fc_16sc(VeksFIRState_32fc_16sc** ppState, const Vek32fc* pTaps,
                                        int tapsLen, const Vek16sc* pDlyLine, Vek8u* pBuffer);
VEKS_API VekStatus veksFIRInit64f_16s(VeksFIRState_64f_16s** ppState, const Vek64f* pTaps,
                                      int tapsLen, const Vek16s* pDlyLine, Vek8u* pBuffer);
VEKS_API VekStatus veksFIRInit64fc_16sc(VeksFIRState_64fc_16sc** ppState, const Vek64fc* pTaps,
                                        int tapsLen, const Vek16sc* pDlyLine, Vek8u* pBuffer);
VEKS_API VekStatus veksFIRInit64f_32s(VeksFIRState_64f_32s** ppState, const Vek64f* pTaps,
                                      int tapsLen, const Vek32s* pDlyLine, Vek8u* pBuffer);
VEKS_API VekStatus veksFIRInit64fc_32sc(VeksFIRState_64fc_32sc** ppState, const Vek64fc* pTaps,
                                        int tapsLen, const Vek32sc* pDlyLine, Vek8u* pBuffer);
VEKS_API VekStatus veksFIRInit32s_16s(VeksFIRState_32s_16s** ppState, const Vek32s* pTaps,
                                      int tapsLen, int tapsFactor, const Vek16s* pDlyLine,
                                      Vek8u* pBuffer);
VEKS_API VekStatus veksFIRInit32sc_16sc(VeksFIRState_32sc_16sc** ppState, const Vek32sc* pTaps,
                                        int tapsLen, int tapsFactor, const Vek16sc* pDlyLine,
                                        Vek8u* pBuffer);
VEKS_API VekStatus veksFIRInit32s_16s32f(VeksFIRState_32s_16s** ppState, const Vek32f* pTaps,
                                         int tapsLen, const Vek16s* pDlyLine, Vek8u* pBuffer);
VEKS_API VekStatus veksFIRInit32sc_16sc32fc(VeksFIRState_32sc_16sc** ppState, const Vek32fc* pTaps,
                                            int tapsLen, const Vek16sc* pDlyLine, Vek8u* pBuffer);
/** @} */

/**
 * @name FIRInitAlloc
 * Makes a state in memory of its own. With as many taps as the table says, blocks longer than the
 * transform are filtered by overlap-save (T. G. Stockham: High-speed convolution and correlation,
 * 1966) with transforms of `2^(k+1)` points, `2^k` the smallest power of two above `tapsLen`.
 *
 * | taps | from |
 * |------|------|
 * | 32f | 64 |
 * | 64f | 32 |
 * | 32fc, 64fc | 16 |
 * | 32s, 32sc | never |
 *
 * @param ppState where to store the state
 * @param pTaps the taps, the first one for the newest sample
 * @param tapsLen number of taps
 * @param tapsFactor what to multiply integer taps with, as a power of two
 * @param pDlyLine the delay line, `tapsLen` samples, the newest one first; null for zeros
 * @return #vekStsOk; #vekErrNullPtr if ppState or pTaps is null; #vekErrFIRLen if tapsLen < 1;
 *         #vekErrMemAllocTooSmall if memory is short; #vekErrFFTOrder if `tapsLen` is at least 2^29
 *         and calls for a transform
 * @{
 */
VEKS_API VekStatus veksFIRInitAlloc_32f(VeksFIRState_32f** ppState, const Vek32f* pTaps,
                                        int tapsLen, const Vek32f* pDlyLine);
VEKS_API VekStatus veksFIRInitAlloc_32fc(VeksFIRState_32fc** ppState, const Vek32fc* pTaps,
                                         int tapsLen, const Vek32fc* pDlyLine);
VEKS_API VekStatus veksFIRInitAlloc_64f(VeksFIRState_64f** ppState, const Vek64f* pTaps,
                                        int tapsLen, const Vek64f* pDlyLine);
VEKS_API VekStatus veksFIRInitAlloc_64fc(VeksFIRState_64fc** ppState, const Vek64fc* pTaps,
                                         int tapsLen, const Vek64fc* pDlyLine);
VEKS_API VekStatus veksFIRInitAlloc64f_32f(VeksFIRState_64f_32f** ppState, const Vek64f* pTaps,
                                           int tapsLen, const Vek32f* pDlyLine);
VEKS_API VekStatus veksFIRInitAlloc64fc_32fc(VeksFIRState_64fc_32fc** ppState, const Vek64fc* pTaps,
                                             int tapsLen, const Vek32fc* pDlyLine);
VEKS_API VekStatus veksFIRInitAlloc32f_16s(VeksFIRState_32f_16s** ppState, const Vek32f* pTaps,
                                           int tapsLen, const Vek16s* pDlyLine);
VEKS_API VekStatus veksFIRInitAlloc32fc_16sc(VeksFIRState_32fc_16sc** ppState, const Vek32fc* pTaps,
                                             int tapsLen, const Vek16sc* pDlyLine);
VEKS_API VekStatus veksFIRInitAlloc64f_16s(VeksFIRState_64f_16s** ppState, const Vek64f* pTaps,
                                           int tapsLen, const Vek16s* pDlyLine);
VEKS_API VekStatus veksFIRInitAlloc64fc_16sc(VeksFIRState_64fc_16sc** ppState, const Vek64fc* pTaps,
                                             int tapsLen, const Vek16sc* pDlyLine);
VEKS_API VekStatus veksFIRInitAlloc64f_32s(VeksFIRState_64f_32s** ppState, const Vek64f* pTaps,
                                           int tapsLen, const Vek32s* pDlyLine);
VEKS_API VekStatus veksFIRInitAlloc64fc_32sc(VeksFIRState_64fc_32sc** ppState, const Vek64fc* pTaps,
                                             int tapsLen, const Vek32sc* pDlyLine);
VEKS_API VekStatus veksFIRInitAlloc32s_16s(VeksFIRState_32s_16s** ppState, const Vek32s* pTaps,
                                           int tapsLen, int tapsFactor, const Vek16s* pDlyLine);
VEKS_API VekStatus veksFIRInitAlloc32sc_16sc(VeksFIRState_32sc_16sc** ppState, const Vek32sc* pTaps,
                                             int tapsLen, int tapsFactor, const Vek16sc* pDlyLine);
VEKS_API VekStatus veksFIRInitAlloc32s_16s32f(VeksFIRState_32s_16s** ppState, const Vek32f* pTaps,
                                              int tapsLen, const Vek16s* pDlyLine);
VEKS_API VekStatus veksFIRInitAlloc32sc_16sc32fc(VeksFIRState_32sc_16sc** ppState,
                                                 const Vek32fc* pTaps, int tapsLen,
                                                 const Vek16sc* pDlyLine);
/** @} */

/**
 * @name FIRFree
 * Releases a state made by FIRInitAlloc, whose identifier is cleared first. A state in the caller's
 * buffer is left as it is.
 *
 * @param pState the state
 * @return #vekStsOk; #vekErrNullPtr if pState is null; #vekErrContextMatch if it is no state of this
 *         type
 * @{
 */
VEKS_API VekStatus veksFIRFree_32f(VeksFIRState_32f* pState);
VEKS_API VekStatus veksFIRFree_32fc(VeksFIRState_32fc* pState);
VEKS_API VekStatus veksFIRFree_64f(VeksFIRState_64f* pState);
VEKS_API VekStatus veksFIRFree_64fc(VeksFIRState_64fc* pState);
VEKS_API VekStatus veksFIRFree64f_32f(VeksFIRState_64f_32f* pState);
VEKS_API VekStatus veksFIRFree64fc_32fc(VeksFIRState_64fc_32fc* pState);
VEKS_API VekStatus veksFIRFree32f_16s(VeksFIRState_32f_16s* pState);
VEKS_API VekStatus veksFIRFree32fc_16sc(VeksFIRState_32fc_16sc* pState);
VEKS_API VekStatus veksFIRFree64f_16s(VeksFIRState_64f_16s* pState);
VEKS_API VekStatus veksFIRFree64fc_16sc(VeksFIRState_64fc_16sc* pState);
VEKS_API VekStatus veksFIRFree64f_32s(VeksFIRState_64f_32s* pState);
VEKS_API VekStatus veksFIRFree64fc_32sc(VeksFIRState_64fc_32sc* pState);
VEKS_API VekStatus veksFIRFree32s_16s(VeksFIRState_32s_16s* pState);
VEKS_API VekStatus veksFIRFree32sc_16sc(VeksFIRState_32sc_16sc* pState);
/** @} */

/**
 * @name FIRGetTaps
 * The taps in the order of the caller. Integer taps come with their factor or, with `32f` or `32fc`
 * behind the type of the data, as floating-point numbers, the integers times `2^tapsFactor`.
 *
 * @param pState the state
 * @param pTaps where to store the taps
 * @param pTapsFactor where to store the factor
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrContextMatch if pState is no state of
 *         this type
 * @{
 */
VEKS_API VekStatus veksFIRGetTaps_32f(const VeksFIRState_32f* pState, Vek32f* pTaps);
VEKS_API VekStatus veksFIRGetTaps_32fc(const VeksFIRState_32fc* pState, Vek32fc* pTaps);
VEKS_API VekStatus veksFIRGetTaps_64f(const VeksFIRState_64f* pState, Vek64f* pTaps);
VEKS_API VekStatus veksFIRGetTaps_64fc(const VeksFIRState_64fc* pState, Vek64fc* pTaps);
VEKS_API VekStatus veksFIRGetTaps64f_32f(const VeksFIRState_64f_32f* pState, Vek64f* pTaps);
VEKS_API VekStatus veksFIRGetTaps64fc_32fc(const VeksFIRState_64fc_32fc* pState, Vek64fc* pTaps);
VEKS_API VekStatus veksFIRGetTaps32f_16s(const VeksFIRState_32f_16s* pState, Vek32f* pTaps);
VEKS_API VekStatus veksFIRGetTaps32fc_16sc(const VeksFIRState_32fc_16sc* pState, Vek32fc* pTaps);
VEKS_API VekStatus veksFIRGetTaps64f_16s(const VeksFIRState_64f_16s* pState, Vek64f* pTaps);
VEKS_API VekStatus veksFIRGetTaps64fc_16sc(const VeksFIRState_64fc_16sc* pState, Vek64fc* pTaps);
VEKS_API VekStatus veksFIRGetTaps64f_32s(const VeksFIRState_64f_32s* pState, Vek64f* pTaps);
VEKS_API VekStatus veksFIRGetTaps64fc_32sc(const VeksFIRState_64fc_32sc* pState, Vek64fc* pTaps);
VEKS_API VekStatus veksFIRGetTaps32s_16s(const VeksFIRState_32s_16s* pState, Vek32s* pTaps,
                                         int* pTapsFactor);
VEKS_API VekStatus veksFIRGetTaps32sc_16sc(const VeksFIRState_32sc_16sc* pState, Vek32sc* pTaps,
                                           int* pTapsFactor);
VEKS_API VekStatus veksFIRGetTaps32s_16s32f(const VeksFIRState_32s_16s* pState, Vek32f* pTaps);
VEKS_API VekStatus veksFIRGetTaps32sc_16sc32fc(const VeksFIRState_32sc_16sc* pState,
                                               Vek32fc* pTaps);
/** @} */

/**
 * @name FIRSetTaps
 * Other taps, as many as before. The delay line stays as it is.
 *
 * Floating-point taps become integer ones with `32f` or `32fc` behind the type of the data: they
 * are multiplied by the power of two that brings the largest magnitude (of both parts) to 16383.5
 * .. 32767, and rounded to nearest, halves away from zero. Taps that are all zero have the factor
 * 0.
 *
 * @param pTaps the taps, the first one for the newest sample
 * @param pState the state
 * @param tapsFactor what to multiply integer taps with, as a power of two
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrContextMatch if pState is no state of
 *         this type; #vekErrMemAllocTooSmall if the transform of the taps lacks memory, after which
 *         the filter sums the products directly
 * @{
 */
VEKS_API VekStatus veksFIRSetTaps_32f(const Vek32f* pTaps, VeksFIRState_32f* pState);
VEKS_API VekStatus veksFIRSetTaps_32fc(const Vek32fc* pTaps, VeksFIRState_32fc* pState);
VEKS_API VekStatus veksFIRSetTaps_64f(const Vek64f* pTaps, VeksFIRState_64f* pState);
VEKS_API VekStatus veksFIRSetTaps_64fc(const Vek64fc* pTaps, VeksFIRState_64fc* pState);
VEKS_API VekStatus veksFIRSetTaps64f_32f(const Vek64f* pTaps, VeksFIRState_64f_32f* pState);
VEKS_API VekStatus veksFIRSetTaps64fc_32fc(const Vek64fc* pTaps, VeksFIRState_64fc_32fc* pState);
VEKS_API VekStatus veksFIRSetTaps32f_16s(const Vek32f* pTaps, VeksFIRState_32f_16s* pState);
VEKS_API VekStatus veksFIRSetTaps32fc_16sc(const Vek32fc* pTaps, VeksFIRState_32fc_16sc* pState);
VEKS_API VekStatus veksFIRSetTaps64f_16s(const Vek64f* pTaps, VeksFIRState_64f_16s* pState);
VEKS_API VekStatus veksFIRSetTaps64fc_16sc(const Vek64fc* pTaps, VeksFIRState_64fc_16sc* pState);
VEKS_API VekStatus veksFIRSetTaps64f_32s(const Vek64f* pTaps, VeksFIRState_64f_32s* pState);
VEKS_API VekStatus veksFIRSetTaps64fc_32sc(const Vek64fc* pTaps, VeksFIRState_64fc_32sc* pState);
VEKS_API VekStatus veksFIRSetTaps32s_16s(const Vek32s* pTaps, VeksFIRState_32s_16s* pState,
                                         int tapsFactor);
VEKS_API VekStatus veksFIRSetTaps32sc_16sc(const Vek32sc* pTaps, VeksFIRState_32sc_16sc* pState,
                                           int tapsFactor);
VEKS_API VekStatus veksFIRSetTaps32s_16s32f(const Vek32f* pTaps, VeksFIRState_32s_16s* pState);
VEKS_API VekStatus veksFIRSetTaps32sc_16sc32fc(const Vek32fc* pTaps,
                                               VeksFIRState_32sc_16sc* pState);
/** @} */

/**
 * @name FIRGetDlyLine
 * The delay line, the newest sample first. Samples that were kept in another type are rounded to
 * nearest and saturated.
 *
 * @param pState the state
 * @param pDlyLine where to store `tapsLen` samples
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrContextMatch if pState is no state of
 *         this type
 * @{
 */
VEKS_API VekStatus veksFIRGetDlyLine_32f(const VeksFIRState_32f* pState, Vek32f* pDlyLine);
VEKS_API VekStatus veksFIRGetDlyLine_32fc(const VeksFIRState_32fc* pState, Vek32fc* pDlyLine);
VEKS_API VekStatus veksFIRGetDlyLine_64f(const VeksFIRState_64f* pState, Vek64f* pDlyLine);
VEKS_API VekStatus veksFIRGetDlyLine_64fc(const VeksFIRState_64fc* pState, Vek64fc* pDlyLine);
VEKS_API VekStatus veksFIRGetDlyLine64f_32f(const VeksFIRState_64f_32f* pState, Vek32f* pDlyLine);
VEKS_API VekStatus veksFIRGetDlyLine64fc_32fc(const VeksFIRState_64fc_32fc* pState,
                                              Vek32fc* pDlyLine);
VEKS_API VekStatus veksFIRGetDlyLine32f_16s(const VeksFIRState_32f_16s* pState, Vek16s* pDlyLine);
VEKS_API VekStatus veksFIRGetDlyLine32fc_16sc(const VeksFIRState_32fc_16sc* pState,
                                              Vek16sc* pDlyLine);
VEKS_API VekStatus veksFIRGetDlyLine64f_16s(const VeksFIRState_64f_16s* pState, Vek16s* pDlyLine);
VEKS_API VekStatus veksFIRGetDlyLine64fc_16sc(const VeksFIRState_64fc_16sc* pState,
                                              Vek16sc* pDlyLine);
VEKS_API VekStatus veksFIRGetDlyLine64f_32s(const VeksFIRState_64f_32s* pState, Vek32s* pDlyLine);
VEKS_API VekStatus veksFIRGetDlyLine64fc_32sc(const VeksFIRState_64fc_32sc* pState,
                                              Vek32sc* pDlyLine);
VEKS_API VekStatus veksFIRGetDlyLine32s_16s(const VeksFIRState_32s_16s* pState, Vek16s* pDlyLine);
VEKS_API VekStatus veksFIRGetDlyLine32sc_16sc(const VeksFIRState_32sc_16sc* pState,
                                              Vek16sc* pDlyLine);
/** @} */

/**
 * @name FIRSetDlyLine
 * Another delay line.
 *
 * @param pState the state
 * @param pDlyLine `tapsLen` samples, the newest one first; null for zeros
 * @return #vekStsOk; #vekErrNullPtr if pState is null; #vekErrContextMatch if it is no state of this
 *         type
 * @{
 */
VEKS_API VekStatus veksFIRSetDlyLine_32f(VeksFIRState_32f* pState, const Vek32f* pDlyLine);
VEKS_API VekStatus veksFIRSetDlyLine_32fc(VeksFIRState_32fc* pState, const Vek32fc* pDlyLine);
VEKS_API VekStatus veksFIRSetDlyLine_64f(VeksFIRState_64f* pState, const Vek64f* pDlyLine);
VEKS_API VekStatus veksFIRSetDlyLine_64fc(VeksFIRState_64fc* pState, const Vek64fc* pDlyLine);
VEKS_API VekStatus veksFIRSetDlyLine64f_32f(VeksFIRState_64f_32f* pState, const Vek32f* pDlyLine);
VEKS_API VekStatus veksFIRSetDlyLine64fc_32fc(VeksFIRState_64fc_32fc* pState,
                                              const Vek32fc* pDlyLine);
VEKS_API VekStatus veksFIRSetDlyLine32f_16s(VeksFIRState_32f_16s* pState, const Vek16s* pDlyLine);
VEKS_API VekStatus veksFIRSetDlyLine32fc_16sc(VeksFIRState_32fc_16sc* pState,
                                              const Vek16sc* pDlyLine);
VEKS_API VekStatus veksFIRSetDlyLine64f_16s(VeksFIRState_64f_16s* pState, const Vek16s* pDlyLine);
VEKS_API VekStatus veksFIRSetDlyLine64fc_16sc(VeksFIRState_64fc_16sc* pState,
                                              const Vek16sc* pDlyLine);
VEKS_API VekStatus veksFIRSetDlyLine64f_32s(VeksFIRState_64f_32s* pState, const Vek32s* pDlyLine);
VEKS_API VekStatus veksFIRSetDlyLine64fc_32sc(VeksFIRState_64fc_32sc* pState,
                                              const Vek32sc* pDlyLine);
VEKS_API VekStatus veksFIRSetDlyLine32s_16s(VeksFIRState_32s_16s* pState, const Vek16s* pDlyLine);
VEKS_API VekStatus veksFIRSetDlyLine32sc_16sc(VeksFIRState_32sc_16sc* pState,
                                              const Vek16sc* pDlyLine);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
