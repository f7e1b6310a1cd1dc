#include <cmath>
#include <gtest/gtest.h>

#include "career/traits.h"
#include "core/number_style.h"
#include "core/save.h"
#include "film/catalogue.h"
#include "film/film_record.h"
#include "tests/memory_port.h"
#include "tests/player.h"
#include "tests/prompted_random.h"

namespace tb {
namespace {

// A performer on the road from the casting board to the screen. Every week is ended and its review closed.
struct FirstRoles : testing::Test {
  test::MemoryPort port;
  test::PromptedRandom chance;
  SaveStore store{port};
  std::optional<App> app;
  std::optional<test::Player> player;

  const WorldState& world() const { return app->game().world; }
  const Audition& project(std::size_t index = 0) const { return world().saveAllAuditionList[index]; }
  const Film& film(std::int64_t filmId) const { return world().saveAllFilmList[filmIndex(world(), filmId)]; }

  void startAsNewcomer() { start(0, 1); }
  void startAsMember() { start(1, 80); }
  void start(std::int64_t isSAG, std::int64_t talent) {
    Game game{.store = store, .random = chance};
    game.world.myName = "Ada Vale";
    game.world.enterPlayerDetails = 1;
    game.world.isSAG = isSAG;
    for (const Trait& trait : traits) {
      game.world.*trait.points = talent;
      trait.save(game);
    }
    save<&WorldState::myName, &WorldState::enterPlayerDetails, &WorldState::isSAG>(game);
    app.emplace(store, chance);
    player.emplace(*app);
  }

  // Opens the casting network. `part` 1 is a principal; the board's first title is the `place`th of the
  // catalogue; the rest is low.
  void submitFor(std::int64_t part, std::size_t place) {
    player->press("The Backstage");
    chance.skip(1).range(2, part).range(2, 1).range(std::ssize(movies()), static_cast<std::int64_t>(place));
    player->press("Casting Network");
    player->press("Submit");
    ASSERT_EQ(player->notice(), "🎬 Sent 🎬");
    player->press("OK");
    player->press("Back");
    player->press("Back");
  }

  // Ends a week and returns what its review says.
  std::vector<std::string> endWeek() {
    player->press("End Week");
    EXPECT_EQ(player->title(), "REVIEW");
    const auto review = player->words();
    player->press("Close");
    return review;
  }
  void endWeeks(int weeks) {
    for (int week = 0; week < weeks; ++week) endWeek();
  }
  // Ends a week in which the die of the one open project wins.
  std::vector<std::string> endLuckyWeek() {
    chance.skip(2).range(3, 1);
    return endWeek();
  }
  static bool says(const std::vector<std::string>& review, const std::string& line) {
    return std::ranges::contains(review, line);
  }
  std::size_t placeOfType(std::int64_t type) const {
    return static_cast<std::size_t>(std::ranges::find(movies(), type, &Movie::type) - movies().begin());
  }

  void openProject(const std::string& title) {
    player->press("Work");
    player->press("Auditions");
    player->press(title);
  }
  void backToHub() {
    while (player->title() != "Ada Vale") player->press("Back");
    player->press("Home");
  }

  // From the submission to the wrap: audition two weeks on, four more to the wrap.
  void bookAndWrap(const std::string& spokenOf, const std::string& title) {
    EXPECT_TRUE(says(endLuckyWeek(), "You were invited to audition for " + spokenOf + " in 1 week(s)."));
    openProject(title);
    player->press("REHEARSE");
    backToHub();
    EXPECT_EQ(project().rehearsalBoostCount, 1);
    endWeek();
    EXPECT_TRUE(says(endLuckyWeek(), "You auditioned for " + spokenOf +
                                         " and the cast director offered you the role. Shooting begins in 3 "
                                         "week(s)."));
    endWeeks(3);
    EXPECT_TRUE(says(endWeek(), "You wrapped filming for " + spokenOf + "."));
    EXPECT_EQ(project().funnelStage, stage::wrapped);
    EXPECT_EQ(world().saveAllFilmList.size(), 1u);
  }
};

TEST_F(FirstRoles, ANewcomerTakesAJobAndSeesTheFirstFilmOpenRunAndClose) {
  startAsNewcomer();
  player->press("Work");
  chance.skip(26).range(6, 1);
  player->press("Job Board");
  player->press("Accept");
  EXPECT_EQ(world().weeklyJobTitle, "Background Extra");
  player->press("Accept");
  EXPECT_EQ(player->notice(), "⏳ Contract Signed ⏳");
  player->press("OK");
  backToHub();

  const Movie& movie = movies()[placeOfType(filmType::feature)];
  submitFor(rolePart::background, placeOfType(filmType::feature));
  EXPECT_EQ(world().totalEnergyAvailable, 80);
  bookAndWrap(movie.title, movie.title);

  endWeeks(7);
  endWeek();  // the release, eight weeks after the wrap
  const double opening = std::pow(3, 0.01) * 100'000 * 0.03 * 0.98;
  ASSERT_EQ(world().saveAllBoxOfficeList.size(), 1u);
  EXPECT_NEAR(world().saveAllBoxOfficeList[0].openingWeekend, opening, 1e-6);
  EXPECT_EQ(world().saveAllChirpList.size(), 1u);

  // A film of rating 1 and metascore 5 keeps a tenth of its hype of 1, which is forgotten at once.
  EXPECT_NEAR(film(project().filmId).lastWeekPopularity, 0.1, 1e-9);
  EXPECT_NEAR(film(project().filmId).currentPopularity, 0, 1e-9);
  endWeeks(7);
  const double gross = opening * (1 + 0.5 * 2.1);
  EXPECT_NEAR(world().saveAllBoxOfficeList[0].totalGross, gross, 1e-6);
  EXPECT_NEAR(film(project().filmId).boxOfficeGross, gross, 1e-6);  // closed in the same review
  openProject(movie.title);
  EXPECT_TRUE(player->sees("BOX OFFICE GROSS: $6.1K"));
  EXPECT_TRUE(player->sees("OPENING WEEKEND: $3.0K"));
  EXPECT_TRUE(player->sees("BUDGET: $100K"));
  EXPECT_TRUE(player->sees("RETURN: 6%"));
}

TEST_F(FirstRoles, AStudentFilmAndACommercialComeAndGoWithoutABoxOffice) {
  startAsNewcomer();
  const Movie& movie = movies()[placeOfType(filmType::studentFilm)];
  submitFor(rolePart::principal, placeOfType(filmType::studentFilm));
  bookAndWrap(movie.title, movie.title);
  submitFor(rolePart::principal, placeOfType(filmType::commercial));
  EXPECT_TRUE(says(endLuckyWeek(), "You were invited to audition for a commercial in 1 week(s)."));
  endWeek();
  EXPECT_TRUE(
      says(endLuckyWeek(),
           "You auditioned for a commercial and the cast director offered you the role. Shooting begins in "
           "3 week(s)."));
  endWeeks(3);
  EXPECT_TRUE(says(endWeek(), "You wrapped filming for a commercial."));
  endWeeks(9);
  EXPECT_GT(film(project(0).filmId).imbdRating, 0);
  EXPECT_GT(film(project(1).filmId).imbdRating, 0);
  EXPECT_TRUE(world().saveAllBoxOfficeList.empty());
  EXPECT_TRUE(world().saveAllRatings.empty());
  openProject(movie.title);
  EXPECT_TRUE(player->sees("RECEPTION"));
  EXPECT_FALSE(player->sees("RETURN"));
}

TEST_F(FirstRoles, AMemberLeadsASeriesIntoItsSecondSeason) {
  startAsMember();
  const Movie& movie = movies()[placeOfType(filmType::series)];
  submitFor(rolePart::principal, placeOfType(filmType::series));
  EXPECT_EQ(project().role, "Recurring");
  EXPECT_EQ(project().payment, 1282);
  bookAndWrap(movie.title, movie.title);

  openProject(movie.title);
  player->press("PROMOTE");
  EXPECT_EQ(world().totalEnergyAvailable, 75);
  player->type("Your answer", "I did all my own crying.");
  player->press("Post");
  player->press("OK");
  EXPECT_EQ(project().promoteHypeCount, 1);
  EXPECT_FALSE(player->sees("PROMOTE"));
  backToHub();

  // The premiere: director 67 and level 80 make a hype of 49; the viewers give it the best that such a
  // director gets.
  endWeeks(7);
  chance.skip(5).range((std::int64_t{1} << 53) + 1, std::int64_t{1} << 53);
  endWeek();
  EXPECT_EQ(film(project().filmId).imbdRating, 6);
  ASSERT_EQ(world().saveAllRatings.size(), 1u);
  const double premiere = std::pow(3, 0.49) * 100'000 * 0.05;
  EXPECT_NEAR(world().saveAllRatings[0].premiereViews[0], premiere, 1e-6);
  endWeeks(9);
  EXPECT_EQ(world().saveAllRatings[0].premiereViews.size(), 8u);

  // In the eleventh week the verdict, with 6 above the low draw.
  EXPECT_TRUE(says(endWeek(), movie.title + " has been renewed for season 2!"));
  ASSERT_EQ(world().saveAllAuditionList.size(), 2u);
  EXPECT_EQ(project(1).funnelStage, stage::booked);
  EXPECT_NEAR(project(1).budget, 110'000, 1e-6);
  EXPECT_NEAR(project(1).payment, 1282 * 0.8, 1e-6);
  openProject(movie.title + " Season 2");
  player->press("WORK ON YOUR PERFORMANCE");
  EXPECT_EQ(project(1).performanceBoostCount, 1);
  backToHub();
  endWeeks(6);
  EXPECT_TRUE(says(endWeek(), "You wrapped filming for " + movie.title + " Season 2."));
  endWeeks(8);
  EXPECT_EQ(world().saveAllRatings.size(), 2u);

  openProject(movie.title + " Season 2");
  EXPECT_TRUE(player->sees("TOTAL GROSS"));
  player->press(movie.title);  // what came before
  EXPECT_TRUE(player->sees("PREMIERE: " + shortCount(static_cast<std::int64_t>(premiere))));
}

}  // namespace
}  // namespace tb
