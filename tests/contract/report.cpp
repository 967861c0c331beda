#include "contract/report.h"

#include <algorithm>

namespace veks::contract {
namespace {

Kind kindOf(const Fault& fault, const Operand& operand) {
  if (operand.buffer->contains(fault.address)) return Kind::kWriteSource;
  return fault.isWrite.value_or(operand.isWritten()) ? Kind::kWriteOutside : Kind::kReadOutside;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, Kind kind) {
  switch (kind) {
    case Kind::kStatus:
      return out << "wrong status";
    case Kind::kWriteOnError:
      return out << "writes although it fails";
    case Kind::kReadOutside:
      return out << "reads outside";
    case Kind::kWriteOutside:
      return out << "writes outside";
    case Kind::kWriteSource:
      return out << "writes to a source";
    case Kind::kCrash:
      return out << "crashes";
    case Kind::kPlacement:
      return out << "depends on the placement";
    case Kind::kTarget:
      return out << "depends on the target";
    case Kind::kInPlace:
      return out << "differs in place";
  }
  return out;
}

std::ostream& operator<<(std::ostream& out, const Finding& finding) {
  return out << finding.function << ' ' << finding.kind << ": " << finding.detail;
}

void Report::add(const Invocation& call, Kind kind, const std::string& detail) {
  const char* const name = call.function().name;
  const bool known = std::any_of(findings_.begin(), findings_.end(), [&](const Finding& finding) {
    return finding.kind == kind && finding.function == name;
  });
  if (!known) findings_.push_back({name, kind, detail + " [" + call.describe() + "]"});
}

bool Report::run(Invocation& call, std::optional<VekStatus> wanted, const std::string& arguments) {
  if (const std::optional<Fault> fault = call.run()) {
    for (const Operand& operand : call.operands()) {
      if (operand.buffer->contains(fault->address) || operand.buffer->guards(fault->address)) {
        add(call, kindOf(*fault, operand), operand.parameter->name + arguments);
        return false;
      }
    }
    add(call, Kind::kCrash, "signal " + std::to_string(fault->signal) + arguments);
    return false;
  }
  const VekStatus status = call.status();
  if (wanted ? status == *wanted : status >= vekStsOk) return true;
  const std::string instead = wanted ? " instead of " + std::to_string(*wanted) : "";
  add(call, Kind::kStatus, std::to_string(status) + instead + arguments);
  return false;
}

bool Report::checkOutside(const Invocation& call) {
  const Operand* const changed = call.changedOutside();
  if (changed == nullptr) return true;
  add(call, Kind::kWriteOutside, std::string("around ") + changed->parameter->name);
  return false;
}

}  // namespace veks::contract
