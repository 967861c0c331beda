// What every Fourier transform does, also where a reference would take too long.
#include <stdexcept>

#include "transform/fft_transforms.h"

namespace veks::test {
namespace {

const Transform& transformNamed(const std::string& name) {
  for (const Transform& transform : transforms()) {
    if (transform.name == name) return transform;
  }
  throw std::invalid_argument(name);
}

// A forward transform and its inverse with factor 1/n, in place, and their vector.
template <class T>
class PairOfTransforms {
 public:
  PairOfTransforms(const Transform& forward, const Transform& inverse, int order, int flag)
      : forward_(forward),
        inverse_(inverse),
        n_(size_t{1} << order),
        context_(forward.contexts(), order, flag),
        buffer_(context_.bufferBytes()),
        lanes_(forward.in, n_) {
    for (std::vector<T>& array : lanes_.arrays) {
      if (!array.empty()) array.resize(std::max(array.size(), lanesOf(forward.out, n_)));
    }
  }

  size_t points() const {
    return n_;
  }
  bool isReal() const {
    return forward_.isReal();
  }
  // Of the signal and of the spectrum.
  void set(size_t i, Point p) {
    setPoint(forward_.in, lanes_, n_, i, p);
  }
  Point at(size_t i) const {
    return pointAt(forward_.in, lanes_, n_, i);
  }
  Point spectrumAt(size_t k) const {
    return pointAt(forward_.out, lanes_, n_, k);
  }
  size_t storedSpectrum() const {
    return storedPoints(forward_.out, n_);
  }
  void clear() {
    for (std::vector<T>& array : lanes_.arrays) std::fill(array.begin(), array.end(), T{});
  }

  void transform() {
    call(forward_);
  }
  void restore() {
    call(inverse_);
  }

 private:
  void call(const Transform& transform) {
    T* const first = lanes_.arrays[0].data();
    T* const second = lanes_.arrays[1].data();
    const Arrays arrays = {{first, second}, {first, second}};
    Vek8u* const buffer = buffer_.empty() ? nullptr : buffer_.data();
    ASSERT_EQ(transform.call(arrays, context_.get(), 0, buffer), vekStsOk);
  }

  const Transform& forward_;
  const Transform& inverse_;
  size_t n_;
  Context context_;
  std::vector<Vek8u> buffer_;
  Lanes<T> lanes_;
};

// Random parts between -1 and 1, the same at every call.
template <class T>
Point sample(const PairOfTransforms<T>& pair, size_t i) {
  const auto part = [](uint64_t seed) {
    constexpr int kBits = std::numeric_limits<T>::digits - 1;
    const uint64_t word = seed * 0x9E3779B97F4A7C15u;
    const uint64_t mixed = (word ^ (word >> 30)) * 0xBF58476D1CE4E5B9u;
    const uint64_t bits = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
    const auto integer = static_cast<int64_t>(bits ^ (bits >> 31)) >> (63 - kBits);
    return static_cast<long double>(integer) / (int64_t{1} << kBits);
  };
  return {part(2 * i + 1), pair.isReal() ? 0 : part(2 * i + 2)};
}

long double squareOf(Point p) {
  return p.re * p.re + p.im * p.im;
}

// The spectrum of some impulses, in the whole of it or in many places, and back.
template <class T>
void checkImpulses(PairOfTransforms<T>& pair, long double tolerance) {
  const size_t n = pair.points();
  const size_t positions[] = {0, 1 % n, n / 2, n / 3, n - 1};
  for (size_t which = 0; which < std::size(positions); which += n <= 4096 ? 1 : 2) {
    const size_t position = positions[which];
    pair.clear();
    pair.set(position, {1, 0});
    pair.transform();
    const size_t step = n <= 65536 ? 1 : 61;
    for (size_t k = 0; k < pair.storedSpectrum(); k += step) {
      const Point wanted = rootOfUnity(k * position % n, n);
      ASSERT_LE(squareOf(pair.spectrumAt(k) - wanted), tolerance * tolerance)
          << "impulse at " << position << ", point " << k << " of " << n;
    }
    pair.restore();
    for (size_t i = 0; i < n; ++i) {
      const Point wanted = {i == position ? 1.0L : 0.0L, 0};
      ASSERT_LE(squareOf(pair.at(i) - wanted), tolerance * tolerance) << i << " of " << n;
    }
  }
}

// The sum of the squares is that of the signal times n (Parseval), and the inverse restores it.
template <class T>
void checkSamples(PairOfTransforms<T>& pair, long double spectrumFactor, long double tolerance) {
  const size_t n = pair.points();
  long double energy = 0;
  for (size_t i = 0; i < n; ++i) {
    const Point p = sample(pair, i);
    pair.set(i, p);
    energy += squareOf(p);
  }
  pair.transform();
  long double spectral = 0;
  for (size_t k = 0; k < pair.storedSpectrum(); ++k) {
    const bool isTwice = pair.storedSpectrum() < n && k > 0 && 2 * k < n;
    spectral += (isTwice ? 2 : 1) * squareOf(pair.spectrumAt(k));
  }
  ASSERT_NEAR(static_cast<double>(spectral / (energy * spectrumFactor)), 1,
              static_cast<double>(2 * tolerance));
  pair.restore();
  long double error = 0;
  for (size_t i = 0; i < n; ++i) error += squareOf(pair.at(i) - sample(pair, i));
  ASSERT_LE(error, tolerance * tolerance * energy);
}

template <class T>
void checkPair(const Transform& forward, const Transform& inverse, int order, int flag) {
  SCOPED_TRACE(std::string(forward.name) + ", order " + std::to_string(order) + ", flag " +
               std::to_string(flag));
  constexpr long double kEpsilon = std::numeric_limits<T>::epsilon();
  PairOfTransforms<T> pair(forward, inverse, order, flag);
  const long double factor = factorOf(forward, flag, pair.points());
  const auto points = static_cast<long double>(pair.points());
  checkSamples(pair, factor * factor * points, 1.2L * kEpsilon * (order + 1));
  if (flag == 2) checkImpulses(pair, kEpsilon * (order + 1));
}

template <class T>
void checkOrders(const Transform& forward, const Transform& inverse,
                 const std::vector<int>& orders) {
  for (int order : orders) {
    for (int flag : {1, 2, 4}) {
      if (order <= 16 || flag == 2) checkPair<T>(forward, inverse, order, flag);
    }
  }
}

TEST(FftProperties, OfEveryTransform) {
  std::vector<int> orders(17);
  for (int order = 0; order <= 16; ++order) orders[static_cast<size_t>(order)] = order;
  for (const Transform& forward : transforms()) {
    if (forward.isInverse || forward.type == Type::k16s) continue;
    for (const Transform& inverse : transforms()) {
      if (!inverse.isInverse || inverse.family != forward.family || inverse.in != forward.out) {
        continue;
      }
      withLanes(forward.type,
                [&](auto lane) { checkOrders<decltype(lane)>(forward, inverse, orders); });
    }
  }
}

// Orders above those that the reference covers.
TEST(FftProperties, OfLargeOrders) {
  checkOrders<Vek32f>(transformNamed("veksFFTFwd_CToC_32fc"),
                      transformNamed("veksFFTInv_CToC_32fc"), {21, 22, 24});
  checkOrders<Vek32f>(transformNamed("veksFFTFwd_CToC_32f"), transformNamed("veksFFTInv_CToC_32f"),
                      {21});
  checkOrders<Vek32f>(transformNamed("veksFFTFwd_RToPerm_32f"),
                      transformNamed("veksFFTInv_PermToR_32f"), {22});
  checkOrders<Vek64f>(transformNamed("veksFFTFwd_CToC_64fc"),
                      transformNamed("veksFFTInv_CToC_64fc"), {21, 22});
  checkOrders<Vek64f>(transformNamed("veksFFTFwd_RToPack_64f"),
                      transformNamed("veksFFTInv_PackToR_64f"), {21});
}

// The transform of a shifted signal and an impulse is that of the signal, turned, and that of the
// impulse.
template <class T>
void checkShift(const Transform& transform, int order) {
  SCOPED_TRACE(std::string(transform.name) + ", order " + std::to_string(order));
  const size_t n = size_t{1} << order;
  const size_t shift = n / 3 + 1;
  const Context context(transform.contexts(), order, 8);
  const Points signal = randomInput(transform, n);
  Points shifted(n);
  for (size_t i = 0; i < n; ++i) shifted[(i + shift) % n] = signal[i];
  shifted[0].re = static_cast<T>(shifted[0].re + 2);
  const auto spectrumOf = [&](const Points& in) {
    const Lanes<T> out = resultOf(transform, context, encoded<T>(transform.in, in), n);
    return decoded(transform.out, out, n);
  };
  Points expected = spectrumOf(signal);
  for (size_t k = 0; k < n; ++k) {
    const Point turn = rootOfUnity(k * shift % n, n);
    expected[k] = expected[k] * (transform.isInverse ? conj(turn) : turn) + Point{2, 0};
  }
  const Points got = spectrumOf(shifted);
  EXPECT_LE(distance(expected, got),
            2 * 0.6L * std::numeric_limits<T>::epsilon() * (order + 1) * norm(expected));
}

TEST(FftProperties, AreLinearAndTurnWithShifts) {
  onEveryTarget([] {
    for (const Transform& transform : transforms()) {
      const bool givesSignals = transform.isReal() && transform.isInverse;
      if (transform.type == Type::k16s || givesSignals) continue;
      for (int order : {1, 2, 3, 4, 5, 8, 11}) {
        if (transform.type == Type::k32f) {
          checkShift<Vek32f>(transform, order);
        } else {
          checkShift<Vek64f>(transform, order);
        }
      }
    }
  });
}

}  // namespace
}  // namespace veks::test
