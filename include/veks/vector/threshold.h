/**
 * @file
 * Thresholds: elements beyond a level are replaced. `_I` forms overwrite their source with what the
 * other forms write to `pDst`; a destination may be the source, other overlaps are not allowed.
 *
 * Complex elements are compared by their magnitude: exactly for `Vek16sc`; for `Vek32fc` by the sum
 * of the squares in double precision, rounded once, against the square of the level; for `Vek64fc`
 * by sum and square in double precision, without overflow or underflow. An element with a NaN in
 * either part counts as NaN.
 *
 * NaN elements pass unchanged, bit by bit. No element is beyond a level that is NaN. Infinite
 * elements and levels are compared like numbers. Results are the same on every processor.
 */
#ifndef VEKS_VECTOR_THRESHOLD_H
#define VEKS_VECTOR_THRESHOLD_H

#include "veks/status.h"
#include "veks/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/**
 * @name Threshold
 * `relOp` #vekCmpLess: as `veksThreshold_LT`; #vekCmpGreater: as `veksThreshold_GT`. A negative
 * level of a complex form is reported before a bad `relOp`.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @param level the level, the magnitude of one for complex types
 * @param relOp #vekCmpLess or #vekCmpGreater
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekErrThreshNegLevel if the level of a complex form is negative; #vekErrBadArg
 *         for any other `relOp`
 * @{
 */
VEKS_API VekStatus veksThreshold_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s level,
                                     VekCmpOp relOp);
VEKS_API VekStatus veksThreshold_16s_I(Vek16s* pSrcDst, int len, Vek16s level, VekCmpOp relOp);
VEKS_API VekStatus veksThreshold_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level,
                                     VekCmpOp relOp);
VEKS_API VekStatus veksThreshold_32f_I(Vek32f* pSrcDst, int len, Vek32f level, VekCmpOp relOp);
VEKS_API VekStatus veksThreshold_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level,
                                     VekCmpOp relOp);
VEKS_API VekStatus veksThreshold_64f_I(Vek64f* pSrcDst, int len, Vek64f level, VekCmpOp relOp);
VEKS_API VekStatus veksThreshold_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len, Vek16s level,
                                      VekCmpOp relOp);
VEKS_API VekStatus veksThreshold_16sc_I(Vek16sc* pSrcDst, int len, Vek16s level, VekCmpOp relOp);
VEKS_API VekStatus veksThreshold_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len, Vek32f level,
                                      VekCmpOp relOp);
VEKS_API VekStatus veksThreshold_32fc_I(Vek32fc* pSrcDst, int len, Vek32f level, VekCmpOp relOp);
VEKS_API VekStatus veksThreshold_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len, Vek64f level,
                                      VekCmpOp relOp);
VEKS_API VekStatus veksThreshold_64fc_I(Vek64fc* pSrcDst, int len, Vek64f level, VekCmpOp relOp);
/** @} */

/**
 * @name LT
 * `pDst[n] = pSrc[n] < level ? level : pSrc[n]`.
 *
 * Complex elements x with `|x| < level` keep their phase and get the magnitude `level`. A part of
 * a `Vek16sc` is the exact value rounded to the nearest integer; one of a `Vek32fc` is computed in
 * double precision and rounded once more; the error of one of a `Vek64fc` is at most 4 units in
 * its last place or `level * 2^-1022`, whichever is larger. A complex zero becomes `(level, 0)`.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @param level the level, the magnitude of one for complex types
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekErrThreshNegLevel if the level of a complex form is negative
 * @{
 */
VEKS_API VekStatus veksThreshold_LT_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s level);
VEKS_API VekStatus veksThreshold_LT_16s_I(Vek16s* pSrcDst, int len, Vek16s level);
VEKS_API VekStatus veksThreshold_LT_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level);
VEKS_API VekStatus veksThreshold_LT_32f_I(Vek32f* pSrcDst, int len, Vek32f level);
VEKS_API VekStatus veksThreshold_LT_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level);
VEKS_API VekStatus veksThreshold_LT_64f_I(Vek64f* pSrcDst, int len, Vek64f level);
VEKS_API VekStatus veksThreshold_LT_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len, Vek16s level);
VEKS_API VekStatus veksThreshold_LT_16sc_I(Vek16sc* pSrcDst, int len, Vek16s level);
VEKS_API VekStatus veksThreshold_LT_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len, Vek32f level);
VEKS_API VekStatus veksThreshold_LT_32fc_I(Vek32fc* pSrcDst, int len, Vek32f level);
VEKS_API VekStatus veksThreshold_LT_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len, Vek64f level);
VEKS_API VekStatus veksThreshold_LT_64fc_I(Vek64fc* pSrcDst, int len, Vek64f level);
VEKS_API VekStatus veksThreshold_LT_32s(const Vek32s* pSrc, Vek32s* pDst, int len, Vek32s level);
VEKS_API VekStatus veksThreshold_LT_32s_I(Vek32s* pSrcDst, int len, Vek32s level);
/** @} */

/**
 * @name GT
 * `pDst[n] = pSrc[n] > level ? level : pSrc[n]`.
 *
 * Complex elements x with `|x| > level` keep their phase and get the magnitude `level`. A part of
 * a `Vek16sc` is the exact value rounded to the nearest integer; one of a `Vek32fc` is computed in
 * double precision and rounded once more; the error of one of a `Vek64fc` is at most 4 units in
 * its last place or `level * 2^-1022`, whichever is larger. Finite parts vanish beside infinite
 * ones. A level of -0.0 is 0.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @param level the level, the magnitude of one for complex types
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekErrThreshNegLevel if the level of a complex form is negative
 * @{
 */
VEKS_API VekStatus veksThreshold_GT_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s level);
VEKS_API VekStatus veksThreshold_GT_16s_I(Vek16s* pSrcDst, int len, Vek16s level);
VEKS_API VekStatus veksThreshold_GT_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level);
VEKS_API VekStatus veksThreshold_GT_32f_I(Vek32f* pSrcDst, int len, Vek32f level);
VEKS_API VekStatus veksThreshold_GT_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level);
VEKS_API VekStatus veksThreshold_GT_64f_I(Vek64f* pSrcDst, int len, Vek64f level);
VEKS_API VekStatus veksThreshold_GT_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len, Vek16s level);
VEKS_API VekStatus veksThreshold_GT_16sc_I(Vek16sc* pSrcDst, int len, Vek16s level);
VEKS_API VekStatus veksThreshold_GT_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len, Vek32f level);
VEKS_API VekStatus veksThreshold_GT_32fc_I(Vek32fc* pSrcDst, int len, Vek32f level);
VEKS_API VekStatus veksThreshold_GT_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len, Vek64f level);
VEKS_API VekStatus veksThreshold_GT_64fc_I(Vek64fc* pSrcDst, int len, Vek64f level);
VEKS_API VekStatus veksThreshold_GT_32s(const Vek32s* pSrc, Vek32s* pDst, int len, Vek32s level);
VEKS_API VekStatus veksThreshold_GT_32s_I(Vek32s* pSrcDst, int len, Vek32s level);
/** @} */

/**
 * @name LTVal
 * `pDst[n] = pSrc[n] < level ? value : pSrc[n]`; complex forms: `|pSrc[n]| < level`.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @param level the level, the magnitude of one for complex types
 * @param value what replaces elements, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekErrThreshNegLevel if the level of a complex form is negative
 * @{
 */
VEKS_API VekStatus veksThreshold_LTVal_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s level,
                                           Vek16s value);
VEKS_API VekStatus veksThreshold_LTVal_16s_I(Vek16s* pSrcDst, int len, Vek16s level, Vek16s value);
VEKS_API VekStatus veksThreshold_LTVal_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level,
                                           Vek32f value);
VEKS_API VekStatus veksThreshold_LTVal_32f_I(Vek32f* pSrcDst, int len, Vek32f level, Vek32f value);
VEKS_API VekStatus veksThreshold_LTVal_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level,
                                           Vek64f value);
VEKS_API VekStatus veksThreshold_LTVal_64f_I(Vek64f* pSrcDst, int len, Vek64f level, Vek64f value);
VEKS_API VekStatus veksThreshold_LTVal_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len,
                                            Vek16s level, Vek16sc value);
VEKS_API VekStatus veksThreshold_LTVal_16sc_I(Vek16sc* pSrcDst, int len, Vek16s level,
                                              Vek16sc value);
VEKS_API VekStatus veksThreshold_LTVal_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len,
                                            Vek32f level, Vek32fc value);
VEKS_API VekStatus veksThreshold_LTVal_32fc_I(Vek32fc* pSrcDst, int len, Vek32f level,
                                              Vek32fc value);
VEKS_API VekStatus veksThreshold_LTVal_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len,
                                            Vek64f level, Vek64fc value);
VEKS_API VekStatus veksThreshold_LTVal_64fc_I(Vek64fc* pSrcDst, int len, Vek64f level,
                                              Vek64fc value);
VEKS_API VekStatus veksThreshold_LTVal_32s(const Vek32s* pSrc, Vek32s* pDst, int len, Vek32s level,
                                           Vek32s value);
VEKS_API VekStatus veksThreshold_LTVal_32s_I(Vek32s* pSrcDst, int len, Vek32s level, Vek32s value);
/** @} */

/**
 * @name GTVal
 * `pDst[n] = pSrc[n] > level ? value : pSrc[n]`; complex forms: `|pSrc[n]| > level`.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @param level the level, the magnitude of one for complex types
 * @param value what replaces elements, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekErrThreshNegLevel if the level of a complex form is negative
 * @{
 */
VEKS_API VekStatus veksThreshold_GTVal_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s level,
                                           Vek16s value);
VEKS_API VekStatus veksThreshold_GTVal_16s_I(Vek16s* pSrcDst, int len, Vek16s level, Vek16s value);
VEKS_API VekStatus veksThreshold_GTVal_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level,
                                           Vek32f value);
VEKS_API VekStatus veksThreshold_GTVal_32f_I(Vek32f* pSrcDst, int len, Vek32f level, Vek32f value);
VEKS_API VekStatus veksThreshold_GTVal_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level,
                                           Vek64f value);
VEKS_API VekStatus veksThreshold_GTVal_64f_I(Vek64f* pSrcDst, int len, Vek64f level, Vek64f value);
VEKS_API VekStatus veksThreshold_GTVal_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len,
                                            Vek16s level, Vek16sc value);
VEKS_API VekStatus veksThreshold_GTVal_16sc_I(Vek16sc* pSrcDst, int len, Vek16s level,
                                              Vek16sc value);
VEKS_API VekStatus veksThreshold_GTVal_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len,
                                            Vek32f level, Vek32fc value);
VEKS_API VekStatus veksThreshold_GTVal_32fc_I(Vek32fc* pSrcDst, int len, Vek32f level,
                                              Vek32fc value);
VEKS_API VekStatus veksThreshold_GTVal_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len,
                                            Vek64f level, Vek64fc value);
VEKS_API VekStatus veksThreshold_GTVal_64fc_I(Vek64fc* pSrcDst, int len, Vek64f level,
                                              Vek64fc value);
VEKS_API VekStatus veksThreshold_GTVal_32s(const Vek32s* pSrc, Vek32s* pDst, int len, Vek32s level,
                                           Vek32s value);
VEKS_API VekStatus veksThreshold_GTVal_32s_I(Vek32s* pSrcDst, int len, Vek32s level, Vek32s value);
/** @} */

/**
 * @name LTValGTVal
 * `pDst[n] = valueLT` where `pSrc[n] < levelLT`, `valueGT` where `pSrc[n] > levelGT`, else
 * `pSrc[n]`.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @param levelLT the lower level
 * @param valueLT what replaces elements below it, any value
 * @param levelGT the upper level
 * @param valueGT what replaces elements above it, any value
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekErrThreshBounds if `levelLT > levelGT`
 * @{
 */
VEKS_API VekStatus veksThreshold_LTValGTVal_16s(const Vek16s* pSrc, Vek16s* pDst, int len,
                                                Vek16s levelLT, Vek16s valueLT, Vek16s levelGT,
                                                Vek16s valueGT);
VEKS_API VekStatus veksThreshold_LTValGTVal_16s_I(Vek16s* pSrcDst, int len, Vek16s levelLT,
                                                  Vek16s valueLT, Vek16s levelGT, Vek16s valueGT);
VEKS_API VekStatus veksThreshold_LTValGTVal_32s(const Vek32s* pSrc, Vek32s* pDst, int len,
                                                Vek32s levelLT, Vek32s valueLT, Vek32s levelGT,
                                                Vek32s valueGT);
VEKS_API VekStatus veksThreshold_LTValGTVal_32s_I(Vek32s* pSrcDst, int len, Vek32s levelLT,
                                                  Vek32s valueLT, Vek32s levelGT, Vek32s valueGT);
VEKS_API VekStatus veksThreshold_LTValGTVal_32f(const Vek32f* pSrc, Vek32f* pDst, int len,
                                                Vek32f levelLT, Vek32f valueLT, Vek32f levelGT,
                                                Vek32f valueGT);
VEKS_API VekStatus veksThreshold_LTValGTVal_32f_I(Vek32f* pSrcDst, int len, Vek32f levelLT,
                                                  Vek32f valueLT, Vek32f levelGT, Vek32f valueGT);
VEKS_API VekStatus veksThreshold_LTValGTVal_64f(const Vek64f* pSrc, Vek64f* pDst, int len,
                                                Vek64f levelLT, Vek64f valueLT, Vek64f levelGT,
                                                Vek64f valueGT);
VEKS_API VekStatus veksThreshold_LTValGTVal_64f_I(Vek64f* pSrcDst, int len, Vek64f levelLT,
                                                  Vek64f valueLT, Vek64f levelGT, Vek64f valueGT);
/** @} */

/**
 * @name LTAbs
 * Elements with `|pSrc[n]| < level` become `level` with their sign, zeros (-0.0 too) the positive
 * level; the others pass. The magnitude of an integer is exact, also that of the lowest one.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @param level the level of the magnitude
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekErrThreshNegLevel if the level is negative
 * @{
 */
VEKS_API VekStatus veksThreshold_LTAbs_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s level);
VEKS_API VekStatus veksThreshold_LTAbs_16s_I(Vek16s* pSrcDst, int len, Vek16s level);
VEKS_API VekStatus veksThreshold_LTAbs_32s(const Vek32s* pSrc, Vek32s* pDst, int len, Vek32s level);
VEKS_API VekStatus veksThreshold_LTAbs_32s_I(Vek32s* pSrcDst, int len, Vek32s level);
VEKS_API VekStatus veksThreshold_LTAbs_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level);
VEKS_API VekStatus veksThreshold_LTAbs_32f_I(Vek32f* pSrcDst, int len, Vek32f level);
VEKS_API VekStatus veksThreshold_LTAbs_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level);
VEKS_API VekStatus veksThreshold_LTAbs_64f_I(Vek64f* pSrcDst, int len, Vek64f level);
/** @} */

/**
 * @name GTAbs
 * Elements with `|pSrc[n]| > level` become `level` with their sign; the others pass. The magnitude
 * of an integer is exact, also that of the lowest one. A level of -0.0 is 0.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @param level the level of the magnitude
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekErrThreshNegLevel if the level is negative
 * @{
 */
VEKS_API VekStatus veksThreshold_GTAbs_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s level);
VEKS_API VekStatus veksThreshold_GTAbs_16s_I(Vek16s* pSrcDst, int len, Vek16s level);
VEKS_API VekStatus veksThreshold_GTAbs_32s(const Vek32s* pSrc, Vek32s* pDst, int len, Vek32s level);
VEKS_API VekStatus veksThreshold_GTAbs_32s_I(Vek32s* pSrcDst, int len, Vek32s level);
VEKS_API VekStatus veksThreshold_GTAbs_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level);
VEKS_API VekStatus veksThreshold_GTAbs_32f_I(Vek32f* pSrcDst, int len, Vek32f level);
VEKS_API VekStatus veksThreshold_GTAbs_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level);
VEKS_API VekStatus veksThreshold_GTAbs_64f_I(Vek64f* pSrcDst, int len, Vek64f level);
/** @} */

/**
 * @name LTInv
 * The inverse, with magnitudes limited from below: `1 / pSrc[n]` where `|pSrc[n]| >= level`, else
 * `1 / level` with the sign of the element. Zeros (-0.0 too) become `1 / level`; with a level of 0
 * that is infinity, and the function returns #vekWrnInvThreshZero after it has computed all
 * elements. A level of NaN is taken as 0.
 *
 * Complex elements: `conj(x) / |x|^2` where `|x| >= level`, else `conj(x) / (|x| * level)`; zeros
 * become `(1 / level, 0)`.
 *
 * Results of `Vek32f` and `Vek64f` are correctly rounded; parts of a `Vek32fc` are computed in
 * double precision and rounded once more; the error of a part of a `Vek64fc` is at most 6 units in
 * its last place or `2^-1022` times the magnitude of the result, whichever is larger, but for
 * denormal results.
 *
 * @param pSrc the source, `len` elements
 * @param pDst the destination, `len` elements
 * @param pSrcDst the source, overwritten with the result
 * @param len the number of elements, a complex value counting as one
 * @param level the lowest magnitude
 * @return #vekStsOk; #vekErrNullPtr if a pointer is null; #vekErrSize if `len <= 0`;
 *         #vekErrThreshNegLevel if the level is negative; #vekWrnInvThreshZero if the level is 0
 *         and an element is zero
 * @{
 */
VEKS_API VekStatus veksThreshold_LTInv_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level);
VEKS_API VekStatus veksThreshold_LTInv_32f_I(Vek32f* pSrcDst, int len, Vek32f level);
VEKS_API VekStatus veksThreshold_LTInv_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level);
VEKS_API VekStatus veksThreshold_LTInv_64f_I(Vek64f* pSrcDst, int len, Vek64f level);
VEKS_API VekStatus veksThreshold_LTInv_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len,
                                            Vek32f level);
VEKS_API VekStatus veksThreshold_LTInv_32fc_I(Vek32fc* pSrcDst, int len, Vek32f level);
VEKS_API VekStatus veksThreshold_LTInv_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len,
                                            Vek64f level);
VEKS_API VekStatus veksThreshold_LTInv_64fc_I(Vek64fc* pSrcDst, int len, Vek64f level);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
