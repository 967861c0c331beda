// Sums and differences. Those of integers saturate or keep their carry until they are scaled.
#if defined(VEKS_VECTOR_ARITHMETIC_SUMS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_ARITHMETIC_SUMS_INL_H
#undef VEKS_VECTOR_ARITHMETIC_SUMS_INL_H
#else
#define VEKS_VECTOR_ARITHMETIC_SUMS_INL_H
#endif

#include "core/loops-inl.h"
#include "vector/operations.h"
#include "vector/scaled-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <>
struct Operation<Add> {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    if constexpr (std::is_floating_point_v<hn::TFromD<D>>) {
      return hn::Add(a, b);
    } else {
      return saturatedSum(d, a, b);
    }
  }
};

template <>
struct Operation<Sub> {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    if constexpr (std::is_floating_point_v<hn::TFromD<D>>) {
      return hn::Sub(b, a);
    } else {
      return saturatedDifference(d, a, b);
    }
  }
};

template <>
struct Operation<SubFrom> {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V a, V b) const {
    return Operation<Sub>()(d, b, a);
  }
};

// Sums have one bit more than their operands. Left shifts and sums that saturate first give the
// same.
template <>
struct ScaledOperation<Add> {
  static constexpr bool kIsLight = true;
  template <class T>
  static constexpr int kMagnitudeOf = kMagnitude<T> + 1;

  template <ScalePath path, class D, class V>
  HWY_INLINE V operator()(ScalePathTag<path> /*path*/, D d, int bits, V a, V b) const {
    using T = hn::TFromD<D>;
    if constexpr (path == ScalePath::kSaturate) {
      return saturatedSum(d, a, b);
    } else if constexpr (path == ScalePath::kShiftLeft) {
      return shiftLeftSaturated<T>(d, saturatedSum(d, a, b), bits);
    } else if constexpr (path == ScalePath::kHalve) {
      return roundHalves(d, halfSum(d, a, b), hn::Xor(a, b));
    } else {
      return roundShift(d, halfSum(d, a, b), hn::Xor(a, b), bits - 1);
    }
  }
};

// Differences of signed operands too. Those of unsigned ones that are negative round to 0 or less.
template <>
struct ScaledOperation<Sub> {
  static constexpr bool kIsLight = true;
  template <class T>
  static constexpr int kMagnitudeOf = kMagnitude<T> + (std::is_signed_v<T> ? 1 : 0);

  template <ScalePath path, class D, class V>
  HWY_INLINE V operator()(ScalePathTag<path> /*path*/, D d, int bits, V a, V b) const {
    using T = hn::TFromD<D>;
    const V difference = saturatedDifference(d, a, b);
    if constexpr (path == ScalePath::kSaturate || path == ScalePath::kShiftLeft ||
                  !std::is_signed_v<T>) {
      return scaleTo<path, T>(d, difference, bits);
    } else if constexpr (path == ScalePath::kHalve) {
      return roundHalves<true>(d, halfDifference(a, b), hn::Xor(a, b));
    } else {
      return roundShift(d, halfDifference(a, b), hn::Xor(a, b), bits - 1);
    }
  }
};

template <>
struct ScaledOperation<SubFrom> : ScaledOperation<Sub> {
  template <ScalePath path, class D, class V>
  HWY_INLINE V operator()(ScalePathTag<path> tag, D d, int bits, V a, V b) const {
    return ScaledOperation<Sub>()(tag, d, bits, b, a);
  }
};

// The sum of two sources of narrower integers, in the destination's type.
template <class Op, class T, class S>
struct TwoPromoted {
  const S* src1;
  const S* src2;
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, size_t i) const {
    return Operation<Op>()(d, load(d, src1 + i), load(d, src2 + i));
  }

 private:
  template <class D>
  static HWY_INLINE hn::Vec<D> load(D d, const S* src) {
    const auto narrow = hn::LoadU(hn::Rebind<S, D>(), src);
    if constexpr (std::is_floating_point_v<T>) {
      return hn::ConvertTo(d, hn::PromoteTo(hn::Rebind<int32_t, D>(), narrow));
    } else {
      return hn::PromoteTo(d, narrow);
    }
  }
};

template <class Op, class S, class T>
VekStatus MapTwoPromoted(const S* src1, const S* src2, T* dst, size_t n) {
  produce(TwoPromoted<Op, T, S>{src1, src2}, dst, n, false);
  return vekStsOk;
}

// A source of narrower integers and one of the destination's type.
template <class Op, class T, class S>
struct PromotedAndSource {
  const S* src1;
  const T* src2;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const hn::Rebind<S, D> ds;
    return Operation<Op>()(d, hn::PromoteTo(d, hn::LoadU(ds, src1 + i)), hn::LoadU(d, src2 + i));
  }
};

template <class Op, class S, class T>
VekStatus MapPromotedAndSource(const S* src1, const T* src2, T* dst, size_t n) {
  produce(PromotedAndSource<Op, T, S>{src1, src2}, dst, n, src2 == dst);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
