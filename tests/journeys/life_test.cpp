// Everyday life on the screens: the week's events, a story in the press, and what is bought for energy.

#include <format>
#include <gtest/gtest.h>

#include "life/partner.h"
#include "tests/journeys/device.h"
#include "tests/mia.h"
#include "tests/sheet.h"

namespace tb {
namespace {

struct LifeJourney : testing::Test {
  test::SeededRandom random{1};
  test::Device device{random};
  test::Player& player() { return device.player(); }
  const WorldState& world() { return device.world(); }

  void writeScreen(test::Sheet& sheet, const std::string& what) {
    sheet.line("==== " + what);
    for (const std::string& line : player().words()) sheet.line(line);
  }
  // Ends the first week of careers until one leads to a page with this text.
  void endWeekUntil(const std::string& text, const std::function<void(WorldState&)>& prepare) {
    for (std::uint64_t seed = 1; seed < 300; ++seed) {
      random.seed(seed);
      device.begin(prepare);
      player().press("End Week");
      if (player().sees(text)) return;
    }
    FAIL() << "no week shows " << text;
  }
};

TEST_F(LifeJourney, AStoryIsAnsweredBeforeTheReview) {
  test::Sheet sheet("screen_story");
  const auto record = [&](const std::string& what) { writeScreen(sheet, what); };
  double cash = 0;
  const auto breakStory = [&] {
    endWeekUntil("COST ", [&](WorldState& world) {
      world.weekNumber = 2;
      world.totalCashAvailable = cash;
      world.publicImage = 50;
    });
  };
  breakStory();
  record("without cash");
  EXPECT_TRUE(player().page().close.empty());
  device.app().back();
  player().press("Do this");
  if (player().notice().empty()) FAIL() << "the first option of this story is the paid one";
  player().expectTold("💰 Not Enough Cash");
  player().answerStory();
  EXPECT_EQ(player().title(), "REVIEW");
  EXPECT_LT(world().publicImage, 50);
  EXPECT_TRUE(world().activityTracker.front().contains(" and your image is damaged by -"));
  player().press("Close");
  EXPECT_EQ(player().title(), "Ada Quinn");

  cash = 1'000;
  breakStory();
  const double before = world().totalCashAvailable;
  player().press("Do this");
  record("bought off");
  EXPECT_LT(world().totalCashAvailable, before);
  EXPECT_GT(world().publicImage, 50);
  device.app().back();
  EXPECT_EQ(player().title(), "REVIEW");
}

TEST_F(LifeJourney, APartnerAsksAQuestionInTheReview) {
  test::Sheet sheet("screen_question");
  endWeekUntil("Relationship 10", [](WorldState& world) {
    world.totalEnergyAvailable = 100;
    world.totalCashAvailable = 500;
    world.saveAllMatchesList = {test::mia(bond::dating, 60)};
  });
  player().press("Relationship 10");
  EXPECT_EQ(world().totalEnergyAvailable, 90);
  writeScreen(sheet, "asked");
  player().press("Back");
  EXPECT_EQ(player().notice(), "💬 No Answer? 💬");
  player().press("Stay");
  const std::size_t told = world().relationshipTracker.size();
  player().press(player().usable().at(1));  // after "Back"
  writeScreen(sheet, "answered");
  EXPECT_EQ(world().relationshipTracker.size(), told + 2);
  player().press("Carry on");
  EXPECT_EQ(player().title(), "REVIEW");
  EXPECT_FALSE(player().sees("Relationship 10"));
}

TEST_F(LifeJourney, AnEventOfTheWeekIsUsedOnceInTheReview) {
  const auto withEnergy = [](std::int64_t left) {
    return [left](WorldState& world) {
      world.totalEnergyMax = left;
      world.totalEnergyAvailable = left;
      world.totalCashAvailable = 99;
    };
  };
  endWeekUntil("Local Theater 30", withEnergy(14));
  player().expectSees({"Too little energy"});
  player().press("Local Theater 30");
  player().expectTold("Not Enough Energy");
  EXPECT_EQ(world().experience, 0);

  endWeekUntil("Local Theater 30", withEnergy(16));
  player().press("Local Theater 30");
  EXPECT_EQ(world().totalEnergyAvailable, 1);
  EXPECT_GE(world().experience, 1);
  EXPECT_FALSE(player().sees("Local Theater 30"));
  player().expectSees({std::format(" Experience +{:.1f}", world().experience)});

  endWeekUntil("Movie Review 25", withEnergy(40));
  player().press("Movie Review 25");
  EXPECT_EQ(world().totalEnergyAvailable, 15);
  EXPECT_TRUE(player().title().starts_with("What do you think about "));
  player().press("Back");
  EXPECT_EQ(player().title(), "REVIEW");
  EXPECT_FALSE(player().sees("Movie Review 25"));
}

TEST_F(LifeJourney, EnergyIsBoughtByTheWeekAndCanceled) {
  device.begin([](WorldState& world) {
    world.totalCashAvailable = 100;
    world.totalEnergyAvailable = 103;
  });
  player().follow({"Life", "Energy", "Sign up for Barber", "Not Now"});
  EXPECT_EQ(world().totalCashAvailable, 100);
  player().follow({"Sign up for Barber", "Subscribe"});
  EXPECT_EQ(world().totalEnergyMax, 101);
  player().press("Sign up for Wine Club");
  player().expectTold("Requirements Not Met");
  player().press("Sign up for Skincare");
  player().expectTold("💰 Not Enough Cash 💰");
  player().press("Energy tracker");
  player().expectSees({"You hold 2 more than your maximum.", "Subscriptions | +1"});
  player().follow({"Back", "Cancel Barber", "Cancel it"});
  EXPECT_EQ(world().totalEnergyMax, 100);
  player().follow({"Claim Bribed", "Claim"});
  player().press("Claimed Bribed");
  player().expectTold("Already Purchased");
  EXPECT_EQ(world().totalCashAvailable, 55);
}

}  // namespace
}  // namespace tb
