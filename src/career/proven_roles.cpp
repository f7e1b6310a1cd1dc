#include "career/proven_roles.h"

namespace tb {

std::vector<std::size_t> provenRoles(const WorldState& world) {
  std::vector<std::size_t> roles;
  for (std::size_t index = 0; index < world.saveAllAuditionList.size(); ++index) {
    const Audition& project = world.saveAllAuditionList[index];
    if (project.isPrincipal == rolePart::principal && project.funnelStage >= funnel::booked) {
      roles.push_back(index);
    }
  }
  return roles;
}

}  // namespace tb
