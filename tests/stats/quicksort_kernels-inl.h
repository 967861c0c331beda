// Quicksort with a limit of its own on divisions.
#if defined(VEKS_TESTS_QUICKSORT_KERNELS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_TESTS_QUICKSORT_KERNELS_INL_H
#undef VEKS_TESTS_QUICKSORT_KERNELS_INL_H
#else
#define VEKS_TESTS_QUICKSORT_KERNELS_INL_H
#endif

#include "stats/quicksort-inl.h"
#include "veks/status.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <class T>
VekStatus QuicksortAscend(T* p, size_t n, int divisions) {
  quicksort<Ascending>(p, n, divisions);
  return vekStsOk;
}

template <class T>
VekStatus QuicksortDescend(T* p, size_t n, int divisions) {
  quicksort<Descending>(p, n, divisions);
  return vekStsOk;
}

// How many levels of division the pivots leave: each level goes on with the longer side.
template <class T>
VekStatus CountDivisions(T* p, size_t n, int* divisions) {
  *divisions = 0;
  for (; n > blockLength<T>() && *divisions < 1000; ++*divisions) {
    const T pivot = choosePivot<Ascending>(p, n, static_cast<unsigned>(*divisions), 8).value;
    const size_t count = partition(p, n, Before<Ascending, T>{pivot});
    p += count < n - count ? count : 0;
    n = count < n - count ? n - count : count;
  }
  return vekStsOk;
}

// The limit that sorting sets for vectors of that length.
template <class T>
VekStatus DivisionsFor(size_t n, int* divisions) {
  *divisions = divisionsFor<T>(n);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
