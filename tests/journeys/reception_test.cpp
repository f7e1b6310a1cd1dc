// The reception of the player's titles: critics, audience, percentages, a year of popularity, and the
// player's own ratings.

#include <format>
#include <gtest/gtest.h>

#include "screens/reception/imbd_film_detail_view_controller.h"
#include "screens/reception/rotten_banana_detail_view_controller.h"
#include "tests/journeys/device.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

// The lead of a film and of a series released this week; the summary is open.
struct ReceptionJourney : testing::Test {
  test::SeededRandom random{7};
  test::Device device{random};

  void comeOut() {
    device.begin([](WorldState& world) {
      world.saveAllAuditionList = {test::bookedLead(1, filmType::feature, "Salt Road"),
                                   test::bookedLead(2, filmType::series, "Harbor Lights")};
    });
    device.playWeeks(2);
    device.endWeek();
  }
  std::vector<std::string> page() { return device.player().words(); }
};

TEST_F(ReceptionJourney, ReviewsStayWhileThePageIsOpen) {
  comeOut();
  test::Player& player = device.player();
  player.follow({"New Release", "Imbd page of Salt Road"});
  EXPECT_EQ(player.title(), "Salt Road");
  const Film& film = device.film(1);
  player.expectSees({std::format("Imbd | {:.1f}", film.imbdRating),
                     std::format("Metascore | {}", film.imbdMetascore), "Mina Falk", "Top 250 | Unranked"});
  const auto open = page();

  player.press("Rate this title");
  player.expectSees({"\nHow would you rate it out of 10?"});
  player.press("Cancel");
  EXPECT_EQ(page(), open);
  player.press("RottenBanana");
  player.expectSees({"CRITICS CONSENSUS"});
  const auto bananas = page();
  EXPECT_EQ(page(), bananas);
  player.press("Back");
  EXPECT_EQ(page(), open);

  player.follow({"Rate this title", "9 ★★★★★★★★★"});
  EXPECT_EQ(device.film(1).myRating, 9);
  player.follow({"Back", "Imbd page of Salt Road"});
  EXPECT_NE(page(), open);  // new reviews each time
  player.expectSees({"Your rating"});
}

TEST(ReceptionScreens, ShowNoScoresBeforeTheRelease) {
  test::ScratchGame scratch;
  scratch.world.weekNumberForTracking = 20;
  scratch.world.saveAllFilmList = {{.filmId = 13, .title = "Not Yet", .weekReleased = 25}};
  Stage stage(scratch.game);
  openTitlePage(stage, 13);
  const view::Page page = stage.top().view(stage.game());
  EXPECT_EQ(page.title, "Not Yet");
  EXPECT_EQ(page.nodes.size(), 3U);  // poster, notice that nobody has seen it, storyline
  RottenBananaDetailViewController bananas(13);
  bananas.load(stage);
  EXPECT_EQ(bananas.view(stage.game()).nodes.size(), 2U);
}

TEST(ReceptionScreens, SeasonsHaveTheirOwnScores) {
  test::ScratchGame scratch(test::Unscripted::low);
  scratch.world.weekNumberForTracking = 20;
  const auto season = [](std::int64_t filmId, std::int64_t weekReleased, std::int64_t reviews) {
    return Film{.filmId = filmId,
                .typeOfFilm = filmType::series,
                .title = "Low Tide",
                .weekReleased = weekReleased,
                .imbdRating = 9.9,
                .imbdMetascore = 90,
                .numMetascoreRatings = reviews};
  };
  scratch.world.saveAllFilmList = {season(12, 19, 4),
                                   season(11, 9, 2)};  // the later season is first in the list
  Stage stage(scratch.game);
  const auto reviews = [&](std::int64_t filmId) {
    RottenBananaDetailViewController bananas(filmId);
    bananas.load(stage);
    const view::Page page = bananas.view(stage.game());
    return std::get<view::Section>(page.nodes[4].node).nodes.size();
  };
  EXPECT_EQ(reviews(11), 2U);
  EXPECT_EQ(reviews(12), 4U);
}

TEST_F(ReceptionJourney, AReviewCostsEnergyAndIsSaved) {
  device.begin([](WorldState&) {});
  test::Player& player = device.player();
  player.follow({"Social", "Rate a movie"});
  EXPECT_TRUE(player.title().starts_with("What do you think about "));
  EXPECT_EQ(device.world().totalEnergyAvailable, 75);
  player.press("❇️ Write it for me");
  player.expectTold("⭐️ Choose a Rating! ⭐️");
  player.follow({"8 ★", "Submit"});
  player.expectTold("⭐️ Leave a Review! ⭐️");
  player.follow({"❇️ Write it for me", "Submit"});
  EXPECT_TRUE(player.said().starts_with("Your review of "));
  ASSERT_EQ(device.world().saveAllMovieReviews.size(), 1U);
  EXPECT_EQ(device.world().saveAllMovieReviews.front().rating, 8);

  for (int evening = 0; evening < 3; ++evening) player.follow({"Rate a movie", "Back"});
  player.press("Rate a movie");
  EXPECT_EQ(player.notice(), "⚡️ Not Enough Energy ⚡️");
  EXPECT_EQ(device.world().totalEnergyAvailable, 0);
}

}  // namespace
}  // namespace tb
