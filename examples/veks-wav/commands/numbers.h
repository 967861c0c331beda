// Arguments that are numbers of a range.
#ifndef VEKS_WAV_COMMANDS_NUMBERS_H
#define VEKS_WAV_COMMANDS_NUMBERS_H

#include <CLI/CLI.hpp>
#include <string>

namespace veks_wav {

// A check for `isValid(number)`; `what` ends the sentence "5x is not ...". A range of CLI11 lets
// NaN pass.
template <class Predicate>
auto numberCheck(const std::string& what, Predicate isValid) {
  return [=](const std::string& given) -> std::string {
    double number = 0;
    if (CLI::detail::lexical_cast(given, number) && isValid(number)) return "";
    return given + " is not " + what;
  };
}

}  // namespace veks_wav

#endif
