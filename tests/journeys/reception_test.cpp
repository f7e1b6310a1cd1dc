// What the world thinks of a title, as its lead reads it: the critics, the audience, the percentages, the
// best of all time, a year of fading, and the lead's own opinions.

#include <gtest/gtest.h>

#include "screens/reception/imbd_film_detail_view_controller.h"
#include "screens/reception/rotten_banana_detail_view_controller.h"
#include "tests/journeys/booked_performer.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

using test::BookedPerformer;
using test::Running;

// Two weeks on, both titles are out, and the summary of the week is open.
void comeOut(Running& game) {
  game.endWeek();
  game.endWeek();
  game.player.press("Home");
  game.player.press("End Week");
}

bool reads(const Running& game, const std::string& text) { return game.player.sees(text); }

TEST(Reception, TheLeadReadsTheReviewsAndTheyStayAsTheyAreWhileThePageIsOpen) {
  BookedPerformer performer(7);
  Running game(performer);
  comeOut(game);
  game.player.press("New Release");
  game.player.press("Imbd page of Salt Road");
  EXPECT_EQ(game.player.title(), "Salt Road");
  const Film& film = game.film(1);
  EXPECT_TRUE(reads(game, std::format("Imbd: {:.1f}", film.imbdRating)));
  EXPECT_TRUE(reads(game, std::format("Metascore: {}", film.imbdMetascore)));
  EXPECT_TRUE(reads(game, "Mina Falk"));
  EXPECT_TRUE(reads(game, "Top 250: Unranked"));
  const std::vector<std::string> page = game.player.words();

  game.player.press("Rate this title");
  EXPECT_TRUE(reads(game, "\nHow would you rate it out of 10?"));
  game.player.press("Cancel");
  EXPECT_EQ(game.player.words(), page);
  game.player.press("RottenBanana");
  EXPECT_TRUE(reads(game, "CRITICS CONSENSUS"));
  const std::vector<std::string> bananas = game.player.words();
  EXPECT_EQ(game.player.words(), bananas);
  game.player.press("Back");
  EXPECT_EQ(game.player.words(), page);

  game.player.press("Rate this title");
  game.player.press("9 ★★★★★★★★★");
  EXPECT_EQ(game.film(1).myRating, 9);
  EXPECT_TRUE(reads(game, "Your rating"));
  game.player.press("Back");
  game.player.press("Imbd page of Salt Road");
  EXPECT_NE(game.player.words(), page);  // another day, other voices
  EXPECT_TRUE(reads(game, "Your rating"));
}

TEST(Reception, EveryWayToATitleLeadsToItsPage) {
  BookedPerformer performer(7);
  Running game(performer);
  comeOut(game);
  game.player.press("Close");
  game.player.press("Work");
  game.player.press("Auditions");
  game.player.press("Harbor Lights");
  game.player.press("Imbd page");
  EXPECT_EQ(game.player.title(), "Harbor Lights");
  game.player.press("Box office");
  EXPECT_EQ(game.player.notice(), "🎞 No Theatrical Release 🎞");
  game.player.press("OK");
  game.player.press("Quotes");
  EXPECT_TRUE(reads(game, "Quotes: 0"));
  game.player.press("Back");
  game.player.press("Top 250");
  EXPECT_EQ(game.player.title(), "TOP 250 Shows");
  game.player.press("Movies");
  EXPECT_EQ(game.player.title(), "TOP 250 Movies");
}

// A producer with a series among the best of all time, a film that is out and one that is not.
struct Producer : test::BookedPerformer {
  Producer() : BookedPerformer(7) {
    SaveStore store(port);
    Game game{.store = store, .random = random};
    game.world.weekNumberForTracking = 20;
    add(game.world, 11, filmType::series, "Low Tide", 19);
    add(game.world, 12, filmType::feature, "Paper Moons", 19);
    add(game.world, 13, filmType::feature, "Not Yet", 25);
    save<&WorldState::weekNumberForTracking, &WorldState::saveAllAuditionList, &WorldState::saveAllFilmList>(
        game);
    EXPECT_TRUE(store.commit());
  }
  static void add(WorldState& world, std::int64_t id, std::int64_t typeOfFilm, const std::string& title,
                  std::int64_t weekReleased) {
    world.saveAllAuditionList.push_back({.filmId = id,
                                         .typeOfFilm = typeOfFilm,
                                         .isPrincipal = rolePart::ownProduction,
                                         .title = title,
                                         .weekReleased = weekReleased,
                                         .funnelStage = stage::wrapped});
    const bool is_out = weekReleased < world.weekNumberForTracking;
    world.saveAllFilmList.push_front({.filmId = id,
                                      .typeOfFilm = typeOfFilm,
                                      .title = title,
                                      .weekReleased = weekReleased,
                                      .imbdRating = is_out ? 9.9 : 0,
                                      .numImbdRatings = is_out ? 5 : 0,
                                      .imbdMetascore = is_out ? 90 : 0,
                                      .numMetascoreRatings = is_out ? 2 : 0,
                                      .seasonNumber = -1});
  }
};

TEST(Reception, TheBestOfAllTimeAndTheProductionsLeadToThePagesOfWhatIsOut) {
  Producer producer;
  Running game(producer);
  game.player.press("Work");
  game.player.press("Top 250");
  EXPECT_FALSE(reads(game, "Paper Moons"));
  game.player.press("Shows");
  game.player.press("1. Low Tide");
  EXPECT_EQ(game.player.title(), "Low Tide");
  EXPECT_TRUE(reads(game, "Top 250: #1"));
  game.player.press("RottenBanana");
  EXPECT_TRUE(reads(game, "2 Reviews"));
  for (int screen = 0; screen < 3; ++screen) game.player.press("Back");

  game.player.press("Productions");
  EXPECT_FALSE(reads(game, "Imbd page of Not Yet"));
  game.player.press("Imbd page of Paper Moons");
  EXPECT_EQ(game.player.title(), "Paper Moons");
}

TEST(Reception, BeforeTheReleaseThePagesWaitForIt) {
  test::ScratchGame scratch;
  scratch.game.world.weekNumberForTracking = 20;
  Producer::add(scratch.game.world, 13, filmType::feature, "Not Yet", 25);
  Stage stage(scratch.game);
  openTitlePage(stage, 13);
  const view::Page page = stage.top().view(stage.game());
  EXPECT_EQ(page.title, "Not Yet");
  EXPECT_EQ(page.nodes.size(), 3U);  // poster, a word that nobody has seen it, storyline
  RottenBananaDetailViewController bananas("Not Yet");
  bananas.load(stage);
  EXPECT_EQ(bananas.view(stage.game()).nodes.size(), 2U);
}

TEST(Reception, AYearLaterTheScoresStandAndThePopularityHasMoved) {
  BookedPerformer performer(7);
  Running game(performer);
  comeOut(game);
  game.player.press("Close");
  const Film released = game.film(1);
  for (int week = 0; week < 52; ++week) {
    const double before = game.film(1).currentPopularity;
    game.endWeek();
    EXPECT_EQ(game.film(1).lastWeekPopularity, before);
    EXPECT_LE(std::abs(game.film(1).currentPopularity - before), 6);  // half of 13 less 1
  }
  EXPECT_EQ(game.film(1).imbdRating, released.imbdRating);
  EXPECT_EQ(game.film(1).numMetascoreRatings, released.numMetascoreRatings);
  EXPECT_NE(game.film(1).currentPopularity, released.currentPopularity);
  EXPECT_EQ(Running(performer).film(1), game.film(1));  // and all of it is on disk
}

TEST(Reception, AnEveningsReviewCostsEnergyAndIsKept) {
  BookedPerformer performer(7);
  Running game(performer);
  const std::int64_t energy = game.world().totalEnergyAvailable;
  game.player.press("Social");
  game.player.press("Rate a movie");
  EXPECT_TRUE(game.player.title().starts_with("What do you think about "));
  EXPECT_EQ(game.world().totalEnergyAvailable, energy - 25);
  game.player.press("❇️ Write it for me");
  EXPECT_EQ(game.player.notice(), "⭐️ Choose a Rating! ⭐️");
  game.player.press("OK");
  game.player.press("8 ★");
  game.player.press("Submit");
  EXPECT_EQ(game.player.notice(), "⭐️ Leave a Review! ⭐️");
  game.player.press("OK");
  game.player.press("❇️ Write it for me");
  game.player.press("Submit");
  EXPECT_EQ(game.player.notice(), "⭐️ Review Published ⭐️");
  game.player.press("OK");
  ASSERT_EQ(game.world().saveAllMovieReviews.size(), 1U);
  EXPECT_EQ(game.world().saveAllMovieReviews.front().rating, 8);

  for (int evening = 0; evening < 3; ++evening) {
    game.player.press("Rate a movie");
    game.player.press("Back");
  }
  game.player.press("Rate a movie");
  EXPECT_EQ(game.player.notice(), "⚡️ Not Enough Energy ⚡️");
  EXPECT_EQ(game.world().totalEnergyAvailable, 0);
}

}  // namespace
}  // namespace tb
