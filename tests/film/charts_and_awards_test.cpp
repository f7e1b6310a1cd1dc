// The Metflix charts and the award shows, draw by draw.

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "film/awards.h"
#include "film/metflix_chart.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

// --- Charts ---

struct MetflixChart : test::RuleTest {
  MetflixChart() {
    world.weekNumber = 6;
    for (std::int64_t place = 0; place < 10; ++place) {
      world.saveAllTopTenList.push_back({.filmId = TopTen::firstInventedId + place,
                                         .title = std::string(1, static_cast<char>('A' + place)),
                                         .rankThisWeek = place + 1,
                                         .weeksOnChart = 3,
                                         .peakPosition = place + 1,
                                         .currentPopularity = static_cast<double>(90 - place)});
    }
  }

  // Lets the invented titles stay as popular as they are, then advances the chart.
  void advance() {
    for (const TopTen& entry : world.saveAllTopTenList) {
      if (isInvented(entry)) random.unit(0.5);
    }
    advanceFilmChart(game);
  }
  void addFilm(std::int64_t id, double popularity, std::int64_t type = filmType::feature) {
    world.saveAllFilmList.push_back({.filmId = id,
                                     .typeOfFilm = type,
                                     .title = "Own " + std::to_string(id),
                                     .currentPopularity = popularity,
                                     .lastWeekPopularity = 60});
  }
  [[nodiscard]] std::string order() const {
    std::string titles;
    for (const TopTen& entry : world.saveAllTopTenList) titles += entry.title + " ";
    return titles;
  }
};

TEST_F(MetflixChart, TakesTitlesThatAreAboveItsLowest) {
  addFilm(1, 81);  // as popular as the lowest invented title
  addFilm(2, 82.5);
  addFilm(3, 95, filmType::series);
  addFilm(4, 87.5);
  advance();
  EXPECT_EQ(order(), "A B C Own 4 D E F G H Own 2 ");
  const TopTen& own = world.saveAllTopTenList[3];
  EXPECT_EQ(own.rankLastWeek, 0);
  EXPECT_EQ(own.peakPosition, 4);
  EXPECT_EQ(own.weeksOnChart, 1);
  EXPECT_EQ(own.lastWeekPopularity, 60);
  EXPECT_EQ(world.WeekFeed,
            (TextList{"Own 4 made it onto the Metflix Top 10!", "Own 2 made it onto the Metflix Top 10!"}));
  EXPECT_EQ(world.saveAllTopTenList[0].weeksAtOne, 1);
  EXPECT_EQ(world.saveAllTopTenList[4].rankLastWeek, 4);
  EXPECT_EQ(world.saveAllTopTenList[4].rankThisWeek, 5);
  EXPECT_EQ(world.saveAllTopTenList[4].peakPosition, 4);

  // Its popularity follows the film, and it is not told again.
  world.WeekFeed.clear();
  world.saveAllFilmList.set(3, &Film::currentPopularity, 99);
  advance();
  EXPECT_EQ(world.saveAllTopTenList[0].title, "Own 4");
  EXPECT_EQ(world.saveAllTopTenList[0].weeksOnChart, 2);
  EXPECT_TRUE(world.WeekFeed.empty());

  // A film that falls off is kept; it left because another one entered.
  world.saveAllFilmList.set(1, &Film::currentPopularity, 10);
  addFilm(5, 84.5);
  advance();
  EXPECT_EQ(order(), "Own 4 A B C D E F Own 5 G H ");
  ASSERT_EQ(world.saveAllSavedTopTenList.size(), 1u);
  EXPECT_EQ(world.saveAllSavedTopTenList[0].title, "Own 2");
}

TEST_F(MetflixChart, IsRefilledEverySeventhWeekAndCutAfterIt) {
  world.weekNumber = 7;
  for (int entry = 0; entry < 10; ++entry) random.unit(0.5);
  random.range(245'000'001, 5).range(41'000'000, 7).unit(1).unit(0).range(11, 4).range(131, 130);
  random.range(210, 209).range(92, 0).range(254, 0);
  advanceFilmChart(game);
  ASSERT_EQ(world.saveAllTopTenList.size(), 11u);
  const TopTen& entered = world.saveAllTopTenList[0];
  EXPECT_EQ(entered.filmId, 5'000'005);
  EXPECT_EQ(entered.totalViews, 5'000'005);
  EXPECT_EQ(entered.totalWeeklyViews, 20'000'007);
  EXPECT_EQ(entered.currentPopularity, 99);
  EXPECT_EQ(entered.lastWeekPopularity, 85);
  EXPECT_EQ(entered.weeksOnChart, 5);
  EXPECT_EQ(entered.duration, 189);
  EXPECT_FALSE(entered.director.empty());
  world.weekNumber = 8;
  advance();
  EXPECT_EQ(world.saveAllTopTenList.size(), 10u);
  EXPECT_EQ(world.saveAllTopTenList.back().title, "I");
  EXPECT_TRUE(world.saveAllSavedTopTenList.empty());
}

TEST_F(MetflixChart, InventedTitlesFallWhenTheyAreTooPopular) {
  world.saveAllTopTenList.assign(std::vector<TopTen>{{.filmId = 9'000'000, .currentPopularity = 124}});
  random.unit(1).unit(0);
  advanceFilmChart(game);
  EXPECT_EQ(world.saveAllTopTenList[0].currentPopularity, 124);  // 5 up, 5 down
  EXPECT_EQ(world.saveAllTopTenList[0].lastWeekPopularity, 124);
}

TEST(MetflixCharts, OpenOnce) {
  test::ScratchGame game(test::Unscripted::low);
  openCharts(game.game);
  const List<TopTen> films = game.world.saveAllTopTenList;
  EXPECT_EQ(films.size(), 10u);
  EXPECT_EQ(game.world.saveAllTopTenSeriesList.size(), 10u);
  EXPECT_EQ(films[9].rankThisWeek, 10);
  for (std::size_t a = 0; a < films.size(); ++a) {
    for (std::size_t b = 0; b < a; ++b) EXPECT_NE(films[a].title, films[b].title);
  }
  EXPECT_TRUE(game.world.WeekFeed.empty());
  openCharts(game.game);
  EXPECT_EQ(game.world.saveAllTopTenList, films);
}

// --- Awards ---

struct Awards : test::RuleTest {
  Awards() {
    world.myName = "Ada Quinn";
    world.isMale = false;
    world.weekNumber = cademyWeek;
  }

  void addTitle(std::int64_t id, std::int64_t metascore, const std::string& role = "Lead",
                std::int64_t type = filmType::feature) {
    world.saveAllFilmList.push_back({.filmId = id,
                                     .typeOfFilm = type,
                                     .role = role,
                                     .title = "Title " + std::to_string(id),
                                     .genres = {"Comedy", "Drama"},
                                     .directorName = "Dee Rector",
                                     .writerName = "Wren Iter",
                                     .yearReleased = world.yearNumber - 1,
                                     .imbdMetascore = metascore,
                                     .seasonNumber = 2});
  }
  // The draws of a nomination: its outcome, three names and three titles.
  void scriptNomination(std::int64_t win) {
    random.range(2, win);
    for (int rival = 0; rival < 3; ++rival) random.range(120, rival).range(254, rival);
    for (int title = 0; title < 3; ++title) random.range(60, 4);  // the same; the next ones are taken
  }
  [[nodiscard]] std::string listed() const {
    std::string text;
    for (const Award& award : world.saveAllMovieAwards) {
      text += std::to_string(award.awardOptionId) + ":" + std::to_string(award.filmId) +
              (award.isWinner == 1 ? "! " : " ");
    }
    return text;
  }
};

TEST_F(Awards, AreForLastYearsAcclaimedTitles) {
  addTitle(1, 84);
  addTitle(2, 100, "Lead", filmType::series);
  addTitle(3, 100);
  world.saveAllFilmList.edit(2).yearReleased = world.yearNumber;
  featureNominations(game);
  EXPECT_TRUE(world.saveAllMovieAwards.empty());
  EXPECT_EQ(world.awardId, 0);
  world.weekNumber = 4;
  addTitle(4, 100);
  featureNominations(game);  // another week
  EXPECT_EQ(world.awardId, 0);
}

TEST_F(Awards, AreConsideredInTheOrderOfTheTable) {
  addTitle(1, 85, "Support");
  random.range(121, 0);  // leading role: not hers, though the roll would do
  random.range(121, 84);
  scriptNomination(1);    // supporting role
  random.range(121, 85);  // directing: no
  random.range(121, 0);
  scriptNomination(0);  // picture
  random.range(121, 120);
  featureNominations(game);
  EXPECT_EQ(listed(), "3:1! 5:1 ");
  EXPECT_EQ(world.awardId, 5 + 2);  // five rows tried, two awards made
  const Award& award = world.saveAllMovieAwards[0];
  EXPECT_EQ(award.id, 3);
  EXPECT_EQ(award.name, "Ada Quinn");
  EXPECT_EQ(award.yearAwarded, world.yearNumber);
  EXPECT_EQ(std::set(award.otherNomineeNames.begin(), award.otherNomineeNames.end()).size(), 3u);
  EXPECT_EQ(std::set(award.otherNomineeFilm.begin(), award.otherNomineeFilm.end()).size(), 3u);
  EXPECT_EQ(world.saveAllMovieAwards[1].name, "Dee Rector");
  EXPECT_TRUE(newNominations(world).empty());
  world.weekNumber += 1;
  EXPECT_EQ(newNominations(world).size(), 2u);
}

TEST_F(Awards, AreWonOncePerCategoryBestScoreFirst) {
  addTitle(1, 90);
  addTitle(2, 99);
  const auto scriptTitle = [&](bool hasRole) {
    random.range(121, 0);
    if (hasRole) scriptNomination(1);
    random.range(121, 0);  // supporting role: she leads
    for (int row = 4; row <= 6; ++row) {
      random.range(121, 0);
      scriptNomination(1);
    }
  };
  scriptTitle(true);
  scriptTitle(false);
  featureNominations(game);
  EXPECT_EQ(listed(), "2:2! 4:2! 5:2! 6:2! 4:1 5:1 6:1 ");
  EXPECT_EQ(world.saveAllMovieAwards[3].name, "Wren Iter");
}

TEST_F(Awards, ForSeriesAreForDrama) {
  world.weekNumber = emmeWeek;
  world.isMale = true;
  addTitle(1, 99, "Lead", filmType::series);
  addTitle(2, 95, "Lead", filmType::series);
  world.saveAllFilmList.edit(0).genres = {"Comedy"};
  for (int row = 0; row < 3; ++row) random.range(121, 100);
  random.range(121, 0);
  scriptNomination(0);
  random.range(121, 0);
  seriesNominations(game);
  EXPECT_EQ(listed(), "10:2 ");
  EXPECT_EQ(world.saveAllMovieAwards[0].seasonNumber, 2);
  EXPECT_TRUE(isNominatedThisYear(world));

  // The winner is known once the envelope is open, or the year over.
  EXPECT_FALSE(isRevealed(world, world.saveAllMovieAwards[0]));
  openEnvelope(game, world.saveAllMovieAwards[0].id);
  EXPECT_TRUE(isRevealed(world, world.saveAllMovieAwards[0]));
  world.openedEnvelopes.clear();
  world.yearNumber += 1;
  EXPECT_TRUE(isRevealed(world, world.saveAllMovieAwards[0]));
}

}  // namespace
}  // namespace tb
