/**
 * @file
 * Bitwise logic and shifts by a constant. A destination may be one of its sources (the `_I` forms
 * are that case); other overlaps are not allowed.
 */
#ifndef VEKS_VECTOR_LOGICAL_H
#define VEKS_VECTOR_LOGICAL_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name And
 * Bitwise AND: `pDst[n] = pSrc1[n] & pSrc2[n]`; `_I`: `pSrcDst[n] = pSrcDst[n] & pSrc[n]`.
 *
 * @param pSrc1 the first source, `len` elements
 * @param pSrc2 the second source, `len` elements
 * @param pSrc the source of the in-place form, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the second source, overwritten with the result
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksAnd_8u(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek8u* pDst, int len);
VEKS_API VekStatus veksAnd_8u_I(const Vek8u* pSrc, Vek8u* pSrcDst, int len);
VEKS_API VekStatus veksAnd_16u(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len);
VEKS_API VekStatus veksAnd_16u_I(const Vek16u* pSrc, Vek16u* pSrcDst, int len);
VEKS_API VekStatus veksAnd_32u(const Vek32u* pSrc1, const Vek32u* pSrc2, Vek32u* pDst, int len);
VEKS_API VekStatus veksAnd_32u_I(const Vek32u* pSrc, Vek32u* pSrcDst, int len);
/** @} */

/**
 * @name AndC
 * Bitwise AND with a constant: `pDst[n] = pSrc[n] & val`; `_I`: `pSrcDst[n] = pSrcDst[n] & val`.
 *
 * @param pSrc the source, `len` elements
 * @param val the constant
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksAndC_8u(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len);
VEKS_API VekStatus veksAndC_8u_I(Vek8u val, Vek8u* pSrcDst, int len);
VEKS_API VekStatus veksAndC_16u(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len);
VEKS_API VekStatus veksAndC_16u_I(Vek16u val, Vek16u* pSrcDst, int len);
VEKS_API VekStatus veksAndC_32u(const Vek32u* pSrc, Vek32u val, Vek32u* pDst, int len);
VEKS_API VekStatus veksAndC_32u_I(Vek32u val, Vek32u* pSrcDst, int len);
/** @} */

/**
 * @name Or
 * Bitwise OR: `pDst[n] = pSrc1[n] | pSrc2[n]`; `_I`: `pSrcDst[n] = pSrcDst[n] | pSrc[n]`.
 *
 * @param pSrc1 the first source, `len` elements
 * @param pSrc2 the second source, `len` elements
 * @param pSrc the source of the in-place form, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the second source, overwritten with the result
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksOr_8u(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek8u* pDst, int len);
VEKS_API VekStatus veksOr_8u_I(const Vek8u* pSrc, Vek8u* pSrcDst, int len);
VEKS_API VekStatus veksOr_16u(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len);
VEKS_API VekStatus veksOr_16u_I(const Vek16u* pSrc, Vek16u* pSrcDst, int len);
VEKS_API VekStatus veksOr_32u(const Vek32u* pSrc1, const Vek32u* pSrc2, Vek32u* pDst, int len);
VEKS_API VekStatus veksOr_32u_I(const Vek32u* pSrc, Vek32u* pSrcDst, int len);
/** @} */

/**
 * @name OrC
 * Bitwise OR with a constant: `pDst[n] = pSrc[n] | val`; `_I`: `pSrcDst[n] = pSrcDst[n] | val`.
 *
 * @param pSrc the source, `len` elements
 * @param val the constant
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksOrC_8u(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len);
VEKS_API VekStatus veksOrC_8u_I(Vek8u val, Vek8u* pSrcDst, int len);
VEKS_API VekStatus veksOrC_16u(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len);
VEKS_API VekStatus veksOrC_16u_I(Vek16u val, Vek16u* pSrcDst, int len);
VEKS_API VekStatus veksOrC_32u(const Vek32u* pSrc, Vek32u val, Vek32u* pDst, int len);
VEKS_API VekStatus veksOrC_32u_I(Vek32u val, Vek32u* pSrcDst, int len);
/** @} */

/**
 * @name Xor
 * Bitwise exclusive OR: `pDst[n] = pSrc1[n] ^ pSrc2[n]`; `_I`: `pSrcDst[n] = pSrcDst[n] ^ pSrc[n]`.
 *
 * @param pSrc1 the first source, `len` elements
 * @param pSrc2 the second source, `len` elements
 * @param pSrc the source of the in-place form, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the second source, overwritten with the result
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksXor_8u(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek8u* pDst, int len);
VEKS_API VekStatus veksXor_8u_I(const Vek8u* pSrc, Vek8u* pSrcDst, int len);
VEKS_API VekStatus veksXor_16u(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len);
VEKS_API VekStatus veksXor_16u_I(const Vek16u* pSrc, Vek16u* pSrcDst, int len);
VEKS_API VekStatus veksXor_32u(const Vek32u* pSrc1, const Vek32u* pSrc2, Vek32u* pDst, int len);
VEKS_API VekStatus veksXor_32u_I(const Vek32u* pSrc, Vek32u* pSrcDst, int len);
/** @} */

/**
 * @name XorC
 * Bitwise exclusive OR with a constant: `pDst[n] = pSrc[n] ^ val`; `_I`: `pSrcDst[n] = pSrcDst[n] ^
 * val`.
 *
 * @param pSrc the source, `len` elements
 * @param val the constant
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksXorC_8u(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len);
VEKS_API VekStatus veksXorC_8u_I(Vek8u val, Vek8u* pSrcDst, int len);
VEKS_API VekStatus veksXorC_16u(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len);
VEKS_API VekStatus veksXorC_16u_I(Vek16u val, Vek16u* pSrcDst, int len);
VEKS_API VekStatus veksXorC_32u(const Vek32u* pSrc, Vek32u val, Vek32u* pDst, int len);
VEKS_API VekStatus veksXorC_32u_I(Vek32u val, Vek32u* pSrcDst, int len);
/** @} */

/**
 * @name Not
 * Bitwise complement: `pDst[n] = ~pSrc[n]`; `_I`: `pSrcDst[n] = ~pSrcDst[n]`.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksNot_8u(const Vek8u* pSrc, Vek8u* pDst, int len);
VEKS_API VekStatus veksNot_8u_I(Vek8u* pSrcDst, int len);
VEKS_API VekStatus veksNot_16u(const Vek16u* pSrc, Vek16u* pDst, int len);
VEKS_API VekStatus veksNot_16u_I(Vek16u* pSrcDst, int len);
VEKS_API VekStatus veksNot_32u(const Vek32u* pSrc, Vek32u* pDst, int len);
VEKS_API VekStatus veksNot_32u_I(Vek32u* pSrcDst, int len);
/** @} */

/**
 * @name LShiftC
 * Shifts the bit pattern of each element left: `pDst[n] = pSrc[n] * 2^val` modulo 2^w, w being the
 * element width in bits. Bits shifted out are lost, nothing saturates; `val >= w` gives zeros.
 *
 * @param pSrc the source, `len` elements
 * @param val the number of bits, 0 or more; larger than the element width is allowed
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`; #vekErrShift if
 *         `val < 0`
 * @{
 */
VEKS_API VekStatus veksLShiftC_8u(const Vek8u* pSrc, int val, Vek8u* pDst, int len);
VEKS_API VekStatus veksLShiftC_8u_I(int val, Vek8u* pSrcDst, int len);
VEKS_API VekStatus veksLShiftC_16u(const Vek16u* pSrc, int val, Vek16u* pDst, int len);
VEKS_API VekStatus veksLShiftC_16u_I(int val, Vek16u* pSrcDst, int len);
VEKS_API VekStatus veksLShiftC_16s(const Vek16s* pSrc, int val, Vek16s* pDst, int len);
VEKS_API VekStatus veksLShiftC_16s_I(int val, Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksLShiftC_32s(const Vek32s* pSrc, int val, Vek32s* pDst, int len);
VEKS_API VekStatus veksLShiftC_32s_I(int val, Vek32s* pSrcDst, int len);
/** @} */

/**
 * @name RShiftC
 * Shifts each element right: `pDst[n] = floor(pSrc[n] / 2^val)`. Zeros come into unsigned elements,
 * copies of the sign bit into signed ones, so that -1 stays -1; `val` at or above the element width
 * gives 0, or -1 for negative elements.
 *
 * @param pSrc the source, `len` elements
 * @param val the number of bits, 0 or more; larger than the element width is allowed
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`; #vekErrShift if
 *         `val < 0`
 * @{
 */
VEKS_API VekStatus veksRShiftC_8u(const Vek8u* pSrc, int val, Vek8u* pDst, int len);
VEKS_API VekStatus veksRShiftC_8u_I(int val, Vek8u* pSrcDst, int len);
VEKS_API VekStatus veksRShiftC_16u(const Vek16u* pSrc, int val, Vek16u* pDst, int len);
VEKS_API VekStatus veksRShiftC_16u_I(int val, Vek16u* pSrcDst, int len);
VEKS_API VekStatus veksRShiftC_16s(const Vek16s* pSrc, int val, Vek16s* pDst, int len);
VEKS_API VekStatus veksRShiftC_16s_I(int val, Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksRShiftC_32s(const Vek32s* pSrc, int val, Vek32s* pDst, int len);
VEKS_API VekStatus veksRShiftC_32s_I(int val, Vek32s* pSrcDst, int len);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
