// Containers (WAV, FLAC, ...) and encodings (16 bit PCM, 32 bit float, ...) of sound files.
#ifndef VEKS_WAV_SOUND_FORMAT_H
#define VEKS_WAV_SOUND_FORMAT_H

#include <string>

namespace veks_wav {

struct SoundFormat {
  int sampleRate;
  int channels;
  int code;  // container | encoding | byte order, as libsndfile combines them
};

int containerOf(const SoundFormat& format);
int encodingOf(const SoundFormat& format);
SoundFormat withEncoding(SoundFormat format, int encoding);
std::string containerName(const SoundFormat& format);
std::string encodingName(const SoundFormat& format);

// As in "Signed 16 bit PCM, 2 channels, 48000 Hz".
std::string describe(const SoundFormat& format);

// The width of the samples of an integer PCM encoding, 0 for other encodings.
int pcmBits(const SoundFormat& format);

// The same for the decoded samples of all integer encodings.
int integerBits(const SoundFormat& format);

enum class SampleType { kInt32, kFloat32, kFloat64 };

// The type that takes the decoded samples without loss. Integers of all widths fill 32 bits from
// the top.
SampleType sampleTypeOf(const SoundFormat& format);

// Whether floating-point samples can be encoded; out of range they are clipped.
bool takesFloats(const SoundFormat& format);

// Whether single precision, which holds the samples, is too coarse to calculate with them: integers
// of more than 16 bits and doubles.
bool needsDouble(const SoundFormat& format);

// Whether a file can be read from any frame on with the same samples as from its beginning.
bool seeksExactly(const SoundFormat& format);

}  // namespace veks_wav

#endif
