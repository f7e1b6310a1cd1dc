#include "career/job_board.h"

#include <gtest/gtest.h>

#include "career/job_contract.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

using JobBoard = test::RuleTest;

TEST_F(JobBoard, MayHangEmptyOrShowOneJobTwiceWithTheSamePayAndContractsOfItsOwn) {
  random.any(26).range(6, 0);
  EXPECT_TRUE(openJobBoard(game).empty());

  random.range(7, 6).range(16, 15);  // the extra: 14 energy, $400
  random.any(24).range(6, 3);
  random.range(13, 0).range(9, 0).range(13, 12).range(9, 8).range(13, 0).range(9, 4);
  const auto board = openJobBoard(game);
  ASSERT_EQ(board.size(), 3u);
  EXPECT_EQ(board[0].job.jobTitle, "Background Extra");
  EXPECT_EQ(board[0].job.energyCost, 14);
  EXPECT_EQ(board[0].job.jobPay, 400);
  EXPECT_EQ(board[0].contractWeeks, 4);
  EXPECT_EQ(board[1].job.jobTitle, "Social Media Content Assistant");
  EXPECT_EQ(board[1].job.energyCost, 8);
  EXPECT_EQ(board[1].contractWeeks, 12);
  EXPECT_EQ(board[2].job.jobPay, 400);
  EXPECT_EQ(board[2].contractWeeks, 8);
}

TEST_F(JobBoard, HiresWithoutAskingForEnergyAndOnlyOnce) {
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
  EXPECT_FALSE(acceptJob(game, reader));  // the contract is over, though the last job is not cleared yet
  EXPECT_EQ(world.weeklyJobTitle, "Script Reader");
}

}  // namespace
}  // namespace tb
