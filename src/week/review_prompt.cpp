#include "week/review_prompt.h"

namespace tb {

namespace {

constexpr std::int64_t promptWeek = 31;
constexpr std::int64_t answered = 3;
constexpr std::int64_t thanks = 5;  // energy per week

}  // namespace

bool isReviewPromptDue(const WorldState& world) {
  return world.weekNumber == promptWeek && world.writtenReview == 0;
}

void answerReviewPrompt(Game& game) {
  game.world.writtenReview += answered;
  game.world.totalEnergyMax += thanks;
}

}  // namespace tb
