// Quotients of complex floats, whose real and imaginary parts go to vectors of their own: that
// takes two thirds of the instructions that pairs take.
#if defined(VEKS_VECTOR_ARITHMETIC_PARTED_QUOTIENTS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_ARITHMETIC_PARTED_QUOTIENTS_INL_H
#undef VEKS_VECTOR_ARITHMETIC_PARTED_QUOTIENTS_INL_H
#else
#define VEKS_VECTOR_ARITHMETIC_PARTED_QUOTIENTS_INL_H
#endif

#include "core/loops-inl.h"
#include "vector/split_pairs-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

#if HWY_TARGET <= HWY_AVX3
struct PartedQuotients {
  Floats first;
  Floats second;
  bool areOrdinary;
};

// b / a for two vectors of each. They are ordinary where powers of two in a and b would change no
// bit of them: what is denormal on the way is below 2^-126, next to a sum of at least 2^-99.
// A part of a that is denormal if the greater one is brought to 1 is less than 2^-126 of that: its
// product with a part of b is below 2^-28 of the sum then.
HWY_INLINE PartedQuotients partedQuotients(const float* divisors, const float* dividends) {
  const hn::Full512<float> d;
  constexpr int kLarger = 0xB;  // without the sign
  constexpr int kSmaller = 0xA;
  const PairParts a = partsOf(hn::LoadU(d, divisors), hn::LoadU(d, divisors + 16));
  const PairParts b = partsOf(hn::LoadU(d, dividends), hn::LoadU(d, dividends + 16));
  const Floats norm = hn::Add(hn::Mul(a.re, a.re), hn::Mul(a.im, a.im));
  const Floats inverse = hn::Div(hn::Set(d, 1.0F), norm);
  const Floats re = hn::Add(hn::Mul(b.re, a.re), hn::Mul(b.im, a.im));
  const Floats im = hn::Sub(hn::Mul(b.im, a.re), hn::Mul(b.re, a.im));
  PairParts quotient{hn::Mul(re, inverse), hn::Mul(im, inverse)};
  const __m512 larger = _mm512_range_ps(quotient.re.raw, quotient.im.raw, kLarger);
  const __m512 smaller = _mm512_range_ps(quotient.re.raw, quotient.im.raw, kSmaller);
  // A NaN makes both parts NaN, or one of them infinite.
  __mmask16 fit = _mm512_cmp_ps_mask(norm.raw, _mm512_set1_ps(0x1p-62F), _CMP_GE_OQ);
  fit = _mm512_mask_cmp_ps_mask(fit, norm.raw, _mm512_set1_ps(0x1p60F), _CMP_LE_OQ);
  fit = _mm512_mask_cmp_ps_mask(fit, smaller, _mm512_set1_ps(0x1p-37F), _CMP_GE_OQ);
  fit = _mm512_mask_cmp_ps_mask(fit, larger, _mm512_set1_ps(0x1p60F), _CMP_LE_OQ);
  PartedQuotients result;
  joinParts(quotient, result.first, result.second);
  result.areOrdinary = fit == 0xFFFF;
  return result;
}

// n floats, at least 32. body(d, i) gives the vectors that are not ordinary.
template <class Body>
HWY_INLINE void produceQuotients(const Body& body, float* dst, size_t n, bool inPlace) {
  const hn::Full512<float> d;
  const auto two = [&](size_t i) HWY_ATTR {
    PartedQuotients quotients = partedQuotients(body.divisors + i, body.dividends + i);
    if (HWY_UNLIKELY(!quotients.areOrdinary)) {
      Floats vectors[2];
#pragma GCC unroll 1
      for (size_t k = 0; k < 2; ++k) vectors[k] = body(d, i + k * 16);
      quotients.first = vectors[0];
      quotients.second = vectors[1];
    }
    return quotients;
  };
  const PartedQuotients last = two(n - 32);
  // In place, no vectors but the last may overlap others.
  const size_t boundary = lanesToBoundary<2>(dst, 16);
  size_t next = inPlace || boundary == 0 ? 32 : boundary + 16;
  for (size_t i = 0; i + 32 < n;) {
    const PartedQuotients quotients = two(i);
    hn::StoreU(quotients.first, d, dst + i);
    hn::StoreU(quotients.second, d, dst + i + 16);
    i = next;
    next += 32;
  }
  hn::StoreU(last.first, d, dst + n - 32);
  hn::StoreU(last.second, d, dst + n - 16);
}
#endif

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
