// A relationship: its week, its questions, care, money, the way to the altar, and how it ends.

#include <format>
#include <gtest/gtest.h>

#include "banks/relationships_banks.h"
#include "core/weekly_option.h"
#include "life/break_up.h"
#include "life/engagement.h"
#include "life/partner.h"
#include "life/relationship_care.h"
#include "life/relationship_question.h"
#include "life/relationship_week.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

struct Relationship : test::RuleTest {
  Relationship() {
    world.myName = "Ada Quinn";
    world.weekNumber = world.weekNumberForTracking = 40;
    world.totalEnergyAvailable = 100;
    world.totalFans = 1'000;
    date();
  }

  // Begins again with Mia, for ten weeks so far.
  void date(std::int64_t state = bond::dating, double meter = 50) {
    world.saveAllMatchesList = {{.matchId = 3,
                                 .name = "Mia",
                                 .weekStartedDating = 30,
                                 .energyBonus = 4,
                                 .relationshipStatus = meter,
                                 .age = 30,
                                 .maintenance = 100,
                                 .weeklyEarnings = 1'000.75,
                                 .igFollowers = 1'000,
                                 .relationshipState = state,
                                 .timeToPropose = 53}};
    world.totalEnergyMax = 100;
    world.energyLossExDrama = 0;
    world.relationshipTracker = {"something"};
  }
  Matches& partner() { return world.saveAllMatchesList.edit(0); }
  double meter() { return world.saveAllMatchesList[0].relationshipStatus; }

  // A step without gossip and post.
  auto quietStep() {
    random.range(11, 0).unit(0.5).range(11, 0);
    return relationshipWeekStep(game);
  }

  void expectEnded(std::int64_t energyMax, std::int64_t drama) {
    EXPECT_EQ(currentPartner(world), nullptr);
    EXPECT_EQ(partner().weekEndedDating, 40);
    EXPECT_FALSE(partner().breakupLine.empty());
    EXPECT_EQ(world.totalEnergyMax, energyMax);
    EXPECT_EQ(world.energyLossExDrama, drama);
    EXPECT_EQ(world.askForMoneyEnergyCost, 5);
    EXPECT_EQ(world.signPrenup, 0);
    EXPECT_TRUE(world.relationshipTracker.empty());
  }
};

// --- The week ---

TEST_F(Relationship, FallsByItsMaintenanceUntilThePartnerLeavesBelowZero) {
  date(bond::dating, 27.5);
  for (int step = 1; step <= 27; ++step) EXPECT_FALSE(quietStep());
  EXPECT_EQ(meter(), 0.5);
  random.range(11, 0).unit(0.5).range(28, 0);  // no post below 0
  const auto left = relationshipWeekStep(game);
  ASSERT_TRUE(left);
  EXPECT_EQ(left->notice.title, "ADA QUINN!🤬");
  EXPECT_TRUE(left->notice.message.ends_with(
      "\n\n-Mia😭\n\nYou are a heartbreaker and lost your energy bonus of 4 and an additional -1 for all the "
      "drama your now ex will be causing you."));
  expectEnded(95, 1);
  EXPECT_FALSE(relationshipWeekStep(game));
}

TEST_F(Relationship, AnIgnoredSpouseTakesHalfOfTheCashOrNone) {
  for (const std::int64_t prenup : {0, 1}) {
    date(bond::married, 0.5);
    world.totalCashAvailable = 3'000;
    world.signPrenup = prenup;
    random.range(11, 0).unit(0.5).range(28, 0);
    const auto left = relationshipWeekStep(game);
    ASSERT_TRUE(left);
    EXPECT_EQ(left->notice.title, "🤬 I WANT A DIVORCE!🤬");
    EXPECT_EQ(
        left->notice.message,
        std::format("Ada Quinn, I can't keep living like this with you ignoring my existence. I signed the "
                    "divorce papers today and {}\n\nYou lost your energy bonus of 4 and an additional -2 "
                    "for all the trauma a divorce will be causing you...",
                    prenup == 1 ? "even though we signed a prenup, I don't want your DIRTY money."
                                : "will be taking my share ($1.5K) of what WE built in cash!\n\nIf you do "
                                  "not have the cash on hand, you will take a negative balance."));
    EXPECT_EQ(world.totalCashAvailable, prenup == 1 ? 3'000 : 1'500);
    expectEnded(94, 2);
  }
}

TEST_F(Relationship, MakesNewsOnTwoRolls) {
  partner().maintenance = 5;
  for (const std::int64_t fans : {250'000, 250'001}) {
    world.totalFans = fans;
    random.range(11, 3).range(20, 0).unit(1).range(11, 5).range(20, 0).unit(0).unit(0).unit(0).unit(0);
    EXPECT_FALSE(relationshipWeekStep(game));
    EXPECT_TRUE(world.relationshipTracker[0].starts_with(fans == 250'000 ? "Gossip: " : "Hollywood: "));
    EXPECT_EQ(world.activityTracker[0], world.relationshipTracker[0]);
  }
  EXPECT_EQ(partner().igFollowers, 1'040);  // twice 2 percent more, truncated
  ASSERT_EQ(world.saveAllChirpList.size(), 2u);
  EXPECT_EQ(world.saveAllChirpList[1].id, 2);
  EXPECT_EQ(world.saveAllChirpList[1].chirpName, "Mia");
}

TEST_F(Relationship, APregnancyCostsAPointAStepAndEndsWithAChild) {
  date(bond::married, 90);
  partner().timeToBirth = 2;
  const auto pregnantStep = [&] {
    random.unit(0.5).range(11, 0);  // no gossip
    EXPECT_FALSE(relationshipWeekStep(game));
  };
  pregnantStep();
  EXPECT_EQ(meter(), 88);
  EXPECT_FALSE(quietStep());
  EXPECT_EQ(partner().timeToBirth, 0);
  EXPECT_EQ(meter(), 87);
  // Gender, energy, money, maximum, age, five gifts, admiration, picture, maintenance
  random.range(2, 1).range(8, 7).unit(1).range(36, 35).range(26, 25);
  random.range(21, 20).range(21, 0).any(3).unit(1).range(6, 5).range(21, 20);
  EXPECT_FALSE(quietStep());
  EXPECT_EQ(partner().timeToBirth, -1);
  EXPECT_EQ(partner().maintenance, 125);
  EXPECT_EQ(meter(), 85.75);
  ASSERT_EQ(world.saveAllChildList.size(), 1u);
  EXPECT_EQ(world.saveAllChildList[0],
            (Child{.id = 1,
                   .name = "Newborn",
                   .gender = 1,
                   .birthYear = world.yearNumber,
                   .birthWeek = 40,
                   .birthWeekForTracking = 40,
                   .relationship = "Daughter",
                   .partnerName = "Mia",
                   .artistName = "Ada Quinn",
                   .weeklyEnergyCost = 10,
                   .weeklyFinancialCost = 250,
                   .imageString = "femalechildw6.png",
                   .songWriting = 10,
                   .virality = -10,
                   .vocals = -10,
                   .rhythm = -10,
                   .charisma = -10,
                   .totalEnergyMax = 135,
                   .weeklyAdmirationLoss = 1.25,
                   .ageofDeath = 90,
                   .relationshipTracker = {"Welcomed into the world, Daughter of Ada Quinn and Mia"}}));
  EXPECT_EQ(world.childEnergyCost, 10);
  EXPECT_EQ(world.weekFeedNews.back().kind, NewsKind::birth);
  // The cost follows the list, for a single parent as well.
  world.saveAllMatchesList.clear();
  world.childEnergyCost = 99;
  EXPECT_FALSE(relationshipWeekStep(game));
  EXPECT_EQ(world.childEnergyCost, 10);
}

// --- Questions ---

TEST_F(Relationship, EveryQuestionMovesWhatItsCategorySays) {
  RelationshipScenario asked{.questionTemplate = "{name} asks",
                             .optionA = "Say YES",
                             .optionB = "Say no",
                             .amount = 500,
                             .followerChange = -600,
                             .fameChange = 1.5,
                             .spouseResponsesA = {"A1", "A2", "A3"},
                             .spouseResponsesB = {"B1", "B2", "B3"}};
  EXPECT_EQ(questionWords(world, asked), "Mia asks");
  for (const std::int64_t category : {question::romance, question::relationship}) {
    asked.category = category;
    date(bond::dating, 95);
    random.range(11, 10).range(3, 2);
    EXPECT_EQ(answerQuestion(game, asked, QuestionOption::a).reply, "A3");
    EXPECT_EQ(meter(), 105);  // of 110
    EXPECT_EQ(world.relationshipTracker, (TextList{"Mia: \"A3\"", "Ada Quinn: You say yes", "something"}));
    random.range(11, 0).range(3, 0);
    EXPECT_EQ(answerQuestion(game, asked, QuestionOption::b).meter, -5);
    EXPECT_EQ(meter(), 100);
  }
  asked.category = question::money;
  world.totalCashAvailable = 200;
  random.range(3, 0);
  EXPECT_EQ(answerQuestion(game, asked, QuestionOption::a).note, "(-$500)");
  EXPECT_EQ(world.totalCashAvailable, -300);
  EXPECT_EQ(world.relationshipTracker[1], "Ada Quinn: You say yes (-$500)");
  random.range(11, 10).range(3, 0);
  EXPECT_EQ(answerQuestion(game, asked, QuestionOption::b).meter, -15);
  asked.category = question::followers;
  world.trackFans.assign(std::vector<std::int64_t>(37, 7));
  random.any(2);
  EXPECT_EQ(answerQuestion(game, asked, QuestionOption::b).note, "You lost 600 fans...");
  EXPECT_EQ(answerQuestion(game, asked, QuestionOption::a).note,
            "You lost 400 fans...");  // all that are left
  EXPECT_EQ(world.totalFans, 0);
  EXPECT_EQ(world.trackFans.size(), 37u);
  EXPECT_EQ(world.trackFans.back(), 0);
  asked.category = question::fame;
  for (const QuestionOption option : {QuestionOption::a, QuestionOption::b}) {
    random.any(1);
    (void)answerQuestion(game, asked, option);
  }
  EXPECT_EQ(world.relationalFameImpact, 3);
  for (int more = 0; more < 20; ++more) {
    random.any(1);
    (void)answerQuestion(game, asked, QuestionOption::a);
  }
  EXPECT_EQ(world.relationshipTracker.size(), 31u);
}

TEST_F(Relationship, EveryQuestionOfTheBankCanBeAsked) {
  std::map<std::int64_t, int> categories;
  for (std::int64_t drawn = 0; drawn < 60; ++drawn) {
    random.range(60, drawn);
    const RelationshipScenario asked = drawRelationshipQuestion(game);
    categories[asked.category] += 1;
    const bool isComplete = !asked.questionTemplate.empty() && !asked.optionA.empty() &&
                            !asked.optionB.empty() && asked.spouseResponsesA.size() == 3 &&
                            asked.spouseResponsesB.size() == 3;
    EXPECT_TRUE(isComplete) << drawn;
    EXPECT_FALSE(asked.questionTemplate.contains(" | ")) << asked.questionTemplate;
    EXPECT_EQ(asked.amount > 0, asked.category == question::money) << asked.questionTemplate;
    EXPECT_EQ(asked.followerChange != 0, asked.category == question::followers) << asked.questionTemplate;
    EXPECT_EQ(asked.fameChange != 0, asked.category == question::fame) << asked.questionTemplate;
  }
  for (std::int64_t category = 1; category <= 5; ++category) EXPECT_EQ(categories[category], 12) << category;
}

// --- Care and money ---

TEST_F(Relationship, WorkHelpsInThreeMoodsOfFour) {
  for (std::int64_t mood = 0; mood < 4; ++mood) {
    date();
    random.range(4, 3).range(4, mood).range(8, 4).range(mood == 0 ? 110 : 20, 1);
    EXPECT_EQ(workOnRelationship(game).points, mood == 3 ? 0 : 4);
    EXPECT_EQ(meter(), mood == 3 ? 50 : 54);
    EXPECT_EQ(world.relationshipTracker.size(), 2u);
    EXPECT_EQ(world.relationshipTracker[0].starts_with("Ada Quinn: \""), mood == 0);
  }
  EXPECT_EQ(world.totalEnergyAvailable, 60);
  date(bond::dating, 104);
  world.totalEnergyAvailable = 10;
  random.range(4, 3).range(4, 0).range(8, 5);
  EXPECT_FALSE(workOnRelationship(game).refusal);
  EXPECT_EQ(meter(), 105);
  EXPECT_EQ(world.relationshipTracker.size(), 1u);
  EXPECT_EQ(workOnRelationship(game).refusal->message,
            "\nYou do not have enough energy to think of a work on your relationship right now");
}

TEST_F(Relationship, AFilmNightNeedsTheSubscriptionAndShowsATitle) {
  EXPECT_EQ(
      metflixWith(game).refusal,
      (Notice{"🎥 Subscription Required 🎥",
              "\nYou need a Metflix subscription to watch. You can sign up for one under \"Energy\" on the "
              "4th tab."}));
  world.saveAllWeeklyLineItems = {
      {.category = WeeklyLineItem::lifestyleCategory, .typeOfExpense = weeklyOption::metflix}};
  world.saveAllFilmList = {{.typeOfFilm = filmType::commercial, .title = "Soap", .weekReleased = 1},
                           {.title = "Low Light", .weekReleased = 90},
                           {.title = "The Ferry", .weekReleased = 1}};
  random.range(7, 6).range(4, 3).range(1, 0).range(20, 0);
  EXPECT_EQ(metflixWith(game).points, 8);
  EXPECT_TRUE(world.relationshipTracker[0].contains("The Ferry")) << world.relationshipTracker[0];
  world.saveAllFilmList.clear();
  random.range(7, 0).range(4, 3).range(20, 0);
  EXPECT_EQ(metflixWith(game).points, 2);
  EXPECT_EQ(world.totalEnergyAvailable, 70);
  world.totalEnergyAvailable = 14;
  EXPECT_EQ(metflixWith(game).refusal->message,
            "\nYou do not have enough energy and would rather go to bed.");
}

TEST_F(Relationship, MoneyCostsEnergyAndTwoTimesInThreeTheMeter) {
  world.totalEnergyAvailable = 130;
  std::int64_t spent = 0;
  for (const std::int64_t energy : {5, 10, 15, 20, 25, 30}) {
    EXPECT_EQ(world.askForMoneyEnergyCost, energy);
    random.unit(0).range(3, 0).range(20, 0);
    EXPECT_DOUBLE_EQ(askForMoney(game).amount, 100.075);
    spent += energy;
    EXPECT_EQ(world.totalEnergyAvailable, 130 - spent);
  }
  EXPECT_EQ(world.askForMoneyEnergyCost, 30);
  EXPECT_NEAR(world.totalCashAvailable, 600.45, 1e-9);
  EXPECT_EQ(world.activityTracker[0], world.relationshipTracker[0]);
  EXPECT_EQ(askForMoney(game).refusal->message,
            "\nYou do not have enough energy to ask your partner for cash money.");
  world.totalEnergyAvailable = 30;
  date(bond::dating, 15);
  random.unit(1).range(3, 2).range(11, 10).range(20, 0);
  EXPECT_DOUBLE_EQ(askForMoney(game).amount, 300.225);  // at exactly 0 the money is given
  EXPECT_EQ(meter(), 0);
}

TEST_F(Relationship, AskingOnceTooOftenEndsIt) {
  for (const std::int64_t state : {bond::dating, bond::married}) {
    date(state, 4);
    world.totalEnergyAvailable = 100;
    world.totalCashAvailable = 1'000;
    random.unit(0).range(3, 1).range(11, 0).range(28, 0);
    const MoneyAnswer answer = askForMoney(game);
    EXPECT_EQ(answer.amount, 0);
    ASSERT_TRUE(answer.separation);
    EXPECT_EQ(answer.separation->notice.title, "🤬GOLD DIGGER!!🤬");
    const bool isMarried = state == bond::married;
    EXPECT_TRUE(answer.separation->notice.message.ends_with(
        isMarried
            ? "-Mia😡\n\nMia called it quits. Close this screen and get back on Latch to find someone else "
              "to love.\n\nThe divorce took half of your cash ($500). You lost your energy bonus of 4 and "
              "an additional -2 for all the trauma a divorce will be causing you..."
            : "-Mia😡\n\nYou lost your energy bonus of 4 and an additional -1 for all the drama your now "
              "ex will be causing you."))
        << answer.separation->notice.message;
    EXPECT_EQ(world.totalCashAvailable, isMarried ? 500 : 1'000);
    expectEnded(isMarried ? 94 : 95, isMarried ? 2 : 1);
  }
}

TEST_F(Relationship, ATryInFourBringsAPregnancyToTheMarried) {
  EXPECT_FALSE(canTryForBaby(world));
  date(bond::married);
  random.range(4, 1);
  EXPECT_FALSE(tryForBaby(game).isOnTheWay);
  random.range(4, 0);
  EXPECT_TRUE(tryForBaby(game).isOnTheWay);
  EXPECT_EQ(world.totalEnergyAvailable, 60);
  EXPECT_EQ(partner().timeToBirth, 39);
  EXPECT_FALSE(canTryForBaby(world));
  partner().timeToBirth = -1;
  world.saveAllChildList = {{}, {}, {}};
  EXPECT_TRUE(canTryForBaby(world));
  world.saveAllChildList.push_back({});
  EXPECT_FALSE(canTryForBaby(world));
  world.totalEnergyAvailable = 19;
  EXPECT_TRUE(tryForBaby(game).refusal);
}

// --- The altar ---

TEST_F(Relationship, AStepTakesTimeAndAMeter) {
  struct Case {
    std::int64_t state;
    std::int64_t weeks;
    double meter;
    std::string title;
    std::string message;
  };
  const std::string work = "\nYour relationship needs to improve before ";
  for (const Case& given :
       {Case{bond::dating, 53, 100, "⏳ Needs More Time ⏳",
             "Mia feels like a proposal now is too soon and would like to spend more time "
             "together.\n\nIdeally, "
             "Mia would like to get engaged in 1 week"},
        Case{bond::dating, 10, 100, "⏳ Needs More Time ⏳",
             "Mia feels like a proposal now is too soon and would like to spend more time "
             "together.\n\nIdeally, "
             "Mia would like to get engaged in 11 months"},
        Case{bond::dating, 54, 84.9, "❤️ Needs Work ❤️", work + "you can propose."},
        Case{bond::dating, 54, 85, "", ""},
        Case{bond::engaged, 79, 100, "⏳ Needs More Time ⏳",
             "Mia is overwhelmed with planning a wedding and doesn't want to rush being engaged.\n\nMia "
             "thinks a "
             "potential wedding could be in 1 week"},
        Case{bond::engaged, 80, 74.9, "❤️ Needs Work ❤️", work + "Mia can have confidence at the altar."},
        Case{bond::engaged, 80, 75, "", ""}}) {
    date(given.state, given.meter);
    world.weekNumberForTracking = 30 + given.weeks;
    const Notice told = proposeGate(world).value_or(Notice{});
    EXPECT_EQ(told.title, given.title) << given.weeks;
    EXPECT_EQ(told.message, given.message) << given.weeks;
  }
}

TEST_F(Relationship, ARingAndAWeddingCostWhatTheySay) {
  world.totalCashAvailable = 6'999;
  EXPECT_EQ(buyRing(game, 2, 7'000).refusal,
            (Notice{"💰 Not Enough Cash 💰", "\nYou do not have enough cash to purchase this ring."}));
  world.totalCashAvailable = 7'000;
  const Proposal proposal = buyRing(game, 2, 7'000);
  EXPECT_EQ(proposal.answer.message, "Mia said YES!\n\nCongrats on your engagement!");
  EXPECT_EQ(world.totalCashAvailable, 0);
  EXPECT_EQ(world.saveRingImage, "ring3.png");
  EXPECT_EQ(world.relationshipTracker[0],
            "Event: You bought Trilliant Cut (1 Carat) engagement ring and proposed.");
  EXPECT_EQ(partner().relationshipState, bond::engaged);
  EXPECT_EQ(meter(), 100);
  world.saveNetworth = 1'234'000;
  EXPECT_EQ(
      prenupQuestion(game),
      (Notice{"🍾 Wedding Day 🍾",
              "\nBefore you tie the knot, do you want Mia to sign a prenup?\n\nMia's Assets\n$390K\n\nAda "
              "Quinn's Assets\n$1.2M\n\nIf you don’t sign a prenup, everything you own becomes shared and "
              "is typically split 50/50 in a divorce. If you do sign a prenup, your assets stay separate "
              "and protected."}));
  EXPECT_EQ(holdWedding(game, 4, 1, true)->message,
            "\nYou do not have enough cash to purchase this package.");
  for (const bool prenup : {true, false}) {
    date(bond::engaged, 80);
    world.totalCashAvailable = 6'000;
    EXPECT_FALSE(holdWedding(game, 0, 5'000, prenup));
    EXPECT_EQ(world.totalCashAvailable, 1'000);
    EXPECT_EQ(world.saveWeddingImage, "wedding1.png");
    EXPECT_EQ(partner().relationshipState, bond::married);
    EXPECT_EQ(meter(), 100);
    EXPECT_EQ(world.signPrenup, prenup ? 1 : 0);
  }
}

// --- The player leaves ---

TEST_F(Relationship, ABreakUpIsHarshOrKind) {
  world.totalEnergyAvailable = 24;
  EXPECT_EQ(breakUpRefusal(world)->message,
            "\nYou do not have enough energy (25) to share your true feelings and call it quits.");
  EXPECT_EQ(breakUpQuestion(game),
            (Notice{"💔 Breakup? 💔", "\nAre you sure you want to breakup with Mia?"}));
  for (const std::int64_t tone : {0, 1}) {
    date(tone == 0 ? bond::dating : bond::engaged);
    world.totalEnergyAvailable = 25;
    world.saveRingImage = "ring1.png";
    random.range(2, tone).range(tone == 0 ? 28 : 24, 2);
    const Notice told = breakUp(game);
    const std::string line = rowsOf(tone == 0 ? bank::breakUpHeartbreaker : bank::breakUpGoodTerms)[2];
    EXPECT_EQ(told,
              (Notice{tone == 0 ? "💔 Heartbreaker 💔" : "💔 Moving On 💔",
                      "\nYou sent Mia a breakup text:\n\n'" + line + "'.\n\nYou lost your energy bonus of 4" +
                          (tone == 0 ? " and an additional -1 for all the drama your now ex will be causing "
                                       "you."
                                     : ", shed some tears together but ended on good terms.")}));
    EXPECT_EQ(world.totalEnergyAvailable, 0);
    EXPECT_EQ(world.saveRingImage, "ring1.png");
    expectEnded(96, tone == 0 ? 1 : 0);
  }
}

TEST_F(Relationship, ADivorceCostsHalfOfTheNetWorthWithoutAPrenup) {
  for (const std::int64_t prenup : {0, 1}) {
    date(bond::married);
    world.totalEnergyAvailable = 25;
    world.totalCashAvailable = 1'000;
    world.saveNetworth = 5'000;
    world.signPrenup = prenup;
    world.saveRingImage = world.saveWeddingImage = "kept.png";
    EXPECT_EQ(
        breakUpQuestion(game),
        (Notice{"💔 Divorce? 💔",
                prenup == 1 ? "Are you sure you want to divorce Mia?\n\nYou signed a prenup so you will keep "
                              "all your assets."
                            : "\nAre you sure you want to divorce Mia?Mia will be entitled to 50% - "
                              "($2.5K).\n\nIf you do not have the cash on hand, you will take a negative "
                              "cash balance."}));
    random.range(prenup == 1 ? 24 : 100, 0);
    const Notice told = divorce(game, divorceShare(world));
    EXPECT_EQ(told.title, "💔 Ready to Move On 💔");
    EXPECT_TRUE(told.message.ends_with(" and an additional -2 for all the drama related to the divorce."));
    EXPECT_EQ(world.totalCashAvailable, prenup == 1 ? 1'000 : -1'500);
    EXPECT_EQ(world.totalEnergyAvailable, 0);
    EXPECT_TRUE(world.saveRingImage.empty() && world.saveWeddingImage.empty());
    expectEnded(94, 2);
  }
}

}  // namespace
}  // namespace tb
