#include "career/submission.h"

#include <gtest/gtest.h>

#include "tests/scratch_game.h"

namespace tb {
namespace {

struct CastingSubmission : test::RuleTest {
  Movie movie = {.title = "Neon Horizon", .type = filmType::series};
  CastingListing listing = {.filmId = 7, .movie = &movie, .isUnion = 1};
};

TEST_F(CastingSubmission, ChecksReasonsInOrder) {
  world.totalEnergyAvailable = 19;
  const auto refusal = [this] { return submitToCastingListing(game, listing).value_or(Notice{}); };
  EXPECT_TRUE(refusal().message.starts_with("\nBecome a member of the Actor's Guild to gain access"));
  listing.isUnion = 0;
  EXPECT_EQ(refusal().title, "⚡️ Not Enough Energy! ⚡️");
  world.isSAG = 1;
  EXPECT_TRUE(refusal().message.ends_with("you are not permitted to work non-union roles."));
  world.saveAllAuditionList.push_back({.filmId = 7});
  EXPECT_EQ(refusal().title, "🎭 SUBMITTED! 🎭");
  EXPECT_EQ(world.totalEnergyAvailable, 19);
  EXPECT_EQ(world.saveAllAuditionList.size(), 1u);
  EXPECT_EQ(world.filmId, 0);
}

}  // namespace
}  // namespace tb
