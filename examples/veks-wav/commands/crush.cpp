#include <CLI/CLI.hpp>
#include <memory>

#include "commands/commands.h"
#include "commands/files.h"
#include "error.h"
#include "sound/blocks.h"
#include "vek.h"

namespace veks_wav {
namespace {

struct Options {
  int bits = 0;
  Files files;
};

// The top bits set. Samples of all widths fill 32 bits from the top.
Vek32u maskOfTop(int bits) {
  Vek32s mask = -1;
  check(veksLShiftC_32s_I(32 - bits, &mask, 1));
  return static_cast<Vek32u>(mask);
}

void requireBits(const SoundReader& in, int bits) {
  const int width = pcmBits(in.format());
  if (width == 0) {
    throw Error(in.path(), "crush needs integer PCM, not " + encodingName(in.format()));
  }
  if (bits > width) {
    throw Error(in.path(), "--bits must be 1 to " + std::to_string(width) + " for " +
                               encodingName(in.format()));
  }
}

void crush(const Options& options) {
  SoundReader in(options.files.in);
  in.requireFrames();
  requireBits(in, options.bits);
  SoundWriter out(options.files.out, in, in.frames());
  const Vek32u mask = maskOfTop(options.bits);
  const int block = framesPerBlock(in.channels());
  Samples<Vek32s> samples(block * in.channels());
  inBlocks(in.frames(), block, [&](int frames) {
    in.read(samples.data(), frames);
    auto* const bits = reinterpret_cast<Vek32u*>(samples.data());
    check(veksAndC_32u_I(mask, bits, frames * in.channels()));
    out.write(samples.data(), frames);
  });
  out.finish();
}

}  // namespace

void addCrush(CLI::App& app) {
  CLI::App* command =
      app.add_subcommand("crush", "Keep the top bits of each sample and clear the others");
  const auto options = std::make_shared<Options>();
  command->add_option("--bits", options->bits, "Bits to keep: 1 to the width of IN's samples")
      ->required()
      ->type_name("N")
      ->check(CLI::Range(1, 32).description(""));
  addFiles(command, options->files,
           "IN must be integer PCM (8, 16, 24 or 32 bits); at its full width nothing changes.\n\n");
  command->callback([options] { crush(*options); });
}

}  // namespace veks_wav
