// What comparisons with FFTW have in common.
#ifndef VEKS_BENCH_PEERS_FFTW_H
#define VEKS_BENCH_PEERS_FFTW_H

#include <fftw3.h>

#include <string>

#include "fft_peer.h"

namespace veks::bench {

// Both precisions under the same names.
struct FftwSingle {
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
struct FftwDouble {
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

// What is planned while it lives may use the plans in the wisdom file of that name, and is added
// to it.
template <class F>
class FftwWisdom {
 public:
  explicit FftwWisdom(const std::string& name)
      : file_(fftWisdom().empty() ? "" : fftWisdom() + '.' + F::kName + '.' + name) {
    F::kForget();
    if (!file_.empty()) F::kImport(file_.c_str());
  }
  FftwWisdom(const FftwWisdom&) = delete;
  FftwWisdom& operator=(const FftwWisdom&) = delete;
  ~FftwWisdom() {
    if (!file_.empty()) F::kExport(file_.c_str());
  }

 private:
  std::string file_;
};

}  // namespace veks::bench

#endif
