#include "veks/vector/arithmetic.h"

#include "core/frame.h"
#include "core/targets.h"
#include "vector/operations.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/arithmetic/products-inl.h"
#include <hwy/foreach_target.h>

#include "vector/arithmetic/products-inl.h"

using namespace veks;

VekStatus veksMul_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Mul, Vek32f>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksMul_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Mul, Vek32f>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMul_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Mul, Vek64f>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksMul_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Mul, Vek64f>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMul_16s(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Mul, Vek16s>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksMul_16s_I(const Vek16s* pSrc, Vek16s* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Mul, Vek16s>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMul_16s32f(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek32f* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwoPromoted<MulExact, Vek16s, Vek32f>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksMul_8u_Sfs(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek8u* pDst, int len,
                         int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Mul, Vek8u>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksMul_8u_ISfs(const Vek8u* pSrc, Vek8u* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Mul, Vek8u>), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksMul_16u_Sfs(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len,
                          int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Mul, Vek16u>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksMul_16u_ISfs(const Vek16u* pSrc, Vek16u* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Mul, Vek16u>), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksMul_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len,
                          int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Mul, Vek16s>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksMul_16s_ISfs(const Vek16s* pSrc, Vek16s* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Mul, Vek16s>), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksMul_32s_Sfs(const Vek32s* pSrc1, const Vek32s* pSrc2, Vek32s* pDst, int len,
                          int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Mul, Vek32s>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksMul_32s_ISfs(const Vek32s* pSrc, Vek32s* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Mul, Vek32s>), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksMul_8u16u(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek16u* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwoPromoted<MulExact, Vek8u, Vek16u>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksMul_16s32s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek32s* pDst, int len,
                             int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MulPromotedScaled), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksMul_16u16s_Sfs(const Vek16u* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len,
                             int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MulUnsignedScaled), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksMulC_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Mul, Vek32f>), pSrc, val, pDst, len);
}

VekStatus veksMulC_32f_I(Vek32f val, Vek32f* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Mul, Vek32f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksMulC_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Mul, Vek64f>), pSrc, val, pDst, len);
}

VekStatus veksMulC_64f_I(Vek64f val, Vek64f* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Mul, Vek64f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksMulC_8u_Sfs(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Mul, Vek8u>), pSrc, val, pDst, len, scaleFactor);
}

VekStatus veksMulC_8u_ISfs(Vek8u val, Vek8u* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Mul, Vek8u>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksMulC_16u_Sfs(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Mul, Vek16u>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksMulC_16u_ISfs(Vek16u val, Vek16u* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Mul, Vek16u>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksMulC_16s_Sfs(const Vek16s* pSrc, Vek16s val, Vek16s* pDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Mul, Vek16s>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksMulC_16s_ISfs(Vek16s val, Vek16s* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Mul, Vek16s>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksMulC_32s_Sfs(const Vek32s* pSrc, Vek32s val, Vek32s* pDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Mul, Vek32s>), pSrc, val, pDst, len,
                     scaleFactor);
}

VekStatus veksMulC_32s_ISfs(Vek32s val, Vek32s* pSrcDst, int len, int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MapConstantScaled<Mul, Vek32s>), pSrcDst, val, pSrcDst, len,
                     scaleFactor);
}

VekStatus veksMulC_16s_I(Vek16s val, Vek16s* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Mul, Vek16s>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksMulC_32f16s_Sfs(const Vek32f* pSrc, Vek32f val, Vek16s* pDst, int len,
                              int scaleFactor) {
  return mapConstant(VEKS_KERNEL(MulFloatScaled), pSrc, val, pDst, len, scaleFactor);
}

VekStatus veksMulC_Low_32f16s(const Vek32f* pSrc, Vek32f val, Vek16s* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MulFloatRounded), pSrc, val, pDst, len);
}

VekStatus veksSqr_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Sqr, Vek32f>), pSrc, pDst, len);
}

VekStatus veksSqr_32f_I(Vek32f* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Sqr, Vek32f>), pSrcDst, pSrcDst, len);
}

VekStatus veksSqr_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Sqr, Vek64f>), pSrc, pDst, len);
}

VekStatus veksSqr_64f_I(Vek64f* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Sqr, Vek64f>), pSrcDst, pSrcDst, len);
}

VekStatus veksSqr_8u_Sfs(const Vek8u* pSrc, Vek8u* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(MapOneScaled<Sqr, Vek8u>), pSrc, pDst, len, scaleFactor);
}

VekStatus veksSqr_8u_ISfs(Vek8u* pSrcDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(MapOneScaled<Sqr, Vek8u>), pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksSqr_16u_Sfs(const Vek16u* pSrc, Vek16u* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(MapOneScaled<Sqr, Vek16u>), pSrc, pDst, len, scaleFactor);
}

VekStatus veksSqr_16u_ISfs(Vek16u* pSrcDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(MapOneScaled<Sqr, Vek16u>), pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksSqr_16s_Sfs(const Vek16s* pSrc, Vek16s* pDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(MapOneScaled<Sqr, Vek16s>), pSrc, pDst, len, scaleFactor);
}

VekStatus veksSqr_16s_ISfs(Vek16s* pSrcDst, int len, int scaleFactor) {
  return mapOne(VEKS_KERNEL(MapOneScaled<Sqr, Vek16s>), pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksAddProduct_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(Accumulate<AddProduct, Vek32f>), pSrc1, pSrc2, pSrcDst, len);
}

VekStatus veksAddProduct_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(Accumulate<AddProduct, Vek64f>), pSrc1, pSrc2, pSrcDst, len);
}

VekStatus veksAddProduct_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pSrcDst, int len,
                                 int scaleFactor) {
  return mapTwo(VEKS_KERNEL(AccumulateScaled<AddProduct, Vek16s>), pSrc1, pSrc2, pSrcDst, len,
                scaleFactor);
}

VekStatus veksAddProduct_32s_Sfs(const Vek32s* pSrc1, const Vek32s* pSrc2, Vek32s* pSrcDst, int len,
                                 int scaleFactor) {
  return mapTwo(VEKS_KERNEL(AccumulateScaled<AddProduct, Vek32s>), pSrc1, pSrc2, pSrcDst, len,
                scaleFactor);
}

VekStatus veksAddProduct_16s32s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek32s* pSrcDst,
                                    int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(AccumulatePromotedScaled), pSrc1, pSrc2, pSrcDst, len, scaleFactor);
}
