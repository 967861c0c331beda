// How complex values come into the lanes of vectors, and square blocks of them are transposed.
#if defined(VEKS_TRANSFORM_FFT_LANES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_TRANSFORM_FFT_LANES_INL_H
#undef VEKS_TRANSFORM_FFT_LANES_INL_H
#else
#define VEKS_TRANSFORM_FFT_LANES_INL_H
#endif

#include <hwy/cache_control.h>

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

// Pointers `step` values apart, a constant or not. The compiler would keep one register for each,
// and few of them in registers: every fourth is pinned instead, from which instructions reach the
// others.
template <size_t kCount, class T, class Step>
class Pointers {
 public:
  HWY_INLINE Pointers(T* first, Step step) : step_(step) {
    each<kBases>([&](auto i) HWY_ATTR __attribute__((always_inline)) {
      bases_[i] = first + 4 * i * step;
      if constexpr (kIsPinned) asm("" : "+r"(bases_[i]));
    });
  }
  HWY_INLINE T* operator[](size_t i) const {
    return bases_[i / 4] + i % 4 * step_;
  }

 private:
  static constexpr bool kIsPinned = std::is_same<Step, size_t>::value;
  static constexpr size_t kBases = (kCount + 3) / 4;
  T* bases_[kBases];
  Step step_;
};

template <size_t kFactor, class Step>
HWY_INLINE auto timesStep(Step step) {
  if constexpr (std::is_same<Step, size_t>::value) {
    return kFactor * step;
  } else {
    return std::integral_constant<size_t, kFactor * Step::value>();
  }
}

// Vectors at positions that are a step apart: of arrays of pairs, then of separate parts. End is a
// source or a destination at one position.
template <class End, class P>
struct PairsInSteps {
  P at;
  template <class D>
  HWY_INLINE auto load(D d, size_t i) const {
    return End{at[i]}.loadColumns(d, 0);
  }
  template <class D, class V>
  HWY_INLINE void store(D d, const Parts<V>& x, size_t i) const {
    End{at[i]}.store(d, x, 0);
  }
};

template <class End, class P>
struct PartsInSteps {
  P re;
  P im;
  template <class D>
  HWY_INLINE auto load(D d, size_t i) const {
    return End{re[i], im[i]}.loadColumns(d, 0);
  }
  template <class D, class V>
  HWY_INLINE void store(D d, const Parts<V>& x, size_t i) const {
    End{re[i], im[i]}.store(d, x, 0);
  }
};

#if HWY_TARGET == HWY_AVX3
// The values at even and at odd positions of two vectors, in order.
HWY_INLINE Parts<hn::Vec512<float>> unzip(hn::Vec512<float> a, hn::Vec512<float> b) {
  const __m512i even = _mm512_set_epi32(30, 28, 26, 24, 22, 20, 18, 16, 14, 12, 10, 8, 6, 4, 2, 0);
  const __m512i odd = _mm512_set_epi32(31, 29, 27, 25, 23, 21, 19, 17, 15, 13, 11, 9, 7, 5, 3, 1);
  return {hn::Vec512<float>{_mm512_permutex2var_ps(a.raw, even, b.raw)},
          hn::Vec512<float>{_mm512_permutex2var_ps(a.raw, odd, b.raw)}};
}
HWY_INLINE Parts<hn::Vec512<double>> unzip(hn::Vec512<double> a, hn::Vec512<double> b) {
  const __m512i even = _mm512_set_epi64(14, 12, 10, 8, 6, 4, 2, 0);
  const __m512i odd = _mm512_set_epi64(15, 13, 11, 9, 7, 5, 3, 1);
  return {hn::Vec512<double>{_mm512_permutex2var_pd(a.raw, even, b.raw)},
          hn::Vec512<double>{_mm512_permutex2var_pd(a.raw, odd, b.raw)}};
}
#endif

// Values in an array of pairs, real and imaginary parts exchanged if so asked.
template <class T, bool kExchanged>
struct InterleavedSource {
  const T* pairs;
  HWY_INLINE const T* at(size_t i) const {
    return pairs + 2 * i;
  }
  template <size_t kCount, class Step>
  HWY_INLINE auto inSteps(size_t i, Step step) const {
    const auto twice = timesStep<2>(step);
    using P = Pointers<kCount, const T, std::remove_const_t<decltype(twice)>>;
    return PairsInSteps<InterleavedSource, P>{P(pairs + 2 * i, twice)};
  }
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

  // The same in order, or as kColumnLayout says. The lanes are those of a full vector.
  template <class D>
  HWY_INLINE Parts<hn::Vec<D>> loadColumns(D d, size_t i) const {
#if HWY_TARGET == HWY_AVX3
    const T* const from = pairs + 2 * i;
    const auto x = unzip(hn::LoadU(d, from), hn::LoadU(d, from + MaxLanes(D())));
    if constexpr (kExchanged) return {x.im, x.re};
    return x;
#else
    return load(d, i);
#endif
  }
};

template <class T>
struct SplitSource {
  const T* re;
  const T* im;
  HWY_INLINE const T* at(size_t i) const {
    return re + i;
  }
  template <size_t kCount, class Step>
  HWY_INLINE auto inSteps(size_t i, Step step) const {
    using P = Pointers<kCount, const T, Step>;
    return PartsInSteps<SplitSource, P>{P(re + i, step), P(im + i, step)};
  }
  template <class D>
  HWY_INLINE Parts<hn::Vec<D>> load(D d, size_t i) const {
    return {hn::LoadU(d, re + i), hn::LoadU(d, im + i)};
  }
  template <class D>
  HWY_INLINE Parts<hn::Vec<D>> loadColumns(D d, size_t i) const {
    return load(d, i);
  }
};

// Stores past the caches, if so asked, need a destination that isAligned() for them.
template <bool kStreams, class D, class V, class T>
HWY_INLINE void storeVector(D d, V v, T* to) {
  if constexpr (kStreams) {
    hn::Stream(v, d, to);
  } else {
    hn::StoreU(v, d, to);
  }
}

template <class D, class T>
HWY_INLINE bool isAligned(D /*d*/, const T* p) {
  return reinterpret_cast<uintptr_t>(p) % (MaxLanes(D()) * sizeof(T)) == 0;
}

template <class T, bool kExchanged, bool kStreams = false>
struct InterleavedDestination {
  using Streaming = InterleavedDestination<T, kExchanged, true>;
  T* pairs;
  template <size_t kCount, class Step>
  HWY_INLINE auto inSteps(size_t i, Step step) const {
    const auto twice = timesStep<2>(step);
    using P = Pointers<kCount, T, std::remove_const_t<decltype(twice)>>;
    return PairsInSteps<InterleavedDestination, P>{P(pairs + 2 * i, twice)};
  }
  Streaming streaming() const {
    return {pairs};
  }
  template <class D>
  HWY_INLINE bool isAlignedFor(D d) const {
    return isAligned(d, pairs);
  }
  template <class D, class V>
  HWY_INLINE void store(D d, const Parts<V>& x, size_t i) const {
    const V re = kExchanged ? x.im : x.re;
    const V im = kExchanged ? x.re : x.im;
    T* const to = pairs + 2 * i;
    if constexpr (MaxLanes(D()) == 1) {
      hn::StoreU(re, d, to);
      hn::StoreU(im, d, to + 1);
    } else {
      storeVector<kStreams>(d, hn::InterleaveLower(d, re, im), to);
      storeVector<kStreams>(d, hn::InterleaveUpper(d, re, im), to + MaxLanes(D()));
    }
  }
};

template <class T, bool kStreams = false>
struct SplitDestination {
  using Streaming = SplitDestination<T, true>;
  T* re;
  T* im;
  template <size_t kCount, class Step>
  HWY_INLINE auto inSteps(size_t i, Step step) const {
    using P = Pointers<kCount, T, Step>;
    return PartsInSteps<SplitDestination, P>{P(re + i, step), P(im + i, step)};
  }
  Streaming streaming() const {
    return {re, im};
  }
  template <class D>
  HWY_INLINE bool isAlignedFor(D d) const {
    return isAligned(d, re) && isAligned(d, im);
  }
  template <class D, class V>
  HWY_INLINE void store(D d, const Parts<V>& x, size_t i) const {
    storeVector<kStreams>(d, x.re, re + i);
    storeVector<kStreams>(d, x.im, im + i);
  }
};

// The order of columns in lanes, where loadColumns() keeps them in order at no cost.
template <Layout layout>
constexpr Layout kColumnLayout = HWY_TARGET == HWY_AVX3 ? Layout::kSplit : layout;

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

// Transposes a square of blocks of 16 bytes: as many vectors as they have blocks, `step` apart.
template <size_t step, class D, class V>
HWY_INLINE void transposeBlockSquare(D d, V* x) {
  constexpr size_t kBlocks = MaxLanes(D()) * sizeof(hn::TFromD<D>) / 16;
  if constexpr (kBlocks == 2) {
    const V low = hn::ConcatLowerLower(d, x[step], x[0]);
    x[step] = hn::ConcatUpperUpper(d, x[step], x[0]);
    x[0] = low;
  }
#if HWY_TARGET == HWY_AVX3
  if constexpr (kBlocks == 4) {
    const V a = evenBlocks(x[0], x[step]);
    const V b = oddBlocks(x[0], x[step]);
    const V c = evenBlocks(x[2 * step], x[3 * step]);
    const V e = oddBlocks(x[2 * step], x[3 * step]);
    x[0] = evenBlocks(a, c);
    x[step] = evenBlocks(b, e);
    x[2 * step] = oddBlocks(a, c);
    x[3 * step] = oddBlocks(b, e);
  }
#endif
}

// The same for vectors i, i + kRows, ... for each i < kRows.
template <size_t kRows, class D, class V>
HWY_INLINE void transposeAmongBlocks(D d, V* x) {
  each<kRows>([&](auto i) HWY_ATTR
              __attribute__((always_inline)) { transposeBlockSquare<kRows>(d, x + i); });
}

// As many lanes as are in 16 bytes, all of a shorter vector.
template <class D>
constexpr size_t lanesOfBlock(D /*d*/) {
  return HWY_MIN(MaxLanes(D()), 16 / sizeof(hn::TFromD<D>));
}

// The first half of a transposition: within squares of blocks.
template <class D, class V>
HWY_INLINE void transposeWithinBlocks(D d, V* x) {
  constexpr size_t kLanes = MaxLanes(D());
  constexpr size_t kBlock = lanesOfBlock(d);
  each<kLanes / kBlock>([&](auto g) HWY_ATTR __attribute__((always_inline)) {
    V* const rows = x + g * kBlock;
    if constexpr (kBlock == 2) {
      transposeBlocks(d, rows[0], rows[1]);
    } else if constexpr (kBlock == 4) {
      transposeBlocks(d, rows[0], rows[1], rows[2], rows[3]);
    }
  });
}

// Transposes a square of as many vectors as they have lanes.
template <class D, class V>
HWY_INLINE void transpose(D d, V* x) {
  transposeWithinBlocks(d, x);
  transposeAmongBlocks<lanesOfBlock(d)>(d, x);
}

// Transposes a square of as many vectors as they have pairs.
template <class D, class V, bool kInverse>
HWY_INLINE void transposePairs(D d, Pairs<V, kInverse>* x) {
  constexpr size_t kPairs = MaxLanes(D()) / 2;
  if constexpr (sizeof(hn::TFromD<D>) == 8) {
    V y[kPairs];
    each<kPairs>([&](auto k) HWY_ATTR __attribute__((always_inline)) { y[k] = x[k].v; });
    transposeAmongBlocks<1>(d, y);
    each<kPairs>([&](auto k) HWY_ATTR __attribute__((always_inline)) { x[k] = {y[k]}; });
  } else {
    const hn::Repartition<double, D> wide;
    hn::Vec<decltype(wide)> y[kPairs];
    each<kPairs>([&](auto k) HWY_ATTR
                 __attribute__((always_inline)) { y[k] = hn::BitCast(wide, x[k].v); });
    transpose(wide, y);
    each<kPairs>([&](auto k) HWY_ATTR
                 __attribute__((always_inline)) { x[k] = {hn::BitCast(d, y[k])}; });
  }
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
