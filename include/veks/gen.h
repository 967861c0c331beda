/**
 * @file
 * Signal generation and windows.
 */
#ifndef VEKS_GEN_H
#define VEKS_GEN_H

#include "veks/gen/tones.h"
#include "veks/gen/triangles.h"
#include "veks/gen/windows.h"

#endif
