// Peers: functions that are called on the vectors of a case.
#ifndef VEKS_BENCH_PEER_H
#define VEKS_BENCH_PEER_H

#include <cstddef>
#include <functional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>

#include "agreement.h"
#include "compare.h"
#include "vectors.h"

namespace veks::bench {

// Gives a contestant for the vectors of a case.
using Peer = std::function<Contestant(const Vectors&)>;

// What the parameters of a signature stand for in the call shape of the library: pointers to
// constants are the sources, the other pointer is the destination, the parameter after the last
// pointer is the length, and all others are bound to values: constants, levels, scale factors.
template <class... P>
struct Signature {
  static constexpr size_t kCount = sizeof...(P);
  static constexpr bool kPointer[kCount] = {std::is_pointer_v<P>...};
  static constexpr bool kSource[kCount] = {std::is_pointer_v<P> &&
                                           std::is_const_v<std::remove_pointer_t<P>>...};
  static constexpr size_t kBytes[kCount] = {sizeof(std::remove_pointer_t<P>)...};

  static constexpr size_t sourcesBefore(size_t i) {
    size_t count = 0;
    for (size_t k = 0; k < i; ++k) count += kSource[k] ? 1 : 0;
    return count;
  }
  static constexpr size_t length() {
    size_t after = 0;
    for (size_t k = 0; k < kCount; ++k) after = kPointer[k] ? k + 1 : after;
    return after;
  }
  static constexpr size_t boundBefore(size_t i) {
    size_t count = 0;
    for (size_t k = 0; k < i; ++k) count += kPointer[k] || k == length() ? 0 : 1;
    return count;
  }
  static constexpr Elements elements() {
    Elements found;
    for (size_t k = 0; k < kCount; ++k) {
      if (!kPointer[k]) continue;
      size_t& bytes = !kSource[k] ? found.dst : found.src1 == 0 ? found.src1 : found.src2;
      bytes = kBytes[k];
    }
    return found;
  }

  template <size_t i, class Bound>
  static auto argument(const Vectors& v, const Bound& bound) {
    using Parameter = std::tuple_element_t<i, std::tuple<P...>>;
    if constexpr (kSource[i]) {
      return reinterpret_cast<Parameter>(sourcesBefore(i) == 0 ? v.src1() : v.src2());
    } else if constexpr (kPointer[i]) {
      return reinterpret_cast<Parameter>(v.dst());
    } else if constexpr (i == length()) {
      return static_cast<Parameter>(v.len());
    } else {
      return static_cast<Parameter>(std::get<boundBefore(i)>(bound));
    }
  }

  template <class R, class Bound, size_t... i>
  static Contestant call(const std::string& name, R (*function)(P...), const Vectors& v,
                         const Bound& bound, std::index_sequence<i...> /*all*/) {
    return contestant(name, function, argument<i>(v, bound)...);
  }
};

// A function of that shape. The bound values fill the parameters that are left in their order.
template <class R, class... P, class... B>
Peer peer(const char* name, R (*function)(P...), B... bound) {
  using Shape = Signature<P...>;
  static_assert(Shape::boundBefore(Shape::kCount) == sizeof...(B),
                "one value for each parameter that is neither a vector nor the length");
  return [=](const Vectors& v) {
    return Shape::call(name, function, v, std::make_tuple(bound...),
                       std::make_index_sequence<Shape::kCount>());
  };
}

// Places of the arguments of functions of other shapes.
struct Src1 {};
struct Src2 {};
struct Dst {};
struct Len {};
inline constexpr Src1 kSrc1;
inline constexpr Src2 kSrc2;
inline constexpr Dst kDst;
inline constexpr Len kLen;

template <class P>
P argumentAt(const Vectors& v, Src1 /*place*/) {
  return reinterpret_cast<P>(v.src1());
}
template <class P>
P argumentAt(const Vectors& v, Src2 /*place*/) {
  return reinterpret_cast<P>(v.src2());
}
template <class P>
P argumentAt(const Vectors& v, Dst /*place*/) {
  return reinterpret_cast<P>(v.dst());
}
template <class P>
P argumentAt(const Vectors& v, Len /*place*/) {
  return static_cast<P>(v.len());
}
template <class P, class Value>
P argumentAt(const Vectors& /*v*/, Value value) {
  return value;
}

// A function with its arguments: places and values.
template <class R, class... P, class... A>
Peer peerWith(const char* name, R (*function)(P...), A... arguments) {
  return
      [=](const Vectors& v) { return contestant(name, function, argumentAt<P>(v, arguments)...); };
}

// The same for a pointer in another library that may change: it is read at every call.
template <class R, class... P, class... A>
Peer peerWith(const char* name, R (**function)(P...), A... arguments) {
  return [=](const Vectors& v) {
    const std::tuple<P...> all = {argumentAt<P>(v, arguments)...};
    return Contestant{name, [=](size_t count) {
                        auto pointer = function;
                        benchmark::DoNotOptimize(pointer);
                        for (; count > 0; --count) std::apply(*pointer, all);
                      }};
  };
}

// A peer whose results may differ as `agrees` says, which "~" after its name tells.
inline Peer approximate(Agreement agrees, Peer peer) {
  return [agrees = std::move(agrees), peer = std::move(peer)](const Vectors& v) {
    Contestant contestant = peer(v);
    contestant.name += '~';
    contestant.agrees = agrees;
    return contestant;
  };
}

}  // namespace veks::bench

#endif
