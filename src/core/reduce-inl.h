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
#include <utility>

#include "core/parts-inl.h"
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
  // By bytes: a complex element may be aligned to less than the integer that it is loaded as.
#pragma GCC unroll 1
  for (size_t i = 0; i < count; ++i) hwy::CopyBytes<sizeof(T)>(src + i, elements + i);
  return hn::Load(d, elements);
#endif
}

// The elements of a source that a full vector of D counts, and the first of them with zeros.
// Overloads serve elements that fill more than a vector.
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

template <class Reduction, class Sum, class... T>
HWY_INLINE void addVector(const Reduction& reduction, Sum& sum, size_t i, const T*... src) {
  reduction.add(sum, loadElements(decltype(reduction.d)(), src + i)...);
}

// A full vector for each of the sums k.
template <size_t... k, class Reduction, class Sum, class... T>
HWY_INLINE void addVectors(std::index_sequence<k...> /*sums*/, const Reduction& reduction,
                           Sum* sums, size_t i, const T*... src) {
  constexpr size_t kLanes = MaxLanes(decltype(reduction.d)());
  (addVector(reduction, sums[k], i + k * kLanes, src...), ...);
}

// What is left goes to the sums from kFirst on in turn, kCount vectors or none, half of that and so
// on, and the last one, with fewer elements, by addLast(sum).
template <size_t kFirst, size_t kCount, class Reduction, class Sum, class AddLast, class... T>
HWY_INLINE void addRest(const Reduction& reduction, Sum* sums, size_t i, size_t n,
                        const AddLast& addLast, const T*... src) {
  constexpr size_t kLanes = MaxLanes(decltype(reduction.d)());
  if constexpr (kCount == 0) {
    if (i < n) addLast(sums[kFirst]);
  } else if (i + kCount * kLanes <= n) {
    addVectors(std::make_index_sequence<kCount>(), reduction, sums + kFirst, i, src...);
    addRest<kFirst + kCount, kCount / 2>(reduction, sums, i + kCount * kLanes, n, addLast, src...);
  } else {
    addRest<kFirst, kCount / 2>(reduction, sums, i, n, addLast, src...);
  }
}

template <size_t... k, class Reduction, class Sum>
HWY_INLINE void clearSums(std::index_sequence<k...> /*sums*/, const Reduction& reduction,
                          Sum* sums) {
  ((sums[k] = reduction.zero()), ...);
}

// Merges the second half of the sums into the first and so on.
template <size_t... k, class Reduction, class Sum>
HWY_INLINE void mergeSums(std::index_sequence<k...> /*half*/, const Reduction& reduction,
                          Sum* sums) {
  (reduction.merge(sums[k], sums[k + sizeof...(k)]), ...);
  if constexpr (sizeof...(k) > 1) {
    mergeSums(std::make_index_sequence<sizeof...(k) / 2>(), reduction, sums);
  }
}

// Takes in n elements of the sources, kWays vectors side by side, a power of two. The sums have
// constant indices, without loops that the compiler would have to unroll first: only so it keeps
// them in registers throughout.
template <size_t kWays, class Reduction, class... T>
HWY_INLINE auto reduce(const Reduction& reduction, size_t n, const T*... src) {
  using D = decltype(reduction.d);
  constexpr size_t kLanes = MaxLanes(D());
  constexpr std::make_index_sequence<kWays> kAll;
  using Sum = decltype(reduction.zero());
  Sum sums[kWays];
  clearSums(kAll, reduction, sums);
  size_t i = 0;
  for (; i + kWays * kLanes <= n; i += kWays * kLanes) {
    addVectors(kAll, reduction, sums, i, src...);
  }
  if (i < n) {
    const auto addTail = [&](auto... last) HWY_ATTR {
      const auto addLast = [&](Sum& sum) HWY_ATTR { reduction.add(sum, last...); };
      addRest<0, kWays / 2>(reduction, sums, i, n, addLast, src...);
    };
    addTail(loadElements(D(), src + (n - n % kLanes), n % kLanes)...);
  }
  if constexpr (kWays > 1) {
    mergeSums(std::make_index_sequence<kWays / 2>(), reduction, sums);
  }
  return sums[0];
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
