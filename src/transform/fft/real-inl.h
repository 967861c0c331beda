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
HWY_INLINE void combine(const T* w, const T* from, T* to, size_t m) {
  if (m < 2) return;
  combinePairs<kInverse>(hn::ScalableTag<T>(), w, from, to, 1, m);
  to[m] = from[m];
  to[m + 1] = -from[m + 1];
}

template <class T>
void Untangle(const T* w, T* values, size_t m) {
  combine<false>(w, values, values, m);
  const T re = values[0];
  const T im = values[1];
  values[0] = re + im;
  values[1] = re - im;
}

template <class T>
void Tangle(const T* w, T first, T middle, const T* from, T* to, size_t m) {
  combine<true>(w, from, to, m);
  to[0] = T{0.5} * (first + middle);
  to[1] = T{0.5} * (first - middle);
}

// Few values in whole vectors of two: the transform before them, or after them, stores or loads
// such vectors, and would wait for pieces. w has -i / 2 * exp(-2 pi i k / n) for each k < m, the
// real part twice, then in other vectors the imaginary one with both signs, the first one negative.
template <bool kInverse, size_t m, class V, class T>
HWY_INLINE void combineBlocks(const T* w, V dc, const V* x, T* to) {
  const hn::FixedTag<T, 4> d;
  const V half = hn::Set(d, T{0.5});
  const V conjugate = hn::OddEven(hn::Set(d, T{-1}), hn::Set(d, T{1}));
  constexpr size_t kVectors = m / 2;
  V y[kVectors];
  each<kVectors>([&](auto i) HWY_ATTR __attribute__((always_inline)) {
    const V a = x[i];
    const V mirrored = hn::ConcatUpperLower(d, x[kVectors - 1 - i], x[(kVectors - i) % kVectors]);
    const V e = hn::MulAdd(mirrored, conjugate, a);
    const V o = hn::NegMulAdd(mirrored, conjugate, a);
    const V vRe = hn::LoadU(d, w + 8 * i);
    const V turned = hn::Mul(exchanged(d, o), hn::LoadU(d, w + 8 * i + 4));
    const V product = kInverse ? hn::MulSub(o, vRe, turned) : hn::MulAdd(o, vRe, turned);
    y[i] = hn::MulAdd(half, e, product);
  });
  y[0] = hn::ConcatUpperLower(d, y[0], dc);
  each<kVectors>([&](auto i) HWY_ATTR
                 __attribute__((always_inline)) { hn::StoreU(y[i], d, to + 4 * i); });
}

template <class T, size_t m>
void UntangleBlocks(const T* w, T* values, size_t /*m*/) {
  const hn::FixedTag<T, 4> d;
  hn::Vec<decltype(d)> x[m / 2];
  each<m / 2>([&](auto i) HWY_ATTR
              __attribute__((always_inline)) { x[i] = hn::LoadU(d, values + 4 * i); });
  const auto turned = exchanged(d, x[0]);
  const auto dc = hn::OddEven(hn::Sub(turned, x[0]), hn::Add(turned, x[0]));
  combineBlocks<false, m>(w, dc, x, values);
}

// Values 0 and 1 may be missing where `from` points to.
template <class T, size_t m>
void TangleBlocks(const T* w, T first, T middle, const T* from, T* to, size_t /*m*/) {
  const hn::FixedTag<T, 4> d;
  const hn::Half<decltype(d)> dh;
  hn::Vec<decltype(d)> x[m / 2];
  x[0] = hn::Combine(d, hn::LoadU(dh, from + 2), hn::Zero(dh));
  each<m / 2 - 1>([&](auto i) HWY_ATTR
                  __attribute__((always_inline)) { x[i + 1] = hn::LoadU(d, from + 4 * (i + 1)); });
  const auto conjugate = hn::OddEven(hn::Set(d, T{-0.5}), hn::Set(d, T{0.5}));
  const auto dc = hn::MulAdd(hn::Set(d, middle), conjugate, hn::Set(d, T{0.5} * first));
  combineBlocks<true, m>(w, dc, x, to);
}

template <class T>
VekStatus BindRealFft(int order, RealFftPlan<T>* plan) {
  plan->lanes = MaxLanes(hn::ScalableTag<T>());
  plan->untangle = &Untangle<T>;
  plan->tangle = &Tangle<T>;
  if constexpr (HWY_MAX_BYTES >= 4 * sizeof(T)) {
    if (order == 5) {
      plan->isInBlocks = true;
      plan->untangle = &UntangleBlocks<T, 16>;
      plan->tangle = &TangleBlocks<T, 16>;
    }
  }
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
