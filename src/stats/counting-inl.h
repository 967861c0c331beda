// Counting sorts of short integers.
#if defined(VEKS_STATS_COUNTING_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_COUNTING_INL_H
#undef VEKS_STATS_COUNTING_INL_H
#else
#define VEKS_STATS_COUNTING_INL_H
#endif

#include <cstring>

#include "core/loops-inl.h"
#include "stats/networks-inl.h"
#include "stats/partition-inl.h"
#include "stats/runs-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// Few elements are sorted as 16-bit ones: counters for all values would take longer.
template <class Order>
HWY_NOINLINE void sortFew(uint8_t* p, size_t n) {
  HWY_ALIGN int16_t wide[blockLength<int16_t>()];
  for (size_t i = 0; i < n; ++i) wide[i] = p[i];
  sortShort<Order>(wide, n);
  for (size_t i = 0; i < n; ++i) p[i] = static_cast<uint8_t>(wide[i]);
}

// Adds the counts of at most kMostCounted elements. Neighbours go to tables in turn: a counter that
// is incremented twice in a row waits for itself.
constexpr size_t kMostCounted = size_t{8} * 65535;
HWY_NOINLINE void countBytes(const uint8_t* p, size_t n, uint32_t* totals) {
  constexpr size_t kTables = 8;
  uint16_t counts[kTables][256] = {};
  size_t i = 0;
  for (; i + 8 <= n; i += 8) {
    uint64_t eight;
    std::memcpy(&eight, p + i, 8);
    for (size_t k = 0; k < 8; ++k) ++counts[k][eight >> (8 * k) & 255];
  }
  for (; i < n; ++i) ++totals[p[i]];
  for (size_t k = 0; k < kTables; ++k) {
    for (size_t value = 0; value < 256; ++value) totals[value] += counts[k][value];
  }
}

template <class Order>
HWY_NOINLINE void countingSort(uint8_t* p, size_t n) {
  uint32_t counts[256] = {};
  for (size_t i = 0; i < n; i += kMostCounted) {
    countBytes(p + i, n - i < kMostCounted ? n - i : kMostCounted, counts);
  }
  RunWriter<uint8_t> writer{p, p + n};
  for (size_t k = 0; k < 256; ++k) {
    const size_t value = Order::kSign > 0 ? k : 255 - k;
    writer.write(static_cast<uint8_t>(value), counts[value]);
  }
}

// The same for elements between `low` and low + values - 1, with one table, or two small ones.
constexpr size_t kCountedValues = 1024;

template <class Order>
HWY_NOINLINE void countingSort(int16_t* p, size_t n, int low, size_t values) {
  uint32_t counts[kCountedValues] = {};
  const size_t second = 2 * values <= kCountedValues ? values : 0;
  uint32_t* const tables[2] = {counts, counts + second};
  size_t i = 0;
  for (; i + 4 <= n; i += 4) {
    uint64_t four;
    std::memcpy(&four, p + i, 8);
    for (size_t k = 0; k < 4; ++k) {
      const int value = static_cast<int16_t>(four >> (16 * k));
      ++tables[k % 2][value - low];
    }
  }
  for (; i < n; ++i) ++counts[p[i] - low];
  RunWriter<int16_t> writer{p, p + n};
  for (size_t k = 0; k < values; ++k) {
    const size_t at = Order::kSign > 0 ? k : values - 1 - k;
    const size_t count = size_t{counts[at]} + (second > 0 ? counts[second + at] : 0);
    writer.write(static_cast<int16_t>(low + static_cast<int>(at)), count);
  }
}

struct Extremes {
  int low;
  int high;
};

HWY_INLINE Extremes extremesOf(const int16_t* p, size_t n) {
  const hn::ScalableTag<int16_t> d;
  constexpr size_t kLanes = MaxLanes(d);
  auto low = hn::LoadU(d, p);
  auto high = low;
  const auto take = [&](size_t i) {
    const auto v = hn::LoadU(d, p + i);
    low = hn::Min(low, v);
    high = hn::Max(high, v);
  };
  for (size_t i = 0; i + kLanes <= n; i += kLanes) take(i);
  take(n - kLanes);
  HWY_ALIGN int16_t lows[kLanes];
  HWY_ALIGN int16_t highs[kLanes];
  hn::Store(low, d, lows);
  hn::Store(high, d, highs);
  Extremes found = {lows[0], highs[0]};
  for (size_t i = 1; i < kLanes; ++i) {
    if (lows[i] < found.low) found.low = lows[i];
    if (highs[i] > found.high) found.high = highs[i];
  }
  return found;
}

// Divides by value until there are few elements or, counted in a small table, few values. Segments
// and blocks are as in quicksort(). n is more than a block.
template <class Order>
void divideAndCount(int16_t* p, size_t n) {
  struct Segment {
    size_t end;
    int first;  // no element comes before it
    int last;   // no element comes after it
  };
  constexpr size_t kBlock = blockLength<int16_t>();
  const Extremes extremes = extremesOf(p, n);
  Segment stack[17];  // 16 divisions leave one value
  int top = 0;
  stack[0] = Order::kSign > 0 ? Segment{n, extremes.low, extremes.high}
                              : Segment{n, extremes.high, extremes.low};
  size_t sorted = 0;
  size_t start = 0;
  while (n - sorted > kBlock) {
    Segment& segment = stack[top];
    if (segment.end - sorted <= kBlock) {
      start = segment.end;
      --top;
      continue;
    }
    if (start > sorted) {
      sortVectors<Order, kBlockBits>(p + sorted);
      sorted = start;
      continue;
    }
    const size_t length = segment.end - start;
    const int steps = Order::kSign * (segment.last - segment.first);
    const size_t values = static_cast<size_t>(steps) + 1;
    if (values <= kCountedValues && 2 * values <= length) {
      const int low = Order::kSign > 0 ? segment.first : segment.last;
      countingSort<Order>(p + start, length, low, values);
      start = segment.end;
      sorted = start;
      --top;
      continue;
    }
    const int middle = segment.first + Order::kSign * ((steps + 1) / 2);
    const Before<Order, int16_t> test{static_cast<int16_t>(middle)};
    const size_t count = partition(p + start, length, test);
    const Segment first = {start + count, segment.first, middle - Order::kSign};
    segment.first = middle;
    if (count == length) segment = first;
    if (count > 0 && count < length) stack[++top] = first;
  }
  sortShort<Order>(p + sorted, n - sorted);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
