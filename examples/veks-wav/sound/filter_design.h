// The taps of linear-phase filters, and what filters do to each frequency.
#ifndef VEKS_WAV_SOUND_FILTER_DESIGN_H
#define VEKS_WAV_SOUND_FILTER_DESIGN_H

#include <map>
#include <string>
#include <vector>

#include "sound/window.h"

namespace veks_wav {

enum class FilterType { kLowpass, kHighpass, kBandpass, kBandstop };

// What the types are called in commands.
const std::map<std::string, FilterType>& filterNames();

// Whether a filter has two edges, and whether it lets half the sample rate pass, which takes an odd
// number of taps.
bool hasBand(FilterType type);
bool passesHighest(FilterType type);

// The edges, where the level falls by 6 dB, are fractions of the sample rate above 0 and below 0.5.
struct FilterDesign {
  FilterType type;
  double low;
  double high;  // of a band
  int taps;     // kLeastTaps or more
  Window window;
};
constexpr int kLeastTaps = 5;

// The factor is 1 in the middle of what passes: at 0, at half the sample rate or amid the band.
std::vector<double> designTaps(const FilterDesign& design);

// Levels in dB at equally spaced frequencies from 0 to half the sample rate.
std::vector<double> responseOf(const std::vector<double>& taps);

}  // namespace veks_wav

#endif
