#include "career/withdrawal.h"

#include <algorithm>
#include <string>

#include "banks/audition_banks.h"
#include "banks/draw.h"
#include "core/find.h"
#include "core/log.h"

namespace tb {

bool isWithdrawalOffered(const Audition& project) { return project.funnelStage <= funnel::booked; }

void withdrawFromRole(Game& game, std::int64_t filmId) {
  WorldState& world = game.world;
  const auto index = find(world.saveAllAuditionList, &Audition::filmId, filmId);
  if (!index || !isWithdrawalOffered(world.saveAllAuditionList[*index])) return;

  constexpr double maxFanLoss = 0.01;
  const std::string title = world.saveAllAuditionList[*index].title;
  const Subject subject = subjectOf(world.saveAllAuditionList[*index]);
  world.saveAllAuditionList.erase_at(*index);
  const auto most = static_cast<std::int64_t>(static_cast<double>(world.totalFans) * maxFanLoss);
  const std::int64_t lost = RandomBetween(game.random, 0, std::max<std::int64_t>(most, 0));
  world.totalFans -= lost;
  world.trackFans.push_back(world.totalFans);
  logActivity(world, fill(drawFreshRow(game, bank::withdrawal, subject),
                          {{"title", title}, {"n", std::to_string(lost)}}));
}

}  // namespace tb
