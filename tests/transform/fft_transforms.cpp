#include "transform/fft_transforms.h"

#include <random>

// The name of a function and the function in the shape of the table.
#define VEKS_TRANSFORM(function) #function, callOf < function>

namespace veks::test {
namespace {

template <class C, VekStatus (*makeContext)(C**, int, int, VekHintAlgorithm),
          VekStatus (*releaseContext)(C*), VekStatus (*sizeOf)(const C*, int*)>
Family family(const char* name) {
  return {
      name,
      [](void** context, int order, int flag, VekHintAlgorithm hint) {
        if (context == nullptr) return makeContext(nullptr, order, flag, hint);
        C* made = static_cast<C*>(*context);
        const VekStatus status = makeContext(&made, order, flag, hint);
        *context = made;
        return status;
      },
      [](void* context) { return releaseContext(static_cast<C*>(context)); },
      [](const void* context, int* size) { return sizeOf(static_cast<const C*>(context), size); }};
}

template <class T>
const T* source(const Arrays& arrays, size_t i) {
  return static_cast<const T*>(arrays.src[i]);
}
template <class T>
T* destination(const Arrays& arrays, size_t i) {
  return static_cast<T*>(arrays.dst[i]);
}

template <class T, class C>
VekStatus callWith(VekStatus (*function)(const T*, T*, const C*, Vek8u*), const Arrays& arrays,
                   const void* context, int /*scaleFactor*/, Vek8u* buffer) {
  return function(source<T>(arrays, 0), destination<T>(arrays, 0), static_cast<const C*>(context),
                  buffer);
}
template <class T, class C>
VekStatus callWith(VekStatus (*function)(const T*, T*, const C*, int, Vek8u*), const Arrays& arrays,
                   const void* context, int scaleFactor, Vek8u* buffer) {
  return function(source<T>(arrays, 0), destination<T>(arrays, 0), static_cast<const C*>(context),
                  scaleFactor, buffer);
}
template <class T, class C>
VekStatus callWith(VekStatus (*function)(const T*, const T*, T*, T*, const C*, Vek8u*),
                   const Arrays& arrays, const void* context, int /*scaleFactor*/, Vek8u* buffer) {
  return function(source<T>(arrays, 0), source<T>(arrays, 1), destination<T>(arrays, 0),
                  destination<T>(arrays, 1), static_cast<const C*>(context), buffer);
}
template <class T, class C>
VekStatus callWith(VekStatus (*function)(const T*, const T*, T*, T*, const C*, int, Vek8u*),
                   const Arrays& arrays, const void* context, int scaleFactor, Vek8u* buffer) {
  return function(source<T>(arrays, 0), source<T>(arrays, 1), destination<T>(arrays, 0),
                  destination<T>(arrays, 1), static_cast<const C*>(context), scaleFactor, buffer);
}

template <auto function>
VekStatus callOf(const Arrays& arrays, const void* context, int scaleFactor, Vek8u* buffer) {
  return callWith(function, arrays, context, scaleFactor, buffer);
}

enum : size_t { kC16sc, kC16s, kR16s, kC32fc, kC32f, kR32f, kC64fc, kC64f, kR64f };

}  // namespace

const std::vector<Family>& families() {
  static const std::vector<Family> all = {
      family<VeksFFTContext_C_16sc, veksFFTInitAlloc_C_16sc, veksFFTFree_C_16sc,
             veksFFTGetBufSize_C_16sc>("C_16sc"),
      family<VeksFFTContext_C_16s, veksFFTInitAlloc_C_16s, veksFFTFree_C_16s,
             veksFFTGetBufSize_C_16s>("C_16s"),
      family<VeksFFTContext_R_16s, veksFFTInitAlloc_R_16s, veksFFTFree_R_16s,
             veksFFTGetBufSize_R_16s>("R_16s"),
      family<VeksFFTContext_C_32fc, veksFFTInitAlloc_C_32fc, veksFFTFree_C_32fc,
             veksFFTGetBufSize_C_32fc>("C_32fc"),
      family<VeksFFTContext_C_32f, veksFFTInitAlloc_C_32f, veksFFTFree_C_32f,
             veksFFTGetBufSize_C_32f>("C_32f"),
      family<VeksFFTContext_R_32f, veksFFTInitAlloc_R_32f, veksFFTFree_R_32f,
             veksFFTGetBufSize_R_32f>("R_32f"),
      family<VeksFFTContext_C_64fc, veksFFTInitAlloc_C_64fc, veksFFTFree_C_64fc,
             veksFFTGetBufSize_C_64fc>("C_64fc"),
      family<VeksFFTContext_C_64f, veksFFTInitAlloc_C_64f, veksFFTFree_C_64f,
             veksFFTGetBufSize_C_64f>("C_64f"),
      family<VeksFFTContext_R_64f, veksFFTInitAlloc_R_64f, veksFFTFree_R_64f,
             veksFFTGetBufSize_R_64f>("R_64f"),
  };
  return all;
}

const std::vector<Transform>& transforms() {
  using S = Side;
  using T = Type;
  constexpr bool kForward = false;
  constexpr bool kInverse = true;
  static const std::vector<Transform> all = {
      {VEKS_TRANSFORM(veksFFTFwd_CToC_16sc_Sfs), kC16sc, T::k16s, S::kInterleaved, S::kInterleaved,
       kForward},
      {VEKS_TRANSFORM(veksFFTFwd_CToC_16s_Sfs), kC16s, T::k16s, S::kSplit, S::kSplit, kForward},
      {VEKS_TRANSFORM(veksFFTInv_CToC_16sc_Sfs), kC16sc, T::k16s, S::kInterleaved, S::kInterleaved,
       kInverse},
      {VEKS_TRANSFORM(veksFFTInv_CToC_16s_Sfs), kC16s, T::k16s, S::kSplit, S::kSplit, kInverse},
      {VEKS_TRANSFORM(veksFFTFwd_RToPack_16s_Sfs), kR16s, T::k16s, S::kReal, S::kPack, kForward},
      {VEKS_TRANSFORM(veksFFTInv_PackToR_16s_Sfs), kR16s, T::k16s, S::kPack, S::kReal, kInverse},
      {VEKS_TRANSFORM(veksFFTFwd_RToPerm_16s_Sfs), kR16s, T::k16s, S::kReal, S::kPerm, kForward},
      {VEKS_TRANSFORM(veksFFTInv_PermToR_16s_Sfs), kR16s, T::k16s, S::kPerm, S::kReal, kInverse},
      {VEKS_TRANSFORM(veksFFTFwd_RToCCS_16s_Sfs), kR16s, T::k16s, S::kReal, S::kCCS, kForward},
      {VEKS_TRANSFORM(veksFFTInv_CCSToR_16s_Sfs), kR16s, T::k16s, S::kCCS, S::kReal, kInverse},
      {VEKS_TRANSFORM(veksFFTFwd_CToC_32fc), kC32fc, T::k32f, S::kInterleaved, S::kInterleaved,
       kForward},
      {VEKS_TRANSFORM(veksFFTFwd_CToC_32f), kC32f, T::k32f, S::kSplit, S::kSplit, kForward},
      {VEKS_TRANSFORM(veksFFTInv_CToC_32fc), kC32fc, T::k32f, S::kInterleaved, S::kInterleaved,
       kInverse},
      {VEKS_TRANSFORM(veksFFTInv_CToC_32f), kC32f, T::k32f, S::kSplit, S::kSplit, kInverse},
      {VEKS_TRANSFORM(veksFFTFwd_RToPack_32f), kR32f, T::k32f, S::kReal, S::kPack, kForward},
      {VEKS_TRANSFORM(veksFFTInv_PackToR_32f), kR32f, T::k32f, S::kPack, S::kReal, kInverse},
      {VEKS_TRANSFORM(veksFFTFwd_RToPerm_32f), kR32f, T::k32f, S::kReal, S::kPerm, kForward},
      {VEKS_TRANSFORM(veksFFTInv_PermToR_32f), kR32f, T::k32f, S::kPerm, S::kReal, kInverse},
      {VEKS_TRANSFORM(veksFFTFwd_RToCCS_32f), kR32f, T::k32f, S::kReal, S::kCCS, kForward},
      {VEKS_TRANSFORM(veksFFTInv_CCSToR_32f), kR32f, T::k32f, S::kCCS, S::kReal, kInverse},
      {VEKS_TRANSFORM(veksFFTFwd_CToC_64fc), kC64fc, T::k64f, S::kInterleaved, S::kInterleaved,
       kForward},
      {VEKS_TRANSFORM(veksFFTFwd_CToC_64f), kC64f, T::k64f, S::kSplit, S::kSplit, kForward},
      {VEKS_TRANSFORM(veksFFTInv_CToC_64fc), kC64fc, T::k64f, S::kInterleaved, S::kInterleaved,
       kInverse},
      {VEKS_TRANSFORM(veksFFTInv_CToC_64f), kC64f, T::k64f, S::kSplit, S::kSplit, kInverse},
      {VEKS_TRANSFORM(veksFFTFwd_RToPack_64f), kR64f, T::k64f, S::kReal, S::kPack, kForward},
      {VEKS_TRANSFORM(veksFFTInv_PackToR_64f), kR64f, T::k64f, S::kPack, S::kReal, kInverse},
      {VEKS_TRANSFORM(veksFFTFwd_RToPerm_64f), kR64f, T::k64f, S::kReal, S::kPerm, kForward},
      {VEKS_TRANSFORM(veksFFTInv_PermToR_64f), kR64f, T::k64f, S::kPerm, S::kReal, kInverse},
      {VEKS_TRANSFORM(veksFFTFwd_RToCCS_64f), kR64f, T::k64f, S::kReal, S::kCCS, kForward},
      {VEKS_TRANSFORM(veksFFTInv_CCSToR_64f), kR64f, T::k64f, S::kCCS, S::kReal, kInverse},
  };
  return all;
}

Context::Context(const Family& family, int order, int flag) : family_(family) {
  EXPECT_EQ(family.make(&context_, order, flag, vekAlgHintNone), vekStsOk)
      << family.name << ", order " << order << ", flag " << flag;
}

Context::~Context() {
  EXPECT_EQ(family_.release(context_), vekStsOk);
}

size_t Context::bufferBytes() const {
  int size = -1;
  EXPECT_EQ(family_.bufferSize(context_, &size), vekStsOk);
  EXPECT_GE(size, 0);
  return static_cast<size_t>(size);
}

Points randomInput(const Transform& transform, size_t n) {
  constexpr int kFractionBits[] = {0, 22, 50};
  const int bits = kFractionBits[static_cast<int>(transform.type)];
  const int64_t limit = int64_t{1} << (bits == 0 ? 15 : bits);
  const long double unit = 1.0L / static_cast<long double>(int64_t{1} << bits);
  std::mt19937_64 random(n);
  std::uniform_int_distribution<int64_t> distribution(-limit, limit - 1);
  const auto part = [&] { return unit * static_cast<long double>(distribution(random)); };
  Points points(n);
  for (size_t i = 0; i < n; ++i) {
    points[i].re = part();
    if (!transform.isReal()) points[i].im = part();
  }
  const bool isSymmetric = transform.isReal() && transform.isInverse;
  for (size_t k = 1; isSymmetric && k < n - k; ++k) {
    points[k].im = part();
    points[n - k] = conj(points[k]);
  }
  return points;
}

}  // namespace veks::test
