#pragma once

// Posters: what the picture of a title is told, so that no screen puts one together by hand.

#include <cstdint>
#include <string>

#include "core/game.h"
#include "film/catalogue.h"
#include "screens/view.h"

namespace tb {

// Of a title that is still to be cast, or of somebody else's: nobody is billed.
[[nodiscard]] view::Picture posterOf(const Movie& movie);
[[nodiscard]] view::Picture posterOf(const CatalogueTitle& title);

// Of the player's own. The performer is billed once a principal part is booked, or as its director; who
// stands in the background is on no poster.
[[nodiscard]] view::Picture posterOf(const WorldState& world, const Audition& project);
[[nodiscard]] view::Picture posterOf(const WorldState& world, const Film& film);

// Of the film with that id; of a film that is not in the filmography what the name alone gives.
[[nodiscard]] view::Picture posterOfFilm(const WorldState& world, std::int64_t filmId,
                                         const std::string& imageString);

}  // namespace tb
