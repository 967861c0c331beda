// Products of complex values, which lie in their vectors as real and imaginary part in turn.
#if defined(VEKS_VECTOR_ARITHMETIC_COMPLEX_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_ARITHMETIC_COMPLEX_INL_H
#undef VEKS_VECTOR_ARITHMETIC_COMPLEX_INL_H
#else
#define VEKS_VECTOR_ARITHMETIC_COMPLEX_INL_H
#endif

#include "vector/arithmetic/products-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// Real and imaginary parts in each other's places.
template <class D, class V>
HWY_INLINE V swapParts(D d, V v) {
  if constexpr (sizeof(hn::TFromD<D>) == 2) {
    const hn::Repartition<uint32_t, D> dw;
    return hn::BitCast(d, hn::RotateRight<16>(hn::BitCast(dw, v)));
  } else if constexpr (sizeof(hn::TFromD<D>) == 4) {
    return hn::Shuffle2301(v);
  } else {
    return hn::Shuffle01(v);
  }
}

// a - b in the even lanes, a + b in the odd ones.
template <class D, class V>
HWY_INLINE V subtractAdd(D d, V a, V b) {
#if HWY_TARGET == HWY_AVX2
  if constexpr (std::is_same_v<V, hn::Vec256<float>>) {
    return V{_mm256_addsub_ps(a.raw, b.raw)};
  } else if constexpr (std::is_same_v<V, hn::Vec256<double>>) {
    return V{_mm256_addsub_pd(a.raw, b.raw)};
  }
#elif HWY_TARGET == HWY_AVX3
  // There is no such instruction, but a fused one, whose factor 1 leaves one rounding.
  if constexpr (std::is_same_v<V, hn::Vec512<float>>) {
    return V{_mm512_fmaddsub_ps(a.raw, _mm512_set1_ps(1), b.raw)};
  } else if constexpr (std::is_same_v<V, hn::Vec512<double>>) {
    return V{_mm512_fmaddsub_pd(a.raw, _mm512_set1_pd(1), b.raw)};
  }
#endif
  (void)d;
  return hn::OddEven(hn::Add(a, b), hn::Sub(a, b));
}

// a + b in the even lanes, a - b in the odd ones.
template <class D, class V>
HWY_INLINE V addSubtract(D d, V a, V b) {
#if HWY_TARGET == HWY_AVX3
  if constexpr (std::is_same_v<V, hn::Vec512<float>>) {
    return V{_mm512_fmsubadd_ps(a.raw, _mm512_set1_ps(1), b.raw)};
  } else if constexpr (std::is_same_v<V, hn::Vec512<double>>) {
    return V{_mm512_fmsubadd_pd(a.raw, _mm512_set1_pd(1), b.raw)};
  }
#endif
  (void)d;
  return hn::OddEven(hn::Sub(a, b), hn::Add(a, b));
}

// The real parts of complex values in both places, and the imaginary ones. Loads can do that in
// passing, which spares the one unit for shuffles; the compiler would load once and shuffle.
template <class D, class T>
HWY_INLINE hn::Vec<D> loadReal(D d, const T* parts) {
#if HWY_TARGET == HWY_AVX3
  using V = hn::Vec<D>;
  V v;
  if constexpr (std::is_same_v<V, hn::Vec512<float>>) {
    asm("vmovsldup %1, %0" : "=v"(v.raw) : "m"(*reinterpret_cast<const __m512_u*>(parts)));
    return v;
  } else if constexpr (std::is_same_v<V, hn::Vec512<double>>) {
    asm("vmovddup %1, %0" : "=v"(v.raw) : "m"(*reinterpret_cast<const __m512d_u*>(parts)));
    return v;
  }
#endif
  return hn::DupEven(hn::LoadU(d, parts));
}
template <class D, class T>
HWY_INLINE hn::Vec<D> loadImaginary(D d, const T* parts) {
#if HWY_TARGET == HWY_AVX3
  using V = hn::Vec<D>;
  if constexpr (std::is_same_v<V, hn::Vec512<float>>) {
    V v;
    asm("vmovshdup %1, %0" : "=v"(v.raw) : "m"(*reinterpret_cast<const __m512_u*>(parts)));
    return v;
  }
#endif
  return hn::DupOdd(hn::LoadU(d, parts));
}

// The compiler would load what is used twice once for each use; accesses to memory take issue slots
// from vectors of 64 bytes.
template <class D, class T>
HWY_INLINE hn::Vec<D> loadOnce(D d, const T* parts) {
  hn::Vec<D> v = hn::LoadU(d, parts);
#if HWY_TARGET == HWY_AVX3
  if constexpr (sizeof(T) * MaxLanes(D()) == 64) asm("" : "+v"(v.raw));
#endif
  return v;
}

// a (re + i im)
template <class D, class V>
HWY_INLINE V complexProduct(D d, V a, V re, V im) {
  return subtractAdd(d, hn::Mul(a, re), hn::Mul(swapParts(d, a), im));
}

template <class T>
struct ComplexProducts {
  const T* src1;
  const T* src2;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return complexProduct(d, loadOnce(d, src1 + i), loadReal(d, src2 + i),
                          loadImaginary(d, src2 + i));
  }
};

// Where a mask can join re^2 and im^2 of real parts with re im of imaginary ones, one shuffle less.
template <class T>
struct ComplexSquares {
  const T* src;
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, size_t i) const {
    using V = hn::Vec<D>;
    const V x = loadOnce(d, src + i);
#if HWY_TARGET == HWY_AVX3
    const V re = loadReal(d, src + i);
    if constexpr (std::is_same_v<V, hn::Vec512<float>>) {
      const V im = loadImaginary(d, src + i);
      const V straight = hn::Mul(x, re);
      return subtractAdd(d, straight, V{_mm512_mask_mul_ps(straight.raw, 0x5555, im.raw, im.raw)});
    } else if constexpr (std::is_same_v<V, hn::Vec512<double>>) {
      const V im = swapParts(d, x);
      const V straight = hn::Mul(x, re);
      return subtractAdd(d, straight, V{_mm512_mask_mul_pd(straight.raw, 0x55, im.raw, im.raw)});
    }
#endif
    return complexProduct(d, x, hn::DupEven(x), hn::DupOdd(x));
  }
};

template <class T>
struct ComplexProductsAndSum {
  ComplexProducts<T> products;
  const T* sum;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return hn::Add(hn::LoadU(d, sum + i), products(d, i));
  }
};

template <class T>
struct ComplexMultiples {
  const T* src;
  T re;
  T im;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return complexProduct(d, loadOnce(d, src + i), hn::Set(d, re), hn::Set(d, im));
  }
};

// dst[i] = src1[i] * src2[i], n complex values
template <class C>
VekStatus MulComplexTwo(const C* src1, const C* src2, C* dst, size_t n) {
  using T = decltype(dst->re);
  const ComplexProducts<T> body{reinterpret_cast<const T*>(src1), reinterpret_cast<const T*>(src2)};
  produce<2>(body, reinterpret_cast<T*>(dst), 2 * n, src1 == dst || src2 == dst);
  return vekStsOk;
}

// dst[i] = src[i] * src[i]
template <class C>
VekStatus SqrComplexOne(const C* src, C* dst, size_t n) {
  using T = decltype(dst->re);
  const ComplexSquares<T> body{reinterpret_cast<const T*>(src)};
  produce<2>(body, reinterpret_cast<T*>(dst), 2 * n, src == dst);
  return vekStsOk;
}

// dst[i] = src[i] * val
template <class C>
VekStatus MulComplexConstant(const C* src, C val, C* dst, size_t n) {
  using T = decltype(dst->re);
  const ComplexMultiples<T> body{reinterpret_cast<const T*>(src), val.re, val.im};
  produce<2>(body, reinterpret_cast<T*>(dst), 2 * n, src == dst);
  return vekStsOk;
}

// srcDst[i] += src1[i] * src2[i]
template <class C>
VekStatus AccumulateComplex(const C* src1, const C* src2, C* srcDst, size_t n) {
  using T = decltype(srcDst->re);
  T* const sum = reinterpret_cast<T*>(srcDst);
  const ComplexProductsAndSum<T> body{
      {reinterpret_cast<const T*>(src1), reinterpret_cast<const T*>(src2)}, sum};
  produce<2>(body, sum, 2 * n, true);
  return vekStsOk;
}

// A real and a complex source: every real value meets both parts.
template <class F, class T>
struct RealAndComplex {
  const T* real;
  const T* parts;
  F f = {};
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const hn::RebindToUnsigned<hn::Half<D>> dh;
    const hn::Repartition<hwy::MakeWide<hn::TFromD<decltype(dh)>>, D> dw;
    const auto half = hn::LoadU(hn::Half<D>(), real + i / 2);
    const auto even = hn::PromoteTo(dw, hn::BitCast(dh, half));
    const auto twice = hn::Or(even, hn::ShiftLeft<8 * sizeof(T)>(even));
    return f(d, hn::BitCast(d, twice), hn::LoadU(d, parts + i));
  }
};

template <class Op, class C>
VekStatus MapRealAndComplex(const decltype(C::re)* src1, const C* src2, C* dst, size_t n) {
  using T = decltype(C::re);
  const RealAndComplex<Operation<Op>, T> body{src1, reinterpret_cast<const T*>(src2)};
  produce<2>(body, reinterpret_cast<T*>(dst), 2 * n, src2 == dst);
  return vekStsOk;
}

template <class Op, class C>
VekStatus MapRealAndComplexScaled(const decltype(C::re)* src1, const C* src2, C* dst, size_t n,
                                  int scaleFactor) {
  using T = decltype(C::re);
  T* const parts = reinterpret_cast<T*>(dst);
  return withScaled<Op>(scaleFactor, parts, 2 * n, [=](auto f) HWY_ATTR {
    const RealAndComplex<decltype(f), T> body{src1, reinterpret_cast<const T*>(src2), f};
    produceScaled<2>(f, body, parts, 2 * n, src2 == dst);
  });
}

// Integer products: all real parts, then all imaginary ones. The imaginary part of the product of
// two values with the least parts is the one result that does not fit, 2^31 (or 2^63), and stands
// as the greatest value instead: rounded or saturated to half the width both are the same.
template <class D, class V>
HWY_INLINE V replaceOverflow(D d, V v) {
  using T = hn::TFromD<D>;
  return hn::Xor(v, hn::VecFromMask(d, hn::Eq(v, hn::Set(d, std::numeric_limits<T>::min()))));
}

template <class T>
struct ComplexWidening;

// Products of pairs of lanes of 16 bits, summed in lanes of 32.
template <class V>
HWY_INLINE auto sumOfProducts(V a, V b) {
  const hn::ScalableTag<int32_t> dw;
#if HWY_TARGET == HWY_EMU128
  const hn::ScalableTag<int16_t> d;
  const auto product = zip<int32_t>(d, hn::Mul(a, b), hn::MulHigh(a, b));
  return hn::Add(hn::ConcatEven(dw, product.second, product.first),
                 hn::ConcatOdd(dw, product.second, product.first));
#elif HWY_TARGET == HWY_SSE4
  return hn::Vec<decltype(dw)>{_mm_madd_epi16(a.raw, b.raw)};
#elif HWY_TARGET == HWY_AVX2
  return hn::Vec<decltype(dw)>{_mm256_madd_epi16(a.raw, b.raw)};
#else
  return hn::Vec<decltype(dw)>{_mm512_madd_epi16(a.raw, b.raw)};
#endif
}

template <>
struct ComplexWidening<int16_t> {
  using Wide = int32_t;
  // -b, which does not fit for the least b, as ~b + 1.
  template <class D, class V>
  static HWY_INLINE auto multiply(D d, V a, V b) {
    const hn::Repartition<int32_t, D> dw;
    const V notIm = hn::Xor(b, hn::BitCast(d, hn::Set(dw, static_cast<int32_t>(0xFFFF0000))));
    const auto re = hn::Add(sumOfProducts(a, notIm), hn::ShiftRight<16>(hn::BitCast(dw, a)));
    const auto im = replaceOverflow(dw, sumOfProducts(a, swapParts(d, b)));
    return Pair<decltype(re)>{re, im};
  }
  template <class V>
  static HWY_INLINE auto narrow(Pair<V> parts) {
    const hn::ScalableTag<int32_t> dw;
    return narrowBlocks<int16_t>(hn::InterleaveLower(dw, parts.first, parts.second),
                                 hn::InterleaveUpper(dw, parts.first, parts.second));
  }
};

template <>
struct ComplexWidening<int32_t> : Widening<int32_t> {
  template <class D, class V>
  static HWY_INLINE auto multiply(D d, V a, V b) {
    const hn::Repartition<int64_t, D> dw;
    const V imA = odd(d, a);
    const V imB = odd(d, b);
    const auto re = hn::Sub(hn::MulEven(a, b), hn::MulEven(imA, imB));
    const auto im = replaceOverflow(dw, hn::Add(hn::MulEven(a, imB), hn::MulEven(imA, b)));
    return Pair<decltype(re)>{re, im};
  }
};

template <>
struct ScaledOperation<MulComplex> {
  static constexpr bool kIsLight = false;
  template <class T>
  static constexpr int kMagnitudeOf = 2 * kMagnitude<T> + 1;

  template <ScalePath path, class D, class V>
  HWY_INLINE V operator()(ScalePathTag<path> /*path*/, D d, int bits, V a, V b) const {
    using T = hn::TFromD<D>;
    const auto scaledProduct = [bits](auto fullA, auto fullB) HWY_ATTR {
      using W = ComplexWidening<T>;
      const hn::ScalableTag<T> full;
      const hn::ScalableTag<typename W::Wide> dw;
      const auto parts = W::multiply(full, fullA, fullB);
      return W::narrow(Pair<decltype(parts.first)>{scaleTo<path, T>(dw, parts.first, bits),
                                                   scaleTo<path, T>(dw, parts.second, bits)});
    };
    return onFullVectors(d, scaledProduct, a, b);
  }
};

template <>
struct ScaledOperation<SqrComplex> : ScaledOperation<MulComplex> {
  template <ScalePath path, class D, class V>
  HWY_INLINE V operator()(ScalePathTag<path> tag, D d, int bits, V a) const {
    return ScaledOperation<MulComplex>()(tag, d, bits, a, a);
  }
};

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
