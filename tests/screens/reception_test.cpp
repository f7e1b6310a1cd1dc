#include <gtest/gtest.h>

#include "screens/reception/imbd_film_detail_view_controller.h"
#include "screens/reception/rotten_banana_detail_view_controller.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

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

}  // namespace
}  // namespace tb
