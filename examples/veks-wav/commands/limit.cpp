#include <CLI/CLI.hpp>
#include <memory>

#include "commands/commands.h"
#include "commands/files.h"
#include "commands/numbers.h"
#include "sound/floats.h"

namespace veks_wav {
namespace {

struct Options {
  double level = 0;
  Files files;
};

void limit(const Options& options) {
  SoundReader in(options.files.in);
  in.requireFrames();
  SoundWriter out(options.files.out, in, in.frames());
  changeSamples(in, out, [&](auto* samples, int len) {
    using T = std::remove_pointer_t<decltype(samples)>;
    const T level = static_cast<T>(options.level);
    clip(samples, len, -level, level);
  });
  out.finish();
}

}  // namespace

void addLimit(CLI::App& app) {
  CLI::App* command = app.add_subcommand("limit", "Clip the samples beyond a level");
  const auto options = std::make_shared<Options>();
  command->add_option("LEVEL", options->level, "A fraction of full scale, above 0 and up to 1")
      ->required()
      ->check(
          numberCheck("a number above 0 and up to 1", [](double x) { return x > 0 && x <= 1; }));
  addFiles(command, options->files,
           "Samples above LEVEL become LEVEL, samples below -LEVEL become -LEVEL, rounded to the\n"
           "nearest sample that the encoding has.\n\n");
  command->callback([options] { limit(*options); });
}

}  // namespace veks_wav
