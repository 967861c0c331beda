// A yardstick for long vectors: loops that only move as many bytes as a function does.
#ifndef VEKS_BENCH_PEERS_STREAM_H
#define VEKS_BENCH_PEERS_STREAM_H

#include <cstddef>

namespace veks::bench::plain {

struct Stream {
  void (*run)(const void* src1, const void* src2, void* dst, size_t steps);  // null: there is none
  size_t steps;
};

// The loop for `len` elements of so many bytes (0: there is no such source); `updated` destinations
// are read too.
Stream streamOf(size_t src1, size_t src2, size_t dst, bool updated, size_t len);

}  // namespace veks::bench::plain

#endif
