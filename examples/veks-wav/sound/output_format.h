// The format of an output file that is made from an input file.
#ifndef VEKS_WAV_SOUND_OUTPUT_FORMAT_H
#define VEKS_WAV_SOUND_OUTPUT_FORMAT_H

#include <cstdint>
#include <string>

#include "sound/format.h"

namespace veks_wav {

// For the help texts: how the format is chosen.
extern const char* const kOutputRules;

SoundFormat formatOfOutput(const std::string& outPath, const std::string& inPath,
                           const SoundFormat& in);

// Fails if so many frames make a file that is larger than its container can describe.
void checkFileSize(const std::string& path, const SoundFormat& format, int64_t frames);

}  // namespace veks_wav

#endif
