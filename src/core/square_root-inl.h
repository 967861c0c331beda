// Square roots by multiplications, rounded as by the instruction for them, which takes three times
// as long with vectors of 64 bytes.
#if defined(VEKS_CORE_SQUARE_ROOT_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_CORE_SQUARE_ROOT_INL_H
#undef VEKS_CORE_SQUARE_ROOT_INL_H
#else
#define VEKS_CORE_SQUARE_ROOT_INL_H
#endif

#include <hwy/highway.h>

#include "core/targets.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET <= HWY_AVX3
using Floats = hn::Vec512<float>;
using Doubles = hn::Vec512<double>;

HWY_INLINE Floats approximateInverseRoot(Floats v) {
  return Floats{_mm512_rsqrt14_ps(v.raw)};
}
HWY_INLINE Doubles approximateInverseRoot(Doubles v) {
  return Doubles{_mm512_rsqrt14_pd(v.raw)};
}

// A root and the half of its inverse. A step squares the relative error of both, but for the
// rounding. The factor 3/2 aside, it starts at 2^-14.
template <class V>
struct RootAndHalfInverse {
  V root;
  V halfInverse;
};

template <class D, class V>
HWY_INLINE RootAndHalfInverse<V> approximateRoot(D d, V v, V inverse) {
  const V half = hn::Set(d, static_cast<hn::TFromD<D>>(0.5));
  const V root = hn::Mul(v, inverse);
  const V halfInverse = hn::Mul(inverse, half);
  const V error = hn::NegMulAdd(root, halfInverse, half);
  return {hn::MulAdd(root, error, root), hn::MulAdd(halfInverse, error, halfInverse)};
}

template <class D, class V>
HWY_INLINE RootAndHalfInverse<V> approximateRoot(D d, V v) {
  return approximateRoot(d, v, approximateInverseRoot(v));
}

// root + (v - root^2) / (2 root) with one rounding, the difference being exact.
template <class V>
HWY_INLINE V correctedRoot(V v, V root, V halfInverse) {
  return hn::MulAdd(hn::NegMulAdd(root, root, v), halfInverse, root);
}

// Every significand, with exponents of both parities, has been tried, with inverses that are off by
// up to 2^-14: this and the next function do not rely on the way a processor approximates.
template <class D>
HWY_INLINE Floats refinedRoot(D d, Floats v) {
  const auto x = approximateRoot(d, v);
  return correctedRoot(v, x.root, x.halfInverse);
}

// Let v be in [1, 4), r = sqrt(v) and u = 2^-53, half the distance of doubles there. The first
// correction leaves r an error of less than 2u. With an error d of the root and e, relative, of the
// inverse, below 2.8u, the second misses r by d e + d^2 / 2r before it rounds. A rounding can only
// go wrong if r is as close to the middle m between two doubles, so that d is u. But v - m^2 is a
// multiple k u^2 of u^2, k = 7 modulo 8 because m / u is odd, so r is |k| u^2 / 2r away from m:
// more, except for k = -1 and, near v = 4, 7 and -9. These few v have been tried in the same way.
template <class D>
HWY_INLINE Doubles refinedRoot(D d, Doubles v) {
  const auto x = approximateRoot(d, v);
  const Doubles error = hn::NegMulAdd(x.root, x.halfInverse, hn::Set(d, 0.5));
  const Doubles halfInverse = hn::MulAdd(x.halfInverse, error, x.halfInverse);
  return correctedRoot(v, correctedRoot(v, x.root, x.halfInverse), halfInverse);
}

// Whether all lanes are positive, finite and so large that v - root^2 is no denormal number.
HWY_INLINE bool areRefinable(Floats v) {
  const auto least = _mm512_set1_epi32(0x18800000);
  const auto range = _mm512_set1_epi32(0x7F800000 - 0x18800000);
  const auto bits = _mm512_sub_epi32(_mm512_castps_si512(v.raw), least);
  return _mm512_cmplt_epu32_mask(bits, range) == 0xFFFF;
}
HWY_INLINE bool areRefinable(Doubles v) {
  const auto least = _mm512_set1_epi64(0x0800000000000000);
  const auto range = _mm512_set1_epi64(0x7FF0000000000000 - 0x0800000000000000);
  const auto bits = _mm512_sub_epi64(_mm512_castpd_si512(v.raw), least);
  return _mm512_cmplt_epu64_mask(bits, range) == 0xFF;
}
#endif

// Roots of squares of floats, in double: those of zeros, infinities and NaN are anything.
template <class D, class V>
HWY_INLINE V anyRoot(D d, V v) {
#if HWY_TARGET <= HWY_AVX3
  if constexpr (MaxLanes(D()) * sizeof(hn::TFromD<D>) == 64) return refinedRoot(d, v);
#endif
  (void)d;
  return hn::Sqrt(v);
}

// hn::Sqrt(v) for vectors whose lanes are positive and finite most of the time, next to divisions:
// those have the divider for themselves.
template <class D, class V>
HWY_INLINE V squareRoot(D d, V v) {
#if HWY_TARGET <= HWY_AVX3
  if constexpr (MaxLanes(D()) * sizeof(hn::TFromD<D>) == 64) {
    if (HWY_LIKELY(areRefinable(v))) return refinedRoot(d, v);
  }
#endif
  (void)d;
  return hn::Sqrt(v);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
