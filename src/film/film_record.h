#pragma once

// The Film record of a project.

#include <cstddef>
#include <cstdint>
#include <string>

#include "core/game.h"

namespace tb {

// Adds the film of a wrapped project at the front of `saveAllFilmList`. Draws its length, age rating and, for
// a series, its debut network.
void addFilm(Game& game, const Audition& project);

// True from the week after the release on, when the scores are visible.
[[nodiscard]] bool isOut(const WorldState& world, const Film& film);

// The first genre; empty when there is none.
[[nodiscard]] std::string mainGenre(const Film& film);

// The mean of a film's rating and its metascore, 0 to 10.
[[nodiscard]] double meanScore(const Film& film);

// The quality of a released film, 0 to 100: the mean of its two scores.
[[nodiscard]] double qualityOf(const Film& film);

}  // namespace tb
