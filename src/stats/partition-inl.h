// Partition in place: elements that a test takes go to the left end, the others to the right end.
//
// Vectors from both ends are kept in registers, which leaves space there. From then on, vectors are
// read from the end that has less space, and each is permuted, its elements of the left group
// first, and stored as a whole at both ends. What is too much is overwritten later.
#if defined(VEKS_STATS_PARTITION_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_PARTITION_INL_H
#undef VEKS_STATS_PARTITION_INL_H
#else
#define VEKS_STATS_PARTITION_INL_H
#endif

#include <hwy/cache_control.h>
#include <hwy/highway.h>

#include "core/targets.h"
#include "stats/order-inl.h"
#include "stats/permutations.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// Elements before the pivot.
template <class Order, class T>
struct Before {
  T pivot;
  template <class D>
  HWY_INLINE auto operator()(D d, hn::Vec<D> v) const {
    return Order::before(v, hn::Set(d, pivot));
  }
  HWY_INLINE bool takes(T x) const {
    return Order::isBefore(x, pivot);
  }
};

// Elements that are not after the pivot.
template <class Order, class T>
struct NotAfter {
  T pivot;
  template <class D>
  HWY_INLINE auto operator()(D d, hn::Vec<D> v) const {
    return hn::Not(Order::before(hn::Set(d, pivot), v));
  }
  HWY_INLINE bool takes(T x) const {
    return !Order::isBefore(pivot, x);
  }
};

// 16-bit lanes are permuted as bytes of short vectors, 32-bit lanes on AVX2 as what they are.
template <class T>
using PartitionTag = hn::CappedTag<T, sizeof(T) == 2 ? 8 : 64>;

template <class D, class M>
HWY_INLINE size_t bitsOf(D d, M mask) {
  uint8_t bits[8] = {};
  hn::StoreMaskBits(d, mask, bits);
  return bits[0];
}

// The lanes whose bits are set first, then the others. At most 8 lanes.
template <class D, class V = hn::Vec<D>>
HWY_INLINE V permute(D d, V v, size_t bits) {
  constexpr size_t kLanes = MaxLanes(D());
  constexpr size_t kBytes = sizeof(hn::TFromD<D>);
  if constexpr (kLanes * kBytes == 16) {
    const hn::Repartition<uint8_t, D> d8;
    const auto indices = hn::Load(d8, kBytePermutations<kLanes, kBytes>.entries[bits]);
    return hn::BitCast(d, hn::TableLookupBytes(hn::BitCast(d8, v), indices));
  } else {
    // Eight lanes of 32 bits, of 64 bits in wider vectors; each shifts its index down.
    using Index = hwy::UnsignedFromSize<kLanes * kBytes / 8>;
    const hn::Repartition<Index, D> di;
    const uint32_t packed = kPackedPermutations<kLanes, kBytes / sizeof(Index)>.entries[bits][0];
    const auto shifts = hn::ShiftLeft<2>(hn::Iota(di, Index{0}));
    const auto indices = hn::And(hn::Shr(hn::Set(di, packed), shifts), hn::Set(di, Index{7}));
    return hn::BitCast(d,
                       hn::TableLookupLanes(hn::BitCast(di, v), hn::IndicesFromVec(di, indices)));
  }
}

// Where elements go: `left` is the end of the left group, and between the groups there is room for
// `room` elements, some of which are not read yet.
template <class T>
struct Gap {
  T* left;
  size_t room;

  HWY_INLINE T* right() const {
    return left + room;
  }
};

// Writes an element at each end of the gap, of which one counts.
template <class Test, class T>
HWY_INLINE void splitOne(const Test& test, T x, Gap<T>& gap) {
  gap.left[0] = x;
  gap.right()[-1] = x;
  gap.left += test.takes(x) ? 1 : 0;
  --gap.room;
}

// Puts the elements of a vector into their groups. Writes a vector at each end of the gap.
template <class Test, class D, class T>
HWY_INLINE void split(D d, const Test& test, hn::Vec<D> v, Gap<T>& gap) {
  constexpr size_t kLanes = MaxLanes(D());
#if HWY_TARGET == HWY_EMU128
  HWY_ALIGN T lanes[kLanes];
  hn::Store(v, d, lanes);
  for (const T x : lanes) splitOne(test, x, gap);
#else
  const auto isLeft = test(d, v);
  const size_t count = hn::CountTrue(d, isLeft);
  if constexpr (kLanes > 8) {
    hn::StoreU(hn::Compress(v, isLeft), d, gap.left);
    gap.left += count;
    gap.room -= kLanes;
    const auto others = hn::Compress(v, hn::Not(isLeft));
    hn::BlendedStore(others, hn::FirstN(d, kLanes - count), d, gap.right());
  } else {
    const auto permuted = permute(d, v, bitsOf(d, isLeft));
    hn::StoreU(permuted, d, gap.left);
    hn::StoreU(permuted, d, gap.right() - kLanes);
    gap.left += count;
    gap.room -= kLanes;
  }
#endif
}

// Vectors of a group. A group from each end is kept in registers.
constexpr size_t kGroupVectors = HWY_TARGET == HWY_EMU128 ? 2 : 4;
template <class T>
constexpr size_t shortestPartition() {
  return 3 * kGroupVectors * MaxLanes(PartitionTag<T>());
}

// How far ahead of the reading, at both ends, lines are fetched into the caches.
constexpr size_t kPrefetchDistance = 512;

// Returns the number of elements that the test takes. n is at least shortestPartition().
template <class Test, class T>
HWY_NOINLINE size_t partition(T* p, size_t n, Test test) {
  const PartitionTag<T> d;
  using V = hn::Vec<decltype(d)>;
  constexpr size_t kLanes = MaxLanes(d);
  constexpr size_t kGroup = kGroupVectors * kLanes;
  struct Group {
    V v[kGroupVectors];
  };
  const auto load = [d](const T* from) {
    Group group;
#pragma GCC unroll 8
    for (size_t k = 0; k < kGroupVectors; ++k) group.v[k] = hn::LoadU(d, from + k * kLanes);
    return group;
  };
  Gap<T> gap = {p, n};
  const auto splitGroup = [&](const Group& group) {
#pragma GCC unroll 8
    for (size_t k = 0; k < kGroupVectors; ++k) split(d, test, group.v[k], gap);
  };
  const Group first = load(p);
  const Group last = load(p + n - kGroup);
  Group group = load(p + kGroup);
  const T* unread = p + 2 * kGroup;
  size_t count = n - 3 * kGroup;
  // The next group is read before this one is split, which gives this one its room, and the
  // processor the time to find out where the next one is. It comes from the end with less space,
  // which nobody can foretell, so there is no branch.
  while (count >= kGroup) {
    const size_t space = static_cast<size_t>(unread - gap.left);
    const size_t fromRight = size_t{0} - static_cast<size_t>(space > 3 * kGroup / 2);
    count -= kGroup;
    const T* const from = unread + (count & fromRight);
    const Group next = load(from);
    unread += kGroup & ~fromRight;
    const T* const later = from + static_cast<ptrdiff_t>(fromRight ^ kPrefetchDistance);
#pragma GCC unroll 8
    for (size_t k = 0; k < kGroupVectors; ++k) hwy::Prefetch(later + k * kLanes);
    splitGroup(group);
    group = next;
  }
  // Less than a group is left, which is moved out of the way, with neighbours.
  HWY_ALIGN T rest[kGroup];
  const T* const from = HWY_MIN(unread, p + n - kGroup);
  const Group neighbours = load(from);
#pragma GCC unroll 8
  for (size_t k = 0; k < kGroupVectors; ++k) hn::Store(neighbours.v[k], d, rest + k * kLanes);
  splitGroup(group);
  size_t i = static_cast<size_t>(unread - from);
  const size_t end = i + count;
  for (; i + kLanes <= end; i += kLanes) split(d, test, hn::LoadU(d, rest + i), gap);
#pragma GCC unroll 1
  for (; i < end; ++i) splitOne(test, rest[i], gap);
  splitGroup(first);
  splitGroup(last);
  return static_cast<size_t>(gap.left - p);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
