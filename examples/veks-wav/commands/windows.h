// The options that choose a window.
#ifndef VEKS_WAV_COMMANDS_WINDOWS_H
#define VEKS_WAV_COMMANDS_WINDOWS_H

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "commands/numbers.h"
#include "sound/window.h"

namespace veks_wav {

struct WindowOptions {
  std::string name;
  std::optional<double> beta;
};

constexpr double kUsualBeta = 8;

// Adds --window and --kaiser-beta to a command; `text` says what the window is for.
inline void addWindow(CLI::App* command, WindowOptions& options, const std::string& text) {
  command->add_option("--window", options.name, text + "; " + options.name + " if not given")
      ->type_name("NAME")
      ->check(CLI::IsMember(windowNames()).description(""));
  command
      ->add_option("--kaiser-beta", options.beta,
                   "The shape of a Kaiser window, 0 (rectangular) to 300; 8 if not given")
      ->type_name("BETA")
      ->check(numberCheck("a number from 0 to 300", [](double x) { return x >= 0 && x <= 300; }));
}

inline Window windowOf(const WindowOptions& options) {
  const Shape shape = windowNames().at(options.name);
  if (options.beta && shape != Shape::kKaiser) {
    throw CLI::ValidationError("--kaiser-beta", "needs --window kaiser");
  }
  return {shape, options.beta.value_or(kUsualBeta)};
}

constexpr const char* kWindowRules =
    "Windows: none (rectangular), bartlett, hann, hamming, blackman (with its optimal\n"
    "parameter), kaiser.\n";

}  // namespace veks_wav

#endif
