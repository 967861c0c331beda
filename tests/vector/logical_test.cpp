// Bitwise logic and shifts against element loops.
#include <algorithm>
#include <limits>

#include "support.h"
#include "vector/check_maps.h"
#include "veks/vector/logical.h"

namespace veks::test {
namespace {

TEST(Logical, And) {
  const auto reference = [](auto a, auto b) { return a & b; };
  checkTwo(veksAnd_8u, veksAnd_8u_I, reference);
  checkTwo(veksAnd_16u, veksAnd_16u_I, reference);
  checkTwo(veksAnd_32u, veksAnd_32u_I, reference);
  checkConstant(veksAndC_8u, veksAndC_8u_I, reference);
  checkConstant(veksAndC_16u, veksAndC_16u_I, reference);
  checkConstant(veksAndC_32u, veksAndC_32u_I, reference);
}

TEST(Logical, Or) {
  const auto reference = [](auto a, auto b) { return a | b; };
  checkTwo(veksOr_8u, veksOr_8u_I, reference);
  checkTwo(veksOr_16u, veksOr_16u_I, reference);
  checkTwo(veksOr_32u, veksOr_32u_I, reference);
  checkConstant(veksOrC_8u, veksOrC_8u_I, reference);
  checkConstant(veksOrC_16u, veksOrC_16u_I, reference);
  checkConstant(veksOrC_32u, veksOrC_32u_I, reference);
}

TEST(Logical, Xor) {
  const auto reference = [](auto a, auto b) { return a ^ b; };
  checkTwo(veksXor_8u, veksXor_8u_I, reference);
  checkTwo(veksXor_16u, veksXor_16u_I, reference);
  checkTwo(veksXor_32u, veksXor_32u_I, reference);
  checkConstant(veksXorC_8u, veksXorC_8u_I, reference);
  checkConstant(veksXorC_16u, veksXorC_16u_I, reference);
  checkConstant(veksXorC_32u, veksXorC_32u_I, reference);
}

TEST(Logical, Not) {
  const auto complement = [](auto& elements) {
    for (auto& x : elements) x = static_cast<std::decay_t<decltype(x)>>(~x);
  };
  checkMap(veksNot_8u, veksNot_8u_I, complement);
  checkMap(veksNot_16u, veksNot_16u_I, complement);
  checkMap(veksNot_32u, veksNot_32u_I, complement);
}

// In 64 bits, which hold every element; any count has a meaning.
template <class T>
T shiftedLeft(T x, int bits) {
  return bits > 63 ? T{0} : static_cast<T>(static_cast<uint64_t>(x) << bits);
}

template <class T>
T shiftedRight(T x, int bits) {
  return static_cast<T>(int64_t{x} >> std::min(bits, 63));
}

template <class T>
void checkShifts(VekStatus (*left)(const T*, int, T*, int), VekStatus (*leftIn)(int, T*, int),
                 VekStatus (*right)(const T*, int, T*, int), VekStatus (*rightIn)(int, T*, int)) {
  std::vector<int> counts;
  for (int bits = 0; bits <= 40; ++bits) counts.push_back(bits);
  for (int bits : {63, 64, 65, 100, 255, 256, 65536, std::numeric_limits<int>::max()}) {
    counts.push_back(bits);
  }
  const std::vector<int> lengths = {1, 2, 3, 7, 8, 15, 16, 31, 33, 64, 67, 129, 1000};
  checkParameter<T, int>(left, leftIn, counts, lengths, shiftedLeft<T>);
  checkParameter<T, int>(right, rightIn, counts, lengths, shiftedRight<T>);
}

TEST(Shift, MovesBitsByAnyCount) {
  checkShifts(veksLShiftC_8u, veksLShiftC_8u_I, veksRShiftC_8u, veksRShiftC_8u_I);
  checkShifts(veksLShiftC_16u, veksLShiftC_16u_I, veksRShiftC_16u, veksRShiftC_16u_I);
  checkShifts(veksLShiftC_16s, veksLShiftC_16s_I, veksRShiftC_16s, veksRShiftC_16s_I);
  checkShifts(veksLShiftC_32s, veksLShiftC_32s_I, veksRShiftC_32s, veksRShiftC_32s_I);
}

TEST(Shift, KnownValues) {
  const struct {
    VekStatus (*shift)(const Vek16s*, int, Vek16s*, int);
    Vek16s x;
    int bits;
    Vek16s result;
  } cases[] = {
      {veksRShiftC_16s, -5, 1, -3},    {veksRShiftC_16s, 5, 1, 2},
      {veksRShiftC_16s, -5, 16, -1},   {veksRShiftC_16s, 5, 100, 0},
      {veksRShiftC_16s, -1, 3, -1},    {veksLShiftC_16s, 0x4000, 1, -32768},
      {veksLShiftC_16s, 0x4000, 2, 0}, {veksLShiftC_16s, -1, 15, -32768},
      {veksLShiftC_16s, -1, 16, 0},
  };
  for (const auto& c : cases) {
    Vek16s result = 0;
    EXPECT_EQ(c.shift(&c.x, c.bits, &result, 1), vekStsOk);
    EXPECT_EQ(result, c.result) << c.x << " by " << c.bits;
  }
}

}  // namespace
}  // namespace veks::test
