#include "sound/header.h"

#include <unistd.h>

#include <cstring>

#include "error.h"

namespace veks_wav {
namespace {

// How the chunks of a family of containers are laid out: identifier, size, contents.
struct Layout {
  const char* magic;  // the first four bytes of the file
  const char* data;   // the identifier of the chunk with the samples
  unsigned firstChunk;
  unsigned idBytes;
  unsigned sizeBytes;
  unsigned alignment;
  bool bigEndian;
  bool sizeIncludesHeader;
};

constexpr Layout kLayouts[] = {
    {"RIFF", "data", 12, 4, 4, 2, false, false}, {"RIFX", "data", 12, 4, 4, 2, true, false},
    {"RF64", "data", 12, 4, 4, 2, false, false}, {"FORM", "SSND", 12, 4, 4, 2, true, false},
    {"FORM", "BODY", 12, 4, 4, 2, true, false},  {"riff", "data", 40, 16, 8, 8, false, true},
};

// In place of a size by programs that write to a pipe, and by RF64.
constexpr uint64_t kUnknownSize = 0xffffffff;

class Header {
 public:
  explicit Header(int descriptor) : descriptor_(descriptor) {}

  bool startsWith(uint64_t offset, const char* text) const {
    unsigned char bytes[4] = {};
    return get(offset, bytes, sizeof bytes) && std::memcmp(bytes, text, sizeof bytes) == 0;
  }

  uint64_t number(uint64_t offset, unsigned count, bool bigEndian) const {
    unsigned char bytes[8] = {};
    get(offset, bytes, count);
    uint64_t value = 0;
    for (unsigned i = 0; i < count; ++i) {
      value = value << 8 | bytes[bigEndian ? i : count - 1 - i];
    }
    return value;
  }

 private:
  bool get(uint64_t offset, unsigned char* bytes, size_t count) const {
    return pread(descriptor_, bytes, count, static_cast<off_t>(offset)) ==
           static_cast<ssize_t>(count);
  }

  int descriptor_;
};

// The sample data, as announced.
struct Data {
  uint64_t offset = 0;
  uint64_t size = kUnknownSize;
};

Data dataOfAu(const Header& header, bool bigEndian) {
  return {header.number(4, 4, bigEndian), header.number(8, 4, bigEndian)};
}

Data findDataChunk(const Header& header, const Layout& layout, uint64_t fileSize) {
  const unsigned headerBytes = layout.idBytes + layout.sizeBytes;
  uint64_t size64 = kUnknownSize;
  uint64_t offset = layout.firstChunk;
  while (offset <= fileSize && fileSize - offset >= headerBytes) {
    uint64_t size = header.number(offset + layout.idBytes, layout.sizeBytes, layout.bigEndian);
    if (layout.sizeIncludesHeader) {
      if (size < headerBytes) break;
      size -= headerBytes;
    }
    const uint64_t contents = offset + headerBytes;
    if (header.startsWith(offset, "ds64")) size64 = header.number(contents + 8, 8, false);
    if (header.startsWith(offset, layout.data)) {
      return {contents, size == kUnknownSize ? size64 : size};
    }
    if (size > fileSize) break;
    offset = contents + size;
    offset += (layout.alignment - offset % layout.alignment) % layout.alignment;
  }
  return {};
}

Data findData(const Header& header, uint64_t fileSize) {
  if (header.startsWith(0, ".snd")) return dataOfAu(header, true);
  if (header.startsWith(0, "dns.")) return dataOfAu(header, false);
  for (const Layout& layout : kLayouts) {
    if (!header.startsWith(0, layout.magic)) continue;
    const Data data = findDataChunk(header, layout, fileSize);
    if (data.size != kUnknownSize) return data;
  }
  return {};
}

}  // namespace

void checkDataIsComplete(const std::string& path, int descriptor, uint64_t fileSize) {
  const Data data = findData(Header(descriptor), fileSize);
  if (data.size == kUnknownSize) return;
  const uint64_t present = fileSize > data.offset ? fileSize - data.offset : 0;
  if (data.size > present) {
    throw Error(path, "is truncated: its header announces " + std::to_string(data.size) +
                          " bytes of samples, " + std::to_string(present) + " are there");
  }
}

}  // namespace veks_wav
