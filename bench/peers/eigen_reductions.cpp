#include "peers/eigen_reductions.h"

#include <Eigen/Core>

#include "veks/types.h"

namespace veks::bench::eigen {
namespace {

using namespace plain;  // the names of the operations

template <class T>
Eigen::Map<const Eigen::Matrix<T, Eigen::Dynamic, 1>> vector(const T* p, int len) {
  return {p, len};
}

template <class V, class... Index>
auto extreme(Less /*side*/, const V& v, Index*... index) {
  return v.minCoeff(index...);
}
template <class V, class... Index>
auto extreme(Greater /*side*/, const V& v, Index*... index) {
  return v.maxCoeff(index...);
}

template <class V>
auto norm(NormInf /*kind*/, const V& v) {
  return v.template lpNorm<Eigen::Infinity>();
}
template <class V>
auto norm(NormL1 /*kind*/, const V& v) {
  return v.template lpNorm<1>();
}
template <class V>
auto norm(NormL2 /*kind*/, const V& v) {
  return v.norm();
}

}  // namespace

template <class Side, class T>
void Extreme<Side, T>::value(const T* src, int len, T* result) {
  *result = extreme(Side(), vector(src, len));
}

template <class Side, class T>
void Extreme<Side, T>::valueAndIndex(const T* src, int len, T* result, int* index) {
  *result = extreme(Side(), vector(src, len), index);
}

template <class T>
void minMax(const T* src, int len, T* min, T* max) {
  *min = vector(src, len).minCoeff();
  *max = vector(src, len).maxCoeff();
}

template <class Kind, class T>
void Norm<Kind, T>::own(const T* src, int len, T* result) {
  *result = norm(Kind(), vector(src, len));
}

template <class Kind, class T>
void Norm<Kind, T>::ofDifference(const T* src1, const T* src2, int len, T* result) {
  *result = norm(Kind(), vector(src1, len) - vector(src2, len));
}

template struct Extreme<Less, Vek16s>;
template struct Extreme<Less, Vek32f>;
template struct Extreme<Less, Vek64f>;
template struct Extreme<Greater, Vek16s>;
template struct Extreme<Greater, Vek32f>;
template struct Extreme<Greater, Vek64f>;

template void minMax(const Vek16s* src, int len, Vek16s* min, Vek16s* max);
template void minMax(const Vek32f* src, int len, Vek32f* min, Vek32f* max);
template void minMax(const Vek64f* src, int len, Vek64f* min, Vek64f* max);

template struct Norm<NormInf, Vek32f>;
template struct Norm<NormL1, Vek32f>;
template struct Norm<NormL2, Vek32f>;
template struct Norm<NormInf, Vek64f>;
template struct Norm<NormL1, Vek64f>;
template struct Norm<NormL2, Vek64f>;

}  // namespace veks::bench::eigen
