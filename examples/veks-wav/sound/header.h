// The length that the header of a sound file promises.
#ifndef VEKS_WAV_SOUND_HEADER_H
#define VEKS_WAV_SOUND_HEADER_H

#include <cstdint>
#include <string>

namespace veks_wav {

// Fails if a WAV, RF64, W64, AIFF, IFF or AU file ends before the sample data that its header
// announces. libsndfile reads such a file as a shorter one. Other files are let pass.
void checkDataIsComplete(const std::string& path, int descriptor, uint64_t fileSize);

}  // namespace veks_wav

#endif
