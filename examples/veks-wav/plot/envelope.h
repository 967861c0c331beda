// What a waveform looks like at the resolution of a picture.
#ifndef VEKS_WAV_PLOT_ENVELOPE_H
#define VEKS_WAV_PLOT_ENVELOPE_H

#include <cstdint>
#include <vector>

#include "sound/reader.h"

namespace veks_wav {

// The extremes of the samples in a stretch of time, full scale being 1. NaN counts for nothing:
// low > high if there is nothing else.
struct Range {
  double low;
  double high;
};

class Envelope {
 public:
  // Reads the file, which has frames, into at most so many columns.
  Envelope(SoundReader& sound, int mostColumns);

  int columns() const {
    return columns_;
  }

  // Whether columns stand for several frames.
  bool isReduced() const {
    return columns_ < frames_;
  }

  const Range& at(int channel, int column) const;

  // The time in the middle of a column.
  double seconds(int column) const;

  // The largest finite magnitude.
  double peak() const;

 private:
  void add(const double* samples, int count, int64_t first);
  int64_t firstFrame(int column) const;

  int channels_;
  int64_t frames_;
  int columns_;
  double rate_;
  std::vector<Range> ranges_;
};

}  // namespace veks_wav

#endif
