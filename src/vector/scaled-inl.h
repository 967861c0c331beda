// Kernels of operations whose integer results follow the scale-factor rule.
//
// ScaledOperation<Op>()(ScalePathTag<path>(), d, bits, v ...) gives the scaled results. It has
// kMagnitudeOf<T>, the magnitude bits of the exact results, and kIsLight, whether the path
// kSaturate takes so few instructions that the loop around them counts.
#if defined(VEKS_VECTOR_SCALED_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_SCALED_INL_H
#undef VEKS_VECTOR_SCALED_INL_H
#else
#define VEKS_VECTOR_SCALED_INL_H
#endif

#include "core/loops-inl.h"
#include "core/scale-inl.h"
#include "core/widen-inl.h"
#include "vector/fill-inl.h"
#include "vector/operations.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <class Op>
struct ScaledOperation;

// A scaled operation as a function of vectors.
template <class Op, ScalePath path>
struct Scaled {
  static constexpr bool kIsLight = path == ScalePath::kSaturate && ScaledOperation<Op>::kIsLight;
  int bits;
  template <class D, class... V>
  HWY_INLINE hn::Vec<D> operator()(D d, V... v) const {
    return ScaledOperation<Op>()(ScalePathTag<path>(), d, bits, v...);
  }
};

template <class T>
HWY_NOINLINE VekStatus fillZero(T* dst, size_t n) {
  fill(uint8_t{0}, reinterpret_cast<uint8_t*>(dst), n * sizeof(T));
  return vekStsOk;
}

// Calls produceResults(f) with the operation scaled as a function f, unless every result is 0.
template <class Op, class T, class Produce>
HWY_INLINE VekStatus withScaled(int scaleFactor, T* dst, size_t n, const Produce& produceResults) {
  const Scale scale = chooseScale<T>(scaleFactor, ScaledOperation<Op>::template kMagnitudeOf<T>);
  switch (scale.path) {
    case ScalePath::kSaturate:
      produceResults(Scaled<Op, ScalePath::kSaturate>{0});
      return vekStsOk;
    case ScalePath::kHalve:
      produceResults(Scaled<Op, ScalePath::kHalve>{1});
      return vekStsOk;
    case ScalePath::kRound:
      produceResults(Scaled<Op, ScalePath::kRound>{scale.bits});
      return vekStsOk;
    case ScalePath::kShiftLeft:
      produceResults(Scaled<Op, ScalePath::kShiftLeft>{scale.bits});
      return vekStsOk;
    case ScalePath::kZero:
      break;
  }
  return fillZero(dst, n);
}

template <size_t kGroup = 1, class F, class T, class Body>
HWY_INLINE void produceScaled(F /*f*/, const Body& body, T* dst, size_t n, bool inPlace) {
  if constexpr (F::kIsLight) {
    produce<kGroup>(body, dst, n, inPlace);
  } else {
    produceCompact<kGroup>(body, dst, n, inPlace);
  }
}

// dst[i] = Op(src[i])
template <class Op, class T>
VekStatus MapOneScaled(const T* src, T* dst, size_t n, int scaleFactor) {
  return withScaled<Op>(scaleFactor, dst, n, [=](auto f) HWY_ATTR {
    produceScaled(f, OneSource<decltype(f), T>{src, f}, dst, n, src == dst);
  });
}

// dst[i] = Op(src1[i], src2[i])
template <class Op, class T>
VekStatus MapTwoScaled(const T* src1, const T* src2, T* dst, size_t n, int scaleFactor) {
  return withScaled<Op>(scaleFactor, dst, n, [=](auto f) HWY_ATTR {
    produceScaled(f, TwoSources<decltype(f), T>{src1, src2, f}, dst, n, src1 == dst || src2 == dst);
  });
}

// dst[i] = Op(src[i], val)
template <class Op, class T>
VekStatus MapConstantScaled(const T* src, T val, T* dst, size_t n, int scaleFactor) {
  return withScaled<Op>(scaleFactor, dst, n, [=](auto f) HWY_ATTR {
    produceScaled(f, SourceAndConstant<decltype(f), T>{src, val, f}, dst, n, src == dst);
  });
}

// srcDst[i] = Op(src1[i], src2[i], srcDst[i])
template <class Op, class T>
VekStatus AccumulateScaled(const T* src1, const T* src2, T* srcDst, size_t n, int scaleFactor) {
  return withScaled<Op>(scaleFactor, srcDst, n, [=](auto f) HWY_ATTR {
    produceScaled(f, TwoSourcesAndSum<decltype(f), T>{src1, src2, srcDst, f}, srcDst, n, true);
  });
}

// The same for n complex values. An operation that treats all parts alike is that on 2 n of them.
template <class Op, class C>
VekStatus MapTwoPartsScaled(const C* src1, const C* src2, C* dst, size_t n, int scaleFactor) {
  using T = decltype(dst->re);
  return MapTwoScaled<Op>(reinterpret_cast<const T*>(src1), reinterpret_cast<const T*>(src2),
                          reinterpret_cast<T*>(dst), 2 * n, scaleFactor);
}

template <class Op, class C>
VekStatus MapComplexOneScaled(const C* src, C* dst, size_t n, int scaleFactor) {
  using T = decltype(dst->re);
  T* const parts = reinterpret_cast<T*>(dst);
  return withScaled<Op>(scaleFactor, parts, 2 * n, [=](auto f) HWY_ATTR {
    const OneSource<decltype(f), T> body{reinterpret_cast<const T*>(src), f};
    produceScaled<2>(f, body, parts, 2 * n, src == dst);
  });
}

template <class Op, class C>
VekStatus MapComplexTwoScaled(const C* src1, const C* src2, C* dst, size_t n, int scaleFactor) {
  using T = decltype(dst->re);
  T* const parts = reinterpret_cast<T*>(dst);
  return withScaled<Op>(scaleFactor, parts, 2 * n, [=](auto f) HWY_ATTR {
    const TwoSources<decltype(f), T> body{reinterpret_cast<const T*>(src1),
                                          reinterpret_cast<const T*>(src2), f};
    produceScaled<2>(f, body, parts, 2 * n, src1 == dst || src2 == dst);
  });
}

template <class Op, class C>
VekStatus MapComplexConstantScaled(const C* src, C val, C* dst, size_t n, int scaleFactor) {
  using T = decltype(dst->re);
  T* const parts = reinterpret_cast<T*>(dst);
  return withScaled<Op>(scaleFactor, parts, 2 * n, [=](auto f) HWY_ATTR {
    const SourceAndComplexConstant<decltype(f), T> body{reinterpret_cast<const T*>(src), val.re,
                                                        val.im, f};
    produceScaled<2>(f, body, parts, 2 * n, src == dst);
  });
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
