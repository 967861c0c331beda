// Inverses by multiplications, rounded as by the instruction for quotients, which takes longer with
// vectors of 64 bytes.
#if defined(VEKS_CORE_RECIPROCAL_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_CORE_RECIPROCAL_INL_H
#undef VEKS_CORE_RECIPROCAL_INL_H
#else
#define VEKS_CORE_RECIPROCAL_INL_H
#endif

#include "core/square_root-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

#if HWY_TARGET <= HWY_AVX3
// 1 / v for v > 0 where that is a normal number; NaN or no normal number for all other v >= 0.
// The estimate is off by up to 2^-14, its correction by 2^-28 and the rounding, which goes up: down
// to 1/2, the last correction would miss the inverse of the significand of all ones. Every
// significand has been tried, with all corrected estimates that such an error allows: this does not
// rely on the way a processor approximates.
HWY_INLINE Floats refinedInverse(Floats v) {
  const Floats one = hn::Set(hn::Full512<float>(), 1.0F);
  const Floats estimate{_mm512_rcp14_ps(v.raw)};
  const Floats error = hn::NegMulAdd(v, estimate, one);
  const Floats corrected{_mm512_fmadd_round_ps(estimate.raw, error.raw, estimate.raw,
                                               _MM_FROUND_TO_POS_INF | _MM_FROUND_NO_EXC)};
  return hn::MulAdd(hn::NegMulAdd(v, corrected, one), corrected, corrected);
}
#endif

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
