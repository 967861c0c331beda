/**
 * @file
 * All of veks: signal-processing primitives on one-dimensional vectors.
 *
 * Every vector function checks, in this order and before anything is written: its pointers against
 * null (#vekErrNullPtr), the length (`len <= 0` gives #vekErrSize), then its own parameters in the
 * order of the arguments. Functions that check in another order say so.
 */
#ifndef VEKS_H
#define VEKS_H

#include "veks/core/services.h"
#include "veks/filter.h"
#include "veks/gen.h"
#include "veks/stats.h"
#include "veks/status.h"
#include "veks/transform.h"
#include "veks/types.h"
#include "veks/vector/arithmetic.h"
#include "veks/vector/conversion.h"
#include "veks/vector/initialisation.h"
#include "veks/vector/logical.h"
#include "veks/vector/normalisation.h"
#include "veks/vector/threshold.h"

#endif
