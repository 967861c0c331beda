// What the multiply-add units of the processor can do at most.
#ifndef VEKS_BENCH_FILTER_MULTIPLY_ADD_PEAK_H
#define VEKS_BENCH_FILTER_MULTIPLY_ADD_PEAK_H

#include <cstddef>

namespace veks::bench {

// So many multiply-adds of float or double (rounded up to a few hundred), in registers alone, with
// the widest vectors and as many independent sums as it takes to fill the units.
template <class Real>
void multiplyAdds(size_t count);

}  // namespace veks::bench

#endif
