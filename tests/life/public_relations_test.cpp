// Public relations: when a story breaks, which one, and what the answers do.

#include "life/public_relations.h"

#include <cctype>
#include <gtest/gtest.h>

#include "tests/scratch_game.h"

namespace tb {
namespace {

struct PublicRelations : test::RuleTest {
  PublicRelations() { world.myName = "Ada Quinn"; }
};

// A draw that is not scripted fails the test.
TEST_F(PublicRelations, BreakAtEachLookAtTheReviewOfAThirdWeekUntilOneDid) {
  for (const std::int64_t week : {1, 2, 4, 52, 53}) {
    world.weekNumber = week;
    EXPECT_FALSE(randomEventStep(game));
  }
  world.weekNumber = 51;
  for (const std::int64_t roll : {0, 2, 4, 6}) {
    random.range(7, roll);
    EXPECT_FALSE(randomEventStep(game));
  }
  EXPECT_EQ(world.randomEventShownThisWeek, 0);
  random.range(7, 3);
  EXPECT_TRUE(randomEventStep(game));
  EXPECT_FALSE(randomEventStep(game));
}

TEST_F(PublicRelations, AreDrawnByFame) {
  std::int64_t band = 0;
  for (const std::int64_t last : {10, 20, 30, 40, 50, 60, 70, 80, 94, 100, 200}) {
    int paid = 0;
    for (std::int64_t place = 0; place < 6; ++place) {
      for (const std::int64_t level : {last, band == 0 ? -9 : world.saveFameLevel}) {
        world.saveFameLevel = level;
        random.range(6, place);
        const EventScenario scenario = drawEventScenario(game);
        EXPECT_EQ(scenario.category, band) << level;
        EXPECT_TRUE(scenario.reputation >= 1 && scenario.reputation <= 10);
        EXPECT_FALSE(scenario.questionTemplate.contains('{'));
        for (const std::string& option : {scenario.optionA, scenario.optionB}) {
          EXPECT_FALSE(std::isupper(static_cast<unsigned char>(option.front()))) << option;
        }
        for (const auto& outcomes : {scenario.outcomesA, scenario.outcomesB}) {
          for (const std::string& outcome : outcomes) EXPECT_FALSE(outcome.ends_with('.')) << outcome;
        }
        if (level == last) paid += scenario.amount > 0 ? 1 : 0;
      }
    }
    EXPECT_EQ(paid, 4) << "band " << band;
    world.saveFameLevel = last + 1;
    band += 1;
  }
}

TEST_F(PublicRelations, MoveTheImageBetween0And100) {
  EventScenario story{.questionTemplate = "It rained.",
                      .optionA = "buy an umbrella.",
                      .optionB = "get wet.",
                      .amount = 40,
                      .reputation = 6,
                      .outcomesA = {"a", "b", "you stay dry"},
                      .outcomesB = {"you sneeze", "e", "f"}};
  world.publicImage = 99;
  world.totalCashAvailable = 39.99;
  EXPECT_EQ(eventChoiceRefusal(world, story, EventChoice::a),
            (Notice{.title = "💰 Not Enough Cash", .message = "\nYou can't afford to bury this story."}));
  EXPECT_FALSE(eventChoiceRefusal(world, story, EventChoice::b));
  world.totalCashAvailable = 40;
  EXPECT_FALSE(eventChoiceRefusal(world, story, EventChoice::a));
  random.range(3, 2);
  EXPECT_EQ(chooseEventOption(game, story, EventChoice::a),
            "It rained. You buy an umbrella. As a result, you stay dry and your image improves by +6");
  EXPECT_EQ(world.publicImage, 100);
  EXPECT_EQ(world.totalCashAvailable, 0);

  world.publicImage = 3;
  random.range(3, 0);
  const std::string damaged = chooseEventOption(game, story, EventChoice::b);
  EXPECT_EQ(damaged, "It rained. You get wet. As a result, you sneeze and your image is damaged by -6");
  EXPECT_EQ(world.publicImage, 0);
  EXPECT_EQ(world.activityTracker.front(), damaged);
  EXPECT_TRUE(world.WeekFeed.empty());

  story.amount = 0;
  world.totalCashAvailable = -5;
  EXPECT_FALSE(eventChoiceRefusal(world, story, EventChoice::a)) << "what is free needs no cash";
}

}  // namespace
}  // namespace tb
