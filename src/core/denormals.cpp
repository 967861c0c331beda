#include "veks/core/services.h"

VekStatus vekSetFlushToZero(int /*value*/, unsigned int* /*pUMask*/) {
  return vekErrCpuNotSupported;
}

VekStatus vekSetDenormAreZeros(int /*value*/) {
  return vekErrCpuNotSupported;
}
