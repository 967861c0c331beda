// Sorting against the sort of the standard library, on keys that tell all bit patterns apart.
#include "veks/stats/sorting.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "stats/patterns.h"
#include "support.h"

namespace veks::test {
namespace {

// Whether x stands before y: NaN behind all others, -0 below +0.
template <class T>
bool isBefore(T x, T y, bool ascending) {
  if constexpr (std::is_floating_point_v<T>) {
    if (std::isnan(x) || std::isnan(y)) return std::isnan(y) && !std::isnan(x);
    if (x == y) {
      return ascending ? std::signbit(x) && !std::signbit(y) : std::signbit(y) && !std::signbit(x);
    }
  }
  return ascending ? x < y : x > y;
}

// NaN among each other have an order of no interest: their bits are sorted.
template <class T>
void sortNans(std::vector<T>& elements) {
  if constexpr (std::is_floating_point_v<T>) {
    const auto nans = std::find_if(elements.begin(), elements.end(), [](T x) { return x != x; });
    std::sort(nans, elements.end(),
              [](const T& x, const T& y) { return std::memcmp(&x, &y, sizeof(T)) < 0; });
  }
}

template <class T>
using Sort = VekStatus (*)(T*, int);

template <class T>
void check(Sort<T> sort, bool ascending, const std::vector<T>& elements) {
  std::vector<T> expected = elements;
  std::sort(expected.begin(), expected.end(), [=](T x, T y) { return isBefore(x, y, ascending); });
  sortNans(expected);
  std::vector<T> sorted = elements;
  ASSERT_EQ(sort(sorted.data(), static_cast<int>(sorted.size())), vekStsOk);
  sortNans(sorted);
  ASSERT_TRUE(sameBits(expected, sorted));
}

// Signs of zero, infinities and NaN of both signs among few other values.
template <class T>
std::vector<T> specialValues(size_t n) {
  using Limits = std::numeric_limits<T>;
  const T values[] = {
      T(0),  T(-0.0), Limits::infinity(),  -Limits::infinity(),  Limits::max(),
      T(-1), T(1),    Limits::quiet_NaN(), -Limits::quiet_NaN(), Limits::denorm_min()};
  std::mt19937_64 random(n);
  std::vector<T> elements(n);
  for (T& x : elements) x = values[random() % std::size(values)];
  return elements;
}

template <class T>
std::vector<std::vector<T>> vectorsOf(size_t n) {
  std::vector<std::vector<T>> all = orderedPatterns<T>(n);
  for (auto& equals : patternsOfEquals<T>(n)) all.push_back(std::move(equals));
  all.push_back(randomBits<T>(n, n));
  if constexpr (std::is_floating_point_v<T>) {
    all.push_back(specialValues<T>(n));
    all.emplace_back(n, std::numeric_limits<T>::quiet_NaN());
    all.emplace_back(n, T(-0.0));
  }
  return all;
}

template <class T>
void checkAll(Sort<T> ascend, Sort<T> descend) {
  onEveryTarget([=] {
    for (size_t n = 1; n <= 600; ++n) {
      const std::vector<T> elements = randomBits<T>(n, n);
      ASSERT_NO_FATAL_FAILURE(check(ascend, true, elements)) << n;
      ASSERT_NO_FATAL_FAILURE(check(descend, false, elements)) << n;
      if constexpr (std::is_floating_point_v<T>) {
        ASSERT_NO_FATAL_FAILURE(check(ascend, true, specialValues<T>(n))) << n;
        ASSERT_NO_FATAL_FAILURE(check(descend, false, specialValues<T>(n))) << n;
      }
    }
    for (const size_t n : {size_t{700}, size_t{4096}, size_t{30011}}) {
      for (const std::vector<T>& elements : vectorsOf<T>(n)) {
        ASSERT_NO_FATAL_FAILURE(check(ascend, true, elements)) << n;
        ASSERT_NO_FATAL_FAILURE(check(descend, false, elements)) << n;
      }
    }
  });
}

TEST(Sort, Integers) {
  checkAll(veksSortAscend_8u_I, veksSortDescend_8u_I);
  checkAll(veksSortAscend_16s_I, veksSortDescend_16s_I);
  checkAll(veksSortAscend_32s_I, veksSortDescend_32s_I);
}

TEST(Sort, Floats) {
  checkAll(veksSortAscend_32f_I, veksSortDescend_32f_I);
  checkAll(veksSortAscend_64f_I, veksSortDescend_64f_I);
}

// Each bit pattern some times, which takes all ways of counting.
TEST(Sort, AllValuesOf16Bits) {
  std::vector<Vek16s> all(5 * 65536 / 2);
  for (size_t i = 0; i < all.size(); ++i) all[i] = static_cast<Vek16s>(i * 40503);
  std::vector<Vek16s> narrow(20000);
  for (size_t i = 0; i < narrow.size(); ++i) narrow[i] = static_cast<Vek16s>(32767 - i * i % 900);
  onEveryTarget([&] {
    for (const std::vector<Vek16s>& elements : {all, narrow}) {
      ASSERT_NO_FATAL_FAILURE(check(veksSortAscend_16s_I, true, elements));
      ASSERT_NO_FATAL_FAILURE(check(veksSortDescend_16s_I, false, elements));
    }
  });
}

TEST(Sort, MillionElements) {
  const std::vector<Vek32f> elements = randomBits<Vek32f>(1000003);
  onEveryTarget([&] { ASSERT_NO_FATAL_FAILURE(check(veksSortAscend_32f_I, true, elements)); });
}

// With one element more, which is found last, before them and among them.
template <class T>
void checkFewValues(Sort<T> ascend, Sort<T> descend) {
  onEveryTarget([=] {
    for (const size_t n : {size_t{33000}, size_t{100003}}) {
      std::vector<std::vector<T>> all = patternsOfEquals<T>(n);
      for (const T last : {T(3), static_cast<T>(-1), T(100)}) {
        all.push_back(fromRule<T>(n, [](size_t i) { return i * i % 11 + i % 3; }));
        all.back().back() = last;
      }
      if constexpr (std::is_floating_point_v<T>) {
        all.push_back(specialValues<T>(n));
        all.push_back(fromRule<T>(n, [](size_t i) { return i % 4; }));
        all.back()[n - 9] = T(-0.0);
      }
      for (const std::vector<T>& elements : all) {
        ASSERT_NO_FATAL_FAILURE(check(ascend, true, elements)) << n;
        ASSERT_NO_FATAL_FAILURE(check(descend, false, elements)) << n;
      }
    }
  });
}

TEST(Sort, FewValuesOfManyElements) {
  checkFewValues(veksSortAscend_8u_I, veksSortDescend_8u_I);
  checkFewValues(veksSortAscend_32s_I, veksSortDescend_32s_I);
  checkFewValues(veksSortAscend_32f_I, veksSortDescend_32f_I);
  checkFewValues(veksSortAscend_64f_I, veksSortDescend_64f_I);
}

// More than the counters of bytes take in at once.
TEST(Sort, ManyBytes) {
  const std::vector<Vek8u> elements = randomBits<Vek8u>(1100003);
  const std::vector<Vek8u> equal(1100003, 7);
  onEveryTarget([&] {
    ASSERT_NO_FATAL_FAILURE(check(veksSortAscend_8u_I, true, elements));
    ASSERT_NO_FATAL_FAILURE(check(veksSortDescend_8u_I, false, equal));
  });
}

TEST(Sort, KnownValues) {
  Vek16s elements[] = {3, -1, 2};
  EXPECT_EQ(veksSortDescend_16s_I(elements, 3), vekStsOk);
  EXPECT_EQ(elements[0], 3);
  EXPECT_EQ(elements[1], 2);
  EXPECT_EQ(elements[2], -1);
}

// The places of NaN are the same everywhere, too.
TEST(Sort, SameBitsOnEveryTarget) {
  std::vector<Vek32f> first;
  onEveryTarget([&first] {
    std::vector<Vek32f> elements = randomBits<Vek32f>(50000, 3);
    for (size_t i = 0; i < elements.size(); i += 7) {
      const uint32_t nan = 0xFFC00000U + static_cast<uint32_t>(i);
      std::memcpy(&elements[i], &nan, sizeof(nan));
    }
    ASSERT_EQ(veksSortAscend_32f_I(elements.data(), 50000), vekStsOk);
    if (first.empty()) first = elements;
    ASSERT_TRUE(sameBits(first, elements));
  });
}

}  // namespace
}  // namespace veks::test
