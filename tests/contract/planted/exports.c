#include "contract/planted/exports.h"

#include <stdio.h>
#include <stdlib.h>

VEKS_API void veksPlantedUndeclared(const char* text);

int veksPlantedPresent(int value) {
  if (value < 0) abort();
  return value;
}

void veksPlantedUndeclared(const char* text) {
  puts(text);
}
