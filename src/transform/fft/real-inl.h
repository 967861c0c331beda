// Between the spectrum of a real signal and that of the complex signal that its even and odd
// elements make.
#if defined(VEKS_TRANSFORM_FFT_REAL_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_TRANSFORM_FFT_REAL_INL_H
#undef VEKS_TRANSFORM_FFT_REAL_INL_H
#else
#define VEKS_TRANSFORM_FFT_REAL_INL_H
#endif

#include "transform/fft/lanes-inl.h"
#include "transform/fft/real.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// With m complex values z and v = -i / 2 * exp(-pi i k / m), for frequencies k and m - k at once:
//
//   e = z[k] + conj z[m-k], o = z[k] - conj z[m-k]
//   forward: x[k] = e / 2 + v o, x[m-k] = conj(e / 2 - v o)
//   inverse: the same with conj v, which gives half of what it should: the factor of the complex
//            transform makes up for it
//
// Works on vectors of d from frequency k on, as many as come before m/2, then on halves.
template <bool kInverse, class D, class T>
HWY_INLINE void combinePairs(D d, const T* w, const T* from, T* to, size_t k, size_t m) {
  constexpr size_t kLanes = MaxLanes(D());
  using V = hn::Vec<D>;
  const InterleavedSource<T, false> source = {from};
  const InterleavedDestination<T, false> destination = {to};
  const V half = hn::Set(d, T{0.5});
  for (; k + kLanes <= m / 2; k += kLanes, w += 2 * kLanes) {
    const size_t mirrored = m - k - (kLanes - 1);
    const Parts<V> a = source.load(d, k);
    Parts<V> b = source.load(d, mirrored);
    if constexpr (kLanes > 1) b = {hn::Reverse(d, b.re), hn::Reverse(d, b.im)};
    const V vRe = hn::LoadU(d, w);
    const V vIm = hn::LoadU(d, w + kLanes);
    const Parts<V> e = {hn::Add(a.re, b.re), hn::Sub(a.im, b.im)};
    const Parts<V> o = {hn::Sub(a.re, b.re), hn::Add(a.im, b.im)};
    const Parts<V> t = times(o, vRe, kInverse ? hn::Neg(vIm) : vIm);
    const Parts<V> low = {hn::MulAdd(half, e.re, t.re), hn::MulAdd(half, e.im, t.im)};
    Parts<V> high = {hn::MulSub(half, e.re, t.re), hn::NegMulAdd(half, e.im, t.im)};
    if constexpr (kLanes > 1) high = {hn::Reverse(d, high.re), hn::Reverse(d, high.im)};
    destination.store(d, low, k);
    destination.store(d, high, mirrored);
  }
  if constexpr (kLanes > 1) combinePairs<kInverse>(hn::Half<D>(), w, from, to, k, m);
}

// All but frequency 0, which belongs to two frequencies of the real signal.
template <bool kInverse, class T>
void Combine(const T* w, const T* from, T* to, size_t m) {
  if (m < 2) return;
  combinePairs<kInverse>(hn::ScalableTag<T>(), w, from, to, 1, m);
  to[m] = from[m];
  to[m + 1] = -from[m + 1];
}

template <class T>
VekStatus BindRealFft(RealFftPlan<T>* plan) {
  plan->lanes = MaxLanes(hn::ScalableTag<T>());
  plan->untangle = &Combine<false, T>;
  plan->tangle = &Combine<true, T>;
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
