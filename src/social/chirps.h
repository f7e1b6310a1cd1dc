#pragma once

// Posts on Chirp that other rules send, and how far a post gets.

#include <string>

#include "core/game.h"

namespace tb {

// Chirp::artistId of whoever is not the player; posts of the player are told by their 0.
inline constexpr std::int64_t notThePlayer = -1;

// Chirp::typeOfAccount.
namespace accountType {
inline constexpr std::int64_t player = 0;
inline constexpr std::int64_t industry = 6;
}  // namespace accountType

// A post of now by a voice of the industry, under the number that `chirpId` shows. Nobody has seen it yet.
[[nodiscard]] Chirp industryChirp(const Game& game, std::string name, std::string picture,
                                  std::string message);

// A post of now by the player. Takes the next number of `chirpId` and draws how many fans it reaches.
[[nodiscard]] Chirp playerChirp(Game& game, std::string message);

// Likes, comments and rechirps of somebody with the whole of Chirp for an audience.
void drawCrowdReach(RandomSource& random, Chirp& chirp);

}  // namespace tb
