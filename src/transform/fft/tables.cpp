#include "transform/fft/tables.h"

#include <algorithm>

#include "transform/fft/roots_of_unity.h"

namespace veks {
namespace {

// Radices of passes over 2^log2Length rows, log2Length at most 16: few passes, the largest radices
// last, because the first pass is the one that works across all of the memory, and 2 or 4 at the
// end only.
int chooseRadices(int log2Length, uint8_t* log2Radices) {
  const int count = log2Length <= 4 ? 1 : (log2Length + 3) / 4;
  for (int i = 0, left = log2Length; i < count; ++i) {
    const int others = count - 1 - i;
    // The last pass takes what is left, the others take 3 or 4.
    const int most = others == 0 ? left : std::min(4, std::max(3, left - 4 * others));
    log2Radices[i] = static_cast<uint8_t>(most);
    left -= most;
  }
  return count;
}

// The value whose lowest digit in the mixed base of the first passes is the highest one of `group`.
size_t firstFrequency(size_t group, const uint8_t* radices, int count) {
  size_t frequency = 0;
  size_t weight = 1;
  size_t parts = 1;
  for (int i = 0; i < count; ++i) parts *= radices[i];
  for (int i = 0; i < count; ++i) {
    parts /= radices[i];
    frequency += group / parts % radices[i] * weight;
    weight *= radices[i];
  }
  return frequency;
}

}  // namespace

size_t factorCount(size_t radix, bool isFused) {
  return isFused ? radix / 2 : radix - 1;
}

template <class T>
void storeTwiddleFactor(size_t i, size_t radix, bool isFused, size_t k, size_t n, T* re, T* im) {
  if (!isFused) return storeUnitRoot((i + 1) * k % n, n, T{1}, re, im);
  size_t m = 2;
  while (i >= m / 2) m *= 2;
  const size_t j = i - m / 4;
  const size_t turn = m * n;
  storeUnitRoot((radix / m * k % n * m + j * n) % turn, turn, T{1}, re, im);
}

template <class T>
void makePasses(size_t length, bool isFused, ColumnPasses<T>* passes, Arena* arena) {
  int log2Length = 0;
  while (size_t{1} << log2Length < length) ++log2Length;
  uint8_t log2Radices[ColumnPasses<T>::kMaxPasses] = {};
  passes->length = length;
  passes->count = chooseRadices(log2Length, log2Radices);
  size_t n = length;
  for (int i = 0; i < passes->count; ++i) {
    const size_t radix = size_t{1} << log2Radices[i];
    passes->radices[i] = static_cast<uint8_t>(radix);
    passes->twiddles[i] = nullptr;
    if (i > 0) {
      const size_t count = factorCount(radix, isFused);
      const size_t groups = length / n;
      T* w = arena->take<T>(2 * count * groups);
      passes->twiddles[i] = w;
      for (size_t group = 0; !arena->isCounting() && group < groups; ++group) {
        const size_t frequency = firstFrequency(group, passes->radices, i);
        for (size_t f = 0; f < count; ++f, w += 2) {
          storeTwiddleFactor(f, radix, isFused, frequency, groups * radix, w, w + 1);
        }
      }
    }
    if (i + 1 == passes->count) break;
    n /= radix;
  }
  const size_t groups = length / n;
  uint32_t* const rowOf = arena->take<uint32_t>(length);
  uint32_t* const first = arena->take<uint32_t>(groups);
  passes->rowOf = rowOf;
  passes->firstOfGroup = first;
  for (size_t group = 0; !arena->isCounting() && group < groups; ++group) {
    const size_t frequency = firstFrequency(group, passes->radices, passes->count - 1);
    first[group] = static_cast<uint32_t>(frequency);
    for (size_t r = 0; r < n; ++r) {
      rowOf[frequency + r * groups] = static_cast<uint32_t>(group * n + r);
    }
  }
}

template void storeTwiddleFactor(size_t, size_t, bool, size_t, size_t, float*, float*);
template void storeTwiddleFactor(size_t, size_t, bool, size_t, size_t, double*, double*);
template void makePasses(size_t, bool, ColumnPasses<float>*, Arena*);
template void makePasses(size_t, bool, ColumnPasses<double>*, Arena*);

namespace {

// For each row and the first columns, as many as there are lanes: what lane j of the vector for the
// row in lane l holds.
template <class T>
void fillSquare(const FftShape& shape, size_t firstRow, T* w) {
  const size_t n = shape.rows * shape.columns;
  for (size_t l = 0; l < shape.lanes; ++l, w += 2 * shape.lanes) {
    const size_t row = firstRow + laneOrder<T>(shape.layout, shape.lanes, l);
    for (size_t j = 0; j < shape.lanes; ++j) {
      const size_t column = laneOrder<T>(shape.columnLayout, shape.lanes, j);
      storeUnitRoot(row * column, n, T{1}, w + j, w + shape.lanes + j);
    }
  }
}

// For as many rows as there are lanes: their factors, a vector of each.
template <class T>
void fillBlock(const FftShape& shape, size_t firstRow, T* w) {
  const size_t n = shape.rows * shape.columns;
  const size_t count = factorCount(shape.columns, shape.fusesTwiddles);
  for (size_t f = 0; f < count; ++f, w += 2 * shape.lanes) {
    for (size_t l = 0; l < shape.lanes; ++l) {
      const size_t row = firstRow + laneOrder<T>(shape.layout, shape.lanes, l);
      storeTwiddleFactor(f, shape.columns, shape.fusesTwiddles, row, n, w + l, w + shape.lanes + l);
    }
  }
}

// exp(-2 pi i k / n) times the factor as products of pairs take it, or its conjugate: the real part
// twice, the imaginary part with both signs.
template <class T>
void storePairFactor(size_t k, size_t n, T factor, bool isInverse, T* real, T* imaginary) {
  T re;
  T im;
  storeUnitRoot(k, n, factor, &re, &im);
  real[0] = real[1] = re;
  imaginary[0] = isInverse ? im : -im;
  imaginary[1] = -imaginary[0];
}

// A square as before for `lanes` pairs.
template <class T>
void fillSquareOfPairs(const FftShape& shape, size_t firstRow, size_t firstColumn, T factor,
                       bool isInverse, T* w) {
  const size_t n = shape.rows * shape.columns;
  for (size_t row = firstRow; row < firstRow + shape.lanes; ++row, w += 4 * shape.lanes) {
    for (size_t j = 0; j < shape.lanes; ++j) {
      T* const real = w + 2 * j;
      storePairFactor(row * (firstColumn + j), n, factor, isInverse, real, real + 2 * shape.lanes);
    }
  }
}

// The factors of transforms of 32 pairs: a quarter of a turn times the factor of the transform,
// only its imaginary part, then the twiddle factors of the butterflies.
template <class T>
const T* makeTwiddlesOf32(T factor, bool isInverse, Arena* arena) {
  constexpr size_t kLanes = 16;
  constexpr size_t kStages = 5;
  T* const twiddles = arena->take<T>((1 + 2 * kStages) * kLanes);
  if (arena->isCounting()) return nullptr;
  for (size_t j = 0; j < kLanes / 2; ++j) {
    const size_t i = j / 2;
    const size_t powers[kStages] = {4 * i, 2 * i, 2 * i + 8, j, j + 8};
    T* to = twiddles + 2 * j;
    T unused[2];
    storePairFactor(1, 4, factor, isInverse, unused, to);
    to += kLanes;
    for (const size_t power : powers) {
      storePairFactor(power, 32, T{1}, isInverse, to, to + kLanes);
      to += 2 * kLanes;
    }
  }
  return twiddles;
}

// Those of the odd values of every row, as many rows to a vector as there are pairs.
template <class T>
const T* makeTwiddlesOfTwoColumns(const FftShape& shape, bool isInverse, Arena* arena) {
  T* const twiddles = arena->take<T>(4 * shape.rows);
  if (arena->isCounting()) return nullptr;
  for (size_t row = 0; row < shape.rows; ++row) {
    const size_t firstOfVector = row / shape.lanes * shape.lanes;
    T* const real = twiddles + 4 * firstOfVector + 2 * (row - firstOfVector);
    storePairFactor(row, 2 * shape.rows, T{1}, isInverse, real, real + 2 * shape.lanes);
  }
  return twiddles;
}

// The factors of all rows and columns of transforms of pairs, of the rows of others; of long ones
// those of the first columns, to be multiplied by others.
template <class T>
const T* makeTwiddles(const FftShape& shape, T factor, bool isInverse, Arena* arena) {
  const bool inPairs = shape.size == FftSize::kSmallPairs;
  const bool isLong = shape.size == FftSize::kLong;
  const size_t values = inPairs  ? 4 * shape.columns
                        : isLong ? 2 * shape.lanes
                                 : 2 * factorCount(shape.columns, shape.fusesTwiddles);
  T* const twiddles = arena->take<T>(values * shape.rows);
  if (arena->isCounting()) return nullptr;
  T* w = twiddles;
  for (size_t row = 0; row < shape.rows; row += shape.lanes) {
    if (inPairs) {
      T* square = w;
      for (size_t column = 0; column < shape.columns; column += shape.lanes) {
        fillSquareOfPairs(shape, row, column, factor, isInverse, square);
        square += 4 * shape.lanes * shape.lanes;
      }
    } else if (isLong) {
      fillSquare(shape, row, w);
    } else {
      fillBlock(shape, row, w);
    }
    w += values * shape.lanes;
  }
  return twiddles;
}

// Any power of exp(-2 pi i / N) as a product of one value of each table.
template <class T>
void makePowers(size_t n, FftPlan<T>* plan, Arena* arena) {
  plan->fineBits = (plan->order + 1) / 2;
  const size_t fineCount = size_t{1} << plan->fineBits;
  const size_t coarseCount = n / fineCount;
  T* const fine = arena->take<T>(2 * fineCount);
  T* const coarse = arena->take<T>(2 * coarseCount);
  plan->fine = fine;
  plan->coarse = coarse;
  if (arena->isCounting()) return;
  for (size_t j = 0; j < fineCount; ++j) storeUnitRoot(j, n, T{1}, fine + 2 * j, fine + 2 * j + 1);
  for (size_t j = 0; j < coarseCount; ++j) {
    storeUnitRoot(j, coarseCount, T{1}, coarse + 2 * j, coarse + 2 * j + 1);
  }
}

}  // namespace

template <class T>
void makeTables(const FftShape& shape, FftPlan<T>* plan, Arena* arena) {
  const size_t n = shape.rows * shape.columns;
  plan->rows = shape.rows;
  plan->columns = shape.columns;
  plan->workElements = 0;
  plan->forward.plan = plan;
  plan->inverse.plan = plan;
  if (shape.size == FftSize::kPairsOf32) {
    plan->forward.twiddles = makeTwiddlesOf32(plan->forward.factor, false, arena);
    plan->inverse.twiddles = makeTwiddlesOf32(plan->inverse.factor, true, arena);
    return;
  }
  if (shape.columns == 1) return;
  if (shape.size == FftSize::kTwoColumns) {
    plan->forward.twiddles = makeTwiddlesOfTwoColumns<T>(shape, false, arena);
    plan->inverse.twiddles = makeTwiddlesOfTwoColumns<T>(shape, true, arena);
    return;
  }
  const bool isLong = shape.size == FftSize::kLong;
  const bool inPairs = shape.size == FftSize::kSmallPairs;
  plan->forward.twiddles = makeTwiddles(shape, plan->forward.factor, false, arena);
  plan->inverse.twiddles =
      inPairs ? makeTwiddles(shape, plan->inverse.factor, true, arena) : plan->forward.twiddles;
  if (inPairs || shape.size == FftSize::kSmall) return;
  makePasses(shape.rows, shape.fusesTwiddles, &plan->columnPasses, arena);
  if (shape.size == FftSize::kMedium) plan->workElements = 2 * n;
  if (!isLong) return;
  makePasses(shape.columns, shape.fusesTwiddles, &plan->rowPasses, arena);
  makePowers(n, plan, arena);
  // The matrix, a band of it and the factors of its first column.
  const size_t longer = std::max(shape.rows, shape.columns);
  plan->workElements = 2 * n + 2 * shape.lanes * longer + 2 * shape.rows;
}

template void makeTables(const FftShape&, FftPlan<float>*, Arena*);
template void makeTables(const FftShape&, FftPlan<double>*, Arena*);

}  // namespace veks
