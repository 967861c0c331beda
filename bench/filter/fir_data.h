// What filters are measured on.
#ifndef VEKS_BENCH_FILTER_FIR_DATA_H
#define VEKS_BENCH_FILTER_FIR_DATA_H

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>
#include <random>
#include <type_traits>
#include <vector>

#include "filter/fir_peer.h"

namespace veks::bench {

// Values of -1 .. 1, integers of up to `largest`.
template <class T>
void fillRandomly(T* values, size_t count, double largest = 1) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> uniform(-largest, largest);
  const auto next = [&](auto& lane) {
    lane = static_cast<std::remove_reference_t<decltype(lane)>>(uniform(random));
  };
  for (size_t i = 0; i < count; ++i) {
    if constexpr (std::is_class_v<T>) {
      next(values[i].re);
      next(values[i].im);
    } else {
      next(values[i]);
    }
  }
}

// Elements at multiples of 64 bytes, with zeros around them.
template <class T>
class PaddedVector {
 public:
  PaddedVector(size_t count, size_t padding, size_t offsetBytes = 0) {
    const size_t front = (padding * sizeof(T) + kAlignment - 1) / kAlignment * kAlignment;
    const size_t bytes = offsetBytes + 2 * front + (count * sizeof(T) + 4095) / 4096 * 4096;
    block_.reset(std::aligned_alloc(4096, (bytes + 4095) / 4096 * 4096));
    if (block_ == nullptr) throw std::bad_alloc();
    auto* const start = static_cast<unsigned char*>(block_.get());
    std::fill_n(start, bytes, static_cast<unsigned char>(0));
    data_ = reinterpret_cast<T*>(start + offsetBytes + front);
  }

  T* data() const {
    return data_;
  }

 private:
  static constexpr size_t kAlignment = 64;
  struct Release {
    void operator()(void* block) const {
      std::free(block);
    }
  };
  std::unique_ptr<void, Release> block_;
  T* data_;
};

// Source and destination lie differently in their pages, so that loads do not wait for unrelated
// stores.
template <class T, class Tap = T>
struct FirData {
  std::vector<Tap> taps;
  std::vector<Tap> reversed;
  size_t len;
  PaddedVector<T> src;
  PaddedVector<T> dst;

  FirData(int tapsLen, int samples, double largestTap = 1, double largestSample = 1)
      : taps(static_cast<size_t>(tapsLen)),
        len(static_cast<size_t>(samples)),
        src(len, taps.size() + 64),
        dst(len, taps.size() + 64, 17 * 64) {
    fillRandomly(taps.data(), taps.size(), largestTap);
    fillRandomly(src.data(), len, largestSample);
    reversed.assign(taps.rbegin(), taps.rend());
  }

  int tapsLen() const {
    return static_cast<int>(taps.size());
  }
  int samples() const {
    return static_cast<int>(len);
  }
  FirCase<T> of(FirWork work) const {
    return {work, taps.data(), tapsLen(), src.data(), dst.data(), samples()};
  }

  // Without contestants.
  Case comparison() const {
    Case c;
    c.output = reinterpret_cast<const unsigned char*>(dst.data());
    c.outputBytes = len * sizeof(T);
    c.trafficBytes = 2 * c.outputBytes;
    c.samples = static_cast<double>(len);
    return c;
  }
};

}  // namespace veks::bench

#endif
