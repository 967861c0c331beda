// Ownership of a file descriptor.
#ifndef VEKS_WAV_DESCRIPTOR_H
#define VEKS_WAV_DESCRIPTOR_H

#include <unistd.h>

namespace veks_wav {

class Descriptor {
 public:
  explicit Descriptor(int value = -1) : value_(value) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (value_ >= 0) close(value_);
  }

  int get() const {
    return value_;
  }

 private:
  int value_;
};

}  // namespace veks_wav

#endif
