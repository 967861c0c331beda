#include "peers/plain_packed.h"

#include "peers/plain_loops.h"
#include "peers/plain_scaled.h"
#include "peers/scaling-inl.h"

namespace veks::bench::plain {
namespace {

template <class C, class T>
const C* pairsAt(const T* values) {
  return reinterpret_cast<const C*>(values);
}

template <class C, class T>
C* pairsAt(T* values) {
  return reinterpret_cast<C*>(values);
}

template <class T>
T negative(T x) {
  if constexpr (std::is_floating_point_v<T>) {
    return -x;
  } else {
    return clampTo<T>(-static_cast<int>(x));
  }
}

}  // namespace

template <class Format, class C>
void PackedProducts<Format, C>::separate(const T* __restrict src1, const T* __restrict src2,
                                         T* __restrict dst, int len) {
  const int middle = Format::middle(len);
  dst[0] = src1[0] * src2[0];
  dst[middle] = src1[middle] * src2[middle];
  Binary<Mul, C>::separate(pairsAt<C>(src1 + Format::kFirst), pairsAt<C>(src2 + Format::kFirst),
                           pairsAt<C>(dst + Format::kFirst), len / 2 - 1);
}

template <class Format, class C>
void PackedProducts<Format, C>::conjugated(const T* __restrict src, T* __restrict srcDst, int len) {
  const int middle = Format::middle(len);
  srcDst[0] *= src[0];
  srcDst[middle] *= src[middle];
  const C* __restrict const b = pairsAt<C>(src + Format::kFirst);
  C* __restrict const a = pairsAt<C>(srcDst + Format::kFirst);
  for (int i = 0; i < len / 2 - 1; ++i) {
    a[i] = {a[i].re * b[i].re + a[i].im * b[i].im, a[i].im * b[i].re - a[i].re * b[i].im};
  }
}

template <class Format>
void ScaledPackedProducts<Format>::separate(const Vek16s* src1, const Vek16s* src2, Vek16s* dst,
                                            int len, int scaleFactor) {
  using Real = ScaledTwo<Mul, Vek16s>;
  const int middle = Format::middle(len);
  Real::separate(src1, src2, dst, 1, scaleFactor);
  Real::separate(src1 + middle, src2 + middle, dst + middle, 1, scaleFactor);
  ScaledTwo<Mul, Vek16sc>::separate(
      pairsAt<Vek16sc>(src1 + Format::kFirst), pairsAt<Vek16sc>(src2 + Format::kFirst),
      pairsAt<Vek16sc>(dst + Format::kFirst), len / 2 - 1, scaleFactor);
}

template <class Format, class C>
void Expansion<Format, C>::separate(const T* __restrict src, C* __restrict dst, int len) {
  const C* __restrict const pairs = pairsAt<C>(src + Format::kFirst);
  dst[0] = {src[0], T{0}};
  dst[len / 2] = {src[Format::middle(len)], T{0}};
  for (int k = 1; k < len / 2; ++k) {
    const C value = pairs[k - 1];
    dst[k] = value;
    dst[len - k] = {value.re, negative(value.im)};
  }
}

// From the last value on: they move up.
template <class Format, class C>
void Expansion<Format, C>::inPlace(C* srcDst, int len) {
  const T* const src = reinterpret_cast<const T*>(srcDst);
  const T first = src[0];
  const T middle = src[Format::middle(len)];
  const C* const pairs = pairsAt<C>(src + Format::kFirst);
  for (int k = len / 2 - 1; k > 0; --k) {
    const C value = pairs[k - 1];
    srcDst[k] = value;
    srcDst[len - k] = {value.re, negative(value.im)};
  }
  srcDst[0] = {first, T{0}};
  srcDst[len / 2] = {middle, T{0}};
}

template struct PackedProducts<Pack, Vek32fc>;
template struct PackedProducts<Pack, Vek64fc>;
template struct PackedProducts<Perm, Vek32fc>;
template struct PackedProducts<Perm, Vek64fc>;
template struct ScaledPackedProducts<Pack>;
template struct ScaledPackedProducts<Perm>;
template struct Expansion<Pack, Vek16sc>;
template struct Expansion<Pack, Vek32fc>;
template struct Expansion<Pack, Vek64fc>;
template struct Expansion<Perm, Vek16sc>;
template struct Expansion<Perm, Vek32fc>;
template struct Expansion<Perm, Vek64fc>;

}  // namespace veks::bench::plain
