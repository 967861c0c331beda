/**
 * @file
 * Fast Fourier transforms of complex and real signals of 2^order points.
 */
#ifndef VEKS_TRANSFORM_FFT_H
#define VEKS_TRANSFORM_FFT_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Contexts
 * What a transform needs for one length and one normalisation. A context belongs to one family of
 * functions, the one with its suffix: `C` for complex signals (`sc` and `fc`: interleaved,
 * otherwise real and imaginary parts in arrays of their own), `R` for real signals.
 * @{
 */
typedef struct VeksFFTContext_C_16sc VeksFFTContext_C_16sc;
typedef struct VeksFFTContext_C_16s VeksFFTContext_C_16s;
typedef struct VeksFFTContext_R_16s VeksFFTContext_R_16s;
typedef struct VeksFFTContext_C_32fc VeksFFTContext_C_32fc;
typedef struct VeksFFTContext_C_32f VeksFFTContext_C_32f;
typedef struct VeksFFTContext_R_32f VeksFFTContext_R_32f;
typedef struct VeksFFTContext_C_64fc VeksFFTContext_C_64fc;
typedef struct VeksFFTContext_C_64f VeksFFTContext_C_64f;
typedef struct VeksFFTContext_R_64f VeksFFTContext_R_64f;
/** @} */

/**
 * @name FFTInitAlloc
 * Makes a context for transforms of N = 2^`order` points. The flag chooses the factors:
 *
 * | flag | forward | inverse |
 * |------|---------|---------|
 * | 1 | 1/N | 1 |
 * | 2 | 1 | 1/N |
 * | 4 | 1/sqrt(N) | 1/sqrt(N) |
 * | 8 | 1 | 1 |
 *
 * A context is not changed by transforms: threads may share it if each has a work buffer of its own
 * or none. Making one takes time in proportion to N (to sqrt(N) for the largest orders) and memory
 * of about the size of a vector of N points or less.
 *
 * @param ppCtx where to store the context; left alone on an error
 * @param order log2 of the number of points, 0 to 30
 * @param flag the normalisation, 1, 2, 4 or 8
 * @param hint kept, without effect
 * @return #vekStsOk; #vekErrNullPtr if ppCtx is null; #vekErrFFTOrder if the order is below 0 or
 *         above 30; #vekErrMemAllocTooSmall if memory is short; #vekErrFFTFlag for any other flag
 * @{
 */
VEKS_API VekStatus veksFFTInitAlloc_C_16sc(VeksFFTContext_C_16sc** ppCtx, int order, int flag,
                                           VekHintAlgorithm hint);
VEKS_API VekStatus veksFFTInitAlloc_C_16s(VeksFFTContext_C_16s** ppCtx, int order, int flag,
                                          VekHintAlgorithm hint);
VEKS_API VekStatus veksFFTInitAlloc_C_32fc(VeksFFTContext_C_32fc** ppCtx, int order, int flag,
                                           VekHintAlgorithm hint);
VEKS_API VekStatus veksFFTInitAlloc_C_32f(VeksFFTContext_C_32f** ppCtx, int order, int flag,
                                          VekHintAlgorithm hint);
VEKS_API VekStatus veksFFTInitAlloc_C_64fc(VeksFFTContext_C_64fc** ppCtx, int order, int flag,
                                           VekHintAlgorithm hint);
VEKS_API VekStatus veksFFTInitAlloc_C_64f(VeksFFTContext_C_64f** ppCtx, int order, int flag,
                                          VekHintAlgorithm hint);
VEKS_API VekStatus veksFFTInitAlloc_R_16s(VeksFFTContext_R_16s** ppCtx, int order, int flag,
                                          VekHintAlgorithm hint);
VEKS_API VekStatus veksFFTInitAlloc_R_32f(VeksFFTContext_R_32f** ppCtx, int order, int flag,
                                          VekHintAlgorithm hint);
VEKS_API VekStatus veksFFTInitAlloc_R_64f(VeksFFTContext_R_64f** ppCtx, int order, int flag,
                                          VekHintAlgorithm hint);
/** @} */

/**
 * @name FFTFree
 * Releases a context, whose identifier is cleared first.
 *
 * @param pCtx the context
 * @return #vekStsOk; #vekErrNullPtr if pCtx is null; #vekErrContextMatch if the context belongs to
 *         another family, which then stays as it is
 * @{
 */
VEKS_API VekStatus veksFFTFree_C_16sc(VeksFFTContext_C_16sc* pCtx);
VEKS_API VekStatus veksFFTFree_C_16s(VeksFFTContext_C_16s* pCtx);
VEKS_API VekStatus veksFFTFree_C_32fc(VeksFFTContext_C_32fc* pCtx);
VEKS_API VekStatus veksFFTFree_C_32f(VeksFFTContext_C_32f* pCtx);
VEKS_API VekStatus veksFFTFree_C_64fc(VeksFFTContext_C_64fc* pCtx);
VEKS_API VekStatus veksFFTFree_C_64f(VeksFFTContext_C_64f* pCtx);
VEKS_API VekStatus veksFFTFree_R_16s(VeksFFTContext_R_16s* pCtx);
VEKS_API VekStatus veksFFTFree_R_32f(VeksFFTContext_R_32f* pCtx);
VEKS_API VekStatus veksFFTFree_R_64f(VeksFFTContext_R_64f* pCtx);
/** @} */

/**
 * @name FFTGetBufSize
 * The size of the work buffer of a context's transforms in bytes, 0 if they need none. A buffer may
 * have any alignment.
 *
 * @param pCtx the context
 * @param pSize where to store the size
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrContextMatch if the context belongs
 *         to another family
 * @{
 */
VEKS_API VekStatus veksFFTGetBufSize_C_16sc(const VeksFFTContext_C_16sc* pCtx, int* pSize);
VEKS_API VekStatus veksFFTGetBufSize_C_16s(const VeksFFTContext_C_16s* pCtx, int* pSize);
VEKS_API VekStatus veksFFTGetBufSize_C_32fc(const VeksFFTContext_C_32fc* pCtx, int* pSize);
VEKS_API VekStatus veksFFTGetBufSize_C_32f(const VeksFFTContext_C_32f* pCtx, int* pSize);
VEKS_API VekStatus veksFFTGetBufSize_C_64fc(const VeksFFTContext_C_64fc* pCtx, int* pSize);
VEKS_API VekStatus veksFFTGetBufSize_C_64f(const VeksFFTContext_C_64f* pCtx, int* pSize);
VEKS_API VekStatus veksFFTGetBufSize_R_16s(const VeksFFTContext_R_16s* pCtx, int* pSize);
VEKS_API VekStatus veksFFTGetBufSize_R_32f(const VeksFFTContext_R_32f* pCtx, int* pSize);
VEKS_API VekStatus veksFFTGetBufSize_R_64f(const VeksFFTContext_R_64f* pCtx, int* pSize);
/** @} */

/**
 * @name FFT of complex floating-point signals
 * With N = 2^order and the factors F, G of the context's flag,
 *
 *     forward: pDst[k] = F * sum over n = 0 .. N-1 of pSrc[n] * exp(-2 pi i n k / N)
 *     inverse: pDst[n] = G * sum over k = 0 .. N-1 of pSrc[k] * exp(+2 pi i n k / N)
 *
 * in natural order on both sides. The forms with `Re` and `Im` pointers take and give real and
 * imaginary parts in arrays of their own.
 *
 * The relative error in the L2 norm is at most 0.6 * eps * log2(N) for random signals, eps being
 * 2^-23 or 2^-52. Sums are rounded in an order that depends on the processor: results may differ in
 * the last bits between processors, not with the alignment, nor between in place and out of place.
 *
 * A destination may be its source (also the real parts in place and the imaginary parts not); other
 * overlaps are not allowed. Literature: J. W. Cooley, J. W. Tukey, "An algorithm for the machine
 * calculation of complex Fourier series", Math. Comp. 19 (1965); D. H. Bailey, "FFTs in external or
 * hierarchical memory", J. Supercomputing 4 (1990).
 *
 * @param pSrc the signal or spectrum, N points
 * @param pSrcRe,pSrcIm its real and imaginary parts
 * @param pDst the result, N points
 * @param pDstRe,pDstIm its real and imaginary parts
 * @param pCtx the context
 * @param pBuffer a work buffer of the size that FFTGetBufSize tells, or null: one is then allocated
 *        for the call if it is needed
 * @return #vekStsOk; #vekErrNullPtr if pCtx is null; #vekErrContextMatch if the context belongs to
 *         another family; #vekErrNullPtr if a source or destination is null;
 * #vekErrMemAllocTooSmall if pBuffer is null and memory is short
 * @{
 */
VEKS_API VekStatus veksFFTFwd_CToC_32fc(const Vek32fc* pSrc, Vek32fc* pDst,
                                        const VeksFFTContext_C_32fc* pCtx, Vek8u* pBuffer);
VEKS_API VekStatus veksFFTFwd_CToC_64fc(const Vek64fc* pSrc, Vek64fc* pDst,
                                        const VeksFFTContext_C_64fc* pCtx, Vek8u* pBuffer);
VEKS_API VekStatus veksFFTFwd_CToC_32f(const Vek32f* pSrcRe, const Vek32f* pSrcIm, Vek32f* pDstRe,
                                       Vek32f* pDstIm, const VeksFFTContext_C_32f* pCtx,
                                       Vek8u* pBuffer);
VEKS_API VekStatus veksFFTFwd_CToC_64f(const Vek64f* pSrcRe, const Vek64f* pSrcIm, Vek64f* pDstRe,
                                       Vek64f* pDstIm, const VeksFFTContext_C_64f* pCtx,
                                       Vek8u* pBuffer);
VEKS_API VekStatus veksFFTInv_CToC_32fc(const Vek32fc* pSrc, Vek32fc* pDst,
                                        const VeksFFTContext_C_32fc* pCtx, Vek8u* pBuffer);
VEKS_API VekStatus veksFFTInv_CToC_64fc(const Vek64fc* pSrc, Vek64fc* pDst,
                                        const VeksFFTContext_C_64fc* pCtx, Vek8u* pBuffer);
VEKS_API VekStatus veksFFTInv_CToC_32f(const Vek32f* pSrcRe, const Vek32f* pSrcIm, Vek32f* pDstRe,
                                       Vek32f* pDstIm, const VeksFFTContext_C_32f* pCtx,
                                       Vek8u* pBuffer);
VEKS_API VekStatus veksFFTInv_CToC_64f(const Vek64f* pSrcRe, const Vek64f* pSrcIm, Vek64f* pDstRe,
                                       Vek64f* pDstIm, const VeksFFTContext_C_64f* pCtx,
                                       Vek8u* pBuffer);
/** @} */

/**
 * @name FFT of complex 16-bit signals
 * The transform of the floating-point forms with the exact factor of the flag, the result scaled by
 * 2^-`scaleFactor`, rounded to nearest with ties to even and saturated. It is computed in single
 * precision: for orders up to 15 and a scale factor for which the result does not saturate, it is
 * within 1 of the exact result rounded.
 *
 * A destination may be its source; other overlaps are not allowed.
 *
 * @param pSrc the signal or spectrum, N points
 * @param pSrcRe,pSrcIm its real and imaginary parts
 * @param pDst the result, N points
 * @param pDstRe,pDstIm its real and imaginary parts
 * @param pCtx the context
 * @param scaleFactor the scale factor, any value
 * @param pBuffer a work buffer of the size that FFTGetBufSize tells, or null: one is then allocated
 *        for the call if it is needed
 * @return #vekStsOk; #vekErrNullPtr if pCtx is null; #vekErrContextMatch if the context belongs to
 *         another family; #vekErrNullPtr if a source or destination is null;
 * #vekErrMemAllocTooSmall if pBuffer is null and memory is short
 * @{
 */
VEKS_API VekStatus veksFFTFwd_CToC_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst,
                                            const VeksFFTContext_C_16sc* pCtx, int scaleFactor,
                                            Vek8u* pBuffer);
VEKS_API VekStatus veksFFTFwd_CToC_16s_Sfs(const Vek16s* pSrcRe, const Vek16s* pSrcIm,
                                           Vek16s* pDstRe, Vek16s* pDstIm,
                                           const VeksFFTContext_C_16s* pCtx, int scaleFactor,
                                           Vek8u* pBuffer);
VEKS_API VekStatus veksFFTInv_CToC_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst,
                                            const VeksFFTContext_C_16sc* pCtx, int scaleFactor,
                                            Vek8u* pBuffer);
VEKS_API VekStatus veksFFTInv_CToC_16s_Sfs(const Vek16s* pSrcRe, const Vek16s* pSrcIm,
                                           Vek16s* pDstRe, Vek16s* pDstIm,
                                           const VeksFFTContext_C_16s* pCtx, int scaleFactor,
                                           Vek8u* pBuffer);
/** @} */

/**
 * @name FFT of real signals
 * The spectrum X[k] of a real signal of N = 2^order points has X[N-k] = conj(X[k]), so half of it
 * is stored. With X[k] = R[k] + i I[k], for N > 1:
 *
 * | format | values | contents |
 * |--------|--------|----------|
 * | Pack | N | R[0], R[1], I[1], R[2], I[2], ..., R[N/2-1], I[N/2-1], R[N/2] |
 * | Perm | N | R[0], R[N/2], R[1], I[1], R[2], I[2], ..., R[N/2-1], I[N/2-1] |
 * | CCS | N + 2 | R[0], 0, R[1], I[1], ..., R[N/2-1], I[N/2-1], R[N/2], 0 |
 *
 * One point is its own spectrum, in CCS followed by a zero. `Fwd` forms compute X with the formula,
 * the factors and the accuracy of the complex transforms, `Inv` forms restore the real signal; the
 * imaginary parts of X[0] and X[N/2] in CCS are taken as zero. The formats differ in the
 * arrangement only. `_Sfs` forms scale and round as the 16-bit complex transforms do.
 *
 * A destination may be its source, with room for N + 2 values in the case of CCS; other overlaps
 * are not allowed. Literature: H. V. Sorensen et al., "Real-valued fast Fourier transform
 * algorithms", IEEE Trans. ASSP 35 (1987).
 *
 * @param pSrc the signal (`Fwd`) or the spectrum (`Inv`)
 * @param pDst the spectrum (`Fwd`) or the signal (`Inv`)
 * @param pCtx the context
 * @param scaleFactor the scale factor, any value
 * @param pBuffer a work buffer of the size that FFTGetBufSize tells, or null: one is then allocated
 *        for the call if it is needed
 * @return #vekStsOk; #vekErrNullPtr if pCtx is null; #vekErrContextMatch if the context belongs to
 *         another family; #vekErrNullPtr if a source or destination is null;
 * #vekErrMemAllocTooSmall if pBuffer is null and memory is short
 * @{
 */
VEKS_API VekStatus veksFFTFwd_RToPack_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst,
                                              const VeksFFTContext_R_16s* pCtx, int scaleFactor,
                                              Vek8u* pBuffer);
VEKS_API VekStatus veksFFTInv_PackToR_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst,
                                              const VeksFFTContext_R_16s* pCtx, int scaleFactor,
                                              Vek8u* pBuffer);
VEKS_API VekStatus veksFFTFwd_RToPack_32f(const Vek32f* pSrc, Vek32f* pDst,
                                          const VeksFFTContext_R_32f* pCtx, Vek8u* pBuffer);
VEKS_API VekStatus veksFFTInv_PackToR_32f(const Vek32f* pSrc, Vek32f* pDst,
                                          const VeksFFTContext_R_32f* pCtx, Vek8u* pBuffer);
VEKS_API VekStatus veksFFTFwd_RToPack_64f(const Vek64f* pSrc, Vek64f* pDst,
                                          const VeksFFTContext_R_64f* pCtx, Vek8u* pBuffer);
VEKS_API VekStatus veksFFTInv_PackToR_64f(const Vek64f* pSrc, Vek64f* pDst,
                                          const VeksFFTContext_R_64f* pCtx, Vek8u* pBuffer);
VEKS_API VekStatus veksFFTFwd_RToPerm_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst,
                                              const VeksFFTContext_R_16s* pCtx, int scaleFactor,
                                              Vek8u* pBuffer);
VEKS_API VekStatus veksFFTInv_PermToR_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst,
                                              const VeksFFTContext_R_16s* pCtx, int scaleFactor,
                                              Vek8u* pBuffer);
VEKS_API VekStatus veksFFTFwd_RToPerm_32f(const Vek32f* pSrc, Vek32f* pDst,
                                          const VeksFFTContext_R_32f* pCtx, Vek8u* pBuffer);
VEKS_API VekStatus veksFFTInv_PermToR_32f(const Vek32f* pSrc, Vek32f* pDst,
                                          const VeksFFTContext_R_32f* pCtx, Vek8u* pBuffer);
VEKS_API VekStatus veksFFTFwd_RToPerm_64f(const Vek64f* pSrc, Vek64f* pDst,
                                          const VeksFFTContext_R_64f* pCtx, Vek8u* pBuffer);
VEKS_API VekStatus veksFFTInv_PermToR_64f(const Vek64f* pSrc, Vek64f* pDst,
                                          const VeksFFTContext_R_64f* pCtx, Vek8u* pBuffer);
VEKS_API VekStatus veksFFTFwd_RToCCS_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst,
                                             const VeksFFTContext_R_16s* pCtx, int scaleFactor,
                                             Vek8u* pBuffer);
VEKS_API VekStatus veksFFTInv_CCSToR_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst,
                                             const VeksFFTContext_R_16s* pCtx, int scaleFactor,
                                             Vek8u* pBuffer);
VEKS_API VekStatus veksFFTFwd_RToCCS_32f(const Vek32f* pSrc, Vek32f* pDst,
                                         const VeksFFTContext_R_32f* pCtx, Vek8u* pBuffer);
VEKS_API VekStatus veksFFTInv_CCSToR_32f(const Vek32f* pSrc, Vek32f* pDst,
                                         const VeksFFTContext_R_32f* pCtx, Vek8u* pBuffer);
VEKS_API VekStatus veksFFTFwd_RToCCS_64f(const Vek64f* pSrc, Vek64f* pDst,
                                         const VeksFFTContext_R_64f* pCtx, Vek8u* pBuffer);
VEKS_API VekStatus veksFFTInv_CCSToR_64f(const Vek64f* pSrc, Vek64f* pDst,
                                         const VeksFFTContext_R_64f* pCtx, Vek8u* pBuffer);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
