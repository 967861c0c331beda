// Writing sound files.
#ifndef VEKS_WAV_SOUND_WRITER_H
#define VEKS_WAV_SOUND_WRITER_H

#include <sndfile.h>
#include <veks.h>

#include <cstdint>
#include <string>

#include "output_file.h"
#include "sound/format.h"
#include "sound/handle.h"
#include "sound/reader.h"

namespace veks_wav {

class SoundWriter {
 public:
  // A file for about `frames` frames with the texts and the channel map of `model`, in the format
  // that follows from it and from the name of the file.
  SoundWriter(const std::string& path, const SoundReader& model, int64_t frames);

  // The same with another format in the place of the model's.
  SoundWriter(const std::string& path, const SoundReader& model, const SoundFormat& format,
              int64_t frames);

  // Without a model: the texts are empty.
  SoundWriter(const std::string& path, const SoundFormat& format, int64_t frames);

  const SoundFormat& format() const {
    return format_;
  }

  // Writes interleaved frames, converted to the encoding of the file: integers lose their lowest
  // bits where it is narrower, floating point is full scale at -1 and 1 and clipped there.
  void write(const Vek32s* frames, int count);
  void write(const Vek32f* frames, int count);
  void write(const Vek64f* frames, int count);

  // Ends the writing. The content can be read as a file of the name that this returns, as long as
  // finish() is not called.
  const std::string& close();

  // Closes the file if it still is open. Without this nothing is left of it.
  void finish();

 private:
  // What libsndfile writes to: unlike its own file access this keeps each error.
  struct Sink {
    int descriptor;
    int error;
  };
  static SF_VIRTUAL_IO accessToSink();

  void open();
  void copyTexts(SNDFILE* from);
  void checkWritten(int64_t done, int count);
  void checkSink() const;

  SoundFormat format_;
  OutputFile output_;
  Sink sink_;
  SoundHandle handle_;
};

}  // namespace veks_wav

#endif
