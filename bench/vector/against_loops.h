// Comparisons of element-wise functions with plain loops of the same operation.
#ifndef VEKS_BENCH_VECTOR_AGAINST_LOOPS_H
#define VEKS_BENCH_VECTOR_AGAINST_LOOPS_H

#include "peers/plain_loops.h"
#include "vectors.h"

namespace veks::bench {

template <class Op, class T>
void unary(const char* name, VekStatus (*function)(const T*, T*, int)) {
  compareVectors(name, function, kReadWrite, {peer("loop", plain::Unary<Op, T>::separate)});
}

template <class Op, class T>
void unary(const char* name, VekStatus (*function)(T*, int)) {
  compareVectors(name, function, kReadWrite, {peer("loop", plain::Unary<Op, T>::inPlace)});
}

template <class Op, class T>
void binary(const char* name, VekStatus (*function)(const T*, const T*, T*, int)) {
  compareVectors(name, function, kTwoReadsWrite, {peer("loop", plain::Binary<Op, T>::separate)});
}

template <class Op, class T>
void binary(const char* name, VekStatus (*function)(const T*, T*, int)) {
  compareVectors(name, function, kTwoReadsWrite, {peer("loop", plain::Binary<Op, T>::inPlace)});
}

template <class Op, class T, class C>
void withConstant(const char* name, VekStatus (*function)(const T*, C, T*, int)) {
  compareVectors(name, function, kReadWrite,
                 {peer("loop", plain::WithConstant<Op, T, C>::separate)});
}

template <class Op, class C, class T>
void withConstant(const char* name, VekStatus (*function)(C, T*, int)) {
  compareVectors(name, function, kReadWrite,
                 {peer("loop", plain::WithConstant<Op, T, C>::inPlace)});
}

}  // namespace veks::bench

#endif
