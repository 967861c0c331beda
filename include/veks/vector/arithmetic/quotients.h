/**
 * @file
 * Quotients of vectors, and of a vector and a constant.
 */
#ifndef VEKS_VECTOR_ARITHMETIC_QUOTIENTS_H
#define VEKS_VECTOR_ARITHMETIC_QUOTIENTS_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Div
 * `pDst[n] = pSrc2[n] / pSrc1[n]`: the first operand is the divisor; in place `pSrcDst[n] =
 * pSrcDst[n] / pSrc[n]`.
 *
 * Floating-point quotients are correctly rounded. A zero divisor, of either sign, gives infinity
 * with the sign of the dividend, and NaN for a zero dividend. Complex quotients are `b * conj(a) /
 * |a|^2`, with operands scaled where that would overflow or underflow on the way, in the precision
 * of the type: an error of at most 2^-21 (Vek32fc) or 2^-50 (Vek64fc) of the quotient's magnitude.
 * A zero divisor divides both parts by zero as above, operands with infinite parts give NaN.
 *
 * Integer quotients of 8 and 16 bits are computed in single precision, multiplied by
 * `2^-scaleFactor`, rounded to nearest with ties to even and saturated. Those of 32 bits and of
 * complex values are exact before they are scaled. A zero divisor gives 0 for a zero dividend,
 * else the limit of the type on the dividend's side, whatever the scale factor.
 *
 * @param pSrc1 the divisors, `len` elements
 * @param pSrc2 the dividends, `len` elements
 * @param pSrc the divisors of an in-place form, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the dividends, overwritten with the results
 * @param len the number of elements, a complex value counting as one
 * @param scaleFactor the results are multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekWrnDivByZero if a divisor was zero, after all elements
 * @{
 */
VEKS_API VekStatus veksDiv_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pDst, int len);
VEKS_API VekStatus veksDiv_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksDiv_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pDst, int len);
VEKS_API VekStatus veksDiv_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksDiv_32fc(const Vek32fc* pSrc1, const Vek32fc* pSrc2, Vek32fc* pDst, int len);
VEKS_API VekStatus veksDiv_32fc_I(const Vek32fc* pSrc, Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksDiv_64fc(const Vek64fc* pSrc1, const Vek64fc* pSrc2, Vek64fc* pDst, int len);
VEKS_API VekStatus veksDiv_64fc_I(const Vek64fc* pSrc, Vek64fc* pSrcDst, int len);
VEKS_API VekStatus veksDiv_8u_Sfs(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek8u* pDst, int len,
                                  int scaleFactor);
VEKS_API VekStatus veksDiv_8u_ISfs(const Vek8u* pSrc, Vek8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksDiv_16u_Sfs(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksDiv_16u_ISfs(const Vek16u* pSrc, Vek16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksDiv_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksDiv_16s_ISfs(const Vek16s* pSrc, Vek16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksDiv_32s_Sfs(const Vek32s* pSrc1, const Vek32s* pSrc2, Vek32s* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksDiv_32s_ISfs(const Vek32s* pSrc, Vek32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksDiv_16sc_Sfs(const Vek16sc* pSrc1, const Vek16sc* pSrc2, Vek16sc* pDst,
                                    int len, int scaleFactor);
VEKS_API VekStatus veksDiv_16sc_ISfs(const Vek16sc* pSrc, Vek16sc* pSrcDst, int len,
                                     int scaleFactor);
VEKS_API VekStatus veksDiv_32s16s_Sfs(const Vek16s* pSrc1, const Vek32s* pSrc2, Vek16s* pDst,
                                      int len, int scaleFactor);
/** @} */

/**
 * @name DivC
 * `pDst[n] = pSrc[n] / val`; in place `pSrcDst[n] = pSrcDst[n] / val`.
 *
 * The floating-point forms multiply by `1 / val`, rounded once to the type, so that a result may
 * differ from the quotient in the last bit. The integer forms compute quotients as Div does.
 *
 * @param pSrc the source, `len` elements
 * @param val the divisor
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the results
 * @param len the number of elements, a complex value counting as one
 * @param scaleFactor the results are multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekErrDivByZero if `val` is zero, which the floating-point forms check first and the
 *         integer forms last
 * @{
 */
VEKS_API VekStatus veksDivC_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len);
VEKS_API VekStatus veksDivC_32f_I(Vek32f val, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksDivC_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len);
VEKS_API VekStatus veksDivC_64f_I(Vek64f val, Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksDivC_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len);
VEKS_API VekStatus veksDivC_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksDivC_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len);
VEKS_API VekStatus veksDivC_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len);
VEKS_API VekStatus veksDivC_8u_Sfs(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksDivC_8u_ISfs(Vek8u val, Vek8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksDivC_16u_Sfs(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len,
                                    int scaleFactor);
VEKS_API VekStatus veksDivC_16u_ISfs(Vek16u val, Vek16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksDivC_16s_Sfs(const Vek16s* pSrc, Vek16s val, Vek16s* pDst, int len,
                                    int scaleFactor);
VEKS_API VekStatus veksDivC_16s_ISfs(Vek16s val, Vek16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksDivC_16sc_Sfs(const Vek16sc* pSrc, Vek16sc val, Vek16sc* pDst, int len,
                                     int scaleFactor);
VEKS_API VekStatus veksDivC_16sc_ISfs(Vek16sc val, Vek16sc* pSrcDst, int len, int scaleFactor);
/** @} */

/**
 * @name DivCRev
 * `pDst[n] = val / pSrc[n]`; in place `pSrcDst[n] = val / pSrcDst[n]`. `_32f` as Div: correctly
 * rounded, a zero element gives infinity with the sign of `val`. `_16u` rounds to nearest with
 * ties to even, a zero element gives 65535.
 *
 * If `val` is zero, the source is not looked at and the destination is set to zero: by
 * #veksZero_32f, whose status is returned, or, for `_16u`, without an error if it is null or `len
 * <= 0`.
 *
 * @param pSrc the source, `len` elements
 * @param val the dividend
 * @param pDst the destination, `len` elements
 * @param pSrcDst the divisors, overwritten with the results
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekWrnDivByZero if an element was zero, after all elements; see above for a zero `val`
 * @{
 */
VEKS_API VekStatus veksDivCRev_16u(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len);
VEKS_API VekStatus veksDivCRev_16u_I(Vek16u val, Vek16u* pSrcDst, int len);
VEKS_API VekStatus veksDivCRev_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len);
VEKS_API VekStatus veksDivCRev_32f_I(Vek32f val, Vek32f* pSrcDst, int len);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
