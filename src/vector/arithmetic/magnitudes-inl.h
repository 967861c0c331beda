// Absolute values.
#if defined(VEKS_VECTOR_ARITHMETIC_MAGNITUDES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_ARITHMETIC_MAGNITUDES_INL_H
#undef VEKS_VECTOR_ARITHMETIC_MAGNITUDES_INL_H
#else
#define VEKS_VECTOR_ARITHMETIC_MAGNITUDES_INL_H
#endif

#include "core/loops-inl.h"
#include "vector/operations.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// The magnitude of the least integer, which does not fit, is read as an unsigned one.
template <>
struct Operation<Abs> {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V a) const {
    using T = hn::TFromD<D>;
    if constexpr (std::is_floating_point_v<T>) {
      return hn::Abs(a);
    } else {
      const hn::RebindToUnsigned<D> du;
      const auto max = hn::BitCast(du, hn::Set(d, std::numeric_limits<T>::max()));
      return hn::BitCast(d, hn::Min(hn::BitCast(du, hn::Abs(a)), max));
    }
  }
};

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
