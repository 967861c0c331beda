// The skeleton of reductions: it owns unrolling and tails.
//
// A reduction is a functor that says what becomes of one vector of each source:
//
//   Tag d                     the tag of full vectors, whose lanes count the elements
//   Sum zero()                an accumulator: one vector or a struct of several
//   void add(Sum&, V ...)     takes in one vector of each source; lanes of zeros must not change it
//   void merge(Sum&, Sum)     adds one accumulator to another
//
// The elements that a lane takes in depend on their positions only, so the result does not depend
// on the alignment of the sources.
#if defined(VEKS_CORE_REDUCE_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_CORE_REDUCE_INL_H
#undef VEKS_CORE_REDUCE_INL_H
#else
#define VEKS_CORE_REDUCE_INL_H
#endif

#include <hwy/highway.h>

#include "core/targets.h"

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
#pragma GCC unroll 16
    for (size_t k = 0; k < kWays; ++k) {
      reduction.add(sums[k], hn::LoadU(hn::Rebind<T, D>(), src + i + k * kLanes)...);
    }
  }
  // What is left goes to the sums in turn, at most kWays vectors, the last one with fewer elements.
#pragma GCC unroll 16
  for (size_t k = 0; k < kWays; ++k) {
    if (i + kLanes > n) break;
    reduction.add(sums[k], hn::LoadU(hn::Rebind<T, D>(), src + i)...);
    i += kLanes;
  }
  if (i < n) reduction.add(sums[kWays - 1], loadPartial(hn::Rebind<T, D>(), src + i, n - i)...);
  for (size_t width = kWays / 2; width > 0; width /= 2) {
#pragma GCC unroll 16
    for (size_t k = 0; k < width; ++k) reduction.merge(sums[k], sums[k + width]);
  }
  return sums[0];
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
