#include "vectors.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

namespace veks::bench {
namespace {

constexpr size_t kPage = 4096;
constexpr size_t kCacheLine = 64;

// From the start of a vector to that of the next. Vectors at equal offsets in their pages would
// make loads wait for unrelated stores; 17 cache lines keep them apart.
constexpr size_t stride(size_t bytes) {
  return (bytes + kPage - 1) / kPage * kPage + 17 * kCacheLine;
}

// Shared by all cases, so that only the first one of its size meets fresh pages.
unsigned char* workspace(size_t bytes) {
  static std::unique_ptr<void, decltype(&std::free)> block(nullptr, &std::free);
  static size_t size = 0;
  if (bytes > size) {
    block.reset();
    size = (bytes + kPage - 1) / kPage * kPage;
    block.reset(std::aligned_alloc(kPage, size));
    if (block == nullptr) throw std::bad_alloc();
  }
  return static_cast<unsigned char*>(block.get());
}

// SplitMix64, the same bytes for the same seed.
void fill(unsigned char* p, size_t bytes, uint64_t seed, const Pattern& pattern) {
  for (size_t i = 0; i < bytes; i += sizeof(uint64_t)) {
    seed += 0x9E3779B97F4A7C15u;
    uint64_t word = (seed ^ (seed >> 30)) * 0xBF58476D1CE4E5B9u;
    word = (word ^ (word >> 27)) * 0x94D049BB133111EBu;
    word ^= word >> 31;
    word = (word & 0x8FFFFFFF8FFFFFFFu) | 0x3000000030000000u;
    word = (word & pattern.keep) | pattern.set;
    std::memcpy(p + i, &word, std::min(sizeof(word), bytes - i));
  }
}

}  // namespace

Vectors::Vectors(int len, const Elements& elements, Placement placement, const Content& content)
    : len_(len), elements_(elements), outputPattern_(content.dst) {
  const auto n = static_cast<size_t>(len);
  const size_t strides[] = {stride(n * elements.src1), stride(n * elements.src2),
                            stride(n * elements.dst)};
  src1_ = workspace(strides[0] + strides[1] + strides[2]);
  src2_ = src1_ + strides[0];
  dst_ = src2_ + strides[1];
  if (placement == Placement::kOffset) {
    src1_ += elements.src1;
    src2_ += elements.src2;
    dst_ += elements.dst;
  }
  output_ = dst_;
  outputBytes_ = bytes();
  if (placement == Placement::kUp || placement == Placement::kDown) {
    output_ = src1_;
    outputBytes_ += elements.dst;
    dst_ = src1_ + (placement == Placement::kUp ? elements.dst : 0);
    src1_ += placement == Placement::kUp ? 0 : elements.dst;
  }
  fill(src1_, n * elements.src1, 1, content.src1);
  fill(src2_, n * elements.src2, 2, content.src2);
}

void Vectors::fillOutput() const {
  fill(output_, outputBytes_, 3, outputPattern_);
}

}  // namespace veks::bench
