// What the tests of tones and triangle waves share: arguments in long double, the samples that they
// give, and how far those of the library may be from them.
#ifndef VEKS_TESTS_GEN_REFERENCE_WAVES_H
#define VEKS_TESTS_GEN_REFERENCE_WAVES_H

#include <cmath>
#include <memory>

#include "contract/buffers.h"
#include "gen/turns.h"
#include "support.h"
#include "veks/gen.h"

namespace veks::test {

constexpr long double kPiL = 3.14159265358979323846264338327950288L;

// rFreq * n + phase / (2 pi) without whole turns, within 2^-63: products of half the bits of the
// frequency and n are exact.
inline long double turnsAt(double rFreq, double phase, uint64_t n) {
  const double high = static_cast<float>(rFreq);
  const long double turns[] = {static_cast<long double>(high) * static_cast<long double>(n),
                               static_cast<long double>(rFreq - high) * static_cast<long double>(n),
                               static_cast<long double>(phase) / (2 * kPiL)};
  long double sum = 0;
  for (long double part : turns) sum += part - std::floor(part);
  return sum - std::floor(sum);
}

enum class ToInteger { kTruncated, kHalfAwayFromZero };

// `slack` in units of the magnitude is what the computation may add to the rounding of the type.
// Integers may differ where the exact value is next to a boundary.
template <class T>
testing::AssertionResult isSample(T got, long double exact, double magnitude, double slack,
                                  ToInteger toInteger = ToInteger::kTruncated) {
  bool isNear = false;
  if constexpr (std::is_integral_v<T>) {
    const long double shifted =
        toInteger == ToInteger::kTruncated ? exact : exact + std::copysign(0.5L, exact);
    const long double boundary = std::round(shifted);
    const bool isAtBoundary = std::fabs(shifted - boundary) < 1e-9L && std::fabs(boundary) > 0.5L;
    isNear = got == static_cast<int>(shifted) ||
             (isAtBoundary && std::fabs(static_cast<long double>(got) - shifted) < 1.1L);
  } else {
    const long double ulp = sizeof(T) == 4 ? std::fabs(exact) * 0x1p-23L + 0x1p-149L : 0;
    isNear = std::fabs(got - exact) <= ulp / 2 + static_cast<long double>(slack * magnitude);
  }
  if (isNear) return testing::AssertionSuccess();
  return testing::AssertionFailure()
         << +got << " for " << static_cast<double>(exact) << ", error "
         << [&] { return static_cast<double>(static_cast<long double>(got) - exact); }();
}

template <class E, class = void>
struct SampleOf {
  using Type = E;
};
template <class E>
struct SampleOf<E, std::void_t<decltype(E::re)>> {
  using Type = decltype(E::re);
};
template <class E>
using Sample = typename SampleOf<E>::Type;
// Of frequencies, phases and asymmetries.
template <class E>
using Real = std::conditional_t<sizeof(Sample<E>) == 8, Vek64f, Vek32f>;

// Checks sample n of a signal whose value at t turns is wave(t). An imaginary part is a quarter
// turn behind.
template <class E, class Wave>
testing::AssertionResult isElement(E got, long double turns, double magnitude, double slack,
                                   const Wave& wave) {
  const auto at = [&](long double t) { return magnitude * wave(t - std::floor(t)); };
  if constexpr (std::is_class_v<E>) {
    const testing::AssertionResult re = isSample(got.re, at(turns), magnitude, slack);
    return re ? isSample(got.im, at(turns - 0.25L), magnitude, slack) : re;
  } else {
    return isSample(got, at(turns), magnitude, slack);
  }
}

// Calls generate(dst, n) for vectors at both ends of accessible memory and at all alignments: the
// samples are the first n of `expected`, and nothing around them is written.
template <class E, class Generate>
void expectPlacedAlike(const std::vector<E>& expected, int n, const Generate& generate) {
  constexpr size_t kSlack = 64;
  constexpr unsigned char kUntouched = 0xA5;
  static contract::GuardedBuffer buffer(1 << 18, false);
  const size_t bytes = static_cast<size_t>(n) * sizeof(E);
  for (size_t offset = 0; offset <= kSlack; offset += alignof(E)) {
    for (unsigned char* dst : {buffer.begin() + offset, buffer.end() - offset - bytes}) {
      std::memset(buffer.begin(), kUntouched, bytes + 2 * kSlack);
      std::memset(buffer.end() - bytes - 2 * kSlack, kUntouched, bytes + 2 * kSlack);
      ASSERT_EQ(generate(reinterpret_cast<E*>(dst), n), vekStsOk);
      ASSERT_EQ(std::memcmp(dst, expected.data(), bytes), 0) << n << " samples, offset " << offset;
      const unsigned char* const first = dst < buffer.begin() + kSlack ? buffer.begin() : dst - 9;
      const unsigned char* const last = offset < 9 ? dst + bytes + offset : dst + bytes + 9;
      for (const unsigned char* p = first; p < dst; ++p) ASSERT_EQ(*p, kUntouched);
      for (const unsigned char* p = dst + bytes; p < last; ++p) ASSERT_EQ(*p, kUntouched);
    }
  }
}

}  // namespace veks::test

#endif
