// Short transforms of values that stay in pairs, which spares them the separation of their parts.
#if defined(VEKS_TRANSFORM_FFT_PAIRS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_TRANSFORM_FFT_PAIRS_INL_H
#undef VEKS_TRANSFORM_FFT_PAIRS_INL_H
#else
#define VEKS_TRANSFORM_FFT_PAIRS_INL_H
#endif

#include "transform/fft/lanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <size_t n, class D, class V, bool kInverse, class T>
HWY_INLINE void scalePairs(D d, Pairs<V, kInverse>* x, T factor) {
  if (factor == 1) return;
  const V factors = hn::Set(d, factor);
  each<n>([&](auto k) HWY_ATTR
          __attribute__((always_inline)) { x[k] = {hn::Mul(x[k].v, factors)}; });
}

// One value to a vector, without twiddle factors: the fewest steps from the source to the results,
// for which the next call in place waits.
template <size_t kPoints, bool kInverse, class D, class T>
HWY_INLINE void transformStraight(D d, const T* src, T* dst, T factor) {
  Pairs<hn::Vec<D>, kInverse> x[kPoints];
  each<kPoints>([&](auto k) HWY_ATTR
                __attribute__((always_inline)) { x[k] = {hn::LoadU(d, src + 2 * k)}; });
  Transform<kPoints>::run(d, x);
  scalePairs<kPoints>(d, x, factor);
  each<kPoints>([&](auto r) HWY_ATTR __attribute__((always_inline)) {
    hn::StoreU(x[Transform<kPoints>::at(r)].v, d, dst + 2 * r);
  });
}

// Even and odd values, transformed side by side.
template <size_t kRows, bool kInverse, class D, class T>
HWY_INLINE void transformTwoColumns(D d, const T* src, T* dst, T factor, const T* w) {
  using V = hn::Vec<D>;
  using X = Pairs<V, kInverse>;
  constexpr size_t kLanes = MaxLanes(D());
  constexpr size_t kPairs = kLanes / 2;
  constexpr size_t kTiles = 2 / kPairs;
  constexpr size_t kBlocks = kRows / kPairs;
  X x[kTiles * kRows];
  each<kTiles>([&](auto t) HWY_ATTR __attribute__((always_inline)) {
    each<kRows>([&](auto k) HWY_ATTR __attribute__((always_inline)) {
      x[t * kRows + k] = {hn::LoadU(d, src + 4 * k + t * kLanes)};
    });
    Transform<kRows>::run(d, x + t * kRows);
  });
  X results[2 * kBlocks];
  each<kBlocks>([&](auto b) HWY_ATTR __attribute__((always_inline)) {
    X y[2];
    each<kTiles>([&](auto t) HWY_ATTR __attribute__((always_inline)) {
      each<kPairs>([&](auto l) HWY_ATTR __attribute__((always_inline)) {
        y[t * kPairs + l] = x[t * kRows + Transform<kRows>::at(b * kPairs + l)];
      });
      transposePairs(d, y + t * kPairs);
    });
    const V wRe = hn::LoadU(d, w + b * 2 * kLanes);
    const V wIm = hn::LoadU(d, w + b * 2 * kLanes + kLanes);
    const V turned = exchanged(d, y[1].v);
    results[b] = {hn::MulAdd(turned, wIm, hn::MulAdd(y[1].v, wRe, y[0].v))};
    results[b + kBlocks] = {hn::NegMulAdd(turned, wIm, hn::NegMulAdd(y[1].v, wRe, y[0].v))};
  });
  scalePairs<2 * kBlocks>(d, results, factor);
  each<2 * kBlocks>([&](auto b) HWY_ATTR __attribute__((always_inline)) {
    hn::StoreU(results[b].v, d, dst + b * kLanes);
  });
}

// Rows of columns, as in other short transforms.
template <size_t kRows, size_t kColumns, bool kInverse, class D, class T>
HWY_INLINE void transformSmallPairs(D d, const T* src, T* dst, const T* w) {
  constexpr size_t kLanes = MaxLanes(D());
  constexpr size_t kPairs = kLanes / 2;
  constexpr size_t kTiles = kColumns / kPairs;
  using X = Pairs<hn::Vec<D>, kInverse>;
  X x[kTiles * kRows];
  each<kTiles>([&](auto t) HWY_ATTR __attribute__((always_inline)) {
    each<kRows>([&](auto k) HWY_ATTR __attribute__((always_inline)) {
      x[t * kRows + k] = {hn::LoadU(d, src + 2 * k * kColumns + t * kLanes)};
    });
    Transform<kRows>::run(d, x + t * kRows);
  });
  each<kRows / kPairs>([&](auto b) HWY_ATTR __attribute__((always_inline)) {
    X y[kColumns];
    each<kTiles>([&](auto t) HWY_ATTR __attribute__((always_inline)) {
      each<kPairs>([&](auto l) HWY_ATTR __attribute__((always_inline)) {
        constexpr size_t k = b * kPairs + l;
        const T* const at = w + ((b * kTiles + t) * kPairs + l) * 2 * kLanes;
        const X& from = x[t * kRows + Transform<kRows>::at(k)];
        y[t * kPairs + l] = times(d, from, hn::LoadU(d, at), hn::LoadU(d, at + kLanes));
      });
      transposePairs(d, y + t * kPairs);
    });
    Transform<kColumns>::run(d, y);
    each<kColumns>([&](auto r) HWY_ATTR __attribute__((always_inline)) {
      hn::StoreU(y[Transform<kColumns>::at(r)].v, d, dst + 2 * (b * kPairs + r * kRows));
    });
  });
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
