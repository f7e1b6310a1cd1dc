#include "career/casting_board.h"

#include <gtest/gtest.h>

#include "career/casting_terms.h"
#include "career/colleagues.h"
#include "career/new_title.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

struct Casting : test::RuleTest {
  const TvRole coStar = {.label = "Co-Star", .fewestEpisodes = 1, .mostEpisodes = 1};
  const TvRole recurring = {.label = "Recurring", .fewestEpisodes = 2, .mostEpisodes = 4};
  Movie movie;

  CastingListing terms(std::int64_t type, std::int64_t isPrincipal, std::int64_t isUnion,
                       const TvRole& tvRole) {
    movie.type = type;
    CastingListing listing{.movie = &movie, .role = "drawn", .isPrincipal = isPrincipal, .isUnion = isUnion};
    drawTerms(game, listing, tvRole);
    return listing;
  }
  // Draws the terms and compares what they come to.
  CastingListing expectTerms(std::int64_t type, std::int64_t isPrincipal, std::int64_t isUnion, double budget,
                             double payment, const TvRole& tvRole) {
    const CastingListing listing = terms(type, isPrincipal, isUnion, tvRole);
    EXPECT_EQ(listing.budget, budget);
    EXPECT_EQ(listing.payment, payment);
    return listing;
  }
  CastingListing expectTerms(std::int64_t type, std::int64_t isPrincipal, std::int64_t isUnion, double budget,
                             double payment) {
    return expectTerms(type, isPrincipal, isUnion, budget, payment, coStar);
  }
};

TEST_F(Casting, FeatureFilmsPayLessForABiggerBudget) {
  random.range(90, 64).range(470, 469).range(3, 2);  // $740,000: 2610 x 3 / 2
  const CastingListing small = expectTerms(filmType::feature, 0, 0, 740'000, 3915);
  EXPECT_EQ(small.role, "drawn");
  EXPECT_EQ(small.residual, 0);
  random.range(90, 65).range(411, 1).range(3, 0).unit(1);  // $750,000: 1151 / 2
  world.agentResidualBonus = 0.01;
  const CastingListing big = expectTerms(filmType::feature, 1, 1, 750'000, 575);
  EXPECT_EQ(big.role, "Support");
  EXPECT_DOUBLE_EQ(big.residual, 0.029);
}

TEST_F(Casting, SeriesTakePrincipalsFromTheGuildAlone) {
  random.range(90, 89);
  const CastingListing extra = expectTerms(filmType::series, 0, 0, 990'000, 5 * 99 + 450);
  EXPECT_EQ(extra.numberOfEpisodesActed, 1);
  EXPECT_EQ(extra.isUnion, 0);
  random.range(90, 0).range(1, 0).unit(0);
  const CastingListing guest = expectTerms(filmType::series, 1, 0, 100'000, 1182);
  EXPECT_EQ(guest.role, "Co-Star");
  EXPECT_EQ(guest.isUnion, 1);
  EXPECT_EQ(guest.residual, 0.01);
  random.range(90, 0).range(3, 2).unit(0);
  EXPECT_EQ(expectTerms(filmType::series, 1, 1, 100'000, 1482, recurring).numberOfEpisodesActed, 4);
}

TEST_F(Casting, CommercialsPayByTheGuildAndTheRestByTheJob) {
  random.range(226, 225).range(5, 4);
  expectTerms(filmType::commercial, 0, 1, 250'000, 1350);
  random.range(226, 0).range(9, 8).range(2, 0);
  EXPECT_EQ(expectTerms(filmType::commercial, 1, 1, 25'000, 5610).residual, 0);
  random.range(226, 0).range(9, 0).range(2, 1).unit(0);
  EXPECT_EQ(terms(filmType::commercial, 1, 1, coStar).residual, 0.01);

  random.range(49, 48).range(11, 9);  // y 14: bought out for 140 %
  EXPECT_EQ(expectTerms(filmType::commercial, 1, 0, 50'000, 2500).buyout, 3500);
  random.range(49, 24).range(11, 10);  // y 15: nothing; 10 x 26 is held at 250
  EXPECT_EQ(expectTerms(filmType::commercial, 0, 0, 26'000, 250).buyout, 0);
  random.range(49, 0).range(11, 1);  // y 6
  EXPECT_EQ(terms(filmType::commercial, 0, 0, coStar).buyout, 12);
}

TEST_F(Casting, StudentsCanNotPayTheirBackgroundAndShortFilmsHaveFourScales) {
  random.range(49, 48).range(2, 1);
  const CastingListing lead = expectTerms(filmType::studentFilm, 1, 1, 5000, 500);
  EXPECT_EQ(lead.role, "Lead");
  EXPECT_EQ(lead.isUnion, 0);
  random.range(49, 48).range(4, 2);
  EXPECT_EQ(expectTerms(filmType::studentFilm, 0, 1, 5000, 0).role, "Double");

  random.range(226, 225).range(5, 0);
  expectTerms(filmType::shortFilm, 0, 1, 300'000, 108);
  random.range(226, 0).range(19, 18);
  expectTerms(filmType::shortFilm, 1, 1, 75'000, 4320);
  random.range(91, 90).range(91, 0);
  expectTerms(filmType::shortFilm, 1, 0, 100'000, 5000);
  expectTerms(filmType::shortFilm, 0, 0, 10'000, 100);
}

TEST_F(Casting, DirectorsLeapByTheirBands) {
  const std::pair<int, int> leaps[] = {{0, 2},   {50, 2},  {51, 4},  {65, 4},  {66, 6},
                                       {75, 6},  {76, 8},  {80, 8},  {81, 10}, {82, 10},
                                       {83, 12}, {84, 12}, {85, 15}, {86, -2}, {100, -2}};
  for (const auto& [roll, points] : leaps) {
    random.range(31, 20).range(101, roll);  // the level is 1: 1 + 20 - 15
    EXPECT_EQ(drawDirectorRating(game), 6 + points) << roll;
  }
  random.range(31, 12).range(101, 50);  // 0 stands
  EXPECT_EQ(drawDirectorRating(game), 0);
  random.range(31, 11).range(101, 50).range(7, 6);  // -1 does not
  EXPECT_EQ(drawDirectorRating(game), 7);
  random.range(31, 11).range(101, 50);
  EXPECT_EQ(drawDirectorForm(game), -1);
  random.range(31, 14).range(31, 13).range(7, 0);
  EXPECT_EQ(drawWriterRating(game), 0);
  EXPECT_EQ(drawWriterRating(game), 1);
}

// The draws of a listing but for its terms: part, television role, title, role, guild, character ...
// director, schedule.
struct CastingNetwork : Casting {
  std::int64_t rows = std::ssize(movies());
  std::int64_t placeOfType(std::int64_t type, int nth = 0) {
    for (std::int64_t place = 0; place < rows; ++place) {
      if (movies()[static_cast<std::size_t>(place)].type == type && nth-- == 0) return place;
    }
    return 0;
  }
  test::ScriptedRandom& scriptPart(std::int64_t part, std::int64_t place) {
    return random.range(2, part).range(2, part).range(rows, place);
  }
  // From the terms on, which take that many draws.
  void scriptRest(int terms) {
    random.any(2 + terms);
    random.range(31, 15).range(101, 0).any(2).range(14, 13).range(17, 16);
  }
  void scriptStudentFilm(std::int64_t place) {
    scriptPart(0, place).range(4, 0).range(4, 0);
    scriptRest(2);
  }
};

TEST_F(CastingNetwork, MakesABoardOfProjectsOfTheirOwn) {
  world.filmId = 40;
  world.weekNumberForTracking = 100;
  random.range(4, 0);
  for (int listing = 0; listing < 5; ++listing)
    scriptStudentFilm(placeOfType(filmType::studentFilm, listing));
  const CastingBoard board = openCastingNetwork(game);
  ASSERT_EQ(board.size(), 5u);
  EXPECT_EQ(world.filmId, 41);
  for (std::size_t place = 0; place < board.size(); ++place) {
    EXPECT_EQ(board[place].filmId, 42 + static_cast<std::int64_t>(place));
  }
  EXPECT_EQ(board[0].weekAudition, 115);
  EXPECT_EQ(board[0].weekToWork, 135);
  EXPECT_EQ(board[0].directorRating, 3);
  EXPECT_EQ(board[0].directorName, "Abbas Abendroth");
}

TEST_F(CastingNetwork, DrawsATakenTitleAgainTenTimesAndThenLetsItStand) {
  random.range(4, 0);
  const std::int64_t taken = placeOfType(filmType::studentFilm);
  scriptStudentFilm(taken);
  scriptPart(0, taken);
  for (int redraw = 0; redraw < 10; ++redraw) random.range(rows, taken);
  random.range(4, 0).range(4, 0);
  scriptRest(2);
  scriptPart(0, taken).range(rows, placeOfType(filmType::studentFilm, 1)).range(4, 0).range(4, 0);
  scriptRest(2);
  for (int listing = 2; listing < 4; ++listing)
    scriptStudentFilm(placeOfType(filmType::studentFilm, listing));
  const CastingBoard board = openCastingNetwork(game);
  EXPECT_EQ(board[1].movie->title, board[0].movie->title);
  EXPECT_NE(board[2].movie->title, board[0].movie->title);
}

TEST_F(CastingNetwork, MatchesThePerformersGuildThreeTimesInFour) {
  for (const std::int64_t member : {0, 1}) {
    world.isSAG = member;
    world.isMale = member == 0;
    random.range(4, 0);
    for (int flag = 0; flag < 4; ++flag) {
      // A short film, background, whose union flag is the one drawn.
      scriptPart(0, placeOfType(filmType::shortFilm, flag)).range(4, 0).range(4, flag);
      scriptRest((flag == 3 ? 1 - member : member) == 1 ? 2 : 1);
    }
    scriptStudentFilm(placeOfType(filmType::studentFilm));
    const CastingBoard board = openCastingNetwork(game);
    for (std::size_t flag = 0; flag < 3; ++flag) EXPECT_EQ(board[flag].isUnion, member);
    EXPECT_EQ(board[3].isUnion, 1 - member);
    EXPECT_EQ(board[0].characterName, member == 0 ? "Aaron Abendroth" : "Aaliyah Abendroth");
  }
}

TEST_F(CastingNetwork, GivesPrincipalsOfSeriesTheirOwnRoles) {
  random.range(4, 0);
  scriptPart(1, placeOfType(filmType::series)).range(2, 0).range(4, 0);
  scriptRest(3);
  scriptPart(1, placeOfType(filmType::shortFilm)).range(2, 1).range(4, 0);
  scriptRest(1);
  for (int listing = 0; listing < 3; ++listing)
    scriptStudentFilm(placeOfType(filmType::studentFilm, listing));
  const CastingBoard board = openCastingNetwork(game);
  EXPECT_EQ(board[0].role, "Recurring");
  EXPECT_EQ(board[1].role, "Lead");
  EXPECT_EQ(board[2].role, "Extra");
}

TEST_F(Casting, ATitleThatWasMadeGivesWayToTheNextOfItsTypeThatWasNot) {
  const std::span<const Movie> table = movies();
  const auto nobody = [](const Movie&) { return false; };
  const auto drawn = [&](std::size_t row) -> const std::string& {
    return newTitle(table, table[row], madeTitles(world), nobody).title;
  };
  EXPECT_EQ(drawn(61), table[61].title);
  world.saveAllFilmList = {{.title = table[61].title}};  // the last feature film of the table
  world.saveAllAuditionList = {{.title = table[0].title, .funnelStage = funnel::booked},
                               {.title = table[1].title, .funnelStage = funnel::submitted}};
  EXPECT_EQ(drawn(61), table[1].title);  // a submission is no film yet
  EXPECT_EQ(drawn(0), table[1].title);
  EXPECT_EQ(newTitle(table, table[0], madeTitles(world),
                     [&](const Movie& movie) { return movie.title == table[1].title; })
                .title,
            table[2].title);
  for (const Movie& movie : table) world.saveAllFilmList.push_back({.title = movie.title});
  EXPECT_EQ(drawn(5), table[5].title);  // with all of them made it comes again
}

}  // namespace
}  // namespace tb
