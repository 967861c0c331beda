// Tones: cos(row + column) = cos(row) cos(column) - sin(row) sin(column).
#if defined(VEKS_GEN_TONES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_GEN_TONES_INL_H
#undef VEKS_GEN_TONES_INL_H
#else
#define VEKS_GEN_TONES_INL_H
#endif

#include "gen/periodic-inl.h"
#include "gen/turns-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

template <class Element>
class Tone {
 public:
  Tone(double magnitude, double rFreq, double phase)
      : magnitude_(magnitude), argument_(argumentOf(rFreq, phase)) {}

  HWY_INLINE void setColumns(size_t n) {
    const Doubles d;
    const Argument step = {argument_.frequency, 0, 0};
    for (size_t i = 0; i < n; i += kDoubles) {
      const auto k = integersFrom(i);
      const auto parts = cosSinOf(d, turnsAt(d, step, k));
      hn::StoreU(parts.cos, d, columnCos_.values + i);
      hn::StoreU(parts.sin, d, columnSin_.values + i);
    }
  }

  HWY_INLINE void setRows(size_t row) {
    const Doubles d;
    const auto k = hn::Mul(integersFrom(row), hn::Set(d, double{kRowLength}));
    const auto parts = cosSinOf(d, turnsAt(d, argument_, k));
    const auto magnitude = hn::Set(d, magnitude_);
    hn::StoreU(hn::Mul(parts.cos, magnitude), d, rowCos_.values);
    hn::StoreU(hn::Mul(parts.sin, magnitude), d, rowSin_.values);
  }

  class Row {
   public:
    HWY_INLINE Row(const Tone& tone, size_t k)
        : tone_(tone),
          cos_(hn::Set(Doubles(), tone.rowCos_.values[k])),
          sin_(hn::Set(Doubles(), tone.rowSin_.values[k])) {}

    HWY_INLINE auto operator()(size_t column) const {
      const Doubles d;
      const auto cos = hn::LoadU(d, tone_.columnCos_.values + column);
      const auto sin = hn::LoadU(d, tone_.columnSin_.values + column);
      const auto re = hn::NegMulAdd(sin_, sin, hn::Mul(cos_, cos));
      if constexpr (kIsComplex<Element>) {
        return DoubleParts{re, hn::MulAdd(cos_, sin, hn::Mul(sin_, cos))};
      } else {
        return re;
      }
    }

   private:
    const Tone& tone_;
    const DoubleVector cos_;
    const DoubleVector sin_;
  };

  HWY_INLINE Row row(size_t k) const {
    return Row(*this, k);
  }

 private:
  const double magnitude_;
  const Argument argument_;
  Numbers<kRowLength> columnCos_;
  Numbers<kRowLength> columnSin_;
  Numbers<0> rowCos_;
  Numbers<0> rowSin_;
};

// dst[i] = magnitude * cos(2 pi rFreq (first + i) + phase)
template <class Element, Rounding rounding = Rounding::kTowardZero>
VekStatus GenerateTone(Element* dst, size_t n, double magnitude, double rFreq, double phase,
                       size_t first) {
  Tone<Element> tone(magnitude, rFreq, phase);
  generatePeriodic<rounding>(tone, first, dst, n);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
