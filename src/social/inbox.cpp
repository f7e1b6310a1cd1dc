#include "social/inbox.h"

namespace tb {

void removeEmail(Game& game, std::int64_t id) {
  game.world.saveAllEmailList.erase_if([id](const Email& email) { return email.id == id; });
}

}  // namespace tb
