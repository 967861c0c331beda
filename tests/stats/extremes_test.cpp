#include "veks/stats/extremes.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include "support.h"

namespace veks::test {
namespace {

// 1 .. 200, and lengths around multiples of the blocks that the search for a position works in.
const std::vector<int>& lengths() {
  static const std::vector<int> all = [] {
    std::vector<int> list;
    for (int n = 1; n <= 200; ++n) list.push_back(n);
    for (int n : {1000, 1023, 1024, 1025, 2049, 4095, 4096, 4100, 8193, 30001}) list.push_back(n);
    return list;
  }();
  return all;
}

// Vectors of all kinds: any bits, with and without NaN, few values with many ties, zeros of both
// signs, monotonous ones, constant ones.
template <class T>
std::vector<std::vector<T>> contents(int len) {
  const size_t n = static_cast<size_t>(len);
  const uint64_t seed = static_cast<uint64_t>(len);
  std::vector<std::vector<T>> all = {randomElements<T>(n, seed), randomBits<T>(n, seed)};
  std::mt19937_64 random(seed);
  const T levels[] = {T(0),
                      static_cast<T>(-T(0)),
                      T(1),
                      T(2),
                      static_cast<T>(T(0) - T(1)),
                      std::numeric_limits<T>::lowest(),
                      std::numeric_limits<T>::max()};
  for (const size_t count : {size_t{2}, size_t{4}, size_t{7}}) {
    std::vector<T> ties(n);
    for (T& x : ties) x = levels[random() % count];
    all.push_back(ties);
  }
  std::vector<T> sorted = all[0];
  std::sort(sorted.begin(), sorted.end());
  all.push_back(sorted);
  std::reverse(sorted.begin(), sorted.end());
  all.push_back(sorted);
  return all;
}

// What the pages promise, as a loop.
template <class T, class IsBeyond>
size_t positionOf(const std::vector<T>& src, IsBeyond isBeyond) {
  size_t best = 0;
  for (size_t i = 1; i < src.size(); ++i) {
    if (isBeyond(src[i], src[best])) best = i;
  }
  return best;
}

template <class T>
::testing::AssertionResult same(T expected, T got) {
  return sameBits<T>({expected}, {got});
}

template <class T>
using Value = VekStatus (*)(const T*, int, T*);
template <class T>
using ValueAndIndex = VekStatus (*)(const T*, int, T*, int*);

template <class T, class IsBeyond>
void checkExtreme(Value<T> value, ValueAndIndex<T> valueAndIndex, const std::vector<T>& src,
                  IsBeyond isBeyond) {
  const int len = static_cast<int>(src.size());
  const size_t position = positionOf(src, isBeyond);
  const T expected = src[position];
  T got = T(77);
  ASSERT_EQ(value(src.data(), len, &got), vekStsOk);
  ASSERT_TRUE(same(expected, got)) << "len " << len;
  int index = -1;
  got = T(77);
  ASSERT_EQ(valueAndIndex(src.data(), len, &got, &index), vekStsOk);
  ASSERT_TRUE(same(expected, got)) << "with an index, len " << len;
  ASSERT_EQ(index, static_cast<int>(position)) << "len " << len;
  got = T(77);
  ASSERT_EQ(valueAndIndex(src.data(), len, &got, nullptr), vekStsOk);
  ASSERT_TRUE(same(expected, got)) << "without an index, len " << len;
}

template <class T>
struct Functions {
  Value<T> min;
  Value<T> max;
  ValueAndIndex<T> minIndex;
  ValueAndIndex<T> maxIndex;

  void check(const std::vector<T>& src) const {
    checkExtreme(min, minIndex, src, std::less<T>());
    checkExtreme(max, maxIndex, src, std::greater<T>());
  }
};

template <class T>
void checkContents(const Functions<T>& functions) {
  onEveryTarget([&] {
    for (const int len : lengths()) {
      for (const std::vector<T>& src : contents<T>(len)) functions.check(src);
    }
  });
}

// The extreme at every position, a second time behind it, and values close to it before.
template <class T>
void checkPositions(const Functions<T>& functions) {
  onEveryTarget([&] {
    std::vector<T> src(5001);
    for (size_t i = 0; i < src.size(); i += i < 140 || i % 1024 > 1020 ? 1 : 79) {
      for (const T extreme : {T(5), static_cast<T>(-5)}) {
        const std::vector<std::pair<size_t, T>> changes = {
            {i / 2, static_cast<T>(extreme / 2)}, {i, extreme}, {(i + src.size()) / 2, extreme}};
        for (const auto& [at, value] : changes) src[at] = value;
        functions.check(src);
        if (testing::Test::HasFatalFailure()) return;
        for (const auto& change : changes) src[change.first] = 0;
      }
    }
  });
}

template <class T>
void checkNan(const Functions<T>& functions) {
  const T nan = -std::numeric_limits<T>::quiet_NaN();
  onEveryTarget([&] {
    for (int len = 1; len <= 71; ++len) {
      for (size_t at = 0; at < static_cast<size_t>(len); ++at) {
        std::vector<T> src(static_cast<size_t>(len), T(-1));
        src[at] = nan;
        functions.check(src);
        src.back() = -std::numeric_limits<T>::infinity();
        functions.check(src);
      }
      functions.check(std::vector<T>(static_cast<size_t>(len), nan));
    }
  });
}

const Functions<Vek16s> k16s = {veksMin_16s, veksMax_16s, veksMinIndx_16s, veksMaxIndx_16s};
const Functions<Vek32s> k32s = {veksMin_32s, veksMax_32s, veksMinIndx_32s, veksMaxIndx_32s};
const Functions<Vek32f> k32f = {veksMin_32f, veksMax_32f, veksMinIndx_32f, veksMaxIndx_32f};
const Functions<Vek64f> k64f = {veksMin_64f, veksMax_64f, veksMinIndx_64f, veksMaxIndx_64f};

TEST(Extremes, OfAllKindsOfVectors) {
  checkContents(k16s);
  checkContents(k32s);
  checkContents(k32f);
  checkContents(k64f);
}

TEST(Extremes, AtEveryPosition) {
  checkPositions(k16s);
  checkPositions(k32s);
  checkPositions(k32f);
  checkPositions(k64f);
}

TEST(Extremes, NanAtEveryPosition) {
  checkNan(k32f);
  checkNan(k64f);
}

template <class T>
void checkMinMax(VekStatus (*minMax)(const T*, int, T*, T*)) {
  onEveryTarget([&] {
    for (const int len : lengths()) {
      for (const std::vector<T>& src : contents<T>(len)) {
        T min = T(77);
        T max = T(77);
        ASSERT_EQ(minMax(src.data(), len, &min, &max), vekStsOk);
        ASSERT_TRUE(same(src[positionOf(src, std::less<T>())], min)) << "len " << len;
        ASSERT_TRUE(same(src[positionOf(src, std::greater<T>())], max)) << "len " << len;
      }
    }
  });
}

TEST(Extremes, Both) {
  checkMinMax(veksMinMax_8u);
  checkMinMax(veksMinMax_16u);
  checkMinMax(veksMinMax_16s);
  checkMinMax(veksMinMax_32u);
  checkMinMax(veksMinMax_32s);
  checkMinMax(veksMinMax_32f);
  checkMinMax(veksMinMax_64f);
}

template <class T, class IsBeyond>
void checkEvery(VekStatus (*function)(const T*, T*, int), IsBeyond isBeyond) {
  onEveryTarget([&] {
    for (const int len : testLengths()) {
      std::vector<std::vector<T>> vectors = contents<T>(len);
      for (size_t i = 0; i < vectors.size(); ++i) {
        const std::vector<T>& src = vectors[i];
        std::vector<T> srcDst = vectors[(i + 1) % vectors.size()];
        std::vector<T> expected = srcDst;
        for (size_t k = 0; k < src.size(); ++k) {
          if (isBeyond(src[k], srcDst[k])) expected[k] = src[k];
        }
        ASSERT_EQ(function(src.data(), srcDst.data(), len), vekStsOk);
        ASSERT_TRUE(sameBits(expected, srcDst));
      }
    }
  });
}

TEST(Extremes, OfEveryElement) {
  checkEvery(veksMinEvery_16s_I, std::less<Vek16s>());
  checkEvery(veksMinEvery_32s_I, std::less<Vek32s>());
  checkEvery(veksMinEvery_32f_I, std::less<Vek32f>());
  checkEvery(veksMinEvery_64f_I, std::less<Vek64f>());
  checkEvery(veksMaxEvery_16s_I, std::greater<Vek16s>());
  checkEvery(veksMaxEvery_32s_I, std::greater<Vek32s>());
  checkEvery(veksMaxEvery_32f_I, std::greater<Vek32f>());
  checkEvery(veksMaxEvery_64f_I, std::greater<Vek64f>());
}

template <class T>
int orderOf(T x) {
  if (std::isnan(x) || x == 0) return 0;
  if (std::isinf(x)) return std::numeric_limits<T>::max_exponent + 1;
  int exponent = 0;
  std::frexp(x, &exponent);  // a mantissa from 1/2 on
  return exponent;
}
template <>
int orderOf(Vek32s x) {
  int order = 0;
  for (int64_t magnitude = std::abs(int64_t{x}); magnitude > 0; magnitude /= 2) ++order;
  return order;
}
template <>
int orderOf(Vek16s x) {
  return orderOf(Vek32s{x});
}

// The order of one element among smaller ones, everywhere.
template <class T>
void checkMaxOrder(VekStatus (*maxOrder)(const T*, int, int*), std::vector<T> elements) {
  for (const T& x : randomBits<T>(50)) elements.push_back(x);
  onEveryTarget([&] {
    for (const T x : elements) {
      const bool isNan = x != x;
      for (const int len : {1, 2, 3, 7, 20, 64, 100, 1001}) {
        for (const int at : {0, len / 3, len - 1}) {
          std::vector<T> src(static_cast<size_t>(len));
          src[static_cast<size_t>(len / 2)] = static_cast<T>(x / 2);
          src[static_cast<size_t>(at)] = x;
          int order = 999;
          ASSERT_EQ(maxOrder(src.data(), len, &order), isNan ? vekWrnNanArg : vekStsOk);
          ASSERT_EQ(order, orderOf(x)) << +x << " at " << at << " of " << len;
        }
      }
    }
  });
}

template <class T>
std::vector<T> specialFloats() {
  using Limits = std::numeric_limits<T>;
  std::vector<T> all = {T(0),
                        -T(0),
                        Limits::max(),
                        Limits::lowest(),
                        Limits::min(),
                        T(-3),
                        Limits::infinity(),
                        -Limits::infinity(),
                        T(0.5),
                        Limits::quiet_NaN(),
                        Limits::denorm_min()};
  for (int e = Limits::min_exponent - Limits::digits; e <= Limits::max_exponent; e += 7) {
    all.push_back(std::ldexp(T(0.5), e));
    all.push_back(std::nextafter(all.back(), T(0)));
  }
  return all;
}

TEST(Extremes, MaxOrder) {
  checkMaxOrder<Vek16s>(veksMaxOrder_16s, {0, 1, -1, 2, 3, -4, 255, 256, 32767, -32767, -32768});
  checkMaxOrder<Vek32s>(veksMaxOrder_32s, {0, 1, -1, 65535, 65536, std::numeric_limits<int>::max(),
                                           std::numeric_limits<int>::min()});
  checkMaxOrder(veksMaxOrder_32f, specialFloats<Vek32f>());
  checkMaxOrder(veksMaxOrder_64f, specialFloats<Vek64f>());
}

TEST(Extremes, MaxOrderBesideNan) {
  for (size_t at = 0; at <= 70; ++at) {
    std::vector<Vek32f> src(71, -3.0F);
    src[at] = std::numeric_limits<Vek32f>::quiet_NaN();
    int order = 999;
    EXPECT_EQ(veksMaxOrder_32f(src.data(), 71, &order), vekWrnNanArg);
    EXPECT_EQ(order, 2);
  }
}

}  // namespace
}  // namespace veks::test
