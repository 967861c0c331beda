// Windows that fade samples or taps in and out.
#ifndef VEKS_WAV_SOUND_WINDOW_H
#define VEKS_WAV_SOUND_WINDOW_H

#include <map>
#include <string>

namespace veks_wav {

enum class Shape { kRectangular, kBartlett, kBlackman, kHamming, kHann, kKaiser };

struct Window {
  Shape shape = Shape::kRectangular;
  double beta = 0;  // of the shape Kaiser: the argument of its Bessel function in the middle
};

// What the shapes are called in commands.
const std::map<std::string, Shape>& windowNames();

void apply(const Window& window, double* values, int len);

}  // namespace veks_wav

#endif
