// The transforms of whole vectors, by length: N = rows * columns.
//
// Columns of the input, seen as a matrix of `rows` rows, are transformed in the lanes of vectors.
// Blocks of the results are transposed, so that the rows can be transformed in lanes as well,
// twiddle factors included, and end up in natural order.
#if defined(VEKS_TRANSFORM_FFT_KERNELS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_TRANSFORM_FFT_KERNELS_INL_H
#undef VEKS_TRANSFORM_FFT_KERNELS_INL_H
#else
#define VEKS_TRANSFORM_FFT_KERNELS_INL_H
#endif

#include "transform/fft/lanes-inl.h"
#include "transform/fft/pairs-inl.h"
#include "transform/fft/pairs32-inl.h"
#include "transform/fft/passes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// A block of as many frequencies of `kColumns` columns as there are lanes: transposed, then the
// transforms of the rows with the factors at w, times the factor of the whole transform. row(l, t)
// gives vector t of the row whose frequency belongs in lane l.
template <size_t kColumns, Layout layout, bool kScales, class D, class Row, class Destination,
          class OutStep, class T>
HWY_INLINE void transformBlock(D d, const Row& row, const T* w, T factor,
                               const Destination& destination, size_t out, OutStep outStep) {
  using V = hn::Vec<D>;
  constexpr size_t kLanes = MaxLanes(D());
  constexpr size_t kBlock = lanesOfBlock(d);
  constexpr Layout kLayout = kColumnLayout<layout>;
  V re[kColumns];
  V im[kColumns];
  each<kColumns / kLanes>([&](auto t) HWY_ATTR __attribute__((always_inline)) {
    each<kLanes>([&](auto l) HWY_ATTR __attribute__((always_inline)) {
      const Parts<V> y = row(l, t);
      re[t * kLanes + l] = y.re;
      im[t * kLanes + l] = y.im;
    });
    transposeWithinBlocks(d, re + t * kLanes);
    transposeWithinBlocks(d, im + t * kLanes);
  });
  const auto to = destination.template inSteps<kColumns>(out, outStep);
  Parts<V> x[kColumns];
  const auto square = [&](auto i) HWY_ATTR __attribute__((always_inline)) {
    constexpr size_t kFirst = i / kBlock * kLanes + i % kBlock;
    transposeBlockSquare<kBlock>(d, re + kFirst);
    transposeBlockSquare<kBlock>(d, im + kFirst);
    each<kLanes / kBlock>([&](auto q) HWY_ATTR __attribute__((always_inline)) {
      constexpr size_t l = kFirst % kLanes + q * kBlock;
      const size_t column = kFirst / kLanes * kLanes + laneOrder<T>(kLayout, kLanes, l);
      x[column] = {re[kFirst + q * kBlock], im[kFirst + q * kBlock]};
    });
  };
  // A square of blocks at a time where it has the values of one part of the transform.
  constexpr bool kTakesTurns =
      kLayout == Layout::kSplit && kColumns == kLanes && kBlock * 4 == kLanes;
  if constexpr (!kTakesTurns) each<kColumns / kLanes * kBlock>(square);
  Twiddled<kColumns>::run(
      d, x,
      [&](size_t i) HWY_ATTR __attribute__((always_inline)) {
        const T* const at = w + i * 2 * kLanes;
        return Parts<V>{hn::LoadU(d, at), hn::LoadU(d, at + kLanes)};
      },
      [&]([[maybe_unused]] auto i) HWY_ATTR __attribute__((always_inline)) {
        if constexpr (kTakesTurns) square(i);
      },
      [&](auto r) HWY_ATTR __attribute__((always_inline)) {
        Parts<V> y = x[Twiddled<kColumns>::at(r)];
        if constexpr (kScales) {
          const V scale = hn::Set(d, factor);
          y = {hn::Mul(y.re, scale), hn::Mul(y.im, scale)};
        }
        to.store(d, y, r);
      });
}

// Values of the twiddle factors of a block.
template <size_t kColumns, class D>
constexpr size_t blockFactors(D /*d*/) {
  return Twiddled<kColumns>::kFactors * 2 * MaxLanes(D());
}

// Short transforms without loops.
template <size_t kRows, size_t kColumns, Layout layout, class D, class Source, class Destination,
          class T>
HWY_INLINE void transformSmall(D d, const Source& source, const Destination& destination,
                               const FftDirection<T>& direction) {
  constexpr size_t kLanes = MaxLanes(D());
  constexpr size_t kTiles = kColumns / kLanes;
  const T* const w = direction.twiddles;
  Parts<hn::Vec<D>> x[kTiles * kRows];
  each<kTiles>([&](auto t) HWY_ATTR __attribute__((always_inline)) {
    each<kRows>([&](auto k) HWY_ATTR __attribute__((always_inline)) {
      x[t * kRows + k] = source.load(d, k * kColumns + t * kLanes);
    });
    Transform<kRows>::run(d, x + t * kRows);
  });
  each<kRows / kLanes>([&](auto b) HWY_ATTR __attribute__((always_inline)) {
    const auto row = [&](auto l, auto t) HWY_ATTR __attribute__((always_inline)) {
      constexpr size_t k = b * kLanes + laneOrder<T>(layout, kLanes, l);
      return x[t * kRows + Transform<kRows>::at(k)];
    };
    transformBlock<kColumns, layout, true>(d, row, w + b * blockFactors<kColumns>(d),
                                           direction.factor, destination, b * kLanes,
                                           Constant<kRows>());
  });
}

// Transforms whose work memory fits in the caches: each pass works on all columns.
template <size_t kColumns, Layout layout, bool kScales, class D, class Source, class Destination,
          class T>
HWY_INLINE void transformMedium(D d, const FftDirection<T>& direction, const Source& source,
                                const Destination& destination, T* work) {
  constexpr size_t kLanes = MaxLanes(D());
  constexpr size_t kRow = 2 * kColumns;
  const FftPlan<T>& plan = *direction.plan;
  const ColumnPasses<T>& passes = plan.columnPasses;
  for (size_t t = 0; t < kColumns; t += kLanes) {
    const StridedRows<Source> rows = {source, t, kColumns};
    const WorkRows<T, kRow> workRows = {work + 2 * t};
    transformColumns(d, rows, workRows, passes);
  }
  const uint32_t* rowOf = passes.rowOf;
  const T* w = direction.twiddles;
  for (size_t k = 0; k < plan.rows; k += kLanes) {
    const auto row = [&](auto l, auto t) HWY_ATTR __attribute__((always_inline)) {
      constexpr size_t kLane = laneOrder<T>(layout, kLanes, l);
      const T* const at = work + rowOf[k + kLane] * kRow + t * 2 * kLanes;
      return Parts<hn::Vec<D>>{hn::LoadU(d, at), hn::LoadU(d, at + kLanes)};
    };
    transformBlock<kColumns, layout, kScales>(d, row, w, direction.factor, destination, k,
                                              plan.rows);
    w += blockFactors<kColumns>(d);
  }
}

// factor * exp(-2 pi i c k / N) of column c for all rows k: the real parts and the imaginary ones
// in turn.
template <class T>
HWY_INLINE void columnFactors(const FftPlan<T>& plan, size_t column, T factor, T* factors) {
  const size_t mask = (size_t{1} << plan.fineBits) - 1;
  for (size_t k = 0; k < plan.rows; ++k) {
    const size_t e = column * k;  // below N
    const T* const fine = plan.fine + 2 * (e & mask);
    const T* const coarse = plan.coarse + 2 * (e >> plan.fineBits);
    factors[2 * k] = factor * (fine[0] * coarse[0] - fine[1] * coarse[1]);
    factors[2 * k + 1] = factor * (fine[0] * coarse[1] + fine[1] * coarse[0]);
  }
}

// A block of as many frequencies of as many columns as there are lanes: multiplied by their
// factors, transposed, to rows of the matrix of which the second sweep transforms the rows.
template <Layout layout, bool kStreams, class D, class T>
HWY_INLINE void transposeBand(D d, const WorkRows<T, 2 * MaxLanes(D())>& rows,
                              const uint32_t* rowOf, const T* w, const T* factors, T* out) {
  constexpr size_t kLanes = MaxLanes(D());
  constexpr size_t kRow = 2 * kLanes;
  using P = Parts<hn::Vec<D>>;
  P x[kLanes];
  each<kLanes>([&](auto l) HWY_ATTR __attribute__((always_inline)) {
    constexpr size_t kLane = laneOrder<T>(layout, kLanes, l);
    const P lanes = times(P{hn::LoadU(d, w + l * kRow), hn::LoadU(d, w + l * kRow + kLanes)},
                          hn::Set(d, factors[2 * kLane]), hn::Set(d, factors[2 * kLane + 1]));
    x[l] = times(rows.load(d, rowOf[kLane]), lanes.re, lanes.im);
  });
  transposeParts(d, x);
  each<kLanes>([&](auto l) HWY_ATTR __attribute__((always_inline)) {
    T* const to = out + laneOrder<T>(kColumnLayout<layout>, kLanes, l) * kRow;
    storeVector<kStreams>(d, x[l].re, to);
    storeVector<kStreams>(d, x[l].im, to + kLanes);
  });
}

// Transforms past the first caches, in two sweeps: bands of columns, then bands of rows, each
// through work memory that stays in the caches.
template <Layout layout, bool kStreams, class D, class Source, class Destination, class T>
HWY_INLINE void transformLong(D d, const FftDirection<T>& direction, const Source& source,
                              const Destination& destination, T* work) {
  constexpr size_t kLanes = MaxLanes(D());
  constexpr size_t kRow = 2 * kLanes;
  const FftPlan<T>& plan = *direction.plan;
  T* const band = work + 2 * plan.rows * plan.columns;
  T* const factors = band + kRow * HWY_MAX(plan.rows, plan.columns);
  const uint32_t* rowOf = plan.columnPasses.rowOf;
  const WorkRows<T, kRow> bandRows = {band};
  for (size_t c = 0; c < plan.columns; c += kLanes) {
    const StridedRows<Source> rows = {source, c, plan.columns};
    transformColumns(d, rows, bandRows, plan.columnPasses);
    columnFactors(plan, c, direction.factor, factors);
    const T* w = direction.twiddles;
    for (size_t k = 0; k < plan.rows; k += kLanes) {
      T* const out = work + (k / kLanes * plan.columns + c) * kRow;
      transposeBand<layout, kStreams>(d, bandRows, rowOf + k, w, factors + 2 * k, out);
      w += kLanes * kRow;
    }
  }
  if constexpr (kStreams) hwy::FlushStream();
  for (size_t k = 0; k < plan.rows; k += kLanes) {
    const WorkRows<T, kRow> rows = {work + k * 2 * plan.columns};
    const StridedRows<Destination> out = {destination, k, plan.rows};
    transformColumnsTo(d, rows, bandRows, out, plan.rowPasses);
  }
  if constexpr (kStreams) hwy::FlushStream();
}

// Full vectors. Without vectors in hardware, lanes of their own take a tenth of the time to
// compile.
template <class T>
using FftTag = hn::CappedTag<T, HWY_TARGET == HWY_EMU128 ? 1 : MaxLanes(hn::ScalableTag<T>())>;

// What the directions of plans call.
template <class Ends, class T = typename Ends::Value>
void RunPoint(const FftDirection<T>& direction, const T* re, const T* im, T* dstRe, T* dstIm,
              T* /*work*/) {
  const hn::CappedTag<T, 1> d;
  const auto x = Ends::source(re, im).load(d, 0);
  const auto factor = hn::Set(d, direction.factor);
  Ends::destination(dstRe, dstIm)
      .store(d, Parts<hn::Vec<decltype(d)>>{hn::Mul(x.re, factor), hn::Mul(x.im, factor)}, 0);
}

template <class Ends, class T = typename Ends::Value>
void RunPair(const FftDirection<T>& direction, const T* re, const T* im, T* dstRe, T* dstIm,
             T* /*work*/) {
  const hn::CappedTag<T, 1> d;
  const auto source = Ends::source(re, im);
  const auto destination = Ends::destination(dstRe, dstIm);
  const auto factor = hn::Set(d, direction.factor);
  const auto x0 = source.load(d, 0);
  const auto x1 = source.load(d, 1);
  const auto sum = x0 + x1;
  const auto difference = x0 - x1;
  using P = Parts<hn::Vec<decltype(d)>>;
  destination.store(d, P{hn::Mul(sum.re, factor), hn::Mul(sum.im, factor)}, 0);
  destination.store(d, P{hn::Mul(difference.re, factor), hn::Mul(difference.im, factor)}, 1);
}

template <class Ends, size_t kLanes, size_t kRows, size_t kColumns, class T = typename Ends::Value>
void RunSmall(const FftDirection<T>& direction, const T* re, const T* im, T* dstRe, T* dstIm,
              T* /*work*/) {
  const hn::CappedTag<T, kLanes> d;
  transformSmall<kRows, kColumns, Ends::kLayout>(d, Ends::source(re, im),
                                                 Ends::destination(dstRe, dstIm), direction);
}

template <class Ends, size_t kPairs, size_t kRows, size_t kColumns, class T = typename Ends::Value>
void RunSmallPairs(const FftDirection<T>& direction, const T* re, const T* /*im*/, T* dstRe,
                   T* /*dstIm*/, T* /*work*/) {
  const hn::CappedTag<T, 2 * kPairs> d;
  transformSmallPairs<kRows, kColumns, Ends::kIsInverse>(d, re, dstRe, direction.twiddles);
}

template <class Ends, size_t kPoints, class T = typename Ends::Value>
void RunStraightPairs(const FftDirection<T>& direction, const T* re, const T* /*im*/, T* dstRe,
                      T* /*dstIm*/, T* /*work*/) {
  transformStraight<kPoints, Ends::kIsInverse>(hn::CappedTag<T, 2>(), re, dstRe, direction.factor);
}

template <class Ends, size_t kPairs, size_t kRows, class T = typename Ends::Value>
void RunTwoColumns(const FftDirection<T>& direction, const T* re, const T* /*im*/, T* dstRe,
                   T* /*dstIm*/, T* /*work*/) {
  const hn::CappedTag<T, 2 * kPairs> d;
  transformTwoColumns<kRows, Ends::kIsInverse>(d, re, dstRe, direction.factor, direction.twiddles);
}

#if HWY_TARGET == HWY_AVX3
template <class T>
void RunPairsOf32(const FftDirection<T>& direction, const T* re, const T* /*im*/, T* dstRe,
                  T* /*dstIm*/, T* /*work*/) {
  transformPairsOf32(re, dstRe, direction.factor, direction.twiddles);
}
#endif

template <class Ends, size_t kColumns, class T = typename Ends::Value>
void RunMedium(const FftDirection<T>& direction, const T* re, const T* im, T* dstRe, T* dstIm,
               T* work) {
  const FftTag<T> d;
  const auto source = Ends::source(re, im);
  const auto destination = Ends::destination(dstRe, dstIm);
  if (direction.factor == 1) {
    return transformMedium<kColumns, Ends::kLayout, false>(d, direction, source, destination, work);
  }
  transformMedium<kColumns, Ends::kLayout, true>(d, direction, source, destination, work);
}

// Work memory on the stack is aligned, the caller's may not be.
template <class Ends, size_t kColumns, size_t kPoints, class T = typename Ends::Value>
void RunMediumOnStack(const FftDirection<T>& direction, const T* re, const T* im, T* dstRe,
                      T* dstIm, T* /*work*/) {
  HWY_ALIGN T work[2 * kPoints];
  RunMedium<Ends, kColumns>(direction, re, im, dstRe, dstIm, work);
}

// From this size on, writing past the caches is faster.
constexpr size_t kStreamingFftBytes = size_t{8} << 20;

template <class Ends, class T = typename Ends::Value>
void RunLong(const FftDirection<T>& direction, const T* re, const T* im, T* dstRe, T* dstIm,
             T* work) {
  const FftTag<T> d;
  const auto source = Ends::source(re, im);
  const auto destination = Ends::destination(dstRe, dstIm);
  const size_t bytes = 2 * sizeof(T) << direction.plan->order;
  if (bytes >= kStreamingFftBytes && destination.isAlignedFor(d)) {
    return transformLong<Ends::kLayout, true>(d, direction, source, destination.streaming(), work);
  }
  transformLong<Ends::kLayout, false>(d, direction, source, destination, work);
}

// Where values come from and go to.
template <class T, bool kInverse>
struct InterleavedEnds {
  using Value = T;
  static constexpr Layout kLayout = Layout::kInterleaved;
  static constexpr bool kIsInverse = kInverse;
  static HWY_INLINE InterleavedSource<T, kInverse> source(const T* re, const T* /*im*/) {
    return {re};
  }
  static HWY_INLINE InterleavedDestination<T, kInverse> destination(T* re, T* /*im*/) {
    return {re};
  }
};

template <class T>
struct SplitEnds {
  using Value = T;
  static constexpr Layout kLayout = Layout::kSplit;
  static HWY_INLINE SplitSource<T> source(const T* re, const T* im) {
    return {re, im};
  }
  static HWY_INLINE SplitDestination<T> destination(T* re, T* im) {
    return {re, im};
  }
};

// Longer transforms are those of more bytes.
constexpr size_t kMostMediumBytes = size_t{2} << 20;
constexpr size_t kStackPoints = 1024;

template <class Ends, size_t kValues, size_t kRows, size_t kColumns>
HWY_INLINE FftKernel<typename Ends::Value> smallKernel(FftShape* shape) {
  using T = typename Ends::Value;
  constexpr size_t kLanes = MaxLanes(FftTag<T>());
  if constexpr (Ends::kLayout == Layout::kInterleaved && kLanes > 1) {
    constexpr size_t kPairs = HWY_MIN(kValues, kLanes / 2);
    *shape = {FftSize::kSmallPairs,        Ends::kLayout, kPairs, kRows, kColumns, kFusesTwiddles,
              kColumnLayout<Ends::kLayout>};
    return &RunSmallPairs<Ends, kPairs, kRows, kColumns>;
  } else {
    constexpr size_t kUsed = HWY_MIN(kValues, kLanes);
    *shape = {FftSize::kSmall,
              Ends::kLayout,
              kUsed,
              kRows,
              kColumns,
              kFusesTwiddles,
              kColumnLayout<Ends::kLayout>};
    return &RunSmall<Ends, kUsed, kRows, kColumns>;
  }
}

// The kernel of this target for transforms of 2^order points, and how it wants them to be factored.
template <class Ends>
FftKernel<typename Ends::Value> chooseKernel(int order, FftShape* shape) {
  using T = typename Ends::Value;
  constexpr size_t kLanes = MaxLanes(FftTag<T>());
  constexpr size_t kColumns = HWY_MAX(kLanes, 8);
  constexpr bool kInPairs = Ends::kLayout == Layout::kInterleaved && kLanes > 1;
  *shape = {FftSize::kSmall,
            Ends::kLayout,
            1,
            size_t{1} << order,
            1,
            kFusesTwiddles,
            kColumnLayout<Ends::kLayout>};
#if HWY_TARGET == HWY_AVX3
  if constexpr (kLanes == 16 && Ends::kLayout == Layout::kInterleaved) {
    if (order == 5) {
      shape->size = FftSize::kPairsOf32;
      return &RunPairsOf32<T>;
    }
  }
#endif
  switch (order) {
    case 0:
      return &RunPoint<Ends>;
    case 1:
      if constexpr (kInPairs) return &RunStraightPairs<Ends, 2>;
      return &RunPair<Ends>;
    case 2:
      if constexpr (kInPairs) return &RunStraightPairs<Ends, 4>;
      return smallKernel<Ends, 2, 2, 2>(shape);
    case 3:
      if constexpr (kInPairs && sizeof(T) == 8) return &RunStraightPairs<Ends, 8>;
      return smallKernel<Ends, 2, 4, 2>(shape);
    case 4:
      if constexpr (kInPairs && sizeof(T) == 8) {
        constexpr size_t kPairs = HWY_MIN(2, kLanes / 2);
        *shape = {FftSize::kTwoColumns,        Ends::kLayout, kPairs, 8, 2, kFusesTwiddles,
                  kColumnLayout<Ends::kLayout>};
        return &RunTwoColumns<Ends, kPairs, 8>;
      }
      return smallKernel<Ends, 4, 4, 4>(shape);
    case 5:
      return smallKernel<Ends, 4, 8, 4>(shape);
    case 6:
      return smallKernel<Ends, 8, 8, 8>(shape);
    case 7:
      return smallKernel<Ends, 8, 16, 8>(shape);
    default:
      break;
  }
  if constexpr (kLanes == 16) {
    if (order == 8) return smallKernel<Ends, 16, 16, 16>(shape);
  }
  const size_t n = size_t{1} << order;
  if (n > kMostMediumBytes / (2 * sizeof(T))) {
    const size_t rows = size_t{1} << (order + 1) / 2;
    *shape = {FftSize::kLong,
              Ends::kLayout,
              kLanes,
              rows,
              n / rows,
              kFusesTwiddles,
              kColumnLayout<Ends::kLayout>};
    return &RunLong<Ends>;
  }
  const FftSize size = n <= kStackPoints ? FftSize::kMediumOnStack : FftSize::kMedium;
  *shape = {size,
            Ends::kLayout,
            kLanes,
            n / kColumns,
            kColumns,
            kFusesTwiddles,
            kColumnLayout<Ends::kLayout>};
  if (size == FftSize::kMediumOnStack) return &RunMediumOnStack<Ends, kColumns, kStackPoints>;
  return &RunMedium<Ends, kColumns>;
}

// Kernels for both directions. The inverse transform is the forward one with the real and the
// imaginary parts exchanged on both sides, which callers with split parts do themselves.
template <class T>
VekStatus BindInterleavedFft(int order, FftPlan<T>* plan, FftShape* shape) {
  plan->forward.kernel = chooseKernel<InterleavedEnds<T, false>>(order, shape);
  plan->inverse.kernel = chooseKernel<InterleavedEnds<T, true>>(order, shape);
  return vekStsOk;
}

template <class T>
VekStatus BindSplitFft(int order, FftPlan<T>* plan, FftShape* shape) {
  plan->forward.kernel = plan->inverse.kernel = chooseKernel<SplitEnds<T>>(order, shape);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
