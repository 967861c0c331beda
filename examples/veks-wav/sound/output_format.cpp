#include "sound/output_format.h"

#include <sndfile.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <vector>

#include "error.h"

namespace veks_wav {
namespace {

// What a file name extension stands for.
struct Extension {
  const char* text;
  std::vector<int> containers;  // the first one is written, an input's own is kept
  std::vector<int> codecs;      // the encodings of a container without PCM, likewise
};

const Extension kExtensions[] = {
    {".wav", {SF_FORMAT_WAV, SF_FORMAT_WAVEX, SF_FORMAT_RF64}, {}},
    {".rf64", {SF_FORMAT_RF64}, {}},
    {".w64", {SF_FORMAT_W64}, {}},
    {".aiff", {SF_FORMAT_AIFF}, {}},
    {".aif", {SF_FORMAT_AIFF}, {}},
    {".aifc", {SF_FORMAT_AIFF}, {}},
    {".au", {SF_FORMAT_AU}, {}},
    {".snd", {SF_FORMAT_AU}, {}},
    {".caf", {SF_FORMAT_CAF}, {}},
    {".flac", {SF_FORMAT_FLAC}, {}},
    {".ogg", {SF_FORMAT_OGG}, {SF_FORMAT_VORBIS, SF_FORMAT_OPUS}},
    {".oga", {SF_FORMAT_OGG}, {SF_FORMAT_VORBIS, SF_FORMAT_OPUS}},
    {".opus", {SF_FORMAT_OGG}, {SF_FORMAT_OPUS}},
    {".mp3", {SF_FORMAT_MPEG}, {SF_FORMAT_MPEG_LAYER_III}},
};

bool contains(const std::vector<int>& list, int value) {
  return std::find(list.begin(), list.end(), value) != list.end();
}

std::string extensionOf(const std::string& path) {
  std::string text = std::filesystem::path(path).extension().string();
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return text;
}

// The encodings that hold the decoded samples of an encoding without loss, the nearest first.
std::vector<int> losslessEncodings(const SoundFormat& in) {
  std::vector<int> list = {encodingOf(in)};
  const int bits = pcmBits(in);
  switch (sampleTypeOf(in)) {
    case SampleType::kFloat32:
      list = {SF_FORMAT_FLOAT, SF_FORMAT_DOUBLE};
      break;
    case SampleType::kFloat64:
      break;
    case SampleType::kInt32:
      if (bits == 8) list.insert(list.end(), {SF_FORMAT_PCM_S8, SF_FORMAT_PCM_U8});
      if (integerBits(in) <= 16) list.push_back(SF_FORMAT_PCM_16);
      if (bits <= 24) list.push_back(SF_FORMAT_PCM_24);
      list.push_back(SF_FORMAT_PCM_32);
  }
  return list;
}

bool isKept(const Extension& extension, const SoundFormat& in, const std::string& inPath) {
  // Large files that are named .wav stay what they are, files that are named .rf64 become WAV.
  if (containerOf(in) == SF_FORMAT_RF64 && extensionOf(inPath) != extension.text) return false;
  return contains(extension.containers, containerOf(in)) &&
         (extension.codecs.empty() || contains(extension.codecs, encodingOf(in)));
}

bool isWritable(const SoundFormat& format) {
  SF_INFO info = {};
  info.samplerate = format.sampleRate;
  info.channels = format.channels;
  info.format = format.code;
  return sf_format_check(&info) != 0;
}

}  // namespace

const char* const kOutputRules =
    "OUT keeps the container and the encoding of IN unless its extension names another one:\n"
    "  .wav .rf64 .w64 .aiff .aif .aifc .au .snd .caf .flac\n"
    "      The encoding is kept or, if the container lacks it, replaced by PCM that holds the\n"
    "      same samples; if there is none, that is an error.\n"
    "  .ogg .oga .opus .mp3\n"
    "      Encoded anew, with loss, at the usual quality of the codec.\n"
    "Titles and other texts and the channel map are copied. OUT is replaced only on success, so\n"
    "that it may be IN itself.";

SoundFormat formatOfOutput(const std::string& outPath, const std::string& inPath,
                           const SoundFormat& in) {
  const std::string text = extensionOf(outPath);
  const auto* const end = std::end(kExtensions);
  const auto* const extension = std::find_if(
      std::begin(kExtensions), end, [&](const Extension& known) { return text == known.text; });
  // Other containers can be kept, so their extension is known if the input has it.
  if (extension == end && !text.empty() && text != extensionOf(inPath)) {
    throw Error(outPath, "the extension " + text + " is not supported");
  }

  SoundFormat out = in;
  const bool kept = extension == end || isKept(*extension, in, inPath);
  if (kept && isWritable(out)) return out;

  const int container = kept ? containerOf(in) : extension->containers.front();
  const bool recoded = extension != end && !extension->codecs.empty();
  const std::vector<int> encodings =
      recoded ? std::vector<int>{extension->codecs.front()} : losslessEncodings(in);
  for (int encoding : encodings) {
    out.code = container | encoding;
    if (isWritable(out)) return out;
  }
  throw Error(outPath,
              containerName(out) + " cannot hold the samples of " + inPath + ": " + describe(in));
}

void checkFileSize(const std::string& path, const SoundFormat& format, int64_t frames) {
  switch (containerOf(format)) {
    case SF_FORMAT_RF64:
    case SF_FORMAT_W64:
    case SF_FORMAT_CAF:
    case SF_FORMAT_FLAC:
    case SF_FORMAT_OGG:
    case SF_FORMAT_MPEG:
      return;
    default:
      break;
  }
  constexpr int64_t kLargest = 0xffff0000;  // with room for the header
  const int bits = pcmBits(format);
  int bytes = bits > 0 ? bits / 8 : 1;
  if (encodingOf(format) == SF_FORMAT_FLOAT) bytes = 4;
  if (encodingOf(format) == SF_FORMAT_DOUBLE) bytes = 8;
  if (frames > kLargest / bytes / format.channels) {
    throw Error(path, containerName(format) +
                          " cannot hold 4 GiB or more: use the extension .rf64, .w64 or .caf");
  }
}

}  // namespace veks_wav
