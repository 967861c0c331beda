#include <CLI/CLI.hpp>
#include <climits>
#include <memory>

#include "commands/commands.h"
#include "commands/files.h"
#include "error.h"
#include "sound/blocks.h"
#include "vek.h"

namespace veks_wav {
namespace {

// Reverses the order of the frames; the samples of a frame keep theirs.
template <class T>
void flipFrames(T* samples, int frames, int channels) {
  // A frame that is as large as an element of the library is moved as one.
  switch (static_cast<size_t>(channels) * sizeof(T)) {
    case 4:
      return flip32(samples, frames);
    case 8:
      return flip64(samples, frames);
    case 16:
      return flip128(samples, frames);
    default:
      break;
  }
  const auto flip = sizeof(T) == 4 ? flip32 : flip64;
  const int size = frames * channels;
  flip(samples, size);
  for (T* frame = samples; frame != samples + size; frame += channels) flip(frame, channels);
}

// Blocks are read from the end of the file backwards, or the whole file if its encoding cannot be
// entered at any frame.
int blockOf(const SoundReader& in) {
  if (seeksExactly(in.format())) return framesPerBlock(in.channels());
  if (in.frames() > INT_MAX / in.channels()) {
    throw Error(in.path(), "is too long: " + encodingName(in.format()) +
                               " is reversed in memory, up to " + std::to_string(INT_MAX) +
                               " samples");
  }
  return static_cast<int>(in.frames());
}

void reverse(const Files& files) {
  SoundReader in(files.in);
  in.requireFrames();
  SoundWriter out(files.out, in, in.frames());
  const int block = blockOf(in);
  withSamples(in, block, [&](auto* samples) {
    int64_t begin = in.frames();
    inBlocks(in.frames(), block, [&](int frames) {
      begin -= frames;
      in.seek(begin);
      in.read(samples, frames);
      flipFrames(samples, frames, in.channels());
      out.write(samples, frames);
    });
  });
  out.finish();
}

}  // namespace

void addReverse(CLI::App& app) {
  CLI::App* command = app.add_subcommand("reverse", "Play a sound backwards");
  const auto files = std::make_shared<Files>();
  addFiles(command, *files);
  command->callback([files] { reverse(*files); });
}

}  // namespace veks_wav
