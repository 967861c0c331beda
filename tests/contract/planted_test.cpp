#include <gtest/gtest.h>

#include <map>
#include <set>

#include "contract/sweep.h"
#include "core/targets.h"

namespace veks::contract {

Table plantedFunctions();

namespace {

TEST(Planted, EveryFaultIsReportedAndNothingElse) {
  std::map<std::string, std::set<Kind>> expected = {
      {"veksPlantedReadPast_8u", {Kind::kReadOutside}},
      {"veksPlantedHalfRoundedUp_16s", {Kind::kReadOutside}},
      {"veksPlantedReadBefore_16s", {Kind::kReadOutside}},
      {"veksPlantedWritePast_32s", {Kind::kWriteOutside}},
      {"veksPlantedWriteBefore_8u_I", {Kind::kWriteOutside}},
      {"veksPlantedWriteFar_16u", {Kind::kWriteOutside}},
      {"veksPlantedWriteSource_32fc", {Kind::kWriteSource}},
      {"veksPlantedTwoSums_8u", {Kind::kWriteOutside}},
      {"veksPlantedWriteFirst_16s", {Kind::kWriteOnError, Kind::kInPlace}},
      {"veksPlantedNullIgnored_64f", {Kind::kCrash, Kind::kStatus}},
      {"veksPlantedSizeStatus_32f", {Kind::kStatus}},
      {"veksPlantedSizeFirst_8u", {Kind::kStatus}},
      {"veksPlantedPointerFirst_8u", {Kind::kStatus}},
      {"veksPlantedOneOrMore_8u", {Kind::kStatus}},
      {"veksPlantedAnyShift_16u", {Kind::kStatus}},
      {"veksPlantedShiftFirst_16u", {Kind::kStatus}},
      {"veksPlantedShiftAfter_16u", {Kind::kStatus}},
      {"veksPlantedRequiredIndx_16s", {Kind::kStatus}},
      {"veksPlantedEarlySum_8u", {Kind::kWriteOnError}},
      {"veksPlantedFails_8u", {Kind::kStatus}},
      {"veksPlantedAlignment_64f", {Kind::kPlacement, Kind::kInPlace}},
      {"veksPlantedNeighbour_16s", {Kind::kPlacement, Kind::kInPlace}},
      {"veksPlantedIncomplete_8u", {Kind::kPlacement, Kind::kInPlace}},
      {"veksPlantedNoSum_8u", {Kind::kPlacement}},
      {"veksPlantedAlignedOnly_64f", {Kind::kCrash}},
      {"veksPlantedInPlace_16s_I", {Kind::kInPlace}},
      {"veksPlantedExpandUp_8sc_I", {Kind::kInPlace}},
      {"veksPlantedOverwrite_32s", {Kind::kInPlace}},
  };
  if (targetCount() > 1) expected["veksPlantedTarget_32f"] = {Kind::kTarget};

  std::map<std::string, std::set<Kind>> found;
  for (const Finding& finding : sweep(plantedFunctions())) {
    found[finding.function].insert(finding.kind);
    std::cout << finding << '\n';
  }
  EXPECT_EQ(found, expected);
}

}  // namespace
}  // namespace veks::contract
