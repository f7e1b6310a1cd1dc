#pragma once

// Posts on Chirp and their reach. What the player does with posts is in social/chirp_posts.h, and the feed in
// social/chirp_feed.h.

#include <string>

#include "core/game.h"

namespace tb {

// Chirp::artistId of everyone but the player; 0 means the player.
inline constexpr std::int64_t notThePlayer = -1;

// Values of Chirp::typeOfAccount.
namespace accountType {
inline constexpr std::int64_t player = 0;
inline constexpr std::int64_t partner = 3;
inline constexpr std::int64_t fan = 5;
inline constexpr std::int64_t industry = 6;
}  // namespace accountType

// A new post by an industry account, dated now, with the current `chirpId` as its id and no reach yet.
[[nodiscard]] Chirp industryChirp(const Game& game, std::string name, std::string picture,
                                  std::string message);

// A new post by the player, dated now. Increments `chirpId` and draws the post's reach from the fans.
[[nodiscard]] Chirp playerChirp(Game& game, std::string message);

// Adds a post to `saveAllChirpList`, which keeps 200: the oldest one that is not pinned leaves.
void addChirp(WorldState& world, Chirp chirp);

// Draws likes, comments and rechirps for a post that all of Chirp sees.
void drawCrowdReach(RandomSource& random, Chirp& chirp);

}  // namespace tb
