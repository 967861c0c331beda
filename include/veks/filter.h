/**
 * @file
 * Filtering.
 */
#ifndef VEKS_FILTER_H
#define VEKS_FILTER_H

#include "veks/filter/design.h"

#endif
