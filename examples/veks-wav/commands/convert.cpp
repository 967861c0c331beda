#include <sndfile.h>

#include <CLI/CLI.hpp>
#include <map>
#include <memory>

#include "commands/commands.h"
#include "commands/files.h"
#include "error.h"
#include "sound/floats.h"

namespace veks_wav {
namespace {

struct Options {
  std::string format;
  Files files;
};

const std::map<std::string, int> kEncodings = {
    {"u8", SF_FORMAT_PCM_U8},  {"s16", SF_FORMAT_PCM_16}, {"s24", SF_FORMAT_PCM_24},
    {"s32", SF_FORMAT_PCM_32}, {"f32", SF_FORMAT_FLOAT},  {"f64", SF_FORMAT_DOUBLE},
};

void convert(const Options& options) {
  SoundReader in(options.files.in);
  in.requireFrames();
  const SoundFormat wanted = withEncoding(in.format(), kEncodings.at(options.format));
  SoundWriter out(options.files.out, in, wanted, in.frames());
  // Other containers may have wider samples than are wanted, or no PCM.
  if (pcmBits(out.format()) != pcmBits(wanted) ||
      sampleTypeOf(out.format()) != sampleTypeOf(wanted) || !seeksExactly(out.format())) {
    throw Error(options.files.out,
                containerName(out.format()) + " cannot hold " + options.format + " samples");
  }
  changeSamples(in, out, [](auto* /*samples*/, int /*len*/) {});
  out.finish();
}

}  // namespace

void addConvert(CLI::App& app) {
  CLI::App* command = app.add_subcommand("convert", "Change the encoding of the samples");
  const auto options = std::make_shared<Options>();
  command->add_option("--format", options->format, "u8, s16, s24, s32, f32 or f64")
      ->required()
      ->type_name("FORMAT")
      ->check(CLI::IsMember({"u8", "s16", "s24", "s32", "f32", "f64"}).description(""));
  addFiles(command, options->files,
           "FORMAT is unsigned (u), signed (s) or floating point (f) and the bits of a sample;\n"
           "u8 is signed in containers that have 8 bits so. Integers are rounded to nearest and\n"
           "stay at full scale, -1 and 1 in floating point, beyond it. IN has that encoding "
           "below.\n\n");
  command->callback([options] { convert(*options); });
}

}  // namespace veks_wav
