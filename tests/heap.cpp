#include "heap.h"

namespace veks::test {

thread_local Heap heap;

}  // namespace veks::test

using veks::test::Heap;
using veks::test::heap;

extern "C" {

// NOLINTBEGIN(bugprone-reserved-identifier): the names that --wrap asks for
void* __real_malloc(size_t bytes);
void __real_free(void* ptr);

void* __wrap_malloc(size_t bytes) {
  heap.requested = bytes;
  const bool fails = heap.callsUntilFailure == 0;
  if (!fails && heap.callsUntilFailure != Heap::kNever) --heap.callsUntilFailure;
  heap.returned = fails ? nullptr : __real_malloc(bytes);
  if (heap.returned != nullptr) ++heap.live;
  return heap.returned;
}

void __wrap_free(void* ptr) {
  heap.released = ptr;
  if (ptr != nullptr) --heap.live;
  __real_free(ptr);
}
// NOLINTEND(bugprone-reserved-identifier)
}
