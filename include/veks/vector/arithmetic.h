/**
 * @file
 * Element-wise arithmetic. A destination may be one of its sources (the `_I` forms are that case);
 * other overlaps are not allowed. Results are the same on every processor.
 *
 * Results of integers (the forms with `scaleFactor`) are exact, then multiplied by
 * `2^-scaleFactor`, rounded to nearest with ties to even, and saturated to the type of the
 * destination; see docs/scaling.md. Floating-point results are rounded as IEEE 754 says, unless an
 * operation tells otherwise; overflow gives infinity.
 */
#ifndef VEKS_VECTOR_ARITHMETIC_H
#define VEKS_VECTOR_ARITHMETIC_H

#include "veks/vector/arithmetic/join.h"
#include "veks/vector/arithmetic/magnitudes.h"
#include "veks/vector/arithmetic/products.h"
#include "veks/vector/arithmetic/quotients.h"
#include "veks/vector/arithmetic/roots.h"
#include "veks/vector/arithmetic/sums.h"

#endif
