#include "plot/spectrum.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "plot/gnuplot.h"
#include "plot/panels.h"

namespace veks_wav {
namespace {

// The axis of levels reaches from the highest one, rounded up to a step, so far down.
constexpr double kStep = 20;
constexpr double kRange = 120;
constexpr double kHighest = 2000;

class Script {
 public:
  Script(const SoundReader& sound, const Spectrum& spectrum)
      : spectrum_(spectrum), panels_(sound), channels_(sound.channels()), top_(topLevel()) {}

  std::string text() {
    for (int panel = 0; panel < panels_.count(); ++panel) writeData(panel);
    panels_.writeHead(out_, ", blocks of " + std::to_string(spectrum_.frames()) + " samples");
    out_ << "set logscale x\n"
         << "set xrange [" << spectrum_.hertz(1) << ':' << spectrum_.hertz(spectrum_.points() - 1)
         << "]\n"
         << "set yrange [" << top_ - kRange << ':' << top_ << "]\n"
         << "set ytics " << kStep << "\n"
         << "set ylabel 'Level (dB)' textcolor '#333333'\n";
    for (int panel = 0; panel < panels_.count(); ++panel) writePanel(panel);
    return out_.str();
  }

 private:
  double topLevel() const {
    double highest = -kHighest;
    for (int channel = 0; channel < channels_; ++channel) {
      const int peak = spectrum_.peak(channel);
      if (peak >= 0) highest = std::max(highest, spectrum_.decibels(channel, peak));
    }
    // Of silence any axis will do.
    return highest > -kHighest ? kStep * std::ceil(std::min(highest, kHighest) / kStep) : 0;
  }

  void writeData(int panel) {
    out_ << "$channel" << panel << " << END\n";
    for (int point = 1; point < spectrum_.points(); ++point) {
      const double level = spectrum_.decibels(panel, point);
      out_ << spectrum_.hertz(point) << ' ';
      if (std::isnan(level)) {
        out_ << "NaN\n";
      } else {
        // Far outside the picture is as good as infinite.
        out_ << std::clamp(level, top_ - 2 * kRange, top_ + kRange) << '\n';
      }
    }
    out_ << "END\n";
  }

  void writePanel(int panel) {
    panels_.writeStart(out_, panel);
    if (panel == panels_.count() - 1) out_ << "set xlabel 'Frequency (Hz)' textcolor '#333333'\n";
    out_ << "plot $channel" << panel << " using 1:2 with lines linestyle 1\n";
    panels_.writeEnd(out_, panel);
  }

  const Spectrum& spectrum_;
  const Panels panels_;
  const int channels_;
  const double top_;
  std::ostringstream out_;
};

}  // namespace

void plotSpectrum(const SoundReader& sound, const Spectrum& spectrum, OutputFile& picture) {
  drawPng(Script(sound, spectrum).text(), picture);
}

}  // namespace veks_wav
