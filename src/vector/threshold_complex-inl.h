// Thresholds of complex vectors.
#if defined(VEKS_VECTOR_THRESHOLD_COMPLEX_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_THRESHOLD_COMPLEX_INL_H
#undef VEKS_VECTOR_THRESHOLD_COMPLEX_INL_H
#else
#define VEKS_VECTOR_THRESHOLD_COMPLEX_INL_H
#endif

#include "core/loops-inl.h"
#include "vector/invert-inl.h"
#include "vector/magnitude-inl.h"
#include "vector/pairs-inl.h"
#include "vector/rescale-inl.h"
#include "veks/types.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// f(d, x) for vectors as pairs-inl.h wants them: a single narrow pair comes twice.
template <class F, class T>
struct MappedPairs {
  const T* src;
  F f;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto x = hn::LoadU(d, src + i);
    if constexpr (sizeof(T) < sizeof(double) && MaxLanes(D()) == 2) {
      const hn::Twice<D> twice;
      return hn::LowerHalf(d, f(twice, hn::Combine(twice, x, x)));
    } else {
      return f(d, x);
    }
  }
};

template <class F, class C>
HWY_INLINE VekStatus mapPairs(const F& f, const C* src, C* dst, size_t n) {
  using T = decltype(C::re);
  const MappedPairs<F, T> body{reinterpret_cast<const T*>(src), f};
  produce<2>(body, reinterpret_cast<T*>(dst), 2 * n, src == dst);
  return vekStsOk;
}

template <VekCmpOp op, class T>
struct ReplacedPairs {
  MagnitudeLevel<T> level;
  T re;
  T im;
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    return hn::IfThenElse(level.template compare<op>(d, x), setPairs(d, re, im), x);
  }
};

// dst[i] = src[i] with the magnitude `level` if |src[i]| OP level, else src[i]
template <VekCmpOp op, class C>
VekStatus LimitMagnitude(const C* src, C* dst, size_t n, decltype(C::re) level) {
  return mapPairs(RescaledPairs<op, decltype(C::re)>(level), src, dst, n);
}

// dst[i] = value if |src[i]| OP level, else src[i]
template <VekCmpOp op, class C>
VekStatus ReplaceComplex(const C* src, C* dst, size_t n, decltype(C::re) level, C value) {
  using T = decltype(C::re);
  const ReplacedPairs<op, T> f{MagnitudeLevel<T>(level), value.re, value.im};
  return mapPairs(f, src, dst, n);
}

// dst[i] = 1 / src[i], with a magnitude of src[i] of at least level
template <class C>
VekStatus InvertComplex(const C* src, C* dst, size_t n, decltype(C::re) level) {
  using T = decltype(C::re);
  unsigned divided = 0;
  mapPairs(InvertedPairs<T>(level > 0 ? level : T{0}, &divided), src, dst, n);
  return divided != 0 && !(level > 0) ? vekWrnInvThreshZero : vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
