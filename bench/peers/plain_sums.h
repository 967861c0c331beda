// Peers that the compiler makes of loops that add. It may reorder the sums and fuse products with
// them.
#ifndef VEKS_BENCH_PEERS_PLAIN_SUMS_H
#define VEKS_BENCH_PEERS_PLAIN_SUMS_H

namespace veks::bench::plain {

// In variables of type A, the parts of complex values apart.
template <class T, class R, class A>
void sum(const T* src, int len, R* result);

template <class T1, class T2, class R, class A>
void dot(const T1* src1, const T2* src2, int len, R* result);

}  // namespace veks::bench::plain

#endif
