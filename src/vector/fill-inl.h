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
  uint64_t low;
  uint64_t high;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t /*i*/) const {
    return hn::InterleaveLower(d, hn::Set(d, low), hn::Set(d, high));
  }
};

// dst[i] = val, any element type of 1, 2, 4, 8 or 16 bytes, as a bit pattern.
template <class T>
HWY_INLINE void fill(T val, T* dst, size_t n) {
  if constexpr (sizeof(T) == 16) {
    uint64_t bits[2];
    hwy::CopyBytes<16>(&val, bits);
    produce<2>(TwoLanePattern{bits[0], bits[1]}, reinterpret_cast<uint64_t*>(dst), 2 * n, false);
  } else {
    using Lane = hwy::UnsignedFromSize<sizeof(T)>;
    Lane bits;
    hwy::CopyBytes<sizeof(T)>(&val, &bits);
    produce(OneLanePattern<Lane>{bits}, reinterpret_cast<Lane*>(dst), n, false);
  }
}

template <class T>
VekStatus Fill(T val, T* dst, size_t n) {
  fill(val, dst, n);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
