/**
 * @file
 * Transforms.
 */
#ifndef VEKS_TRANSFORM_H
#define VEKS_TRANSFORM_H

#include "veks/transform/fft.h"
#include "veks/transform/packed.h"

#endif
