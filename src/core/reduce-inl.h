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

#include <hwy/cache_control.h>
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
  } else if constexpr (HWY_TARGET == HWY_AVX3 && sizeof(T) >= 8 &&
                       sizeof(T) == 2 * sizeof(hn::TFromD<D>)) {
    const hn::Rebind<decltype(src->re), D> parts;
    constexpr size_t kLanes = MaxLanes(parts);
    const auto low = loadPartial(parts, &src->re, HWY_MIN(2 * count, kLanes));
    const auto high = loadPartial(parts, &src->re + kLanes, HWY_MAX(2 * count, kLanes) - kLanes);
    return Parts<hn::Vec<decltype(parts)>>{hn::ConcatEven(parts, high, low),
                                           hn::ConcatOdd(parts, high, low)};
  } else {
    T elements[MaxLanes(d)] = {};
#pragma GCC unroll 1
    for (size_t i = 0; i < count; ++i) elements[i] = src[i];
    return loadElements(d, static_cast<const T*>(elements));
  }
}

// Calls f with 0 .. kCount - 1, constants where there are vector registers: only sums with constant
// indices stay there throughout. For the baseline, copies would take minutes to compile.
template <size_t... k, class F>
HWY_INLINE void callWith(std::index_sequence<k...> /*indices*/, const F& f) {
  (f(std::integral_constant<size_t, k>()), ...);
}
template <size_t kCount, class F>
HWY_INLINE void eachSum(const F& f) {
  if constexpr (HWY_TARGET == HWY_EMU128) {
#pragma GCC unroll 1
    for (size_t k = 0; k < kCount; ++k) f(k);
  } else {
    callWith(std::make_index_sequence<kCount>(), f);
  }
}

// A full vector for each of kCount sums.
template <size_t kCount, class Reduction, class Sum, class... T>
HWY_INLINE void addVectors(const Reduction& reduction, Sum* sums, size_t i, const T*... src) {
  using D = decltype(reduction.d);
  eachSum<kCount>([&](auto k) HWY_ATTR {
    reduction.add(sums[k], loadElements(D(), src + i + k * MaxLanes(D()))...);
  });
}

// What is left goes to the sums from kFirst on in turn, kCount vectors or none, half of that and so
// on, and the last one, with fewer elements, by addLast(sum).
template <size_t kFirst, size_t kCount, class Reduction, class Sum, class AddLast, class... T>
HWY_INLINE void addRest(const Reduction& reduction, Sum* sums, size_t i, size_t n,
                        const AddLast& addLast, const T*... src) {
  constexpr size_t kLanes = MaxLanes(decltype(reduction.d)());
  if constexpr (HWY_TARGET == HWY_EMU128) {
    for (; i + kLanes <= n; i += kLanes) addVectors<1>(reduction, sums++, i, src...);
    if (i < n) addLast(*sums);
  } else if constexpr (kCount == 0) {
    if (i < n) addLast(sums[kFirst]);
  } else if (i + kCount * kLanes <= n) {
    addVectors<kCount>(reduction, sums + kFirst, i, src...);
    addRest<kFirst + kCount, kCount / 2>(reduction, sums, i + kCount * kLanes, n, addLast, src...);
  } else {
    addRest<kFirst, kCount / 2>(reduction, sums, i, n, addLast, src...);
  }
}

// Merges the second half of the sums into the first and so on.
template <size_t kCount, class Reduction, class Sum>
HWY_INLINE void mergeSums(const Reduction& reduction, Sum* sums) {
  if constexpr (kCount > 1) {
    eachSum<kCount / 2>([&](auto k) HWY_ATTR { reduction.merge(sums[k], sums[k + kCount / 2]); });
    mergeSums<kCount / 2>(reduction, sums);
  }
}

// Part of a vector: so many elements, and how many there are from the first of them to the end.
struct Piece {
  size_t count;
  size_t left;
  HWY_INLINE Piece(size_t n) : count(n), left(n) {}  // the whole vector
  HWY_INLINE Piece(size_t n, size_t leftOver) : count(n), left(leftOver) {}
};

// The processor fetches ahead within a page of 4 KiB only and starts anew in the next one. Some
// lines of a page to come, fetched while this one is read, start it in time: worth a tenth of the
// time where vectors are in memory, nothing in the caches.
template <class T>
HWY_INLINE void prefetchPage(const T* src) {
  constexpr size_t kPage = 4096;
  constexpr size_t kLines = 4;
  const size_t offset = reinterpret_cast<uintptr_t>(src) % kPage;
  const size_t line = offset / (kPage / kLines) * 64;
  hwy::Prefetch(reinterpret_cast<const char*>(src) + (4 * kPage - offset + line));
}

// The number of elements of T at the start of a piece that are far enough from the end of the
// vector for prefetchPage().
template <class T>
HWY_INLINE size_t farFromEnd(const Piece& piece) {
  constexpr size_t kNear = (size_t{1} << 20) / sizeof(T);
  return HWY_TARGET == HWY_EMU128 || piece.left < kNear ? 0 : piece.left - kNear;
}

// Takes in a piece of the sources, kWays vectors side by side, a power of two.
template <size_t kWays, class Reduction, class T, class... Others>
HWY_INLINE auto reduce(const Reduction& reduction, Piece piece, const T* src,
                       const Others*... others) {
  using D = decltype(reduction.d);
  constexpr size_t kLanes = MaxLanes(D());
  const size_t n = piece.count;
  const size_t far = farFromEnd<T>(piece);
  using Sum = decltype(reduction.zero());
  Sum sums[kWays];
  eachSum<kWays>([&](auto k) HWY_ATTR { sums[k] = reduction.zero(); });
  size_t i = 0;
  for (; i + kWays * kLanes <= n; i += kWays * kLanes) {
    if (HWY_UNLIKELY(i < far)) {
      prefetchPage(src + i);
      (prefetchPage(others + i), ...);
    }
    addVectors<kWays>(reduction, sums, i, src, others...);
  }
  if (i < n) {
    const auto addTail = [&](auto... last) HWY_ATTR {
      const auto addLast = [&](Sum& sum) HWY_ATTR { reduction.add(sum, last...); };
      addRest<0, kWays / 2>(reduction, sums, i, n, addLast, src, others...);
    };
    const size_t whole = n - n % kLanes;
    addTail(loadElements(D(), src + whole, n - whole),
            loadElements(D(), others + whole, n - whole)...);
  }
  mergeSums<kWays>(reduction, sums);
  return sums[0];
}

// reduce() with fewer ways for short vectors: there is less left over, and less to merge.
template <size_t kWays, class Reduction, class... T>
HWY_INLINE auto reduceShortOrLong(const Reduction& reduction, Piece piece, const T*... src) {
  constexpr size_t kAll = kWays * MaxLanes(decltype(reduction.d)());
  if constexpr (kWays >= 8 && HWY_TARGET != HWY_EMU128) {
    if (piece.count < kAll) return reduce<2>(reduction, piece, src...);
    if (piece.count < 4 * kAll) return reduce<4>(reduction, piece, src...);
  } else if constexpr (kWays >= 4 && HWY_TARGET != HWY_EMU128) {
    if (piece.count < kAll) return reduce<1>(reduction, piece, src...);
  }
  return reduce<kWays>(reduction, piece, src...);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
