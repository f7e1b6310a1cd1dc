#include "career/audition_cleanup.h"

namespace tb {

namespace {

constexpr std::int64_t firstCleanupWeek = 25;
constexpr std::int64_t secondCleanupWeek = 50;
constexpr std::int64_t maxInvitationAge = 19;  // weeks

bool isRemoved(const Audition& audition, std::int64_t now) {
  const bool stale = audition.funnelStage == funnel::invited && audition.didAct == 1 &&
                     now - audition.weekAudition > maxInvitationAge;
  return stale || audition.funnelStage == funnel::closed;
}

}  // namespace

void cleanUpAuditions(Game& game) {
  WorldState& world = game.world;
  if (world.weekNumber != firstCleanupWeek && world.weekNumber != secondCleanupWeek) return;
  world.saveAllAuditionList.erase_if(
      [&](const Audition& audition) { return isRemoved(audition, world.weekNumberForTracking); });
  world.save = world.saveAllAuditionList;
}

}  // namespace tb
