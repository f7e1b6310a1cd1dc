// The wrap: what a project's film takes over, and what is drawn for it.

#include "film/film_record.h"

#include <gtest/gtest.h>
#include <ranges>
#include <set>

#include "core/fields/career.h"
#include "film/cast_list.h"
#include "film/catalogue.h"
#include "tests/core/unusual_values.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

struct Wrap : test::RuleTest {
  Audition project{.filmId = 12, .title = "Salt Road"};

  const Film& wrap(std::int64_t typeOfFilm) {
    project.typeOfFilm = typeOfFilm;
    makeFilm(game, project);
    return world.saveAllFilmList.front();
  }
};

TEST_F(Wrap, TheFilmTakesOverWhatTheProjectPromisedAndGoesToTheFront) {
  test::Unusual().fill(project);
  world.myName = "Ada Quinn";
  world.yearNumber = 2031;
  world.saveAllFilmList = {{.filmId = 1}};
  random.range(136, 135).range(3, 1);
  const Film film = wrap(filmType::feature);
  const Film expected{.filmId = project.filmId,
                      .imageString = project.imageString,
                      .role = project.role,
                      .isPrincipal = project.isPrincipal,
                      .title = project.title,
                      .movieDescription = project.description,
                      .cast = {"Ada Quinn"},
                      .genres = project.genres,
                      .characterName = project.characterName,
                      .ageRating = "PG-13",
                      .lengthMinutes = 200,
                      .numberOfEpisodes = project.numberOfEpisodesActed,
                      .parentSeriesId = project.parentSeriesFilmId,
                      .directorName = project.directorName,
                      .writerName = project.writerName,
                      .yearReleased = 2031,
                      .weekReleased = project.weekReleased,
                      .budget = project.budget,
                      .currentPopularity = project.hypeRating,
                      .lastWeekPopularity = project.hypeRating,
                      .payment = project.payment,
                      .residualRate = project.residual,
                      .royaltyRate = project.royalty,
                      .sourceId = project.sourceId,
                      .parentId = project.parentSeriesFilmId,
                      .seasonNumber = project.seasonNumber,
                      .sequelNumber = project.seasonNumber,
                      .didAct = project.didAct,
                      .equityPercentage = project.equityPercentage,
                      .equityDollarsInvested = project.equityDollarsInvested,
                      .numOfTheatres = 4'500,
                      .franchise = project.franchise,
                      .franchiseId = project.franchiseId};
  EXPECT_EQ(film, expected);
  EXPECT_EQ(filmIndex(world, 1), 1U);
  EXPECT_EQ(filmIndex(world, 99), 2U);
}

TEST_F(Wrap, ASeriesGetsALengthInFivesARatingOfItsOwnAndANetworkWithItsLogo) {
  project.seasonNumber = 2;
  random.range(7, 6).range(3, 2).range(7, 2);
  const Film& film = wrap(filmType::series);
  EXPECT_EQ(film.lengthMinutes, 60);
  EXPECT_EQ(film.ageRating, "TV-MA");
  EXPECT_EQ(film.debutNetwork, "Bisney");
  EXPECT_EQ(film.debutImageString, "imbdBisney.ong");
  EXPECT_EQ(film.sequelNumber, 0);  // a second season is no sequel
}

TEST_F(Wrap, SmallFilmsHaveNoAgeRatingAndACommercialNoLengthEither) {
  random.range(56, 0).range(21, 0);
  for (const auto& [type, minutes] :
       {std::pair{filmType::studentFilm, 5}, {filmType::shortFilm, 20}, {filmType::commercial, 0}}) {
    const Film& film = wrap(type);
    EXPECT_EQ(film.lengthMinutes, minutes);
    EXPECT_EQ(film.ageRating, "");
  }
}

TEST_F(Wrap, OnlyALaterFilmOfASagaIsASequel) {
  for (const auto& [season, parent, sequel] : {std::tuple{2, 1, 2}, {1, 1, 0}, {2, 0, 0}, {-1, -1, 0}}) {
    random.any(2);
    project.seasonNumber = season;
    project.parentSeriesFilmId = parent;
    EXPECT_EQ(wrap(filmType::feature).sequelNumber, sequel);
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
