#include "filter/fir_streams.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace veks::test::fir {
namespace {

template <class Function>
auto withType(Type type, const Function& function) {
  switch (type) {
    case Type::k16s:
      return function(Vek16s{});
    case Type::k32s:
      return function(Vek32s{});
    case Type::k32f:
      return function(Vek32f{});
    case Type::k64f:
      break;
  }
  return function(Vek64f{});
}

// So few that sums of 1000 complex products are less than 2^63.
int bitsOf(const Row& row, Type type) {
  if (type == Type::k16s) return 16;
  if (type == Type::k32s) return 32;
  if (type == Type::k32f) return 24;
  return row.data == Type::k32s ? 21 : 26;
}

int limited(int64_t exponent, int64_t limit) {
  return static_cast<int>(std::clamp(exponent, -limit, limit));
}

// Sums as they are, modulo 2^64.
std::vector<uint64_t> sumsOfProducts(const Signal& signal, size_t lanes) {
  const size_t taps = signal.tapsLen;
  const size_t count = signal.samples.size() / lanes;
  // All real parts, oldest first, then all imaginary parts; the same of taps.
  std::vector<uint64_t> samples(lanes * (taps + count));
  for (size_t lane = 0; lane < lanes; ++lane) {
    uint64_t* const first = &samples[lane * (taps + count)];
    for (size_t i = 0; i < taps; ++i) {
      first[taps - 1 - i] = static_cast<uint64_t>(signal.past[i * lanes + lane]);
    }
    for (size_t i = 0; i < count; ++i) {
      first[taps + i] = static_cast<uint64_t>(signal.samples[i * lanes + lane]);
    }
  }
  std::vector<uint64_t> sums(lanes * count);
  for (size_t k = 0; k < taps; ++k) {
    const uint64_t* const re = &samples[taps - k];
    const uint64_t tapRe = static_cast<uint64_t>(signal.taps[k * lanes]);
    if (lanes == 1) {
      for (size_t i = 0; i < count; ++i) sums[i] += tapRe * re[i];
    } else {
      const uint64_t* const im = re + taps + count;
      const uint64_t tapIm = static_cast<uint64_t>(signal.taps[2 * k + 1]);
      for (size_t i = 0; i < count; ++i) {
        sums[2 * i] += tapRe * re[i] - tapIm * im[i];
        sums[2 * i + 1] += tapRe * im[i] + tapIm * re[i];
      }
    }
  }
  return sums;
}

}  // namespace

size_t laneBytes(Type type) {
  return withType(type, [](auto lane) { return sizeof(lane); });
}

Bytes encoded(Type type, const Integers& lanes, int exponent) {
  Bytes bytes(lanes.size() * laneBytes(type));
  withType(type, [&](auto lane) {
    for (size_t i = 0; i < lanes.size(); ++i) {
      lane = static_cast<decltype(lane)>(std::ldexp(static_cast<long double>(lanes[i]), exponent));
      std::memcpy(&bytes[i * sizeof(lane)], &lane, sizeof(lane));
    }
  });
  return bytes;
}

long double laneAt(Type type, const void* lanes, size_t i) {
  return withType(type, [&](auto lane) {
    std::memcpy(&lane, static_cast<const unsigned char*>(lanes) + i * sizeof(lane), sizeof(lane));
    return static_cast<long double>(lane);
  });
}

long double rounded(Type type, long double number) {
  return withType(type, [&](auto lane) {
    using Limits = std::numeric_limits<decltype(lane)>;
    if (!Limits::is_integer) return number;
    return std::clamp(std::nearbyint(number), static_cast<long double>(Limits::lowest()),
                      static_cast<long double>(Limits::max()));
  });
}

Integers randomIntegers(size_t n, int bits, uint64_t seed) {
  std::mt19937_64 random(seed);
  Integers integers(n);
  for (int64_t& integer : integers) integer = static_cast<int64_t>(random()) >> (64 - bits);
  return integers;
}

Signal randomSignal(const Row& row, size_t tapsLen, size_t samples) {
  Signal signal;
  signal.tapsLen = tapsLen;
  const int tapBits = bitsOf(row, row.tap);
  const int dataBits = bitsOf(row, row.data);
  signal.taps = randomIntegers(row.lanes * tapsLen, tapBits, tapsLen);
  signal.past = randomIntegers(row.lanes * tapsLen, dataBits, tapsLen + 1);
  signal.samples = randomIntegers(row.lanes * samples, dataBits, tapsLen + 2);
  if (row.hasIntegerTaps()) {
    // Sums that wrap have 32 bits, and results the upper 16 of them.
    signal.scaleFactor = row.tap == Type::k16s ? 1 : 2;
    signal.tapsFactor = -14;
  } else {
    signal.tapExponent = 1 - tapBits;
    if (row.hasIntegerData()) {
      signal.scaleFactor = 3;
      const auto terms = static_cast<double>(row.lanes * tapsLen);
      signal.tapExponent += 3 - static_cast<int>(std::ceil(std::log2(terms) / 2));
    } else {
      signal.sampleExponent = 1 - dataBits;
    }
  }
  return signal;
}

Stream::Stream(const Row& filter, const Signal& signal)
    : row_(filter),
      signal_(signal),
      taps_(encoded(filter.tap, signal.taps, signal.tapExponent)),
      samples_(encoded(filter.data, signal.samples, signal.sampleExponent)) {
  const int64_t scale = signal.scaleFactor;
  int exponent = limited(signal.tapExponent + signal.sampleExponent - scale, 4000);
  if (row_.tap == Type::k32s) exponent = limited(signal.tapsFactor - scale, 31);
  if (row_.tap == Type::k16s) exponent = limited(-15 - scale, 4000);
  for (uint64_t sum : sumsOfProducts(signal, row_.lanes)) {
    const long double wrapped = row_.hasIntegerTaps()
                                    ? static_cast<long double>(static_cast<int32_t>(sum))
                                    : static_cast<long double>(static_cast<int64_t>(sum));
    wanted_.push_back(std::ldexp(wrapped, exponent));
  }
  limitErrors();
}

Bytes Stream::lineAt(size_t position) const {
  Integers line;
  for (size_t i = 0; i < tapsLen(); ++i) {
    const bool isPast = i >= position;
    const Integers& from = isPast ? signal_.past : signal_.samples;
    const size_t at = isPast ? i - position : position - 1 - i;
    for (size_t lane = 0; lane < row_.lanes; ++lane) line.push_back(from[at * row_.lanes + lane]);
  }
  return encoded(row_.data, line, signal_.sampleExponent);
}

// The sum of magnitudes of products, at most, with the unit roundoff for the roundings that random
// signs do not cancel.
void Stream::limitErrors() {
  if (row_.hasIntegerTaps() || signal_.isExact) return;
  long double taps = 0;
  for (size_t i = 0; i < signal_.taps.size(); ++i) {
    taps += std::fabs(laneAt(row_.tap, taps_.data(), i));
  }
  const int64_t scale = signal_.scaleFactor;
  const int sampleBits = row_.hasIntegerData() ? (row_.data == Type::k16s ? 15 : 31) : 0;
  const long double products = std::ldexp(taps, limited(sampleBits - scale, 4000));
  const long double unit = row_.tap == Type::k32f ? 0x1p-24L : 0x1p-53L;
  const long double roundings = static_cast<long double>(std::min<size_t>(tapsLen() + 1, 6));
  error_ = roundings * unit * products;
  long double squares = 0;
  for (long double wanted : wanted_) squares += wanted * wanted;
  const long double mean = std::sqrt(squares / static_cast<long double>(wanted_.size()));
  errorWithTransforms_ =
      error_ + 3 * unit * std::log2(static_cast<long double>(transformLength(tapsLen()))) * mean;
}

bool Stream::accepts(long double wanted, long double result, long double error) const {
  if (row_.hasIntegerData()) {
    return result >= rounded(row_.data, wanted - error) &&
           result <= rounded(row_.data, wanted + error);
  }
  // A last rounding to the type of the data.
  const long double unit = row_.data == Type::k32f ? 0x1p-24L : 0x1p-53L;
  return std::fabs(result - wanted) <= error + unit * (std::fabs(wanted) + error);
}

testing::AssertionResult Stream::accepts(size_t position, size_t n, const void* results,
                                         long double error) const {
  for (size_t i = 0; i < n * row_.lanes; ++i) {
    const long double result = laneAt(row_.data, results, i);
    const long double wanted = wanted_[position * row_.lanes + i];
    if (!accepts(wanted, result, error)) {
      return testing::AssertionFailure()
             << row_.name << ", " << tapsLen() << " taps, from " << position << " on, lane " << i
             << " of " << n * row_.lanes << ": " << static_cast<double>(result) << " instead of "
             << static_cast<double>(wanted) << ", which may be off by "
             << static_cast<double>(error);
    }
  }
  return testing::AssertionSuccess();
}

}  // namespace veks::test::fir
