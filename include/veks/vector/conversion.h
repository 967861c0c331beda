/**
 * @file
 * Conversion of element types: `pDst[n] = pSrc[n]` in the type of the destination, which the name
 * tells after that of the source. Complex values are converted part by part.
 *
 * A destination whose elements have the size of the source's may be the source; other overlaps are
 * not allowed. Results are the same on every processor.
 */
#ifndef VEKS_VECTOR_CONVERSION_H
#define VEKS_VECTOR_CONVERSION_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Convert to a type that holds every value
 * Exact. NaN stays NaN, infinities and signed zeros are kept.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param len the number of elements, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksConvert_8s16s(const Vek8s* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksConvert_8u16s(const Vek8u* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksConvert_16s32s(const Vek16s* pSrc, Vek32s* pDst, int len);
VEKS_API VekStatus veksConvert_16s32f(const Vek16s* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksConvert_16u32f(const Vek16u* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksConvert_8s32f(const Vek8s* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksConvert_8u32f(const Vek8u* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksConvert_32s64f(const Vek32s* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksConvert_16s64f(const Vek16s* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksConvert_32f64f(const Vek32f* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksConvert_16sc32fc(const Vek16sc* pSrc, Vek32fc* pDst, int len);
VEKS_API VekStatus veksConvert_32fc64fc(const Vek32fc* pSrc, Vek64fc* pDst, int len);
VEKS_API VekStatus veksConvert_32sc64fc(const Vek32sc* pSrc, Vek64fc* pDst, int len);
/** @} */

/**
 * @name Convert to the nearest floating-point number
 * Correctly rounded, to nearest with ties to even. `64f` values beyond the range of `32f` become
 * infinite, those below it denormal or zero; NaN stays NaN.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param len the number of elements, a complex value counting as one
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksConvert_32s32f(const Vek32s* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksConvert_64s64f(const Vek64s* pSrc, Vek64f* pDst, int len);
VEKS_API VekStatus veksConvert_64f32f(const Vek64f* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksConvert_64fc32fc(const Vek64fc* pSrc, Vek32fc* pDst, int len);
/** @} */

/**
 * @name Convert to narrower integers
 * Saturates: values beyond the range of the destination's type become its nearest limit.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param len the number of elements
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksConvert_32s16s(const Vek32s* pSrc, Vek16s* pDst, int len);
VEKS_API VekStatus veksConvert_16s8s(const Vek16s* pSrc, Vek8s* pDst, int len);
VEKS_API VekStatus veksConvert_16s8u(const Vek16s* pSrc, Vek8u* pDst, int len);
/** @} */

/**
 * @name Convert integers to scaled floating-point numbers
 * `pDst[n] = pSrc[n] * 2^-scaleFactor`, correctly rounded once: exact but for `32s32f` values of
 * more than 24 bits and for denormal results. Overflow gives infinity, underflow a zero of the
 * value's sign. `scaleFactor` 15 maps 16-bit samples to -1 .. 1.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param len the number of elements
 * @param scaleFactor the values are multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksConvert_16s32f_Sfs(const Vek16s* pSrc, Vek32f* pDst, int len,
                                          int scaleFactor);
VEKS_API VekStatus veksConvert_16s64f_Sfs(const Vek16s* pSrc, Vek64f* pDst, int len,
                                          int scaleFactor);
VEKS_API VekStatus veksConvert_32s32f_Sfs(const Vek32s* pSrc, Vek32f* pDst, int len,
                                          int scaleFactor);
VEKS_API VekStatus veksConvert_32s64f_Sfs(const Vek32s* pSrc, Vek64f* pDst, int len,
                                          int scaleFactor);
/** @} */

/**
 * @name Convert to scaled narrower integers
 * `pDst[n] = pSrc[n] * 2^-scaleFactor`, rounded to nearest with ties to even, then saturated.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param len the number of elements
 * @param scaleFactor the values are multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksConvert_32s16s_Sfs(const Vek32s* pSrc, Vek16s* pDst, int len,
                                          int scaleFactor);
VEKS_API VekStatus veksConvert_16s8s_Sfs(const Vek16s* pSrc, Vek8s* pDst, int len, int scaleFactor);
VEKS_API VekStatus veksConvert_64s32s_Sfs(const Vek64s* pSrc, Vek32s* pDst, int len,
                                          int scaleFactor);
/** @} */

/**
 * @name Convert floating-point numbers to scaled integers
 * `pDst[n] = pSrc[n] * 2^-scaleFactor`, made an integer as `rndMode` tells, then saturated to the
 * destination's type. Scaling is exact: nothing overflows or underflows on the way. Infinities
 * saturate; NaN gives the least value of the type, which is 0 for unsigned ones. `scaleFactor` -15
 * maps -1 .. 1 to 16-bit samples.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param len the number of elements, a complex value counting as one
 * @param rndMode 0 truncates toward zero, any other value rounds to nearest with ties to even
 * @param scaleFactor the values are multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksConvert_32f8s_Sfs(const Vek32f* pSrc, Vek8s* pDst, int len, int rndMode,
                                         int scaleFactor);
VEKS_API VekStatus veksConvert_32f8u_Sfs(const Vek32f* pSrc, Vek8u* pDst, int len, int rndMode,
                                         int scaleFactor);
VEKS_API VekStatus veksConvert_32f16s_Sfs(const Vek32f* pSrc, Vek16s* pDst, int len, int rndMode,
                                          int scaleFactor);
VEKS_API VekStatus veksConvert_32f16u_Sfs(const Vek32f* pSrc, Vek16u* pDst, int len, int rndMode,
                                          int scaleFactor);
VEKS_API VekStatus veksConvert_32f32s_Sfs(const Vek32f* pSrc, Vek32s* pDst, int len, int rndMode,
                                          int scaleFactor);
VEKS_API VekStatus veksConvert_64f8s_Sfs(const Vek64f* pSrc, Vek8s* pDst, int len, int rndMode,
                                         int scaleFactor);
VEKS_API VekStatus veksConvert_64f8u_Sfs(const Vek64f* pSrc, Vek8u* pDst, int len, int rndMode,
                                         int scaleFactor);
VEKS_API VekStatus veksConvert_64f16s_Sfs(const Vek64f* pSrc, Vek16s* pDst, int len, int rndMode,
                                          int scaleFactor);
VEKS_API VekStatus veksConvert_64f16u_Sfs(const Vek64f* pSrc, Vek16u* pDst, int len, int rndMode,
                                          int scaleFactor);
VEKS_API VekStatus veksConvert_64f32s_Sfs(const Vek64f* pSrc, Vek32s* pDst, int len, int rndMode,
                                          int scaleFactor);
VEKS_API VekStatus veksConvert_64f64s_Sfs(const Vek64f* pSrc, Vek64s* pDst, int len, int rndMode,
                                          int scaleFactor);
VEKS_API VekStatus veksConvert_32fc16sc_Sfs(const Vek32fc* pSrc, Vek16sc* pDst, int len,
                                            int rndMode, int scaleFactor);
/** @} */

/**
 * @name Convert from and to packed 24-bit samples
 * `24s` and `24u` are samples of three bytes, the least significant one first, as in 24-bit sound
 * files. They are passed as Vek8u vectors of `3 * len` bytes at any address.
 *
 * To `32s` and `32u` they are extended, exactly; to `32f` they give the integer as a number,
 * without scaling. From integers they are `pSrc[n] * 2^-scaleFactor`, rounded to nearest with ties
 * to even, from floating-point numbers the same made an integer as `rndMode` tells; both saturate
 * to 24 bits. Scaling is exact, infinities saturate, NaN gives the least value, which is 0 for
 * `24u`.
 *
 * The source and the destination must not overlap.
 *
 * @param pSrc the source, `len` samples
 * @param pDst the destination, `len` samples
 * @param len the number of samples
 * @param rndMode 0 truncates toward zero, any other value rounds to nearest with ties to even
 * @param scaleFactor the values are multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksConvert_24u32u(const Vek8u* pSrc, Vek32u* pDst, int len);
VEKS_API VekStatus veksConvert_32u24u_Sfs(const Vek32u* pSrc, Vek8u* pDst, int len,
                                          int scaleFactor);
VEKS_API VekStatus veksConvert_24u32f(const Vek8u* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksConvert_32f24u_Sfs(const Vek32f* pSrc, Vek8u* pDst, int len, int rndMode,
                                          int scaleFactor);
VEKS_API VekStatus veksConvert_24s32s(const Vek8u* pSrc, Vek32s* pDst, int len);
VEKS_API VekStatus veksConvert_32s24s_Sfs(const Vek32s* pSrc, Vek8u* pDst, int len,
                                          int scaleFactor);
VEKS_API VekStatus veksConvert_24s32f(const Vek8u* pSrc, Vek32f* pDst, int len);
VEKS_API VekStatus veksConvert_32f24s_Sfs(const Vek32f* pSrc, Vek8u* pDst, int len, int rndMode,
                                          int scaleFactor);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
