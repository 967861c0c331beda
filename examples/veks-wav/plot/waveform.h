// A picture of a sound.
#ifndef VEKS_WAV_PLOT_WAVEFORM_H
#define VEKS_WAV_PLOT_WAVEFORM_H

#include <string>

#include "sound/reader.h"

namespace veks_wav {

// Draws the waveform of each channel over time into a PNG file.
void plotWaveform(SoundReader& sound, const std::string& path);

}  // namespace veks_wav

#endif
