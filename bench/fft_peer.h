// Comparisons of fast Fourier transforms: other libraries keep their data in memory and formats of
// their own.
#ifndef VEKS_BENCH_FFT_PEER_H
#define VEKS_BENCH_FFT_PEER_H

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "compare.h"

namespace veks::bench {

// A transform of 2^order points without a factor.
struct FftCase {
  bool isDouble;
  bool isReal;
  bool isInverse;
  bool isInPlace;
  int order;

  size_t points() const {
    return size_t{1} << order;
  }
  size_t laneBytes() const {
    return isDouble ? sizeof(double) : sizeof(float);
  }
  // Of the input, and of the output: complex values in turn, real ones, or half a spectrum in Perm
  // format.
  size_t bytes() const {
    return points() * laneBytes() * (isReal ? 1 : 2);
  }
};

// Data of such bytes go into the peer's memory and out of it.
struct FftPeer {
  Contestant contestant;
  std::function<void(const void* input)> fill;
  std::function<void(void* output)> deliver;
};

// Libraries that may be missing: a file of the build ends in such an object where one is found.
using FftPeers = std::vector<FftPeer> (*)(const FftCase& fft);
struct OptionalFftPeers {
  explicit OptionalFftPeers(FftPeers peers);
};
bool thereAreFftPeers();
std::vector<FftPeer> peersOf(const FftCase& fft);

// Where a library that plans by measuring may keep its plans; empty: nowhere.
void setFftWisdom(const std::string& path);
const std::string& fftWisdom();

}  // namespace veks::bench

#endif
