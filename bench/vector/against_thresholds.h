// Comparisons of thresholds with plain loops.
#ifndef VEKS_BENCH_VECTOR_AGAINST_THRESHOLDS_H
#define VEKS_BENCH_VECTOR_AGAINST_THRESHOLDS_H

#include "peers/plain_thresholds.h"
#include "vector/against_loops.h"

namespace veks::bench {

template <class Side, class T, class R>
void threshold(const char* name, VekStatus (*function)(const T*, T*, int, R),
               const Special& special = {}) {
  compareVectors(name, function, caseOf(Destination::kWritten, special),
                 loop(special, plain::Threshold<Side, T, R>::separate, level<R>()), level<R>());
}

template <class Side, class T, class R>
void threshold(const char* name, VekStatus (*function)(T*, int, R), const Special& special = {}) {
  compareVectors(name, function, caseOf(Destination::kUpdated, special),
                 loop(special, plain::Threshold<Side, T, R>::inPlace, level<R>()), level<R>());
}

// The form that gets the side as an argument.
template <class Side, class T, class R>
void thresholdBy(const char* name, VekStatus (*function)(const T*, T*, int, R, VekCmpOp),
                 VekCmpOp relOp, const Special& special = {}) {
  compareVectors(name, function, caseOf(Destination::kWritten, special),
                 loop(special, plain::Threshold<Side, T, R>::separate, level<R>()), level<R>(),
                 relOp);
}

template <class Side, class T>
void thresholdAbs(const char* name, VekStatus (*function)(const T*, T*, int, T)) {
  compareVectors(name, function, {},
                 loop({}, plain::Threshold<Side, T, T, true>::separate, level<T>()), level<T>());
}

template <class Side, class T>
void thresholdAbs(const char* name, VekStatus (*function)(T*, int, T)) {
  compareVectors(name, function, kInPlace,
                 loop({}, plain::Threshold<Side, T, T, true>::inPlace, level<T>()), level<T>());
}

template <class Side, class T, class R>
void thresholdValue(const char* name, VekStatus (*function)(const T*, T*, int, R, T),
                    const Special& special = {}) {
  compareVectors(
      name, function, caseOf(Destination::kWritten, special),
      loop(special, plain::ThresholdValue<Side, T, R>::separate, level<R>(), constant<T>()),
      level<R>(), constant<T>());
}

template <class Side, class T, class R>
void thresholdValue(const char* name, VekStatus (*function)(T*, int, R, T),
                    const Special& special = {}) {
  compareVectors(
      name, function, caseOf(Destination::kUpdated, special),
      loop(special, plain::ThresholdValue<Side, T, R>::inPlace, level<R>(), constant<T>()),
      level<R>(), constant<T>());
}

template <class T>
void thresholdBoth(const char* name, VekStatus (*function)(const T*, T*, int, T, T, T, T)) {
  const T low = static_cast<T>(-level<T>());
  compareVectors(name, function, {},
                 loop({}, plain::ThresholdBoth<T>::separate, low, T{1}, level<T>(), T{2}), low,
                 T{1}, level<T>(), T{2});
}

template <class T>
void thresholdBoth(const char* name, VekStatus (*function)(T*, int, T, T, T, T)) {
  const T low = static_cast<T>(-level<T>());
  compareVectors(name, function, kInPlace,
                 loop({}, plain::ThresholdBoth<T>::inPlace, low, T{1}, level<T>(), T{2}), low, T{1},
                 level<T>(), T{2});
}

template <class T, class R>
void thresholdInverse(const char* name, VekStatus (*function)(const T*, T*, int, R),
                      const Special& special = {}) {
  compareVectors(name, function, caseOf(Destination::kWritten, special),
                 loop(special, plain::ThresholdInverse<T, R>::separate, level<R>()), level<R>());
}

}  // namespace veks::bench

#endif
