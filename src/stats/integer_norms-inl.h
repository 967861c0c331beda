// Norms of 16-bit integers: exact integers, rounded or scaled once.
#if defined(VEKS_STATS_INTEGER_NORMS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_INTEGER_NORMS_INL_H
#undef VEKS_STATS_INTEGER_NORMS_INL_H
#else
#define VEKS_STATS_INTEGER_NORMS_INL_H
#endif

#include <algorithm>

#include "core/reduce-inl.h"
#include "core/scale.h"
#include "core/widen-inl.h"
#include "stats/magnitudes-inl.h"
#include "stats/nearest_root.h"
#include "stats/norm_tags.h"
#include "vector/pairs-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// The sums of the pairs of lanes.
template <class D32, class V>
HWY_INLINE auto pairSums(D32 d32, V v) {
  if constexpr (HWY_TARGET == HWY_EMU128) {
    const auto odd = hn::ShiftRight<16>(hn::BitCast(d32, v));
    return hn::Add(hn::ShiftRight<16>(hn::ShiftLeft<16>(hn::BitCast(d32, v))), odd);
  } else {
    auto unused = hn::Zero(d32);
    const auto one = hn::Set(hn::RepartitionToNarrow<D32>(), 1);
    return hn::ReorderWidenMulAccumulate(d32, v, one, hn::Zero(d32), unused);
  }
}

// The sum of the magnitudes or differences, negated because that of -32768 fits then.
struct MagnitudeSum {
  hn::ScalableTag<int16_t> d;
  hn::ScalableTag<int32_t> d32;

  HWY_INLINE auto zero() const {
    return hn::Zero(d32);
  }
  template <class S, class V>
  HWY_INLINE void add(S& sum, V v) const {
    sum = hn::Add(sum, pairSums(d32, hn::Min(v, hn::Neg(v))));
  }
  template <class S, class V>
  HWY_INLINE void add(S& sum, V a, V b) const {
    sum = hn::Add(sum, hn::Sub(pairSums(d32, hn::Min(a, b)), pairSums(d32, hn::Max(a, b))));
  }
  template <class S>
  HWY_INLINE void merge(S& sum, S other) const {
    sum = hn::Add(sum, other);
  }
};

// The sum of 32-bit lanes in lanes of 64 bits: of whole 64-bit lanes modulo 2^64, and of their
// upper halves, which tell what belongs to the lower ones.
template <class V>
struct LongSum {
  V whole;
  V upper;
};

struct SquareSum {
  hn::ScalableTag<int16_t> d;
  hn::ScalableTag<uint64_t> d64;

  HWY_INLINE auto zero() const {
    return LongSum<hn::Vec<decltype(d64)>>{hn::Zero(d64), hn::Zero(d64)};
  }
  template <class S, class V32>
  HWY_INLINE void addLanes(S& sum, V32 lanes) const {
    const auto whole = hn::BitCast(d64, lanes);
    sum.whole = hn::Add(sum.whole, whole);
    sum.upper = hn::Add(sum.upper, hn::ShiftRight<32>(whole));
  }
  template <class S, class V>
  HWY_INLINE void add(S& sum, V v) const {
    addLanes(sum, squares16(hn::ScalableTag<int32_t>(), v));
  }
  template <class S, class V>
  HWY_INLINE void add(S& sum, V a, V b) const {
    const auto magnitude = unsignedMagnitude(d, a, b);
    const auto squares =
        Widening<uint16_t>::multiply(hn::ScalableTag<uint16_t>(), magnitude, magnitude);
    addLanes(sum, squares.first);
    addLanes(sum, squares.second);
  }
  template <class S>
  HWY_INLINE void merge(S& sum, const S& other) const {
    sum.whole = hn::Add(sum.whole, other.whole);
    sum.upper = hn::Add(sum.upper, other.upper);
  }
};

template <class D, class V>
HWY_INLINE auto sumAcrossLanes(D d, V v) {
  return acrossLanes(d, v, [](auto, auto a, auto b) HWY_ATTR { return hn::Add(a, b); });
}

// Magnitudes of 2^16 elements sum up to less than 2^32.
template <class... T>
HWY_INLINE uint64_t exactNorm(L1 /*norm*/, size_t n, const T*... src) {
  constexpr size_t kBlock = size_t{1} << 16;
  const MagnitudeSum reduction = {};
  uint64_t total = 0;
  for (size_t i = 0; i < n; i += kBlock) {
    const auto sum = reduce<4>(reduction, {std::min(kBlock, n - i), n - i}, (src + i)...);
    const hn::ScalableTag<uint32_t> du;
    total += 0 - sumAcrossLanes(du, hn::BitCast(du, sum));
  }
  return total;
}

template <class... T>
HWY_INLINE uint64_t sumOfSquares(size_t n, const T*... src) {
  const SquareSum reduction = {};
  const auto sum = reduce<4>(reduction, n, src...);
  const uint64_t upper = sumAcrossLanes(reduction.d64, sum.upper);
  return sumAcrossLanes(reduction.d64, sum.whole) - (upper << 32) + upper;
}

template <class... T>
HWY_INLINE uint32_t exactNorm(Inf /*norm*/, size_t n, const T*... src) {
  return foldAll<8>(GreatestMagnitude(), n, src...);
}

template <class N, class... T>
HWY_INLINE float integerNorm(N norm, size_t n, const T*... src) {
  return static_cast<float>(static_cast<int64_t>(exactNorm(norm, n, src...)));
}
template <class... T>
HWY_INLINE float integerNorm(L2 /*norm*/, size_t n, const T*... src) {
  return nearestRoot(sumOfSquares(n, src...));
}

// The magnitude bits of a norm of up to 2^31 elements.
constexpr int normBits(Inf /*norm*/) {
  return 16;
}
constexpr int normBits(L1 /*norm*/) {
  return 16 + 31;
}

template <class N, class... T>
HWY_INLINE int32_t scaledNorm(N norm, int scaleFactor, size_t n, const T*... src) {
  const auto exact = static_cast<int64_t>(exactNorm(norm, n, src...));
  return scaleTo<int32_t>(exact, chooseScale<int32_t>(scaleFactor, normBits(norm)));
}
template <class... T>
HWY_INLINE int32_t scaledNorm(L2 /*norm*/, int scaleFactor, size_t n, const T*... src) {
  return scaledRoot<int32_t>(static_cast<int64_t>(sumOfSquares(n, src...)), scaleFactor);
}

template <class N, class T>
VekStatus ScaledNorm(const T* src, size_t n, int32_t* norm, int scaleFactor) {
  *norm = scaledNorm(N(), scaleFactor, n, src);
  return vekStsOk;
}

template <class N, class T>
VekStatus ScaledNormOfDifference(const T* src1, const T* src2, size_t n, int32_t* norm,
                                 int scaleFactor) {
  *norm = scaledNorm(N(), scaleFactor, n, src1, src2);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
