#include <CLI/CLI.hpp>
#include <cmath>
#include <memory>

#include "commands/commands.h"
#include "commands/files.h"
#include "commands/numbers.h"
#include "sound/blocks.h"
#include "vek.h"

namespace veks_wav {
namespace {

struct Options {
  double before = 0;
  double after = 0;
  Files files;
};

void writeSilence(const SoundReader& in, SoundWriter& out, int64_t count) {
  const int block = framesPerBlock(in.channels());
  withSamples(in, block, [&](auto* samples) {
    zero(samples, block * in.channels());
    inBlocks(count, block, [&](int frames) { out.write(samples, frames); });
  });
}

void pad(const Options& options) {
  SoundReader in(options.files.in);
  const double rate = in.format().sampleRate;
  const int64_t before = std::llround(options.before * rate);
  const int64_t after = std::llround(options.after * rate);
  const int64_t total = before + in.frames() + after;
  if (total == 0) in.requireFrames();
  SoundWriter out(options.files.out, in, total);
  writeSilence(in, out, before);
  copyFrames(in, out);
  writeSilence(in, out, after);
  out.finish();
}

CLI::Option* addSeconds(CLI::App* command, const std::string& name, double& value,
                        const std::string& text) {
  constexpr double kDay = 86400;
  const auto check = numberCheck("a number of seconds from 0 to 86400",
                                 [](double x) { return x >= 0 && x <= kDay; });
  return command->add_option(name, value, text)->type_name("SECONDS")->check(check);
}

}  // namespace

void addPad(CLI::App& app) {
  CLI::App* command = app.add_subcommand("pad", "Add silence before and after a sound");
  const auto options = std::make_shared<Options>();
  const CLI::Option* before =
      addSeconds(command, "--before", options->before, "Silence before the sound, up to 86400");
  const CLI::Option* after =
      addSeconds(command, "--after", options->after, "Silence after the sound, up to 86400");
  addFiles(command, options->files,
           "One of --before and --after is needed. Times are rounded to whole frames.\n\n");
  command->callback([=] {
    if (before->count() + after->count() == 0) throw CLI::RequiredError("--before or --after");
    pad(*options);
  });
}

}  // namespace veks_wav
