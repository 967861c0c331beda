// Reading sound files.
#ifndef VEKS_WAV_SOUND_READER_H
#define VEKS_WAV_SOUND_READER_H

#include <sndfile.h>
#include <veks.h>

#include <cstdint>
#include <string>

#include "descriptor.h"
#include "sound/format.h"
#include "sound/handle.h"

namespace veks_wav {

class SoundReader {
 public:
  explicit SoundReader(const std::string& path);

  const std::string& path() const {
    return path_;
  }
  const SoundFormat& format() const {
    return format_;
  }
  int64_t frames() const {
    return frames_;
  }
  int channels() const {
    return format_.channels;
  }
  double seconds() const {
    return static_cast<double>(frames_) / format_.sampleRate;
  }

  // Fails if the file is without frames.
  void requireFrames() const;

  // Fails if the last frame is not there. Files that are read from the beginning only pass.
  void checkEnd();

  // The next frame to read.
  void seek(int64_t frame);

  // Reads interleaved frames, without loss as the type that sampleTypeOf() gives. Integers that
  // are read as floating point lie within -1 .. 1; the reverse is of no use.
  void read(Vek32s* frames, int count);
  void read(Vek32f* frames, int count);
  void read(Vek64f* frames, int count);

  SNDFILE* handle() const {
    return handle_.get();
  }

 private:
  void advance(int64_t done, int count);

  std::string path_;
  Descriptor descriptor_;
  SoundHandle handle_;
  SoundFormat format_ = {};
  int64_t frames_ = 0;
  bool isSeekable_ = false;
  int64_t position_ = 0;
};

}  // namespace veks_wav

#endif
