// Sorts of another library that may be missing: a file that is added to the build where the library
// is found sets them.
#ifndef VEKS_BENCH_STATS_OPTIONAL_SORTS_H
#define VEKS_BENCH_STATS_OPTIONAL_SORTS_H

namespace veks::bench {

template <class T>
struct OptionalSorts {
  using Function = void (*)(T* srcDst, int len);
  static inline const char* name = nullptr;
  static inline Function ascend = nullptr;
  static inline Function descend = nullptr;
};

}  // namespace veks::bench

#endif
