#include "vector/against_loops.h"

namespace veks::bench {
namespace {

template <class T>
void addProduct(const char* name, VekStatus (*function)(const T*, const T*, T*, int)) {
  compareVectors(name, function, kThreeReadsWrite,
                 {peer("loop", plain::Accumulate<T>::addProduct)});
}

// Repeated in place, products would leave the range of normal numbers; sums and differences do not.
void addCases() {
  using namespace plain;
  binary<Add>(VEKS_BENCH_NAMED(veksAdd_32f));
  binary<Add>(VEKS_BENCH_NAMED(veksAdd_32f_I));
  binary<Add>(VEKS_BENCH_NAMED(veksAdd_64f));
  binary<Add>(VEKS_BENCH_NAMED(veksAdd_64f_I));
  binary<Add>(VEKS_BENCH_NAMED(veksAdd_32fc));
  binary<Sub>(VEKS_BENCH_NAMED(veksSub_32f));
  binary<Sub>(VEKS_BENCH_NAMED(veksSub_32f_I));
  binary<Sub>(VEKS_BENCH_NAMED(veksSub_64f));
  binary<Mul>(VEKS_BENCH_NAMED(veksMul_32f));
  binary<Mul>(VEKS_BENCH_NAMED(veksMul_64f));

  withConstant<Add>(VEKS_BENCH_NAMED(veksAddC_32f));
  withConstant<Add>(VEKS_BENCH_NAMED(veksAddC_64f));
  withConstant<Add>(VEKS_BENCH_NAMED(veksAddC_32fc));
  withConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_32f));
  withConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_64f));

  unary<Abs>(VEKS_BENCH_NAMED(veksAbs_32f));
  unary<Abs>(VEKS_BENCH_NAMED(veksAbs_64f));
  unary<Sqr>(VEKS_BENCH_NAMED(veksSqr_32f));
  unary<Sqr>(VEKS_BENCH_NAMED(veksSqr_64f));

  addProduct(VEKS_BENCH_NAMED(veksAddProduct_32f));
  addProduct(VEKS_BENCH_NAMED(veksAddProduct_64f));
}

const Suite suite(addCases);

}  // namespace
}  // namespace veks::bench
