// Streams of samples and what filters make of them.
#ifndef VEKS_TESTS_FILTER_FIR_STREAMS_H
#define VEKS_TESTS_FILTER_FIR_STREAMS_H

#include <cstdint>
#include <vector>

#include "filter/fir_rows.h"
#include "support.h"

namespace veks::test::fir {

using Bytes = std::vector<unsigned char>;
// Lanes, in units of a power of two.
using Integers = std::vector<int64_t>;

size_t laneBytes(Type type);
Bytes encoded(Type type, const Integers& lanes, int exponent);
long double laneAt(Type type, const void* lanes, size_t i);
// To nearest with ties to even and saturated.
long double rounded(Type type, long double number);

// Random numbers of so many bits, with a sign.
Integers randomIntegers(size_t n, int bits, uint64_t seed);

// What a stream consists of: taps and samples of whole units, so that sums of products are exact.
struct Signal {
  size_t tapsLen = 0;
  int tapsFactor = 0;
  int scaleFactor = 0;
  int tapExponent = 0;
  int sampleExponent = 0;
  Integers taps;
  Integers past;  // the delay line, newest sample first
  Integers samples;
  bool isExact = false;  // no filter of the row has to round before the end
};

Signal randomSignal(const Row& row, size_t tapsLen, size_t samples);

class Stream {
 public:
  Stream(const Row& filter, const Signal& signal);
  // Of random samples, with a scale factor that leaves few results saturated.
  Stream(const Row& filter, size_t tapsLen, size_t samples)
      : Stream(filter, randomSignal(filter, tapsLen, samples)) {}

  const Row& row() const {
    return row_;
  }
  const Signal& signal() const {
    return signal_;
  }
  size_t tapsLen() const {
    return signal_.tapsLen;
  }
  size_t size() const {
    return signal_.samples.size() / row_.lanes;
  }
  const Bytes& taps() const {
    return taps_;
  }
  const unsigned char* samples(size_t position) const {
    return samples_.data() + position * sampleBytes();
  }
  size_t sampleBytes() const {
    return row_.lanes * laneBytes(row_.data);
  }
  // The delay line as the filter is at a position.
  Bytes lineAt(size_t position) const;

  // How far sums may be off: those of a state, with transforms or without, those in double
  // precision.
  long double errorOfState(bool mayTransform) const {
    return mayTransform ? errorWithTransforms_ : error_;
  }
  long double errorOfDirect() const {
    return row_.tap == Type::k32f ? error_ * 0x1p-29L : error_;
  }
  testing::AssertionResult accepts(size_t position, size_t n, const void* results,
                                   long double error) const;

 private:
  void limitErrors();
  bool accepts(long double wanted, long double result, long double error) const;

  Row row_;
  Signal signal_;
  Bytes taps_;
  Bytes samples_;
  std::vector<long double> wanted_;  // before a last rounding
  long double error_ = 0;
  long double errorWithTransforms_ = 0;
};

}  // namespace veks::test::fir

#endif
