// Contexts of the complex floating-point transforms, for the families that build on them too.
#ifndef VEKS_TRANSFORM_FFT_COMPLEX_H
#define VEKS_TRANSFORM_FFT_COMPLEX_H

#include "transform/fft/context.h"

struct VeksFFTContext_C_32fc : veks::FloatFftContext<float, 4> {};
struct VeksFFTContext_C_32f : veks::FloatFftContext<float, 5> {};
struct VeksFFTContext_C_64fc : veks::FloatFftContext<double, 7> {};
struct VeksFFTContext_C_64f : veks::FloatFftContext<double, 8> {};

static_assert(sizeof(void*) != 4 || sizeof(VeksFFTContext_C_32fc) == 76);
static_assert(sizeof(void*) != 4 || sizeof(VeksFFTContext_C_64fc) == 80);

namespace veks {

// The kernels of the active target for interleaved values.
VekStatus bindInterleavedFft(int order, FftPlan<float>* plan, FftShape* shape);
VekStatus bindInterleavedFft(int order, FftPlan<double>* plan, FftShape* shape);

// A context whose kernels bind(order, plan, shape) chooses.
template <class Context, class Bind>
VekStatus makeComplexFft(Context** result, int order, int flag, VekHintAlgorithm hint,
                         const Bind& bind) {
  using T = typename Context::Value;
  Context* context = nullptr;
  const VekStatus status = allocateContext(&context, result, order, flag);
  if (status != vekStsOk) return status;
  setFactors(context, order, flag, hint);
  FftPlan<T>* const plan =
      makePlan<T>(order, forwardFactor(*context), inverseFactor(*context), bind);
  if (plan == nullptr) {
    veksFree(context);
    return vekErrMemAllocTooSmall;
  }
  context->tables[0] = plan;
  context->workSize = complexWorkSize(*plan);
  context->id = Context::kId;
  *result = context;
  return vekStsOk;
}

template <class Context>
const FftPlan<typename Context::Value>& planOf(const Context& context) {
  return *static_cast<const FftPlan<typename Context::Value>*>(context.tables[0]);
}

// The transform in one direction of the context's plan. Interleaved values are given twice.
template <class Context, class T = typename Context::Value>
VekStatus transformComplex(const Context* context, FftDirection<T> FftPlan<T>::*direction,
                           const T* re, const T* im, T* dstRe, T* dstIm, Vek8u* buffer) {
  const VekStatus status = checkContext(context);
  if (status != vekStsOk) return status;
  if (re == nullptr || im == nullptr || dstRe == nullptr || dstIm == nullptr) return vekErrNullPtr;
  return runPlan(planOf(*context).*direction, re, im, dstRe, dstIm, buffer, context->workSize);
}

template <class Context, class C, class T = typename Context::Value>
VekStatus transformPairs(const Context* context, FftDirection<T> FftPlan<T>::*direction,
                         const C* src, C* dst, Vek8u* buffer) {
  const T* const pairs = reinterpret_cast<const T*>(src);
  T* const dstPairs = reinterpret_cast<T*>(dst);
  return transformComplex(context, direction, pairs, pairs, dstPairs, dstPairs, buffer);
}

}  // namespace veks

#endif
