// A picture of a spectrum.
#ifndef VEKS_WAV_PLOT_SPECTRUM_H
#define VEKS_WAV_PLOT_SPECTRUM_H

#include "output_file.h"
#include "sound/reader.h"
#include "sound/spectrum.h"

namespace veks_wav {

// Draws the spectrum of each channel and commits the picture.
void plotSpectrum(const SoundReader& sound, const Spectrum& spectrum, OutputFile& picture);

}  // namespace veks_wav

#endif
