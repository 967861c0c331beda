/**
 * @file
 * Minima, maxima, their positions, and the binary order of a vector. Results are exact and the same
 * on every processor, for sources at any address.
 */
#ifndef VEKS_STATS_EXTREMES_H
#define VEKS_STATS_EXTREMES_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Min, Max, MinMax
 * The least element, the greatest one, or both: what a loop gives that starts with the first
 * element and replaces its result by every element that is less (greater). So the first of equal
 * elements counts: of zeros of either sign the first one is the result. A NaN in the first position
 * stays the result, a NaN anywhere else never becomes it.
 *
 * @param pSrc the source, `len` elements
 * @param len the number of elements
 * @param pMin the least element
 * @param pMax the greatest element
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksMin_16s(const Vek16s* pSrc, int len, Vek16s* pMin);
VEKS_API VekStatus veksMin_32s(const Vek32s* pSrc, int len, Vek32s* pMin);
VEKS_API VekStatus veksMin_32f(const Vek32f* pSrc, int len, Vek32f* pMin);
VEKS_API VekStatus veksMin_64f(const Vek64f* pSrc, int len, Vek64f* pMin);
VEKS_API VekStatus veksMax_16s(const Vek16s* pSrc, int len, Vek16s* pMax);
VEKS_API VekStatus veksMax_32s(const Vek32s* pSrc, int len, Vek32s* pMax);
VEKS_API VekStatus veksMax_32f(const Vek32f* pSrc, int len, Vek32f* pMax);
VEKS_API VekStatus veksMax_64f(const Vek64f* pSrc, int len, Vek64f* pMax);
VEKS_API VekStatus veksMinMax_8u(const Vek8u* pSrc, int len, Vek8u* pMin, Vek8u* pMax);
VEKS_API VekStatus veksMinMax_16u(const Vek16u* pSrc, int len, Vek16u* pMin, Vek16u* pMax);
VEKS_API VekStatus veksMinMax_16s(const Vek16s* pSrc, int len, Vek16s* pMin, Vek16s* pMax);
VEKS_API VekStatus veksMinMax_32u(const Vek32u* pSrc, int len, Vek32u* pMin, Vek32u* pMax);
VEKS_API VekStatus veksMinMax_32s(const Vek32s* pSrc, int len, Vek32s* pMin, Vek32s* pMax);
VEKS_API VekStatus veksMinMax_32f(const Vek32f* pSrc, int len, Vek32f* pMin, Vek32f* pMax);
VEKS_API VekStatus veksMinMax_64f(const Vek64f* pSrc, int len, Vek64f* pMin, Vek64f* pMax);
/** @} */

/**
 * @name MinIndx, MaxIndx
 * The least (greatest) element, by the rule of Min and Max, and the position of the first element
 * that equals it, counted from 0. A NaN in the first position has the position 0.
 *
 * @param pSrc the source, `len` elements
 * @param len the number of elements
 * @param pMin the least element
 * @param pMax the greatest element
 * @param pIndx its position; may be null: then only the value is written
 * @return #vekStsOk; #vekErrNullPtr if a pointer but `pIndx` is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksMinIndx_16s(const Vek16s* pSrc, int len, Vek16s* pMin, int* pIndx);
VEKS_API VekStatus veksMinIndx_32s(const Vek32s* pSrc, int len, Vek32s* pMin, int* pIndx);
VEKS_API VekStatus veksMinIndx_32f(const Vek32f* pSrc, int len, Vek32f* pMin, int* pIndx);
VEKS_API VekStatus veksMinIndx_64f(const Vek64f* pSrc, int len, Vek64f* pMin, int* pIndx);
VEKS_API VekStatus veksMaxIndx_16s(const Vek16s* pSrc, int len, Vek16s* pMax, int* pIndx);
VEKS_API VekStatus veksMaxIndx_32s(const Vek32s* pSrc, int len, Vek32s* pMax, int* pIndx);
VEKS_API VekStatus veksMaxIndx_32f(const Vek32f* pSrc, int len, Vek32f* pMax, int* pIndx);
VEKS_API VekStatus veksMaxIndx_64f(const Vek64f* pSrc, int len, Vek64f* pMax, int* pIndx);
/** @} */

/**
 * @name MinEvery, MaxEvery
 * Element by element, `pSrcDst[n]` becomes `pSrc[n]` where that is less (MinEvery) or greater
 * (MaxEvery). Elsewhere it is kept: where both are equal, zeros of either sign too, and where one
 * of them is NaN. The source may be the destination; other overlaps are not allowed.
 *
 * @param pSrc the source, `len` elements
 * @param pSrcDst the other source, overwritten with the results
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksMinEvery_16s_I(const Vek16s* pSrc, Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksMinEvery_32s_I(const Vek32s* pSrc, Vek32s* pSrcDst, int len);
VEKS_API VekStatus veksMinEvery_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksMinEvery_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksMaxEvery_16s_I(const Vek16s* pSrc, Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksMaxEvery_32s_I(const Vek32s* pSrc, Vek32s* pSrcDst, int len);
VEKS_API VekStatus veksMaxEvery_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksMaxEvery_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len);
/** @} */

/**
 * @name MaxOrder
 * The binary order of the largest magnitude `m` of all elements. Integers: the least `k >= 0` with
 * `m < 2^k`, the number of bits that magnitudes need; 16 for -32768. Floating-point values: the `k`
 * of any sign with `2^(k-1) <= m < 2^k`, for denormal numbers too, and 0 if all elements are zero.
 *
 * An infinity counts as the power of two that is too large for the type: the order is 129 (Vek32f)
 * or 1025 (Vek64f). NaN elements are left out and reported by a warning; without others the order
 * is 0.
 *
 * The length is checked before the pointers.
 *
 * @param pSrc the source, `len` elements
 * @param len the number of elements
 * @param pOrder the order
 * @return #vekStsOk; #vekErrSize if `len <= 0`; #vekErrNullPtr if a pointer is null;
 *         #vekWrnNanArg if an element is NaN, with the order of the others
 * @{
 */
VEKS_API VekStatus veksMaxOrder_16s(const Vek16s* pSrc, int len, int* pOrder);
VEKS_API VekStatus veksMaxOrder_32s(const Vek32s* pSrc, int len, int* pOrder);
VEKS_API VekStatus veksMaxOrder_32f(const Vek32f* pSrc, int len, int* pOrder);
VEKS_API VekStatus veksMaxOrder_64f(const Vek64f* pSrc, int len, int* pOrder);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
