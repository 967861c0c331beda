// The norms of the kernels, as tags that are the same for every SIMD target.
#ifndef VEKS_STATS_NORM_TAGS_H
#define VEKS_STATS_NORM_TAGS_H

namespace veks {

struct Inf {};
struct L1 {};
struct L2 {};

}  // namespace veks

#endif
