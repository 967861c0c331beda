// The transform of 32 points in pairs, in four vectors of eight of them.
//
// With n = 8 j + 2 t + h and k = i + 4 q + 16 s: transforms of four points over j and over t work
// across the vectors, with a transposition of blocks of 16 bytes between them, which hold both h.
// Those of two points over h take them apart and leave the results in order.
#if defined(VEKS_TRANSFORM_FFT_PAIRS32_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_TRANSFORM_FFT_PAIRS32_INL_H
#undef VEKS_TRANSFORM_FFT_PAIRS32_INL_H
#else
#define VEKS_TRANSFORM_FFT_PAIRS32_INL_H
#endif

#include "transform/fft/lanes-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

#if HWY_TARGET == HWY_AVX3
// Replaces a and b by a + w b and a - w b; at w are the real parts of the factors twice, then the
// imaginary ones with both signs.
template <class D, class V, class T>
HWY_INLINE void twiddledPairs(D d, V& a, V& b, const T* w) {
  const V product = hn::MulAdd(b, hn::LoadU(d, w), a);
  const V sum = hn::MulAdd(exchanged(d, b), hn::LoadU(d, w + MaxLanes(D())), product);
  b = hn::MulSub(hn::Set(d, T{2}), a, sum);
  a = sum;
}

template <class T>
HWY_INLINE void transformPairsOf32(const T* src, T* dst, T factor, const T* w) {
  const hn::CappedTag<T, 16> d;
  const hn::RepartitionToWide<decltype(d)> wide;
  using V = hn::Vec<decltype(d)>;
  constexpr size_t kLanes = MaxLanes(decltype(d)());
  constexpr size_t kStep = 2 * kLanes;
  const V scale = hn::Set(d, factor);
  const V x1 = hn::LoadU(d, src + kLanes);
  const V x3 = hn::LoadU(d, src + 3 * kLanes);
  const V scaled = hn::Mul(scale, hn::LoadU(d, src + 2 * kLanes));
  const V x0 = hn::LoadU(d, src);
  const V a = hn::MulAdd(scale, x0, scaled);
  const V b = hn::MulSub(scale, x0, scaled);
  const V c = hn::Add(x1, x3);
  const V e = exchanged(d, hn::Sub(x1, x3));
  const V turn = hn::LoadU(d, w);
  w += kLanes;
  V x[4] = {hn::MulAdd(scale, c, a), hn::MulAdd(turn, e, b), hn::NegMulAdd(scale, c, a),
            hn::NegMulAdd(turn, e, b)};
  transposeBlockSquare<1>(d, x);
  twiddledPairs(d, x[0], x[2], w);
  twiddledPairs(d, x[1], x[3], w);
  twiddledPairs(d, x[0], x[1], w + kStep);
  twiddledPairs(d, x[2], x[3], w + 2 * kStep);
  each<2>([&](auto i) HWY_ATTR __attribute__((always_inline)) {
    const auto halves = unzip(hn::BitCast(wide, x[i]), hn::BitCast(wide, x[i + 2]));
    V low = hn::BitCast(d, halves.re);
    V high = hn::BitCast(d, halves.im);
    twiddledPairs(d, low, high, w + (3 + i) * kStep);
    hn::StoreU(low, d, dst + i * kLanes);
    hn::StoreU(high, d, dst + (2 + i) * kLanes);
  });
}
#endif

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
