#include "social/inbox.h"

#include "core/save.h"

namespace tb {

void removeEmail(Game& game, std::int64_t id) {
  const auto removed =
      game.world.saveAllEmailList.erase_if([id](const Email& email) { return email.id == id; });
  if (removed > 0) save<&WorldState::saveAllEmailList>(game);
}

}  // namespace tb
