#pragma once

// The player's opinions: stars for her own titles, and reviews of other titles.

#include <cstdint>
#include <string>

#include "core/game.h"
#include "core/notice.h"
#include "film/catalogue.h"

namespace tb {

inline constexpr std::int64_t reviewEnergy = 25;  // points per review
inline constexpr std::int64_t maxStars = 10;

// Sets the player's 1 to 10 stars of a film. Does nothing when the film is already rated or does not exist.
void rateFilm(Game& game, std::int64_t filmId, std::int64_t stars);

// Why a review cannot be started: not enough energy.
[[nodiscard]] Refusal reviewRefusal(const WorldState& world);

// Spends the energy for a review, before the title is drawn; refused without enough energy.
[[nodiscard]] Refusal startReview(Game& game);

// Draws the title to review. Titles can repeat.
[[nodiscard]] const CatalogueTitle& drawTitleToReview(RandomSource& random);

// Refuses a rating of 0, which means that no stars are chosen yet.
[[nodiscard]] Refusal needsRating(std::int64_t rating);

// Draws a review text for a rating of 1 to 10 stars.
[[nodiscard]] std::string generatedReview(Game& game, std::int64_t rating);

// Adds a review of a title at the front of `saveAllMovieReviews`. Refused when the rating is 0 or the text is
// blank.
[[nodiscard]] Refusal submitReview(Game& game, const std::string& title, std::int64_t rating,
                                   const std::string& text);

}  // namespace tb
