// Tones against long double cosines, the phase from block to block, and the statuses.
#include <climits>

#include "gen/reference_waves.h"

namespace veks::test {
namespace {

template <class E>
struct ToneOf;
#define VEKS_TEST_TONE(E, function)         \
  template <>                               \
  struct ToneOf<E> {                        \
    static constexpr auto kCall = function; \
  }
VEKS_TEST_TONE(Vek32f, veksTone_Direct_32f);
VEKS_TEST_TONE(Vek64f, veksTone_Direct_64f);
VEKS_TEST_TONE(Vek32fc, veksTone_Direct_32fc);
VEKS_TEST_TONE(Vek64fc, veksTone_Direct_64fc);
VEKS_TEST_TONE(Vek16s, veksTone_Direct_16s);
VEKS_TEST_TONE(Vek16sc, veksTone_Direct_16sc);

constexpr double kSlack = 1.25 * 0x1p-52;

long double cosine(long double turns) {
  return std::cos(2 * kPiL * turns);
}

template <class E>
class Tones : public testing::Test {};
using Elements = testing::Types<Vek32f, Vek64f, Vek32fc, Vek64fc, Vek16s, Vek16sc>;
TYPED_TEST_SUITE(Tones, Elements);

TYPED_TEST(Tones, FollowTheFormula) {
  using R = Real<TypeParam>;
  onEveryTarget([] {
    for (double frequency : {0.0, 1e-300, 1e-9, 1e-5, 0.0123456789, 0.1, 0.125, 1 / 3.0, 0.4999}) {
      for (double phase : {0.0, 1e-20, 1.0, 3.14159265358979, 6.28318}) {
        const R rFreq = static_cast<R>(frequency);
        const R start = static_cast<R>(phase);
        R next = start;
        std::vector<TypeParam> tone(1500);
        ASSERT_EQ(ToneOf<TypeParam>::kCall(tone.data(), 1500, 32767, rFreq, &next, 1), vekStsOk);
        EXPECT_EQ(next, phaseAfter<R>(rFreq, 1500, start));
        for (size_t n = 0; n < tone.size(); ++n) {
          ASSERT_TRUE(isElement(tone[n], turnsAt(rFreq, start, n), 32767, kSlack, cosine))
              << "sample " << n << ", frequency " << rFreq << ", phase " << start;
        }
      }
    }
  });
}

TYPED_TEST(Tones, AreAccurateForAnyMagnitudeAndLength) {
  using R = Real<TypeParam>;
  onEveryTarget([] {
    constexpr int len = 1 << 20;
    for (double magnitude : {1.0, 7.0, 1000.0}) {
      const R rFreq = static_cast<R>(0.4321);
      R phase = 2;
      std::vector<TypeParam> tone(len);
      ASSERT_EQ(ToneOf<TypeParam>::kCall(
                    tone.data(), len, static_cast<Sample<TypeParam>>(magnitude), rFreq, &phase, 0),
                vekStsOk);
      for (size_t n = 0; n < tone.size(); n += 997) {
        ASSERT_TRUE(isElement(tone[n], turnsAt(rFreq, 2, n), magnitude, kSlack, cosine)) << n;
      }
    }
  });
}

TYPED_TEST(Tones, AreTheSameForEveryLengthPlaceAndHint) {
  using R = Real<TypeParam>;
  onEveryTarget([] {
    const auto generate = [](TypeParam* dst, int n) {
      R phase = 5;
      return ToneOf<TypeParam>::kCall(dst, n, 12345, static_cast<R>(0.0371), &phase, n % 3);
    };
    std::vector<TypeParam> whole(4097);
    R phase = 5;
    ToneOf<TypeParam>::kCall(whole.data(), 4097, 12345, static_cast<R>(0.0371), &phase, -9);
    for (int n : testLengths()) expectPlacedAlike(whole, n, generate);
  });
}

TYPED_TEST(Tones, ContinueWithThePhaseHandedOn) {
  using R = Real<TypeParam>;
  const R rFreq = static_cast<R>(0.1234);
  R phase = 1;
  std::vector<TypeParam> tone(200);
  ASSERT_EQ(ToneOf<TypeParam>::kCall(tone.data(), 100, 1000, rFreq, &phase, 1), vekStsOk);
  ASSERT_EQ(ToneOf<TypeParam>::kCall(tone.data() + 100, 100, 1000, rFreq, &phase, 1), vekStsOk);
  const double rounding = sizeof(R) == 4 ? 0x1p-22 : 0x1p-51;
  const auto check = [&](auto got, long double exact) {
    const double truncation = std::is_integral_v<decltype(got)> ? 1 : 0;
    EXPECT_NEAR(static_cast<double>(got), static_cast<double>(exact),
                truncation + 1000 * 2 * rounding);
  };
  for (size_t n = 0; n < tone.size(); ++n) {
    const long double turns = turnsAt(rFreq, 1, n);
    if constexpr (std::is_class_v<TypeParam>) {
      check(tone[n].re, 1000 * cosine(turns));
      check(tone[n].im, 1000 * cosine(turns - 0.25L));
    } else {
      check(tone[n], 1000 * cosine(turns));
    }
  }
}

TYPED_TEST(Tones, StoreThePhaseBeforeTheSamples) {
  using R = Real<TypeParam>;
  const auto call = ToneOf<TypeParam>::kCall;
  std::vector<TypeParam> expected(40);
  R phase = 1;
  ASSERT_EQ(call(expected.data(), 40, 99, static_cast<R>(0.2), &phase, 0), vekStsOk);
  for (size_t at : {size_t{0}, size_t{16}}) {
    alignas(8) TypeParam tone[40];
    R* const inside = reinterpret_cast<R*>(reinterpret_cast<unsigned char*>(tone) + at);
    *inside = 1;
    ASSERT_EQ(call(tone, 40, 99, static_cast<R>(0.2), inside, 0), vekStsOk);
    EXPECT_TRUE(sameBits(expected, std::vector<TypeParam>(tone, tone + 40)));
  }
}

TYPED_TEST(Tones, CheckTheirArgumentsInOrder) {
  using R = Real<TypeParam>;
  const auto call = ToneOf<TypeParam>::kCall;
  const R nan = std::numeric_limits<R>::quiet_NaN();
  const R turn = static_cast<R>(kTwoPi);
  TypeParam untouched[2];
  std::memset(untouched, 0x77, sizeof(untouched));
  TypeParam tone[2];
  std::memcpy(tone, untouched, sizeof(tone));
  const auto expect = [&](VekStatus status, TypeParam* dst, int len, int magn, R rFreq, R phase) {
    R next = phase;
    EXPECT_EQ(call(dst, len, static_cast<Sample<TypeParam>>(magn), rFreq, &next, 0), status);
    EXPECT_EQ(std::memcmp(&next, &phase, sizeof(R)), 0);
    EXPECT_EQ(std::memcmp(tone, untouched, sizeof(tone)), 0);
  };
  EXPECT_EQ(call(nullptr, 0, 0, -1, nullptr, 0), vekErrNullPtr);
  EXPECT_EQ(call(tone, 2, 1, 0, nullptr, 0), vekErrNullPtr);
  expect(vekErrToneMagn, nullptr, 0, 0, -1, -1);
  expect(vekErrToneMagn, nullptr, 0, -5, -1, -1);
  for (R rFreq : {R(-1e-6), R(0.5), R(1), nan}) expect(vekErrToneFreq, nullptr, 0, 1, rFreq, -1);
  for (R phase : {R(-1e-6), turn, R(7), nan}) expect(vekErrTonePhase, nullptr, 0, 1, 0, phase);
  expect(vekErrNullPtr, nullptr, 0, 1, R(0.49999), 0);
  expect(vekErrSize, tone, 0, 1, 0, 0);
  expect(vekErrSize, tone, INT_MIN, 1, 0, 0);
  if constexpr (std::is_floating_point_v<Sample<TypeParam>>) {
    R phase = 0;
    EXPECT_EQ(call(tone, 2, nan, 0, &phase, 0), vekErrToneMagn);
  }
}

TEST(TonePhase, IsTheNearestToTheFormula) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> unit(0, 1);
  for (int i = 0; i < 200000; ++i) {
    const double rFreq = unit(random) / 2 * (i % 3 == 0 ? 1e-6 : 1);
    const double phase = unit(random) * 6.283;
    const int len = i % 2 == 0 ? 1 + static_cast<int>(unit(random) * 10000) : INT_MAX - i;
    const long double exact = turnsAt(rFreq, phase, static_cast<uint64_t>(len)) * 2 * kPiL;
    const double got = phaseAfter<double>(rFreq, len, phase);
    const long double error = std::remainder(got - exact, 2 * kPiL);
    ASSERT_LE(std::fabs(error), 0.51L * 0x1p-50L) << rFreq << " * " << len;
    ASSERT_TRUE(got >= 0 && got < kTwoPi);
  }
}

TEST(TonePhase, StaysWhereTheFrequencyIsZeroAndEndsAtTheWholeTurn) {
  const double last = std::nextafter(kTwoPi, 0);
  for (double phase : {0.0, 5e-324, 1.0, 3.0, last}) {
    EXPECT_EQ(phaseAfter<double>(0, INT_MAX, phase), phase);
  }
  EXPECT_EQ(phaseAfter<float>(0, 5, 6.283185F), 6.283185F);
  EXPECT_EQ(phaseAfter<double>(0.25, 4, 0), 0);
  EXPECT_EQ(phaseAfter<double>(0.25, 1, 4.71238898038469), 0);
  EXPECT_EQ(phaseAfter<float>(4e-8, 1, 6.283185F), 0) << "rounds up to 2 pi";
  EXPECT_EQ(phaseAfter<double>(0.25, 2, 0), kTwoPi / 2);
}

TEST(TonePhase, DoesNotDriftInManyCalls) {
  std::mt19937_64 random(9);
  std::uniform_real_distribution<double> frequencies(0, 0.5);
  for (int len : {100, 1000, 10000}) {
    const double rFreq = frequencies(random);
    const int64_t calls = 1000000000 / len;
    double phase = 1;
    for (int64_t i = 0; i < calls; ++i) phase = phaseAfter<double>(rFreq, len, phase);
    const long double error = turnsAt(rFreq, 1, 1000000000) - phase / (2 * kPiL);
    const long double drift = std::fabs(std::remainder(error, 1.0L));
    EXPECT_LT(drift, 1e-9L) << len;
    EXPECT_LT(drift, 7.1e-17L * static_cast<long double>(calls)) << len;
  }
}

TEST(TonesDirect, AreConstantAtFrequencyZero) {
  Vek64f tone[70];
  Vek64f phase = 1;
  ASSERT_EQ(veksTone_Direct_64f(tone, 70, 3, 0, &phase, 1), vekStsOk);
  EXPECT_EQ(phase, 1);
  for (Vek64f sample : tone) EXPECT_EQ(sample, tone[0]);
}

}  // namespace
}  // namespace veks::test
