/**
 * @file
 * Interleaving of channels.
 */
#ifndef VEKS_VECTOR_ARITHMETIC_JOIN_H
#define VEKS_VECTOR_ARITHMETIC_JOIN_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Join
 * `pDst[n * nEntries + k] = pSrc[k][n]` for `0 <= n < len`, `0 <= k < nEntries`: interleaves
 * channels, rounded to nearest with ties to even and saturated to 16 bits; NaN gives -32768. The
 * rounding mode that the calling thread has set does not matter.
 *
 * @param pSrc the channels, `nEntries` pointers to `len` samples each
 * @param nEntries the number of channels
 * @param len the number of samples of a channel
 * @param pDst the destination, `nEntries * len` samples, which no channel may overlap
 * @return #vekStsOk; in this order: #vekErrNullPtr if `pDst` is null; #vekErrSize if `nEntries <
 *         1` or `len < 1`; #vekErrNullPtr if `pSrc` or one of its pointers is null
 * @{
 */
VEKS_API VekStatus veksJoin_32f16s_D2L(const Vek32f** pSrc, int nEntries, int len, Vek16s* pDst);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
