// Sums and products of integers against exact arithmetic.
#include <algorithm>

#include "vector/check_maps.h"
#include "vector/check_scaled.h"
#include "veks/vector/arithmetic.h"

namespace veks::test {
namespace {

// References for results of the type T.
template <class T>
const auto kSum = [](auto a, auto b, int s) { return scaled<T>(exact(a) + exact(b), s); };
template <class T>
const auto kDifference = [](auto a, auto b, int s) { return scaled<T>(exact(a) - exact(b), s); };
template <class T>
const auto kReverse = [](auto a, auto b, int s) { return scaled<T>(exact(b) - exact(a), s); };
template <class T>
const auto kProduct = [](auto a, auto b, int s) { return scaled<T>(exact(a) * exact(b), s); };
template <class T>
const auto kSquare = [](auto a, int s) { return scaled<T>(exact(a) * exact(a), s); };

// A function without a scale factor as one with it, for the factor 0 only.
template <class T, class Reference>
void checkSaturated(VekStatus (*out)(const T*, const T*, T*, int),
                    VekStatus (*in)(const T*, T*, int), const Reference& reference) {
  checkTwo(out, in, [&](T a, T b) { return reference(a, b, 0); });
}

template <class T>
void checkSaturatedConstant(VekStatus (*in)(T, T*, int), VekStatus (*scaledForm)(T, T*, int, int)) {
  std::vector<T> expected = operands<T>(false);
  for (T val : operands<T>(true)) {
    std::vector<T> actual = expected;
    ASSERT_EQ(scaledForm(val, expected.data(), 300, 0), vekStsOk);
    ASSERT_EQ(in(val, actual.data(), 300), vekStsOk);
    ASSERT_TRUE(sameBits(expected, actual));
  }
}

TEST(ScaledSums, TwoVectors) {
  checkScaledTwo(veksAdd_8u_Sfs, kSum<Vek8u>);
  checkScaledInPlace(veksAdd_8u_ISfs, kSum<Vek8u>);
  checkScaledTwo(veksAdd_16u_Sfs, kSum<Vek16u>);
  checkScaledInPlace(veksAdd_16u_ISfs, kSum<Vek16u>);
  checkScaledTwo(veksAdd_16s_Sfs, kSum<Vek16s>);
  checkScaledInPlace(veksAdd_16s_ISfs, kSum<Vek16s>);
  checkScaledTwo(veksAdd_32s_Sfs, kSum<Vek32s>);
  checkScaledInPlace(veksAdd_32s_ISfs, kSum<Vek32s>);
  checkScaledTwo(veksAdd_64s_Sfs, kSum<Vek64s>);
}

TEST(ScaledDifferences, TwoVectors) {
  checkScaledTwo(veksSub_8u_Sfs, kReverse<Vek8u>);
  checkScaledInPlace(veksSub_8u_ISfs, kReverse<Vek8u>);
  checkScaledTwo(veksSub_16u_Sfs, kReverse<Vek16u>);
  checkScaledInPlace(veksSub_16u_ISfs, kReverse<Vek16u>);
  checkScaledTwo(veksSub_16s_Sfs, kReverse<Vek16s>);
  checkScaledInPlace(veksSub_16s_ISfs, kReverse<Vek16s>);
  checkScaledTwo(veksSub_32s_Sfs, kReverse<Vek32s>);
  checkScaledInPlace(veksSub_32s_ISfs, kReverse<Vek32s>);
}

TEST(ScaledSums, VectorAndConstant) {
  checkScaledConstant(veksAddC_8u_Sfs, veksAddC_8u_ISfs, kSum<Vek8u>);
  checkScaledConstant(veksAddC_16u_Sfs, veksAddC_16u_ISfs, kSum<Vek16u>);
  checkScaledConstant(veksAddC_16s_Sfs, veksAddC_16s_ISfs, kSum<Vek16s>);
  checkScaledConstant(veksAddC_32s_Sfs, veksAddC_32s_ISfs, kSum<Vek32s>);
}

TEST(ScaledDifferences, VectorAndConstant) {
  checkScaledConstant(veksSubC_8u_Sfs, veksSubC_8u_ISfs, kDifference<Vek8u>);
  checkScaledConstant(veksSubC_16u_Sfs, veksSubC_16u_ISfs, kDifference<Vek16u>);
  checkScaledConstant(veksSubC_16s_Sfs, veksSubC_16s_ISfs, kDifference<Vek16s>);
  checkScaledConstant(veksSubC_32s_Sfs, veksSubC_32s_ISfs, kDifference<Vek32s>);
  checkScaledConstant(veksSubCRev_8u_Sfs, veksSubCRev_8u_ISfs, kReverse<Vek8u>);
  checkScaledConstant(veksSubCRev_16u_Sfs, veksSubCRev_16u_ISfs, kReverse<Vek16u>);
  checkScaledConstant(veksSubCRev_16s_Sfs, veksSubCRev_16s_ISfs, kReverse<Vek16s>);
  checkScaledConstant(veksSubCRev_32s_Sfs, veksSubCRev_32s_ISfs, kReverse<Vek32s>);
}

TEST(ScaledProducts, TwoVectors) {
  checkScaledTwo(veksMul_8u_Sfs, kProduct<Vek8u>);
  checkScaledInPlace(veksMul_8u_ISfs, kProduct<Vek8u>);
  checkScaledTwo(veksMul_16u_Sfs, kProduct<Vek16u>);
  checkScaledInPlace(veksMul_16u_ISfs, kProduct<Vek16u>);
  checkScaledTwo(veksMul_16s_Sfs, kProduct<Vek16s>);
  checkScaledInPlace(veksMul_16s_ISfs, kProduct<Vek16s>);
  checkScaledTwo(veksMul_32s_Sfs, kProduct<Vek32s>);
  checkScaledInPlace(veksMul_32s_ISfs, kProduct<Vek32s>);
  checkScaledTwo(veksMul_16s32s_Sfs, kProduct<Vek32s>);
  checkScaledTwo(veksMul_16u16s_Sfs, kProduct<Vek16s>);
}

TEST(ScaledProducts, VectorAndConstant) {
  checkScaledConstant(veksMulC_8u_Sfs, veksMulC_8u_ISfs, kProduct<Vek8u>);
  checkScaledConstant(veksMulC_16u_Sfs, veksMulC_16u_ISfs, kProduct<Vek16u>);
  checkScaledConstant(veksMulC_16s_Sfs, veksMulC_16s_ISfs, kProduct<Vek16s>);
  checkScaledConstant(veksMulC_32s_Sfs, veksMulC_32s_ISfs, kProduct<Vek32s>);
}

TEST(ScaledProducts, Squares) {
  checkScaledOne(veksSqr_8u_Sfs, veksSqr_8u_ISfs, kSquare<Vek8u>);
  checkScaledOne(veksSqr_16u_Sfs, veksSqr_16u_ISfs, kSquare<Vek16u>);
  checkScaledOne(veksSqr_16s_Sfs, veksSqr_16s_ISfs, kSquare<Vek16s>);
}

template <class S, class T>
void checkAccumulate(VekStatus (*addProduct)(const S*, const S*, T*, int, int)) {
  const std::vector<S> src1 = operands<S>(false);
  const std::vector<S> src2 = operands<S>(true);
  std::vector<T> sum = operands<T>(true);
  std::rotate(sum.begin(), sum.begin() + 1000, sum.end());
  sum.resize(src1.size());
  sum[0x8000] = std::numeric_limits<T>::min();
  checkEveryScale(
      sum,
      [&](size_t i, int len, T* dst, int s) { return addProduct(&src1[i], &src2[i], dst, len, s); },
      [&](size_t i, int s) {
        return scaled<T>(exact(sum[i]) + exact(src1[i]) * exact(src2[i]), s);
      });
}

TEST(ScaledProducts, Accumulated) {
  checkAccumulate(veksAddProduct_16s_Sfs);
  checkAccumulate(veksAddProduct_16s32s_Sfs);
}

TEST(ScaledProducts, AccumulatedIn64Bits) {
  const std::vector<Vek32s> src1 = operands<Vek32s>(false);
  const std::vector<Vek32s> src2 = operands<Vek32s>(true);
  const std::vector<Vek32s> sum(src1.rbegin(), src1.rend());
  checkEveryScale(
      sum,
      [&](size_t i, int len, Vek32s* dst, int s) {
        return veksAddProduct_32s_Sfs(&src1[i], &src2[i], dst, len, s);
      },
      [&](size_t i, int s) {
        return scaled<Vek32s>(exact(sum[i]) + exact(src1[i]) * exact(src2[i]), s);
      });
}

TEST(SaturatedArithmetic, IsScaledByNothing) {
  checkSaturated(veksAdd_16s, veksAdd_16s_I, kSum<Vek16s>);
  checkSaturated(veksSub_16s, veksSub_16s_I, kReverse<Vek16s>);
  checkSaturated(veksMul_16s, veksMul_16s_I, kProduct<Vek16s>);
  checkSaturatedConstant(veksAddC_16s_I, veksAddC_16s_ISfs);
  checkSaturatedConstant(veksSubC_16s_I, veksSubC_16s_ISfs);
  checkSaturatedConstant(veksMulC_16s_I, veksMulC_16s_ISfs);
}

// dst from src1 and src2 of other types, without a scale factor.
template <class S1, class S2, class T, class Reference>
void checkMixed(VekStatus (*out)(const S1*, const S2*, T*, int), const Reference& reference) {
  const auto ignoreScale = [&](const S1* a, const S2* b, T* dst, int len, int /*s*/) {
    return out(a, b, dst, len);
  };
  const std::vector<S1> src1 = operands<S1>(false);
  const std::vector<S2> src2 = operands<S2>(true);
  checkEveryScale(
      std::vector<T>(std::min(src1.size(), src2.size())),
      [&](size_t i, int len, T* dst, int s) {
        return ignoreScale(&src1[i], &src2[i], dst, len, s);
      },
      [&](size_t i, int /*s*/) { return reference(src1[i], src2[i]); });
}

TEST(MixedArithmetic, WidensItsOperands) {
  checkMixed(veksAdd_16u, [](Vek16u a, Vek16u b) { return kSum<Vek16u>(a, b, 0); });
  checkMixed(veksAdd_32u, [](Vek32u a, Vek32u b) { return kSum<Vek32u>(a, b, 0); });
  checkMixed(veksAdd_8u16u, [](int a, int b) { return static_cast<Vek16u>(a + b); });
  checkMixed(veksMul_8u16u, [](int a, int b) { return static_cast<Vek16u>(a * b); });
  checkMixed(veksAdd_16s32f, [](int a, int b) { return static_cast<Vek32f>(a + b); });
  checkMixed(veksSub_16s32f, [](int a, int b) { return static_cast<Vek32f>(b - a); });
  // A product with zero keeps its sign.
  checkMixed(veksMul_16s32f,
             [](int a, int b) { return static_cast<Vek32f>(a) * static_cast<Vek32f>(b); });
}

TEST(MixedArithmetic, AddsInPlace) {
  const std::vector<Vek16s> src = operands<Vek16s>(false);
  std::vector<Vek32s> srcDst = operands<Vek32s>(true);
  srcDst.resize(src.size());
  checkEveryScale(
      srcDst,
      [&](size_t i, int len, Vek32s* dst, int) { return veksAdd_16s32s_I(&src[i], dst, len); },
      [&](size_t i, int) { return scaled<Vek32s>(exact(src[i]) + exact(srcDst[i]), 0); });
}

template <class T>
void checkAbsolute(VekStatus (*out)(const T*, T*, int), VekStatus (*in)(T*, int)) {
  std::vector<T> src = operands<T>(false);
  std::vector<T> expected = src;
  for (T& x : expected) x = x < 0 ? scaled<T>(-exact(x), 0) : x;
  onEveryTarget([&] {
    std::vector<T> dst(src.size());
    ASSERT_EQ(out(src.data(), dst.data(), static_cast<int>(src.size())), vekStsOk);
    ASSERT_TRUE(sameBits(expected, dst));
    std::vector<T> srcDst = src;
    ASSERT_EQ(in(srcDst.data(), static_cast<int>(src.size())), vekStsOk);
    ASSERT_TRUE(sameBits(expected, srcDst)) << "in place";
  });
}

TEST(SaturatedArithmetic, AbsoluteValues) {
  checkAbsolute(veksAbs_16s, veksAbs_16s_I);
  checkAbsolute(veksAbs_32s, veksAbs_32s_I);
}

}  // namespace
}  // namespace veks::test
