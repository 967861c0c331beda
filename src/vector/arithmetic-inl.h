#if defined(VEKS_VECTOR_ARITHMETIC_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_ARITHMETIC_INL_H
#undef VEKS_VECTOR_ARITHMETIC_INL_H
#else
#define VEKS_VECTOR_ARITHMETIC_INL_H
#endif

#include "core/loops-inl.h"
#include "vector/operations.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <>
struct Operation<Add> {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V a, V b) const {
    return hn::Add(a, b);
  }
};

template <>
struct Operation<Sub> {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V a, V b) const {
    return hn::Sub(b, a);
  }
};

template <>
struct Operation<SubFrom> {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V a, V b) const {
    return hn::Sub(a, b);
  }
};

template <>
struct Operation<Mul> {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V a, V b) const {
    return hn::Mul(a, b);
  }
};

template <>
struct Operation<Abs> {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V a) const {
    return hn::Abs(a);
  }
};

template <>
struct Operation<Sqr> {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V a) const {
    return hn::Mul(a, a);
  }
};

// Two roundings, on every target.
template <>
struct Operation<AddProduct> {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V a, V b, V sum) const {
    return hn::Add(sum, hn::Mul(a, b));
  }
};

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
