#include "peers/plain_sums.h"
#include "stats/sum_agreement.h"

namespace veks::bench {
namespace {

template <class A, class T>
Peer loop() {
  return reordered<T>(reduction("loop", plain::sum<T, T, A>));
}

void sumWithHint(const char* name, VekHintAlgorithm hint, const Content& content,
                 std::vector<Peer> peers) {
  peers.insert(peers.begin(), peerWith("veks", veksSum_32f, kSrc1, kLen, kDst, hint));
  VectorCase settings;
  settings.content = content;
  settings.resultBytes = 2 * kResultBytes;
  addVectorCases(name, std::move(peers), {sizeof(Vek32f), 0, 0}, settings,
                 {Placement::kAligned, Placement::kOffset});
}

template <class A, class T>
void sum(const char* name, VekStatus (*function)(const T*, int, T*)) {
  compareReduction(name, function, {loop<A, T>()}, positive<T>());
}

// Saturated, but not scaled.
template <class T>
void integerSum(const char* name, VekStatus (*function)(const T*, int, Vek32s*, int)) {
  std::vector<Peer> peers = {peerWith("veks", function, kSrc1, kLen, kDst, 0)};
  peers.push_back(reduction("loop", plain::sum<T, Vek32s, Vek64s>));
  VectorCase settings;
  settings.resultBytes = 2 * kResultBytes;
  addVectorCases(name, std::move(peers), {sizeof(T), 0, 0}, settings,
                 {Placement::kAligned, Placement::kOffset});
}

void addCases() {
  // A loop of long double is about as accurate, but for cancellation; one of double is less so.
  const std::vector<Peer> wider = {
      reordered<Vek32f>(reduction("longDouble", plain::sum<Vek32f, Vek32f, long double>)),
      reordered<Vek32f>(reduction("double", plain::sum<Vek32f, Vek32f, double>))};
  // Magnitudes like those of signals, and ones that leave a double too few bits for an exact sum.
  Content signals = positive<Vek32f>();
  signals.src1.set = uint64_t{0x0C000000} << 32 | 0x0C000000;
  sumWithHint("veksSum_32f:accurate", vekAlgHintAccurate, signals, wider);
  sumWithHint("veksSum_32f:accurateWide", vekAlgHintAccurate, positive<Vek32f>(), wider);
  sumWithHint("veksSum_32f:fast", vekAlgHintFast, positive<Vek32f>(), {loop<float, Vek32f>()});
  sum<double>(VEKS_BENCH_NAMED(veksSum_64f));
  sum<float>(VEKS_BENCH_NAMED(veksSum_32fc));
  sum<double>(VEKS_BENCH_NAMED(veksSum_64fc));
  integerSum(VEKS_BENCH_NAMED(veksSum_16s32s_Sfs));
}

const VectorSuite suite(Sizes::kReductions, addCases);

}  // namespace
}  // namespace veks::bench
