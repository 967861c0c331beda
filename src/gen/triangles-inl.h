// Triangles: the argument of a sample is the sum of those of its row and its column.
#if defined(VEKS_GEN_TRIANGLES_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_GEN_TRIANGLES_INL_H
#undef VEKS_GEN_TRIANGLES_INL_H
#else
#define VEKS_GEN_TRIANGLES_INL_H
#endif

#include "gen/periodic-inl.h"
#include "gen/slopes.h"
#include "gen/turns-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

// The same turns with 0 <= coarse < 1 and 0 <= fine <= 2^-40: sums of two of them are exact.
template <class D, class V>
HWY_INLINE Turns<V> inOneTurn(D d, Turns<V> turns) {
  const V unit = hn::Set(d, 0x1p-40);
  const auto borrows = hn::Lt(turns.fine, hn::Zero(d));
  const V fine = hn::IfThenElse(borrows, hn::Add(turns.fine, unit), turns.fine);
  const V coarse = hn::IfThenElse(borrows, hn::Sub(turns.coarse, unit), turns.coarse);
  const auto isNegative = hn::Lt(coarse, hn::Zero(d));
  return {hn::IfThenElse(isNegative, hn::Add(coarse, hn::Set(d, 1.0)), coarse), fine};
}

template <class Element>
class Triangle {
 public:
  Triangle(double magnitude, double rFreq, double phase, double asym)
      : magnitude_(magnitude),
        falling_(slopeOf(asym)),
        rising_(slopeOf(-asym)),
        argument_(argumentOf(rFreq, phase)) {}

  HWY_INLINE void setColumns(size_t n) {
    const Argument step = {argument_.frequency, 0, 0};
    for (size_t i = 0; i < n; i += kDoubles) {
      store(step, integersFrom(i), columns_.values + i, columnRests_.values + i);
    }
  }

  HWY_INLINE void setRows(size_t row) {
    const Doubles d;
    const auto k = hn::Mul(integersFrom(row), hn::Set(d, double{kRowLength}));
    store(argument_, k, rows_.values, rowRests_.values);
  }

  class Row {
   public:
    HWY_INLINE Row(const Triangle& triangle, size_t k)
        : triangle_(triangle),
          coarse_(hn::Set(Doubles(), triangle.rows_.values[k])),
          fine_(hn::Set(Doubles(), triangle.rowRests_.values[k])) {}

    HWY_INLINE auto operator()(size_t column) const {
      const Doubles d;
      const auto coarse = hn::Add(coarse_, hn::LoadU(d, triangle_.columns_.values + column));
      const auto fine = hn::Add(fine_, hn::LoadU(d, triangle_.columnRests_.values + column));
      const auto re = withoutTurn(coarse, fine);
      if constexpr (kIsComplex<Element>) {
        const auto im = withoutTurn(hn::Add(re, hn::Set(d, 0.75)), fine);
        return DoubleParts{valueAt(re, fine), valueAt(im, fine)};
      } else {
        return valueAt(re, fine);
      }
    }

   private:
    // `coarse` less than one turn later.
    static HWY_INLINE DoubleVector withoutTurn(DoubleVector coarse, DoubleVector fine) {
      const Doubles d;
      const auto one = hn::Set(d, 1.0);
      return hn::Sub(coarse, hn::IfThenElseZero(hn::Ge(fine, hn::Sub(one, coarse)), one));
    }

    // The wave of magnitude 1 falls to its trough, then it rises to the peak one turn after the
    // first. Coarse and fine parts are multiplied apart, so that steep slopes lose no accuracy.
    HWY_INLINE DoubleVector valueAt(DoubleVector coarse, DoubleVector fine) const {
      const Doubles d;
      const Slope& falling = triangle_.falling_;
      const Slope& rising = triangle_.rising_;
      const auto one = hn::Set(d, 1.0);
      const auto falls = hn::Le(hn::Sub(fine, hn::Set(d, falling.width.rest)),
                                hn::Sub(hn::Set(d, falling.width.value), coarse));
      const auto slope = hn::IfThenElse(falls, hn::Set(d, -falling.perTurn.value),
                                        hn::Set(d, rising.perTurn.value));
      const auto rest =
          hn::IfThenElse(falls, hn::Set(d, -falling.perTurn.rest), hn::Set(d, rising.perTurn.rest));
      const auto fromPeak = hn::Sub(coarse, hn::IfThenZeroElse(falls, one));
      const auto small = hn::MulAdd(slope, fine, hn::Mul(rest, fromPeak));
      const auto value = hn::Add(hn::MulAdd(slope, fromPeak, one), small);
      return hn::Mul(value, hn::Set(d, triangle_.magnitude_));
    }

    const Triangle& triangle_;
    const DoubleVector coarse_;
    const DoubleVector fine_;
  };

  HWY_INLINE Row row(size_t k) const {
    return Row(*this, k);
  }

 private:
  static HWY_INLINE void store(const Argument& argument, DoubleVector k, double* coarse,
                               double* fine) {
    const Doubles d;
    const auto turns = inOneTurn(d, turnsAt(d, argument, k));
    hn::StoreU(turns.coarse, d, coarse);
    hn::StoreU(turns.fine, d, fine);
  }

  const double magnitude_;
  const Slope falling_;
  const Slope rising_;
  const Argument argument_;
  Numbers<kRowLength> columns_;
  Numbers<kRowLength> columnRests_;
  Numbers<0> rows_;
  Numbers<0> rowRests_;
};

// dst[i] = magnitude * the wave at 2 pi rFreq (first + i) + phase. -pi as a Vek32f is less than
// -pi.
template <class Element, Rounding rounding = Rounding::kTowardZero>
VekStatus GenerateTriangle(Element* dst, size_t n, double magnitude, double rFreq, double phase,
                           double asym, size_t first) {
  Triangle<Element> triangle(magnitude, rFreq, phase, asym < -kPi ? -kPi : asym);
  generatePeriodic<rounding>(triangle, first, dst, n);
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
