// Interleaving of channels.
#if defined(VEKS_VECTOR_ARITHMETIC_JOIN_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_VECTOR_ARITHMETIC_JOIN_INL_H
#undef VEKS_VECTOR_ARITHMETIC_JOIN_INL_H
#else
#define VEKS_VECTOR_ARITHMETIC_JOIN_INL_H
#endif

#include "core/loops-inl.h"
#include "vector/conversion/rounded-inl.h"

HWY_BEFORE_NAMESPACE();
namespace veks {
namespace HWY_NAMESPACE {

struct Floats {
  const float* src;
  template <class D>
  HWY_INLINE auto operator()(D d, size_t i) const {
    return hn::LoadU(d, src + i);
  }
};

using FloatsAsShorts = RoundedFloats<Rounding::kNearest, int16_t, float, Floats>;

// Frames of a group of channels that are converted at a time.
constexpr size_t kBlock = 256;

template <size_t kChannels>
struct GroupOfShorts {
  int16_t samples[kChannels];
};

// dst[n * stride + k] = src[k][start + n] for kChannels channels and n < frames <= kBlock
template <size_t kChannels>
HWY_INLINE void joinGroup(const float* const* src, size_t start, size_t frames, int16_t* dst,
                          size_t stride) {
  int16_t converted[kChannels][kBlock];
  for (size_t k = 0; k < kChannels; ++k) {
    produceCompact(FloatsAsShorts{{src[k] + start}}, converted[k], frames, false);
  }
  for (size_t n = 0; n < frames; ++n) {
    GroupOfShorts<kChannels> group;
    for (size_t k = 0; k < kChannels; ++k) group.samples[k] = converted[k][n];
    hwy::CopyBytes<sizeof(group)>(&group, dst + n * stride);
  }
}

inline VekStatus Join(const float* const* src, size_t channels, size_t n, int16_t* dst) {
  for (size_t start = 0; start < n; start += kBlock) {
    const size_t frames = n - start < kBlock ? n - start : kBlock;
    int16_t* const block = dst + start * channels;
    size_t k = 0;
    for (; k + 4 <= channels; k += 4) joinGroup<4>(src + k, start, frames, block + k, channels);
    if (k + 2 <= channels) {
      joinGroup<2>(src + k, start, frames, block + k, channels);
      k += 2;
    }
    if (k < channels) joinGroup<1>(src + k, start, frames, block + k, channels);
  }
  return vekStsOk;
}

}  // namespace HWY_NAMESPACE
}  // namespace veks
HWY_AFTER_NAMESPACE();

#endif
