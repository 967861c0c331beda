// Comparisons of element-wise functions with plain loops of the same operation.
#ifndef VEKS_BENCH_VECTOR_AGAINST_LOOPS_H
#define VEKS_BENCH_VECTOR_AGAINST_LOOPS_H

#include <utility>

#include "comparisons.h"
#include "peers/plain_loops.h"

namespace veks::bench {

// How a comparison differs from the usual one.
struct Special {
  Content content = {};
  Agreement loopAgrees = nullptr;  // how close the loop has to come; null: the same bytes
};

// For complex products, which g++ 12 makes of fused operations even where it is told not to, and
// for operations by another formula.
template <class T>
Special closeTo() {
  return {{}, nearAgreement<T>()};
}

inline VectorCase caseOf(Destination destination, const Special& special) {
  return {destination, special.content, {}};
}

template <class... P, class... B>
std::vector<Peer> loop(const Special& special, void (*function)(P...), B... bound) {
  Peer plain = peer("loop", function, bound...);
  if (special.loopAgrees) return {approximate(special.loopAgrees, std::move(plain))};
  return {std::move(plain)};
}

template <class Op, class T>
void unary(const char* name, VekStatus (*function)(const T*, T*, int),
           const Special& special = {}) {
  compareVectors(name, function, caseOf(Destination::kWritten, special),
                 loop(special, plain::Unary<Op, T>::separate));
}

template <class Op, class T>
void unary(const char* name, VekStatus (*function)(T*, int), const Special& special = {}) {
  compareVectors(name, function, caseOf(Destination::kUpdated, special),
                 loop(special, plain::Unary<Op, T>::inPlace));
}

template <class Op, class S, class T>
void binary(const char* name, VekStatus (*function)(const S*, const T*, T*, int),
            const Special& special = {}) {
  compareVectors(name, function, caseOf(Destination::kWritten, special),
                 loop(special, plain::Binary<Op, S, T>::separate));
}

template <class Op, class S, class T>
void binary(const char* name, VekStatus (*function)(const S*, T*, int),
            const Special& special = {}) {
  compareVectors(name, function, caseOf(Destination::kUpdated, special),
                 loop(special, plain::Binary<Op, S, T>::inPlace));
}

// Two vectors of one type into one of another.
template <class Op, class S, class T>
void widening(const char* name, VekStatus (*function)(const S*, const S*, T*, int)) {
  compareVectors(name, function, {}, {peer("loop", plain::Widening<Op, S, T>::separate)});
}

template <class T>
void addProduct(const char* name, VekStatus (*function)(const T*, const T*, T*, int),
                const Special& special = {}) {
  compareVectors(name, function, caseOf(Destination::kUpdated, special),
                 loop(special, plain::Accumulate<T>::addProduct));
}

template <class Op, class T, class C>
void withConstant(const char* name, VekStatus (*function)(const T*, C, T*, int),
                  const Special& special = {}, C val = constant<C>()) {
  compareVectors(name, function, caseOf(Destination::kWritten, special),
                 loop(special, plain::WithConstant<Op, T, C>::separate, val), val);
}

template <class Op, class C, class T>
void withConstant(const char* name, VekStatus (*function)(C, T*, int), const Special& special = {},
                  C val = constant<C>()) {
  compareVectors(name, function, caseOf(Destination::kUpdated, special),
                 loop(special, plain::WithConstant<Op, T, C>::inPlace, val), val);
}

}  // namespace veks::bench

#endif
