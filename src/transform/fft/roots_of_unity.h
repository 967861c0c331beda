// The factors of Fourier transforms.
#ifndef VEKS_TRANSFORM_FFT_ROOTS_OF_UNITY_H
#define VEKS_TRANSFORM_FFT_ROOTS_OF_UNITY_H

#include <cstddef>

namespace veks {

struct UnitRoot {
  double re;
  double im;
};

// exp(-2 pi i j / n) for j < n, n a power of two.
UnitRoot unitRoot(size_t j, size_t n);

template <class T>
inline void storeUnitRoot(size_t j, size_t n, double factor, T* re, T* im) {
  const UnitRoot root = unitRoot(j & (n - 1), n);
  *re = static_cast<T>(factor * root.re);
  *im = static_cast<T>(factor * root.im);
}

}  // namespace veks

#endif
