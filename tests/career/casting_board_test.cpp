#include "career/casting_board.h"

#include <gtest/gtest.h>

#include <set>

#include "career/casting_terms.h"
#include "career/colleagues.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

struct Casting : testing::Test, test::ScratchGame {
  WorldState& world = game.world;
  const TvRole coStar = {.label = "Co-Star", .fewestEpisodes = 1, .mostEpisodes = 1};
  const TvRole recurring = {.label = "Recurring", .fewestEpisodes = 2, .mostEpisodes = 4};
  Movie movie;

  CastingListing terms(std::int64_t type, std::int64_t isPrincipal, std::int64_t isUnion, const TvRole& tvRole) {
    movie.type = type;
    CastingListing listing{.movie = &movie, .role = "drawn", .isPrincipal = isPrincipal, .isUnion = isUnion};
    drawTerms(game, listing, tvRole);
    return listing;
  }
  CastingListing terms(std::int64_t type, std::int64_t isPrincipal, std::int64_t isUnion) {
    return terms(type, isPrincipal, isUnion, coStar);
  }
  ~Casting() override { EXPECT_EQ(random.left(), 0u) << "draws that no rule took"; }
};

TEST_F(Casting, FeatureFilmsPayLessForABiggerBudget) {
  random.range(90, 64).range(470, 469).range(3, 2);  // $740,000: 2610 x 3 / 2
  const CastingListing small = terms(0, 0, 0);
  EXPECT_EQ(small.budget, 740'000);
  EXPECT_EQ(small.payment, 3915);
  EXPECT_EQ(small.role, "drawn");
  EXPECT_EQ(small.residual, 0);
  random.range(90, 65).range(411, 1).range(3, 0).unit(1);  // $750,000: 1151 / 2
  world.agentResidualBonus = 0.01;
  const CastingListing big = terms(0, 1, 1);
  EXPECT_EQ(big.budget, 750'000);
  EXPECT_EQ(big.payment, 575);
  EXPECT_EQ(big.role, "Support");
  EXPECT_DOUBLE_EQ(big.residual, 0.029);
}

TEST_F(Casting, SeriesTakePrincipalsFromTheGuildAlone) {
  random.range(90, 89);
  const CastingListing extra = terms(1, 0, 0);
  EXPECT_EQ(extra.budget, 990'000);
  EXPECT_EQ(extra.payment, 5 * 99 + 450);
  EXPECT_EQ(extra.numberOfEpisodesActed, 1);
  EXPECT_EQ(extra.isUnion, 0);
  random.range(90, 0).range(1, 0).unit(0);
  const CastingListing guest = terms(1, 1, 0, coStar);
  EXPECT_EQ(guest.role, "Co-Star");
  EXPECT_EQ(guest.numberOfEpisodesActed, 1);
  EXPECT_EQ(guest.payment, 1182);
  EXPECT_EQ(guest.isUnion, 1);
  EXPECT_EQ(guest.residual, 0.01);
  random.range(90, 0).range(3, 2).unit(0);
  const CastingListing regular = terms(1, 1, 1, recurring);
  EXPECT_EQ(regular.role, "Recurring");
  EXPECT_EQ(regular.numberOfEpisodesActed, 4);
  EXPECT_EQ(regular.payment, 1482);
}

TEST_F(Casting, CommercialsPayByTheGuildAndTheRestByTheJob) {
  random.range(226, 225).range(5, 4);
  const CastingListing crowd = terms(2, 0, 1);
  EXPECT_EQ(crowd.budget, 250'000);
  EXPECT_EQ(crowd.payment, 1350);
  random.range(226, 0).range(9, 8).range(2, 0);
  const CastingListing face = terms(2, 1, 1);
  EXPECT_EQ(face.payment, 5610);
  EXPECT_EQ(face.residual, 0);
  random.range(226, 0).range(9, 0).range(2, 1).unit(0);
  EXPECT_EQ(terms(2, 1, 1).residual, 0.01);

  random.range(49, 48).range(11, 9);  // y 14: bought out for 140 %
  const CastingListing bought = terms(2, 1, 0);
  EXPECT_EQ(bought.budget, 50'000);
  EXPECT_EQ(bought.payment, 2500);
  EXPECT_EQ(bought.buyout, 3500);
  random.range(49, 24).range(11, 10);  // y 15: nothing
  const CastingListing plain = terms(2, 0, 0);
  EXPECT_EQ(plain.payment, 250);  // 10 x 26 is held at 250
  EXPECT_EQ(plain.buyout, 0);
  random.range(49, 0).range(11, 1);  // y 6
  EXPECT_EQ(terms(2, 0, 0).buyout, 12);
}

TEST_F(Casting, StudentsCanNotPayTheirBackground) {
  random.range(49, 48).range(2, 1);
  const CastingListing lead = terms(3, 1, 1);
  EXPECT_EQ(lead.budget, 5000);
  EXPECT_EQ(lead.payment, 500);
  EXPECT_EQ(lead.role, "Lead");
  EXPECT_EQ(lead.isUnion, 0);
  random.range(49, 48).range(4, 2);
  const CastingListing extra = terms(3, 0, 1);
  EXPECT_EQ(extra.payment, 0);
  EXPECT_EQ(extra.role, "Double");
}

TEST_F(Casting, ShortFilmsHaveFourScales) {
  random.range(226, 225).range(5, 0);
  const CastingListing crowd = terms(4, 0, 1);
  EXPECT_EQ(crowd.budget, 300'000);
  EXPECT_EQ(crowd.payment, 108);
  random.range(226, 0).range(19, 18);
  EXPECT_EQ(terms(4, 1, 1).payment, 4320);
  random.range(91, 90);
  const CastingListing free = terms(4, 1, 0);
  EXPECT_EQ(free.budget, 100'000);
  EXPECT_EQ(free.payment, 5000);
  random.range(91, 0);
  EXPECT_EQ(terms(4, 0, 0).payment, 100);
}

TEST_F(Casting, DirectorsLeapByTheirBands) {
  const std::pair<int, int> leaps[] = {{0, 2},   {50, 2},  {51, 4},  {65, 4},  {66, 6},  {75, 6},  {76, 8},  {80, 8},
                                       {81, 10}, {82, 10}, {83, 12}, {84, 12}, {85, 15}, {86, -2}, {100, -2}};
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
  random.range(31, 14);
  EXPECT_EQ(drawWriterRating(game), 0);
  random.range(31, 13).range(7, 0);
  EXPECT_EQ(drawWriterRating(game), 1);
}

// The draws of a listing but for its terms: part, television role, title, role, guild, character ... director,
// schedule.
struct CastingNetwork : Casting {
  std::int64_t rows = std::ssize(movies());
  std::int64_t placeOfType(std::int64_t type, int nth = 0) {
    for (std::int64_t place = 0; place < rows; ++place) {
      if (movies()[static_cast<std::size_t>(place)].type == type && nth-- == 0) return place;
    }
    return 0;
  }
  void scriptStudentFilm(std::int64_t place) {
    random.range(2, 0).range(2, 0).range(rows, place).range(4, 0).range(4, 0).any(2);
    random.any(2);  // the terms
    scriptDirectorAndSchedule();
  }
  void scriptDirectorAndSchedule() { random.range(31, 15).range(101, 0).any(2).range(14, 13).range(17, 16); }
};

TEST_F(CastingNetwork, MakesABoardOfProjectsOfTheirOwn) {
  world.filmId = 40;
  world.weekNumberForTracking = 100;
  random.range(4, 0);
  for (int listing = 0; listing < 5; ++listing) scriptStudentFilm(placeOfType(3, listing));
  const CastingBoard board = openCastingNetwork(game);
  ASSERT_EQ(board.size(), 5u);
  EXPECT_EQ(world.filmId, 41);
  EXPECT_EQ(store.value("filmId"), plist::Value{std::int64_t{41}});
  for (std::size_t place = 0; place < board.size(); ++place) {
    EXPECT_EQ(board[place].filmId, 42 + static_cast<std::int64_t>(place));
  }
  EXPECT_EQ(board[0].weekAudition, 115);
  EXPECT_EQ(board[0].weekToWork, 135);
  EXPECT_EQ(board[0].directorRating, 3);
  EXPECT_EQ(board[0].characterName, "Aaron Abbott");
  EXPECT_EQ(board[0].directorName, "Abbas Abbott");
}

TEST_F(CastingNetwork, DrawsATakenTitleAgainTenTimesAndThenLetsItStand) {
  random.range(4, 0);
  const std::int64_t taken = placeOfType(3);
  scriptStudentFilm(taken);
  random.range(2, 0).range(2, 0).range(rows, taken);
  for (int redraw = 0; redraw < 10; ++redraw) random.range(rows, taken);
  random.range(4, 0).range(4, 0).any(2).any(2);
  scriptDirectorAndSchedule();
  random.range(2, 0).range(2, 0).range(rows, taken).range(rows, placeOfType(3, 1));
  random.range(4, 0).range(4, 0).any(2).any(2);
  scriptDirectorAndSchedule();
  for (int listing = 2; listing < 4; ++listing) scriptStudentFilm(placeOfType(3, listing));
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
      random.range(2, 0).range(2, 0).range(rows, placeOfType(4, flag)).range(4, 0).range(4, flag).any(2);
      random.any((flag == 3 ? 1 - member : member) == 1 ? 2 : 1);
      scriptDirectorAndSchedule();
    }
    scriptStudentFilm(placeOfType(3));
    const CastingBoard board = openCastingNetwork(game);
    for (std::size_t flag = 0; flag < 3; ++flag) EXPECT_EQ(board[flag].isUnion, member);
    EXPECT_EQ(board[3].isUnion, 1 - member);
    EXPECT_EQ(board[0].characterName, member == 0 ? "Aaron Abbott" : "Aaliyah Abbott");
  }
}

TEST_F(CastingNetwork, GivesPrincipalsOfSeriesTheirOwnRoles) {
  random.range(4, 0);
  random.range(2, 1).range(2, 1).range(rows, placeOfType(1)).range(2, 0).range(4, 0).any(2);
  random.any(3);
  scriptDirectorAndSchedule();
  random.range(2, 1).range(2, 1).range(rows, placeOfType(4)).range(2, 1).range(4, 0).any(2);
  random.any(1);
  scriptDirectorAndSchedule();
  for (int listing = 0; listing < 3; ++listing) scriptStudentFilm(placeOfType(3, listing));
  const CastingBoard board = openCastingNetwork(game);
  EXPECT_EQ(board[0].role, "Recurring");
  EXPECT_EQ(board[1].role, "Lead");
  EXPECT_EQ(board[2].role, "Extra");
}

}  // namespace
}  // namespace tb
