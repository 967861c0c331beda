// Conversions that are exact or round as IEEE 754 says, without and with a scale factor.
#if defined(VEKS_VECTOR_CONVERSION_DIRECT_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_CONVERSION_DIRECT_INL_H
#undef VEKS_VECTOR_CONVERSION_DIRECT_INL_H
#else
#define VEKS_VECTOR_CONVERSION_DIRECT_INL_H
#endif

#include "vector/conversion/sources-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <class S>
struct Converted {
  const S* src;
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, size_t i) const {
    return loadAs(d, src + i);
  }
};

#if HWY_TARGET <= HWY_AVX2
// Lanes of float come from double in half vectors. Putting two together takes a shuffle, of which
// each conversion has one already.
template <>
struct ProducedTag<Converted<double>, float> {
  using Type = hn::Half<hn::ScalableTag<float>>;
};
#endif

template <class S, class T>
VekStatus Convert(const S* src, T* dst, size_t n) {
  produce(Converted<S>{src}, dst, n, areSame(src, dst));
  return vekStsOk;
}

// The same for n complex values.
template <class S, class T>
VekStatus ConvertParts(const S* src, T* dst, size_t n) {
  using SourcePart = decltype(src->re);
  using Part = decltype(dst->re);
  return Convert(reinterpret_cast<const SourcePart*>(src), reinterpret_cast<Part*>(dst), 2 * n);
}

// Products of 32-bit integers and a power of two, rounded once.
struct RoundedProducts {
  ScaledSource<1, double, int32_t> products;
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, size_t i) const {
    return inParts<double>(d, i, [this](auto dPart, size_t k) HWY_ATTR {
      return demoteFloats(dPart, products(hn::Rebind<double, decltype(dPart)>(), k));
    });
  }
};

// With one factor, results are normal numbers or infinite: rounding before the multiplication does
// the same as after it.
template <class S, class T>
VekStatus ConvertScaled(const S* src, T* dst, size_t n, int scaleFactor) {
  if (isOneFactor<T>(scaleFactor)) {
    produce(ScaledSource<1, T, S>(src, scaleFactor), dst, n, areSame(src, dst));
  } else if constexpr (std::numeric_limits<S>::digits > std::numeric_limits<T>::digits) {
    const ScaledSource<1, double, S> products(src, scaleFactor);
    produceCompact(RoundedProducts{products}, dst, n, areSame(src, dst));
  } else {
    produceCompact(ScaledSource<2, T, S>(src, scaleFactor), dst, n, areSame(src, dst));
  }
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
