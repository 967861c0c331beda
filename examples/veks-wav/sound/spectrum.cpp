#include "sound/spectrum.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "sound/samples.h"
#include "vek.h"

namespace veks_wav {
namespace {

double weightOf(const Window& window, int frames) {
  std::vector<double> weights(static_cast<size_t>(frames), 1);
  apply(window, weights.data(), frames);
  return std::accumulate(weights.begin(), weights.end(), 0.0);
}

// Adds the power spectrum of a channel of so many frames to a sum of spectra, both in the format
// Pack of the library.
class Adder {
 public:
  Adder(int order, int frames, const Window& window)
      : transform_(order),
        frames_(frames),
        window_(window),
        spectrum_(frames),
        buffer_(transform_.bufferSize()) {}

  void add(const double* interleaved, int channels, double* sum) {
    double* const values = spectrum_.data();
    for (int i = 0; i < frames_; ++i) {
      values[i] = interleaved[int64_t{i} * channels];
    }
    apply(window_, values, frames_);
    transform_.run(values, buffer_.data());
    multiplyByConjugate(values, frames_);
    veks_wav::add(values, sum, frames_);
  }

 private:
  RealTransform transform_;
  int frames_;
  Window window_;
  Samples<Vek64f> spectrum_;
  std::vector<Vek8u> buffer_;
};

}  // namespace

Spectrum::Spectrum(SoundReader& sound, int order, const Window& window)
    : channels_(sound.channels()),
      rate_(sound.format().sampleRate),
      frames_(1 << order),
      blocks_(sound.frames() < frames_ ? 1 : 1 + (sound.frames() - frames_) / (frames_ / 2)),
      weight_(weightOf(window, frames_)),
      powers_(static_cast<size_t>(channels_), std::vector<double>(static_cast<size_t>(points()))) {
  add(sound, order, window);
}

void Spectrum::add(SoundReader& sound, int order, const Window& window) {
  const int half = frames_ / 2 * channels_;
  Samples<Vek64f> block(2 * half);
  Samples<Vek64f> sums(2 * half);
  zero(block.data(), 2 * half);
  zero(sums.data(), 2 * half);
  Adder adder(order, frames_, window);
  sound.read(block.data(), static_cast<int>(std::min<int64_t>(sound.frames(), frames_)));
  for (int64_t done = 0; done < blocks_; ++done) {
    if (done > 0) {
      std::copy_n(block.data() + half, half, block.data());
      sound.read(block.data() + half, frames_ / 2);
    }
    for (int channel = 0; channel < channels_; ++channel) {
      adder.add(block.data() + channel, channels_, sums.data() + int64_t{channel} * frames_);
    }
  }
  for (int channel = 0; channel < channels_; ++channel) {
    const double* const packed = sums.data() + int64_t{channel} * frames_;
    std::vector<double>& powers = powers_[static_cast<size_t>(channel)];
    powers.front() = packed[0];
    powers.back() = packed[frames_ - 1];
    for (size_t point = 1; point + 1 < powers.size(); ++point)
      powers[point] = packed[2 * point - 1];
  }
}

double Spectrum::decibels(int channel, int point) const {
  const bool isOnce = point == 0 || point == frames_ / 2;
  const double power = powers_[static_cast<size_t>(channel)][static_cast<size_t>(point)];
  // A sine is half of it at its frequency, half of it at the negative one.
  const double scale = (isOnce ? 1.0 : 2.0) / weight_;
  return 10 * std::log10(power * scale * scale / static_cast<double>(blocks_));
}

int Spectrum::peak(int channel) const {
  int found = -1;
  double highest = -std::numeric_limits<double>::infinity();
  for (int point = 1; point < points(); ++point) {
    // Comparisons with NaN are false.
    if (decibels(channel, point) > highest) {
      found = point;
      highest = decibels(channel, point);
    }
  }
  return found;
}

}  // namespace veks_wav
