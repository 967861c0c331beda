#include <CLI/CLI.hpp>
#include <memory>

#include "commands/commands.h"
#include "commands/encodings.h"
#include "commands/files.h"
#include "sound/floats.h"

namespace veks_wav {
namespace {

struct Options {
  std::string format;
  Files files;
};

void convert(const Options& options) {
  SoundReader in(options.files.in);
  in.requireFrames();
  const SoundFormat wanted = withEncoding(in.format(), kEncodings.at(options.format));
  SoundWriter out(options.files.out, in, wanted, in.frames());
  requireEncoding(options.files.out, out.format(), wanted, options.format);
  changeSamples(in, out, [](auto* /*samples*/, int /*len*/) {});
  out.finish();
}

}  // namespace

void addConvert(CLI::App& app) {
  CLI::App* command = app.add_subcommand("convert", "Change the encoding of the samples");
  const auto options = std::make_shared<Options>();
  addFormat(command, options->format, "u8, s16, s24, s32, f32 or f64")->required();
  addFiles(command, options->files,
           "FORMAT is unsigned (u), signed (s) or floating point (f) and the bits of a sample;\n"
           "u8 is signed in containers that have 8 bits so. Integers are rounded to nearest and\n"
           "stay at full scale, -1 and 1 in floating point, beyond it. IN has that encoding "
           "below.\n\n");
  command->callback([options] { convert(*options); });
}

}  // namespace veks_wav
