#include "plot/waveform.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iomanip>
#include <sstream>
#include <system_error>

#include "error.h"
#include "plot/envelope.h"
#include "plot/gnuplot.h"

namespace veks_wav {
namespace {

constexpr int kMostPanels = 16;

// Pixels.
constexpr int kWidth = 1600;
constexpr int kLeft = 120;
constexpr int kRight = 40;
constexpr int kTop = 95;
constexpr int kBottom = 75;
constexpr int kGap = 38;

int panelHeight(int panels) {
  if (panels == 1) return 420;
  return panels <= 4 ? 240 : 130;
}

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

std::string channelName(int channel, int channels) {
  if (channels == 1) return "";
  if (channels == 2) return channel == 0 ? "Left" : "Right";
  return "Channel " + std::to_string(channel + 1);
}

std::string subtitle(const SoundReader& sound, int panels) {
  std::ostringstream text;
  text << containerName(sound.format()) << ", " << describe(sound.format()) << ", "
       << std::setprecision(4) << sound.seconds() << " s";
  if (panels < sound.channels()) text << " (channels 1 to " << panels << " are shown)";
  return text.str();
}

class Script {
 public:
  Script(const SoundReader& sound, const Envelope& envelope)
      : sound_(sound),
        envelope_(envelope),
        panels_(std::min(sound.channels(), kMostPanels)),
        height_(kTop + panels_ * panelHeight(panels_) + (panels_ - 1) * kGap + kBottom),
        limit_(roundUp(envelope.peak())) {}

  std::string text() {
    for (int panel = 0; panel < panels_; ++panel) writeData(panel);
    writeSettings();
    for (int panel = 0; panel < panels_; ++panel) writePanel(panel);
    out_ << "unset multiplot\n";
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

  void writeSettings() {
    const std::string name = std::filesystem::path(sound_.path()).filename().string();
    out_ << "set encoding utf8\n"
         << "set terminal pngcairo noenhanced size " << kWidth << ',' << height_
         << " font 'sans,13' background '#ffffff'\n"
         << "set multiplot\n"
         << "unset key\n"
         << "set style fill solid 1 noborder\n"
         << "set style line 1 linecolor '#2f6fb3' linewidth 1.4 pointtype 7 pointsize 0.6\n"
         << "set border 3 linecolor '#888888'\n"
         << "set tics nomirror out scale 0.5 textcolor '#333333'\n"
         << "set grid xtics ytics back linetype 1 linecolor '#e4e4e4'\n"
         << "set xzeroaxis linetype 1 linewidth 1 linecolor '#bbbbbb'\n"
         << "set xrange [0:" << sound_.seconds() << "]\n"
         << "set yrange [" << -limit_ << ':' << limit_ << "]\n"
         << "set ytics " << limit_ / 2 << "\n"
         << "set ylabel 'Amplitude' textcolor '#333333'\n"
         << "set lmargin at screen " << double{kLeft} / kWidth << "\n"
         << "set rmargin at screen " << 1 - double{kRight} / kWidth << "\n"
         << "set format x ''\n";
    writeLabel(1, quoted(name) + " font ',17'", 30);
    writeLabel(2, quoted(subtitle(sound_, panels_)) + " textcolor '#666666'", 60);
  }

  void writeLabel(int number, const std::string& text, int y) {
    out_ << "set label " << number << ' ' << text << " at screen " << double{kLeft} / kWidth << ','
         << fromTop(y) << "\n";
  }

  void writePanel(int panel) {
    const int top = kTop + panel * (panelHeight(panels_) + kGap);
    out_ << "set tmargin at screen " << fromTop(top) << "\n"
         << "set bmargin at screen " << fromTop(top + panelHeight(panels_)) << "\n"
         << "set label 3 " << quoted(channelName(panel, sound_.channels()))
         << " at graph 1,1 right offset 0,0.6 textcolor '#333333'\n";
    if (panel == panels_ - 1) out_ << "set format x\nset xlabel 'Time (s)' textcolor '#333333'\n";
    const std::string data = "$channel" + std::to_string(panel);
    const bool hasPoints = envelope_.columns() < kWidth / 8;
    out_ << "plot ";
    if (envelope_.isReduced()) {
      out_ << data << " using 1:2:3 with filledcurves linecolor '#2f6fb3', " << data
           << " using 1:2 with lines linestyle 1, ";
    }
    out_ << data << " using 1:3 with " << (hasPoints ? "linespoints" : "lines") << " linestyle 1\n"
         << "unset label 1\nunset label 2\n";
  }

  double fromTop(int pixels) const {
    return 1 - static_cast<double>(pixels) / height_;
  }

  const SoundReader& sound_;
  const Envelope& envelope_;
  const int panels_;
  const int height_;
  const double limit_;
  std::ostringstream out_;
};

bool endsInPng(const std::string& path) {
  const std::string extension = std::filesystem::path(path).extension().string();
  return extension == ".png" || extension == ".PNG";
}

}  // namespace

void plotWaveform(SoundReader& sound, const std::string& path) {
  if (!endsInPng(path)) throw Error(path, "the name of a picture must end in .png");
  std::error_code ignored;
  if (std::filesystem::equivalent(path, sound.path(), ignored)) {
    throw Error(path, "is the sound file itself");
  }
  sound.requireFrames();
  OutputFile picture(path);
  const Envelope envelope(sound, kWidth - kLeft - kRight);
  drawPng(Script(sound, envelope).text(), picture);
}

}  // namespace veks_wav
