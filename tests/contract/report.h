// What the contract sweep has found.
#ifndef CONTRACT_REPORT_H
#define CONTRACT_REPORT_H

#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "contract/invocation.h"

namespace veks::contract {

enum class Kind {
  kStatus,        // another status than the documented one
  kWriteOnError,  // an output has changed although the call has failed
  kReadOutside,
  kWriteOutside,
  kWriteSource,
  kCrash,
  kPlacement,  // the result depends on where the vectors lie
  kTarget,     // the result depends on the SIMD target or on the kind of stores
  kInPlace,    // the result is another one if it overwrites a source
};

// What happened first of its kind in a function.
struct Finding {
  std::string function;
  Kind kind;
  std::string detail;
};

std::ostream& operator<<(std::ostream& out, Kind kind);
std::ostream& operator<<(std::ostream& out, const Finding& finding);

class Report {
 public:
  void add(const Invocation& call, Kind kind, const std::string& detail);

  // Runs the call and reports a fault and any status but `wanted`; without one, errors. `arguments`
  // are those that are not the call's own, in words. Tells whether there was nothing to report.
  bool run(Invocation& call, std::optional<VekStatus> wanted, const std::string& arguments = "");

  // Reports a changed byte around the vectors that the call has written. Tells whether there was
  // none.
  bool checkOutside(const Invocation& call);

  const std::vector<Finding>& findings() const {
    return findings_;
  }

 private:
  std::vector<Finding> findings_;
};

}  // namespace veks::contract

#endif
