#include "career/audition_cleanup.h"

namespace tb {

namespace {

constexpr std::int64_t springCleaning = 25;
constexpr std::int64_t winterCleaning = 50;
constexpr std::int64_t oldestInvitation = 19;  // weeks

bool isForgotten(const Audition& audition, std::int64_t now) {
  const bool stale = audition.funnelStage == funnel::invited && audition.didAct == 1 &&
                     now - audition.weekAudition > oldestInvitation;
  return stale || audition.funnelStage == funnel::closed;
}

}  // namespace

void cleanUpAuditions(Game& game) {
  WorldState& world = game.world;
  if (world.weekNumber != springCleaning && world.weekNumber != winterCleaning) return;
  world.saveAllAuditionList.erase_if(
      [&](const Audition& audition) { return isForgotten(audition, world.weekNumberForTracking); });
  world.save = world.saveAllAuditionList;
}

}  // namespace tb
