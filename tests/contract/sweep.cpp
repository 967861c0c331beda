#include "contract/sweep.h"

namespace veks::contract {

std::vector<Finding> sweep(const Table& functions, const std::vector<Check>& checks) {
  const FaultHandlers handlers;
  Workspace workspace;
  Report report;
  for (const Descriptor& function : functions) {
    for (const Check check : checks) check(function, workspace, report);
  }
  return report.findings();
}

}  // namespace veks::contract
