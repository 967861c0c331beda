#include "peers/plain_sorts.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <vector>

#include "veks/types.h"

namespace veks::bench::plain {

template <class T>
void Sort<T>::ascend(T* srcDst, int len) {
  std::sort(srcDst, srcDst + len);
}

template <class T>
void Sort<T>::descend(T* srcDst, int len) {
  std::sort(srcDst, srcDst + len, std::greater<>());
}

template <class T>
void CountingSort<T>::ascend(T* srcDst, int len) {
  constexpr int kLowest = std::numeric_limits<T>::min();
  constexpr int kValues = std::numeric_limits<T>::max() - kLowest + 1;
  std::vector<int> counts(kValues);
  for (int i = 0; i < len; ++i) ++counts[static_cast<size_t>(srcDst[i] - kLowest)];
  for (int k = 0; k < kValues; ++k) {
    srcDst = std::fill_n(srcDst, counts[static_cast<size_t>(k)], static_cast<T>(kLowest + k));
  }
}

template struct Sort<Vek8u>;
template struct Sort<Vek16s>;
template struct Sort<Vek32s>;
template struct Sort<Vek32f>;
template struct Sort<Vek64f>;
template struct CountingSort<Vek8u>;
template struct CountingSort<Vek16s>;

}  // namespace veks::bench::plain
