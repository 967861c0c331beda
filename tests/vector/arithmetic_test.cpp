// Arithmetic on floating-point vectors against element loops, equal to the bit.
#include "veks/vector/arithmetic.h"

#include <cmath>

#include "support.h"
#include "vector/check_maps.h"

namespace veks::test {
namespace {

const auto kSum = [](auto a, auto b) { return a + b; };
const auto kDifference = [](auto a, auto b) { return a - b; };
const auto kReverseDifference = [](auto a, auto b) { return b - a; };
const auto kProduct = [](auto a, auto b) { return a * b; };

TEST(Arithmetic, TwoVectors) {
  checkTwo(veksAdd_32f, veksAdd_32f_I, kSum);
  checkTwo(veksAdd_64f, veksAdd_64f_I, kSum);
  checkTwo(veksSub_32f, veksSub_32f_I, kReverseDifference);
  checkTwo(veksSub_64f, veksSub_64f_I, kReverseDifference);
  checkTwo(veksMul_32f, veksMul_32f_I, kProduct);
  checkTwo(veksMul_64f, veksMul_64f_I, kProduct);
}

TEST(Arithmetic, VectorAndConstant) {
  checkConstant(veksAddC_32f, veksAddC_32f_I, kSum);
  checkConstant(veksAddC_64f, veksAddC_64f_I, kSum);
  checkConstant(veksSubC_32f, veksSubC_32f_I, kDifference);
  checkConstant(veksSubC_64f, veksSubC_64f_I, kDifference);
  checkConstant(veksSubCRev_32f, veksSubCRev_32f_I, kReverseDifference);
  checkConstant(veksSubCRev_64f, veksSubCRev_64f_I, kReverseDifference);
  checkConstant(veksMulC_32f, veksMulC_32f_I, kProduct);
  checkConstant(veksMulC_64f, veksMulC_64f_I, kProduct);
}

TEST(Arithmetic, OneVector) {
  const auto absolute = [](auto& elements) {
    for (auto& x : elements) x = std::fabs(x);
  };
  checkMap(veksAbs_32f, veksAbs_32f_I, absolute);
  checkMap(veksAbs_64f, veksAbs_64f_I, absolute);
  const auto square = [](auto& elements) {
    for (auto& x : elements) x = x * x;
  };
  checkMap(veksSqr_32f, veksSqr_32f_I, square);
  checkMap(veksSqr_64f, veksSqr_64f_I, square);
}

// Moderate values, whose products and sums have bits to lose: a fused operation would differ.
template <class T>
std::vector<T> moderate(int len, uint64_t seed) {
  std::mt19937_64 random(seed);
  std::uniform_real_distribution<T> distribution(T{-2}, T{2});
  std::vector<T> elements(static_cast<size_t>(len));
  for (T& x : elements) x = distribution(random);
  return elements;
}

template <class T>
void checkAddProduct(VekStatus (*addProduct)(const T*, const T*, T*, int)) {
  onEveryTarget([&] {
    for (int len : testLengths()) {
      const std::vector<T> src1 = moderate<T>(len, 1);
      const std::vector<T> src2 = moderate<T>(len, 2);
      std::vector<T> actual = moderate<T>(len, 3);
      std::vector<T> expected = actual;
      for (size_t i = 0; i < expected.size(); ++i) {
        const volatile T product = src1[i] * src2[i];
        expected[i] += product;
      }
      ASSERT_EQ(addProduct(src1.data(), src2.data(), actual.data(), len), vekStsOk);
      ASSERT_TRUE(sameBits(expected, actual));
    }
  });
}

TEST(Arithmetic, AddProductRoundsTwice) {
  checkAddProduct(veksAddProduct_32f);
  checkAddProduct(veksAddProduct_64f);
}

// A sum or difference of complex vectors is that of all their parts.
template <class C, class Reference>
void checkComplexTwo(VekStatus (*out)(const C*, const C*, C*, int),
                     VekStatus (*in)(const C*, C*, int), const Reference& reference) {
  using T = decltype(C::re);
  onEveryTarget([&] {
    for (int len : testLengths()) {
      const size_t n = 2 * static_cast<size_t>(len);
      const std::vector<T> src1 = randomElements<T>(n, 1);
      const std::vector<T> src2 = randomElements<T>(n, 2);
      std::vector<T> expected(n);
      for (size_t i = 0; i < n; ++i) expected[i] = reference(src1[i], src2[i]);
      const auto complex = [](auto& parts) { return reinterpret_cast<C*>(parts.data()); };
      const auto constComplex = [](auto& parts) {
        return reinterpret_cast<const C*>(parts.data());
      };
      std::vector<T> dst(n);
      ASSERT_EQ(out(constComplex(src1), constComplex(src2), complex(dst), len), vekStsOk);
      ASSERT_TRUE(sameBits(expected, dst));
      std::vector<T> srcDst = src2;
      ASSERT_EQ(in(constComplex(src1), complex(srcDst), len), vekStsOk);
      ASSERT_TRUE(sameBits(expected, srcDst)) << "in place";
    }
  });
}

TEST(ComplexArithmetic, TwoVectors) {
  checkComplexTwo(veksAdd_32fc, veksAdd_32fc_I, kSum);
  checkComplexTwo(veksAdd_64fc, veksAdd_64fc_I, kSum);
  checkComplexTwo(veksSub_32fc, veksSub_32fc_I, kReverseDifference);
  checkComplexTwo(veksSub_64fc, veksSub_64fc_I, kReverseDifference);
}

template <class C, class Reference>
void checkComplexConstant(VekStatus (*out)(const C*, C, C*, int), VekStatus (*in)(C, C*, int),
                          const Reference& reference) {
  using T = decltype(C::re);
  const C val = {T{1.25}, T{-3e9}};
  onEveryTarget([&] {
    for (int len : testLengths()) {
      std::vector<C> src(static_cast<size_t>(len));
      const std::vector<T> parts = randomElements<T>(2 * src.size());
      std::memcpy(src.data(), parts.data(), parts.size() * sizeof(T));
      std::vector<C> expected(src.size());
      for (size_t i = 0; i < src.size(); ++i) {
        expected[i] = {reference(src[i].re, val.re), reference(src[i].im, val.im)};
      }
      std::vector<C> dst(src.size());
      ASSERT_EQ(out(src.data(), val, dst.data(), len), vekStsOk);
      ASSERT_TRUE(sameBits(expected, dst));
      ASSERT_EQ(in(val, src.data(), len), vekStsOk);
      ASSERT_TRUE(sameBits(expected, src)) << "in place";
    }
  });
}

TEST(ComplexArithmetic, VectorAndConstant) {
  checkComplexConstant(veksAddC_32fc, veksAddC_32fc_I, kSum);
  checkComplexConstant(veksAddC_64fc, veksAddC_64fc_I, kSum);
  checkComplexConstant(veksSubC_32fc, veksSubC_32fc_I, kDifference);
  checkComplexConstant(veksSubC_64fc, veksSubC_64fc_I, kDifference);
  checkComplexConstant(veksSubCRev_32fc, veksSubCRev_32fc_I, kReverseDifference);
  checkComplexConstant(veksSubCRev_64fc, veksSubCRev_64fc_I, kReverseDifference);
}

TEST(Arithmetic, OrderOfOperands) {
  const Vek32f one = 1;
  const Vek32f five = 5;
  Vek32f result = 0;
  EXPECT_EQ(veksSub_32f(&one, &five, &result, 1), vekStsOk);
  EXPECT_EQ(result, 4);
  EXPECT_EQ(veksSubC_32f(&five, 1, &result, 1), vekStsOk);
  EXPECT_EQ(result, 4);
  EXPECT_EQ(veksSubCRev_32f(&five, 1, &result, 1), vekStsOk);
  EXPECT_EQ(result, -4);
}

}  // namespace
}  // namespace veks::test
