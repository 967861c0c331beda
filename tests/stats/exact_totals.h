// Exact totals of integers, and of floating-point values that are integers.
#ifndef VEKS_TESTS_STATS_EXACT_TOTALS_H
#define VEKS_TESTS_STATS_EXACT_TOTALS_H

#include <cmath>

#include "exact.h"
#include "support.h"
#include "veks/status.h"
#include "veks/types.h"

namespace veks::test {

struct ExactParts {
  Exact re;
  Exact im;
};

inline ExactParts operator+(const ExactParts& a, const ExactParts& b) {
  return {a.re + b.re, a.im + b.im};
}
inline ExactParts operator*(const ExactParts& a, const ExactParts& b) {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

template <class T>
ExactParts exactParts(T x) {
  if constexpr (std::is_class_v<T>) {
    return {exact(static_cast<int64_t>(x.re)), exact(static_cast<int64_t>(x.im))};
  } else {
    return {exact(static_cast<int64_t>(x)), exact(0)};
  }
}

// Scaled and saturated, or rounded to a floating-point type.
template <class R>
R resultOf(const ExactParts& total, int scaleFactor) {
  if constexpr (std::is_class_v<R>) {
    using T = decltype(R::re);
    return {resultOf<T>({total.re, total.im}, scaleFactor),
            resultOf<T>({total.im, total.re}, scaleFactor)};
  } else if constexpr (std::is_floating_point_v<R>) {
    const auto magnitude = static_cast<long double>(total.re.low);
    return static_cast<R>(total.re.negative ? 0 - magnitude : magnitude);
  } else {
    return scaled<R>(total.re, scaleFactor);
  }
}

enum class Elements { kSmall, kRandom, kMin, kMax, kLimits };

template <class T>
std::vector<T> elementsOf(Elements kind, size_t n, uint64_t seed) {
  if constexpr (std::is_class_v<T>) {
    using Part = decltype(T::re);
    const std::vector<Part> parts = elementsOf<Part>(kind, 2 * n, seed);
    std::vector<T> elements(n);
    for (size_t i = 0; i < n; ++i) elements[i] = {parts[2 * i], parts[2 * i + 1]};
    return elements;
  } else {
    using Limits = std::numeric_limits<T>;
    std::mt19937_64 random(seed);
    std::vector<T> elements(n);
    for (T& x : elements) {
      const uint64_t bits = random();
      if (kind == Elements::kSmall) x = static_cast<T>(static_cast<int>(bits % 17) - 8);
      if (kind == Elements::kRandom) x = static_cast<T>(bits);
      if (kind == Elements::kMin) x = Limits::min();
      if (kind == Elements::kMax) x = Limits::max();
      if (kind == Elements::kLimits) x = bits % 8 == 0 ? Limits::max() : Limits::min();
    }
    return elements;
  }
}

// What call(len, result, scaleFactor) gives against the totals of the first len elements, made of
// as many terms: all lengths up to 200, some around blocks and all of them.
template <class R, class Call>
void checkTotals(const std::vector<ExactParts>& terms, bool isScaled, const Call& call) {
  const size_t n = terms.size();
  std::vector<ExactParts> totals = {exactParts(0)};
  for (const ExactParts& term : terms) totals.push_back(totals.back() + term);
  std::vector<size_t> lengths;
  for (size_t len = 1; len <= n; ++len) {
    const size_t fromBlock = (len + 2) % 2048;
    if (len <= 200 || len == n || (fromBlock < 5 && len % 8192 < 5000)) lengths.push_back(len);
  }
  const std::vector<int> unscaled = {0};
  const std::vector<int>& factors = isScaled ? scaleFactors() : unscaled;
  onEveryTarget([&] {
    size_t turn = 0;
    for (size_t len : lengths) {
      const bool inTurn = len != n && len != 37;
      for (size_t k = 0; k < (inTurn ? 1 : factors.size()); ++k) {
        const int s = factors[inTurn ? turn++ % factors.size() : k];
        std::vector<R> result(1);
        ASSERT_EQ(call(static_cast<int>(len), result.data(), s), vekStsOk);
        ASSERT_TRUE(sameBits(std::vector<R>{resultOf<R>(totals[len], s)}, result))
            << "length " << len << ", scale factor " << s;
      }
    }
  });
}

// The contents that a type can have.
template <class T>
std::vector<Elements> contents() {
  if constexpr (std::is_class_v<T>) {
    return contents<decltype(T::re)>();
  } else {
    if (std::is_floating_point_v<T>) return {Elements::kSmall};
    return {Elements::kSmall, Elements::kRandom, Elements::kMin, Elements::kMax, Elements::kLimits};
  }
}

}  // namespace veks::test

#endif
