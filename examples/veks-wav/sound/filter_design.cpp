#include "sound/filter_design.h"

#include <algorithm>
#include <cmath>
#include <complex>

#include "vek.h"

namespace veks_wav {
namespace {

// The windows that the library's design knows; others are applied to what it gives without one.
VekWinType typeOf(Shape shape) {
  switch (shape) {
    case Shape::kBartlett:
      return vekWinBartlett;
    case Shape::kBlackman:
      return vekWinBlackman;
    case Shape::kHamming:
      return vekWinHamming;
    case Shape::kHann:
      return vekWinHann;
    default:
      return static_cast<VekWinType>(vekWinHann + 1);
  }
}

void generate(const FilterDesign& design, VekWinType window, bool isNormal, double* taps) {
  const int normal = isNormal ? 1 : 0;
  switch (design.type) {
    case FilterType::kLowpass:
      return check(veksFIRGenLowpass_64f(design.low, taps, design.taps, window, normal));
    case FilterType::kHighpass:
      return check(veksFIRGenHighpass_64f(design.low, taps, design.taps, window, normal));
    case FilterType::kBandpass:
      return check(
          veksFIRGenBandpass_64f(design.low, design.high, taps, design.taps, window, normal));
    case FilterType::kBandstop:
      return check(
          veksFIRGenBandstop_64f(design.low, design.high, taps, design.taps, window, normal));
  }
}

double middleOfPass(const FilterDesign& design) {
  if (design.type == FilterType::kHighpass) return 0.5;
  return design.type == FilterType::kBandpass ? (design.low + design.high) / 2 : 0;
}

double factorAt(double frequency, const std::vector<double>& taps) {
  const double turn = 2 * std::acos(-1.0) * frequency;
  std::complex<double> sum = 0;
  for (size_t i = 0; i < taps.size(); ++i) {
    sum += taps[i] * std::polar(1.0, -turn * static_cast<double>(i));
  }
  return std::abs(sum);
}

}  // namespace

const std::map<std::string, FilterType>& filterNames() {
  static const std::map<std::string, FilterType> names = {{"lowpass", FilterType::kLowpass},
                                                          {"highpass", FilterType::kHighpass},
                                                          {"bandpass", FilterType::kBandpass},
                                                          {"bandstop", FilterType::kBandstop}};
  return names;
}

bool hasBand(FilterType type) {
  return type == FilterType::kBandpass || type == FilterType::kBandstop;
}

bool passesHighest(FilterType type) {
  return type == FilterType::kHighpass || type == FilterType::kBandstop;
}

std::vector<double> designTaps(const FilterDesign& design) {
  std::vector<double> taps(static_cast<size_t>(design.taps));
  const bool isKaiser = design.window.shape == Shape::kKaiser;
  generate(design, typeOf(design.window.shape), !isKaiser, taps.data());
  if (isKaiser) {
    apply(design.window, taps.data(), design.taps);
    multiply(taps.data(), design.taps, 1 / factorAt(middleOfPass(design), taps));
  }
  return taps;
}

std::vector<double> responseOf(const std::vector<double>& taps) {
  // Half a ripple or less between two points.
  int order = 14;
  while (size_t{1} << order < 2 * taps.size()) ++order;
  const int size = 1 << order;
  std::vector<double> spectrum(static_cast<size_t>(size));
  std::copy(taps.begin(), taps.end(), spectrum.begin());
  const RealTransform transform(order);
  std::vector<Vek8u> buffer(transform.bufferSize());
  transform.run(spectrum.data(), buffer.data());
  multiplyByConjugate(spectrum.data(), size);
  std::vector<double> levels(static_cast<size_t>(size / 2 + 1));
  levels.front() = spectrum.front();
  levels.back() = spectrum.back();
  for (size_t point = 1; point + 1 < levels.size(); ++point)
    levels[point] = spectrum[2 * point - 1];
  for (double& level : levels) level = 10 * std::log10(level);
  return levels;
}

}  // namespace veks_wav
