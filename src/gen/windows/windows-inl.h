// Products of vectors and windows. The weights of the first half are made in blocks and multiplied
// to both halves.
#if defined(VEKS_GEN_WINDOWS_WINDOWS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_GEN_WINDOWS_WINDOWS_INL_H
#undef VEKS_GEN_WINDOWS_WINDOWS_INL_H
#else
#define VEKS_GEN_WINDOWS_WINDOWS_INL_H
#endif

#include <type_traits>

#include "core/convert-inl.h"
#include "core/loops-inl.h"
#include "core/round-inl.h"
#include "gen/windows/kaiser-inl.h"
#include "gen/windows/weights-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// The weights at m = first, first + 1, ...
template <class D, class Weights>
HWY_INLINE hn::Vec<D> weightsFrom(D d, const Weights& weights, size_t first) {
  const auto asDoubles = [&weights](auto dPart, size_t m) HWY_ATTR {
    const hn::Rebind<double, decltype(dPart)> dd;
    static constexpr double kAscending[] = {0, 1, 2, 3, 4, 5, 6, 7};
    const auto from = hn::Set(dd, static_cast<double>(static_cast<int32_t>(m)));
    return weights(dd, hn::Add(from, hn::LoadU(dd, kAscending)));
  };
  if constexpr (std::is_same_v<hn::TFromD<D>, double>) {
    return asDoubles(d, first);
  } else {
    return inParts<double>(d, first, [&](auto dPart, size_t m) HWY_ATTR {
      return demoteFloats(dPart, asDoubles(dPart, m));
    });
  }
}

// Writes at least `count` weights from m = first on, whole vectors, each weight twice for complex
// elements.
template <bool kIsComplex, class W, class Weights>
HWY_NOINLINE void fillWeights(const Weights& weights, size_t first, size_t count, W* to) {
  const hn::ScalableTag<W> d;
  for (size_t i = 0; i < count; i += MaxLanes(d)) {
    const auto w = weightsFrom(d, weights, first + i);
    if constexpr (kIsComplex) {
      hn::StoreInterleaved2(w, w, d, to + 2 * i);
    } else {
      hn::StoreU(w, d, to + i);
    }
  }
}

// The weights of n lanes, in their order or from the last one on.
template <class W, bool kIsMirrored>
struct LoadedWeights {
  const W* weights;
  size_t n;
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, size_t i) const {
    if constexpr (kIsMirrored) {
      return hn::Reverse(d, hn::LoadU(d, weights + (n - MaxLanes(d) - i)));
    } else {
      return hn::LoadU(d, weights + i);
    }
  }
};

template <class T, class Loaded>
struct Weighted {
  const T* src;
  Loaded weights;
  float scale;

  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, size_t i) const {
    if constexpr (std::is_floating_point_v<T>) {
      return hn::Mul(hn::LoadU(d, src + i), weights(d, i));
    } else {
      return narrowed<int32_t>(d, i, [this](auto di, size_t at) HWY_ATTR {
        const hn::RebindToFloat<decltype(di)> df;
        const auto weighted = hn::Mul(loadAsFloats(df, src + at), weights(df, at));
        const auto result = hn::Mul(weighted, hn::Set(df, scale));
        // NaN becomes the least value.
        const auto aboveMin = hn::Max(result, hn::Set(df, -40000.0f));
        return nearestInt32(df, hn::Min(aboveMin, hn::Set(df, 40000.0f)));
      });
    }
  }
};

template <bool kIsMirrored, class T, class W>
HWY_NOINLINE void applyWeights(const T* src, T* dst, size_t n, const W* weights, float scale) {
  using Loaded = LoadedWeights<W, kIsMirrored>;
  produce(Weighted<T, Loaded>{src, Loaded{weights, n}, scale}, dst, n, src == dst);
}

// What lanes an element type consists of.
template <class T>
struct LanesOf {
  using Type = T;
  static constexpr size_t kCount = 1;
};
template <>
struct LanesOf<Vek16sc> {
  using Type = Vek16s;
  static constexpr size_t kCount = 2;
};
template <>
struct LanesOf<Vek32fc> {
  using Type = Vek32f;
  static constexpr size_t kCount = 2;
};
template <>
struct LanesOf<Vek64fc> {
  using Type = Vek64f;
  static constexpr size_t kCount = 2;
};

// Weights are floats but for elements of doubles.
template <class T>
using WeightOf =
    std::conditional_t<std::is_same_v<typename LanesOf<T>::Type, Vek64f>, double, float>;

template <class T, class Weights>
HWY_INLINE void multiplyBy(const Weights& weights, const T* src, T* dst, size_t n, float scale) {
  using W = WeightOf<T>;
  using Lane = typename LanesOf<T>::Type;
  constexpr size_t kPerElement = LanesOf<T>::kCount;
  constexpr size_t kBlock = 512;
  HWY_ALIGN W block[kPerElement * (kBlock + MaxLanes(hn::ScalableTag<W>()))];
  const Lane* const from = reinterpret_cast<const Lane*>(src);
  Lane* const to = reinterpret_cast<Lane*>(dst);
  for (size_t first = 0; first < n - n / 2; first += kBlock) {
    const size_t count = HWY_MIN(kBlock, n - n / 2 - first);
    // An element in the middle has its weight from the first half.
    const size_t mirrored = HWY_MIN(kBlock, n / 2 - first);
    const size_t begin = kPerElement * first;
    const size_t mirroredBegin = kPerElement * (n - first - mirrored);
    fillWeights<kPerElement == 2>(weights, first, count, block);
    applyWeights<false>(from + begin, to + begin, kPerElement * count, block, scale);
    if (mirrored == 0) break;
    applyWeights<true>(from + mirroredBegin, to + mirroredBegin, kPerElement * mirrored, block,
                       scale);
  }
}

// One element with the weight 1.
template <class T>
HWY_INLINE void scaleOne(const T* src, T* dst, float scale) {
  using Lane = typename LanesOf<T>::Type;
  constexpr WeightOf<T> kOnes[] = {1, 1};
  applyWeights<false>(reinterpret_cast<const Lane*>(src), reinterpret_cast<Lane*>(dst),
                      LanesOf<T>::kCount, kOnes, scale);
}

template <class Shape>
inline constexpr bool kEndsAreZero = std::is_same_v<Shape, Bartlett> ||
                                     std::is_same_v<Shape, Hann> || std::is_same_v<Shape, Blackman>;

template <class Shape, class T, class... P>
HWY_INLINE VekStatus applyWindow(const T* src, T* dst, size_t n, float scale, P... parameters) {
  using W = WeightOf<T>;
  if (kEndsAreZero<Shape> && n == 3) {
    scaleOne(src + 1, dst + 1, scale);
    dst[0] = T{};
    dst[2] = T{};
    return vekStsOk;
  }
  if constexpr (std::is_same_v<Shape, Kaiser>) {
    if (n == 1) {
      dst[0] = src[0];
      return vekStsOk;
    }
  }
  if constexpr (std::is_same_v<Shape, Blackman> && std::is_same_v<W, float>) {
    if (!Weights<Blackman, float>::isValidFor(parameters...)) {
      multiplyBy(Weights<Blackman, double>(n, parameters...), src, dst, n, scale);
      return vekStsOk;
    }
  }
  multiplyBy(Weights<Shape, W>(n, parameters...), src, dst, n, scale);
  return vekStsOk;
}

// dst[i] = src[i] * weight i of n
template <class Shape, class T>
VekStatus Window(const T* src, T* dst, size_t n) {
  return applyWindow<Shape>(src, dst, n, 1.0f);
}

template <class Shape, class T>
VekStatus WindowOf(const T* src, T* dst, size_t n, double alpha) {
  return applyWindow<Shape>(src, dst, n, 1.0f, alpha);
}

template <class T>
VekStatus OptimalBlackman(const T* src, T* dst, size_t n) {
  return applyWindow<Blackman>(src, dst, n, 1.0f, double{optimalAlpha(n)});
}

template <class Shape, class T>
VekStatus WindowScaled(const T* src, T* dst, size_t n, double alpha, int scaleFactor) {
  return applyWindow<Shape>(src, dst, n, scaleMultiplier<float>(scaleFactor), alpha);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
