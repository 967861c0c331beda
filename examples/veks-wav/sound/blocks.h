// Processing files of any length block by block.
#ifndef VEKS_WAV_SOUND_BLOCKS_H
#define VEKS_WAV_SOUND_BLOCKS_H

#include <algorithm>
#include <cstdint>

#include "sound/reader.h"
#include "sound/samples.h"
#include "sound/writer.h"

namespace veks_wav {

// The frames of a block, which stays in the cache.
inline int framesPerBlock(int channels) {
  constexpr int kSamples = 1 << 16;
  return std::max(kSamples / channels, 1);
}

// Calls function(frames) for so many frames in all, in portions of at most a block.
template <class Function>
void inBlocks(int64_t total, int block, Function function) {
  for (int64_t left = total; left > 0;) {
    const int frames = static_cast<int>(std::min<int64_t>(left, block));
    function(frames);
    left -= frames;
  }
}

// Calls function(samples) with a buffer of the file's sample type for so many frames.
template <class Function>
void withSamples(const SoundReader& sound, int frames, Function function) {
  const int size = frames * sound.channels();
  switch (sampleTypeOf(sound.format())) {
    case SampleType::kInt32:
      return function(Samples<Vek32s>(size).data());
    case SampleType::kFloat32:
      return function(Samples<Vek32f>(size).data());
    case SampleType::kFloat64:
      return function(Samples<Vek64f>(size).data());
  }
}

// Calls function(samples, frames) for one block of the file after the other.
template <class Function>
void forEachBlock(SoundReader& sound, Function function) {
  const int block = framesPerBlock(sound.channels());
  withSamples(sound, block, [&](auto* samples) {
    inBlocks(sound.frames(), block, [&](int frames) {
      sound.read(samples, frames);
      function(samples, frames);
    });
  });
}

inline void copyFrames(SoundReader& in, SoundWriter& out) {
  forEachBlock(in, [&](const auto* samples, int frames) { out.write(samples, frames); });
}

}  // namespace veks_wav

#endif
