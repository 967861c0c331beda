// Floating-point values as integers.
#if defined(VEKS_VECTOR_CONVERSION_ROUNDED_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_CONVERSION_ROUNDED_INL_H
#undef VEKS_VECTOR_CONVERSION_ROUNDED_INL_H
#else
#define VEKS_VECTOR_CONVERSION_ROUNDED_INL_H
#endif

#include "vector/conversion/rounding.h"
#include "vector/conversion/sources-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

#if HWY_TARGET == HWY_EMU128

// A call, because it takes a few hundred bytes.
template <Rounding rounding, class D, class V>
HWY_NOINLINE hn::Vec<D> toSaturated(D d, V v) {
  hn::Vec<D> integers;
  for (size_t i = 0; i < MaxLanes(d); ++i) {
    integers.raw[i] = toInteger<rounding, hn::TFromD<D>>(v.raw[i]);
  }
  return integers;
}

// Lanes as integers of 32 bits, which saturated to T are the result.
template <Rounding rounding, class T, class D, class V>
HWY_INLINE auto toInt32(D /*d*/, V v) {
  return toSaturated<rounding>(hn::Rebind<int32_t, D>(), v);
}

template <Rounding rounding, class D, class V>
HWY_INLINE auto toInt64(D /*d*/, V v) {
  return toSaturated<rounding>(hn::Rebind<int64_t, D>(), v);
}

#else

// The processor's conversions: the least integer for NaN and everything out of range.
template <Rounding rounding>
HWY_INLINE __m128i convertRaw(__m128 v) {
  return rounding == Rounding::kTruncate ? _mm_cvttps_epi32(v) : _mm_cvtps_epi32(v);
}
template <Rounding rounding>
HWY_INLINE __m128i convertRaw(__m128d v) {
  return rounding == Rounding::kTruncate ? _mm_cvttpd_epi32(v) : _mm_cvtpd_epi32(v);
}
#if HWY_TARGET <= HWY_AVX2
template <Rounding rounding>
HWY_INLINE __m256i convertRaw(__m256 v) {
  return rounding == Rounding::kTruncate ? _mm256_cvttps_epi32(v) : _mm256_cvtps_epi32(v);
}
template <Rounding rounding>
HWY_INLINE __m128i convertRaw(__m256d v) {
  return rounding == Rounding::kTruncate ? _mm256_cvttpd_epi32(v) : _mm256_cvtpd_epi32(v);
}
#endif
#if HWY_TARGET <= HWY_AVX3
template <Rounding rounding>
HWY_INLINE __m512i convertRaw(__m512 v) {
  return rounding == Rounding::kTruncate ? _mm512_cvttps_epi32(v) : _mm512_cvtps_epi32(v);
}
template <Rounding rounding>
HWY_INLINE __m256i convertRaw(__m512d v) {
  return rounding == Rounding::kTruncate ? _mm512_cvttpd_epi32(v) : _mm512_cvtpd_epi32(v);
}
#endif

// Lanes as integers of 32 bits, which saturated to T are the result. Of two operands of Min and Max
// that are not ordered, the second is the result.
template <Rounding rounding, class T, class D, class V>
HWY_INLINE auto toInt32(D d, V v) {
  using F = hn::TFromD<D>;
  const hn::Rebind<int32_t, D> di;
  using Integers = hn::Vec<decltype(di)>;
  if constexpr (std::numeric_limits<T>::digits <= std::numeric_limits<F>::digits) {
    const V max = hn::Set(d, static_cast<F>(std::numeric_limits<T>::max()));
    return Integers{convertRaw<rounding>(hn::Min(max, v).raw)};
  } else {
    const auto tooLarge = hn::VecFromMask(d, hn::Ge(v, hn::Set(d, F{2147483648})));
    return hn::Xor(Integers{convertRaw<rounding>(v.raw)}, hn::BitCast(di, tooLarge));
  }
}

#if HWY_TARGET <= HWY_AVX3

template <Rounding rounding>
HWY_INLINE __m128i convertRawTo64(__m128d v) {
  return rounding == Rounding::kTruncate ? _mm_cvttpd_epi64(v) : _mm_cvtpd_epi64(v);
}
template <Rounding rounding>
HWY_INLINE __m256i convertRawTo64(__m256d v) {
  return rounding == Rounding::kTruncate ? _mm256_cvttpd_epi64(v) : _mm256_cvtpd_epi64(v);
}
template <Rounding rounding>
HWY_INLINE __m512i convertRawTo64(__m512d v) {
  return rounding == Rounding::kTruncate ? _mm512_cvttpd_epi64(v) : _mm512_cvtpd_epi64(v);
}

// Beyond the range and for NaN, the instruction gives the least integer.
template <Rounding rounding, class D, class V>
HWY_INLINE auto toInt64(D d, V v) {
  const hn::RebindToSigned<D> di;
  const hn::Vec<decltype(di)> integers{convertRawTo64<rounding>(v.raw)};
  const auto tooLarge = hn::VecFromMask(d, hn::Ge(v, hn::Set(d, 0x1p63)));
  return hn::Xor(integers, hn::BitCast(di, tooLarge));
}

#else

// Lanes of double as integers of 64 bits: two halves of 32 bits, which sums with large constants
// have as their lowest bits.
template <Rounding rounding, class D, class V>
HWY_INLINE auto toInt64(D d, V v) {
  const hn::RebindToSigned<D> di;
  const V end = hn::Set(d, 0x1p63);
  const V bounded = hn::Min(hn::Max(v, hn::Neg(end)), end);
  const V whole = rounding == Rounding::kTruncate ? hn::Trunc(bounded) : hn::Round(bounded);
  const V high = hn::Floor(hn::Mul(whole, hn::Set(d, 0x1p-32)));
  const V low = hn::Sub(whole, hn::Mul(high, hn::Set(d, 0x1p32)));
  const V unit = hn::Set(d, 0x1p52);
  const auto highBits = hn::BitCast(di, hn::Add(high, hn::Set(d, 0x1.8p52)));
  const auto lowBits = hn::BitCast(di, hn::Xor(hn::Add(low, unit), unit));
  const auto tooLarge = hn::BitCast(di, hn::VecFromMask(d, hn::Ge(whole, end)));
  return hn::Xor(hn::Or(hn::ShiftLeft<32>(highBits), lowBits), tooLarge);
}

#endif
#endif

// The floats of `source` as lanes of T.
template <Rounding rounding, class T, class F, class Source>
struct RoundedFloats {
  Source source;
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, size_t i) const {
    if constexpr (sizeof(T) == 8) {
      const hn::Rebind<F, D> df;
      return toInt64<rounding>(df, source(df, i));
    } else {
      return narrowed<int32_t>(d, i, [this](auto di, size_t k) HWY_ATTR {
        return inParts<F>(di, k, [this](auto dPart, size_t m) HWY_ATTR {
          const hn::Rebind<F, decltype(dPart)> df;
          return toInt32<rounding, T>(df, source(df, m));
        });
      });
    }
  }
};

template <Rounding rounding>
struct RoundingTag {
  static constexpr Rounding value = rounding;
};

// Calls run(rounding, source) with the mode as a constant and the scaled floats.
template <class F, class Run>
HWY_INLINE void withRounding(const F* src, int rndMode, int scaleFactor, const Run& run) {
  const auto withMode = [&run, rndMode](auto source) HWY_ATTR {
    if (rndMode == 0) {
      run(RoundingTag<Rounding::kTruncate>(), source);
    } else {
      run(RoundingTag<Rounding::kNearest>(), source);
    }
  };
  if (isOneFactor<F>(scaleFactor)) {
    withMode(ScaledSource<1, F, F>(src, scaleFactor));
  } else {
    withMode(ScaledSource<2, F, F>(src, scaleFactor));
  }
}

template <class F, class T>
VekStatus ConvertRounded(const F* src, T* dst, size_t n, int rndMode, int scaleFactor) {
  withRounding(src, rndMode, scaleFactor, [=](auto rounding, auto source) HWY_ATTR {
    using Source = decltype(source);
    const RoundedFloats<decltype(rounding)::value, T, F, Source> body{source};
    constexpr bool kIsLight = std::is_same_v<Source, ScaledSource<1, F, F>> &&
                              sizeof(F) <= 2 * sizeof(T) && sizeof(T) < 8;
    if constexpr (kIsLight) {
      produce(body, dst, n, areSame(src, dst));
    } else {
      produceCompact(body, dst, n, areSame(src, dst));
    }
  });
  return vekStsOk;
}

// The same for n complex values.
template <class S, class T>
VekStatus ConvertPartsRounded(const S* src, T* dst, size_t n, int rndMode, int scaleFactor) {
  using SourcePart = decltype(src->re);
  using Part = decltype(dst->re);
  return ConvertRounded(reinterpret_cast<const SourcePart*>(src), reinterpret_cast<Part*>(dst),
                        2 * n, rndMode, scaleFactor);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
