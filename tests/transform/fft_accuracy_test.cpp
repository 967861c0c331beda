// Floating-point Fourier transforms against a reference in long double.
#include <algorithm>
#include <map>

#include "transform/fft_transforms.h"

namespace veks::test {
namespace {

// The inputs of a length and what becomes of them without a factor.
class References {
 public:
  struct Pair {
    Points in;
    Points out;
  };
  const Pair& of(const Transform& transform, size_t n) {
    Pair& pair = all_[{transform.type, transform.isReal(), transform.isInverse}];
    if (pair.in.size() != n) {
      pair.in = randomInput(transform, n);
      pair.out = transformed(pair.in, transform.isInverse);
    }
    return pair;
  }

 private:
  std::map<std::tuple<Type, bool, bool>, Pair> all_;
};

// 0.6 eps log2(n), and the rounding of a result of one point, which is its input.
template <class T>
long double toleranceFor(int order) {
  return 0.6L * std::numeric_limits<T>::epsilon() * order;
}

template <class T>
void checkAccuracy(const Transform& transform, const References::Pair& reference, int order,
                   int flag) {
  SCOPED_TRACE(std::string(transform.name) + ", order " + std::to_string(order) + ", flag " +
               std::to_string(flag));
  const size_t n = reference.in.size();
  const Context context(transform.contexts(), order, flag);
  const Lanes<T> in = encoded<T>(transform.in, reference.in);
  const Lanes<T> out = resultOf(transform, context, in, n);
  Points expected = reference.out;
  const long double factor = factorOf(transform, flag, n);
  for (Point& p : expected) p = factor * p;
  const Points got = decoded(transform.out, out, n);
  ASSERT_LE(distance(expected, got), toleranceFor<T>(order) * norm(expected))
      << "that is " << static_cast<double>(distance(expected, got) / norm(expected));
  std::vector<Vek8u> buffer(context.bufferBytes());
  Vek8u* const start = buffer.empty() ? nullptr : buffer.data();
  ASSERT_TRUE(out == resultOf(transform, context, in, n, 0, start, true)) << "in place";
}

// All floating-point transforms of an order, with one flag or all.
void checkOrder(int order, const std::vector<int>& flags, References& references) {
  for (const Transform& transform : transforms()) {
    if (transform.type == Type::k16s || (order > 14 && !isRepresentative(transform))) continue;
    const References::Pair& reference = references.of(transform, size_t{1} << order);
    for (int flag : flags) {
      if (transform.type == Type::k32f) {
        checkAccuracy<Vek32f>(transform, reference, order, flag);
      } else {
        checkAccuracy<Vek64f>(transform, reference, order, flag);
      }
    }
  }
}

TEST(FftAccuracy, OfShortSignals) {
  for (int order = 0; order <= 12; ++order) {
    References references;
    const std::vector<int> flags =
        order <= 7 ? std::vector<int>{1, 2, 4, 8} : std::vector<int>{1 << (order % 4)};
    onEveryTarget([&] { checkOrder(order, flags, references); });
  }
}

TEST(FftAccuracy, OfLongSignals) {
  for (int order = 13; order <= 20; ++order) {
    References references;
    checkOrder(order, {1 << (order % 4)}, references);
  }
}

// The spectra of real signals are the same values in other places.
template <class T>
void checkFormats(const Transform& transform, const Transform& pack, int order) {
  SCOPED_TRACE(std::string(transform.name) + ", order " + std::to_string(order));
  const size_t n = size_t{1} << order;
  const Context context(transform.contexts(), order, 4);
  const Points points = randomInput(transform, n);
  const auto outputOf = [&](const Transform& t) {
    const Lanes<T> out = resultOf(t, context, encoded<T>(t.in, points), n);
    return decoded(t.out, out, n);
  };
  const Points expected = outputOf(pack);
  const Points actual = outputOf(transform);
  const auto isSame = [](Point a, Point b) { return a.re == b.re && a.im == b.im; };
  EXPECT_TRUE(std::equal(expected.begin(), expected.end(), actual.begin(), isSame));
}

TEST(FftFormats, HaveTheSameValues) {
  onEveryTarget([] {
    for (int order = 0; order <= 12; ++order) {
      for (const Transform& pack : transforms()) {
        if (pack.in != Side::kPack && pack.out != Side::kPack) continue;
        for (const Transform& other : transforms()) {
          if (other.family != pack.family || other.isInverse != pack.isInverse) continue;
          withLanes(pack.type,
                    [&](auto lane) { checkFormats<decltype(lane)>(other, pack, order); });
        }
      }
    }
  });
}

}  // namespace
}  // namespace veks::test
