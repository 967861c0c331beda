// Ownership of an open sound file of libsndfile.
#ifndef VEKS_WAV_SOUND_HANDLE_H
#define VEKS_WAV_SOUND_HANDLE_H

#include <sndfile.h>

#include <memory>
#include <string>

namespace veks_wav {

struct CloseSound {
  void operator()(SNDFILE* handle) const {
    sf_close(handle);
  }
};

using SoundHandle = std::unique_ptr<SNDFILE, CloseSound>;

// The last error of a file, or of opening one (null), as part of a sentence.
inline std::string soundError(SNDFILE* handle) {
  std::string text = sf_strerror(handle);
  while (!text.empty() && (text.back() == '.' || text.back() == '\n')) text.pop_back();
  return text;
}

}  // namespace veks_wav

#endif
