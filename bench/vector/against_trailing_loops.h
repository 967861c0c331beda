// Comparisons of functions whose parameters follow the length with plain loops.
#ifndef VEKS_BENCH_VECTOR_AGAINST_TRAILING_LOOPS_H
#define VEKS_BENCH_VECTOR_AGAINST_TRAILING_LOOPS_H

#include "peers/trailing_loops.h"
#include "vectors.h"

namespace veks::bench {

template <class R, class T, class... C>
Peer trailing(const char* name, R (*function)(const T*, T*, int, C...),
              std::common_type_t<C>... constants) {
  return [=](const Vectors& v) {
    return contestant(name, function, v.src1<T>(), v.dst<T>(), v.len(), constants...);
  };
}

template <class R, class T, class... C>
Peer trailing(const char* name, R (*function)(T*, int, C...), std::common_type_t<C>... constants) {
  return [=](const Vectors& v) {
    return contestant(name, function, v.dst<T>(), v.len(), constants...);
  };
}

template <class T>
void compareTrailing(const char* name, const Peer& library, const Peer& loop) {
  addVectorCases(name, kReadWrite, {library, loop}, sizeof(T),
                 {Placement::kAligned, Placement::kOffset});
}

// The same constants for the function and the loop.
template <class Op, class T, class... C>
void againstLoop(const char* name, VekStatus (*function)(const T*, T*, int, C...),
                 std::common_type_t<C>... constants) {
  compareTrailing<T>(name, trailing("veks", function, constants...),
                     trailing("loop", plain::Trailing<Op, T, C...>::separate, constants...));
}

template <class Op, class T, class... C>
void againstLoop(const char* name, VekStatus (*function)(T*, int, C...),
                 std::common_type_t<C>... constants) {
  compareTrailing<T>(name, trailing("veks", function, constants...),
                     trailing("loop", plain::Trailing<Op, T, C...>::inPlace, constants...));
}

}  // namespace veks::bench

#endif
