// Exact sums of floats, as lists of doubles that do not overlap.
#ifndef VEKS_TESTS_STATS_EXACT_FLOAT_SUM_H
#define VEKS_TESTS_STATS_EXACT_FLOAT_SUM_H

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <utility>
#include <vector>

namespace veks::test {

// The list ascends; the value of its last element has the sign of the sum.
class ExactFloatSum {
 public:
  void add(double x) {
    size_t kept = 0;
    for (double y : parts_) {
      if (std::abs(x) < std::abs(y)) std::swap(x, y);
      const volatile double sum = x + y;
      const volatile double lost = y - (sum - x);
      if (lost != 0) parts_[kept++] = lost;
      x = sum;
    }
    parts_.resize(kept);
    if (x != 0) parts_.push_back(x);
  }

  // The sign of the sum - x.
  int compare(double x) const {
    ExactFloatSum difference = *this;
    difference.add(-x);
    if (difference.parts_.empty()) return 0;
    return difference.parts_.back() < 0 ? -1 : 1;
  }

  // Whether x is the float that the sum rounds to. The middle of two floats is a double, also
  // between the greatest float and 2^128.
  bool roundsTo(float x) const {
    const float infinity = std::numeric_limits<float>::infinity();
    const auto boundary = [&](float direction) {
      const auto finite = [](float y) {
        return std::isinf(y) ? std::copysign(0x1p128, static_cast<double>(y)) : double{y};
      };
      return (finite(x) + finite(std::nextafter(x, direction))) / 2;
    };
    uint32_t bits;
    std::memcpy(&bits, &x, sizeof(bits));
    const bool isEven = bits % 2 == 0;
    const int above = std::isinf(x) && x > 0 ? -1 : compare(boundary(infinity));
    const int below = std::isinf(x) && x < 0 ? 1 : compare(boundary(-infinity));
    if (std::isinf(x)) return x > 0 ? below >= 0 : above <= 0;
    return (above < 0 || (above == 0 && isEven)) && (below > 0 || (below == 0 && isEven));
  }

 private:
  std::vector<double> parts_;
};

}  // namespace veks::test

#endif
