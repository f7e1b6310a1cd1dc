// The lists of the box office's screens.

#include "film/box_office_tables.h"

#include <gtest/gtest.h>

#include "film/catalogue.h"

namespace tb {
namespace {

void addFilm(WorldState& world, std::int64_t id, const std::string& title, std::int64_t weekReleased) {
  world.saveAllFilmList.push_front(
      {.filmId = id, .title = title, .yearReleased = 2030, .weekReleased = weekReleased, .budget = 1'000});
}

void addMarket(WorldState& world, std::int64_t id, std::int64_t country, double opening,
               std::vector<double> weeks) {
  double total = opening;
  for (const double takings : weeks) total += takings;
  world.saveAllBoxOfficeList.push_back({.filmId = id,
                                        .countryId = country,
                                        .year = 2031,
                                        .openingWeekend = opening,
                                        .totalGross = total,
                                        .boxOfficeWeeklyEarnings = std::move(weeks)});
}

TEST(BoxOfficeTables, TheatersShowAFilmUntilItsLastTakingsAreInByItsLatestWeekend) {
  WorldState world;
  world.weekNumberForTracking = 20;
  addFilm(world, 1, "Gone", 12);
  addFilm(world, 2, "Old", 13);
  addFilm(world, 3, "New", 19);
  addFilm(world, 4, "Not yet", 25);
  addMarket(world, 1, 0, 900, {900});
  addMarket(world, 2, 0, 800, {10});
  addMarket(world, 2, 5, 100, {5});
  addMarket(world, 3, 0, 100, {});
  const std::vector<InTheaters> rows = inTheaters(world);
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].title, "New");
  EXPECT_EQ(rows[0].weekendEarnings, 100);
  EXPECT_EQ(rows[1].title, "Old");
  EXPECT_EQ(rows[1].weekendEarnings, 15);
  EXPECT_EQ(rows[1].totalGross, 915);
}

TEST(BoxOfficeTables, OwnFilmsAreRankedByGrossWithWhatTheyTookAtHome) {
  WorldState world;
  world.weekNumberForTracking = 90;
  addFilm(world, 1, "Small", 12);
  addFilm(world, 2, "Big", 13);
  addFilm(world, 3, "Unopened", 99);
  addMarket(world, 1, 0, 50, {});
  addMarket(world, 2, 0, 100, {20});
  addMarket(world, 2, 3, 30, {10});
  const std::vector<BoxOfficeWeekends> rows = filmsByGross(world);
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].title, "Big");
  EXPECT_EQ(rows[0].yearReleased, 2031);  // it wrapped in 2030 and opened in the year after
  EXPECT_EQ(rows[0].weekendEarnings, 130);
  EXPECT_EQ(rows[0].totalGross, 160);
  EXPECT_EQ(rows[0].domesticGross, 120);
  EXPECT_EQ(returnOf(rows[0].totalGross, rows[0].budget), 16);
  EXPECT_EQ(returnOf(5, 0), 0);
  EXPECT_EQ(weeklyTakings(world, 2), (std::vector<double>{130, 30}));
  EXPECT_TRUE(weeklyTakings(world, 3).empty());
}

TEST(BoxOfficeTables, TheAllTimeRankingTakesInBlockbustersOfThePlayerByTitle) {
  WorldState world;
  const double top = movieRecords().front().worldwide;
  addFilm(world, 1, "Twice", 12);
  addFilm(world, 2, "Twice", 13);
  addFilm(world, 3, "Modest", 13);
  addMarket(world, 1, 0, 50'000'001, {top});
  addMarket(world, 2, 0, 60'000'000, {top});
  addMarket(world, 2, 4, 1000, {});  // what a small market adds is worldwide, too
  addMarket(world, 3, 0, 50'000'000, {top * 5});
  const std::vector<BoxOfficeWeekends> rows = highestGrossing(world);
  ASSERT_EQ(rows.size(), 250U);
  EXPECT_EQ(rows[0].title, "Twice");
  EXPECT_EQ(rows[0].totalGross, 110'001'001 + 2 * top);
  EXPECT_EQ(rows[1].title, movieRecords().front().title);
  EXPECT_EQ(rows[1].filmId, -1);
  EXPECT_EQ(rows.back().title, movieRecords()[248].title);
}

}  // namespace
}  // namespace tb
