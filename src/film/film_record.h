#pragma once

// A film comes into being when its project wraps.

#include <cstddef>
#include <cstdint>
#include <string>

#include "core/game.h"

namespace tb {

// The wrap: draws running time, age rating and, for a series, the network of its debut, and puts the film of
// the project at the front of `saveAllFilmList`. Writes nothing: the weekly step saves the list.
void makeFilm(Game& game, const Audition& project);

// Where the film of a project stands in `saveAllFilmList`, or the length of the list when it is not there.
[[nodiscard]] std::size_t filmIndex(const WorldState& world, std::int64_t filmId);

// True from the week after the release on, when the scores are there to be seen.
[[nodiscard]] bool isOut(const WorldState& world, const Film& film);

// The first of the genres; empty when there is none.
[[nodiscard]] std::string mainGenre(const Film& film);

// What a film is worth after its release, 0 to 100: the mean of the two scores.
[[nodiscard]] double qualityOf(const Film& film);

}  // namespace tb
