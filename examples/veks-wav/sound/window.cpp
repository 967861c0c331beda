#include "sound/window.h"

#include "vek.h"

namespace veks_wav {

const std::map<std::string, Shape>& windowNames() {
  static const std::map<std::string, Shape> names = {
      {"none", Shape::kRectangular},  {"rectangular", Shape::kRectangular},
      {"bartlett", Shape::kBartlett}, {"hann", Shape::kHann},
      {"hamming", Shape::kHamming},   {"blackman", Shape::kBlackman},
      {"kaiser", Shape::kKaiser}};
  return names;
}

void apply(const Window& window, double* values, int len) {
  switch (window.shape) {
    case Shape::kRectangular:
      return;
    case Shape::kBartlett:
      return check(veksWinBartlett_64f_I(values, len));
    case Shape::kBlackman:
      return check(veksWinBlackmanOpt_64f_I(values, len));
    case Shape::kHamming:
      return check(veksWinHamming_64f_I(values, len));
    case Shape::kHann:
      return check(veksWinHann_64f_I(values, len));
    case Shape::kKaiser:
      // The library's parameter is that argument per sample.
      const double alpha = 2 * window.beta / (len - 1);
      return check(veksWinKaiser_64f_I(values, len, static_cast<Vek32f>(alpha)));
  }
}

}  // namespace veks_wav
