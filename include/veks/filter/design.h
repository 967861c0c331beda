/**
 * @file
 * Design of linear-phase FIR filters by windowing the ideal response.
 *
 * Frequencies are relative to the sampling rate, so 0.5 is the Nyquist frequency. With the distance
 * d of a tap from the centre of the filter, which is a whole number for odd lengths and a multiple
 * of 1/2 for even ones, and S(f, d) = sin(2 pi f d) / (pi d), S(f, 0) = 2 f, the ideal taps are
 *
 * | filter | odd length | even length |
 * |--------|------------|-------------|
 * | lowpass | S(f, d) | S(f, d) |
 * | highpass | S(0.5, d) - S(f, d) | -cos(2 pi f d) / (pi d) |
 * | bandpass | S(high, d) - S(low, d) | S(high, d) - S(low, d) |
 * | bandstop | S(0.5, d) - S(high, d) + S(low, d) | S(0.5, d) - S(high, d) + S(low, d) |
 *
 * The window of `winType` is applied to all taps; values that name none leave the ideal response.
 * Taps are symmetric to the bit, those of a highpass of even length antisymmetric: symmetric ones
 * would give it gain 0 at the Nyquist frequency, these give it gain 0 at frequency 0. A bandstop of
 * even length, and a bandpass up to 0.5, do fall to gain 0 at the Nyquist frequency, within the
 * width of a transition: an odd length avoids that.
 *
 * A `doNormal` other than 0 multiplies all taps by the same positive number, so that the gain is 1
 * at frequency 0 (lowpass, bandstop), at 0.5 (highpass) or at (low + high) / 2 (bandpass). Where
 * the gain was negative, it becomes -1. Taps that have no gain there at all stay as they are.
 *
 * Taps of the ideal response are within 1.5 * 2^-50 / (pi d) of the exact ones. Nothing is
 * allocated. Literature: A. V. Oppenheim, R. W. Schafer, "Discrete-Time Signal Processing", 7.5
 * (windows) and 5.7 (types of linear-phase filters).
 */
#ifndef VEKS_FILTER_DESIGN_H
#define VEKS_FILTER_DESIGN_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name FIRGenLowpass, FIRGenHighpass
 * Passes what is below or above a frequency; see the top of this page.
 *
 * @param rFreq the edge of the passband, 0 < rFreq <= 0.5
 * @param pTaps the taps, `tapsLen` of them
 * @param tapsLen the number of taps, at least 5
 * @param winType the window
 * @param doNormal whether to normalise the gain, 0 for no
 * @return #vekStsOk; #vekErrNullPtr if pTaps is null; #vekErrSize if `tapsLen < 5` or rFreq is out
 *         of range or NaN
 * @{
 */
VEKS_API VekStatus veksFIRGenLowpass_64f(Vek64f rFreq, Vek64f* pTaps, int tapsLen,
                                         VekWinType winType, int doNormal);
VEKS_API VekStatus veksFIRGenHighpass_64f(Vek64f rFreq, Vek64f* pTaps, int tapsLen,
                                          VekWinType winType, int doNormal);
/** @} */

/**
 * @name FIRGenBandpass, FIRGenBandstop
 * Passes what is between two frequencies, or what is not; see the top of this page.
 *
 * @param rLowFreq the lower edge of the band, 0 < rLowFreq < rHighFreq
 * @param rHighFreq the upper edge of the band, at most 0.5
 * @param pTaps the taps, `tapsLen` of them
 * @param tapsLen the number of taps, at least 5
 * @param winType the window
 * @param doNormal whether to normalise the gain, 0 for no
 * @return #vekStsOk; #vekErrNullPtr if pTaps is null; #vekErrSize if `tapsLen < 5`, or an edge is
 *         out of range or NaN, or `rLowFreq >= rHighFreq`
 * @{
 */
VEKS_API VekStatus veksFIRGenBandpass_64f(Vek64f rLowFreq, Vek64f rHighFreq, Vek64f* pTaps,
                                          int tapsLen, VekWinType winType, int doNormal);
VEKS_API VekStatus veksFIRGenBandstop_64f(Vek64f rLowFreq, Vek64f rHighFreq, Vek64f* pTaps,
                                          int tapsLen, VekWinType winType, int doNormal);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
