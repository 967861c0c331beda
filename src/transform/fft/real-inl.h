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
}

template <class T>
void Tangle(const T* w, T first, T middle, const T* from, T* to, size_t m) {
  combine<true>(w, from, to, m);
  to[0] = T{0.5} * (first + middle);
  to[1] = T{0.5} * (first - middle);
}

template <class D, class V>
HWY_INLINE V exchangedPairs(D /*d*/, V v) {
  if constexpr (sizeof(hn::TFromD<D>) == 8) {
    return hn::SwapAdjacentBlocks(v);
  } else {
    return hn::Shuffle1032(v);
  }
}

// Eight values in whole vectors of two: the transform that follows would wait for smaller pieces.
// The loads stay within values 1 to 7.
template <class T>
void TangleEight(const T* /*w*/, T first, T middle, const T* from, T* to, size_t /*m*/) {
  const hn::FixedTag<T, 4> d;
  using V = hn::Vec<decltype(d)>;
  // conj v, the real parts twice, then the imaginary ones with both signs
  constexpr T s1 = static_cast<T>(0.19134171618254488586);  // sin(pi/8) / 2
  constexpr T s2 = static_cast<T>(0.35355339059327376220);
  constexpr T s3 = static_cast<T>(0.46193976625564337806);
  constexpr T s4 = static_cast<T>(0.5);
  HWY_ALIGN static constexpr T kRe[16] = {0,   0,   -s1, -s1, -s2, -s2, -s3, -s3,
                                          -s4, -s4, -s3, -s3, -s2, -s2, -s1, -s1};
  HWY_ALIGN static constexpr T kIm[16] = {-s4, s4, -s3, s3,  -s2, s2,  -s1, s1,
                                          0,   0,  s1,  -s1, s2,  -s2, s3,  -s3};
  const V half = hn::Set(d, s4);
  const V signs = hn::OddEven(hn::Neg(hn::Zero(d)), hn::Zero(d));
  const V v12 = hn::LoadU(d, from + 2);
  const V v67 = hn::LoadU(d, from + 12);
  const V v23 = hn::LoadU(d, from + 4);
  const V v56 = hn::LoadU(d, from + 10);
  const V v45 = hn::LoadU(d, from + 8);
  const V v34 = hn::LoadU(d, from + 6);
  const auto combined = [&](V a, V mirrored, size_t k) HWY_ATTR __attribute__((always_inline)) {
    const V b = hn::Xor(mirrored, signs);
    const V o = hn::Sub(a, b);
    const V turned = hn::Mul(exchanged(d, o), hn::Load(d, kIm + 2 * k));
    return hn::MulAdd(half, hn::Add(a, b), hn::MulAdd(o, hn::Load(d, kRe + 2 * k), turned));
  };
  const V v21 = exchangedPairs(d, v12);
  const V sum = hn::Mul(half, hn::Add(hn::Set(d, first), hn::Xor(hn::Set(d, middle), signs)));
  hn::StoreU(hn::ConcatUpperLower(d, combined(v21, v67, 0), sum), d, to);
  hn::StoreU(combined(v23, exchangedPairs(d, v56), 2), d, to + 4);
  hn::StoreU(combined(v45, exchangedPairs(d, v34), 4), d, to + 8);
  hn::StoreU(combined(v67, v21, 6), d, to + 12);
}

template <class T>
VekStatus BindRealFft(int order, RealFftPlan<T>* plan) {
  plan->lanes = MaxLanes(hn::ScalableTag<T>());
  plan->untangle = &Untangle<T>;
  plan->tangle = &Tangle<T>;
  if constexpr (HWY_MAX_BYTES >= 4 * sizeof(T)) {
    if (order == 4) plan->tangle = &TangleEight<T>;
  }
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
