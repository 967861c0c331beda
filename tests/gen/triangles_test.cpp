// Triangle waves against the formula in long double, and the statuses. What they share with tones,
// such as the phase, is tested there.
#include <climits>

#include "gen/reference_waves.h"

namespace veks::test {
namespace {

template <class E>
struct TriangleOf;
#define VEKS_TEST_TRIANGLE(E, function)     \
  template <>                               \
  struct TriangleOf<E> {                    \
    static constexpr auto kCall = function; \
  }
VEKS_TEST_TRIANGLE(Vek32f, veksTriangle_Direct_32f);
VEKS_TEST_TRIANGLE(Vek64f, veksTriangle_Direct_64f);
VEKS_TEST_TRIANGLE(Vek32fc, veksTriangle_Direct_32fc);
VEKS_TEST_TRIANGLE(Vek64fc, veksTriangle_Direct_64fc);
VEKS_TEST_TRIANGLE(Vek16s, veksTriangle_Direct_16s);
VEKS_TEST_TRIANGLE(Vek16sc, veksTriangle_Direct_16sc);

// The slopes and the intercept of a call.
struct Wave {
  long double asym;
  long double operator()(long double turns) const {
    const long double p = 2 * kPiL * turns;
    if (p <= kPiL + asym) return 1 - 2 * p / (kPiL + asym);
    return 2 * p / (kPiL - asym) - (3 * kPiL + asym) / (kPiL - asym);
  }
  // What the rounding of the computation and of an argument to 2^-60 turns may add.
  double slack() const {
    const bool hasFma = std::string(targetName(activeTarget)).substr(0, 3) == "AVX";
    const long double shorter = kPiL - std::fabs(asym);
    return (hasFma ? 2 : 4) * 0x1p-52 + static_cast<double>(4 * kPiL / shorter) * 0x1p-60;
  }
};

template <class E>
class Triangles : public testing::Test {};
using Elements = testing::Types<Vek32f, Vek64f, Vek32fc, Vek64fc, Vek16s, Vek16sc>;
TYPED_TEST_SUITE(Triangles, Elements);

TYPED_TEST(Triangles, FollowTheFormula) {
  using R = Real<TypeParam>;
  onEveryTarget([] {
    for (double frequency : {0.0, 1e-9, 1e-3, 0.0123456789, 0.1, 0.125, 1 / 3.0, 0.4999}) {
      for (double phase : {0.0, 1e-20, 1.0, 3.14159265358979, 6.28318}) {
        for (double asymmetry : {0.0, 1.0, -2.0, 3.14, -3.1415, 3.1415}) {
          const R rFreq = static_cast<R>(frequency);
          const R start = static_cast<R>(phase);
          const R asym = static_cast<R>(asymmetry);
          const Wave wave = {asym};
          R next = start;
          std::vector<TypeParam> samples(300);
          ASSERT_EQ(TriangleOf<TypeParam>::kCall(samples.data(), 300, 32767, rFreq, asym, &next),
                    vekStsOk);
          EXPECT_EQ(next, phaseAfter<R>(rFreq, 300, start));
          for (size_t n = 0; n < samples.size(); ++n) {
            ASSERT_TRUE(isElement(samples[n], turnsAt(rFreq, start, n), 32767, wave.slack(), wave))
                << "sample " << n << ", frequency " << rFreq << ", phase " << start
                << ", asymmetry " << asym;
          }
        }
      }
    }
  });
}

TYPED_TEST(Triangles, AreTheSameForEveryLengthAndPlace) {
  using R = Real<TypeParam>;
  onEveryTarget([] {
    const auto generate = [](TypeParam* dst, int n) {
      R phase = 5;
      return TriangleOf<TypeParam>::kCall(dst, n, 12345, static_cast<R>(0.0371), 1, &phase);
    };
    std::vector<TypeParam> whole(4097);
    ASSERT_EQ(generate(whole.data(), 4097), vekStsOk);
    for (int n : testLengths()) expectPlacedAlike(whole, n, generate);
  });
}

TYPED_TEST(Triangles, CheckTheirArgumentsInOrder) {
  using R = Real<TypeParam>;
  const auto call = TriangleOf<TypeParam>::kCall;
  const R nan = std::numeric_limits<R>::quiet_NaN();
  const R pi = static_cast<R>(kPi);
  TypeParam untouched[2];
  std::memset(untouched, 0x77, sizeof(untouched));
  TypeParam wave[2];
  std::memcpy(wave, untouched, sizeof(wave));
  const auto expect = [&](VekStatus status, TypeParam* dst, int len, int magn, R rFreq, R asym,
                          R phase) {
    R next = phase;
    EXPECT_EQ(call(dst, len, static_cast<Sample<TypeParam>>(magn), rFreq, asym, &next), status);
    EXPECT_EQ(std::memcmp(&next, &phase, sizeof(R)), 0);
    EXPECT_EQ(std::memcmp(wave, untouched, sizeof(wave)), 0);
  };
  EXPECT_EQ(call(nullptr, 0, 0, -1, 4, nullptr), vekErrNullPtr);
  expect(vekErrTrnglMagn, nullptr, 0, 0, -1, 4, -1);
  for (R rFreq : {R(-1e-6), R(0.5), nan}) expect(vekErrTrnglFreq, nullptr, 0, 1, rFreq, 4, -1);
  for (R asym : {pi, std::nextafter(-pi, R(-4)), nan}) {
    expect(vekErrTrnglAsym, nullptr, 0, 1, 0, asym, -1);
  }
  for (R phase : {R(-1e-6), 2 * pi, nan}) expect(vekErrTrnglPhase, nullptr, 0, 1, 0, -pi, phase);
  expect(vekErrNullPtr, nullptr, 0, 1, R(0.49999), std::nextafter(pi, R(0)), 0);
  expect(vekErrSize, wave, 0, 1, 0, 0, 0);
  expect(vekErrSize, wave, INT_MIN, 1, 0, 0, 0);
}

TEST(Triangle, ReachesItsMagnitudeAtTheEndsOfItsSlopes) {
  onEveryTarget([] {
    Vek32f phase = 0;
    Vek16s samples[8];
    ASSERT_EQ(veksTriangle_Direct_16s(samples, 8, 1000, 0.125F, 0, &phase), vekStsOk);
    const Vek16s expected[] = {1000, 500, 0, -500, -1000, -500, 0, 500};
    for (size_t i = 0; i < 8; ++i) EXPECT_EQ(samples[i], expected[i]);
    EXPECT_EQ(phase, 0);
    Vek16sc pairs[8];
    ASSERT_EQ(veksTriangle_Direct_16sc(pairs, 8, 1000, 0.125F, 0, &phase), vekStsOk);
    for (size_t i = 0; i < 8; ++i) {
      EXPECT_EQ(pairs[i].re, expected[i]);
      EXPECT_EQ(pairs[i].im, expected[(i + 6) % 8]);
    }
  });
}

TEST(Triangle, WithAllAsymmetryIsARampFromThePeak) {
  onEveryTarget([] {
    Vek64f phase = 0;
    Vek64f samples[8];
    ASSERT_EQ(veksTriangle_Direct_64f(samples, 8, 8, 0.125, -kPi, &phase), vekStsOk);
    EXPECT_EQ(samples[0], 8);
    for (int i = 1; i < 8; ++i) EXPECT_NEAR(samples[i], 2 * i - 8, 1e-14);
    Vek32f start = 0;
    Vek32f singles[8];
    const Vek32f pi = static_cast<Vek32f>(kPi);
    ASSERT_EQ(veksTriangle_Direct_32f(singles, 8, 8, 0.125F, -pi, &start), vekStsOk);
    for (int i = 0; i < 8; ++i) EXPECT_EQ(singles[i], static_cast<Vek32f>(samples[i]));
  });
}

TEST(Triangle, KeepsWithinTheLargestMagnitude) {
  onEveryTarget([] {
    const Vek64f magn = std::numeric_limits<Vek64f>::max() * (1 - 0x1p-50);
    Vek64f phase = 0;
    Vek64f samples[100];
    ASSERT_EQ(veksTriangle_Direct_64f(samples, 100, magn, 0.01, 2, &phase), vekStsOk);
    for (Vek64f sample : samples) EXPECT_TRUE(std::isfinite(sample));
  });
}

}  // namespace
}  // namespace veks::test
