// FFTW, with the plans that it finds best by measuring, in memory that it aligns itself. Patient
// planning takes minutes for more than 2^16 points.
#include <fftw3.h>

#include <cstring>
#include <memory>
#include <string>

#include "fft_peer.h"

namespace veks::bench {
namespace {

// Both precisions under the same names.
struct Single {
  using Real = float;
  using Complex = fftwf_complex;
  using Plan = fftwf_plan;
  static constexpr const char* kName = "single";
  static constexpr auto kMalloc = fftwf_malloc;
  static constexpr auto kFree = fftwf_free;
  static constexpr auto kComplex = fftwf_plan_dft_1d;
  static constexpr auto kFromReal = fftwf_plan_dft_r2c_1d;
  static constexpr auto kToReal = fftwf_plan_dft_c2r_1d;
  static constexpr auto kExecute = fftwf_execute;
  static constexpr auto kDestroy = fftwf_destroy_plan;
  static constexpr auto kForget = fftwf_forget_wisdom;
  static constexpr auto kImport = fftwf_import_wisdom_from_filename;
  static constexpr auto kExport = fftwf_export_wisdom_to_filename;
};
struct Double {
  using Real = double;
  using Complex = fftw_complex;
  using Plan = fftw_plan;
  static constexpr const char* kName = "double";
  static constexpr auto kMalloc = fftw_malloc;
  static constexpr auto kFree = fftw_free;
  static constexpr auto kComplex = fftw_plan_dft_1d;
  static constexpr auto kFromReal = fftw_plan_dft_r2c_1d;
  static constexpr auto kToReal = fftw_plan_dft_c2r_1d;
  static constexpr auto kExecute = fftw_execute;
  static constexpr auto kDestroy = fftw_destroy_plan;
  static constexpr auto kForget = fftw_forget_wisdom;
  static constexpr auto kImport = fftw_import_wisdom_from_filename;
  static constexpr auto kExport = fftw_export_wisdom_to_filename;
};

template <class F>
class Transform {
 public:
  using Real = typename F::Real;

  Transform(const FftCase& fft, unsigned effort, const std::string& wisdom)
      : fft_(fft), in_(allocate()), out_(fft.isInPlace ? in_ : allocate()) {
    const std::string file = fftWisdom().empty() ? "" : fftWisdom() + '.' + F::kName + '.' + wisdom;
    F::kForget();
    if (!file.empty()) F::kImport(file.c_str());
    plan_ = plan(effort);
    if (!file.empty()) F::kExport(file.c_str());
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
  return fft.isDouble ? peersIn<Double>(fft) : peersIn<Single>(fft);
});

}  // namespace
}  // namespace veks::bench
