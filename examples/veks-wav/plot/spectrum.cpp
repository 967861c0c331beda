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

double topLevel(const Spectrum& spectrum, int channels) {
  double highest = -kHighest;
  for (int channel = 0; channel < channels; ++channel) {
    const int peak = spectrum.peak(channel);
    if (peak >= 0) highest = std::max(highest, spectrum.decibels(channel, peak));
  }
  // Of silence any axis will do.
  return highest > -kHighest ? kStep * std::ceil(std::min(highest, kHighest) / kStep) : 0;
}

class Script {
 public:
  Script(const SoundReader& sound, const Spectrum& spectrum)
      : spectrum_(spectrum), panels_(sound), top_(topLevel(spectrum, sound.channels())) {}

  Script(const SoundReader& sound, const Spectrum& before, const Spectrum& after,
         const FilterPlot& filter)
      : spectrum_(before),
        after_(&after),
        filter_(&filter),
        panels_(sound, "Filter"),
        top_(std::max(topLevel(before, sound.channels()), topLevel(after, sound.channels()))) {}

  std::string text() {
    for (int panel = 0; panel < panels_.channels(); ++panel) {
      writeSpectrum("channel", panel, spectrum_);
      if (after_ != nullptr) writeSpectrum("after", panel, *after_);
    }
    if (filter_ != nullptr) writeResponse();
    panels_.writeHead(out_, note());
    out_ << "set logscale x\n"
         << "set xrange [" << spectrum_.hertz(1) << ':' << highest() << "]\n"
         << "set ytics " << kStep << "\n"
         << "set ylabel 'Level (dB)' textcolor '#333333'\n";
    if (filter_ != nullptr) writeFilterStyle();
    for (int panel = 0; panel < panels_.count(); ++panel) writePanel(panel);
    return out_.str();
  }

 private:
  double highest() const {
    return spectrum_.hertz(spectrum_.points() - 1);
  }

  std::string note() const {
    if (filter_ != nullptr) return ", " + filter_->name;
    return ", blocks of " + std::to_string(spectrum_.frames()) + " samples";
  }

  void writeSpectrum(const char* name, int panel, const Spectrum& spectrum) {
    out_ << '$' << name << panel << " << END\n";
    for (int point = 1; point < spectrum.points(); ++point)
      writePoint(spectrum.hertz(point), spectrum.decibels(panel, point), top_);
    out_ << "END\n";
  }

  void writeResponse() {
    out_ << "$filter << END\n";
    const std::vector<double>& levels = filter_->levels;
    const double last = static_cast<double>(levels.size() - 1);
    for (size_t point = 1; point < levels.size(); ++point)
      writePoint(highest() * static_cast<double>(point) / last, levels[point], 0);
    out_ << "END\n";
  }

  // Far outside the picture is as good as infinite.
  void writePoint(double hertz, double level, double top) {
    out_ << hertz << ' ';
    if (std::isnan(level)) {
      out_ << "NaN\n";
    } else {
      out_ << std::clamp(level, top - 2 * kRange, top + kRange) << '\n';
    }
  }

  void writeFilterStyle() {
    out_ << "set style line 2 linecolor '#a8a8a8' linewidth 1.4\n"
         << "set style line 3 linecolor '#c0562f' linewidth 1.8\n";
    panels_.writeKey(out_);
    for (const double edge : filter_->edges) {
      out_ << "set arrow from " << edge << ", graph 0 to " << edge
           << ", graph 1 nohead back dashtype 3 linecolor '#c0562f'\n";
    }
  }

  void writePanel(int panel) {
    const bool isFilter = panel >= panels_.channels();
    const double top = isFilter ? kStep / 2 : top_;
    out_ << "set yrange [" << top - kRange << ':' << top << "]\n";
    panels_.writeStart(out_, panel);
    if (panel == panels_.count() - 1) out_ << "set xlabel 'Frequency (Hz)' textcolor '#333333'\n";
    out_ << "plot ";
    if (isFilter) {
      out_ << "$filter using 1:2 with lines linestyle 3 notitle\n";
    } else if (after_ != nullptr) {
      out_ << "$channel" << panel << " using 1:2 with lines linestyle 2 title 'before', $after"
           << panel << " using 1:2 with lines linestyle 1 title 'after'\n";
    } else {
      out_ << "$channel" << panel << " using 1:2 with lines linestyle 1\n";
    }
    panels_.writeEnd(out_, panel);
  }

  const Spectrum& spectrum_;
  const Spectrum* after_ = nullptr;
  const FilterPlot* filter_ = nullptr;
  const Panels panels_;
  const double top_;
  std::ostringstream out_;
};

}  // namespace

void plotSpectrum(const SoundReader& sound, const Spectrum& spectrum, OutputFile& picture) {
  drawPng(Script(sound, spectrum).text(), picture);
}

void plotFilter(const SoundReader& sound, const Spectrum& before, const Spectrum& after,
                const FilterPlot& filter, OutputFile& picture) {
  drawPng(Script(sound, before, after, filter).text(), picture);
}

}  // namespace veks_wav
