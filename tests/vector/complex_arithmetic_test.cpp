// Arithmetic on complex values against exact integers and element loops.
#include <algorithm>

#include "vector/check_scaled.h"
#include "veks/vector/arithmetic.h"

namespace veks::test {
namespace {

struct ExactComplex {
  Exact re;
  Exact im;
};

template <class C>
ExactComplex exactComplex(C c) {
  return {exact(c.re), exact(c.im)};
}

const auto kSum = [](ExactComplex a, ExactComplex b) -> ExactComplex {
  return {a.re + b.re, a.im + b.im};
};
const auto kDifference = [](ExactComplex a, ExactComplex b) -> ExactComplex {
  return {a.re - b.re, a.im - b.im};
};
const auto kReverse = [](ExactComplex a, ExactComplex b) { return kDifference(b, a); };
const auto kProduct = [](ExactComplex a, ExactComplex b) -> ExactComplex {
  return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
};

template <class C>
C scaledComplex(ExactComplex r, int s) {
  using T = decltype(C::re);
  return {scaled<T>(r.re, s), scaled<T>(r.im, s)};
}

template <class C, class Reference>
void checkTwo(VekStatus (*out)(const C*, const C*, C*, int, int),
              VekStatus (*in)(const C*, C*, int, int), const Reference& reference) {
  const std::vector<C> src1 = complexOperands<C>(false);
  const std::vector<C> src2 = complexOperands<C>(true);
  const auto wanted = [&](size_t i, int s) {
    return scaledComplex<C>(reference(exactComplex(src1[i]), exactComplex(src2[i])), s);
  };
  checkEveryScale(
      std::vector<C>(src1.size()),
      [&](size_t i, int len, C* dst, int s) { return out(&src1[i], &src2[i], dst, len, s); },
      wanted);
  checkEveryScale(
      src2, [&](size_t i, int len, C* dst, int s) { return in(&src1[i], dst, len, s); }, wanted);
}

template <class C, class Reference>
void checkConstant(VekStatus (*out)(const C*, C, C*, int, int), VekStatus (*in)(C, C*, int, int),
                   const Reference& reference) {
  using T = decltype(C::re);
  const std::vector<C> src = complexOperands<C>(false);
  const auto val = [](int s) { return C{constantFor<T>(s), constantFor<T>(s / 5)}; };
  const auto wanted = [&](size_t i, int s) {
    return scaledComplex<C>(reference(exactComplex(src[i]), exactComplex(val(s))), s);
  };
  checkEveryScale(
      std::vector<C>(src.size()),
      [&](size_t i, int len, C* dst, int s) { return out(&src[i], val(s), dst, len, s); }, wanted);
  checkEveryScale(
      src, [&](size_t, int len, C* dst, int s) { return in(val(s), dst, len, s); }, wanted);
}

TEST(ScaledComplex, TwoVectors) {
  checkTwo(veksAdd_16sc_Sfs, veksAdd_16sc_ISfs, kSum);
  checkTwo(veksAdd_32sc_Sfs, veksAdd_32sc_ISfs, kSum);
  checkTwo(veksSub_16sc_Sfs, veksSub_16sc_ISfs, kReverse);
  checkTwo(veksSub_32sc_Sfs, veksSub_32sc_ISfs, kReverse);
  checkTwo(veksMul_16sc_Sfs, veksMul_16sc_ISfs, kProduct);
  checkTwo(veksMul_32sc_Sfs, veksMul_32sc_ISfs, kProduct);
}

TEST(ScaledComplex, VectorAndConstant) {
  checkConstant(veksAddC_16sc_Sfs, veksAddC_16sc_ISfs, kSum);
  checkConstant(veksAddC_32sc_Sfs, veksAddC_32sc_ISfs, kSum);
  checkConstant(veksSubC_16sc_Sfs, veksSubC_16sc_ISfs, kDifference);
  checkConstant(veksSubC_32sc_Sfs, veksSubC_32sc_ISfs, kDifference);
  checkConstant(veksSubCRev_16sc_Sfs, veksSubCRev_16sc_ISfs, kReverse);
  checkConstant(veksSubCRev_32sc_Sfs, veksSubCRev_32sc_ISfs, kReverse);
  checkConstant(veksMulC_16sc_Sfs, veksMulC_16sc_ISfs, kProduct);
  checkConstant(veksMulC_32sc_Sfs, veksMulC_32sc_ISfs, kProduct);
}

TEST(ScaledComplex, Squares) {
  const std::vector<Vek16sc> src = complexOperands<Vek16sc>(false);
  const auto wanted = [&](size_t i, int s) {
    return scaledComplex<Vek16sc>(kProduct(exactComplex(src[i]), exactComplex(src[i])), s);
  };
  checkEveryScale(
      std::vector<Vek16sc>(src.size()),
      [&](size_t i, int len, Vek16sc* dst, int s) {
        return veksSqr_16sc_Sfs(&src[i], dst, len, s);
      },
      wanted);
  checkEveryScale(
      src, [](size_t, int len, Vek16sc* dst, int s) { return veksSqr_16sc_ISfs(dst, len, s); },
      wanted);
}

TEST(ScaledComplex, RealTimesComplex) {
  const std::vector<Vek32s> src1 = operands<Vek32s>(false);
  std::vector<Vek32sc> src2 = complexOperands<Vek32sc>(true);
  const auto wanted = [&](size_t i, int s) {
    const Exact real = exact(src1[i]);
    return scaledComplex<Vek32sc>({real * exact(src2[i].re), real * exact(src2[i].im)}, s);
  };
  checkEveryScale(
      std::vector<Vek32sc>(src2.size()),
      [&](size_t i, int len, Vek32sc* dst, int s) {
        return veksMul_32s32sc_Sfs(&src1[i], &src2[i], dst, len, s);
      },
      wanted);
  checkEveryScale(
      src2,
      [&](size_t i, int len, Vek32sc* dst, int s) {
        return veksMul_32s32sc_ISfs(&src1[i], dst, len, s);
      },
      wanted);
}

// Floating-point products: each product and the sum rounded.
template <class C>
C product(C a, C b) {
  using T = decltype(C::re);
  const volatile T reRe = a.re * b.re;
  const volatile T imIm = a.im * b.im;
  const volatile T reIm = a.re * b.im;
  const volatile T imRe = a.im * b.re;
  return {reRe - imIm, reIm + imRe};
}

template <class C>
std::vector<C> moderate(uint64_t seed) {
  using T = decltype(C::re);
  std::mt19937_64 random(seed);
  std::uniform_real_distribution<T> distribution(T{-2}, T{2});
  std::vector<C> all(4097);
  for (C& c : all) c = {distribution(random), distribution(random)};
  return all;
}

template <class C, class Call, class Wanted>
void checkElements(const std::vector<C>& before, const Call& call, const Wanted& wanted) {
  std::vector<C> expected(before.size());
  for (size_t i = 0; i < before.size(); ++i) expected[i] = wanted(i);
  onEveryTarget([&] {
    for (int len : testLengths()) {
      std::vector<C> dst(before.begin(), before.begin() + len);
      ASSERT_EQ(call(dst.data(), len), vekStsOk);
      ASSERT_TRUE(sameBits({expected.begin(), expected.begin() + len}, dst));
    }
  });
}

template <class C>
struct ComplexProducts {
  VekStatus (*two)(const C*, const C*, C*, int);
  VekStatus (*twoInPlace)(const C*, C*, int);
  VekStatus (*constant)(const C*, C, C*, int);
  VekStatus (*constantInPlace)(C, C*, int);
  VekStatus (*square)(const C*, C*, int);
  VekStatus (*squareInPlace)(C*, int);
  VekStatus (*accumulate)(const C*, const C*, C*, int);
};

template <class C>
void checkProducts(const ComplexProducts<C>& f) {
  const std::vector<C> a = moderate<C>(1);
  const std::vector<C> b = moderate<C>(2);
  const C val = b[7];
  const auto products = [&](size_t i) { return product(a[i], b[i]); };
  checkElements(
      a, [&](C* dst, int len) { return f.two(a.data(), b.data(), dst, len); }, products);
  checkElements(
      b, [&](C* dst, int len) { return f.twoInPlace(a.data(), dst, len); }, products);
  const auto multiples = [&](size_t i) { return product(a[i], val); };
  checkElements(
      b, [&](C* dst, int len) { return f.constant(a.data(), val, dst, len); }, multiples);
  checkElements(
      a, [&](C* dst, int len) { return f.constantInPlace(val, dst, len); }, multiples);
  const auto squares = [&](size_t i) { return product(a[i], a[i]); };
  checkElements(
      b, [&](C* dst, int len) { return f.square(a.data(), dst, len); }, squares);
  checkElements(
      a, [&](C* dst, int len) { return f.squareInPlace(dst, len); }, squares);
  const std::vector<C> sum = moderate<C>(3);
  checkElements(
      sum, [&](C* dst, int len) { return f.accumulate(a.data(), b.data(), dst, len); },
      [&](size_t i) {
        const C p = products(i);
        return C{sum[i].re + p.re, sum[i].im + p.im};
      });
}

TEST(ComplexArithmetic, Products) {
  checkProducts<Vek32fc>({veksMul_32fc, veksMul_32fc_I, veksMulC_32fc, veksMulC_32fc_I,
                          veksSqr_32fc, veksSqr_32fc_I, veksAddProduct_32fc});
  checkProducts<Vek64fc>({veksMul_64fc, veksMul_64fc_I, veksMulC_64fc, veksMulC_64fc_I,
                          veksSqr_64fc, veksSqr_64fc_I, veksAddProduct_64fc});
}

TEST(ComplexArithmetic, RealTimesComplex) {
  const std::vector<Vek32fc> a = moderate<Vek32fc>(1);
  const std::vector<Vek32fc> b = moderate<Vek32fc>(2);
  std::vector<Vek32f> real(a.size());
  for (size_t i = 0; i < a.size(); ++i) real[i] = a[i].re;
  const auto wanted = [&](size_t i) { return Vek32fc{real[i] * b[i].re, real[i] * b[i].im}; };
  checkElements(
      a, [&](Vek32fc* dst, int len) { return veksMul_32f32fc(real.data(), b.data(), dst, len); },
      wanted);
  checkElements(
      b, [&](Vek32fc* dst, int len) { return veksMul_32f32fc_I(real.data(), dst, len); }, wanted);
}

}  // namespace
}  // namespace veks::test
