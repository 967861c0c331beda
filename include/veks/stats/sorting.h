/**
 * @file
 * Sorting in place.
 */
#ifndef VEKS_STATS_SORTING_H
#define VEKS_STATS_SORTING_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Sort
 * Sorts in place: `pSrcDst[0] <= pSrcDst[1] <= ... <= pSrcDst[len - 1]` after SortAscend,
 * `pSrcDst[0] >= pSrcDst[1] >= ... >= pSrcDst[len - 1]` after SortDescend.
 *
 * Every element is kept, bit for bit. In floating-point vectors, -0 stands before +0 in ascending
 * and after it in descending order. Elements that are NaN stand behind all others, whatever the
 * direction, in an order that is the same on every processor.
 *
 * The number of steps is at most proportional to `len * log(len)` on any input, with 8u to `len`.
 * No memory is allocated; a call takes less than 6 KiB of the stack.
 *
 * @param pSrcDst the vector, `len` elements, overwritten with the same elements in order
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksSortAscend_8u_I(Vek8u* pSrcDst, int len);
VEKS_API VekStatus veksSortAscend_16s_I(Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksSortAscend_32s_I(Vek32s* pSrcDst, int len);
VEKS_API VekStatus veksSortAscend_32f_I(Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksSortAscend_64f_I(Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksSortDescend_8u_I(Vek8u* pSrcDst, int len);
VEKS_API VekStatus veksSortDescend_16s_I(Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksSortDescend_32s_I(Vek32s* pSrcDst, int len);
VEKS_API VekStatus veksSortDescend_32f_I(Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksSortDescend_64f_I(Vek64f* pSrcDst, int len);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
