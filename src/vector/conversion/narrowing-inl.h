// Integers as narrower ones.
#if defined(VEKS_VECTOR_CONVERSION_NARROWING_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_CONVERSION_NARROWING_INL_H
#undef VEKS_VECTOR_CONVERSION_NARROWING_INL_H
#else
#define VEKS_VECTOR_CONVERSION_NARROWING_INL_H
#endif

#include "core/convert-inl.h"
#include "core/loops-inl.h"
#include "core/scale-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// Values scaled on the given path, saturated to the destination's type.
template <ScalePath path, class S>
struct Narrowed {
  const S* src;
  int bits;
  template <class D>
  HWY_INLINE hn::Vec<D> operator()(D d, size_t i) const {
    using T = hn::TFromD<D>;
    const auto scaled = [this](auto ds, size_t k)
                            HWY_ATTR { return scaleTo<path, T>(ds, hn::LoadU(ds, src + k), bits); };
    if constexpr (sizeof(S) < 8) {
      return narrowed<S>(d, i, scaled);
    } else {
      return inParts<S>(d, i, [&scaled](auto dPart, size_t k) HWY_ATTR {
        const hn::Rebind<S, decltype(dPart)> ds;
        const auto bounded = saturateTo<T>(ds, scaled(ds, k));
        const hn::RebindToUnsigned<decltype(ds)> du;
        const hn::RebindToUnsigned<decltype(dPart)> duPart;
        return hn::BitCast(dPart, hn::TruncateTo(duPart, hn::BitCast(du, bounded)));
      });
    }
  }
};

template <class S, class T>
VekStatus Narrow(const S* src, T* dst, size_t n) {
  produce(Narrowed<ScalePath::kSaturate, S>{src, 0}, dst, n, false);
  return vekStsOk;
}

template <class S, class T>
VekStatus NarrowScaled(const S* src, T* dst, size_t n, int scaleFactor) {
  const Scale scale = chooseScale<T>(scaleFactor, kMagnitude<S>);
  if (scale.path == ScalePath::kSaturate) return Narrow(src, dst, n);
  withScalePath(scale.path, [=](auto path) HWY_ATTR {
    produceCompact(Narrowed<decltype(path)::value, S>{src, scale.bits}, dst, n, false);
  });
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
