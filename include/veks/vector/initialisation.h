/**
 * @file
 * Filling, copying, reversing and byte-swapping vectors. All work on bit patterns: NaN payloads and
 * negative zeros survive.
 */
#ifndef VEKS_VECTOR_INITIALISATION_H
#define VEKS_VECTOR_INITIALISATION_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Set
 * `pDst[n] = val` for 0 <= n < len.
 *
 * @param val the value of every element
 * @param pDst the destination, `len` elements
 * @param len the number of elements, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksSet_8u(Vek8u val, Vek8u* pDst, int len);
VEKS_API VekStatus veksSet_16s(Vek16s val, Vek16s* pDst, int len);
VEKS_API VekStatus veksSet_32s(Vek32s val, Vek32s* pDst, int len);
VEKS_API VekStatus veksSet_64s(Vek64s val, Vek64s* pDst, int len);
VEKS_API VekStatus veksSet_32f(Vek32f val, Vek32f* pDst, int len);
VEKS_API VekStatus veksSet_64f(Vek64f val, Vek64f* pDst, int len);
VEKS_API VekStatus veksSet_16sc(Vek16sc val, Vek16sc* pDst, int len);
VEKS_API VekStatus veksSet_32sc(Vek32sc val, Vek32sc* pDst, int len);
VEKS_API VekStatus veksSet_64sc(Vek64sc val, Vek64sc* pDst, int len);
VEKS_API VekStatus veksSet_32fc(Vek32fc val, Vek32fc* pDst, int len);
VEKS_API VekStatus veksSet_64fc(Vek64fc val, Vek64fc* pDst, int len);
/** @} */

/**
 * @name Zero
 * `pDst[n] = 0` (all bits zero) for 0 <= n < len.
 *
 * @param pDst the destination, `len` elements
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksZero_8u(Vek8u* pDst, int len);
VEKS_API VekStatus veksZero_16s(Vek16s* pDst, int len);
VEKS_API VekStatus veksZero_32s(Vek32s* pDst, int len);
VEKS_API VekStatus veksZero_64s(Vek64s* pDst, int len);
VEKS_API VekStatus veksZero_32f(Vek32f* pDst, int len);
VEKS_API VekStatus veksZero_64f(Vek64f* pDst, int len);
VEKS_API VekStatus veksZero_16sc(Vek16sc* pDst, int len);
VEKS_API VekStatus veksZero_32sc(Vek32sc* pDst, int len);
VEKS_API VekStatus veksZero_64sc(Vek64sc* pDst, int len);
VEKS_API VekStatus veksZero_32fc(Vek32fc* pDst, int len);
VEKS_API VekStatus veksZero_64fc(Vek64fc* pDst, int len);
/** @} */

/**
 * @name Copy
 * `pDst[n] = pSrc[n]` for 0 <= n < len. The vectors must not overlap; Move allows it.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksCopy_8u(const Vek8u* pSrc, Vek8u* pDst, int len);
VEKS_API VekStatus veksCopy_16s(const Vek16s* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksCopy_32s(const Vek32s* pSrc, Vek32s* pDst, int len);
VEKS_API VekStatus veksCopy_64s(const Vek64s* pSrc, Vek64s* pDst, int len);
VEKS_API VekStatus veksCopy_32f(const Vek32f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksCopy_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksCopy_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len);
VEKS_API VekStatus veksCopy_32sc(const Vek32sc* pSrc, Vek32sc* pDst, int len);
VEKS_API VekStatus veksCopy_64sc(const Vek64sc* pSrc, Vek64sc* pDst, int len);
VEKS_API VekStatus veksCopy_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len);
VEKS_API VekStatus veksCopy_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len);
/** @} */

/**
 * @name Move
 * `pDst[n] = pSrc[n]` for 0 <= n < len, with the values that the source had before the call:
 * the vectors may overlap in any way.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksMove_8u(const Vek8u* pSrc, Vek8u* pDst, int len);
VEKS_API VekStatus veksMove_16s(const Vek16s* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksMove_32s(const Vek32s* pSrc, Vek32s* pDst, int len);
VEKS_API VekStatus veksMove_64s(const Vek64s* pSrc, Vek64s* pDst, int len);
VEKS_API VekStatus veksMove_32f(const Vek32f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksMove_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksMove_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len);
VEKS_API VekStatus veksMove_32sc(const Vek32sc* pSrc, Vek32sc* pDst, int len);
VEKS_API VekStatus veksMove_64sc(const Vek64sc* pSrc, Vek64sc* pDst, int len);
VEKS_API VekStatus veksMove_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len);
VEKS_API VekStatus veksMove_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len);
/** @} */

/**
 * @name Flip
 * Reverses the order: `pDst[n] = pSrc[len - 1 - n]` for 0 <= n < len. `pDst` may be `pSrc` (the
 * `_I` forms are that case); other overlaps are not allowed.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the vector that is reversed in place
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksFlip_8u(const Vek8u* pSrc, Vek8u* pDst, int len);
VEKS_API VekStatus veksFlip_8u_I(Vek8u* pSrcDst, int len);
VEKS_API VekStatus veksFlip_16u(const Vek16u* pSrc, Vek16u* pDst, int len);
VEKS_API VekStatus veksFlip_16u_I(Vek16u* pSrcDst, int len);
VEKS_API VekStatus veksFlip_32f(const Vek32f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksFlip_32f_I(Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksFlip_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksFlip_64f_I(Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksFlip_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len);
VEKS_API VekStatus veksFlip_16sc_I(Vek16sc* pSrcDst, int len);
VEKS_API VekStatus veksFlip_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len);
VEKS_API VekStatus veksFlip_32fc_I(Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksFlip_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len);
VEKS_API VekStatus veksFlip_64fc_I(Vek64fc* pSrcDst, int len);
/** @} */

/**
 * @name SwapBytes
 * Reverses the bytes of each element, which converts between little-endian and big-endian samples.
 * The `24u` forms work on packed samples of three bytes, and `len` counts samples, not bytes.
 * `pDst` may be `pSrc`; other overlaps are not allowed.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the vector that is changed in place
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksSwapBytes_16u(const Vek16u* pSrc, Vek16u* pDst, int len);
VEKS_API VekStatus veksSwapBytes_16u_I(Vek16u* pSrcDst, int len);
VEKS_API VekStatus veksSwapBytes_24u(const Vek8u* pSrc, Vek8u* pDst, int len);
VEKS_API VekStatus veksSwapBytes_24u_I(Vek8u* pSrcDst, int len);
VEKS_API VekStatus veksSwapBytes_32u(const Vek32u* pSrc, Vek32u* pDst, int len);
VEKS_API VekStatus veksSwapBytes_32u_I(Vek32u* pSrcDst, int len);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
