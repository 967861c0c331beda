#include <CLI/CLI.hpp>
#include <memory>

#include "commands/commands.h"
#include "commands/files.h"
#include "error.h"
#include "sound/blocks.h"

namespace veks_wav {
namespace {

struct Options {
  std::string a;
  std::string b;
  std::string out;
};

void concat(const Options& options) {
  SoundReader a(options.a);
  SoundReader b(options.b);
  requireEqual(a.format().sampleRate, b.format().sampleRate, "Hz", a, b);
  requireEqual(a.channels(), b.channels(), "channel(s)", a, b);
  if (a.frames() == 0) b.requireFrames();
  SoundWriter out(options.out, a, a.frames() + b.frames());
  if (sampleTypeOf(b.format()) != SampleType::kInt32 && !takesFloats(out.format())) {
    throw Error(b.path(),
                "holds floating-point samples, which cannot become " + encodingName(out.format()));
  }
  copyFrames(a, out);
  copyFrames(b, out);
  out.finish();
}

}  // namespace

void addConcat(CLI::App& app) {
  CLI::App* command = app.add_subcommand("concat", "Play one sound after another");
  const auto options = std::make_shared<Options>();
  command->add_option("A", options->a, "The sound file that comes first")->required();
  command->add_option("B", options->b, "The one after it, with the same rate and channels")
      ->required();
  command->add_option("OUT", options->out, "The sound file to write")->required();
  command->footer(
      std::string("B is converted to the encoding of A: integers lose their lowest bits where "
                  "that is\nnarrower, floating point is full scale at -1 and 1 and clipped "
                  "there. IN means A below.\n\n") +
      kOutputRules);
  command->callback([options] { concat(*options); });
}

}  // namespace veks_wav
