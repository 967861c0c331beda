// Filling, copying, reversing and byte-swapping against element loops.
#include <algorithm>

#include "support.h"
#include "vector/check_maps.h"
#include "veks/vector/initialisation.h"

namespace veks::test {
namespace {

template <class T>
void checkSet(VekStatus (*set)(T, T*, int)) {
  const std::vector<T> values = randomBits<T>(20);
  onEveryTarget([&] {
    for (int len : testLengths()) {
      const T value = values[static_cast<size_t>(len) % values.size()];
      std::vector<T> dst = randomBits<T>(static_cast<size_t>(len));
      ASSERT_EQ(set(value, dst.data(), len), vekStsOk);
      ASSERT_TRUE(sameBits(std::vector<T>(dst.size(), value), dst));
    }
  });
}

TEST(Set, FillsWithTheBitsOfTheValue) {
  checkSet(veksSet_8u);
  checkSet(veksSet_16s);
  checkSet(veksSet_32s);
  checkSet(veksSet_64s);
  checkSet(veksSet_32f);
  checkSet(veksSet_64f);
  checkSet(veksSet_16sc);
  checkSet(veksSet_32sc);
  checkSet(veksSet_64sc);
  checkSet(veksSet_32fc);
  checkSet(veksSet_64fc);
}

template <class T>
void checkZero(VekStatus (*zero)(T*, int)) {
  onEveryTarget([&] {
    for (int len : testLengths()) {
      std::vector<T> dst = randomBits<T>(static_cast<size_t>(len));
      ASSERT_EQ(zero(dst.data(), len), vekStsOk);
      ASSERT_TRUE(sameBits(std::vector<T>(dst.size(), T{}), dst));
    }
  });
}

TEST(Zero, ClearsAllBits) {
  checkZero(veksZero_8u);
  checkZero(veksZero_16s);
  checkZero(veksZero_32s);
  checkZero(veksZero_64s);
  checkZero(veksZero_32f);
  checkZero(veksZero_64f);
  checkZero(veksZero_16sc);
  checkZero(veksZero_32sc);
  checkZero(veksZero_64sc);
  checkZero(veksZero_32fc);
  checkZero(veksZero_64fc);
}

template <class T>
void checkCopy(VekStatus (*copy)(const T*, T*, int)) {
  onEveryTarget([&] {
    for (int len : testLengths()) {
      const std::vector<T> src = randomBits<T>(static_cast<size_t>(len));
      std::vector<T> dst(src.size());
      ASSERT_EQ(copy(src.data(), dst.data(), len), vekStsOk);
      ASSERT_TRUE(sameBits(src, dst));
    }
  });
}

TEST(Copy, CopiesBits) {
  checkCopy(veksCopy_8u);
  checkCopy(veksCopy_16s);
  checkCopy(veksCopy_32s);
  checkCopy(veksCopy_64s);
  checkCopy(veksCopy_32f);
  checkCopy(veksCopy_64f);
  checkCopy(veksCopy_16sc);
  checkCopy(veksCopy_32sc);
  checkCopy(veksCopy_64sc);
  checkCopy(veksCopy_32fc);
  checkCopy(veksCopy_64fc);
}

// Every distance between source and destination up to beyond two vectors of bytes, both ways.
template <class T>
void checkMove(VekStatus (*move)(const T*, T*, int)) {
  checkCopy(move);
  constexpr size_t kReach = 130;
  onEveryTarget([&] {
    for (int len : {1, 2, 3, 5, 8, 16, 17, 31, 32, 33, 64, 65, 100, 129, 131, 400, 1000}) {
      const std::vector<T> before = randomBits<T>(static_cast<size_t>(len) + 2 * kReach);
      for (size_t to = 0; to <= 2 * kReach; ++to) {
        std::vector<T> expected = before;
        std::copy_n(before.begin() + kReach, len, expected.begin() + static_cast<ptrdiff_t>(to));
        std::vector<T> actual = before;
        ASSERT_EQ(move(actual.data() + kReach, actual.data() + to, len), vekStsOk);
        ASSERT_TRUE(sameBits(expected, actual)) << len << " elements moved to " << to;
      }
    }
  });
}

TEST(Move, CopiesOverlappingVectors) {
  checkMove(veksMove_8u);
  checkMove(veksMove_16s);
  checkMove(veksMove_32s);
  checkMove(veksMove_64s);
  checkMove(veksMove_32f);
  checkMove(veksMove_64f);
  checkMove(veksMove_16sc);
  checkMove(veksMove_32sc);
  checkMove(veksMove_64sc);
  checkMove(veksMove_32fc);
  checkMove(veksMove_64fc);
}

TEST(Flip, ReversesTheElements) {
  const auto reverse = [](auto& elements) { std::reverse(elements.begin(), elements.end()); };
  checkMap(veksFlip_8u, veksFlip_8u_I, reverse);
  checkMap(veksFlip_16u, veksFlip_16u_I, reverse);
  checkMap(veksFlip_32f, veksFlip_32f_I, reverse);
  checkMap(veksFlip_64f, veksFlip_64f_I, reverse);
  checkMap(veksFlip_16sc, veksFlip_16sc_I, reverse);
  checkMap(veksFlip_32fc, veksFlip_32fc_I, reverse);
  checkMap(veksFlip_64fc, veksFlip_64fc_I, reverse);
}

// Reverses the bytes of each element of kBytes bytes.
template <size_t kBytes>
struct ReverseBytes {
  template <class T>
  void operator()(std::vector<T>& elements) const {
    auto* const bytes = reinterpret_cast<unsigned char*>(elements.data());
    const size_t size = elements.size() * sizeof(T);
    for (size_t i = 0; i < size; i += kBytes) std::reverse(bytes + i, bytes + i + kBytes);
  }
};

TEST(SwapBytes, ReversesTheBytesOfEachElement) {
  checkMap(veksSwapBytes_16u, veksSwapBytes_16u_I, ReverseBytes<2>());
  checkMap(veksSwapBytes_24u, veksSwapBytes_24u_I, ReverseBytes<3>(), 3);
  checkMap(veksSwapBytes_32u, veksSwapBytes_32u_I, ReverseBytes<4>());
}

}  // namespace
}  // namespace veks::test
