// Checks of element-wise functions whose parameters follow the length: (pSrc, pDst, len, ...) and
// in place (pSrcDst, len, ...).
#ifndef VEKS_TESTS_VECTOR_CHECK_TRAILING_H
#define VEKS_TESTS_VECTOR_CHECK_TRAILING_H

#include "support.h"
#include "veks/status.h"

namespace veks::test {

template <class T, class... P>
struct Forms {
  VekStatus (*out)(const T*, T*, int, P...);
  VekStatus (*in)(T*, int, P...);
};

template <class T, class... P>
Forms(VekStatus (*)(const T*, T*, int, P...), VekStatus (*)(T*, int, P...)) -> Forms<T, P...>;

// Calls both forms with the first elements of `pool`, as often as it takes, for every target and
// length. check(src, dst, status) judges the result, which must be the same in place.
template <class T, class... P, class Check>
void checkResults(const Forms<T, P...>& forms, const std::vector<T>& pool,
                  const std::vector<int>& lengths, const Check& check,
                  std::common_type_t<P>... parameters) {
  onEveryTarget([&] {
    for (int len : lengths) {
      std::vector<T> src(static_cast<size_t>(len));
      for (size_t i = 0; i < src.size(); ++i) src[i] = pool[i % pool.size()];
      std::vector<T> dst(src.size());
      const VekStatus status = forms.out(src.data(), dst.data(), len, parameters...);
      check(src, dst, status);
      if (testing::Test::HasFatalFailure()) return;
      ASSERT_EQ(forms.in(src.data(), len, parameters...), status);
      ASSERT_TRUE(sameBits(dst, src)) << "in place";
    }
  });
}

// change(x) turns an element into its result, to the bit. It takes a reference, since the return
// value of a function may lose bits of a NaN in 32-bit builds.
template <class T, class... P, class Change>
void checkChange(const Forms<T, P...>& forms, const std::vector<T>& pool, const Change& change,
                 std::common_type_t<P>... parameters) {
  checkResults(
      forms, pool, testLengths(),
      [&](std::vector<T> expected, const std::vector<T>& dst, VekStatus status) {
        for (T& x : expected) change(x);
        ASSERT_EQ(status, vekStsOk);
        ASSERT_TRUE(sameBits(expected, dst));
      },
      parameters...);
}

}  // namespace veks::test

#endif
