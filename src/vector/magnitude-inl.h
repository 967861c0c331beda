// Comparisons of complex magnitudes with a level.
#if defined(VEKS_VECTOR_MAGNITUDE_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_MAGNITUDE_INL_H
#undef VEKS_VECTOR_MAGNITUDE_INL_H
#else
#define VEKS_VECTOR_MAGNITUDE_INL_H
#endif

#include <algorithm>

#include "core/power_of_two.h"
#include "vector/limit-inl.h"
#include "vector/pairs-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// A level >= 0, or NaN. isBeyond<op>(d, x) gives the mask of the pairs x with |x| OP level.
template <class T>
struct MagnitudeLevel;

template <>
struct MagnitudeLevel<int16_t> {
  int32_t square;

  explicit MagnitudeLevel(int16_t level) : square(level * level) {}

  template <VekCmpOp op, class D, class V>
  HWY_INLINE auto compare(D d, V x) const {
    const hn::RepartitionToWide<D> d32;
    const auto mask = compareSquares<op>(d32, squares16(d32, x));
    return hn::MaskFromVec(hn::BitCast(d, hn::VecFromMask(d32, mask)));
  }

  // One less on either side: 2^31 - 1 fits.
  template <VekCmpOp op, class D32, class V>
  HWY_INLINE auto compareSquares(D32 d32, V squares) const {
    return isBeyond<op>(hn::Sub(squares, hn::Set(d32, 1)), hn::Set(d32, square - 1));
  }
};

template <>
struct MagnitudeLevel<float> {
  double square;

  explicit MagnitudeLevel(float level) : square(double{level} * double{level}) {}

  template <VekCmpOp op, class D, class V>
  HWY_INLINE auto compare(D d, V x) const {
    const hn::RepartitionToWide<D> wide;
    const auto mask = isBeyond<op>(squares(wide, widened(d, x)), hn::Set(wide, square));
    return hn::MaskFromVec(hn::BitCast(d, pairOrder(wide, mask)));
  }
};

// The scale takes the level, but for the largest and the smallest ones, to [1, 2), where its square
// does not overflow. Then it does no harm if that of an element does, and little if it underflows.
template <>
struct MagnitudeLevel<double> {
  double scale;
  double square;

  explicit MagnitudeLevel(double level)
      : scale(powerOfTwo(std::clamp(-exponentOf(level), -1000, 1000))),
        square((scale * level) * (scale * level)) {}

  template <VekCmpOp op, class D, class V>
  HWY_INLINE auto compare(D d, V x) const {
    return isBeyond<op>(squares(d, hn::Mul(x, hn::Set(d, scale))), hn::Set(d, square));
  }
};

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
