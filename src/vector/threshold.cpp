#include "veks/vector/threshold.h"

#include "core/frame.h"
#include "core/targets.h"

#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "vector/threshold-inl.h"
#include <hwy/foreach_target.h>

#include "vector/threshold-inl.h"

using namespace veks;

namespace {

// A NaN is no negative level, and in no wrong order.
template <class T>
VekStatus checkLevel(T level) {
  return level < 0 ? vekErrThreshNegLevel : vekStsOk;
}

template <class T>
VekStatus checkLevels(T levelLT, T levelGT) {
  return levelLT > levelGT ? vekErrThreshBounds : vekStsOk;
}

VekStatus checkComparison(VekCmpOp relOp) {
  return relOp == vekCmpLess || relOp == vekCmpGreater ? vekStsOk : vekErrBadArg;
}

template <class T>
VekStatus checkComparison(T level, VekCmpOp relOp) {
  const VekStatus status = checkLevel(level);
  return status != vekStsOk ? status : checkComparison(relOp);
}

// A kernel that is one of two.
template <class Less, class Greater>
struct LimitEither {
  Less less;
  Greater greater;
  VekCmpOp relOp;

  template <class... Args>
  VekStatus operator()(Args... args) const {
    return relOp == vekCmpLess ? less(args...) : greater(args...);
  }
};

template <class Less, class Greater>
LimitEither<Less, Greater> limitEither(Less less, Greater greater, VekCmpOp relOp) {
  return {less, greater, relOp};
}

}  // namespace

VekStatus veksThreshold_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s level,
                            VekCmpOp relOp) {
  const auto kernel = limitEither(VEKS_KERNEL(Limit<vekCmpLess, Vek16s>),
                                  VEKS_KERNEL(Limit<vekCmpGreater, Vek16s>), relOp);
  return mapChecked(kernel, pSrc, pDst, len, checkComparison(relOp), level);
}

VekStatus veksThreshold_16s_I(Vek16s* pSrcDst, int len, Vek16s level, VekCmpOp relOp) {
  const auto kernel = limitEither(VEKS_KERNEL(Limit<vekCmpLess, Vek16s>),
                                  VEKS_KERNEL(Limit<vekCmpGreater, Vek16s>), relOp);
  return mapChecked(kernel, pSrcDst, pSrcDst, len, checkComparison(relOp), level);
}

VekStatus veksThreshold_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level,
                            VekCmpOp relOp) {
  const auto kernel = limitEither(VEKS_KERNEL(Limit<vekCmpLess, Vek32f>),
                                  VEKS_KERNEL(Limit<vekCmpGreater, Vek32f>), relOp);
  return mapChecked(kernel, pSrc, pDst, len, checkComparison(relOp), level);
}

VekStatus veksThreshold_32f_I(Vek32f* pSrcDst, int len, Vek32f level, VekCmpOp relOp) {
  const auto kernel = limitEither(VEKS_KERNEL(Limit<vekCmpLess, Vek32f>),
                                  VEKS_KERNEL(Limit<vekCmpGreater, Vek32f>), relOp);
  return mapChecked(kernel, pSrcDst, pSrcDst, len, checkComparison(relOp), level);
}

VekStatus veksThreshold_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level,
                            VekCmpOp relOp) {
  const auto kernel = limitEither(VEKS_KERNEL(Limit<vekCmpLess, Vek64f>),
                                  VEKS_KERNEL(Limit<vekCmpGreater, Vek64f>), relOp);
  return mapChecked(kernel, pSrc, pDst, len, checkComparison(relOp), level);
}

VekStatus veksThreshold_64f_I(Vek64f* pSrcDst, int len, Vek64f level, VekCmpOp relOp) {
  const auto kernel = limitEither(VEKS_KERNEL(Limit<vekCmpLess, Vek64f>),
                                  VEKS_KERNEL(Limit<vekCmpGreater, Vek64f>), relOp);
  return mapChecked(kernel, pSrcDst, pSrcDst, len, checkComparison(relOp), level);
}

VekStatus veksThreshold_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len, Vek16s level,
                             VekCmpOp relOp) {
  const auto kernel = limitEither(VEKS_KERNEL(LimitMagnitude<vekCmpLess, Vek16sc>),
                                  VEKS_KERNEL(LimitMagnitude<vekCmpGreater, Vek16sc>), relOp);
  return mapChecked(kernel, pSrc, pDst, len, checkComparison(level, relOp), level);
}

VekStatus veksThreshold_16sc_I(Vek16sc* pSrcDst, int len, Vek16s level, VekCmpOp relOp) {
  const auto kernel = limitEither(VEKS_KERNEL(LimitMagnitude<vekCmpLess, Vek16sc>),
                                  VEKS_KERNEL(LimitMagnitude<vekCmpGreater, Vek16sc>), relOp);
  return mapChecked(kernel, pSrcDst, pSrcDst, len, checkComparison(level, relOp), level);
}

VekStatus veksThreshold_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len, Vek32f level,
                             VekCmpOp relOp) {
  const auto kernel = limitEither(VEKS_KERNEL(LimitMagnitude<vekCmpLess, Vek32fc>),
                                  VEKS_KERNEL(LimitMagnitude<vekCmpGreater, Vek32fc>), relOp);
  return mapChecked(kernel, pSrc, pDst, len, checkComparison(level, relOp), level);
}

VekStatus veksThreshold_32fc_I(Vek32fc* pSrcDst, int len, Vek32f level, VekCmpOp relOp) {
  const auto kernel = limitEither(VEKS_KERNEL(LimitMagnitude<vekCmpLess, Vek32fc>),
                                  VEKS_KERNEL(LimitMagnitude<vekCmpGreater, Vek32fc>), relOp);
  return mapChecked(kernel, pSrcDst, pSrcDst, len, checkComparison(level, relOp), level);
}

VekStatus veksThreshold_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len, Vek64f level,
                             VekCmpOp relOp) {
  const auto kernel = limitEither(VEKS_KERNEL(LimitMagnitude<vekCmpLess, Vek64fc>),
                                  VEKS_KERNEL(LimitMagnitude<vekCmpGreater, Vek64fc>), relOp);
  return mapChecked(kernel, pSrc, pDst, len, checkComparison(level, relOp), level);
}

VekStatus veksThreshold_64fc_I(Vek64fc* pSrcDst, int len, Vek64f level, VekCmpOp relOp) {
  const auto kernel = limitEither(VEKS_KERNEL(LimitMagnitude<vekCmpLess, Vek64fc>),
                                  VEKS_KERNEL(LimitMagnitude<vekCmpGreater, Vek64fc>), relOp);
  return mapChecked(kernel, pSrcDst, pSrcDst, len, checkComparison(level, relOp), level);
}

VekStatus veksThreshold_LT_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpLess, Vek16s>), pSrc, pDst, len, vekStsOk, level);
}

VekStatus veksThreshold_LT_16s_I(Vek16s* pSrcDst, int len, Vek16s level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpLess, Vek16s>), pSrcDst, pSrcDst, len, vekStsOk, level);
}

VekStatus veksThreshold_LT_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpLess, Vek32f>), pSrc, pDst, len, vekStsOk, level);
}

VekStatus veksThreshold_LT_32f_I(Vek32f* pSrcDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpLess, Vek32f>), pSrcDst, pSrcDst, len, vekStsOk, level);
}

VekStatus veksThreshold_LT_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpLess, Vek64f>), pSrc, pDst, len, vekStsOk, level);
}

VekStatus veksThreshold_LT_64f_I(Vek64f* pSrcDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpLess, Vek64f>), pSrcDst, pSrcDst, len, vekStsOk, level);
}

VekStatus veksThreshold_LT_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len, Vek16s level) {
  return mapChecked(VEKS_KERNEL(LimitMagnitude<vekCmpLess, Vek16sc>), pSrc, pDst, len,
                    checkLevel(level), level);
}

VekStatus veksThreshold_LT_16sc_I(Vek16sc* pSrcDst, int len, Vek16s level) {
  return mapChecked(VEKS_KERNEL(LimitMagnitude<vekCmpLess, Vek16sc>), pSrcDst, pSrcDst, len,
                    checkLevel(level), level);
}

VekStatus veksThreshold_LT_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(LimitMagnitude<vekCmpLess, Vek32fc>), pSrc, pDst, len,
                    checkLevel(level), level);
}

VekStatus veksThreshold_LT_32fc_I(Vek32fc* pSrcDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(LimitMagnitude<vekCmpLess, Vek32fc>), pSrcDst, pSrcDst, len,
                    checkLevel(level), level);
}

VekStatus veksThreshold_LT_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(LimitMagnitude<vekCmpLess, Vek64fc>), pSrc, pDst, len,
                    checkLevel(level), level);
}

VekStatus veksThreshold_LT_64fc_I(Vek64fc* pSrcDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(LimitMagnitude<vekCmpLess, Vek64fc>), pSrcDst, pSrcDst, len,
                    checkLevel(level), level);
}

VekStatus veksThreshold_LT_32s(const Vek32s* pSrc, Vek32s* pDst, int len, Vek32s level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpLess, Vek32s>), pSrc, pDst, len, vekStsOk, level);
}

VekStatus veksThreshold_LT_32s_I(Vek32s* pSrcDst, int len, Vek32s level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpLess, Vek32s>), pSrcDst, pSrcDst, len, vekStsOk, level);
}

VekStatus veksThreshold_GT_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpGreater, Vek16s>), pSrc, pDst, len, vekStsOk, level);
}

VekStatus veksThreshold_GT_16s_I(Vek16s* pSrcDst, int len, Vek16s level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpGreater, Vek16s>), pSrcDst, pSrcDst, len, vekStsOk,
                    level);
}

VekStatus veksThreshold_GT_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpGreater, Vek32f>), pSrc, pDst, len, vekStsOk, level);
}

VekStatus veksThreshold_GT_32f_I(Vek32f* pSrcDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpGreater, Vek32f>), pSrcDst, pSrcDst, len, vekStsOk,
                    level);
}

VekStatus veksThreshold_GT_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpGreater, Vek64f>), pSrc, pDst, len, vekStsOk, level);
}

VekStatus veksThreshold_GT_64f_I(Vek64f* pSrcDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpGreater, Vek64f>), pSrcDst, pSrcDst, len, vekStsOk,
                    level);
}

VekStatus veksThreshold_GT_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len, Vek16s level) {
  return mapChecked(VEKS_KERNEL(LimitMagnitude<vekCmpGreater, Vek16sc>), pSrc, pDst, len,
                    checkLevel(level), level);
}

VekStatus veksThreshold_GT_16sc_I(Vek16sc* pSrcDst, int len, Vek16s level) {
  return mapChecked(VEKS_KERNEL(LimitMagnitude<vekCmpGreater, Vek16sc>), pSrcDst, pSrcDst, len,
                    checkLevel(level), level);
}

VekStatus veksThreshold_GT_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(LimitMagnitude<vekCmpGreater, Vek32fc>), pSrc, pDst, len,
                    checkLevel(level), level);
}

VekStatus veksThreshold_GT_32fc_I(Vek32fc* pSrcDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(LimitMagnitude<vekCmpGreater, Vek32fc>), pSrcDst, pSrcDst, len,
                    checkLevel(level), level);
}

VekStatus veksThreshold_GT_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(LimitMagnitude<vekCmpGreater, Vek64fc>), pSrc, pDst, len,
                    checkLevel(level), level);
}

VekStatus veksThreshold_GT_64fc_I(Vek64fc* pSrcDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(LimitMagnitude<vekCmpGreater, Vek64fc>), pSrcDst, pSrcDst, len,
                    checkLevel(level), level);
}

VekStatus veksThreshold_GT_32s(const Vek32s* pSrc, Vek32s* pDst, int len, Vek32s level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpGreater, Vek32s>), pSrc, pDst, len, vekStsOk, level);
}

VekStatus veksThreshold_GT_32s_I(Vek32s* pSrcDst, int len, Vek32s level) {
  return mapChecked(VEKS_KERNEL(Limit<vekCmpGreater, Vek32s>), pSrcDst, pSrcDst, len, vekStsOk,
                    level);
}

VekStatus veksThreshold_LTVal_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s level,
                                  Vek16s value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpLess, Vek16s>), pSrc, pDst, len, vekStsOk, level,
                    value);
}

VekStatus veksThreshold_LTVal_16s_I(Vek16s* pSrcDst, int len, Vek16s level, Vek16s value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpLess, Vek16s>), pSrcDst, pSrcDst, len, vekStsOk,
                    level, value);
}

VekStatus veksThreshold_LTVal_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level,
                                  Vek32f value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpLess, Vek32f>), pSrc, pDst, len, vekStsOk, level,
                    value);
}

VekStatus veksThreshold_LTVal_32f_I(Vek32f* pSrcDst, int len, Vek32f level, Vek32f value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpLess, Vek32f>), pSrcDst, pSrcDst, len, vekStsOk,
                    level, value);
}

VekStatus veksThreshold_LTVal_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level,
                                  Vek64f value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpLess, Vek64f>), pSrc, pDst, len, vekStsOk, level,
                    value);
}

VekStatus veksThreshold_LTVal_64f_I(Vek64f* pSrcDst, int len, Vek64f level, Vek64f value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpLess, Vek64f>), pSrcDst, pSrcDst, len, vekStsOk,
                    level, value);
}

VekStatus veksThreshold_LTVal_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len, Vek16s level,
                                   Vek16sc value) {
  return mapChecked(VEKS_KERNEL(ReplaceComplex<vekCmpLess, Vek16sc>), pSrc, pDst, len,
                    checkLevel(level), level, value);
}

VekStatus veksThreshold_LTVal_16sc_I(Vek16sc* pSrcDst, int len, Vek16s level, Vek16sc value) {
  return mapChecked(VEKS_KERNEL(ReplaceComplex<vekCmpLess, Vek16sc>), pSrcDst, pSrcDst, len,
                    checkLevel(level), level, value);
}

VekStatus veksThreshold_LTVal_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len, Vek32f level,
                                   Vek32fc value) {
  return mapChecked(VEKS_KERNEL(ReplaceComplex<vekCmpLess, Vek32fc>), pSrc, pDst, len,
                    checkLevel(level), level, value);
}

VekStatus veksThreshold_LTVal_32fc_I(Vek32fc* pSrcDst, int len, Vek32f level, Vek32fc value) {
  return mapChecked(VEKS_KERNEL(ReplaceComplex<vekCmpLess, Vek32fc>), pSrcDst, pSrcDst, len,
                    checkLevel(level), level, value);
}

VekStatus veksThreshold_LTVal_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len, Vek64f level,
                                   Vek64fc value) {
  return mapChecked(VEKS_KERNEL(ReplaceComplex<vekCmpLess, Vek64fc>), pSrc, pDst, len,
                    checkLevel(level), level, value);
}

VekStatus veksThreshold_LTVal_64fc_I(Vek64fc* pSrcDst, int len, Vek64f level, Vek64fc value) {
  return mapChecked(VEKS_KERNEL(ReplaceComplex<vekCmpLess, Vek64fc>), pSrcDst, pSrcDst, len,
                    checkLevel(level), level, value);
}

VekStatus veksThreshold_LTVal_32s(const Vek32s* pSrc, Vek32s* pDst, int len, Vek32s level,
                                  Vek32s value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpLess, Vek32s>), pSrc, pDst, len, vekStsOk, level,
                    value);
}

VekStatus veksThreshold_LTVal_32s_I(Vek32s* pSrcDst, int len, Vek32s level, Vek32s value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpLess, Vek32s>), pSrcDst, pSrcDst, len, vekStsOk,
                    level, value);
}

VekStatus veksThreshold_GTVal_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s level,
                                  Vek16s value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpGreater, Vek16s>), pSrc, pDst, len, vekStsOk, level,
                    value);
}

VekStatus veksThreshold_GTVal_16s_I(Vek16s* pSrcDst, int len, Vek16s level, Vek16s value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpGreater, Vek16s>), pSrcDst, pSrcDst, len, vekStsOk,
                    level, value);
}

VekStatus veksThreshold_GTVal_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level,
                                  Vek32f value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpGreater, Vek32f>), pSrc, pDst, len, vekStsOk, level,
                    value);
}

VekStatus veksThreshold_GTVal_32f_I(Vek32f* pSrcDst, int len, Vek32f level, Vek32f value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpGreater, Vek32f>), pSrcDst, pSrcDst, len, vekStsOk,
                    level, value);
}

VekStatus veksThreshold_GTVal_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level,
                                  Vek64f value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpGreater, Vek64f>), pSrc, pDst, len, vekStsOk, level,
                    value);
}

VekStatus veksThreshold_GTVal_64f_I(Vek64f* pSrcDst, int len, Vek64f level, Vek64f value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpGreater, Vek64f>), pSrcDst, pSrcDst, len, vekStsOk,
                    level, value);
}

VekStatus veksThreshold_GTVal_16sc(const Vek16sc* pSrc, Vek16sc* pDst, int len, Vek16s level,
                                   Vek16sc value) {
  return mapChecked(VEKS_KERNEL(ReplaceComplex<vekCmpGreater, Vek16sc>), pSrc, pDst, len,
                    checkLevel(level), level, value);
}

VekStatus veksThreshold_GTVal_16sc_I(Vek16sc* pSrcDst, int len, Vek16s level, Vek16sc value) {
  return mapChecked(VEKS_KERNEL(ReplaceComplex<vekCmpGreater, Vek16sc>), pSrcDst, pSrcDst, len,
                    checkLevel(level), level, value);
}

VekStatus veksThreshold_GTVal_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len, Vek32f level,
                                   Vek32fc value) {
  return mapChecked(VEKS_KERNEL(ReplaceComplex<vekCmpGreater, Vek32fc>), pSrc, pDst, len,
                    checkLevel(level), level, value);
}

VekStatus veksThreshold_GTVal_32fc_I(Vek32fc* pSrcDst, int len, Vek32f level, Vek32fc value) {
  return mapChecked(VEKS_KERNEL(ReplaceComplex<vekCmpGreater, Vek32fc>), pSrcDst, pSrcDst, len,
                    checkLevel(level), level, value);
}

VekStatus veksThreshold_GTVal_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len, Vek64f level,
                                   Vek64fc value) {
  return mapChecked(VEKS_KERNEL(ReplaceComplex<vekCmpGreater, Vek64fc>), pSrc, pDst, len,
                    checkLevel(level), level, value);
}

VekStatus veksThreshold_GTVal_64fc_I(Vek64fc* pSrcDst, int len, Vek64f level, Vek64fc value) {
  return mapChecked(VEKS_KERNEL(ReplaceComplex<vekCmpGreater, Vek64fc>), pSrcDst, pSrcDst, len,
                    checkLevel(level), level, value);
}

VekStatus veksThreshold_GTVal_32s(const Vek32s* pSrc, Vek32s* pDst, int len, Vek32s level,
                                  Vek32s value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpGreater, Vek32s>), pSrc, pDst, len, vekStsOk, level,
                    value);
}

VekStatus veksThreshold_GTVal_32s_I(Vek32s* pSrcDst, int len, Vek32s level, Vek32s value) {
  return mapChecked(VEKS_KERNEL(Replace<vekCmpGreater, Vek32s>), pSrcDst, pSrcDst, len, vekStsOk,
                    level, value);
}

VekStatus veksThreshold_LTValGTVal_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s levelLT,
                                       Vek16s valueLT, Vek16s levelGT, Vek16s valueGT) {
  return mapChecked(VEKS_KERNEL(ReplaceOutside<Vek16s>), pSrc, pDst, len,
                    checkLevels(levelLT, levelGT), levelLT, valueLT, levelGT, valueGT);
}

VekStatus veksThreshold_LTValGTVal_16s_I(Vek16s* pSrcDst, int len, Vek16s levelLT, Vek16s valueLT,
                                         Vek16s levelGT, Vek16s valueGT) {
  return mapChecked(VEKS_KERNEL(ReplaceOutside<Vek16s>), pSrcDst, pSrcDst, len,
                    checkLevels(levelLT, levelGT), levelLT, valueLT, levelGT, valueGT);
}

VekStatus veksThreshold_LTValGTVal_32s(const Vek32s* pSrc, Vek32s* pDst, int len, Vek32s levelLT,
                                       Vek32s valueLT, Vek32s levelGT, Vek32s valueGT) {
  return mapChecked(VEKS_KERNEL(ReplaceOutside<Vek32s>), pSrc, pDst, len,
                    checkLevels(levelLT, levelGT), levelLT, valueLT, levelGT, valueGT);
}

VekStatus veksThreshold_LTValGTVal_32s_I(Vek32s* pSrcDst, int len, Vek32s levelLT, Vek32s valueLT,
                                         Vek32s levelGT, Vek32s valueGT) {
  return mapChecked(VEKS_KERNEL(ReplaceOutside<Vek32s>), pSrcDst, pSrcDst, len,
                    checkLevels(levelLT, levelGT), levelLT, valueLT, levelGT, valueGT);
}

VekStatus veksThreshold_LTValGTVal_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f levelLT,
                                       Vek32f valueLT, Vek32f levelGT, Vek32f valueGT) {
  return mapChecked(VEKS_KERNEL(ReplaceOutside<Vek32f>), pSrc, pDst, len,
                    checkLevels(levelLT, levelGT), levelLT, valueLT, levelGT, valueGT);
}

VekStatus veksThreshold_LTValGTVal_32f_I(Vek32f* pSrcDst, int len, Vek32f levelLT, Vek32f valueLT,
                                         Vek32f levelGT, Vek32f valueGT) {
  return mapChecked(VEKS_KERNEL(ReplaceOutside<Vek32f>), pSrcDst, pSrcDst, len,
                    checkLevels(levelLT, levelGT), levelLT, valueLT, levelGT, valueGT);
}

VekStatus veksThreshold_LTValGTVal_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f levelLT,
                                       Vek64f valueLT, Vek64f levelGT, Vek64f valueGT) {
  return mapChecked(VEKS_KERNEL(ReplaceOutside<Vek64f>), pSrc, pDst, len,
                    checkLevels(levelLT, levelGT), levelLT, valueLT, levelGT, valueGT);
}

VekStatus veksThreshold_LTValGTVal_64f_I(Vek64f* pSrcDst, int len, Vek64f levelLT, Vek64f valueLT,
                                         Vek64f levelGT, Vek64f valueGT) {
  return mapChecked(VEKS_KERNEL(ReplaceOutside<Vek64f>), pSrcDst, pSrcDst, len,
                    checkLevels(levelLT, levelGT), levelLT, valueLT, levelGT, valueGT);
}

VekStatus veksThreshold_LTAbs_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s level) {
  return mapChecked(VEKS_KERNEL(RaiseMagnitude<Vek16s>), pSrc, pDst, len, checkLevel(level), level);
}

VekStatus veksThreshold_LTAbs_16s_I(Vek16s* pSrcDst, int len, Vek16s level) {
  return mapChecked(VEKS_KERNEL(RaiseMagnitude<Vek16s>), pSrcDst, pSrcDst, len, checkLevel(level),
                    level);
}

VekStatus veksThreshold_LTAbs_32s(const Vek32s* pSrc, Vek32s* pDst, int len, Vek32s level) {
  return mapChecked(VEKS_KERNEL(RaiseMagnitude<Vek32s>), pSrc, pDst, len, checkLevel(level), level);
}

VekStatus veksThreshold_LTAbs_32s_I(Vek32s* pSrcDst, int len, Vek32s level) {
  return mapChecked(VEKS_KERNEL(RaiseMagnitude<Vek32s>), pSrcDst, pSrcDst, len, checkLevel(level),
                    level);
}

VekStatus veksThreshold_LTAbs_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(RaiseMagnitude<Vek32f>), pSrc, pDst, len, checkLevel(level), level);
}

VekStatus veksThreshold_LTAbs_32f_I(Vek32f* pSrcDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(RaiseMagnitude<Vek32f>), pSrcDst, pSrcDst, len, checkLevel(level),
                    level);
}

VekStatus veksThreshold_LTAbs_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(RaiseMagnitude<Vek64f>), pSrc, pDst, len, checkLevel(level), level);
}

VekStatus veksThreshold_LTAbs_64f_I(Vek64f* pSrcDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(RaiseMagnitude<Vek64f>), pSrcDst, pSrcDst, len, checkLevel(level),
                    level);
}

VekStatus veksThreshold_GTAbs_16s(const Vek16s* pSrc, Vek16s* pDst, int len, Vek16s level) {
  return mapChecked(VEKS_KERNEL(LowerMagnitude<Vek16s>), pSrc, pDst, len, checkLevel(level), level);
}

VekStatus veksThreshold_GTAbs_16s_I(Vek16s* pSrcDst, int len, Vek16s level) {
  return mapChecked(VEKS_KERNEL(LowerMagnitude<Vek16s>), pSrcDst, pSrcDst, len, checkLevel(level),
                    level);
}

VekStatus veksThreshold_GTAbs_32s(const Vek32s* pSrc, Vek32s* pDst, int len, Vek32s level) {
  return mapChecked(VEKS_KERNEL(LowerMagnitude<Vek32s>), pSrc, pDst, len, checkLevel(level), level);
}

VekStatus veksThreshold_GTAbs_32s_I(Vek32s* pSrcDst, int len, Vek32s level) {
  return mapChecked(VEKS_KERNEL(LowerMagnitude<Vek32s>), pSrcDst, pSrcDst, len, checkLevel(level),
                    level);
}

VekStatus veksThreshold_GTAbs_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(LowerMagnitude<Vek32f>), pSrc, pDst, len, checkLevel(level), level);
}

VekStatus veksThreshold_GTAbs_32f_I(Vek32f* pSrcDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(LowerMagnitude<Vek32f>), pSrcDst, pSrcDst, len, checkLevel(level),
                    level);
}

VekStatus veksThreshold_GTAbs_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(LowerMagnitude<Vek64f>), pSrc, pDst, len, checkLevel(level), level);
}

VekStatus veksThreshold_GTAbs_64f_I(Vek64f* pSrcDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(LowerMagnitude<Vek64f>), pSrcDst, pSrcDst, len, checkLevel(level),
                    level);
}

VekStatus veksThreshold_LTInv_32f(const Vek32f* pSrc, Vek32f* pDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(Invert<Vek32f>), pSrc, pDst, len, checkLevel(level), level);
}

VekStatus veksThreshold_LTInv_32f_I(Vek32f* pSrcDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(Invert<Vek32f>), pSrcDst, pSrcDst, len, checkLevel(level), level);
}

VekStatus veksThreshold_LTInv_64f(const Vek64f* pSrc, Vek64f* pDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(Invert<Vek64f>), pSrc, pDst, len, checkLevel(level), level);
}

VekStatus veksThreshold_LTInv_64f_I(Vek64f* pSrcDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(Invert<Vek64f>), pSrcDst, pSrcDst, len, checkLevel(level), level);
}

VekStatus veksThreshold_LTInv_32fc(const Vek32fc* pSrc, Vek32fc* pDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(InvertComplex<Vek32fc>), pSrc, pDst, len, checkLevel(level), level);
}

VekStatus veksThreshold_LTInv_32fc_I(Vek32fc* pSrcDst, int len, Vek32f level) {
  return mapChecked(VEKS_KERNEL(InvertComplex<Vek32fc>), pSrcDst, pSrcDst, len, checkLevel(level),
                    level);
}

VekStatus veksThreshold_LTInv_64fc(const Vek64fc* pSrc, Vek64fc* pDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(InvertComplex<Vek64fc>), pSrc, pDst, len, checkLevel(level), level);
}

VekStatus veksThreshold_LTInv_64fc_I(Vek64fc* pSrcDst, int len, Vek64f level) {
  return mapChecked(VEKS_KERNEL(InvertComplex<Vek64fc>), pSrcDst, pSrcDst, len, checkLevel(level),
                    level);
}
