// Comparisons of functions on integers, and of conversions, with plain loops. Forms without a scale
// factor saturate: the loops get the factor 0.
#ifndef VEKS_BENCH_VECTOR_AGAINST_SCALED_LOOPS_H
#define VEKS_BENCH_VECTOR_AGAINST_SCALED_LOOPS_H

#include "peers/plain_conversions.h"
#include "peers/plain_scaled.h"
#include "vector/against_loops.h"

namespace veks::bench {

template <class Op, class S1, class S2, class T>
void scaledTwo(const char* name, VekStatus (*function)(const S1*, const S2*, T*, int, int),
               int scaleFactor = kScale, const Special& special = {}) {
  compareVectors(name, function, caseOf(Destination::kWritten, special),
                 loop(special, plain::ScaledTwo<Op, S1, S2, T>::separate, scaleFactor),
                 scaleFactor);
}

template <class Op, class S, class T>
void scaledTwo(const char* name, VekStatus (*function)(const S*, T*, int, int),
               int scaleFactor = kScale, const Special& special = {}) {
  compareVectors(name, function, caseOf(Destination::kUpdated, special),
                 loop(special, plain::ScaledTwo<Op, S, T, T>::inPlace, scaleFactor), scaleFactor);
}

template <class Op, class S1, class S2, class T>
void saturatedTwo(const char* name, VekStatus (*function)(const S1*, const S2*, T*, int)) {
  compareVectors(name, function, {}, loop({}, plain::ScaledTwo<Op, S1, S2, T>::separate, 0));
}

template <class Op, class S, class T>
void saturatedTwo(const char* name, VekStatus (*function)(const S*, T*, int)) {
  compareVectors(name, function, kInPlace, loop({}, plain::ScaledTwo<Op, S, T, T>::inPlace, 0));
}

template <class S, class T>
void scaledAddProduct(const char* name, VekStatus (*function)(const S*, const S*, T*, int, int),
                      int scaleFactor = kScale) {
  compareVectors(name, function, kInPlace,
                 loop({}, plain::ScaledAccumulate<S, T>::addProduct, scaleFactor), scaleFactor);
}

template <class Op, class S, class T>
void scaledOne(const char* name, VekStatus (*function)(const S*, T*, int, int),
               int scaleFactor = kScale, const Special& special = {}) {
  compareVectors(name, function, caseOf(Destination::kWritten, special),
                 loop(special, plain::ScaledOne<Op, S, T>::separate, scaleFactor), scaleFactor);
}

template <class Op, class T>
void scaledOne(const char* name, VekStatus (*function)(T*, int, int), int scaleFactor = kScale,
               const Special& special = {}) {
  compareVectors(name, function, caseOf(Destination::kUpdated, special),
                 loop(special, plain::ScaledOne<Op, T>::inPlace, scaleFactor), scaleFactor);
}

template <class Op, class T>
void saturatedOne(const char* name, VekStatus (*function)(const T*, T*, int)) {
  compareVectors(name, function, {}, loop({}, plain::ScaledOne<Op, T>::separate, 0));
}

template <class Op, class T>
void saturatedOne(const char* name, VekStatus (*function)(T*, int)) {
  compareVectors(name, function, kInPlace, loop({}, plain::ScaledOne<Op, T>::inPlace, 0));
}

template <class Op, class S, class T>
void scaledConstant(const char* name, VekStatus (*function)(const S*, S, T*, int, int),
                    int scaleFactor = kScale, const Special& special = {}, S val = constant<S>()) {
  compareVectors(name, function, caseOf(Destination::kWritten, special),
                 loop(special, plain::ScaledConstant<Op, S, T>::separate, val, scaleFactor), val,
                 scaleFactor);
}

template <class Op, class T>
void scaledConstant(const char* name, VekStatus (*function)(T, T*, int, int),
                    int scaleFactor = kScale, const Special& special = {}, T val = constant<T>()) {
  compareVectors(name, function, caseOf(Destination::kUpdated, special),
                 loop(special, plain::ScaledConstant<Op, T>::inPlace, val, scaleFactor), val,
                 scaleFactor);
}

template <class Op, class S, class T>
void saturatedConstant(const char* name, VekStatus (*function)(const S*, S, T*, int),
                       S val = constant<S>()) {
  compareVectors(name, function, {}, loop({}, plain::ScaledConstant<Op, S, T>::separate, val, 0),
                 val);
}

template <class Op, class T>
void saturatedConstant(const char* name, VekStatus (*function)(T, T*, int), T val = constant<T>()) {
  compareVectors(name, function, kInPlace, loop({}, plain::ScaledConstant<Op, T>::inPlace, val, 0),
                 val);
}

template <class S, class T>
void convert(const char* name, VekStatus (*function)(const S*, T*, int)) {
  compareVectors(name, function, {}, loop({}, plain::Convert<S, T>::separate));
}

template <class S, class T>
void convertScaled(const char* name, VekStatus (*function)(const S*, T*, int, int),
                   int scaleFactor = std::is_floating_point_v<T> ? -kToInteger : kScale) {
  compareVectors(name, function, {}, loop({}, plain::ConvertScaled<S, T>::separate, scaleFactor),
                 scaleFactor);
}

template <class S, class T>
void convertRounded(const char* name, VekStatus (*function)(const S*, T*, int, int, int),
                    int rndMode = 1, int scaleFactor = kToInteger) {
  compareVectors(name, function, {},
                 loop({}, plain::ConvertRounded<S, T>::separate, rndMode, scaleFactor), rndMode,
                 scaleFactor);
}

// Samples of three bytes. Integer says whether they are signed: Vek32s or Vek32u.
inline constexpr VectorCase kUnpacking = {Destination::kWritten, {}, {3, 0, 4}};
inline constexpr VectorCase kPacking = {Destination::kWritten, {}, {4, 0, 3}};

template <class Integer>
void unpack24(const char* name, VekStatus (*function)(const Vek8u*, Integer*, int)) {
  compareVectors(name, function, kUnpacking, loop({}, plain::Convert24<Integer>::unpack));
}

template <class Integer>
void unpack24ToFloat(const char* name, VekStatus (*function)(const Vek8u*, Vek32f*, int)) {
  compareVectors(name, function, kUnpacking, loop({}, plain::Convert24<Integer>::unpackFloat));
}

template <class Integer>
void pack24(const char* name, VekStatus (*function)(const Integer*, Vek8u*, int, int),
            int scaleFactor = kScale) {
  compareVectors(name, function, kPacking,
                 loop({}, plain::Convert24<Integer>::packScaled, scaleFactor), scaleFactor);
}

template <class Integer>
void pack24FromFloat(const char* name, VekStatus (*function)(const Vek32f*, Vek8u*, int, int, int),
                     int rndMode = 1, int scaleFactor = -22) {
  compareVectors(name, function, kPacking,
                 loop({}, plain::Convert24<Integer>::packFloat, rndMode, scaleFactor), rndMode,
                 scaleFactor);
}

}  // namespace veks::bench

#endif
