// Conversions against one definition in extended precision, which holds all values of all types and
// their products with powers of two.
#include "veks/vector/conversion.h"

#include <algorithm>
#include <cmath>

#include "support.h"

namespace veks::test {
namespace {

static_assert(std::numeric_limits<long double>::digits >= 64);

constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kIntMax = std::numeric_limits<int>::max();

// Packed samples as the tests see them.
template <bool isSigned>
struct Packed24 {
  using Value = std::conditional_t<isSigned, int32_t, uint32_t>;
  static constexpr Value kMin = static_cast<Value>(isSigned ? -(1 << 23) : 0);
  static constexpr Value kMax = isSigned ? (1 << 23) - 1 : (1 << 24) - 1;
  uint8_t bytes[3];

  static Packed24 of(Value value) {
    const auto bits = static_cast<uint32_t>(value);
    return {{static_cast<uint8_t>(bits), static_cast<uint8_t>(bits >> 8),
             static_cast<uint8_t>(bits >> 16)}};
  }
  Value value() const {
    const int bits = bytes[0] + 256 * bytes[1] + 65536 * bytes[2];
    return static_cast<Value>(isSigned && bytes[2] >= 128 ? bits - (1 << 24) : bits);
  }
};
using S24 = Packed24<true>;
using U24 = Packed24<false>;

template <class T>
constexpr bool kIsPacked = std::is_same_v<T, S24> || std::is_same_v<T, U24>;

template <class T>
struct Limits {
  static constexpr T kMin = std::numeric_limits<T>::lowest();
  static constexpr T kMax = std::numeric_limits<T>::max();
};
template <bool isSigned>
struct Limits<Packed24<isSigned>> : Packed24<isSigned> {};

// x * 2^-scaleFactor, exact or far beyond all types.
long double scaled(long double x, int scaleFactor) {
  return std::ldexp(x, -std::clamp(scaleFactor, -5000, 5000));
}

enum Rounding { kTruncate = 0, kNearest = 1 };

template <class T>
T expected(long double x, int rndMode, int scaleFactor) {
  const long double r = scaled(x, scaleFactor);
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(r);
  } else {
    const long double whole = rndMode == kTruncate ? std::trunc(r) : std::nearbyint(r);
    auto value = Limits<T>::kMin;
    if (whole >= static_cast<long double>(Limits<T>::kMax)) {
      value = Limits<T>::kMax;
    } else if (whole > static_cast<long double>(Limits<T>::kMin)) {
      value = static_cast<decltype(value)>(whole);
    }
    if constexpr (kIsPacked<T>) {
      return T::of(value);
    } else {
      return value;
    }
  }
}

template <class S>
long double valueOf(const S& x) {
  if constexpr (kIsPacked<S>) {
    return static_cast<long double>(x.value());
  } else {
    return static_cast<long double>(x);
  }
}

template <class S, class T, class... P>
VekStatus call(VekStatus (*convert)(const S*, T*, int, P...), const void* src, void* dst, int len,
               int rndMode, int scaleFactor) {
  const auto* const from = static_cast<const S*>(src);
  auto* const to = static_cast<T*>(dst);
  if constexpr (sizeof...(P) == 2) return convert(from, to, len, rndMode, scaleFactor);
  if constexpr (sizeof...(P) == 1) return convert(from, to, len, scaleFactor);
  if constexpr (sizeof...(P) == 0) return convert(from, to, len);
}

// Values of T from those of S: all of `src` at once, and short vectors from the middle of it. The
// function's own types are complex where an element is two values.
template <class T, class S, class Function>
void check(Function* function, const std::vector<S>& src, int rndMode = kNearest,
           int scaleFactor = 0, size_t valuesPerElement = 1) {
  SCOPED_TRACE("rndMode " + std::to_string(rndMode) + ", scaleFactor " +
               std::to_string(scaleFactor));
  std::vector<T> all(src.size());
  std::transform(src.begin(), src.end(), all.begin(),
                 [=](const S& x) { return expected<T>(valueOf(x), rndMode, scaleFactor); });
  constexpr size_t kLongestShort = 70;
  ASSERT_GE(src.size(), 8 * kLongestShort);
  onEveryTarget([&] {
    const auto converts = [&](size_t start, size_t values) {
      const std::vector<T> correct(&all[start], &all[start] + values);
      std::vector<T> dst(values);
      const int len = static_cast<int>(values / valuesPerElement);
      ASSERT_EQ(call(function, &src[start], dst.data(), len, rndMode, scaleFactor), vekStsOk);
      ASSERT_TRUE(sameBits(correct, dst)) << "from " << start << " on";
      if constexpr (sizeof(S) == sizeof(T)) {
        std::memcpy(dst.data(), &src[start], values * sizeof(T));
        ASSERT_EQ(call(function, dst.data(), dst.data(), len, rndMode, scaleFactor), vekStsOk);
        ASSERT_TRUE(sameBits(correct, dst)) << "in place, from " << start << " on";
      }
    };
    ASSERT_NO_FATAL_FAILURE(converts(0, src.size()));
    for (size_t len = 1; len <= kLongestShort; ++len) {
      ASSERT_NO_FATAL_FAILURE(converts(src.size() / 2 + len, len * valuesPerElement));
    }
  });
}

template <class T>
std::vector<T> everyValue() {
  std::vector<T> values(65536);
  for (size_t i = 0; i < values.size(); ++i) values[i] = static_cast<T>(i);
  return values;
}

// Integers of all magnitudes, and those half-way between two floating-point numbers.
template <class S>
std::vector<S> integers() {
  std::vector<S> values;
  const std::vector<uint64_t> words = randomBits<uint64_t>(16);
  for (int width = 1; width <= 64; ++width) {
    for (uint64_t word : words) {
      const uint64_t odd = word >> (64 - width) | 1;
      for (int shift : {0, 1, 5, 64 - width}) {
        if (shift > 64 - width) continue;
        const uint64_t shifted = odd << shift;
        for (uint64_t value : {shifted, shifted - 1, shifted + 1}) {
          values.push_back(static_cast<S>(value));
          values.push_back(static_cast<S>(0 - value));
        }
      }
    }
  }
  return values;
}

// All exponents, denormals, infinities and NaN.
template <class S>
std::vector<S> floats() {
  using Bits = std::conditional_t<sizeof(S) == 4, uint32_t, uint64_t>;
  constexpr int kMantissaBits = std::numeric_limits<S>::digits - 1;
  constexpr Bits kMantissas = (Bits{1} << kMantissaBits) - 1;
  const Bits word = randomBits<Bits>(1)[0];
  std::vector<S> values;
  for (Bits top = 0; top < Bits{1} << (8 * sizeof(S) - kMantissaBits); ++top) {
    for (Bits mantissa : {Bits{0}, kMantissas, word & kMantissas, ~word & kMantissas}) {
      const Bits bits = top << kMantissaBits | mantissa;
      S value;
      std::memcpy(&value, &bits, sizeof(S));
      values.push_back(value);
    }
  }
  return values;
}

// Sources whose scaled values lie on and next to integers, ties and the limits of T.
template <class T, class S>
void addCritical(int scaleFactor, std::vector<S>& values) {
  std::vector<long double> targets;
  for (int n = -90; n <= 90; ++n) targets.push_back(n / 4.0L);
  for (auto limit : {Limits<T>::kMin, Limits<T>::kMax}) {
    for (int n = -6; n <= 6; ++n) targets.push_back(static_cast<long double>(limit) + n / 4.0L);
  }
  for (long double target : targets) {
    const long double x = scaled(target, -std::max(scaleFactor, -kIntMax));
    if constexpr (std::is_floating_point_v<S>) {
      const S value = static_cast<S>(x);
      const S infinity = std::numeric_limits<S>::infinity();
      for (S y : {value, std::nextafter(value, infinity), std::nextafter(value, -infinity)}) {
        values.push_back(y);
      }
    } else if (x > static_cast<long double>(Limits<S>::kMin) &&
               x < static_cast<long double>(Limits<S>::kMax)) {
      for (int n : {-1, 0, 1}) values.push_back(static_cast<S>(static_cast<int64_t>(x) + n));
    }
  }
}

// Around every bound at which another path is taken.
std::vector<int> scaleFactors() {
  std::vector<int> factors = {kIntMin, kIntMin + 1, kIntMax - 1, kIntMax};
  for (int n : {1,    2,    3,    7,    8,    15,   16,   17,   23,   24,   25,  31,   32,
                33,   40,   63,   64,   65,   100,  125,  126,  127,  128,  129, 149,  150,
                151,  160,  182,  213,  251,  252,  253,  254,  300,  600,  970, 1021, 1022,
                1023, 1024, 1074, 1075, 1100, 1140, 2043, 2044, 2045, 2046, 2200}) {
    factors.push_back(n);
    factors.push_back(-n);
  }
  factors.push_back(0);
  return factors;
}

template <class T, class S, class Function>
void checkScaled(Function* function, const std::vector<S>& src, size_t valuesPerElement = 1) {
  for (int scaleFactor : scaleFactors()) {
    std::vector<S> values = src;
    if constexpr (!std::is_floating_point_v<T>) addCritical<T>(scaleFactor, values);
    values.resize(values.size() / 2 * 2);
    check<T>(function, values, kNearest, scaleFactor, valuesPerElement);
    if constexpr (std::is_floating_point_v<S>) {
      check<T>(function, values, kTruncate, scaleFactor, valuesPerElement);
    }
    if (testing::Test::HasFatalFailure()) return;
  }
}

TEST(Conversion, ToTypesThatHoldEveryValue) {
  check<Vek16s>(veksConvert_8s16s, everyValue<Vek8s>());
  check<Vek16s>(veksConvert_8u16s, everyValue<Vek8u>());
  check<Vek32s>(veksConvert_16s32s, everyValue<Vek16s>());
  check<Vek32f>(veksConvert_16s32f, everyValue<Vek16s>());
  check<Vek32f>(veksConvert_16u32f, everyValue<Vek16u>());
  check<Vek32f>(veksConvert_8s32f, everyValue<Vek8s>());
  check<Vek32f>(veksConvert_8u32f, everyValue<Vek8u>());
  check<Vek64f>(veksConvert_16s64f, everyValue<Vek16s>());
  check<Vek64f>(veksConvert_32s64f, integers<Vek32s>());
  check<Vek64f>(veksConvert_32f64f, floats<Vek32f>());
  check<Vek32f>(veksConvert_16sc32fc, everyValue<Vek16s>(), kNearest, 0, 2);
  check<Vek64f>(veksConvert_32fc64fc, floats<Vek32f>(), kNearest, 0, 2);
  check<Vek64f>(veksConvert_32sc64fc, integers<Vek32s>(), kNearest, 0, 2);
}

// Doubles in the range of float and around it, ties among them.
std::vector<Vek64f> doubles() {
  std::vector<Vek64f> values = floats<Vek64f>();
  for (Vek32f x : floats<Vek32f>()) {
    const Vek64f next = std::nextafter(x, std::numeric_limits<Vek32f>::infinity());
    const Vek64f tie = x + (next - x) / 2;
    if (!std::isfinite(tie)) continue;
    for (Vek64f direction : {-1e308, tie, 1e308}) values.push_back(std::nextafter(tie, direction));
  }
  for (int n = -2; n <= 2; ++n) values.push_back(0x1.ffffffp127 + n * 0x1p75);
  values.resize(values.size() / 2 * 2);
  return values;
}

TEST(Conversion, ToNearestFloatingPointNumber) {
  check<Vek32f>(veksConvert_32s32f, integers<Vek32s>());
  check<Vek64f>(veksConvert_64s64f, integers<Vek64s>());
  check<Vek32f>(veksConvert_64f32f, doubles());
  check<Vek32f>(veksConvert_64fc32fc, doubles(), kNearest, 0, 2);
}

TEST(Conversion, ToNarrowerIntegers) {
  std::vector<Vek32s> longs = integers<Vek32s>();
  addCritical<Vek16s>(0, longs);
  check<Vek16s>(veksConvert_32s16s, longs);
  check<Vek8s>(veksConvert_16s8s, everyValue<Vek16s>());
  check<Vek8u>(veksConvert_16s8u, everyValue<Vek16s>());
}

TEST(Conversion, EveryScaledShort) {
  const std::vector<Vek16s> src = everyValue<Vek16s>();
  for (int scaleFactor = -40; scaleFactor <= 40; ++scaleFactor) {
    check<Vek32f>(veksConvert_16s32f_Sfs, src, kNearest, scaleFactor);
    check<Vek64f>(veksConvert_16s64f_Sfs, src, kNearest, scaleFactor);
    check<Vek8s>(veksConvert_16s8s_Sfs, src, kNearest, scaleFactor);
  }
}

TEST(Conversion, ToScaledFloatingPointNumbers) {
  checkScaled<Vek32f>(veksConvert_16s32f_Sfs, integers<Vek16s>());
  checkScaled<Vek64f>(veksConvert_16s64f_Sfs, integers<Vek16s>());
  checkScaled<Vek32f>(veksConvert_32s32f_Sfs, integers<Vek32s>());
  checkScaled<Vek64f>(veksConvert_32s64f_Sfs, integers<Vek32s>());
}

TEST(Conversion, ToScaledNarrowerIntegers) {
  checkScaled<Vek8s>(veksConvert_16s8s_Sfs, integers<Vek16s>());
  checkScaled<Vek16s>(veksConvert_32s16s_Sfs, integers<Vek32s>());
  checkScaled<Vek32s>(veksConvert_64s32s_Sfs, integers<Vek64s>());
}

TEST(Conversion, FloatsToScaledIntegers) {
  const std::vector<Vek32f> src = floats<Vek32f>();
  checkScaled<Vek8s>(veksConvert_32f8s_Sfs, src);
  checkScaled<Vek8u>(veksConvert_32f8u_Sfs, src);
  checkScaled<Vek16s>(veksConvert_32f16s_Sfs, src);
  checkScaled<Vek16u>(veksConvert_32f16u_Sfs, src);
  checkScaled<Vek32s>(veksConvert_32f32s_Sfs, src);
  checkScaled<Vek16s>(veksConvert_32fc16sc_Sfs, src, 2);
}

TEST(Conversion, DoublesToScaledIntegers) {
  const std::vector<Vek64f> src = floats<Vek64f>();
  checkScaled<Vek8s>(veksConvert_64f8s_Sfs, src);
  checkScaled<Vek8u>(veksConvert_64f8u_Sfs, src);
  checkScaled<Vek16s>(veksConvert_64f16s_Sfs, src);
  checkScaled<Vek16u>(veksConvert_64f16u_Sfs, src);
  checkScaled<Vek32s>(veksConvert_64f32s_Sfs, src);
  checkScaled<Vek64s>(veksConvert_64f64s_Sfs, src);
}

TEST(Conversion, AnyOtherRoundingModeIsNearest) {
  const Vek32f src[3] = {2.5F, 3.5F, -1.75F};
  for (int rndMode : {2, -1, kIntMin, kIntMax}) {
    Vek16s dst[3];
    ASSERT_EQ(veksConvert_32f16s_Sfs(src, dst, 3, rndMode, 0), vekStsOk);
    EXPECT_EQ(std::vector<Vek16s>(dst, dst + 3), (std::vector<Vek16s>{2, 4, -2}));
  }
}

TEST(Conversion, FromPacked) {
  const std::vector<S24> isSigned = randomBits<S24>(65536);
  check<Vek32s>(veksConvert_24s32s, isSigned);
  check<Vek32f>(veksConvert_24s32f, isSigned);
  const std::vector<U24> isUnsigned = randomBits<U24>(65536);
  check<Vek32u>(veksConvert_24u32u, isUnsigned);
  check<Vek32f>(veksConvert_24u32f, isUnsigned);
}

TEST(Conversion, ToPacked) {
  checkScaled<S24>(veksConvert_32s24s_Sfs, integers<Vek32s>());
  checkScaled<U24>(veksConvert_32u24u_Sfs, integers<Vek32u>());
  checkScaled<S24>(veksConvert_32f24s_Sfs, floats<Vek32f>());
  checkScaled<U24>(veksConvert_32f24u_Sfs, floats<Vek32f>());
}

}  // namespace
}  // namespace veks::test
