// What pictures of sounds have in common: a title, a panel for each channel, and perhaps one more.
#ifndef VEKS_WAV_PLOT_PANELS_H
#define VEKS_WAV_PLOT_PANELS_H

#include <ostream>
#include <string>

#include "sound/reader.h"

namespace veks_wav {

// Fails if a picture cannot have that name.
void requirePictureName(const std::string& path, const SoundReader& sound);

// "Left", "Right", "Channel 3"; nothing for a single channel.
std::string channelName(int channel, int channels);

class Panels {
 public:
  // The width of a panel in pixels.
  static constexpr int kColumns = 1440;

  // A panel below those of the channels has the name `last`.
  explicit Panels(const SoundReader& sound, const std::string& last = "");

  // There are fewer panels than channels if these are many.
  int channels() const {
    return channels_;
  }
  int count() const {
    return count_;
  }

  // The settings of the whole picture and its title; `note` ends the second line of it.
  void writeHead(std::ostream& out, const std::string& note) const;

  // A key to the lines of the first panel, beside its name.
  void writeKey(std::ostream& out) const;

  // The place and the name of a panel, before it is plotted, and what follows the plot.
  void writeStart(std::ostream& out, int panel) const;
  void writeEnd(std::ostream& out, int panel) const;

 private:
  void writeLabel(std::ostream& out, int number, const std::string& text, int y) const;
  double fromTop(int pixels) const;

  const SoundReader& sound_;
  std::string last_;
  int channels_;
  int count_;
  int height_;
};

}  // namespace veks_wav

#endif
