#include "veks/transform/packed.h"

#include "core/frame.h"
#include "core/targets.h"
#include "transform/packed_formats.h"
#include "vector/operations.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "transform/packed-inl.h"
#include <hwy/foreach_target.h>

#include "transform/packed-inl.h"

using namespace veks;

namespace {

// A kernel that finds its packed values at the start of the full spectrum.
template <class Kernel, class C>
inline VekStatus expandInPlace(Kernel kernel, C* srcDst, int len) {
  using T = decltype(srcDst->re);
  return mapOne(kernel, reinterpret_cast<const T*>(srcDst), srcDst, len);
}

}  // namespace

VekStatus veksMulPack_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MulPacked<Pack, Vek32fc>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksMulPack_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MulPacked<Pack, Vek32fc>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMulPack_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MulPacked<Pack, Vek64fc>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksMulPack_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MulPacked<Pack, Vek64fc>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMulPack_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len,
                              int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MulPackedScaled<Pack>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksMulPack_16s_ISfs(const Vek16s* pSrc, Vek16s* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MulPackedScaled<Pack>), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksMulPerm_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, Vek32f* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MulPacked<Perm, Vek32fc>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksMulPerm_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MulPacked<Perm, Vek32fc>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMulPerm_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, Vek64f* pDst, int len) {
  return mapTwo(VEKS_KERNEL(MulPacked<Perm, Vek64fc>), pSrc1, pSrc2, pDst, len);
}

VekStatus veksMulPerm_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len) {
  return mapTwo(VEKS_KERNEL(MulPacked<Perm, Vek64fc>), pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksMulPerm_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len,
                              int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MulPackedScaled<Perm>), pSrc1, pSrc2, pDst, len, scaleFactor);
}

VekStatus veksMulPerm_16s_ISfs(const Vek16s* pSrc, Vek16s* pSrcDst, int len, int scaleFactor) {
  return mapTwo(VEKS_KERNEL(MulPackedScaled<Perm>), pSrc, pSrcDst, pSrcDst, len, scaleFactor);
}

VekStatus veksMulPackConj_32f_I(const Vek32f* pSrc, Vek32f* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(MulPackedConj<Pack, Vek32fc>), pSrc, pSrcDst, len);
}

VekStatus veksMulPackConj_64f_I(const Vek64f* pSrc, Vek64f* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(MulPackedConj<Pack, Vek64fc>), pSrc, pSrcDst, len);
}

VekStatus veksConjPack_16sc(const Vek16s* pSrc, Vek16sc* pDst, int lenDst) {
  return mapOne(VEKS_KERNEL(ExpandPacked<Pack, Vek16sc>), pSrc, pDst, lenDst);
}

VekStatus veksConjPack_16sc_I(Vek16sc* pSrcDst, int lenDst) {
  return expandInPlace(VEKS_KERNEL(ExpandPacked<Pack, Vek16sc>), pSrcDst, lenDst);
}

VekStatus veksConjPack_32fc(const Vek32f* pSrc, Vek32fc* pDst, int lenDst) {
  return mapOne(VEKS_KERNEL(ExpandPacked<Pack, Vek32fc>), pSrc, pDst, lenDst);
}

VekStatus veksConjPack_32fc_I(Vek32fc* pSrcDst, int lenDst) {
  return expandInPlace(VEKS_KERNEL(ExpandPacked<Pack, Vek32fc>), pSrcDst, lenDst);
}

VekStatus veksConjPack_64fc(const Vek64f* pSrc, Vek64fc* pDst, int lenDst) {
  return mapOne(VEKS_KERNEL(ExpandPacked<Pack, Vek64fc>), pSrc, pDst, lenDst);
}

VekStatus veksConjPack_64fc_I(Vek64fc* pSrcDst, int lenDst) {
  return expandInPlace(VEKS_KERNEL(ExpandPacked<Pack, Vek64fc>), pSrcDst, lenDst);
}

VekStatus veksConjPerm_16sc(const Vek16s* pSrc, Vek16sc* pDst, int lenDst) {
  return mapOne(VEKS_KERNEL(ExpandPacked<Perm, Vek16sc>), pSrc, pDst, lenDst);
}

VekStatus veksConjPerm_16sc_I(Vek16sc* pSrcDst, int lenDst) {
  return expandInPlace(VEKS_KERNEL(ExpandPacked<Perm, Vek16sc>), pSrcDst, lenDst);
}

VekStatus veksConjPerm_32fc(const Vek32f* pSrc, Vek32fc* pDst, int lenDst) {
  return mapOne(VEKS_KERNEL(ExpandPacked<Perm, Vek32fc>), pSrc, pDst, lenDst);
}

VekStatus veksConjPerm_32fc_I(Vek32fc* pSrcDst, int lenDst) {
  return expandInPlace(VEKS_KERNEL(ExpandPacked<Perm, Vek32fc>), pSrcDst, lenDst);
}

VekStatus veksConjPerm_64fc(const Vek64f* pSrc, Vek64fc* pDst, int lenDst) {
  return mapOne(VEKS_KERNEL(ExpandPacked<Perm, Vek64fc>), pSrc, pDst, lenDst);
}

VekStatus veksConjPerm_64fc_I(Vek64fc* pSrcDst, int lenDst) {
  return expandInPlace(VEKS_KERNEL(ExpandPacked<Perm, Vek64fc>), pSrcDst, lenDst);
}

VekStatus veksConjCCS_16sc(const Vek16s* pSrc, Vek16sc* pDst, int lenDst) {
  return mapOne(VEKS_KERNEL(ExpandHalf<Vek16sc>), pSrc, pDst, lenDst);
}

VekStatus veksConjCCS_16sc_I(Vek16sc* pSrcDst, int lenDst) {
  return expandInPlace(VEKS_KERNEL(ExpandHalf<Vek16sc>), pSrcDst, lenDst);
}

VekStatus veksConjCCS_32fc(const Vek32f* pSrc, Vek32fc* pDst, int lenDst) {
  return mapOne(VEKS_KERNEL(ExpandHalf<Vek32fc>), pSrc, pDst, lenDst);
}

VekStatus veksConjCCS_32fc_I(Vek32fc* pSrcDst, int lenDst) {
  return expandInPlace(VEKS_KERNEL(ExpandHalf<Vek32fc>), pSrcDst, lenDst);
}

VekStatus veksConjCCS_64fc(const Vek64f* pSrc, Vek64fc* pDst, int lenDst) {
  return mapOne(VEKS_KERNEL(ExpandHalf<Vek64fc>), pSrc, pDst, lenDst);
}

VekStatus veksConjCCS_64fc_I(Vek64fc* pSrcDst, int lenDst) {
  return expandInPlace(VEKS_KERNEL(ExpandHalf<Vek64fc>), pSrcDst, lenDst);
}
