#include "career/guild.h"

#include <algorithm>

#include "core/house_notices.h"

namespace tb {

std::int64_t guildEligibility(const WorldState& world) {
  return std::ranges::count_if(world.saveAllAuditionList, [](const Audition& audition) {
    return audition.funnelStage >= funnel::booked && audition.isPrincipal == rolePart::principal;
  });
}

Refusal guildRefusal(const WorldState& world) {
  if (guildEligibility(world) < rolesForEligibility) {
    return Notice{.title = "❌ Not Eligible ❌",
                  .message = "\nYou have not met the terms of eligibilty.",
                  .brief = "Two booked principal roles needed"};
  }
  if (world.totalCashAvailable < guildInitiationFee) {
    return Notice{.title = "💰 Not Enough Cash! 💰",
                  .message = "\nYou do not have cash to join.",
                  .brief = tooLittleCash};
  }
  return {};
}

Refusal joinGuild(Game& game) {
  WorldState& world = game.world;
  if (world.isSAG == 1) return {};
  if (Refusal refusal = guildRefusal(world)) return refusal;

  world.totalCashAvailable -= guildInitiationFee;
  world.isSAG = 1;
  world.memberSince = world.yearNumber;
  world.saveAllWeeklyLineItems.push_back({.category = 1,
                                          .title = "AG Monthly Dues",
                                          .amount = 20,
                                          .year = world.yearNumber,
                                          .isExpense = true,
                                          .typeOfExpense = 1});
  return {};
}

}  // namespace tb
