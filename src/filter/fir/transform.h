// The path of a filter through the transforms of its type.
#ifndef VEKS_FILTER_FIR_TRANSFORM_H
#define VEKS_FILTER_FIR_TRANSFORM_H

#include <algorithm>

#include "filter/fir/layout.h"
#include "filter/fir/samples.h"
#include "filter/fir/team.h"
#include "transform/fft/convolution.h"
#include "veks/core/services.h"
#include "veks/transform/fft.h"
#include "veks/transform/packed.h"
#include "veks/vector/arithmetic/products.h"

namespace veks {

// What the transforms of a type are called, and how many taps make them worth while.
template <class T>
struct FirFft;

template <>
struct FirFft<Vek32f> {
  using Context = VeksFFTContext_R_32f;
  static constexpr int kFromTaps = 64;
  static constexpr auto initAlloc = veksFFTInitAlloc_R_32f;
  static constexpr auto getBufSize = veksFFTGetBufSize_R_32f;
  static constexpr auto release = veksFFTFree_R_32f;
  static constexpr auto forward = veksFFTFwd_RToPerm_32f;
  static constexpr auto inverse = veksFFTInv_PermToR_32f;
  static constexpr auto multiply = veksMulPerm_32f_I;
};

template <>
struct FirFft<Vek64f> {
  using Context = VeksFFTContext_R_64f;
  static constexpr int kFromTaps = 32;
  static constexpr auto initAlloc = veksFFTInitAlloc_R_64f;
  static constexpr auto getBufSize = veksFFTGetBufSize_R_64f;
  static constexpr auto release = veksFFTFree_R_64f;
  static constexpr auto forward = veksFFTFwd_RToPerm_64f;
  static constexpr auto inverse = veksFFTInv_PermToR_64f;
  static constexpr auto multiply = veksMulPerm_64f_I;
};

template <>
struct FirFft<Vek32fc> {
  using Context = VeksFFTContext_C_32fc;
  static constexpr int kFromTaps = 16;
  static constexpr auto initAlloc = veksFFTInitAlloc_C_32fc;
  static constexpr auto getBufSize = veksFFTGetBufSize_C_32fc;
  static constexpr auto release = veksFFTFree_C_32fc;
  static constexpr auto forward = veksFFTFwd_CToC_32fc;
  static constexpr auto inverse = veksFFTInv_CToC_32fc;
  static constexpr auto multiply = veksMul_32fc_I;
};

template <>
struct FirFft<Vek64fc> {
  using Context = VeksFFTContext_C_64fc;
  static constexpr int kFromTaps = 16;
  static constexpr auto initAlloc = veksFFTInitAlloc_C_64fc;
  static constexpr auto getBufSize = veksFFTGetBufSize_C_64fc;
  static constexpr auto release = veksFFTFree_C_64fc;
  static constexpr auto forward = veksFFTFwd_CToC_64fc;
  static constexpr auto inverse = veksFFTInv_CToC_64fc;
  static constexpr auto multiply = veksMul_64fc_I;
};

// Nothing, or what a filter with so many taps needs: room for as many threads as a team may have.
template <class T>
struct FirTransform {
  using Fft = FirFft<T>;
  using Lane = typename LanesOf<T>::Lane;
  using Convolution = FftConvolution<Lane>;
  static constexpr bool kConvolves = LanesOf<T>::kLanes == 2;

  typename Fft::Context* context;  // null for nothing
  Convolution* convolution;  // null where forward and inverse transforms go one after the other
  int32_t length;
  int32_t workSize;
  int32_t threads;
  T* spectrum;       // of the taps
  Vek8u* ofThreads;  // a frame and work memory each
  VekStatus* statuses;

  VekStatus make(int tapsLen) {
    if (tapsLen < Fft::kFromTaps) return vekStsOk;
    int k = 2;
    while ((int64_t{1} << k) <= tapsLen) ++k;
    constexpr int kInverseByN = 2;
    VekStatus status = Fft::initAlloc(&context, k + 1, kInverseByN, vekAlgHintNone);
    if (status != vekStsOk) return status;
    length = int32_t{1} << (k + 1);
    threads = largestTeam();
    Fft::getBufSize(context, &workSize);
    if constexpr (kConvolves) {
      status = makeConvolution(k + 1, &convolution);
      if (status != vekStsOk) release();
      if (convolution != nullptr) {
        const size_t bytes = convolution->workElements * sizeof(Lane);
        workSize = std::max(workSize, static_cast<int32_t>(bytes));
      }
    }
    return status;
  }

  void release() {
    if (context != nullptr) Fft::release(context);
    context = nullptr;
    if (convolution != nullptr) veksFree(convolution);
    convolution = nullptr;
  }

  // The samples that a frame shares with the one before. Convolutions discard whole rows.
  size_t sharedSamples(size_t tapsLen) const {
    const size_t multiple = convolution == nullptr ? 1 : convolution->columns;
    return (tapsLen - 1 + multiple - 1) / multiple * multiple;
  }

  void takePieces(Layout* layout) {
    if (context == nullptr) return;
    const uint64_t team = static_cast<uint64_t>(threads);
    spectrum = layout->take<T>(static_cast<uint64_t>(length));
    layout->take<Vek8u>(kApart);
    ofThreads = layout->take<Vek8u>(threadBytes() * team);
    statuses = layout->take<VekStatus>(team);
  }

  T* frame(int thread) const {
    return reinterpret_cast<T*>(placeOf(thread));
  }
  Vek8u* workOf(int thread) const {
    return workSize == 0 ? nullptr : placeOf(thread) + static_cast<size_t>(frameBytes());
  }

  // After an error the filter does without.
  VekStatus setTaps(const T* taps, size_t tapsLen) {
    if (context == nullptr) return vekStsOk;
    T* const natural = convolution == nullptr ? spectrum : frame(0);
    std::copy(taps, taps + tapsLen, natural);
    std::fill(natural + tapsLen, natural + length, T{});
    const VekStatus status = Fft::forward(natural, natural, context, workOf(0));
    if (status != vekStsOk) {
      release();
    } else if constexpr (kConvolves) {
      if (convolution != nullptr) arrangeSpectrum(*convolution, lanes(natural), lanes(spectrum));
    }
    return status;
  }

  // The results of `length` samples from `shared` on, which may take the place of the samples.
  // Those of the thread's next frame are at `next`.
  void convolve(const T* samples, const T* next, size_t shared, T* results, bool pastCaches,
                int thread) const {
    const ConvolutionEnds<Lane> ends = {lanes(samples), lanes(next), lanes(results),
                                        shared / convolution->columns, pastCaches};
    convolution->kernel(*convolution, lanes(spectrum), ends,
                        reinterpret_cast<Lane*>(workOf(thread)));
  }

 private:
  static Lane* lanes(T* samples) {
    return reinterpret_cast<Lane*>(samples);
  }
  static const Lane* lanes(const T* samples) {
    return reinterpret_cast<const Lane*>(samples);
  }
  // Processors fetch lines ahead, up to the end of a page, and so do transforms: lines of another
  // thread's would be taken from it again and again.
  static constexpr uint64_t kApart = 4096;

  uint64_t frameBytes() const {
    return static_cast<uint64_t>(length) * sizeof(T);
  }
  uint64_t workBytes() const {
    return (static_cast<uint64_t>(workSize) + 63) / 64 * 64;
  }
  uint64_t threadBytes() const {
    return frameBytes() + workBytes() + kApart;
  }
  Vek8u* placeOf(int thread) const {
    return ofThreads + static_cast<size_t>(threadBytes()) * static_cast<size_t>(thread);
  }
};

}  // namespace veks

#endif
