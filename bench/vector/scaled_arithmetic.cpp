#include "vector/against_scaled_loops.h"

namespace veks::bench {
namespace {

// The functions that are named with a number are measured with several scale factors.
void addCases() {
  using namespace plain;
  saturatedTwo<Add>(VEKS_BENCH_NAMED(veksAdd_16s));
  saturatedTwo<Add>(VEKS_BENCH_NAMED(veksAdd_16s_I));
  widening<Add>(VEKS_BENCH_NAMED(veksAdd_16s32f));
  scaledTwo<Add>(VEKS_BENCH_NAMED(veksAdd_8u_Sfs));
  scaledTwo<Add>(VEKS_BENCH_NAMED(veksAdd_16u_Sfs));
  scaledTwo<Add>("veksAdd_16s_Sfs:0", veksAdd_16s_Sfs, 0);
  scaledTwo<Add>("veksAdd_16s_Sfs:1", veksAdd_16s_Sfs, 1);
  scaledTwo<Add>("veksAdd_16s_Sfs:3", veksAdd_16s_Sfs);
  scaledTwo<Add>(VEKS_BENCH_NAMED(veksAdd_32s_Sfs));
  scaledTwo<Add>(VEKS_BENCH_NAMED(veksAdd_16sc_Sfs));
  scaledTwo<Add>(VEKS_BENCH_NAMED(veksAdd_32sc_Sfs));
  saturatedTwo<Sub>(VEKS_BENCH_NAMED(veksSub_16s));
  saturatedTwo<Sub>(VEKS_BENCH_NAMED(veksSub_16s_I));
  widening<Sub>(VEKS_BENCH_NAMED(veksSub_16s32f));
  scaledTwo<Sub>(VEKS_BENCH_NAMED(veksSub_8u_Sfs));
  scaledTwo<Sub>(VEKS_BENCH_NAMED(veksSub_16u_Sfs));
  scaledTwo<Sub>("veksSub_16s_Sfs:0", veksSub_16s_Sfs, 0);
  scaledTwo<Sub>("veksSub_16s_Sfs:1", veksSub_16s_Sfs, 1);
  scaledTwo<Sub>("veksSub_16s_Sfs:3", veksSub_16s_Sfs);
  scaledTwo<Sub>(VEKS_BENCH_NAMED(veksSub_32s_Sfs));
  scaledTwo<Sub>(VEKS_BENCH_NAMED(veksSub_16sc_Sfs));
  scaledTwo<Sub>(VEKS_BENCH_NAMED(veksSub_32sc_Sfs));
  saturatedTwo<Mul>(VEKS_BENCH_NAMED(veksMul_16s));
  saturatedTwo<Mul>(VEKS_BENCH_NAMED(veksMul_16s_I));
  widening<Mul>(VEKS_BENCH_NAMED(veksMul_16s32f));
  scaledTwo<Mul>(VEKS_BENCH_NAMED(veksMul_8u_Sfs));
  scaledTwo<Mul>(VEKS_BENCH_NAMED(veksMul_16u_Sfs));
  scaledTwo<Mul>("veksMul_16s_Sfs:0", veksMul_16s_Sfs, 0);
  scaledTwo<Mul>("veksMul_16s_Sfs:1", veksMul_16s_Sfs, 1);
  scaledTwo<Mul>("veksMul_16s_Sfs:3", veksMul_16s_Sfs);
  scaledTwo<Mul>(VEKS_BENCH_NAMED(veksMul_32s_Sfs));
  scaledTwo<Mul>(VEKS_BENCH_NAMED(veksMul_16sc_Sfs));
  scaledTwo<Mul>(VEKS_BENCH_NAMED(veksMul_32sc_Sfs));
  saturatedTwo<Add>(VEKS_BENCH_NAMED(veksAdd_16u));
  saturatedTwo<Add>(VEKS_BENCH_NAMED(veksAdd_32u));
  scaledTwo<Add>(VEKS_BENCH_NAMED(veksAdd_64s_Sfs));
  saturatedTwo<Add>(VEKS_BENCH_NAMED(veksAdd_8u16u));
  saturatedTwo<Mul>(VEKS_BENCH_NAMED(veksMul_8u16u));
  saturatedTwo<Add>(VEKS_BENCH_NAMED(veksAdd_16s32s_I));
  scaledTwo<Mul>(VEKS_BENCH_NAMED(veksMul_16s32s_Sfs));
  scaledTwo<Mul>(VEKS_BENCH_NAMED(veksMul_16u16s_Sfs));
  scaledTwo<Mul>(VEKS_BENCH_NAMED(veksMul_32s32sc_Sfs));
  scaledConstant<Add>(VEKS_BENCH_NAMED(veksAddC_8u_Sfs));
  scaledConstant<Add>(VEKS_BENCH_NAMED(veksAddC_16u_Sfs));
  scaledConstant<Add>(VEKS_BENCH_NAMED(veksAddC_16s_Sfs));
  scaledConstant<Add>(VEKS_BENCH_NAMED(veksAddC_32s_Sfs));
  scaledConstant<Add>(VEKS_BENCH_NAMED(veksAddC_16sc_Sfs));
  scaledConstant<Add>(VEKS_BENCH_NAMED(veksAddC_32sc_Sfs));
  scaledConstant<SubC>(VEKS_BENCH_NAMED(veksSubC_8u_Sfs));
  scaledConstant<SubC>(VEKS_BENCH_NAMED(veksSubC_16u_Sfs));
  scaledConstant<SubC>(VEKS_BENCH_NAMED(veksSubC_16s_Sfs));
  scaledConstant<SubC>(VEKS_BENCH_NAMED(veksSubC_32s_Sfs));
  scaledConstant<SubC>(VEKS_BENCH_NAMED(veksSubC_16sc_Sfs));
  scaledConstant<SubC>(VEKS_BENCH_NAMED(veksSubC_32sc_Sfs));
  scaledConstant<Sub>(VEKS_BENCH_NAMED(veksSubCRev_8u_Sfs));
  scaledConstant<Sub>(VEKS_BENCH_NAMED(veksSubCRev_16u_Sfs));
  scaledConstant<Sub>(VEKS_BENCH_NAMED(veksSubCRev_16s_Sfs));
  scaledConstant<Sub>(VEKS_BENCH_NAMED(veksSubCRev_32s_Sfs));
  scaledConstant<Sub>(VEKS_BENCH_NAMED(veksSubCRev_16sc_Sfs));
  scaledConstant<Sub>(VEKS_BENCH_NAMED(veksSubCRev_32sc_Sfs));
  scaledConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_8u_Sfs));
  scaledConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_16u_Sfs));
  scaledConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_16s_Sfs));
  scaledConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_32s_Sfs));
  scaledConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_16sc_Sfs));
  scaledConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_32sc_Sfs));
  saturatedConstant<Add>(VEKS_BENCH_NAMED(veksAddC_16s_I));
  saturatedConstant<SubC>(VEKS_BENCH_NAMED(veksSubC_16s_I));
  saturatedConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_16s_I));
  scaledConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_32f16s_Sfs));
  saturatedConstant<Mul>(VEKS_BENCH_NAMED(veksMulC_Low_32f16s));
  scaledOne<Sqr>(VEKS_BENCH_NAMED(veksSqr_8u_Sfs));
  scaledOne<Sqr>(VEKS_BENCH_NAMED(veksSqr_16u_Sfs));
  scaledOne<Sqr>(VEKS_BENCH_NAMED(veksSqr_16s_Sfs));
  scaledOne<Sqr>(VEKS_BENCH_NAMED(veksSqr_16sc_Sfs));
  scaledAddProduct(VEKS_BENCH_NAMED(veksAddProduct_16s_Sfs));
  scaledAddProduct(VEKS_BENCH_NAMED(veksAddProduct_32s_Sfs));
  scaledAddProduct(VEKS_BENCH_NAMED(veksAddProduct_16s32s_Sfs));
}

const VectorSuite suite(Sizes::kElements, addCases);

}  // namespace
}  // namespace veks::bench
