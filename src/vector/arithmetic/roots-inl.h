// Square roots.
#if defined(VEKS_VECTOR_ARITHMETIC_ROOTS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_ARITHMETIC_ROOTS_INL_H
#undef VEKS_VECTOR_ARITHMETIC_ROOTS_INL_H
#else
#define VEKS_VECTOR_ARITHMETIC_ROOTS_INL_H
#endif

#include "core/square_root-inl.h"
#include "vector/arithmetic/complex_quotients-inl.h"
#include "vector/arithmetic/exact_root.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

HWY_INLINE VekStatus rootStatus(bool negativeSeen) {
  return negativeSeen ? vekWrnSqrtNegArg : vekStsOk;
}

// With AVX-512, every fourth vector goes to the divider, which works beside the multipliers.
template <class T>
struct SquareRoots {
  const T* src;
  bool* negativeSeen;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto v = hn::LoadU(d, src + i);
#if HWY_TARGET <= HWY_AVX3
    constexpr size_t kLanes = MaxLanes(D());
    if constexpr (kLanes * sizeof(T) == 64) {
      if (i % (4 * kLanes) >= kLanes && HWY_LIKELY(areRefinable(v))) return refinedRoot(d, v);
    }
#endif
    *negativeSeen |= !hn::AllFalse(d, hn::Lt(v, hn::Zero(d)));
    return hn::Sqrt(v);
  }
};

template <class T>
VekStatus SqrtOne(const T* src, T* dst, size_t n) {
  bool negativeSeen = false;
  produceCompact(SquareRoots<T>{src, &negativeSeen}, dst, n, src == dst);
  return rootStatus(negativeSeen);
}

// Roots of integers in the precision F.
template <class F, class S>
struct IntegerRoots {
  const S* src;
  F factor;
  bool* negativeSeen;

  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return inParts<F>(d, i, [this](auto dPart, size_t k) HWY_ATTR {
      using T = hn::TFromD<decltype(dPart)>;
      const hn::Rebind<F, decltype(dPart)> df;
      const auto x = loadAsFloats(df, src + k);
      const auto zero = hn::Zero(df);
      if constexpr (std::is_signed_v<S>) *negativeSeen |= !hn::AllFalse(df, hn::Lt(x, zero));
      const auto root = hn::Mul(hn::Sqrt(hn::Max(x, zero)), hn::Set(df, factor));
      const auto max = hn::Set(df, static_cast<F>(std::numeric_limits<T>::max()));
      return demoteIntegers(dPart, nearestInt32(df, hn::Min(root, max)));
    });
  }
};

// Where a scaled root is no tie, its square is 1 / (4 x) of itself away from a tie's if s >= 0, and
// 1 / (4 x 4^-s) > 2^-32 if s < 0: float resolves the first for 16 bits, double everything here.
template <class S, class T>
VekStatus SqrtScaled(const S* src, T* dst, size_t n, int scaleFactor) {
  bool negativeSeen = false;
  const void* const out = dst;
  if (sizeof(S) <= 2 && scaleFactor >= 0) {
    const IntegerRoots<float, S> body{src, scaleMultiplier<float>(scaleFactor), &negativeSeen};
    produceCompact<1, true>(body, dst, n, out == src);
  } else {
    const IntegerRoots<double, S> body{src, scaleMultiplier<double>(scaleFactor), &negativeSeen};
    produceCompact<1, true>(body, dst, n, out == src);
  }
  return rootStatus(negativeSeen);
}

// Roots of 64-bit integers, shifted to the left by an even number of bits before or scaled on the
// path kRound after. What is shifted stays below 2^63; from `limit` on, every result saturates.
//
// The root in double lies within 2^-20 of the exact one, and less 2^-18, so that its nearest
// integer is never too large and too small by one at most. The square of a number in the middle of
// two is no integer. For kRound, a bit below the unit tells whether there is a rest: 2 root - 1, 2
// root or 2 root + 1.
template <ScalePath path>
struct LongRoots {
  const int64_t* src;
  int64_t limit;
  int bits;
  bool* negativeSeen;

  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return inParts<int64_t>(d, i, [this](auto dPart, size_t k) HWY_ATTR {
      using T = hn::TFromD<decltype(dPart)>;
      const hn::Rebind<int64_t, decltype(dPart)> di;
      const hn::RebindToUnsigned<decltype(di)> du;
      const auto root = scaledRoots<T>(di, hn::LoadU(di, src + k));
      if constexpr (sizeof(T) == 8) {
        return root;
      } else {
        const hn::RebindToUnsigned<decltype(dPart)> duPart;
        return hn::BitCast(dPart, hn::TruncateTo(duPart, hn::BitCast(du, root)));
      }
    });
  }

 private:
  template <class T, class D, class V>
  HWY_INLINE V scaledRoots(D di, V v) const {
    const hn::RebindToFloat<D> dd;
    const hn::RebindToUnsigned<D> du;
    const hn::Repartition<uint32_t, D> dw;
    const V zero = hn::Zero(di);
    *negativeSeen |= !hn::AllFalse(di, hn::Lt(v, zero));
    V x = hn::Min(hn::Max(v, zero), hn::Set(di, limit));
    if constexpr (path == ScalePath::kShiftLeft) x = shiftLeft(di, x, bits);
    const auto low = hn::Sub(rootOfIntegers(dd, hn::ConvertTo(dd, x)), hn::Set(dd, 0x1p-18));
    // The sum has the nearest integer in its lowest bits.
    const auto sum = hn::BitCast(du, hn::Add(low, hn::Set(dd, 0x1p52)));
    const auto root = hn::And(sum, hn::Set(du, 0xFFFFFFFFu));
    const auto square = hn::MulEven(hn::BitCast(dw, root), hn::BitCast(dw, root));
    const V signedRoot = hn::BitCast(di, root);
    const V rest = hn::Sub(x, hn::BitCast(di, square));
    V result;
    if constexpr (path == ScalePath::kRound) {
      const V twice =
          hn::Sub(hn::Add(signedRoot, signedRoot), hn::VecFromMask(di, hn::Gt(rest, zero)));
      const V exact = hn::Add(twice, hn::VecFromMask(di, hn::Gt(zero, rest)));
      result = scaleTo<path, T, true>(di, exact, bits);
    } else {
      result = incrementWhere(di, hn::Gt(rest, signedRoot), signedRoot);
    }
    return saturateTo<T>(di, result);
  }

  template <class D, class V>
  static HWY_INLINE V rootOfIntegers(D dd, V v) {
#if HWY_TARGET <= HWY_AVX3
    if constexpr (MaxLanes(D()) == 8) {
      const auto x = approximateRoot(dd, hn::Max(v, hn::Set(dd, 0x1p-40)));
      return correctedRoot(v, x.root, x.halfInverse);
    }
#endif
    (void)dd;
    return hn::Sqrt(v);
  }
};

template <ScalePath path, class T>
VekStatus sqrtLong(const int64_t* src, T* dst, size_t n, int64_t limit, int bits) {
  bool negativeSeen = false;
  const void* const out = dst;
  produceCompact<1, true>(LongRoots<path>{src, limit, bits, &negativeSeen}, dst, n, out == src);
  return rootStatus(negativeSeen);
}

template <class T>
VekStatus SqrtLongScaled(const int64_t* src, T* dst, size_t n, int scaleFactor) {
  constexpr int64_t kMax = std::numeric_limits<int64_t>::max();
  if (scaleFactor == 0) return sqrtLong<ScalePath::kSaturate>(src, dst, n, kMax, 0);
  // Roots are below 2^32.
  if (scaleFactor > 0) {
    const int bits = 1 + (scaleFactor < 33 ? scaleFactor : 33);
    return sqrtLong<ScalePath::kRound>(src, dst, n, kMax, bits);
  }
  if constexpr (sizeof(T) == 2) {
    const int bits = 2 * (scaleFactor < -16 ? 16 : -scaleFactor);
    const int64_t limit = (int64_t{1} << 30 >> bits) + 1;
    return sqrtLong<ScalePath::kShiftLeft>(src, dst, n, limit, bits);
  }
  bool negativeSeen = false;
  for (size_t i = 0; i < n; ++i) {
    negativeSeen |= src[i] < 0;
    dst[i] = scaledRoot<T>(src[i], scaleFactor);
  }
  return rootStatus(negativeSeen);
}

// The root with a real part that is not negative. Its larger part comes from a sum without
// cancellation, the other from y = 2 re im. v may be scaled, which `back` undoes for its root; y,
// the imaginary part in both places, is then divided by `back`.
template <class D, class V>
HWY_INLINE V complexRoot(D d, V v, V y, V back) {
  const V squares = hn::Mul(v, v);
  const V magnitude = hn::Sqrt(hn::Add(squares, swapParts(d, squares)));
  const V x = hn::DupEven(v);
  const V half = hn::Set(d, 0.5);
  const V root = hn::Sqrt(hn::Mul(hn::Add(magnitude, hn::Abs(x)), half));
  const V quotient = hn::Div(hn::Mul(hn::Abs(y), half), root);
  const V smaller = hn::IfThenZeroElse(hn::Eq(root, hn::Zero(d)), quotient);
  const V larger = hn::Mul(root, back);
  const auto negative = hn::Lt(x, hn::Zero(d));
  const V re = hn::IfThenElse(negative, smaller, larger);
  const V im = hn::CopySign(hn::IfThenElse(negative, larger, smaller), y);
  return hn::OddEven(im, re);
}

struct ComplexFloatRoots {
  const float* src;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return inParts<double>(d, i, [this](auto dPart, size_t k) HWY_ATTR {
      const hn::Rebind<double, decltype(dPart)> dd;
      const auto v = hn::PromoteTo(dd, hn::LoadU(dPart, src + k));
      return demoteFloats(dPart, complexRoot(dd, v, hn::DupOdd(v), hn::Set(dd, 1.0)));
    });
  }
};

inline VekStatus SqrtComplexFloat(const Vek32fc* src, Vek32fc* dst, size_t n) {
  produceCompact<2, true>(ComplexFloatRoots{reinterpret_cast<const float*>(src)},
                          reinterpret_cast<float*>(dst), 2 * n, src == dst);
  return vekStsOk;
}

// Scaled near 1 by a power of 4.
struct ComplexRoot {
  template <class D, class V>
  HWY_INLINE V operator()(D d, V v) const {
    const hn::Repartition<int64_t, D> di;
    const auto one = hn::BitCast(di, hn::Set(d, 1.0));
    const auto inverse = hn::BitCast(di, inverseMagnitude(d, v));
    // With its bias of 1023, an even exponent is odd.
    const auto unit = hn::Set(di, Range<double>::kExponentOne);
    const auto scale = hn::Or(hn::Sub(inverse, unit), unit);
    const auto halfExponent = hn::ShiftRight<1>(hn::Sub(scale, one));
    const V rootOfScale = hn::BitCast(d, hn::Add(one, halfExponent));
    const V back = hn::BitCast(d, hn::Sub(one, halfExponent));
    return complexRoot(d, hn::Mul(v, hn::BitCast(d, scale)), hn::Mul(hn::DupOdd(v), rootOfScale),
                       back);
  }
};

inline VekStatus SqrtComplexDouble(const Vek64fc* src, Vek64fc* dst, size_t n) {
  produceCompact<2, true>(OneSource<ComplexRoot, double>{reinterpret_cast<const double*>(src)},
                          reinterpret_cast<double*>(dst), 2 * n, src == dst);
  return vekStsOk;
}

// A part of a root below 2^8 that is no tie is 2^-27 away from one, times 2^s: double resolves it.
struct ComplexIntegerRoots {
  const int16_t* src;
  double factor;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return inParts<double>(d, i, [this](auto dPart, size_t k) HWY_ATTR {
      const hn::Rebind<double, decltype(dPart)> dd;
      const auto v = loadAsFloats(dd, src + k);
      const auto root = complexRoot(dd, v, hn::DupOdd(v), hn::Set(dd, 1.0));
      return hn::DemoteTo(dPart, nearestInt32(dd, hn::Mul(root, hn::Set(dd, factor))));
    });
  }
};

inline VekStatus SqrtComplexScaled(const Vek16sc* src, Vek16sc* dst, size_t n, int scaleFactor) {
  if (scaleFactor < 0) {
    for (size_t i = 0; i < n; ++i) dst[i] = enlargedComplexRoot(src[i], scaleFactor);
    return vekStsOk;
  }
  const ComplexIntegerRoots body{reinterpret_cast<const int16_t*>(src),
                                 scaleMultiplier<double>(scaleFactor)};
  produceCompact<2, true>(body, reinterpret_cast<int16_t*>(dst), 2 * n, src == dst);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
