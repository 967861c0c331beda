// The aligned allocator behind the Malloc functions, states and work buffers.
#ifndef VEKS_CORE_MEMORY_H
#define VEKS_CORE_MEMORY_H

#include <cstddef>

namespace veks {

// A block of `bytes` bytes, aligned to 32, or null. veksFree() releases it.
void* allocate(size_t bytes);

}  // namespace veks

#endif
