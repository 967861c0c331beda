// Checks of functions with a scale factor against exact integers: every SIMD target, many factors,
// all lengths of testLengths() in turn, each from wherever the one before has ended.
#ifndef VEKS_TESTS_VECTOR_CHECK_SCALED_H
#define VEKS_TESTS_VECTOR_CHECK_SCALED_H

#include <algorithm>
#include <utility>

#include "exact.h"
#include "support.h"
#include "veks/status.h"
#include "veks/types.h"

namespace veks::test {

// Both operands of a function. All pairs of 8-bit values, all 16-bit values with random ones, and
// limits and random values of every magnitude for wider types.
template <class T>
std::vector<T> operands(bool second) {
  std::mt19937_64 random(second ? 5 : 4);
  std::vector<T> all;
  for (int i = 0; i < 65536 && sizeof(T) <= 2; ++i) {
    const int value = sizeof(T) == 1 && second ? i >> 8 : i;
    all.push_back(sizeof(T) == 2 && second ? static_cast<T>(random()) : static_cast<T>(value));
  }
  if (sizeof(T) == 2 && second) {
    // The limits meet each other, and 0 a negative value: the first operand is the position.
    for (int i : {0x7FFF, 0x8000, 0xFFFF}) all[static_cast<size_t>(i)] = static_cast<T>(i);
    all[0] = static_cast<T>(-5);
  }
  using Limits = std::numeric_limits<T>;
  while (sizeof(T) > 2 && all.size() < 6000) {
    for (T limit : {Limits::min(), Limits::max(), static_cast<T>(Limits::min() + 1), T(1), T(0)}) {
      for (int i = 0; i < 3; ++i) {
        all.push_back(limit);
        if (random() % 2 == 0)
          all.back() = static_cast<T>(static_cast<T>(random()) >> random() % (8 * sizeof(T)));
      }
    }
  }
  return all;
}

// The parts of complex operands.
template <class C>
std::vector<C> complexOperands(bool second) {
  using T = decltype(C::re);
  std::vector<T> parts = operands<T>(second);
  std::shuffle(parts.begin(), parts.end(), std::mt19937(second ? 7 : 6));
  // The pairs whose products do not fit.
  for (size_t i = 0; i < 8; ++i) parts[i] = std::numeric_limits<T>::min();
  for (size_t i = 8; i < 12; ++i) parts[i] = std::numeric_limits<T>::max();
  std::vector<C> all(parts.size() / 2);
  std::memcpy(all.data(), parts.data(), all.size() * sizeof(C));
  return all;
}

// call(start, len, dst, s) on vectors of n elements whose destination holds `before`; wanted(i, s)
// is the element i.
template <class T, class Call, class Wanted>
void checkEveryScale(const std::vector<T>& before, const Call& call, const Wanted& wanted,
                     VekStatus status = vekStsOk) {
  const size_t n = before.size();
  std::vector<T> expected(n);
  for (int s : scaleFactors()) {
    SCOPED_TRACE("scale factor " + std::to_string(s));
    for (size_t i = 0; i < n; ++i) expected[i] = wanted(i, s);
    for (int target = 0; target < targetCount(); ++target) {
      SCOPED_TRACE(targetName(target));
      useTarget(target);
      std::vector<T> dst = before;
      VekStatus worst = vekStsOk;
      size_t which = 0;
      for (size_t start = 0; start < n;) {
        const int length = testLengths()[which++ % testLengths().size()];
        const size_t len = std::min(n - start, static_cast<size_t>(length));
        const VekStatus result = call(start, static_cast<int>(len), dst.data() + start, s);
        worst = std::max(worst, result);
        start += len;
      }
      ASSERT_EQ(worst, status);
      ASSERT_TRUE(sameBits(expected, dst));
    }
  }
}

template <class S1, class S2, class T>
using ScaledTwo = VekStatus (*)(const S1*, const S2*, T*, int, int);

// reference(a, b, s) is the result for operands of the types S1 and S2.
template <class S1, class S2, class T, class Reference>
void checkScaledTwo(ScaledTwo<S1, S2, T> out, const Reference& reference,
                    VekStatus status = vekStsOk) {
  const std::vector<S1> src1 = operands<S1>(false);
  const std::vector<S2> src2 = operands<S2>(true);
  checkEveryScale(
      std::vector<T>(std::min(src1.size(), src2.size())),
      [&](size_t i, int len, T* dst, int s) { return out(&src1[i], &src2[i], dst, len, s); },
      [&](size_t i, int s) { return reference(src1[i], src2[i], s); }, status);
}

template <class S, class T, class Reference>
void checkScaledInPlace(VekStatus (*in)(const S*, T*, int, int), const Reference& reference,
                        VekStatus status = vekStsOk) {
  const std::vector<S> src = operands<S>(false);
  std::vector<T> srcDst = operands<T>(true);
  srcDst.resize(src.size());
  checkEveryScale(
      srcDst, [&](size_t i, int len, T* dst, int s) { return in(&src[i], dst, len, s); },
      [&](size_t i, int s) { return reference(src[i], srcDst[i], s); }, status);
}

// A different constant for every scale factor, none of them zero.
template <class T>
T constantFor(int s) {
  using Limits = std::numeric_limits<T>;
  const T some[] = {std::is_signed_v<T> ? Limits::min() : T(7), Limits::max(), T(1), T(3),
                    static_cast<T>(Limits::max() / 3)};
  return some[static_cast<unsigned>(s) % 5];
}

template <class T, class Reference>
void checkScaledConstant(VekStatus (*out)(const T*, T, T*, int, int),
                         VekStatus (*in)(T, T*, int, int), const Reference& reference) {
  const std::vector<T> src = operands<T>(false);
  const auto wanted = [&](size_t i, int s) { return reference(src[i], constantFor<T>(s), s); };
  checkEveryScale(
      std::vector<T>(src.size()),
      [&](size_t i, int len, T* dst, int s) {
        return out(&src[i], constantFor<T>(s), dst, len, s);
      },
      wanted);
  checkEveryScale(
      src, [&](size_t, int len, T* dst, int s) { return in(constantFor<T>(s), dst, len, s); },
      wanted);
}

template <class S, class T, class Reference>
void checkScaledOne(VekStatus (*out)(const S*, T*, int, int), const Reference& reference,
                    VekStatus status = vekStsOk) {
  const std::vector<S> src = operands<S>(false);
  checkEveryScale(
      std::vector<T>(src.size()),
      [&](size_t i, int len, T* dst, int s) { return out(&src[i], dst, len, s); },
      [&](size_t i, int s) { return reference(src[i], s); }, status);
}
template <class T, class Reference>
void checkScaledOne(VekStatus (*out)(const T*, T*, int, int), VekStatus (*in)(T*, int, int),
                    const Reference& reference, VekStatus status = vekStsOk) {
  checkScaledOne(out, reference, status);
  const std::vector<T> src = operands<T>(false);
  checkEveryScale(
      src, [&](size_t, int len, T* dst, int s) { return in(dst, len, s); },
      [&](size_t i, int s) { return reference(src[i], s); }, status);
}

}  // namespace veks::test

#endif
