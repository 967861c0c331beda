// The ideal responses of filters, as sums of sines over the distance from the centre.
#if defined(VEKS_FILTER_DESIGN_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_FILTER_DESIGN_INL_H
#undef VEKS_FILTER_DESIGN_INL_H
#else
#define VEKS_FILTER_DESIGN_INL_H
#endif

#include "core/loops-inl.h"
#include "filter/design.h"
#include "gen/turns-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

struct IdealTaps {
  const IdealResponse& response;
  size_t first;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    const auto steps = hn::Add(hn::Iota(d, 0), hn::Set(d, static_cast<double>(i)));
    const auto halves = hn::MulAdd(steps, hn::Set(d, 2.0), hn::Set(d, static_cast<double>(first)));
    const auto added = sine(d, response.added, halves);
    const auto subtracted = sine(d, response.subtracted, halves);
    const auto sum = hn::Add(hn::Sub(added, subtracted), sine(d, response.addedToo, halves));
    return hn::Div(sum, hn::Mul(halves, hn::Set(d, kPi / 2)));
  }

 private:
  template <class D, class V>
  static HWY_INLINE V sine(D d, const Argument& argument, V halves) {
    return cosSinOf(d, turnsAt(d, argument, halves)).sin;
  }
};

// dst[i] is the tap at the distance (first + 2 i) / 2.
inline VekStatus FillIdealTaps(double* dst, size_t n, const IdealResponse* response, size_t first) {
  produceCompact(IdealTaps{*response, first}, dst, n, true);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
