// Buffers of samples.
#ifndef VEKS_WAV_SOUND_SAMPLES_H
#define VEKS_WAV_SOUND_SAMPLES_H

#include <veks.h>

#include <memory>
#include <new>

namespace veks_wav {

// A buffer of Vek32s, Vek32f or Vek64f.
template <class T>
class Samples {
 public:
  explicit Samples(int size) : data_(allocate(size, T{})) {
    if (!data_) throw std::bad_alloc();
  }

  T* data() {
    return data_.get();
  }

 private:
  struct Release {
    void operator()(T* data) const {
      veksFree(data);
    }
  };

  static Vek32s* allocate(int size, Vek32s) {
    return veksMalloc_32s(size);
  }
  static Vek32f* allocate(int size, Vek32f) {
    return veksMalloc_32f(size);
  }
  static Vek64f* allocate(int size, Vek64f) {
    return veksMalloc_64f(size);
  }

  std::unique_ptr<T[], Release> data_;
};

}  // namespace veks_wav

#endif
