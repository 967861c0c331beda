// Array expressions of Eigen.
#include <complex>

#include "comparisons.h"
#include "peers/eigen_arrays.h"
#include "peers/eigen_reductions.h"
#include "peers/eigen_sums.h"
#include "stats/reductions.h"
#include "stats/sum_agreement.h"

namespace veks::bench {
namespace {

using namespace plain;  // the names of the operations

constexpr const char* kName = "Eigen";

template <class Op, class T>
Peer unary() {
  return peer(kName, eigen::Unary<Op, T>::separate);
}

template <class Op, class T>
Peer binary() {
  return peer(kName, eigen::Binary<Op, T>::separate);
}

template <class Op, class T>
Peer binaryInPlace() {
  return peer(kName, eigen::Binary<Op, T>::inPlace);
}

template <class Op, class T>
Peer withConstant() {
  return peer(kName, eigen::WithConstant<Op, T>::separate, constant<T>());
}

template <class Op, class T>
Peer withConstantInPlace() {
  return peer(kName, eigen::WithConstant<Op, T>::inPlace, constant<T>());
}

template <class T>
Peer accumulate() {
  return peer(kName, eigen::Accumulate<T>::addProduct);
}

template <class S, class T>
Peer convert() {
  return peer(kName, eigen::Convert<S, T>::separate);
}

template <class T, class R>
Peer normalize() {
  return peer(kName, eigen::Normalize<T, R>::separate, constant<T>(), constant<R>());
}

template <class Side, class T>
Peer threshold() {
  return peer(kName, eigen::Threshold<Side, T>::separate, level<T>());
}

template <class Side, class T>
Peer thresholdValue() {
  return peer(kName, eigen::ThresholdValue<Side, T>::separate, level<T>(), constant<T>());
}

// Fused operations, approximate roots and quotients by other formulas.
template <class T>
Peer near(Peer peer) {
  return approximate(nearAgreement<T>(), std::move(peer));
}

template <class Side, class T>
Peer extreme() {
  return reduction(kName, eigen::Extreme<Side, T>::value);
}

template <class Side, class T>
Peer extremeAndIndex() {
  return reduction(kName, eigen::Extreme<Side, T>::valueAndIndex);
}

// Sums in another order.
template <class Kind, class T>
Peer norm() {
  return approximate(sumAgreement<T>(), reduction(kName, eigen::Norm<Kind, T>::own));
}

template <class Kind, class T>
Peer normOfDifference() {
  return approximate(sumAgreement<T>(), reduction(kName, eigen::Norm<Kind, T>::ofDifference));
}

template <class T, class E = T>
Peer sum() {
  return reordered<T>(reduction(kName, eigen::sum<T, E>));
}

template <class T, class E = T>
Peer dot() {
  return reordered<T>(reduction(kName, eigen::dot<T, E>));
}

const OptionalPeers peers({
    {"veksSum_32f:fast", sum<Vek32f>()},
    {"veksSum_64f", sum<Vek64f>()},
    {"veksSum_32fc", sum<Vek32fc, std::complex<float>>()},
    {"veksSum_64fc", sum<Vek64fc, std::complex<double>>()},
    {"veksDotProd_32f", dot<Vek32f>()},
    {"veksDotProd_64f", dot<Vek64f>()},
    {"veksDotProd_32fc", dot<Vek32fc, std::complex<float>>()},
    {"veksDotProd_64fc", dot<Vek64fc, std::complex<double>>()},

    {"veksAdd_32f", binary<Add, Vek32f>()},
    {"veksAdd_32f_I", binaryInPlace<Add, Vek32f>()},
    {"veksAdd_64f", binary<Add, Vek64f>()},
    {"veksAdd_64f_I", binaryInPlace<Add, Vek64f>()},
    {"veksAdd_32fc", binary<Add, Vek32fc>()},
    {"veksAdd_32fc_I", binaryInPlace<Add, Vek32fc>()},
    {"veksAdd_64fc", binary<Add, Vek64fc>()},
    {"veksAdd_64fc_I", binaryInPlace<Add, Vek64fc>()},
    {"veksSub_32f", binary<Sub, Vek32f>()},
    {"veksSub_32f_I", binaryInPlace<Sub, Vek32f>()},
    {"veksSub_64f", binary<Sub, Vek64f>()},
    {"veksSub_64f_I", binaryInPlace<Sub, Vek64f>()},
    {"veksSub_32fc", binary<Sub, Vek32fc>()},
    {"veksSub_32fc_I", binaryInPlace<Sub, Vek32fc>()},
    {"veksSub_64fc", binary<Sub, Vek64fc>()},
    {"veksSub_64fc_I", binaryInPlace<Sub, Vek64fc>()},
    {"veksMul_32f", binary<Mul, Vek32f>()},
    {"veksMul_64f", binary<Mul, Vek64f>()},
    {"veksMul_32fc", near<Vek32fc>(binary<Mul, Vek32fc>())},
    {"veksMul_64fc", near<Vek64fc>(binary<Mul, Vek64fc>())},
    {"veksDiv_32f", binary<Div, Vek32f>()},
    {"veksDiv_64f", binary<Div, Vek64f>()},
    {"veksDiv_32fc", near<Vek32fc>(binary<Div, Vek32fc>())},
    {"veksDiv_64fc", near<Vek64fc>(binary<Div, Vek64fc>())},
    {"veksAddC_32f", withConstant<Add, Vek32f>()},
    {"veksAddC_32f_I", withConstantInPlace<Add, Vek32f>()},
    {"veksAddC_64f", withConstant<Add, Vek64f>()},
    {"veksAddC_64f_I", withConstantInPlace<Add, Vek64f>()},
    {"veksAddC_32fc", withConstant<Add, Vek32fc>()},
    {"veksAddC_32fc_I", withConstantInPlace<Add, Vek32fc>()},
    {"veksAddC_64fc", withConstant<Add, Vek64fc>()},
    {"veksAddC_64fc_I", withConstantInPlace<Add, Vek64fc>()},
    {"veksSubC_32f", withConstant<SubC, Vek32f>()},
    {"veksSubC_32f_I", withConstantInPlace<SubC, Vek32f>()},
    {"veksSubC_64f", withConstant<SubC, Vek64f>()},
    {"veksSubC_64f_I", withConstantInPlace<SubC, Vek64f>()},
    {"veksSubC_32fc", withConstant<SubC, Vek32fc>()},
    {"veksSubC_32fc_I", withConstantInPlace<SubC, Vek32fc>()},
    {"veksSubC_64fc", withConstant<SubC, Vek64fc>()},
    {"veksSubC_64fc_I", withConstantInPlace<SubC, Vek64fc>()},
    {"veksSubCRev_32f", withConstant<Sub, Vek32f>()},
    {"veksSubCRev_32f_I", withConstantInPlace<Sub, Vek32f>()},
    {"veksSubCRev_64f", withConstant<Sub, Vek64f>()},
    {"veksSubCRev_64f_I", withConstantInPlace<Sub, Vek64f>()},
    {"veksSubCRev_32fc", withConstant<Sub, Vek32fc>()},
    {"veksSubCRev_32fc_I", withConstantInPlace<Sub, Vek32fc>()},
    {"veksSubCRev_64fc", withConstant<Sub, Vek64fc>()},
    {"veksSubCRev_64fc_I", withConstantInPlace<Sub, Vek64fc>()},
    {"veksMulC_32f", withConstant<Mul, Vek32f>()},
    {"veksMulC_64f", withConstant<Mul, Vek64f>()},
    {"veksMulC_32fc", near<Vek32fc>(withConstant<Mul, Vek32fc>())},
    {"veksMulC_64fc", near<Vek64fc>(withConstant<Mul, Vek64fc>())},
    {"veksDivCRev_32f", withConstant<Div, Vek32f>()},
    {"veksAbs_32f", unary<Abs, Vek32f>()},
    {"veksAbs_64f", unary<Abs, Vek64f>()},
    {"veksSqr_32f", unary<Sqr, Vek32f>()},
    {"veksSqr_64f", unary<Sqr, Vek64f>()},
    {"veksSqr_32fc", near<Vek32fc>(unary<Sqr, Vek32fc>())},
    {"veksSqr_64fc", near<Vek64fc>(unary<Sqr, Vek64fc>())},
    {"veksSqrt_32f", near<Vek32f>(unary<Sqrt, Vek32f>())},
    {"veksSqrt_64f", near<Vek64f>(unary<Sqrt, Vek64f>())},
    {"veksAddProduct_32f", accumulate<Vek32f>()},
    {"veksAddProduct_64f", accumulate<Vek64f>()},
    {"veksAddProduct_32fc", approximate(productSumAgreement<Vek32fc>(), accumulate<Vek32fc>())},
    {"veksAddProduct_64fc", approximate(productSumAgreement<Vek64fc>(), accumulate<Vek64fc>())},
    {"veksConvert_8s16s", convert<Vek8s, Vek16s>()},
    {"veksConvert_8u16s", convert<Vek8u, Vek16s>()},
    {"veksConvert_16s32s", convert<Vek16s, Vek32s>()},
    {"veksConvert_16s32f", convert<Vek16s, Vek32f>()},
    {"veksConvert_16u32f", convert<Vek16u, Vek32f>()},
    {"veksConvert_8s32f", convert<Vek8s, Vek32f>()},
    {"veksConvert_8u32f", convert<Vek8u, Vek32f>()},
    {"veksConvert_32s32f", convert<Vek32s, Vek32f>()},
    {"veksConvert_32s64f", convert<Vek32s, Vek64f>()},
    {"veksConvert_16s64f", convert<Vek16s, Vek64f>()},
    {"veksConvert_32f64f", convert<Vek32f, Vek64f>()},
    {"veksConvert_64f32f", convert<Vek64f, Vek32f>()},
    {"veksConvert_64s64f", convert<Vek64s, Vek64f>()},
    {"veksConvert_32fc64fc", convert<Vek32fc, Vek64fc>()},
    {"veksConvert_64fc32fc", convert<Vek64fc, Vek32fc>()},
    {"veksNormalize_32f", normalize<Vek32f, Vek32f>()},
    {"veksNormalize_64f", normalize<Vek64f, Vek64f>()},
    {"veksNormalize_32fc", normalize<Vek32fc, Vek32f>()},
    {"veksNormalize_64fc", normalize<Vek64fc, Vek64f>()},
    {"veksThreshold_LT_16s", threshold<Below, Vek16s>()},
    {"veksThreshold_LTVal_16s", thresholdValue<Below, Vek16s>()},
    {"veksThreshold_LT_32s", threshold<Below, Vek32s>()},
    {"veksThreshold_LTVal_32s", thresholdValue<Below, Vek32s>()},
    {"veksThreshold_LT_32f", threshold<Below, Vek32f>()},
    {"veksThreshold_LTVal_32f", thresholdValue<Below, Vek32f>()},
    {"veksThreshold_LT_64f", threshold<Below, Vek64f>()},
    {"veksThreshold_LTVal_64f", thresholdValue<Below, Vek64f>()},
    {"veksThreshold_GT_16s", threshold<Above, Vek16s>()},
    {"veksThreshold_GTVal_16s", thresholdValue<Above, Vek16s>()},
    {"veksThreshold_GT_32s", threshold<Above, Vek32s>()},
    {"veksThreshold_GTVal_32s", thresholdValue<Above, Vek32s>()},
    {"veksThreshold_GT_32f", threshold<Above, Vek32f>()},
    {"veksThreshold_GTVal_32f", thresholdValue<Above, Vek32f>()},
    {"veksThreshold_GT_64f", threshold<Above, Vek64f>()},
    {"veksThreshold_GTVal_64f", thresholdValue<Above, Vek64f>()},
    {"veksMin_16s", extreme<Less, Vek16s>()},
    {"veksMinIndx_16s", extremeAndIndex<Less, Vek16s>()},
    {"veksMin_32f", extreme<Less, Vek32f>()},
    {"veksMinIndx_32f", extremeAndIndex<Less, Vek32f>()},
    {"veksMin_64f", extreme<Less, Vek64f>()},
    {"veksMinIndx_64f", extremeAndIndex<Less, Vek64f>()},
    {"veksMax_16s", extreme<Greater, Vek16s>()},
    {"veksMaxIndx_16s", extremeAndIndex<Greater, Vek16s>()},
    {"veksMax_32f", extreme<Greater, Vek32f>()},
    {"veksMaxIndx_32f", extremeAndIndex<Greater, Vek32f>()},
    {"veksMax_64f", extreme<Greater, Vek64f>()},
    {"veksMaxIndx_64f", extremeAndIndex<Greater, Vek64f>()},
    {"veksMinMax_16s", reduction(kName, eigen::minMax<Vek16s>)},
    {"veksMinMax_32f", reduction(kName, eigen::minMax<Vek32f>)},
    {"veksMinMax_64f", reduction(kName, eigen::minMax<Vek64f>)},
    {"veksNorm_Inf_32f", norm<NormInf, Vek32f>()},
    {"veksNormDiff_Inf_32f", normOfDifference<NormInf, Vek32f>()},
    {"veksNorm_Inf_64f", norm<NormInf, Vek64f>()},
    {"veksNormDiff_Inf_64f", normOfDifference<NormInf, Vek64f>()},
    {"veksNorm_L1_32f", norm<NormL1, Vek32f>()},
    {"veksNormDiff_L1_32f", normOfDifference<NormL1, Vek32f>()},
    {"veksNorm_L1_64f", norm<NormL1, Vek64f>()},
    {"veksNormDiff_L1_64f", normOfDifference<NormL1, Vek64f>()},
    {"veksNorm_L2_32f", norm<NormL2, Vek32f>()},
    {"veksNormDiff_L2_32f", normOfDifference<NormL2, Vek32f>()},
    {"veksNorm_L2_64f", norm<NormL2, Vek64f>()},
    {"veksNormDiff_L2_64f", normOfDifference<NormL2, Vek64f>()},
});

}  // namespace
}  // namespace veks::bench
