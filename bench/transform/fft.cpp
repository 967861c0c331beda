// Fast Fourier transforms with the buffer of the caller: complex signals, and real ones in Perm
// format, out of place and in place.
#include "veks/transform/fft.h"

#include <cstdlib>
#include <memory>
#include <new>

#include "agreement.h"
#include "fft_peer.h"

namespace veks::bench {
namespace {

constexpr int kLastOrder = 22;
constexpr int kLastShortOrder = 18;
constexpr int kNoFactor = 8;

// Vectors in one block: at multiples of 64 bytes, but at different offsets in their pages, so that
// loads do not wait for unrelated stores.
class Memory {
 public:
  Memory(size_t vectorBytes, size_t bufferBytes)
      : stride_((vectorBytes + kPage - 1) / kPage * kPage + 17 * kCacheLine) {
    const size_t bytes = (2 * stride_ + bufferBytes + kPage - 1) / kPage * kPage;
    block_.reset(static_cast<unsigned char*>(std::aligned_alloc(kPage, bytes)));
    if (block_ == nullptr) throw std::bad_alloc();
  }

  unsigned char* vector(size_t i) const {
    return block_.get() + i * stride_;
  }
  Vek8u* buffer() const {
    return block_.get() + 2 * stride_;
  }

 private:
  static constexpr size_t kPage = 4096;
  static constexpr size_t kCacheLine = 64;
  struct Release {
    void operator()(unsigned char* block) const {
      std::free(block);
    }
  };
  size_t stride_;
  std::unique_ptr<unsigned char, Release> block_;
};

// The functions of a context.
template <class T, class Context>
struct Functions {
  VekStatus (*make)(Context**, int, int, VekHintAlgorithm);
  VekStatus (*release)(Context*);
  VekStatus (*bufferSize)(const Context*, int*);
  VekStatus (*transform)(const T*, T*, const Context*, Vek8u*);
};

// Values of -1 .. 1, the same in every run.
template <class Real>
std::vector<Real> signal(const FftCase& fft) {
  std::vector<Real> values(fft.bytes() / sizeof(Real));
  uint32_t state = 1;
  for (Real& value : values) {
    state = state * 1664525 + 1013904223;
    value = static_cast<Real>(static_cast<int32_t>(state)) / Real(0x80000000);
  }
  return values;
}

double operations(const FftCase& fft) {
  return (fft.isReal ? 2.5 : 5) * static_cast<double>(fft.points()) * fft.order;
}

// Both sides err by a few rounding errors that grow with the order.
template <class Real>
Agreement agreementOf(const FftCase& fft) {
  return withinRelativeNorm<Real>(1.2 * std::numeric_limits<Real>::epsilon() * fft.order);
}

template <class Real, class T, class Context>
void run(benchmark::State& state, const FftCase& fft, const Functions<T, Context>& functions) {
  Context* context = nullptr;
  int bufferBytes = 0;
  if (functions.make(&context, fft.order, kNoFactor, vekAlgHintNone) != vekStsOk ||
      functions.bufferSize(context, &bufferBytes) != vekStsOk) {
    return state.SkipWithError("no context");
  }
  const std::unique_ptr<Context, VekStatus (*)(Context*)> owner(context, functions.release);
  const Memory memory(fft.bytes(), static_cast<size_t>(bufferBytes));
  unsigned char* const src = memory.vector(0);
  unsigned char* const dst = memory.vector(fft.isInPlace ? 0 : 1);
  const std::vector<Real> input = signal<Real>(fft);
  const std::vector<Real> zeros(input.size());

  std::vector<FftPeer> peers = peersOf(fft);
  const auto fill = [&](const std::vector<Real>& values) {
    std::memcpy(src, values.data(), fft.bytes());
    for (const FftPeer& peer : peers) peer.fill(values.data());
  };
  const Context* const constant = context;
  Case comparison = {{contestant("veks", functions.transform, reinterpret_cast<const T*>(src),
                                 reinterpret_cast<T*>(dst), constant, memory.buffer())},
                     [&] { fill(input); },
                     dst,
                     fft.bytes(),
                     2 * fft.bytes()};
  for (FftPeer& peer : peers) {
    peer.contestant.agrees = agreementOf<Real>(fft);
    peer.contestant.deliver = [&peer, dst] { peer.deliver(dst); };
    comparison.contestants.push_back(peer.contestant);
  }
  // Transforms of their own results would grow beyond all bounds.
  comparison.beforeTiming = [&] { fill(zeros); };
  comparison.operations = operations(fft);
  compare(state, comparison);
}

template <class T, class Context>
void add(const std::string& name, FftCase fft, const Functions<T, Context>& functions) {
  for (const bool isInPlace : {false, true}) {
    for (int order = 1; order <= kLastOrder; ++order) {
      fft.isInPlace = isInPlace;
      fft.order = order;
      addBenchmark(name + "/order" + std::to_string(order) + (isInPlace ? "/in" : "/out"),
                   order > kLastShortOrder ? 11 : 31, [=](benchmark::State& state) {
                     if (fft.isDouble) return run<double>(state, fft, functions);
                     run<float>(state, fft, functions);
                   });
    }
  }
}

void addCases() {
  if (!thereAreFftPeers()) return;
  constexpr bool kDouble = true;
  constexpr bool kReal = true;
  constexpr bool kInverse = true;
  const Functions<Vek32fc, VeksFFTContext_C_32fc> complex32 = {
      veksFFTInitAlloc_C_32fc, veksFFTFree_C_32fc, veksFFTGetBufSize_C_32fc, nullptr};
  const Functions<Vek64fc, VeksFFTContext_C_64fc> complex64 = {
      veksFFTInitAlloc_C_64fc, veksFFTFree_C_64fc, veksFFTGetBufSize_C_64fc, nullptr};
  const Functions<Vek32f, VeksFFTContext_R_32f> real32 = {veksFFTInitAlloc_R_32f, veksFFTFree_R_32f,
                                                          veksFFTGetBufSize_R_32f, nullptr};
  const Functions<Vek64f, VeksFFTContext_R_64f> real64 = {veksFFTInitAlloc_R_64f, veksFFTFree_R_64f,
                                                          veksFFTGetBufSize_R_64f, nullptr};
  const auto with = [](auto functions, auto transform) {
    functions.transform = transform;
    return functions;
  };
  add("veksFFTFwd_CToC_32fc", {!kDouble, !kReal, !kInverse, false, 0},
      with(complex32, veksFFTFwd_CToC_32fc));
  add("veksFFTInv_CToC_32fc", {!kDouble, !kReal, kInverse, false, 0},
      with(complex32, veksFFTInv_CToC_32fc));
  add("veksFFTFwd_CToC_64fc", {kDouble, !kReal, !kInverse, false, 0},
      with(complex64, veksFFTFwd_CToC_64fc));
  add("veksFFTInv_CToC_64fc", {kDouble, !kReal, kInverse, false, 0},
      with(complex64, veksFFTInv_CToC_64fc));
  add("veksFFTFwd_RToPerm_32f", {!kDouble, kReal, !kInverse, false, 0},
      with(real32, veksFFTFwd_RToPerm_32f));
  add("veksFFTInv_PermToR_32f", {!kDouble, kReal, kInverse, false, 0},
      with(real32, veksFFTInv_PermToR_32f));
  add("veksFFTFwd_RToPerm_64f", {kDouble, kReal, !kInverse, false, 0},
      with(real64, veksFFTFwd_RToPerm_64f));
  add("veksFFTInv_PermToR_64f", {kDouble, kReal, kInverse, false, 0},
      with(real64, veksFFTInv_PermToR_64f));
}

const Suite suite(addCases);

}  // namespace
}  // namespace veks::bench
