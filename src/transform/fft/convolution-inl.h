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

// The last one, from parts that are `partStep` rows apart.
template <size_t R, class D, class Destination, class T, size_t kStride>
HWY_NOINLINE void lastMergingPass(D d, const WorkRows<const T, kStride>& work, size_t partStep,
                                  const Destination& destination, size_t n, const T* w) {
  constexpr size_t kStep = Twiddled<R>::kFactors * 2 * MaxLanes(D());
  for (size_t q = 0; q < n / R; ++q, w += kStep) {
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

// The last pass of the inverse transform over all columns.
template <size_t kColumns, class D, class Destination, class T>
HWY_INLINE void lastMergingPasses(D d, const ConvolutionPlan<T>& plan, const T* work,
                                  const Destination& destination, size_t firstRow) {
  constexpr size_t kLanes = MaxLanes(D());
  const size_t radix = plan.passes.radices[0];
  const size_t part = plan.rows / radix;
  for (size_t t = 0; t < kColumns; t += kLanes) {
    const WorkRows<const T, 2 * kColumns> from = {work + 2 * t};
    const ResultRows<Destination> to = {{destination, t, kColumns}, firstRow};
    const T* const w = plan.inverseFactors(0, t, part);
    if (radix == 16) {
      lastMergingPass<16>(d, from, plan.partStep(), to, plan.rows, w);
    } else {
      lastMergingPass<8>(d, from, plan.partStep(), to, plan.rows, w);
    }
  }
}

// Whether two vectors that are stored one after the other fill a line: halves of lines that meet
// later would be written past the caches one by one.
template <class D, class T>
HWY_INLINE bool canStream(D /*d*/, const T* dst) {
  constexpr size_t kLine = 64;
  return 2 * MaxLanes(D()) * sizeof(T) >= kLine && reinterpret_cast<uintptr_t>(dst) % kLine == 0;
}

template <size_t kColumns, class D, class T>
HWY_INLINE void convolve(D d, const ConvolutionPlan<T>& plan, const T* spectrum,
                         const ConvolutionEnds<T>& ends, T* work) {
  constexpr size_t kLanes = MaxLanes(D());
  constexpr size_t kRow = 2 * kColumns;
  using Source = InterleavedSource<T, false>;
  using Destination = InterleavedDestination<T, true>;
  const ColumnPasses<T>& passes = plan.passes;
  const size_t radix = passes.radices[0];
  const size_t part = plan.rows / radix;
  const size_t unit = plan.unitRows();
  const Source source = {ends.src};
  for (size_t t = 0; t < kColumns; t += kLanes) {
    const StridedRows<Source> from = {source, t, kColumns};
    const WorkRows<T, kRow> to = {work + 2 * t};
    if (radix == 16) {
      firstPass<16>(d, from, to, plan.rows, plan.partStep());
    } else {
      firstPass<8>(d, from, to, plan.rows, plan.partStep());
    }
  }
  const bool streams = ends.pastCaches && canStream(d, ends.dst);
  // Where the first result would be; what lies in front of dst is not stored.
  T* const results = ends.dst - ends.firstRow * kRow;
  for (size_t base = 0; base < plan.rows; base += unit) {
    T* const rows = work + base / unit * kRow;
    for (size_t t = 0; t < kColumns; t += kLanes) {
      laterPasses(d, WorkRows<T, kRow>{rows + 2 * t}, base, unit, true, part, passes);
    }
    for (size_t k = base; k < base + unit; k += kLanes) {
      prefetch<kLanes * kRow, false>(ends.next + k * kRow);
      if (!streams && k >= ends.firstRow) prefetch<kLanes * kRow, true>(results + k * kRow);
      convolveBlock<kColumns>(d, plan.rowTwiddles + k / kLanes * blockFactors<kColumns>(d),
                              spectrum + k * kRow, rows + k * kRow);
    }
    mergeUnit<kColumns>(d, plan, base, rows);
  }
  const Destination destination = {results};
  if (streams) {
    return lastMergingPasses<kColumns>(d, plan, work, destination.streaming(), ends.firstRow);
  }
  lastMergingPasses<kColumns>(d, plan, work, destination, ends.firstRow);
}

template <class T, size_t kColumns>
void RunConvolution(const FftConvolution<T>& convolution, const T* spectrum,
                    const ConvolutionEnds<T>& ends, T* work) {
  convolve<kColumns>(FftTag<T>(), static_cast<const ConvolutionPlan<T>&>(convolution), spectrum,
                     ends, work);
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
