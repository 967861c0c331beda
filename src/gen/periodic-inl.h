// The skeleton of periodic signals: samples in rows of kRowLength. What depends on the position in
// a row is computed once per call, what depends on the row once per row, and a sample combines the
// two. So the accuracy is the same everywhere, and a sample does not depend on the length.
#if defined(VEKS_GEN_PERIODIC_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_GEN_PERIODIC_INL_H
#undef VEKS_GEN_PERIODIC_INL_H
#else
#define VEKS_GEN_PERIODIC_INL_H
#endif

#include <hwy/highway.h>

#include "core/convert-inl.h"
#include "core/parts-inl.h"
#include "gen/periodic.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

using Doubles = hn::ScalableTag<double>;
using DoubleVector = hn::Vec<Doubles>;
using DoubleParts = Parts<DoubleVector>;
constexpr size_t kDoubles = MaxLanes(Doubles());

// Iota with a variable start makes g++ assemble the vector in memory from halves, and wait for
// them.
HWY_INLINE DoubleVector integersFrom(size_t first) {
  const Doubles d;
  return hn::Add(hn::Iota(d, 0), hn::Set(d, static_cast<double>(first)));
}

// Doubles as 32-bit integers, each of which fits in 16 bits.
template <Rounding rounding, class V>
HWY_INLINE auto toIntegers(V v) {
  const Doubles d;
  if constexpr (rounding == Rounding::kHalfAwayFromZero) {
    v = hn::Add(v, hn::CopySign(hn::Set(d, 0.5), v));
  }
  return hn::DemoteTo(hn::Rebind<int32_t, Doubles>(), v);
}

// Stores kDoubles samples.
template <Rounding rounding, class T>
HWY_INLINE void storeSamples(DoubleVector v, T* dst) {
  const hn::Rebind<T, Doubles> d;
  if constexpr (sizeof(T) == 8) {
    hn::StoreU(v, d, dst);
  } else if constexpr (sizeof(T) == 4) {
    hn::StoreU(demoteFloats(d, v), d, dst);
  } else {
    hn::StoreU(hn::DemoteTo(d, toIntegers<rounding>(v)), d, dst);
  }
}

template <Rounding rounding, class C>
HWY_INLINE void storeSamples(const DoubleParts& v, C* dst) {
  using T = decltype(dst->re);
  const hn::Rebind<T, Doubles> d;
  if constexpr (sizeof(T) == 8) {
    hn::StoreInterleaved2(v.re, v.im, d, reinterpret_cast<T*>(dst));
  } else if constexpr (sizeof(T) == 4) {
    hn::StoreInterleaved2(demoteFloats(d, v.re), demoteFloats(d, v.im), d,
                          reinterpret_cast<T*>(dst));
  } else {
    const hn::Rebind<int32_t, Doubles> d32;
    const auto re = hn::And(toIntegers<rounding>(v.re), hn::Set(d32, 0xFFFF));
    const auto im = hn::ShiftLeft<16>(toIntegers<rounding>(v.im));
    hn::StoreU(hn::Or(re, im), d32, reinterpret_cast<int32_t*>(dst));
  }
}

// Numbers of one kind for the samples or the rows of a call, with room for a vector that begins at
// the last one.
template <size_t n>
struct Numbers {
  double values[n + kDoubles];
};

// Samples first .. first + n - 1 of a signal: signal.setColumns(n) prepares n columns, a multiple
// of kDoubles, signal.setRows(k) the rows k .. k + kDoubles - 1, signal.row(k) gives a functor for
// one of them, and that gives the samples from a column on.
template <Rounding rounding, class Signal, class Element>
HWY_INLINE void generatePeriodic(Signal& signal, size_t first, Element* dst, size_t n) {
  const bool isShort = first + n < kRowLength;
  signal.setColumns(isShort ? hwy::RoundUpTo(first + n, kDoubles) + (first == 0 ? 0 : kDoubles)
                            : kRowLength + (first == 0 ? 0 : kDoubles));
  size_t row = first / kRowLength;
  size_t column = first % kRowLength;
  for (size_t k = kDoubles; n > 0; ++row, ++k, column = 0) {
    if (k == kDoubles) {
      signal.setRows(row);
      k = 0;
    }
    const auto samples = signal.row(k);
    if (column == 0 && n >= kRowLength) {
      for (size_t i = 0; i < kRowLength; i += kDoubles) {
        storeSamples<rounding>(samples(i), dst + i);
      }
      dst += kRowLength;
      n -= kRowLength;
      continue;
    }
    const size_t left = kRowLength - column;
    const size_t count = n < left ? n : left;
    size_t i = 0;
    for (; i + kDoubles <= count; i += kDoubles) {
      storeSamples<rounding>(samples(column + i), dst + i);
    }
    if (i < count) {
      Element last[kDoubles];
      storeSamples<rounding>(samples(column + i), last);
      for (size_t j = 0; i + j < count; ++j) dst[i + j] = last[j];
    }
    dst += count;
    n -= count;
  }
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
