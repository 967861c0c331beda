// Sums and dot products of Eigen, in the call shape of the library. They are compiled like the
// plain loops.
#ifndef VEKS_BENCH_PEERS_EIGEN_SUMS_H
#define VEKS_BENCH_PEERS_EIGEN_SUMS_H

namespace veks::bench::eigen {

// E is the element as Eigen has it.
template <class T, class E>
void sum(const T* src, int len, T* result);

template <class T, class E>
void dot(const T* src1, const T* src2, int len, T* result);

}  // namespace veks::bench::eigen

#endif
