#include "sound/writer.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

#include "error.h"
#include "sound/output_format.h"

namespace veks_wav {
namespace {

SoundFormat checkedFormat(const std::string& path, const std::string& modelPath,
                          const SoundFormat& wanted, int64_t frames) {
  const SoundFormat format = formatOfOutput(path, modelPath, wanted);
  checkFileSize(path, format, frames);
  return format;
}

}  // namespace

SoundWriter::SoundWriter(const std::string& path, const SoundReader& model, int64_t frames)
    : SoundWriter(path, model, model.format(), frames) {}

SoundWriter::SoundWriter(const std::string& path, const SoundReader& model,
                         const SoundFormat& format, int64_t frames)
    : format_(checkedFormat(path, model.path(), format, frames)),
      output_(path),
      sink_{output_.descriptor(), 0} {
  open();
  copyTexts(model.handle());
}

SoundWriter::SoundWriter(const std::string& path, const SoundFormat& format, int64_t frames)
    : format_(checkedFormat(path, "the tone", format, frames)),
      output_(path),
      sink_{output_.descriptor(), 0} {
  open();
}

SF_VIRTUAL_IO SoundWriter::accessToSink() {
  SF_VIRTUAL_IO access = {};
  access.get_filelen = [](void* user) -> sf_count_t {
    struct stat status = {};
    fstat(static_cast<Sink*>(user)->descriptor, &status);
    return status.st_size;
  };
  access.seek = [](sf_count_t offset, int whence, void* user) -> sf_count_t {
    return lseek(static_cast<Sink*>(user)->descriptor, offset, whence);
  };
  access.tell = [](void* user) -> sf_count_t {
    return lseek(static_cast<Sink*>(user)->descriptor, 0, SEEK_CUR);
  };
  access.read = [](void* bytes, sf_count_t count, void* user) -> sf_count_t {
    return ::read(static_cast<Sink*>(user)->descriptor, bytes, static_cast<size_t>(count));
  };
  access.write = [](const void* bytes, sf_count_t count, void* user) -> sf_count_t {
    auto* const sink = static_cast<Sink*>(user);
    sf_count_t done = 0;
    while (done < count) {
      const ssize_t step = ::write(sink->descriptor, static_cast<const char*>(bytes) + done,
                                   static_cast<size_t>(count - done));
      if (step < 0 && errno == EINTR) continue;
      if (step < 0) {
        if (sink->error == 0) sink->error = errno;
        break;
      }
      done += step;
    }
    return done;
  };
  return access;
}

void SoundWriter::open() {
  SF_INFO info = {};
  info.samplerate = format_.sampleRate;
  info.channels = format_.channels;
  info.format = format_.code;
  SF_VIRTUAL_IO access = accessToSink();
  handle_.reset(sf_open_virtual(&access, SFM_WRITE, &info, &sink_));
  checkSink();
  if (!handle_) throw Error(output_.path(), "cannot be written: " + soundError(nullptr));
  sf_command(handle_.get(), SFC_SET_CLIPPING, nullptr, SF_TRUE);
  sf_command(handle_.get(), SFC_SET_SCALE_INT_FLOAT_WRITE, nullptr, SF_TRUE);
  // The chunk has a time stamp in it; without it equal samples make equal files.
  sf_command(handle_.get(), SFC_SET_ADD_PEAK_CHUNK, nullptr, SF_FALSE);
}

void SoundWriter::copyTexts(SNDFILE* from) {
  for (int kind = SF_STR_FIRST; kind <= SF_STR_LAST; ++kind) {
    if (const char* text = sf_get_string(from, kind)) sf_set_string(handle_.get(), kind, text);
  }
  std::vector<int> map(static_cast<size_t>(format_.channels));
  const int bytes = static_cast<int>(map.size() * sizeof(int));
  if (sf_command(from, SFC_GET_CHANNEL_MAP_INFO, map.data(), bytes) == SF_TRUE) {
    sf_command(handle_.get(), SFC_SET_CHANNEL_MAP_INFO, map.data(), bytes);
  }
}

void SoundWriter::write(const Vek32s* frames, int count) {
  checkWritten(sf_writef_int(handle_.get(), frames, count), count);
}

void SoundWriter::write(const Vek32f* frames, int count) {
  checkWritten(sf_writef_float(handle_.get(), frames, count), count);
}

void SoundWriter::write(const Vek64f* frames, int count) {
  checkWritten(sf_writef_double(handle_.get(), frames, count), count);
}

const std::string& SoundWriter::close() {
  if (!handle_) return output_.temporary();
  const int error = sf_close(handle_.release());
  checkSink();
  if (error != SF_ERR_NO_ERROR) {
    throw Error(output_.path(), std::string("cannot be written: ") + sf_error_number(error));
  }
  return output_.temporary();
}

void SoundWriter::finish() {
  close();
  output_.commit();
}

void SoundWriter::checkWritten(int64_t done, int count) {
  checkSink();
  if (done != count) {
    throw Error(output_.path(), "cannot be written: " + soundError(handle_.get()));
  }
}

void SoundWriter::checkSink() const {
  if (sink_.error != 0) throw systemError(output_.path(), "cannot be written", sink_.error);
}

}  // namespace veks_wav
