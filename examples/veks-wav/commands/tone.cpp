#include <sndfile.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cmath>
#include <memory>

#include "commands/commands.h"
#include "commands/encodings.h"
#include "commands/numbers.h"
#include "sound/floats.h"

namespace veks_wav {
namespace {

constexpr double kTurn = 6.28318530717958647693;

struct Options {
  std::string shape = "sine";
  double frequency = 440;
  double seconds = 1;
  int rate = 48000;
  double level = -6;
  double degrees = 0;
  int channels = 1;
  std::string format = "s16";
  std::string out;
};

// A phase of degrees as one that the library takes; it counts from the peak of a wave, a user from
// the rise through zero.
Vek64f startPhase(double degrees) {
  const double turns = degrees / 360 - 0.25;
  const Vek64f phase = (turns - std::floor(turns)) * kTurn;
  return phase < kTurn ? phase : 0;
}

// From the last sample on, so that none is overwritten before it is copied.
void spread(Vek64f* samples, ptrdiff_t frames, ptrdiff_t channels) {
  for (ptrdiff_t i = frames - 1; i >= 0; --i) {
    std::fill_n(samples + i * channels, channels, samples[i]);
  }
}

void tone(const Options& options) {
  const double frequency = options.frequency / options.rate;
  if (frequency >= 0.5) {
    throw Error(options.out, "a rate of " + std::to_string(options.rate) +
                                 " Hz holds frequencies below half of it");
  }
  const SoundFormat wanted = {options.rate, options.channels,
                              SF_FORMAT_WAV | kEncodings.at(options.format)};
  const int64_t frames = std::llround(options.seconds * options.rate);
  SoundWriter out(options.out, wanted, frames);
  requireEncoding(options.out, out.format(), wanted, options.format);
  const int block = framesPerBlock(options.channels);
  FloatWriter<Vek64f> writer(out, block);
  Samples<Vek64f> samples(block * options.channels);
  const double magnitude = std::pow(10, options.level / 20);
  Vek64f phase = startPhase(options.degrees);
  inBlocks(frames, block, [&](int count) {
    if (options.shape == "sine") {
      makeTone(samples.data(), count, magnitude, frequency, phase);
    } else {
      makeTriangle(samples.data(), count, magnitude, frequency, phase);
    }
    spread(samples.data(), count, options.channels);
    writer.write(samples.data(), count);
  });
  out.finish();
}

}  // namespace

void addTone(CLI::App& app) {
  CLI::App* command = app.add_subcommand("tone", "Write a sine or a triangle wave");
  const auto options = std::make_shared<Options>();
  command->add_option("--shape", options->shape, "sine (default) or triangle")
      ->type_name("SHAPE")
      ->check(CLI::IsMember({"sine", "triangle"}).description(""));
  command->add_option("--freq", options->frequency, "Frequency, 440 by default")
      ->type_name("HZ")
      ->check(
          numberCheck("a frequency of 0 Hz or more", [](double x) { return x >= 0 && x <= 1e9; }));
  command->add_option("--seconds", options->seconds, "Length, 1 by default, up to 86400")
      ->type_name("SECONDS")
      ->check(numberCheck("a number of seconds above 0, up to 86400",
                          [](double x) { return x > 0 && x <= 86400; }));
  command->add_option("--rate", options->rate, "Frames per second, 48000 by default")
      ->type_name("HZ")
      ->check(numberCheck("a rate from 1 to 655350 Hz",
                          [](double x) { return x >= 1 && x <= 655350 && x == std::floor(x); }));
  command->add_option("--level", options->level, "Peak, -6 by default; 0 is full scale")
      ->type_name("DBFS")
      ->check(
          numberCheck("a level from -200 to 0 dBFS", [](double x) { return x >= -200 && x <= 0; }));
  command->add_option("--phase", options->degrees, "Start, 0 by default: the rise through zero")
      ->type_name("DEGREES")
      ->check(numberCheck("a phase from -360 to 360 degrees",
                          [](double x) { return x >= -360 && x <= 360; }));
  command->add_option("--channels", options->channels, "Equal channels, 1 by default, up to 64")
      ->type_name("N")
      ->check(numberCheck("a number of channels from 1 to 64",
                          [](double x) { return x >= 1 && x <= 64 && x == std::floor(x); }));
  addFormat(command, options->format, "u8, s16 (default), s24, s32, f32 or f64");
  command->add_option("OUT", options->out, "The sound file to write")->required();
  command->footer(
      "The frequency is below half the rate. OUT is of the container that its extension names,\n"
      "such as .wav or .flac, and is replaced only on success.");
  command->callback([options] { tone(*options); });
}

}  // namespace veks_wav
