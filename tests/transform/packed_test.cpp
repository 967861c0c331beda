// Packed spectra against the definitions of their formats, on every SIMD target.
#include "veks/transform/packed.h"

#include <algorithm>

#include "exact.h"
#include "support.h"
#include "transform/packed_places.h"

namespace veks::test {
namespace {

// What a function of points makes of two packed spectra.
template <class C, class T, class Product>
std::vector<T> combined(Format format, const std::vector<T>& a, const std::vector<T>& b,
                        const Product& product) {
  const size_t n = a.size();
  std::vector<T> result(n);
  for (size_t k = 0; k <= n / 2; ++k) {
    const C point = product(packedPoint<C>(a, format, n, k), packedPoint<C>(b, format, n, k));
    const Places places = placesOf(format, n, k);
    result[places.re] = point.re;
    if (places.im != kZero) result[places.im] = point.im;
  }
  return result;
}

// With every product and the sum rounded.
template <class C>
C product(C a, C b) {
  using T = decltype(C::re);
  const volatile T reRe = a.re * b.re;
  const volatile T imIm = a.im * b.im;
  const volatile T reIm = a.re * b.im;
  const volatile T imRe = a.im * b.re;
  return {reRe - imIm, reIm + imRe};
}

template <class T>
std::vector<T> moderate(int n, uint64_t seed) {
  std::mt19937_64 random(seed);
  std::uniform_real_distribution<T> distribution(T{-2}, T{2});
  std::vector<T> values(static_cast<size_t>(n));
  for (T& value : values) value = distribution(random);
  return values;
}

// out(src1, src2, dst) and in(src, srcDst) for one length; sources may be one, and the destination
// too.
template <class T, class Out, class In, class Reference>
void checkProduct(const std::vector<T>& a, const std::vector<T>& b, const Out& out, const In& in,
                  const Reference& reference) {
  const std::vector<T> expected = reference(a, b);
  std::vector<T> dst(a.size());
  ASSERT_EQ(out(a.data(), b.data(), dst.data()), vekStsOk);
  ASSERT_TRUE(sameBits(expected, dst)) << a.size();
  dst = b;
  ASSERT_EQ(in(a.data(), dst.data()), vekStsOk);
  ASSERT_TRUE(sameBits(expected, dst)) << a.size() << " in place";
  dst = a;
  ASSERT_EQ(in(dst.data(), dst.data()), vekStsOk);
  ASSERT_TRUE(sameBits(reference(a, a), dst)) << a.size() << " the square";
}

template <class C, class T = decltype(C::re)>
void checkProducts(Format format, VekStatus (*out)(const T*, const T*, T*, int),
                   VekStatus (*in)(const T*, T*, int)) {
  onEveryTarget([&] {
    for (int n : testLengths()) {
      checkProduct(
          moderate<T>(n, 1), moderate<T>(n, 2),
          [&](const T* a, const T* b, T* dst) { return out(a, b, dst, n); },
          [&](const T* src, T* srcDst) { return in(src, srcDst, n); },
          [&](const auto& a, const auto& b) { return combined<C>(format, a, b, product<C>); });
    }
  });
}

TEST(PackedProducts, OfFloats) {
  checkProducts<Vek32fc>(Format::kPack, veksMulPack_32f, veksMulPack_32f_I);
  checkProducts<Vek64fc>(Format::kPack, veksMulPack_64f, veksMulPack_64f_I);
  checkProducts<Vek32fc>(Format::kPerm, veksMulPerm_32f, veksMulPerm_32f_I);
  checkProducts<Vek64fc>(Format::kPerm, veksMulPerm_64f, veksMulPerm_64f_I);
}

template <class C, class T = decltype(C::re)>
void checkConjugated(VekStatus (*in)(const T*, T*, int)) {
  onEveryTarget([&] {
    for (int n : testLengths()) {
      const std::vector<T> src = moderate<T>(n, 1);
      std::vector<T> srcDst = moderate<T>(n, 2);
      const std::vector<T> expected = combined<C>(Format::kPack, srcDst, src, [](C a, C b) {
        return product(a, C{b.re, -b.im});
      });
      ASSERT_EQ(in(src.data(), srcDst.data(), n), vekStsOk);
      ASSERT_TRUE(sameBits(expected, srcDst));
    }
  });
}

TEST(PackedProducts, WithConjugates) {
  checkConjugated<Vek32fc>(veksMulPackConj_32f_I);
  checkConjugated<Vek64fc>(veksMulPackConj_64f_I);
}

// The least value often enough for the product that does not fit.
std::vector<Vek16s> extremes(int n, uint64_t seed) {
  std::mt19937_64 random(seed);
  std::vector<Vek16s> values(static_cast<size_t>(n));
  for (Vek16s& value : values) {
    value = random() % 2 == 0 ? Vek16s{-32768} : static_cast<Vek16s>(random());
  }
  return values;
}

void checkScaled(Format format, VekStatus (*out)(const Vek16s*, const Vek16s*, Vek16s*, int, int),
                 VekStatus (*in)(const Vek16s*, Vek16s*, int, int)) {
  onEveryTarget([&] {
    for (int s : scaleFactors()) {
      const auto scaledProduct = [s](Vek16sc a, Vek16sc b) -> Vek16sc {
        const Exact re = exact(a.re) * exact(b.re) - exact(a.im) * exact(b.im);
        const Exact im = exact(a.re) * exact(b.im) + exact(a.im) * exact(b.re);
        return {scaled<Vek16s>(re, s), scaled<Vek16s>(im, s)};
      };
      for (int n : {1, 2, 3, 4, 5, 16, 17, 18, 64, 65, 66, 67, 130, 131, 1000}) {
        checkProduct(
            extremes(n, 1), extremes(n, 2),
            [&](const Vek16s* a, const Vek16s* b, Vek16s* dst) { return out(a, b, dst, n, s); },
            [&](const Vek16s* src, Vek16s* srcDst) { return in(src, srcDst, n, s); },
            [&](const auto& a, const auto& b) {
              return combined<Vek16sc>(format, a, b, scaledProduct);
            });
      }
    }
  });
}

TEST(PackedProducts, OfIntegersAreExact) {
  checkScaled(Format::kPack, veksMulPack_16s_Sfs, veksMulPack_16s_ISfs);
  checkScaled(Format::kPerm, veksMulPerm_16s_Sfs, veksMulPerm_16s_ISfs);
}

template <class T>
void negate(T& x) {
  if constexpr (std::is_floating_point_v<T>) {
    x = -x;
  } else {
    x = static_cast<T>(std::min(-x, 32767));
  }
}

template <class C, class T = decltype(C::re)>
std::vector<C> full(Format format, const std::vector<T>& packed, size_t n) {
  std::vector<C> spectrum(n);
  for (size_t k = 0; k < n; ++k) {
    spectrum[k] = packedPoint<C>(packed, format, n, std::min(k, n - k));
    if (2 * k > n) negate(spectrum[k].im);
  }
  return spectrum;
}

template <class C, class T = decltype(C::re)>
void checkExpansion(Format format, VekStatus (*out)(const T*, C*, int), VekStatus (*in)(C*, int)) {
  onEveryTarget([&] {
    for (int n : testLengths()) {
      const size_t size = static_cast<size_t>(n);
      std::vector<T> packed = randomBits<T>(packedSize(format, size));
      for (size_t i = 0; i < packed.size(); i += 3) {
        packed[i] = std::numeric_limits<T>::lowest();
      }
      const std::vector<C> expected = full<C>(format, packed, size);
      std::vector<C> dst(size);
      ASSERT_EQ(out(packed.data(), dst.data(), n), vekStsOk);
      ASSERT_TRUE(sameBits(expected, dst)) << n;
      dst.assign(size, C{7, 9});
      std::memcpy(dst.data(), packed.data(), packed.size() * sizeof(T));
      ASSERT_EQ(in(dst.data(), n), vekStsOk);
      ASSERT_TRUE(sameBits(expected, dst)) << n << " in place";
    }
  });
}

TEST(PackedExpansion, GivesTheFullSpectrum) {
  checkExpansion(Format::kPack, veksConjPack_16sc, veksConjPack_16sc_I);
  checkExpansion(Format::kPack, veksConjPack_32fc, veksConjPack_32fc_I);
  checkExpansion(Format::kPack, veksConjPack_64fc, veksConjPack_64fc_I);
  checkExpansion(Format::kPerm, veksConjPerm_16sc, veksConjPerm_16sc_I);
  checkExpansion(Format::kPerm, veksConjPerm_32fc, veksConjPerm_32fc_I);
  checkExpansion(Format::kPerm, veksConjPerm_64fc, veksConjPerm_64fc_I);
  checkExpansion(Format::kCCS, veksConjCCS_16sc, veksConjCCS_16sc_I);
  checkExpansion(Format::kCCS, veksConjCCS_32fc, veksConjCCS_32fc_I);
  checkExpansion(Format::kCCS, veksConjCCS_64fc, veksConjCCS_64fc_I);
}

TEST(PackedExpansion, OfAFewValues) {
  const Vek16s packed[] = {10, 20, -32768, 40, 50, 60};
  const auto expand = [&](VekStatus (*function)(const Vek16s*, Vek16sc*, int), int n) {
    std::vector<Vek16sc> dst(static_cast<size_t>(n));
    EXPECT_EQ(function(packed, dst.data(), n), vekStsOk);
    return dst;
  };
  using Spectrum = std::vector<Vek16sc>;
  EXPECT_TRUE(sameBits(Spectrum{{10, 0}}, expand(veksConjPerm_16sc, 1)));
  EXPECT_TRUE(sameBits(Spectrum{{10, 0}, {20, 0}}, expand(veksConjPerm_16sc, 2)));
  EXPECT_TRUE(sameBits(Spectrum{{10, 0}, {20, -32768}, {20, 32767}}, expand(veksConjPack_16sc, 3)));
  EXPECT_TRUE(sameBits(Spectrum{{10, 0}, {20, -32768}, {40, 0}, {20, 32767}},
                       expand(veksConjPack_16sc, 4)));
  EXPECT_TRUE(sameBits(Spectrum{{10, 0}, {-32768, 40}, {20, 0}, {-32768, -40}},
                       expand(veksConjPerm_16sc, 4)));
  EXPECT_TRUE(sameBits(Spectrum{{10, 20}, {-32768, 40}, {50, 60}, {-32768, -40}},
                       expand(veksConjCCS_16sc, 4)));
}

}  // namespace
}  // namespace veks::test
