// Thresholds of complex vectors.
#if defined(VEKS_VECTOR_THRESHOLD_COMPLEX_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_THRESHOLD_COMPLEX_INL_H
#undef VEKS_VECTOR_THRESHOLD_COMPLEX_INL_H
#else
#define VEKS_VECTOR_THRESHOLD_COMPLEX_INL_H
#endif

#include "core/loops-inl.h"
#include "vector/invert-inl.h"
#include "vector/magnitude-inl.h"
#include "vector/pairs-inl.h"
#include "vector/rescale-inl.h"
#include "veks/types.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// f(d, x) for vectors as pairs-inl.h wants them: a single narrow pair comes twice.
template <class F, class T>
struct MappedPairs {
  const T* src;
  F f;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto x = hn::LoadU(d, src + i);
    if constexpr (sizeof(T) < sizeof(double) && MaxLanes(D()) == 2) {
      const hn::Twice<D> twice;
      return hn::LowerHalf(d, f(twice, hn::Combine(twice, x, x)));
    } else {
      return f(d, x);
    }
  }
};

template <class F, class T>
constexpr bool kPrefetchesSource<MappedPairs<F, T>> = true;

#if HWY_TARGET <= HWY_AVX3
// Functions that try two vectors at a time first: f.mapSplit<kMayVanish>(first, second) gives the
// results, or false where it cannot. Parts that vanish, zeros or next to it, take longer: without
// kMayVanish it gives them up.
template <class F>
constexpr bool kIsSplit = false;
template <VekCmpOp op>
constexpr bool kIsSplit<RescaledPairs<op, float>> = true;
template <>
constexpr bool kIsSplit<InvertedPairs<float>> = true;

template <Stores stores, bool kMayVanish, class F>
HWY_INLINE bool mapTwoVectors(const F& f, const float* src, float* dst) {
  const ManyPairs d;
  Floats first = hn::LoadU(d, src);
  Floats second = hn::LoadU(d, src + 16);
  if (HWY_UNLIKELY(!f.template mapSplit<kMayVanish>(first, second))) return false;
  store<stores>(d, first, dst);
  store<stores>(d, second, dst + 16);
  return true;
}

// Where the short way fails. Returns whether parts that vanish are the reason.
template <Stores stores, class F>
HWY_NOINLINE bool mapOtherVectors(const F& f, const float* src, float* dst) {
  const ManyPairs d;
  const Floats least = hn::Min(hn::Abs(hn::LoadU(d, src)), hn::Abs(hn::LoadU(d, src + 16)));
  const bool vanish = !hn::AllFalse(d, hn::Lt(least, floats(RoundedSquares::kLeastPart)));
  if (vanish && mapTwoVectors<stores, true>(f, src, dst)) return true;
  const Floats first = f(d, hn::LoadU(d, src));
  const Floats second = f(d, hn::LoadU(d, src + 16));
  store<stores>(d, first, dst);
  store<stores>(d, second, dst + 16);
  return false;
}

// Floats i .. n - 1, but for the last ones, up to kAhead + 31. Returns where it stopped: without
// kMayVanish, maybe after the first parts that vanish, because others will follow.
template <Stores stores, bool kMayVanish, size_t kAhead, class F>
HWY_INLINE size_t mapRun(const F& f, const float* src, float* dst, size_t i, size_t n) {
  for (; i + kAhead + 32 <= n; i += 32) {
    if (kAhead > 0) {
      __builtin_prefetch(src + i + kAhead, 0, 2);
      __builtin_prefetch(src + i + kAhead + 16, 0, 2);
    }
    if (HWY_LIKELY((mapTwoVectors<stores, kMayVanish>(f, src + i, dst + i)))) continue;
    if (mapOtherVectors<stores>(f, src + i, dst + i) && !kMayVanish) return i + 32;
  }
  return i;
}

template <Stores stores, size_t kAhead, class F>
HWY_INLINE size_t mapRuns(const F& f, const float* src, float* dst, size_t i, size_t n) {
  i = mapRun<stores, false, kAhead>(f, src, dst, i, n);
  return mapRun<stores, true, kAhead>(f, src, dst, i, n);
}

// n floats from a boundary of the destination on, but for the last ones. Returns where it stopped.
template <class F>
HWY_INLINE size_t mapSplitPairs(const F& f, const float* src, float* dst, size_t n, bool inPlace) {
  constexpr size_t kAhead = 80 * 16;
  size_t i = 0;
  if (wantsStreaming<2>(dst, n, inPlace)) {
    i = mapRuns<Stores::kStreaming, kAhead>(f, src, dst, i, n);
    hwy::FlushStream();
  } else if (wantsPrefetching<MappedPairs<F, float>, float>(n, inPlace)) {
    i = mapRuns<Stores::kCached, kAhead>(f, src, dst, i, n);
  }
  return mapRuns<Stores::kCached, 0>(f, src, dst, i, n);
}
#endif

template <class F, class C>
HWY_INLINE VekStatus mapPairs(const F& f, const C* src, C* dst, size_t n) {
  using T = decltype(C::re);
  const T* from = reinterpret_cast<const T*>(src);
  T* to = reinterpret_cast<T*>(dst);
  n *= 2;
#if HWY_TARGET <= HWY_AVX3
  if constexpr (kIsSplit<F>) {
    if (n >= 64 && f.isSplit()) {
      const size_t head = lanesToBoundary<2>(to, 16);
      produce<2>(MappedPairs<F, T>{from, f}, to, head, src == dst);
      const size_t done = head + mapSplitPairs(f, from + head, to + head, n - head, src == dst);
      from += done;
      to += done;
      n -= done;
    }
  }
#endif
  produce<2>(MappedPairs<F, T>{from, f}, to, n, src == dst);
  return vekStsOk;
}

template <VekCmpOp op, class T>
struct ReplacedPairs {
  MagnitudeLevel<T> level;
  T re;
  T im;
  template <class D, class V>
  HWY_INLINE V operator()(D d, V x) const {
    return hn::IfThenElse(level.template compare<op>(d, x), setPairs(d, re, im), x);
  }
};

// dst[i] = src[i] with the magnitude `level` if |src[i]| OP level, else src[i]
template <VekCmpOp op, class C>
VekStatus LimitMagnitude(const C* src, C* dst, size_t n, decltype(C::re) level) {
  return mapPairs(RescaledPairs<op, decltype(C::re)>(level), src, dst, n);
}

// dst[i] = value if |src[i]| OP level, else src[i]
template <VekCmpOp op, class C>
VekStatus ReplaceComplex(const C* src, C* dst, size_t n, decltype(C::re) level, C value) {
  using T = decltype(C::re);
  const ReplacedPairs<op, T> f{MagnitudeLevel<T>(level), value.re, value.im};
  return mapPairs(f, src, dst, n);
}

// dst[i] = 1 / src[i], with a magnitude of src[i] of at least level
template <class C>
VekStatus InvertComplex(const C* src, C* dst, size_t n, decltype(C::re) level) {
  using T = decltype(C::re);
  unsigned divided = 0;
  mapPairs(InvertedPairs<T>(level > 0 ? level : T{0}, &divided), src, dst, n);
  return divided != 0 && !(level > 0) ? vekWrnInvThreshZero : vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
