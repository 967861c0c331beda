// The inside of quicksort: its fallback, and that pivots keep away from it.
#include "stats/patterns.h"
#include "support.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/quicksort_kernels-inl.h"
#include <hwy/foreach_target.h>

#include "stats/quicksort_kernels-inl.h"

namespace veks::test {
namespace {

template <class T, class Quicksort, class Before>
void checkFallback(Quicksort quicksort, Before before) {
  onEveryTarget([=] {
    for (const size_t n : {size_t{1500}, size_t{20011}}) {
      std::vector<std::vector<T>> all = orderedPatterns<T>(n);
      for (auto& equals : patternsOfEquals<T>(n)) all.push_back(std::move(equals));
      all.push_back(randomElements<T>(n));
      for (const std::vector<T>& elements : all) {
        std::vector<T> expected = elements;
        std::sort(expected.begin(), expected.end(), before);
        for (int divisions : {0, 1, 3}) {
          std::vector<T> sorted = elements;
          quicksort(sorted.data(), n, divisions);
          ASSERT_EQ(expected, sorted) << divisions;
        }
      }
    }
  });
}

TEST(Quicksort, SortsWhatMayNotBeDivided) {
  checkFallback<Vek32f>(VEKS_KERNEL(QuicksortAscend<Vek32f>), std::less<>());
  checkFallback<Vek32s>(VEKS_KERNEL(QuicksortDescend<Vek32s>), std::greater<>());
}

TEST(Quicksort, PivotsDividePatternsWell) {
  onEveryTarget([] {
    for (const size_t n : {size_t{1500}, size_t{20011}, size_t{60000}}) {
      int limit = 0;
      VEKS_KERNEL(DivisionsFor<Vek32f>)(n, &limit);
      std::vector<std::vector<Vek32f>> all = orderedPatterns<Vek32f>(n);
      all.push_back(randomElements<Vek32f>(n));
      for (std::vector<Vek32f>& elements : all) {
        int divisions = 0;
        VEKS_KERNEL(CountDivisions<Vek32f>)(elements.data(), n, &divisions);
        ASSERT_LE(divisions, limit) << n;
      }
    }
  });
}

}  // namespace
}  // namespace veks::test
