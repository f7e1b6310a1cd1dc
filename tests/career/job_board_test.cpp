#include "career/job_board.h"

#include <gtest/gtest.h>

#include "career/job_contract.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

using JobBoard = test::RuleTest;

TEST_F(JobBoard, DoesNotCheckEnergyAndAllowsOneJob) {
  world.totalEnergyAvailable = 0;
  const JobOffer runner{{.jobTitle = "Set Runner", .energyCost = 20, .jobPay = 410}, 5};
  EXPECT_FALSE(acceptJob(game, runner));
  EXPECT_EQ(world.weeklyJobIncome, 410);
  EXPECT_EQ(world.weeklyEnergyCost, 20);
  EXPECT_EQ(world.weeklyJobContractRemaining, 5);
  expectToldInTheLogAlone("You accepted a temp job as a Set Runner for 5 weeks.");

  advanceJobContract(game);
  const JobOffer reader{{.jobTitle = "Script Reader"}, 4};
  EXPECT_TRUE(acceptJob(game, reader)->message.ends_with("existing contract in place for 4 more week(s)."));
  EXPECT_EQ(world.weeklyJobTitle, "Set Runner");
  for (int week = 0; week < 4; ++week) advanceJobContract(game);
  EXPECT_FALSE(acceptJob(game, reader));  // the contract has ended; the old job is not cleared yet
  EXPECT_EQ(world.weeklyJobTitle, "Script Reader");
}

}  // namespace
}  // namespace tb
