#include "peers/plain_packed.h"
#include "vector/against_scaled_loops.h"

namespace veks::bench {
namespace {

// -1 or 1 in all lanes: repeated in place, products become infinite or NaN, not denormal.
template <class T>
Content unitParts() {
  constexpr bool kIsSingle = sizeof(T) == 4;
  return {{bitOfEach(sizeof(T), 8 * sizeof(T) - 1),
           kIsSingle ? uint64_t{0x3F8000003F800000} : uint64_t{0x3FF0000000000000}},
          {},
          {}};
}

template <class Format, class C, class T = decltype(C::re)>
void product(const char* name, VekStatus (*function)(const T*, const T*, T*, int)) {
  const Special special = {{}, productSumAgreement<T>()};
  compareVectors(name, function, {}, loop(special, plain::PackedProducts<Format, C>::separate));
}

template <class C, class T = decltype(C::re)>
void conjugated(const char* name, VekStatus (*function)(const T*, T*, int)) {
  const Special special = {unitParts<T>(), productSumAgreement<T>()};
  compareVectors(name, function, caseOf(Destination::kUpdated, special),
                 loop(special, plain::PackedProducts<plain::Pack, C>::conjugated));
}

template <class Format>
void scaledProduct(const char* name,
                   VekStatus (*function)(const Vek16s*, const Vek16s*, Vek16s*, int, int)) {
  compareVectors(name, function, {},
                 loop({}, plain::ScaledPackedProducts<Format>::separate, kScale), kScale);
}

template <class Format, class C, class T = decltype(C::re)>
void expand(const char* name, VekStatus (*function)(const T*, C*, int)) {
  compareVectors(name, function, {}, loop({}, plain::Expansion<Format, C>::separate));
}

template <class Format, class C>
void expand(const char* name, VekStatus (*function)(C*, int)) {
  compareVectors(name, function, kInPlace, loop({}, plain::Expansion<Format, C>::inPlace));
}

void addCases() {
  using plain::Pack;
  using plain::Perm;
  product<Pack, Vek32fc>(VEKS_BENCH_NAMED(veksMulPack_32f));
  product<Pack, Vek64fc>(VEKS_BENCH_NAMED(veksMulPack_64f));
  product<Perm, Vek32fc>(VEKS_BENCH_NAMED(veksMulPerm_32f));
  product<Perm, Vek64fc>(VEKS_BENCH_NAMED(veksMulPerm_64f));
  scaledProduct<Pack>(VEKS_BENCH_NAMED(veksMulPack_16s_Sfs));
  scaledProduct<Perm>(VEKS_BENCH_NAMED(veksMulPerm_16s_Sfs));
  conjugated<Vek32fc>(VEKS_BENCH_NAMED(veksMulPackConj_32f_I));
  conjugated<Vek64fc>(VEKS_BENCH_NAMED(veksMulPackConj_64f_I));

  expand<Pack, Vek16sc>(VEKS_BENCH_NAMED(veksConjPack_16sc));
  expand<Pack, Vek16sc>(VEKS_BENCH_NAMED(veksConjPack_16sc_I));
  expand<Pack, Vek32fc>(VEKS_BENCH_NAMED(veksConjPack_32fc));
  expand<Pack, Vek32fc>(VEKS_BENCH_NAMED(veksConjPack_32fc_I));
  expand<Pack, Vek64fc>(VEKS_BENCH_NAMED(veksConjPack_64fc));
  expand<Pack, Vek64fc>(VEKS_BENCH_NAMED(veksConjPack_64fc_I));
  expand<Perm, Vek16sc>(VEKS_BENCH_NAMED(veksConjPerm_16sc));
  expand<Perm, Vek16sc>(VEKS_BENCH_NAMED(veksConjPerm_16sc_I));
  expand<Perm, Vek32fc>(VEKS_BENCH_NAMED(veksConjPerm_32fc));
  expand<Perm, Vek32fc>(VEKS_BENCH_NAMED(veksConjPerm_32fc_I));
  expand<Perm, Vek64fc>(VEKS_BENCH_NAMED(veksConjPerm_64fc));
  expand<Perm, Vek64fc>(VEKS_BENCH_NAMED(veksConjPerm_64fc_I));
}

const VectorSuite suite(Sizes::kElements, addCases);

}  // namespace
}  // namespace veks::bench
