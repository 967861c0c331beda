// Sums of products of a filter's taps with windows of its input.
#ifndef VEKS_FILTER_FIR_PRODUCTS_H
#define VEKS_FILTER_FIR_PRODUCTS_H

#include <cstddef>
#include <cstdint>

#include "veks/types.h"

namespace veks {

// dst[i] = sum of taps[k] window[i + k] over k for n results, in the precision of the arguments:
// the taps are those of the filter in reverse, the window has n + tapsLen - 1 samples.
void sumProducts(const Vek32f* taps, size_t tapsLen, const Vek32f* window, Vek32f* dst, size_t n);
void sumProducts(const Vek32fc* taps, size_t tapsLen, const Vek32fc* window, Vek32fc* dst,
                 size_t n);
void sumProducts(const Vek64f* taps, size_t tapsLen, const Vek64f* window, Vek64f* dst, size_t n);
void sumProducts(const Vek64fc* taps, size_t tapsLen, const Vek64fc* window, Vek64fc* dst,
                 size_t n);

// The same for integers, modulo 2^32: taps of 16 bits in pairs of neighbours, each pair in a word.
// Real results: their number is n, pairs of the window start at each of its samples.
// Complex results: a pair is a complex sample, the taps for real and for imaginary parts differ.
void sumPairs(const int32_t* taps, size_t pairs, const Vek16s* window, Vek32s* sums, size_t n);
void sumPairs(const int32_t* realTaps, const int32_t* imaginaryTaps, size_t pairs,
              const Vek16sc* window, Vek32sc* sums, size_t n);

}  // namespace veks

#endif
