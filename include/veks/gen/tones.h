/**
 * @file
 * Tones: cosines of a given magnitude, relative frequency and phase.
 */
#ifndef VEKS_GEN_TONES_H
#define VEKS_GEN_TONES_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Tone_Direct
 * With x[n] = 2 pi rFreq n + phase,
 *
 *     real: pDst[n] = magn * cos(x[n])
 *     complex: pDst[n] = magn * (cos(x[n]) + i sin(x[n]))
 *
 * The phase for the next block is stored before the samples are: p = 2 pi rFreq len + phase without
 * its whole turns, rounded to the type of the phase, and 0 if that is not in [0, 2 pi). The turns
 * of rFreq * len are dropped without an error. So what a block adds to the error is one rounding of
 * the phase, whatever its length: up to 7.1e-17 turns for Vek64f phases, which after 10^9 samples
 * in blocks of 100 or more are within 10^-9 turns; up to 3.8e-8 turns for Vek32f phases.
 *
 * Samples are computed in double precision from arguments that are exact to 2^-60 turns, whatever
 * n, and are the same for every length. The error of Vek64f samples is at most 1.25 * 2^-52 magn,
 * measured 1.0 * 2^-52 magn (1.2 * 2^-52 on processors without fused multiply-add); Vek32f samples
 * are rounded once after an error of that size. 16-bit samples are truncated toward zero. A result
 * next to an integer, or to the middle of two Vek32f, may differ between processors. A magnitude
 * within 2^-52 of the largest Vek64f may give infinities at its peaks.
 *
 * Literature: J. O. Smith, P. R. Cook, "The second-order digital waveguide oscillator", Proc. ICMC
 * (1992), for the recurrence that needs no table but loses accuracy with every sample.
 *
 * @param pDst the tone, `len` samples
 * @param len the number of samples, a complex value counting as one
 * @param magn the magnitude, above 0
 * @param rFreq the frequency in cycles per sample, 0 <= rFreq < 0.5
 * @param pPhase the phase of the first sample in radians, 0 <= phase < 2 pi, where the phase of the
 *        next block is stored; it may lie in pDst and is then overwritten
 * @param hint kept, without effect: all values give the same samples
 * @return #vekStsOk; #vekErrNullPtr if pPhase is null; #vekErrToneMagn if magn is not above 0;
 *         #vekErrToneFreq if rFreq is out of range; #vekErrTonePhase if the phase is;
 *         #vekErrNullPtr if pDst is null; #vekErrSize if `len <= 0`. NaN is out of every range.
 * @{
 */
VEKS_API VekStatus veksTone_Direct_32f(Vek32f* pDst, int len, Vek32f magn, Vek32f rFreq,
                                       Vek32f* pPhase, int hint);
VEKS_API VekStatus veksTone_Direct_64f(Vek64f* pDst, int len, Vek64f magn, Vek64f rFreq,
                                       Vek64f* pPhase, int hint);
VEKS_API VekStatus veksTone_Direct_32fc(Vek32fc* pDst, int len, Vek32f magn, Vek32f rFreq,
                                        Vek32f* pPhase, int hint);
VEKS_API VekStatus veksTone_Direct_64fc(Vek64fc* pDst, int len, Vek64f magn, Vek64f rFreq,
                                        Vek64f* pPhase, int hint);
VEKS_API VekStatus veksTone_Direct_16s(Vek16s* pDst, int len, Vek16s magn, Vek32f rFreq,
                                       Vek32f* pPhase, int hint);
VEKS_API VekStatus veksTone_Direct_16sc(Vek16sc* pDst, int len, Vek16s magn, Vek32f rFreq,
                                        Vek32f* pPhase, int hint);
/** @} */

/**
 * @name ToneQ15_Direct
 * A block of a tone with arguments in Q15, which are integers scaled by 2^15: rFreq = freqQ15 /
 * 32768 and phase = phaseQ15 / 32768. Samples are computed in double precision and rounded to
 * nearest, half away from zero.
 *
 * The phase for the next block is stored before the samples are, rounded to the nearest valid one:
 * up to 1.6e-5 radians off, 2.2e-5 next to a whole turn. These errors add up with every call; a
 * state has none.
 *
 * @param pDst the tone, `len` samples
 * @param len the number of samples
 * @param magn the magnitude, at least 1
 * @param freqQ15 the frequency, 0 to 16383
 * @param pPhaseQ15 the phase of the first sample, 0 to 205886, where that of the next block is
 *        stored
 * @return #vekStsOk; #vekErrNullPtr if pPhaseQ15 is null; #vekErrToneMagn if `magn < 1`;
 *         #vekErrToneFreq if freqQ15 is out of range; #vekErrTonePhase if the phase is;
 *         #vekErrNullPtr if pDst is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksToneQ15_Direct_16s(Vek16s* pDst, int len, Vek16s magn, int freqQ15,
                                          int* pPhaseQ15);
/** @} */

/**
 * @name State of a tone
 * What continues a tone over several calls: 48 bytes on every build.
 * @{
 */
typedef struct VeksToneState_16s VeksToneState_16s;
/** @} */

/**
 * @name ToneInitQ15
 * Begins a tone with arguments in Q15 at sample 0, in a new block of memory or in a buffer of the
 * caller. The buffer has the size that ToneGetStateSize tells and may lie at any address.
 *
 * @param ppState where to store the state; left alone on an error
 * @param pState the buffer for the state
 * @param magn the magnitude, at least 1
 * @param freqQ15 the frequency in cycles per sample times 32768, 0 to 16383
 * @param phaseQ15 the phase of the first sample in radians times 32768, 0 to 205886
 * @return #vekStsOk; #vekErrNullPtr if the pointer is null; #vekErrToneMagn if `magn < 1`;
 *         #vekErrToneFreq if freqQ15 is out of range; #vekErrTonePhase if phaseQ15 is;
 *         #vekErrMemAllocTooSmall if memory is short
 * @{
 */
VEKS_API VekStatus veksToneInitAllocQ15_16s(VeksToneState_16s** ppState, Vek16s magn, int freqQ15,
                                            int phaseQ15);
VEKS_API VekStatus veksToneInitQ15_16s(VeksToneState_16s* pState, Vek16s magn, int freqQ15,
                                       int phaseQ15);
/** @} */

/**
 * @name ToneGetStateSize
 * The size of a state in bytes.
 *
 * @param pSize where to store the size
 * @return #vekStsOk; #vekErrNullPtr if pSize is null
 * @{
 */
VEKS_API VekStatus veksToneGetStateSizeQ15_16s(int* pSize);
/** @} */

/**
 * @name ToneFree
 * Releases a state that was allocated. One in a buffer of the caller stays as it is.
 *
 * @param pState the state
 * @return #vekStsOk; #vekErrNullPtr if pState is null; #vekErrContextMatch if it is not the state
 *         of a tone
 * @{
 */
VEKS_API VekStatus veksToneFree(VeksToneState_16s* pState);
/** @} */

/**
 * @name ToneQ15
 * The next samples of a tone. Sample k of the stream, k counting from 0 over all calls, is
 * magn * cos(2 pi rFreq k + phase), computed in double precision and rounded to nearest, half away
 * from zero. It does not depend on how the stream is divided into calls.
 *
 * A tone of this kind repeats after 32768 samples, since its frequency is a multiple of 1/32768.
 * So the count of the samples may wrap around, which it does after 2^32, and the stream has no end.
 *
 * @param pDst the samples, `len` of them
 * @param len the number of samples
 * @param pState the state
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekErrContextMatch if pState is not the state of a tone
 * @{
 */
VEKS_API VekStatus veksToneQ15_16s(Vek16s* pDst, int len, VeksToneState_16s* pState);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
