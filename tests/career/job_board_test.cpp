#include "career/job_board.h"

#include <gtest/gtest.h>

#include "career/job_contract.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

struct JobBoard : testing::Test, test::ScratchGame {
  WorldState& world = game.world;
  ~JobBoard() override { EXPECT_EQ(random.left(), 0u) << "draws that no rule took"; }
};

TEST_F(JobBoard, CanHangEmpty) {
  random.any(26).range(6, 0);
  EXPECT_TRUE(openJobBoard(game).empty());
}

TEST_F(JobBoard, ShowsOneJobTwiceWithTheSamePayAndContractsOfItsOwn) {
  random.range(7, 6).range(16, 15);  // the extra: 14 energy, $400
  random.any(24).range(6, 3);
  random.range(13, 0).range(9, 0).range(13, 12).range(9, 8).range(13, 0).range(9, 4);
  const auto board = openJobBoard(game);
  ASSERT_EQ(board.size(), 3u);
  EXPECT_EQ(board[0].job.jobTitle, "Background Extra");
  EXPECT_EQ(board[0].job.jobDescription,
            "Appears in crowd scenes or background shots for films and TV shows, following on-set direction.");
  EXPECT_EQ(board[0].job.energyCost, 14);
  EXPECT_EQ(board[0].job.jobPay, 400);
  EXPECT_EQ(board[0].contractWeeks, 4);
  EXPECT_EQ(board[1].job.jobTitle, "Social Media Content Assistant");
  EXPECT_EQ(board[1].job.energyCost, 8);
  EXPECT_EQ(board[1].job.jobPay, 250);
  EXPECT_EQ(board[1].contractWeeks, 12);
  EXPECT_EQ(board[2].job.jobPay, 400);
  EXPECT_EQ(board[2].contractWeeks, 8);
}

TEST_F(JobBoard, HiresWithoutAskingForEnergyAndOnlyOnce) {
  world.totalEnergyAvailable = 0;
  const JobOffer runner = {.job = {.jobTitle = "Set Runner", .energyCost = 20, .jobPay = 410}, .contractWeeks = 5};
  EXPECT_FALSE(acceptJob(game, runner));
  EXPECT_EQ(world.weeklyJobTitle, "Set Runner");
  EXPECT_EQ(world.weeklyJobIncome, 410);
  EXPECT_EQ(world.weeklyEnergyCost, 20);
  EXPECT_EQ(world.weeklyJobContractRemaining, 5);
  EXPECT_EQ(world.activityTracker, (TextList{"You accepted a temp job as a Set Runner for 5 weeks."}));
  EXPECT_TRUE(world.WeekFeed.empty());
  EXPECT_EQ(store.value("weeklyJobTitle"), plist::Value{std::string("Set Runner")});
  EXPECT_EQ(store.value("weeklyJobContractRemaining"), plist::Value{std::int64_t{5}});

  advanceJobContract(game);
  const JobOffer reader = {.job = {.jobTitle = "Script Reader"}, .contractWeeks = 4};
  EXPECT_EQ(acceptJob(game, reader),
            (Notice{"⏳ Contract Signed ⏳",
                    "\nYou already have an existing contract in place for 4 more week(s)."}));
  EXPECT_EQ(world.weeklyJobTitle, "Set Runner");
  for (int week = 0; week < 4; ++week) advanceJobContract(game);
  EXPECT_FALSE(acceptJob(game, reader));  // the contract is over, though the last job is not cleared yet
  EXPECT_EQ(world.weeklyJobTitle, "Script Reader");
}

}  // namespace
}  // namespace tb
