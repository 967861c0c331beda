// The encodings of samples that a user may choose.
#ifndef VEKS_WAV_COMMANDS_ENCODINGS_H
#define VEKS_WAV_COMMANDS_ENCODINGS_H

#include <sndfile.h>

#include <CLI/CLI.hpp>
#include <map>
#include <string>

#include "error.h"
#include "sound/format.h"

namespace veks_wav {

inline const std::map<std::string, int> kEncodings = {
    {"u8", SF_FORMAT_PCM_U8},  {"s16", SF_FORMAT_PCM_16}, {"s24", SF_FORMAT_PCM_24},
    {"s32", SF_FORMAT_PCM_32}, {"f32", SF_FORMAT_FLOAT},  {"f64", SF_FORMAT_DOUBLE},
};

inline CLI::Option* addFormat(CLI::App* command, std::string& format, const std::string& text) {
  return command->add_option("--format", format, text)
      ->type_name("FORMAT")
      ->check(CLI::IsMember({"u8", "s16", "s24", "s32", "f32", "f64"}).description(""));
}

// Fails if an output has other samples than wanted: containers may have wider ones, or no PCM.
inline void requireEncoding(const std::string& path, const SoundFormat& format,
                            const SoundFormat& wanted, const std::string& name) {
  if (pcmBits(format) != pcmBits(wanted) || sampleTypeOf(format) != sampleTypeOf(wanted) ||
      !seeksExactly(format)) {
    throw Error(path, containerName(format) + " cannot hold " + name + " samples");
  }
}

}  // namespace veks_wav

#endif
