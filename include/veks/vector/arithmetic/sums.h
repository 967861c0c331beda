/**
 * @file
 * Sums and differences of vectors, and of a vector and a constant.
 */
#ifndef VEKS_VECTOR_ARITHMETIC_SUMS_H
#define VEKS_VECTOR_ARITHMETIC_SUMS_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Add
 * `pDst[n] = pSrc1[n] + pSrc2[n]`; in place `pSrcDst[n] = pSrcDst[n] + pSrc[n]`. Complex values
 * are added part by part. Integer sums are exact before they are scaled and saturated; the forms
 * without a scale factor saturate only. `_16s32f` and `_8u16u` give the exact sums, `_16s32s_I`
 * saturates at the limits of 32 bits.
 *
 * @param pSrc1 the first source, `len` elements
 * @param pSrc2 the second source, `len` elements
 * @param pSrc the first source of an in-place form, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the second source, overwritten with the results
 * @param len the number of elements, a complex value counting as one
 * @param scaleFactor the results are multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`, which the
 *         forms for Vek32fc and Vek64fc check first
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
VEKS_API VekStatus veksAdd_16s(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len);
VEKS_API VekStatus veksAdd_16s_I(const Vek16s* pSrc, Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksAdd_16s32f(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek32f* pDst, int len);
VEKS_API VekStatus veksAdd_8u_Sfs(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek8u* pDst, int len,
                                  int scaleFactor);
VEKS_API VekStatus veksAdd_8u_ISfs(const Vek8u* pSrc, Vek8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksAdd_16u_Sfs(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksAdd_16u_ISfs(const Vek16u* pSrc, Vek16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksAdd_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksAdd_16s_ISfs(const Vek16s* pSrc, Vek16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksAdd_32s_Sfs(const Vek32s* pSrc1, const Vek32s* pSrc2, Vek32s* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksAdd_32s_ISfs(const Vek32s* pSrc, Vek32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksAdd_16sc_Sfs(const Vek16sc* pSrc1, const Vek16sc* pSrc2, Vek16sc* pDst,
                                    int len, int scaleFactor);
VEKS_API VekStatus veksAdd_16sc_ISfs(const Vek16sc* pSrc, Vek16sc* pSrcDst, int len,
                                     int scaleFactor);
VEKS_API VekStatus veksAdd_32sc_Sfs(const Vek32sc* pSrc1, const Vek32sc* pSrc2, Vek32sc* pDst,
                                    int len, int scaleFactor);
VEKS_API VekStatus veksAdd_32sc_ISfs(const Vek32sc* pSrc, Vek32sc* pSrcDst, int len,
                                     int scaleFactor);
VEKS_API VekStatus veksAdd_16u(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len);
VEKS_API VekStatus veksAdd_32u(const Vek32u* pSrc1, const Vek32u* pSrc2, Vek32u* pDst, int len);
VEKS_API VekStatus veksAdd_64s_Sfs(const Vek64s* pSrc1, const Vek64s* pSrc2, Vek64s* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksAdd_8u16u(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek16u* pDst, int len);
VEKS_API VekStatus veksAdd_16s32s_I(const Vek16s* pSrc, Vek32s* pSrcDst, int len);
/** @} */

/**
 * @name Sub
 * `pDst[n] = pSrc2[n] - pSrc1[n]`: the first operand is the one subtracted; in place `pSrcDst[n] =
 * pSrcDst[n] - pSrc[n]`. Complex values are subtracted part by part. Integer differences are exact
 * before they are scaled and saturated (negative ones of unsigned types to 0); the forms without a
 * scale factor saturate only. `_16s32f` gives the exact difference.
 *
 * @param pSrc1 the first source, `len` elements
 * @param pSrc2 the second source, `len` elements
 * @param pSrc the first source of an in-place form, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the second source, overwritten with the results
 * @param len the number of elements, a complex value counting as one
 * @param scaleFactor the results are multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`, which the
 *         forms for Vek32fc and Vek64fc check first
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
VEKS_API VekStatus veksSub_16s(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len);
VEKS_API VekStatus veksSub_16s_I(const Vek16s* pSrc, Vek16s* pSrcDst, int len);
VEKS_API VekStatus veksSub_16s32f(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek32f* pDst, int len);
VEKS_API VekStatus veksSub_8u_Sfs(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek8u* pDst, int len,
                                  int scaleFactor);
VEKS_API VekStatus veksSub_8u_ISfs(const Vek8u* pSrc, Vek8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSub_16u_Sfs(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksSub_16u_ISfs(const Vek16u* pSrc, Vek16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSub_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksSub_16s_ISfs(const Vek16s* pSrc, Vek16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSub_32s_Sfs(const Vek32s* pSrc1, const Vek32s* pSrc2, Vek32s* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksSub_32s_ISfs(const Vek32s* pSrc, Vek32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSub_16sc_Sfs(const Vek16sc* pSrc1, const Vek16sc* pSrc2, Vek16sc* pDst,
                                    int len, int scaleFactor);
VEKS_API VekStatus veksSub_16sc_ISfs(const Vek16sc* pSrc, Vek16sc* pSrcDst, int len,
                                     int scaleFactor);
VEKS_API VekStatus veksSub_32sc_Sfs(const Vek32sc* pSrc1, const Vek32sc* pSrc2, Vek32sc* pDst,
                                    int len, int scaleFactor);
VEKS_API VekStatus veksSub_32sc_ISfs(const Vek32sc* pSrc, Vek32sc* pSrcDst, int len,
                                     int scaleFactor);
/** @} */

/**
 * @name AddC
 * `pDst[n] = pSrc[n] + val`; in place `pSrcDst[n] = pSrcDst[n] + val`. A complex constant is added
 * part by part. Integer sums are exact before they are scaled and saturated; `_16s_I` saturates
 * only.
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
VEKS_API VekStatus veksAddC_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len);
VEKS_API VekStatus veksAddC_32f_I(Vek32f val, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksAddC_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len);
VEKS_API VekStatus veksAddC_64f_I(Vek64f val, Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksAddC_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len);
VEKS_API VekStatus veksAddC_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksAddC_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len);
VEKS_API VekStatus veksAddC_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len);
VEKS_API VekStatus veksAddC_8u_Sfs(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksAddC_8u_ISfs(Vek8u val, Vek8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksAddC_16u_Sfs(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len,
                                    int scaleFactor);
VEKS_API VekStatus veksAddC_16u_ISfs(Vek16u val, Vek16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksAddC_16s_Sfs(const Vek16s* pSrc, Vek16s val, Vek16s* pDst, int len,
                                    int scaleFactor);
VEKS_API VekStatus veksAddC_16s_ISfs(Vek16s val, Vek16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksAddC_32s_Sfs(const Vek32s* pSrc, Vek32s val, Vek32s* pDst, int len,
                                    int scaleFactor);
VEKS_API VekStatus veksAddC_32s_ISfs(Vek32s val, Vek32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksAddC_16sc_Sfs(const Vek16sc* pSrc, Vek16sc val, Vek16sc* pDst, int len,
                                     int scaleFactor);
VEKS_API VekStatus veksAddC_16sc_ISfs(Vek16sc val, Vek16sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksAddC_32sc_Sfs(const Vek32sc* pSrc, Vek32sc val, Vek32sc* pDst, int len,
                                     int scaleFactor);
VEKS_API VekStatus veksAddC_32sc_ISfs(Vek32sc val, Vek32sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksAddC_16s_I(Vek16s val, Vek16s* pSrcDst, int len);
/** @} */

/**
 * @name SubC
 * `pDst[n] = pSrc[n] - val`; in place `pSrcDst[n] = pSrcDst[n] - val`. A complex constant is
 * subtracted part by part. Integer differences are exact before they are scaled and saturated;
 * `_16s_I` saturates only.
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
VEKS_API VekStatus veksSubC_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len);
VEKS_API VekStatus veksSubC_32f_I(Vek32f val, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksSubC_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len);
VEKS_API VekStatus veksSubC_64f_I(Vek64f val, Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksSubC_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len);
VEKS_API VekStatus veksSubC_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksSubC_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len);
VEKS_API VekStatus veksSubC_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len);
VEKS_API VekStatus veksSubC_8u_Sfs(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len,
                                   int scaleFactor);
VEKS_API VekStatus veksSubC_8u_ISfs(Vek8u val, Vek8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSubC_16u_Sfs(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len,
                                    int scaleFactor);
VEKS_API VekStatus veksSubC_16u_ISfs(Vek16u val, Vek16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSubC_16s_Sfs(const Vek16s* pSrc, Vek16s val, Vek16s* pDst, int len,
                                    int scaleFactor);
VEKS_API VekStatus veksSubC_16s_ISfs(Vek16s val, Vek16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSubC_32s_Sfs(const Vek32s* pSrc, Vek32s val, Vek32s* pDst, int len,
                                    int scaleFactor);
VEKS_API VekStatus veksSubC_32s_ISfs(Vek32s val, Vek32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSubC_16sc_Sfs(const Vek16sc* pSrc, Vek16sc val, Vek16sc* pDst, int len,
                                     int scaleFactor);
VEKS_API VekStatus veksSubC_16sc_ISfs(Vek16sc val, Vek16sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSubC_32sc_Sfs(const Vek32sc* pSrc, Vek32sc val, Vek32sc* pDst, int len,
                                     int scaleFactor);
VEKS_API VekStatus veksSubC_32sc_ISfs(Vek32sc val, Vek32sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSubC_16s_I(Vek16s val, Vek16s* pSrcDst, int len);
/** @} */

/**
 * @name SubCRev
 * `pDst[n] = val - pSrc[n]`; in place `pSrcDst[n] = val - pSrcDst[n]`. Complex values are
 * subtracted part by part. Integer differences are exact before they are scaled and saturated.
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
VEKS_API VekStatus veksSubCRev_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len);
VEKS_API VekStatus veksSubCRev_32f_I(Vek32f val, Vek32f* pSrcDst, int len);
VEKS_API VekStatus veksSubCRev_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len);
VEKS_API VekStatus veksSubCRev_64f_I(Vek64f val, Vek64f* pSrcDst, int len);
VEKS_API VekStatus veksSubCRev_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len);
VEKS_API VekStatus veksSubCRev_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len);
VEKS_API VekStatus veksSubCRev_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len);
VEKS_API VekStatus veksSubCRev_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len);
VEKS_API VekStatus veksSubCRev_8u_Sfs(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len,
                                      int scaleFactor);
VEKS_API VekStatus veksSubCRev_8u_ISfs(Vek8u val, Vek8u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSubCRev_16u_Sfs(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len,
                                       int scaleFactor);
VEKS_API VekStatus veksSubCRev_16u_ISfs(Vek16u val, Vek16u* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSubCRev_16s_Sfs(const Vek16s* pSrc, Vek16s val, Vek16s* pDst, int len,
                                       int scaleFactor);
VEKS_API VekStatus veksSubCRev_16s_ISfs(Vek16s val, Vek16s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSubCRev_32s_Sfs(const Vek32s* pSrc, Vek32s val, Vek32s* pDst, int len,
                                       int scaleFactor);
VEKS_API VekStatus veksSubCRev_32s_ISfs(Vek32s val, Vek32s* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSubCRev_16sc_Sfs(const Vek16sc* pSrc, Vek16sc val, Vek16sc* pDst, int len,
                                        int scaleFactor);
VEKS_API VekStatus veksSubCRev_16sc_ISfs(Vek16sc val, Vek16sc* pSrcDst, int len, int scaleFactor);
VEKS_API VekStatus veksSubCRev_32sc_Sfs(const Vek32sc* pSrc, Vek32sc val, Vek32sc* pDst, int len,
                                        int scaleFactor);
VEKS_API VekStatus veksSubCRev_32sc_ISfs(Vek32sc val, Vek32sc* pSrcDst, int len, int scaleFactor);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
