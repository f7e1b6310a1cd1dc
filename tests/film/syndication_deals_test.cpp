// A title on a network: who wins it, what it pays and when, the reruns, and the end.

#include "film/syndication_deals.h"

#include <cmath>
#include <gtest/gtest.h>

#include "core/guild_dues.h"
#include "film/syndication_offers.h"
#include "tests/record_text.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

constexpr std::int64_t firstOffer = 100;

// A film of two years ago, with three bids on it.
struct Deals : test::RuleTest {
  Deals() {
    world.yearNumber = 2031;
    world.weekNumberForTracking = firstOffer + 4;
    world.workDuesPaidSAG = guildDuesCap;
    world.saveAllFilmList.push_back(
        {.filmId = 7, .title = "Salt Road", .yearReleased = 2029, .currentPopularity = 40});
    world.saveAllSyndication.push_back({.filmId = 7,
                                        .filmName = "Salt Road",
                                        .filmReleased = firstOffer - 29,
                                        .networkNames = {"Fulu", "Metflix", "Bisney"},
                                        .networkOffers = {100'000, 300'000, 200'000},
                                        .networkYears = {1, 3, 2},
                                        .networkImages = {"a", "b", "c"},
                                        .weekOfFirstOffer = firstOffer,
                                        .payment = 10'000});
  }

  Film& film() { return world.saveAllFilmList.edit(0); }
  Syndication& title() { return world.saveAllSyndication.edit(0); }
  void signWith(std::int64_t bid) {
    random.range(std::ssize(title().networkOffers), bid).range(30, 0);
    advanceSyndicationDeals(game);
  }
  void liveWeeks(int weeks) {
    for (int week = 0; week < weeks; ++week) {
      world.weekNumberForTracking += 1;
      advanceSyndicationDeals(game);
    }
  }
  // A deal in force whose residual falls due this week.
  void startWithResidual(double rate) {
    title().didAcceptOffer = true;
    title().networkIndexWon = 0;
    title().weekStarted = firstOffer;
    title().weeksRemaining = 48;
    title().residualRate = rate;
  }
  void addSeason(std::int64_t hours) {
    world.saveAllRatings.push_back({.filmId = 7, .hoursWatched = {hours}, .weeksTracked = {50}});
  }
};

TEST_F(Deals, TheLowestBidMayWinAndTheNewsIsInBothLists) {
  signWith(0);
  EXPECT_TRUE(title().didAcceptOffer);
  EXPECT_EQ(title().networkIndexWon, 0);
  EXPECT_EQ(title().weekStarted, firstOffer + 4);
  EXPECT_EQ(title().weeksRemaining, 51);  // the first week is lived at once
  EXPECT_EQ(title().totalEarnings, 100'000);
  EXPECT_EQ(world.WeekFeed.size(), 1U);
  expectToldInBothLists("Fulu has picked up Salt Road for $100K, and the reruns will be with us for 1 year.");
  // No stake and no residual: none of the money is the performer's.
  for (const char* list : {"saveAllEquityPayouts", "saveAllRoyaltyPayouts", "saveAllWeeklyEarnings"}) {
    EXPECT_FALSE(store.contains(list)) << list;
  }
}

TEST_F(Deals, FourWeeksAndTwoBidsAreWaitedForHoweverLong) {
  world.weekNumberForTracking = firstOffer + 3;
  advanceSyndicationDeals(game);
  title().networkOffers = {1};
  liveWeeks(200);
  EXPECT_FALSE(title().didAcceptOffer);
  EXPECT_TRUE(world.WeekFeed.empty());
}

TEST_F(Deals, TheNewsLiftsATitleByItsYearsAndAHitToTheTop) {
  struct Case {
    std::int64_t yearReleased;
    double popularity, lifted;
  };
  const Case cases[] = {{2031, 40, 40},  {2030, 40, 41},   {2027, 94, 98},
                        {2027, 95, 100}, {2031, 130, 100}, {2026, 40, 40}};
  for (const Case& each : cases) {
    title() = {.filmId = 7,
               .networkNames = {"Fulu", "Metflix"},
               .networkOffers = {1, 2},
               .networkYears = {1, 1},
               .weekOfFirstOffer = firstOffer};
    film().yearReleased = each.yearReleased;
    film().currentPopularity = each.popularity;
    film().lastWeekPopularity = 7;
    signWith(1);
    EXPECT_EQ(film().currentPopularity, each.lifted) << each.yearReleased;
    EXPECT_EQ(film().lastWeekPopularity, each.yearReleased == 2026 ? 7 : each.popularity);
  }
}

TEST_F(Deals, AStakeHasItsShareOfThePriceInTheSameWeek) {
  for (const auto part : {rolePart::principal, rolePart::ownProduction}) {
    Syndication untouched = title();
    film().isPrincipal = part;
    film().equityPercentage = 5;
    signWith(1);
    EXPECT_EQ(test::shown(world.saveAllEquityPayouts.back()),
              "id 107, filmId 7, yearNumber 2031, weekNumberForTracking 104, payOut 15000, typeOfPayment 1");
    const std::string line =
        part == rolePart::ownProduction
            ? "You received $15K in syndication earnings for directing and producing Salt Road"
            : "You received a $15K payout for your investment in Salt Road's syndication.";
    expectToldInBothLists(line);
    title() = std::move(untouched);
  }
}

TEST_F(Deals, ARoyaltyLosesTheAgentsPartAndNamesTheNetwork) {
  film().royaltyRate = 2;
  world.agentCommission = 0.1;
  world.saveAllTalentAgents.push_back({.id = 5, .isSigned = 1, .totalAgentEarnings = 100});
  signWith(1);
  EXPECT_EQ(test::shown(world.saveAllRoyaltyPayouts),
            "(id 107, filmId 7, title Salt Road, yearNumber 2031, weekNumberForTracking 104, payout 5400, "
            "typeOfPayment 1, sourceId 5, agentEarnings 600, totalDealGross 300000, syndicationYears 3, "
            "syndicationName Metflix)");
  EXPECT_EQ(world.saveAllTalentAgents.front().totalAgentEarnings, 700);
  EXPECT_EQ(world.WeekFeed.back(), "You received a royalty of $6.0K for Salt Road's syndication.");
}

TEST_F(Deals, ResidualsComeEveryTwelfthWeekUntilTheLast) {
  title().residualRate = 0.05;
  random.range(3, 2).range(30, 0);  // two years: 104 weeks, the first residual at 96
  advanceSyndicationDeals(game);
  random.any(8);
  liveWeeks(104);
  std::vector<std::int64_t> weeks;
  for (const WeeklyEarnings& check : world.saveAllWeeklyEarnings) {
    weeks.push_back(check.weekNumberForTracking - (firstOffer + 4));
  }
  EXPECT_EQ(weeks, (std::vector<std::int64_t>{8, 20, 32, 44, 56, 68, 80, 92}));
}

TEST_F(Deals, ATermOfThreeYearsPaysInItsFirstWeek) {
  title().residualRate = 0.05;
  random.range(3, 1).range(30, 0).range(18, 0);
  advanceSyndicationDeals(game);
  EXPECT_EQ(test::shown(world.saveAllWeeklyEarnings),
            "(filmId 7, filmTitle Salt Road, residualsEarned 500, yearNumber 2031, "
            "weekNumberForTracking 104)");
  EXPECT_EQ(world.WeekFeed.back(), "You were paid a residual of $500 from Salt Road.");
  EXPECT_EQ(world.activityTracker.size(), 1U);  // the sale alone
}

TEST_F(Deals, AResidualLosesDuesOnceAndTheCommissionOnAnAgentsRole) {
  struct Case {
    double duesPaid;
    std::int64_t sourceId;
    double net, duesAfter, agentGets;
  };
  const Case cases[] = {{0, 0, 485, 15, 0},
                        {0, 5, 435, 15, 50},
                        {749'999, 0, 485, 750'014, 0},
                        {750'000, 0, 500, 750'000, 0},
                        {750'000, 5, 450, 750'000, 50}};
  world.agentCommission = 0.1;
  for (const Case& each : cases) {
    startWithResidual(0.05);
    title().sourceId = each.sourceId;
    world.workDuesPaidSAG = each.duesPaid;
    world.saveAllTalentAgents = {{.id = 5, .isSigned = 1}};
    random.range(18, 0);
    advanceSyndicationDeals(game);
    EXPECT_NEAR(world.saveAllWeeklyEarnings.back().residualsEarned, each.net, 1e-9);
    EXPECT_NEAR(world.workDuesPaidSAG, each.duesAfter, 1e-9);
    EXPECT_NEAR(world.saveAllTalentAgents.front().totalAgentEarnings, each.agentGets, 1e-9);
  }
}

TEST_F(Deals, ResidualsLoseATenthWithEveryYearAndNeverDryUp) {
  const std::pair<std::int64_t, double> cases[] = {
      {30, 500}, {52, 500}, {53, 450}, {103, 450}, {104, 405}, {11 * 52, 500 * std::pow(0.9, 11)}};
  for (const auto& [age, net] : cases) {
    startWithResidual(0.05);
    title().filmReleased = world.weekNumberForTracking - age;
    random.range(18, 0);
    advanceSyndicationDeals(game);
    EXPECT_NEAR(world.saveAllWeeklyEarnings.back().residualsEarned, net, 1e-9) << age;
    EXPECT_EQ(title().residualRate, 0.05);
  }
  startWithResidual(0);
  advanceSyndicationDeals(game);
  EXPECT_EQ(world.saveAllWeeklyEarnings.size(), std::size(cases));
}

TEST_F(Deals, ADealEndsAfterItsYearsAndTheNextSecondBidWinsAtOnce) {
  signWith(0);
  liveWeeks(51);
  EXPECT_TRUE(title().didAcceptOffer);
  EXPECT_EQ(title().weeksRemaining, 0);
  liveWeeks(1);
  EXPECT_EQ(test::shown(title()),
            "filmId 7, filmName Salt Road, filmReleased 71, weekOfFirstOffer 100, totalEarnings 100000, "
            "networkNameSigned [Fulu], networkOfferSigned [100000], networkYearSigned [1], payment 10000");

  title().networkNames = {"Fulu", "Pear TV"};
  title().networkOffers = {50'000, 60'000};
  title().networkYears = {1, 1};
  world.saveAllFilmList.clear();  // a title whose film is gone is sold all the same
  signWith(1);
  EXPECT_EQ(title().totalEarnings, 160'000);
  EXPECT_EQ(title().weeksRemaining, 51);
}

TEST_F(Deals, RerunsAreABigReturnAndThenLessEveryWeek) {
  addSeason(400'000);
  random.range(3, 0).range(30, 0).unit(0.5);
  advanceSyndicationDeals(game);
  liveWeeks(2);
  const Ratings& season = world.saveAllRatings.front();
  ASSERT_EQ(season.hoursWatched.size(), 4U);
  EXPECT_EQ(season.hoursWatched[1], 700'000);
  EXPECT_EQ(season.hoursWatched[2], 476'538);  // 51 of 52 weeks left: 0.98077 - 0.3
  EXPECT_EQ(season.hoursWatched[3], 315'248);  // 50 of 52: 0.96154 - 0.3
  EXPECT_EQ(season.weeksTracked, (std::vector<std::int64_t>{50, 103, 104, 105}));
  liveWeeks(48);
  // 0.64231, 0.62308 ... of the week before: the second of them is below the 100,000 that are worth counting.
  EXPECT_EQ(season.hoursWatched.size(), 6U);
}

TEST_F(Deals, ASeasonThatFewWatchedIsNotCountedAgain) {
  addSeason(99'999);
  signWith(0);
  EXPECT_EQ(world.saveAllRatings.front().hoursWatched.size(), 1U);
}

}  // namespace
}  // namespace tb
