// drawFreshRow(): does not repeat recent rows and skips rows that are not true.

#include "banks/draw.h"

#include <gtest/gtest.h>
#include <set>

#include "banks/audition_banks.h"
#include "banks/critics_banks.h"
#include "banks/film_banks.h"
#include "banks/rate_movies_banks.h"
#include "tests/scratch_game.h"
#include "tests/seeded_random.h"

namespace tb {
namespace {

struct DrawFreshRow : test::RuleTest {
  std::string_view rowAt(Bank bank, std::size_t row) { return markedRow(rowsOf(bank)[row]).text; }
};

TEST_F(DrawFreshRow, ReplacesRecentRowsByTheNext) {
  const auto tell = [&](std::int64_t drawn) {
    random.range(20, drawn);
    return drawFreshRow(game, bank::talkShows);
  };
  EXPECT_EQ(tell(18), rowAt(bank::talkShows, 18));
  EXPECT_EQ(tell(18), rowAt(bank::talkShows, 19));
  EXPECT_EQ(tell(18), rowAt(bank::talkShows, 0));  // wraps around
  for (std::int64_t row = 1; row <= 7; ++row)
    EXPECT_EQ(tell(row), rowAt(bank::talkShows, static_cast<std::size_t>(row)));
  EXPECT_EQ(tell(8), rowAt(bank::talkShows, 8));  // ten other rows since: not recent any more
  EXPECT_EQ(tell(18), rowAt(bank::talkShows, 18));
  random.range(20, 3);
  Game next{.store = store, .random = random};  // a new launch has no recent rows
  EXPECT_EQ(drawFreshRow(next, bank::talkShows), rowAt(bank::talkShows, 3));
}

TEST_F(DrawFreshRow, AvoidsAtMostTwentyRecentRows) {
  for (std::int64_t row = 0; row < 21; ++row) {
    random.range(60, row);
    static_cast<void>(drawFreshRow(game, bank::submission));
  }
  random.range(60, 0);
  EXPECT_EQ(drawFreshRow(game, bank::submission), rowAt(bank::submission, 0));
}

TEST_F(DrawFreshRow, DrawsOnlyTrueRows) {
  EXPECT_EQ(markedRow("@agent @fame Hello {title}").text, "Hello {title}");
  test::SeededRandom chance(3);
  Game beginners{.store = store, .random = chance};
  Game stars{.store = store, .random = chance};
  stars.world.totalFans = 1'000'000;
  stars.world.weeklyJobContractRemaining = 2;
  stars.world.saveAllTalentAgents = {{.isSigned = 1}};
  stars.world.saveAllFilmList = {{.didAct = 1}};
  for (const Bank bank : {bank::reviewFirstSentence, bank::withdrawal, bank::longReviewBank5}) {
    std::set<std::string_view> all;
    for (int draw = 0; draw < 1'000; ++draw) {
      const MarkedRow row = markedRow(drawFreshRow(beginners, bank, {.isPrincipal = false}));
      EXPECT_FALSE(row.text.contains("{name}")) << row.text;
      all.insert(drawFreshRow(stars, bank, {.isPrincipal = true, .isBooked = true}));
    }
    EXPECT_EQ(all.size(), rowsOf(bank).size());
  }
  const auto tells = [&](Game& game, std::string_view word) {
    for (int draw = 0; draw < 300; ++draw) {
      if (drawFreshRow(game, bank::reviewFirstSentence).contains(word)) return true;
    }
    return false;
  };
  for (const std::string_view word : {"agent", "last set", "stage door"}) {
    EXPECT_FALSE(tells(beginners, word)) << word;
    EXPECT_TRUE(tells(stars, word)) << word;
  }
}

TEST(DrawSubject, OnlyActingPrincipalsAreOnScreen) {
  EXPECT_TRUE(subjectOf(Film{.isPrincipal = 1, .didAct = 1}).isPrincipal);
  EXPECT_FALSE(subjectOf(Film{.isPrincipal = 0, .didAct = 1}).isPrincipal);
  EXPECT_FALSE(subjectOf(Film{.isPrincipal = 2, .didAct = 0}).isPrincipal);
  EXPECT_FALSE(subjectOf(Audition{.isPrincipal = 1, .funnelStage = 1}).isBooked);
  EXPECT_TRUE(subjectOf(Audition{.isPrincipal = 1, .funnelStage = 2}).isBooked);
}

}  // namespace
}  // namespace tb
