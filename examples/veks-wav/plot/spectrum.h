// Pictures of spectra.
#ifndef VEKS_WAV_PLOT_SPECTRUM_H
#define VEKS_WAV_PLOT_SPECTRUM_H

#include <string>
#include <vector>

#include "output_file.h"
#include "sound/reader.h"
#include "sound/spectrum.h"

namespace veks_wav {

// Draws the spectrum of each channel and commits the picture.
void plotSpectrum(const SoundReader& sound, const Spectrum& spectrum, OutputFile& picture);

// What a filter did to a sound: its levels in dB from 0 to half the sample rate, and its edges in
// Hz.
struct FilterPlot {
  std::string name;
  std::vector<double> levels;
  std::vector<double> edges;
};

// Draws the spectra of each channel before and after the filter, and what it does to each
// frequency.
void plotFilter(const SoundReader& sound, const Spectrum& before, const Spectrum& after,
                const FilterPlot& filter, OutputFile& picture);

}  // namespace veks_wav

#endif
