// Only in the static library: nothing in the shared one can change the target.
#include "core/targets.h"

namespace veks {

void useTarget(int target) {
  activeTarget = target;
}

}  // namespace veks
