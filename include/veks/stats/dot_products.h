/**
 * @file
 * Dot products.
 */
#ifndef VEKS_STATS_DOT_PRODUCTS_H
#define VEKS_STATS_DOT_PRODUCTS_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name DotProd
 * `*pDp = pSrc1[0] * pSrc2[0] + ... + pSrc1[len - 1] * pSrc2[len - 1]`. Complex products are plain,
 * `(a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re)`: no operand is conjugated.
 *
 * Integers: products and their sum are exact for every length. The forms with `scaleFactor` scale,
 * round and saturate the total; a result of 64 bits holds it, one of float is rounded once.
 *
 * Floating-point products are summed in the precision of the result, 16 or more sums side by side,
 * blocks of 4096 elements (fewer complex ones) pairwise. With `u` being `2^-24` for float and
 * `2^-53` for double, the error is at most `(262 + log2(len)) * u * sum(|pSrc1[n]| * |pSrc2[n]|)`.
 * `_32f` rounds each product and each sum to single precision; other forms may fuse a product with
 * the addition to its sum where the processor can. Products of floats are exact where the result is
 * double. The last bits of a result may differ from processor to processor; they never depend on
 * the alignment of the vectors.
 *
 * @param pSrc1 the first factors, `len` elements
 * @param pSrc2 the second factors, `len` elements
 * @param len the number of elements, a complex value counting as one
 * @param pDp where the dot product goes
 * @param scaleFactor the result is multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksDotProd_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, int len, Vek32f* pDp);
VEKS_API VekStatus veksDotProd_32fc(const Vek32fc* pSrc1, const Vek32fc* pSrc2, int len,
                                    Vek32fc* pDp);
VEKS_API VekStatus veksDotProd_32f32fc(const Vek32f* pSrc1, const Vek32fc* pSrc2, int len,
                                       Vek32fc* pDp);
VEKS_API VekStatus veksDotProd_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, int len, Vek64f* pDp);
VEKS_API VekStatus veksDotProd_64fc(const Vek64fc* pSrc1, const Vek64fc* pSrc2, int len,
                                    Vek64fc* pDp);
VEKS_API VekStatus veksDotProd_64f64fc(const Vek64f* pSrc1, const Vek64fc* pSrc2, int len,
                                       Vek64fc* pDp);
VEKS_API VekStatus veksDotProd_32f64f(const Vek32f* pSrc1, const Vek32f* pSrc2, int len,
                                      Vek64f* pDp);
VEKS_API VekStatus veksDotProd_32fc64fc(const Vek32fc* pSrc1, const Vek32fc* pSrc2, int len,
                                        Vek64fc* pDp);
VEKS_API VekStatus veksDotProd_32f32fc64fc(const Vek32f* pSrc1, const Vek32fc* pSrc2, int len,
                                           Vek64fc* pDp);
VEKS_API VekStatus veksDotProd_16s64s(const Vek16s* pSrc1, const Vek16s* pSrc2, int len,
                                      Vek64s* pDp);
VEKS_API VekStatus veksDotProd_16sc64sc(const Vek16sc* pSrc1, const Vek16sc* pSrc2, int len,
                                        Vek64sc* pDp);
VEKS_API VekStatus veksDotProd_16s16sc64sc(const Vek16s* pSrc1, const Vek16sc* pSrc2, int len,
                                           Vek64sc* pDp);
VEKS_API VekStatus veksDotProd_16s32f(const Vek16s* pSrc1, const Vek16s* pSrc2, int len,
                                      Vek32f* pDp);
VEKS_API VekStatus veksDotProd_16sc32fc(const Vek16sc* pSrc1, const Vek16sc* pSrc2, int len,
                                        Vek32fc* pDp);
VEKS_API VekStatus veksDotProd_16s16sc32fc(const Vek16s* pSrc1, const Vek16sc* pSrc2, int len,
                                           Vek32fc* pDp);
VEKS_API VekStatus veksDotProd_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, int len,
                                       Vek16s* pDp, int scaleFactor);
VEKS_API VekStatus veksDotProd_16sc_Sfs(const Vek16sc* pSrc1, const Vek16sc* pSrc2, int len,
                                        Vek16sc* pDp, int scaleFactor);
VEKS_API VekStatus veksDotProd_16s16sc_Sfs(const Vek16s* pSrc1, const Vek16sc* pSrc2, int len,
                                           Vek16sc* pDp, int scaleFactor);
VEKS_API VekStatus veksDotProd_16s32s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, int len,
                                          Vek32s* pDp, int scaleFactor);
VEKS_API VekStatus veksDotProd_16sc32sc_Sfs(const Vek16sc* pSrc1, const Vek16sc* pSrc2, int len,
                                            Vek32sc* pDp, int scaleFactor);
VEKS_API VekStatus veksDotProd_16s16sc32sc_Sfs(const Vek16s* pSrc1, const Vek16sc* pSrc2, int len,
                                               Vek32sc* pDp, int scaleFactor);
VEKS_API VekStatus veksDotProd_16s32s32s_Sfs(const Vek16s* pSrc1, const Vek32s* pSrc2, int len,
                                             Vek32s* pDp, int scaleFactor);
VEKS_API VekStatus veksDotProd_32s_Sfs(const Vek32s* pSrc1, const Vek32s* pSrc2, int len,
                                       Vek32s* pDp, int scaleFactor);
VEKS_API VekStatus veksDotProd_32sc_Sfs(const Vek32sc* pSrc1, const Vek32sc* pSrc2, int len,
                                        Vek32sc* pDp, int scaleFactor);
VEKS_API VekStatus veksDotProd_32s32sc_Sfs(const Vek32s* pSrc1, const Vek32sc* pSrc2, int len,
                                           Vek32sc* pDp, int scaleFactor);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
