// The wrap: what a project's film takes over, and what is drawn for it.

#include "film/film_record.h"

#include <gtest/gtest.h>
#include <ranges>
#include <set>

#include "film/cast_list.h"
#include "film/catalogue.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

using test::ScratchGame;

Audition bookedProject(std::int64_t typeOfFilm) {
  return {.filmId = 12,
          .imageString = "salt.png",
          .typeOfFilm = typeOfFilm,
          .isPrincipal = rolePart::principal,
          .title = "Salt Road",
          .description = "A long walk.",
          .genres = {"Western", "Drama"},
          .role = "Lead",
          .characterName = "June Abara",
          .numberOfEpisodesActed = 6,
          .parentSeriesFilmId = 3,
          .seasonNumber = 2,
          .weekReleased = 31,
          .payment = 5'000,
          .residual = 0.02,
          .royalty = 1.5,
          .budget = 2e6,
          .sourceId = 4,
          .hypeRating = 44,
          .directorName = "Mina Falk",
          .writerName = "Ole Brandt",
          .didAct = 1,
          .equityPercentage = 10,
          .equityDollarsInvested = 200'000,
          .franchise = 2,
          .franchiseId = 5};
}

TEST(Wrap, TheFilmTakesOverWhatTheProjectPromisedAndGoesToTheFront) {
  ScratchGame scratch;
  scratch.game.world.myName = "Ada Quinn";
  scratch.game.world.yearNumber = 2031;
  scratch.game.world.saveAllFilmList.push_back({.filmId = 1});
  scratch.random.range(136, 135).range(3, 1);
  makeFilm(scratch.game, bookedProject(filmType::feature));
  const Film expected{.filmId = 12,
                      .imageString = "salt.png",
                      .role = "Lead",
                      .isPrincipal = 1,
                      .title = "Salt Road",
                      .movieDescription = "A long walk.",
                      .cast = {"Ada Quinn"},
                      .genres = {"Western", "Drama"},
                      .characterName = "June Abara",
                      .ageRating = "PG-13",
                      .lengthMinutes = 200,
                      .numberOfEpisodes = 6,
                      .parentSeriesId = 3,
                      .directorName = "Mina Falk",
                      .writerName = "Ole Brandt",
                      .yearReleased = 2031,
                      .weekReleased = 31,
                      .budget = 2e6,
                      .currentPopularity = 44,
                      .lastWeekPopularity = 44,
                      .payment = 5'000,
                      .residualRate = 0.02,
                      .royaltyRate = 1.5,
                      .sourceId = 4,
                      .parentId = 3,
                      .seasonNumber = 2,
                      .sequelNumber = 2,
                      .didAct = 1,
                      .equityPercentage = 10,
                      .equityDollarsInvested = 200'000,
                      .numOfTheatres = 4'500,
                      .franchise = 2,
                      .franchiseId = 5};
  ASSERT_EQ(scratch.game.world.saveAllFilmList.size(), 2U);
  EXPECT_EQ(scratch.game.world.saveAllFilmList.front(), expected);
  EXPECT_EQ(filmIndex(scratch.game.world, 1), 1U);
  EXPECT_EQ(filmIndex(scratch.game.world, 99), 2U);
}

TEST(Wrap, ASeriesGetsALengthInFivesARatingOfItsOwnAndANetworkWithItsLogo) {
  ScratchGame scratch;
  scratch.random.range(7, 6).range(3, 2).range(7, 2);
  makeFilm(scratch.game, bookedProject(filmType::series));
  const Film& film = scratch.game.world.saveAllFilmList.front();
  EXPECT_EQ(film.lengthMinutes, 60);
  EXPECT_EQ(film.ageRating, "TV-MA");
  EXPECT_EQ(film.debutNetwork, "Bisney");
  EXPECT_EQ(film.debutImageString, "imbdBisney.ong");
  EXPECT_EQ(film.sequelNumber, 0);  // a second season is no sequel
}

TEST(Wrap, SmallFilmsHaveNoAgeRatingAndACommercialNoLengthEither) {
  struct Case {
    std::int64_t typeOfFilm;
    std::int64_t spread;
    std::int64_t shortest;
  };
  for (const auto& [type, spread, shortest] :
       {Case{filmType::studentFilm, 56, 5}, Case{filmType::shortFilm, 21, 20}}) {
    ScratchGame scratch;
    scratch.random.range(spread, 0);
    makeFilm(scratch.game, bookedProject(type));
    EXPECT_EQ(scratch.game.world.saveAllFilmList.front().lengthMinutes, shortest);
    EXPECT_EQ(scratch.game.world.saveAllFilmList.front().ageRating, "");
  }
  ScratchGame scratch;  // no draw at all
  makeFilm(scratch.game, bookedProject(filmType::commercial));
  EXPECT_EQ(scratch.game.world.saveAllFilmList.front().lengthMinutes, 0);
}

TEST(Wrap, OnlyALaterFilmOfASagaIsASequel) {
  for (const auto& [season, parent, sequel] : {std::tuple{2, 1, 2}, {1, 1, 0}, {2, 0, 0}, {-1, -1, 0}}) {
    ScratchGame scratch;
    scratch.random.any(2);
    Audition project = bookedProject(filmType::feature);
    project.seasonNumber = season;
    project.parentSeriesFilmId = parent;
    makeFilm(scratch.game, project);
    EXPECT_EQ(scratch.game.world.saveAllFilmList.front().sequelNumber, sequel);
  }
}

TEST(CastList, IsTheSameEveryTimeAndPutsThePlayerWhereThePartIs) {
  Film film{.filmId = 12, .isPrincipal = rolePart::principal, .cast = {"Ada Quinn"}};
  const std::vector<std::string> lead = castList(film);
  ASSERT_EQ(lead.size(), 5U);
  EXPECT_EQ(lead.front(), "Ada Quinn");
  EXPECT_EQ(castList(film), lead);
  EXPECT_EQ(std::set(lead.begin(), lead.end()).size(), lead.size());
  for (const std::string& star : lead | std::views::drop(1)) {
    EXPECT_TRUE(std::ranges::contains(starNames(), star)) << star;
  }
  film.isPrincipal = rolePart::background;
  EXPECT_EQ(castList(film).back(), "Ada Quinn");
  EXPECT_EQ(castList(film).front(), lead[1]);
  film.didAct = 0;
  EXPECT_FALSE(std::ranges::contains(castList(film), "Ada Quinn"));
  EXPECT_NE(castList({.filmId = 13, .didAct = 0}), castList(film));
  film = {.typeOfFilm = filmType::commercial, .cast = {"Ada Quinn"}};
  EXPECT_EQ(castList(film), std::vector<std::string>{"Ada Quinn"});
}

}  // namespace
}  // namespace tb
