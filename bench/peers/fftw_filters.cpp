// Long filters with FFTW, plans found by patient measuring: overlap-save with transforms as long as
// those of the library.
#include <algorithm>
#include <cstring>
#include <memory>

#include "filter/fir_peer.h"
#include "peers/fftw.h"
#include "peers/plain_filters.h"

namespace veks::bench {
namespace {

// Single precision: real signals.
struct Real {
  using Sample = Vek32f;
  static size_t bins(size_t points) {
    return points / 2 + 1;
  }
  static fftwf_plan forward(int n, float* in, fftwf_complex* out) {
    return fftwf_plan_dft_r2c_1d(n, in, out, FFTW_PATIENT);
  }
  static fftwf_plan inverse(int n, fftwf_complex* in, float* out) {
    return fftwf_plan_dft_c2r_1d(n, in, out, FFTW_PATIENT);
  }
  static void forward(fftwf_plan plan, float* in, fftwf_complex* out) {
    fftwf_execute_dft_r2c(plan, in, out);
  }
  static void inverse(fftwf_plan plan, fftwf_complex* in, float* out) {
    fftwf_execute_dft_c2r(plan, in, out);
  }
};

// And complex ones.
struct Complex {
  using Sample = Vek32fc;
  static size_t bins(size_t points) {
    return points;
  }
  static fftwf_plan forward(int n, fftwf_complex* in, fftwf_complex* out) {
    return fftwf_plan_dft_1d(n, in, out, FFTW_FORWARD, FFTW_PATIENT);
  }
  static fftwf_plan inverse(int n, fftwf_complex* in, fftwf_complex* out) {
    return fftwf_plan_dft_1d(n, in, out, FFTW_BACKWARD, FFTW_PATIENT);
  }
  static void forward(fftwf_plan plan, fftwf_complex* in, fftwf_complex* out) {
    fftwf_execute_dft(plan, in, out);
  }
  static void inverse(fftwf_plan plan, fftwf_complex* in, fftwf_complex* out) {
    fftwf_execute_dft(plan, in, out);
  }
};

template <class T>
std::shared_ptr<T> allocate(size_t count) {
  T* const memory = static_cast<T*>(fftwf_malloc(count * sizeof(T)));
  std::fill_n(memory, count, T{});
  return std::shared_ptr<T>(memory, fftwf_free);
}

void scale(Vek32f& sample, float factor) {
  sample *= factor;
}
void scale(Vek32fc& sample, float factor) {
  sample = {sample.re * factor, sample.im * factor};
}

// The smallest power of two above the number of taps, doubled.
int pointsFor(int tapsLen) {
  int points = 8;
  while (points / 2 <= tapsLen) points *= 2;
  return points;
}

// Frames are read where they are: their steps are multiples of the alignment that the plans want,
// for which the history is rounded up. Only the last one is copied, to fill it up.
template <class F>
class OverlapSave {
 public:
  using T = typename F::Sample;

  explicit OverlapSave(const FirCase<T>& fir)
      : fir_(fir),
        points_(pointsFor(fir.tapsLen)),
        history_((fir.tapsLen - 1 + kAligned - 1) / kAligned * kAligned),
        frame_(allocate<T>(static_cast<size_t>(points_))),
        result_(allocate<T>(static_cast<size_t>(points_))),
        spectrum_(allocate<Vek32fc>(bins())),
        taps_(allocate<Vek32fc>(bins())) {
    const FftwWisdom<FftwSingle> plans("patient");
    forward_ = F::forward(points_, signal(frame_.get()), complex(spectrum_.get()));
    inverse_ = F::inverse(points_, complex(spectrum_.get()), signal(result_.get()));
    transformTaps();
  }
  OverlapSave(const OverlapSave&) = delete;
  OverlapSave& operator=(const OverlapSave&) = delete;
  ~OverlapSave() {
    fftwf_destroy_plan(forward_);
    fftwf_destroy_plan(inverse_);
  }

  void filter() {
    const int step = points_ - history_;
    for (int done = 0; done < fir_.len; done += step) {
      const T* frame = fir_.src + done - history_;
      const int there = std::min(step, fir_.len - done);
      if (there < step) {
        std::copy_n(frame, history_ + there, frame_.get());
        std::fill(frame_.get() + history_ + there, frame_.get() + points_, T{});
        frame = frame_.get();
      }
      F::forward(forward_, signal(frame), complex(spectrum_.get()));
      plain::multiplySpectra(taps_.get(), spectrum_.get(), static_cast<int>(bins()));
      F::inverse(inverse_, complex(spectrum_.get()), signal(result_.get()));
      std::memcpy(fir_.dst + done, result_.get() + history_,
                  static_cast<size_t>(there) * sizeof(T));
    }
  }

 private:
  static constexpr int kAligned = 16;  // elements: 64 bytes or more

  size_t bins() const {
    return F::bins(static_cast<size_t>(points_));
  }
  static fftwf_complex* complex(Vek32fc* values) {
    return reinterpret_cast<fftwf_complex*>(values);
  }
  // Out of place the forward transforms leave their input as it is.
  static auto* signal(const T* samples) {
    if constexpr (std::is_same_v<T, Vek32f>) {
      return const_cast<float*>(samples);
    } else {
      return reinterpret_cast<fftwf_complex*>(const_cast<T*>(samples));
    }
  }

  // With the factor of the inverse in it.
  void transformTaps() {
    std::fill_n(frame_.get(), points_, T{});
    std::copy_n(fir_.taps, fir_.tapsLen, frame_.get());
    for (int i = 0; i < fir_.tapsLen; ++i) scale(frame_.get()[i], 1 / static_cast<float>(points_));
    F::forward(forward_, signal(frame_.get()), complex(taps_.get()));
  }

  FirCase<T> fir_;
  int points_;
  int history_;
  std::shared_ptr<T> frame_;
  std::shared_ptr<T> result_;
  std::shared_ptr<Vek32fc> spectrum_;
  std::shared_ptr<Vek32fc> taps_;
  fftwf_plan forward_;
  fftwf_plan inverse_;
};

template <class F>
std::vector<FirPeer> peersIn(const FirCase<typename F::Sample>& fir) {
  if (fir.work != FirWork::kSignal) return {};
  const auto filter = std::make_shared<OverlapSave<F>>(fir);
  const auto run = [filter](size_t count) {
    for (; count > 0; --count) filter->filter();
  };
  return {{{"FFTW~", run}}};
}

const OptionalFirPeers<Vek32f> realPeers(peersIn<Real>);
const OptionalFirPeers<Vek32fc> complexPeers(peersIn<Complex>);

}  // namespace
}  // namespace veks::bench
