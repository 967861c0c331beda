// Arguments of periodic functions in turns, where whole turns are dropped without an error: a
// frequency is split into parts whose products with sample numbers are exact.
#ifndef VEKS_GEN_TURNS_H
#define VEKS_GEN_TURNS_H

#include <cmath>

namespace veks {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTwoPi = 6.28318530717958647693;
constexpr double kTwoPiRest = 2.44929359829470635445e-16;  // 2 pi - kTwoPi

// Added and subtracted, they round what is small enough to multiples of 2^-20 and 2^-40.
constexpr double kMultiplesOf20 = 6442450944;
constexpr double kMultiplesOf40 = 6144;

// x + y or x * y in full: the result rounded, and what the rounding has left.
struct Exact {
  double value;
  double rest;
};

inline Exact exactSum(double x, double y) {
  const double sum = x + y;
  const double ofY = sum - x;
  return {sum, (x - (sum - ofY)) + (y - ofY)};
}

// T. J. Dekker, "A floating-point technique for extending the available precision", 1971.
inline Exact exactProduct(double x, double y) {
  constexpr double kSplitter = 134217729;
  const double xHigh = kSplitter * x - (kSplitter * x - x);
  const double yHigh = kSplitter * y - (kSplitter * y - y);
  const double xLow = x - xHigh;
  const double yLow = y - yHigh;
  const double product = x * y;
  const double rest = ((xHigh * yHigh - product) + xHigh * yLow + xLow * yHigh) + xLow * yLow;
  return {product, rest};
}

// A frequency of at most 1/2 turn per sample. Products of its parts and numbers up to 2^31 are
// exact for the coarse and the middle part, and below 2^-9 for the fine one.
struct Frequency {
  double coarse;  // a multiple of 2^-20
  double middle;  // a multiple of 2^-40
  double fine;
};

inline Frequency frequencyOf(double rFreq) {
  const double coarse = (rFreq + kMultiplesOf20) - kMultiplesOf20;
  const double middle = ((rFreq - coarse) + kMultiplesOf40) - kMultiplesOf40;
  return {coarse, middle, (rFreq - coarse) - middle};
}

// The argument of sample k: frequency * k + start, the start being coarse + fine turns.
struct Argument {
  Frequency frequency;
  double coarse;  // a multiple of 2^-40
  double fine;
};

// A phase in radians, 0 <= phase < 2 pi.
inline Argument argumentOf(double rFreq, double phase) {
  constexpr double kTurns = 0.159154943091895335769;  // 1 / (2 pi)
  constexpr double kTurnsRest = -9.83933833759124348e-18;
  const Exact turns = exactProduct(phase, kTurns);
  const double coarse = (turns.value + kMultiplesOf40) - kMultiplesOf40;
  const double fine = (turns.value - coarse) + (turns.rest + phase * kTurnsRest);
  return {frequencyOf(rFreq), coarse, fine};
}

// The phase after `count` samples, p = 2 pi rFreq count + phase without its whole turns. Those of
// rFreq * count are dropped before the multiplication: next to them, so many bits of p would be
// lost with every call that the phase would drift. What is not in [0, 2 pi) after rounding is 0.
template <class T>
inline T phaseAfter(double rFreq, int count, double phase) {
  const Frequency frequency = frequencyOf(rFreq);
  const double coarse = frequency.coarse * count;
  const double middle = frequency.middle * count;
  double turns = (coarse - std::floor(coarse)) + (middle - std::floor(middle));
  turns -= std::floor(turns);
  const Exact angle = exactProduct(turns, kTwoPi);
  const Exact sum = exactSum(phase, angle.value);
  const Exact total = exactSum(sum.value, frequency.fine * count * kTwoPi);
  double p = total.value;
  double rest = (sum.rest + total.rest) + (angle.rest + turns * kTwoPiRest);
  while (p >= kTwoPi) {
    p -= kTwoPi;
    rest -= kTwoPiRest;
  }
  const T rounded = static_cast<T>(p + rest);
  return rounded >= 0 && static_cast<double>(rounded) < kTwoPi ? rounded : 0;
}

}  // namespace veks

#endif
