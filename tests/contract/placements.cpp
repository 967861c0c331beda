#include <map>

#include "contract/sweep.h"
#include "support.h"

namespace veks::contract {
namespace {

struct Outcome {
  VekStatus status;
  std::vector<unsigned char> results;

  bool operator!=(const Outcome& other) const {
    return status != other.status || results != other.results;
  }
};

// `first` is the outcome of the first call on the target.
void checkCall(Invocation& call, std::optional<Outcome>& first, Report& report) {
  std::optional<VekStatus> wanted;
  if (first) wanted = first->status;
  if (!report.run(call, wanted) || !report.checkOutside(call)) return call.restoreBuffers();
  if (!first) {
    first = Outcome{call.status(), call.results()};
  } else if (const Operand* const differing = call.differsFrom(first->results)) {
    report.add(call, Kind::kPlacement, differing->parameter->name);
  }
  call.restoreVectors();
}

// The outcome that all placements have in common, unless every call has failed.
std::optional<Outcome> outcomeOfAll(Invocation& call, Report& report) {
  std::optional<Outcome> first;
  const size_t rounds = call.rounds();
  for (const bool atEnd : {true, false}) {
    for (size_t round = 0; round < rounds; ++round) {
      call.place({atEnd, round});
      checkCall(call, first, report);
    }
  }
  return first;
}

}  // namespace

void checkPlacements(const Descriptor& function, Workspace& workspace, Report& report) {
  std::map<int, Outcome> onFirstTarget;
  test::onEveryTarget([&] {
    for (const int len : test::testLengths()) {
      if (len < function.leastLength) continue;
      Invocation call(function, len, workspace);
      const std::optional<Outcome> outcome = outcomeOfAll(call, report);
      if (!outcome || !function.sameOnTargets) continue;
      const Outcome& other = onFirstTarget.try_emplace(len, *outcome).first->second;
      if (*outcome != other) report.add(call, Kind::kTarget, "unlike the first target");
    }
  });
}

}  // namespace veks::contract
