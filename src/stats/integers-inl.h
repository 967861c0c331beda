// Exact sums of integers. A block of values is added in lanes of their own width, then the lanes
// and blocks in wider integers.
#if defined(VEKS_STATS_INTEGERS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_INTEGERS_INL_H
#undef VEKS_STATS_INTEGERS_INL_H
#else
#define VEKS_STATS_INTEGERS_INL_H
#endif

#include <hwy/highway.h>

#include "core/reduce-inl.h"
#include "core/wide.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

// The most values that all lanes of a split sum may take in together.
constexpr size_t kMostValues = size_t{1} << 15;

template <class T>
struct Complex {
  T re;
  T im;
};
template <class T>
HWY_INLINE Complex<T> operator+(const Complex<T>& a, const Complex<T>& b) {
  return {a.re + b.re, a.im + b.im};
}

// a[2i] * b[2i] + a[2i + 1] * b[2i + 1] in lanes of 32 bits. Four times -32768 give 2^31, which
// wraps around to -2^31; that is no other result.
template <class V>
HWY_INLINE auto pairProducts(V a, V b) {
  const hn::ScalableTag<int32_t> di;
#if HWY_TARGET == HWY_EMU128
  hn::Vec<decltype(di)> sums;
  for (size_t i = 0; i < MaxLanes(di); ++i) {
    const int32_t first = a.raw[2 * i] * b.raw[2 * i];
    const int32_t second = a.raw[2 * i + 1] * b.raw[2 * i + 1];
    sums.raw[i] =
        static_cast<int32_t>(static_cast<uint32_t>(first) + static_cast<uint32_t>(second));
  }
  return sums;
#else
  auto unused = hn::Zero(di);
  return hn::ReorderWidenMulAccumulate(di, a, b, hn::Zero(di), unused);
#endif
}

// Sums of up to kMostValues values: modulo the width of the lanes, with the sum of the upper 16
// bits of each value, from which the true sum differs by less than that width. With kIsPair the
// values are pair products, whose -2^31 is 2^31: one less is in the range of the lanes, and has the
// upper bits that serve.
template <class T, bool kIsPair = false>
struct SplitSums {
  static_assert(!kIsPair || sizeof(T) == 4, "");
  hn::ScalableTag<T> d = {};
  hn::ScalableTag<int32_t> di = {};
  struct Sum {
    hn::Vec<hn::ScalableTag<T>> wrapped;
    hn::Vec<hn::ScalableTag<int32_t>> upper;
  };
  HWY_INLINE Sum zero() const {
    return {hn::Zero(d), hn::Zero(di)};
  }
  template <class V>
  HWY_INLINE void add(Sum& sum, V v) const {
    auto halves = hn::BitCast(di, v);
    if constexpr (kIsPair) halves = hn::Sub(halves, hn::Set(di, 1));
    sum.wrapped = hn::Add(sum.wrapped, v);
    sum.upper = hn::Add(sum.upper, hn::ShiftRight<16>(halves));
  }
  HWY_INLINE void merge(Sum& sum, const Sum& other) const {
    sum.wrapped = hn::Add(sum.wrapped, other.wrapped);
    sum.upper = hn::Add(sum.upper, other.upper);
  }
  HWY_INLINE auto total(const Sum& sum) const {
    using Unsigned = std::make_unsigned_t<T>;
    const hn::ScalableTag<Unsigned> dw;
    const Unsigned wrapped = hn::GetLane(hn::SumOfLanes(dw, hn::BitCast(dw, sum.wrapped)));
    if constexpr (sizeof(T) == 4) {
      const int64_t most = int64_t{hn::GetLane(hn::SumOfLanes(di, sum.upper))} * 65536;
      return most + static_cast<uint32_t>(wrapped - most);
    } else {
      // The upper bits of a value are in its odd half.
      const auto odd = hn::ShiftRight<32>(hn::BitCast(dw, sum.upper));
      const int32_t upper = static_cast<int32_t>(hn::GetLane(hn::SumOfLanes(dw, odd)));
      const Wide most = shiftLeft(wide(upper), 48);
      return most + Wide{0, wrapped - most.low};
    }
  }
};

// The exact total of n elements, kBlock of which a reduction can take in.
template <size_t kWays, size_t kBlock, class Reduction, class... T>
HWY_INLINE auto totalOf(const Reduction& reduction, size_t n, const T*... src) {
  size_t count = n < kBlock ? n : kBlock;
  auto total = reduction.total(reduceShortOrLong<kWays>(reduction, {count, n}, src...));
  for (size_t i = count; i < n; i += count) {
    count = n - i < kBlock ? n - i : kBlock;
    total = total + reduction.total(reduce<kWays>(reduction, {count, n - i}, (src + i)...));
  }
  return total;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
