// VOLK: a dot product for each result, as its users build filters.
#include <volk/volk.h>

#include <algorithm>
#include <memory>

#include "filter/fir_peer.h"
#include "veks/types.h"

namespace veks::bench {
namespace {

template <class T, class Number, class Dot>
std::vector<FirPeer> peersWith(const FirCase<T>& fir, Dot* function) {
  if (fir.work != FirWork::kBlock) return {};
  const auto length = static_cast<unsigned>(fir.tapsLen);
  // At an address that suits its aligned kernels.
  const std::shared_ptr<T> reversed(
      static_cast<T*>(volk_malloc(length * sizeof(T), volk_get_alignment())), volk_free);
  std::reverse_copy(fir.taps, fir.taps + fir.tapsLen, reversed.get());
  const auto run = [=](size_t count) {
    auto pointer = function;
    benchmark::DoNotOptimize(pointer);
    const T* const oldest = fir.src - fir.tapsLen + 1;
    const auto* const taps = reinterpret_cast<const Number*>(reversed.get());
    for (; count > 0; --count) {
      for (int n = 0; n < fir.len; ++n) {
        (*pointer)(reinterpret_cast<Number*>(fir.dst + n),
                   reinterpret_cast<const Number*>(oldest + n), taps, length);
      }
    }
  };
  return {{{"VOLK~", run}}};
}

const OptionalFirPeers<Vek32f> realPeers([](const FirCase<Vek32f>& fir) {
  return peersWith<Vek32f, float>(fir, &volk_32f_x2_dot_prod_32f);
});
const OptionalFirPeers<Vek32fc> complexPeers([](const FirCase<Vek32fc>& fir) {
  return peersWith<Vek32fc, lv_32fc_t>(fir, &volk_32fc_x2_dot_prod_32fc);
});

}  // namespace
}  // namespace veks::bench
