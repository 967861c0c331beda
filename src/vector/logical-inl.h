#if defined(VEKS_VECTOR_LOGICAL_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_LOGICAL_INL_H
#undef VEKS_VECTOR_LOGICAL_INL_H
#else
#define VEKS_VECTOR_LOGICAL_INL_H
#endif

#include "core/loops-inl.h"
#include "vector/fill-inl.h"
#include "vector/operations.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <>
struct Operation<And> {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V a, V b) const {
    return hn::And(a, b);
  }
};

template <>
struct Operation<Or> {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V a, V b) const {
    return hn::Or(a, b);
  }
};

template <>
struct Operation<Xor> {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V a, V b) const {
    return hn::Xor(a, b);
  }
};

template <>
struct Operation<Not> {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V a) const {
    return hn::Not(a);
  }
};

template <class T>
struct ShiftedLeft {
  const T* src;
  int bits;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return hn::ShiftLeftSame(hn::LoadU(d, src + i), bits);
  }
};

template <class T>
struct ShiftedRight {
  const T* src;
  int bits;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return hn::ShiftRightSame(hn::LoadU(d, src + i), bits);
  }
};

// Shifts take any count from 0; vector instructions only less than the element width.
template <class T>
VekStatus ShiftLeft(const T* src, int bits, T* dst, size_t n) {
  constexpr int kWidth = 8 * sizeof(T);
  if (bits >= kWidth) return Fill<T>(T{0}, dst, n);
  produce(ShiftedLeft<T>{src, bits}, dst, n, src == dst);
  return vekStsOk;
}

template <class T>
VekStatus ShiftRight(const T* src, int bits, T* dst, size_t n) {
  constexpr int kWidth = 8 * sizeof(T);
  if (bits >= kWidth) {
    if constexpr (!std::is_signed_v<T>) return Fill<T>(T{0}, dst, n);
    bits = kWidth - 1;
  }
  produce(ShiftedRight<T>{src, bits}, dst, n, src == dst);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
