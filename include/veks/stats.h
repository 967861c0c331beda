/**
 * @file
 * Statistics and sorting. A reduction gives one value of a vector, or two. Such a result does not
 * depend on the alignment of the vectors. It is written through a pointer, which may not point into
 * them.
 *
 * Results of integers (the forms with `scaleFactor`) are exact, then multiplied by
 * `2^-scaleFactor`, rounded to nearest with ties to even, and saturated to the type of the result;
 * see docs/scaling.md.
 */
#ifndef VEKS_STATS_H
#define VEKS_STATS_H

#include "veks/stats/dot_products.h"
#include "veks/stats/extremes.h"
#include "veks/stats/norms.h"
#include "veks/stats/sorting.h"
#include "veks/stats/sums.h"

#endif
