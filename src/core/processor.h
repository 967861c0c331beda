// What CPUID tells about the processor.
#ifndef VEKS_CORE_PROCESSOR_H
#define VEKS_CORE_PROCESSOR_H

#include <cstddef>
#include <cstdint>

#include "veks/types.h"

namespace veks {

struct CpuidRegisters {
  uint32_t eax, ebx, ecx, edx;
};

// The processor class from CPUID leaf 0 and leaf 1.
VekCpuType processorClass(const CpuidRegisters& leaf0, const CpuidRegisters& leaf1);

// Whether the processor has, and the operating system saves, what Highway's targets use.
bool hasSse4();
bool hasAvx2();
bool hasAvx512();

// Bytes of the largest data cache that CPUID describes; 0 if it describes none.
size_t largestCacheBytes();

}  // namespace veks

#endif
