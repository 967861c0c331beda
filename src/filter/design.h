#ifndef VEKS_FILTER_DESIGN_INTERNAL_H
#define VEKS_FILTER_DESIGN_INTERNAL_H

#include "gen/turns.h"

namespace veks {

// An ideal response: the tap at the distance d is
// (sin(added) - sin(subtracted) + sin(addedToo)) / (pi d), where sample 2 d of an argument counts.
struct IdealResponse {
  double centre;
  Argument added;
  Argument subtracted;
  Argument addedToo;
};

}  // namespace veks

#endif
