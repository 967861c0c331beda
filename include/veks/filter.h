/**
 * @file
 * Filters and their design.
 */
#ifndef VEKS_FILTER_H
#define VEKS_FILTER_H

#include "veks/filter/design.h"
#include "veks/filter/fir.h"
#include "veks/filter/fir_direct.h"

#endif
