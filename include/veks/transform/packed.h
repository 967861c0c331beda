/**
 * @file
 * Spectra of real signals in their packed formats: products, and the full complex spectrum.
 *
 * The spectrum X[0] .. X[N-1] of N real values repeats itself, X[N-k] = conj(X[k]), so that half of
 * it is all there is to keep; the imaginary parts of X[0] and, for even N, of X[N/2] are 0. R and I
 * being real and imaginary parts, the packed formats are, for N = 8 and N = 7:
 *
 *     Pack   R0  R1 I1  R2 I2  R3 I3  R4         N values
 *     Perm   R0  R4  R1 I1  R2 I2  R3 I3         N values
 *     CCS    R0  0  R1 I1  R2 I2  R3 I3  R4  0   N + 2 values
 *
 *     Pack   R0  R1 I1  R2 I2  R3 I3             N values
 *     Perm   R0  R1 I1  R2 I2  R3 I3             N values, the order of Pack
 *     CCS    R0  0  R1 I1  R2 I2  R3 I3          N + 1 values
 *
 * CCS is the first half of the complex spectrum as it stands.
 */
#ifndef VEKS_TRANSFORM_PACKED_H
#define VEKS_TRANSFORM_PACKED_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name MulPack, MulPerm
 * The product of two spectra, point by point as complex numbers, all in Pack or all in Perm format:
 * `Dst[k] = Src1[k] * Src2[k]`; in place `SrcDst[k] = SrcDst[k] * Src[k]`. It is the spectrum of
 * the circular convolution of the two signals. A destination may be a source, and both sources may
 * be the same; other overlaps are not allowed.
 *
 * Products are `(a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re)`, at the one or two real
 * points `a.re * b.re`. Floating-point forms round each product and the sum; special values follow
 * IEEE 754. `_Sfs` forms are exact before the results are scaled and saturated.
 *
 * @param pSrc1 the first spectrum, `len` values
 * @param pSrc2 the second spectrum, `len` values
 * @param pSrc the first spectrum of an in-place form, `len` values
 * @param pDst the product, `len` values
 * @param pSrcDst the second spectrum, overwritten with the product
 * @param len the length of the signals, even or odd
 * @param scaleFactor the results are multiplied by `2^-scaleFactor`, rounded to nearest with ties to
 *        even, then saturated; any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksMulPack_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pDst, int len);
VEKS_API VekStatus veksMulPack_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksMulPack_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pDst, int len);
VEKS_API VekStatus veksMulPack_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksMulPack_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst,
                                       int len, int scaleFactor);
VEKS_API VekStatus veksMulPack_16s_ISfs(const Vek16s* pSrc, Vek16s* pSrcDst, int len,
                                        int scaleFactor);
VEKS_API VekStatus veksMulPerm_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pDst, int len);
VEKS_API VekStatus veksMulPerm_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksMulPerm_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pDst, int len);
VEKS_API VekStatus veksMulPerm_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksMulPerm_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst,
                                       int len, int scaleFactor);
VEKS_API VekStatus veksMulPerm_16s_ISfs(const Vek16s* pSrc, Vek16s* pSrcDst, int len,
                                        int scaleFactor);
/** @} */

/**
 * @name MulPackConj
 * The product of a spectrum and the conjugate of another, both in Pack format:
 * `SrcDst[k] = SrcDst[k] * conj(Src[k])`, the spectrum of the circular correlation of the two
 * signals. With a = SrcDst[k] and b = Src[k] it is
 * `(a.re * b.re + a.im * b.im, a.im * b.re - a.re * b.im)`, at the one or two real points
 * `a.re * b.re`; each product and the sum are rounded. Special values follow IEEE 754. `pSrc` may
 * be `pSrcDst`; other overlaps are not allowed.
 *
 * @param pSrc the spectrum whose conjugate is multiplied by, `len` values
 * @param pSrcDst the other spectrum, overwritten with the product
 * @param len the length of the signals, even or odd
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksMulPackConj_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksMulPackConj_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len);
/** @} */

/**
 * @name ConjPack, ConjPerm, ConjCCS
 * The full spectrum of `lenDst` complex values from one in Pack, Perm or CCS format:
 * `pDst[k] = X[k]` in the first half, `pDst[k] = conj(X[lenDst - k])` in the second one. In-place
 * forms find the packed values at the start of `pSrcDst`; other overlaps are not allowed.
 *
 * The imaginary parts of X[0] and X[lenDst/2] become 0; ConjCCS copies those that it finds. The
 * conjugate of a 16-bit imaginary part saturates: -32768 becomes 32767. Floating-point values keep
 * their bits but for the sign: NaN payloads survive.
 *
 * @param pSrc the packed spectrum: `lenDst` values, in CCS format `lenDst + 2` for even `lenDst` and
 *        `lenDst + 1` for odd
 * @param pDst the full spectrum, `lenDst` complex values
 * @param pSrcDst starts with the values of the packed spectrum, overwritten with the full one
 * @param lenDst the number of complex values, even or odd
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `lenDst <= 0`
 * @{
 */
VEKS_API VekStatus veksConjPack_16sc(const Vek16s* pSrc, Vek16sc* pDst, int lenDst);
VEKS_API VekStatus veksConjPack_16sc_I(Vek16sc* pSrcDst, int lenDst);
VEKS_API VekStatus veksConjPack_32fc(const Vek32f* pSrc, Vek32fc* pDst, int lenDst);
VEKS_API VekStatus veksConjPack_32fc_I(Vek32fc* pSrcDst, int lenDst);
VEKS_API VekStatus veksConjPack_64fc(const Vek64f* pSrc, Vek64fc* pDst, int lenDst);
VEKS_API VekStatus veksConjPack_64fc_I(Vek64fc* pSrcDst, int lenDst);
VEKS_API VekStatus veksConjPerm_16sc(const Vek16s* pSrc, Vek16sc* pDst, int lenDst);
VEKS_API VekStatus veksConjPerm_16sc_I(Vek16sc* pSrcDst, int lenDst);
VEKS_API VekStatus veksConjPerm_32fc(const Vek32f* pSrc, Vek32fc* pDst, int lenDst);
VEKS_API VekStatus veksConjPerm_32fc_I(Vek32fc* pSrcDst, int lenDst);
VEKS_API VekStatus veksConjPerm_64fc(const Vek64f* pSrc, Vek64fc* pDst, int lenDst);
VEKS_API VekStatus veksConjPerm_64fc_I(Vek64fc* pSrcDst, int lenDst);
VEKS_API VekStatus veksConjCCS_16sc(const Vek16s* pSrc, Vek16sc* pDst, int lenDst);
VEKS_API VekStatus veksConjCCS_16sc_I(Vek16sc* pSrcDst, int lenDst);
VEKS_API VekStatus veksConjCCS_32fc(const Vek32f* pSrc, Vek32fc* pDst, int lenDst);
VEKS_API VekStatus veksConjCCS_32fc_I(Vek32fc* pSrcDst, int lenDst);
VEKS_API VekStatus veksConjCCS_64fc(const Vek64f* pSrc, Vek64fc* pDst, int lenDst);
VEKS_API VekStatus veksConjCCS_64fc_I(Vek64fc* pSrcDst, int lenDst);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
