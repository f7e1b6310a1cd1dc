#include "career/agent_year.h"

namespace tb {

AgentYear agentYear(const WorldState& world, const TalentAgent& agent) {
  AgentYear year;
  for (const Audition& project : world.saveAllAuditionList) {
    if (project.sourceId != agent.id || project.submittedYear != world.yearNumber) continue;
    year.sent += 1;
    if (project.funnelStage >= funnel::booked) year.booked += 1;
  }
  // The list is oldest first.
  const List<RoyaltyPayout>& payouts = world.saveAllRoyaltyPayouts;
  for (std::size_t index = payouts.size(); index-- > 0 && payouts[index].yearNumber == world.yearNumber;) {
    if (payouts[index].sourceId == agent.id) year.commission += payouts[index].agentEarnings;
  }
  return year;
}

}  // namespace tb
