#ifndef VEKS_VECTOR_ARITHMETIC_EXACT_QUOTIENT_H
#define VEKS_VECTOR_ARITHMETIC_EXACT_QUOTIENT_H

#include <cstdint>
#include <limits>

namespace veks {

// dividend / divisor * 2^-scaleFactor, scaleFactor < 0, to nearest with ties to even, saturated; a
// zero divisor gives 0 or the limit of the dividend's sign.
inline int32_t enlargedQuotient(int32_t dividend, int32_t divisor, int scaleFactor) {
  constexpr int32_t kMax = std::numeric_limits<int32_t>::max();
  constexpr int32_t kMin = std::numeric_limits<int32_t>::min();
  if (dividend == 0) return 0;
  const bool negative = (dividend < 0) != (divisor < 0);
  const int32_t limit = negative ? kMin : kMax;
  if (divisor == 0) return limit;
  uint64_t rest =
      dividend < 0 ? 0 - static_cast<uint64_t>(dividend) : static_cast<uint64_t>(dividend);
  const uint64_t by =
      divisor < 0 ? 0 - static_cast<uint64_t>(divisor) : static_cast<uint64_t>(divisor);
  // From 2^62 on, the quotient is 2^31 at least.
  if (scaleFactor < -62 || rest >= (uint64_t{1} << 62) >> -scaleFactor) return limit;
  rest <<= -scaleFactor;
  uint64_t quotient = rest / by;
  rest -= quotient * by;
  if (2 * rest > by || (2 * rest == by && quotient % 2 == 1)) ++quotient;
  if (quotient > static_cast<uint64_t>(kMax)) return limit;
  return static_cast<int32_t>(negative ? -static_cast<int64_t>(quotient)
                                       : static_cast<int64_t>(quotient));
}

}  // namespace veks

#endif
