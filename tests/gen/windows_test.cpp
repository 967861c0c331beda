// Windows against their formulas in extended precision, and types against each other.
#include "veks/gen/windows.h"

#include <algorithm>
#include <climits>
#include <cmath>

#include "support.h"

namespace veks::test {
namespace {

template <class T, class... P>
struct Form {
  VekStatus (*separate)(const T*, T*, int, P...);
  VekStatus (*inPlace)(T*, int, P...);

  std::vector<T> operator()(std::vector<T> src, P... parameters) const {
    const int len = static_cast<int>(src.size());
    std::vector<T> dst(src.size());
    EXPECT_EQ(separate(src.data(), dst.data(), len, parameters...), vekStsOk);
    EXPECT_EQ(inPlace(src.data(), len, parameters...), vekStsOk);
    EXPECT_TRUE(sameBits(dst, src)) << "in place, len " << len;
    return dst;
  }
  std::vector<T> weights(int len, P... parameters) const {
    return (*this)(std::vector<T>(static_cast<size_t>(len), T{1}), parameters...);
  }
};

template <class... P>
struct Family {
  Form<Vek16s, P...> integers;
  Form<Vek16sc, P...> complexIntegers;
  Form<Vek32f, P...> floats;
  Form<Vek32fc, P...> complexFloats;
  Form<Vek64f, P...> doubles;
  Form<Vek64fc, P...> complexDoubles;
};

const Family<> kBartlett = {
    {veksWinBartlett_16s, veksWinBartlett_16s_I}, {veksWinBartlett_16sc, veksWinBartlett_16sc_I},
    {veksWinBartlett_32f, veksWinBartlett_32f_I}, {veksWinBartlett_32fc, veksWinBartlett_32fc_I},
    {veksWinBartlett_64f, veksWinBartlett_64f_I}, {veksWinBartlett_64fc, veksWinBartlett_64fc_I}};
const Family<> kHann = {
    {veksWinHann_16s, veksWinHann_16s_I}, {veksWinHann_16sc, veksWinHann_16sc_I},
    {veksWinHann_32f, veksWinHann_32f_I}, {veksWinHann_32fc, veksWinHann_32fc_I},
    {veksWinHann_64f, veksWinHann_64f_I}, {veksWinHann_64fc, veksWinHann_64fc_I}};
const Family<> kHamming = {
    {veksWinHamming_16s, veksWinHamming_16s_I}, {veksWinHamming_16sc, veksWinHamming_16sc_I},
    {veksWinHamming_32f, veksWinHamming_32f_I}, {veksWinHamming_32fc, veksWinHamming_32fc_I},
    {veksWinHamming_64f, veksWinHamming_64f_I}, {veksWinHamming_64fc, veksWinHamming_64fc_I}};
const Family<Vek32f> kBlackman = {
    {veksWinBlackman_16s, veksWinBlackman_16s_I}, {veksWinBlackman_16sc, veksWinBlackman_16sc_I},
    {veksWinBlackman_32f, veksWinBlackman_32f_I}, {veksWinBlackman_32fc, veksWinBlackman_32fc_I},
    {veksWinBlackman_64f, veksWinBlackman_64f_I}, {veksWinBlackman_64fc, veksWinBlackman_64fc_I}};
const Family<> kBlackmanStd = {{veksWinBlackmanStd_16s, veksWinBlackmanStd_16s_I},
                               {veksWinBlackmanStd_16sc, veksWinBlackmanStd_16sc_I},
                               {veksWinBlackmanStd_32f, veksWinBlackmanStd_32f_I},
                               {veksWinBlackmanStd_32fc, veksWinBlackmanStd_32fc_I},
                               {veksWinBlackmanStd_64f, veksWinBlackmanStd_64f_I},
                               {veksWinBlackmanStd_64fc, veksWinBlackmanStd_64fc_I}};
const Family<> kBlackmanOpt = {{veksWinBlackmanOpt_16s, veksWinBlackmanOpt_16s_I},
                               {veksWinBlackmanOpt_16sc, veksWinBlackmanOpt_16sc_I},
                               {veksWinBlackmanOpt_32f, veksWinBlackmanOpt_32f_I},
                               {veksWinBlackmanOpt_32fc, veksWinBlackmanOpt_32fc_I},
                               {veksWinBlackmanOpt_64f, veksWinBlackmanOpt_64f_I},
                               {veksWinBlackmanOpt_64fc, veksWinBlackmanOpt_64fc_I}};
const Family<Vek32f> kKaiser = {
    {veksWinKaiser_16s, veksWinKaiser_16s_I}, {veksWinKaiser_16sc, veksWinKaiser_16sc_I},
    {veksWinKaiser_32f, veksWinKaiser_32f_I}, {veksWinKaiser_32fc, veksWinKaiser_32fc_I},
    {veksWinKaiser_64f, veksWinKaiser_64f_I}, {veksWinKaiser_64fc, veksWinKaiser_64fc_I}};

using Real = long double;
constexpr Real kPi = 3.14159265358979323846264338327950288L;

// Position m of 0 .. last, m <= last / 2.
struct Position {
  int m;
  int last;
  Real fraction() const {
    return static_cast<Real>(m) / static_cast<Real>(last);
  }
  // Above an eighth of the circle the sine comes from the distance to the middle.
  Real squaredSine() const {
    if (4 * int64_t{m} <= last) return std::pow(std::sin(kPi * fraction()), 2.0L);
    return 1 - squaredCosine();
  }
  Real squaredCosine() const {
    if (4 * int64_t{m} <= last) return 1 - squaredSine();
    const Real distance = static_cast<Real>(last - 2 * m) / static_cast<Real>(last);
    return std::pow(std::sin(kPi / 2 * distance), 2.0L);
  }
};

// What `formula` gives, without its cancellation at the ends.
struct Reference {
  Real (*weight)(Position, Real alpha);
  Real (*formula)(Real turns, Real alpha);
};

Real cosine(Real turns) {
  return std::cos(2 * kPi * turns);
}

const Reference kBartlettReference = {[](Position p, Real) { return 2 * p.fraction(); },
                                      [](Real x, Real) { return 2 * x; }};
const Reference kHannReference = {[](Position p, Real) { return p.squaredSine(); },
                                  [](Real x, Real) { return 0.5L - 0.5L * cosine(x); }};
const Reference kHammingReference = {
    [](Position p, Real) { return 0.08L + 0.92L * p.squaredSine(); },
    [](Real x, Real) { return 0.54L - 0.46L * cosine(x); }};
const Reference kBlackmanReference = {[](Position p, Real alpha) {
                                        const Real sine = p.squaredSine();
                                        if (alpha > 0)
                                          return sine * (1 + 4 * alpha * p.squaredCosine());
                                        return sine * ((1 + 4 * alpha) - 4 * alpha * sine);
                                      },
                                      [](Real x, Real alpha) {
                                        return (alpha + 1) / 2 - 0.5L * cosine(x) -
                                               alpha / 2 * cosine(2 * x);
                                      }};

Real besselI0(Real x) {
  if (x < 3.75L) {
    const Real u = x / 3.75L * (x / 3.75L);
    return 1 + u * (3.5156229L +
                    u * (3.0899424L +
                         u * (1.2067492L + u * (0.2659732L + u * (0.0360768L + u * 0.0045813L)))));
  }
  Real sum = 0;
  for (const Real c : {0.00392377L, -0.01647633L, 0.02635537L, -0.02057706L, 0.00916281L,
                       -0.00157565L, 0.00225319L, 0.01328592L, 0.39894228L}) {
    sum = sum * (3.75L / x) + c;
  }
  return std::exp(x) / std::sqrt(x) * sum;
}

const Reference kKaiserReference = {[](Position p, Real alpha) {
                                      const Real pairs =
                                          static_cast<Real>(p.m) * static_cast<Real>(p.last - p.m);
                                      const Real magnitude = std::fabs(alpha);
                                      return besselI0(magnitude * std::sqrt(pairs)) /
                                             besselI0(magnitude * static_cast<Real>(p.last) / 2);
                                    },
                                    nullptr};

// The distance to the next value of the type.
template <class T>
Real ulp(Real value) {
  int exponent;
  std::frexp(static_cast<T>(value), &exponent);
  return std::ldexp(1.0L, std::max(exponent, std::numeric_limits<T>::min_exponent) -
                              std::numeric_limits<T>::digits);
}

// With `cancels`, by how much the weights may be off where terms of opposite signs meet.
template <class T, class... P>
void checkWeights(const Form<T, P...>& form, const Reference& reference, int len, Real alpha,
                  P... parameters) {
  const int last = len - 1;
  const bool cancels = reference.weight == kBlackmanReference.weight && alpha < -0.25L;
  std::vector<Real> expected;
  for (int m = 0; 2 * m <= last; ++m) {
    expected.push_back(reference.weight({m, last}, alpha));
    if (reference.formula == nullptr || m % 97 != 0) continue;
    const Real direct = reference.formula(Position{m, last}.fraction(), alpha);
    ASSERT_LE(std::fabs(expected.back() - direct), 1e-17L * (1 + std::fabs(alpha)));
  }
  onEveryTarget([&] {
    const std::vector<T> weights = form.weights(len, parameters...);
    for (int m = 0; 2 * m <= last; ++m) {
      const T weight = weights[static_cast<size_t>(m)];
      const Real exact = expected[static_cast<size_t>(m)];
      const Real most = (sizeof(T) == sizeof(float) ? 0.51L : 2.0L) * ulp<T>(exact) +
                        (cancels ? 0x1p-52L * Position{m, last}.squaredSine() : 0);
      ASSERT_LE(std::fabs(weight - exact), most)
          << m << " of " << len << ", alpha " << alpha << ": " << weight;
      ASSERT_EQ(weight, weights[static_cast<size_t>(last - m)]) << m << " of " << len;
    }
  });
}

template <class Check>
void forLengths(int least, const Check& check) {
  for (int len = least; len < 40; ++len) check(len);
  for (const int len : {64, 100, 1000, 1023, 1024, 1025, 1026, 4096, 4099, 65537, 1000000}) {
    check(len);
  }
}

template <class T>
void checkShapes(Form<T> Family<>::*form, Form<T, Vek32f> Family<Vek32f>::*formOf, Real limit) {
  forLengths(4, [&](int len) {
    checkWeights(kBartlett.*form, kBartlettReference, len, 0);
    checkWeights(kHann.*form, kHannReference, len, 0);
    checkWeights(kBlackmanStd.*form, kBlackmanReference, len, Real{-0.16f});
    const double ratio = 0.5 / std::cos(static_cast<double>(kPi) / (len - 1));
    checkWeights(kBlackmanOpt.*form, kBlackmanReference, len, -static_cast<float>(ratio * ratio));
    // Of the other alphas one takes its turn.
    const float alphas[] = {-0.25f, 0.0f, -0.1f, 0.3f, 50.0f, -0.2501f, -0.5f, -3.0f};
    const float alpha = alphas[len % 8];
    checkWeights(kBlackman.*formOf, kBlackmanReference, len, alpha, alpha);
  });
  forLengths(3, [&](int len) { checkWeights(kHamming.*form, kHammingReference, len, 0); });
  forLengths(2, [&](int len) {
    const Real most = 2 * limit / static_cast<Real>(len - 1);
    const Real fractions[] = {0.9999L, 0.25L, -0.11L, 0.07L, 0.01L};
    const float alpha = static_cast<float>(most * fractions[len % 5]);
    checkWeights(kKaiser.*formOf, kKaiserReference, len, alpha, alpha);
  });
}

TEST(Windows, FloatsAreCloseToTheFormulas) {
  checkShapes(&Family<>::floats, &Family<Vek32f>::floats, 38);
}

TEST(Windows, DoublesAreCloseToTheFormulas) {
  checkShapes(&Family<>::doubles, &Family<Vek32f>::doubles, 308);
}

// Rounded products of single precision.
Vek16s product(Vek16s x, Vek32f weight) {
  const volatile Vek32f exact = static_cast<Vek32f>(x) * weight;
  return static_cast<Vek16s>(std::clamp(std::nearbyint(exact), -32768.0f, 32767.0f));
}
template <class T>
T product(T x, T weight) {
  return x * weight;
}

// Random parts, all of them finite, multiplied by the weights.
template <class T, class C, class W, class... P>
void checkType(const Form<T, P...>& form, const Form<C, P...>& complexForm,
               const std::vector<W>& weights, P... parameters) {
  std::vector<T> src(weights.size());
  std::vector<C> complexSrc(weights.size());
  std::mt19937 random(static_cast<unsigned>(weights.size()));
  const auto next = [&random] {
    return static_cast<T>(static_cast<int>(random() % 65536) - 32768);
  };
  for (size_t i = 0; i < src.size(); ++i) {
    src[i] = next();
    complexSrc[i] = {next(), next()};
  }
  const std::vector<T> dst = form(src, parameters...);
  const std::vector<C> complexDst = complexForm(complexSrc, parameters...);
  for (size_t i = 0; i < src.size(); ++i) {
    ASSERT_EQ(dst[i], product(src[i], weights[i])) << i << " of " << src.size();
    ASSERT_EQ(complexDst[i].re, product(complexSrc[i].re, weights[i])) << i << " of " << src.size();
    ASSERT_EQ(complexDst[i].im, product(complexSrc[i].im, weights[i])) << i << " of " << src.size();
  }
}

template <class... P>
void checkTypes(const Family<P...>& family, int least, P... parameters) {
  onEveryTarget([&] {
    for (int len : testLengths()) {
      if (len < least) continue;
      const std::vector<Vek32f> weights = family.floats.weights(len, parameters...);
      checkType(family.integers, family.complexIntegers, weights, parameters...);
      checkType(family.floats, family.complexFloats, weights, parameters...);
      checkType(family.doubles, family.complexDoubles, family.doubles.weights(len, parameters...),
                parameters...);
    }
  });
}

TEST(Windows, AllTypesAreMultipliedByTheWeights) {
  checkTypes(kBartlett, 3);
  checkTypes(kHann, 3);
  checkTypes(kHamming, 3);
  checkTypes(kBlackmanStd, 3);
  checkTypes(kBlackmanOpt, 4);
  for (const float alpha : {-0.2f, -0.4f, 40.0f}) checkTypes(kBlackman, 3, alpha);
  for (const float alpha : {0.0f, 0.002f, -0.015f}) checkTypes(kKaiser, 1, alpha);
}

TEST(Windows, Q15ShapesAreFractions) {
  const std::vector<Vek16s> src = randomElements<Vek16s>(300);
  const std::vector<Vek16sc> complexSrc = randomElements<Vek16sc>(300);
  const Form<Vek16s, int> blackman = {veksWinBlackmanQ15_16s, veksWinBlackmanQ15_16s_I};
  const Form<Vek16sc, int> complexBlackman = {veksWinBlackmanQ15_16sc, veksWinBlackmanQ15_16sc_I};
  const Form<Vek16s, int> kaiser = {veksWinKaiserQ15_16s, veksWinKaiserQ15_16s_I};
  const Form<Vek16sc, int> complexKaiser = {veksWinKaiserQ15_16sc, veksWinKaiserQ15_16sc_I};
  onEveryTarget([&] {
    for (const int q : {-5243, 0, 900, -67000}) {
      const float alpha = static_cast<float>(q) / 32768.0f;
      EXPECT_TRUE(sameBits(kBlackman.integers(src, alpha), blackman(src, q)));
      EXPECT_TRUE(
          sameBits(kBlackman.complexIntegers(complexSrc, alpha), complexBlackman(complexSrc, q)));
      if (std::fabs(alpha) > 2) continue;
      EXPECT_TRUE(sameBits(kKaiser.integers(src, alpha), kaiser(src, q)));
      EXPECT_TRUE(
          sameBits(kKaiser.complexIntegers(complexSrc, alpha), complexKaiser(complexSrc, q)));
    }
  });
}

TEST(Windows, ScaleFactorComesBeforeRounding) {
  constexpr int kAlphaQ15 = -5000;
  for (const int len : {3, 4, 17, 301}) {
    const std::vector<Vek16s> src = randomElements<Vek16s>(static_cast<size_t>(len));
    for (const int s : {0, 1, 2, 15, 16, 17, 18, 40, -1, -3, -15, -40, INT_MIN, INT_MAX}) {
      onEveryTarget([&] {
        std::vector<Vek32f> weights = kBlackman.floats.weights(len, kAlphaQ15 / 32768.0f);
        for (Vek32f& w : weights) w = std::ldexp(w, -std::clamp(s, -90, 90));
        std::vector<Vek16s> dst = src;
        ASSERT_EQ(veksWinBlackmanQ15_16s_ISfs(dst.data(), len, kAlphaQ15, s), vekStsOk);
        for (size_t i = 0; i < dst.size(); ++i) {
          ASSERT_EQ(dst[i], product(src[i], weights[i])) << i << " of " << len << ", " << s;
        }
      });
    }
  }
}

// Not even an infinity or a NaN is left of the ends.
template <class T, class... P>
void checkThree(const Form<T, P...>& form, P... parameters) {
  const T infinity = std::numeric_limits<T>::infinity();
  onEveryTarget([&] {
    const std::vector<T> dst =
        form({infinity, T{0.3f}, -std::numeric_limits<T>::quiet_NaN()}, parameters...);
    EXPECT_TRUE(sameBits({T{0}, T{0.3f}, T{0}}, dst));
  });
}

TEST(Windows, ThreeElementsAreAShortcut) {
  checkThree(kBartlett.floats);
  checkThree(kHann.floats);
  checkThree(kHann.doubles);
  checkThree(kBlackmanStd.doubles);
  checkThree(kBlackman.floats, 7.0f);
  checkThree(kBlackman.doubles, std::numeric_limits<Vek32f>::infinity());
}

TEST(Windows, KaiserHasShortAndFlatForms) {
  onEveryTarget([&] {
    EXPECT_EQ(kKaiser.floats({2.5f}, 1e30f), std::vector<Vek32f>{2.5f});
    EXPECT_EQ(kKaiser.integers({-7}, 1e30f), std::vector<Vek16s>{-7});
    for (const int len : {1, 2, 3, 50}) {
      EXPECT_EQ(kKaiser.doubles.weights(len, 0.0f),
                std::vector<Vek64f>(static_cast<size_t>(len), 1));
    }
    // 40 is beyond the limit of floats, 308 is the limit of the others.
    EXPECT_GT(kKaiser.doubles.weights(2, 80.0f)[0], 0);
    EXPECT_EQ(kKaiser.integers({1, 1, 1}, -308.0f), (std::vector<Vek16s>{0, 1, 0}));
  });
}

template <class T, class P>
void checkLimit(const Form<T, P>& form, int len, P valid, P beyond) {
  std::vector<T> v = randomElements<T>(static_cast<size_t>(len));
  const std::vector<T> before = v;
  EXPECT_EQ(form.inPlace(v.data(), len, beyond), vekErrKaiserHuge);
  EXPECT_EQ(form.separate(before.data(), v.data(), len, beyond), vekErrKaiserHuge);
  EXPECT_TRUE(sameBits(before, v));
  EXPECT_EQ(form.inPlace(v.data(), len, valid), vekStsOk);
}

TEST(Windows, KaiserHasALimit) {
  checkLimit(kKaiser.floats, 3, 38.0f, 38.00001f);
  checkLimit(kKaiser.complexFloats, 2, -76.0f, -80.0f);
  checkLimit(kKaiser.doubles, 3, 308.0f, 308.0001f);
  checkLimit(kKaiser.complexDoubles, 2, -616.0f, -617.0f);
  checkLimit(kKaiser.integers, 3, -308.0f, -308.0001f);
  checkLimit(kKaiser.complexIntegers, 3, 308.0f, 1e38f);
  const Form<Vek16s, int> q15 = {veksWinKaiserQ15_16s, veksWinKaiserQ15_16s_I};
  checkLimit(q15, 3, 308 * 32768, 308 * 32768 + 1);
}

TEST(Windows, OptimalBlackmanChecksTheLengthFirst) {
  Vek32f v[4] = {};
  EXPECT_EQ(veksWinBlackmanOpt_32f(nullptr, v, 3), vekErrSize);
  EXPECT_EQ(veksWinBlackmanOpt_32f_I(nullptr, 4), vekErrNullPtr);
  EXPECT_EQ(veksWinBlackmanStd_32f(nullptr, v, 2), vekErrNullPtr);
}

}  // namespace
}  // namespace veks::test
