/**
 * @file
 * Triangle waves of a given magnitude, relative frequency, phase and asymmetry.
 */
#ifndef VEKS_GEN_TRIANGLES_H
#define VEKS_GEN_TRIANGLES_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Triangle_Direct
 * With p = 2 pi rFreq n + phase, reduced into [0, 2 pi),
 *
 *     pDst[n] = magn - 2 magn p / (pi + asym)           while p <= pi + asym,
 *               magn - 2 magn (2 pi - p) / (pi - asym)  for the rest of the turn:
 *
 * the wave falls from magn to -magn, then rises back. An asymmetry of 0 makes both parts equally
 * long, one of -pi leaves the rising part only. The imaginary part of a complex triangle is the
 * real wave at the phase minus a quarter turn, as a sine is to a cosine.
 *
 * The phase for the next block is stored before the samples are, as that of a tone is: see
 * Tone_Direct.
 *
 * Samples are computed in double precision from arguments that are exact to 2^-60 turns, whatever
 * n, and are the same for every length. The error of Vek64f samples is at most 2 * 2^-52 magn (4 *
 * 2^-52 magn on processors without fused multiply-add; measured 1.5 and 3.2), plus that of 2^-60
 * turns on the steeper slope; Vek32f samples are rounded once after an error of that size. 16-bit
 * samples are truncated toward zero. A result next to an integer, or to the middle of two Vek32f,
 * may differ between processors.
 *
 * @param pDst the wave, `len` samples
 * @param len the number of samples, a complex value counting as one
 * @param magn the magnitude, above 0
 * @param rFreq the frequency in cycles per sample, 0 <= rFreq < 0.5
 * @param asym the asymmetry, -pi <= asym < pi with pi rounded to the type of asym
 * @param pPhase the phase of the first sample in radians, 0 <= phase < 2 pi, where the phase of the
 *        next block is stored; it may lie in pDst and is then overwritten
 * @return #vekStsOk; #vekErrNullPtr if pPhase is null; #vekErrTrnglMagn if magn is not above 0;
 *         #vekErrTrnglFreq if rFreq is out of range; #vekErrTrnglAsym if asym is;
 *         #vekErrTrnglPhase if the phase is; #vekErrNullPtr if pDst is null; #vekErrSize if
 *         `len <= 0`. NaN is out of every range.
 * @{
 */
VEKS_API VekStatus veksTriangle_Direct_32f(Vek32f* pDst, int len, Vek32f magn, Vek32f rFreq,
                                           Vek32f asym, Vek32f* pPhase);
VEKS_API VekStatus veksTriangle_Direct_64f(Vek64f* pDst, int len, Vek64f magn, Vek64f rFreq,
                                           Vek64f asym, Vek64f* pPhase);
VEKS_API VekStatus veksTriangle_Direct_32fc(Vek32fc* pDst, int len, Vek32f magn, Vek32f rFreq,
                                            Vek32f asym, Vek32f* pPhase);
VEKS_API VekStatus veksTriangle_Direct_64fc(Vek64fc* pDst, int len, Vek64f magn, Vek64f rFreq,
                                            Vek64f asym, Vek64f* pPhase);
VEKS_API VekStatus veksTriangle_Direct_16s(Vek16s* pDst, int len, Vek16s magn, Vek32f rFreq,
                                           Vek32f asym, Vek32f* pPhase);
VEKS_API VekStatus veksTriangle_Direct_16sc(Vek16sc* pDst, int len, Vek16s magn, Vek32f rFreq,
                                            Vek32f asym, Vek32f* pPhase);
/** @} */

/**
 * @name TriangleQ15_Direct
 * A block of a triangle wave with arguments in Q15, which are integers scaled by 2^15: rFreq =
 * freqQ15 / 32768, phase = phaseQ15 / 32768 and asym = asymQ15 / 32768. Samples are computed in
 * double precision and rounded to nearest, half away from zero.
 *
 * The phase for the next block is stored before the samples are, rounded to the nearest valid one:
 * up to 1.6e-5 radians off, 2.2e-5 next to a whole turn. These errors add up with every call; a
 * state has none.
 *
 * @param pDst the wave, `len` samples
 * @param len the number of samples
 * @param magn the magnitude, at least 1
 * @param freqQ15 the frequency, 0 to 16383
 * @param asymQ15 the asymmetry, -102943 to 102943
 * @param pPhaseQ15 the phase of the first sample, 0 to 205886, where that of the next block is
 *        stored
 * @return #vekStsOk; #vekErrNullPtr if pPhaseQ15 is null; #vekErrTrnglMagn if `magn < 1`;
 *         #vekErrTrnglFreq if freqQ15 is out of range; #vekErrTrnglAsym if asymQ15 is;
 *         #vekErrTrnglPhase if the phase is; #vekErrNullPtr if pDst is null; #vekErrSize if
 *         `len <= 0`
 * @{
 */
VEKS_API VekStatus veksTriangleQ15_Direct_16s(Vek16s* pDst, int len, Vek16s magn, int freqQ15,
                                              int asymQ15, int* pPhaseQ15);
/** @} */

/**
 * @name State of a triangle wave
 * What continues a triangle wave over several calls: 136 bytes on every build.
 * @{
 */
typedef struct VeksTriangleState_16s VeksTriangleState_16s;
/** @} */

/**
 * @name TriangleInitQ15
 * Begins a triangle wave with arguments in Q15 at sample 0, in a new block of memory or in a buffer
 * of the caller. The buffer has the size that TriangleGetStateSize tells and may lie at any
 * address.
 *
 * @param ppState where to store the state; left alone on an error
 * @param pState the buffer for the state
 * @param magn the magnitude, at least 1
 * @param freqQ15 the frequency in cycles per sample times 32768, 0 to 16383
 * @param phaseQ15 the phase of the first sample in radians times 32768, 0 to 205886
 * @param asymQ15 the asymmetry in radians times 32768, -102943 to 102943
 * @return #vekStsOk; #vekErrNullPtr if the pointer is null; #vekErrTrnglMagn if `magn < 1`;
 *         #vekErrTrnglFreq if freqQ15 is out of range; #vekErrTrnglPhase if phaseQ15 is;
 *         #vekErrTrnglAsym if asymQ15 is; #vekErrMemAllocTooSmall if memory is short
 * @{
 */
VEKS_API VekStatus veksTriangleInitAllocQ15_16s(VeksTriangleState_16s** ppState, Vek16s magn,
                                                int freqQ15, int phaseQ15, int asymQ15);
VEKS_API VekStatus veksTriangleInitQ15_16s(VeksTriangleState_16s* pState, Vek16s magn, int freqQ15,
                                           int phaseQ15, int asymQ15);
/** @} */

/**
 * @name TriangleGetStateSize
 * The size of a state in bytes.
 *
 * @param pSize where to store the size
 * @return #vekStsOk; #vekErrNullPtr if pSize is null
 * @{
 */
VEKS_API VekStatus veksTriangleGetStateSizeQ15_16s(int* pSize);
/** @} */

/**
 * @name TriangleFree
 * Releases a state that was allocated. One in a buffer of the caller stays as it is.
 *
 * @param pState the state
 * @return #vekStsOk; #vekErrNullPtr if pState is null; #vekErrContextMatch if it is not the state
 *         of a triangle wave
 * @{
 */
VEKS_API VekStatus veksTriangleFree(VeksTriangleState_16s* pState);
/** @} */

/**
 * @name TriangleQ15
 * The next samples of a triangle wave. Sample k of the stream, k counting from 0 over all calls, is
 * the wave of Triangle_Direct at n = k, computed in double precision and rounded to nearest, half
 * away from zero. It does not depend on how the stream is divided into calls.
 *
 * A wave of this kind repeats after 32768 samples, since its frequency is a multiple of 1/32768. So
 * the count of the samples may wrap around, which it does after 2^32, and the stream has no end.
 *
 * @param pDst the samples, `len` of them
 * @param len the number of samples
 * @param pState the state
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekErrContextMatch if pState is not the state of a triangle wave
 * @{
 */
VEKS_API VekStatus veksTriangleQ15_16s(Vek16s* pDst, int len, VeksTriangleState_16s* pState);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
