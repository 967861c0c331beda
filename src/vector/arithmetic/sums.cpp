#include "veks/vector/arithmetic.h"

#include "core/frame.h"
#include "core/targets.h"
#include "vector/operations.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/arithmetic/sums-inl.h"
#include <hwy/foreach_target.h>

#include "vector/arithmetic/sums-inl.h"

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

VekStatus veksAdd_16s(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Add, Vek16s>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksAdd_16s_I(const Vek16s* pSrc, Vek16s* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Add, Vek16s>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksAdd_16s32f(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek32f* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwoPromoted<Add, Vek16s, Vek32f>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksAdd_8u_Sfs(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek8u* pDst, int len,
                         int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Add, Vek8u>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksAdd_8u_ISfs(const Vek8u* pSrc, Vek8u* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Add, Vek8u>), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksAdd_16u_Sfs(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len,
                          int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Add, Vek16u>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksAdd_16u_ISfs(const Vek16u* pSrc, Vek16u* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Add, Vek16u>), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksAdd_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len,
                          int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Add, Vek16s>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksAdd_16s_ISfs(const Vek16s* pSrc, Vek16s* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Add, Vek16s>), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksAdd_32s_Sfs(const Vek32s* pSrc1, const Vek32s* pSrc2, Vek32s* pDst, int len,
                          int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Add, Vek32s>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksAdd_32s_ISfs(const Vek32s* pSrc, Vek32s* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Add, Vek32s>), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksAdd_16sc_Sfs(const Vek16sc* pSrc1, const Vek16sc* pSrc2, Vek16sc* pDst, int len,
                           int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoPartsScaled<Add, Vek16sc>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksAdd_16sc_ISfs(const Vek16sc* pSrc, Vek16sc* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoPartsScaled<Add, Vek16sc>), pSrc, pSrcDst, pSrcDst, len,
                scaleFactor);
}

VekStatus veksAdd_32sc_Sfs(const Vek32sc* pSrc1, const Vek32sc* pSrc2, Vek32sc* pDst, int len,
                           int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoPartsScaled<Add, Vek32sc>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksAdd_32sc_ISfs(const Vek32sc* pSrc, Vek32sc* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoPartsScaled<Add, Vek32sc>), pSrc, pSrcDst, pSrcDst, len,
                scaleFactor);
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

VekStatus veksSub_16s(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Sub, Vek16s>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksSub_16s_I(const Vek16s* pSrc, Vek16s* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Sub, Vek16s>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksSub_16s32f(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek32f* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwoPromoted<Sub, Vek16s, Vek32f>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksSub_8u_Sfs(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek8u* pDst, int len,
                         int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Sub, Vek8u>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksSub_8u_ISfs(const Vek8u* pSrc, Vek8u* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Sub, Vek8u>), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksSub_16u_Sfs(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len,
                          int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Sub, Vek16u>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksSub_16u_ISfs(const Vek16u* pSrc, Vek16u* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Sub, Vek16u>), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksSub_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len,
                          int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Sub, Vek16s>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksSub_16s_ISfs(const Vek16s* pSrc, Vek16s* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Sub, Vek16s>), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksSub_32s_Sfs(const Vek32s* pSrc1, const Vek32s* pSrc2, Vek32s* pDst, int len,
                          int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Sub, Vek32s>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksSub_32s_ISfs(const Vek32s* pSrc, Vek32s* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Sub, Vek32s>), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksSub_16sc_Sfs(const Vek16sc* pSrc1, const Vek16sc* pSrc2, Vek16sc* pDst, int len,
                           int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoPartsScaled<Sub, Vek16sc>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksSub_16sc_ISfs(const Vek16sc* pSrc, Vek16sc* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoPartsScaled<Sub, Vek16sc>), pSrc, pSrcDst, pSrcDst, len,
                scaleFactor);
}

VekStatus veksSub_32sc_Sfs(const Vek32sc* pSrc1, const Vek32sc* pSrc2, Vek32sc* pDst, int len,
                           int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoPartsScaled<Sub, Vek32sc>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksSub_32sc_ISfs(const Vek32sc* pSrc, Vek32sc* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoPartsScaled<Sub, Vek32sc>), pSrc, pSrcDst, pSrcDst, len,
                scaleFactor);
}

VekStatus veksAdd_16u(const Vek16u* pSrc1, const Vek16u* pSrc2, Vek16u* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Add, Vek16u>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksAdd_32u(const Vek32u* pSrc1, const Vek32u* pSrc2, Vek32u* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwo<Add, Vek32u>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksAdd_64s_Sfs(const Vek64s* pSrc1, const Vek64s* pSrc2, Vek64s* pDst, int len,
                          int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MapTwoScaled<Add, Vek64s>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksAdd_8u16u(const Vek8u* pSrc1, const Vek8u* pSrc2, Vek16u* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MapTwoPromoted<Add, Vek8u, Vek16u>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksAdd_16s32s_I(const Vek16s* pSrc, Vek32s* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MapPromotedAndSource<Add, Vek16s, Vek32s>), pSrc, pSrcDst, pSrcDst,
                len);
}
