#pragma once

// The cast of a title, computed for display.

#include <string>
#include <vector>

#include "core/records/film.h"

namespace tb {

// The cast of a film in billing order: four stars, with the performer first for a lead and last for a small
// part. A performer who only directs or invests is not listed. The stars are derived from the film's id. A
// commercial has only the performer.
[[nodiscard]] std::vector<std::string> castList(const Film& film);

}  // namespace tb
