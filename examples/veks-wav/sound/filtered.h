// Filtering a sound block by block.
#ifndef VEKS_WAV_SOUND_FILTERED_H
#define VEKS_WAV_SOUND_FILTERED_H

#include <chrono>
#include <vector>

#include "sound/floats.h"
#include "vek_filter.h"

namespace veks_wav {

using Clock = std::chrono::steady_clock;

// A filter for each channel.
template <class T>
class ChannelFilters {
 public:
  ChannelFilters(const std::vector<T>& taps, int channels, int block) : in_(block), out_(block) {
    for (int channel = 0; channel < channels; ++channel) filters_.emplace_back(taps);
  }

  void run(T* frames, int count) {
    T* channel = frames;
    for (Filter<T>& filter : filters_) {
      const size_t channels = filters_.size();
      for (int i = 0; i < count; ++i) in_.data()[i] = channel[static_cast<size_t>(i) * channels];
      const Clock::time_point start = Clock::now();
      filter.run(in_.data(), out_.data(), count);
      time_ += Clock::now() - start;
      for (int i = 0; i < count; ++i) channel[static_cast<size_t>(i) * channels] = out_.data()[i];
      ++channel;
    }
  }

  // That the filters took.
  Clock::duration time() const {
    return time_;
  }

 private:
  std::vector<Filter<T>> filters_;
  Samples<T> in_;
  Samples<T> out_;
  Clock::duration time_ = {};
};

// Writes the whole sound from the frame `first` of the result on: silence goes through the filter
// after the sound. Returns the time that the filters took.
template <class T>
Clock::duration writeFiltered(SoundReader& in, SoundWriter& out, const std::vector<T>& taps,
                              int first) {
  const int channels = in.channels();
  const int block = framesPerBlock(channels);
  Samples<T> frames(block * channels);
  FloatReader<T> reader(in, channels, block);
  FloatWriter<T> writer(out, block);
  ChannelFilters<T> filters(taps, channels, block);
  inBlocks(in.frames() + first, block, [&](int count) {
    reader.read(frames.data(), count);
    filters.run(frames.data(), count);
    const int dropped = std::min(first, count);
    first -= dropped;
    if (dropped < count) writer.write(frames.data() + dropped * channels, count - dropped);
  });
  return filters.time();
}

}  // namespace veks_wav

#endif
