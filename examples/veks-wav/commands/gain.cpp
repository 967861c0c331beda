#include <CLI/CLI.hpp>
#include <cmath>
#include <memory>

#include "commands/commands.h"
#include "commands/files.h"
#include "commands/numbers.h"
#include "sound/floats.h"

namespace veks_wav {
namespace {

struct Options {
  double decibels = 0;
  Files files;
};

void gain(const Options& options) {
  SoundReader in(options.files.in);
  in.requireFrames();
  SoundWriter out(options.files.out, in, in.frames());
  const double factor = std::pow(10, options.decibels / 20);
  changeSamples(in, out, [&](auto* samples, int len) {
    using T = std::remove_pointer_t<decltype(samples)>;
    multiply(samples, len, static_cast<T>(factor));
  });
  out.finish();
}

}  // namespace

void addGain(CLI::App& app) {
  CLI::App* command = app.add_subcommand("gain", "Make a sound louder or softer");
  const auto options = std::make_shared<Options>();
  command->add_option("DB", options->decibels, "Decibels, -200 to 200; below 0 softer")
      ->required()
      ->check(numberCheck("a number of decibels from -200 to 200",
                          [](double x) { return x >= -200 && x <= 200; }));
  addFiles(command, options->files,
           "Each sample is multiplied by 10^(DB/20). Integers are rounded to nearest and stay at "
           "full\nscale beyond it; floating point goes beyond.\n\n");
  command->callback([options] { gain(*options); });
}

}  // namespace veks_wav
