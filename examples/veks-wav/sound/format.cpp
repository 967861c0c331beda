#include "sound/format.h"

#include <sndfile.h>

namespace veks_wav {
namespace {

std::string formatName(int code) {
  SF_FORMAT_INFO info = {};
  info.format = code;
  const int error = sf_command(nullptr, SFC_GET_FORMAT_INFO, &info, sizeof info);
  return error != 0 || info.name == nullptr ? "unknown" : info.name;
}

}  // namespace

int containerOf(const SoundFormat& format) {
  return format.code & SF_FORMAT_TYPEMASK;
}

int encodingOf(const SoundFormat& format) {
  return format.code & SF_FORMAT_SUBMASK;
}

SoundFormat withEncoding(SoundFormat format, int encoding) {
  format.code = (format.code & ~SF_FORMAT_SUBMASK) | encoding;
  return format;
}

std::string containerName(const SoundFormat& format) {
  return formatName(containerOf(format));
}

std::string encodingName(const SoundFormat& format) {
  return formatName(encodingOf(format));
}

std::string describe(const SoundFormat& format) {
  return encodingName(format) + ", " + std::to_string(format.channels) +
         (format.channels == 1 ? " channel, " : " channels, ") + std::to_string(format.sampleRate) +
         " Hz";
}

int pcmBits(const SoundFormat& format) {
  switch (encodingOf(format)) {
    case SF_FORMAT_PCM_S8:
    case SF_FORMAT_PCM_U8:
      return 8;
    case SF_FORMAT_PCM_16:
    case SF_FORMAT_ALAC_16:
      return 16;
    case SF_FORMAT_ALAC_20:
      return 20;
    case SF_FORMAT_PCM_24:
    case SF_FORMAT_ALAC_24:
      return 24;
    case SF_FORMAT_PCM_32:
    case SF_FORMAT_ALAC_32:
      return 32;
    default:
      return 0;
  }
}

int integerBits(const SoundFormat& format) {
  if (sampleTypeOf(format) != SampleType::kInt32) return 0;
  const int bits = pcmBits(format);
  if (bits > 0) return bits;
  // All codecs without PCM decode to 16 bits, except one.
  return encodingOf(format) == SF_FORMAT_DWVW_24 ? 24 : 16;
}

SampleType sampleTypeOf(const SoundFormat& format) {
  switch (encodingOf(format)) {
    case SF_FORMAT_DOUBLE:
      return SampleType::kFloat64;
    case SF_FORMAT_FLOAT:
    case SF_FORMAT_VORBIS:
    case SF_FORMAT_OPUS:
    case SF_FORMAT_MPEG_LAYER_I:
    case SF_FORMAT_MPEG_LAYER_II:
    case SF_FORMAT_MPEG_LAYER_III:
      return SampleType::kFloat32;
    default:
      return SampleType::kInt32;
  }
}

bool takesFloats(const SoundFormat& format) {
  return pcmBits(format) > 0 || sampleTypeOf(format) != SampleType::kInt32;
}

bool needsDouble(const SoundFormat& format) {
  return integerBits(format) > 16 || sampleTypeOf(format) == SampleType::kFloat64;
}

bool seeksExactly(const SoundFormat& format) {
  const int encoding = encodingOf(format);
  return pcmBits(format) > 0 || encoding == SF_FORMAT_FLOAT || encoding == SF_FORMAT_DOUBLE;
}

}  // namespace veks_wav
