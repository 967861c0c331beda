#include "contract/buffers.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <cmath>
#include <random>
#include <system_error>

namespace veks::contract {
namespace {

constexpr size_t kGuardBytes = size_t{64} << 10;
constexpr size_t kBackgroundVector = 99;

[[noreturn]] void fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

unsigned char* map(void* at, size_t bytes, int access, int flags, int file) {
  void* const mapped = mmap(at, bytes, access, flags, file, 0);
  if (mapped == MAP_FAILED) fail("mmap");
  return static_cast<unsigned char*>(mapped);
}

// Replaces the lanes that are no numbers.
template <class T>
void keepNumbers(std::vector<unsigned char>& bytes) {
  for (size_t i = 0; i < bytes.size(); i += sizeof(T)) {
    T lane;
    std::memcpy(&lane, &bytes[i], sizeof(T));
    if (std::isnan(lane)) lane = static_cast<T>(i);
    std::memcpy(&bytes[i], &lane, sizeof(T));
  }
}

std::vector<unsigned char> randomLanes(Lane lane, size_t seed, size_t bytes) {
  std::mt19937_64 random(seed);
  std::vector<unsigned char> lanes(bytes);
  for (size_t i = 0; i < bytes; i += sizeof(uint64_t)) {
    const uint64_t word = random();
    std::memcpy(&lanes[i], &word, sizeof(word));
  }
  if (lane == Lane::kFloat) keepNumbers<float>(lanes);
  if (lane == Lane::kDouble) keepNumbers<double>(lanes);
  return lanes;
}

// The next power of two.
size_t roundUp(size_t bytes, size_t atLeast) {
  size_t rounded = atLeast;
  while (rounded < bytes) rounded *= 2;
  return rounded;
}

}  // namespace

GuardedBuffer::GuardedBuffer(size_t bytes, bool readOnly) : bytes_(bytes) {
  const int file = memfd_create("contract", MFD_CLOEXEC);
  if (file < 0 || ftruncate(file, static_cast<off_t>(bytes)) != 0) fail("memfd_create");
  unsigned char* const reserved =
      map(nullptr, bytes + 2 * kGuardBytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1);
  const int access = readOnly ? PROT_READ : PROT_READ | PROT_WRITE;
  begin_ = map(reserved + kGuardBytes, bytes, access, MAP_SHARED | MAP_FIXED, file);
  writable_ = map(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED, file);
  close(file);
}

GuardedBuffer::~GuardedBuffer() {
  munmap(begin_ - kGuardBytes, bytes_ + 2 * kGuardBytes);
  munmap(writable_, bytes_);
}

bool GuardedBuffer::contains(const void* address) const {
  return address >= begin() && address < end();
}

bool GuardedBuffer::guards(const void* address) const {
  return address >= begin() - kGuardBytes && address < end() + kGuardBytes && !contains(address);
}

GuardedBuffer& Workspace::buffer(size_t argument, bool readOnly, size_t bytes) {
  const size_t page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
  const size_t size = roundUp(bytes + kAlignments, page);
  std::unique_ptr<GuardedBuffer>& found = buffers_[{argument, readOnly, size}];
  if (!found) {
    found = std::make_unique<GuardedBuffer>(size, readOnly);
    found->write(found->begin(), background(size), size);
  }
  return *found;
}

const unsigned char* Workspace::input(Lane lane, size_t vector, size_t bytes) {
  const size_t size = roundUp(bytes, 4096);
  std::vector<unsigned char>& lanes = inputs_[{lane, vector, size}];
  if (lanes.empty()) lanes = randomLanes(lane, vector, size);
  return lanes.data();
}

const unsigned char* Workspace::background(size_t bytes) {
  return input(Lane::kInteger, kBackgroundVector, bytes);
}

}  // namespace veks::contract
