// Products and squares of real values, and sums of them.
#if defined(VEKS_VECTOR_ARITHMETIC_PRODUCTS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_ARITHMETIC_PRODUCTS_INL_H
#undef VEKS_VECTOR_ARITHMETIC_PRODUCTS_INL_H
#else
#define VEKS_VECTOR_ARITHMETIC_PRODUCTS_INL_H
#endif

#include "core/round-inl.h"
#include "vector/arithmetic/sums-inl.h"
#include "vector/conversion/rounded-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// Both halves of a pair of wide lanes, scaled and narrowed to T.
template <ScalePath path, class T, bool kHeadroom, class V>
HWY_INLINE auto narrowScaled(Pair<V> wide, int bits) {
  const hn::ScalableTag<typename Widening<T>::Wide> dw;
  return Widening<T>::narrow(Pair<V>{scaleTo<path, T, kHeadroom>(dw, wide.first, bits),
                                     scaleTo<path, T, kHeadroom>(dw, wide.second, bits)});
}

// low - 1, but for a low of 0, where the bit is clear.
template <class D, class V>
HWY_INLINE V lessWhereClear(D d, V low, int bit) {
  const V one = hn::Set(d, uint16_t{1});
#if HWY_TARGET <= HWY_AVX3
  const auto clear =
      _mm512_testn_epi16_mask(low.raw, hn::Set(d, static_cast<uint16_t>(1 << bit)).raw);
  return V{_mm512_mask_subs_epu16(low.raw, clear, low.raw, one.raw)};
#else
  return hn::SaturatedSub(low, hn::AndNot(hn::ShiftRightSame(low, bit), one));
#endif
}

// Both halves of products of 16-bit lanes, rounded and narrowed to T, 1 < bits < 16. Adding one
// half rounds ties up; one less, where the quotient is even, they go down. That touches only the
// low half: one that is 0 is no tie. The sum does not overflow.
template <class T, class V>
HWY_INLINE V narrowRounded(V low, V high, int bits) {
  const hn::ScalableTag<T> d;
  const hn::ScalableTag<uint16_t> du;
  const hn::ScalableTag<typename Widening<T>::Wide> dw;
  const V below = hn::BitCast(d, lessWhereClear(du, hn::BitCast(du, low), bits));
  const auto wide = zip<typename Widening<T>::Wide>(d, below, high);
  const auto half = hn::Set(dw, typename Widening<T>::Wide{1} << (bits - 1));
  return narrowBlocks<T>(shiftRight(dw, hn::Add(wide.first, half), bits),
                         shiftRight(dw, hn::Add(wide.second, half), bits));
}

// The same for one bit. Only an odd quotient, and none that is saturated below, goes up.
template <class T, class V>
HWY_INLINE V narrowHalved(V low, V high) {
  const hn::ScalableTag<T> d;
  using Wide = typename Widening<T>::Wide;
  const auto wide = zip<Wide>(d, low, high);
  using V32 = decltype(wide.first);
  const V quotient =
      Widening<T>::narrow(Pair<V32>{hn::ShiftRight<1>(wide.first), hn::ShiftRight<1>(wide.second)});
  return hn::SaturatedAdd(quotient, lowestOfBoth(d, quotient, low));
}

template <>
struct ScaledOperation<Mul> {
  static constexpr bool kIsLight = true;
  template <class T>
  static constexpr int kMagnitudeOf = 2 * kMagnitude<T>;

  template <ScalePath path, class D, class V>
  HWY_INLINE V operator()(ScalePathTag<path> /*path*/, D d, int bits, V a, V b) const {
    using T = hn::TFromD<D>;
    const auto scaledProduct = [bits](auto fullA, auto fullB) HWY_ATTR {
      const hn::ScalableTag<T> full;
      if constexpr (path == ScalePath::kRound && sizeof(T) == 2) {
        if (bits < 16) {
          return narrowRounded<T>(hn::Mul(fullA, fullB), hn::MulHigh(fullA, fullB), bits);
        }
      }
      if constexpr (path == ScalePath::kHalve && sizeof(T) == 2) {
        return narrowHalved<T>(hn::Mul(fullA, fullB), hn::MulHigh(fullA, fullB));
      }
      return narrowScaled<path, T, std::is_signed_v<T>>(Widening<T>::multiply(full, fullA, fullB),
                                                        bits);
    };
    return onFullVectors(d, scaledProduct, a, b);
  }
};

template <>
struct ScaledOperation<Sqr> : ScaledOperation<Mul> {
  template <ScalePath path, class D, class V>
  HWY_INLINE V operator()(ScalePathTag<path> tag, D d, int bits, V a) const {
    return ScaledOperation<Mul>()(tag, d, bits, a, a);
  }
};

template <>
struct Operation<Mul> {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    if constexpr (std::is_floating_point_v<hn::TFromD<D>>) {
      return hn::Mul(a, b);
    } else {
      return ScaledOperation<Mul>()(ScalePathTag<ScalePath::kSaturate>(), d, 0, a, b);
    }
  }
};

template <>
struct Operation<MulExact> {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V a, V b) const {
    return hn::Mul(a, b);
  }
};

template <>
struct Operation<Sqr> {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V a) const {
    return hn::Mul(a, a);
  }
};

// Two roundings, on every target.
template <>
struct Operation<AddProduct> {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V a, V b, V sum) const {
    return hn::Add(sum, hn::Mul(a, b));
  }
};

// The sum with the old value is scaled, not the product.
template <>
struct ScaledOperation<AddProduct> {
  static constexpr bool kIsLight = false;
  template <class T>
  static constexpr int kMagnitudeOf = 2 * kMagnitude<T> + 1;

  template <ScalePath path, class D, class V>
  HWY_INLINE V operator()(ScalePathTag<path> /*path*/, D d, int bits, V a, V b, V sum) const {
    using T = hn::TFromD<D>;
    const auto scaledSum = [bits](auto fullA, auto fullB, auto fullSum) HWY_ATTR {
      const hn::ScalableTag<T> full;
      const auto product = Widening<T>::multiply(full, fullA, fullB);
      const auto old = Widening<T>::promote(full, fullSum);
      using Wide = decltype(product.first);
      return narrowScaled<path, T, false>(
          Pair<Wide>{hn::Add(product.first, old.first), hn::Add(product.second, old.second)}, bits);
    };
    return onFullVectors(d, scaledSum, a, b, sum);
  }
};

// Products of 16-bit sources in lanes of 32 bits, which they always fit.
template <class F, class S1, class S2>
struct PromotedProducts {
  const S1* src1;
  const S2* src2;
  F f;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto a = hn::PromoteTo(d, hn::LoadU(hn::Rebind<S1, D>(), src1 + i));
    const auto b = hn::PromoteTo(d, hn::LoadU(hn::Rebind<S2, D>(), src2 + i));
    return f(d, hn::Mul(a, b));
  }
};

template <>
struct ScaledOperation<Product> {
  static constexpr bool kIsLight = false;
  template <class T>
  static constexpr int kMagnitudeOf = 31;

  template <ScalePath path, class D, class V>
  HWY_INLINE V operator()(ScalePathTag<path> /*path*/, D d, int bits, V product) const {
    return scaleTo<path, int32_t>(d, product, bits);
  }
};

inline VekStatus MulPromotedScaled(const int16_t* src1, const int16_t* src2, int32_t* dst, size_t n,
                                   int scaleFactor) {
  return withScaled<Product>(scaleFactor, dst, n, [=](auto f) HWY_ATTR {
    const PromotedProducts<decltype(f), int16_t, int16_t> body{src1, src2, f};
    produceScaled(f, body, dst, n, false);
  });
}

// An unsigned and a signed operand: the signed high half lacks the second one times 2^16 where the
// first is read as negative.
template <>
struct ScaledOperation<MulUnsigned> : ScaledOperation<Mul> {
  template <class T>
  static constexpr int kMagnitudeOf = 31;

  template <ScalePath path, class D, class V>
  HWY_INLINE V operator()(ScalePathTag<path> /*path*/, D d, int bits, V a, V b) const {
    const auto scaledProduct = [bits](auto fullA, auto fullB) HWY_ATTR {
      const hn::ScalableTag<int16_t> full;
      const auto low = hn::Mul(fullA, fullB);
      const auto high =
          hn::Add(hn::MulHigh(fullA, fullB), hn::And(hn::BroadcastSignBit(fullA), fullB));
      if constexpr (path == ScalePath::kRound) {
        if (bits < 16) return narrowRounded<int16_t>(low, high, bits);
      }
      if constexpr (path == ScalePath::kHalve) return narrowHalved<int16_t>(low, high);
      return narrowScaled<path, int16_t, false>(zip<int32_t>(full, low, high), bits);
    };
    return onFullVectors(d, scaledProduct, a, b);
  }
};

inline VekStatus MulUnsignedScaled(const uint16_t* src1, const int16_t* src2, int16_t* dst,
                                   size_t n, int scaleFactor) {
  return MapTwoScaled<MulUnsigned>(reinterpret_cast<const int16_t*>(src1), src2, dst, n,
                                   scaleFactor);
}

// srcDst[i] + src1[i] * src2[i] has one bit more than 32, like a sum of any two values.
template <class F>
struct PromotedProductsAndSum {
  const int16_t* src1;
  const int16_t* src2;
  const int32_t* sum;
  F f;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const hn::Rebind<int16_t, D> ds;
    const auto a = hn::PromoteTo(d, hn::LoadU(ds, src1 + i));
    const auto b = hn::PromoteTo(d, hn::LoadU(ds, src2 + i));
    return f(d, hn::Mul(a, b), hn::LoadU(d, sum + i));
  }
};

inline VekStatus AccumulatePromotedScaled(const int16_t* src1, const int16_t* src2, int32_t* srcDst,
                                          size_t n, int scaleFactor) {
  return withScaled<Add>(scaleFactor, srcDst, n, [=](auto f) HWY_ATTR {
    const PromotedProductsAndSum<decltype(f)> body{src1, src2, srcDst, f};
    produceCompact(body, srcDst, n, true);
  });
}

// Products in single precision, scaled without leaving its range on the way.
struct ScaledFloatProducts {
  const float* src;
  float val;
  float factor1;
  float factor2;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto product = hn::Mul(hn::LoadU(d, src + i), hn::Set(d, val));
    return hn::Mul(hn::Mul(product, hn::Set(d, factor1)), hn::Set(d, factor2));
  }
};

inline VekStatus MulFloatScaled(const float* src, float val, int16_t* dst, size_t n,
                                int scaleFactor) {
  const int half = scaleFactor / 2;
  const ScaledFloatProducts products{src, val, scaleMultiplier<float>(half),
                                     scaleMultiplier<float>(scaleFactor - half)};
  using Body = RoundedFloats<Rounding::kNearest, int16_t, float, ScaledFloatProducts>;
  produceCompact(Body{products}, dst, n, false);
  return vekStsOk;
}

inline VekStatus MulFloatRounded(const float* src, float val, int16_t* dst, size_t n) {
  return MulFloatScaled(src, val, dst, n, 0);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
