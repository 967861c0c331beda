// Quicksort of elements that are not NaN.
//
// Segments are sorted from left to right, so all that follows a segment comes after it. Therefore
// blocks of a fixed length are sorted where they are: what such a block takes from the segments
// that follow is put in another order within these. One block may finish several segments.
#if defined(VEKS_STATS_QUICKSORT_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_QUICKSORT_INL_H
#undef VEKS_STATS_QUICKSORT_INL_H
#else
#define VEKS_STATS_QUICKSORT_INL_H
#endif

#include "stats/few_values-inl.h"
#include "stats/networks-inl.h"
#include "stats/partition-inl.h"
#include "stats/pivot-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// For segments that pivots could not divide: n log n steps on any input.
template <class Order, class T>
HWY_NOINLINE void heapSort(T* p, size_t n) {
  const auto sink = [p](size_t root, size_t count) {
    const T x = p[root];
    for (size_t child; (child = 2 * root + 1) < count; root = child) {
      if (child + 1 < count && Order::isBefore(p[child], p[child + 1])) ++child;
      if (!Order::isBefore(x, p[child])) break;
      p[root] = p[child];
    }
    p[root] = x;
  };
  for (size_t root = n / 2; root > 0; --root) sink(root - 1, n);
  for (size_t count = n; count > 1;) {
    --count;
    const T last = p[count];
    p[count] = p[0];
    p[0] = last;
    sink(0, count);
  }
}

constexpr int kMaxDivisions = 72;

// How often a segment of n elements may be divided: twice as often as halves would need.
template <class T>
int divisionsFor(size_t n) {
  int divisions = 8;
  for (; n > blockLength<T>(); n /= 2) divisions += 2;
  return divisions;
}

// `divisions` is at most kMaxDivisions; what was divided as often is sorted by heapSort().
template <class Order, class T>
void quicksort(T* p, size_t n, int divisions) {
  // A segment ends where `end` says and starts where the one before it ends. If `hasBound`, no
  // element of it comes before `bound`, a former pivot.
  struct Segment {
    size_t end;
    T bound;
    bool hasBound;
    int divisions;
  };
  constexpr size_t kBlock = blockLength<T>();
  Segment stack[kMaxDivisions + 1];
  int top = 0;
  stack[0] = {n, T{}, false, divisions};
  size_t sorted = 0;  // up to here all is done
  size_t start = 0;   // of the segment on top; from `sorted` to here blocks are still to be sorted
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
    if (segment.divisions == 0) {
      heapSort<Order>(p + start, length);
      start = segment.end;
      sorted = start;
      --top;
      continue;
    }
    --segment.divisions;
    const unsigned seed = static_cast<unsigned>(segment.divisions);
    const Pivot<T> chosen =
        choosePivot<Order>(p + start, length, seed, length < 2 * kBlock ? 11 : 8);
    if (chosen.isFrequent && sortFewValues<Order>(p + start, length, seed)) {
      start = segment.end;
      sorted = start;
      --top;
      continue;
    }
    const T pivot = chosen.value;
    if (segment.hasBound && !Order::isBefore(segment.bound, pivot)) {
      // Elements that equal the bound are first and in order. They may be all.
      start += isSorted<Order>(p + start, length)
                   ? length
                   : partition(p + start, length, NotAfter<Order, T>{pivot});
      sorted = start;
      segment.hasBound = false;
      if (start == segment.end) --top;
      continue;
    }
    const size_t count = partition(p + start, length, Before<Order, T>{pivot});
    Segment first = segment;
    first.end = start + count;
    segment.bound = pivot;
    segment.hasBound = true;
    if (count > 0) stack[++top] = first;
  }
  sortShort<Order>(p + sorted, n - sorted);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
