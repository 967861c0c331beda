// Transforms of the columns of a matrix whose rows are vectors: passes of radix 4, 8 and 16 in
// place. Factors belong to whole groups of rows, which are few.
#if defined(VEKS_TRANSFORM_FFT_PASSES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_TRANSFORM_FFT_PASSES_INL_H
#undef VEKS_TRANSFORM_FFT_PASSES_INL_H
#else
#define VEKS_TRANSFORM_FFT_PASSES_INL_H
#endif

#include "transform/fft/butterflies-inl.h"
#include "transform/fft/plan.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// Rows in work memory, `kStride` values from row to row: the real parts, then the imaginary ones,
// of one vector after the other.
template <class P>
struct WorkRowsInSteps {
  P at;
  template <class D>
  HWY_INLINE Parts<hn::Vec<D>> load(D d, size_t i) const {
    return {hn::LoadU(d, at[i]), hn::LoadU(d, at[i] + MaxLanes(D()))};
  }
  template <class D, class V>
  HWY_INLINE void store(D d, const Parts<V>& x, size_t i) const {
    hn::StoreU(x.re, d, at[i]);
    hn::StoreU(x.im, d, at[i] + MaxLanes(D()));
  }
  template <class D>
  HWY_INLINE void prefetch(D /*d*/, size_t i) const {
    __builtin_prefetch(at[i], 1);
    __builtin_prefetch(at[i] + MaxLanes(D()), 1);
  }
};

template <class T, size_t kStride>
struct WorkRows {
  T* first;
  static constexpr size_t bytes(size_t rows) {
    return rows * kStride * sizeof(T);
  }
  HWY_INLINE const T* start() const {
    return first;
  }
  template <size_t kCount, class Step>
  HWY_INLINE auto inSteps(size_t row, Step step) const {
    const auto values = timesStep<kStride>(step);
    using P = Pointers<kCount, T, std::remove_const_t<decltype(values)>>;
    return WorkRowsInSteps<P>{P(first + row * kStride, values)};
  }
  template <class D>
  HWY_INLINE Parts<hn::Vec<D>> load(D d, size_t row) const {
    const T* const at = first + row * kStride;
    return {hn::LoadU(d, at), hn::LoadU(d, at + MaxLanes(D()))};
  }
};

// Rows of a source or destination that are `stride` values apart.
template <class Values>
struct StridedRows {
  const Values& values;
  size_t first;
  size_t stride;
  HWY_INLINE auto* start() const {
    return values.at(first);
  }
  template <size_t kCount>
  HWY_INLINE auto inSteps(size_t row, size_t step) const {
    return values.template inSteps<kCount>(first + row * stride, step * stride);
  }
};

// A distance of rows that is known in advance.
template <size_t n>
using Constant = std::integral_constant<size_t, n>;

// Twiddle factors: each the same for all lanes, or a vector of them.
template <class T>
struct ScalarFactors {
  const T* w;
  template <class D>
  HWY_INLINE Parts<hn::Vec<D>> load(D d, size_t i) const {
    return {hn::Set(d, w[2 * i]), hn::Set(d, w[2 * i + 1])};
  }
};

template <class T>
struct VectorFactors {
  const T* w;
  template <class D>
  HWY_INLINE Parts<hn::Vec<D>> load(D d, size_t i) const {
    const T* const at = w + i * 2 * MaxLanes(D());
    return {hn::LoadU(d, at), hn::LoadU(d, at + MaxLanes(D()))};
  }
};

// One transform of R points from rows in, in + step, ... to rows out, out + outStep, ...; with
// factors, if there are any.
template <size_t R, class D, class Source, class Step, class Destination, class OutStep,
          class Factors>
HWY_INLINE void transformRows(D d, const Source& source, size_t in, Step step,
                              const Destination& destination, size_t out, OutStep outStep,
                              const Factors& factors) {
  const auto from = source.template inSteps<R>(in, step);
  const auto to = destination.template inSteps<R>(out, outStep);
  constexpr size_t kQuarter = HWY_MAX(R / 4, 1);
  Parts<hn::Vec<D>> x[R];
  Twiddled<R>::run(
      d, x, [&](size_t i) HWY_ATTR __attribute__((always_inline)) { return factors.load(d, i); },
      [&](auto j) HWY_ATTR __attribute__((always_inline)) {
        each<R / kQuarter>([&](auto q) HWY_ATTR __attribute__((always_inline)) {
          x[j + q * kQuarter] = from.load(d, j + q * kQuarter);
        });
      },
      [&](auto r) HWY_ATTR
      __attribute__((always_inline)) { to.store(d, x[Twiddled<R>::at(r)], r); });
}

template <size_t R, class D, class Source, class Step, class Destination, class OutStep>
HWY_INLINE void transformRows(D d, const Source& source, size_t in, Step step,
                              const Destination& destination, size_t out, OutStep outStep) {
  const auto from = source.template inSteps<R>(in, step);
  const auto to = destination.template inSteps<R>(out, outStep);
  Parts<hn::Vec<D>> x[R];
  each<R>([&](auto k) HWY_ATTR __attribute__((always_inline)) { x[k] = from.load(d, k); });
  Transform<R>::run(d, x);
  each<R>([&](auto r) HWY_ATTR
          __attribute__((always_inline)) { to.store(d, x[Transform<R>::at(r)], r); });
}

// From this size on, lines to be written are asked for ahead.
constexpr size_t kFarBytes = size_t{16} << 10;

// Whether rows are better taken from the last one to the first: a load waits for earlier stores
// whose addresses differ by a multiple of a page, until all of their bits are compared.
template <class T>
HWY_INLINE bool followsInPage(const T* load, const T* store) {
  constexpr uintptr_t kPage = 4096;
  return (reinterpret_cast<uintptr_t>(store) - reinterpret_cast<uintptr_t>(load)) % kPage <
         kPage / 2;
}

// The first pass, of radix R, over n rows: without factors. Parts of n / R rows are `outStep` rows
// apart in the destination.
template <size_t R, class D, class Source, class Destination>
HWY_NOINLINE void firstPass(D d, const Source& source, const Destination& destination, size_t n,
                            size_t outStep) {
  const size_t step = n / R;
  const bool isFar = destination.bytes(n) >= kFarBytes;
  const bool descends = followsInPage(source.start(), destination.start());
  for (size_t i = 0; i < step; ++i) {
    const size_t p = descends ? step - 1 - i : i;
    // Rows that are a power of two apart share few sets of lines of the first cache: 16 of them
    // would displace each other.
    if (R <= 8 && isFar) {
      const auto ahead = destination.template inSteps<R>(descends ? p - 2 : p + 2, outStep);
      each<R>([&](auto r) HWY_ATTR __attribute__((always_inline)) { ahead.prefetch(d, r); });
    }
    transformRows<R>(d, source, p, step, destination, p, outStep);
  }
}

// A pass of radix R over n rows from `base` on, which share their factors.
template <size_t R, class D, class T, size_t kStride>
HWY_NOINLINE void pass(D d, const WorkRows<T, kStride>& work, size_t base, size_t n, const T* w) {
  const size_t step = n / R;
  for (size_t p = base; p < base + step; ++p) {
    transformRows<R>(d, work, p, step, work, p, step, ScalarFactors<T>{w});
  }
}

// The last pass over the groups of R rows from `base` on, in place or into the rows of a
// destination in natural order.
template <size_t R, class D, class T, size_t kStride>
HWY_NOINLINE void lastPass(D d, const WorkRows<T, kStride>& work, size_t base, size_t n,
                           const T* w) {
  for (size_t in = base; in < base + n; in += R, w += 2 * Twiddled<R>::kFactors) {
    transformRows<R>(d, work, in, Constant<1>(), work, in, Constant<1>(), ScalarFactors<T>{w});
  }
}

template <size_t R, class D, class Destination, class T, size_t kStride>
HWY_NOINLINE void lastPassTo(D d, const WorkRows<T, kStride>& work, const Destination& destination,
                             const ColumnPasses<T>& passes) {
  const T* w = passes.twiddles[passes.count - 1];
  const size_t groups = passes.length / R;
  for (size_t group = 0; group < groups; ++group, w += 2 * Twiddled<R>::kFactors) {
    transformRows<R>(d, work, group * R, Constant<1>(), destination, passes.firstOfGroup[group],
                     groups, ScalarFactors<T>{w});
  }
}

// All passes but the first, which left parts of `part` rows, over the n work rows from `base` on,
// the last one on request.
template <class D, class T, size_t kStride>
HWY_NOINLINE void laterPasses(D d, const WorkRows<T, kStride>& work, size_t base, size_t n,
                              bool withLast, size_t part, const ColumnPasses<T>& passes) {
  for (int level = 1; level + 1 < passes.count; ++level) {
    const size_t radix = passes.radices[level];
    const size_t factors = radix == 16 ? Twiddled<16>::kFactors : Twiddled<8>::kFactors;
    const T* w = passes.twiddles[level] + base / part * 2 * factors;
    for (size_t i = base; i < base + n; i += part, w += 2 * factors) {
      if (radix == 16) {
        pass<16>(d, work, i, part, w);
      } else {
        pass<8>(d, work, i, part, w);
      }
    }
    part /= radix;
  }
  if (!withLast) return;
  const T* const w = passes.twiddles[passes.count - 1];
  if (part == 16) return lastPass<16>(d, work, base, n, w + base / 16 * 2 * Twiddled<16>::kFactors);
  if (part == 8) return lastPass<8>(d, work, base, n, w + base / 8 * 2 * Twiddled<8>::kFactors);
  lastPass<4>(d, work, base, n, w + base / 4 * 2 * Twiddled<4>::kFactors);
}

// The first pass, then the others part by part, so that parts stay in the first cache.
template <class D, class Source, class T, size_t kStride>
HWY_INLINE void firstPasses(D d, const Source& source, const WorkRows<T, kStride>& work,
                            bool withLast, const ColumnPasses<T>& passes) {
  const size_t n = passes.length;
  const size_t part = n / passes.radices[0];
  if (passes.radices[0] == 16) {
    firstPass<16>(d, source, work, n, part);
  } else {
    firstPass<8>(d, source, work, n, part);
  }
  if (passes.count == 2) return laterPasses(d, work, 0, n, withLast, part, passes);
  for (size_t i = 0; i < n; i += part) laterPasses(d, work, i, part, withLast, part, passes);
}

// All passes, two or more, from the source to the work rows, in the order of passes.rowOf.
template <class D, class Source, class T, size_t kStride>
HWY_INLINE void transformColumns(D d, const Source& source, const WorkRows<T, kStride>& work,
                                 const ColumnPasses<T>& passes) {
  firstPasses(d, source, work, true, passes);
}

// The same with the last pass, of radix 8 or 16, to the rows of a destination in natural order.
template <class D, class Source, class Destination, class T, size_t kStride>
HWY_INLINE void transformColumnsTo(D d, const Source& source, const WorkRows<T, kStride>& work,
                                   const Destination& destination, const ColumnPasses<T>& passes) {
  firstPasses(d, source, work, false, passes);
  if (passes.radices[passes.count - 1] == 16) return lastPassTo<16>(d, work, destination, passes);
  lastPassTo<8>(d, work, destination, passes);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
