// FIR designs against the ideal responses in long double, their gains, and the statuses.
#include <climits>
#include <cmath>

#include "support.h"
#include "veks/filter.h"

namespace veks::test {
namespace {

constexpr long double kPiL = 3.14159265358979323846264338327950288L;
constexpr VekWinType kNone = static_cast<VekWinType>(7);
constexpr VekWinType kWindows[] = {vekWinBartlett, vekWinBlackman, vekWinHamming, vekWinHann,
                                   kNone};

enum class Filter { kLowpass, kHighpass, kBandpass, kBandstop };
constexpr Filter kFilters[] = {Filter::kLowpass, Filter::kHighpass, Filter::kBandpass,
                               Filter::kBandstop};

struct Design {
  Filter filter;
  double low;
  double high;
};

// Low- and highpass have one frequency, `low`.
VekStatus make(const Design& design, Vek64f* taps, int len, VekWinType window, int doNormal) {
  switch (design.filter) {
    case Filter::kLowpass:
      return veksFIRGenLowpass_64f(design.low, taps, len, window, doNormal);
    case Filter::kHighpass:
      return veksFIRGenHighpass_64f(design.low, taps, len, window, doNormal);
    case Filter::kBandpass:
      return veksFIRGenBandpass_64f(design.low, design.high, taps, len, window, doNormal);
    case Filter::kBandstop:
      return veksFIRGenBandstop_64f(design.low, design.high, taps, len, window, doNormal);
  }
  return vekErrUnknown;
}

std::vector<Vek64f> tapsOf(const Design& design, int len, VekWinType window, int doNormal) {
  std::vector<Vek64f> taps(static_cast<size_t>(len) + 1, 77);
  EXPECT_EQ(make(design, taps.data(), len, window, doNormal), vekStsOk);
  EXPECT_EQ(taps.back(), 77);
  taps.pop_back();
  return taps;
}

// The sine is taken of an argument without whole turns.
long double sinc(double f, long double d) {
  if (d == 0) return 2 * static_cast<long double>(f);
  return std::sin(2 * kPiL * std::fmod(f * d, 1.0L)) / (kPiL * d);
}

long double idealTap(const Design& design, int len, int i) {
  const long double d = i - (len - 1) / 2.0L;
  switch (design.filter) {
    case Filter::kLowpass:
      return sinc(design.low, d);
    case Filter::kHighpass:
      if (len % 2 != 0) return sinc(0.5, d) - sinc(design.low, d);
      return -std::cos(2 * kPiL * std::fmod(design.low * d, 1.0L)) / (kPiL * d);
    case Filter::kBandpass:
      return sinc(design.high, d) - sinc(design.low, d);
    case Filter::kBandstop:
      return sinc(0.5, d) - sinc(design.high, d) + sinc(design.low, d);
  }
  return NAN;
}

long double window(VekWinType type, int len, int i) {
  const long double angle = 2 * kPiL * i / (len - 1);
  const long double root = 0.5L / std::cos(kPiL / (len - 1));
  const long double alpha = static_cast<float>(static_cast<double>(-root * root));
  switch (type) {
    case vekWinBartlett:
      return 1 - std::fabs(2.0L * i / (len - 1) - 1);
    case vekWinBlackman:
      return (alpha + 1) / 2 - std::cos(angle) / 2 - alpha / 2 * std::cos(2 * angle);
    case vekWinHamming:
      return 0.54L - 0.46L * std::cos(angle);
    case vekWinHann:
      return 0.5L - 0.5L * std::cos(angle);
  }
  return 1;
}

// The magnitude of the response at a frequency.
double gain(const std::vector<Vek64f>& taps, double frequency) {
  long double re = 0;
  long double im = 0;
  for (size_t i = 0; i < taps.size(); ++i) {
    const long double angle = 2 * kPiL * frequency * static_cast<long double>(i);
    re += taps[i] * std::cos(angle);
    im += taps[i] * std::sin(angle);
  }
  return static_cast<double>(std::hypot(re, im));
}

template <class Body>
void forAllDesigns(const Body& body) {
  for (Filter filter : kFilters) {
    for (const Design& design : {Design{filter, 0.1, 0.3}, Design{filter, 0.25, 0.5},
                                 Design{filter, 1e-3, 0.4999}, Design{filter, 0.37, 0.38}}) {
      for (int len : {5, 6, 7, 8, 20, 31, 64, 101, 256, 1001, 4098}) {
        SCOPED_TRACE("filter " + std::to_string(static_cast<int>(filter)) + ", " +
                     std::to_string(len) + " taps, from " + std::to_string(design.low));
        body(design, len);
      }
    }
  }
}

TEST(FirDesign, GivesTheWindowedIdealResponse) {
  onEveryTarget([] {
    forAllDesigns([](const Design& design, int len) {
      for (VekWinType type : kWindows) {
        const std::vector<Vek64f> taps = tapsOf(design, len, type, 0);
        for (int i = 0; i < len; ++i) {
          const long double d = std::fabs(i - (len - 1) / 2.0L);
          const long double weight = window(type, len, i);
          const double exact = static_cast<double>(weight * idealTap(design, len, i));
          const double tolerance =
              static_cast<double>(1.5L * 0x1p-50L / (kPiL * std::fmax(d, 0.5L)));
          const double ofWindow = type == kNone ? 0 : 0x1p-48;
          ASSERT_NEAR(taps[static_cast<size_t>(i)], exact,
                      tolerance + ofWindow * std::fabs(exact) + (type == kNone ? 0 : 1e-17))
              << "window " << type << ", tap " << i;
        }
      }
    });
  });
}

TEST(FirDesign, IsSymmetricToTheBit) {
  forAllDesigns([](const Design& design, int len) {
    const double sign = design.filter == Filter::kHighpass && len % 2 == 0 ? -1 : 1;
    for (VekWinType type : kWindows) {
      const std::vector<Vek64f> taps = tapsOf(design, len, type, 1);
      for (size_t i = 0; i < taps.size() / 2; ++i) {
        ASSERT_EQ(taps[i], sign * taps[taps.size() - 1 - i]) << "window " << type << ", tap " << i;
      }
    }
  });
}

TEST(FirDesign, NormalisesTheGain) {
  forAllDesigns([](const Design& design, int len) {
    for (VekWinType type : kWindows) {
      const std::vector<Vek64f> raw = tapsOf(design, len, type, 0);
      const std::vector<Vek64f> taps = tapsOf(design, len, type, -3);
      const double at = design.filter == Filter::kHighpass   ? 0.5
                        : design.filter == Filter::kBandpass ? (design.low + design.high) / 2
                                                             : 0;
      ASSERT_NEAR(gain(taps, at), 1, 1e-11) << "window " << type;
      for (size_t i = 0; i < raw.size(); ++i) {
        ASSERT_NEAR(taps[i] * gain(raw, at), raw[i], 1e-11 * std::fabs(raw[i]));
        if (i > 40) i += 101;
      }
    }
  });
}

TEST(FirDesign, PassesAndStopsWhatItShould) {
  for (int len : {100, 101}) {
    for (Filter filter : kFilters) {
      const Design design = {filter, 0.15, 0.35};
      const std::vector<Vek64f> taps = tapsOf(design, len, vekWinHamming, 1);
      for (int k = 0; k <= 50; ++k) {
        const double frequency = k / 100.0;
        const double fromEdge = std::fmin(std::fabs(frequency - 0.15), std::fabs(frequency - 0.35));
        const bool isLow = frequency < 0.15;
        const bool isIn = !isLow && frequency < 0.35;
        const bool passes = filter == Filter::kLowpass    ? isLow
                            : filter == Filter::kHighpass ? !isLow
                            : filter == Filter::kBandpass ? isIn
                                                          : !isIn;
        if (fromEdge < 0.02) continue;
        if (filter == Filter::kBandstop && len % 2 == 0 && frequency > 0.48) continue;
        EXPECT_NEAR(gain(taps, frequency), passes ? 1 : 0, 0.005)
            << "filter " << static_cast<int>(filter) << " at " << frequency;
      }
    }
  }
}

TEST(FirDesign, HasExactZeros) {
  const std::vector<Vek64f> all = tapsOf({Filter::kLowpass, 0.5, 0}, 5, kNone, 0);
  EXPECT_EQ(all, (std::vector<Vek64f>{0, 0, 1, 0, 0}));
  for (int len : {6, 20, 100}) {
    const std::vector<Vek64f> taps = tapsOf({Filter::kHighpass, 0.2, 0}, len, vekWinHann, 1);
    double pairs = 0;
    for (size_t i = 0; i < taps.size() / 2; ++i) pairs += taps[i] + taps[taps.size() - 1 - i];
    EXPECT_EQ(pairs, 0) << "gain at frequency 0";
  }
}

TEST(FirDesign, ChecksItsArguments) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  std::vector<Vek64f> taps(8, 77);
  const auto expect = [&](VekStatus status, const Design& design, Vek64f* to, int len) {
    EXPECT_EQ(make(design, to, len, vekWinHann, 1), status);
    EXPECT_EQ(taps, std::vector<Vek64f>(8, 77));
  };
  for (Filter filter : kFilters) {
    const bool hasBand = filter == Filter::kBandpass || filter == Filter::kBandstop;
    expect(vekErrNullPtr, {filter, 0, 0}, nullptr, 0);
    for (int len : {4, 0, -1, INT_MIN}) expect(vekErrSize, {filter, 0.1, 0.2}, taps.data(), len);
    for (double f : {0.0, -0.1, 0.5000001, 1.0, nan}) {
      expect(vekErrSize, {filter, f, 0.45}, taps.data(), 8);
      if (hasBand) expect(vekErrSize, {filter, 0.1, f}, taps.data(), 8);
    }
    if (hasBand) expect(vekErrSize, {filter, 0.2, 0.2}, taps.data(), 8);
    if (hasBand) expect(vekErrSize, {filter, 0.3, 0.2}, taps.data(), 8);
  }
}

}  // namespace
}  // namespace veks::test
