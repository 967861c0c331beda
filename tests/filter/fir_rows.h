// All filters in one table, called in one way: a row for each pair of types of taps and data.
#ifndef VEKS_TESTS_FILTER_FIR_ROWS_H
#define VEKS_TESTS_FILTER_FIR_ROWS_H

#include <cstddef>
#include <initializer_list>
#include <vector>

#include "veks/filter/fir.h"
#include "veks/filter/fir_direct.h"

namespace veks::test::fir {

using Sizes = std::initializer_list<size_t>;

// Of a lane: a number, or one part of a complex number.
enum class Type { k16s, k32s, k32f, k64f };

struct Row {
  const char* name;
  Type tap;
  Type data;
  size_t lanes;           // of a tap and of a sample
  size_t transformsFrom;  // so many taps; 0 if never

  // What a row does not take, tapsFactor or scaleFactor, is ignored.
  VekStatus (*stateSize)(int tapsLen, int* size);
  VekStatus (*init)(void** state, const void* taps, int tapsLen, int tapsFactor, const void* line,
                    Vek8u* buffer);
  VekStatus (*initAlloc)(void** state, const void* taps, int tapsLen, int tapsFactor,
                         const void* line);
  VekStatus (*release)(void* state);
  VekStatus (*getTaps)(const void* state, void* taps, int* tapsFactor);
  VekStatus (*setTaps)(const void* taps, void* state, int tapsFactor);
  VekStatus (*getLine)(const void* state, void* line);
  VekStatus (*setLine)(void* state, const void* line);
  VekStatus (*filter)(const void* src, void* dst, int n, void* state, int scaleFactor);
  VekStatus (*filterInPlace)(void* srcDst, int n, void* state, int scaleFactor);
  VekStatus (*one)(const void* sample, void* dst, void* state, int scaleFactor);

  VekStatus (*direct)(const void* src, void* dst, int n, const void* taps, int tapsLen,
                      int tapsFactor, void* line, int* index, int scaleFactor);
  VekStatus (*directInPlace)(void* srcDst, int n, const void* taps, int tapsLen, int tapsFactor,
                             void* line, int* index, int scaleFactor);
  VekStatus (*oneDirect)(const void* sample, void* dst, const void* taps, int tapsLen,
                         int tapsFactor, void* line, int* index, int scaleFactor);
  VekStatus (*oneDirectInPlace)(void* sampleDst, const void* taps, int tapsLen, int tapsFactor,
                                void* line, int* index, int scaleFactor);

  bool hasIntegerTaps() const {
    return tap == Type::k16s || tap == Type::k32s;
  }
  bool hasIntegerData() const {
    return data == Type::k16s || data == Type::k32s;
  }
};

// With states; without; both.
const std::vector<Row>& rows();
const Row& rowOfQ15();
std::vector<Row> directRows();

// The points of a transform for so many taps.
inline size_t transformLength(size_t tapsLen) {
  size_t power = 4;
  while (power <= tapsLen) power *= 2;
  return 2 * power;
}

inline bool hasTransform(const Row& row, size_t tapsLen) {
  return row.transformsFrom != 0 && tapsLen >= row.transformsFrom;
}

}  // namespace veks::test::fir

#endif
