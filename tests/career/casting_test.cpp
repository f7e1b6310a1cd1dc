#include <gtest/gtest.h>

#include "career/audition_week.h"
#include "career/new_title.h"
#include "film/catalogue.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

using AuditionWeek = test::RuleTest;

// A lower score needs an extra draw, which would fail this test.
TEST_F(AuditionWeek, AScoreEqualToTheChanceNeedsNoExtraDraw) {
  world.isSAG = 1;
  world.showreelScore = 50;
  for (const std::int64_t stage : {funnel::submitted, funnel::invited}) {
    const std::int64_t week = world.weekNumberForTracking + (stage == funnel::submitted ? 1 : 0);
    world.saveAllAuditionList = {{.isPrincipal = rolePart::principal,
                                  .weekAudition = week,
                                  .funnelStage = stage,
                                  .rehearsalRating = 50,
                                  .auditionDifficulty = 40}};
    random.range(41, 20).range(51, 20).range(3, 1);  // chance, score, and a winning roll
    if (stage == funnel::submitted) random.any(1);   // the log line
    resolveAuditionsForWeek(game);
    EXPECT_EQ(world.saveAllAuditionList[0].funnelStage, stage + 1);
  }
}

using NewTitle = test::RuleTest;

TEST_F(NewTitle, ReplacesMadeTitles) {
  const std::span<const Movie> table = movies();
  const auto nobody = [](const Movie&) { return false; };
  const auto drawn = [&](std::size_t row) -> const std::string& {
    return newTitle(table, table[row], madeTitles(world), nobody).title;
  };
  EXPECT_EQ(drawn(61), table[61].title);
  world.saveAllFilmList = {{.title = table[61].title}};  // the last feature film in the table
  world.saveAllAuditionList = {{.title = table[0].title, .funnelStage = funnel::booked},
                               {.title = table[1].title, .funnelStage = funnel::submitted}};
  EXPECT_EQ(drawn(61), table[1].title);  // a submission does not count as made
  EXPECT_EQ(drawn(0), table[1].title);
  EXPECT_EQ(newTitle(table, table[0], madeTitles(world),
                     [&](const Movie& movie) { return movie.title == table[1].title; })
                .title,
            table[2].title);
  for (const Movie& movie : table) world.saveAllFilmList.push_back({.title = movie.title});
  EXPECT_EQ(drawn(5), table[5].title);  // all are made, so it repeats
}

}  // namespace
}  // namespace tb
