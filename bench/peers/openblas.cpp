// OpenBLAS, on one thread, for the operations that are one of its first level: y = a * x + y with
// a = 1 or -1, and y = a * y.
#include <cblas.h>

#include <cmath>

#include "stats/reductions.h"
#include "stats/sum_agreement.h"

namespace veks::bench {
namespace {

constexpr const char* kName = "OpenBLAS";

template <class... P, class A>
Peer scale(void (*function)(P...), A a) {
  return peerWith(kName, function, kLen, a, kDst, 1);
}

template <class... P, class A>
Peer addMultiple(void (*function)(P...), A a) {
  return peerWith(kName, function, kLen, a, kSrc1, 1, kDst, 1);
}

// Complex constants are passed by address.
constexpr float kOne32fc[] = {1, 0};
constexpr double kOne64fc[] = {1, 0};
constexpr float kMinusOne32fc[] = {-1, 0};
constexpr double kMinusOne64fc[] = {-1, 0};

// Norms: sums of magnitudes, roots of sums of squares, and the position of the largest magnitude.
template <class T, class R, R (*sum)(int, const T*, int)>
void norm(const T* src, int len, R* result) {
  *result = sum(len, src, 1);
}

template <class T, size_t (*position)(int, const T*, int)>
void largest(const T* src, int len, T* result) {
  *result = std::fabs(src[position(len, src, 1)]);
}

template <class R, class T>
Peer nearSum(void (*function)(const T*, int, R*)) {
  return approximate(sumAgreement<R>(), reduction(kName, function));
}

template <class T, class R, R (*function)(int, const T*, int, const T*, int)>
void dot(const T* src1, const T* src2, int len, R* result) {
  *result = function(len, src1, 1, src2, 1);
}

template <void (*function)(int, const void*, int, const void*, int, void*), class C>
void complexDot(const C* src1, const C* src2, int len, C* result) {
  function(len, src1, 1, src2, 1, result);
}

template <class T, class R>
Peer reorderedDot(void (*function)(const T*, const T*, int, R*)) {
  return reordered<R>(reduction(kName, function));
}

std::vector<OptionalPeer> onOneThread() {
  openblas_set_num_threads(1);
  return {
      {"veksAdd_32f_I", addMultiple(cblas_saxpy, 1.0F)},
      {"veksAdd_64f_I", addMultiple(cblas_daxpy, 1.0)},
      {"veksAdd_32fc_I", addMultiple(cblas_caxpy, kOne32fc)},
      {"veksAdd_64fc_I", addMultiple(cblas_zaxpy, kOne64fc)},
      {"veksSub_32f_I", addMultiple(cblas_saxpy, -1.0F)},
      {"veksSub_64f_I", addMultiple(cblas_daxpy, -1.0)},
      {"veksSub_32fc_I", addMultiple(cblas_caxpy, kMinusOne32fc)},
      {"veksSub_64fc_I", addMultiple(cblas_zaxpy, kMinusOne64fc)},
      {"veksMulC_32f_I", scale(cblas_sscal, kInPlaceFactor)},
      {"veksMulC_64f_I", scale(cblas_dscal, kInPlaceFactor)},
      {"veksMulC_32fc_I", scale(cblas_cscal, kMinusOne32fc)},
      {"veksMulC_64fc_I", scale(cblas_zscal, kMinusOne64fc)},
      {"veksNorm_Inf_32f", reduction(kName, largest<float, cblas_isamax>)},
      {"veksNorm_Inf_64f", reduction(kName, largest<double, cblas_idamax>)},
      {"veksNorm_L1_32f", nearSum(norm<float, float, cblas_sasum>)},
      {"veksNorm_L1_64f", nearSum(norm<double, double, cblas_dasum>)},
      {"veksNorm_L2_32f", nearSum(norm<float, float, cblas_snrm2>)},
      {"veksNorm_L2_64f", nearSum(norm<double, double, cblas_dnrm2>)},
      {"veksDotProd_32f", reorderedDot(dot<float, float, cblas_sdot>)},
      {"veksDotProd_64f", reorderedDot(dot<double, double, cblas_ddot>)},
      // It adds blocks of products in single precision.
      {"veksDotProd_32f64f", approximate(withinRelative<Vek64f>(1e-4),
                                         reduction(kName, dot<float, double, cblas_dsdot>))},
      {"veksDotProd_32fc", reorderedDot(complexDot<cblas_cdotu_sub, Vek32fc>)},
      {"veksDotProd_64fc", reorderedDot(complexDot<cblas_zdotu_sub, Vek64fc>)},
  };
}

const OptionalPeers peers(onOneThread());

}  // namespace
}  // namespace veks::bench
