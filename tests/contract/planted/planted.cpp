#include "contract/planted/planted.h"

#include <cstdint>

#include "core/frame.h"
#include "core/targets.h"

using veks::checkVectors;

namespace {

// An access that the compiler keeps.
template <class T>
T read(const T* p) {
  return *static_cast<const volatile T*>(p);
}

template <class T>
void write(T* p, T value) {
  *static_cast<volatile T*>(p) = value;
}

template <class T>
VekStatus copy(const T* src, T* dst, int len) {
  for (int i = 0; i < len; ++i) write(&dst[i], src[i]);
  return vekStsOk;
}

template <class T>
VekStatus checkedCopy(const T* src, T* dst, int len) {
  const VekStatus status = checkVectors(len, src, dst);
  return status != vekStsOk ? status : copy(src, dst, len);
}

Vek16s difference(Vek16s a, Vek16s b) {
  return static_cast<Vek16s>(a - b);
}

VekStatus subtract(const Vek16s* src1, const Vek16s* src2, Vek16s* dst, int len) {
  const VekStatus status = checkVectors(len, src1, src2, dst);
  if (status != vekStsOk) return status;
  for (int i = 0; i < len; ++i) dst[i] = difference(src2[i], src1[i]);
  return vekStsOk;
}

VekStatus sum(const Vek8u* src, int len, Vek32s* result) {
  const VekStatus status = checkVectors(len, src, result);
  if (status != vekStsOk) return status;
  Vek32s total = 0;
  for (int i = 0; i < len; ++i) total += src[i];
  *result = total;
  return vekStsOk;
}

// The last element and its position.
VekStatus last(const Vek16s* src, int len, Vek16s* value, int* index) {
  const VekStatus status = checkVectors(len, src, value);
  if (status != vekStsOk) return status;
  *value = src[len - 1];
  if (index != nullptr) *index = len - 1;
  return vekStsOk;
}

VekStatus shift(const Vek16u* src, int bits, Vek16u* dst, int len) {
  for (int i = 0; i < len; ++i) dst[i] = static_cast<Vek16u>(src[i] >> (bits & 15));
  return vekStsOk;
}

// Whether p is less than 8 bytes above a multiple of 16.
bool isAligned(const void* p) {
  return reinterpret_cast<uintptr_t>(p) % 16 < 8;
}

// The bytes from p to the end of its page; 0 if a page begins there.
uintptr_t leftInPage(const void* p) {
  constexpr uintptr_t kPage = 4096;
  return (kPage - reinterpret_cast<uintptr_t>(p) % kPage) % kPage;
}

// The source has the values of the first half and one more.
VekStatus copyHalf(const Vek16s* src, Vek16s* dst, int len) {
  const VekStatus status = checkVectors(len, src, dst);
  if (status != vekStsOk) return status;
  for (int i = 0; i < len; ++i) write(&dst[i], src[i < len / 2 ? i : len / 2]);
  return vekStsOk;
}

// Real values become complex ones, in place only from the last one on.
VekStatus expand(const Vek8s* src, Vek8sc* dst, int len, bool fromLast) {
  const VekStatus status = checkVectors(len, src, dst);
  if (status != vekStsOk) return status;
  for (int k = 0; k < len; ++k) {
    const int i = fromLast ? len - 1 - k : k;
    const Vek8s value = read(&src[i]);
    write(&dst[i].re, value);
    write(&dst[i].im, Vek8s{0});
  }
  return vekStsOk;
}

VekStatus addTarget(const Vek32f* src, Vek32f* dst, int len) {
  const VekStatus status = checkVectors(len, src, dst);
  if (status != vekStsOk) return status;
  for (int i = 0; i < len; ++i) dst[i] = veks::activeTarget == 0 ? src[i] : -src[i];
  return vekStsOk;
}

}  // namespace

VekStatus veksPlantedSub_16s(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len) {
  return subtract(pSrc1, pSrc2, pDst, len);
}

VekStatus veksPlantedSub_16s_I(const Vek16s* pSrc, Vek16s* pSrcDst, int len) {
  return subtract(pSrc, pSrcDst, pSrcDst, len);
}

VekStatus veksPlantedSet_64fc(Vek64fc val, Vek64fc* pDst, int len) {
  const VekStatus status = checkVectors(len, pDst);
  if (status != vekStsOk) return status;
  for (int i = 0; i < len; ++i) pDst[i] = val;
  return vekStsOk;
}

VekStatus veksPlantedSum_8u(const Vek8u* pSrc, int len, Vek32s* pSum) {
  return sum(pSrc, len, pSum);
}

VekStatus veksPlantedPair_8u(const Vek8u* pSrc, int len, Vek8u* pDst) {
  const VekStatus status = checkVectors(len, pSrc, pDst);
  if (status != vekStsOk) return status;
  pDst[0] = pSrc[0];
  pDst[1] = pSrc[len - 1];
  return vekStsOk;
}

VekStatus veksPlantedOptionalIndx_16s(const Vek16s* pSrc, int len, Vek16s* pMax, int* pIndx) {
  return last(pSrc, len, pMax, pIndx);
}

VekStatus veksPlantedNegate_32s_I(Vek32s* pSrcDst, int len) {
  const VekStatus status = checkVectors(len, pSrcDst);
  if (status != vekStsOk) return status;
  for (int i = 0; i < len; ++i) pSrcDst[i] = ~pSrcDst[i];
  return vekStsOk;
}

VekStatus veksPlantedHalf_16s(const Vek16s* pSrc, Vek16s* pDst, int len) {
  return copyHalf(pSrc, pDst, len);
}

VekStatus veksPlantedExpandUp_8sc(const Vek8s* pSrc, Vek8sc* pDst, int len) {
  return expand(pSrc, pDst, len, false);
}

VekStatus veksPlantedExpandDown_8sc(const Vek8s* pSrc, Vek8sc* pDst, int len) {
  return expand(pSrc, pDst, len, true);
}

VekStatus veksPlantedExpandDown_8sc_I(Vek8sc* pSrcDst, int len) {
  return expand(reinterpret_cast<const Vek8s*>(pSrcDst), pSrcDst, len, true);
}

VekStatus veksPlantedLastBits_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return addTarget(pSrc, pDst, len);
}

VekStatus veksPlantedReadPast_8u(const Vek8u* pSrc, Vek8u* pDst, int len) {
  const VekStatus status = checkedCopy(pSrc, pDst, len);
  if (status == vekStsOk) read(pSrc + len);
  return status;
}

VekStatus veksPlantedHalfRoundedUp_16s(const Vek16s* pSrc, Vek16s* pDst, int len) {
  const VekStatus status = copyHalf(pSrc, pDst, len);
  if (status == vekStsOk) read(pSrc + (len + 1) / 2);
  return status;
}

VekStatus veksPlantedReadBefore_16s(const Vek16s* pSrc, Vek16s* pDst, int len) {
  const VekStatus status = checkedCopy(pSrc, pDst, len);
  if (status == vekStsOk) read(pSrc - 1);
  return status;
}

VekStatus veksPlantedWritePast_32s(Vek32s val, Vek32s* pDst, int len) {
  const VekStatus status = checkVectors(len, pDst);
  if (status != vekStsOk) return status;
  for (int i = 0; i <= len; ++i) write(&pDst[i], val);
  return vekStsOk;
}

VekStatus veksPlantedWriteBefore_8u_I(Vek8u* pSrcDst, int len) {
  const VekStatus status = checkVectors(len, pSrcDst);
  if (status != vekStsOk) return status;
  for (int i = -1; i < len; ++i) write(&pSrcDst[i], Vek8u{0});
  return vekStsOk;
}

// Stays clear of the guards: only the bytes around the destination can tell.
VekStatus veksPlantedWriteFar_16u(const Vek16u* pSrc, Vek16u* pDst, int len) {
  const VekStatus status = checkedCopy(pSrc, pDst, len);
  if (status == vekStsOk && leftInPage(pDst + len) >= 64) write(pDst + len + 31, Vek16u{0});
  return status;
}

VekStatus veksPlantedWriteSource_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len) {
  const VekStatus status = checkVectors(len, pSrc, pDst);
  if (status != vekStsOk) return status;
  for (int i = 0; i < len; ++i) pDst[i] = pSrc[i];
  write(const_cast<Vek32f*>(&pSrc->re), pSrc->re);
  return vekStsOk;
}

VekStatus veksPlantedTwoSums_8u(const Vek8u* pSrc, int len, Vek32s* pSum) {
  const VekStatus status = sum(pSrc, len, pSum);
  if (status == vekStsOk) write(pSum + 1, *pSum);
  return status;
}

VekStatus veksPlantedWriteFirst_16s(const Vek16s* pSrc, Vek16s* pDst, int len) {
  if (pDst != nullptr) write(pDst, Vek16s{0});
  return checkedCopy(pSrc, pDst, len);
}

VekStatus veksPlantedNullIgnored_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return len <= 0 && pSrc != nullptr && pDst != nullptr ? vekErrSize : copy(pSrc, pDst, len);
}

VekStatus veksPlantedSizeStatus_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  const VekStatus status = checkedCopy(pSrc, pDst, len);
  return status == vekErrSize && len != 0 ? vekErrBadArg : status;
}

// The length before the pointers: a fault, but where it is an exception.
VekStatus veksPlantedSizeFirst_8u(const Vek8u* pSrc, Vek8u* pDst, int len) {
  return len <= 0 ? vekErrSize : checkedCopy(pSrc, pDst, len);
}

VekStatus veksPlantedLengthFirst_8u(const Vek8u* pSrc, Vek8u* pDst, int len) {
  return veksPlantedSizeFirst_8u(pSrc, pDst, len);
}

VekStatus veksPlantedPointerFirst_8u(const Vek8u* pSrc, Vek8u* pDst, int len) {
  return checkedCopy(pSrc, pDst, len);
}

VekStatus veksPlantedOneOrMore_8u(const Vek8u* pSrc, int len, Vek32s* pSum) {
  return sum(pSrc, len, pSum);
}

VekStatus veksPlantedAnyShift_16u(const Vek16u* pSrc, int val, Vek16u* pDst, int len) {
  const VekStatus status = checkVectors(len, pSrc, pDst);
  return status != vekStsOk ? status : shift(pSrc, val, pDst, len);
}

VekStatus veksPlantedShiftFirst_16u(const Vek16u* pSrc, int val, Vek16u* pDst, int len) {
  if (pSrc != nullptr && pDst != nullptr && val < 0) return vekErrShift;
  return veksPlantedAnyShift_16u(pSrc, val, pDst, len);
}

VekStatus veksPlantedTwoOrMore_8u(const Vek8u* pSrc, int len, Vek32s* pSum) {
  return sum(pSrc, len < 2 ? 0 : len, pSum);
}

VekStatus veksPlantedShiftBefore_16u(const Vek16u* pSrc, int val, Vek16u* pDst, int len) {
  return val < 0 ? vekErrShift : veksPlantedAnyShift_16u(pSrc, val, pDst, len);
}

VekStatus veksPlantedShiftAfter_16u(const Vek16u* pSrc, int val, Vek16u* pDst, int len) {
  const VekStatus status = checkVectors(len, pSrc, pDst);
  return status != vekStsOk ? status : veksPlantedShiftBefore_16u(pSrc, val, pDst, len);
}

VekStatus veksPlantedRequiredIndx_16s(const Vek16s* pSrc, int len, Vek16s* pMax, int* pIndx) {
  return pIndx == nullptr ? vekErrNullPtr : last(pSrc, len, pMax, pIndx);
}

VekStatus veksPlantedEarlySum_8u(const Vek8u* pSrc, int len, Vek32s* pSum) {
  if (pSum != nullptr) write(pSum, 0);
  return sum(pSrc, len, pSum);
}

VekStatus veksPlantedFails_8u(const Vek8u* pSrc, Vek8u* pDst, int len) {
  const VekStatus status = checkedCopy(pSrc, pDst, len);
  return status == vekStsOk && len == 13 ? vekErrUnknown : status;
}

VekStatus veksPlantedAlignment_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  const VekStatus status = checkedCopy(pSrc, pDst, len);
  if (status == vekStsOk && !isAligned(pDst)) pDst[0] = 1;
  return status;
}

VekStatus veksPlantedNeighbour_16s(const Vek16s* pSrc, Vek16s* pDst, int len) {
  const VekStatus status = checkedCopy(pSrc, pDst, len);
  if (status == vekStsOk && leftInPage(pSrc + len) > 0)
    pDst[0] = difference(pDst[0], read(pSrc + len));
  return status;
}

VekStatus veksPlantedIncomplete_8u(const Vek8u* pSrc, Vek8u* pDst, int len) {
  const VekStatus status = checkVectors(len, pSrc, pDst);
  return status != vekStsOk ? status : copy(pSrc, pDst, len - 1);
}

VekStatus veksPlantedNoSum_8u(const Vek8u* pSrc, int len, Vek32s* pSum) {
  return checkVectors(len, pSrc, pSum);
}

VekStatus veksPlantedAlignedOnly_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  const VekStatus status = checkedCopy(pSrc, pDst, len);
  if (status == vekStsOk && !isAligned(pSrc)) __builtin_trap();
  return status;
}

VekStatus veksPlantedTarget_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return addTarget(pSrc, pDst, len);
}

VekStatus veksPlantedInPlace_16s(const Vek16s* pSrc1, const Vek16s* pSrc2, Vek16s* pDst, int len) {
  return subtract(pSrc1, pSrc2, pDst, len);
}

VekStatus veksPlantedInPlace_16s_I(const Vek16s* pSrc, Vek16s* pSrcDst, int len) {
  return subtract(pSrcDst, pSrc, pSrcDst, len);
}

VekStatus veksPlantedExpandUp_8sc_I(Vek8sc* pSrcDst, int len) {
  return expand(reinterpret_cast<const Vek8s*>(pSrcDst), pSrcDst, len, false);
}

// pDst may be pSrc1, but not pSrc2.
VekStatus veksPlantedOverwrite_32s(const Vek32s* pSrc1, const Vek32s* pSrc2, Vek32s* pDst,
                                   int len) {
  const VekStatus status = checkVectors(len, pSrc1, pSrc2, pDst);
  if (status != vekStsOk) return status;
  for (int i = 0; i < len; ++i) write(&pDst[i], pSrc1[i] & pSrc2[i == 0 ? 0 : i - 1]);
  return vekStsOk;
}
