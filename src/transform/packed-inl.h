// Packed spectra of real signals: one or two real values and a run of complex ones.
#if defined(VEKS_TRANSFORM_PACKED_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_TRANSFORM_PACKED_INL_H
#undef VEKS_TRANSFORM_PACKED_INL_H
#else
#define VEKS_TRANSFORM_PACKED_INL_H
#endif

#include "transform/packed_formats.h"
#include "vector/arithmetic/complex-inl.h"
#include "vector/initialisation-inl.h"
#include "vector/pairs-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// Applies real(a, b) to the real values and run(a, b, dst, n) to the n complex ones.
template <class Format, class C, class T, class Real, class Run>
HWY_INLINE VekStatus combinePacked(const T* src1, const T* src2, T* dst, size_t n, const Real& real,
                                   const Run& run) {
  dst[0] = real(src1[0], src2[0]);
  if (n % 2 == 0) {
    const size_t middle = Format::middle(n);
    dst[middle] = real(src1[middle], src2[middle]);
  }
  const size_t first = Format::firstPair(n);
  return run(reinterpret_cast<const C*>(src1 + first), reinterpret_cast<const C*>(src2 + first),
             reinterpret_cast<C*>(dst + first), pairsOf(n));
}

// dst[k] = src1[k] * src2[k]
template <class Format, class C, class T = decltype(C::re)>
VekStatus MulPacked(const T* src1, const T* src2, T* dst, size_t n) {
  return combinePacked<Format, C>(
      src1, src2, dst, n, [](T a, T b) { return a * b; }, MulComplexTwo<C>);
}

template <class Format>
VekStatus MulPackedScaled(const int16_t* src1, const int16_t* src2, int16_t* dst, size_t n,
                          int scaleFactor) {
  const Scale scale = chooseScale<int16_t>(scaleFactor, 2 * kMagnitude<int16_t>);
  return combinePacked<Format, Vek16sc>(
      src1, src2, dst, n,
      [=](int32_t a, int32_t b) { return veks::scaleTo<int16_t>(a * b, scale); },
      [=](const Vek16sc* a, const Vek16sc* b, Vek16sc* products, size_t count) {
        return MapComplexTwoScaled<MulComplex>(a, b, products, count, scaleFactor);
      });
}

template <class T>
struct ProductsWithConjugates {
  const T* src;
  const T* conjugated;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto a = hn::LoadU(d, src + i);
    return addSubtract(d, hn::Mul(a, loadReal(d, conjugated + i)),
                       hn::Mul(swapParts(d, a), loadImaginary(d, conjugated + i)));
  }
};

// srcDst[k] *= conj(src[k])
template <class Format, class C, class T = decltype(C::re)>
VekStatus MulPackedConj(const T* src, T* srcDst, size_t n) {
  return combinePacked<Format, C>(
      srcDst, src, srcDst, n, [](T a, T b) { return a * b; },
      [](const C* a, const C* b, C* dst, size_t count) HWY_ATTR {
        const ProductsWithConjugates<T> body{reinterpret_cast<const T*>(a),
                                             reinterpret_cast<const T*>(b)};
        produce<2>(body, reinterpret_cast<T*>(dst), 2 * count, true);
        return vekStsOk;
      });
}

// The conjugates of complex values in the reverse order.
template <class T>
struct Mirrored {
  const T* end;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto v = hn::LoadU(d, end - i - MaxLanes(D()));
    if constexpr (sizeof(T) == 8) {
      return conjugate(d, reversed<2>(d, v));
    } else {
      const hn::RebindToUnsigned<hn::RepartitionToWide<hn::RebindToSigned<D>>> pairs;
      const auto mirrored = hn::BitCast(d, hn::Reverse(pairs, hn::BitCast(pairs, v)));
      if constexpr (std::is_floating_point_v<T>) {
        return conjugate(d, mirrored);
      } else {
        return hn::OddEven(hn::SaturatedSub(hn::Zero(d), mirrored), mirrored);
      }
    }
  }
};

// dst[n - pairs] .. dst[n - 1] are the conjugates of so many values, the last one first.
template <class C, class T = decltype(C::re)>
HWY_INLINE void mirror(const T* src, C* dst, size_t n, size_t pairs) {
  produce<2>(Mirrored<T>{src + 2 * pairs}, reinterpret_cast<T*>(dst + n - pairs), 2 * pairs, false);
}

// The full spectrum. The packed values may be at its start: the second half, which lies behind
// them, is written first, and then they move up.
template <class Format, class C, class T = decltype(C::re)>
VekStatus ExpandPacked(const T* src, C* dst, size_t n) {
  const size_t pairs = pairsOf(n);
  const T* const first = src + Format::firstPair(n);
  const T zeroth = src[0];
  const T middle = src[n % 2 == 0 ? Format::middle(n) : 0];
  mirror(first, dst, n, pairs);
  Move(reinterpret_cast<const uint8_t*>(first), reinterpret_cast<uint8_t*>(dst + 1),
       pairs * sizeof(C));
  if (n % 2 == 0) dst[n / 2] = {middle, T{0}};
  dst[0] = {zeroth, T{0}};
  return vekStsOk;
}

template <class C, class T = decltype(C::re)>
VekStatus ExpandHalf(const T* src, C* dst, size_t n) {
  mirror(src + 2, dst, n, pairsOf(n));
  return Move(reinterpret_cast<const uint8_t*>(src), reinterpret_cast<uint8_t*>(dst),
              (n / 2 + 1) * sizeof(C));
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
