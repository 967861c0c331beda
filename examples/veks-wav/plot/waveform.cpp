#include "plot/waveform.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "plot/envelope.h"
#include "plot/gnuplot.h"
#include "plot/panels.h"

namespace veks_wav {
namespace {

// The upper end of an axis: a round number that is not less. Peaks that gnuplot cannot draw are
// shown as silence or cut.
double roundUp(double peak) {
  if (peak < 1e-30) return 1;
  if (peak > 1e30) return 1e30;
  const double unit = std::pow(10, std::floor(std::log10(peak)));
  for (const double step : {1.0, 1.2, 1.6, 2.0, 3.0, 4.0, 5.0, 6.0, 8.0}) {
    if (peak <= step * unit) return step * unit;
  }
  return 10 * unit;
}

class Script {
 public:
  Script(const SoundReader& sound, const Envelope& envelope)
      : sound_(sound), envelope_(envelope), panels_(sound), limit_(roundUp(envelope.peak())) {}

  std::string text() {
    for (int panel = 0; panel < panels_.count(); ++panel) writeData(panel);
    panels_.writeHead(out_, "");
    out_ << "set xzeroaxis linetype 1 linewidth 1 linecolor '#bbbbbb'\n"
         << "set xrange [0:" << sound_.seconds() << "]\n"
         << "set yrange [" << -limit_ << ':' << limit_ << "]\n"
         << "set ytics " << limit_ / 2 << "\n"
         << "set ylabel 'Amplitude' textcolor '#333333'\n";
    for (int panel = 0; panel < panels_.count(); ++panel) writePanel(panel);
    return out_.str();
  }

 private:
  void writeData(int panel) {
    out_ << "$channel" << panel << " << END\n";
    // Far outside the picture is as good as infinite.
    const auto visible = [this](double value) {
      return std::clamp(value, -4 * limit_, 4 * limit_);
    };
    for (int column = 0; column < envelope_.columns(); ++column) {
      const Range& range = envelope_.at(panel, column);
      out_ << envelope_.seconds(column);
      if (range.low > range.high) {
        out_ << " NaN NaN\n";
      } else {
        out_ << ' ' << visible(range.low) << ' ' << visible(range.high) << '\n';
      }
    }
    out_ << "END\n";
  }

  void writePanel(int panel) {
    panels_.writeStart(out_, panel);
    if (panel == panels_.count() - 1) out_ << "set xlabel 'Time (s)' textcolor '#333333'\n";
    const std::string data = "$channel" + std::to_string(panel);
    const bool hasPoints = envelope_.columns() < Panels::kColumns / 7;
    out_ << "plot ";
    if (envelope_.isReduced()) {
      out_ << data << " using 1:2:3 with filledcurves linecolor '#2f6fb3', " << data
           << " using 1:2 with lines linestyle 1, ";
    }
    out_ << data << " using 1:3 with " << (hasPoints ? "linespoints" : "lines") << " linestyle 1\n";
    panels_.writeEnd(out_, panel);
  }

  const SoundReader& sound_;
  const Envelope& envelope_;
  const Panels panels_;
  const double limit_;
  std::ostringstream out_;
};

}  // namespace

void plotWaveform(SoundReader& sound, const std::string& path) {
  requirePictureName(path, sound);
  sound.requireFrames();
  OutputFile picture(path);
  const Envelope envelope(sound, Panels::kColumns);
  drawPng(Script(sound, envelope).text(), picture);
}

}  // namespace veks_wav
