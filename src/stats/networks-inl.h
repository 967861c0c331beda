// Blocks of up to 16 vectors, sorted in registers: see stats/schedule.h.
#if defined(VEKS_STATS_NETWORKS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_NETWORKS_INL_H
#undef VEKS_STATS_NETWORKS_INL_H
#else
#define VEKS_STATS_NETWORKS_INL_H
#endif

#include <cstring>
#include <utility>

#include "stats/order-inl.h"
#include "stats/schedule.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

constexpr int logarithm(size_t n) {
  return n < 2 ? 0 : 1 + logarithm(n / 2);
}

// Pieces of kBytes, counted from 0: the odd ones of x and the even ones of y change places.
template <size_t kBytes, class D, class V = hn::Vec<D>>
HWY_INLINE void exchangePieces(D d, V& x, V& y) {
  constexpr size_t kVectorBytes = MaxLanes(D()) * sizeof(hn::TFromD<D>);
  if constexpr (2 * kBytes == kVectorBytes) {
    const V lower = hn::ConcatLowerLower(d, y, x);
    y = hn::ConcatUpperUpper(d, y, x);
    x = lower;
  } else if constexpr (kBytes == 16) {
    const V even = hn::OddEvenBlocks(hn::SwapAdjacentBlocks(y), x);
    y = hn::OddEvenBlocks(y, hn::SwapAdjacentBlocks(x));
    x = even;
  } else if constexpr (kBytes == 8) {
    const hn::Repartition<uint64_t, D> d64;
    const auto x64 = hn::BitCast(d64, x);
    const auto y64 = hn::BitCast(d64, y);
    x = hn::BitCast(d, hn::InterleaveLower(d64, x64, y64));
    y = hn::BitCast(d, hn::InterleaveUpper(d64, x64, y64));
  } else if constexpr (kBytes == 4) {
    const hn::Repartition<float, D> d32;
    const auto x32 = hn::BitCast(d32, x);
    const auto y32 = hn::BitCast(d32, y);
    x = hn::BitCast(d, hn::OddEven(hn::DupEven(y32), x32));
    y = hn::BitCast(d, hn::OddEven(y32, hn::DupOdd(x32)));
  } else {
    static_assert(kBytes == 2);
    const hn::Repartition<uint16_t, D> d16;
    const hn::Repartition<uint32_t, D> d32;
    const auto up = hn::ShiftLeft<16>(hn::BitCast(d32, y));
    const auto down = hn::ShiftRight<16>(hn::BitCast(d32, x));
    x = hn::BitCast(d, hn::OddEven(hn::BitCast(d16, up), hn::BitCast(d16, x)));
    y = hn::BitCast(d, hn::OddEven(hn::BitCast(d16, y), hn::BitCast(d16, down)));
  }
}

// What reverses the order of an element when it is XORed: the sign or all bits.
template <class T>
HWY_INLINE T flippingBits() {
  return std::is_floating_point_v<T> ? T(-0.0) : T(-1);
}

template <class Order, class D, int kRegBits>
struct BlockSorter {
  using T = hn::TFromD<D>;
  using V = hn::Vec<D>;
  static constexpr size_t kLanes = MaxLanes(D());
  static constexpr size_t kVectors = size_t{1} << kRegBits;
  static constexpr Schedule<kRegBits, logarithm(kLanes)> kSchedule = {};
  static constexpr ColumnNetwork<kVectors> kColumns = {};
  V v[kVectors];

  HWY_INLINE void compare(size_t low, size_t high) {
    const V a = v[low];
    const V b = v[high];
    v[low] = Order::first(a, b);
    v[high] = Order::last(b, a);
  }

  template <size_t... k>
  HWY_INLINE void sortColumns(std::index_sequence<k...> /*all*/) {
    (compare(kColumns.low[k], kColumns.high[k]), ...);
  }

  // All pairs of numbers that differ in one bit.
  template <size_t kBit, size_t... k>
  HWY_INLINE void comparePairs(std::index_sequence<k...> /*half*/) {
    (compare(k / kBit * 2 * kBit + k % kBit, k / kBit * 2 * kBit + k % kBit + kBit), ...);
  }
  template <size_t kBit, size_t kBytes, size_t... k>
  HWY_INLINE void exchangePairs(std::index_sequence<k...> /*half*/) {
    (exchangePieces<kBytes>(D(), v[k / kBit * 2 * kBit + k % kBit],
                            v[k / kBit * 2 * kBit + k % kBit + kBit]),
     ...);
  }

  template <int kLane, int kOther, size_t... k>
  HWY_INLINE void flip(std::index_sequence<k...> /*all*/) {
    const D d;
    HWY_ALIGN T bits[kLanes];
    for (size_t i = 0; i < kLanes; ++i) {
      const size_t other = kOther < 0 ? 0 : i >> (kOther < 0 ? 0 : kOther) & 1;
      bits[i] = ((i >> kLane & 1) ^ other) != 0 ? flippingBits<T>() : T{0};
    }
    const V mask = hn::Load(d, bits);
    ((v[k] = hn::Xor(v[k], mask)), ...);
  }

  template <size_t kStep>
  HWY_INLINE void run() {
    constexpr Step kNow = kSchedule.steps[kStep];
    constexpr std::make_index_sequence<kVectors> kAll;
    constexpr std::make_index_sequence<kVectors / 2> kHalf;
    constexpr size_t kBit = size_t{1} << kNow.reg;
    if constexpr (kNow.kind == StepKind::kColumns) {
      sortColumns(std::make_index_sequence<kColumns.count>());
    } else if constexpr (kNow.kind == StepKind::kExchange) {
      exchangePairs<kBit, sizeof(T) << kNow.lane>(kHalf);
    } else if constexpr (kNow.kind == StepKind::kCompare) {
      comparePairs<kBit>(kHalf);
    } else {
      flip<kNow.lane, kNow.other>(kAll);
    }
  }

  template <size_t... kStep>
  HWY_INLINE void runAll(std::index_sequence<kStep...> /*all*/) {
    (run<kStep>(), ...);
  }

  template <size_t... k>
  HWY_INLINE void sort(T* p, std::index_sequence<k...> /*all*/) {
    const D d;
    ((v[k] = hn::LoadU(d, p + k * kLanes)), ...);
    runAll(std::make_index_sequence<kSchedule.count>());
    (hn::StoreU(v[k], d, p + kSchedule.place(k) * kLanes), ...);
  }
};

// Sorts 2^kRegBits vectors. Where vectors are loops over lanes, insertion is faster.
template <class Order, int kRegBits, class T>
HWY_NOINLINE void sortVectors(T* p) {
  using D = hn::ScalableTag<T>;
#if HWY_TARGET == HWY_EMU128
  constexpr size_t kLength = MaxLanes(D()) << kRegBits;
  for (size_t i = 1; i < kLength; ++i) {
    const T x = p[i];
    size_t at = i;
    for (; at > 0 && Order::isBefore(x, p[at - 1]); --at) p[at] = p[at - 1];
    p[at] = x;
  }
#else
  BlockSorter<Order, D, kRegBits> sorter;
  sorter.sort(p, std::make_index_sequence<size_t{1} << kRegBits>());
#endif
}

// Elements of the largest block.
constexpr int kBlockBits = HWY_TARGET == HWY_EMU128 ? 3 : 4;
template <class T>
constexpr size_t blockLength() {
  return MaxLanes(hn::ScalableTag<T>()) << kBlockBits;
}

// Sorts `n` elements, at most a block, in the smallest block that they fit into. It is filled up
// with elements that stay at its end.
template <class Order, int kRegBits = 1, class T>
void sortShort(T* p, size_t n) {
  constexpr size_t kLanes = MaxLanes(hn::ScalableTag<T>());
  constexpr size_t kLength = kLanes << kRegBits;
  if constexpr (kRegBits < kBlockBits) {
    if (n > kLength) return sortShort<Order, kRegBits + 1>(p, n);
  }
  if (n < 2) return;
  HWY_ALIGN T block[kLength];
  const hn::ScalableTag<T> d;
  for (size_t i = n / kLanes * kLanes; i < kLength; i += kLanes) {
    hn::Store(hn::Set(d, Order::template end<T>()), d, block + i);
  }
  std::memcpy(block, p, n * sizeof(T));
  sortVectors<Order, kRegBits>(block);
  std::memcpy(p, block, n * sizeof(T));
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
