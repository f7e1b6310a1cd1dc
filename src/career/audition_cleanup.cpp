#include "career/audition_cleanup.h"

#include "core/record_codec.h"
#include "core/save.h"

namespace tb {

namespace {

constexpr std::int64_t springCleaning = 25;
constexpr std::int64_t winterCleaning = 50;
constexpr std::int64_t oldestInvitation = 19;  // weeks

bool isForgotten(const Audition& audition, std::int64_t now) {
  const bool stale = audition.funnelStage == 1 && audition.didAct == 1 &&
                     now - audition.weekAudition > oldestInvitation;
  return stale || audition.funnelStage == -1;
}

}  // namespace

void cleanUpAuditions(Game& game) {
  WorldState& world = game.world;
  if (world.weekNumber != springCleaning && world.weekNumber != winterCleaning) return;
  world.saveAllAuditionList.erase_if(
      [&](const Audition& audition) { return isForgotten(audition, world.weekNumberForTracking); });
  const auto& auditions = world.saveAllAuditionList;
  game.store.put("save", {plist::Data{encodeRecords<Audition>(auditions.begin(), auditions.end())}});
  save<&WorldState::activityTracker>(game);
}

}  // namespace tb
