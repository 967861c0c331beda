// The vector form of the scale-factor rule, applied to whole vectors.
#if defined(VEKS_TESTS_SCALE_KERNELS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_TESTS_SCALE_KERNELS_INL_H
#undef VEKS_TESTS_SCALE_KERNELS_INL_H
#else
#define VEKS_TESTS_SCALE_KERNELS_INL_H
#endif

#include "core/loops-inl.h"
#include "core/scale-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <ScalePath path, class Dst, class Wide>
struct Scaled {
  const Wide* src;
  int bits;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return saturateTo<Dst>(d, scaleTo<path, Dst>(d, hn::LoadU(d, src + i), bits));
  }
};

template <class Dst, class Wide>
struct ScaleLoop {
  const Wide* src;
  Wide* dst;
  size_t n;
  int bits;
  template <class Tag>
  HWY_INLINE VekStatus operator()(Tag /*tag*/) const {
    produce(Scaled<Tag::value, Dst, Wide>{src, bits}, dst, n, false);
    return vekStsOk;
  }
};

template <class Dst, class Wide>
VekStatus ScaleVector(const Wide* src, int scaleFactor, Wide* dst, size_t n) {
  const Scale scale = chooseScale<Dst, Wide>(scaleFactor);
  return withScalePath(scale.path, ScaleLoop<Dst, Wide>{src, dst, n, scale.bits});
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
