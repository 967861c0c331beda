#ifndef VEKS_CORE_ROUNDING_MODE_H
#define VEKS_CORE_ROUNDING_MODE_H

#include <xmmintrin.h>

namespace veks {

// Rounding to nearest with ties to even while it exists, whatever mode the caller has set.
class RoundToNearest {
 public:
  RoundToNearest() : callers_(_mm_getcsr()) {
    if ((callers_ & _MM_ROUND_MASK) != 0) _mm_setcsr(callers_ & ~unsigned{_MM_ROUND_MASK});
  }
  ~RoundToNearest() {
    if ((callers_ & _MM_ROUND_MASK) != 0) _mm_setcsr(callers_);
  }
  RoundToNearest(const RoundToNearest&) = delete;
  RoundToNearest& operator=(const RoundToNearest&) = delete;

 private:
  const unsigned callers_;
};

}  // namespace veks

#endif
