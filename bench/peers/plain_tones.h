// Peers that the compiler makes of loops over std::cos in the precision of the type.
#ifndef VEKS_BENCH_PEERS_PLAIN_TONES_H
#define VEKS_BENCH_PEERS_PLAIN_TONES_H

#include "veks/types.h"

namespace veks::bench::plain {

// F is the type of the frequency.
template <class E, class M, class F>
void tone(E* dst, int len, M magn, F rFreq, F phase);

template <class E, class M, class F>
void triangle(E* dst, int len, M magn, F rFreq, F asym, F phase);

}  // namespace veks::bench::plain

#endif
