#include "contract/sweep.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace veks::contract {

Table libraryFunctions();

namespace {

void expectNothing(const Check check) {
  const std::vector<Finding> findings = sweep(libraryFunctions(), {check});
  constexpr size_t kShown = 40;
  for (size_t i = 0; i < std::min(findings.size(), kShown); ++i) ADD_FAILURE() << findings[i];
  EXPECT_EQ(findings.size(), 0u);
}

TEST(Sweep, Arguments) {
  expectNothing(checkArguments);
}

TEST(Sweep, Placements) {
  expectNothing(checkPlacements);
}

TEST(Sweep, InPlace) {
  expectNothing(checkInPlace);
}

}  // namespace
}  // namespace veks::contract
