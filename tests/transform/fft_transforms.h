// All fast Fourier transforms and their contexts in one table, called in one way.
#ifndef VEKS_TESTS_TRANSFORM_FFT_TRANSFORMS_H
#define VEKS_TESTS_TRANSFORM_FFT_TRANSFORMS_H

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "support.h"
#include "transform/packed_places.h"
#include "transform/reference_fft.h"
#include "veks/transform/fft.h"

namespace veks::test {

// The functions of a kind of context.
struct Family {
  const char* name;
  VekStatus (*make)(void** context, int order, int flag, VekHintAlgorithm hint);
  VekStatus (*release)(void* context);
  VekStatus (*bufferSize)(const void* context, int* size);
};
const std::vector<Family>& families();

class Context {
 public:
  Context(const Family& family, int order, int flag);
  ~Context();
  Context(const Context&) = delete;
  Context& operator=(const Context&) = delete;

  void* get() const {
    return context_;
  }
  size_t bufferBytes() const;

 private:
  const Family& family_;
  void* context_ = nullptr;
};

enum class Type { k16s, k32f, k64f };

// How points lie in arrays: in one or, as kSplit, in two.
enum class Side { kInterleaved, kSplit, kReal, kPack, kPerm, kCCS };

inline Format formatOf(Side side) {
  return side == Side::kPack ? Format::kPack : side == Side::kPerm ? Format::kPerm : Format::kCCS;
}
inline size_t arraysOf(Side side) {
  return side == Side::kSplit ? 2 : 1;
}
inline size_t lanesOf(Side side, size_t points) {
  if (side == Side::kInterleaved) return 2 * points;
  if (side == Side::kSplit || side == Side::kReal) return points;
  return packedSize(formatOf(side), points);
}

struct Arrays {
  const void* src[2];
  void* dst[2];
};

struct Transform {
  const char* name;
  VekStatus (*call)(const Arrays& arrays, const void* context, int scaleFactor, Vek8u* buffer);
  size_t family;
  Type type;
  Side in;
  Side out;
  bool isInverse;

  const Family& contexts() const {
    return families()[family];
  }
  bool isReal() const {
    return in == Side::kReal || out == Side::kReal;
  }
};
const std::vector<Transform>& transforms();

// Whether a transform stands for others of long vectors: of the packed formats, only one does.
inline bool isRepresentative(const Transform& transform) {
  const auto isOther = [](Side side) { return side == Side::kPack || side == Side::kCCS; };
  return !isOther(transform.in) && !isOther(transform.out);
}

// Calls function(T()) with the type of the lanes.
template <class Function>
void withLanes(Type type, const Function& function) {
  switch (type) {
    case Type::k16s:
      return function(Vek16s{});
    case Type::k32f:
      return function(Vek32f{});
    case Type::k64f:
      return function(Vek64f{});
  }
}

template <class T>
struct Lanes {
  std::vector<T> arrays[2];

  Lanes(Side side, size_t points) {
    for (size_t i = 0; i < arraysOf(side); ++i) arrays[i].resize(lanesOf(side, points));
  }
};

template <class T>
bool operator==(const Lanes<T>& a, const Lanes<T>& b) {
  return sameBits(a.arrays[0], b.arrays[0]) && sameBits(a.arrays[1], b.arrays[1]);
}

inline bool isPacked(Side side) {
  return side == Side::kPack || side == Side::kPerm || side == Side::kCCS;
}

// Of a packed spectrum the first half.
inline size_t storedPoints(Side side, size_t n) {
  return isPacked(side) ? n / 2 + 1 : n;
}

// Point i of n, one of those that are stored.
template <class T>
Point pointAt(Side side, const Lanes<T>& lanes, size_t n, size_t i) {
  const std::vector<T>& first = lanes.arrays[0];
  const auto point = [](T re, T im) {
    return Point{static_cast<long double>(re), static_cast<long double>(im)};
  };
  if (side == Side::kReal) return point(first[i], T{});
  if (side == Side::kSplit) return point(first[i], lanes.arrays[1][i]);
  if (side == Side::kInterleaved) return point(first[2 * i], first[2 * i + 1]);
  const Places places = placesOf(formatOf(side), n, i);
  return point(first[places.re], places.im == kZero ? T{} : first[places.im]);
}
template <class T>
void setPoint(Side side, Lanes<T>& lanes, size_t n, size_t i, Point p) {
  std::vector<T>& first = lanes.arrays[0];
  Places places = {i, kZero};
  if (side == Side::kSplit) lanes.arrays[1][i] = static_cast<T>(p.im);
  if (side == Side::kInterleaved) places = {2 * i, 2 * i + 1};
  if (isPacked(side)) places = placesOf(formatOf(side), n, i);
  first[places.re] = static_cast<T>(p.re);
  if (places.im != kZero) first[places.im] = static_cast<T>(p.im);
}

template <class T>
Lanes<T> encoded(Side side, const Points& points) {
  const size_t n = points.size();
  Lanes<T> lanes(side, n);
  for (size_t i = 0; i < storedPoints(side, n); ++i) setPoint(side, lanes, n, i, points[i]);
  return lanes;
}

// All points, of a packed spectrum too.
template <class T>
Points decoded(Side side, const Lanes<T>& lanes, size_t n) {
  Points points(n);
  const size_t stored = storedPoints(side, n);
  for (size_t i = 0; i < stored; ++i) points[i] = pointAt(side, lanes, n, i);
  for (size_t i = stored; i < n; ++i) points[i] = conj(points[n - i]);
  return points;
}

// The result of a call; in place its destination starts as the source.
template <class T>
Lanes<T> resultOf(const Transform& transform, const Context& context, const Lanes<T>& in, size_t n,
                  int scaleFactor = 0, Vek8u* buffer = nullptr, bool isInPlace = false) {
  Lanes<T> out(transform.out, n);
  Arrays arrays = {};
  for (size_t i = 0; i < 2; ++i) {
    std::vector<T>& dst = out.arrays[i];
    const size_t size = dst.size();
    if (isInPlace) {
      dst = in.arrays[i];
      dst.resize(std::max(size, dst.size()));
    }
    arrays.src[i] = isInPlace ? dst.data() : in.arrays[i].data();
    arrays.dst[i] = dst.data();
  }
  EXPECT_EQ(transform.call(arrays, context.get(), scaleFactor, buffer), vekStsOk);
  for (std::vector<T>& array : out.arrays) {
    if (!array.empty()) array.resize(lanesOf(transform.out, n));
  }
  return out;
}

// The factor that the flag of a context gives.
inline long double factorOf(const Transform& transform, int flag, size_t n) {
  const auto points = static_cast<long double>(n);
  if (flag == 4) return 1 / std::sqrt(points);
  return flag == (transform.isInverse ? 2 : 1) ? 1 / points : 1;
}

// Random parts: integers of 16 bits, for floating-point types numbers of up to 1. Those of a real
// signal are real, those of its spectrum symmetric.
Points randomInput(const Transform& transform, size_t n);

}  // namespace veks::test

#endif
