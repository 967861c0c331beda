// Calculating with samples of any encoding: as floating-point numbers, full scale being -1 .. 1.
#ifndef VEKS_WAV_SOUND_FLOATS_H
#define VEKS_WAV_SOUND_FLOATS_H

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <type_traits>

#include "sound/blocks.h"
#include "vek.h"

namespace veks_wav {

// Reads a sound from its beginning as T, Vek32f or Vek64f: double where needsDouble() says so. One
// channel is copied to all channels that are wanted.
template <class T>
class FloatReader {
 public:
  FloatReader(SoundReader& in, int channels, int block)
      : in_(in),
        channels_(channels),
        left_(in.frames()),
        integers_(block * in.channels()),
        singles_(block * in.channels()) {}

  // Frames after the end are silence.
  void read(T* frames, int count) {
    const int there = static_cast<int>(std::min<int64_t>(left_, count));
    left_ -= there;
    if (there > 0) readStored(frames, there);
    if (in_.channels() < channels_) spread(frames, there);
    if (there < count) zero(frames + there * channels_, (count - there) * channels_);
  }

 private:
  void readStored(T* frames, int count) {
    const SampleType type = sampleTypeOf(in_.format());
    if (type == SampleType::kInt32) {
      in_.read(integers_.data(), count);
      return convert(integers_.data(), frames, count * in_.channels());
    }
    if constexpr (std::is_same_v<T, Vek64f>) {
      if (type == SampleType::kFloat32) {
        in_.read(singles_.data(), count);
        return convert(singles_.data(), frames, count * in_.channels());
      }
    }
    in_.read(frames, count);
  }

  // From the last one on, so that none is overwritten before it is copied.
  void spread(T* frames, int count) {
    for (int i = count - 1; i >= 0; --i) {
      std::fill_n(frames + i * channels_, channels_, frames[i]);
    }
  }

  SoundReader& in_;
  int channels_;
  int64_t left_;
  Samples<Vek32s> integers_;
  Samples<Vek32f> singles_;
};

// Writes such samples: integers are rounded to nearest and saturated to the range of the encoding.
template <class T>
class FloatWriter {
 public:
  FloatWriter(SoundWriter& out, int block)
      : out_(out),
        channels_(out.format().channels),
        integers_(block * channels_),
        singles_(block * channels_) {}

  // Leaves what was written in `frames`.
  void write(T* frames, int count) {
    const int size = count * channels_;
    const int bits = integerBits(out_.format());
    if (bits > 0) {
      // 32 bits saturate as they are rounded, and their largest value is no Vek32f.
      if (bits < 32) clip(frames, size, -1, 1 - std::ldexp(T{1}, 1 - bits));
      convertToBits(frames, integers_.data(), size, bits);
      shiftLeft(integers_.data(), size, 32 - bits);
      return out_.write(integers_.data(), count);
    }
    if constexpr (std::is_same_v<T, Vek64f>) {
      if (sampleTypeOf(out_.format()) == SampleType::kFloat32) {
        convert(frames, singles_.data(), size);
        return out_.write(singles_.data(), count);
      }
    }
    out_.write(frames, count);
  }

 private:
  SoundWriter& out_;
  int channels_;
  Samples<Vek32s> integers_;
  Samples<Vek32f> singles_;
};

// Calls function(T{}) with the type to calculate in.
template <class Function>
void withFloatType(bool isDouble, Function function) {
  if (isDouble) return function(Vek64f{});
  return function(Vek32f{});
}

// Writes a sound of which change(samples, len) has changed every block.
template <class Function>
void changeSamples(SoundReader& in, SoundWriter& out, Function change) {
  withFloatType(needsDouble(in.format()), [&](auto zero) {
    using T = decltype(zero);
    const int block = framesPerBlock(in.channels());
    Samples<T> samples(block * in.channels());
    FloatReader<T> reader(in, in.channels(), block);
    FloatWriter<T> writer(out, block);
    inBlocks(in.frames(), block, [&](int frames) {
      reader.read(samples.data(), frames);
      change(samples.data(), frames * in.channels());
      writer.write(samples.data(), frames);
    });
  });
}

}  // namespace veks_wav

#endif
