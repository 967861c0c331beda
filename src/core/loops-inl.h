// Loop skeletons: they own unrolling, alignment, tails and the in-place rule.
//
// A skeleton computes vectors with a body, a functor whose call operator body(d, i) gives the
// results of elements i .. i + Lanes(d) - 1 for any vector tag d of up to full width. It never asks
// for an element outside 0 .. n - 1.
#if defined(VEKS_CORE_LOOPS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_CORE_LOOPS_INL_H
#undef VEKS_CORE_LOOPS_INL_H
#else
#define VEKS_CORE_LOOPS_INL_H
#endif

#include <hwy/cache_control.h>
#include <hwy/highway.h>

#include <type_traits>

#include "core/targets.h"
#include "veks/status.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// Lanes before the first boundary of `lanes` lanes at or after p, less than `lanes`, whole groups.
// A pointer that is aligned to less than a group gets some valid answer.
template <size_t kGroup, class T>
HWY_INLINE size_t lanesToBoundary(const T* p, size_t lanes) {
  const uintptr_t group = reinterpret_cast<uintptr_t>(p) / (kGroup * sizeof(T));
  return kGroup * ((0 - group) % (lanes / kGroup));
}

// n elements, at least one vector of tag d and at most two: two vectors that overlap, both computed
// before the first store.
template <class D, class T, class Body>
HWY_INLINE void produceTwo(D d, const Body& body, T* dst, size_t n) {
  const size_t second = n - MaxLanes(D());
  const auto first = body(d, 0);
  const auto last = body(d, second);
  hn::StoreU(first, d, dst);
  hn::StoreU(last, d, dst + second);
}

// n elements, at most two vectors of tag d: two of them or of a shorter kind. The hint spares few
// elements the taken branches, which are most of their time.
template <size_t kGroup, class D, class T, class Body>
HWY_INLINE void produceShort(D d, const Body& body, T* dst, size_t n) {
  constexpr size_t kLanes = MaxLanes(D());
  if (HWY_UNLIKELY(n >= kLanes)) {
    produceTwo(d, body, dst, n);
  } else if constexpr (kLanes > kGroup) {
    produceShort<kGroup>(hn::Half<D>(), body, dst, n);
  }
}

// Whether quotients take the time of the whole body. Those of half vectors take half of it, and the
// processor does not lower its clock for them as for vectors of 64 bytes.
template <class Body>
constexpr bool kDivides = false;

// The vectors that produce() asks a body for: full ones, unless a body specialises it.
template <class Body, class T>
struct ProducedTag {
  using Full = hn::ScalableTag<T>;
  static constexpr bool kHalf = kDivides<Body> && sizeof(T) * MaxLanes(Full()) == 64;
  using Type = std::conditional_t<kHalf, hn::Half<Full>, Full>;
};

enum class Stores { kCached, kStreaming };

template <Stores stores, class D, class V, class T>
HWY_INLINE void store(D d, V v, T* dst) {
  if constexpr (stores == Stores::kStreaming) {
    hn::Stream(v, d, dst);
  } else {
    hn::StoreU(v, d, dst);
  }
}

// Whether n elements from dst on are better written past the caches. Not so in place: what is read
// there is in the caches already. EMU128 has no such stores.
template <size_t kGroup, class T>
HWY_INLINE bool wantsStreaming(const T* dst, size_t n, bool inPlace) {
  if (HWY_TARGET == HWY_EMU128) return false;
  const bool aligned = reinterpret_cast<uintptr_t>(dst) % (kGroup * sizeof(T)) == 0;
  return HWY_UNLIKELY(n * sizeof(T) >= streamingBytes) && !inPlace && aligned;
}

// What a body reads besides the destination competes with what is prefetched for that.
template <class Body>
constexpr bool kReadsTwoVectors = false;

// Vectors in place that no cache holds: their lines are asked for more than a page before they are
// needed, because the processor's own prefetching stops at the end of a page.
template <class Body, class T>
HWY_INLINE bool wantsPrefetching(size_t n, bool inPlace) {
  if (HWY_TARGET == HWY_EMU128 || kReadsTwoVectors<Body>) return false;
  return HWY_UNLIKELY(n * sizeof(T) >= streamingBytes) && inPlace;
}

// Bodies of so many instructions that few lines of their source, body.src, are on the way at a time
// by themselves: these are asked for ahead of streaming stores too, which saves more than half the
// time.
template <class Body>
constexpr bool kPrefetchesSource = false;

// dst[k] = body for k = i .. n - 1, but for the last ones, of which there is no line of src ahead.
// Returns where it stopped.
template <Stores stores, class T, class Body>
HWY_INLINE size_t producePrefetched(const Body& body, const T* src, T* dst, size_t i, size_t n) {
  const typename ProducedTag<Body, T>::Type d;
  constexpr size_t kLanes = MaxLanes(d);
  constexpr size_t kLine = HWY_MAX(64 / sizeof(T), kLanes);
  constexpr size_t kAhead = 80 * kLine;
  for (; i + kAhead < n; i += kLine) {
    __builtin_prefetch(src + i + kAhead, 0, 2);
    for (size_t k = i; k < i + kLine; k += kLanes) store<stores>(d, body(d, k), dst + k);
  }
  return i;
}

// dst[k] = body for k = i .. n - 1, in steps of several vectors. Returns where it stopped.
template <size_t kVectors, Stores stores, class D, class T, class Body>
HWY_INLINE size_t produceSteps(D d, const Body& body, T* dst, size_t i, size_t n) {
  constexpr size_t kLanes = MaxLanes(D());
  for (; i + kVectors * kLanes <= n; i += kVectors * kLanes) {
#pragma GCC unroll 4
    for (size_t k = 0; k < kVectors; ++k) {
      store<stores>(d, body(d, i + k * kLanes), dst + i + k * kLanes);
    }
  }
  return i;
}

// From this many bytes on, steps from two vectors to a third are short. The processor prefetches a
// step ahead of every load, past the ends too, which drives out what is used next where three
// vectors just fill the L1 cache of 48 KiB. A tenth is lost with four vectors of 64 bytes. Bodies
// of one source, in place or of many instructions lose by short steps instead.
constexpr size_t kThirdOfCache = size_t{15} << 10;

// dst[i] = body for i = 0 .. n - 1, in ascending order, n more than two vectors. The body may read
// dst, at the same positions or at later ones: a vector that overlaps others is computed before
// they are stored. Each vector of the loop is stored before the next one is loaded, which is faster
// than in groups.
template <Stores stores, size_t kGroup, class T, class Body>
HWY_INLINE void produceLoop(const Body& body, T* dst, size_t n, bool inPlace) {
  const typename ProducedTag<Body, T>::Type d;
  constexpr size_t kLanes = MaxLanes(d);
  size_t i = lanesToBoundary<kGroup>(dst, kLanes);
  const auto first = body(d, 0);
  const auto aligned = body(d, i);
  const auto last = body(d, n - kLanes);
  hn::StoreU(first, d, dst);
  hn::StoreU(aligned, d, dst + i);
  i += kLanes;
  if constexpr (stores == Stores::kCached) {
    if (wantsPrefetching<Body, T>(n, inPlace)) {
      i = producePrefetched<stores>(body, dst, dst, i, n);
    }
  } else if constexpr (kPrefetchesSource<Body>) {
    i = producePrefetched<stores>(body, body.src, dst, i, n);
  }
  if constexpr (kReadsTwoVectors<Body> && kLanes * sizeof(T) == 64) {
    if (HWY_UNLIKELY(!inPlace && n * sizeof(T) >= kThirdOfCache)) {
      i = produceSteps<2, stores>(d, body, dst, i, n);
    }
  }
  i = produceSteps<4, stores>(d, body, dst, i, n);
  for (; i + kLanes < n; i += kLanes) hn::StoreU(body(d, i), d, dst + i);
  if constexpr (stores == Stores::kStreaming) hwy::FlushStream();
  hn::StoreU(last, d, dst + n - kLanes);
}

// The skeleton of everything that computes a vector from vectors at the same positions. Elements of
// several lanes are not split: they are groups, and n and all positions are multiples of kGroup.
template <size_t kGroup = 1, class T, class Body>
HWY_INLINE void produce(const Body& body, T* dst, size_t n, bool inPlace) {
  const typename ProducedTag<Body, T>::Type d;
  // One vector is two halves, of which fewer cross a cache line and which a following call gets
  // back sooner. The hints lay that out without a taken branch: there it counts.
  if (HWY_LIKELY(n <= 2 * MaxLanes(d))) {
    if constexpr (MaxLanes(d) == kGroup) {
      if (n > 0) produceTwo(d, body, dst, n);
    } else {
      const hn::Half<decltype(d)> half;
      if (HWY_UNLIKELY(n > MaxLanes(d))) return produceTwo(d, body, dst, n);
      if (HWY_LIKELY(n >= MaxLanes(half))) return produceTwo(half, body, dst, n);
      if constexpr (MaxLanes(half) > kGroup) {
        produceShort<kGroup>(hn::Half<decltype(half)>(), body, dst, n);
      }
    }
    return;
  }
  if (wantsStreaming<kGroup>(dst, n, inPlace)) {
    return produceLoop<Stores::kStreaming, kGroup>(body, dst, n, inPlace);
  }
  produceLoop<Stores::kCached, kGroup>(body, dst, n, inPlace);
}

// The same for bodies of many instructions, of which it makes few copies: next to their time, that
// of the loop around them is small.
template <size_t kGroup, class D, class T, class Body>
HWY_INLINE void produceCompactShort(D d, const Body& body, T* dst, size_t n) {
  constexpr size_t kLanes = MaxLanes(D());
  if (n >= kLanes) {
    hn::Vec<D> results[2];
    const size_t positions[2] = {0, n - kLanes};
#pragma GCC unroll 1
    for (size_t k = 0; k < 2; ++k) results[k] = body(d, positions[k]);
    hn::StoreU(results[0], d, dst);
    hn::StoreU(results[1], d, dst + n - kLanes);
  } else if constexpr (kLanes > kGroup) {
    produceCompactShort<kGroup>(hn::Half<D>(), body, dst, n);
  }
}

// Where the body takes far longer than memory, as for quotients of short integers, stores past the
// caches cost time.
template <size_t kGroup = 1, bool kIsSlow = false, class T, class Body>
HWY_INLINE void produceCompact(const Body& body, T* dst, size_t n, bool inPlace) {
  const hn::ScalableTag<T> d;
  constexpr size_t kLanes = MaxLanes(d);
  if constexpr (kLanes > kGroup) {
    if (n < kLanes) {
      return produceCompactShort<kGroup>(hn::Half<decltype(d)>(), body, dst, n);
    }
  }
  const auto last = body(d, n - kLanes);
  hn::StoreU(body(d, 0), d, dst);
  // In place, no vector but the last may overlap another.
  const size_t boundary = lanesToBoundary<kGroup>(dst, kLanes);
  size_t i = inPlace || boundary == 0 ? kLanes : boundary;
  if (!kIsSlow && wantsStreaming<kGroup>(dst, n, inPlace)) {
    for (; i + kLanes < n; i += kLanes) hn::Stream(body(d, i), d, dst + i);
    hwy::FlushStream();
  } else {
    if (!kIsSlow && wantsPrefetching<Body, T>(n, inPlace)) {
      i = producePrefetched<Stores::kCached>(body, dst, dst, i, n);
    }
    for (; i + kLanes < n; i += kLanes) hn::StoreU(body(d, i), d, dst + i);
  }
  hn::StoreU(last, d, dst + n - kLanes);
}

// What an operation tag does to vectors: Operation<Op>()(d, v ...) gives the vector of results. The
// families specialise it for their tags.
template <class Op>
struct Operation;

// Bodies that apply a function f(d, v ...) to vectors of their sources.
template <class F, class T>
struct OneSource {
  const T* src;
  F f = {};
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return f(d, hn::LoadU(d, src + i));
  }
};

template <class F, class T>
struct TwoSources {
  const T* src1;
  const T* src2;
  F f = {};
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return f(d, hn::LoadU(d, src1 + i), hn::LoadU(d, src2 + i));
  }
};

template <class F, class T>
constexpr bool kReadsTwoVectors<TwoSources<F, T>> = true;

template <class F, class T>
struct SourceAndConstant {
  const T* src;
  T val;
  F f = {};
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return f(d, hn::LoadU(d, src + i), hn::Set(d, val));
  }
};

template <class F, class T>
struct TwoSourcesAndSum {
  const T* src1;
  const T* src2;
  const T* sum;
  F f = {};
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return f(d, hn::LoadU(d, src1 + i), hn::LoadU(d, src2 + i), hn::LoadU(d, sum + i));
  }
};

// The real and the imaginary part of the constant in turn.
template <class F, class T>
struct SourceAndComplexConstant {
  const T* src;
  T re;
  T im;
  F f = {};
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto val = hn::OddEven(hn::Set(d, im), hn::Set(d, re));
    return f(d, hn::LoadU(d, src + i), val);
  }
};

// dst[i] = Op(src[i])
template <class Op, class T>
VekStatus MapOne(const T* src, T* dst, size_t n) {
  produce(OneSource<Operation<Op>, T>{src}, dst, n, src == dst);
  return vekStsOk;
}

// dst[i] = Op(src1[i], src2[i])
template <class Op, class T>
VekStatus MapTwo(const T* src1, const T* src2, T* dst, size_t n) {
  produce(TwoSources<Operation<Op>, T>{src1, src2}, dst, n, src1 == dst || src2 == dst);
  return vekStsOk;
}

// dst[i] = Op(src[i], val)
template <class Op, class T>
VekStatus MapConstant(const T* src, T val, T* dst, size_t n) {
  produce(SourceAndConstant<Operation<Op>, T>{src, val}, dst, n, src == dst);
  return vekStsOk;
}

// dst[i] = Op(src[i], val), n complex values
template <class Op, class C>
VekStatus MapComplexConstant(const C* src, C val, C* dst, size_t n) {
  using T = decltype(val.re);
  const SourceAndComplexConstant<Operation<Op>, T> body{reinterpret_cast<const T*>(src), val.re,
                                                        val.im};
  produce<2>(body, reinterpret_cast<T*>(dst), 2 * n, src == dst);
  return vekStsOk;
}

// srcDst[i] = Op(src1[i], src2[i], srcDst[i])
template <class Op, class T>
VekStatus Accumulate(const T* src1, const T* src2, T* srcDst, size_t n) {
  produce(TwoSourcesAndSum<Operation<Op>, T>{src1, src2, srcDst}, srcDst, n, true);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
