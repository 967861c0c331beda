/**
 * @file
 * Signal generation.
 */
#ifndef VEKS_GEN_H
#define VEKS_GEN_H

#include "veks/gen/tones.h"
#include "veks/gen/triangles.h"

#endif
