#include "transform/fft/convolution.h"

#include "core/targets.h"
#include "transform/fft/context.h"
#include "transform/fft/convolution_plan.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "transform/fft/convolution-inl.h"
#include <hwy/foreach_target.h>

#include "transform/fft/convolution-inl.h"

namespace veks {
namespace {

// The frequency of the columns that a row has after the forward passes.
template <class T>
size_t frequencyOf(const ColumnPasses<T>& passes, size_t row) {
  const size_t radix = passes.radices[passes.count - 1];
  return passes.firstOfGroup[row / radix] + row % radix * (passes.length / radix);
}

// The factors of the forward transform's rows: as many rows as there are lanes at a time.
template <class T>
const T* makeRowTwiddles(const ConvolutionPlan<T>& plan, Arena* arena) {
  const size_t count = factorCount(plan.columns, plan.fusesTwiddles);
  T* const twiddles = arena->take<T>(2 * count * plan.rows);
  if (arena->isCounting()) return nullptr;
  T* w = twiddles;
  for (size_t first = 0; first < plan.rows; first += plan.lanes) {
    for (size_t f = 0; f < count; ++f, w += 2 * plan.lanes) {
      for (size_t l = 0; l < plan.lanes; ++l) {
        storeTwiddleFactor(f, plan.columns, plan.fusesTwiddles, frequencyOf(plan.passes, first + l),
                           plan.rows * plan.columns, w + l, w + plan.lanes + l);
      }
    }
  }
  return twiddles;
}

// Those of a pass of the inverse transform that makes transforms of n points of shorter ones.
template <class T>
const T* makeInverseTwiddles(const ConvolutionPlan<T>& plan, size_t radix, size_t n, Arena* arena) {
  const size_t count = factorCount(radix, plan.fusesTwiddles);
  T* const twiddles = arena->take<T>(2 * count * (n / radix));
  if (arena->isCounting()) return nullptr;
  T* w = twiddles;
  for (size_t tile = 0; tile < plan.columns; tile += plan.lanes) {
    for (size_t first = tile; first < n / radix; first += plan.columns) {
      for (size_t f = 0; f < count; ++f, w += 2 * plan.lanes) {
        for (size_t l = 0; l < plan.lanes; ++l) {
          const size_t j = first + laneOrder<T>(Layout::kInterleaved, plan.lanes, l);
          storeTwiddleFactor(f, radix, plan.fusesTwiddles, j, n, w + l, w + plan.lanes + l);
        }
      }
    }
  }
  return twiddles;
}

template <class T>
void makeConvolutionTables(ConvolutionPlan<T>* plan, Arena* arena) {
  makePasses(plan->rows, plan->fusesTwiddles, &plan->passes, arena);
  plan->rowTwiddles = makeRowTwiddles(*plan, arena);
  size_t n = plan->rows * plan->columns;
  for (int i = 0; i < plan->passes.count; ++i) {
    const size_t radix = plan->passes.radices[i];
    plan->inverseTwiddles[i] = makeInverseTwiddles(*plan, radix, n, arena);
    n /= radix;
  }
}

VekStatus bindConvolution(int order, ConvolutionPlan<Vek32f>* plan) {
  return VEKS_KERNEL(BindConvolution<Vek32f>)(order, plan);
}
VekStatus bindConvolution(int order, ConvolutionPlan<Vek64f>* plan) {
  return VEKS_KERNEL(BindConvolution<Vek64f>)(order, plan);
}

}  // namespace

void finishResults() {
  hwy::FlushStream();
}

template <class T>
VekStatus makeConvolution(int order, FftConvolution<T>** result) {
  ConvolutionPlan<T> plan = {};
  *result = nullptr;
  bindConvolution(order, &plan);
  if (plan.kernel == nullptr) return vekStsOk;
  Arena counter(nullptr);
  makeConvolutionTables(&plan, &counter);
  plan.workElements = plan.neededElements();
  void* const block = allocate(sizeof(plan) + Arena::kAlignment + counter.used());
  if (block == nullptr) return vekErrMemAllocTooSmall;
  ConvolutionPlan<T>* const made = static_cast<ConvolutionPlan<T>*>(block);
  *made = plan;
  Arena arena(alignUp(made + 1, Arena::kAlignment));
  makeConvolutionTables(made, &arena);
  *result = made;
  return vekStsOk;
}

template <class T>
void arrangeSpectrum(const FftConvolution<T>& convolution, const T* natural, T* spectrum) {
  const auto& plan = static_cast<const ConvolutionPlan<T>&>(convolution);
  const T factor = 1 / static_cast<T>(plan.rows * plan.columns);
  T* to = spectrum;
  for (size_t first = 0; first < plan.rows; first += plan.lanes) {
    for (size_t r = 0; r < plan.columns; ++r, to += 2 * plan.lanes) {
      for (size_t l = 0; l < plan.lanes; ++l) {
        const T* const from = natural + 2 * (frequencyOf(plan.passes, first + l) + r * plan.rows);
        to[l] = factor * from[0];
        to[plan.lanes + l] = factor * from[1];
      }
    }
  }
}

template VekStatus makeConvolution(int, FftConvolution<Vek32f>**);
template VekStatus makeConvolution(int, FftConvolution<Vek64f>**);
template void arrangeSpectrum(const FftConvolution<Vek32f>&, const Vek32f*, Vek32f*);
template void arrangeSpectrum(const FftConvolution<Vek64f>&, const Vek64f*, Vek64f*);

}  // namespace veks
