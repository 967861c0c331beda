/**
 * @file
 * Norms of vectors and of differences of vectors. Results are the same on every processor, for
 * sources at any address.
 *
 * The magnitude of a complex element is `sqrt(re^2 + im^2)`, without premature overflow or
 * underflow. The norms of 16-bit integers are those of the exact integers, for every length and
 * differences of 17 bits too, and rounded once: to the nearest Vek32f, or by the scale factor, that
 * is multiplied by `2^-scaleFactor`, rounded to nearest with ties to even and saturated; see
 * docs/scaling.md.
 *
 * Differences of floating-point elements are rounded to the type of the elements. Sums of them are
 * rounded like this: blocks of 4096 terms are summed up in the precision of the elements in 512
 * bytes of partial sums, each of which takes in at most 32 terms (Vek32f) or 64 (Vek64f), and the
 * sums of the blocks are added in double. With u = 2^-24 (Vek32f) or 2^-53 (Vek64f) the relative
 * error of a sum of N terms is below 40 u for Vek32f and (72 + N / 4096) u for Vek64f, on top of
 * that of the terms, and usually around u.
 */
#ifndef VEKS_STATS_NORMS_H
#define VEKS_STATS_NORMS_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Norm_Inf, NormDiff_Inf
 * The greatest magnitude: `max |pSrc[n]|`, for the difference `max |pSrc1[n] - pSrc2[n]|`. That of
 * real elements is exact but for the rounding of differences, that of complex ones within 2 u.
 *
 * The rule of Max holds for NaN: one in the first position, in either part of a complex value,
 * makes the norm NaN; others are left out.
 *
 * @param pSrc the source, `len` elements
 * @param pSrc1 the minuend, `len` elements
 * @param pSrc2 the subtrahend, `len` elements
 * @param len the number of elements, a complex value counting as one
 * @param pNorm the norm
 * @param scaleFactor the norm is multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksNorm_Inf_32f(const Vek32f* pSrc, int len, Vek32f* pNorm);
VEKS_API VekStatus veksNorm_Inf_64f(const Vek64f* pSrc, int len, Vek64f* pNorm);
VEKS_API VekStatus veksNorm_Inf_32fc32f(const Vek32fc* pSrc, int len, Vek32f* pNorm);
VEKS_API VekStatus veksNorm_Inf_64fc64f(const Vek64fc* pSrc, int len, Vek64f* pNorm);
VEKS_API VekStatus veksNorm_Inf_16s32f(const Vek16s* pSrc, int len, Vek32f* pNorm);
VEKS_API VekStatus veksNorm_Inf_16s32s_Sfs(const Vek16s* pSrc, int len, Vek32s* pNorm,
                                           int scaleFactor);
VEKS_API VekStatus veksNormDiff_Inf_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, int len,
                                        Vek32f* pNorm);
VEKS_API VekStatus veksNormDiff_Inf_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, int len,
                                        Vek64f* pNorm);
VEKS_API VekStatus veksNormDiff_Inf_32fc32f(const Vek32fc* pSrc1, const Vek32fc* pSrc2, int len,
                                            Vek32f* pNorm);
VEKS_API VekStatus veksNormDiff_Inf_64fc64f(const Vek64fc* pSrc1, const Vek64fc* pSrc2, int len,
                                            Vek64f* pNorm);
VEKS_API VekStatus veksNormDiff_Inf_16s32f(const Vek16s* pSrc1, const Vek16s* pSrc2, int len,
                                           Vek32f* pNorm);
VEKS_API VekStatus veksNormDiff_Inf_16s32s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, int len,
                                               Vek32s* pNorm, int scaleFactor);
/** @} */

/**
 * @name Norm_L1, NormDiff_L1
 * The sum of the magnitudes: `sum |pSrc[n]|`, for the difference `sum |pSrc1[n] - pSrc2[n]|`.
 * Complex magnitudes are within 2 u. A sum that is too large gives infinity, a NaN element NaN.
 *
 * @param pSrc the source, `len` elements
 * @param pSrc1 the minuend, `len` elements
 * @param pSrc2 the subtrahend, `len` elements
 * @param len the number of elements, a complex value counting as one
 * @param pNorm the norm
 * @param scaleFactor the norm is multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksNorm_L1_32f(const Vek32f* pSrc, int len, Vek32f* pNorm);
VEKS_API VekStatus veksNorm_L1_64f(const Vek64f* pSrc, int len, Vek64f* pNorm);
VEKS_API VekStatus veksNorm_L1_32fc32f(const Vek32fc* pSrc, int len, Vek32f* pNorm);
VEKS_API VekStatus veksNorm_L1_64fc64f(const Vek64fc* pSrc, int len, Vek64f* pNorm);
VEKS_API VekStatus veksNorm_L1_16s32f(const Vek16s* pSrc, int len, Vek32f* pNorm);
VEKS_API VekStatus veksNorm_L1_16s32s_Sfs(const Vek16s* pSrc, int len, Vek32s* pNorm,
                                          int scaleFactor);
VEKS_API VekStatus veksNormDiff_L1_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, int len,
                                       Vek32f* pNorm);
VEKS_API VekStatus veksNormDiff_L1_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, int len,
                                       Vek64f* pNorm);
VEKS_API VekStatus veksNormDiff_L1_32fc32f(const Vek32fc* pSrc1, const Vek32fc* pSrc2, int len,
                                           Vek32f* pNorm);
VEKS_API VekStatus veksNormDiff_L1_64fc64f(const Vek64fc* pSrc1, const Vek64fc* pSrc2, int len,
                                           Vek64f* pNorm);
VEKS_API VekStatus veksNormDiff_L1_16s32f(const Vek16s* pSrc1, const Vek16s* pSrc2, int len,
                                          Vek32f* pNorm);
VEKS_API VekStatus veksNormDiff_L1_16s32s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, int len,
                                              Vek32s* pNorm, int scaleFactor);
/** @} */

/**
 * @name Norm_L2, NormDiff_L2
 * The square root of the sum of squares: `sqrt(sum |pSrc[n]|^2)`, for the difference
 * `sqrt(sum |pSrc1[n] - pSrc2[n]|^2)`. A NaN element makes the norm NaN.
 *
 * The forms of Vek32f, for real elements, form the sum of squares as a Vek32f and take its
 * single-precision root: from norms of 2^64 on the result is infinity, and the squares of elements
 * below 2^-63 lose digits. The other forms take squares of scaled elements where the sum of plain
 * ones overflows or is too small, and are accurate wherever the norm is representable. The relative
 * error of the root is half of that of the sum, and one rounding.
 *
 * @param pSrc the source, `len` elements
 * @param pSrc1 the minuend, `len` elements
 * @param pSrc2 the subtrahend, `len` elements
 * @param len the number of elements, a complex value counting as one
 * @param pNorm the norm
 * @param scaleFactor the norm is multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksNorm_L2_32f(const Vek32f* pSrc, int len, Vek32f* pNorm);
VEKS_API VekStatus veksNorm_L2_64f(const Vek64f* pSrc, int len, Vek64f* pNorm);
VEKS_API VekStatus veksNorm_L2_32fc32f(const Vek32fc* pSrc, int len, Vek32f* pNorm);
VEKS_API VekStatus veksNorm_L2_64fc64f(const Vek64fc* pSrc, int len, Vek64f* pNorm);
VEKS_API VekStatus veksNorm_L2_16s32f(const Vek16s* pSrc, int len, Vek32f* pNorm);
VEKS_API VekStatus veksNorm_L2_16s32s_Sfs(const Vek16s* pSrc, int len, Vek32s* pNorm,
                                          int scaleFactor);
VEKS_API VekStatus veksNormDiff_L2_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, int len,
                                       Vek32f* pNorm);
VEKS_API VekStatus veksNormDiff_L2_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, int len,
                                       Vek64f* pNorm);
VEKS_API VekStatus veksNormDiff_L2_32fc32f(const Vek32fc* pSrc1, const Vek32fc* pSrc2, int len,
                                           Vek32f* pNorm);
VEKS_API VekStatus veksNormDiff_L2_64fc64f(const Vek64fc* pSrc1, const Vek64fc* pSrc2, int len,
                                           Vek64f* pNorm);
VEKS_API VekStatus veksNormDiff_L2_16s32f(const Vek16s* pSrc1, const Vek16s* pSrc2, int len,
                                          Vek32f* pNorm);
VEKS_API VekStatus veksNormDiff_L2_16s32s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, int len,
                                              Vek32s* pNorm, int scaleFactor);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
