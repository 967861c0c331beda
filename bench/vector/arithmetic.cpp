#include "vector/against_loops.h"

namespace veks::bench {
namespace {

// Repeated in place, products would leave the range of normal numbers, but for those by -1; sums
// and differences do not.
void addCases() {
  using namespace plain;
  binary<Add>(VEKS_BENCH_NAMED(veksAdd_32f));
  binary<Add>(VEKS_BENCH_NAMED(veksAdd_32f_I));
  binary<Add>(VEKS_BENCH_NAMED(veksAdd_64f));
  binary<Add>(VEKS_BENCH_NAMED(veksAdd_64f_I));
  binary<Add>(VEKS_BENCH_NAMED(veksAdd_32fc));
  binary<Add>(VEKS_BENCH_NAMED(veksAdd_32fc_I));
  binary<Add>(VEKS_BENCH_NAMED(veksAdd_64fc));
  binary<Add>(VEKS_BENCH_NAMED(veksAdd_64fc_I));
  binary<Sub>(VEKS_BENCH_NAMED(veksSub_32f));
  binary<Sub>(VEKS_BENCH_NAMED(veksSub_32f_I));
  binary<Sub>(VEKS_BENCH_NAMED(veksSub_64f));
  binary<Sub>(VEKS_BENCH_NAMED(veksSub_64f_I));
  binary<Sub>(VEKS_BENCH_NAMED(veksSub_32fc));
  binary<Sub>(VEKS_BENCH_NAMED(veksSub_32fc_I));
  binary<Sub>(VEKS_BENCH_NAMED(veksSub_64fc));
  binary<Sub>(VEKS_BENCH_NAMED(veksSub_64fc_I));
  binary<Mul>(VEKS_BENCH_NAMED(veksMul_32f));
  binary<Mul>(VEKS_BENCH_NAMED(veksMul_64f));

  withConstant<Add>(VEKS_BENCH_NAMED(veksAddC_32f));
  withConstant<Add>(VEKS_BENCH_NAMED(veksAddC_32f_I));
  withConstant<Add>(VEKS_BENCH_NAMED(veksAddC_64f));
  withConstant<Add>(VEKS_BENCH_NAMED(veksAddC_64f_I));
  withConstant<Add>(VEKS_BENCH_NAMED(veksAddC_32fc));
  withConstant<Add>(VEKS_BENCH_NAMED(veksAddC_32fc_I));
  withConstant<Add>(VEKS_BENCH_NAMED(veksAddC_64fc));
  withConstant<Add>(VEKS_BENCH_NAMED(veksAddC_64fc_I));
  withConstant<SubC>(VEKS_BENCH_NAMED(veksSubC_32f));
  withConstant<SubC>(VEKS_BENCH_NAMED(veksSubC_32f_I));
  withConstant<SubC>(VEKS_BENCH_NAMED(veksSubC_64f));
  withConstant<SubC>(VEKS_BENCH_NAMED(veksSubC_64f_I));
  withConstant<SubC>(VEKS_BENCH_NAMED(veksSubC_32fc));
  withConstant<SubC>(VEKS_BENCH_NAMED(veksSubC_32fc_I));
  withConstant<SubC>(VEKS_BENCH_NAMED(veksSubC_64fc));
  withConstant<SubC>(VEKS_BENCH_NAMED(veksSubC_64fc_I));
  withConstant<Sub>(VEKS_BENCH_NAMED(veksSubCRev_32f));
  withConstant<Sub>(VEKS_BENCH_NAMED(veksSubCRev_32f_I));
  withConstant<Sub>(VEKS_BENCH_NAMED(veksSubCRev_64f));
  withConstant<Sub>(VEKS_BENCH_NAMED(veksSubCRev_64f_I));
  withConstant<Sub>(VEKS_BENCH_NAMED(veksSubCRev_32fc));
  withConstant<Sub>(VEKS_BENCH_NAMED(veksSubCRev_32fc_I));
  withConstant<Sub>(VEKS_BENCH_NAMED(veksSubCRev_64fc));
  withConstant<Sub>(VEKS_BENCH_NAMED(veksSubCRev_64fc_I));
  withConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_32f));
  withConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_32f_I), {}, Vek32f{kInPlaceFactor});
  withConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_64f));
  withConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_64f_I), {}, Vek64f{kInPlaceFactor});

  unary<Abs>(VEKS_BENCH_NAMED(veksAbs_32f));
  unary<Abs>(VEKS_BENCH_NAMED(veksAbs_32f_I));
  unary<Abs>(VEKS_BENCH_NAMED(veksAbs_64f));
  unary<Abs>(VEKS_BENCH_NAMED(veksAbs_64f_I));
  unary<Sqr>(VEKS_BENCH_NAMED(veksSqr_32f));
  unary<Sqr>(VEKS_BENCH_NAMED(veksSqr_64f));

  addProduct(VEKS_BENCH_NAMED(veksAddProduct_32f));
  addProduct(VEKS_BENCH_NAMED(veksAddProduct_64f));

  binary<Mul>(VEKS_BENCH_NAMED(veksMul_32fc), closeTo<Vek32fc>());
  binary<Mul>(VEKS_BENCH_NAMED(veksMul_64fc), closeTo<Vek64fc>());
  binary<Mul>(VEKS_BENCH_NAMED(veksMul_32f32fc));
  withConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_32fc), closeTo<Vek32fc>());
  withConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_64fc), closeTo<Vek64fc>());
  unary<Sqr>(VEKS_BENCH_NAMED(veksSqr_32fc), closeTo<Vek32fc>());
  unary<Sqr>(VEKS_BENCH_NAMED(veksSqr_64fc), closeTo<Vek64fc>());
  addProduct(VEKS_BENCH_NAMED(veksAddProduct_32fc), {{}, productSumAgreement<Vek32fc>()});
  addProduct(VEKS_BENCH_NAMED(veksAddProduct_64fc), {{}, productSumAgreement<Vek64fc>()});
}

const VectorSuite suite(Sizes::kElements, addCases);

}  // namespace
}  // namespace veks::bench
