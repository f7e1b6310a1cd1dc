#include "week/agenda.h"

#include <gtest/gtest.h>

#include "tests/scratch_game.h"

namespace tb {
namespace {

using Kind = AgendaItem::Kind;

struct Agenda : test::RuleTest {
  Agenda() { world.weekNumberForTracking = 10; }

  Audition& add(std::int64_t funnelStage) {
    world.saveAllAuditionList.push_back({.filmId = std::ssize(world.saveAllAuditionList) + 1,
                                         .typeOfFilm = filmType::feature,
                                         .isPrincipal = rolePart::principal,
                                         .weekAudition = 12,
                                         .weekToWork = 14,
                                         .weekReleased = 20,
                                         .funnelStage = funnelStage});
    return world.saveAllAuditionList.edit(world.saveAllAuditionList.size() - 1);
  }
  static std::vector<Kind> kindsOf(const std::vector<AgendaItem>& items) {
    std::vector<Kind> kinds;
    for (const AgendaItem& item : items) kinds.push_back(item.kind);
    return kinds;
  }
};

TEST_F(Agenda, SortsDueItemsAndOmitsPastAndUnansweredOnes) {
  add(funnel::wrapped);
  add(funnel::booked);
  add(funnel::invited);
  add(funnel::invited).weekAudition = 9;  // lost
  add(funnel::wrapped).weekReleased = 9;  // released
  add(funnel::submitted);
  add(funnel::closed);
  add(funnel::booked).weekToWork = 10;
  const std::vector<AgendaItem> due = dueItems(world);
  EXPECT_EQ(kindsOf(due), (std::vector{Kind::shoot, Kind::audition, Kind::shoot, Kind::release}));
  EXPECT_EQ(due.front().week, 10);
  EXPECT_EQ(due[1].boost->kind, BoostKind::rehearse);
  EXPECT_EQ(due.back().boost->kind, BoostKind::promote);
}

TEST_F(Agenda, SuggestsWhatEnergyCashAndContractAllow) {
  world.totalEnergyAvailable = 45;
  EXPECT_EQ(kindsOf(openItems(world)), (std::vector{Kind::submissions, Kind::job, Kind::training}));
  EXPECT_EQ(openItems(world).front().count, 2);
  world.weeklyJobContractRemaining = 3;
  world.totalEnergyAvailable = 19;
  EXPECT_EQ(kindsOf(openItems(world)), (std::vector{Kind::training}));
  world.totalEnergyAvailable = 1;
  EXPECT_TRUE(openItems(world).empty());

  // Two leads and the fee allow joining the guild; their footage allows a better reel.
  world.totalCashAvailable = 3000;
  for (int lead = 0; lead < 2; ++lead) add(funnel::wrapped).performanceRating = 60;
  EXPECT_EQ(kindsOf(openItems(world)), (std::vector{Kind::guild, Kind::footageReel}));
  world.isSAG = 1;
  world.showreelScore = 60;
  EXPECT_TRUE(openItems(world).empty());
}

TEST_F(Agenda, TellsOfMailThatCameAndOfTheOfferThatGoesNext) {
  world.totalEnergyAvailable = 0;
  world.weeklyJobContractRemaining = 3;
  const auto write = [&](std::int64_t id, std::int64_t kind, std::int64_t week) {
    world.saveAllEmailList.push_back({.id = id, .typeOfDeal = kind, .weekNumberForTracking = week});
  };
  write(Email::giftId, deal::help, 1);
  write(1, deal::agent, 8);
  EXPECT_EQ(kindsOf(openItems(world)), (std::vector{Kind::gift}));
  write(2, deal::royalty, 9);
  write(3, deal::investment, 9);
  EXPECT_EQ(kindsOf(openItems(world)), (std::vector{Kind::mail, Kind::gift}));
  EXPECT_EQ(openItems(world).front().count, 2);
  EXPECT_EQ(openItems(world).front().index, 3u);
  world.saveAllEmailList.pop_front();
  for (std::int64_t id = 4; id <= 20; ++id) write(id, deal::royalty, 9);
  EXPECT_EQ(kindsOf(openItems(world)), (std::vector{Kind::mail, Kind::lapse}));
}

TEST_F(Agenda, SuggestsANegotiationWithEnoughEnergy) {
  world.weeklyJobContractRemaining = 3;
  world.totalEnergyAvailable = 75;
  add(funnel::booked).weekToWork = 30;
  add(funnel::booked).weekToWork = 25;
  for (std::size_t index = 0; index < 2; ++index) world.saveAllAuditionList.edit(index).seasonNumber = 2;
  ASSERT_TRUE(std::ranges::contains(kindsOf(openItems(world)), Kind::negotiation));
  EXPECT_EQ(openItems(world).front().index, 1u);
  world.totalEnergyAvailable = 74;
  EXPECT_FALSE(std::ranges::contains(kindsOf(openItems(world)), Kind::negotiation));
}

TEST_F(Agenda, SuggestsNoSubmissionsWithTooManyRoles) {
  for (int role = 0; role < 6; ++role) add(funnel::booked);
  EXPECT_FALSE(std::ranges::contains(kindsOf(openItems(world)), Kind::submissions));
}

TEST_F(Agenda, CountsRunningItems) {
  add(funnel::submitted);
  add(funnel::submitted).didAct = 0;
  world.weeklyJobContractRemaining = 5;
  world.saveAllCompletedClasses = {{.weeksRemaining = 0}, {.weeksRemaining = 2}};
  const std::vector<AgendaItem> running = runningItems(world);
  ASSERT_EQ(kindsOf(running), (std::vector{Kind::answers, Kind::contract, Kind::actingClass}));
  EXPECT_EQ(running[0].count, 1);
  EXPECT_EQ(running[1].count, 5);
  EXPECT_EQ(running[2].index, 1U);
}

TEST_F(Agenda, ChecksOffTheStepsOfTheFirstWeek) {
  EXPECT_FALSE(firstSteps(world));
  world.weekNumberForTracking = 1;
  EXPECT_FALSE(firstSteps(world)->hasWork || firstSteps(world)->hasSubmitted);
  world.weeklyJobContractRemaining = 4;
  add(funnel::submitted);
  EXPECT_TRUE(firstSteps(world)->hasWork && firstSteps(world)->hasSubmitted);
}

TEST_F(Agenda, SortsOutcomesBestFirst) {
  for (int role = 0; role < 2; ++role) add(funnel::invited).weekAudition = 9;
  add(funnel::wrapped).weekToWork = 9;
  add(funnel::booked).weekAudition = 9;
  add(funnel::booked);  // in another week
  Audition& bookedByAgent = add(funnel::booked);
  bookedByAgent.weekAudition = 9;
  bookedByAgent.sourceId = 4;
  for (const std::int64_t week : {9, 10, 10}) {
    world.saveAllWeeklyEarnings.push_back(
        {.sessionEarned = 100, .residualsEarned = 5, .weekNumberForTracking = week});
  }
  const std::vector<Outcome> outcomes = lastWeeksOutcomes(world);
  ASSERT_EQ(outcomes.size(), 4U);
  EXPECT_EQ(outcomes[0].kind, Outcome::Kind::booked);
  EXPECT_EQ(outcomes[0].index, 3U);
  EXPECT_EQ(outcomes[1].kind, Outcome::Kind::wrapped);
  EXPECT_EQ(outcomes[2].amount, 210);
  EXPECT_EQ(outcomes[3].count, 2);
}

}  // namespace
}  // namespace tb
