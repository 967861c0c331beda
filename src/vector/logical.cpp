#include "veks/vector/logical.h"

#include "core/frame.h"
#include "core/short_vectors.h"
#include "core/targets.h"
#include "vector/operations.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/logical-inl.h"
#include <hwy/foreach_target.h>

#include "vector/logical-inl.h"

using namespace veks;

VekStatus veksAnd_8u(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek8u* pDst, int len) {
  return mapTwoByBlocks<And>(VEKS_KERNEL(MapTwo<And, Vek8u>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksAnd_8u_I(const Vek8u* pSrc, Vek8u* pSrcDst, int len) {
  return mapTwoByBlocks<And>(VEKS_KERNEL(MapTwo<And, Vek8u>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksAndC_8u(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len) {
  return mapConstantByBlocks<And>(VEKS_KERNEL(MapConstant<And, Vek8u>), pSrc, val, pDst, len);
}

VekStatus veksAndC_8u_I(Vek8u val, Vek8u* pSrcDst, int len) {
  return mapConstantByBlocks<And>(VEKS_KERNEL(MapConstant<And, Vek8u>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksAnd_16u(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len) {
  return mapTwoByBlocks<And>(VEKS_KERNEL(MapTwo<And, Vek16u>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksAnd_16u_I(const Vek16u* pSrc, Vek16u* pSrcDst, int len) {
  return mapTwoByBlocks<And>(VEKS_KERNEL(MapTwo<And, Vek16u>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksAndC_16u(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len) {
  return mapConstantByBlocks<And>(VEKS_KERNEL(MapConstant<And, Vek16u>), pSrc, val, pDst, len);
}

VekStatus veksAndC_16u_I(Vek16u val, Vek16u* pSrcDst, int len) {
  return mapConstantByBlocks<And>(VEKS_KERNEL(MapConstant<And, Vek16u>), pSrcDst, val, pSrcDst,
                                  len);
}

VekStatus veksAnd_32u(const Vek32u* pSrc1, const Vek32u* pSrc2, Vek32u* pDst, int len) {
  return mapTwoByBlocks<And>(VEKS_KERNEL(MapTwo<And, Vek32u>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksAnd_32u_I(const Vek32u* pSrc, Vek32u* pSrcDst, int len) {
  return mapTwoByBlocks<And>(VEKS_KERNEL(MapTwo<And, Vek32u>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksAndC_32u(const Vek32u* pSrc, Vek32u val, Vek32u* pDst, int len) {
  return mapConstantByBlocks<And>(VEKS_KERNEL(MapConstant<And, Vek32u>), pSrc, val, pDst, len);
}

VekStatus veksAndC_32u_I(Vek32u val, Vek32u* pSrcDst, int len) {
  return mapConstantByBlocks<And>(VEKS_KERNEL(MapConstant<And, Vek32u>), pSrcDst, val, pSrcDst,
                                  len);
}

VekStatus veksOr_8u(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek8u* pDst, int len) {
  return mapTwoByBlocks<Or>(VEKS_KERNEL(MapTwo<Or, Vek8u>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksOr_8u_I(const Vek8u* pSrc, Vek8u* pSrcDst, int len) {
  return mapTwoByBlocks<Or>(VEKS_KERNEL(MapTwo<Or, Vek8u>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksOrC_8u(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len) {
  return mapConstantByBlocks<Or>(VEKS_KERNEL(MapConstant<Or, Vek8u>), pSrc, val, pDst, len);
}

VekStatus veksOrC_8u_I(Vek8u val, Vek8u* pSrcDst, int len) {
  return mapConstantByBlocks<Or>(VEKS_KERNEL(MapConstant<Or, Vek8u>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksOr_16u(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len) {
  return mapTwoByBlocks<Or>(VEKS_KERNEL(MapTwo<Or, Vek16u>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksOr_16u_I(const Vek16u* pSrc, Vek16u* pSrcDst, int len) {
  return mapTwoByBlocks<Or>(VEKS_KERNEL(MapTwo<Or, Vek16u>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksOrC_16u(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len) {
  return mapConstantByBlocks<Or>(VEKS_KERNEL(MapConstant<Or, Vek16u>), pSrc, val, pDst, len);
}

VekStatus veksOrC_16u_I(Vek16u val, Vek16u* pSrcDst, int len) {
  return mapConstantByBlocks<Or>(VEKS_KERNEL(MapConstant<Or, Vek16u>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksOr_32u(const Vek32u* pSrc1, const Vek32u* pSrc2, Vek32u* pDst, int len) {
  return mapTwoByBlocks<Or>(VEKS_KERNEL(MapTwo<Or, Vek32u>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksOr_32u_I(const Vek32u* pSrc, Vek32u* pSrcDst, int len) {
  return mapTwoByBlocks<Or>(VEKS_KERNEL(MapTwo<Or, Vek32u>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksOrC_32u(const Vek32u* pSrc, Vek32u val, Vek32u* pDst, int len) {
  return mapConstantByBlocks<Or>(VEKS_KERNEL(MapConstant<Or, Vek32u>), pSrc, val, pDst, len);
}

VekStatus veksOrC_32u_I(Vek32u val, Vek32u* pSrcDst, int len) {
  return mapConstantByBlocks<Or>(VEKS_KERNEL(MapConstant<Or, Vek32u>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksXor_8u(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek8u* pDst, int len) {
  return mapTwoByBlocks<Xor>(VEKS_KERNEL(MapTwo<Xor, Vek8u>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksXor_8u_I(const Vek8u* pSrc, Vek8u* pSrcDst, int len) {
  return mapTwoByBlocks<Xor>(VEKS_KERNEL(MapTwo<Xor, Vek8u>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksXorC_8u(const Vek8u* pSrc, Vek8u val, Vek8u* pDst, int len) {
  return mapConstantByBlocks<Xor>(VEKS_KERNEL(MapConstant<Xor, Vek8u>), pSrc, val, pDst, len);
}

VekStatus veksXorC_8u_I(Vek8u val, Vek8u* pSrcDst, int len) {
  return mapConstantByBlocks<Xor>(VEKS_KERNEL(MapConstant<Xor, Vek8u>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksXor_16u(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len) {
  return mapTwoByBlocks<Xor>(VEKS_KERNEL(MapTwo<Xor, Vek16u>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksXor_16u_I(const Vek16u* pSrc, Vek16u* pSrcDst, int len) {
  return mapTwoByBlocks<Xor>(VEKS_KERNEL(MapTwo<Xor, Vek16u>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksXorC_16u(const Vek16u* pSrc, Vek16u val, Vek16u* pDst, int len) {
  return mapConstantByBlocks<Xor>(VEKS_KERNEL(MapConstant<Xor, Vek16u>), pSrc, val, pDst, len);
}

VekStatus veksXorC_16u_I(Vek16u val, Vek16u* pSrcDst, int len) {
  return mapConstantByBlocks<Xor>(VEKS_KERNEL(MapConstant<Xor, Vek16u>), pSrcDst, val, pSrcDst,
                                  len);
}

VekStatus veksXor_32u(const Vek32u* pSrc1, const Vek32u* pSrc2, Vek32u* pDst, int len) {
  return mapTwoByBlocks<Xor>(VEKS_KERNEL(MapTwo<Xor, Vek32u>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksXor_32u_I(const Vek32u* pSrc, Vek32u* pSrcDst, int len) {
  return mapTwoByBlocks<Xor>(VEKS_KERNEL(MapTwo<Xor, Vek32u>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksXorC_32u(const Vek32u* pSrc, Vek32u val, Vek32u* pDst, int len) {
  return mapConstantByBlocks<Xor>(VEKS_KERNEL(MapConstant<Xor, Vek32u>), pSrc, val, pDst, len);
}

VekStatus veksXorC_32u_I(Vek32u val, Vek32u* pSrcDst, int len) {
  return mapConstantByBlocks<Xor>(VEKS_KERNEL(MapConstant<Xor, Vek32u>), pSrcDst, val, pSrcDst,
                                  len);
}

VekStatus veksNot_8u(const Vek8u* pSrc, Vek8u* pDst, int len) {
  return mapOneByBlocks<Not>(VEKS_KERNEL(MapOne<Not, Vek8u>), pSrc, pDst, len);
}

VekStatus veksNot_8u_I(Vek8u* pSrcDst, int len) {
  return mapOneByBlocks<Not>(VEKS_KERNEL(MapOne<Not, Vek8u>), pSrcDst, pSrcDst, len);
}

VekStatus veksNot_16u(const Vek16u* pSrc, Vek16u* pDst, int len) {
  return mapOneByBlocks<Not>(VEKS_KERNEL(MapOne<Not, Vek16u>), pSrc, pDst, len);
}

VekStatus veksNot_16u_I(Vek16u* pSrcDst, int len) {
  return mapOneByBlocks<Not>(VEKS_KERNEL(MapOne<Not, Vek16u>), pSrcDst, pSrcDst, len);
}

VekStatus veksNot_32u(const Vek32u* pSrc, Vek32u* pDst, int len) {
  return mapOneByBlocks<Not>(VEKS_KERNEL(MapOne<Not, Vek32u>), pSrc, pDst, len);
}

VekStatus veksNot_32u_I(Vek32u* pSrcDst, int len) {
  return mapOneByBlocks<Not>(VEKS_KERNEL(MapOne<Not, Vek32u>), pSrcDst, pSrcDst, len);
}

VekStatus veksLShiftC_8u(const Vek8u* pSrc, int val, Vek8u* pDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftLeft<Vek8u>), pSrc, val, pDst, len);
}

VekStatus veksLShiftC_8u_I(int val, Vek8u* pSrcDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftLeft<Vek8u>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksLShiftC_16u(const Vek16u* pSrc, int val, Vek16u* pDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftLeft<Vek16u>), pSrc, val, pDst, len);
}

VekStatus veksLShiftC_16u_I(int val, Vek16u* pSrcDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftLeft<Vek16u>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksLShiftC_16s(const Vek16s* pSrc, int val, Vek16s* pDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftLeft<Vek16s>), pSrc, val, pDst, len);
}

VekStatus veksLShiftC_16s_I(int val, Vek16s* pSrcDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftLeft<Vek16s>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksLShiftC_32s(const Vek32s* pSrc, int val, Vek32s* pDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftLeft<Vek32s>), pSrc, val, pDst, len);
}

VekStatus veksLShiftC_32s_I(int val, Vek32s* pSrcDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftLeft<Vek32s>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksRShiftC_8u(const Vek8u* pSrc, int val, Vek8u* pDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftRight<Vek8u>), pSrc, val, pDst, len);
}

VekStatus veksRShiftC_8u_I(int val, Vek8u* pSrcDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftRight<Vek8u>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksRShiftC_16u(const Vek16u* pSrc, int val, Vek16u* pDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftRight<Vek16u>), pSrc, val, pDst, len);
}

VekStatus veksRShiftC_16u_I(int val, Vek16u* pSrcDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftRight<Vek16u>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksRShiftC_16s(const Vek16s* pSrc, int val, Vek16s* pDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftRight<Vek16s>), pSrc, val, pDst, len);
}

VekStatus veksRShiftC_16s_I(int val, Vek16s* pSrcDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftRight<Vek16s>), pSrcDst, val, pSrcDst, len);
}

VekStatus veksRShiftC_32s(const Vek32s* pSrc, int val, Vek32s* pDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftRight<Vek32s>), pSrc, val, pDst, len);
}

VekStatus veksRShiftC_32s_I(int val, Vek32s* pSrcDst, int len) {
  return mapShift(VEKS_KERNEL(ShiftRight<Vek32s>), pSrcDst, val, pSrcDst, len);
}
