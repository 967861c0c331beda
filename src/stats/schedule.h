// The plan by which a block of vectors is sorted in registers.
//
// A block of 2^r vectors of 2^l lanes is sorted by Batcher's methods: an odd-even merge network
// sorts the columns, then bitonic merges join 2, 4, 8 ... columns. Positions have r + l bits. The r
// lowest ones stand for the place in a column, those above for the column. A stage of a merge
// compares elements whose positions differ in one bit; that is minimum and maximum of two vectors,
// if the bit is one of the register number. Bits of the lane number are exchanged with bits of the
// register number before: the bit that is needed last makes room, as in caches.
#ifndef VEKS_STATS_SCHEDULE_H
#define VEKS_STATS_SCHEDULE_H

#include <cstddef>

namespace veks {

// kExchange: the bit `lane` of lane numbers and the bit `reg` of register numbers change places.
// kCompare: vectors whose numbers differ in the bit `reg`. kColumns: sorts the columns. kFlip: the
// lanes whose number has one bit set, `lane` or `other`, but not both, change the order they are
// sorted by; `other` is -1 where there is only one.
enum class StepKind { kColumns, kExchange, kCompare, kFlip };

struct Step {
  StepKind kind = StepKind::kColumns;
  int reg = 0;
  int lane = 0;
  int other = -1;
};

// The plan for 2^kRegBits vectors of 2^kLaneBits lanes.
template <int kRegBits, int kLaneBits>
struct Schedule {
  static constexpr int kMaxSteps = 96;
  Step steps[kMaxSteps] = {};
  size_t count = 0;
  int reg[kRegBits + 1] = {};    // which bit of the position each bit of the register number is
  int lane[kLaneBits + 1] = {};  // the same for the bits of the lane number

  constexpr Schedule() {
    for (int i = 0; i < kRegBits; ++i) reg[i] = i;
    for (int i = 0; i < kLaneBits; ++i) lane[i] = kRegBits + i;
    if (kLaneBits > 0) add({StepKind::kFlip, 0, 0, -1});
    add({StepKind::kColumns, 0, 0, -1});
    for (int round = 1; round <= kLaneBits; ++round) {
      add({StepKind::kFlip, 0, round - 1, round < kLaneBits ? round : -1});
      for (int bit = kRegBits + round - 1; bit >= 0; --bit) compare(bit, round);
    }
    putLanesInOrder();
  }

  // Where in the sorted block the vector of that number belongs.
  constexpr size_t place(size_t number) const {
    size_t at = 0;
    for (int i = 0; i < kRegBits; ++i) {
      if ((number >> i & 1) != 0) at |= size_t{1} << (reg[i] - kLaneBits);
    }
    return at;
  }

 private:
  constexpr void add(Step step) {
    steps[count++] = step;
  }

  constexpr void exchange(int r, int l) {
    add({StepKind::kExchange, r, l, -1});
    const int bit = reg[r];
    reg[r] = lane[l];
    lane[l] = bit;
  }

  // Stages from now on, at `bit` of `round`, to the next one that needs `wanted`.
  static constexpr int distance(int wanted, int bit, int round) {
    int stages = 0;
    for (; round <= kLaneBits; ++round) {
      for (; bit >= 0; --bit, ++stages) {
        if (bit == wanted) return stages;
      }
      bit = kRegBits + round;
    }
    return 1000;
  }

  constexpr void compare(int bit, int round) {
    int at = find(reg, kRegBits, bit);
    if (at < 0) {
      const int from = find(lane, kLaneBits, bit);
      int best = -1;
      for (int i = 0; i < kRegBits; ++i) {
        int after = distance(reg[i], bit, round);
        // One that is not needed any more and belongs there is the best.
        if (after == 1000 && reg[i] == from) ++after;
        if (after > best) {
          best = after;
          at = i;
        }
      }
      exchange(at, from);
    }
    add({StepKind::kCompare, at, 0, -1});
  }

  constexpr void putLanesInOrder() {
    for (int i = 0; i < kLaneBits; ++i) {
      if (lane[i] == i) continue;
      if (find(reg, kRegBits, i) < 0) exchange(0, find(lane, kLaneBits, i));
      exchange(find(reg, kRegBits, i), i);
    }
  }

  static constexpr int find(const int* bits, int n, int wanted) {
    for (int i = 0; i < n; ++i) {
      if (bits[i] == wanted) return i;
    }
    return -1;
  }
};

// Batcher's odd-even merge sort of n vectors, a power of two.
template <size_t n>
struct ColumnNetwork {
  size_t low[n * 4 + 1] = {};
  size_t high[n * 4 + 1] = {};
  size_t count = 0;

  constexpr ColumnNetwork() {
    for (size_t p = 1; p < n; p *= 2) {
      for (size_t k = p; k >= 1; k /= 2) {
        for (size_t j = k % p; j + k < n; j += 2 * k) {
          for (size_t i = 0; i < k && i + j + k < n; ++i) {
            if ((i + j) / (2 * p) != (i + j + k) / (2 * p)) continue;
            low[count] = i + j;
            high[count] = i + j + k;
            ++count;
          }
        }
      }
    }
  }
};

}  // namespace veks

#endif
