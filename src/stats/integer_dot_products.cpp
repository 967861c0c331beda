#include "veks/stats/dot_products.h"

#include "core/frame.h"
#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "stats/integer_dot_products-inl.h"
#include <hwy/foreach_target.h>

#include "stats/integer_dot_products-inl.h"

using namespace veks;

VekStatus veksDotProd_16s64s(const Vek16s* pSrc1, const Vek16s* pSrc2, int len, Vek64s* pDp) {
  return reduceTwo(VEKS_KERNEL(IntegerDot<Vek16s, Vek16s, Vek64s>), pSrc1, pSrc2, len, pDp);
}

VekStatus veksDotProd_16sc64sc(const Vek16sc* pSrc1, const Vek16sc* pSrc2, int len, Vek64sc* pDp) {
  return reduceTwo(VEKS_KERNEL(IntegerDot<Vek16sc, Vek16sc, Vek64sc>), pSrc1, pSrc2, len, pDp);
}

VekStatus veksDotProd_16s16sc64sc(const Vek16s* pSrc1, const Vek16sc* pSrc2, int len,
                                  Vek64sc* pDp) {
  return reduceTwo(VEKS_KERNEL(IntegerDot<Vek16s, Vek16sc, Vek64sc>), pSrc1, pSrc2, len, pDp);
}

VekStatus veksDotProd_16s32f(const Vek16s* pSrc1, const Vek16s* pSrc2, int len, Vek32f* pDp) {
  return reduceTwo(VEKS_KERNEL(IntegerDot<Vek16s, Vek16s, Vek32f>), pSrc1, pSrc2, len, pDp);
}

VekStatus veksDotProd_16sc32fc(const Vek16sc* pSrc1, const Vek16sc* pSrc2, int len, Vek32fc* pDp) {
  return reduceTwo(VEKS_KERNEL(IntegerDot<Vek16sc, Vek16sc, Vek32fc>), pSrc1, pSrc2, len, pDp);
}

VekStatus veksDotProd_16s16sc32fc(const Vek16s* pSrc1, const Vek16sc* pSrc2, int len,
                                  Vek32fc* pDp) {
  return reduceTwo(VEKS_KERNEL(IntegerDot<Vek16s, Vek16sc, Vek32fc>), pSrc1, pSrc2, len, pDp);
}

VekStatus veksDotProd_16s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, int len, Vek16s* pDp,
                              int scaleFactor) {
  return reduceTwo(VEKS_KERNEL(IntegerDotScaled<Vek16s, Vek16s, Vek16s>), pSrc1, pSrc2, len, pDp,
                   scaleFactor);
}

VekStatus veksDotProd_16sc_Sfs(const Vek16sc* pSrc1, const Vek16sc* pSrc2, int len, Vek16sc* pDp,
                               int scaleFactor) {
  return reduceTwo(VEKS_KERNEL(IntegerDotScaled<Vek16sc, Vek16sc, Vek16sc>), pSrc1, pSrc2, len, pDp,
                   scaleFactor);
}

VekStatus veksDotProd_16s16sc_Sfs(const Vek16s* pSrc1, const Vek16sc* pSrc2, int len, Vek16sc* pDp,
                                  int scaleFactor) {
  return reduceTwo(VEKS_KERNEL(IntegerDotScaled<Vek16s, Vek16sc, Vek16sc>), pSrc1, pSrc2, len, pDp,
                   scaleFactor);
}

VekStatus veksDotProd_16s32s_Sfs(const Vek16s* pSrc1, const Vek16s* pSrc2, int len, Vek32s* pDp,
                                 int scaleFactor) {
  return reduceTwo(VEKS_KERNEL(IntegerDotScaled<Vek16s, Vek16s, Vek32s>), pSrc1, pSrc2, len, pDp,
                   scaleFactor);
}

VekStatus veksDotProd_16sc32sc_Sfs(const Vek16sc* pSrc1, const Vek16sc* pSrc2, int len,
                                   Vek32sc* pDp, int scaleFactor) {
  return reduceTwo(VEKS_KERNEL(IntegerDotScaled<Vek16sc, Vek16sc, Vek32sc>), pSrc1, pSrc2, len, pDp,
                   scaleFactor);
}

VekStatus veksDotProd_16s16sc32sc_Sfs(const Vek16s* pSrc1, const Vek16sc* pSrc2, int len,
                                      Vek32sc* pDp, int scaleFactor) {
  return reduceTwo(VEKS_KERNEL(IntegerDotScaled<Vek16s, Vek16sc, Vek32sc>), pSrc1, pSrc2, len, pDp,
                   scaleFactor);
}

VekStatus veksDotProd_16s32s32s_Sfs(const Vek16s* pSrc1, const Vek32s* pSrc2, int len, Vek32s* pDp,
                                    int scaleFactor) {
  return reduceTwo(VEKS_KERNEL(IntegerDotScaled<Vek16s, Vek32s, Vek32s>), pSrc1, pSrc2, len, pDp,
                   scaleFactor);
}

VekStatus veksDotProd_32s_Sfs(const Vek32s* pSrc1, const Vek32s* pSrc2, int len, Vek32s* pDp,
                              int scaleFactor) {
  return reduceTwo(VEKS_KERNEL(IntegerDotScaled<Vek32s, Vek32s, Vek32s>), pSrc1, pSrc2, len, pDp,
                   scaleFactor);
}

VekStatus veksDotProd_32sc_Sfs(const Vek32sc* pSrc1, const Vek32sc* pSrc2, int len, Vek32sc* pDp,
                               int scaleFactor) {
  return reduceTwo(VEKS_KERNEL(IntegerDotScaled<Vek32sc, Vek32sc, Vek32sc>), pSrc1, pSrc2, len, pDp,
                   scaleFactor);
}

VekStatus veksDotProd_32s32sc_Sfs(const Vek32s* pSrc1, const Vek32sc* pSrc2, int len, Vek32sc* pDp,
                                  int scaleFactor) {
  return reduceTwo(VEKS_KERNEL(IntegerDotScaled<Vek32s, Vek32sc, Vek32sc>), pSrc1, pSrc2, len, pDp,
                   scaleFactor);
}
