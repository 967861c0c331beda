// Checks of element-wise functions, out of place and in place, on every SIMD target and length.
#ifndef VEKS_TESTS_VECTOR_CHECK_MAPS_H
#define VEKS_TESTS_VECTOR_CHECK_MAPS_H

#include "support.h"
#include "veks/status.h"

namespace veks::test {

// out(pSrc, pDst, len) and in(pSrcDst, len) against a reference that turns the bytes of a vector
// into those of the result.
template <class T, class Reference>
void checkMap(VekStatus (*out)(const T*, T*, int), VekStatus (*in)(T*, int),
              const Reference& reference, size_t valuesPerElement = 1) {
  onEveryTarget([&] {
    for (int len : testLengths()) {
      const std::vector<T> src = randomElements<T>(static_cast<size_t>(len) * valuesPerElement);
      std::vector<T> expected = src;
      reference(expected);
      std::vector<T> dst(src.size());
      ASSERT_EQ(out(src.data(), dst.data(), len), vekStsOk);
      ASSERT_TRUE(sameBits(expected, dst));
      std::vector<T> srcDst = src;
      ASSERT_EQ(in(srcDst.data(), len), vekStsOk);
      ASSERT_TRUE(sameBits(expected, srcDst)) << "in place";
    }
  });
}

// out(pSrc1, pSrc2, pDst, len) and in(pSrc, pSrcDst, len) against a reference for one element.
template <class T, class Reference>
void checkTwo(VekStatus (*out)(const T*, const T*, T*, int), VekStatus (*in)(const T*, T*, int),
              const Reference& reference) {
  onEveryTarget([&] {
    for (int len : testLengths()) {
      const std::vector<T> src1 = randomElements<T>(static_cast<size_t>(len), 1);
      const std::vector<T> src2 = randomElements<T>(static_cast<size_t>(len), 2);
      std::vector<T> expected(src1.size());
      for (size_t i = 0; i < src1.size(); ++i) {
        expected[i] = static_cast<T>(reference(src1[i], src2[i]));
      }
      std::vector<T> dst(src1.size());
      ASSERT_EQ(out(src1.data(), src2.data(), dst.data(), len), vekStsOk);
      ASSERT_TRUE(sameBits(expected, dst));
      std::vector<T> srcDst = src2;
      ASSERT_EQ(in(src1.data(), srcDst.data(), len), vekStsOk);
      ASSERT_TRUE(sameBits(expected, srcDst)) << "in place";
    }
  });
}

// out(pSrc, parameter, pDst, len) and in(parameter, pSrcDst, len). Parameter is the type of the
// constant or of the shift count.
template <class T, class Parameter, class Reference>
void checkParameter(VekStatus (*out)(const T*, Parameter, T*, int),
                    VekStatus (*in)(Parameter, T*, int), const std::vector<Parameter>& parameters,
                    const std::vector<int>& lengths, const Reference& reference) {
  onEveryTarget([&] {
    for (Parameter parameter : parameters) {
      SCOPED_TRACE(testing::PrintToString(parameter));
      for (int len : lengths) {
        const std::vector<T> src = randomElements<T>(static_cast<size_t>(len));
        std::vector<T> expected(src.size());
        for (size_t i = 0; i < src.size(); ++i) {
          expected[i] = static_cast<T>(reference(src[i], parameter));
        }
        std::vector<T> dst(src.size());
        ASSERT_EQ(out(src.data(), parameter, dst.data(), len), vekStsOk);
        ASSERT_TRUE(sameBits(expected, dst));
        std::vector<T> srcDst = src;
        ASSERT_EQ(in(parameter, srcDst.data(), len), vekStsOk);
        ASSERT_TRUE(sameBits(expected, srcDst)) << "in place";
      }
    }
  });
}

template <class T, class Reference>
void checkConstant(VekStatus (*out)(const T*, T, T*, int), VekStatus (*in)(T, T*, int),
                   const Reference& reference) {
  checkParameter<T, T>(out, in, randomElements<T>(3, 3), testLengths(), reference);
}

}  // namespace veks::test

#endif
