// Thresholds against element loops: in 64-bit integers or the type itself for real vectors, in
// integers or long double for complex ones.
#include "veks/vector/threshold.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>

#include "support.h"
#include "vector/check_trailing.h"

namespace veks::test {
namespace {

template <class T>
using Limits = std::numeric_limits<T>;

// What may be special about an element or a level.
template <class T>
std::vector<T> specialValues() {
  if constexpr (std::is_integral_v<T>) {
    return {0, 1, -1, 1000, -1000, Limits<T>::max(), -Limits<T>::max(), Limits<T>::min()};
  } else {
    const T quiet = Limits<T>::quiet_NaN();
    return {T{0},
            T{-0.0},
            T{1},
            -T{1},
            T{5},
            -T{5},
            Limits<T>::max(),
            quiet,
            Limits<T>::min(),
            Limits<T>::denorm_min(),
            -quiet,
            Limits<T>::infinity(),
            -Limits<T>::infinity()};
  }
}

template <class T>
std::vector<T> levelValues() {
  if constexpr (std::is_integral_v<T>) {
    return {0, 1, 1000, static_cast<T>(Limits<T>::max() / 3), Limits<T>::max()};
  } else {
    return {T{0},
            T{-0.0},
            T{1},
            T{5},
            Limits<T>::min(),
            Limits<T>::max(),
            Limits<T>::infinity(),
            Limits<T>::quiet_NaN()};
  }
}

// Special values and random bits, signalling NaN among them.
template <class T>
std::vector<T> elementPool() {
  std::vector<T> pool = specialValues<T>();
  const std::vector<T> random = randomBits<T>(1001);
  pool.insert(pool.end(), random.begin(), random.end());
  return pool;
}

template <class T>
T absolute(T x) {
  return std::fabs(x);
}

int64_t absolute(int64_t x) {
  return x < 0 ? -x : x;
}

// Wide enough for the magnitude of every element.
template <class T>
auto widened(T x) {
  if constexpr (std::is_integral_v<T>) {
    return int64_t{x};
  } else {
    return x;
  }
}

// ---- Real vectors

template <class T>
void checkReplacing(Forms<T, T> lt, Forms<T, T> gt, Forms<T, T, T> ltVal, Forms<T, T, T> gtVal,
                    Forms<T, T, T, T, T> both) {
  const std::vector<T> pool = elementPool<T>();
  std::vector<T> levels = levelValues<T>();
  levels.push_back(static_cast<T>(-1000));
  for (T level : levels) {
    const T value = pool[pool.size() - 1];
    const auto less = [=](T& x, T replacement) {
      if (x < level) x = replacement;
    };
    const auto greater = [=](T& x, T replacement) {
      if (x > level) x = replacement;
    };
    checkChange(
        lt, pool, [=](T& x) { less(x, level); }, level);
    checkChange(
        gt, pool, [=](T& x) { greater(x, level); }, level);
    checkChange(
        ltVal, pool, [=](T& x) { less(x, value); }, level, value);
    checkChange(
        gtVal, pool, [=](T& x) { greater(x, value); }, level, value);
    const T lower = -20;
    if (level < lower) continue;
    const auto outside = [=](T& x) {
      if (x < lower) {
        x = value;
      } else if (x > level) {
        x = T{77};
      }
    };
    checkChange(both, pool, outside, lower, value, level, T{77});
  }
}

TEST(Threshold, Replaces) {
  checkReplacing<Vek16s>({veksThreshold_LT_16s, veksThreshold_LT_16s_I},
                         {veksThreshold_GT_16s, veksThreshold_GT_16s_I},
                         {veksThreshold_LTVal_16s, veksThreshold_LTVal_16s_I},
                         {veksThreshold_GTVal_16s, veksThreshold_GTVal_16s_I},
                         {veksThreshold_LTValGTVal_16s, veksThreshold_LTValGTVal_16s_I});
  checkReplacing<Vek32s>({veksThreshold_LT_32s, veksThreshold_LT_32s_I},
                         {veksThreshold_GT_32s, veksThreshold_GT_32s_I},
                         {veksThreshold_LTVal_32s, veksThreshold_LTVal_32s_I},
                         {veksThreshold_GTVal_32s, veksThreshold_GTVal_32s_I},
                         {veksThreshold_LTValGTVal_32s, veksThreshold_LTValGTVal_32s_I});
  checkReplacing<Vek32f>({veksThreshold_LT_32f, veksThreshold_LT_32f_I},
                         {veksThreshold_GT_32f, veksThreshold_GT_32f_I},
                         {veksThreshold_LTVal_32f, veksThreshold_LTVal_32f_I},
                         {veksThreshold_GTVal_32f, veksThreshold_GTVal_32f_I},
                         {veksThreshold_LTValGTVal_32f, veksThreshold_LTValGTVal_32f_I});
  checkReplacing<Vek64f>({veksThreshold_LT_64f, veksThreshold_LT_64f_I},
                         {veksThreshold_GT_64f, veksThreshold_GT_64f_I},
                         {veksThreshold_LTVal_64f, veksThreshold_LTVal_64f_I},
                         {veksThreshold_GTVal_64f, veksThreshold_GTVal_64f_I},
                         {veksThreshold_LTValGTVal_64f, veksThreshold_LTValGTVal_64f_I});
}

template <class T>
void checkMagnitudes(Forms<T, T> ltAbs, Forms<T, T> gtAbs) {
  const std::vector<T> pool = elementPool<T>();
  for (T level : levelValues<T>()) {
    const T bound = level == 0 ? T{0} : level;
    const auto raise = [=](T& x) {
      if (absolute(widened(x)) < widened(bound)) x = static_cast<T>(x < 0 ? -bound : bound);
    };
    const auto lower = [=](T& x) {
      if (absolute(widened(x)) > widened(bound)) x = static_cast<T>(x < 0 ? -bound : bound);
    };
    checkChange(ltAbs, pool, raise, level);
    checkChange(gtAbs, pool, lower, level);
  }
}

TEST(Threshold, LimitsMagnitudes) {
  checkMagnitudes<Vek16s>({veksThreshold_LTAbs_16s, veksThreshold_LTAbs_16s_I},
                          {veksThreshold_GTAbs_16s, veksThreshold_GTAbs_16s_I});
  checkMagnitudes<Vek32s>({veksThreshold_LTAbs_32s, veksThreshold_LTAbs_32s_I},
                          {veksThreshold_GTAbs_32s, veksThreshold_GTAbs_32s_I});
  checkMagnitudes<Vek32f>({veksThreshold_LTAbs_32f, veksThreshold_LTAbs_32f_I},
                          {veksThreshold_GTAbs_32f, veksThreshold_GTAbs_32f_I});
  checkMagnitudes<Vek64f>({veksThreshold_LTAbs_64f, veksThreshold_LTAbs_64f_I},
                          {veksThreshold_GTAbs_64f, veksThreshold_GTAbs_64f_I});
}

// The warning comes with level 0 and a zero, wherever it is.
template <class T, class Element>
VekStatus inversionStatus(const std::vector<Element>& src, T level) {
  const auto isZero = [](const Element& x) {
    if constexpr (std::is_same_v<Element, T>) {
      return x == 0;
    } else {
      return x.re == 0 && x.im == 0;
    }
  };
  const bool divides = !(level > 0) && std::any_of(src.begin(), src.end(), isZero);
  return divides ? vekWrnInvThreshZero : vekStsOk;
}

template <class T>
void checkInverse(Forms<T, T> ltInv) {
  std::vector<T> pool = elementPool<T>();
  for (int withZeros : {1, 0}) {
    if (!withZeros) std::replace(pool.begin(), pool.end(), T{0}, T{3});
    pool[40] = withZeros ? T{0} : T{3};
    for (T level : levelValues<T>()) {
      const auto check = [&](const std::vector<T>& src, const std::vector<T>& dst,
                             VekStatus status) {
        ASSERT_EQ(status, inversionStatus(src, level));
        std::vector<T> expected = src;
        for (T& x : expected) {
          if (std::isnan(x)) continue;
          const T bound = level > 0 ? level : T{0};
          x = std::fabs(x) > bound ? T{1} / x : (x < 0 ? T{-1} : T{1}) / bound;
        }
        ASSERT_TRUE(sameBits(expected, dst)) << "level " << level;
      };
      checkResults(ltInv, pool, testLengths(), check, level);
    }
  }
}

TEST(Threshold, Inverts) {
  checkInverse<Vek32f>({veksThreshold_LTInv_32f, veksThreshold_LTInv_32f_I});
  checkInverse<Vek64f>({veksThreshold_LTInv_64f, veksThreshold_LTInv_64f_I});
}

TEST(Threshold, InvertsEverySignificand) {
  constexpr uint32_t kBlock = 1 << 14;
  std::vector<Vek32f> src(kBlock);
  std::vector<Vek32f> dst(kBlock);
  onEveryTarget([&] {
    for (uint32_t first = 0; first < 1 << 23; first += kBlock) {
      for (uint32_t i = 0; i < kBlock; ++i) {
        const uint32_t bits = (i % 2 << 31) | (120 + i % 16) << 23 | (first + i);
        std::memcpy(&src[i], &bits, sizeof(bits));
      }
      ASSERT_EQ(veksThreshold_LTInv_32f(src.data(), dst.data(), kBlock, 0), vekStsOk);
      for (Vek32f& x : src) x = 1 / x;
      ASSERT_TRUE(sameBits(src, dst)) << "from " << first << " on";
    }
  });
}

// ---- Complex vectors

template <class C>
using Part = decltype(C::re);

// All pairs of special values, Pythagorean triples of every size, random bits.
template <class C>
std::vector<C> complexPool() {
  using T = Part<C>;
  std::vector<C> pool;
  std::vector<T> parts = specialValues<T>();
  if constexpr (std::is_integral_v<T>) {
    parts.insert(parts.end(), {3, 4, 5, -3, 30000, 21000, -12345, 700});
    pool.push_back({3, -4});
  } else {
    parts.insert(parts.end(), {Limits<T>::signaling_NaN(), T{0.1f}, Limits<T>::max() / 3});
    for (int e = Limits<T>::min_exponent - Limits<T>::digits + 1; e < Limits<T>::max_exponent - 3;
         ++e) {
      pool.push_back({std::ldexp(T{3}, e), std::ldexp(T{-4}, e)});
    }
  }
  for (T re : parts) {
    for (T im : parts) pool.push_back({re, im});
  }
  const std::vector<C> random = randomBits<C>(1001);
  pool.insert(pool.end(), random.begin(), random.end());
  return pool;
}

const std::vector<int> kComplexLengths = {1, 2, 3, 4, 5, 6, 7, 8, 9, 15, 16, 17, 33, 64, 67, 4097};

long double squaredMagnitude(Vek32fc x) {
  return static_cast<long double>(x.re) * x.re + static_cast<long double>(x.im) * x.im;
}

long double squaredMagnitude(Vek64fc x) {
  return static_cast<long double>(x.re) * x.re + static_cast<long double>(x.im) * x.im;
}

int64_t squaredMagnitude(Vek16sc x) {
  return int64_t{x.re} * x.re + int64_t{x.im} * x.im;
}

auto squaredLevel(Vek16s level) {
  return int64_t{level} * level;
}

template <class T>
long double squaredLevel(T level) {
  return static_cast<long double>(level) * level;
}

template <class C>
void checkComplexReplacing(Forms<C, Part<C>, C> ltVal, Forms<C, Part<C>, C> gtVal) {
  const std::vector<C> pool = complexPool<C>();
  const C value = {Part<C>{11}, Part<C>{-12}};
  for (Part<C> level : levelValues<Part<C>>()) {
    const auto less = [=](C& x) {
      if (squaredMagnitude(x) < squaredLevel(level)) x = value;
    };
    const auto greater = [=](C& x) {
      if (squaredMagnitude(x) > squaredLevel(level)) x = value;
    };
    checkChange(ltVal, pool, less, level, value);
    checkChange(gtVal, pool, greater, level, value);
  }
}

TEST(ComplexThreshold, Replaces) {
  checkComplexReplacing<Vek16sc>({veksThreshold_LTVal_16sc, veksThreshold_LTVal_16sc_I},
                                 {veksThreshold_GTVal_16sc, veksThreshold_GTVal_16sc_I});
  checkComplexReplacing<Vek32fc>({veksThreshold_LTVal_32fc, veksThreshold_LTVal_32fc_I},
                                 {veksThreshold_GTVal_32fc, veksThreshold_GTVal_32fc_I});
  checkComplexReplacing<Vek64fc>({veksThreshold_LTVal_64fc, veksThreshold_LTVal_64fc_I},
                                 {veksThreshold_GTVal_64fc, veksThreshold_GTVal_64fc_I});
}

// part * level / sqrt(squares) rounded to nearest, by integers: the k with
// (2k - 1)^2 squares < 4 part^2 level^2 < (2k + 1)^2 squares.
Vek16s rescaled(Vek16s part, Vek16s level, int64_t squares) {
  const uint64_t n = 2 * static_cast<uint64_t>(std::abs(part)) * static_cast<uint64_t>(level);
  uint64_t k = static_cast<uint64_t>(0.5 * static_cast<double>(n) / std::sqrt(squares));
  const auto isAbove = [&](uint64_t odd) {
    return n * n > odd * odd * static_cast<uint64_t>(squares);
  };
  while (k > 0 && !isAbove(2 * k - 1)) --k;
  while (isAbove(2 * k + 1)) ++k;
  return static_cast<Vek16s>(part < 0 ? -static_cast<int>(k) : static_cast<int>(k));
}

// Elements of which a part, rescaled, is close to a tie: a floating-point number would not tell.
std::vector<Vek16sc> nearTies(Vek16s level) {
  std::vector<Vek16sc> elements;
  for (const Vek16sc x : randomBits<Vek16sc>(200000)) {
    const double y = x.re * level / std::sqrt(static_cast<double>(squaredMagnitude(x)));
    if (std::fabs(y - std::floor(y) - 0.5) < 1e-4) elements.push_back(x);
  }
  return elements;
}

TEST(ComplexThreshold, RescalesIntegersExactly) {
  for (Vek16s level :
       {Vek16s{0}, Vek16s{1}, Vek16s{5}, Vek16s{777}, Vek16s{20011}, Vek16s{32767}}) {
    std::vector<Vek16sc> pool = nearTies(level);
    const std::vector<Vek16sc> more = complexPool<Vek16sc>();
    pool.insert(pool.end(), more.begin(), more.end());
    const auto rescale = [=](Vek16sc& x) {
      const int64_t squares = squaredMagnitude(x);
      x = squares == 0 ? Vek16sc{level, 0}
                       : Vek16sc{rescaled(x.re, level, squares), rescaled(x.im, level, squares)};
    };
    const auto less = [=](Vek16sc& x) {
      if (squaredMagnitude(x) < squaredLevel(level)) rescale(x);
    };
    const auto greater = [=](Vek16sc& x) {
      if (squaredMagnitude(x) > squaredLevel(level)) rescale(x);
    };
    checkChange(Forms{veksThreshold_LT_16sc, veksThreshold_LT_16sc_I}, pool, less, level);
    checkChange(Forms{veksThreshold_GT_16sc, veksThreshold_GT_16sc_I}, pool, greater, level);
  }
}

struct Exact {
  long double re;
  long double im;
};

// Infinite parts are alike, finite ones are nothing beside them.
template <class C>
Exact directionOf(C x) {
  if (!std::isinf(x.re) && !std::isinf(x.im)) return {x.re, x.im};
  const auto part = [](auto p) { return std::copysign(std::isinf(p) ? 1.0L : 0.0L, p); };
  return {part(x.re), part(x.im)};
}

long double magnitudeOf(Exact x) {
  return std::sqrt(x.re * x.re + x.im * x.im);
}

template <class C>
bool isNumber(C x) {
  return !std::isnan(x.re) && !std::isnan(x.im);
}

// Within `ulps` units in the last place, or what is smaller than `negligible`.
template <class T>
bool isClose(T actual, long double exact, long double ulps, long double negligible) {
  const T nearest = static_cast<T>(exact);
  if (actual == nearest) return std::signbit(actual) == std::signbit(exact);
  if (std::isinf(nearest)) return false;
  const T magnitude = std::fabs(nearest);
  const long double unit = static_cast<long double>(magnitude) - std::nextafter(magnitude, T{0});
  return std::fabs(actual - exact) <= std::max(2 * ulps * unit, negligible);
}

// expected(x, result) tells whether x changes, and into what.
template <class C, class Expected>
void checkClose(const Forms<C, Part<C>>& forms, Part<C> level, long double ulps,
                VekStatus (*statusOf)(const std::vector<C>&, Part<C>), const Expected& expected) {
  const auto check = [&](const std::vector<C>& src, const std::vector<C>& dst, VekStatus status) {
    ASSERT_EQ(status, statusOf(src, level));
    for (size_t i = 0; i < src.size(); ++i) {
      Exact exact;
      if (!isNumber(src[i]) || !expected(src[i], exact)) {
        ASSERT_EQ(std::memcmp(&src[i], &dst[i], sizeof(C)), 0)
            << src[i].re << " + " << src[i].im << "i, level " << level << ": " << dst[i].re << " + "
            << dst[i].im << "i";
        continue;
      }
      const long double largest = std::max(std::fabs(exact.re), std::fabs(exact.im));
      const long double negligible = std::isinf(largest) ? 0 : std::ldexp(largest, -1020);
      ASSERT_TRUE(isClose(dst[i].re, exact.re, ulps, negligible) &&
                  isClose(dst[i].im, exact.im, ulps, negligible))
          << src[i].re << " + " << src[i].im << "i, level " << level << ": " << dst[i].re << " + "
          << dst[i].im << "i, not " << exact.re << " + " << exact.im << "i, element " << i << " of "
          << src.size();
    }
  };
  checkResults(forms, complexPool<C>(), kComplexLengths, check, level);
}

template <class C>
VekStatus alwaysOk(const std::vector<C>& /*src*/, Part<C> /*level*/) {
  return vekStsOk;
}

template <class C>
void checkRescaling(Forms<C, Part<C>> lt, Forms<C, Part<C>> gt, long double ulps) {
  for (Part<C> level : levelValues<Part<C>>()) {
    const auto rescale = [=](C x, Exact& result) {
      const Exact direction = directionOf(x);
      const long double magnitude = magnitudeOf(direction);
      // Parts that vanish beside the other one do so before the level, which may be infinite.
      const auto part = [=](long double p) {
        const bool vanishes = std::fabs(p) <= std::ldexp(magnitude, -1075);
        return vanishes ? std::copysign(0.0L, p) : p / magnitude * std::fabs(level);
      };
      result = {part(direction.re), part(direction.im)};
      if (magnitude == 0) result = {level, 0};
    };
    checkClose(lt, level, ulps, alwaysOk<C>, [=](C x, Exact& result) {
      rescale(x, result);
      return squaredMagnitude(x) < squaredLevel(level);
    });
    checkClose(gt, level, ulps, alwaysOk<C>, [=](C x, Exact& result) {
      rescale(x, result);
      return squaredMagnitude(x) > squaredLevel(level);
    });
  }
}

TEST(ComplexThreshold, RescalesFloats) {
  checkRescaling<Vek32fc>({veksThreshold_LT_32fc, veksThreshold_LT_32fc_I},
                          {veksThreshold_GT_32fc, veksThreshold_GT_32fc_I}, 0.500001L);
  checkRescaling<Vek64fc>({veksThreshold_LT_64fc, veksThreshold_LT_64fc_I},
                          {veksThreshold_GT_64fc, veksThreshold_GT_64fc_I}, 4);
}

template <class C>
void checkComplexInverse(Forms<C, Part<C>> ltInv, long double ulps) {
  for (Part<C> level : levelValues<Part<C>>()) {
    const long double bound = level > 0 ? level : 0;
    checkClose(ltInv, level, ulps, inversionStatus<Part<C>, C>, [=](C x, Exact& result) {
      const Exact direction = directionOf(x);
      const bool isInfinite = std::isinf(x.re) || std::isinf(x.im);
      const long double magnitude =
          isInfinite ? Limits<long double>::infinity() : magnitudeOf(direction);
      const long double divisor = isInfinite ? magnitude : magnitude * std::max(bound, magnitude);
      result = {direction.re / divisor, -direction.im / divisor};
      if (magnitude == 0) result = {1 / bound, 0};
      return true;
    });
  }
}

TEST(ComplexThreshold, Inverts) {
  checkComplexInverse<Vek32fc>({veksThreshold_LTInv_32fc, veksThreshold_LTInv_32fc_I}, 0.500001L);
  checkComplexInverse<Vek64fc>({veksThreshold_LTInv_64fc, veksThreshold_LTInv_64fc_I}, 6);
}

// Finite elements around a level, whose results have to be those of double precision to the bit.
std::vector<Vek32fc> ordinaryPairs(float level) {
  std::mt19937_64 random(11);
  const auto significand = [&](int kind) {
    const auto bits = static_cast<uint32_t>(random() % (1 << 23));
    return 1 + static_cast<float>(kind == 0   ? bits
                                  : kind == 1 ? bits | 0x7FFFF0
                                              : bits & 0x7FF000) *
                   0x1p-23F;
  };
  std::vector<Vek32fc> all;
  for (int i = 0; i < 4096; ++i) {
    const int range = i % 7 == 0 ? 100 : i % 7 < 4 ? 3 : 16;
    float parts[2];
    for (float& part : parts) {
      const int exponent = static_cast<int>(random() % static_cast<unsigned>(range)) - range / 2;
      part = std::ldexp(significand(i / 16 % 3) * level, exponent);
      if (random() % 2 == 0) part = -part;
    }
    if (i / 64 % 5 == 0) parts[i % 2] = std::copysign(0.0F, parts[i % 2]);
    if (i / 32 % 5 == 1) {
      const float angle = std::atan2(parts[0], parts[1]);
      parts[0] = level * std::cos(angle);
      parts[1] = level * std::sin(angle);
    }
    all.push_back({parts[0], parts[1]});
  }
  return all;
}

double squaresInDouble(Vek32fc x) {
  const volatile double re = double{x.re} * x.re;
  const volatile double im = double{x.im} * x.im;
  return re + im;
}

Vek32fc scaledInDouble(Vek32fc x, double scale) {
  return {static_cast<float>(x.re * scale), static_cast<float>(x.im * scale)};
}

TEST(ComplexThreshold, FloatsAreRoundedDoubles) {
  for (const float level : {0.7F, 1.0F, 1e-5F, 3e5F, 3e8F, 1e-20F}) {
    const std::vector<Vek32fc> pool = ordinaryPairs(level);
    const double square = double{level} * level;
    const auto less = [=](Vek32fc& x) {
      const double squares = squaresInDouble(x);
      if (squares < square) x = scaledInDouble(x, level / std::sqrt(squares));
    };
    const auto greater = [=](Vek32fc& x) {
      const double squares = squaresInDouble(x);
      if (squares > square) x = scaledInDouble(x, level / std::sqrt(squares));
    };
    const auto inverse = [=](Vek32fc& x) {
      const double squares = squaresInDouble(x);
      const volatile double product = std::sqrt(squares) * level;
      x = scaledInDouble({x.re, -x.im}, 1 / (squares < square ? double{product} : squares));
    };
    checkChange(Forms{veksThreshold_LT_32fc, veksThreshold_LT_32fc_I}, pool, less, level);
    checkChange(Forms{veksThreshold_GT_32fc, veksThreshold_GT_32fc_I}, pool, greater, level);
    checkChange(Forms{veksThreshold_LTInv_32fc, veksThreshold_LTInv_32fc_I}, pool, inverse, level);
  }
}

// ---- The choice of the comparison

template <class T, class Level>
void checkChoice(Forms<T, Level, VekCmpOp> either, Forms<T, Level> lt, Forms<T, Level> gt) {
  const std::vector<T> pool = randomBits<T>(67);
  const Level level = 3;
  for (const bool less : {true, false}) {
    const auto check = [&](const std::vector<T>& src, const std::vector<T>& dst, VekStatus status) {
      std::vector<T> expected(src.size());
      auto* const limit = less ? lt.out : gt.out;
      ASSERT_EQ(limit(src.data(), expected.data(), static_cast<int>(src.size()), level), status);
      ASSERT_TRUE(sameBits(expected, dst));
    };
    checkResults(either, pool, {1, 67}, check, level, less ? vekCmpLess : vekCmpGreater);
  }
}

TEST(Threshold, ChoosesTheComparison) {
  checkChoice<Vek16s, Vek16s>({veksThreshold_16s, veksThreshold_16s_I},
                              {veksThreshold_LT_16s, veksThreshold_LT_16s_I},
                              {veksThreshold_GT_16s, veksThreshold_GT_16s_I});
  checkChoice<Vek32f, Vek32f>({veksThreshold_32f, veksThreshold_32f_I},
                              {veksThreshold_LT_32f, veksThreshold_LT_32f_I},
                              {veksThreshold_GT_32f, veksThreshold_GT_32f_I});
  checkChoice<Vek64f, Vek64f>({veksThreshold_64f, veksThreshold_64f_I},
                              {veksThreshold_LT_64f, veksThreshold_LT_64f_I},
                              {veksThreshold_GT_64f, veksThreshold_GT_64f_I});
  checkChoice<Vek16sc, Vek16s>({veksThreshold_16sc, veksThreshold_16sc_I},
                               {veksThreshold_LT_16sc, veksThreshold_LT_16sc_I},
                               {veksThreshold_GT_16sc, veksThreshold_GT_16sc_I});
  checkChoice<Vek32fc, Vek32f>({veksThreshold_32fc, veksThreshold_32fc_I},
                               {veksThreshold_LT_32fc, veksThreshold_LT_32fc_I},
                               {veksThreshold_GT_32fc, veksThreshold_GT_32fc_I});
  checkChoice<Vek64fc, Vek64f>({veksThreshold_64fc, veksThreshold_64fc_I},
                               {veksThreshold_LT_64fc, veksThreshold_LT_64fc_I},
                               {veksThreshold_GT_64fc, veksThreshold_GT_64fc_I});
}

// Two parameters may be bad at once; the sweep has one at a time.
TEST(Threshold, NegativeLevelComesBeforeABadComparison) {
  const Vek16sc x = {1, 2};
  Vek16sc y = {3, 4};
  EXPECT_EQ(veksThreshold_16sc(&x, &y, 1, -1, vekCmpEq), vekErrThreshNegLevel);
  EXPECT_EQ(veksThreshold_16sc(&x, &y, 1, 1, vekCmpEq), vekErrBadArg);
  EXPECT_EQ(y.re, 3);
}

}  // namespace
}  // namespace veks::test
