#include "peers/stream.h"

#include <cstdint>
#include <numeric>

namespace veks::bench::plain {
namespace {

// The same work for all types: words of 32 bytes at any alignment.
typedef uint64_t Word __attribute__((vector_size(32), aligned(1), may_alias));

// A step reads A words of one source and B of the other (0: there is none) and writes D words;
// `updated` reads those too. All that is read goes into what is written. Destinations that hold
// normal floating-point numbers, and are read again, stay normal.
template <size_t A, size_t B, size_t D, bool updated>
void run(const void* __restrict src1, const void* __restrict src2, void* __restrict dst,
         size_t steps) {
  const Word* __restrict a = static_cast<const Word*>(src1);
  const Word* __restrict b = static_cast<const Word*>(src2);
  Word* __restrict d = static_cast<Word*>(dst);
  for (size_t i = 0; i < steps; ++i, a += A, b += B, d += D) {
    Word result[D];
    for (size_t k = 0; k < D; ++k) {
      if constexpr (A > 0) result[k] = a[k % A];
      if constexpr (A == 0) result[k] = Word{1, 1, 1, 1};
      if constexpr (B > 0) result[k] += b[k % B];
    }
    for (size_t k = D; k < A; ++k) result[k % D] += a[k];
    for (size_t k = D; k < B; ++k) result[k % D] += b[k];
    for (size_t k = 0; k < D; ++k) d[k] = updated ? d[k] | result[k] : result[k];
  }
}

// Bytes of elements in lowest terms.
struct Shape {
  size_t src1;
  size_t src2;
  size_t dst;
  bool updated;
  decltype(Stream::run) run;
};

template <size_t A, size_t B, size_t D, bool updated = false>
constexpr Shape shape() {
  return {A, B, D, updated, run<A, B, D, updated>};
}

constexpr Shape kShapes[] = {
    shape<0, 0, 1, true>(), shape<1, 0, 1>(),       shape<1, 0, 2>(),       shape<1, 0, 4>(),
    shape<2, 0, 1>(),       shape<4, 0, 1>(),       shape<8, 0, 1>(),       shape<3, 0, 4>(),
    shape<4, 0, 3>(),       shape<1, 0, 1, true>(), shape<1, 0, 2, true>(), shape<1, 1, 1>(),
    shape<1, 1, 2>(),       shape<1, 2, 2>(),       shape<1, 2, 1>(),       shape<1, 1, 1, true>(),
    shape<1, 1, 2, true>(),
};

}  // namespace

Stream streamOf(size_t src1, size_t src2, size_t dst, bool updated, size_t len) {
  const size_t unit = std::gcd(std::gcd(src1, src2), dst);
  for (const Shape& s : kShapes) {
    if (s.src1 * unit == src1 && s.src2 * unit == src2 && s.dst * unit == dst &&
        s.updated == updated) {
      return {s.run, len * unit / sizeof(Word)};
    }
  }
  return {nullptr, 0};
}

}  // namespace veks::bench::plain
