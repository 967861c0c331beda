#include "veks/stats/sorting.h"

#include "core/frame.h"
#include "core/targets.h"
#include "stats/rank_sort.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/sorting-inl.h"
#include <hwy/foreach_target.h>

#include "stats/sorting-inl.h"

using namespace veks;

VekStatus veksSortAscend_8u_I(Vek8u* pSrcDst, int len) {
  return sortInPlace<SortOrder::kAscending>(VEKS_KERNEL(SortAscend<Vek8u>), pSrcDst, len);
}

VekStatus veksSortAscend_16s_I(Vek16s* pSrcDst, int len) {
  return sortInPlace<SortOrder::kAscending>(VEKS_KERNEL(SortAscend<Vek16s>), pSrcDst, len);
}

VekStatus veksSortAscend_32s_I(Vek32s* pSrcDst, int len) {
  return sortInPlace<SortOrder::kAscending>(VEKS_KERNEL(SortAscend<Vek32s>), pSrcDst, len);
}

VekStatus veksSortAscend_32f_I(Vek32f* pSrcDst, int len) {
  return sortInPlace<SortOrder::kAscending>(VEKS_KERNEL(SortAscend<Vek32f>), pSrcDst, len);
}

VekStatus veksSortAscend_64f_I(Vek64f* pSrcDst, int len) {
  return sortInPlace<SortOrder::kAscending>(VEKS_KERNEL(SortAscend<Vek64f>), pSrcDst, len);
}

VekStatus veksSortDescend_8u_I(Vek8u* pSrcDst, int len) {
  return sortInPlace<SortOrder::kDescending>(VEKS_KERNEL(SortDescend<Vek8u>), pSrcDst, len);
}

VekStatus veksSortDescend_16s_I(Vek16s* pSrcDst, int len) {
  return sortInPlace<SortOrder::kDescending>(VEKS_KERNEL(SortDescend<Vek16s>), pSrcDst, len);
}

VekStatus veksSortDescend_32s_I(Vek32s* pSrcDst, int len) {
  return sortInPlace<SortOrder::kDescending>(VEKS_KERNEL(SortDescend<Vek32s>), pSrcDst, len);
}

VekStatus veksSortDescend_32f_I(Vek32f* pSrcDst, int len) {
  return sortInPlace<SortOrder::kDescending>(VEKS_KERNEL(SortDescend<Vek32f>), pSrcDst, len);
}

VekStatus veksSortDescend_64f_I(Vek64f* pSrcDst, int len) {
  return sortInPlace<SortOrder::kDescending>(VEKS_KERNEL(SortDescend<Vek64f>), pSrcDst, len);
}
