// The vectorised quicksort that comes with Highway, on its best target. Its sorter is made once.
#include <hwy/contrib/sort/vqsort.h>

#include "stats/optional_sorts.h"
#include "veks/types.h"

namespace veks::bench {
namespace {

template <class T, class Order>
void sort(T* srcDst, int len) {
  static const hwy::Sorter sorter;
  sorter(srcDst, static_cast<size_t>(len), Order());
}

template <class T>
struct Offer {
  Offer() {
    OptionalSorts<T>::name = "vqsort";
    OptionalSorts<T>::ascend = sort<T, hwy::SortAscending>;
    OptionalSorts<T>::descend = sort<T, hwy::SortDescending>;
  }
};

const Offer<Vek16s> for16s;
const Offer<Vek32s> for32s;
const Offer<Vek32f> for32f;
const Offer<Vek64f> for64f;

}  // namespace
}  // namespace veks::bench
