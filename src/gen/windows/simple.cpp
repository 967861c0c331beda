#include "veks/gen/windows.h"

#include "core/frame.h"
#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "gen/windows/windows-inl.h"
#include <hwy/foreach_target.h>

#include "gen/windows/windows-inl.h"

using namespace veks;

VekStatus veksWinBartlett_16s(const Vek16s* pSrc, Vek16s* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Bartlett, Vek16s>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinBartlett_16s_I(Vek16s* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Bartlett, Vek16s>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinBartlett_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Bartlett, Vek16sc>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinBartlett_16sc_I(Vek16sc* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Bartlett, Vek16sc>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinBartlett_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Bartlett, Vek32f>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinBartlett_32f_I(Vek32f* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Bartlett, Vek32f>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinBartlett_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Bartlett, Vek32fc>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinBartlett_32fc_I(Vek32fc* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Bartlett, Vek32fc>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinBartlett_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Bartlett, Vek64f>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinBartlett_64f_I(Vek64f* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Bartlett, Vek64f>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinBartlett_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Bartlett, Vek64fc>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinBartlett_64fc_I(Vek64fc* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Bartlett, Vek64fc>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinHann_16s(const Vek16s* pSrc, Vek16s* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hann, Vek16s>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinHann_16s_I(Vek16s* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hann, Vek16s>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinHann_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hann, Vek16sc>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinHann_16sc_I(Vek16sc* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hann, Vek16sc>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinHann_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hann, Vek32f>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinHann_32f_I(Vek32f* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hann, Vek32f>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinHann_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hann, Vek32fc>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinHann_32fc_I(Vek32fc* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hann, Vek32fc>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinHann_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hann, Vek64f>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinHann_64f_I(Vek64f* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hann, Vek64f>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinHann_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hann, Vek64fc>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinHann_64fc_I(Vek64fc* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hann, Vek64fc>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinHamming_16s(const Vek16s* pSrc, Vek16s* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hamming, Vek16s>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinHamming_16s_I(Vek16s* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hamming, Vek16s>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinHamming_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hamming, Vek16sc>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinHamming_16sc_I(Vek16sc* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hamming, Vek16sc>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinHamming_32f(const Vek32f* pSrc, Vek32f* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hamming, Vek32f>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinHamming_32f_I(Vek32f* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hamming, Vek32f>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinHamming_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hamming, Vek32fc>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinHamming_32fc_I(Vek32fc* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hamming, Vek32fc>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinHamming_64f(const Vek64f* pSrc, Vek64f* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hamming, Vek64f>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinHamming_64f_I(Vek64f* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hamming, Vek64f>), kLeast, pSrcDst, pSrcDst, len);
}

VekStatus veksWinHamming_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hamming, Vek64fc>), kLeast, pSrc, pDst, len);
}

VekStatus veksWinHamming_64fc_I(Vek64fc* pSrcDst, int len) {
  return mapAtLeast(VEKS_KERNEL(Window<Hamming, Vek64fc>), kLeast, pSrcDst, pSrcDst, len);
}
