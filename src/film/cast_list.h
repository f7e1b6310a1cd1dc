#pragma once

// Who else is in a title, chosen where it is shown.

#include <string>
#include <vector>

#include "core/records/film.h"

namespace tb {

// The cast of a film in the order of the poster: the performer of a lead first, that of a small part last,
// and four of the industry's stars. Who only gave the money or directed is not in it. The same people every
// time: they follow from the film's id. A commercial is played alone.
[[nodiscard]] std::vector<std::string> castList(const Film& film);

}  // namespace tb
