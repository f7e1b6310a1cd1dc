#pragma once

// What the player thinks of titles: stars for the titles of the own career, and reviews of other people's
// work, which fans read.

#include <cstdint>
#include <string>

#include "core/game.h"
#include "core/notice.h"
#include "film/catalogue.h"

namespace tb {

inline constexpr std::int64_t reviewEnergy = 25;  // to sit down and watch a title
inline constexpr std::int64_t mostStars = 10;

// Gives the film at `filmIndex` the player's 1 to 10 stars, for good: a film that is rated already keeps its
// stars. Writes `saveAllFilmList`.
void rateFilm(Game& game, std::size_t filmIndex, std::int64_t stars);

// Why no review can be begun now: the energy is missing.
[[nodiscard]] Refusal reviewRefusal(const WorldState& world);

// Takes the energy for a review, before its title is known; refuses without it. Writes
// `totalEnergyAvailable`.
[[nodiscard]] Refusal startReview(Game& game);

// The title that is to be reviewed. A title can come again.
[[nodiscard]] const CatalogueTitle& drawTitleToReview(RandomSource& random);

// Refuses what can't be done before the player has chosen 1 to 10 stars: a rating of 0.
[[nodiscard]] Refusal needsRating(std::int64_t rating);

// A review made up to go with a rating of 1 to 10 stars.
[[nodiscard]] std::string generatedReview(Game& game, std::int64_t rating);

// Publishes a review of a title: the newest of `saveAllMovieReviews`, which is written. Refused without a
// rating (0) or without a word.
[[nodiscard]] Refusal submitReview(Game& game, const std::string& title, std::int64_t rating,
                                   const std::string& text);

}  // namespace tb
