#include "veks/vector/initialisation.h"

#include "core/frame.h"
#include "core/targets.h"
#include "vector/operations.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/initialisation-inl.h"
#include <hwy/foreach_target.h>

#include "vector/initialisation-inl.h"

using namespace veks;

namespace {

// Clearing and moving work on bytes, the same for every element type.
template <class T>
inline VekStatus zero(T* dst, int len) {
  const VekStatus status = checkVectors(len, dst);
  if (status != vekStsOk) return status;
  return VEKS_KERNEL(Zero)(reinterpret_cast<uint8_t*>(dst), static_cast<size_t>(len) * sizeof(T));
}

template <class T>
inline VekStatus move(const T* src, T* dst, int len) {
  const VekStatus status = checkVectors(len, src, dst);
  if (status != vekStsOk) return status;
  return VEKS_KERNEL(Move)(reinterpret_cast<const uint8_t*>(src), reinterpret_cast<uint8_t*>(dst),
                           static_cast<size_t>(len) * sizeof(T));
}

}  // namespace

VekStatus veksSet_8u(Vek8u val, Vek8u* pDst, int len) {
  return generate(VEKS_KERNEL(Fill<Vek8u>), val, pDst, len);
}

VekStatus veksSet_16s(Vek16s val, Vek16s* pDst, int len) {
  return generate(VEKS_KERNEL(Fill<Vek16s>), val, pDst, len);
}

VekStatus veksSet_32s(Vek32s val, Vek32s* pDst, int len) {
  return generate(VEKS_KERNEL(Fill<Vek32s>), val, pDst, len);
}

VekStatus veksSet_64s(Vek64s val, Vek64s* pDst, int len) {
  return generate(VEKS_KERNEL(Fill<Vek64s>), val, pDst, len);
}

VekStatus veksSet_32f(Vek32f val, Vek32f* pDst, int len) {
  return generate(VEKS_KERNEL(Fill<Vek32f>), val, pDst, len);
}

VekStatus veksSet_64f(Vek64f val, Vek64f* pDst, int len) {
  return generate(VEKS_KERNEL(Fill<Vek64f>), val, pDst, len);
}

VekStatus veksSet_16sc(Vek16sc val, Vek16sc* pDst, int len) {
  return generate(VEKS_KERNEL(Fill<Vek16sc>), val, pDst, len);
}

VekStatus veksSet_32sc(Vek32sc val, Vek32sc* pDst, int len) {
  return generate(VEKS_KERNEL(Fill<Vek32sc>), val, pDst, len);
}

VekStatus veksSet_64sc(Vek64sc val, Vek64sc* pDst, int len) {
  return generate(VEKS_KERNEL(Fill<Vek64sc>), val, pDst, len);
}

VekStatus veksSet_32fc(Vek32fc val, Vek32fc* pDst, int len) {
  return generate(VEKS_KERNEL(Fill<Vek32fc>), val, pDst, len);
}

VekStatus veksSet_64fc(Vek64fc val, Vek64fc* pDst, int len) {
  return generate(VEKS_KERNEL(Fill<Vek64fc>), val, pDst, len);
}

VekStatus veksZero_8u(Vek8u* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_16s(Vek16s* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_32s(Vek32s* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_64s(Vek64s* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_32f(Vek32f* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_64f(Vek64f* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_16sc(Vek16sc* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_32sc(Vek32sc* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_64sc(Vek64sc* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_32fc(Vek32fc* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksZero_64fc(Vek64fc* pDst, int len) {
  return zero(pDst, len);
}

VekStatus veksCopy_8u(const Vek8u* pSrc, Vek8u* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_16s(const Vek16s* pSrc, Vek16s* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_32s(const Vek32s* pSrc, Vek32s* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_64s(const Vek64s* pSrc, Vek64s* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_32sc(const Vek32sc* pSrc, Vek32sc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_64sc(const Vek64sc* pSrc, Vek64sc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksCopy_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_8u(const Vek8u* pSrc, Vek8u* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_16s(const Vek16s* pSrc, Vek16s* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_32s(const Vek32s* pSrc, Vek32s* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_64s(const Vek64s* pSrc, Vek64s* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_32sc(const Vek32sc* pSrc, Vek32sc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_64sc(const Vek64sc* pSrc, Vek64sc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksMove_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len) {
  return move(pSrc, pDst, len);
}

VekStatus veksFlip_8u(const Vek8u* pSrc, Vek8u* pDst, int len) {
  return mapOne(VEKS_KERNEL(Flip<Vek8u>), pSrc, pDst, len);
}

VekStatus veksFlip_8u_I(Vek8u* pSrcDst, int len) {
  return mapInPlace(VEKS_KERNEL(FlipInPlace<Vek8u>), pSrcDst, len);
}

VekStatus veksFlip_16u(const Vek16u* pSrc, Vek16u* pDst, int len) {
  return mapOne(VEKS_KERNEL(Flip<Vek16u>), pSrc, pDst, len);
}

VekStatus veksFlip_16u_I(Vek16u* pSrcDst, int len) {
  return mapInPlace(VEKS_KERNEL(FlipInPlace<Vek16u>), pSrcDst, len);
}

VekStatus veksFlip_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return mapOne(VEKS_KERNEL(Flip<Vek32f>), pSrc, pDst, len);
}

VekStatus veksFlip_32f_I(Vek32f* pSrcDst, int len) {
  return mapInPlace(VEKS_KERNEL(FlipInPlace<Vek32f>), pSrcDst, len);
}

VekStatus veksFlip_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return mapOne(VEKS_KERNEL(Flip<Vek64f>), pSrc, pDst, len);
}

VekStatus veksFlip_64f_I(Vek64f* pSrcDst, int len) {
  return mapInPlace(VEKS_KERNEL(FlipInPlace<Vek64f>), pSrcDst, len);
}

VekStatus veksFlip_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len) {
  return mapOne(VEKS_KERNEL(Flip<Vek16sc>), pSrc, pDst, len);
}

VekStatus veksFlip_16sc_I(Vek16sc* pSrcDst, int len) {
  return mapInPlace(VEKS_KERNEL(FlipInPlace<Vek16sc>), pSrcDst, len);
}

VekStatus veksFlip_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len) {
  return mapOne(VEKS_KERNEL(Flip<Vek32fc>), pSrc, pDst, len);
}

VekStatus veksFlip_32fc_I(Vek32fc* pSrcDst, int len) {
  return mapInPlace(VEKS_KERNEL(FlipInPlace<Vek32fc>), pSrcDst, len);
}

VekStatus veksFlip_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len) {
  return mapOne(VEKS_KERNEL(Flip<Vek64fc>), pSrc, pDst, len);
}

VekStatus veksFlip_64fc_I(Vek64fc* pSrcDst, int len) {
  return mapInPlace(VEKS_KERNEL(FlipInPlace<Vek64fc>), pSrcDst, len);
}

VekStatus veksSwapBytes_16u(const Vek16u* pSrc, Vek16u* pDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<SwapBytes, Vek16u>), pSrc, pDst, len);
}

VekStatus veksSwapBytes_16u_I(Vek16u* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<SwapBytes, Vek16u>), pSrcDst, pSrcDst, len);
}

VekStatus veksSwapBytes_24u(const Vek8u* pSrc, Vek8u* pDst, int len) {
  return mapOne(VEKS_KERNEL(SwapBytes24), pSrc, pDst, len);
}

VekStatus veksSwapBytes_24u_I(Vek8u* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(SwapBytes24), pSrcDst, pSrcDst, len);
}

VekStatus veksSwapBytes_32u(const Vek32u* pSrc, Vek32u* pDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<SwapBytes, Vek32u>), pSrc, pDst, len);
}

VekStatus veksSwapBytes_32u_I(Vek32u* pSrcDst, int len) {
  return mapOne(VEKS_KERNEL(MapOne<SwapBytes, Vek32u>), pSrcDst, pSrcDst, len);
}
