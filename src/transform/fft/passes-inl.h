// Transforms of the columns of a matrix whose rows are vectors: passes of radix 4, 8 and 16 in
// place, decimation in frequency.
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

// Rows in work memory: the real parts, then the imaginary ones, `stride` values from row to row.
template <class T>
struct WorkRows {
  T* first;
  size_t stride;
  template <class D>
  HWY_INLINE Parts<hn::Vec<D>> load(D d, size_t row) const {
    const T* const at = first + row * stride;
    return {hn::LoadU(d, at), hn::LoadU(d, at + MaxLanes(D()))};
  }
  template <class D, class V>
  HWY_INLINE void store(D d, const Parts<V>& x, size_t row) const {
    T* const at = first + row * stride;
    hn::StoreU(x.re, d, at);
    hn::StoreU(x.im, d, at + MaxLanes(D()));
  }
};

// Rows of a source or destination that are `stride` values apart.
template <class Values>
struct StridedRows {
  const Values& values;
  size_t first;
  size_t stride;
  template <class D>
  HWY_INLINE auto load(D d, size_t row) const {
    return values.load(d, first + row * stride);
  }
  template <class D, class V>
  HWY_INLINE void store(D d, const Parts<V>& x, size_t row) const {
    values.store(d, x, first + row * stride);
  }
};

// One transform of R points from rows in, in + step, ... to rows out, out + outStep, ...; results
// but the first are multiplied by the factors at w, if there are any.
template <size_t R, bool kTwiddles, class D, class Source, class Destination, class T>
HWY_INLINE void transformRows(D d, const Source& source, size_t in, size_t step,
                              const Destination& destination, size_t out, size_t outStep,
                              const T* w) {
  Parts<hn::Vec<D>> x[R];
  each<R>([&](auto k) HWY_ATTR
          __attribute__((always_inline)) { x[k] = source.load(d, in + k * step); });
  Transform<R>::run(d, x);
  each<R>([&](auto r) HWY_ATTR __attribute__((always_inline)) {
    const auto& y = x[Transform<R>::at(r)];
    if constexpr (kTwiddles && r > 0) {
      const auto wRe = hn::Set(d, w[2 * r - 2]);
      const auto wIm = hn::Set(d, w[2 * r - 1]);
      destination.store(d, times(y, wRe, wIm), out + r * outStep);
    } else {
      destination.store(d, y, out + r * outStep);
    }
  });
}

// The pass with factors of radix R over n rows from `base` on.
template <size_t R, class D, class Source, class Destination, class T>
HWY_NOINLINE void pass(D d, const Source source, const Destination destination, size_t base,
                       size_t n, const T* w) {
  const size_t step = n / R;
  for (size_t p = base; p < base + step; ++p) {
    transformRows<R, true>(d, source, p, step, destination, p, step, w);
    w += 2 * (R - 1);
  }
}

template <class D, class Source, class Destination, class T>
HWY_INLINE void passOf(size_t radix, D d, const Source& source, const Destination& destination,
                       size_t base, size_t n, const T* w) {
  if (radix == 16) return pass<16>(d, source, destination, base, n, w);
  pass<8>(d, source, destination, base, n, w);
}

// The last pass over the groups of R rows from `base` on, in place or into the rows of a
// destination in natural order.
template <size_t R, class D, class T>
HWY_NOINLINE void lastPass(D d, const WorkRows<T> work, size_t base, size_t n) {
  const T* const none = nullptr;
  for (size_t in = base; in < base + n; in += R) {
    transformRows<R, false>(d, work, in, 1, work, in, 1, none);
  }
}

template <size_t R, class D, class Destination, class T>
HWY_NOINLINE void lastPassTo(D d, const WorkRows<T> work, const Destination destination,
                             const ColumnPasses<T>& passes) {
  const T* const none = nullptr;
  const size_t groups = passes.length / R;
  for (size_t group = 0; group < groups; ++group) {
    transformRows<R, false>(d, work, group * R, 1, destination, passes.firstOfGroup[group], groups,
                            none);
  }
}

// All passes but the first over the n work rows from `base` on, the last one on request.
template <class D, class T>
HWY_NOINLINE void laterPasses(D d, const WorkRows<T> work, size_t base, size_t n, bool withLast,
                              const ColumnPasses<T>& passes) {
  size_t part = n;
  for (int level = 1; level + 1 < passes.count; ++level) {
    const size_t radix = passes.radices[level];
    for (size_t i = base; i < base + n; i += part) {
      passOf(radix, d, work, work, i, part, passes.twiddles[level]);
    }
    part /= radix;
  }
  if (!withLast) return;
  const size_t last = passes.radices[passes.count - 1];
  if (last == 16) return lastPass<16>(d, work, base, n);
  if (last == 8) return lastPass<8>(d, work, base, n);
  lastPass<4>(d, work, base, n);
}

// The first pass, then the others part by part, so that parts stay in the first cache.
template <class D, class Source, class T>
HWY_INLINE void firstPasses(D d, const Source& source, const WorkRows<T>& work, bool withLast,
                            const ColumnPasses<T>& passes) {
  const size_t n = passes.length;
  const size_t part = passes.count == 2 ? n : n / passes.radices[0];
  passOf(passes.radices[0], d, source, work, 0, n, passes.twiddles[0]);
  for (size_t i = 0; i < n; i += part) laterPasses(d, work, i, part, withLast, passes);
}

// All passes, two or more, from the source to the work rows, in the order of passes.rowOf.
template <class D, class Source, class T>
HWY_INLINE void transformColumns(D d, const Source& source, const WorkRows<T>& work,
                                 const ColumnPasses<T>& passes) {
  firstPasses(d, source, work, true, passes);
}

// The same with the last pass, of radix 8 or 16, to the rows of a destination in natural order.
template <class D, class Source, class Destination, class T>
HWY_INLINE void transformColumnsTo(D d, const Source& source, const WorkRows<T>& work,
                                   const Destination& destination, const ColumnPasses<T>& passes) {
  firstPasses(d, source, work, false, passes);
  if (passes.radices[passes.count - 1] == 16) return lastPassTo<16>(d, work, destination, passes);
  lastPassTo<8>(d, work, destination, passes);
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
