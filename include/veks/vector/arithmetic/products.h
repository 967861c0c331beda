/**
 * @file
 * Products and squares.
 */
#ifndef VEKS_VECTOR_ARITHMETIC_PRODUCTS_H
#define VEKS_VECTOR_ARITHMETIC_PRODUCTS_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Mul
 * `pDst[n] = pSrc1[n] * pSrc2[n]`; in place `pSrcDst[n] = pSrcDst[n] * pSrc[n]`. Complex products
 * are `(a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re)`; those of floating-point values
 * round each product and the sum. Where a real and a complex source meet, both parts are
 * multiplied by the real value. Integer products are exact, complex ones too, before they are
 * scaled and saturated; `_16s` saturates only, `_8u16u` is exact and `_16s32f` rounded once.
 *
 * @param pSrc1 the first source, `len` elements
 * @param pSrc2 the second source, `len` elements
 * @param pSrc the first source of an in-place form, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the second source, overwritten with the results
 * @param len the number of elements, a complex value counting as one
 * @param scaleFactor the results are multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksMul_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pDst, int len);
VEKS_API VekStatus veksMul_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksMul_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pDst, int len);
VEKS_API VekStatus veksMul_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksMul_32fc(const Vek32fc* pSrc1, const Vek32fc* pSrc2, Vek32fc* pDst, int len);
VEKS_API VekStatus veksMul_32fc_I(const Vek32fc* pSrc, Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksMul_64fc(const Vek64fc* pSrc1, const Vek64fc* pSrc2, Vek64fc* pDst, int len);
VEKS_API VekStatus veksMul_64fc_I(const Vek64fc* pSrc, Vek64fc* pSrcDst, int len);
VEKS_API VekStatus veksMul_16s(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len);
VEKS_API VekStatus veksMul_16s_I(const Vek16s* pSrc, Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksMul_16s32f(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek32f* pDst, int len);
VEKS_API VekStatus veksMul_8u_Sfs(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek8u* pDst, int len,
                                  int scaleFactor);
VEKS_API VekStatus veksMul_8u_ISfs(const Vek8u* pSrc, Vek8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksMul_16u_Sfs(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksMul_16u_ISfs(const Vek16u* pSrc, Vek16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksMul_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksMul_16s_ISfs(const Vek16s* pSrc, Vek16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksMul_32s_Sfs(const Vek32s* pSrc1, const Vek32s* pSrc2, Vek32s* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksMul_32s_ISfs(const Vek32s* pSrc, Vek32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksMul_16sc_Sfs(const Vek16sc* pSrc1, const Vek16sc* pSrc2, Vek16sc* pDst,
                                    int len, int scaleFactor);
VEKS_API VekStatus veksMul_16sc_ISfs(const Vek16sc* pSrc, Vek16sc* pSrcDst, int len,
                                     int scaleFactor);
VEKS_API VekStatus veksMul_32sc_Sfs(const Vek32sc* pSrc1, const Vek32sc* pSrc2, Vek32sc* pDst,
                                    int len, int scaleFactor);
VEKS_API VekStatus veksMul_32sc_ISfs(const Vek32sc* pSrc, Vek32sc* pSrcDst, int len,
                                     int scaleFactor);
VEKS_API VekStatus veksMul_8u16u(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek16u* pDst, int len);
VEKS_API VekStatus veksMul_32f32fc(const Vek32f* pSrc1, const Vek32fc* pSrc2, Vek32fc* pDst,
                                   int len);
VEKS_API VekStatus veksMul_32f32fc_I(const Vek32f* pSrc, Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksMul_16s32s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek32s* pDst,
                                      int len, int scaleFactor);
VEKS_API VekStatus veksMul_16u16s_Sfs(const Vek16u* pSrc1, const Vek16s* pSrc2, Vek16s* pDst,
                                      int len, int scaleFactor);
VEKS_API VekStatus veksMul_32s32sc_Sfs(const Vek32s* pSrc1, const Vek32sc* pSrc2, Vek32sc* pDst,
                                       int len, int scaleFactor);
VEKS_API VekStatus veksMul_32s32sc_ISfs(const Vek32s* pSrc, Vek32sc* pSrcDst, int len,
                                        int scaleFactor);
/** @} */

/**
 * @name MulC
 * `pDst[n] = pSrc[n] * val`; in place `pSrcDst[n] = pSrcDst[n] * val`. Complex products as in Mul.
 * Integer products are exact before they are scaled and saturated; `_16s_I` saturates only.
 * `_32f16s_Sfs` scales the product of single precision, rounds it to nearest with ties to even and
 * saturates; NaN gives -32768.
 *
 * @param pSrc the source, `len` elements
 * @param val the constant
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the results
 * @param len the number of elements, a complex value counting as one
 * @param scaleFactor the results are multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksMulC_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len);
VEKS_API VekStatus veksMulC_32f_I(Vek32f val, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksMulC_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len);
VEKS_API VekStatus veksMulC_64f_I(Vek64f val, Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksMulC_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len);
VEKS_API VekStatus veksMulC_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksMulC_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len);
VEKS_API VekStatus veksMulC_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len);
VEKS_API VekStatus veksMulC_8u_Sfs(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksMulC_8u_ISfs(Vek8u val, Vek8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksMulC_16u_Sfs(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len,
                                    int scaleFactor);
VEKS_API VekStatus veksMulC_16u_ISfs(Vek16u val, Vek16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksMulC_16s_Sfs(const Vek16s* pSrc, Vek16s val, Vek16s* pDst, int len,
                                    int scaleFactor);
VEKS_API VekStatus veksMulC_16s_ISfs(Vek16s val, Vek16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksMulC_32s_Sfs(const Vek32s* pSrc, Vek32s val, Vek32s* pDst, int len,
                                    int scaleFactor);
VEKS_API VekStatus veksMulC_32s_ISfs(Vek32s val, Vek32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksMulC_16sc_Sfs(const Vek16sc* pSrc, Vek16sc val, Vek16sc* pDst, int len,
                                     int scaleFactor);
VEKS_API VekStatus veksMulC_16sc_ISfs(Vek16sc val, Vek16sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksMulC_32sc_Sfs(const Vek32sc* pSrc, Vek32sc val, Vek32sc* pDst, int len,
                                     int scaleFactor);
VEKS_API VekStatus veksMulC_32sc_ISfs(Vek32sc val, Vek32sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksMulC_16s_I(Vek16s val, Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksMulC_32f16s_Sfs(const Vek32f* pSrc, Vek32f val, Vek16s* pDst, int len,
                                       int scaleFactor);
/** @} */

/**
 * @name MulC_Low
 * `pDst[n] = pSrc[n] * val` in single precision, rounded to nearest with ties to even and
 * saturated to 16 bits; NaN gives -32768.
 *
 * @param pSrc the source, `len` elements
 * @param val the constant
 * @param pDst the destination, `len` elements
 * @param len the number of elements, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksMulC_Low_32f16s(const Vek32f* pSrc, Vek32f val, Vek16s* pDst, int len);
/** @} */

/**
 * @name Sqr
 * `pDst[n] = pSrc[n] * pSrc[n]`; in place `pSrcDst[n] = pSrcDst[n] * pSrcDst[n]`. Complex squares
 * are products as in Mul. Integer squares are exact before they are scaled and saturated.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the results
 * @param len the number of elements, a complex value counting as one
 * @param scaleFactor the results are multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksSqr_32f(const Vek32f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksSqr_32f_I(Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksSqr_64f(const Vek64f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksSqr_64f_I(Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksSqr_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len);
VEKS_API VekStatus veksSqr_32fc_I(Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksSqr_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len);
VEKS_API VekStatus veksSqr_64fc_I(Vek64fc* pSrcDst, int len);
VEKS_API VekStatus veksSqr_8u_Sfs(const Vek8u* pSrc, Vek8u* pDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqr_8u_ISfs(Vek8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqr_16u_Sfs(const Vek16u* pSrc, Vek16u* pDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqr_16u_ISfs(Vek16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqr_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqr_16s_ISfs(Vek16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqr_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int len, int scaleFactor);
VEKS_API VekStatus veksSqr_16sc_ISfs(Vek16sc* pSrcDst, int len, int scaleFactor);
/** @} */

/**
 * @name AddProduct
 * `pSrcDst[n] = pSrcDst[n] + pSrc1[n] * pSrc2[n]`. Floating-point products are rounded before they
 * are added, on processors with fused operations too; complex products as in Mul. With a scale
 * factor the whole sum of old value and product is exact, then scaled and saturated.
 *
 * @param pSrc1 the first factors, `len` elements
 * @param pSrc2 the second factors, `len` elements
 * @param pSrcDst the values that the products are added to, overwritten with the results
 * @param len the number of elements, a complex value counting as one
 * @param scaleFactor the results are multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksAddProduct_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pSrcDst,
                                      int len);
VEKS_API VekStatus veksAddProduct_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pSrcDst,
                                      int len);
VEKS_API VekStatus veksAddProduct_32fc(const Vek32fc* pSrc1, const Vek32fc* pSrc2, Vek32fc* pSrcDst,
                                       int len);
VEKS_API VekStatus veksAddProduct_64fc(const Vek64fc* pSrc1, const Vek64fc* pSrc2, Vek64fc* pSrcDst,
                                       int len);
VEKS_API VekStatus veksAddProduct_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pSrcDst,
                                          int len, int scaleFactor);
VEKS_API VekStatus veksAddProduct_32s_Sfs(const Vek32s* pSrc1, const Vek32s* pSrc2, Vek32s* pSrcDst,
                                          int len, int scaleFactor);
VEKS_API VekStatus veksAddProduct_16s32s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2,
                                             Vek32s* pSrcDst, int len, int scaleFactor);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
