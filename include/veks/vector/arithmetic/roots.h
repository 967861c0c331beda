/**
 * @file
 * Square roots.
 */
#ifndef VEKS_VECTOR_ARITHMETIC_ROOTS_H
#define VEKS_VECTOR_ARITHMETIC_ROOTS_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Sqrt
 * `pDst[n] = sqrt(pSrc[n])`; in place `pSrcDst[n] = sqrt(pSrcDst[n])`.
 *
 * Floating-point roots are correctly rounded; a negative element gives NaN. A complex root is the
 * one with a real part that is not negative, its imaginary part has the sign of the element's; it
 * is computed in double for Vek32fc and with a scaled element for Vek64fc, each part within 2 ulp;
 * elements with infinite parts give NaN.
 *
 * Integer roots are exact before they are scaled, rounded and saturated; a negative element gives
 * 0.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the results
 * @param len the number of elements, a complex value counting as one
 * @param scaleFactor the results are multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekWrnSqrtNegArg if an element of a real form was negative, after all elements
 * @{
 */
VEKS_API VekStatus veksSqrt_32f(const Vek32f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksSqrt_32f_I(Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksSqrt_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksSqrt_64f_I(Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksSqrt_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len);
VEKS_API VekStatus veksSqrt_32fc_I(Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksSqrt_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len);
VEKS_API VekStatus veksSqrt_64fc_I(Vek64fc* pSrcDst, int len);
VEKS_API VekStatus veksSqrt_8u_Sfs(const Vek8u* pSrc, Vek8u* pDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqrt_8u_ISfs(Vek8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqrt_16u_Sfs(const Vek16u* pSrc, Vek16u* pDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqrt_16u_ISfs(Vek16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqrt_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqrt_16s_ISfs(Vek16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqrt_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqrt_16sc_ISfs(Vek16sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqrt_64s_Sfs(const Vek64s* pSrc, Vek64s* pDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqrt_64s_ISfs(Vek64s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqrt_32s16s_Sfs(const Vek32s* pSrc, Vek16s* pDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqrt_64s16s_Sfs(const Vek64s* pSrc, Vek16s* pDst, int len, int scaleFactor);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
