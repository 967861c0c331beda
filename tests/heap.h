// The heap under observation: the linker redirects malloc and free of the whole test program to
// functions that keep this record, one for each thread.
#ifndef VEKS_TESTS_HEAP_H
#define VEKS_TESTS_HEAP_H

#include <cstddef>

namespace veks::test {

struct Heap {
  static constexpr size_t kNever = ~size_t{0};
  size_t callsUntilFailure = kNever;  // so many calls of malloc succeed, those after them fail
  size_t live = 0;                    // blocks that were not released
  size_t requested = 0;
  void* returned = nullptr;
  void* released = nullptr;
};
extern thread_local Heap heap;

}  // namespace veks::test

#endif
