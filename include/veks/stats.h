/**
 * @file
 * Statistics and ordering.
 */
#ifndef VEKS_STATS_H
#define VEKS_STATS_H

#include "veks/stats/sorting.h"

#endif
