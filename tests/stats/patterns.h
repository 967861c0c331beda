// Vectors that sorting algorithms have met their worst case on.
#ifndef VEKS_TESTS_STATS_PATTERNS_H
#define VEKS_TESTS_STATS_PATTERNS_H

#include <algorithm>
#include <cstdint>
#include <functional>
#include <vector>

namespace veks::test {

template <class T>
T number(uint64_t x) {
  return static_cast<T>(x % (uint64_t{1} << (8 * sizeof(T) - 1)));
}

template <class T>
std::vector<T> fromRule(size_t n, const std::function<uint64_t(size_t)>& rule) {
  std::vector<T> elements(n);
  for (size_t i = 0; i < n; ++i) elements[i] = number<T>(rule(i));
  return elements;
}

// With many different elements, if T has as many.
template <class T>
std::vector<std::vector<T>> orderedPatterns(size_t n) {
  const size_t half = n / 2;
  const std::function<uint64_t(size_t)> rules[] = {
      [](size_t i) { return i; },                             // sorted
      [n](size_t i) { return n - i; },                        // reversed
      [n](size_t i) { return std::min(i, n - i); },           // organ pipe
      [n](size_t i) { return i == n / 2 ? 0 : i; },           // one out of place
      [](size_t i) { return i % 2 == 0 ? i : 1000000 - i; },  // two runs in turn
      [](size_t i) { return i % 5000; },                      // sawtooth
      // Median-of-three killer.
      [half](size_t i) {
        return i >= half ? 2 * (i - half + 1) : i % 2 == 0 ? i + 1 : half + i + half % 2;
      },
  };
  std::vector<std::vector<T>> all;
  for (const auto& rule : rules) all.push_back(fromRule<T>(n, rule));
  return all;
}

// With many elements that are equal.
template <class T>
std::vector<std::vector<T>> patternsOfEquals(size_t n) {
  return {
      fromRule<T>(n, [](size_t) { return 42; }),
      fromRule<T>(n, [](size_t i) { return i * i % 7; }),
      fromRule<T>(n, [](size_t i) { return i % 100 == 0 ? i : 100; }),
      fromRule<T>(n, [](size_t i) { return i % 2 == 0 ? 5 : i; }),
  };
}

}  // namespace veks::test

#endif
