// Convolutions of complex frames. The forward transform leaves frequencies where its passes put
// them: block by block they are multiplied and transformed back in the first cache.
#if defined(VEKS_TRANSFORM_FFT_CONVOLUTION_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_TRANSFORM_FFT_CONVOLUTION_INL_H
#undef VEKS_TRANSFORM_FFT_CONVOLUTION_INL_H
#else
#define VEKS_TRANSFORM_FFT_CONVOLUTION_INL_H
#endif

#include "transform/fft/convolution_plan.h"
#include "transform/fft/kernels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// Takes the frequencies of a block: products with the filter's replace its rows, real and imaginary
// parts exchanged, for which the forward transform is the inverse one.
template <class T>
struct BlockProducts {
  const T* spectrum;
  T* rows;
  template <size_t kCount, class Step>
  HWY_INLINE BlockProducts inSteps(size_t /*i*/, Step /*step*/) const {
    return *this;
  }
  template <class D, class V>
  HWY_INLINE void store(D d, const Parts<V>& x, size_t i) const {
    constexpr size_t kLanes = MaxLanes(D());
    const T* const h = spectrum + i * 2 * kLanes;
    const Parts<V> y = times(x, hn::LoadU(d, h), hn::LoadU(d, h + kLanes));
    hn::StoreU(y.im, d, rows + i * 2 * kLanes);
    hn::StoreU(y.re, d, rows + i * 2 * kLanes + kLanes);
  }
};

// As many rows as there are lanes: transformed, multiplied, transformed back in place.
template <size_t kColumns, class D, class T>
HWY_INLINE void convolveBlock(D d, const T* w, const T* spectrum, T* rows) {
  using P = Parts<hn::Vec<D>>;
  constexpr size_t kLanes = MaxLanes(D());
  constexpr size_t kRow = 2 * kColumns;
  const auto row = [&](size_t l, size_t t) HWY_ATTR __attribute__((always_inline)) {
    const T* const at = rows + l * kRow + t * 2 * kLanes;
    return P{hn::LoadU(d, at), hn::LoadU(d, at + kLanes)};
  };
  const BlockProducts<T> products = {spectrum, rows};
  transformBlock<kColumns, Layout::kInterleaved, false>(d, row, w, T{1}, products, 0,
                                                        Constant<1>());
  P x[kColumns];
  each<kColumns>([&](auto i) HWY_ATTR __attribute__((always_inline)) {
    const T* const at = rows + i * 2 * kLanes;
    x[i] = {hn::LoadU(d, at), hn::LoadU(d, at + kLanes)};
  });
  Transform<kColumns>::run(d, x);
  P y[kColumns];
  each<kColumns>([&](auto i) HWY_ATTR __attribute__((always_inline)) {
    constexpr size_t kColumn =
        i / kLanes * kLanes + laneOrder<T>(Layout::kInterleaved, kLanes, i % kLanes);
    y[i] = x[Transform<kColumns>::at(kColumn)];
  });
  each<kColumns / kLanes>([&](auto t) HWY_ATTR __attribute__((always_inline)) {
    transposeParts(d, y + t * kLanes);
    each<kLanes>([&](auto l) HWY_ATTR __attribute__((always_inline)) {
      T* const at = rows + l * kRow + t * 2 * kLanes;
      hn::StoreU(y[t * kLanes + l].re, d, at);
      hn::StoreU(y[t * kLanes + l].im, d, at + kLanes);
    });
  });
}

// Asks for values that will be read from the second cache, or written, while others are computed.
template <size_t kValues, bool kWrites, class T>
HWY_INLINE void prefetch(const T* values) {
  constexpr size_t kLine = 64 / sizeof(T);
  for (size_t i = 0; i < kValues; i += kLine) {
    __builtin_prefetch(values + i, kWrites ? 1 : 0, kWrites ? 3 : 2);
  }
}

// A pass of radix R over n rows from `base` on, the transforms of parts of `part` rows to those of
// R times as many.
template <size_t R, class D, class T, size_t kStride>
HWY_NOINLINE void mergingPass(D d, const WorkRows<T, kStride>& work, size_t base, size_t n,
                              size_t part, const T* factors) {
  constexpr size_t kStep = Twiddled<R>::kFactors * 2 * MaxLanes(D());
  for (size_t i = base; i < base + n; i += R * part) {
    const T* w = factors;
    for (size_t q = i; q < i + part; ++q, w += kStep) {
      transformRows<R>(d, work, q, part, work, q, part, VectorFactors<T>{w});
    }
  }
}

// Vectors of results in steps, from the first one that is wanted on.
template <class Rows>
struct LastOfRows {
  Rows rows;
  size_t first;
  template <class D, class V>
  HWY_INLINE void store(D d, const Parts<V>& x, size_t i) const {
    if (i >= first) rows.store(d, x, i);
  }
};

// The results of a convolution.
template <class Destination>
struct ResultRows {
  StridedRows<Destination> rows;
  size_t first;  // in front of it nothing is stored
  template <size_t kCount>
  HWY_INLINE auto inSteps(size_t row, size_t step) const {
    const auto vectors = rows.template inSteps<kCount>(row, step);
    const size_t skipped = first > row ? (first - row + step - 1) / step : 0;
    return LastOfRows<std::remove_const_t<decltype(vectors)>>{vectors, skipped};
  }
};

// The last one, from parts that are `partStep` rows apart. The samples at `next` are asked for.
template <size_t R, class D, class Destination, class T, size_t kStride>
HWY_NOINLINE void lastMergingPass(D d, const WorkRows<T, kStride>& work, size_t partStep,
                                  const Destination& destination, size_t n, const T* w,
                                  const T* next) {
  constexpr size_t kStep = Twiddled<R>::kFactors * 2 * MaxLanes(D());
  for (size_t q = 0; q < n / R; ++q, w += kStep, next += R * kStride) {
    prefetch<R * kStride, false>(next);
    transformRows<R>(d, work, q, partStep, destination, q, n / R, VectorFactors<T>{w});
  }
}

// All passes of the inverse transform but the last one, over the rows of a unit.
template <size_t kColumns, class D, class T>
HWY_INLINE void mergeUnit(D d, const ConvolutionPlan<T>& plan, size_t base, T* rows) {
  constexpr size_t kLanes = MaxLanes(D());
  size_t part = 1;
  for (int i = plan.passes.count - 1; i > 0; --i) {
    const size_t radix = plan.passes.radices[i];
    for (size_t t = 0; t < kColumns; t += kLanes) {
      const WorkRows<T, 2 * kColumns> work = {rows + 2 * t};
      const T* const w = plan.inverseFactors(i, t, part);
      if (radix == 16) {
        mergingPass<16>(d, work, base, plan.unitRows(), part, w);
      } else if (radix == 8) {
        mergingPass<8>(d, work, base, plan.unitRows(), part, w);
      } else {
        mergingPass<4>(d, work, base, plan.unitRows(), part, w);
      }
    }
    part *= radix;
  }
}

template <size_t kColumns, class D, class T>
HWY_INLINE void convolve(D d, const ConvolutionPlan<T>& plan, const T* spectrum, const T* src,
                         const T* next, T* dst, size_t firstRow, T* work) {
  constexpr size_t kLanes = MaxLanes(D());
  constexpr size_t kRow = 2 * kColumns;
  using Source = InterleavedSource<T, false>;
  using Destination = InterleavedDestination<T, true>;
  const ColumnPasses<T>& passes = plan.passes;
  const size_t radix = passes.radices[0];
  const size_t part = plan.rows / radix;
  const size_t unit = plan.unitRows();
  const size_t partStep = unit == part ? plan.unitStep() : part;
  const Source source = {src};
  for (size_t t = 0; t < kColumns; t += kLanes) {
    const StridedRows<Source> from = {source, t, kColumns};
    const WorkRows<T, kRow> to = {work + 2 * t};
    if (radix == 16) {
      firstPass<16>(d, from, to, plan.rows, partStep);
    } else {
      firstPass<8>(d, from, to, plan.rows, partStep);
    }
  }
  for (size_t base = 0; base < plan.rows; base += unit) {
    T* const rows = work + base / unit * kRow;
    for (size_t t = 0; t < kColumns; t += kLanes) {
      laterPasses(d, WorkRows<T, kRow>{rows + 2 * t}, base, unit, true, part, passes);
    }
    for (size_t k = base; k < base + unit; k += kLanes) {
      if (k >= firstRow) prefetch<kLanes * kRow, true>(dst + (k - firstRow) * kRow);
      convolveBlock<kColumns>(d, plan.rowTwiddles + k / kLanes * blockFactors<kColumns>(d),
                              spectrum + k * kRow, rows + k * kRow);
    }
    mergeUnit<kColumns>(d, plan, base, rows);
  }
  // Where the first result would be; what lies in front of dst is not stored.
  const Destination destination = {dst - firstRow * kRow};
  for (size_t t = 0; t < kColumns; t += kLanes) {
    const WorkRows<T, kRow> from = {work + 2 * t};
    const ResultRows<Destination> to = {{destination, t, kColumns}, firstRow};
    const T* const w = plan.inverseFactors(0, t, part);
    if (radix == 16) {
      lastMergingPass<16>(d, from, partStep, to, plan.rows, w, next);
    } else {
      lastMergingPass<8>(d, from, partStep, to, plan.rows, w, next);
    }
  }
}

template <class T, size_t kColumns>
void RunConvolution(const FftConvolution<T>& convolution, const T* spectrum, const T* src,
                    const T* next, T* dst, size_t firstRow, T* work) {
  convolve<kColumns>(FftTag<T>(), static_cast<const ConvolutionPlan<T>&>(convolution), spectrum,
                     src, next, dst, firstRow, work);
}

// Lengths whose work memory stays in the second cache and that take two passes or more.
template <class T>
VekStatus BindConvolution(int order, ConvolutionPlan<T>* plan) {
  constexpr size_t kLanes = MaxLanes(FftTag<T>());
  constexpr size_t kColumns = HWY_MAX(kLanes, 8);
  const size_t n = size_t{1} << order;
  if (n < 32 * kColumns || n > kMostMediumBytes / (2 * sizeof(T))) return vekStsOk;
  plan->kernel = &RunConvolution<T, kColumns>;
  plan->rows = n / kColumns;
  plan->columns = kColumns;
  plan->lanes = kLanes;
  plan->fusesTwiddles = kFusesTwiddles;
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
