#include <CLI/CLI.hpp>
#include <cmath>
#include <iomanip>
#include <iostream>
#include <memory>
#include <optional>
#include <sstream>

#include "commands/commands.h"
#include "commands/files.h"
#include "commands/numbers.h"
#include "commands/windows.h"
#include "plot/panels.h"
#include "plot/spectrum.h"
#include "sound/filter_design.h"
#include "sound/filtered.h"

namespace veks_wav {
namespace {

constexpr int kMostTaps = 65536;
constexpr int kPlotOrder = 12;

struct Options {
  std::string type;
  double low = 0;
  std::optional<double> high;
  int taps = 0;
  WindowOptions window = {"hamming", {}};
  bool isAligned = false;
  std::string plot;
  Files files;
};

// What can be told without the sound.
void requireSense(const Options& options, FilterType type) {
  if (!hasBand(type) && options.high) {
    throw CLI::ValidationError("--freq2", "is for bandpass and bandstop only");
  }
  if (hasBand(type) && !options.high) throw CLI::RequiredError("--freq2");
  if (hasBand(type) && *options.high <= options.low) {
    throw CLI::ValidationError("--freq2", "must be above --freq");
  }
  if (options.taps % 2 != 0) return;
  if (passesHighest(type)) {
    throw CLI::ValidationError("--taps", "must be odd for " + options.type);
  }
  if (options.isAligned) {
    throw CLI::ValidationError("--taps", "must be odd for --align, or the delay has half a frame");
  }
}

void requireFrequency(const char* name, double hertz, const SoundReader& in) {
  const double half = in.format().sampleRate / 2.0;
  if (hertz < half) return;
  std::ostringstream reason;
  reason << name << " must be below " << half << " Hz, half the sample rate";
  throw Error(in.path(), reason.str());
}

FilterDesign designFor(const Options& options, const SoundReader& in) {
  const FilterType type = filterNames().at(options.type);
  const Window window = windowOf(options.window);
  requireSense(options, type);
  requireFrequency("--freq", options.low, in);
  if (options.high) requireFrequency("--freq2", *options.high, in);
  const double rate = in.format().sampleRate;
  return {type, options.low / rate, options.high.value_or(0) / rate, options.taps, window};
}

std::string describe(const Options& options) {
  std::ostringstream text;
  text << options.type << ' ' << options.low;
  if (options.high) text << " to " << *options.high;
  text << " Hz, " << options.taps << " taps, window " << options.window.name;
  const Window window = windowOf(options.window);
  if (window.shape == Shape::kKaiser) text << ' ' << window.beta;
  return text.str();
}

void plot(const Options& options, const SoundReader& in, SoundWriter& out,
          const std::vector<double>& taps, OutputFile& picture) {
  SoundReader unfiltered(in.path());
  SoundReader filtered(out.close());
  // Its side lobes are below what 16 bits can tell.
  const Window window = {Shape::kKaiser, 14};
  FilterPlot filter = {describe(options), responseOf(taps), {options.low}};
  if (options.high) filter.edges.push_back(*options.high);
  plotFilter(in, Spectrum(unfiltered, kPlotOrder, window), Spectrum(filtered, kPlotOrder, window),
             filter, picture);
}

// Writes the sound; returns the time that the filters took.
Clock::duration filterInto(SoundWriter& out, SoundReader& in, std::vector<double>& taps,
                           int first) {
  if (needsDouble(in.format())) return writeFiltered(in, out, taps, first);
  const std::vector<Vek32f> singles(taps.begin(), taps.end());
  taps.assign(singles.begin(), singles.end());
  return writeFiltered(in, out, singles, first);
}

void filter(const Options& options) {
  const Clock::time_point start = Clock::now();
  SoundReader in(options.files.in);
  const FilterDesign design = designFor(options, in);
  in.requireFrames();
  std::optional<OutputFile> picture;
  if (!options.plot.empty()) {
    requirePictureName(options.plot, in);
    picture.emplace(options.plot);
  }
  std::vector<double> taps = designTaps(design);
  SoundWriter out(options.files.out, in, in.frames());
  const Clock::duration inFilter =
      filterInto(out, in, taps, options.isAligned ? options.taps / 2 : 0);
  out.close();
  const Clock::duration inAll = Clock::now() - start;
  if (picture) plot(options, in, out, taps, *picture);
  out.finish();

  // Seconds of sound in a second.
  const auto factor = [&in](Clock::duration time) {
    return in.seconds() / std::chrono::duration<double>(time).count();
  };
  const double delay = (options.taps - 1) / 2.0;
  std::cout << "Filter:      " << describe(options) << "\n"
            << "Delay:       " << delay << " frames, " << 1000 * delay / in.format().sampleRate
            << " ms" << (options.isAligned ? ", taken out" : "") << "\n"
            << std::fixed << std::setprecision(1) << "Real time:   " << factor(inFilter)
            << " x in the filter, " << factor(inAll) << " x with reading and writing\n"
            << std::flush;
  if (!std::cout) throw Error("standard output", "cannot be written");
}

}  // namespace

void addFilter(CLI::App& app) {
  CLI::App* command = app.add_subcommand("filter", "Keep some frequencies and remove others");
  const auto options = std::make_shared<Options>();
  const auto isFrequency =
      numberCheck("a frequency above 0 Hz", [](double x) { return x > 0 && std::isfinite(x); });
  command->add_option("--type", options->type, "lowpass, highpass, bandpass or bandstop")
      ->required()
      ->type_name("TYPE")
      ->check(CLI::IsMember(filterNames()).description(""));
  command->add_option("--freq", options->low, "The edge, the lower one of a band")
      ->required()
      ->type_name("HZ")
      ->check(isFrequency);
  command->add_option("--freq2", options->high, "The upper edge of a band")
      ->type_name("HZ")
      ->check(isFrequency);
  command->add_option("--taps", options->taps, "The length of the filter, from 5 to 65536")
      ->required()
      ->type_name("N")
      ->check(CLI::Range(kLeastTaps, kMostTaps).description(""));
  addWindow(command, options->window, "The window of the taps");
  command->add_flag("--align", options->isAligned, "Take out the delay of (N-1)/2 frames");
  command
      ->add_option("--plot", options->plot,
                   "Draw the spectra before and after, and the filter (with gnuplot)")
      ->type_name("FILE.png");
  addFiles(
      command, options->files,
      std::string(
          "The filter has linear phase: it delays all frequencies by (N-1)/2 frames. OUT is as\n"
          "long as IN, cut at its end, or with --align at its beginning, where it starts\n"
          "before the sound does. The level at an edge is -6 dB; with more taps it falls more\n"
          "steeply, with other windows further. N must be odd for highpass and bandstop, and\n"
          "for --align.\n") +
          kWindowRules + "\n");
  command->callback([options] { filter(*options); });
}

}  // namespace veks_wav
