#include "peers/plain_windows.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

#include "veks/types.h"

namespace veks::bench::plain {
namespace {

template <class R>
R bessel(R x) {
  if (x < R(3.75)) {
    const R u = x / R(3.75) * (x / R(3.75));
    return 1 + u * (R(3.5156229) +
                    u * (R(3.0899424) +
                         u * (R(1.2067492) +
                              u * (R(0.2659732) + u * (R(0.0360768) + u * R(0.0045813))))));
  }
  const R s = R(3.75) / x;
  const R late =
      R(0.00916281) +
      s * (R(-0.02057706) + s * (R(0.02635537) + s * (R(-0.01647633) + s * R(0.00392377))));
  const R series =
      R(0.39894228) + s * (R(0.01328592) + s * (R(0.00225319) + s * (R(-0.00157565) + s * late)));
  return std::exp(x) / std::sqrt(x) * series;
}

// What does not change from element to element.
template <class Shape, class R>
struct Weight {
  R last;
  R step;
  R alpha;
  R scale;

  Weight(int len, float a) : last(static_cast<R>(len - 1)), step(0), alpha(a), scale(1) {
    step = R(6.283185307179586) / last;
    if constexpr (std::is_same_v<Shape, KaiserWeight>) scale = 1 / bessel(alpha * last / 2);
  }

  R operator()(int i) const {
    const R n = static_cast<R>(i);
    if constexpr (std::is_same_v<Shape, BartlettWeight>) {
      return 1 - std::abs(2 * n / last - 1);
    } else if constexpr (std::is_same_v<Shape, HannWeight>) {
      return R(0.5) - R(0.5) * std::cos(step * n);
    } else if constexpr (std::is_same_v<Shape, HammingWeight>) {
      return R(0.54) - R(0.46) * std::cos(step * n);
    } else if constexpr (std::is_same_v<Shape, BlackmanWeight>) {
      return (alpha + 1) / 2 - R(0.5) * std::cos(step * n) - alpha / 2 * std::cos(2 * step * n);
    } else {
      return bessel(alpha * std::sqrt(n * (last - n))) * scale;
    }
  }
};

template <class T, class R>
T product(T x, R w) {
  return x * w;
}
template <class R>
Vek16s product(Vek16s x, R w) {
  const R rounded = std::nearbyint(static_cast<R>(x) * w);
  return static_cast<Vek16s>(std::max(R(-32768), std::min(rounded, R(32767))));
}
template <class R>
Vek16sc product(Vek16sc x, R w) {
  return {product(x.re, w), product(x.im, w)};
}
Vek32fc product(Vek32fc x, float w) {
  return {x.re * w, x.im * w};
}
Vek64fc product(Vek64fc x, double w) {
  return {x.re * w, x.im * w};
}

}  // namespace

template <class Shape, class T, class R>
void Window<Shape, T, R>::apply(const T* src, T* dst, int len, float alpha) {
  const Weight<Shape, R> weight(len, alpha);
  for (int i = 0; i < len; ++i) dst[i] = product(src[i], weight(i));
}

template struct Window<BartlettWeight, Vek16s, float>;
template struct Window<BartlettWeight, Vek16sc, float>;
template struct Window<BartlettWeight, Vek32f, float>;
template struct Window<BartlettWeight, Vek32fc, float>;
template struct Window<BartlettWeight, Vek64f, double>;
template struct Window<BartlettWeight, Vek64fc, double>;

template struct Window<HannWeight, Vek16s, float>;
template struct Window<HannWeight, Vek16sc, float>;
template struct Window<HannWeight, Vek32f, float>;
template struct Window<HannWeight, Vek32fc, float>;
template struct Window<HannWeight, Vek64f, double>;
template struct Window<HannWeight, Vek64fc, double>;

template struct Window<HammingWeight, Vek16s, float>;
template struct Window<HammingWeight, Vek16sc, float>;
template struct Window<HammingWeight, Vek32f, float>;
template struct Window<HammingWeight, Vek32fc, float>;
template struct Window<HammingWeight, Vek64f, double>;
template struct Window<HammingWeight, Vek64fc, double>;

template struct Window<BlackmanWeight, Vek16s, float>;
template struct Window<BlackmanWeight, Vek16sc, float>;
template struct Window<BlackmanWeight, Vek32f, float>;
template struct Window<BlackmanWeight, Vek32fc, float>;
template struct Window<BlackmanWeight, Vek64f, double>;
template struct Window<BlackmanWeight, Vek64fc, double>;

template struct Window<KaiserWeight, Vek16s, float>;
template struct Window<KaiserWeight, Vek16sc, float>;
template struct Window<KaiserWeight, Vek32f, float>;
template struct Window<KaiserWeight, Vek32fc, float>;
template struct Window<KaiserWeight, Vek64f, double>;
template struct Window<KaiserWeight, Vek64fc, double>;

}  // namespace veks::bench::plain
