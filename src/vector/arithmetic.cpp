#include "veks/vector/arithmetic.h"

#include "core/frame.h"
#include "core/targets.h"
#include "vector/operations.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/arithmetic-inl.h"
#include <hwy/foreach_target.h>

#include "vector/arithmetic-inl.h"

using namespace veks;

VekStatus veksAdd_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Add, Vek32f>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksAdd_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Add, Vek32f>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksAdd_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Add, Vek64f>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksAdd_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Add, Vek64f>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksAdd_32fc(const Vek32fc* pSrc1, const Vek32fc* pSrc2, Vek32fc* pDst, int len) {
  return mapTwoParts(VEKS_KERNEL(MapTwo<Add, Vek32f>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksAdd_32fc_I(const Vek32fc* pSrc, Vek32fc* pSrcDst, int len) {
  return mapTwoParts(VEKS_KERNEL(MapTwo<Add, Vek32f>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksAdd_64fc(const Vek64fc* pSrc1, const Vek64fc* pSrc2, Vek64fc* pDst, int len) {
  return mapTwoParts(VEKS_KERNEL(MapTwo<Add, Vek64f>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksAdd_64fc_I(const Vek64fc* pSrc, Vek64fc* pSrcDst, int len) {
  return mapTwoParts(VEKS_KERNEL(MapTwo<Add, Vek64f>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksSub_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Sub, Vek32f>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksSub_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Sub, Vek32f>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksSub_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Sub, Vek64f>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksSub_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Sub, Vek64f>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksSub_32fc(const Vek32fc* pSrc1, const Vek32fc* pSrc2, Vek32fc* pDst, int len) {
  return mapTwoParts(VEKS_KERNEL(MapTwo<Sub, Vek32f>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksSub_32fc_I(const Vek32fc* pSrc, Vek32fc* pSrcDst, int len) {
  return mapTwoParts(VEKS_KERNEL(MapTwo<Sub, Vek32f>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksSub_64fc(const Vek64fc* pSrc1, const Vek64fc* pSrc2, Vek64fc* pDst, int len) {
  return mapTwoParts(VEKS_KERNEL(MapTwo<Sub, Vek64f>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksSub_64fc_I(const Vek64fc* pSrc, Vek64fc* pSrcDst, int len) {
  return mapTwoParts(VEKS_KERNEL(MapTwo<Sub, Vek64f>), pSrc, pSrcDst, pSrcDst, len);
}

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

VekStatus veksAddC_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Add, Vek32f>), pSrc, val, pDst, len);
}

VekStatus veksAddC_32f_I(Vek32f val, Vek32f* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Add, Vek32f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksAddC_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Add, Vek64f>), pSrc, val, pDst, len);
}

VekStatus veksAddC_64f_I(Vek64f val, Vek64f* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Add, Vek64f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksAddC_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Add, Vek32fc>), pSrc, val, pDst, len);
}

VekStatus veksAddC_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Add, Vek32fc>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksAddC_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Add, Vek64fc>), pSrc, val, pDst, len);
}

VekStatus veksAddC_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Add, Vek64fc>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubC_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<SubFrom, Vek32f>), pSrc, val, pDst, len);
}

VekStatus veksSubC_32f_I(Vek32f val, Vek32f* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<SubFrom, Vek32f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubC_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<SubFrom, Vek64f>), pSrc, val, pDst, len);
}

VekStatus veksSubC_64f_I(Vek64f val, Vek64f* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<SubFrom, Vek64f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubC_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<SubFrom, Vek32fc>), pSrc, val, pDst, len);
}

VekStatus veksSubC_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<SubFrom, Vek32fc>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubC_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<SubFrom, Vek64fc>), pSrc, val, pDst, len);
}

VekStatus veksSubC_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<SubFrom, Vek64fc>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubCRev_32f(const Vek32f* pSrc, Vek32f val, Vek32f* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Sub, Vek32f>), pSrc, val, pDst, len);
}

VekStatus veksSubCRev_32f_I(Vek32f val, Vek32f* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Sub, Vek32f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubCRev_64f(const Vek64f* pSrc, Vek64f val, Vek64f* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Sub, Vek64f>), pSrc, val, pDst, len);
}

VekStatus veksSubCRev_64f_I(Vek64f val, Vek64f* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapConstant<Sub, Vek64f>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubCRev_32fc(const Vek32fc* pSrc, Vek32fc val, Vek32fc* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Sub, Vek32fc>), pSrc, val, pDst, len);
}

VekStatus veksSubCRev_32fc_I(Vek32fc val, Vek32fc* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Sub, Vek32fc>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksSubCRev_64fc(const Vek64fc* pSrc, Vek64fc val, Vek64fc* pDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Sub, Vek64fc>), pSrc, val, pDst, len);
}

VekStatus veksSubCRev_64fc_I(Vek64fc val, Vek64fc* pSrcDst, int len) {
  return mapConstant(VEKS_KERNEL(MapComplexConstant<Sub, Vek64fc>), pSrcDst, val, pSrcDst, len);
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

VekStatus veksAbs_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Abs, Vek32f>), pSrc, pDst, len);
}

VekStatus veksAbs_32f_I(Vek32f* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Abs, Vek32f>), pSrcDst, pSrcDst, len);
}

VekStatus veksAbs_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Abs, Vek64f>), pSrc, pDst, len);
}

VekStatus veksAbs_64f_I(Vek64f* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<Abs, Vek64f>), pSrcDst, pSrcDst, len);
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

VekStatus veksAddProduct_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(Accumulate<AddProduct, Vek32f>), pSrc1, pSrc2, pSrcDst, len);
}

VekStatus veksAddProduct_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(Accumulate<AddProduct, Vek64f>), pSrc1, pSrc2, pSrcDst, len);
}
