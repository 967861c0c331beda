// Tables of permutations that bring some lanes of a vector before the others, each group in order.
// The index of an entry has one bit for each lane, set for lanes of the first group.
#ifndef VEKS_STATS_PERMUTATIONS_H
#define VEKS_STATS_PERMUTATIONS_H

#include <cstddef>
#include <cstdint>

namespace veks {

// For kLanes lanes that consist of kParts parts each: indices of parts, counted from 0, in elements
// of type Index that hold kPerIndex of them, the first one in the lowest bits.
template <class Index, size_t kPerIndex, size_t kLanes, size_t kParts>
struct Permutations {
  static constexpr size_t kBits = 8 * sizeof(Index) / kPerIndex;
  static constexpr size_t kSize = kLanes * kParts / kPerIndex;
  alignas(16) Index entries[size_t{1} << kLanes][kSize] = {};

  constexpr Permutations() {
    for (size_t first = 0; first < size_t{1} << kLanes; ++first) {
      size_t at = 0;
      for (const size_t group : {size_t{1}, size_t{0}}) {
        for (size_t lane = 0; lane < kLanes; ++lane) {
          if ((first >> lane & 1) != group) continue;
          for (size_t part = 0; part < kParts; ++part, ++at) {
            const Index index = static_cast<Index>(lane * kParts + part);
            Index& entry = entries[first][at / kPerIndex];
            entry = static_cast<Index>(entry | index << (at % kPerIndex * kBits));
          }
        }
      }
    }
  }
};

// Bytes for shuffles of 16 of them; eight indices of 4 bits each for permutations of eight parts.
template <size_t kLanes, size_t kParts>
inline constexpr Permutations<uint8_t, 1, kLanes, kParts> kBytePermutations = {};
template <size_t kLanes, size_t kParts>
inline constexpr Permutations<uint32_t, 8, kLanes, kParts> kPackedPermutations = {};

}  // namespace veks

#endif
