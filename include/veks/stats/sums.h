/**
 * @file
 * Sums, means and standard deviations.
 */
#ifndef VEKS_STATS_SUMS_H
#define VEKS_STATS_SUMS_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Sum
 * `*pSum = pSrc[0] + ... + pSrc[len - 1]`, complex values part by part.
 *
 * Integer sums are exact for every length before they are scaled and saturated. `_32f` has two
 * kernels:
 * - accurate (every `hint` but #vekAlgHintFast): the exact sum, rounded once. Nothing cancels or
 *   gets lost, the order of the elements is of no consequence, and the result is infinite only if
 *   the exact sum rounds to infinity.
 * - fast (#vekAlgHintFast): blocks of 32768 elements are added in single precision, in 32 or more
 *   sums side by side, their sums in double precision. The error is at most
 *   `1030 * 2^-24 * sum(|pSrc[n]|)`, and mostly far less.
 *
 * `_32fc` works like the fast kernel with blocks of 2048 elements (`134 * 2^-24` in the place of
 * the factor above, for each part). `_64f` and `_64fc` add in double precision, 16 or more sums
 * side by side, blocks of 4096 real or 2048 complex elements pairwise: the error is at most
 * `(262 + log2(len)) * 2^-53 * sum(|pSrc[n]|)`. But for the accurate kernel and integers, the last
 * bits of a result may differ from processor to processor; they never depend on the alignment of
 * the vector.
 *
 * Infinities and NaN give what they give in a plain sum. The sum of zeros is +0.
 *
 * @param pSrc the source, `len` elements
 * @param len the number of elements, a complex value counting as one
 * @param pSum where the sum goes
 * @param hint the kernel: fast for #vekAlgHintFast, accurate for every other value
 * @param scaleFactor the result is multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksSum_32f(const Vek32f* pSrc, int len, Vek32f* pSum, VekHintAlgorithm hint);
VEKS_API VekStatus veksSum_32fc(const Vek32fc* pSrc, int len, Vek32fc* pSum);
VEKS_API VekStatus veksSum_64f(const Vek64f* pSrc, int len, Vek64f* pSum);
VEKS_API VekStatus veksSum_64fc(const Vek64fc* pSrc, int len, Vek64fc* pSum);
VEKS_API VekStatus veksSum_16s_Sfs(const Vek16s* pSrc, int len, Vek16s* pSum, int scaleFactor);
VEKS_API VekStatus veksSum_32s_Sfs(const Vek32s* pSrc, int len, Vek32s* pSum, int scaleFactor);
VEKS_API VekStatus veksSum_16sc_Sfs(const Vek16sc* pSrc, int len, Vek16sc* pSum, int scaleFactor);
VEKS_API VekStatus veksSum_16s32s_Sfs(const Vek16s* pSrc, int len, Vek32s* pSum, int scaleFactor);
VEKS_API VekStatus veksSum_16sc32sc_Sfs(const Vek16sc* pSrc, int len, Vek32sc* pSum,
                                        int scaleFactor);
/** @} */

/**
 * @name Mean
 * `*pMean = (pSrc[0] + ... + pSrc[len - 1]) / len`, complex values part by part.
 *
 * Floating-point sums are those of Sum, with the same hint, rounded to double precision; they are
 * divided in double precision, and the quotient is rounded to the type of the result. A sum beyond
 * the range of double gives infinity, though the mean may be in the range. Integers: the exact
 * quotient is scaled, rounded once to nearest with ties to even, and saturated.
 *
 * @param pSrc the source, `len` elements
 * @param len the number of elements, a complex value counting as one
 * @param pMean where the mean goes
 * @param hint the kernel: fast for #vekAlgHintFast, accurate for every other value
 * @param scaleFactor the result is multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`
 * @{
 */
VEKS_API VekStatus veksMean_32f(const Vek32f* pSrc, int len, Vek32f* pMean, VekHintAlgorithm hint);
VEKS_API VekStatus veksMean_32fc(const Vek32fc* pSrc, int len, Vek32fc* pMean);
VEKS_API VekStatus veksMean_64f(const Vek64f* pSrc, int len, Vek64f* pMean);
VEKS_API VekStatus veksMean_64fc(const Vek64fc* pSrc, int len, Vek64fc* pMean);
VEKS_API VekStatus veksMean_16s_Sfs(const Vek16s* pSrc, int len, Vek16s* pMean, int scaleFactor);
VEKS_API VekStatus veksMean_32s_Sfs(const Vek32s* pSrc, int len, Vek32s* pMean, int scaleFactor);
VEKS_API VekStatus veksMean_16sc_Sfs(const Vek16sc* pSrc, int len, Vek16sc* pMean, int scaleFactor);
/** @} */

/**
 * @name StdDev
 * The sample standard deviation: `*pStdDev = sqrt((n * Q - S * S) / (n * (n - 1)))` with `n = len`,
 * `S` the sum of the elements and `Q` that of their squares. It is exactly 0 if all elements are
 * the same.
 *
 * `_32f` computes in double precision and rounds the result once; the first element is subtracted
 * from all others, which leaves the deviation as it is and keeps `n * Q` and `S * S` apart. With
 * #vekAlgHintFast, about the mean of the first elements is subtracted, and blocks of 4096 elements
 * are summed in single precision: the relative error stays below `2^-16`, mostly at a few units in
 * the last place. `_64f` passes twice over the vector, subtracting the mean the second time;
 * deviations from the mean above 1e154 overflow, those below 1e-154 count as 0. The last bits of
 * these results may differ from processor to processor. An element that is infinite or NaN gives
 * NaN.
 *
 * Integers: the exact root is scaled, rounded once to nearest with ties to even, and saturated.
 *
 * @param pSrc the source, `len` elements
 * @param len the number of elements, at least 2
 * @param pStdDev where the standard deviation goes
 * @param hint the kernel: fast for #vekAlgHintFast, accurate for every other value
 * @param scaleFactor the result is multiplied by `2^-scaleFactor`, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len < 2`
 * @{
 */
VEKS_API VekStatus veksStdDev_32f(const Vek32f* pSrc, int len, Vek32f* pStdDev,
                                  VekHintAlgorithm hint);
VEKS_API VekStatus veksStdDev_64f(const Vek64f* pSrc, int len, Vek64f* pStdDev);
VEKS_API VekStatus veksStdDev_16s_Sfs(const Vek16s* pSrc, int len, Vek16s* pStdDev,
                                      int scaleFactor);
VEKS_API VekStatus veksStdDev_16s32s_Sfs(const Vek16s* pSrc, int len, Vek32s* pStdDev,
                                         int scaleFactor);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
