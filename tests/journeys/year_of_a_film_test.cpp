// A film, a commercial and a production of one's own, from the wrap through a year on the books, with every
// draw at its low end: every figure below was worked out by hand.

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "core/save.h"
#include "film/film_record.h"
#include "tests/journeys/booked_performer.h"
#include "tests/prompted_random.h"

namespace tb {
namespace {

constexpr std::int64_t film = 1;
constexpr std::int64_t commercial = 2;
constexpr std::int64_t own = 3;
constexpr std::int64_t release = 3;
constexpr double fee = 9'000;
constexpr double spotFee = 1'000;
constexpr double ownFee = 2'000;
constexpr double buyout = 250;
constexpr double commission = 0.1;
constexpr double bills = 50;            // a week, Basic Needs
constexpr double afterBothDues = 0.94;  // 3 % off, twice

Audition booked(std::int64_t filmId, std::int64_t typeOfFilm, const std::string& title, double payment) {
  Audition project = test::bookedLead(filmId, typeOfFilm, title);
  project.payment = payment;
  project.royalty = 0;
  project.budget = 100'000;
  return project;
}

struct YearOfAFilm : testing::Test {
  test::MemoryPort port;
  test::PromptedRandom chance;
  SaveStore store{port};
  std::optional<App> app;
  std::optional<test::Player> player;
  double cash = 0;  // as the books of the test have it

  const WorldState& world() const { return app->game().world; }
  const Film& title(std::int64_t id) const { return world().saveAllFilmList[filmIndex(world(), id)]; }

  void SetUp() override {
    Game game{.store = store, .random = chance};
    WorldState& world = game.world;
    world.myName = "Ada Vale";
    world.enterPlayerDetails = 1;
    world.isSAG = 1;
    world.saveAllTalentAgents.push_back({.id = 5, .commissionPercentage = commission, .isSigned = 1});
    Audition lead = booked(film, filmType::feature, "Salt Road", fee);
    lead.royalty = 2;
    Audition spot = booked(commercial, filmType::commercial, "Fizz", spotFee);
    spot.buyout = buyout;
    spot.residual = 0.05;
    Audition production = booked(own, filmType::feature, "Own Goal", ownFee);
    production.isPrincipal = rolePart::ownProduction;
    production.didAct = 0;
    production.equityPercentage = 10;
    for (const Audition& project : {lead, spot, production}) world.saveAllAuditionList.push_back(project);
    save<&WorldState::myName, &WorldState::enterPlayerDetails, &WorldState::isSAG,
         &WorldState::saveAllTalentAgents, &WorldState::saveAllAuditionList>(game);
    app.emplace(store, chance);
    player.emplace(*app);
  }

  // Ends a week whose records come to `earned`, in dollars.
  void endWeek(double earned = 0) {
    player->press("End Week");
    cash += earned - bills;
    EXPECT_NEAR(world().totalCashAvailable, cash, 0.005) << "week " << world().weekNumberForTracking;
    player->press("Close");
  }
};

// The check of a commercial after so many weeks on the air.
double check(int weeks) { return (0.05 - 0.05 * (weeks / 4 - 1) * 0.02) * spotFee * afterBothDues; }

// The opening and the seven weeks of the run, in openings, of a film that is forgotten by a tenth of a point
// a week.
double takingsOfRun(double popularity) {
  double takings = 1;
  for (int week = 1; week <= 7; ++week) {
    takings += 0.5 * (std::pow(2, (popularity - 0.1 * week) / 100) - 1 + (7 - week) / 10.0);
  }
  return takings;
}

TEST_F(YearOfAFilm, IsPaidForInItsWeeksAndFadesAtItsPace) {
  endWeek((fee + spotFee + ownFee) * afterBothDues + buyout);
  EXPECT_NEAR(world().workDuesPaidSAG, (fee + spotFee + ownFee) * 0.03, 1e-9);
  EXPECT_NEAR(world().saveWeeklyEarnings[0], cash + bills, 1e-9);
  ASSERT_EQ(world().saveAllWeeklyEarnings.size(), 3U);
  EXPECT_EQ(world().saveAllWeeklyEarnings[1].buyoutEarned, buyout);

  // Director 80: at worst 3 stars and a metascore of 40, 35 of 100 together. Hype 50 shrinks to that many
  // 75ths.
  endWeek();
  endWeek();
  const double released = 50 * 35.0 / 75;
  EXPECT_EQ(title(film).imbdRating, 3);
  EXPECT_EQ(title(film).imbdMetascore, 40);
  EXPECT_EQ(title(film).numImbdRatings, 1000);
  EXPECT_EQ(title(film).featuredReviews.size(), 1U);
  EXPECT_NEAR(title(film).lastWeekPopularity, released, 1e-9);
  EXPECT_NEAR(title(film).currentPopularity, released - 0.1, 1e-9);
  EXPECT_EQ(title(commercial).currentPopularity,
            50 * 35.0 / 75);  // nobody talks about commercials, or forgets them

  for (int week = 2; week <= 7; ++week) endWeek(week == 4 ? check(4) : 0);
  EXPECT_EQ(world().saveWeeklyEarnings[5], 0);  // a check is cash, and no part of the week's net
  EXPECT_TRUE(world().saveAllRoyaltyPayouts.empty());

  const double gross = std::pow(3, 0.5) * 100'000 * 0.03 * 0.98 * takingsOfRun(released);
  endWeek(check(8) + gross * 0.02 * (1 - commission) + gross * 0.1);
  ASSERT_EQ(world().saveAllRoyaltyPayouts.size(), 1U);
  EXPECT_EQ(world().saveAllRoyaltyPayouts[0].weekNumberForTracking, release + 8);
  EXPECT_NEAR(world().saveAllRoyaltyPayouts[0].agentEarnings, gross * 0.02 * commission, 1e-6);
  EXPECT_EQ(world().saveAllRoyaltyPayouts[0].sourceId, 5);
  ASSERT_EQ(world().saveAllEquityPayouts.size(), 1U);
  EXPECT_EQ(world().saveAllEquityPayouts[0].filmId, own);
  EXPECT_EQ(world().saveAllEquityPayouts[0].weekNumberForTracking, release + 8);

  for (int week = 9; week <= 53; ++week) endWeek(week % 4 == 0 && week <= 48 ? check(week) : 0);
  EXPECT_NEAR(title(film).currentPopularity, released - 0.1 * 53, 1e-9);
}

}  // namespace
}  // namespace tb
