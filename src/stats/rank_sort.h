// Sorting of few elements: each goes to the place that counting those before it tells. Nothing
// depends on the processor or, but for the order, on the elements.
#ifndef VEKS_STATS_RANK_SORT_H
#define VEKS_STATS_RANK_SORT_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

#include "core/frame.h"

namespace veks {

enum class SortOrder { kAscending, kDescending };

constexpr int kMostRanked = 12;

// Integers in the order of the elements: -0 before +0, NaN behind all others.
template <SortOrder order, class T>
inline int32_t rankKey(T x) {
  return order == SortOrder::kAscending ? x : ~int32_t{x};
}
template <SortOrder order, class Key, class T>
inline Key floatRankKey(T x) {
  Key bits;
  std::memcpy(&bits, &x, sizeof(bits));
  const Key key = bits < 0 ? bits ^ std::numeric_limits<Key>::max() : bits;
  if (x != x) return std::numeric_limits<Key>::max();
  return order == SortOrder::kAscending ? key : ~key;
}
template <SortOrder order>
inline int32_t rankKey(float x) {
  return floatRankKey<order, int32_t>(x);
}
template <SortOrder order>
inline int64_t rankKey(double x) {
  return floatRankKey<order, int64_t>(x);
}

template <SortOrder order, class T>
inline void sortByRank(T* p, size_t n) {
  using Key = decltype(rankKey<order>(p[0]));
  T elements[kMostRanked];
  Key keys[kMostRanked];
  size_t ranks[kMostRanked];
  for (size_t i = 0; i < n; ++i) {
    const Key key = rankKey<order>(p[i]);
    elements[i] = p[i];
    keys[i] = key;
    size_t rank = 0;
    for (size_t k = 0; k < i; ++k) {
      const size_t isBehind = keys[k] <= key ? 1 : 0;
      rank += isBehind;
      ranks[k] += 1 - isBehind;
    }
    ranks[i] = rank;
  }
  for (size_t i = 0; i < n; ++i) p[ranks[i]] = elements[i];
}

// The frame of sorting: kernel(p, n) sorts longer vectors.
template <SortOrder order, class Kernel, class T>
inline VekStatus sortInPlace(Kernel kernel, T* srcDst, int len) {
  if (srcDst == nullptr || len <= 0 || len > kMostRanked) return mapInPlace(kernel, srcDst, len);
  sortByRank<order>(srcDst, static_cast<size_t>(len));
  return vekStsOk;
}

}  // namespace veks

#endif
