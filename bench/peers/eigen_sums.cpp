#include "peers/eigen_sums.h"

#include <Eigen/Core>
#include <complex>

#include "veks/types.h"

namespace veks::bench::eigen {
namespace {

template <class E, class T>
auto vector(const T* p, int len) {
  using Vector = Eigen::Matrix<E, Eigen::Dynamic, 1>;
  return Eigen::Map<const Vector>(reinterpret_cast<const E*>(p), len);
}

}  // namespace

template <class T, class E>
void sum(const T* src, int len, T* result) {
  *reinterpret_cast<E*>(result) = vector<E>(src, len).sum();
}

// Not dot(), which conjugates.
template <class T, class E>
void dot(const T* src1, const T* src2, int len, T* result) {
  *reinterpret_cast<E*>(result) = vector<E>(src1, len).cwiseProduct(vector<E>(src2, len)).sum();
}

template void sum<Vek32f, float>(const Vek32f*, int, Vek32f*);
template void sum<Vek64f, double>(const Vek64f*, int, Vek64f*);
template void sum<Vek32fc, std::complex<float>>(const Vek32fc*, int, Vek32fc*);
template void sum<Vek64fc, std::complex<double>>(const Vek64fc*, int, Vek64fc*);
template void dot<Vek32f, float>(const Vek32f*, const Vek32f*, int, Vek32f*);
template void dot<Vek64f, double>(const Vek64f*, const Vek64f*, int, Vek64f*);
template void dot<Vek32fc, std::complex<float>>(const Vek32fc*, const Vek32fc*, int, Vek32fc*);
template void dot<Vek64fc, std::complex<double>>(const Vek64fc*, const Vek64fc*, int, Vek64fc*);

}  // namespace veks::bench::eigen
