// The vector form of the scale-factor rule, applied to whole vectors.
#if defined(VEKS_TESTS_SCALE_KERNELS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_TESTS_SCALE_KERNELS_INL_H
#undef VEKS_TESTS_SCALE_KERNELS_INL_H
#else
#define VEKS_TESTS_SCALE_KERNELS_INL_H
#endif

#include "core/scale-inl.h"
#include "core/targets.h"
#include "veks/status.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <class Dst, class Wide>
struct ScaleLoop {
  const Wide* src;
  Wide* dst;
  size_t n;  // a multiple of the lanes
  int bits;
  template <class Tag>
  HWY_INLINE VekStatus operator()(Tag /*path*/) const {
    const hn::ScalableTag<Wide> d;
    for (size_t i = 0; i < n; i += MaxLanes(d)) {
      const auto scaled = scaleTo<Tag::value, Dst>(d, hn::LoadU(d, src + i), bits);
      hn::StoreU(saturateTo<Dst>(d, scaled), d, dst + i);
    }
    return vekStsOk;
  }
};

template <class Dst, class Wide>
VekStatus ScaleVector(const Wide* src, int scaleFactor, Wide* dst, size_t n) {
  const Scale scale = chooseScale<Dst>(scaleFactor, kMagnitude<Wide>);
  return withScalePath(scale.path, ScaleLoop<Dst, Wide>{src, dst, n, scale.bits});
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
