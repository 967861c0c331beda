// FFTW, with the plans that it finds best by measuring, in memory that it aligns itself. Patient
// planning takes minutes for more than 2^16 points.
#include "peers/fftw.h"

#include <cstring>
#include <memory>
#include <string>

#include "fft_peer.h"

namespace veks::bench {
namespace {

template <class F>
class Transform {
 public:
  using Real = typename F::Real;

  Transform(const FftCase& fft, unsigned effort, const std::string& wisdom)
      : fft_(fft), in_(allocate()), out_(fft.isInPlace ? in_ : allocate()) {
    const FftwWisdom<F> plans(wisdom);
    plan_ = plan(effort);
  }
  ~Transform() {
    F::kDestroy(plan_);
    if (!fft_.isInPlace) F::kFree(out_);
    F::kFree(in_);
  }
  Transform(const Transform&) = delete;
  Transform& operator=(const Transform&) = delete;

  typename F::Plan plan() const {
    return plan_;
  }

  // Real inputs and outputs and complex signals lie as in the library.
  void fill(const void* input) {
    if (fft_.isReal && fft_.isInverse) return fillHalf(static_cast<const Real*>(input));
    std::memcpy(in_, input, fft_.bytes());
  }
  void deliver(void* output) const {
    if (fft_.isReal && !fft_.isInverse) return deliverHalf(static_cast<Real*>(output));
    std::memcpy(output, out_, fft_.bytes());
  }

 private:
  // Room for half a spectrum and its middle, for a complex signal.
  Real* allocate() const {
    const size_t lanes = fft_.isReal ? fft_.points() + 2 : 2 * fft_.points();
    return static_cast<Real*>(F::kMalloc(lanes * sizeof(Real)));
  }

  typename F::Plan plan(unsigned effort) const {
    const int n = static_cast<int>(fft_.points());
    auto* const in = reinterpret_cast<typename F::Complex*>(in_);
    auto* const out = reinterpret_cast<typename F::Complex*>(out_);
    if (!fft_.isReal) {
      return F::kComplex(n, in, out, fft_.isInverse ? FFTW_BACKWARD : FFTW_FORWARD, effort);
    }
    return fft_.isInverse ? F::kToReal(n, in, out_, effort) : F::kFromReal(n, in_, out, effort);
  }

  void fillHalf(const Real* perm) {
    const size_t n = fft_.points();
    std::memcpy(in_ + 2, perm + 2, (n - 2) * sizeof(Real));
    in_[0] = perm[0];
    in_[n] = perm[1];
    in_[1] = in_[n + 1] = 0;
  }
  void deliverHalf(Real* perm) const {
    const size_t n = fft_.points();
    std::memcpy(perm + 2, out_ + 2, (n - 2) * sizeof(Real));
    perm[0] = out_[0];
    perm[1] = out_[n];
  }

  FftCase fft_;
  Real* in_;
  Real* out_;
  typename F::Plan plan_ = nullptr;
};

template <class F>
FftPeer peerOf(const FftCase& fft, const std::string& name, unsigned effort,
               const std::string& wisdom) {
  const auto transform = std::make_shared<Transform<F>>(fft, effort, wisdom);
  return {contestant(name, F::kExecute, transform->plan()),
          [transform](const void* input) { transform->fill(input); },
          [transform](void* output) { transform->deliver(output); }};
}

template <class F>
std::vector<FftPeer> peersIn(const FftCase& fft) {
  constexpr int kMostPatient = 16;
  std::vector<FftPeer> peers = {peerOf<F>(fft, "FFTW~", FFTW_MEASURE, "measure")};
  if (fft.order <= kMostPatient) {
    peers.push_back(peerOf<F>(fft, "FFTW-patient~", FFTW_PATIENT, "patient"));
  }
  return peers;
}

const OptionalFftPeers peers([](const FftCase& fft) {
  return fft.isDouble ? peersIn<FftwDouble>(fft) : peersIn<FftwSingle>(fft);
});

}  // namespace
}  // namespace veks::bench
