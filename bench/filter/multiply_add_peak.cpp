#include "filter/multiply_add_peak.h"

namespace veks::bench {
namespace {

#if defined(__AVX512F__)
constexpr size_t kVectorBytes = 64;
#elif defined(__AVX__)
constexpr size_t kVectorBytes = 32;
#else
constexpr size_t kVectorBytes = 16;
#endif

template <class Real>
struct Vector;
template <>
struct Vector<float> {
  typedef float Type __attribute__((vector_size(kVectorBytes)));
};
template <>
struct Vector<double> {
  typedef double Type __attribute__((vector_size(kVectorBytes)));
};

}  // namespace

template <class Real>
void multiplyAdds(size_t count) {
  using V = typename Vector<Real>::Type;
  // Twelve sums and two constants in sixteen registers; the results of two units take five cycles
  // at most.
  constexpr size_t kSums = 12;
  V sums[kSums] = {};
  V factor = V{} + Real{0.5};
  V addend = V{} + Real{1};
  const size_t step = kSums * (kVectorBytes / sizeof(Real));
  for (size_t done = 0; done < count; done += step) {
    // The compiler may neither know the constants nor take steps together.
    asm volatile("" : "+v"(factor), "+v"(addend));
    for (V& sum : sums) sum = sum * factor + addend;
    for (V& sum : sums) asm volatile("" : "+v"(sum));
  }
}

template void multiplyAdds<float>(size_t);
template void multiplyAdds<double>(size_t);

}  // namespace veks::bench
