#include "social/emailed_project.h"

#include "core/find.h"
#include "social/inbox.h"

namespace tb {

const Audition* emailedProject(const WorldState& world, EmailedProjects list, std::int64_t emailId) {
  if (emailWith(world, emailId) == nullptr) return nullptr;
  const auto offer = find(world.*list, &EmailedProject::emailId, emailId);
  return offer ? &(world.*list)[*offer].project : nullptr;
}

void closeEmailedProject(Game& game, EmailedProjects list, std::int64_t emailId) {
  (game.world.*list).erase_if([&](const EmailedProject& offer) { return offer.emailId == emailId; });
  removeEmail(game, emailId);
}

}  // namespace tb
