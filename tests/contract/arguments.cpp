#include <climits>
#include <utility>

#include "contract/sweep.h"
#include "support.h"

namespace veks::contract {
namespace {

constexpr int kLen = 8;

// Unusual values for some arguments, if any, the error that they call for, if any, and the same in
// words.
struct Replacement {
  VekStatus status = vekStsOk;
  std::vector<std::pair<size_t, Value>> values;
  std::string text;
};

// None, each pointer, all of them.
std::vector<Replacement> nullPointers(const Descriptor& function) {
  const Value null = valueOf<const void*>(nullptr);
  std::vector<Replacement> all(1);
  Replacement everyPointer = {vekErrNullPtr, {}, ", all pointers null"};
  for (size_t i = 0; i < function.count; ++i) {
    const Parameter& parameter = function.parameters[i];
    if (!parameter.isPointer()) continue;
    const VekStatus status = parameter.mayBeNull ? vekStsOk : vekErrNullPtr;
    all.push_back({status, {{i, null}}, std::string(", ") + parameter.name + " null"});
    everyPointer.values.push_back({i, null});
  }
  all.push_back(everyPointer);
  return all;
}

std::vector<Replacement> badLengths(const Descriptor& function) {
  std::vector<Replacement> all(1);
  for (size_t i = 0; i < function.count; ++i) {
    if (function.parameters[i].role != Role::kLength) continue;
    for (const int len : {function.leastLength - 1, 0, -1, INT_MIN}) {
      all.push_back({vekErrSize, {{i, valueOf(len)}}, ", len " + std::to_string(len)});
    }
  }
  return all;
}

std::vector<Replacement> badScalars(const Descriptor& function) {
  std::vector<Replacement> all(1);
  for (size_t i = 0; i < function.count; ++i) {
    const Parameter& parameter = function.parameters[i];
    for (const BadValue& bad : parameter.bad) {
      all.push_back({bad.status,
                     {{i, parameter.fromNumbers(bad.number, bad.number)}},
                     std::string(", bad ") + parameter.name});
    }
  }
  return all;
}

// The first replacement that calls for an error determines it.
void checkReplacements(Invocation& call, const std::vector<const Replacement*>& replacements,
                       Report& report) {
  call.place({true, 0});
  std::optional<VekStatus> wanted;
  std::string text;
  for (const Replacement* const replacement : replacements) {
    for (const auto& [argument, value] : replacement->values) call.set(argument, value);
    if (!wanted && replacement->status != vekStsOk) wanted = replacement->status;
    text += replacement->text;
  }
  if (report.run(call, wanted, text) && wanted) {
    if (const Operand* const changed = call.changedAnywhere()) {
      report.add(call, Kind::kWriteOnError, changed->parameter->name + text);
    }
  }
  call.restoreBuffers();
}

}  // namespace

void checkArguments(const Descriptor& function, Workspace& workspace, Report& report) {
  Invocation call(function, kLen, workspace);
  const std::vector<Replacement> pointers = nullPointers(function);
  const std::vector<Replacement> lengths = badLengths(function);
  const std::vector<Replacement> scalars = badScalars(function);
  test::onEveryTarget([&] {
    for (const Replacement& pointer : pointers) {
      for (const Replacement& length : lengths) {
        for (const Replacement& scalar : scalars) {
          switch (function.order) {
            case CheckOrder::kPointersFirst:
              checkReplacements(call, {&pointer, &length, &scalar}, report);
              break;
            case CheckOrder::kLengthFirst:
              checkReplacements(call, {&length, &pointer, &scalar}, report);
              break;
            case CheckOrder::kScalarsFirst:
              checkReplacements(call, {&scalar, &pointer, &length}, report);
              break;
          }
        }
      }
    }
  });
}

}  // namespace veks::contract
