#include "vectors.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string>

namespace veks::bench {
namespace {

struct Size {
  const char* name;
  size_t bytes;
};
// Call overhead, the first-level cache, the caches behind it, memory.
constexpr Size kSizes[] = {
    {"64B", 64}, {"4KiB", 4 << 10}, {"256KiB", 256 << 10}, {"64MiB", 64 << 20}};
constexpr size_t kLargest = 64 << 20;
constexpr size_t kPage = 4096;
constexpr size_t kCacheLine = 64;

const char* nameOf(Placement placement) {
  switch (placement) {
    case Placement::kAligned:
      return "aligned";
    case Placement::kOffset:
      return "off1";
    case Placement::kUp:
      return "up1";
    case Placement::kDown:
      return "down1";
  }
  return "";
}

// From the start of a vector to that of the next. Vectors at equal offsets in their pages would
// make loads wait for unrelated stores; 17 cache lines keep them apart.
constexpr size_t stride(size_t bytes) {
  return (bytes + kPage - 1) / kPage * kPage + 17 * kCacheLine;
}

// Shared by all cases, so that only the first one meets fresh pages.
unsigned char* workspace() {
  constexpr size_t kBytes = (3 * stride(kLargest) / kPage + 1) * kPage;
  static const std::unique_ptr<void, decltype(&std::free)> block(std::aligned_alloc(kPage, kBytes),
                                                                 &std::free);
  if (block == nullptr) throw std::bad_alloc();
  return static_cast<unsigned char*>(block.get());
}

// Random bytes (SplitMix64), the same for the same seed, but for the exponents of float and double
// values among them, which are normal numbers of a magnitude below 2.
void fill(unsigned char* p, size_t bytes, uint64_t seed) {
  for (size_t i = 0; i < bytes; i += sizeof(uint64_t)) {
    seed += 0x9E3779B97F4A7C15u;
    uint64_t word = (seed ^ (seed >> 30)) * 0xBF58476D1CE4E5B9u;
    word = (word ^ (word >> 27)) * 0x94D049BB133111EBu;
    word ^= word >> 31;
    word = (word & 0x8FFFFFFF8FFFFFFFu) | 0x3000000030000000u;
    std::memcpy(p + i, &word, std::min(sizeof(word), bytes - i));
  }
}

}  // namespace

Vectors::Vectors(size_t bytes, size_t elementBytes, Placement placement)
    : len_(static_cast<int>(bytes / elementBytes)),
      bytes_(bytes / elementBytes * elementBytes),
      src1_(workspace()),
      src2_(src1_ + stride(bytes)),
      dst_(src2_ + stride(bytes)) {
  if (placement == Placement::kOffset) {
    src1_ += elementBytes;
    src2_ += elementBytes;
    dst_ += elementBytes;
  }
  output_ = dst_;
  outputBytes_ = bytes_;
  if (placement == Placement::kUp || placement == Placement::kDown) {
    output_ = src1_;
    outputBytes_ += elementBytes;
    dst_ = src1_ + (placement == Placement::kUp ? elementBytes : 0);
    src1_ += placement == Placement::kUp ? 0 : elementBytes;
  }
  fill(src1_, bytes_, 1);
  fill(src2_, bytes_, 2);
}

void Vectors::fillOutput() const {
  fill(output_, outputBytes_, 3);
}

void addVectorCases(const char* name, Traffic traffic, const std::vector<Peer>& contestants,
                    size_t elementBytes, const std::vector<Placement>& placements) {
  for (const Size& size : kSizes) {
    for (const Placement placement : placements) {
      const auto run = [=](benchmark::State& state) {
        const Vectors v(size.bytes, elementBytes, placement);
        std::vector<Contestant> all(contestants.size());
        std::transform(contestants.begin(), contestants.end(), all.begin(),
                       [&v](const Peer& peer) { return peer(v); });
        compare(state,
                {all, [&v] { v.fillOutput(); }, v.output(), v.outputBytes(), traffic * v.bytes()});
      };
      const int rounds = size.bytes == kLargest ? 11 : 31;
      addBenchmark(std::string(name) + '/' + size.name + '/' + nameOf(placement), rounds, run);
    }
  }
}

}  // namespace veks::bench
