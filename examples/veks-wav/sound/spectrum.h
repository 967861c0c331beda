// The average power of a sound at each frequency.
#ifndef VEKS_WAV_SOUND_SPECTRUM_H
#define VEKS_WAV_SOUND_SPECTRUM_H

#include <cstdint>
#include <vector>

#include "sound/reader.h"
#include "sound/window.h"

namespace veks_wav {

// Blocks of 2^order frames, each starting half a block after the one before, are windowed and
// transformed, and their power spectra averaged for each channel. What does not fill a block is
// left out, but a sound that is shorter than one is filled up with silence.
class Spectrum {
 public:
  // Reads the file, which has frames, from its beginning.
  Spectrum(SoundReader& sound, int order, const Window& window);

  int64_t blocks() const {
    return blocks_;
  }
  int frames() const {
    return frames_;
  }
  // From 0 to half the sample rate.
  int points() const {
    return frames_ / 2 + 1;
  }
  double hertz(int point) const {
    return rate_ * point / frames_;
  }
  // The level of a sine of that frequency: 0 dB at full scale, -infinity for silence.
  double decibels(int channel, int point) const;

  // Where the level is highest, not counting the one at 0 Hz; -1 if it is nowhere above silence.
  int peak(int channel) const;

 private:
  void add(SoundReader& sound, int order, const Window& window);

  int channels_;
  double rate_;
  int frames_;
  int64_t blocks_;
  double weight_;  // of all frames of a block
  // For each channel the sum of the squares of all points.
  std::vector<std::vector<double>> powers_;
};

}  // namespace veks_wav

#endif
