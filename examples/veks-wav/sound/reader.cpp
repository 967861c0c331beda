#include "sound/reader.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <vector>

#include "error.h"
#include "sound/header.h"

namespace veks_wav {
namespace {

int openRegularFile(const std::string& path) {
  struct stat status;
  if (stat(path.c_str(), &status) != 0) throw systemError(path, "cannot be opened", errno);
  if (!S_ISREG(status.st_mode)) throw Error(path, "is not a regular file");
  if (status.st_size == 0) throw Error(path, "is empty (0 bytes)");
  const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) throw systemError(path, "cannot be opened", errno);
  return descriptor;
}

uint64_t sizeOf(int descriptor) {
  struct stat status = {};
  fstat(descriptor, &status);
  return static_cast<uint64_t>(status.st_size);
}

}  // namespace

SoundReader::SoundReader(const std::string& path)
    : path_(path), descriptor_(openRegularFile(path)) {
  SF_INFO info = {};
  handle_.reset(sf_open_fd(descriptor_.get(), SFM_READ, &info, SF_FALSE));
  if (!handle_) {
    if (sf_error(nullptr) == SF_ERR_UNRECOGNISED_FORMAT) {
      throw Error(path, "is not a sound file of a known format");
    }
    throw Error(path, "cannot be read as a sound file: " + soundError(nullptr));
  }
  checkDataIsComplete(path, descriptor_.get(), sizeOf(descriptor_.get()));
  if (info.frames == SF_COUNT_MAX) throw Error(path, "is truncated: the length is not known");
  format_ = {info.samplerate, info.channels, info.format};
  frames_ = info.frames;
  isSeekable_ = info.seekable != 0;
}

void SoundReader::requireFrames() const {
  if (frames_ == 0) throw Error(path_, "holds no frames");
}

void SoundReader::checkEnd() {
  if (frames_ == 0 || !isSeekable_) return;
  seek(frames_ - 1);
  std::vector<Vek64f> frame(static_cast<size_t>(channels()));
  read(frame.data(), 1);
}

void SoundReader::seek(int64_t frame) {
  if (frame == position_) return;
  if (sf_seek(handle_.get(), frame, SEEK_SET) != frame) {
    throw Error(path_, "is damaged or truncated: frame " + std::to_string(frame) + " of " +
                           std::to_string(frames_) + " cannot be reached");
  }
  position_ = frame;
}

void SoundReader::read(Vek32s* frames, int count) {
  advance(sf_readf_int(handle_.get(), frames, count), count);
}

void SoundReader::read(Vek32f* frames, int count) {
  advance(sf_readf_float(handle_.get(), frames, count), count);
}

void SoundReader::read(Vek64f* frames, int count) {
  advance(sf_readf_double(handle_.get(), frames, count), count);
}

void SoundReader::advance(int64_t done, int count) {
  position_ += done;
  if (done == count) return;
  std::string reason = "is damaged or truncated: " + std::to_string(position_) + " of " +
                       std::to_string(frames_) + " frames could be read";
  if (sf_error(handle_.get()) != SF_ERR_NO_ERROR) reason += " (" + soundError(handle_.get()) + ")";
  throw Error(path_, reason);
}

}  // namespace veks_wav
