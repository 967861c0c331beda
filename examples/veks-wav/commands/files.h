// The arguments IN and OUT, which most commands have, and checks of what IN holds.
#ifndef VEKS_WAV_COMMANDS_FILES_H
#define VEKS_WAV_COMMANDS_FILES_H

#include <CLI/CLI.hpp>
#include <string>

#include "error.h"
#include "sound/output_format.h"
#include "sound/reader.h"

namespace veks_wav {

struct Files {
  std::string in;
  std::string out;
};

// Adds IN and OUT to a command, and to its help what applies to them after the notes of its own.
inline void addFiles(CLI::App* command, Files& files, const std::string& notes = "") {
  command->add_option("IN", files.in, "The sound file to read")->required();
  command->add_option("OUT", files.out, "The sound file to write")->required();
  command->footer(notes + kOutputRules);
}

// Fails if two sounds differ in a number that has to be the same, such as Hz.
inline void requireEqual(int valueOfA, int valueOfB, const std::string& unit, const SoundReader& a,
                         const SoundReader& b) {
  if (valueOfA == valueOfB) return;
  throw Error(b.path(), "has " + std::to_string(valueOfB) + " " + unit + ", but " + a.path() +
                            " has " + std::to_string(valueOfA));
}

}  // namespace veks_wav

#endif
