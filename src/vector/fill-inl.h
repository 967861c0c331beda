#if defined(VEKS_VECTOR_FILL_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_FILL_INL_H
#undef VEKS_VECTOR_FILL_INL_H
#else
#define VEKS_VECTOR_FILL_INL_H
#endif

#include "core/loops-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// The bit pattern of one lane, everywhere.
template <class T>
struct OneLanePattern {
  T bits;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t /*i*/) const {
    return hn::Set(d, bits);
  }
};

// Two lanes of eight bytes in turn.
struct TwoLanePattern {
  const uint64_t* bits;  // one full vector and a lane more
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return hn::LoadU(d, bits + i % 2);
  }
};

// dst[i] = val, any element type of 1, 2, 4, 8 or 16 bytes, as a bit pattern.
template <class T>
VekStatus Fill(T val, T* dst, size_t n) {
  constexpr bool kTwoLanes = sizeof(T) == 16;
  using Lane = hwy::UnsignedFromSize<kTwoLanes ? 8 : sizeof(T)>;
  Lane bits[sizeof(T) / sizeof(Lane)];
  hwy::CopyBytes<sizeof(T)>(&val, bits);
  Lane* const lanes = reinterpret_cast<Lane*>(dst);
  if constexpr (kTwoLanes) {
    constexpr size_t kLanes = MaxLanes(hn::ScalableTag<Lane>());
    Lane pattern[kLanes + 2];
    for (size_t i = 0; i < kLanes + 2; ++i) pattern[i] = bits[i % 2];
    produce(TwoLanePattern{pattern}, lanes, 2 * n, false);
  } else {
    produce(OneLanePattern<Lane>{bits[0]}, lanes, n, false);
  }
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
