// How far sums in another order may be off, where nothing cancels much.
#ifndef VEKS_BENCH_STATS_SUM_AGREEMENT_H
#define VEKS_BENCH_STATS_SUM_AGREEMENT_H

#include <type_traits>
#include <utility>

#include "stats/reductions.h"

namespace veks::bench {

// Long loops in single precision lose the most.
template <class R>
Peer reordered(Peer peer) {
  constexpr bool kSingle = std::is_same_v<R, Vek32f> || std::is_same_v<R, Vek32fc>;
  return approximate(withinRelative<R>(kSingle ? 1e-2 : 1e-9), std::move(peer));
}

// Terms that are not negative.
template <class T>
Content positive() {
  constexpr size_t kPart = std::is_same_v<T, Vek64f> || std::is_same_v<T, Vek64fc> ? 8 : 4;
  const Pattern pattern = {~bitOfEach(kPart, 8 * kPart - 1), 0};
  return {pattern, pattern, {}};
}

}  // namespace veks::bench

#endif
