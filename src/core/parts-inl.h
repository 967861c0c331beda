#if defined(VEKS_CORE_PARTS_INL_H) == defined(HWY_TARGET_TOGGLE)
#ifdef VEKS_CORE_PARTS_INL_H
#undef VEKS_CORE_PARTS_INL_H
#else
#define VEKS_CORE_PARTS_INL_H
#endif

#include <hwy/highway.h>

namespace veks {
namespace HWY_NAMESPACE {

// The real and the imaginary parts of as many complex values as a vector has lanes.
template <class V>
struct Parts {
  V re;
  V im;
};

}  // namespace HWY_NAMESPACE
}  // namespace veks

#endif
