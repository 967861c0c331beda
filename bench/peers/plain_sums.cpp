#include "peers/plain_sums.h"

#include <algorithm>
#include <limits>
#include <type_traits>

#include "veks/types.h"

namespace veks::bench::plain {
namespace {

template <class T>
auto re(T x) {
  if constexpr (std::is_class_v<T>) {
    return x.re;
  } else {
    return x;
  }
}
template <class T>
auto im(T x) {
  if constexpr (std::is_class_v<T>) {
    return x.im;
  } else {
    return T{0};
  }
}

}  // namespace

template <class T, class R, class A>
void sum(const T* src, int len, R* result) {
  if constexpr (std::is_class_v<T>) {
    A sumRe = 0;
    A sumIm = 0;
    for (int i = 0; i < len; ++i) {
      sumRe += src[i].re;
      sumIm += src[i].im;
    }
    *result = {sumRe, sumIm};
  } else {
    A total = 0;
    for (int i = 0; i < len; ++i) total += src[i];
    if constexpr (std::is_integral_v<R>) {
      constexpr A kMax = std::numeric_limits<R>::max();
      constexpr A kMin = std::numeric_limits<R>::min();
      total = std::min(std::max(total, kMin), kMax);
    }
    *result = static_cast<R>(total);
  }
}

template <class T1, class T2, class R, class A>
void dot(const T1* src1, const T2* src2, int len, R* result) {
  if constexpr (std::is_class_v<T2>) {
    A sumRe = 0;
    A sumIm = 0;
    for (int i = 0; i < len; ++i) {
      sumRe += A{re(src1[i])} * re(src2[i]);
      sumIm += A{re(src1[i])} * im(src2[i]);
      if constexpr (std::is_class_v<T1>) {
        sumRe -= A{im(src1[i])} * im(src2[i]);
        sumIm += A{im(src1[i])} * re(src2[i]);
      }
    }
    *result = {sumRe, sumIm};
  } else {
    A total = 0;
    for (int i = 0; i < len; ++i) total += A{src1[i]} * src2[i];
    *result = static_cast<R>(total);
  }
}

template void sum<Vek32f, Vek32f, float>(const Vek32f*, int, Vek32f*);
template void sum<Vek32f, Vek32f, double>(const Vek32f*, int, Vek32f*);
template void sum<Vek32f, Vek32f, long double>(const Vek32f*, int, Vek32f*);
template void sum<Vek64f, Vek64f, double>(const Vek64f*, int, Vek64f*);
template void sum<Vek32fc, Vek32fc, float>(const Vek32fc*, int, Vek32fc*);
template void sum<Vek64fc, Vek64fc, double>(const Vek64fc*, int, Vek64fc*);
template void sum<Vek16s, Vek32s, Vek64s>(const Vek16s*, int, Vek32s*);
template void sum<Vek32s, Vek32s, Vek64s>(const Vek32s*, int, Vek32s*);

template void dot<Vek32f, Vek32f, Vek32f, float>(const Vek32f*, const Vek32f*, int, Vek32f*);
template void dot<Vek64f, Vek64f, Vek64f, double>(const Vek64f*, const Vek64f*, int, Vek64f*);
template void dot<Vek32f, Vek32f, Vek64f, double>(const Vek32f*, const Vek32f*, int, Vek64f*);
template void dot<Vek32fc, Vek32fc, Vek32fc, float>(const Vek32fc*, const Vek32fc*, int, Vek32fc*);
template void dot<Vek64fc, Vek64fc, Vek64fc, double>(const Vek64fc*, const Vek64fc*, int, Vek64fc*);
template void dot<Vek32f, Vek32fc, Vek32fc, float>(const Vek32f*, const Vek32fc*, int, Vek32fc*);
template void dot<Vek16s, Vek16s, Vek64s, Vek64s>(const Vek16s*, const Vek16s*, int, Vek64s*);
template void dot<Vek16sc, Vek16sc, Vek64sc, Vek64s>(const Vek16sc*, const Vek16sc*, int, Vek64sc*);

}  // namespace veks::bench::plain
