#include "veks/vector/arithmetic.h"

#include "core/frame.h"
#include "core/targets.h"
#include "vector/operations.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/arithmetic/complex-inl.h"
#include <hwy/foreach_target.h>

#include "vector/arithmetic/complex-inl.h"

using namespace veks;

VekStatus veksMul_32fc(const Vek32fc* pSrc1, const Vek32fc* pSrc2, Vek32fc* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MulComplexTwo<Vek32fc>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksMul_32fc_I(const Vek32fc* pSrc, Vek32fc* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MulComplexTwo<Vek32fc>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMul_64fc(const Vek64fc* pSrc1, const Vek64fc* pSrc2, Vek64fc* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MulComplexTwo<Vek64fc>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksMul_64fc_I(const Vek64fc* pSrc, Vek64fc* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MulComplexTwo<Vek64fc>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMul_16sc_Sfs(const Vek16sc* pSrc1, const Vek16sc* pSrc2, Vek16sc* pDst, int len,
                           int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapComplexTwoScaled<MulComplex, Vek16sc>), pSrc1, pSrc2, pDst, len,
                scaleFactor);
}

VekStatus veksMul_16sc_ISfs(const Vek16sc* pSrc, Vek16sc* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapComplexTwoScaled<MulComplex, Vek16sc>), pSrc, pSrcDst, pSrcDst, len,
                scaleFactor);
}

VekStatus veksMul_32sc_Sfs(const Vek32sc* pSrc1, const Vek32sc* pSrc2, Vek32sc* pDst, int len,
                           int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapComplexTwoScaled<MulComplex, Vek32sc>), pSrc1, pSrc2, pDst, len,
                scaleFactor);
}

VekStatus veksMul_32sc_ISfs(const Vek32sc* pSrc, Vek32sc* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapComplexTwoScaled<MulComplex, Vek32sc>), pSrc, pSrcDst, pSrcDst, len,
                scaleFactor);
}

VekStatus veksMul_32f32fc(const Vek32f* pSrc1, const Vek32fc* pSrc2, Vek32fc* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapRealAndComplex<MulExact, Vek32fc>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksMul_32f32fc_I(const Vek32f* pSrc, Vek32fc* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MapRealAndComplex<MulExact, Vek32fc>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMul_32s32sc_Sfs(const Vek32s* pSrc1, const Vek32sc* pSrc2, Vek32sc* pDst, int len,
                              int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapRealAndComplexScaled<Mul, Vek32sc>), pSrc1, pSrc2, pDst, len,
                scaleFactor);
}

VekStatus veksMul_32s32sc_ISfs(const Vek32s* pSrc, Vek32sc* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapRealAndComplexScaled<Mul, Vek32sc>), pSrc, pSrcDst, pSrcDst, len,
                scaleFactor);
}

VekStatus veksMulC_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MulComplexConstant<Vek32fc>), pSrc, val, pDst, len);
}

VekStatus veksMulC_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MulComplexConstant<Vek32fc>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksMulC_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MulComplexConstant<Vek64fc>), pSrc, val, pDst, len);
}

VekStatus veksMulC_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MulComplexConstant<Vek64fc>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksMulC_16sc_Sfs(const Vek16sc* pSrc, Vek16sc val, Vek16sc* pDst, int len,
                            int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<MulComplex, Vek16sc>), pSrc, val, pDst,
                     len, scaleFactor);
}

VekStatus veksMulC_16sc_ISfs(Vek16sc val, Vek16sc* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<MulComplex, Vek16sc>), pSrcDst, val,
                     pSrcDst, len, scaleFactor);
}

VekStatus veksMulC_32sc_Sfs(const Vek32sc* pSrc, Vek32sc val, Vek32sc* pDst, int len,
                            int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<MulComplex, Vek32sc>), pSrc, val, pDst,
                     len, scaleFactor);
}

VekStatus veksMulC_32sc_ISfs(Vek32sc val, Vek32sc* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapComplexConstantScaled<MulComplex, Vek32sc>), pSrcDst, val,
                     pSrcDst, len, scaleFactor);
}

VekStatus veksSqr_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len) {
  return mapOne(VEKS_KERNEL(SqrComplexOne<Vek32fc>), pSrc, pDst, len);
}

VekStatus veksSqr_32fc_I(Vek32fc* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(SqrComplexOne<Vek32fc>), pSrcDst, pSrcDst, len);
}

VekStatus veksSqr_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len) {
  return mapOne(VEKS_KERNEL(SqrComplexOne<Vek64fc>), pSrc, pDst, len);
}

VekStatus veksSqr_64fc_I(Vek64fc* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(SqrComplexOne<Vek64fc>), pSrcDst, pSrcDst, len);
}

VekStatus veksSqr_16sc_Sfs(const Vek16sc* pSrc, Vek16sc* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(MapComplexOneScaled<SqrComplex, Vek16sc>), pSrc, pDst, len,
                scaleFactor);
}

VekStatus veksSqr_16sc_ISfs(Vek16sc* pSrcDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(MapComplexOneScaled<SqrComplex, Vek16sc>), pSrcDst, pSrcDst, len,
                scaleFactor);
}

VekStatus veksAddProduct_32fc(const Vek32fc* pSrc1, const Vek32fc* pSrc2, Vek32fc* pSrcDst,
                              int len) {
  return mapTwo(VEKS_KERNEL(AccumulateComplex<Vek32fc>), pSrc1, pSrc2, pSrcDst, len);
}

VekStatus veksAddProduct_64fc(const Vek64fc* pSrc1, const Vek64fc* pSrc2, Vek64fc* pSrcDst,
                              int len) {
  return mapTwo(VEKS_KERNEL(AccumulateComplex<Vek64fc>), pSrc1, pSrc2, pSrcDst, len);
}
