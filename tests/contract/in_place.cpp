#include "contract/sweep.h"
#include "support.h"

namespace veks::contract {
namespace {

bool areAlike(const Parameter& a, const Parameter& b) {
  return a.type == b.type && a.span == b.span;
}

// All destinations that may be one of the sources.
std::vector<Overwrite> overwrites(const Descriptor& function) {
  std::vector<Overwrite> all;
  for (size_t source = 0; source < function.count; ++source) {
    if (function.parameters[source].role != Role::kSource) continue;
    for (size_t destination = 0; destination < function.count; ++destination) {
      if (function.parameters[destination].role == Role::kDestination &&
          areAlike(function.parameters[source], function.parameters[destination])) {
        all.push_back({source, destination});
      }
    }
  }
  return all;
}

// The calls that must have the results of the call with separate vectors.
std::vector<Invocation> overwritingCalls(const Descriptor& function, int len,
                                         Workspace& workspace) {
  if (function.outOfPlace != nullptr) return {Invocation(function, len, workspace)};
  std::vector<Invocation> calls;
  for (const Overwrite& overwrite : overwrites(function)) {
    calls.emplace_back(function, len, workspace, overwrite);
  }
  return calls;
}

void checkCall(Invocation& call, VekStatus status, const std::vector<unsigned char>& results,
               Report& report) {
  if (!report.run(call, status) || !report.checkOutside(call)) return call.restoreBuffers();
  if (const Operand* const differing = call.differsFrom(results)) {
    report.add(call, Kind::kInPlace, differing->parameter->name);
  }
  call.restoreVectors();
}

void checkLength(const Descriptor& function, int len, Workspace& workspace, Report& report) {
  Invocation separate(function.outOfPlace ? *function.outOfPlace : function, len, workspace);
  separate.place({true, 0});
  const bool hasResults = report.run(separate, std::nullopt) && report.checkOutside(separate);
  const std::vector<unsigned char> results = separate.results();
  separate.restoreBuffers();
  if (!hasResults) return;
  for (Invocation& call : overwritingCalls(function, len, workspace)) {
    const size_t rounds = call.rounds();
    for (size_t round = 0; round < rounds; ++round) {
      const bool atEnd = (round + static_cast<size_t>(len)) % 2 == 0;
      call.place({atEnd, round});
      checkCall(call, separate.status(), results, report);
    }
  }
}

}  // namespace

void checkInPlace(const Descriptor& function, Workspace& workspace, Report& report) {
  test::onEveryTarget([&] {
    for (const int len : test::testLengths()) {
      if (len >= function.leastLength) checkLength(function, len, workspace, report);
    }
  });
}

}  // namespace veks::contract
