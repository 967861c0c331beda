// The contract of vector functions, checked on every SIMD target of the machine.
#ifndef CONTRACT_SWEEP_H
#define CONTRACT_SWEEP_H

#include <vector>

#include "contract/descriptor.h"
#include "contract/report.h"

namespace veks::contract {

// Null pointers, bad lengths and bad parameters, alone and together: the documented status,
// pointers before the length before parameters, and nothing is written.
void checkArguments(const Descriptor& function, Workspace& workspace, Report& report);

// Short lengths and some longer ones at every alignment between guard pages: no access outside, and
// the same result everywhere.
void checkPlacements(const Descriptor& function, Workspace& workspace, Report& report);

// A destination that is one of the sources, and the in-place function: the result of separate
// vectors.
void checkInPlace(const Descriptor& function, Workspace& workspace, Report& report);

using Check = void (*)(const Descriptor&, Workspace&, Report&);

std::vector<Finding> sweep(const Table& functions,
                           const std::vector<Check>& checks = {checkArguments, checkPlacements,
                                                               checkInPlace});

}  // namespace veks::contract

#endif
