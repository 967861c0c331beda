#include <unistd.h>

#include <CLI/CLI.hpp>
#include <cerrno>
#include <cmath>
#include <filesystem>
#include <iomanip>
#include <iostream>
#include <memory>
#include <optional>
#include <sstream>

#include "commands/commands.h"
#include "commands/windows.h"
#include "error.h"
#include "output_file.h"
#include "plot/panels.h"
#include "plot/spectrum.h"
#include "sound/reader.h"
#include "sound/spectrum.h"

namespace veks_wav {
namespace {

constexpr int kLeastOrder = 4;
constexpr int kMostOrder = 16;

struct Options {
  std::string in;
  int order = 12;
  WindowOptions window = {"none", {}};
  std::string plot;
  std::string table;
};

std::string columnName(int channel, int channels) {
  const std::string name = channelName(channel, channels);
  return (name.empty() ? "Level" : name) + " (dB)";
}

void writeTable(const Spectrum& spectrum, int channels, const OutputFile& table) {
  std::ostringstream text;
  text << "Frequency (Hz)";
  for (int channel = 0; channel < channels; ++channel) text << ',' << columnName(channel, channels);
  text << '\n' << std::setprecision(9);
  for (int point = 0; point < spectrum.points(); ++point) {
    text << spectrum.hertz(point);
    for (int channel = 0; channel < channels; ++channel) {
      const double level = spectrum.decibels(channel, point);
      if (std::isnan(level)) {
        text << ",nan";
      } else {
        text << ',' << level;
      }
    }
    text << '\n';
  }
  const std::string content = text.str();
  for (size_t done = 0; done < content.size();) {
    const ssize_t count = write(table.descriptor(), content.data() + done, content.size() - done);
    if (count < 0) throw systemError(table.path(), "cannot be written", errno);
    done += static_cast<size_t>(count);
  }
}

// The same for all names of a file that may not be there yet.
std::filesystem::path fullName(const std::string& path) {
  std::error_code ignored;
  return std::filesystem::weakly_canonical(std::filesystem::absolute(path, ignored), ignored);
}

void requireTableName(const Options& options) {
  if (fullName(options.table) == fullName(options.in)) {
    throw Error(options.table, "is the sound file itself");
  }
  if (!options.plot.empty() && fullName(options.table) == fullName(options.plot)) {
    throw Error(options.table, "is the picture itself");
  }
}

void print(const SoundReader& in, const Spectrum& spectrum) {
  std::cout << "File:        " << in.path() << "\n"
            << "Blocks:      " << spectrum.blocks() << " of " << spectrum.frames() << " samples\n"
            << std::fixed << std::setprecision(3) << "Resolution:  " << spectrum.hertz(1)
            << " Hz\n";
  for (int channel = 0; channel < in.channels(); ++channel) {
    const std::string name = channelName(channel, in.channels());
    const int peak = spectrum.peak(channel);
    std::cout << "Peak:        ";
    if (peak < 0) {
      std::cout << "none";
    } else {
      std::cout << spectrum.hertz(peak) << " Hz, " << std::setprecision(2)
                << spectrum.decibels(channel, peak) << " dB" << std::setprecision(3);
    }
    std::cout << (name.empty() ? "" : " (" + name + ")") << "\n";
  }
  std::cout << std::flush;
  if (!std::cout) throw Error("standard output", "cannot be written");
}

void show(const Options& options) {
  const Window window = windowOf(options.window);
  SoundReader in(options.in);
  if (!options.plot.empty()) requirePictureName(options.plot, in);
  if (!options.table.empty()) requireTableName(options);
  in.requireFrames();
  std::optional<OutputFile> picture;
  std::optional<OutputFile> table;
  if (!options.plot.empty()) picture.emplace(options.plot);
  if (!options.table.empty()) table.emplace(options.table);
  const Spectrum spectrum(in, options.order, window);
  if (table) writeTable(spectrum, in.channels(), *table);
  if (picture) plotSpectrum(in, spectrum, *picture);
  if (table) table->commit();
  print(in, spectrum);
}

}  // namespace

void addSpectrum(CLI::App& app) {
  CLI::App* command = app.add_subcommand("spectrum", "Show the frequencies in a sound");
  const auto options = std::make_shared<Options>();
  command->add_option("IN", options->in, "The sound file to read")->required();
  command
      ->add_option("--order", options->order,
                   "Blocks of 2^N samples, N from 4 to 16; 12 if not given")
      ->type_name("N")
      ->check(CLI::Range(kLeastOrder, kMostOrder));
  addWindow(command, options->window, "The window of each block");
  command->add_option("--plot", options->plot, "Draw the spectrum of each channel (with gnuplot)")
      ->type_name("FILE.png");
  command->add_option("--csv", options->table, "Write a table of frequencies and levels")
      ->type_name("FILE");
  command->footer(
      std::string(
          "The power spectra of blocks that overlap by half are averaged. 0 dB is a sine of full\n"
          "scale. A sound shorter than a block is filled up with silence; frames after the last\n"
          "whole block are left out.\n") +
      kWindowRules);
  command->callback([options] { show(*options); });
}

}  // namespace veks_wav
