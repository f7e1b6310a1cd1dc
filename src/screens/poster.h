#pragma once

// Builds the pictures of posters.

#include <cstdint>
#include <string>

#include "core/game.h"
#include "film/catalogue.h"
#include "screens/view.h"

namespace tb {

// For a title without the performer: nobody is billed.
[[nodiscard]] view::Picture posterOf(const Movie& movie);
[[nodiscard]] view::Picture posterOf(const MovieFranchise& film);
[[nodiscard]] view::Picture posterOf(const CatalogueTitle& title);

// For the player's project. The performer is billed as the director or with a booked principal part, not with
// a background part.
[[nodiscard]] view::Picture posterOf(const WorldState& world, const Audition& project);
[[nodiscard]] view::Picture posterOf(const WorldState& world, const Film& film);

// For the film with this id; only by its image name when it is not in the filmography.
[[nodiscard]] view::Picture posterOfFilm(const WorldState& world, std::int64_t filmId,
                                         const std::string& imageString);

}  // namespace tb
