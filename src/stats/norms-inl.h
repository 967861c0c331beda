// Norms of vectors and of differences. Sums have columns: which elements a partial sum takes in and
// in which order partial sums are added depends on their positions only, not on the width of
// vectors, so that all targets give the same result.
#if defined(VEKS_STATS_NORMS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_STATS_NORMS_INL_H
#undef VEKS_STATS_NORMS_INL_H
#else
#define VEKS_STATS_NORMS_INL_H
#endif

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/power_of_two.h"
#include "core/reduce-inl.h"
#include "stats/complex_magnitudes-inl.h"
#include "stats/integer_norms-inl.h"
#include "stats/is_nan.h"
#include "stats/magnitudes-inl.h"
#include "stats/norm_tags.h"
#include "stats/terms-inl.h"
#include "vector/limit-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// The type of the lanes of elements and of their norms.
template <class T>
struct PartOf {
  using Type = T;
};
template <>
struct PartOf<Vek32fc> {
  using Type = float;
};
template <>
struct PartOf<Vek64fc> {
  using Type = double;
};
template <class T>
using Part = typename PartOf<T>::Type;
template <class T>
inline constexpr bool kIsComplex = !std::is_same_v<Part<T>, T>;
template <class T>
using NormType = std::conditional_t<std::is_integral_v<T>, float, Part<T>>;

template <class Term, class T>
struct ScaledTerm {
  T scale;
  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    return Term()(d, hn::Mul(v, hn::Set(d, scale)));
  }
  template <class D, class V>
  HWY_INLINE V operator()(D d, Parts<V> z) const {
    const V factor = hn::Set(d, scale);
    return Term()(d, Parts<V>{hn::Mul(z.re, factor), hn::Mul(z.im, factor)});
  }
};

template <class D, class Term>
struct SumOf {
  D d;
  Term term;
  HWY_INLINE auto zero() const {
    return hn::Zero(d);
  }
  template <class S, class... V>
  HWY_INLINE void add(S& sum, V... v) const {
    sum = hn::Add(sum, term(d, difference(v...)));
  }
  template <class S>
  HWY_INLINE void merge(S& sum, S other) const {
    sum = hn::Add(sum, other);
  }
};

// NaN is left out.
template <class D, class Term>
struct GreatestOf {
  D d;
  Term term;
  HWY_INLINE auto zero() const {
    return hn::Zero(d);
  }
  template <class S, class... V>
  HWY_INLINE void add(S& sum, V... v) const {
    sum = atLeast(sum, term(d, difference(v...)));
  }
  template <class S>
  HWY_INLINE void merge(S& sum, S other) const {
    sum = atLeast(sum, other);
  }
};

// Bytes of the partial sums of a block, the same on every target; less code where speed does not
// count.
constexpr size_t kColumnBytes = 512;
constexpr size_t kFewColumnBytes = 64;
constexpr size_t kShortColumnBytes = 128;

template <size_t kWays, class Reduction, class... T>
HWY_INLINE auto sumOfPiece(const Reduction& reduction, Piece piece, const T*... src) {
#if HWY_TARGET == HWY_AVX3
  constexpr bool kIsComplexSingle = (std::is_same_v<T, Vek32fc> && ...);
  if constexpr (std::is_same_v<decltype(Reduction::term), MagnitudeTerm> && kIsComplexSingle) {
    return reduceMagnitudes<kWays>(reduction.d, reduction, piece, src...);
  }
#endif
  return reduce<kWays>(reduction, piece, src...);
}

// Blocks are short enough for the precision of the elements; their sums are added in double.
template <size_t kBytes, class Term, class T, class... Others>
HWY_INLINE double sumOf(const Term& term, size_t n, const T* src, const Others*... others) {
  constexpr size_t kBlock = 8 * kBytes;
  const hn::ScalableTag<Part<T>> d;
  constexpr size_t kWays = kBytes / (sizeof(Part<T>) * MaxLanes(d));
  if constexpr (kBytes > kShortColumnBytes) {
    if (n < kWays * MaxLanes(d)) return sumOf<kShortColumnBytes>(term, n, src, others...);
  }
  const SumOf<decltype(d), Term> reduction = {d, term};
  double total = 0;
  for (size_t i = 0;; i += kBlock) {
    const size_t count = std::min(kBlock, n - i);
    const Piece piece = {count, n - i};
    const Part<T> sum =
        sumAcrossLanes(d, sumOfPiece<kWays>(reduction, piece, src + i, (others + i)...));
    if (n <= kBlock) return static_cast<double>(sum);
    total += static_cast<double>(sum);
    if (i + count == n) return total;
  }
}

template <size_t kWays, class Term, class T, class... Others>
HWY_INLINE double greatestOf(const Term& term, size_t n, const T* src, const Others*... others) {
  const hn::ScalableTag<Part<T>> d;
  const GreatestOf<decltype(d), Term> reduction = {d, term};
  return acrossLanes(d, reduce<kWays>(reduction, n, src, others...),
                     [](auto, auto a, auto b) HWY_ATTR { return atLeast(a, b); });
}

// The power of two that brings the largest part of all elements to about 1, or as near as the type
// allows: then squares neither overflow nor vanish where it matters.
template <class T>
int exponentOfScale(double largest) {
  constexpr int kMost = std::numeric_limits<Part<T>>::max_exponent - 2;
  return std::clamp(-exponentOf(largest), -kMost, kMost);
}

// The norms of scaled elements.
template <class Term, class... T>
HWY_INLINE double scaledNormOf(L1 /*norm*/, const Term& term, size_t n, const T*... src) {
  return sumOf<kFewColumnBytes>(term, n, src...);
}
template <class Term, class... T>
HWY_INLINE double scaledNormOf(L2 /*norm*/, const Term& term, size_t n, const T*... src) {
  return std::sqrt(sumOf<kFewColumnBytes>(term, n, src...));
}
template <class Term, class... T>
HWY_INLINE double scaledNormOf(Inf /*norm*/, const Term& term, size_t n, const T*... src) {
  return std::sqrt(greatestOf<1>(term, n, src...));
}

// The norm without premature overflow or underflow, in two passes.
template <class N, class Term, class T, class... Others>
HWY_NOINLINE double carefulNorm(size_t n, const T* src, const Others*... others) {
  const double largest = greatestOf<1>(LargerPartTerm(), n, src, others...);
  if (!(largest > 0 && largest < std::numeric_limits<double>::infinity())) return largest;
  const int exponent = exponentOfScale<T>(largest);
  const ScaledTerm<Term, Part<T>> term = {static_cast<Part<T>>(powerOfTwo(exponent))};
  return scaledNormOf(N(), term, n, src, others...) * powerOfTwo(-exponent);
}

// Whether squares or sums of them have neither overflown nor lost digits to underflow. Sums with a
// NaN are what they are.
template <class T>
constexpr double kLeastSquare = std::is_same_v<T, float> ? 0x1p-64 : 0x1p-900;
template <class T>
constexpr double kLeastRoot = std::is_same_v<T, float> ? 0x1p-38 : 0x1p-450;

inline bool isGood(double value, double least) {
  return !(value < least) && value != std::numeric_limits<double>::infinity();
}

template <class T, class... Others>
HWY_INLINE double normOf(L1 /*norm*/, size_t n, const T* src, const Others*... others) {
  const double sum = sumOf<kColumnBytes>(MagnitudeTerm(), n, src, others...);
  if constexpr (kIsComplex<T>) {
    if (HWY_UNLIKELY(!isGood(sum, static_cast<double>(n) * kLeastRoot<Part<T>>))) {
      return carefulNorm<L1, MagnitudeTerm>(n, src, others...);
    }
  }
  return sum;
}

// The real parts and the imaginary parts alike.
template <class T>
HWY_INLINE const Part<T>* partsOf(const T* src) {
  return reinterpret_cast<const Part<T>*>(src);
}

template <class T, class... Others>
HWY_INLINE double rootOfSquares(size_t n, const T* src, const Others*... others) {
  const double sum = sumOf<kColumnBytes>(SquareTerm(), n, src, others...);
  if (HWY_LIKELY(isGood(sum, kLeastSquare<T>))) return std::sqrt(sum);
  return carefulNorm<L2, SquareTerm>(n, src, others...);
}

template <class T, class... Others>
HWY_INLINE double normOf(L2 /*norm*/, size_t n, const T* src, const Others*... others) {
  if constexpr (kIsComplex<T>) {
    return rootOfSquares(2 * n, partsOf(src), partsOf(others)...);
  } else if constexpr (std::is_same_v<T, float>) {
    return std::sqrt(static_cast<float>(sumOf<kColumnBytes>(SquareTerm(), n, src, others...)));
  } else {
    return rootOfSquares(n, src, others...);
  }
}

template <class T>
HWY_INLINE T difference(const T* src) {
  return *src;
}
template <class T>
HWY_INLINE T difference(const T* src1, const T* src2) {
  if constexpr (kIsComplex<T>) {
    return {src1->re - src2->re, src1->im - src2->im};
  } else {
    return *src1 - *src2;
  }
}

template <class... T>
HWY_INLINE double greatestModulus(size_t n, const T*... src) {
  const auto first = difference(src...);
  if (HWY_UNLIKELY(isNan(first.re) || isNan(first.im))) {
    return std::numeric_limits<double>::quiet_NaN();
  }
  const double square = greatestOf<4>(SquareTerm(), n, src...);
  if (HWY_LIKELY(isGood(square, kLeastSquare<decltype(first.re)>))) return std::sqrt(square);
  return carefulNorm<Inf, SquareTerm>(n, src...);
}

// A NaN in the first position stays the result, others never become it.
template <class T, class... Others>
HWY_INLINE double normOf(Inf /*norm*/, size_t n, const T* src, const Others*... others) {
  if constexpr (kIsComplex<T>) {
    return greatestModulus(n, src, others...);
  } else {
    const T first = difference(src, others...);
    if (HWY_UNLIKELY(isNan(first))) return std::abs(first);
    return foldAll<8>(GreatestFloat<T>{0}, n, src, others...);
  }
}

template <class N, class T, class... Others>
HWY_INLINE NormType<T> anyNorm(size_t n, const T* src, const Others*... others) {
  if constexpr (std::is_integral_v<T>) {
    return integerNorm(N(), n, src, others...);
  } else {
    return static_cast<NormType<T>>(normOf(N(), n, src, others...));
  }
}

template <class N, class T>
VekStatus Norm(const T* src, size_t n, NormType<T>* norm) {
  *norm = anyNorm<N>(n, src);
  return vekStsOk;
}

template <class N, class T>
VekStatus NormOfDifference(const T* src1, const T* src2, size_t n, NormType<T>* norm) {
  *norm = anyNorm<N>(n, src1, src2);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
