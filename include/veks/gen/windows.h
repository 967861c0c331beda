/**
 * @file
 * Window functions: `pDst[n] = pSrc[n] * w[n]`, n = 0 .. N-1, where N is the length, and in place
 * `pSrcDst[n] = pSrcDst[n] * w[n]`. Both parts of a complex element are multiplied by the real
 * weight. Windows are symmetric, both ends included: `w[n]` and `w[N-1-n]` are the same bits. See
 * docs/windows.md for the choice among them.
 *
 * Weights are computed in double precision, for doubles with more digits where it takes them, and
 * do not depend on earlier ones: whatever the length, those of `_32f` and `_32fc` are within 0.51
 * ulp of the formula, those of `_64f` and `_64fc` within 2 ulp. `_16s` and `_16sc` multiply by
 * weights of single precision in single precision, round to nearest with ties to even and saturate.
 *
 * Results do not depend on the alignment, and in place they are those of separate vectors. They may
 * differ in the last bit between processors with and without fused operations. A destination may be
 * its source; other overlaps are not allowed.
 */
#ifndef VEKS_GEN_WINDOWS_H
#define VEKS_GEN_WINDOWS_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name WinBartlett
 * The triangle: `w[n] = 2 n / (N - 1)` up to the middle, then its mirror image. For N = 3 the
 * result is 0, the middle element, 0. Literature: M. S. Bartlett, "Periodogram analysis and
 * continuous spectra", Biometrika 37 (1950).
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the results
 * @param len the number of elements N, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len < 3`
 * @{
 */
VEKS_API VekStatus veksWinBartlett_16s(const Vek16s* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksWinBartlett_16s_I(Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksWinBartlett_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len);
VEKS_API VekStatus veksWinBartlett_16sc_I(Vek16sc* pSrcDst, int len);
VEKS_API VekStatus veksWinBartlett_32f(const Vek32f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksWinBartlett_32f_I(Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksWinBartlett_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len);
VEKS_API VekStatus veksWinBartlett_32fc_I(Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksWinBartlett_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksWinBartlett_64f_I(Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksWinBartlett_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len);
VEKS_API VekStatus veksWinBartlett_64fc_I(Vek64fc* pSrcDst, int len);
/** @} */

/**
 * @name WinHann
 * `w[n] = 0.5 - 0.5 cos(2 pi n / (N - 1))`, computed as the square of a sine: the small weights at
 * the ends are as accurate as the others. For N = 3 the result is 0, the middle element, 0.
 * Literature: R. B. Blackman, J. W. Tukey, "The measurement of power spectra", Dover (1958), B.5.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the results
 * @param len the number of elements N, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len < 3`
 * @{
 */
VEKS_API VekStatus veksWinHann_16s(const Vek16s* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksWinHann_16s_I(Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksWinHann_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len);
VEKS_API VekStatus veksWinHann_16sc_I(Vek16sc* pSrcDst, int len);
VEKS_API VekStatus veksWinHann_32f(const Vek32f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksWinHann_32f_I(Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksWinHann_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len);
VEKS_API VekStatus veksWinHann_32fc_I(Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksWinHann_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksWinHann_64f_I(Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksWinHann_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len);
VEKS_API VekStatus veksWinHann_64fc_I(Vek64fc* pSrcDst, int len);
/** @} */

/**
 * @name WinHamming
 * `w[n] = 0.54 - 0.46 cos(2 pi n / (N - 1))`. The first and the last weight are 0.08, also for N
 * = 3. Literature as for Hann.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the results
 * @param len the number of elements N, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len < 3`
 * @{
 */
VEKS_API VekStatus veksWinHamming_16s(const Vek16s* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksWinHamming_16s_I(Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksWinHamming_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len);
VEKS_API VekStatus veksWinHamming_16sc_I(Vek16sc* pSrcDst, int len);
VEKS_API VekStatus veksWinHamming_32f(const Vek32f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksWinHamming_32f_I(Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksWinHamming_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len);
VEKS_API VekStatus veksWinHamming_32fc_I(Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksWinHamming_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksWinHamming_64f_I(Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksWinHamming_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len);
VEKS_API VekStatus veksWinHamming_64fc_I(Vek64fc* pSrcDst, int len);
/** @} */

/**
 * @name WinBlackman
 * `w[n] = (alpha + 1) / 2 - 0.5 cos(2 pi n / (N - 1)) - alpha / 2 cos(4 pi n / (N - 1))`. For N = 3
 * the result is 0, the middle element, 0. Literature as for Hann.
 *
 * The errors of the file comment hold for `alpha >= -0.25`. Below, the window is negative towards
 * its ends and no relative error can be kept to where it changes its sign: there weights may differ
 * by another `2^-52 sin^2(pi n / (N - 1))`.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the results
 * @param len the number of elements N, a complex value counting as one
 * @param alpha the shape: -0.16 for the standard, 0 for Hann
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len < 3`
 * @{
 */
VEKS_API VekStatus veksWinBlackman_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinBlackman_16s_I(Vek16s* pSrcDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinBlackman_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinBlackman_16sc_I(Vek16sc* pSrcDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinBlackman_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinBlackman_32f_I(Vek32f* pSrcDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinBlackman_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinBlackman_32fc_I(Vek32fc* pSrcDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinBlackman_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinBlackman_64f_I(Vek64f* pSrcDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinBlackman_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinBlackman_64fc_I(Vek64fc* pSrcDst, int len, Vek32f alpha);
/** @} */

/**
 * @name WinBlackmanStd
 * Blackman with alpha = -0.16, rounded to single precision: the weights 0.42, 0.5 and 0.08.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the results
 * @param len the number of elements N, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len < 3`
 * @{
 */
VEKS_API VekStatus veksWinBlackmanStd_16s(const Vek16s* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksWinBlackmanStd_16s_I(Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksWinBlackmanStd_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len);
VEKS_API VekStatus veksWinBlackmanStd_16sc_I(Vek16sc* pSrcDst, int len);
VEKS_API VekStatus veksWinBlackmanStd_32f(const Vek32f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksWinBlackmanStd_32f_I(Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksWinBlackmanStd_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len);
VEKS_API VekStatus veksWinBlackmanStd_32fc_I(Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksWinBlackmanStd_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksWinBlackmanStd_64f_I(Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksWinBlackmanStd_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len);
VEKS_API VekStatus veksWinBlackmanStd_64fc_I(Vek64fc* pSrcDst, int len);
/** @} */

/**
 * @name WinBlackmanOpt
 * Blackman with `alpha = -(0.5 / cos(pi / (N - 1)))^2`, computed in double precision and rounded to
 * single: the alpha that makes the second weight 0 too, but for that rounding. Of all windows of
 * three terms whose ends are 0, its side lobes fall off fastest. The length is checked first.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the results
 * @param len the number of elements N, a complex value counting as one
 * @return #vekStsOk; #vekErrSize if `len < 4`; #vekErrNullPtr if a pointer is null
 * @{
 */
VEKS_API VekStatus veksWinBlackmanOpt_16s(const Vek16s* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksWinBlackmanOpt_16s_I(Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksWinBlackmanOpt_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len);
VEKS_API VekStatus veksWinBlackmanOpt_16sc_I(Vek16sc* pSrcDst, int len);
VEKS_API VekStatus veksWinBlackmanOpt_32f(const Vek32f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksWinBlackmanOpt_32f_I(Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksWinBlackmanOpt_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len);
VEKS_API VekStatus veksWinBlackmanOpt_32fc_I(Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksWinBlackmanOpt_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksWinBlackmanOpt_64f_I(Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksWinBlackmanOpt_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len);
VEKS_API VekStatus veksWinBlackmanOpt_64fc_I(Vek64fc* pSrcDst, int len);
/** @} */

/**
 * @name WinBlackmanQ15
 * Blackman with `alpha = alphaQ15 / 32768`, rounded to single precision. With a scale factor the
 * products are multiplied by `2^-scaleFactor` before they are rounded and saturated.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the results
 * @param len the number of elements N, a complex value counting as one
 * @param alphaQ15 32768 times the shape
 * @param scaleFactor the results are multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len < 3`
 * @{
 */
VEKS_API VekStatus veksWinBlackmanQ15_16s(const Vek16s* pSrc, Vek16s* pDst, int len, int alphaQ15);
VEKS_API VekStatus veksWinBlackmanQ15_16s_I(Vek16s* pSrcDst, int len, int alphaQ15);
VEKS_API VekStatus veksWinBlackmanQ15_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len,
                                           int alphaQ15);
VEKS_API VekStatus veksWinBlackmanQ15_16sc_I(Vek16sc* pSrcDst, int len, int alphaQ15);
VEKS_API VekStatus veksWinBlackmanQ15_16s_ISfs(Vek16s* pSrcDst, int len, int alphaQ15,
                                               int scaleFactor);
/** @} */

/**
 * @name WinKaiser
 * `w[n] = I0(alpha sqrt(n (N - 1 - n))) / I0(alpha (N - 1) / 2)`, where I0 is the modified Bessel
 * function of order 0. In terms of the usual parameter beta, `alpha = 2 beta / (N - 1)`. For alpha
 * = 0 all weights are 1; for N = 1 the element is copied.
 *
 * I0 is taken from the polynomials of M. Abramowitz and I. A. Stegun, "Handbook of Mathematical
 * Functions", 9.8.1 (below 3.75) and 9.8.2, whose own relative error is 2e-7. The errors told in
 * the file comment refer to these. Literature: J. F. Kaiser, R. W. Schafer, "On the use of the
 * I0-sinh window for spectrum analysis", IEEE Trans. ASSP 28 (1980).
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the results
 * @param len the number of elements N, a complex value counting as one
 * @param alpha the shape; its sign has no effect
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len < 1`;
 *         #vekErrKaiserHuge if `abs(alpha) * (len - 1) / 2` exceeds 38 (`_32f`, `_32fc`) or 308
 * (all others)
 * @{
 */
VEKS_API VekStatus veksWinKaiser_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinKaiser_16s_I(Vek16s* pSrcDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinKaiser_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinKaiser_16sc_I(Vek16sc* pSrcDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinKaiser_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinKaiser_32f_I(Vek32f* pSrcDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinKaiser_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinKaiser_32fc_I(Vek32fc* pSrcDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinKaiser_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinKaiser_64f_I(Vek64f* pSrcDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinKaiser_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len, Vek32f alpha);
VEKS_API VekStatus veksWinKaiser_64fc_I(Vek64fc* pSrcDst, int len, Vek32f alpha);
/** @} */

/**
 * @name WinKaiserQ15
 * Kaiser with `alpha = alphaQ15 / 32768`, rounded to single precision.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the results
 * @param len the number of elements N, a complex value counting as one
 * @param alphaQ15 32768 times the shape
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len < 1`;
 *         #vekErrKaiserHuge if `abs(alpha) * (len - 1) / 2` exceeds 308
 * @{
 */
VEKS_API VekStatus veksWinKaiserQ15_16s(const Vek16s* pSrc, Vek16s* pDst, int len, int alphaQ15);
VEKS_API VekStatus veksWinKaiserQ15_16s_I(Vek16s* pSrcDst, int len, int alphaQ15);
VEKS_API VekStatus veksWinKaiserQ15_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len, int alphaQ15);
VEKS_API VekStatus veksWinKaiserQ15_16sc_I(Vek16sc* pSrcDst, int len, int alphaQ15);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
