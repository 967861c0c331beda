#include "veks/filter/design.h"

#include <cmath>

#include "core/targets.h"
#include "filter/design.h"
#include "veks/gen/windows.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "filter/design-inl.h"
#include <hwy/foreach_target.h>

#include "filter/design-inl.h"

using namespace veks;

namespace {

constexpr int kLeastTaps = 5;

enum class Symmetry { kEven, kOdd };

// What a lowpass up to `frequency` has at sample 2 d of the argument.
Argument upTo(double frequency) {
  return {frequencyOf(frequency / 2), 0, 0};
}

IdealResponse band(double low, double high) {
  return {2 * (high - low), upTo(high), upTo(low), upTo(0)};
}

IdealResponse withoutBand(double low, double high) {
  return {1 - 2 * (high - low), upTo(0.5), upTo(high), upTo(low)};
}

// For antisymmetric taps: sines a quarter turn behind are the negative cosines.
IdealResponse differentiated(double frequency) {
  constexpr double kQuarterTurn = 0.25;
  return {0, {frequencyOf(frequency / 2), -kQuarterTurn, 0}, upTo(0), upTo(0)};
}

VekStatus applyWindow(Vek64f* taps, int len, VekWinType type) {
  switch (type) {
    case vekWinBartlett:
      return veksWinBartlett_64f_I(taps, len);
    case vekWinBlackman:
      return veksWinBlackmanOpt_64f_I(taps, len);
    case vekWinHamming:
      return veksWinHamming_64f_I(taps, len);
    case vekWinHann:
      return veksWinHann_64f_I(taps, len);
    default:
      return vekStsOk;
  }
}

// The windowed response: the right half is computed, the left half is its mirror image.
void makeTaps(const IdealResponse& response, Symmetry symmetry, Vek64f* taps, int len,
              VekWinType window) {
  const size_t n = static_cast<size_t>(len);
  const size_t half = n / 2;
  const size_t nearest = n % 2 == 0 ? 1 : 2;  // twice the distance of the first tap
  Vek64f* const right = taps + (n - half);
  VEKS_KERNEL(FillIdealTaps)(right, half, &response, nearest);
  if (n % 2 != 0) taps[half] = response.centre;
  for (size_t j = 0; j < half; ++j) {
    taps[half - 1 - j] = symmetry == Symmetry::kEven ? right[j] : -right[j];
  }
  applyWindow(taps, len, window);
}

// The gain at a frequency but for its phase, which is that of the middle of the filter.
double gainAt(double frequency, const Vek64f* taps, int len) {
  const double middle = 0.5 * (len - 1);
  double sum = 0;
  for (int i = 0; i < len; ++i) {
    const double turns = frequency * (i - middle);
    sum += taps[i] * std::cos(kTwoPi * (turns - std::floor(turns)));
  }
  return sum;
}

double alternatingSum(const Vek64f* taps, int len) {
  double sum = 0;
  for (int i = 0; i < len; ++i) sum += i % 2 == 0 ? taps[i] : -taps[i];
  return sum;
}

VekStatus normalise(double gain, Vek64f* taps, int len) {
  if (gain == 0) return vekStsOk;
  const double factor = 1 / std::fabs(gain);
  for (int i = 0; i < len; ++i) taps[i] *= factor;
  return vekStsOk;
}

bool isFrequency(double rFreq) {
  return rFreq > 0 && rFreq <= 0.5;
}

VekStatus checkEdge(double rFreq, const Vek64f* taps, int len) {
  if (!taps) return vekErrNullPtr;
  return len < kLeastTaps || !isFrequency(rFreq) ? vekErrSize : vekStsOk;
}

VekStatus checkBand(double low, double high, const Vek64f* taps, int len) {
  const VekStatus status = checkEdge(low, taps, len);
  if (status != vekStsOk) return status;
  return !isFrequency(high) || low >= high ? vekErrSize : vekStsOk;
}

}  // namespace

VekStatus veksFIRGenLowpass_64f(Vek64f rFreq, Vek64f* pTaps, int tapsLen, VekWinType winType,
                                int doNormal) {
  const VekStatus status = checkEdge(rFreq, pTaps, tapsLen);
  if (status != vekStsOk) return status;
  makeTaps(band(0, rFreq), Symmetry::kEven, pTaps, tapsLen, winType);
  return doNormal == 0 ? vekStsOk : normalise(gainAt(0, pTaps, tapsLen), pTaps, tapsLen);
}

VekStatus veksFIRGenHighpass_64f(Vek64f rFreq, Vek64f* pTaps, int tapsLen, VekWinType winType,
                                 int doNormal) {
  const VekStatus status = checkEdge(rFreq, pTaps, tapsLen);
  if (status != vekStsOk) return status;
  if (tapsLen % 2 == 0) {
    makeTaps(differentiated(rFreq), Symmetry::kOdd, pTaps, tapsLen, winType);
  } else {
    makeTaps(band(rFreq, 0.5), Symmetry::kEven, pTaps, tapsLen, winType);
  }
  return doNormal == 0 ? vekStsOk : normalise(alternatingSum(pTaps, tapsLen), pTaps, tapsLen);
}

VekStatus veksFIRGenBandpass_64f(Vek64f rLowFreq, Vek64f rHighFreq, Vek64f* pTaps, int tapsLen,
                                 VekWinType winType, int doNormal) {
  const VekStatus status = checkBand(rLowFreq, rHighFreq, pTaps, tapsLen);
  if (status != vekStsOk) return status;
  makeTaps(band(rLowFreq, rHighFreq), Symmetry::kEven, pTaps, tapsLen, winType);
  const double middle = rLowFreq + (rHighFreq - rLowFreq) / 2;
  return doNormal == 0 ? vekStsOk : normalise(gainAt(middle, pTaps, tapsLen), pTaps, tapsLen);
}

VekStatus veksFIRGenBandstop_64f(Vek64f rLowFreq, Vek64f rHighFreq, Vek64f* pTaps, int tapsLen,
                                 VekWinType winType, int doNormal) {
  const VekStatus status = checkBand(rLowFreq, rHighFreq, pTaps, tapsLen);
  if (status != vekStsOk) return status;
  makeTaps(withoutBand(rLowFreq, rHighFreq), Symmetry::kEven, pTaps, tapsLen, winType);
  return doNormal == 0 ? vekStsOk : normalise(gainAt(0, pTaps, tapsLen), pTaps, tapsLen);
}
