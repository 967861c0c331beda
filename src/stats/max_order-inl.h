// The binary order of a vector: how many bits its largest magnitude has.
#if defined(VEKS_STATS_MAX_ORDER_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_MAX_ORDER_INL_H
#undef VEKS_STATS_MAX_ORDER_INL_H
#else
#define VEKS_STATS_MAX_ORDER_INL_H
#endif

#include <cstring>
#include <limits>

#include "stats/magnitudes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// The bits of the magnitudes of floats, as integers: they have the order of the values, NaN is
// above infinity.
template <class T>
struct GreatestBits {
  using Bits = std::conditional_t<sizeof(T) == 4, int32_t, int64_t>;
  template <class D>
  HWY_INLINE auto zero(D /*d*/) const {
    return hn::Zero(hn::Rebind<Bits, D>());
  }
  template <class D, class S, class V>
  HWY_INLINE void add(D /*d*/, S& sum, V v) const {
    sum = hn::Max(sum, hn::BitCast(hn::Rebind<Bits, D>(), hn::Abs(v)));
  }
  template <class D, class S>
  HWY_INLINE void merge(D /*d*/, S& sum, S other) const {
    sum = hn::Max(sum, other);
  }
  template <class D, class S>
  HWY_INLINE Bits result(D /*d*/, S sum) const {
    return acrossLanes(hn::Rebind<Bits, D>(), sum,
                       [](auto, auto a, auto b) HWY_ATTR { return hn::Max(a, b); });
  }
};

inline int bitsOf(uint32_t magnitude) {
  return magnitude == 0 ? 0 : 32 - __builtin_clz(magnitude);
}

template <class T>
VekStatus MaxOrderOfIntegers(const T* src, size_t n, int* order) {
  *order = bitsOf(foldAll<8>(GreatestMagnitude(), n, src));
  return vekStsOk;
}

// k with 2^(k-1) <= x < 2^k from the bits of x.
template <class T, class Bits>
int orderOf(Bits bits) {
  constexpr int kMantissa = std::numeric_limits<T>::digits - 1;
  constexpr int kLeast = std::numeric_limits<T>::min_exponent;
  const int exponent = static_cast<int>(bits >> kMantissa);
  if (exponent > 0) return exponent - 1 + kLeast;
  // Denormal numbers, in units of 2^(kLeast - 1 - kMantissa).
  if (bits == 0) return 0;
  return 64 - __builtin_clzll(static_cast<uint64_t>(bits)) + kLeast - 1 - kMantissa;
}

template <class T>
VekStatus MaxOrderOfFloats(const T* src, size_t n, int* order) {
  const T infinity = std::numeric_limits<T>::infinity();
  typename GreatestBits<T>::Bits limit;
  std::memcpy(&limit, &infinity, sizeof(T));
  auto bits = foldAll<8>(GreatestBits<T>(), n, src);
  const bool hasNan = bits > limit;
  if (hasNan) {
    const T greatest = foldAll<8>(GreatestFloat<T>{0}, n, src);
    std::memcpy(&bits, &greatest, sizeof(T));
  }
  *order = orderOf<T>(bits);
  return hasNan ? vekWrnNanArg : vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
