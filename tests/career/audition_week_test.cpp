#include "career/audition_week.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace tb
