#include "social/chirp_posts.h"

#include <algorithm>

#include "banks/chirp_banks.h"
#include "banks/draw.h"
#include "core/chirps.h"
#include "core/find.h"
#include "core/text.h"

namespace tb {

Refusal chirpRefusal(const WorldState& world) {
  if (world.totalEnergyAvailable >= chirpEnergy) return {};
  return Notice{.title = "⚡️ Not Enough Energy ⚡️",
                .message = "\nYou don't have enough energy for this chirp!",
                .brief = "Not enough energy"};
}

Refusal postChirp(Game& game, const std::string& text) {
  const std::string message = trimmed(text);
  if (message.empty()) {
    return Notice{.title = "🐥 Chirp Needed 🐥",
                  .message = "\nIn order to Chirp, you'll need to write something chirp worthy!"};
  }
  if (Refusal refusal = chirpRefusal(game.world)) return refusal;
  game.world.totalEnergyAvailable -= chirpEnergy;
  addChirp(game.world, playerChirp(game, message));
  return {};
}

void pin(Game& game, std::int64_t id) {
  List<Chirp>& chirps = game.world.saveAllChirpList;
  for (std::size_t index = 0; index < chirps.size(); ++index) {
    const std::int64_t wanted = chirps[index].id == id ? 1 : 0;
    if (chirps[index].isPinned != wanted) chirps.edit(index).isPinned = wanted;
  }
}

void unpin(Game& game, std::int64_t id) {
  const auto index = find(game.world.saveAllChirpList, &Chirp::id, id);
  if (index) game.world.saveAllChirpList.edit(*index).isPinned = 0;
}

void deleteChirp(Game& game, std::int64_t id) {
  const auto index = find(game.world.saveAllChirpList, &Chirp::id, id);
  if (index) game.world.saveAllChirpList.erase_at(*index);
}

std::string suggestedChirp(Game& game) { return std::string(drawFreshRow(game, bank::chirpSuggestions)); }

std::int64_t chirpsByPlayer(const WorldState& world) {
  return std::ranges::count(world.saveAllChirpList, 0, &Chirp::artistId);
}

}  // namespace tb
