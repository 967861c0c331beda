// What norms are made of: differences, squares and magnitudes.
#if defined(VEKS_STATS_TERMS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_TERMS_INL_H
#undef VEKS_STATS_TERMS_INL_H
#else
#define VEKS_STATS_TERMS_INL_H
#endif

#include "core/parts-inl.h"
#include "vector/limit-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <class V>
HWY_INLINE V difference(V v) {
  return v;
}
template <class V>
HWY_INLINE V difference(V a, V b) {
  return hn::Sub(a, b);
}
template <class V>
HWY_INLINE Parts<V> difference(Parts<V> z) {
  return z;
}
template <class V>
HWY_INLINE Parts<V> difference(Parts<V> a, Parts<V> b) {
  return {hn::Sub(a.re, b.re), hn::Sub(a.im, b.im)};
}

// What is summed up, or what the greatest is wanted of.
struct SquareTerm {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V v) const {
    return hn::Mul(v, v);
  }
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, Parts<V> z) const {
    return hn::Add(hn::Mul(z.re, z.re), hn::Mul(z.im, z.im));
  }
};

struct MagnitudeTerm {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V v) const {
    return hn::Abs(v);
  }
  template <class D, class V>
  HWY_INLINE V operator()(D d, Parts<V> z) const {
    return hn::Sqrt(SquareTerm()(d, z));
  }
};

// The larger part; elements with a NaN have none.
struct LargerPartTerm {
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, V v) const {
    return hn::Abs(v);
  }
  template <class D, class V>
  HWY_INLINE V operator()(D /*d*/, Parts<V> z) const {
    const auto isNumber = hn::And(hn::Eq(z.re, z.re), hn::Eq(z.im, z.im));
    return hn::IfThenElseZero(isNumber, atLeast(hn::Abs(z.re), hn::Abs(z.im)));
  }
};

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
