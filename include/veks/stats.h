/**
 * @file
 * Reductions of vectors to single values.
 */
#ifndef VEKS_STATS_H
#define VEKS_STATS_H

#include "veks/stats/extremes.h"
#include "veks/stats/norms.h"

#endif
