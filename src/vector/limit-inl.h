// Comparisons with a limit. NaN is beyond none and stays, to the bit.
#if defined(VEKS_VECTOR_LIMIT_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_LIMIT_INL_H
#undef VEKS_VECTOR_LIMIT_INL_H
#else
#define VEKS_VECTOR_LIMIT_INL_H
#endif

#include <hwy/highway.h>

#include "veks/types.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// x OP level, where OP is vekCmpLess or vekCmpGreater.
template <VekCmpOp op, class V>
HWY_INLINE auto isBeyond(V x, V level) {
  if constexpr (op == vekCmpLess) {
    return hn::Lt(x, level);
  } else {
    return hn::Gt(x, level);
  }
}

// x86 gives the second operand of a minimum or maximum if one of them is NaN or both are zero,
// which is the rule of a comparison; EMU128 has a rule of its own.
template <class V>
inline constexpr bool kComparesInMinMax =
    HWY_TARGET != HWY_EMU128 || !hwy::IsFloat<hn::TFromV<V>>();

// x < limit ? limit : x
template <class V>
HWY_INLINE V atLeast(V x, V limit) {
  if constexpr (kComparesInMinMax<V>) {
    return hn::Max(limit, x);
  } else {
    return hn::IfThenElse(hn::Lt(x, limit), limit, x);
  }
}

// x > limit ? limit : x
template <class V>
HWY_INLINE V atMost(V x, V limit) {
  if constexpr (kComparesInMinMax<V>) {
    return hn::Min(limit, x);
  } else {
    return hn::IfThenElse(hn::Gt(x, limit), limit, x);
  }
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
