// Sources as lanes of another type, and their products with powers of two.
#if defined(VEKS_VECTOR_CONVERSION_SOURCES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_CONVERSION_SOURCES_INL_H
#undef VEKS_VECTOR_CONVERSION_SOURCES_INL_H
#else
#define VEKS_VECTOR_CONVERSION_SOURCES_INL_H
#endif

#include "core/convert-inl.h"
#include "core/loops-inl.h"
#include "core/round-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// Loads lanes of S as lanes of d: exactly, or rounded to the nearest floating-point numbers.
template <class D, class S>
HWY_INLINE hn::Vec<D> loadAs(D d, const S* src) {
  using T = hn::TFromD<D>;
  const hn::Rebind<S, D> ds;
  if constexpr (std::is_same_v<S, T>) {
    return hn::LoadU(d, src);
  } else if constexpr (std::is_same_v<S, double>) {
    return inParts<double>(d, 0, [src](auto dPart, size_t k) HWY_ATTR {
      return demoteFloats(dPart, hn::LoadU(hn::Rebind<double, decltype(dPart)>(), src + k));
    });
  } else if constexpr (std::is_same_v<S, int64_t>) {
    return hn::ConvertTo(d, hn::LoadU(ds, src));
  } else if constexpr (std::is_floating_point_v<T> && !std::is_floating_point_v<S>) {
    return loadAsFloats(d, src);
  } else {
    return hn::PromoteTo(d, hn::LoadU(ds, src));
  }
}

// Whether 2^-scaleFactor is a normal number.
template <class F>
HWY_INLINE bool isOneFactor(int scaleFactor) {
  constexpr int kMost = std::numeric_limits<F>::max_exponent - 2;
  return scaleFactor >= -kMost && scaleFactor <= kMost;
}

// Values times 2^-scaleFactor as lanes of F, with one factor or two. The first product of two is
// exact, or else so far beyond the range of F that the second one saturates it or leaves nothing of
// it. What 2^-scaleFactor exceeds the two factors by would not change any result either.
template <size_t kFactors, class F, class S>
class ScaledSource {
 public:
  ScaledSource(const S* src, int scaleFactor) : src_(src) {
    const int first = kFactors == 1 ? scaleFactor : scaleFactor / 2;
    factor1_ = scaleMultiplier<F>(first);
    factor2_ = scaleMultiplier<F>(scaleFactor - first);
  }

  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, size_t i) const {
    const auto product = hn::Mul(loadAs(d, src_ + i), hn::Set(d, factor1_));
    return kFactors == 1 ? product : hn::Mul(product, hn::Set(d, factor2_));
  }

 private:
  const S* src_;
  F factor1_;
  F factor2_;
};

// A conversion in place: elements of the same size at the same address.
template <class S, class T>
HWY_INLINE bool areSame(const S* src, const T* dst) {
  return static_cast<const void*>(src) == static_cast<const void*>(dst);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
