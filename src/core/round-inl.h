// Conversion of floating-point lanes to integers, to nearest with ties to even, the same on every
// target, and powers of two.
#if defined(VEKS_CORE_ROUND_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_CORE_ROUND_INL_H
#undef VEKS_CORE_ROUND_INL_H
#else
#define VEKS_CORE_ROUND_INL_H
#endif

#include <hwy/highway.h>

#include "core/targets.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// |v| < 2^22 for float, 2^51 for double: next to the constant, no bits below the unit are left.
template <class D, class V>
HWY_INLINE V nearest(D d, V v) {
  using T = hn::TFromD<D>;
  const V unit = hn::Set(d, sizeof(T) == 4 ? T{12582912} : T{6755399441055744});
  return hn::Sub(hn::Add(v, unit), unit);
}

// Lanes of float within +-2^22, or of double within the range of 32 bits, as integers of 32 bits.
template <class D, class V>
HWY_INLINE auto nearestInt32(D d, V v) {
  const hn::Rebind<int32_t, D> di;
  if constexpr (sizeof(hn::TFromD<D>) == 8) {
    return hn::DemoteTo(di, nearest(d, v));
  } else {
#if HWY_TARGET == HWY_EMU128
    return hn::ConvertTo(di, nearest(d, v));
#else
    (void)di;
    return hn::NearestInt(v);
#endif
  }
}

// 2^-scaleFactor, or the nearest power of two that is a normal number. Between products or
// quotients of integers and destinations of integers, the difference is lost in rounding and
// saturation.
template <class T>
HWY_INLINE T scaleMultiplier(int scaleFactor) {
  using Bits = hwy::MakeSigned<T>;
  constexpr int kMost = std::numeric_limits<T>::max_exponent - 2;
  const int exponent = scaleFactor > kMost ? -kMost : (scaleFactor < -kMost ? kMost : -scaleFactor);
  constexpr int kMantissaBits = std::numeric_limits<T>::digits - 1;
  const Bits bits = static_cast<Bits>(Bits{exponent + kMost + 1} << kMantissaBits);
  T power;
  hwy::CopySameSize(&bits, &power);
  return power;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
