#include "plot/panels.h"

#include <algorithm>
#include <filesystem>
#include <iomanip>
#include <sstream>
#include <system_error>

#include "error.h"
#include "plot/gnuplot.h"

namespace veks_wav {
namespace {

constexpr int kMostPanels = 16;

// Pixels.
constexpr int kLeft = 120;
constexpr int kRight = 40;
constexpr int kWidth = kLeft + Panels::kColumns + kRight;
constexpr int kTop = 95;
constexpr int kBottom = 75;
constexpr int kGap = 38;

int panelHeight(int panels) {
  if (panels == 1) return 420;
  return panels <= 4 ? 240 : 130;
}

bool endsInPng(const std::string& path) {
  const std::string extension = std::filesystem::path(path).extension().string();
  return extension == ".png" || extension == ".PNG";
}

std::string subtitle(const SoundReader& sound, int channels, const std::string& note) {
  std::ostringstream text;
  text << containerName(sound.format()) << ", " << describe(sound.format()) << ", "
       << std::setprecision(4) << sound.seconds() << " s" << note;
  if (channels < sound.channels()) text << " (channels 1 to " << channels << " are shown)";
  return text.str();
}

}  // namespace

void requirePictureName(const std::string& path, const SoundReader& sound) {
  if (!endsInPng(path)) throw Error(path, "the name of a picture must end in .png");
  std::error_code ignored;
  if (std::filesystem::equivalent(path, sound.path(), ignored)) {
    throw Error(path, "is the sound file itself");
  }
}

std::string channelName(int channel, int channels) {
  if (channels == 1) return "";
  if (channels == 2) return channel == 0 ? "Left" : "Right";
  return "Channel " + std::to_string(channel + 1);
}

Panels::Panels(const SoundReader& sound, const std::string& last)
    : sound_(sound),
      last_(last),
      channels_(std::min(sound.channels(), kMostPanels)),
      count_(channels_ + (last.empty() ? 0 : 1)),
      height_(kTop + count_ * panelHeight(count_) + (count_ - 1) * kGap + kBottom) {}

void Panels::writeHead(std::ostream& out, const std::string& note) const {
  const std::string name = std::filesystem::path(sound_.path()).filename().string();
  out << "set encoding utf8\n"
      << "set terminal pngcairo noenhanced size " << kWidth << ',' << height_
      << " font 'sans,13' background '#ffffff'\n"
      << "set multiplot\n"
      << "unset key\n"
      << "set style fill solid 1 noborder\n"
      << "set style line 1 linecolor '#2f6fb3' linewidth 1.4 pointtype 7 pointsize 0.6\n"
      << "set border 3 linecolor '#888888'\n"
      << "set tics nomirror out scale 0.5 textcolor '#333333'\n"
      << "set grid xtics ytics back linetype 1 linecolor '#e4e4e4'\n"
      << "set lmargin at screen " << double{kLeft} / kWidth << "\n"
      << "set rmargin at screen " << 1 - double{kRight} / kWidth << "\n"
      << "set format x ''\n";
  writeLabel(out, 1, quoted(name) + " font ',17'", 30);
  writeLabel(out, 2, quoted(subtitle(sound_, channels_, note)) + " textcolor '#666666'", 60);
}

void Panels::writeKey(std::ostream& out) const {
  constexpr int kNameWidth = 90;
  out << "set key horizontal samplen 2 textcolor '#333333' top right at screen "
      << 1 - double{kRight + kNameWidth} / kWidth << ',' << fromTop(kTop - 30) << "\n";
}

void Panels::writeStart(std::ostream& out, int panel) const {
  const int top = kTop + panel * (panelHeight(count_) + kGap);
  out << "set tmargin at screen " << fromTop(top) << "\n"
      << "set bmargin at screen " << fromTop(top + panelHeight(count_)) << "\n"
      << "set label 3 " << quoted(panel < channels_ ? channelName(panel, sound_.channels()) : last_)
      << " at graph 1,1 right offset 0,0.6 textcolor '#333333'\n";
  if (panel == count_ - 1) out << "set format x\n";
}

void Panels::writeEnd(std::ostream& out, int panel) const {
  out << "unset label 1\nunset label 2\nunset key\n";
  if (panel == count_ - 1) out << "unset multiplot\n";
}

void Panels::writeLabel(std::ostream& out, int number, const std::string& text, int y) const {
  out << "set label " << number << ' ' << text << " at screen " << double{kLeft} / kWidth << ','
      << fromTop(y) << "\n";
}

double Panels::fromTop(int pixels) const {
  return 1 - static_cast<double>(pixels) / height_;
}

}  // namespace veks_wav
