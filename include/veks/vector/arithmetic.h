/**
 * @file
 * Element-wise arithmetic on floating-point vectors. A destination may be one of its sources (the
 * `_I` forms are that case); other overlaps are not allowed. Results are correctly rounded and the
 * same on every processor; overflow gives infinity, and special values follow IEEE 754.
 */
#ifndef VEKS_VECTOR_ARITHMETIC_H
#define VEKS_VECTOR_ARITHMETIC_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Add
 * `pDst[n] = pSrc1[n] + pSrc2[n]`; `_I`: `pSrcDst[n] = pSrcDst[n] + pSrc[n]`. Complex values are
 * added part by part.
 *
 * @param pSrc1 the first source, `len` elements
 * @param pSrc2 the second source, `len` elements
 * @param pSrc the first source of the in-place form, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the second source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`, which the
 *         complex forms check first
 * @{
 */
VEKS_API VekStatus veksAdd_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pDst, int len);
VEKS_API VekStatus veksAdd_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksAdd_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pDst, int len);
VEKS_API VekStatus veksAdd_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksAdd_32fc(const Vek32fc* pSrc1, const Vek32fc* pSrc2, Vek32fc* pDst, int len);
VEKS_API VekStatus veksAdd_32fc_I(const Vek32fc* pSrc, Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksAdd_64fc(const Vek64fc* pSrc1, const Vek64fc* pSrc2, Vek64fc* pDst, int len);
VEKS_API VekStatus veksAdd_64fc_I(const Vek64fc* pSrc, Vek64fc* pSrcDst, int len);
/** @} */

/**
 * @name Sub
 * `pDst[n] = pSrc2[n] - pSrc1[n]`: the first operand is the one subtracted; `_I`:
 * `pSrcDst[n] = pSrcDst[n] - pSrc[n]`. Complex values are subtracted part by part.
 *
 * @param pSrc1 the first source, `len` elements
 * @param pSrc2 the second source, `len` elements
 * @param pSrc the first source of the in-place form, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the second source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`, which the
 *         complex forms check first
 * @{
 */
VEKS_API VekStatus veksSub_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pDst, int len);
VEKS_API VekStatus veksSub_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksSub_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pDst, int len);
VEKS_API VekStatus veksSub_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksSub_32fc(const Vek32fc* pSrc1, const Vek32fc* pSrc2, Vek32fc* pDst, int len);
VEKS_API VekStatus veksSub_32fc_I(const Vek32fc* pSrc, Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksSub_64fc(const Vek64fc* pSrc1, const Vek64fc* pSrc2, Vek64fc* pDst, int len);
VEKS_API VekStatus veksSub_64fc_I(const Vek64fc* pSrc, Vek64fc* pSrcDst, int len);
/** @} */

/**
 * @name Mul
 * `pDst[n] = pSrc1[n] * pSrc2[n]`; `_I`: `pSrcDst[n] = pSrcDst[n] * pSrc[n]`.
 *
 * @param pSrc1 the first source, `len` elements
 * @param pSrc2 the second source, `len` elements
 * @param pSrc the first source of the in-place form, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the second source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksMul_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pDst, int len);
VEKS_API VekStatus veksMul_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksMul_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pDst, int len);
VEKS_API VekStatus veksMul_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len);
/** @} */

/**
 * @name AddC
 * `pDst[n] = pSrc[n] + val`; `_I`: `pSrcDst[n] = pSrcDst[n] + val`. Complex values are added part
 * by part.
 *
 * @param pSrc the source, `len` elements
 * @param val the constant
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksAddC_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len);
VEKS_API VekStatus veksAddC_32f_I(Vek32f val, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksAddC_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len);
VEKS_API VekStatus veksAddC_64f_I(Vek64f val, Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksAddC_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len);
VEKS_API VekStatus veksAddC_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksAddC_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len);
VEKS_API VekStatus veksAddC_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len);
/** @} */

/**
 * @name SubC
 * `pDst[n] = pSrc[n] - val`; `_I`: `pSrcDst[n] = pSrcDst[n] - val`. Complex values are subtracted
 * part by part.
 *
 * @param pSrc the source, `len` elements
 * @param val the constant
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksSubC_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len);
VEKS_API VekStatus veksSubC_32f_I(Vek32f val, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksSubC_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len);
VEKS_API VekStatus veksSubC_64f_I(Vek64f val, Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksSubC_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len);
VEKS_API VekStatus veksSubC_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksSubC_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len);
VEKS_API VekStatus veksSubC_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len);
/** @} */

/**
 * @name SubCRev
 * `pDst[n] = val - pSrc[n]`; `_I`: `pSrcDst[n] = val - pSrcDst[n]`. Complex values are subtracted
 * part by part.
 *
 * @param pSrc the source, `len` elements
 * @param val the constant
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksSubCRev_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len);
VEKS_API VekStatus veksSubCRev_32f_I(Vek32f val, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksSubCRev_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len);
VEKS_API VekStatus veksSubCRev_64f_I(Vek64f val, Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksSubCRev_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len);
VEKS_API VekStatus veksSubCRev_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksSubCRev_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len);
VEKS_API VekStatus veksSubCRev_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len);
/** @} */

/**
 * @name MulC
 * `pDst[n] = pSrc[n] * val`; `_I`: `pSrcDst[n] = pSrcDst[n] * val`.
 *
 * @param pSrc the source, `len` elements
 * @param val the constant
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksMulC_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len);
VEKS_API VekStatus veksMulC_32f_I(Vek32f val, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksMulC_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len);
VEKS_API VekStatus veksMulC_64f_I(Vek64f val, Vek64f* pSrcDst, int len);
/** @} */

/**
 * @name Abs
 * Absolute value: `pDst[n] = |pSrc[n]|`; `_I`: `pSrcDst[n] = |pSrcDst[n]|`. The sign bit is
 * cleared, also of zero and NaN.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksAbs_32f(const Vek32f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksAbs_32f_I(Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksAbs_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksAbs_64f_I(Vek64f* pSrcDst, int len);
/** @} */

/**
 * @name Sqr
 * Square: `pDst[n] = pSrc[n] * pSrc[n]`; `_I`: `pSrcDst[n] = pSrcDst[n] * pSrcDst[n]`.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksSqr_32f(const Vek32f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksSqr_32f_I(Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksSqr_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksSqr_64f_I(Vek64f* pSrcDst, int len);
/** @} */

/**
 * @name AddProduct
 * Multiply and accumulate: `pSrcDst[n] = pSrcDst[n] + pSrc1[n] * pSrc2[n]`, the product rounded
 * before the sum is (no fused operation). `pSrcDst` may be one of the sources.
 *
 * @param pSrc1 the first source, `len` elements
 * @param pSrc2 the second source, `len` elements
 * @param pSrcDst the accumulator, `len` elements
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksAddProduct_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pSrcDst,
                                      int len);
VEKS_API VekStatus veksAddProduct_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pSrcDst,
                                      int len);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
