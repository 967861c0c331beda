#include <CLI/CLI.hpp>
#include <iomanip>
#include <iostream>
#include <memory>

#include "commands/commands.h"
#include "error.h"
#include "plot/waveform.h"
#include "sound/reader.h"

namespace veks_wav {
namespace {

struct Options {
  std::string in;
  std::string plot;
};

void info(const Options& options) {
  SoundReader in(options.in);
  if (options.plot.empty()) {
    in.checkEnd();
  } else {
    plotWaveform(in, options.plot);
  }
  std::cout << "File:        " << in.path() << "\n"
            << "Format:      " << containerName(in.format()) << "\n"
            << "Encoding:    " << encodingName(in.format()) << "\n"
            << "Sample rate: " << in.format().sampleRate << " Hz\n"
            << "Channels:    " << in.channels() << "\n"
            << "Frames:      " << in.frames() << "\n"
            << "Duration:    " << std::fixed << std::setprecision(6) << in.seconds() << " s\n"
            << std::flush;
  if (!std::cout) throw Error("standard output", "cannot be written");
}

}  // namespace

void addInfo(CLI::App& app) {
  CLI::App* command = app.add_subcommand("info", "Show what a sound file holds");
  const auto options = std::make_shared<Options>();
  command->add_option("IN", options->in, "The sound file to read")->required();
  command->add_option("--plot", options->plot, "Draw the waveform of each channel (with gnuplot)")
      ->type_name("FILE.png");
  command->callback([options] { info(*options); });
}

}  // namespace veks_wav
