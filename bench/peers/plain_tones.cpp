#include "peers/plain_tones.h"

#include <cmath>
#include <type_traits>

namespace veks::bench::plain {
namespace {

constexpr double kTurn = 6.28318530717958647693;

// One turn down where there is more than one.
template <class T>
T wave(T p, T asym, T magn) {
  const T pi = static_cast<T>(kTurn / 2);
  p -= static_cast<T>(kTurn) * std::floor(p * static_cast<T>(1 / kTurn));
  return p <= pi + asym ? magn - 2 * magn / (pi + asym) * p
                        : 2 * magn / (pi - asym) * p - magn * (3 * pi + asym) / (pi - asym);
}

}  // namespace

// 16-bit samples are computed in double precision, as those of the library are.
template <class E, class M, class F>
void tone(E* dst, int len, M magn, F rFreq, F phase) {
  using T = std::conditional_t<std::is_integral_v<M>, double, F>;
  const T step = static_cast<T>(kTurn) * static_cast<T>(rFreq);
  const T start = static_cast<T>(phase);
  for (int n = 0; n < len; ++n) {
    const T x = step * static_cast<T>(n) + start;
    if constexpr (std::is_class_v<E>) {
      dst[n] = {static_cast<M>(magn * std::cos(x)), static_cast<M>(magn * std::sin(x))};
    } else {
      dst[n] = static_cast<E>(magn * std::cos(x));
    }
  }
}

template <class E, class M, class F>
void triangle(E* dst, int len, M magn, F rFreq, F asym, F phase) {
  using T = std::conditional_t<std::is_integral_v<M>, double, F>;
  const T step = static_cast<T>(kTurn) * static_cast<T>(rFreq);
  for (int n = 0; n < len; ++n) {
    const T x = step * static_cast<T>(n) + static_cast<T>(phase);
    dst[n] = static_cast<E>(wave<T>(x, static_cast<T>(asym), static_cast<T>(magn)));
  }
}

template void tone(Vek32f*, int, Vek32f, Vek32f, Vek32f);
template void tone(Vek64f*, int, Vek64f, Vek64f, Vek64f);
template void tone(Vek16s*, int, Vek16s, Vek32f, Vek32f);
template void tone(Vek32fc*, int, Vek32f, Vek32f, Vek32f);
template void tone(Vek64fc*, int, Vek64f, Vek64f, Vek64f);
template void tone(Vek16sc*, int, Vek16s, Vek32f, Vek32f);
template void triangle(Vek32f*, int, Vek32f, Vek32f, Vek32f, Vek32f);
template void triangle(Vek64f*, int, Vek64f, Vek64f, Vek64f, Vek64f);
template void triangle(Vek16s*, int, Vek16s, Vek32f, Vek32f, Vek32f);

}  // namespace veks::bench::plain
