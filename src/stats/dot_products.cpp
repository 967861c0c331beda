#include "veks/stats/dot_products.h"

#include "core/frame.h"
#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/dot_products-inl.h"
#include <hwy/foreach_target.h>

#include "stats/dot_products-inl.h"

using namespace veks;

VekStatus veksDotProd_32f(const Vek32f* pSrc1, const Vek32f* pSrc2, int len, Vek32f* pDp) {
  return reduceTwo(VEKS_KERNEL(RealDot<Vek32f, Vek32f>), pSrc1, pSrc2, len, pDp);
}

VekStatus veksDotProd_32fc(const Vek32fc* pSrc1, const Vek32fc* pSrc2, int len, Vek32fc* pDp) {
  return reduceTwo(VEKS_KERNEL(ComplexDot<Vek32fc, Vek32fc>), pSrc1, pSrc2, len, pDp);
}

VekStatus veksDotProd_32f32fc(const Vek32f* pSrc1, const Vek32fc* pSrc2, int len, Vek32fc* pDp) {
  return reduceTwo(VEKS_KERNEL(MixedDot<Vek32f, Vek32fc, Vek32fc>), pSrc1, pSrc2, len, pDp);
}

VekStatus veksDotProd_64f(const Vek64f* pSrc1, const Vek64f* pSrc2, int len, Vek64f* pDp) {
  return reduceTwo(VEKS_KERNEL(RealDot<Vek64f, Vek64f>), pSrc1, pSrc2, len, pDp);
}

VekStatus veksDotProd_64fc(const Vek64fc* pSrc1, const Vek64fc* pSrc2, int len, Vek64fc* pDp) {
  return reduceTwo(VEKS_KERNEL(ComplexDot<Vek64fc, Vek64fc>), pSrc1, pSrc2, len, pDp);
}

VekStatus veksDotProd_64f64fc(const Vek64f* pSrc1, const Vek64fc* pSrc2, int len, Vek64fc* pDp) {
  return reduceTwo(VEKS_KERNEL(MixedDot<Vek64f, Vek64fc, Vek64fc>), pSrc1, pSrc2, len, pDp);
}

VekStatus veksDotProd_32f64f(const Vek32f* pSrc1, const Vek32f* pSrc2, int len, Vek64f* pDp) {
  return reduceTwo(VEKS_KERNEL(RealDot<Vek32f, Vek64f>), pSrc1, pSrc2, len, pDp);
}

VekStatus veksDotProd_32fc64fc(const Vek32fc* pSrc1, const Vek32fc* pSrc2, int len, Vek64fc* pDp) {
  return reduceTwo(VEKS_KERNEL(ComplexDot<Vek32fc, Vek64fc>), pSrc1, pSrc2, len, pDp);
}

VekStatus veksDotProd_32f32fc64fc(const Vek32f* pSrc1, const Vek32fc* pSrc2, int len,
                                  Vek64fc* pDp) {
  return reduceTwo(VEKS_KERNEL(MixedDot<Vek32f, Vek32fc, Vek64fc>), pSrc1, pSrc2, len, pDp);
}
