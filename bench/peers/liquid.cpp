// liquid-dsp: filters with a state, single precision.
#include <complex>
// The order matters: with <complex> before it the header has complex numbers of C++.
#include <liquid/liquid.h>

#include <algorithm>
#include <memory>
#include <string>

#include "filter/fir_peer.h"
#include "veks/types.h"

namespace veks::bench {
namespace {

// The functions of both types under the same names.
struct RealFilters {
  using Sample = Vek32f;
  using Number = float;
  using Direct = firfilt_rrrf;
  using Fast = fftfilt_rrrf;
  static constexpr auto kMake = firfilt_rrrf_create;
  static constexpr auto kFree = firfilt_rrrf_destroy;
  static constexpr auto kReset = firfilt_rrrf_reset;
  static constexpr auto kBlock = firfilt_rrrf_execute_block;
  static constexpr auto kPush = firfilt_rrrf_push;
  static constexpr auto kExecute = firfilt_rrrf_execute;
  static constexpr auto kMakeFast = fftfilt_rrrf_create;
  static constexpr auto kFreeFast = fftfilt_rrrf_destroy;
  static constexpr auto kResetFast = fftfilt_rrrf_reset;
  static constexpr auto kExecuteFast = fftfilt_rrrf_execute;
};
struct ComplexFilters {
  using Sample = Vek32fc;
  using Number = liquid_float_complex;
  using Direct = firfilt_cccf;
  using Fast = fftfilt_cccf;
  static constexpr auto kMake = firfilt_cccf_create;
  static constexpr auto kFree = firfilt_cccf_destroy;
  static constexpr auto kReset = firfilt_cccf_reset;
  static constexpr auto kBlock = firfilt_cccf_execute_block;
  static constexpr auto kPush = firfilt_cccf_push;
  static constexpr auto kExecute = firfilt_cccf_execute;
  static constexpr auto kMakeFast = fftfilt_cccf_create;
  static constexpr auto kFreeFast = fftfilt_cccf_destroy;
  static constexpr auto kResetFast = fftfilt_cccf_reset;
  static constexpr auto kExecuteFast = fftfilt_cccf_execute;
};

// Its arguments are not constant, but it changes none of them.
template <class F>
typename F::Number* numbers(const typename F::Sample* samples) {
  return const_cast<typename F::Number*>(reinterpret_cast<const typename F::Number*>(samples));
}

template <class F>
class DirectFilter {
 public:
  explicit DirectFilter(const FirCase<typename F::Sample>& fir)
      : fir_(fir), filter_(F::kMake(numbers<F>(fir.taps), static_cast<unsigned>(fir.tapsLen))) {}
  DirectFilter(const DirectFilter&) = delete;
  DirectFilter& operator=(const DirectFilter&) = delete;
  ~DirectFilter() {
    F::kFree(filter_);
  }

  void reset() {
    F::kReset(filter_);
  }
  void filterBlock() {
    F::kBlock(filter_, numbers<F>(fir_.src), static_cast<unsigned>(fir_.len), numbers<F>(fir_.dst));
  }
  void filterOneByOne() {
    auto* const src = numbers<F>(fir_.src);
    auto* const dst = numbers<F>(fir_.dst);
    for (int i = 0; i < fir_.len; ++i) {
      F::kPush(filter_, src[i]);
      F::kExecute(filter_, dst + i);
    }
  }

 private:
  FirCase<typename F::Sample> fir_;
  typename F::Direct filter_;
};

// Overlapped transforms of blocks of `block` samples; the last one is filled up.
template <class F>
class FastFilter {
 public:
  FastFilter(const FirCase<typename F::Sample>& fir, int block)
      : fir_(fir),
        block_(block),
        last_(static_cast<size_t>(block)),
        filter_(F::kMakeFast(numbers<F>(fir.taps), static_cast<unsigned>(fir.tapsLen),
                             static_cast<unsigned>(block))) {}
  FastFilter(const FastFilter&) = delete;
  FastFilter& operator=(const FastFilter&) = delete;
  ~FastFilter() {
    F::kFreeFast(filter_);
  }

  void reset() {
    F::kResetFast(filter_);
  }
  void filter() {
    auto* const src = numbers<F>(fir_.src);
    auto* const dst = numbers<F>(fir_.dst);
    int done = 0;
    for (; done + block_ <= fir_.len; done += block_)
      F::kExecuteFast(filter_, src + done, dst + done);
    if (done == fir_.len) return;
    std::copy(src + done, src + fir_.len, last_.begin());
    F::kExecuteFast(filter_, last_.data(), last_.data());
    std::copy_n(last_.begin(), fir_.len - done, dst + done);
  }

 private:
  FirCase<typename F::Sample> fir_;
  int block_;
  std::vector<typename F::Number> last_;
  typename F::Fast filter_;
};

template <class Filter>
FirPeer peerOf(const std::string& name, const std::shared_ptr<Filter>& filter,
               void (Filter::*call)()) {
  return {{name,
           [=](size_t count) {
             auto called = call;
             benchmark::DoNotOptimize(called);
             for (; count > 0; --count) ((*filter).*called)();
           }},
          [=] { filter->reset(); }};
}

template <class F>
std::vector<FirPeer> peersIn(const FirCase<typename F::Sample>& fir) {
  const auto direct = std::make_shared<DirectFilter<F>>(fir);
  switch (fir.work) {
    case FirWork::kBlock:
      return {peerOf("liquid~", direct, &DirectFilter<F>::filterBlock)};
    case FirWork::kSamples:
      return {peerOf("liquid~", direct, &DirectFilter<F>::filterOneByOne)};
    case FirWork::kSignal:
      break;
  }
  std::vector<FirPeer> peers;
  for (const int times : {1, 2, 4}) {
    const auto fast = std::make_shared<FastFilter<F>>(fir, times * fir.tapsLen);
    peers.push_back(peerOf("liquid" + std::to_string(times) + "x~", fast, &FastFilter<F>::filter));
  }
  return peers;
}

const OptionalFirPeers<Vek32f> realPeers(peersIn<RealFilters>);
const OptionalFirPeers<Vek32fc> complexPeers(peersIn<ComplexFilters>);

}  // namespace
}  // namespace veks::bench
