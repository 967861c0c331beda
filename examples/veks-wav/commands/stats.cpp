#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <cmath>
#include <iomanip>
#include <iostream>
#include <limits>
#include <memory>
#include <numeric>
#include <sstream>
#include <vector>

#include "commands/commands.h"
#include "error.h"
#include "sound/floats.h"
#include "sound/reader.h"
#include "vek_stats.h"

namespace veks_wav {
namespace {

struct Options {
  std::string in;
};

// Samples by their level: from 0 dBFS on, from -10, from -20 ... from -90 on, and the rest.
constexpr int kLevelStep = 10;
using Levels = std::array<int, 11>;

// What one channel amounts to, full scale being 1.
struct Measures {
  double peak = 0;  // with its sign
  int peakFrame = 0;
  double rms = 0;
  double offset = 0;
  double quartiles[3] = {};
  Levels levels = {};
};

// Between the two samples next to that share of the sorted ones.
template <class T>
double quantile(const T* sorted, int len, double share) {
  const double place = share * (len - 1);
  const int low = static_cast<int>(place);
  const int high = std::min(low + 1, len - 1);
  const auto below = static_cast<double>(sorted[low]);
  return below + (place - low) * (static_cast<double>(sorted[high]) - below);
}

// Those of a level stand at both ends of the sorted samples.
template <class T>
Levels countLevels(const T* sorted, int len) {
  Levels levels = {};
  int louder = 0;
  for (size_t i = 0; i < levels.size(); ++i) {
    const double least = std::pow(10, -kLevelStep * static_cast<double>(i) / 20);
    const T* const negative =
        std::partition_point(sorted, sorted + len, [=](T x) { return double{x} <= -least; });
    const T* const positive =
        std::partition_point(negative, sorted + len, [=](T x) { return double{x} < least; });
    const bool isLast = i + 1 == levels.size();
    const int all = isLast ? len : len - static_cast<int>(positive - negative);
    levels[i] = all - louder;
    louder = all;
  }
  return levels;
}

// Leaves the samples sorted.
template <class T>
Measures measure(T* samples, int len, const std::string& path) {
  Measures measures;
  const Found<T> low = smallest(samples, len);
  const Found<T> high = largest(samples, len);
  const bool isLow =
      -low.sample > high.sample || (-low.sample == high.sample && low.place < high.place);
  measures.peak = static_cast<double>(isLow ? low.sample : high.sample);
  measures.peakFrame = isLow ? low.place : high.place;
  measures.rms = norm(samples, len) / std::sqrt(len);
  measures.offset = mean(samples, len);
  sort(samples, len);
  if (std::isnan(samples[len - 1])) throw Error(path, "holds samples that are not numbers (NaN)");
  for (int i = 0; i < 3; ++i) measures.quartiles[i] = quantile(samples, len, 0.25 * (i + 1));
  measures.levels = countLevels(samples, len);
  return measures;
}

// The samples of each channel by themselves.
template <class T>
std::vector<Samples<T>> readChannels(SoundReader& in) {
  const int count = in.channels();
  const int block = framesPerBlock(count);
  std::vector<Samples<T>> channels;
  channels.reserve(static_cast<size_t>(count));
  for (int i = 0; i < count; ++i) channels.emplace_back(static_cast<int>(in.frames()));
  Samples<T> interleaved(block * count);
  FloatReader<T> reader(in, count, block);
  int64_t done = 0;
  inBlocks(in.frames(), block, [&](int frames) {
    reader.read(interleaved.data(), frames);
    for (int channel = 0; channel < count; ++channel) {
      T* const to = channels[static_cast<size_t>(channel)].data() + done;
      for (int i = 0; i < frames; ++i) to[i] = interleaved.data()[i * count + channel];
    }
    done += frames;
  });
  return channels;
}

std::string decibels(double amplitude) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(2) << 20 * std::log10(amplitude) << " dBFS";
  return text.str();
}

// A line for each level that samples have.
void print(const Levels& levels) {
  const double all = std::accumulate(levels.begin(), levels.end(), 0.0);
  const char* title = "  Levels:      ";
  for (size_t i = 0; i < levels.size(); ++i) {
    if (levels[i] == 0) continue;
    const bool isLast = i + 1 == levels.size();
    const int decibels = -kLevelStep * static_cast<int>(isLast ? i - 1 : i);
    std::cout << title << (isLast ? " below " : " from ") << decibels << " dBFS: " << levels[i]
              << std::setprecision(2) << " (" << 100 * levels[i] / all << " %)\n";
    title = "               ";
  }
}

void print(const Measures& m, int channel, int sampleRate) {
  std::cout << "Channel " << channel << "\n"
            << std::fixed << std::setprecision(6)  //
            << "  Peak:         " << m.peak << " (" << decibels(std::abs(m.peak)) << ") at frame "
            << m.peakFrame << " (" << static_cast<double>(m.peakFrame) / sampleRate << " s)\n"
            << "  RMS:          " << m.rms << " (" << decibels(m.rms) << ")\n"
            << "  Crest factor: ";
  if (m.rms > 0) {
    std::cout << std::setprecision(2) << std::abs(m.peak) / m.rms << std::setprecision(6) << "\n";
  } else {
    std::cout << "none\n";
  }
  std::cout << "  DC offset:    " << m.offset << "\n"
            << "  Median:       " << m.quartiles[1] << "\n"
            << "  Quartiles:    " << m.quartiles[0] << " to " << m.quartiles[2] << "\n";
  print(m.levels);
}

void stats(const Options& options) {
  SoundReader in(options.in);
  in.requireFrames();
  if (in.frames() > std::numeric_limits<int>::max()) throw Error(in.path(), "is too long");
  std::vector<Measures> all;
  withFloatType(needsDouble(in.format()), [&](auto zero) {
    auto channels = readChannels<decltype(zero)>(in);
    const int frames = static_cast<int>(in.frames());
    for (auto& samples : channels) all.push_back(measure(samples.data(), frames, in.path()));
  });
  for (size_t i = 0; i < all.size(); ++i) {
    print(all[i], static_cast<int>(i) + 1, in.format().sampleRate);
  }
  std::cout << std::flush;
  if (!std::cout) throw Error("standard output", "cannot be written");
}

}  // namespace

void addStats(CLI::App& app) {
  CLI::App* command = app.add_subcommand("stats", "Show peak, levels and median of each channel");
  const auto options = std::make_shared<Options>();
  command->add_option("IN", options->in, "The sound file to read")->required();
  command->footer(
      "Samples are fractions of full scale, dBFS are decibels of them: a square wave of full "
      "scale\n"
      "has an RMS of 0 dBFS. The crest factor is peak / RMS. Half of the samples lie between the\n"
      "quartiles. Levels are those of single samples, silence is below all. The whole sound is "
      "held\n"
      "in memory.");
  command->callback([options] { stats(*options); });
}

}  // namespace veks_wav
