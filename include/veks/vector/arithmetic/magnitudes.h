/**
 * @file
 * Absolute values.
 */
#ifndef VEKS_VECTOR_ARITHMETIC_MAGNITUDES_H
#define VEKS_VECTOR_ARITHMETIC_MAGNITUDES_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Abs
 * `pDst[n] = |pSrc[n]|`; in place `pSrcDst[n] = |pSrcDst[n]|`. The magnitude of the least integer
 * saturates: that of -32768 is 32767. Floating-point values lose their sign bit, NaN too.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the results
 * @param len the number of elements, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksAbs_16s(const Vek16s* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksAbs_16s_I(Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksAbs_32s(const Vek32s* pSrc, Vek32s* pDst, int len);
VEKS_API VekStatus veksAbs_32s_I(Vek32s* pSrcDst, int len);
VEKS_API VekStatus veksAbs_32f(const Vek32f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksAbs_32f_I(Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksAbs_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksAbs_64f_I(Vek64f* pSrcDst, int len);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
