// Love through the screens: from the first swipe to a family, and every way it can end.

#include <algorithm>
#include <format>
#include <gtest/gtest.h>
#include <optional>

#include "core/weekly_option.h"
#include "life/partner.h"
#include "tests/journeys/device.h"
#include "tests/mia.h"

namespace tb {
namespace {

using test::ScriptedRandom;
using test::Unscripted;

// Unscripted draws give their lowest values: people called Aaliyah and Aaron, with a maintenance of 5, who
// are interested and want 52 weeks before a proposal.
struct LoveJourney : testing::Test {
  ScriptedRandom random{Unscripted::low};
  std::optional<test::Device> device;

  void begin(const std::function<void(WorldState&)>& prepare) {
    device.emplace(random);
    device->begin([&](WorldState& world) {
      world.weekNumber = world.weekNumberForTracking = 10;
      world.talentTrait2 = 50;
      world.writtenReview = 3;
      world.totalCashAvailable = 20'000;
      prepare(world);
    });
  }
  // Begins as the spouse of Mia.
  void beginMarried(double meter, std::int64_t prenup) {
    begin([&](WorldState& world) {
      world.signPrenup = prenup;
      world.saveAllMatchesList = {test::mia(bond::married, meter)};
    });
  }
  const WorldState& world() { return device->world(); }
  test::Player& player() { return device->player(); }
  const Matches& partner() { return *currentPartner(world()); }
  std::string moment() {
    const auto& playing = player().page().moment;
    return playing.empty() ? "" : playing.front().title;
  }
  void toTheHub() {
    while (!player().page().close.empty()) device->app().press(player().page().close.front().handle);
  }
  void openRelationship() {
    toTheHub();
    player().follow({"Life", partner().name});
  }
  // Finds somebody on Latch with chemistry 55, and writes to them.
  void matchOnLatch() {
    toTheHub();
    player().follow({"Life", "Latch"});
    random.range(23, 9).range(51, 50);
    player().press("Swipe");
    random.range(201, 104);
    player().press("Like");
    EXPECT_EQ(player().title(), "It's a Match");
    EXPECT_EQ(moment(), "MATCH");
    player().type("Your first line", "Is that a real parrot?");
    player().press("SEND");
    player().expectTold("🌹 Hey, You 🌹");
  }
  // Works once on the relationship, with the best result, and plays a month.
  void careForAMonth() {
    openRelationship();
    random.range(4, 3);
    player().press("WORK ON RELATIONSHIP");
    toTheHub();
    device->playWeeks(4);
  }
};

TEST_F(LoveJourney, FromASwipeToAFamilyAndAScandal) {
  begin([](WorldState&) {});
  matchOnLatch();
  EXPECT_EQ(world().totalEnergyAvailable, 97);
  const std::string name = world().saveAllMatchesList[0].name;
  player().follow({"Back", "Matches", name, "SEND MESSAGE"});
  player().expectSees({"You matched\nwith " + name, "Is that a real parrot?"});
  player().press("MAKE IT OFFICIAL");
  EXPECT_EQ(moment(), "OFFICIAL");
  EXPECT_EQ(player().title(), "Relationship");
  EXPECT_EQ(world().totalEnergyMax, 113);  // a base of 11 by chemistry, and 2 for little maintenance
  EXPECT_EQ(partner().relationshipStatus, 52.5);

  // Two years of care: 4 points a month, less a twentieth at each of the two steps of a week.
  double meter = 52.5;
  for (int month = 1; month <= 26; ++month) {
    careForAMonth();
    meter = std::min(meter + 4, 105.0) - 8 * 0.05;
    if (month == 5) {
      openRelationship();
      player().press("PROPOSE");
      player().expectTold("⏳ Needs More Time ⏳");
    }
  }
  EXPECT_NEAR(partner().relationshipStatus, meter, 1e-9);
  EXPECT_EQ(world().totalEnergyMax, 111);  // two birthdays
  EXPECT_EQ(world().totalEnergyAvailable, 111);

  openRelationship();
  player().press("PROPOSE");
  double cash = world().totalCashAvailable;
  player().press("Propose with Oval Solitaire (0.25 Carat)");
  player().expectTold("💍 Engaged 💍");
  EXPECT_EQ(moment(), "ENGAGED");
  cash -= 2'500 * world().realEstateIndex;
  EXPECT_DOUBLE_EQ(world().totalCashAvailable, cash);
  EXPECT_EQ(partner().relationshipStatus, 100);
  player().press("PLAN THE WEDDING");
  player().press("Book: A heartfelt day on a humble budget");
  EXPECT_EQ(player().notice(), "🍾 Wedding Day 🍾");
  player().press("Don't Sign Prenup");
  EXPECT_EQ(moment(), "MARRIED");
  cash -= 5'000 * world().realEstateIndex;
  EXPECT_DOUBLE_EQ(world().totalCashAvailable, cash);
  EXPECT_EQ(world().signPrenup, 0);

  player().press("TRY FOR A BABY");
  EXPECT_EQ(moment(), "EXPECTING");
  EXPECT_EQ(world().totalEnergyAvailable, 91);
  player().expectSees({"PREGNANT"});
  toTheHub();
  device->playWeeks(19);
  EXPECT_TRUE(world().saveAllChildList.empty());
  device->endWeek();  // the 40th step
  ASSERT_EQ(world().saveAllChildList.size(), 1u);
  EXPECT_EQ(moment(), "IT'S A BABY");
  toTheHub();
  device->playWeeks();
  EXPECT_EQ(world().totalEnergyAvailable, 111 - 3);
  openRelationship();
  player().expectSees({"Newborn"});

  toTheHub();
  player().follow({"Life", "Latch", "Men"});
  matchOnLatch();
  player().follow({"Back", "Matches"});
  const double before = partner().relationshipStatus;
  random.range(2, 0).range(26, 5);
  player().press("Aaron");
  player().expectTold("👀 Caught in the DMs 👀");
  EXPECT_EQ(moment(), "SCANDAL");
  EXPECT_DOUBLE_EQ(partner().relationshipStatus, before - 20);
  const std::int64_t energyMax = world().totalEnergyMax;
  cash = world().totalCashAvailable;
  while (currentPartner(world()) != nullptr) {
    random.range(2, 0).range(26, 25);
    player().press("Aaron");
    if (currentPartner(world()) != nullptr) player().expectTold("👀 Caught in the DMs 👀");
  }
  player().expectTold("🤬 I WANT A DIVORCE!🤬");
  EXPECT_DOUBLE_EQ(world().totalCashAvailable, cash / 2);
  EXPECT_EQ(world().totalEnergyMax, energyMax - 13 - 2);
  EXPECT_EQ(world().energyLossExDrama, 2);
  player().expectSees({world().saveAllMatchesList[0].breakupLine});  // what was said can be read back
}

TEST_F(LoveJourney, AChildIsForgottenWhenTheGameIsClosed) {
  begin([](WorldState& world) {
    world.saveAllChildList = {{.id = 1, .name = "Newborn", .relationship = "Son", .weeklyEnergyCost = 5}};
    world.childEnergyCost = 5;
  });
  EXPECT_TRUE(world().saveAllChildList.empty());
  device->playWeeks();
  EXPECT_EQ(world().childEnergyCost, 0);
  EXPECT_EQ(world().totalEnergyAvailable, 100);
}

TEST_F(LoveJourney, APrenupIsSignedAtTheWeddingAndKeepsTheCash) {
  begin([](WorldState& world) {
    world.weekNumber = 48;
    world.weekNumberForTracking = 100;
    world.saveAllMatchesList = {test::mia(bond::engaged, 75)};
  });
  openRelationship();
  player().press("PLAN THE WEDDING");
  player().press("Book: A heartfelt day on a humble budget");
  player().press("Sign Prenup");
  EXPECT_EQ(moment(), "MARRIED");
  EXPECT_EQ(world().signPrenup, 1);
  const double cash = world().totalCashAvailable;
  EXPECT_DOUBLE_EQ(cash, 20'000 - 5'000 * world().realEstateIndex);
  openRelationship();
  player().follow({"DIVORCE", "Yes"});
  player().expectTold("💔 Ready to Move On 💔");
  EXPECT_EQ(world().totalCashAvailable, cash);
  EXPECT_EQ(world().signPrenup, 0);
}

TEST_F(LoveJourney, AMarriageEndsInEveryWay) {
  for (const std::int64_t prenup : {0, 1}) {
    beginMarried(90, prenup);
    openRelationship();
    player().press("DIVORCE");
    EXPECT_EQ(player().notice(), "💔 Divorce? 💔");
    player().press("Yes");
    player().expectTold("💔 Ready to Move On 💔");
    EXPECT_EQ(player().title(), "Latch");
    EXPECT_EQ(world().totalCashAvailable, prenup == 1 ? 20'000 : 10'000);
    EXPECT_EQ(world().totalEnergyMax, 95);
    EXPECT_EQ(world().totalEnergyAvailable, 75);

    beginMarried(1, prenup);
    device->playWeeks();
    device->endWeek();
    EXPECT_EQ(player().notice(), "🤬 I WANT A DIVORCE!🤬");
    EXPECT_EQ(world().totalEnergyMax, 95);

    beginMarried(4, prenup);
    openRelationship();
    random.any(1).range(3, 1);
    player().press("I NEED MONEY");
    EXPECT_EQ(player().notice(), "🤬GOLD DIGGER!!🤬");
    EXPECT_EQ(world().totalCashAvailable, prenup == 1 ? 20'000 : 10'000);
    EXPECT_EQ(world().totalEnergyAvailable, 95);
  }
}

}  // namespace
}  // namespace tb
