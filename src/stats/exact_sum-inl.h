// Exact sums of vectors of single precision. In a block, the exponents of the elements tell how
// many bits an exact sum can have. Mostly these fit a double, and adding is exact. If they do not,
// each element is cut into slices that add without rounding.
#if defined(VEKS_STATS_EXACT_SUM_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_EXACT_SUM_INL_H
#undef VEKS_STATS_EXACT_SUM_INL_H
#else
#define VEKS_STATS_EXACT_SUM_INL_H
#endif

#include <hwy/highway.h>

#include "core/reduce-inl.h"
#include "stats/exact_total.h"
#include "stats/lanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

constexpr int kExactBlockBits = 12;
constexpr size_t kExactBlock = size_t{1} << kExactBlockBits;

// All magnitudes are below 2^top and multiples of 2^bottom.
struct Extent {
  int top;
  int bottom;
  bool finite;
};

// The greatest and the least magnitude but 0, as bits, less 1: so 0 is below all as a signed and
// above all as an unsigned number.
struct Magnitudes {
  hn::ScalableTag<float> d = {};
  hn::ScalableTag<int32_t> di = {};
  hn::ScalableTag<uint32_t> du = {};
  struct Sum {
    hn::Vec<hn::ScalableTag<int32_t>> greatest;
    hn::Vec<hn::ScalableTag<uint32_t>> least;
  };
  HWY_INLINE Sum zero() const {
    return {hn::Set(di, -1), hn::Set(du, 0xFFFFFFFF)};
  }
  template <class V>
  HWY_INLINE void add(Sum& sum, V v) const {
    const auto bits = hn::And(hn::BitCast(di, v), hn::Set(di, 0x7FFFFFFF));
    const auto below = hn::Sub(bits, hn::Set(di, 1));
    sum.greatest = hn::Max(sum.greatest, below);
    sum.least = hn::Min(sum.least, hn::BitCast(du, below));
  }
  HWY_INLINE void merge(Sum& sum, const Sum& other) const {
    sum.greatest = hn::Max(sum.greatest, other.greatest);
    sum.least = hn::Min(sum.least, other.least);
  }
};

HWY_INLINE Extent extentOf(const float* src, Piece piece) {
  const Magnitudes magnitudes;
  const Magnitudes::Sum found = reduce<4>(magnitudes, piece, src);
  const int32_t greatest = hn::GetLane(hn::MaxOfLanes(magnitudes.di, found.greatest)) + 1;
  const uint32_t least = hn::GetLane(hn::MinOfLanes(magnitudes.du, found.least)) + 1;
  // Denormal numbers have the bits of those with exponent 1.
  const int high = greatest >> 23;
  const int low = static_cast<int>(least >> 23);
  return {(high > 0 ? high : 1) - 126, (low > 0 ? low : 1) - 150, high < 255};
}

// Slices: a sum that starts with 3/2 times a power of two far above all elements keeps its exponent
// and with it the place of its lowest bit. What an addition rounds off is below that place; it is
// exact and goes to the next slice. The last sum takes in what is left.
constexpr int kSliceBits = 39;

template <size_t kSlices>
struct SlicedSums {
  hn::ScalableTag<double> d = {};
  using Vec = hn::Vec<hn::ScalableTag<double>>;
  double anchors[kSlices] = {};
  struct Sum {
    Vec slices[kSlices];
    Vec rest;
  };

  // The next slice's elements are at most half the lowest bit of the one before.
  explicit SlicedSums(int top) {
    for (size_t k = 0; k < kSlices; ++k, top -= kSliceBits) {
      anchors[k] = 1.5 * powerOfTwo(top + kExactBlockBits + 1);
    }
  }
  HWY_INLINE Sum zero() const {
    Sum sum;
    for (size_t k = 0; k < kSlices; ++k) sum.slices[k] = hn::Set(d, anchors[k]);
    sum.rest = hn::Zero(d);
    return sum;
  }
  template <class V>
  HWY_INLINE void add(Sum& sum, V v) const {
    auto x = hn::PromoteTo(d, v);
    for (size_t k = 0; k < kSlices; ++k) {
      const auto next = hn::Add(sum.slices[k], x);
      x = hn::Sub(x, hn::Sub(next, sum.slices[k]));
      sum.slices[k] = next;
    }
    sum.rest = hn::Add(sum.rest, x);
  }
  HWY_INLINE void merge(Sum& sum, const Sum& other) const {
    for (size_t k = 0; k < kSlices; ++k) {
      const auto slice = hn::Sub(other.slices[k], hn::Set(d, anchors[k]));
      sum.slices[k] = hn::Add(sum.slices[k], slice);
    }
    sum.rest = hn::Add(sum.rest, other.rest);
  }
};

HWY_INLINE double foldDoubles(hn::Vec<hn::ScalableTag<double>> v) {
  const FoldedLanes<double> parts = foldLanes(hn::ScalableTag<double>(), v);
  return parts.even + parts.odd;
}

template <size_t kSlices>
struct ExactSlices {
  double slices[kSlices + 1];
};

template <size_t kSlices, size_t kWays>
HWY_NOINLINE ExactSlices<kSlices> slicesOf(const float* src, size_t n, int top) {
  const SlicedSums<kSlices> sums(top);
  const auto sum = reduce<kWays>(sums, n, src);
  ExactSlices<kSlices> exact;
  for (size_t k = 0; k < kSlices; ++k) {
    exact.slices[k] = foldDoubles(hn::Sub(sum.slices[k], hn::Set(sums.d, sums.anchors[k])));
  }
  exact.slices[kSlices] = foldDoubles(sum.rest);
  return exact;
}

template <size_t kSlices, size_t kWays>
HWY_INLINE void addSlices(const float* src, size_t n, int top, ExactTotal& total) {
  const ExactSlices<kSlices> exact = slicesOf<kSlices, kWays>(src, n, top);
  for (double slice : exact.slices) total.add(slice);
}

HWY_INLINE double plainSum(const float* src, size_t n) {
  return foldDoubles(reduceShortOrLong<8>(LaneSums<double>(), n, src));
}

constexpr bool addsExactly(int top, int bottom) {
  return top + kExactBlockBits - bottom <= std::numeric_limits<double>::digits;
}

// Adds a block to the total; infinities and NaN make a sum of their own.
HWY_INLINE void addBlock(const float* src, size_t n, const Extent& extent, ExactTotal& total,
                         double& unbounded) {
  // 7 slices and the rest are enough for all exponents.
  static_assert(addsExactly(128 - 7 * kSliceBits, -149), "");
  if (!extent.finite) {
    unbounded += plainSum(src, n);
  } else if (addsExactly(extent.top, extent.bottom)) {
    total.add(plainSum(src, n));
  } else if (addsExactly(extent.top - kSliceBits, extent.bottom)) {
    addSlices<1, 4>(src, n, extent.top, total);
  } else if (addsExactly(extent.top - 3 * kSliceBits, extent.bottom)) {
    addSlices<3, 2>(src, n, extent.top, total);
  } else {
    addSlices<7, 1>(src, n, extent.top, total);
  }
}

// The exact sum for a caller who rounds to so many binary digits: 24, or the 53 of a double. It is
// rounded already, or a double that rounds like the sum. The order of the elements is of no
// consequence, so the result is the same on every target.
HWY_INLINE double exactSum(const float* src, size_t n, int digits) {
  Extent extent = extentOf(src, n < kExactBlock ? n : kExactBlock);
  if (HWY_LIKELY(n <= kExactBlock && extent.finite)) {
    if (HWY_LIKELY(addsExactly(extent.top, extent.bottom))) return plainSum(src, n);
    if (addsExactly(extent.top - kSliceBits, extent.bottom)) {
      const ExactSlices<1> exact = slicesOf<1, 4>(src, n, extent.top);
      return roundedSum(exact.slices[0], exact.slices[1], digits);
    }
  }
  ExactTotal total;
  double unbounded = 0;
  for (size_t i = 0; i < n; i += kExactBlock) {
    const size_t count = n - i < kExactBlock ? n - i : kExactBlock;
    if (i > 0) extent = extentOf(src + i, {count, n - i});
    addBlock(src + i, count, extent, total, unbounded);
  }
  // Of NaN there is one, whatever the order.
  if (unbounded != unbounded) return -std::numeric_limits<double>::quiet_NaN();
  return unbounded != 0 ? unbounded : total.rounded(digits);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
