// The skeleton of reductions: it owns unrolling and tails.
//
// A reduction is a functor that says what becomes of one vector of each source:
//
//   Tag d                     the tag of full vectors, whose lanes count the elements
//   Sum zero()                an accumulator: one vector or a struct of several
//   void add(Sum&, V ...)     takes in one vector of each source; lanes of zeros must not change it
//   void merge(Sum&, Sum)     adds one accumulator to another
//
// Vectors of complex elements are Parts. The elements that a lane takes in depend on their
// positions only, so the result does not depend on the alignment of the sources. With kWays vectors
// of as many bytes on all targets, lane k of the j-th vector takes in the same elements everywhere,
// and lanes that are the same distance apart are merged.
#if defined(VEKS_CORE_REDUCE_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_CORE_REDUCE_INL_H
#undef VEKS_CORE_REDUCE_INL_H
#else
#define VEKS_CORE_REDUCE_INL_H
#endif

#include <hwy/highway.h>

#include <type_traits>

#include "core/targets.h"

// Accumulators belong into registers. EMU128 has none: copies of its loops over lanes would only
// take time to compile.
#undef VEKS_UNROLL_WAYS
#if HWY_TARGET == HWY_EMU128
#define VEKS_UNROLL_WAYS _Pragma("GCC unroll 1")
#else
#define VEKS_UNROLL_WAYS _Pragma("GCC unroll 32")
#endif

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// A vector of `count` elements, less than it has lanes, and zeros. Reads no other element.
template <class D, class T = hn::TFromD<D>>
HWY_INLINE hn::Vec<D> loadPartial(D d, const T* src, size_t count) {
#if HWY_TARGET == HWY_AVX3
  return hn::MaskedLoad(hn::FirstN(d, count), d, src);
#else
  HWY_ALIGN T elements[MaxLanes(d)];
  hn::Store(hn::Zero(d), d, elements);
#pragma GCC unroll 1
  for (size_t i = 0; i < count; ++i) elements[i] = src[i];
  return hn::Load(d, elements);
#endif
}

// The real and the imaginary parts of complex elements, each in its own vector.
template <class V>
struct Parts {
  V re;
  V im;
};

// Full vectors, and vectors of `count` elements and zeros; D has the lanes of the elements.
template <class D, class T>
HWY_INLINE auto loadElements(D /*d*/, const T* src) {
  if constexpr (std::is_arithmetic_v<T>) {
    return hn::LoadU(hn::Rebind<T, D>(), src);
  } else {
    const hn::Rebind<decltype(src->re), D> parts;
    Parts<hn::Vec<decltype(parts)>> z;
    hn::LoadInterleaved2(parts, &src->re, z.re, z.im);
    return z;
  }
}

template <class D, class T>
HWY_INLINE auto loadElements(D d, const T* src, size_t count) {
  if constexpr (std::is_arithmetic_v<T>) {
    return loadPartial(hn::Rebind<T, D>(), src, count);
  } else {
    T elements[MaxLanes(d)] = {};
#pragma GCC unroll 1
    for (size_t i = 0; i < count; ++i) elements[i] = src[i];
    return loadElements(d, static_cast<const T*>(elements));
  }
}

// Takes in n elements of the sources, kWays vectors side by side.
template <size_t kWays, class Reduction, class... T>
HWY_INLINE auto reduce(const Reduction& reduction, size_t n, const T*... src) {
  using D = decltype(reduction.d);
  constexpr size_t kLanes = MaxLanes(D());
  using Sum = decltype(reduction.zero());
  Sum sums[kWays];
  for (size_t k = 0; k < kWays; ++k) sums[k] = reduction.zero();
  size_t i = 0;
  for (; i + kWays * kLanes <= n; i += kWays * kLanes) {
    VEKS_UNROLL_WAYS
    for (size_t k = 0; k < kWays; ++k) {
      reduction.add(sums[k], loadElements(D(), src + i + k * kLanes)...);
    }
  }
  // What is left goes to the sums in turn, at most kWays vectors, the last one with fewer elements.
  const auto addRest = [&](auto... last) HWY_ATTR {
    VEKS_UNROLL_WAYS
    for (size_t k = 0; k < kWays; ++k) {
      if (i + kLanes > n) {
        if (i < n) reduction.add(sums[k], last...);
        break;
      }
      reduction.add(sums[k], loadElements(D(), src + i)...);
      i += kLanes;
    }
  };
  if (i < n) addRest(loadElements(D(), src + (n - n % kLanes), n % kLanes)...);
  for (size_t width = kWays / 2; width > 0; width /= 2) {
    VEKS_UNROLL_WAYS
    for (size_t k = 0; k < width; ++k) reduction.merge(sums[k], sums[k + width]);
  }
  return sums[0];
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
