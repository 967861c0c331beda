/**
 * @file
 * Normalisation: a constant is subtracted, then divided by another.
 */
#ifndef VEKS_VECTOR_NORMALISATION_H
#define VEKS_VECTOR_NORMALISATION_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Normalize
 * `pDst[n] = (pSrc[n] - vSub) / vDiv`; `_I` and `_ISfs` forms overwrite their source. A
 * destination may be the source; other overlaps are not allowed. Complex values lose a complex
 * `vSub`, and both parts are divided by the real `vDiv`.
 *
 * Floating-point forms round the difference, then the quotient, both to nearest in the precision
 * of the type: a true division, no product with a reciprocal. Special values follow IEEE 754.
 *
 * `_Sfs` forms store `(pSrc[n] - vSub) / vDiv * 2^-scaleFactor`, the exact value rounded to the
 * nearest integer with ties to even, then saturated. Results are the same on every processor.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @param vSub the constant to subtract
 * @param vDiv the divisor, any value but 0
 * @param scaleFactor the scale factor, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekErrDivByZero if `vDiv` is 0
 * @{
 */
VEKS_API VekStatus veksNormalize_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f vSub,
                                     Vek32f vDiv);
VEKS_API VekStatus veksNormalize_32f_I(Vek32f* pSrcDst, int len, Vek32f vSub, Vek32f vDiv);
VEKS_API VekStatus veksNormalize_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f vSub,
                                     Vek64f vDiv);
VEKS_API VekStatus veksNormalize_64f_I(Vek64f* pSrcDst, int len, Vek64f vSub, Vek64f vDiv);
VEKS_API VekStatus veksNormalize_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len, Vek32fc vSub,
                                      Vek32f vDiv);
VEKS_API VekStatus veksNormalize_32fc_I(Vek32fc* pSrcDst, int len, Vek32fc vSub, Vek32f vDiv);
VEKS_API VekStatus veksNormalize_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len, Vek64fc vSub,
                                      Vek64f vDiv);
VEKS_API VekStatus veksNormalize_64fc_I(Vek64fc* pSrcDst, int len, Vek64fc vSub, Vek64f vDiv);
VEKS_API VekStatus veksNormalize_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s vSub,
                                         int vDiv, int scaleFactor);
VEKS_API VekStatus veksNormalize_16s_ISfs(Vek16s* pSrcDst, int len, Vek16s vSub, int vDiv,
                                          int scaleFactor);
VEKS_API VekStatus veksNormalize_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int len, Vek16sc vSub,
                                          int vDiv, int scaleFactor);
VEKS_API VekStatus veksNormalize_16sc_ISfs(Vek16sc* pSrcDst, int len, Vek16sc vSub, int vDiv,
                                           int scaleFactor);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
