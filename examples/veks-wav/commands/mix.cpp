#include <CLI/CLI.hpp>
#include <algorithm>
#include <memory>

#include "commands/commands.h"
#include "commands/files.h"
#include "sound/floats.h"

namespace veks_wav {
namespace {

struct Options {
  std::string a;
  std::string b;
  std::string out;
};

// Wider encodings have greater ranks: integers by their bits, then floating point.
int rankOf(const SoundFormat& format) {
  const int bits = integerBits(format);
  if (bits > 0) return bits;
  return sampleTypeOf(format) == SampleType::kFloat32 ? 100 : 200;
}

SoundFormat formatOfMix(const SoundFormat& a, const SoundFormat& b) {
  SoundFormat mix = rankOf(b) > rankOf(a) ? withEncoding(a, encodingOf(b)) : a;
  mix.channels = std::max(a.channels, b.channels);
  return mix;
}

template <class T>
void mixAs(SoundReader& a, SoundReader& b, SoundWriter& out) {
  const int channels = out.format().channels;
  const int block = framesPerBlock(channels);
  FloatReader<T> readerA(a, channels, block);
  FloatReader<T> readerB(b, channels, block);
  FloatWriter<T> writer(out, block);
  Samples<T> sum(block * channels);
  Samples<T> other(block * channels);
  inBlocks(std::max(a.frames(), b.frames()), block, [&](int frames) {
    readerA.read(sum.data(), frames);
    readerB.read(other.data(), frames);
    add(other.data(), sum.data(), frames * channels);
    writer.write(sum.data(), frames);
  });
}

void mix(const Options& options) {
  SoundReader a(options.a);
  SoundReader b(options.b);
  requireEqual(a.format().sampleRate, b.format().sampleRate, "Hz", a, b);
  if (a.channels() != 1 && b.channels() != 1) {
    requireEqual(a.channels(), b.channels(), "channel(s)", a, b);
  }
  if (a.frames() == 0) b.requireFrames();
  SoundWriter out(options.out, a, formatOfMix(a.format(), b.format()),
                  std::max(a.frames(), b.frames()));
  withFloatType(needsDouble(a.format()) || needsDouble(b.format()),
                [&](auto zero) { mixAs<decltype(zero)>(a, b, out); });
  out.finish();
}

}  // namespace

void addMix(CLI::App& app) {
  CLI::App* command = app.add_subcommand("mix", "Play two sounds at the same time");
  const auto options = std::make_shared<Options>();
  command->add_option("A", options->a, "One sound file")->required();
  command->add_option("B", options->b, "The other, with the same rate and channels, or one channel")
      ->required();
  command->add_option("OUT", options->out, "The sound file to write")->required();
  command->footer(
      std::string("The samples are added. Silence follows the shorter sound, and one channel is "
                  "added to\nevery channel of the other. OUT has the wider encoding of the two, "
                  "integers in the order\nof their bits before f32 before f64; integers stay at "
                  "full scale beyond it. IN means A\nwith that encoding below.\n\n") +
      kOutputRules);
  command->callback([options] { mix(*options); });
}

}  // namespace veks_wav
