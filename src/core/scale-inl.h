// The vector form of the scale-factor rule.
#if defined(VEKS_CORE_SCALE_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_CORE_SCALE_INL_H
#undef VEKS_CORE_SCALE_INL_H
#else
#define VEKS_CORE_SCALE_INL_H
#endif

#include <hwy/highway.h>

#include "core/scale.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// Clamps signed lanes to the range of Dst.
template <class Dst, class D, class V>
HWY_INLINE V saturateTo(D d, V r) {
  using Wide = hn::TFromD<D>;
  if constexpr (sizeof(Dst) == sizeof(Wide)) {
    return r;
  } else {
    const auto max = hn::Set(d, Wide{std::numeric_limits<Dst>::max()});
    const auto min = hn::Set(d, Wide{std::numeric_limits<Dst>::min()});
    return hn::Min(hn::Max(r, min), max);
  }
}

// scaleTo() for signed lanes of Wide, the path a constant: results in the range of Dst, but for the
// paths kSaturate and kRound, whose results a saturating narrowing or saturateTo() must follow.
template <ScalePath path, class Dst, class D, class V>
HWY_INLINE V scaleTo(D d, V r, int bits) {
  using Wide = hn::TFromD<D>;
  const auto max = hn::Set(d, static_cast<Wide>(std::numeric_limits<Dst>::max()));
  const auto min = hn::Set(d, static_cast<Wide>(std::numeric_limits<Dst>::min()));
  if constexpr (path == ScalePath::kSaturate) {
    return r;
  } else if constexpr (path == ScalePath::kRound) {
    const auto half = hn::Set(d, static_cast<Wide>(Wide{1} << (bits - 1)));
    const auto one = hn::Set(d, Wide{1});
    const auto quotient = hn::ShiftRightSame(r, bits);
    const auto remainder = hn::And(r, hn::Add(hn::Sub(half, one), half));
    const auto threshold = hn::Sub(half, hn::And(quotient, one));
    return hn::Sub(quotient, hn::VecFromMask(d, hn::Gt(remainder, threshold)));
  } else if constexpr (path == ScalePath::kShiftLeft) {
    const auto shifted = hn::ShiftLeftSame(r, bits);
    const auto aboveMax = hn::Gt(r, hn::ShiftRightSame(max, bits));
    const auto belowMin = hn::Lt(r, hn::ShiftRightSame(min, bits));
    return hn::IfThenElse(aboveMax, max, hn::IfThenElse(belowMin, min, shifted));
  } else if constexpr (path == ScalePath::kSign) {
    const auto zero = hn::Zero(d);
    return hn::IfThenElse(hn::Gt(r, zero), max, hn::IfThenElse(hn::Lt(r, zero), min, zero));
  } else {
    return hn::Zero(d);
  }
}

// Calls loop(tag) with the path as the constant tag.value.
template <class Loop>
HWY_INLINE auto withScalePath(ScalePath path, const Loop& loop) {
  switch (path) {
    case ScalePath::kSaturate:
      return loop(ScalePathTag<ScalePath::kSaturate>());
    case ScalePath::kRound:
      return loop(ScalePathTag<ScalePath::kRound>());
    case ScalePath::kShiftLeft:
      return loop(ScalePathTag<ScalePath::kShiftLeft>());
    case ScalePath::kSign:
      return loop(ScalePathTag<ScalePath::kSign>());
    case ScalePath::kZero:
      break;
  }
  return loop(ScalePathTag<ScalePath::kZero>());
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
