#include "plot/envelope.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "sound/blocks.h"

namespace veks_wav {

Envelope::Envelope(SoundReader& sound, int mostColumns)
    : channels_(sound.channels()),
      frames_(sound.frames()),
      columns_(static_cast<int>(std::min<int64_t>(sound.frames(), mostColumns))),
      rate_(sound.format().sampleRate) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  ranges_.assign(static_cast<size_t>(columns_) * static_cast<size_t>(channels_),
                 Range{kInfinity, -kInfinity});
  const int block = framesPerBlock(channels_);
  Samples<Vek64f> samples(block * channels_);
  int64_t first = 0;
  inBlocks(frames_, block, [&](int count) {
    sound.read(samples.data(), count);
    add(samples.data(), count, first);
    first += count;
  });
}

void Envelope::add(const double* samples, int count, int64_t first) {
  for (int64_t frame = first; frame < first + count; ++frame) {
    const int64_t column = frame * columns_ / frames_;
    Range* const ranges = &ranges_[static_cast<size_t>(column * channels_)];
    for (int channel = 0; channel < channels_; ++channel) {
      const double sample = *samples++;
      Range& range = ranges[channel];
      // Comparisons with NaN are false.
      if (sample < range.low) range.low = sample;
      if (sample > range.high) range.high = sample;
    }
  }
}

const Range& Envelope::at(int channel, int column) const {
  return ranges_[static_cast<size_t>(column) * static_cast<size_t>(channels_) +
                 static_cast<size_t>(channel)];
}

int64_t Envelope::firstFrame(int column) const {
  return (column * frames_ + columns_ - 1) / columns_;
}

double Envelope::seconds(int column) const {
  const int64_t ends = firstFrame(column) + firstFrame(column + 1) - 1;
  return static_cast<double>(ends) / 2 / rate_;
}

double Envelope::peak() const {
  double peak = 0;
  for (const Range& range : ranges_) {
    if (std::isfinite(range.low)) peak = std::max(peak, std::fabs(range.low));
    if (std::isfinite(range.high)) peak = std::max(peak, std::fabs(range.high));
  }
  return peak;
}

}  // namespace veks_wav
