#pragma once

// The player's posts on Chirp.

#include <cstdint>
#include <string>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

inline constexpr std::int64_t chirpEnergy = 5;  // points per post

// Why a post cannot be made now, whatever its text: not enough energy.
[[nodiscard]] Refusal chirpRefusal(const WorldState& world);

// Posts a text, with likes drawn from the fans. Refused, with nothing changed, when the text is empty or the
// energy is too low.
[[nodiscard]] Refusal postChirp(Game& game, const std::string& text);

// Pins the post with this Chirp::id at the top of the profile, in place of another one.
void pin(Game& game, std::int64_t id);
void unpin(Game& game, std::int64_t id);

// Removes the post with this id. Does nothing when there is none.
void deleteChirp(Game& game, std::int64_t id);

// An idea for a post.
[[nodiscard]] std::string suggestedChirp(Game& game);

// The number of the player's posts that are kept.
[[nodiscard]] std::int64_t chirpsByPlayer(const WorldState& world);

}  // namespace tb
