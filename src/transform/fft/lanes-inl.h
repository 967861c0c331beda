// How complex values come into the lanes of vectors, and square blocks of them are transposed.
#if defined(VEKS_TRANSFORM_FFT_LANES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_TRANSFORM_FFT_LANES_INL_H
#undef VEKS_TRANSFORM_FFT_LANES_INL_H
#else
#define VEKS_TRANSFORM_FFT_LANES_INL_H
#endif

#include "transform/fft/butterflies-inl.h"
#include "transform/fft/plan.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// The values at even and at odd positions of two vectors, block of 16 bytes by block: one
// instruction each, at the price of the order that
// laneOrder() tells.
template <class D, class V>
HWY_INLINE Parts<V> deinterleave(D d, V a, V b) {
  if constexpr (sizeof(hn::TFromD<D>) == 8) {
    return {hn::InterleaveLower(d, a, b), hn::InterleaveUpper(d, a, b)};
#if HWY_TARGET == HWY_AVX2 || HWY_TARGET == HWY_AVX3
  } else if constexpr (MaxLanes(D()) == 8) {
    return {V{_mm256_shuffle_ps(a.raw, b.raw, 0x88)}, V{_mm256_shuffle_ps(a.raw, b.raw, 0xDD)}};
#endif
#if HWY_TARGET == HWY_AVX3
  } else if constexpr (MaxLanes(D()) == 16) {
    return {V{_mm512_shuffle_ps(a.raw, b.raw, 0x88)}, V{_mm512_shuffle_ps(a.raw, b.raw, 0xDD)}};
#endif
  } else {
    return {hn::ConcatEven(d, b, a), hn::ConcatOdd(d, b, a)};
  }
}

// Values in an array of pairs, real and imaginary parts exchanged if so asked.
template <class T, bool kExchanged>
struct InterleavedSource {
  const T* pairs;
  template <class D>
  HWY_INLINE Parts<hn::Vec<D>> load(D d, size_t i) const {
    const T* const from = pairs + 2 * i;
    Parts<hn::Vec<D>> x;
    if constexpr (MaxLanes(D()) == 1) {
      x = {hn::LoadU(d, from), hn::LoadU(d, from + 1)};
    } else {
      x = deinterleave(d, hn::LoadU(d, from), hn::LoadU(d, from + MaxLanes(D())));
    }
    if constexpr (kExchanged) return {x.im, x.re};
    return x;
  }
};

template <class T>
struct SplitSource {
  const T* re;
  const T* im;
  template <class D>
  HWY_INLINE Parts<hn::Vec<D>> load(D d, size_t i) const {
    return {hn::LoadU(d, re + i), hn::LoadU(d, im + i)};
  }
};

template <class T, bool kExchanged>
struct InterleavedDestination {
  T* pairs;
  template <class D, class V>
  HWY_INLINE void store(D d, const Parts<V>& x, size_t i) const {
    const V re = kExchanged ? x.im : x.re;
    const V im = kExchanged ? x.re : x.im;
    T* const to = pairs + 2 * i;
    if constexpr (MaxLanes(D()) == 1) {
      hn::StoreU(re, d, to);
      hn::StoreU(im, d, to + 1);
    } else {
      hn::StoreU(hn::InterleaveLower(d, re, im), d, to);
      hn::StoreU(hn::InterleaveUpper(d, re, im), d, to + MaxLanes(D()));
    }
  }
};

// The same past the caches, to an array aligned to vectors.
template <class T, bool kExchanged>
struct StreamingDestination {
  T* pairs;
  template <class D, class V>
  HWY_INLINE void store(D d, const Parts<V>& x, size_t i) const {
    const V re = kExchanged ? x.im : x.re;
    const V im = kExchanged ? x.re : x.im;
    T* const to = pairs + 2 * i;
    hn::Stream(hn::InterleaveLower(d, re, im), d, to);
    hn::Stream(hn::InterleaveUpper(d, re, im), d, to + MaxLanes(D()));
  }
};

template <class T>
struct SplitDestination {
  T* re;
  T* im;
  template <class D, class V>
  HWY_INLINE void store(D d, const Parts<V>& x, size_t i) const {
    hn::StoreU(x.re, d, re + i);
    hn::StoreU(x.im, d, im + i);
  }
};

// Transposes within blocks of 16 bytes: x[i] of `kBlock` vectors.
template <class D, class V>
HWY_INLINE void transposeBlocks(D d, V& x0, V& x1) {
  const V a = hn::InterleaveLower(d, x0, x1);
  x1 = hn::InterleaveUpper(d, x0, x1);
  x0 = a;
}

template <class D, class V>
HWY_INLINE void transposeBlocks(D d, V& x0, V& x1, V& x2, V& x3) {
  const V a = hn::InterleaveLower(d, x0, x2);
  const V b = hn::InterleaveLower(d, x1, x3);
  const V c = hn::InterleaveUpper(d, x0, x2);
  const V e = hn::InterleaveUpper(d, x1, x3);
  x0 = hn::InterleaveLower(d, a, b);
  x1 = hn::InterleaveUpper(d, a, b);
  x2 = hn::InterleaveLower(d, c, e);
  x3 = hn::InterleaveUpper(d, c, e);
}

#if HWY_TARGET == HWY_AVX3
// Blocks 0 and 2 of a, then of b; blocks 1 and 3 likewise.
HWY_INLINE hn::Vec512<float> evenBlocks(hn::Vec512<float> a, hn::Vec512<float> b) {
  return hn::Vec512<float>{_mm512_shuffle_f32x4(a.raw, b.raw, 0x88)};
}
HWY_INLINE hn::Vec512<float> oddBlocks(hn::Vec512<float> a, hn::Vec512<float> b) {
  return hn::Vec512<float>{_mm512_shuffle_f32x4(a.raw, b.raw, 0xDD)};
}
HWY_INLINE hn::Vec512<double> evenBlocks(hn::Vec512<double> a, hn::Vec512<double> b) {
  return hn::Vec512<double>{_mm512_shuffle_f64x2(a.raw, b.raw, 0x88)};
}
HWY_INLINE hn::Vec512<double> oddBlocks(hn::Vec512<double> a, hn::Vec512<double> b) {
  return hn::Vec512<double>{_mm512_shuffle_f64x2(a.raw, b.raw, 0xDD)};
}
#endif

// Transposes a square of as many vectors as they have lanes.
template <class D, class V>
HWY_INLINE void transpose(D d, V* x) {
  constexpr size_t kLanes = MaxLanes(D());
  constexpr size_t kBlock = HWY_MIN(kLanes, 16 / sizeof(hn::TFromD<D>));
  each<kLanes / kBlock>([&](auto g) HWY_ATTR __attribute__((always_inline)) {
    V* const rows = x + g * kBlock;
    if constexpr (kBlock == 2) {
      transposeBlocks(d, rows[0], rows[1]);
    } else if constexpr (kBlock == 4) {
      transposeBlocks(d, rows[0], rows[1], rows[2], rows[3]);
    }
  });
  if constexpr (kLanes == 2 * kBlock) {
    each<kBlock>([&](auto i) HWY_ATTR __attribute__((always_inline)) {
      const V low = hn::ConcatLowerLower(d, x[i + kBlock], x[i]);
      x[i + kBlock] = hn::ConcatUpperUpper(d, x[i + kBlock], x[i]);
      x[i] = low;
    });
  }
#if HWY_TARGET == HWY_AVX3
  if constexpr (kLanes == 4 * kBlock) {
    each<kBlock>([&](auto i) HWY_ATTR __attribute__((always_inline)) {
      const V a = evenBlocks(x[i], x[i + kBlock]);
      const V b = oddBlocks(x[i], x[i + kBlock]);
      const V c = evenBlocks(x[i + 2 * kBlock], x[i + 3 * kBlock]);
      const V e = oddBlocks(x[i + 2 * kBlock], x[i + 3 * kBlock]);
      x[i] = evenBlocks(a, c);
      x[i + kBlock] = evenBlocks(b, e);
      x[i + 2 * kBlock] = oddBlocks(a, c);
      x[i + 3 * kBlock] = oddBlocks(b, e);
    });
  }
#endif
}

template <class D, class V>
HWY_INLINE void transposeParts(D d, Parts<V>* x) {
  constexpr size_t kLanes = MaxLanes(D());
  V re[kLanes];
  V im[kLanes];
  each<kLanes>([&](auto k) HWY_ATTR __attribute__((always_inline)) {
    re[k] = x[k].re;
    im[k] = x[k].im;
  });
  transpose(d, re);
  transpose(d, im);
  each<kLanes>([&](auto k) HWY_ATTR __attribute__((always_inline)) { x[k] = {re[k], im[k]}; });
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
