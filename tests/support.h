// What the tests of all areas share.
#ifndef VEKS_TESTS_SUPPORT_H
#define VEKS_TESTS_SUPPORT_H

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "core/targets.h"

namespace veks::test {

// Runs the body on every SIMD target of this machine, with destinations written through the caches
// and past them, and leaves the library as it was loaded.
template <class Body>
void onEveryTarget(const Body& body) {
  const int best = targetCount() - 1;
  const size_t loaded = streamingBytes;
  for (int target = 0; target <= best; ++target) {
    for (size_t streaming : {loaded, size_t{0}}) {
      SCOPED_TRACE(std::string("on target ") + targetName(target));
      useTarget(target);
      streamingBytes = streaming;
      body();
    }
  }
  useTarget(best);
  streamingBytes = loaded;
}

// Lengths around the vector sizes, the unrolled loops and a page.
inline const std::vector<int>& testLengths() {
  static const std::vector<int> lengths = [] {
    std::vector<int> all;
    for (int n = 1; n <= 67; ++n) all.push_back(n);
    for (int n : {127, 128, 129, 1000, 4095, 4096, 4097}) all.push_back(n);
    return all;
  }();
  return lengths;
}

// Elements of random bits, the same in every run; NaN, infinities and denormals are among them.
template <class T>
std::vector<T> randomBits(size_t n, uint64_t seed = 1) {
  std::mt19937_64 random(seed);
  std::vector<T> elements(n);
  for (T& element : elements) {
    uint64_t words[2] = {random(), random()};
    static_assert(sizeof(T) <= sizeof(words));
    std::memcpy(&element, words, sizeof(T));
  }
  return elements;
}

// The same without NaN: which of two NaN operands a sum takes its bits from is not defined.
template <class T>
std::vector<T> randomElements(size_t n, uint64_t seed = 1) {
  std::vector<T> elements = randomBits<T>(n, seed);
  if constexpr (std::is_floating_point_v<T>) {
    for (T& x : elements) {
      if (x != x) x = std::numeric_limits<T>::infinity();
    }
  }
  return elements;
}

// Equality of bits, which holds for NaN and tells zeros apart.
template <class T>
testing::AssertionResult sameBits(const std::vector<T>& expected, const std::vector<T>& actual) {
  if (expected.size() != actual.size()) return testing::AssertionFailure() << "different lengths";
  for (size_t i = 0; i < expected.size(); ++i) {
    if (std::memcmp(&expected[i], &actual[i], sizeof(T)) != 0) {
      return testing::AssertionFailure() << "element " << i << " of " << expected.size()
                                         << ": expected " << testing::PrintToString(expected[i])
                                         << ", got " << testing::PrintToString(actual[i]);
    }
  }
  return testing::AssertionSuccess();
}

}  // namespace veks::test

#endif
