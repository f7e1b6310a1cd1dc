#include "platform/share_register.h"

namespace tb {

std::int64_t totalPlatformShares(const WorldState& world) {
  std::int64_t shares = world.platformShares;
  for (const Employee& employee : world.saveAllEmployeeList) {
    if (employee.sharesOwned > 0) shares += employee.sharesOwned;
  }
  for (const FundraisingRound& round : world.saveAllFundraisingRounds) {
    if (!round.investorName.empty()) shares += round.sharesToIssue;
  }
  return shares;
}

double ownPlatformFraction(const WorldState& world) {
  const std::int64_t shares = totalPlatformShares(world);
  if (shares < 1) return 1;
  return static_cast<double>(world.platformShares) / static_cast<double>(shares);
}

}  // namespace tb
