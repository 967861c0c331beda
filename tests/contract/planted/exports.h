// A library that does not keep its promises, for the check of exports.
#ifndef CONTRACT_PLANTED_EXPORTS_H
#define CONTRACT_PLANTED_EXPORTS_H

#include "veks/types.h"

VEKS_API int veksPlantedPresent(int value);
VEKS_API int veksPlantedMissing(int value);

#endif
